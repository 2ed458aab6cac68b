#include "ZvChannel.h"

#include "ChannelSamples.h"

#include <QSignalSpy>
#include <QtTest>

using namespace ChannelSamples;
using namespace Zavo;

class tst_ZvChannel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyChannelIsBoundToItsFile();
    void keepsWhatWasSet();
    void insertKeepsTheOrder();
    void insertKeepsTheOrderFromAnySide();
    void insertReplacesAnEqualKey();
    void insertRefuses_data();
    void insertRefuses();
    void insertDropsForeignKeys();
    void remove();
    void removeOfWhatIsNotThere();
    void scheduleOfADate();
    void scheduleOfADateWithout();
    void matchComparesEverythingButThePath();
    void matchFlags();
    void matchSeesEveryDifference_data();
    void matchSeesEveryDifference();
    void aSnapshotSharesAndStaysApart();
    void aViewedChannelIsNotModified();
    void typesCrossSignalsByTheirShortNames_data();
    void typesCrossSignalsByTheirShortNames();
};

void tst_ZvChannel::anEmptyChannelIsBoundToItsFile()
{
    const ZvChannel channel(QStringLiteral("/data/channel/channel0.xml"));
    QCOMPARE(channel.filePath(), QStringLiteral("/data/channel/channel0.xml"));
    QCOMPARE(channel.id(), 0);
    QCOMPARE(channel.index(), 0);
    QVERIFY(channel.name().isEmpty());
    QVERIFY(channel.scheduleList().isEmpty());
}

void tst_ZvChannel::keepsWhatWasSet()
{
    ZvChannel channel{QString()};
    channel.setFilePath(QStringLiteral("/x.xml"));
    channel.setId(12);
    channel.setIndex(-1);
    channel.setName(QStringLiteral(" Foyer\n"));
    const ZvChannel copy(channel);
    QCOMPARE(copy.filePath(), QStringLiteral("/x.xml"));
    QCOMPARE(copy.id(), 12);
    QCOMPARE(copy.index(), -1);
    QCOMPARE(copy.name(), QStringLiteral(" Foyer\n"));
}

void tst_ZvChannel::insertKeepsTheOrder()
{
    ZvChannel channel{QString()};
    QCOMPARE(channel.insertSchedule(dateSchedule({2027, 1, 2})), 0);
    QCOMPARE(channel.insertSchedule(daySchedule(Weekday::Sunday)), 0);
    QCOMPARE(channel.insertSchedule(daySchedule(Weekday::Monday)), 0);
    QCOMPARE(channel.insertSchedule(dateSchedule({2026, 12, 31})), 2);
    QCOMPARE(channel.insertSchedule(defaultSchedule()), 0);
    QCOMPARE(channel.insertSchedule(dateSchedule({2027, 6, 1})), 5);
    QCOMPARE(channel.insertSchedule(daySchedule(Weekday::Wednesday)), 2);
    const QList<ZvSchedule> expected{defaultSchedule(),
                                     daySchedule(1),
                                     daySchedule(3),
                                     daySchedule(7),
                                     dateSchedule({2026, 12, 31}),
                                     dateSchedule({2027, 1, 2}),
                                     dateSchedule({2027, 6, 1})};
    QCOMPARE(channel.scheduleList(), expected);
}

void tst_ZvChannel::insertKeepsTheOrderFromAnySide()
{
    QList<ZvSchedule> wanted{defaultSchedule()};
    for (int day = 1; day <= 7; ++day)
        wanted.append(daySchedule(day));
    for (int i = -400; i < 400; ++i)
        wanted.append(dateSchedule(QDate(2027, 1, 1).addDays(i)));
    QList<ZvSchedule> shuffled = wanted;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(7));
    ZvChannel channel{QString()};
    for (const ZvSchedule &schedule : qAsConst(shuffled)) {
        const int index = channel.insertSchedule(schedule);
        QVERIFY(schedules(channel).at(index).hasSameKey(schedule));
    }
    QCOMPARE(channel.scheduleList(), wanted);
}

void tst_ZvChannel::insertReplacesAnEqualKey()
{
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule());
    for (const ZvSchedule &key : {defaultSchedule(), daySchedule(4), dateSchedule({2027, 1, 1})}) {
        const int index = channel.insertSchedule(key);
        const int count = schedules(channel).size();
        ZvSchedule content = key;
        content.setDefaultStage(QStringLiteral("d.xml"));
        content.setTimeList(bandsOfADay(3));
        QCOMPARE(channel.insertSchedule(content), index);
        QCOMPARE(schedules(channel).size(), count);
        QCOMPARE(schedules(channel).at(index), content);
        QCOMPARE(channel.insertSchedule(key), index);
        QVERIFY(bands(channel, index).isEmpty());
        QVERIFY(schedules(channel).at(index).defaultStage().isEmpty());
    }
}

void tst_ZvChannel::insertRefuses_data()
{
    QTest::addColumn<ZvSchedule>("schedule");
    QTest::newRow("no type") << ZvSchedule();
    ZvSchedule content;
    content.setDate({2027, 1, 1});
    content.setDayOfWeek(Weekday::Monday);
    content.setTimeList(bandsOfADay(2));
    QTest::newRow("no type, with content") << content;
    QTest::newRow("date without date") << dateSchedule({});
    QTest::newRow("date that is none") << dateSchedule({2027, 2, 29});
    QTest::newRow("day 0") << daySchedule(0);
    QTest::newRow("day 8") << daySchedule(8);
    QTest::newRow("negative day") << daySchedule(-1);
    content.setType(ZvSchedule::ScheduleTypes(4));
    QTest::newRow("unknown type") << content;
}

void tst_ZvChannel::insertRefuses()
{
    QFETCH(ZvSchedule, schedule);
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule());
    QCOMPARE(channel.insertSchedule(schedule), -1);
    QCOMPARE(channel.removeSchedule(schedule), -1);
    QCOMPARE(channel.scheduleList(), QList<ZvSchedule>{defaultSchedule()});
}

void tst_ZvChannel::insertDropsForeignKeys()
{
    // As a paste leaves them: a date in a schedule of a day, a day in one of a date.
    ZvChannel channel{QString()};
    for (ZvSchedule schedule : {defaultSchedule(), daySchedule(2), dateSchedule({2027, 1, 1})}) {
        if (schedule.type() != ZvSchedule::Date)
            schedule.setDate({1999, 9, 9});
        if (schedule.type() != ZvSchedule::DayOfWeek)
            schedule.setDayOfWeek(Weekday::Friday);
        channel.insertSchedule(schedule);
    }
    QVERIFY(schedules(channel).at(0).isEmpty());
    QCOMPARE(schedules(channel).at(0).dayOfWeek(), Weekday::NoDay);
    QVERIFY(schedules(channel).at(1).date().isNull());
    QCOMPARE(schedules(channel).at(1).dayOfWeek(), Weekday::Tuesday);
    QCOMPARE(schedules(channel).at(2).dayOfWeek(), Weekday::NoDay);
    QCOMPARE(schedules(channel).at(2).date(), QDate(2027, 1, 1));
}

void tst_ZvChannel::remove()
{
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule());
    channel.insertSchedule(daySchedule(1));
    channel.insertSchedule(daySchedule(5));
    channel.insertSchedule(dateSchedule({2027, 1, 1}, bandsOfADay(4)));
    QCOMPARE(channel.removeSchedule(dateSchedule({2027, 1, 1})), 3);
    QCOMPARE(channel.removeSchedule(daySchedule(1)), 1);
    QCOMPARE(channel.removeSchedule(defaultSchedule()), 0);
    QCOMPARE(channel.scheduleList(), QList<ZvSchedule>{daySchedule(5)});
}

void tst_ZvChannel::removeOfWhatIsNotThere()
{
    ZvChannel channel{QString()};
    QCOMPARE(channel.removeSchedule(defaultSchedule()), -1);
    channel.insertSchedule(daySchedule(2));
    QCOMPARE(channel.removeSchedule(defaultSchedule()), -1);
    QCOMPARE(channel.removeSchedule(daySchedule(1)), -1);
    QCOMPARE(channel.removeSchedule(daySchedule(3)), -1);
    QCOMPARE(channel.removeSchedule(dateSchedule({2027, 1, 1})), -1);
    QCOMPARE(schedules(channel).size(), 1);
}

void tst_ZvChannel::scheduleOfADate()
{
    ZvChannel channel = channelOfDates({}, 20, 3);
    channel.insertSchedule(defaultSchedule());
    const ZvSchedule found = channel.getSchedule({2027, 1, 7});
    QCOMPARE(found, dateSchedule({2027, 1, 7}, bandsOfADay(3)));
}

void tst_ZvChannel::scheduleOfADateWithout()
{
    ZvChannel channel = channelOfDates({}, 3, 3);
    channel.insertSchedule(daySchedule(1, bandsOfADay(2)));
    for (const QDate &date : {QDate(2026, 12, 31), QDate(2027, 1, 4), QDate()}) {
        const ZvSchedule none = channel.getSchedule(date);
        QVERIFY(none.isEmpty());
        QCOMPARE(int(none.type()), 0);
    }
}

void tst_ZvChannel::matchComparesEverythingButThePath()
{
    const ZvChannel channel = channelOfDates(QStringLiteral("/a.xml"), 3, 3);
    const ZvChannel equal = channelOfDates(QStringLiteral("/b.xml"), 3, 3);
    QVERIFY(channel.isMatch(equal, false, false));
    QVERIFY(channel.isMatch(channel, false, false));
}

void tst_ZvChannel::matchFlags()
{
    const ZvChannel channel = channelOfDates({}, 3, 3);
    ZvChannel moved = channel;
    moved.setIndex(9);
    QVERIFY(!channel.isMatch(moved, false, false));
    QVERIFY(!channel.isMatch(moved, false, true));
    QVERIFY(channel.isMatch(moved, true, false));
    ZvChannel renamed = channel;
    renamed.setName(QStringLiteral("station concourse"));
    QVERIFY(!channel.isMatch(renamed, false, false));
    QVERIFY(!channel.isMatch(renamed, true, false));
    QVERIFY(channel.isMatch(renamed, false, true));
    renamed.setId(8);
    QVERIFY(!channel.isMatch(renamed, true, true));
}

void tst_ZvChannel::matchSeesEveryDifference_data()
{
    QTest::addColumn<ZvSchedule>("changed");
    QList<ZvTime> later = bandsOfADay(3);
    later[1].setStartTime(later[1].startTime().addMSecs(1000));
    QTest::newRow("time") << daySchedule(1, later);
    QList<ZvTime> staged = bandsOfADay(3);
    staged[2].setStageName(QStringLiteral("b.xml"));
    QTest::newRow("stage") << daySchedule(1, staged);
    QTest::newRow("band less") << daySchedule(1, bandsOfADay(3).mid(1));
    ZvSchedule defaultStage = daySchedule(1, bandsOfADay(3));
    defaultStage.setDefaultStage(QStringLiteral("d.xml"));
    QTest::newRow("default stage") << defaultStage;
    QTest::newRow("schedule more") << daySchedule(2);
}

void tst_ZvChannel::matchSeesEveryDifference()
{
    QFETCH(ZvSchedule, changed);
    ZvChannel channel{QString()};
    channel.insertSchedule(daySchedule(1, bandsOfADay(3)));
    const ZvChannel saved = channel;
    channel.insertSchedule(changed);
    QVERIFY(!channel.isMatch(saved, false, false));
    QVERIFY(!saved.isMatch(channel, false, false));
    // An edit that is taken back is none.
    channel.removeSchedule(changed);
    channel.insertSchedule(daySchedule(1, bandsOfADay(3)));
    QVERIFY(channel.isMatch(saved, false, false));
}

void tst_ZvChannel::aSnapshotSharesAndStaysApart()
{
    ZvChannel channel = channelOfDates({}, 1000, 24);
    const ZvChannel saved = channel;
    QVERIFY(schedules(saved).isSharedWith(schedules(channel)));
    channel.insertSchedule(dateSchedule({2027, 1, 1}));
    QVERIFY(!schedules(saved).isSharedWith(schedules(channel)));
    QCOMPARE(bands(saved).size(), 24);
    QVERIFY(bands(channel).isEmpty());
    // The bands of the other schedules are shared still.
    QVERIFY(bands(saved, 999).isSharedWith(bands(channel, 999)));
}

void tst_ZvChannel::aViewedChannelIsNotModified()
{
    ZvChannel channel = channelOfDates({}, 1000, 24);
    const ZvChannel saved = channel;
    for (int i = 0; i < 1000; ++i) {
        // What the time table gives back: the times truncated, a millisecond short.
        ZvSchedule shown = dateSchedule(QDate(2027, 1, 1).addDays(i), bandsOfADay(24));
        for (ZvTime &band : shown.timeList()) {
            if (band.startTime() > QTime(0, 0))
                band.setStartTime(band.startTime().addMSecs(-1));
            band.setEndTime(band.endTime().addMSecs(-1));
        }
        QCOMPARE(channel.insertSchedule(shown), i);
    }
    QVERIFY(channel.isMatch(saved, false, false));
    QVERIFY(schedules(saved).isSharedWith(schedules(channel)));
}

void tst_ZvChannel::typesCrossSignalsByTheirShortNames_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"ZvTime", "QList<ZvTime>", "QMap<int,ZvTime>", "ZvSchedule",
                             "QList<ZvSchedule>", "ZvSchedule::ScheduleTypes", "Weekday::Days",
                             "ZvChannel*", "const ZvChannel*", "QList<ZvChannel*>", "ZvStage"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_ZvChannel::typesCrossSignalsByTheirShortNames()
{
    QFETCH(QByteArray, name);
    QVERIFY(QMetaType::type(name.constData()) != QMetaType::UnknownType);
}

QTEST_APPLESS_MAIN(tst_ZvChannel)
#include "tst_zvchannel.moc"
