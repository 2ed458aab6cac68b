#include "WorkingAreaFixture.h"

#include "SignalLog.h"
#include "domain/ChannelSchedules.h"

#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QList<ZvTime> oneBand{band("08:00:00", "09:00:00")};
const QList<ZvTime> otherBand{band("18:00:00", "19:00:00", "b.xml")};

using Infos = QList<ZvScheduleBasicInfo>;

} // namespace

/// What a page does to the schedules of its channel.
class tst_ZvScheduleWorkingAreaSchedules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsSchedules();
    void findsNothingWithoutAChannel();

    void createsTheScheduleOnShow();
    void createsOthers();
    void passesOverWhatExists();
    void createsNothingThatCannotBe();

    void removesTheScheduleOnShow();
    void removesOthers();
    void reportsEvenIfNothingWasRemoved();
    void removedTableIsNotStoredBack();
    void storesNothingFromWithinARemoval();

    void reportsFindTheChannelUpToDate();

    void insertsSchedules();
    void insertedScheduleIsShown();
    void tableOnShowWinsOverAnInsertedSchedule();
    void insertsNothingThatCannotBe();

    void removalAndInsertionRoundTrip();
};

void tst_ZvScheduleWorkingAreaSchedules::findsSchedules()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, oneBand), scheduleOf(mondayInfo, otherBand),
                             scheduleOf(dateInfo())});
    const ZvScheduleWorkingArea *area = page.area();
    QVERIFY(area->hasSchedule(defaultInfo));
    QVERIFY(area->hasSchedule(mondayInfo));
    QVERIFY(!area->hasSchedule(ZvScheduleBasicInfo(Weekday::Tuesday)));
    QVERIFY(area->hasSchedule(dateInfo()));
    QVERIFY(!area->hasSchedule(dateInfo(1)));
    QVERIFY(!area->hasSchedule(ZvScheduleBasicInfo()));

    QCOMPARE(area->defaultSchedule(), scheduleOf(defaultInfo, oneBand));
    QCOMPARE(area->weekDaySchedule(Weekday::Monday), scheduleOf(mondayInfo, otherBand));
    QCOMPARE(area->dateSchedule(futureDate()), scheduleOf(dateInfo()));
    for (const ZvSchedule &missing :
         {area->weekDaySchedule(Weekday::Tuesday), area->dateSchedule(futureDate(1)),
          area->weekDaySchedule(Weekday::NoDay), area->dateSchedule(QDate())}) {
        QVERIFY(missing.isEmpty());
        QVERIFY(missing.type() != ZvSchedule::Default);
    }
    QCOMPARE(area->schedules({dateInfo(1), dateInfo(), ZvScheduleBasicInfo(), defaultInfo}),
             QList<ZvSchedule>({scheduleOf(dateInfo()), scheduleOf(defaultInfo, oneBand)}));
}

void tst_ZvScheduleWorkingAreaSchedules::findsNothingWithoutAChannel()
{
    QVERIFY(!ChannelSchedules::contains(nullptr, defaultInfo));
    QVERIFY(ChannelSchedules::find(nullptr, defaultInfo).isEmpty());
    QCOMPARE(ChannelSchedules::findAll(nullptr, {defaultInfo}), QList<ZvSchedule>());
    ChannelSchedules::removeBefore(nullptr, futureDate());
}

void tst_ZvScheduleWorkingAreaSchedules::createsTheScheduleOnShow()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, oneBand)});
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    SignalLog log;
    log.watch(page.area(), SIGNAL(currentScheuleEnabledChanged(bool)), "enabled");
    log.watch(page.area(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "info");
    log.watch(page.area(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)), "created");
    page.area()->createScheduleByCurrentInfo();
    QVERIFY(page.area()->isCurrentScheduleEnabled());
    QVERIFY(page.area()->hasSchedule(mondayInfo));
    QCOMPARE(page.texts(), QStringList());
    QCOMPARE(log.names(), QStringList({QStringLiteral("enabled"), QStringLiteral("info"),
                                       QStringLiteral("created")}));
    QCOMPARE(log.arguments(0), QVariantList({true}));
    QCOMPARE(log.arguments(2).at(0).value<QList<int>>(), QList<int>{1});
    QCOMPARE(log.arguments(2).at(1).value<ZvScheduleBasicInfo>(), mondayInfo);
    QVERIFY(page.area()->isChannelChanged());
}

void tst_ZvScheduleWorkingAreaSchedules::createsOthers()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, oneBand)});
    page.area()->switchToDefaultSchedule();
    SignalLog log;
    log.watch(page.area(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "info");
    log.watch(page.area(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)), "created");
    page.area()->createSchedule(Infos{dateInfo(), mondayInfo, dateInfo(-1)});
    QCOMPARE(log.names(), QStringList(QStringLiteral("created")));
    QCOMPARE(log.arguments(0).at(0).value<QList<int>>(), QList<int>({1, 1, 2}));
    QCOMPARE(log.arguments(0).at(1).value<ZvScheduleBasicInfo>(), defaultInfo);
    QCOMPARE(page.channel()->scheduleList().size(), 4);
    QCOMPARE(page.area()->currentScheduleInfo(), defaultInfo);
    QCOMPARE(page.texts(), textOf(oneBand));
}

void tst_ZvScheduleWorkingAreaSchedules::passesOverWhatExists()
{
    WorkingAreaFixture page({scheduleOf(mondayInfo, oneBand)});
    SignalLog log;
    log.watch(page.area(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    page.area()->createSchedule(mondayInfo);
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(page.storedTexts(mondayInfo), textOf(oneBand));
    page.area()->createSchedule(Infos{mondayInfo, dateInfo(), dateInfo()});
    QCOMPARE(log.names().size(), 1);
    QCOMPARE(log.arguments(0).at(0).value<QList<int>>(), QList<int>{1});
}

void tst_ZvScheduleWorkingAreaSchedules::createsNothingThatCannotBe()
{
    WorkingAreaFixture page;
    SignalLog log;
    log.watch(page.area(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    page.area()->createScheduleByCurrentInfo();
    page.area()->createSchedule(Infos());
    page.area()->createSchedule(Infos{ZvScheduleBasicInfo(QDate()),
                                      ZvScheduleBasicInfo(Weekday::NoDay), ZvScheduleBasicInfo()});
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(page.channel()->scheduleList().size(), 0);
}

void tst_ZvScheduleWorkingAreaSchedules::removesTheScheduleOnShow()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo), scheduleOf(mondayInfo, oneBand)});
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    SignalLog log;
    log.watch(page.area(), SIGNAL(currentScheuleEnabledChanged(bool)), "enabled");
    log.watch(page.area(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "info");
    log.watch(page.area(), SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)),
                                  "removed");
    page.area()->removeScheduleByCurrentInfo();
    QVERIFY(!page.area()->isCurrentScheduleEnabled());
    QCOMPARE(page.area()->currentScheduleInfo(), mondayInfo);
    QVERIFY(!page.area()->hasSchedule(mondayInfo));
    QCOMPARE(page.texts(), QStringList());
    QCOMPARE(log.names(), QStringList({QStringLiteral("enabled"), QStringLiteral("info"),
                                       QStringLiteral("removed")}));
    QCOMPARE(log.arguments(2).at(0).value<Infos>(), Infos{mondayInfo});
    QCOMPARE(log.arguments(2).at(1).value<ZvScheduleBasicInfo>(), mondayInfo);
}

void tst_ZvScheduleWorkingAreaSchedules::removesOthers()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, oneBand), scheduleOf(mondayInfo),
                             scheduleOf(dateInfo()), scheduleOf(dateInfo(1))});
    page.area()->switchToDefaultSchedule();
    SignalLog log;
    log.watch(page.area(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "info");
    log.watch(page.area(), SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)),
                                  "removed");
    page.area()->removeSchedule(
        Infos{dateInfo(), ZvScheduleBasicInfo(), dateInfo(5), mondayInfo, dateInfo()});
    QCOMPARE(log.names(), QStringList(QStringLiteral("removed")));
    QCOMPARE(log.arguments(0).at(0).value<Infos>(), Infos({dateInfo(), mondayInfo}));
    QCOMPARE(page.channel()->scheduleList().size(), 2);
    QVERIFY(page.area()->isCurrentScheduleEnabled());
}

void tst_ZvScheduleWorkingAreaSchedules::reportsEvenIfNothingWasRemoved()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo)});
    SignalLog log;
    log.watch(page.area(), SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)));
    page.area()->removeSchedule(mondayInfo);
    page.area()->removeSchedule(Infos());
    QCOMPARE(log.names().size(), 2);
    QCOMPARE(log.arguments(1).at(0).value<Infos>(), Infos());
}

void tst_ZvScheduleWorkingAreaSchedules::removedTableIsNotStoredBack()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo), scheduleOf(mondayInfo, oneBand)});
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    page.area()->insertTimeItems(otherBand);
    page.area()->setDefaultStageName(QStringLiteral("d.xml"));
    page.area()->removeSchedule(Infos{mondayInfo});
    page.area()->switchToDefaultSchedule();
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    QVERIFY(!page.area()->hasSchedule(mondayInfo));
}

void tst_ZvScheduleWorkingAreaSchedules::storesNothingFromWithinARemoval()
{
    WorkingAreaFixture page({scheduleOf(mondayInfo, oneBand)});
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    // What a listener does that keeps the channel up to date at every change it hears of.
    QObject listener;
    connect(page.area(), &ZvScheduleWorkingArea::scheduleStageCountChanged, &listener, [&page] {
        if (page.area()->isCurrentScheduleEnabled())
            page.area()->storeCurrentSchedule();
    });
    page.area()->removeScheduleByCurrentInfo();
    QVERIFY(!page.area()->hasSchedule(mondayInfo));
}

void tst_ZvScheduleWorkingAreaSchedules::reportsFindTheChannelUpToDate()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo)});
    page.area()->switchToDefaultSchedule();
    QList<QStringList> found;
    const auto look = [&] { found.append(page.storedTexts(defaultInfo)); };
    connect(page.area(), &ZvScheduleWorkingArea::scheduleCreated, page.area(), look);
    connect(page.area(), &ZvScheduleWorkingArea::scheduleRemoved, page.area(), look);

    page.area()->insertTimeItems(oneBand);
    page.area()->createSchedule(mondayInfo);
    page.area()->insertTimeItems(otherBand);
    page.area()->removeSchedule(mondayInfo);
    QCOMPARE(found, QList<QStringList>({textOf(oneBand), textOf(oneBand + otherBand)}));

    // What is gone stays gone, and a table without a record gets none.
    page.area()->removeSchedule(defaultInfo);
    page.area()->createSchedule(mondayInfo);
    QCOMPARE(page.channel()->scheduleList().size(), 1);
}

void tst_ZvScheduleWorkingAreaSchedules::insertsSchedules()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo)});
    page.area()->switchToDefaultSchedule();
    SignalLog log;
    log.watch(page.area(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "info");
    log.watch(page.area(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)), "created");
    page.area()->insertSchedule({scheduleOf(dateInfo(), oneBand, QStringLiteral("d.xml")),
                                 scheduleOf(mondayInfo, otherBand)});
    QCOMPARE(log.names(), QStringList({QStringLiteral("info"), QStringLiteral("created")}));
    QCOMPARE(log.arguments(1).at(0).value<QList<int>>(), QList<int>({1, 1}));
    QCOMPARE(log.arguments(1).at(1).value<ZvScheduleBasicInfo>(), defaultInfo);
    QCOMPARE(page.storedTexts(dateInfo()), textOf(oneBand));
    QCOMPARE(page.area()->dateSchedule(futureDate()).defaultStage(), QStringLiteral("d.xml"));
    QCOMPARE(page.storedTexts(mondayInfo), textOf(otherBand));
}

void tst_ZvScheduleWorkingAreaSchedules::insertedScheduleIsShown()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo)});
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    page.area()->insertSchedule({scheduleOf(mondayInfo, oneBand, QStringLiteral("d.xml"))});
    QVERIFY(page.area()->isCurrentScheduleEnabled());
    QCOMPARE(page.texts(), textOf(oneBand));
    QCOMPARE(page.area()->defaultStageName(), QStringLiteral("d.xml"));
}

void tst_ZvScheduleWorkingAreaSchedules::tableOnShowWinsOverAnInsertedSchedule()
{
    WorkingAreaFixture page({scheduleOf(mondayInfo, oneBand)});
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    page.area()->insertSchedule({scheduleOf(mondayInfo, otherBand)});
    QCOMPARE(page.texts(), textOf(oneBand));
    QCOMPARE(page.storedTexts(mondayInfo), textOf(oneBand));
}

void tst_ZvScheduleWorkingAreaSchedules::insertsNothingThatCannotBe()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, oneBand)});
    page.area()->switchToDefaultSchedule();
    SignalLog log;
    log.watch(page.area(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    page.area()->insertSchedule({});
    page.area()->insertSchedule({ZvSchedule(), scheduleOf(ZvScheduleBasicInfo(QDate()), oneBand)});
    QCOMPARE(log.names().size(), 2);
    QCOMPARE(log.arguments(1).at(0).value<QList<int>>(), QList<int>());
    QCOMPARE(page.channel()->scheduleList().size(), 1);
    QCOMPARE(page.texts(), textOf(oneBand));
}

void tst_ZvScheduleWorkingAreaSchedules::removalAndInsertionRoundTrip()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo), scheduleOf(mondayInfo, oneBand),
                             scheduleOf(dateInfo(), otherBand, QStringLiteral("d.xml"))});
    page.area()->switchToDateSchedule(futureDate());
    const Infos infos{mondayInfo, dateInfo()};
    const QList<ZvSchedule> copies = page.area()->schedules(infos);
    for (int turn = 0; turn < 3; ++turn) {
        page.area()->removeSchedule(infos);
        QCOMPARE(page.channel()->scheduleList().size(), 1);
        QVERIFY(!page.area()->isCurrentScheduleEnabled());
        page.area()->insertSchedule(copies);
        QVERIFY(page.area()->isCurrentScheduleEnabled());
        QCOMPARE(page.area()->schedules(infos), copies);
        QCOMPARE(page.texts(), textOf(otherBand));
    }
    QVERIFY(!page.area()->isChannelChanged());
}

QTEST_MAIN(tst_ZvScheduleWorkingAreaSchedules)
#include "tst_zvscheduleworkingarea_schedules.moc"
