#include "domain/ZvScheduleBasicInfo.h"

#include <QSet>
#include <QtTest>

#include <algorithm>
#include <random>

using namespace Zavo;

class tst_ZvScheduleBasicInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructsFromEachSource();
    void constructsFromSchedule();
    void settersTouchTheirFieldAlone();
    void makesSchedule();
    void compares_data();
    void compares();
    void matchesByTheRuleOfEquality_data();
    void matchesByTheRuleOfEquality();
    void ordersAsWritten_data();
    void ordersAsWritten();
    void keyOrderIsStrictAndFollowsTheOrder();
    void mapFindsEveryKey();
    void hashFindsEveryKey();
    void crossesVariants();
};

namespace {

const QDate christmas(2026, 12, 24);

ZvScheduleBasicInfo infoOf(int type, int day, const QDate &date)
{
    ZvScheduleBasicInfo info;
    info.setType(static_cast<ZvSchedule::ScheduleTypes>(type));
    info.setDayOfWeek(static_cast<Weekday::Days>(day));
    info.setDate(date);
    return info;
}

ZvSchedule scheduleOf(const ZvScheduleBasicInfo &info)
{
    ZvSchedule schedule;
    schedule.setType(info.type());
    schedule.setDayOfWeek(info.dayOfWeek());
    schedule.setDate(info.date());
    return schedule;
}

QList<ZvScheduleBasicInfo> everyKindOfKey()
{
    QList<ZvScheduleBasicInfo> infos{ZvScheduleBasicInfo(ZvSchedule::Default)};
    for (int day = Weekday::Monday; day <= Weekday::Sunday; ++day)
        infos.append(ZvScheduleBasicInfo(static_cast<Weekday::Days>(day)));
    for (int offset = 0; offset < 40; ++offset)
        infos.append(ZvScheduleBasicInfo(christmas.addDays(offset)));
    return infos;
}

} // namespace

void tst_ZvScheduleBasicInfo::constructsFromEachSource()
{
    const ZvScheduleBasicInfo none;
    QCOMPARE(int(none.type()), 0);
    QCOMPARE(int(none.dayOfWeek()), 8);
    QVERIFY(none.date().isNull());

    const ZvScheduleBasicInfo byDefault(ZvSchedule::Default);
    QCOMPARE(int(byDefault.type()), 1);
    QVERIFY(byDefault.date().isNull());

    const ZvScheduleBasicInfo byDate(christmas);
    QCOMPARE(int(byDate.type()), 2);
    QCOMPARE(byDate.date(), christmas);

    const ZvScheduleBasicInfo byDay(Weekday::Sunday);
    QCOMPARE(int(byDay.type()), 3);
    QCOMPARE(int(byDay.dayOfWeek()), 7);
    QVERIFY(byDay.date().isNull());

    const ZvScheduleBasicInfo copy(byDate);
    QCOMPARE(copy.type(), byDate.type());
    QCOMPARE(copy.dayOfWeek(), byDate.dayOfWeek());
    QCOMPARE(copy.date(), byDate.date());
}

void tst_ZvScheduleBasicInfo::constructsFromSchedule()
{
    const ZvScheduleBasicInfo all(scheduleOf(infoOf(2, 5, christmas)));
    QCOMPARE(int(all.type()), 2);
    QCOMPARE(int(all.dayOfWeek()), 5);
    QCOMPARE(all.date(), christmas);

    QCOMPARE(ZvScheduleBasicInfo(ZvSchedule()), ZvScheduleBasicInfo());
}

void tst_ZvScheduleBasicInfo::settersTouchTheirFieldAlone()
{
    ZvScheduleBasicInfo info(christmas);
    info.setDayOfWeek(Weekday::Friday);
    QCOMPARE(int(info.type()), 2);
    QCOMPARE(info.date(), christmas);
    info.setType(ZvSchedule::DayOfWeek);
    QCOMPARE(int(info.dayOfWeek()), 5);
    QCOMPARE(info.date(), christmas);
    info.setDate(QDate());
    QCOMPARE(int(info.type()), 3);
    QCOMPARE(int(info.dayOfWeek()), 5);
}

void tst_ZvScheduleBasicInfo::makesSchedule()
{
    const ZvSchedule byDay = infoOf(3, 5, christmas).toSchedule();
    QCOMPARE(byDay.type(), ZvSchedule::DayOfWeek);
    QCOMPARE(byDay.dayOfWeek(), Weekday::Friday);
    QVERIFY(byDay.date().isNull());

    const ZvSchedule byDate = infoOf(2, 5, christmas).toSchedule();
    QCOMPARE(byDate.type(), ZvSchedule::Date);
    QCOMPARE(byDate.dayOfWeek(), Weekday::NoDay);
    QCOMPARE(byDate.date(), christmas);

    const ZvSchedule byDefault = infoOf(1, 5, christmas).toSchedule();
    QCOMPARE(byDefault.type(), ZvSchedule::Default);
    QVERIFY(byDefault.isEmpty());

    QVERIFY(ZvScheduleBasicInfo().toSchedule().isEmpty());
}

void tst_ZvScheduleBasicInfo::compares_data()
{
    QTest::addColumn<ZvScheduleBasicInfo>("first");
    QTest::addColumn<ZvScheduleBasicInfo>("second");
    QTest::addColumn<bool>("equal");
    const QDate other = christmas.addDays(1);
    QTest::newRow("none, same fields") << infoOf(0, 8, QDate()) << infoOf(0, 8, QDate()) << true;
    QTest::newRow("none, as constructed") << ZvScheduleBasicInfo() << ZvScheduleBasicInfo() << true;
    QTest::newRow("none, other day") << infoOf(0, 1, QDate()) << infoOf(0, 8, QDate()) << false;
    QTest::newRow("none, other date") << infoOf(0, 8, christmas) << infoOf(0, 8, other) << false;
    QTest::newRow("default, all else differs")
        << infoOf(1, 1, christmas) << infoOf(1, 5, other) << true;
    QTest::newRow("date, other day") << infoOf(2, 1, christmas) << infoOf(2, 5, christmas) << true;
    QTest::newRow("date, other date") << infoOf(2, 1, christmas) << infoOf(2, 1, other) << false;
    QTest::newRow("date, null dates") << infoOf(2, 8, QDate()) << infoOf(2, 8, QDate()) << true;
    QTest::newRow("day, other date") << infoOf(3, 1, christmas) << infoOf(3, 1, other) << true;
    QTest::newRow("day, other day") << infoOf(3, 1, christmas) << infoOf(3, 2, christmas) << false;
    QTest::newRow("types differ") << infoOf(1, 8, christmas) << infoOf(2, 8, christmas) << false;
    QTest::newRow("unknown type, same fields")
        << infoOf(99, 1, christmas) << infoOf(99, 1, christmas) << true;
    QTest::newRow("unknown type, other day")
        << infoOf(99, 1, christmas) << infoOf(99, 2, christmas) << false;
}

void tst_ZvScheduleBasicInfo::compares()
{
    QFETCH(ZvScheduleBasicInfo, first);
    QFETCH(ZvScheduleBasicInfo, second);
    QFETCH(bool, equal);
    QCOMPARE(first == second, equal);
    QCOMPARE(second == first, equal);
    QCOMPARE(first != second, !equal);
}

void tst_ZvScheduleBasicInfo::matchesByTheRuleOfEquality_data()
{
    compares_data();
}

void tst_ZvScheduleBasicInfo::matchesByTheRuleOfEquality()
{
    QFETCH(ZvScheduleBasicInfo, first);
    QFETCH(ZvScheduleBasicInfo, second);
    QFETCH(bool, equal);
    QCOMPARE(first.matches(scheduleOf(second)), equal);
    QCOMPARE(second.matches(scheduleOf(first)), equal);
}

void tst_ZvScheduleBasicInfo::ordersAsWritten_data()
{
    QTest::addColumn<ZvScheduleBasicInfo>("first");
    QTest::addColumn<ZvScheduleBasicInfo>("second");
    QTest::addColumn<bool>("less");
    QTest::addColumn<bool>("greater");
    const ZvScheduleBasicInfo byDefault(ZvSchedule::Default);
    const ZvScheduleBasicInfo monday(Weekday::Monday);
    const ZvScheduleBasicInfo sunday(Weekday::Sunday);
    const ZvScheduleBasicInfo date(christmas);
    const ZvScheduleBasicInfo later(christmas.addDays(1));
    const ZvScheduleBasicInfo none;
    QTest::newRow("default and itself") << byDefault << byDefault << false << false;
    QTest::newRow("default and day") << byDefault << monday << true << true;
    QTest::newRow("default and date") << byDefault << date << true << true;
    QTest::newRow("day and date") << monday << date << true << true;
    QTest::newRow("days") << monday << sunday << true << false;
    QTest::newRow("same day") << monday << monday << false << false;
    QTest::newRow("dates") << date << later << true << false;
    QTest::newRow("same date") << date << date << false << false;
    QTest::newRow("none and default") << none << byDefault << false << true;
    QTest::newRow("none and day") << none << monday << false << true;
    QTest::newRow("none and date") << none << date << false << true;
    QTest::newRow("none and none") << none << none << false << false;
}

void tst_ZvScheduleBasicInfo::ordersAsWritten()
{
    QFETCH(ZvScheduleBasicInfo, first);
    QFETCH(ZvScheduleBasicInfo, second);
    QTEST(first < second, "less");
    QTEST(second < first, "greater");
}

void tst_ZvScheduleBasicInfo::keyOrderIsStrictAndFollowsTheOrder()
{
    QList<ZvScheduleBasicInfo> keys = everyKindOfKey();
    keys.append(ZvScheduleBasicInfo());
    for (int i = 0; i < keys.size(); ++i) {
        for (int j = 0; j < keys.size(); ++j) {
            QCOMPARE(qMapLessThanKey(keys.at(i), keys.at(j)), i < j);
            if (qMapLessThanKey(keys.at(i), keys.at(j)))
                QVERIFY(keys.at(i) < keys.at(j));
        }
    }
}

void tst_ZvScheduleBasicInfo::mapFindsEveryKey()
{
    const QList<ZvScheduleBasicInfo> ordered = everyKindOfKey();
    QList<ZvScheduleBasicInfo> shuffled = ordered;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(7));
    QMap<ZvScheduleBasicInfo, int> map;
    for (const ZvScheduleBasicInfo &info : qAsConst(shuffled))
        map.insert(info, ordered.indexOf(info));
    QCOMPARE(map.size(), ordered.size());
    QCOMPARE(map.keys(), ordered);
    for (int i = 0; i < ordered.size(); ++i)
        QCOMPARE(map.value(ordered.at(i), -1), i);
    QVERIFY(!map.contains(ZvScheduleBasicInfo(christmas.addDays(-1))));
    QCOMPARE(map.remove(ZvScheduleBasicInfo(ZvSchedule::Default)), 1);
}

void tst_ZvScheduleBasicInfo::hashFindsEveryKey()
{
    const QList<ZvScheduleBasicInfo> infos = everyKindOfKey();
    const QSet<ZvScheduleBasicInfo> set(infos.cbegin(), infos.cend());
    QCOMPARE(set.size(), infos.size());
    for (const ZvScheduleBasicInfo &info : infos)
        QVERIFY(set.contains(info));
    QVERIFY(!set.contains(ZvScheduleBasicInfo(christmas.addDays(-1))));

    ZvScheduleBasicInfo defaultWithDate(ZvSchedule::Default);
    defaultWithDate.setDate(christmas);
    QVERIFY(set.contains(defaultWithDate));
    ZvScheduleBasicInfo mondayWithDate(Weekday::Monday);
    mondayWithDate.setDate(christmas);
    QVERIFY(set.contains(mondayWithDate));
}

void tst_ZvScheduleBasicInfo::crossesVariants()
{
    const QList<ZvScheduleBasicInfo> infos = everyKindOfKey();
    QCOMPARE(QVariant::fromValue(infos).value<QList<ZvScheduleBasicInfo>>(), infos);
    ZvScheduleBasicInfo answer;
    auto *pointer = QVariant::fromValue(&answer).value<ZvScheduleBasicInfo *>();
    QCOMPARE(pointer, &answer);
}

QTEST_APPLESS_MAIN(tst_ZvScheduleBasicInfo)
#include "tst_zvschedulebasicinfo.moc"
