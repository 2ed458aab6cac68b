#include "safety/StateDifference.h"

#include "ZvChannel.h"
#include "ZvSchedule.h"

#include <QtTest>

using Zavo::StateDifference;
using Zavo::ZvChannel;
using Zavo::ZvSchedule;

namespace {

ZvSchedule dateSchedule(int day, const QString &stage)
{
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Date);
    schedule.setDate(QDate(2026, 11, day));
    schedule.setDefaultStage(stage);
    return schedule;
}

} // namespace

/// What a copy would change, in a line.
class tst_StateDifference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheDifference();
    void tellsOfNameAndPlace();
};

void tst_StateDifference::tellsTheDifference()
{
    ZvChannel present{QString()};
    ZvChannel state{QString()};
    QVERIFY(StateDifference(present, state).isNone());
    QCOMPARE(StateDifference(present, state).text(), QStringLiteral("as it is now"));
    for (int day = 1; day <= 10; ++day)
        present.insertSchedule(dateSchedule(day, QStringLiteral("a")));
    for (int day = 4; day <= 12; ++day)
        state.insertSchedule(dateSchedule(day, QLatin1String(day < 8 ? "a" : "b")));
    for (int day = Zavo::Weekday::Monday; day <= Zavo::Weekday::Sunday; ++day) {
        ZvSchedule schedule;
        schedule.setType(ZvSchedule::DayOfWeek);
        schedule.setDayOfWeek(static_cast<Zavo::Weekday::Days>(day));
        state.insertSchedule(schedule);
    }
    const StateDifference difference(present, state);
    QCOMPARE(difference.addedSchedules(), 2 + 7);
    QCOMPARE(difference.removedSchedules(), 3);
    QCOMPARE(difference.changedSchedules(), 3);
    QVERIFY(!difference.isNone());
    QCOMPARE(difference.text(), QStringLiteral("schedules: 9 added, 3 removed, 3 changed"));
}

void tst_StateDifference::tellsOfNameAndPlace()
{
    ZvChannel present{QString()};
    ZvChannel state{QString()};
    state.setName(QStringLiteral("Lobby"));
    QCOMPARE(StateDifference(present, state).text(), QStringLiteral("name: \"Lobby\""));
    state.setIndex(4);
    QCOMPARE(StateDifference(present, state).text(),
             QStringLiteral("name: \"Lobby\"; another place among the tabs"));
}

QTEST_MAIN(tst_StateDifference)
#include "tst_statedifference.moc"
