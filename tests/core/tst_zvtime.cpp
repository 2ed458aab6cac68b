#include "ZvTime.h"

#include <QtTest>

using Zavo::ZvTime;

class tst_ZvTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsEmpty();
    void isEmpty_data();
    void isEmpty();
    void equality_data();
    void equality();
    void keepsWhatWasSet();
};

namespace {
const QString Stage = QStringLiteral("a.xml");
const QTime Ten(10, 0);
const QTime Eleven(11, 0);
} // namespace

void tst_ZvTime::defaultIsEmpty()
{
    const ZvTime time;
    QVERIFY(time.isEmpty());
    QVERIFY(!time.startTime().isValid());
    QVERIFY(!time.endTime().isValid());
    QVERIFY(time.stageName().isEmpty());
    QVERIFY(time == ZvTime());
}

void tst_ZvTime::isEmpty_data()
{
    QTest::addColumn<QTime>("start");
    QTest::addColumn<QTime>("end");
    QTest::addColumn<QString>("stage");
    QTest::addColumn<bool>("empty");
    QTest::newRow("whole") << Ten << Eleven << Stage << false;
    QTest::newRow("no length") << Ten << Ten << Stage << false;
    QTest::newRow("the whole day") << QTime(0, 0) << QTime(23, 59, 59, 999) << Stage << false;
    QTest::newRow("no stage") << Ten << Eleven << QString() << true;
    QTest::newRow("no start") << QTime() << Eleven << Stage << true;
    QTest::newRow("no end") << Ten << QTime() << Stage << true;
    QTest::newRow("start that is none") << QTime(24, 0) << Eleven << Stage << true;
    QTest::newRow("end before start") << Eleven << Ten << Stage << true;
    QTest::newRow("end a millisecond before start")
        << Ten << QTime(9, 59, 59, 999) << Stage << true;
}

void tst_ZvTime::isEmpty()
{
    QFETCH(QTime, start);
    QFETCH(QTime, end);
    QFETCH(QString, stage);
    QTEST(ZvTime(start, end, stage).isEmpty(), "empty");
}

void tst_ZvTime::equality_data()
{
    QTest::addColumn<ZvTime>("other");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same") << ZvTime(Ten, Eleven, Stage) << true;
    QTest::newRow("start 5 ms earlier") << ZvTime(Ten.addMSecs(-5), Eleven, Stage) << true;
    QTest::newRow("start 6 ms earlier") << ZvTime(Ten.addMSecs(-6), Eleven, Stage) << false;
    QTest::newRow("start 5 ms later") << ZvTime(Ten.addMSecs(5), Eleven, Stage) << true;
    QTest::newRow("start 6 ms later") << ZvTime(Ten.addMSecs(6), Eleven, Stage) << false;
    QTest::newRow("end 5 ms earlier") << ZvTime(Ten, Eleven.addMSecs(-5), Stage) << true;
    QTest::newRow("end 6 ms later") << ZvTime(Ten, Eleven.addMSecs(6), Stage) << false;
    QTest::newRow("both 5 ms off") << ZvTime(Ten.addMSecs(5), Eleven.addMSecs(-5), Stage) << true;
    QTest::newRow("another stage") << ZvTime(Ten, Eleven, QStringLiteral("A.xml")) << false;
    QTest::newRow("no start") << ZvTime(QTime(), Eleven, Stage) << false;
    QTest::newRow("no end") << ZvTime(Ten, QTime(), Stage) << false;
}

void tst_ZvTime::equality()
{
    QFETCH(ZvTime, other);
    QFETCH(bool, equal);
    const ZvTime time(Ten, Eleven, Stage);
    QCOMPARE(time == other, equal);
    QCOMPARE(other == time, equal);
    QCOMPARE(time != other, !equal);
    // Midnight and the end of the day are a day apart; no time and midnight are not the same.
    QVERIFY(ZvTime(QTime(0, 0), Ten, Stage) != ZvTime(QTime(23, 59, 59, 999), Ten, Stage));
    QVERIFY(ZvTime(QTime(0, 0), Ten, Stage) != ZvTime(QTime(), Ten, Stage));
}

void tst_ZvTime::keepsWhatWasSet()
{
    ZvTime time;
    time.setStartTime(QTime(1, 2, 3, 4));
    time.setEndTime(QTime(5, 6, 7, 8));
    time.setStageName(Stage);
    const ZvTime copy = time;
    time.setStartTime(QTime());
    QCOMPARE(copy.startTime(), QTime(1, 2, 3, 4));
    QCOMPARE(copy.endTime(), QTime(5, 6, 7, 8));
    QCOMPARE(copy.stageName(), Stage);
}

QTEST_APPLESS_MAIN(tst_ZvTime)
#include "tst_zvtime.moc"
