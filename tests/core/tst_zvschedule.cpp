#include "ZvSchedule.h"

#include <QtTest>

using Zavo::Weekday;
using Zavo::ZvSchedule;
using Zavo::ZvTime;

class tst_ZvSchedule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersOfTypesAndDays();
    void defaultIsEmptyAndNotOfTypeDefault();
    void isEmpty_data();
    void isEmpty();
    void sameKey_data();
    void sameKey();
    void equality();
    void timeListIsLive();
    void copiesShareTheirBands();
};

namespace {
const QString Stage = QStringLiteral("a.xml");

ZvSchedule schedule(ZvSchedule::ScheduleTypes type, Weekday::Days day, const QDate &date)
{
    ZvSchedule result;
    result.setType(type);
    result.setDayOfWeek(day);
    result.setDate(date);
    return result;
}
} // namespace

void tst_ZvSchedule::numbersOfTypesAndDays()
{
    QCOMPARE(int(ZvSchedule::Default), 1);
    QCOMPARE(int(ZvSchedule::Date), 2);
    QCOMPARE(int(ZvSchedule::DayOfWeek), 3);
    QCOMPARE(int(Weekday::Monday), int(Qt::Monday));
    QCOMPARE(int(Weekday::Wednesday), int(Qt::Wednesday));
    QCOMPARE(int(Weekday::Sunday), int(Qt::Sunday));
    QCOMPARE(int(Weekday::NoDay), 8);
}

void tst_ZvSchedule::defaultIsEmptyAndNotOfTypeDefault()
{
    const ZvSchedule none;
    QVERIFY(none.isEmpty());
    QCOMPARE(int(none.type()), 0);
    QVERIFY(none.date().isNull());
    QCOMPARE(none.dayOfWeek(), Weekday::NoDay);
    QVERIFY(none.defaultStage().isEmpty());
    QVERIFY(none.timeList().isEmpty());
}

void tst_ZvSchedule::isEmpty_data()
{
    QTest::addColumn<ZvSchedule>("record");
    QTest::addColumn<bool>("empty");
    QTest::newRow("default schedule without content")
        << schedule(ZvSchedule::Default, Weekday::NoDay, {}) << true;
    QTest::newRow("date") << schedule(ZvSchedule::Date, Weekday::NoDay, {2026, 12, 24}) << false;
    QTest::newRow("date that is none")
        << schedule(ZvSchedule::Date, Weekday::NoDay, {2026, 2, 30}) << true;
    QTest::newRow("Monday") << schedule(ZvSchedule::DayOfWeek, Weekday::Monday, {}) << false;
    QTest::newRow("Sunday") << schedule(ZvSchedule::DayOfWeek, Weekday::Sunday, {}) << false;
    QTest::newRow("day 0") << schedule(ZvSchedule::DayOfWeek, Weekday::Days(0), {}) << true;
    QTest::newRow("day 8") << schedule(ZvSchedule::DayOfWeek, Weekday::NoDay, {}) << true;
    ZvSchedule staged = schedule(ZvSchedule::Default, Weekday::NoDay, {});
    staged.setDefaultStage(Stage);
    QTest::newRow("default stage") << staged << false;
    ZvSchedule banded = schedule(ZvSchedule::Default, Weekday::NoDay, {});
    banded.setTimeList({ZvTime(QTime(1, 0), QTime(2, 0), Stage)});
    QTest::newRow("band") << banded << false;
}

void tst_ZvSchedule::isEmpty()
{
    QFETCH(ZvSchedule, record);
    QTEST(record.isEmpty(), "empty");
}

void tst_ZvSchedule::sameKey_data()
{
    QTest::addColumn<ZvSchedule>("a");
    QTest::addColumn<ZvSchedule>("b");
    QTest::addColumn<bool>("same");
    const QDate christmas(2026, 12, 24);
    const QDate newYear(2027, 1, 1);
    QTest::newRow("default, whatever the rest")
        << schedule(ZvSchedule::Default, Weekday::Monday, christmas)
        << schedule(ZvSchedule::Default, Weekday::Friday, newYear) << true;
    QTest::newRow("same date") << schedule(ZvSchedule::Date, Weekday::Monday, christmas)
                               << schedule(ZvSchedule::Date, Weekday::Friday, christmas) << true;
    QTest::newRow("other date") << schedule(ZvSchedule::Date, Weekday::Monday, christmas)
                                << schedule(ZvSchedule::Date, Weekday::Monday, newYear) << false;
    QTest::newRow("same day") << schedule(ZvSchedule::DayOfWeek, Weekday::Monday, christmas)
                              << schedule(ZvSchedule::DayOfWeek, Weekday::Monday, newYear) << true;
    QTest::newRow("other day") << schedule(ZvSchedule::DayOfWeek, Weekday::Monday, christmas)
                               << schedule(ZvSchedule::DayOfWeek, Weekday::Tuesday, christmas)
                               << false;
    QTest::newRow("other type") << schedule(ZvSchedule::Date, Weekday::Monday, christmas)
                                << schedule(ZvSchedule::DayOfWeek, Weekday::Monday, christmas)
                                << false;
    QTest::newRow("no type, other day")
        << schedule(ZvSchedule::NoType, Weekday::Monday, christmas)
        << schedule(ZvSchedule::NoType, Weekday::Friday, christmas) << false;
    QTest::newRow("no type, same") << ZvSchedule() << ZvSchedule() << true;
}

void tst_ZvSchedule::sameKey()
{
    QFETCH(ZvSchedule, a);
    QFETCH(ZvSchedule, b);
    QFETCH(bool, same);
    QCOMPARE(a.hasSameKey(b), same);
    QCOMPARE(b.hasSameKey(a), same);
    QCOMPARE(a == b, same);
}

void tst_ZvSchedule::equality()
{
    ZvSchedule a = schedule(ZvSchedule::Default, Weekday::NoDay, {});
    a.setDefaultStage(Stage);
    a.setTimeList({ZvTime(QTime(1, 0), QTime(2, 0), Stage)});
    ZvSchedule b = a;
    QVERIFY(a == b);
    b.setDefaultStage(QStringLiteral("b.xml"));
    QVERIFY(a != b);
    b = a;
    b.timeList()[0].setEndTime(QTime(2, 0, 0, 5));
    QVERIFY(a == b);
    b.timeList()[0].setEndTime(QTime(2, 0, 0, 6));
    QVERIFY(a != b);
    b = a;
    b.timeList().append(b.timeList().constFirst());
    QVERIFY(a != b);
}

void tst_ZvSchedule::timeListIsLive()
{
    const ZvSchedule record;
    record.timeList().append(ZvTime(QTime(1, 0), QTime(2, 0), Stage));
    QCOMPARE(record.timeList().size(), 1);
    QVERIFY(!record.isEmpty());
}

void tst_ZvSchedule::copiesShareTheirBands()
{
    ZvSchedule original;
    original.setTimeList({ZvTime(QTime(1, 0), QTime(2, 0), Stage)});
    const ZvSchedule copy = original;
    QVERIFY(copy.timeList().isSharedWith(original.timeList()));
    original.timeList()[0].setStageName(QStringLiteral("b.xml"));
    QCOMPARE(copy.timeList().constFirst().stageName(), Stage);
}

QTEST_APPLESS_MAIN(tst_ZvSchedule)
#include "tst_zvschedule.moc"
