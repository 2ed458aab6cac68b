#include "EditorFixture.h"
#include "SceneMouse.h"

#include "timetable/ZvTimeTableTimeItem.h"

#include <QGraphicsView>
#include <QUndoGroup>
#include <QUndoStack>

using namespace Zavo;
using namespace ZavoTest;

namespace {

// A widget with a selection as the docks have one, that writes down what it is asked to do.
class SelectionWidget final : public QWidget, public ZvScheduleCommonInterface
{
public:
    SelectedType hasSelectedItems() const override { return selected; }
    void deleteSelectedItems() override { calls.append(QStringLiteral("delete")); }
    bool copySelectedItems() override { return note("copy"); }
    bool cutSelectedItems() override { return note("cut"); }
    bool isPastingPossible() const override { return pasting; }
    bool pasteItems() override { return note("paste"); }
    void selectAllItems() override { calls.append(QStringLiteral("select all")); }
    void deselectAllItems() override { calls.append(QStringLiteral("deselect all")); }

    SelectedType selected;
    bool pasting = false;
    QStringList calls;

private:
    bool note(const char *call)
    {
        calls.append(QLatin1String(call));
        return true;
    }
};

const char *const EditActions[] = {"Action_Copy",  "Action_Cut",        "Action_Delete",
                                   "Action_Paste", "Action_Select_All", "Action_Deselect_All"};

void runEditCommands(ZvScheduleEditor *editor)
{
    editor->action_copy();
    editor->action_cut();
    editor->action_paste();
    editor->action_delete();
    editor->action_selectAll();
    editor->action_deselectAll();
}

} // namespace

class tst_ActivatedWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mainWidgetFromTheStart();
    void nothingActivated();
    void widgetWithoutInterface();
    void commandsGoToTheActivatedWidget();
    void actionsFollowTheFlags_data();
    void actionsFollowTheFlags();
    void openingTheMenuAsksAgain();
    void isActivated();
    void diedWidget();
    void undoGoesToTheTab();
    void undoFollowsTheTab();
    void pressActivatesMainWidget();
    void selectAllByKey();
    void actionsFollowTheSelection();
};

void tst_ActivatedWidget::mainWidgetFromTheStart()
{
    const EditorFixture host;
    QVERIFY(dynamic_cast<ZvScheduleMainWidget *>(host.editor->activatedWidget()));
    QVERIFY(host.editor->activatedScheudleWidget());
    QCOMPARE(int(host.editor->hasSelectedItems()), 0);
    QVERIFY(!host.editor->isPastingPossible());
    for (const char *name : EditActions)
        QVERIFY(!host.action(name)->isEnabled());
    QVERIFY(!host.action("Action_Undo")->isEnabled());
    QVERIFY(!host.action("Action_Redo")->isEnabled());
}

void tst_ActivatedWidget::nothingActivated()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.main()->changeChannelNameWithUndo(0, QStringLiteral("Foyer"));
    host.editor->setActivatedWidget(nullptr);
    QVERIFY(!host.editor->activatedWidget());
    QVERIFY(!host.editor->activatedScheudleWidget());
    QCOMPARE(int(host.editor->hasSelectedItems()), 0);
    QVERIFY(!host.editor->isPastingPossible());
    runEditCommands(host.editor);
    for (const char *name : EditActions)
        QVERIFY(!host.action(name)->isEnabled());
    QVERIFY(host.action("Action_Undo")->isEnabled());
    host.action("Action_Undo")->trigger();
    QCOMPARE(host.tabs()->tabText(0), QStringLiteral("Alpha"));
}

void tst_ActivatedWidget::widgetWithoutInterface()
{
    const EditorFixture host;
    QWidget plain;
    host.editor->setActivatedWidget(&plain);
    QCOMPARE(host.editor->activatedWidget(), &plain);
    QVERIFY(!host.editor->activatedScheudleWidget());
    QCOMPARE(int(host.editor->hasSelectedItems()), 0);
    QVERIFY(!host.editor->isPastingPossible());
    runEditCommands(host.editor);
}

void tst_ActivatedWidget::commandsGoToTheActivatedWidget()
{
    const EditorFixture host;
    SelectionWidget list;
    host.editor->setActivatedWidget(&list);
    runEditCommands(host.editor);
    QCOMPARE(list.calls,
             (QStringList{QStringLiteral("copy"), QStringLiteral("cut"), QStringLiteral("paste"),
                          QStringLiteral("delete"), QStringLiteral("select all"),
                          QStringLiteral("deselect all")}));
    list.pasting = true;
    list.selected = ZvScheduleCommonInterface::SelectedCopy;
    QVERIFY(host.editor->isPastingPossible());
    QCOMPARE(int(host.editor->hasSelectedItems()), 1);
}

void tst_ActivatedWidget::actionsFollowTheFlags_data()
{
    QTest::addColumn<int>("selected");
    QTest::addColumn<bool>("pasting");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("0") << 0 << false << QString();
    QTest::newRow("8") << 8 << false << QStringLiteral("Select_All");
    QTest::newRow("31") << 31 << false << QStringLiteral("Copy Cut Delete Select_All Deselect_All");
    QTest::newRow("23") << 23 << false << QStringLiteral("Copy Cut Delete Deselect_All");
    QTest::newRow("25") << 25 << false << QStringLiteral("Copy Select_All Deselect_All");
    QTest::newRow("17") << 17 << false << QStringLiteral("Copy Deselect_All");
    QTest::newRow("pasting") << 0 << true << QStringLiteral("Paste");
    QTest::newRow("8, pasting") << 8 << true << QStringLiteral("Paste Select_All");
}

void tst_ActivatedWidget::actionsFollowTheFlags()
{
    QFETCH(int, selected);
    const EditorFixture host;
    SelectionWidget list;
    QFETCH(bool, pasting);
    list.selected = ZvScheduleCommonInterface::SelectedType(selected);
    list.pasting = pasting;
    host.editor->setActivatedWidget(&list);
    QStringList enabled;
    for (const char *name : EditActions) {
        if (host.action(name)->isEnabled())
            enabled.append(QString::fromLatin1(name).mid(7));
    }
    QTEST(enabled.join(QLatin1Char(' ')), "enabled");
}

void tst_ActivatedWidget::openingTheMenuAsksAgain()
{
    const EditorFixture host;
    SelectionWidget list;
    host.editor->setActivatedWidget(&list);
    list.selected = ZvScheduleCommonInterface::SelectedSelectAll;
    QVERIFY(!host.action("Action_Select_All")->isEnabled());
    QMenu *edit = host.editor->getMenu(QStringLiteral("Menu_Edit"));
    edit->popup(QPoint());
    QVERIFY(host.action("Action_Select_All")->isEnabled());
    edit->close();
}

void tst_ActivatedWidget::isActivated()
{
    EditorFixture host;
    QVERIFY(host.start());
    bool activated = false;
    host.editor->isActivatedWidgetRequested(host.main(), &activated);
    QVERIFY(activated);
    QWidget other;
    host.editor->isActivatedWidgetRequested(&other, &activated);
    QVERIFY(!activated);
    host.editor->isActivatedWidgetRequested(&other, nullptr);
    host.main()->isCurrentWidgetActivated(&activated);
    QVERIFY(activated);
    host.editor->setActivatedWidget(&other);
    Q_EMIT host.tabs()->requestIsActivatedWidget(&activated);
    QVERIFY(!activated);
}

void tst_ActivatedWidget::diedWidget()
{
    const EditorFixture host;
    {
        SelectionWidget list;
        list.selected = ZvScheduleCommonInterface::SelectedSelectAll;
        host.editor->setActivatedWidget(&list);
    }
    QVERIFY(!host.editor->activatedWidget());
    runEditCommands(host.editor);
    QCOMPARE(int(host.editor->hasSelectedItems()), 0);
}

void tst_ActivatedWidget::undoGoesToTheTab()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.main()->changeChannelNameWithUndo(1, QStringLiteral("Foyer"));
    SelectionWidget list;
    host.editor->setActivatedWidget(&list);
    host.editor->action_undo();
    QCOMPARE(host.tabs()->tabText(1), QStringLiteral("Beta"));
    host.editor->action_redo();
    QCOMPARE(host.tabs()->tabText(1), QStringLiteral("Foyer"));
    QVERIFY(list.calls.isEmpty());
}

void tst_ActivatedWidget::undoFollowsTheTab()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.main()->changeChannelNameWithUndo(0, QStringLiteral("Foyer"));
    QTRY_VERIFY(host.action("Action_Undo")->isEnabled());
    host.tabs()->setCurrentIndex(1);
    QTRY_VERIFY(!host.action("Action_Undo")->isEnabled());
    host.editor->action_undo();
    QCOMPARE(host.tabs()->tabText(0), QStringLiteral("Foyer"));
    host.tabs()->setCurrentIndex(0);
    QTRY_VERIFY(host.action("Action_Undo")->isEnabled());
}

void tst_ActivatedWidget::pressActivatesMainWidget()
{
    EditorFixture host;
    QVERIFY(host.start());
    SelectionWidget list;
    host.editor->setActivatedWidget(&list);
    SceneMouse mouse(host.area(0)->findChild<QGraphicsView *>());
    mouse.click(QPointF(50, 100));
    QCOMPARE(host.editor->activatedWidget(), host.window->centralWidget());
    QVERIFY(host.action("Action_Select_All")->isEnabled());
}

void tst_ActivatedWidget::selectAllByKey()
{
    EditorFixture host;
    writeChannelFile(host.data, channelFileName(0),
                     {0,
                      0,
                      QStringLiteral("Alpha"),
                      {{QTime(8, 0), QTime(9, 0), QStringLiteral("x.xml")},
                       {QTime(9, 0), QTime(10, 0), QStringLiteral("y.xml")}}});
    QVERIFY(host.start());
    host.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(host.window.get()));
    host.editor->action_deselectAll();
    QTRY_VERIFY(!host.action("Action_Deselect_All")->isEnabled());
    QTRY_VERIFY(host.action("Action_Select_All")->isEnabled());
    QTest::keyClick(host.window.get(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(host.area(0)->selectedTimeItems().size(), 2);
    QTRY_VERIFY(host.action("Action_Deselect_All")->isEnabled());
    QTest::keyClick(host.window.get(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(host.area(0)->selectedTimeItems().size(), 0);
}

void tst_ActivatedWidget::actionsFollowTheSelection()
{
    EditorFixture host;
    writeChannelFile(host.data, channelFileName(0),
                     {0,
                      0,
                      QStringLiteral("Alpha"),
                      {{QTime(1, 0), QTime(2, 0), QStringLiteral("x.xml")},
                       {QTime(2, 0), QTime(3, 0), QStringLiteral("y.xml")}}});
    QVERIFY(host.start());
    host.editor->action_selectAll();
    const QPointF band = host.area(0)->selectedTimeItems().first()->sceneBoundingRect().center();
    host.editor->action_deselectAll();
    QTRY_VERIFY(!host.action("Action_Deselect_All")->isEnabled());
    SceneMouse mouse(host.area(0)->findChild<QGraphicsView *>());
    mouse.click(band);
    QCOMPARE(host.area(0)->selectedTimeItems().size(), 1);
    QTRY_VERIFY(host.action("Action_Deselect_All")->isEnabled());
    QVERIFY(host.action("Action_Select_All")->isEnabled());
}

QTEST_MAIN(tst_ActivatedWidget)
#include "tst_activatedwidget.moc"
