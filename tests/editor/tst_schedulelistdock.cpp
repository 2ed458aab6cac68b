#include "EditorFixture.h"

#include "../navigation/SpecifyDialogParts.h"
#include "DialogAnswer.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "domain/SelectionType.h"
#include "navigation/ZvScheduleListWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "services/ZvScheduleClipboard.h"

#include <QClipboard>
#include <QDockWidget>
#include <QGuiApplication>
#include <QLabel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QUndoGroup>
#include <QUndoStack>

using namespace Zavo;
using namespace ZavoTest;

using Dialog = ZvScheduleSpecifyScheduleDialog;
using Infos = QList<ZvScheduleBasicInfo>;

namespace {

const ZvScheduleBasicInfo defaultInfo(ZvSchedule::Default);
const ZvScheduleBasicInfo mondayInfo(Weekday::Monday);

ZvScheduleBasicInfo juneInfo(int day)
{
    return ZvScheduleBasicInfo(QDate(2031, 6, day));
}

ZvTime bandAt(int hour)
{
    return {QTime(hour, 0), QTime(hour, 30), QStringLiteral("a.xml")};
}

/// An editor with the list on show: a channel of four schedules, and one with the default alone.
class ListHost final : public EditorFixture
{
public:
    ListHost()
        : EditorFixture(QStringList())
    {
        writeChannels();
        if (!start() || !showList())
            QTest::qFail("the list is on show", __FILE__, __LINE__);
    }

    void writeChannels()
    {
        QGuiApplication::clipboard()->clear();
        writeChannelFile(data, channelFileName(1), {1, 1, QStringLiteral("Beta")});
        ZvChannel alpha(data.channelFolder() + QLatin1Char('/') + channelFileName(0));
        alpha.setName(QStringLiteral("Alpha"));
        for (const ZvScheduleBasicInfo &info :
             {defaultInfo, mondayInfo, juneInfo(3), juneInfo(4)}) {
            ZvSchedule schedule = info.toSchedule();
            schedule.setTimeList({bandAt(8), bandAt(9)});
            alpha.insertSchedule(schedule);
        }
        if (!alpha.writeToFile())
            QTest::qFail("the channel is written", __FILE__, __LINE__);
    }

    bool showList() const
    {
        // The start ends with the tables activated.
        if (!QTest::qWaitFor([this] { return editor->activatedWidget() == main(); }))
            return false;
        dock()->show();
        dock()->raise();
        return QTest::qWaitFor([this] { return view()->isVisible(); });
    }

    QDockWidget *dock() const
    {
        return window->findChild<QDockWidget *>(QStringLiteral("ScheduleListDock"));
    }
    ZvScheduleListWidget *list() const { return window->findChild<ZvScheduleListWidget *>(); }
    ZvScheduleSwitcherWidget *switcher() const
    {
        return window->findChild<ZvScheduleSwitcherWidget *>();
    }
    QTreeView *view() const { return list()->findChild<QTreeView *>(); }
    QStandardItemModel *model() const { return list()->findChild<QStandardItemModel *>(); }

    QString countOf(const ZvScheduleBasicInfo &info) const
    {
        const QList<QStandardItem *> items = list()->rowItems(info);
        return items.isEmpty() ? QString() : items.last()->text();
    }
    void check(const QList<int> &rows) const
    {
        for (int row : rows)
            model()->item(row)->setCheckState(Qt::Checked);
    }
    /// Clicks on the row beside its mark.
    void clickRow(int row) const
    {
        const QRect rect = view()->visualRect(model()->index(row, 0));
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, rect.center());
    }
    bool trigger(const char *name) const
    {
        QAction *wanted = action(name);
        if (!QTest::qWaitFor([wanted] { return wanted->isEnabled(); }, 1000))
            return false;
        wanted->trigger();
        return true;
    }
    QUndoStack *undoStack() const { return main()->undoGroup()->activeStack(); }
};

void accept(Dialog *dialog)
{
    QTest::mouseClick(SpecifyDialogParts(dialog).ok(), Qt::LeftButton);
}

} // namespace

/// The schedule list in the editor, with the switcher and the pages of the tabs.
class tst_ScheduleListDock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheListWithTheEditActions();
    void followsTheTab();
    void clickedRowIsShown();
    void switchersChoiceIsSelected();
    void countsFollowTheTable();
    void createsASchedule();
    void createsByShortcutWhileShown();
    void copiesAndPastesByActions();
    void cutsAndUndoes();
    void deletesAllButTheDefault();
    void deletionRefused();
    void commandsFollowTheMarks();
    void deletesTheScheduleThatIsShown();
    void closesWithoutHarm();
};

void tst_ScheduleListDock::holdsTheListWithTheEditActions()
{
    const ListHost host;
    QCOMPARE(host.dock()->widget(), host.list());
    const auto *menu = host.list()->findChild<QMenu *>(QStringLiteral("Menu_ToolMenu"));
    QStringList names;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        names.append(action->isSeparator() ? QStringLiteral("-") : action->objectName());
    QStringList expected{QStringLiteral("Action_New_Schedule"), QStringLiteral("-")};
    const QList<QAction *> edit = host.editor->getMenu(QStringLiteral("Menu_Edit"))->actions();
    for (const QAction *action : edit)
        expected.append(action->isSeparator() ? QStringLiteral("-") : action->objectName());
    QCOMPARE(names, expected);
    QVERIFY(names.contains(QStringLiteral("Action_Copy")));
    // The dock came into view.
    QCOMPARE(host.editor->activatedWidget(), host.list());
}

void tst_ScheduleListDock::followsTheTab()
{
    const ListHost host;
    const auto *label = host.list()->findChild<QLabel *>();
    QCOMPARE(label->text(), QStringLiteral("Channel: Alpha"));
    QCOMPARE(host.model()->rowCount(), 4);
    host.tabs()->setCurrentIndex(1);
    QCOMPARE(label->text(), QStringLiteral("Channel: Beta"));
    QCOMPARE(host.model()->rowCount(), 1);
    // What was edited and not stored yet is counted all the same.
    host.main()->switchToDefaultSchedule();
    host.area(1)->setDefaultStageName(QStringLiteral("d.xml"));
    QCOMPARE(host.countOf(defaultInfo), QStringLiteral("1"));
    host.tabs()->setCurrentIndex(0);
    host.tabs()->setCurrentIndex(1);
    QCOMPARE(host.countOf(defaultInfo), QStringLiteral("1"));
    QCOMPARE(host.list()->currentRowInfo(), defaultInfo);
}

void tst_ScheduleListDock::clickedRowIsShown()
{
    const ListHost host;
    SignalLog log;
    log.watch(host.list(), SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)), "list");
    log.watch(host.switcher(), SIGNAL(requestSwitchToDefault()), "switch");
    log.watch(host.switcher(), SIGNAL(requestSwitchToDayOfWeek(Qt::DayOfWeek)), "switch");
    log.watch(host.switcher(), SIGNAL(requestSwitchToDate(QDate)), "switch");
    log.watch(host.main(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "page");
    const QList<QPair<int, SelectionType>> rows{{2, SelectionType::Calendar},
                                                {1, SelectionType::Week},
                                                {3, SelectionType::Calendar},
                                                {0, SelectionType::DefaultSchedule}};
    const Infos infos{defaultInfo, mondayInfo, juneInfo(3), juneInfo(4)};
    for (const auto &row : rows) {
        log.clear();
        host.clickRow(row.first);
        QCOMPARE(host.area(0)->currentScheduleInfo(), infos.at(row.first));
        QCOMPARE(host.switcher()->currentSelection(), row.second);
        QCOMPARE(host.list()->currentRowInfo(), infos.at(row.first));
        for (const char *name : {"list", "switch", "page"})
            QCOMPARE(log.count(QLatin1String(name)), 1);
    }
    log.clear();
    host.clickRow(0);
    QCOMPARE(log.names(), QStringList());
}

void tst_ScheduleListDock::switchersChoiceIsSelected()
{
    const ListHost host;
    host.clickRow(2);
    host.check({1, 3});
    SignalLog log;
    log.watch(host.list(), SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)), "list");
    log.watch(host.main(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "page");
    auto *frame =
        host.switcher()->findChild<QWidget *>(QStringLiteral("DefaultScheduleSelectedWidget"));
    QTest::mousePress(frame, Qt::LeftButton);
    QCOMPARE(host.list()->currentRowInfo(), defaultInfo);
    QCOMPARE(log.count(QStringLiteral("list")), 1);
    QCOMPARE(log.count(QStringLiteral("page")), 1);

    host.main()->switchToDateSchedule(QDate(2031, 6, 4));
    QCOMPARE(host.list()->currentRowInfo(), juneInfo(4));
    log.clear();
    host.main()->switchToDateSchedule(QDate(2031, 6, 20));
    QCOMPARE(host.list()->currentRowInfo(), ZvScheduleBasicInfo());
    QCOMPARE(log.count(QStringLiteral("list")), 0);
    QCOMPARE(host.list()->checkedInfos(), Infos({mondayInfo, juneInfo(4)}));
}

void tst_ScheduleListDock::countsFollowTheTable()
{
    const ListHost host;
    host.clickRow(2);
    QCOMPARE(host.countOf(juneInfo(3)), QStringLiteral("2"));
    host.area(0)->insertTimeItems({bandAt(12)});
    QCOMPARE(host.countOf(juneInfo(3)), QStringLiteral("3"));
    host.main()->setDefaultStageToCurrentSchedule(QStringLiteral("d.xml"));
    QCOMPARE(host.countOf(juneInfo(3)), QStringLiteral("4"));
    // The rows are read anew from the channel.
    host.main()->createScheduleWithUndo({juneInfo(9)});
    QCOMPARE(host.model()->rowCount(), 5);
    QCOMPARE(host.countOf(juneInfo(3)), QStringLiteral("4"));
    host.undoStack()->undo();
    QCOMPARE(host.model()->rowCount(), 4);
    QCOMPARE(host.countOf(juneInfo(3)), QStringLiteral("4"));
    host.clickRow(0);
    QCOMPARE(host.countOf(juneInfo(3)), QStringLiteral("4"));
    QCOMPARE(host.countOf(defaultInfo), QStringLiteral("2"));
}

void tst_ScheduleListDock::createsASchedule()
{
    const ListHost host;
    host.clickRow(3);
    DialogAnswer<Dialog> answer(accept);
    host.list()->findChild<QAction *>(QStringLiteral("Action_New_Schedule"))->trigger();
    QVERIFY(answer.hasCome());
    QCOMPARE(host.list()->currentRowInfo(), juneInfo(5));
    QCOMPARE(host.area(0)->currentScheduleInfo(), juneInfo(5));
    QVERIFY(host.area(0)->isCurrentScheduleEnabled());
    QCOMPARE(host.model()->rowCount(), 5);
    QCOMPARE(host.undoStack()->count(), 1);
    host.action("Action_Undo")->trigger();
    QCOMPARE(host.model()->rowCount(), 4);
    QCOMPARE(host.list()->currentRowInfo(), juneInfo(4));
    host.action("Action_Redo")->trigger();
    QCOMPARE(host.model()->rowCount(), 5);
    QCOMPARE(host.countOf(juneInfo(5)), QStringLiteral("0"));
}

void tst_ScheduleListDock::createsByShortcutWhileShown()
{
    const ListHost host;
    host.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(host.window.get()));
    {
        DialogAnswer<Dialog> answer(accept);
        QTest::keyClick(host.window.get(), Qt::Key_N, Qt::ControlModifier);
        QVERIFY(answer.hasCome());
    }
    QCOMPARE(host.model()->rowCount(), 5);
    host.dock()->hide();
    DialogAnswer<Dialog> answer(accept);
    QTest::keyClick(host.window.get(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(!answer.hasCome());
    QCOMPARE(host.model()->rowCount(), 5);
}

void tst_ScheduleListDock::copiesAndPastesByActions()
{
    const ListHost host;
    host.clickRow(2);
    host.area(0)->insertTimeItems({bandAt(12)});
    host.check({2, 3});
    QVERIFY(host.trigger("Action_Copy"));
    // The table on show was stored first.
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().value(0).timeList().size(), 3);

    host.tabs()->setCurrentIndex(1);
    host.list()->setActivated();
    {
        DialogAnswer<Dialog> answer([](Dialog *dialog) {
            dialog->setType(ZvSchedule::Date);
            dialog->setDate(QDate(2031, 6, 29));
            accept(dialog);
        });
        QVERIFY(host.trigger("Action_Paste"));
        QVERIFY(answer.hasCome());
    }
    QCOMPARE(host.model()->rowCount(), 3);
    QCOMPARE(host.countOf(juneInfo(29)), QStringLiteral("3"));
    QCOMPARE(host.countOf(juneInfo(30)), QStringLiteral("2"));

    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes).title(QStringLiteral("Paste Schedule"));
    DialogAnswer<Dialog> answer([](Dialog *dialog) {
        dialog->setType(ZvSchedule::Default);
        accept(dialog);
    });
    QVERIFY(host.trigger("Action_Paste"));
    QCOMPARE(host.countOf(defaultInfo), QStringLiteral("3"));
    host.undoStack()->undo();
    QCOMPARE(host.countOf(defaultInfo), QStringLiteral("0"));
    host.undoStack()->undo();
    QCOMPARE(host.model()->rowCount(), 1);
}

void tst_ScheduleListDock::cutsAndUndoes()
{
    const ListHost host;
    const MessageBoxAnswer noBoxes;
    host.clickRow(0);
    host.check({0, 1, 3});
    QVERIFY(host.trigger("Action_Cut"));
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().size(), 3);
    QCOMPARE(host.model()->rowCount(), 2);
    QVERIFY(host.list()->checkedInfos().isEmpty());
    QVERIFY(host.trigger("Action_Undo"));
    QCOMPARE(host.model()->rowCount(), 4);
    QCOMPARE(host.countOf(mondayInfo), QStringLiteral("2"));
}

void tst_ScheduleListDock::deletesAllButTheDefault()
{
    const ListHost host;
    QVERIFY(host.trigger("Action_Select_All"));
    QCOMPARE(host.list()->checkedInfos().size(), 4);
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes)
        .title(QStringLiteral("Confirm Delete"))
        .whileShown([&host](QMessageBox *box) {
            QCOMPARE(box->text(),
                     QStringLiteral("Are you sure you want to delete the selected schedules?"));
            QCOMPARE(host.model()->item(0)->checkState(), Qt::PartiallyChecked);
            QCOMPARE(host.list()->currentRowInfo(), mondayInfo);
        });
    QVERIFY(host.trigger("Action_Delete"));
    QVERIFY(boxes.isDone());
    QCOMPARE(host.model()->rowCount(), 1);
    QCOMPARE(host.model()->item(0)->checkState(), Qt::Unchecked);
    QVERIFY(host.trigger("Action_Undo"));
    QCOMPARE(host.model()->rowCount(), 4);
}

void tst_ScheduleListDock::deletionRefused()
{
    const ListHost host;
    host.check({2, 3});
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::No);
    QVERIFY(host.trigger("Action_Delete"));
    QCOMPARE(host.model()->rowCount(), 4);
    QCOMPARE(host.list()->checkedInfos(), Infos({juneInfo(3), juneInfo(4)}));
    QCOMPARE(host.undoStack()->count(), 0);
}

void tst_ScheduleListDock::commandsFollowTheMarks()
{
    const ListHost host;
    host.clickRow(0);
    QTRY_VERIFY(!host.action("Action_Copy")->isEnabled());
    QVERIFY(host.action("Action_Select_All")->isEnabled());
    QTest::keyClick(host.view(), Qt::Key_Space);
    QTRY_VERIFY(host.action("Action_Copy")->isEnabled());
    QVERIFY(!host.action("Action_Cut")->isEnabled());
    QVERIFY(!host.action("Action_Delete")->isEnabled());
    QTest::keyClick(host.view(), Qt::Key_Down);
    QTest::keyClick(host.view(), Qt::Key_Space);
    QTRY_VERIFY(host.action("Action_Delete")->isEnabled());
    QVERIFY(host.trigger("Action_Deselect_All"));
    QTRY_VERIFY(!host.action("Action_Deselect_All")->isEnabled());
}

void tst_ScheduleListDock::deletesTheScheduleThatIsShown()
{
    const ListHost host;
    host.clickRow(3);
    host.check({3});
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes)
        .text(QStringLiteral("Are you sure you want to delete the selected schedule?"));
    QVERIFY(host.trigger("Action_Delete"));
    QCOMPARE(host.list()->currentRowInfo(), ZvScheduleBasicInfo());
    QCOMPARE(host.area(0)->currentScheduleInfo(), juneInfo(4));
    QVERIFY(!host.area(0)->isCurrentScheduleEnabled());
    host.undoStack()->undo();
    QCOMPARE(host.list()->currentRowInfo(), juneInfo(4));
    QCOMPARE(host.countOf(juneInfo(4)), QStringLiteral("2"));
}

void tst_ScheduleListDock::closesWithoutHarm()
{
    ListHost host;
    host.clickRow(1);
    host.check({1});
    host.dock()->setFloating(true);
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    const QPointer<ZvScheduleListWidget> list = host.list();
    host.editor->close();
    QCOMPARE(closed.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_VERIFY(!list);
}

QTEST_MAIN(tst_ScheduleListDock)
#include "tst_schedulelistdock.moc"
