#include "SwitcherFixture.h"

#include <QHBoxLayout>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QDate today = QDate::currentDate();

QString longDate(const QDate &date)
{
    return QLocale::system().toString(date, QLocale::LongFormat);
}

QString dayRequest(int day)
{
    return QStringLiteral("requestSwitchToDayOfWeek ") + QString::number(day);
}

const QString defaultRequest = QStringLiteral("requestSwitchToDefault");
// Another date on the page of today.
QDate otherDate()
{
    return today.addDays(today.day() > 15 ? -3 : 3);
}

int otherDay(int day)
{
    return day % 7 + 1;
}

/// A channel as the display asks for it.
class ScheduleFacts final : public QObject
{
    Q_OBJECT

public:
    QList<QDate> dates;
    QList<int> days;
    QStringList questions;

public Q_SLOTS:
    void answer(const QDate &date, bool *has)
    {
        questions.append(QStringLiteral("date"));
        *has = dates.contains(date);
    }
    void answer(Qt::DayOfWeek day, bool *has)
    {
        questions.append(QStringLiteral("day"));
        *has = days.contains(day);
    }
};

} // namespace

/// What the switcher shows of a channel, and what it passes on.
class tst_SwitcherChannel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marksTheChannel();
    void sameChannelIsNoChange();
    void noChannelClearsTheMarks();
    void marksWhatIsCreated();
    void createsNothingWithoutAChannel();
    void clearsWhatIsRemoved();
    void changesOfAnotherSchedule();
    void countsStages_data();
    void countsStages();
    void executedDisplayFollowsTheCalendar();
    void executedDisplayOnDemand();

    void executedStartsWithTheDefault();
    void executedFollowsThePrecedence_data();
    void executedFollowsThePrecedence();
    void executedWithoutAnswers();
};

void tst_SwitcherChannel::marksTheChannel()
{
    SwitcherFixture host;
    host.add(ZvScheduleBasicInfo(ZvSchedule::Default), QStringLiteral("a.xml"));
    host.add(ZvScheduleBasicInfo(Weekday::Tuesday));
    host.add(ZvScheduleBasicInfo(otherDate()));
    host.add(ZvScheduleBasicInfo(QDate(2031, 5, 9)));
    host.switcher->setCurrentChannel(&host.channel);
    QCOMPARE(host.calendar()->scheduledDates().keys(),
             (QList<QDate>{otherDate(), QDate(2031, 5, 9)}));
    QCOMPARE(host.countText(), QStringLiteral("Schedule of days: 2 days"));
    QVERIFY(host.week()->hasScheduledDay(2));
    QVERIFY(!host.week()->hasScheduledDay(7));
    QCOMPARE(host.defaultText(), QStringLiteral("Assigned Stage: 1 stage"));
    QCOMPARE(host.log.names(), QStringList(QStringLiteral("currentChannelChanged")));
    QCOMPARE(host.log.arguments(0).first().value<const ZvChannel *>(), &host.channel);
    bool has = false;
    QVERIFY(host.switcher->hasSchedule(otherDate(), &has));
    QVERIFY(has);
    QVERIFY(!host.switcher->hasSchedule(Qt::Monday, &has));
    QVERIFY(!has);
    QVERIFY(host.switcher->hasSchedule(Qt::Tuesday));
    QVERIFY(!host.switcher->hasSchedule(QDate()));
}

void tst_SwitcherChannel::sameChannelIsNoChange()
{
    SwitcherFixture host;
    host.switcher->setCurrentChannel(nullptr);
    QCOMPARE(host.taken(), QStringList());
    QVERIFY(host.week()->hasScheduledDay(7));
    host.switcher->setCurrentChannel(&host.channel);
    host.add(ZvScheduleBasicInfo(Weekday::Tuesday));
    host.log.clear();
    host.switcher->setCurrentChannel(&host.channel);
    QCOMPARE(host.taken(), QStringList());
    QVERIFY(!host.week()->hasScheduledDay(2));
}

void tst_SwitcherChannel::noChannelClearsTheMarks()
{
    SwitcherFixture host;
    host.add(ZvScheduleBasicInfo(ZvSchedule::Default), QStringLiteral("a.xml"));
    host.add(ZvScheduleBasicInfo(Weekday::Tuesday));
    host.add(ZvScheduleBasicInfo(otherDate()));
    host.switcher->setCurrentChannel(&host.channel);
    host.log.clear();
    host.switcher->setCurrentChannel(nullptr);
    QCOMPARE(host.taken(), QStringList(QStringLiteral("currentChannelChanged")));
    QVERIFY(host.calendar()->scheduledDates().isEmpty());
    QCOMPARE(host.countText(), QStringLiteral("Schedule of days: None"));
    QVERIFY(!host.week()->hasScheduledDay(2));
    QCOMPARE(host.defaultText(), QStringLiteral("Assigned Stage: None"));
    QCOMPARE(host.current(), ZvScheduleBasicInfo(today));
}

void tst_SwitcherChannel::marksWhatIsCreated()
{
    SwitcherFixture host;
    host.switcher->setCurrentChannel(&host.channel);
    host.calendar()->setSelectedDate(otherDate());
    host.add(ZvScheduleBasicInfo(Weekday::Monday));
    host.add(ZvScheduleBasicInfo(otherDate()));
    host.add(ZvScheduleBasicInfo(otherDate().addDays(1)));
    host.log.clear();
    const ZvScheduleBasicInfo shown(otherDate());
    host.switcher->onScheduleCreated({0, 1, -1, 99}, shown);
    QVERIFY(host.week()->hasScheduledDay(1));
    QCOMPARE(host.calendar()->scheduledDates().keys(), QList<QDate>{otherDate()});
    QCOMPARE(host.log.arguments(0).first().value<QList<int>>(), (QList<int>{0, 1, -1, 99}));
    QCOMPARE(host.taken(), QStringList(QStringLiteral("scheduleCreated")));
    QCOMPARE(host.executed(), executedDate(otherDate()));
    host.switcher->onScheduleCreated({}, ZvScheduleBasicInfo(ZvSchedule::Default));
    QCOMPARE(host.taken(), (QStringList{QStringLiteral("scheduleCreated"), defaultRequest}));
    QCOMPARE(host.selectedFrames(), QStringLiteral("D"));
}

void tst_SwitcherChannel::createsNothingWithoutAChannel()
{
    SwitcherFixture host;
    host.switcher->onScheduleCreated({0}, ZvScheduleBasicInfo(ZvSchedule::Default));
    QCOMPARE(host.taken(), QStringList());
    QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
}

void tst_SwitcherChannel::clearsWhatIsRemoved()
{
    SwitcherFixture host;
    const QDate date = otherDate();
    const auto day = static_cast<Weekday::Days>(date.dayOfWeek());
    host.add(ZvScheduleBasicInfo(day));
    host.add(ZvScheduleBasicInfo(date));
    host.switcher->setCurrentChannel(&host.channel);
    host.calendar()->setSelectedDate(date);
    host.switcher->updateExecutedShceudleDisplaying();
    QCOMPARE(host.executed(), executedDate(date));
    host.log.clear();
    const ZvScheduleBasicInfo shown(date);
    host.switcher->onScheduleRemoved({shown}, shown);
    QVERIFY(host.calendar()->scheduledDates().isEmpty());
    QCOMPARE(host.executed(), executedDay(date));
    QCOMPARE(host.taken(), QStringList(QStringLiteral("scheduleRemoved")));
    host.switcher->onScheduleRemoved({ZvScheduleBasicInfo(day), ZvScheduleBasicInfo()}, shown);
    QVERIFY(!host.week()->hasScheduledDay(day));
    QCOMPARE(host.executed(), executedDefault());
    QCOMPARE(host.taken(), QStringList(QStringLiteral("scheduleRemoved")));
}

void tst_SwitcherChannel::changesOfAnotherSchedule()
{
    SwitcherFixture host;
    host.switcher->setCurrentChannel(&host.channel);
    host.log.clear();
    host.switcher->onScheduleRemoved({}, ZvScheduleBasicInfo(Weekday::Friday));
    QCOMPARE(host.taken(), (QStringList{QStringLiteral("scheduleRemoved"), dayRequest(5)}));
    QCOMPARE(host.selectedFrames(), QStringLiteral("W"));
    host.switcher->onScheduleStageCountChanged(ZvScheduleBasicInfo(Weekday::Friday), 7);
    QCOMPARE(host.defaultText(), QStringLiteral("Assigned Stage: None"));
    QCOMPARE(host.log.arguments(0).value(1).toInt(), 7);
    QCOMPARE(host.taken(), QStringList(QStringLiteral("scheduleStageCountChanged")));
    host.switcher->onScheduleStageCountChanged(ZvScheduleBasicInfo(ZvSchedule::Default), 7);
    QCOMPARE(host.defaultText(), QStringLiteral("Assigned Stage: 7 stages"));
    QCOMPARE(host.taken(), QStringList(QStringLiteral("scheduleStageCountChanged")));
}

void tst_SwitcherChannel::countsStages_data()
{
    QTest::addColumn<int>("bands");
    QTest::addColumn<QString>("stage");
    QTest::addColumn<QString>("text");
    const QString stage = QStringLiteral("a.xml");
    QTest::newRow("nothing") << 0 << QString() << QStringLiteral("Assigned Stage: None");
    QTest::newRow("default stage") << 0 << stage << QStringLiteral("Assigned Stage: 1 stage");
    QTest::newRow("a band") << 1 << QString() << QStringLiteral("Assigned Stage: 1 stage");
    QTest::newRow("both") << 1 << stage << QStringLiteral("Assigned Stage: 2 stages");
    QTest::newRow("many") << 12 << stage << QStringLiteral("Assigned Stage: 13 stages");
}

void tst_SwitcherChannel::countsStages()
{
    QFETCH(int, bands);
    QFETCH(QString, stage);
    SwitcherFixture host;
    ZvSchedule schedule = scheduleWith(ZvScheduleBasicInfo(ZvSchedule::Default), stage);
    QList<ZvTime> times;
    for (int hour = 0; hour < bands; ++hour)
        times.append({QTime(hour, 0), QTime(hour, 30), QStringLiteral("b.xml")});
    schedule.setTimeList(times);
    host.channel.insertSchedule(schedule);
    host.switcher->setCurrentChannel(&host.channel);
    QTEST(host.defaultText(), "text");
    host.defaults()->setStageCount(-3);
    QCOMPARE(host.defaultText(), QStringLiteral("Assigned Stage: None"));
}

void tst_SwitcherChannel::executedDisplayFollowsTheCalendar()
{
    SwitcherFixture host;
    const QDate date = otherDate();
    host.add(ZvScheduleBasicInfo(static_cast<Weekday::Days>(date.dayOfWeek())));
    host.add(ZvScheduleBasicInfo(date));
    host.switcher->setCurrentChannel(&host.channel);
    CalendarMouse mouse(host.calendar());
    mouse.click(date);
    QCOMPARE(host.executed(), executedDate(date));
    // The week row names another schedule to edit, but no other date.
    QTest::mouseClick(host.cell(otherDay(date.dayOfWeek())), Qt::LeftButton);
    QCOMPARE(host.executed(), executedDate(date));
    QTest::mouseClick(host.defaults(), Qt::LeftButton);
    QCOMPARE(host.executed(), executedDate(date));
    mouse.click(date.addDays(1));
    QCOMPARE(host.executed(), executedDefault());
    host.calendar()->setSelectedDate(date.addDays(7));
    QCOMPARE(host.executed(), executedDay(date));
}

void tst_SwitcherChannel::executedDisplayOnDemand()
{
    SwitcherFixture host;
    const QDate date(2031, 5, 9);
    host.add(ZvScheduleBasicInfo(date));
    host.add(ZvScheduleBasicInfo(today));
    host.switcher->setCurrentChannel(&host.channel);
    QVERIFY(QMetaObject::invokeMethod(host.switcher.get(), "changeExecutedScheduleDisplaying",
                                      Q_ARG(QDate, date)));
    QCOMPARE(host.executed(), executedDate(date));
    QVERIFY(QMetaObject::invokeMethod(host.switcher.get(), "changeExecutedScheduleDisplaying"));
    QCOMPARE(host.executed(), executedDate(today));
    host.calendar()->setSelectedDate(date.addDays(1));
    host.switcher->changeExecutedScheduleDisplaying();
    QVERIFY(QMetaObject::invokeMethod(host.switcher.get(), "updateExecutedShceudleDisplaying"));
    QCOMPARE(host.executed(), executedDefault());
}

// What runs on a date

void tst_SwitcherChannel::executedStartsWithTheDefault()
{
    const ZvScheduledToBeExecutedWidget display;
    auto *title = qobject_cast<QLabel *>(display.layout()->itemAt(0)->widget());
    QCOMPARE(title->text(), QStringLiteral("Scheduled to be executed on"));
    QCOMPARE(title->styleSheet(), QStringLiteral("font-weight: bold;"));
    auto *name = display.layout()->itemAt(1)->widget();
    QCOMPARE(name->objectName(), QStringLiteral("zv_schedule_executed_name"));
    QCOMPARE(name->layout()->contentsMargins(), QMargins());
    QCOMPARE(name->styleSheet(),
             QStringLiteral("QWidget#zv_schedule_executed_name{margin-left: 5px;padding: 5px;"
                            "border-style: solid;border-width: 1px;border-color: darkgray;"
                            "border-radius: 2px;background-color: rgb(240, 240, 240);}"));
    auto *caption = qobject_cast<QLabel *>(name->layout()->itemAt(0)->widget());
    QCOMPARE(caption->text(), QStringLiteral("Schedule:"));
    QCOMPARE(caption->styleSheet(),
             QStringLiteral("padding: 5px;padding-right: 0px;margin-left:5px;"));
    auto *schedule = qobject_cast<QLabel *>(name->layout()->itemAt(1)->widget());
    QCOMPARE(schedule->text(), QStringLiteral("DEFAULT"));
    QCOMPARE(schedule->styleSheet(), QStringLiteral("color: orange;"));
    const QSpacerItem *spacer = name->layout()->itemAt(2)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(16, 16));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void tst_SwitcherChannel::executedFollowsThePrecedence_data()
{
    QTest::addColumn<bool>("hasDate");
    QTest::addColumn<bool>("hasDay");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("color");
    QTest::addColumn<QStringList>("questions");
    const QStringList first{QStringLiteral("date")};
    const QStringList both{QStringLiteral("date"), QStringLiteral("day")};
    const QString date = longDate(QDate(2031, 3, 5));
    const QString day = QLocale::system().dayName(3, QLocale::LongFormat).toUpper();
    QTest::newRow("both") << true << true << date << QStringLiteral("blue") << first;
    QTest::newRow("date") << true << false << date << QStringLiteral("blue") << first;
    QTest::newRow("day") << false << true << day << QStringLiteral("green") << both;
    QTest::newRow("none") << false << false << QStringLiteral("DEFAULT") << QStringLiteral("orange")
                          << both;
}

void tst_SwitcherChannel::executedFollowsThePrecedence()
{
    QFETCH(bool, hasDate);
    QFETCH(bool, hasDay);
    QFETCH(QString, color);
    const QDate wednesday(2031, 3, 5);
    ScheduleFacts facts;
    // What stands beside the date and its day has no say.
    facts.dates = {wednesday.addDays(7), wednesday.addYears(1)};
    facts.days = {1, 2, 4, 5, 6, 7};
    if (hasDate)
        facts.dates.append(wednesday);
    if (hasDay)
        facts.days.append(3);
    ZvScheduledToBeExecutedWidget display;
    connect(&display, SIGNAL(requestHasSchedule(QDate,bool*)), &facts, SLOT(answer(QDate,bool*)));
    connect(&display, SIGNAL(requestHasSchedule(Qt::DayOfWeek,bool*)), &facts,
                             SLOT(answer(Qt::DayOfWeek,bool*)));
    QVERIFY(QMetaObject::invokeMethod(&display, "onDateSelectionChanged", Q_ARG(QDate, wednesday)));
    const QList<QLabel *> labels = display.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 3);
    auto *title = qobject_cast<QLabel *>(display.layout()->itemAt(0)->widget());
    auto *name = display.layout()->itemAt(1)->widget();
    auto *schedule = qobject_cast<QLabel *>(name->layout()->itemAt(1)->widget());
    QCOMPARE(title->text(),
             QStringLiteral("Scheduled to be executed on %1 (Wed)").arg(longDate(wednesday)));
    QTEST(schedule->text(), "text");
    QCOMPARE(schedule->styleSheet(), QStringLiteral("color: %1;").arg(color));
    QTEST(facts.questions, "questions");
}

void tst_SwitcherChannel::executedWithoutAnswers()
{
    ZvScheduledToBeExecutedWidget display;
    display.onDateSelectionChanged(QDate(2031, 3, 5));
    const auto *name = display.layout()->itemAt(1)->widget();
    const auto *schedule = qobject_cast<QLabel *>(name->layout()->itemAt(1)->widget());
    QCOMPARE(schedule->text(), QStringLiteral("DEFAULT"));
    display.onDateSelectionChanged(QDate());
    QCOMPARE(schedule->text(), QStringLiteral("DEFAULT"));
}

QTEST_MAIN(tst_SwitcherChannel)
#include "tst_switcherchannel.moc"
