#include "SwitcherHost.h"

#include "MessageBoxAnswer.h"
#include "domain/ActionNames.h"
#include "services/ZvScheduleClipboard.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QUndoGroup>

using namespace Zavo;
using namespace ZavoTest;

/// The edit commands on whole schedules, by their actions and keys and the clipboard.
class tst_SwitcherCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QGuiApplication::clipboard()->clear(); }

    void copiesWhatIsOnTheTable();
    void pastesDates();
    void pastesOverTheDefaultSchedule();
    void cutsWithoutAQuestion();
    void deletesAfterAQuestion();
    void cutsNothingOfTheDefaultSchedule();
    void pastesBetweenTabs();

    void worksByKeys();
    void keysOfDisabledActionsDoNothing();
    void menuOnADayMeansThatDay();
};

void tst_SwitcherCommands::copiesWhatIsOnTheTable()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.clickDefault();
    host.area(0)->setDefaultStageName(QStringLiteral("edited"));
    host.action(ActionName::Copy)->trigger();
    const QList<ZvSchedule> copied = ZvScheduleClipboard::readSchedulesFromClipboard();
    QCOMPARE(copied.size(), 1);
    QCOMPARE(copied.first().defaultStage(), QStringLiteral("edited"));
}

void tst_SwitcherCommands::pastesDates()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.selectDates(firstInfo().date(), secondInfo().date());
    host.action(ActionName::Copy)->trigger();
    host.selectDates(laterInfo(0).date(), laterInfo(2).date());
    QTRY_VERIFY(host.action(ActionName::Paste)->isEnabled());
    {
        const MessageBoxAnswer noBox;
        host.action(ActionName::Paste)->trigger();
    }
    QCOMPARE(host.stored(laterInfo(0)), QStringLiteral("first"));
    QCOMPARE(host.stored(laterInfo(1)), QStringLiteral("-"));
    QCOMPARE(host.stored(laterInfo(2)), QStringLiteral("second"));
    QCOMPARE(host.parts().countText(), QStringLiteral("Schedule of days: 4 days"));
    QCOMPARE(host.area(0)->defaultStageName(), QStringLiteral("second"));
    host.action(ActionName::Undo)->trigger();
    QCOMPARE(host.stored(laterInfo(0)), QStringLiteral("-"));
    QCOMPARE(host.parts().countText(), QStringLiteral("Schedule of days: 2 days"));
    host.action(ActionName::Redo)->trigger();
    QCOMPARE(host.stored(laterInfo(2)), QStringLiteral("second"));
    QCOMPARE(host.parts().countText(), QStringLiteral("Schedule of days: 4 days"));
}

void tst_SwitcherCommands::pastesOverTheDefaultSchedule()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.click(Qt::Monday);
    host.action(ActionName::Copy)->trigger();
    host.clickDefault();
    QTRY_VERIFY(host.action(ActionName::Paste)->isEnabled());
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No);
    host.action(ActionName::Paste)->trigger();
    QCOMPARE(host.area(0)->defaultStageName(), QStringLiteral("default"));
    answer.expect(QMessageBox::Yes);
    host.action(ActionName::Paste)->trigger();
    QCOMPARE(host.shown(), defaultInfo);
    QCOMPARE(host.area(0)->defaultStageName(), QStringLiteral("monday"));
    QCOMPARE(host.stored(defaultInfo), QStringLiteral("monday"));
    QCOMPARE(host.stored(mondayInfo), QStringLiteral("monday"));
    host.editor->action_undo();
    QCOMPARE(host.area(0)->defaultStageName(), QStringLiteral("default"));
}

void tst_SwitcherCommands::cutsWithoutAQuestion()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.selectDates(firstInfo().date(), secondInfo().date());
    host.area(0)->setDefaultStageName(QStringLiteral("edited"));
    {
        const MessageBoxAnswer noBox;
        host.action(ActionName::Cut)->trigger();
    }
    QCOMPARE(host.stored(firstInfo()), QStringLiteral("-"));
    QCOMPARE(host.stored(secondInfo()), QStringLiteral("-"));
    QCOMPARE(host.parts().countText(), QStringLiteral("Schedule of days: None"));
    QVERIFY(!host.area(0)->isCurrentScheduleEnabled());
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().size(), 3);
    host.editor->action_undo();
    QCOMPARE(host.stored(firstInfo()), QStringLiteral("first"));
    QCOMPARE(host.stored(secondInfo()), QStringLiteral("edited"));
    QCOMPARE(host.parts().countText(), QStringLiteral("Schedule of days: 2 days"));
}

void tst_SwitcherCommands::deletesAfterAQuestion()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.click(Qt::Monday);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No)
        .title(QStringLiteral("Confirm Delete"))
        .text(QStringLiteral("Are you sure you want to delete the selected schedule?"));
    host.action(ActionName::Delete)->trigger();
    QCOMPARE(host.stored(mondayInfo), QStringLiteral("monday"));
    answer.expect(QMessageBox::Yes);
    host.action(ActionName::Delete)->trigger();
    QCOMPARE(host.stored(mondayInfo), QStringLiteral("-"));
    QVERIFY(!host.parts().week()->hasScheduledDay(1));
    QTRY_VERIFY(!host.action(ActionName::Delete)->isEnabled());
    host.editor->action_undo();
    QVERIFY(host.parts().week()->hasScheduledDay(1));
}

void tst_SwitcherCommands::cutsNothingOfTheDefaultSchedule()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.clickDefault();
    QVERIFY(!host.action(ActionName::Cut)->isEnabled());
    QVERIFY(!host.action(ActionName::Delete)->isEnabled());
    const MessageBoxAnswer noBox;
    host.editor->action_cut();
    host.editor->action_delete();
    QCOMPARE(host.stored(defaultInfo), QStringLiteral("default"));
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().size(), 1);
    QVERIFY(!host.main()->undoGroup()->canUndo());
}

void tst_SwitcherCommands::pastesBetweenTabs()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.click(firstInfo().date());
    host.action(ActionName::Copy)->trigger();
    host.tabs()->setCurrentIndex(2);
    host.click(Qt::Friday);
    QTRY_VERIFY(host.action(ActionName::Paste)->isEnabled());
    host.action(ActionName::Paste)->trigger();
    QCOMPARE(host.stored(fridayInfo), QStringLiteral("first"));
    QVERIFY(host.parts().week()->hasScheduledDay(5));
    host.tabs()->setCurrentIndex(0);
    QCOMPARE(host.stored(fridayInfo), QStringLiteral("-"));
    QVERIFY(!host.parts().week()->hasScheduledDay(5));
}

void tst_SwitcherCommands::worksByKeys()
{
    SwitcherHost host;
    QVERIFY(host.start());
    // Without a window manager nobody activates the window again after a message box.
    const auto activate = [&host] {
        host.window->activateWindow();
        return QTest::qWaitForWindowActive(host.window.get());
    };
    QVERIFY(activate());
    host.selectDates(firstInfo().date(), secondInfo().date());
    QWidget *view = CalendarMouse(host.parts().calendar()).view();
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().size(), 3);
    host.click(laterInfo(0).date());
    QTRY_VERIFY(host.action(ActionName::Paste)->isEnabled());
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes);
    QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(host.stored(laterInfo(2)), QStringLiteral("second"));
    QTRY_VERIFY(host.action(ActionName::Delete)->isEnabled());
    QVERIFY(activate());
    answer.expect(QMessageBox::Yes);
    QTest::keyClick(view, Qt::Key_Delete);
    QCOMPARE(host.stored(laterInfo(0)), QStringLiteral("-"));
    QCOMPARE(host.stored(laterInfo(2)), QStringLiteral("second"));
    QTRY_VERIFY(host.action(ActionName::Undo)->isEnabled());
    QVERIFY(activate());
    QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(host.stored(laterInfo(0)), QStringLiteral("first"));
}

// An item view of its own accord would copy the number of the day.
void tst_SwitcherCommands::keysOfDisabledActionsDoNothing()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(host.window.get()));
    ZvScheduleClipboard::writeSchedulesToClipboard({ZvSchedule()});
    host.click(betweenInfo().date());
    QVERIFY(!host.action(ActionName::Copy)->isEnabled());
    QWidget *view = CalendarMouse(host.parts().calendar()).view();
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(ZvScheduleClipboard::hasScheduleData());
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(host.parts().calendar()->selectedDates(), QList<QDate>{betweenInfo().date()});
    QCOMPARE(host.shown(), betweenInfo());
    // A calendar that goes while a date is typed leaks the validator of its base class.
    QTest::keyClick(view, Qt::Key_Escape);
}

void tst_SwitcherCommands::menuOnADayMeansThatDay()
{
    SwitcherHost host;
    QVERIFY(host.start());
    host.clickDefault();
    QMenu *edit = host.editor->getMenu(QLatin1String(MenuName::Edit));
    QString seen;
    connect(edit, &QMenu::aboutToShow, host.window.get(), [&] {
        QTimer::singleShot(0, host.window.get(), [&] {
            const bool enabled = host.action(ActionName::Delete)->isEnabled();
            seen = enabled ? QStringLiteral("can delete") : QStringLiteral("cannot delete");
            edit->close();
        });
    });
    ZvDayOfWeekWidget *cell = host.parts().cell(Qt::Monday);
    QTest::mousePress(cell, Qt::RightButton);
    const QPoint pos = cell->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, cell->mapToGlobal(pos));
    QCoreApplication::sendEvent(cell, &event);
    QCOMPARE(host.shown(), mondayInfo);
    QCOMPARE(seen, QStringLiteral("can delete"));
}

QTEST_MAIN(tst_SwitcherCommands)
#include "tst_switchercommands.moc"
