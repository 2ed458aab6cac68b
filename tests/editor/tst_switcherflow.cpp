#include "SwitcherHost.h"

#include "MessageBoxAnswer.h"
#include "domain/ActionNames.h"
#include "editor/DockNames.h"
#include "services/ZvScheduleClipboard.h"

#include <QClipboard>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QDate today = QDate::currentDate();

/// Counts what goes round between the switcher and the central widget.
class Rounds final
{
public:
    explicit Rounds(const SwitcherHost &host)
    {
        m_log.watch(host.switcher(), SIGNAL(requestSwitchToDefault()), "request");
        m_log.watch(host.switcher(), SIGNAL(requestSwitchToDayOfWeek(Qt::DayOfWeek)), "request");
        m_log.watch(host.switcher(), SIGNAL(requestSwitchToDate(QDate)), "request");
        m_log.watch(host.main(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "shown");
        m_log.watch(host.main(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)),
                                        "created");
        m_log.watch(host.main(),
                    SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)),
                           "removed");
    }

    /// One word for each signal since the last call, sorted.
    QString taken()
    {
        QStringList names = m_log.names();
        names.sort();
        m_log.clear();
        return names.join(QLatin1Char(' '));
    }

private:
    SignalLog m_log;
};

} // namespace

/// The switcher at work in the editor: what it is told and asks for, and what the editor makes of
/// its dock.
class tst_SwitcherFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QGuiApplication::clipboard()->clear(); }

    void tabsShowTheChosenKind();
    void clickGoesOneRound();
    void changesFromOutsideGoOneRound();
    void undoGoesOneRound();
    void marksFollowTheTab();
    void stageCountFollowsTheTable();

    void executedDisplayFollowsTheStart();
    void executedDisplayFollowsTheTab();

    void tablesAreActivatedAfterTheStart();
    void dockActivates();
    void editActionsFollowTheSelection();

    void calendarMenuActs();
    void kindIsStored_data();
    void kindIsStored();
    void standsTheEnd();
};

void tst_SwitcherFlow::tabsShowTheChosenKind()
{
    SwitcherHost host(false);
    QVERIFY(host.start());
    QCOMPARE(host.shown(), ZvScheduleBasicInfo(today));
    QVERIFY(!host.area(0)->isCurrentScheduleEnabled());
    host.clickDefault();
    QCOMPARE(host.shown(), defaultInfo);
    QCOMPARE(host.area(0)->defaultStageName(), QStringLiteral("default"));
    host.tabs()->setCurrentIndex(1);
    QCOMPARE(host.shown(), defaultInfo);
    host.click(Qt::Monday);
    QCOMPARE(host.shown(), mondayInfo);
    host.tabs()->setCurrentIndex(0);
    QCOMPARE(host.shown(), mondayInfo);
    QCOMPARE(host.area(0)->defaultStageName(), QStringLiteral("monday"));
    host.selectDates(SwitcherHost::firstDate(), SwitcherHost::secondDate());
    QCOMPARE(host.shown(), secondInfo());
    host.tabs()->setCurrentIndex(2);
    QCOMPARE(host.shown(), secondInfo());
    QCOMPARE(host.parts().calendar()->selectedDates().size(), 3);
    QCOMPARE(host.parts().selectedFrames(), QStringLiteral("C"));
}

void tst_SwitcherFlow::clickGoesOneRound()
{
    SwitcherHost host;
    QVERIFY(host.start());
    Rounds rounds(host);
    const QString once = QStringLiteral("request shown");
    const QString again = QStringLiteral("request");
    host.click(SwitcherHost::firstDate());
    QCOMPARE(rounds.taken(), once);
    host.click(SwitcherHost::firstDate());
    QCOMPARE(rounds.taken(), again);
    host.click(SwitcherHost::secondDate(), Qt::ShiftModifier);
    QCOMPARE(rounds.taken(), once);
    host.click(SwitcherHost::secondDate(), Qt::ControlModifier);
    QCOMPARE(rounds.taken(), once);
    host.click(Qt::Monday);
    QCOMPARE(rounds.taken(), once);
    host.click(Qt::Monday);
    QCOMPARE(rounds.taken(), again);
    host.click(Qt::Friday);
    QCOMPARE(rounds.taken(), once);
    host.clickDefault();
    QCOMPARE(rounds.taken(), once);
    QTest::mouseClick(host.parts().frame(NavigationName::WeekFrame), Qt::LeftButton, Qt::NoModifier,
                      QPoint(1, 1));
    QCOMPARE(rounds.taken(), once);
    QTest::mouseClick(host.parts().today(), Qt::LeftButton);
    QCOMPARE(rounds.taken(), once);
    QCOMPARE(host.shown(), ZvScheduleBasicInfo(today));
    host.tabs()->setCurrentIndex(1);
    QCOMPARE(rounds.taken(), QStringLiteral("shown"));
    host.tabs()->setCurrentIndex(0);
    QCOMPARE(rounds.taken(), QString());
}

void tst_SwitcherFlow::changesFromOutsideGoOneRound()
{
    SwitcherHost host;
    QVERIFY(host.start());
    Rounds rounds(host);
    const QString back = QStringLiteral("request shown");
    host.main()->switchToDayOfWeekSchedule(Qt::Monday);
    QCOMPARE(rounds.taken(), back);
    QCOMPARE(host.parts().selectedFrames(), QStringLiteral("W"));
    host.main()->switchToDateSchedule(SwitcherHost::firstDate());
    QCOMPARE(rounds.taken(), back);
    QCOMPARE(host.parts().calendar()->selectedDate(), SwitcherHost::firstDate());
    host.main()->switchToDateSchedule(SwitcherHost::firstDate());
    QCOMPARE(rounds.taken(), QString());
    host.main()->switchToDefaultSchedule();
    QCOMPARE(rounds.taken(), back);
    host.switcher()->changeCurrentScheduleSelection(fridayInfo);
    QCOMPARE(rounds.taken(), QStringLiteral("request shown"));
    QCOMPARE(host.shown(), fridayInfo);
    host.action(ActionName::CreateSchedule)->trigger();
    QCOMPARE(rounds.taken(), QStringLiteral("created shown"));
    QVERIFY(host.parts().week()->hasScheduledDay(5));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes);
    host.action(ActionName::DeleteSchedule)->trigger();
    QCOMPARE(rounds.taken(), QStringLiteral("removed shown"));
    QVERIFY(!host.parts().week()->hasScheduledDay(5));
}

void tst_SwitcherFlow::undoGoesOneRound()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.click(SwitcherHost::firstDate().addDays(1));
    host.action(ActionName::CreateSchedule)->trigger();
    QCOMPARE(host.parts().executed(), executedDate(betweenInfo().date()));
    host.clickDefault();
    Rounds rounds(host);
    host.editor->action_undo();
    QCOMPARE(rounds.taken(), QStringLiteral("removed request shown shown"));
    QCOMPARE(host.shown(), betweenInfo());
    QCOMPARE(host.parts().selectedFrames(), QStringLiteral("C"));
    QCOMPARE(host.parts().calendar()->selectedDate(), betweenInfo().date());
    QVERIFY(!host.parts().calendar()->isScheduledDate(betweenInfo().date()));
    QVERIFY(host.parts().executed() != executedDate(betweenInfo().date()));
    host.clickDefault();
    rounds.taken();
    host.editor->action_redo();
    QCOMPARE(rounds.taken(), QStringLiteral("created request shown shown"));
    QVERIFY(host.parts().calendar()->isScheduledDate(betweenInfo().date()));
    QCOMPARE(host.parts().executed(), executedDate(betweenInfo().date()));
}

void tst_SwitcherFlow::marksFollowTheTab()
{
    SwitcherHost host;
    QVERIFY(host.start());
    QCOMPARE(host.parts().calendar()->scheduledDates().size(), 2);
    QCOMPARE(host.parts().countText(), QStringLiteral("Schedule of days: 2 days"));
    QVERIFY(host.parts().week()->hasScheduledDay(1));
    QVERIFY(!host.parts().week()->hasScheduledDay(7));
    host.tabs()->setCurrentIndex(1);
    QCOMPARE(host.parts().calendar()->scheduledDates().size(), 0);
    QVERIFY(!host.parts().week()->hasScheduledDay(1));
    QCOMPARE(host.parts().defaultText(), QStringLiteral("Assigned Stage: None"));
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes);
        host.action(ActionName::DeleteChannel)->trigger();
    }
    QCOMPARE(host.tabs()->count(), 2);
    host.tabs()->setCurrentIndex(0);
    QCOMPARE(host.parts().calendar()->scheduledDates().size(), 2);
    QCOMPARE(host.parts().defaultText(), QStringLiteral("Assigned Stage: 1 stage"));
}

void tst_SwitcherFlow::stageCountFollowsTheTable()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.area(0)->insertTimeItems({{QTime(8, 0), QTime(9, 0), QStringLiteral("a.xml")},
                                   {QTime(9, 0), QTime(10, 0), QStringLiteral("a.xml")}});
    QTRY_COMPARE(host.parts().defaultText(), QStringLiteral("Assigned Stage: 3 stages"));
    host.area(0)->setDefaultStageName(QString());
    QTRY_COMPARE(host.parts().defaultText(), QStringLiteral("Assigned Stage: 2 stages"));
    host.click(Qt::Monday);
    host.area(0)->setDefaultStageName(QString());
    QCoreApplication::processEvents();
    QCOMPARE(host.parts().defaultText(), QStringLiteral("Assigned Stage: 2 stages"));
}

// What runs on a date

// Before it is placed, the dock is no part of the window.
void tst_SwitcherFlow::executedDisplayFollowsTheStart()
{
    const SwitcherHost host;
    ZvScheduleSwitcherWidget *switcher = nullptr;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (auto *found = qobject_cast<ZvScheduleSwitcherWidget *>(widget))
            switcher = found;
    }
    QVERIFY(switcher);
    const SwitcherParts parts(switcher);
    QCOMPARE(parts.executedTitle(), QStringLiteral("Scheduled to be executed on"));
    QTRY_VERIFY(
        parts.executedTitle().contains(QLocale::system().toString(today, QLocale::LongFormat)));
}

void tst_SwitcherFlow::executedDisplayFollowsTheTab()
{
    SwitcherHost host;
    QVERIFY(host.start());
    // A Monday behind both dates.
    const QDate date =
        SwitcherHost::firstDate().addDays(15 - SwitcherHost::firstDate().dayOfWeek());
    host.click(date);
    QCOMPARE(host.parts().executed(), executedDay(date));
    host.tabs()->setCurrentIndex(1);
    QTRY_COMPARE(host.parts().executed(), executedDefault());
    QCOMPARE(host.parts().calendar()->selectedDate(), date);
    host.tabs()->setCurrentIndex(0);
    QTRY_COMPARE(host.parts().executed(), executedDay(date));
}

// Activation

void tst_SwitcherFlow::tablesAreActivatedAfterTheStart()
{
    SwitcherHost host;
    QVERIFY(dynamic_cast<ZvScheduleMainWidget *>(host.editor->activatedWidget()));
    QVERIFY(host.start());
    QCOMPARE(host.editor->activatedWidget(), host.main());
    host.clickDefault();
    QCOMPARE(host.editor->activatedWidget(), host.switcher());
}

void tst_SwitcherFlow::dockActivates()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.dock()->hide();
    QCOMPARE(host.editor->activatedWidget(), host.main());
    host.dock()->show();
    QCOMPARE(host.editor->activatedWidget(), host.switcher());
    host.editor->setActivatedWidget(host.main());
    host.dock()->setFloating(true);
    QCOMPARE(host.editor->activatedWidget(), host.switcher());
    host.clickDefault();
    QCOMPARE(host.shown(), defaultInfo);
}

void tst_SwitcherFlow::editActionsFollowTheSelection()
{
    SwitcherHost host;
    QVERIFY(host.start());
    const auto enabled = [&host] {
        QString letters;
        for (const char *name : {ActionName::Copy, ActionName::Cut, ActionName::Delete,
                                 ActionName::Paste, ActionName::SelectAll, ActionName::DeselectAll})
            letters += QLatin1Char(host.action(name)->isEnabled() ? 'x' : '-');
        return letters;
    };
    host.clickDefault();
    QCOMPARE(enabled(), QStringLiteral("x-----"));
    host.click(betweenInfo().date());
    QCOMPARE(enabled(), QStringLiteral("------"));
    // By the menu, without a click.
    host.editor->getMenu(QLatin1String(MenuName::Calendar))->actions().at(3)->trigger();
    QTRY_COMPARE(enabled(), QStringLiteral("xxx---"));
    host.click(betweenInfo().date());
    QCOMPARE(enabled(), QStringLiteral("------"));
    // By a key.
    QTest::keyClick(CalendarMouse(host.parts().calendar()).view(), Qt::Key_Left);
    QTRY_COMPARE(enabled(), QStringLiteral("xxx---"));
    host.click(Qt::Friday);
    QCOMPARE(enabled(), QStringLiteral("------"));
    host.action(ActionName::CreateSchedule)->trigger();
    QTRY_COMPARE(enabled(), QStringLiteral("xxx---"));
    host.editor->action_undo();
    QTRY_COMPARE(enabled(), QStringLiteral("------"));
    ZvScheduleClipboard::writeSchedulesToClipboard({ZvSchedule()});
    QTRY_COMPARE(enabled(), QStringLiteral("---x--"));
}

// The editor

void tst_SwitcherFlow::calendarMenuActs()
{
    SwitcherHost host;
    QVERIFY(host.start());
    QMenu *menu = host.editor->getMenu(QLatin1String(MenuName::Calendar));
    host.click(firstInfo().date());
    menu->actions().first()->trigger();
    QCOMPARE(host.shown(), ZvScheduleBasicInfo(today));
    // What the menu shows is brought up to date when it opens, and nothing of it edits.
    menu->popup(QPoint());
    QVERIFY(!menu->actions().contains(host.action(ActionName::Copy)));
    menu->close();
}

void tst_SwitcherFlow::kindIsStored_data()
{
    QTest::addColumn<int>("selection");
    QTest::addColumn<int>("stored");
    QTest::newRow("calendar") << 1 << 2;
    QTest::newRow("week") << 2 << 3;
    QTest::newRow("default") << 3 << 1;
}

void tst_SwitcherFlow::kindIsStored()
{
    QFETCH(int, selection);
    SwitcherHost host;
    QVERIFY(host.start());
    host.switcher()->setSelection(static_cast<SelectionType>(selection));
    host.editor->close();
    QTEST(host.data.settings()->value(QLatin1String(DockSettingsKey::LastSelectedType)).toInt(),
          "stored");
}

void tst_SwitcherFlow::standsTheEnd()
{
    SwitcherHost host;
    QVERIFY(host.start());
    const QPointer<ZvScheduleSwitcherWidget> switcher = host.switcher();
    host.clickDefault();
    host.editor->close();
    // The docks go from the event loop; until then nobody answers.
    QVERIFY(switcher);
    switcher->copySelectedItems();
    switcher->deleteSelectedItems();
    switcher->onObjectSelected(nullptr);
    QCoreApplication::sendPostedEvents(host.editor, QEvent::MetaCall);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!switcher);
    QVERIFY(!host.editor->activatedWidget());
    host.editor->action_copy();
}

QTEST_MAIN(tst_SwitcherFlow)
#include "tst_switcherflow.moc"
