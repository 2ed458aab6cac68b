#include "timetable/TimeAxis.h"

#include <QtTest>

using namespace Zavo;

class tst_TimeAxis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsConstants();
    void endOfDayIsItsLastMillisecond();
    void aUnitIsAMinute_data();
    void aUnitIsAMinute();
    void lengthBecomesATime_data();
    void lengthBecomesATime();
    void yBecomesATime_data();
    void yBecomesATime();
    void everySecondComesBackWithinAMillisecond();
};

void tst_TimeAxis::hasItsConstants()
{
    QCOMPARE(TimeAxis::topMargin, 10.0);
    QCOMPARE(TimeAxis::dayTop, 10.0);
    QCOMPARE(TimeAxis::dayBottom, 1450.0);
    QCOMPARE(TimeAxis::dayLength, 1440.0);
    QCOMPARE(TimeAxis::millisecondsPerUnit, 60000.0);
    QCOMPARE(TimeAxis::millisecondsPerDay, 24 * 60 * 60 * 1000);
    QVERIFY(TimeAxis::shortestBand == 0.08333333333333333);
    QVERIFY(TimeAxis::shortestBand == 5000.0 / 60000.0);
}

void tst_TimeAxis::endOfDayIsItsLastMillisecond()
{
    QCOMPARE(TimeAxis::endOfDay(), QTime(23, 59, 59, 999));
    QVERIFY(TimeAxis::isEndOfDay(QTime(23, 59, 59, 999)));
    QVERIFY(!TimeAxis::isEndOfDay(QTime(23, 59, 59, 998)));
    QVERIFY(!TimeAxis::isEndOfDay(QTime(23, 59, 59)));
    QVERIFY(!TimeAxis::isEndOfDay(QTime(0, 0)));
    QVERIFY(!TimeAxis::isEndOfDay(QTime()));
}

void tst_TimeAxis::aUnitIsAMinute_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<double>("units");
    QTest::newRow("midnight") << QTime(0, 0) << 0.0;
    QTest::newRow("millisecond") << QTime(0, 0, 0, 1) << 1.0 / 60000.0;
    QTest::newRow("second") << QTime(0, 0, 1) << 1.0 / 60.0;
    QTest::newRow("minute") << QTime(0, 1) << 1.0;
    QTest::newRow("noon") << QTime(12, 0) << 720.0;
    QTest::newRow("last minute") << QTime(23, 59) << 1439.0;
    QTest::newRow("last millisecond") << QTime(23, 59, 59, 999) << 86399999.0 / 60000.0;
}

void tst_TimeAxis::aUnitIsAMinute()
{
    QFETCH(QTime, time);
    QFETCH(double, units);
    QVERIFY(TimeAxis::unitsOf(time) == units);
}

void tst_TimeAxis::lengthBecomesATime_data()
{
    QTest::addColumn<double>("units");
    QTest::addColumn<QTime>("time");
    QTest::newRow("nothing") << 0.0 << QTime(0, 0);
    QTest::newRow("less than a millisecond") << 0.9 / 60000.0 << QTime(0, 0);
    QTest::newRow("cut, not rounded") << 1.9 / 60000.0 << QTime(0, 0, 0, 1);
    QTest::newRow("half a minute") << 0.5 << QTime(0, 0, 30);
    QTest::newRow("noon") << 720.0 << QTime(12, 0);
    QTest::newRow("a millisecond short of a day") << 86399999.5 / 60000.0 << QTime(23, 59, 59, 999);
    QTest::newRow("a day wraps") << 1440.0 << QTime(0, 0);
    QTest::newRow("a day and a minute") << 1441.0 << QTime(0, 1);
    QTest::newRow("before the day wraps too") << -1.0 << QTime(23, 59);
}

void tst_TimeAxis::lengthBecomesATime()
{
    QFETCH(double, units);
    QFETCH(QTime, time);
    QCOMPARE(TimeAxis::timeOf(units), time);
}

void tst_TimeAxis::yBecomesATime_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("top");
    QTest::addColumn<QTime>("time");
    QTest::newRow("top") << 10.0 << 10.0 << QTime(0, 0);
    QTest::newRow("noon") << 730.0 << 10.0 << QTime(12, 0);
    QTest::newRow("last minute") << 1449.0 << 10.0 << QTime(23, 59);
    QTest::newRow("bottom") << 1450.0 << 10.0 << QTime(23, 59, 59, 999);
    QTest::newRow("below the bottom") << 1456.5 << 10.0 << QTime(23, 59, 59, 999);
    QTest::newRow("far below") << 1e12 << 10.0 << QTime(23, 59, 59, 999);
    QTest::newRow("axis that starts at 0") << 60.0 << 0.0 << QTime(1, 0);
    QTest::newRow("its bottom") << 1440.0 << 0.0 << QTime(23, 59, 59, 999);
}

void tst_TimeAxis::yBecomesATime()
{
    QFETCH(double, y);
    QFETCH(double, top);
    QFETCH(QTime, time);
    QCOMPARE(TimeAxis::timeAtY(y, top), time);
}

void tst_TimeAxis::everySecondComesBackWithinAMillisecond()
{
    for (int second = 0; second < 86400; ++second) {
        const QTime time = QTime(0, 0).addSecs(second);
        const double y = TimeAxis::dayTop + TimeAxis::unitsOf(time);
        const int lost = TimeAxis::timeAtY(y, TimeAxis::dayTop).msecsTo(time);
        QVERIFY2(lost == 0 || lost == 1, qPrintable(time.toString()));
    }
}

QTEST_APPLESS_MAIN(tst_TimeAxis)
#include "tst_timeaxis.moc"
