#include "CalendarMouse.h"
#include "EditorFixture.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"

#include "domain/ActionNames.h"
#include "domain/ScheduleText.h"
#include "editor/DockNames.h"
#include "navigation/ZvCalendarWidget.h"
#include "navigation/ZvDayOfWeekWidget.h"
#include "navigation/ZvScheduleListWidget.h"
#include "navigation/ZvScheduleSpecifyScheduleDialog.h"
#include "navigation/ZvScheduleSwitcherSelectedWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "navigation/ZvTodayWidget.h"

#include <QDockWidget>
#include <QRandomGenerator>
#include <QStandardItem>
#include <QTreeView>

#include <functional>

using namespace Zavo;
using ZavoTest::CalendarMouse;
using ZavoTest::EditorFixture;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::SignalLog;

namespace {

// Later than any clean-up reaches.
const QDate scheduled(2031, 5, 14);
const QDate alsoScheduled(2031, 5, 16);
const QDate unscheduled(2031, 5, 20);

const ZvScheduleBasicInfo defaultInfo{ZvSchedule::Default};
const ZvScheduleBasicInfo mondayInfo{Weekday::Monday};

ZvSchedule scheduleOf(const ZvScheduleBasicInfo &info)
{
    ZvSchedule schedule = info.toSchedule();
    schedule.setDefaultStage(QStringLiteral("a.xml"));
    return schedule;
}

/// Channel Alpha has its default schedule, a Monday and two dates; the others have their default
/// schedules alone.
void writeSchedules(EditorFixture *editor)
{
    ZvChannel channel(editor->data.channelFolder() + QLatin1Char('/') +
                      ZavoTest::channelFileName(0));
    QVERIFY(channel.readFile());
    for (const ZvScheduleBasicInfo &info : {defaultInfo, mondayInfo, ZvScheduleBasicInfo(scheduled),
                                            ZvScheduleBasicInfo(alsoScheduled)})
        channel.insertSchedule(scheduleOf(info));
    QVERIFY(channel.writeToFile());
}

} // namespace

/// Every way to another schedule, from the widget that the user touches to the table and back to
/// the docks: it takes one round, and all agree afterwards.
class tst_ScheduleInterplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dates();
    void frames();
    void tabs();
    void list();
    void commands();
    void undoByItsKeys();
    void channels();
    void anyWayAfterAnyOther_data();
    void anyWayAfterAnyOther();

private:
    using Step = std::function<void()>;

    void addClicks();
    void addListSteps();
    void addCommands();
    void watchSignals();

    QString roundsOf(const char *way);
    void expect(const char *way, const char *rounds);
    void checkAgreement(const char *way) const;

    ZvScheduleWorkingArea *area() const
    {
        return qobject_cast<ZvScheduleWorkingArea *>(m_editor->tabs()->currentWidget());
    }
    QWidget *frame(const char *name) const
    {
        return m_switcher->findChild<QWidget *>(QLatin1String(name));
    }
    QTreeView *tree() const { return m_list->findChild<QTreeView *>(); }
    void showDock(const char *name) const;
    void clickDay(int day) const;
    void clickRow(const ZvScheduleBasicInfo &info) const;
    void specify(const QDate &date) const;

    QScopedPointer<EditorFixture> m_editor;
    ZvScheduleSwitcherWidget *m_switcher = nullptr;
    ZvScheduleListWidget *m_list = nullptr;
    ZvCalendarWidget *m_calendar = nullptr;
    QScopedPointer<CalendarMouse> m_mouse;
    QScopedPointer<SignalLog> m_log;
    QMap<QString, Step> m_steps;
};

void tst_ScheduleInterplay::init()
{
    m_editor.reset(new EditorFixture({QStringLiteral("Alpha"), QStringLiteral("Beta")}));
    writeSchedules(m_editor.data());
    QVERIFY(m_editor->start());
    m_switcher = m_editor->window->findChild<ZvScheduleSwitcherWidget *>();
    m_list = m_editor->window->findChild<ZvScheduleListWidget *>();
    m_calendar = m_switcher->findChild<ZvCalendarWidget *>();
    showDock(DockName::SwitchSchedule);
    m_mouse.reset(new CalendarMouse(m_calendar));
    m_mouse->releaseKeys();
    m_calendar->setCurrentPage(scheduled.year(), scheduled.month());
    m_steps.clear();
    addClicks();
    addListSteps();
    addCommands();
    watchSignals();
}

void tst_ScheduleInterplay::cleanup()
{
    m_mouse->releaseKeys();
    m_log.reset();
    m_mouse.reset();
    m_editor.reset();
}

void tst_ScheduleInterplay::watchSignals()
{
    const ZvScheduleMainWidget *main = m_editor->main();
    m_log.reset(new SignalLog);
    m_log->watch(m_switcher, SIGNAL(requestSwitchToDefault()), "default");
    m_log->watch(m_switcher, SIGNAL(requestSwitchToDayOfWeek(Qt::DayOfWeek)), "day");
    m_log->watch(m_switcher, SIGNAL(requestSwitchToDate(QDate)), "date");
    m_log->watch(m_switcher, SIGNAL(currentChannelChanged(const ZvChannel*)), "listed");
    m_log->watch(main, SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "shown");
    m_log->watch(main, SIGNAL(requestCurrentScheduleType(ZvScheduleBasicInfo*)), "asked");
    m_log->watch(main, SIGNAL(currentChannelChanged(const ZvChannel*)), "channel");
    m_log->watch(main, SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)), "created");
    m_log->watch(main, SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)),
                              "removed");
    m_log->watch(m_list, SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)), "row");
    m_log->watch(m_list, SIGNAL(requestCurrentScheduleInfo(ZvScheduleBasicInfo*)), "asked by list");
}

void tst_ScheduleInterplay::showDock(const char *name) const
{
    auto *dock = m_editor->window->findChild<QDockWidget *>(QLatin1String(name));
    dock->show();
    dock->raise();
    QCoreApplication::processEvents();
}

void tst_ScheduleInterplay::clickDay(int day) const
{
    const QList<ZvDayOfWeekWidget *> cells = m_switcher->findChildren<ZvDayOfWeekWidget *>();
    for (ZvDayOfWeekWidget *cell : cells) {
        if (cell->dayOfWeek() == day)
            QTest::mouseClick(cell, Qt::LeftButton);
    }
}

void tst_ScheduleInterplay::clickRow(const ZvScheduleBasicInfo &info) const
{
    showDock(DockName::ScheduleList);
    // Beside the check box, whose marks are another matter.
    const QRect row = tree()->visualRect(m_list->rowItems(info).at(0)->index());
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(row.left() + 60, row.center().y()));
}

void tst_ScheduleInterplay::specify(const QDate &date) const
{
    QTimer::singleShot(0, m_list, [date] {
        auto *dialog =
            qobject_cast<ZvScheduleSpecifyScheduleDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->setScheduleInfo(ZvScheduleBasicInfo(date));
        dialog->accept();
    });
    QMetaObject::invokeMethod(m_list, "onActionNewScheduleRequested");
}

void tst_ScheduleInterplay::addClicks()
{
    m_steps[QStringLiteral("date")] = [this] { m_mouse->click(scheduled); };
    m_steps[QStringLiteral("empty date")] = [this] { m_mouse->click(unscheduled); };
    m_steps[QStringLiteral("Ctrl other date")] = [this] {
        m_mouse->click(alsoScheduled, Qt::ControlModifier);
    };
    m_steps[QStringLiteral("Ctrl date")] = [this] {
        m_mouse->click(scheduled, Qt::ControlModifier);
    };
    m_steps[QStringLiteral("Shift empty date")] = [this] {
        m_mouse->click(unscheduled, Qt::ShiftModifier);
    };
    const auto clickBar = [this](const char *button) {
        QTest::mouseClick(m_calendar->findChild<QWidget *>(QLatin1String(button)), Qt::LeftButton);
    };
    m_steps[QStringLiteral("next month")] = [clickBar] { clickBar("qt_calendar_nextmonth"); };
    m_steps[QStringLiteral("previous month")] = [clickBar] { clickBar("qt_calendar_prevmonth"); };
    m_steps[QStringLiteral("arrow key")] = [this] {
        QTest::keyClick(m_mouse->view(), Qt::Key_Right);
    };
    m_steps[QStringLiteral("Monday")] = [this] { clickDay(Qt::Monday); };
    m_steps[QStringLiteral("Tuesday")] = [this] { clickDay(Qt::Tuesday); };
    m_steps[QStringLiteral("calendar frame")] = [this] {
        QTest::mouseClick(frame("CalendarSelectedWidget"), Qt::LeftButton, Qt::NoModifier,
                          QPoint(3, 3));
    };
    m_steps[QStringLiteral("week frame")] = [this] {
        QTest::mouseClick(frame("WeekSelectedWidget"), Qt::LeftButton, Qt::NoModifier,
                          QPoint(3, 3));
    };
    m_steps[QStringLiteral("default frame")] = [this] {
        QTest::mouseClick(frame("DefaultScheduleSelectedWidget"), Qt::LeftButton, Qt::NoModifier,
                          QPoint(3, 3));
    };
    m_steps[QStringLiteral("today")] = [this] {
        QTest::mouseClick(m_switcher->findChild<ZvTodayWidget *>(), Qt::LeftButton);
    };
    m_steps[QStringLiteral("next tab")] = [this] {
        m_editor->tabs()->setCurrentIndex(1 - m_editor->tabs()->currentIndex());
    };
}

void tst_ScheduleInterplay::addListSteps()
{
    m_steps[QStringLiteral("default row")] = [this] { clickRow(defaultInfo); };
    m_steps[QStringLiteral("Monday row")] = [this] { clickRow(mondayInfo); };
    m_steps[QStringLiteral("date row")] = [this] { clickRow(ZvScheduleBasicInfo(scheduled)); };
    m_steps[QStringLiteral("specify")] = [this] { specify(unscheduled); };
    m_steps[QStringLiteral("check and delete")] = [this] {
        m_list->rowItems(ZvScheduleBasicInfo(scheduled)).at(0)->setCheckState(Qt::Checked);
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes);
        m_list->deleteSelectedItems();
    };
}

void tst_ScheduleInterplay::addCommands()
{
    const auto trigger = [this](const char *name) { m_editor->action(name)->trigger(); };
    m_steps[QStringLiteral("new channel")] = [trigger] { trigger(ActionName::CreateChannel); };
    m_steps[QStringLiteral("delete channel")] = [trigger] {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes);
        trigger(ActionName::DeleteChannel);
    };
    m_steps[QStringLiteral("create")] = [trigger] { trigger(ActionName::CreateSchedule); };
    m_steps[QStringLiteral("delete")] = [trigger] {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes);
        trigger(ActionName::DeleteSchedule);
    };
    m_steps[QStringLiteral("undo")] = [trigger] { trigger(ActionName::Undo); };
    m_steps[QStringLiteral("redo")] = [trigger] { trigger(ActionName::Redo); };
    m_steps[QStringLiteral("edit")] = [this] {
        m_editor->main()->onDefaultStageNameChangedWithUndo(area()->defaultStageName(),
                                                            QStringLiteral("b.xml"));
    };
    m_steps[QStringLiteral("copy")] = [this] { QVERIFY(m_switcher->copySelectedItems()); };
    m_steps[QStringLiteral("paste")] = [this] { QVERIFY(m_switcher->pasteItems()); };
    m_steps[QStringLiteral("cut")] = [this] { QVERIFY(m_switcher->cutSelectedItems()); };
    m_steps[QStringLiteral("host date")] = [this] {
        m_editor->main()->switchToDateSchedule(scheduled);
    };
    m_steps[QStringLiteral("host Monday")] = [this] {
        m_editor->main()->switchToDayOfWeekSchedule(Qt::Monday);
    };
}

/// What a way takes, as "signal count" in the order of the names.
QString tst_ScheduleInterplay::roundsOf(const char *way)
{
    m_log->clear();
    m_steps.value(QLatin1String(way))();
    QCoreApplication::processEvents();
    QMap<QString, int> counts;
    const QStringList names = m_log->names();
    for (const QString &name : names)
        ++counts[name];
    QStringList texts;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        texts.append(QStringLiteral("%1 %2").arg(it.key()).arg(it.value()));
    return texts.join(QStringLiteral(", "));
}

void tst_ScheduleInterplay::expect(const char *way, const char *rounds)
{
    const QString taken = roundsOf(way);
    QVERIFY2(taken == QLatin1String(rounds),
             qPrintable(QStringLiteral("%1 takes: %2").arg(QLatin1String(way), taken)));
    checkAgreement(way);
}

void tst_ScheduleInterplay::checkAgreement(const char *way) const
{
    const ZvScheduleBasicInfo shown = area()->currentScheduleInfo();
    ZvScheduleBasicInfo chosen;
    m_switcher->getCurrentScheduleInfo(&chosen);
    QVERIFY2(scheduleText(chosen) == scheduleText(shown), way);
    int selectedFrames = 0;
    const QList<ZvScheduleSwitcherSelectedWidget *> frames =
        m_switcher->findChildren<ZvScheduleSwitcherSelectedWidget *>();
    for (const ZvScheduleSwitcherSelectedWidget *each : frames)
        selectedFrames += each->isSelected() ? 1 : 0;
    QVERIFY2(selectedFrames == 1, way);
    const QString row = m_list->existsInChannel(shown) ? scheduleText(shown) : QString();
    QVERIFY2(scheduleText(m_list->currentRowInfo()) == row, way);
}

void tst_ScheduleInterplay::dates()
{
    expect("date", "date 1, row 1, shown 1");
    expect("date", "date 1");
    expect("empty date", "date 1, shown 1");
    expect("empty date", "date 1");
    expect("date", "date 1, row 1, shown 1");
    expect("Ctrl other date", "date 1, row 1, shown 1");
    expect("Ctrl other date", "date 1, row 1, shown 1");
    expect("Ctrl date", "date 1");
    expect("Ctrl date", "date 1");
    expect("Shift empty date", "date 1, shown 1");
    expect("next month", "date 1");
    expect("previous month", "date 1");
    // The table does not follow the keys.
    QCOMPARE(roundsOf("arrow key"), QString());
    expect("calendar frame", "date 1, shown 1");
    expect("default frame", "default 1, row 1, shown 1");
    expect("next month", "date 1, shown 1");
}

void tst_ScheduleInterplay::frames()
{
    expect("default frame", "default 1");
    expect("Monday", "day 1, row 1, shown 1");
    expect("Monday", "day 1");
    expect("Tuesday", "day 1, shown 1");
    expect("Monday", "day 1, row 1, shown 1");
    expect("calendar frame", "date 1, shown 1");
    expect("week frame", "day 1, row 1, shown 1");
    expect("default frame", "default 1, row 1, shown 1");
    expect("today", "date 1, shown 1");
    expect("today", "date 1");
    expect("week frame", "day 1, row 1, shown 1");
    expect("today", "date 1, shown 1");
}

void tst_ScheduleInterplay::tabs()
{
    // A page that was never shown has nothing on show.
    expect("next tab", "asked 1, asked by list 1, channel 1, listed 1, row 1, shown 1");
    expect("next tab", "asked 1, asked by list 1, channel 1, listed 1, row 1");
    expect("date", "date 1, row 1, shown 1");
    expect("next tab", "asked 1, asked by list 1, channel 1, listed 1, shown 1");
    QVERIFY(!m_calendar->isScheduledDate(scheduled));
    expect("next tab", "asked 1, asked by list 1, channel 1, listed 1, row 1");
    QVERIFY(m_calendar->isScheduledDate(scheduled));
    expect("next tab", "asked 1, asked by list 1, channel 1, listed 1");
    // What a tab shows is chosen in the dock, not remembered by the tab.
    expect("Monday", "day 1, shown 1");
    expect("next tab", "asked 1, asked by list 1, channel 1, listed 1, row 1, shown 1");
    QCOMPARE(area()->currentScheduleInfo(), mondayInfo);
}

void tst_ScheduleInterplay::list()
{
    expect("date row", "date 1, row 1, shown 1");
    expect("date row", "");
    expect("Monday row", "day 1, row 1, shown 1");
    expect("default row", "default 1, row 1, shown 1");
    // The list selects its row anew as often as it is filled and told; nobody asks again for it.
    expect("specify", "asked by list 1, created 1, date 1, row 3, shown 1");
    expect("check and delete", "asked by list 1, date 1, removed 1, row 1, shown 2");
    expect("undo", "asked by list 1, created 1, row 2, shown 1");
}

void tst_ScheduleInterplay::commands()
{
    expect("empty date", "date 1, shown 1");
    expect("create", "asked by list 1, created 1, row 2, shown 1");
    expect("undo", "asked by list 1, removed 1, shown 1");
    expect("redo", "asked by list 1, created 1, row 2, shown 1");
    expect("default frame", "default 1, row 1, shown 1");
    expect("undo", "asked by list 1, date 1, removed 1, row 1, shown 2");
    expect("date", "date 1, row 1, shown 1");
    expect("delete", "asked by list 1, removed 1, shown 1");
    expect("Monday", "day 1, row 1, shown 1");
    expect("undo", "asked by list 1, created 1, date 1, row 2, shown 2");
    expect("edit", "");
    expect("undo", "");
    expect("Monday", "day 1, row 1, shown 1");
    expect("redo", "date 1, row 1, shown 1");
    expect("copy", "");
    expect("empty date", "date 1, shown 1");
    expect("paste", "asked by list 1, created 1, row 2, shown 1");
    expect("cut", "asked by list 1, removed 1, shown 1");
    expect("host Monday", "day 1, row 1, shown 1");
    expect("host date", "date 1, row 1, shown 1");
    expect("host date", "");
}

// The calendar reads the keys, not where a selection comes from.
void tst_ScheduleInterplay::undoByItsKeys()
{
    expect("empty date", "date 1, shown 1");
    expect("create", "asked by list 1, created 1, row 2, shown 1");
    expect("Ctrl other date", "date 1, row 1, shown 1");
    m_mouse->holdKeys(Qt::ControlModifier);
    expect("undo", "asked by list 1, date 1, removed 1, row 1, shown 2");
    QCOMPARE(m_calendar->selectedDate(), unscheduled);
    expect("redo", "asked by list 1, created 1, row 2, shown 1");
    m_mouse->releaseKeys();
    expect("date", "date 1, row 1, shown 1");
    m_mouse->holdKeys(Qt::ControlModifier);
    expect("undo", "asked by list 1, date 1, removed 1, row 1, shown 2");
    m_mouse->releaseKeys();
}

void tst_ScheduleInterplay::channels()
{
    expect("Monday", "day 1, row 1, shown 1");
    expect("new channel", "asked 1, asked by list 1, channel 1, listed 1, shown 1");
    expect("date", "date 1, shown 1");
    expect("create", "asked by list 1, created 1, row 2, shown 1");
    expect("delete channel", "asked 1, asked by list 1, channel 1, listed 1, shown 1");
    expect("next tab", "asked 1, asked by list 1, channel 1, listed 1, row 1, shown 1");
}

void tst_ScheduleInterplay::anyWayAfterAnyOther_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 2U, 3U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_ScheduleInterplay::anyWayAfterAnyOther()
{
    QFETCH(quint32, seed);
    constexpr int stepCount = 60;
    const char *const ways[] = {
        "date",   "empty date", "Ctrl other date", "Ctrl date",  "Shift empty date",
        "Monday", "Tuesday",    "calendar frame",  "week frame", "default frame",
        "today",  "next tab",   "default row",     "create",     "undo",
        "redo",   "edit",       "host Monday",     "host date",  "undo",
    };
    QRandomGenerator random(seed);
    QStringList walk;
    for (int i = 0; i < stepCount; ++i) {
        const char *way = ways[random.bounded(static_cast<int>(std::size(ways)))];
        walk.append(QLatin1String(way));
        if (walk.last().contains(QLatin1String("date"))) // the page of other dates may be shown
            m_calendar->setCurrentPage(scheduled.year(), scheduled.month());
        roundsOf(way);
        const QByteArray walked = walk.join(QStringLiteral(", ")).toUtf8();
        const int requests = m_log->count(QStringLiteral("date")) +
                             m_log->count(QStringLiteral("day")) +
                             m_log->count(QStringLiteral("default"));
        QVERIFY2(requests <= 1, walked.constData());
        checkAgreement(walked.constData());
        if (QTest::currentTestFailed())
            return;
    }
}

QTEST_MAIN(tst_ScheduleInterplay)
#include "tst_scheduleinterplay.moc"
