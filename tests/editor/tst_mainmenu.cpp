#include "EditorFixture.h"
#include "MessageBoxAnswer.h"

#include "ZvConfig.h"
#include "ZvEditorConfig.h"

#include <QSignalSpy>
#include <QToolBar>
#include <QUndoGroup>
#include <QUndoStack>

using namespace Zavo;
using namespace ZavoTest;

class tst_MainMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menus();
    void rows_data();
    void rows();
    void orderOfRows_data();
    void orderOfRows();
    void actionsHaveTheirMenusAsParents();
    void getActions();
    void emptyNameIsTheCloseEntry();
    void fileMenuIsNotFound();
    void mainWidgetActions();
    void toolBarSharesTheActions();
    void uploadWithAllInOne_data();
    void uploadWithAllInOne();
    void helpMenu();
    void calendarMenu();
    void firstTab();
    void shortcutsWork();
    void requests();
    void requestsWithoutTabs();
    void uploadAsksFirst();
    void uploadCancelled();
    void saveActions();
    void renameAction();
};

void tst_MainMenu::menus()
{
    const EditorFixture host;
    QStringList titles;
    QStringList names;
    const QList<QMenu *> menus = host.editor->menu();
    for (const QMenu *menu : menus) {
        titles.append(menu->title());
        names.append(menu->objectName());
        QVERIFY(!menu->parent());
    }
    QCOMPARE(titles, (QStringList{QStringLiteral("&File"), QStringLiteral("&Edit"),
                                  QStringLiteral("C&alendar"), QStringLiteral("&Channel"),
                                  QStringLiteral("&Window")}));
    QCOMPARE(names,
             (QStringList{QString(), QStringLiteral("Menu_Edit"), QStringLiteral("Menu_Calendar"),
                          QStringLiteral("Menu_Channel"), QStringLiteral("Menu_Window")}));
    QCOMPARE(host.editor->getMenu(QStringLiteral("Menu_Channel")), menus.at(3));
}

void tst_MainMenu::rows_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QKeySequence>("shortcut");
    QTest::addColumn<bool>("hasIcon");
    const auto row = [](const char *name, const char *text, const QKeySequence &shortcut,
                        bool hasIcon) {
        QTest::newRow(name) << QString::fromLatin1(text) << shortcut << hasIcon;
    };
    row("Action_Save_Channel", "&Save Channel", QKeySequence::Save, true);
    row("Action_Save_All_Channel", "Save &All Channels",
        QKeySequence(QStringLiteral("Ctrl+Shift+S")), true);
    row("", "&Close Schedule Editor", QKeySequence(QStringLiteral("Ctrl+W")), false);
    row("Action_Undo", "&Undo", QKeySequence::Undo, true);
    row("Action_Redo", "&Redo", QKeySequence::Redo, true);
    row("Action_Cut", "&Cut", QKeySequence::Cut, false);
    row("Action_Copy", "&Copy", QKeySequence::Copy, false);
    row("Action_Paste", "&Paste", QKeySequence::Paste, false);
    row("Action_Delete", "&Delete", QKeySequence::Delete, true);
    row("Action_Select_All", "Select &All", QKeySequence::SelectAll, false);
    row("Action_Deselect_All", "Deselect A&ll", QKeySequence(QStringLiteral("Ctrl+Shift+A")),
        false);
    row("Action_Upload", "&Upload...", QKeySequence(), true);
    row("Action_Output_Channel_Data", "&Output Channel Data...", QKeySequence(), true);
    row("Action_Show_Log_File", "S&how Upload Log...", QKeySequence(), false);
    row("Action_OPen_Log_Folder", "Open Upload Log &Folder...", QKeySequence(), false);
    row("Action_Create_Schedule", "&New Schedule", QKeySequence(), true);
    row("Action_Delete_Schedule", "&Delete Schedule...", QKeySequence(), true);
    row("Action_Rename_Channel", "&Rename Channel", QKeySequence(), false);
    row("Action_Create_Channel", "&Add Channel...", QKeySequence(), true);
    row("Action_Delete_Channel", "D&elete Channel...", QKeySequence(), true);
    row("Action_Change_Channel_Order", "Chan&ge Channel Order...", QKeySequence(), false);
    row("Action_Delete_Channels_Settings", "Delete All Channels and &Settings...", QKeySequence(),
        false);
    row("Action_Show_Channel_Information", "Show Channel &Information...", QKeySequence(), false);
    row("Action_Channel_Configuration", "Channel Configura&tion...", QKeySequence(), false);
    row("Action_Set_Visible_Switch_Schedule", "&Switch Schedule", QKeySequence(), false);
    row("Action_Set_Visible_Schedule_List", "Schedule &List", QKeySequence(), false);
    row("Action_Set_Visible_Choose_Stage", "&Choose Stage", QKeySequence(), false);
    row("Action_Set_Visible_Item_Property", "&Assigned Item Property", QKeySequence(), false);
    row("Action_Window_To_Default_Position", "To &Default Position", QKeySequence(), false);
}

void tst_MainMenu::rows()
{
    QFETCH(QKeySequence, shortcut);
    QFETCH(bool, hasIcon);
    const EditorFixture host;
    const QAction *action = host.action(QTest::currentDataTag());
    QVERIFY(action);
    QTEST(action->text(), "text");
    QCOMPARE(action->shortcut(), shortcut);
    QCOMPARE(!action->icon().isNull(), hasIcon);
    QCOMPARE(!action->icon().pixmap(16, 16).isNull(), hasIcon);
    QCOMPARE(action->isCheckable(), action->objectName().startsWith(QStringLiteral("Action_Set_")));
}

void tst_MainMenu::orderOfRows_data()
{
    QTest::addColumn<int>("menu");
    QTest::addColumn<QStringList>("expected");
    const auto list = [](const char *texts) {
        return QString::fromLatin1(texts).split(QLatin1Char(','));
    };
    QTest::newRow("file") << 0
                          << list(
                                 "&Save Channel,Save &All Channels,,&Close Schedule Editor,,&Quit");
    QTest::newRow("edit")
        << 1 << list("&Undo,&Redo,,&Cut,&Copy,&Paste,&Delete,,Select &All,Deselect A&ll");
    QTest::newRow("calendar") << 2
                              << list("Move to &Today,,Select &Week,Select &Month,Clear "
                                      "&Selections,,&First Day of Week,Show Week &Number");
    QTest::newRow("channel") << 3
                             << list("&Upload...,&Output Channel Data...,,S&how Upload "
                                     "Log...,Open Upload Log &Folder...,,&New Schedule,&Delete "
                                     "Schedule...,,&Rename Channel,Chan&ge Channel Order...,&Add "
                                     "Channel...,D&elete Channel...,,Delete All Channels and "
                                     "&Settings...,,Show Channel &Information...,Channel "
                                     "Configura&tion...");
    QTest::newRow("window") << 4
                            << list("&Switch Schedule,Schedule &List,&Choose Stage,&Assigned Item "
                                    "Property,,To &Default Position");
}

void tst_MainMenu::orderOfRows()
{
    QFETCH(int, menu);
    const EditorFixture host;
    QStringList texts;
    const QList<QAction *> actions = host.editor->menu().at(menu)->actions();
    for (const QAction *action : actions) {
        texts.append(action->text());
        QCOMPARE(action->isSeparator(), action->text().isEmpty());
    }
    QTEST(texts, "expected");
}

void tst_MainMenu::actionsHaveTheirMenusAsParents()
{
    const EditorFixture host;
    const QList<QMenu *> menus = host.editor->menu();
    for (QMenu *menu : menus) {
        const QList<QAction *> actions = menu->actions();
        for (const QAction *action : actions)
            QCOMPARE(action->menu() ? action->menu()->parent() : action->parent(),
                     static_cast<QObject *>(menu));
    }
}

void tst_MainMenu::getActions()
{
    const EditorFixture host;
    const QList<QAction *> found =
        host.editor->getActions({QStringLiteral("Action_Upload"), QStringLiteral("Action_Unknown"),
                                 QStringLiteral("Action_Undo"), QStringLiteral("Action_Upload")});
    QCOMPARE(found, (QList<QAction *>{host.action("Action_Upload"), host.action("Action_Undo"),
                                      host.action("Action_Upload")}));
    QVERIFY(!host.action("Action_Unknown"));
    QVERIFY(!host.action("action_undo"));
}

void tst_MainMenu::emptyNameIsTheCloseEntry()
{
    const EditorFixture host;
    QCOMPARE(host.editor->getAction(QString())->text(), QStringLiteral("&Close Schedule Editor"));
}

void tst_MainMenu::fileMenuIsNotFound()
{
    const EditorFixture host;
    QVERIFY(!host.editor->getMenu(QStringLiteral("Menu_File")));
    QVERIFY(!host.editor->getMenu(QStringLiteral("File")));
}

void tst_MainMenu::mainWidgetActions()
{
    const EditorFixture host;
    QStringList names;
    const QList<QAction *> actions = host.editor->getMainWidgetActions();
    for (const QAction *action : actions)
        names.append(action->objectName());
    QCOMPARE(names,
             (QStringList{
                 QStringLiteral("Action_Save_Channel"), QStringLiteral("Action_Save_All_Channel"),
                 QStringLiteral("Action_Create_Schedule"), QStringLiteral("Action_Delete_Schedule"),
                 QStringLiteral("Action_Create_Channel"), QStringLiteral("Action_Delete_Channel"),
                 QStringLiteral("Action_Output_Channel_Data"), QStringLiteral("Action_Upload")}));
}

void tst_MainMenu::toolBarSharesTheActions()
{
    EditorFixture host;
    QVERIFY(host.start());
    const auto *toolBar = host.window->findChild<QToolBar *>(QStringLiteral("ScheduleToolBar"));
    QVERIFY(toolBar);
    const QList<QAction *> shared = host.editor->getMainWidgetActions();
    for (QAction *action : shared)
        QVERIFY(toolBar->actions().contains(action));
}

void tst_MainMenu::uploadWithAllInOne_data()
{
    QTest::addColumn<bool>("allInOne");
    QTest::newRow("all in one") << true;
    QTest::newRow("apart") << false;
}

void tst_MainMenu::uploadWithAllInOne()
{
    QFETCH(bool, allInOne);
    EditorFixture host;
    host.data.write(QStringLiteral("config.ini"),
                    allInOne ? "[General]\nAllInOne=true\n" : "[General]\nAllInOne=false\n");
    ZvEditorConfig::reload();
    QCOMPARE(ZvEditorConfig::getConfig()->allInOne(), allInOne);
    host.window.reset();
    host.makeEditor();
    QCOMPARE(host.action("Action_Upload")->isEnabled(), !allInOne);
    QVERIFY(host.start());
    auto *toolBar = host.window->findChild<QToolBar *>(QStringLiteral("ScheduleToolBar"));
    QCOMPARE(toolBar->widgetForAction(host.action("Action_Upload"))->isEnabled(), !allInOne);
}

void tst_MainMenu::helpMenu()
{
    EditorFixture host;
    QMenu help(QStringLiteral("&Help"));
    help.setObjectName(QStringLiteral("Menu_Help"));
    host.editor->setHelpMenu(&help);
    host.editor->setHelpMenu(&help);
    QCOMPARE(host.editor->menu().count(&help), 1);
    QCOMPARE(host.editor->menu().last(), &help);
    QCOMPARE(host.editor->takeHelpMenu(), &help);
    QVERIFY(!host.editor->takeHelpMenu());
    host.editor->setHelpMenu(&help);
    const QPointer<QMenu> alive(&help);
    host.window.reset();
    QVERIFY(alive);
}

void tst_MainMenu::calendarMenu()
{
    EditorFixture host;
    const QPointer<QMenu> calendar = host.editor->getMenu(QStringLiteral("Menu_Calendar"));
    host.editor->setCalendarMenu(calendar);
    QCOMPARE(host.editor->menu().indexOf(calendar), 2);
    QCOMPARE(host.editor->menu().size(), 5);
    QCOMPARE(host.editor->takeCalendarMenu(), calendar.data());
    QCOMPARE(host.editor->menu().size(), 4);
    QVERIFY(!host.editor->takeCalendarMenu());
    // The host's own now, and so it stays when the docks go.
    host.editor->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(calendar);
    host.editor->setCalendarMenu(calendar);
    host.window.reset();
    QVERIFY(!calendar);
}

void tst_MainMenu::firstTab()
{
    EditorFixture host;
    QVERIFY(host.start());
    QVERIFY(!host.action("Action_Delete_Channel")->isEnabled());
    QVERIFY(!host.action("Action_Change_Channel_Order")->isEnabled());
    QVERIFY(host.action("Action_Rename_Channel")->isEnabled());
    host.editor->onCurrentChannelChanged(nullptr);
    QVERIFY(!host.action("Action_Delete_Channel")->isEnabled());
    for (const int other : {1, 0, 2}) {
        host.tabs()->setCurrentIndex(other);
        QCOMPARE(host.action("Action_Delete_Channel")->isEnabled(), other != 0);
        QCOMPARE(host.action("Action_Change_Channel_Order")->isEnabled(), other != 0);
        QVERIFY(host.action("Action_Rename_Channel")->isEnabled());
    }
}

void tst_MainMenu::shortcutsWork()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(host.window.get()));
    host.edit(1, QStringLiteral("x.xml"));
    QTest::keyClick(host.window.get(), Qt::Key_S, Qt::ControlModifier);
    const ZvChannel saved =
        readChannelFile(host.data.filePath(QStringLiteral("channel/channel1.xml")));
    QVERIFY(saved.isMatch(*host.area(1)->channel(), false, false));
    QCOMPARE(saved.scheduleList().first().defaultStage(), QStringLiteral("x.xml"));
    QSignalSpy quit(host.editor, SIGNAL(requestQuit()));
    QTest::keyClick(host.window.get(), Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(quit.count(), 1);
}

void tst_MainMenu::requests()
{
    EditorFixture host;
    QVERIFY(host.start());
    QSignalSpy upload(host.editor, SIGNAL(requestShowUploadManager()));
    QSignalSpy exporter(host.editor, SIGNAL(requestShowChannelExporter(QString)));
    QSignalSpy channel(host.editor, SIGNAL(requestShowChannelConfiguration()));
    QSignalSpy configuration(host.editor, SIGNAL(requestShowConfiguration()));
    QSignalSpy version(host.editor, SIGNAL(requestShowVersionInformation()));
    host.tabs()->setCurrentIndex(1);
    host.action("Action_Upload")->trigger();
    host.action("Action_Output_Channel_Data")->trigger();
    host.action("Action_Channel_Configuration")->trigger();
    host.editor->showConfiguration();
    host.editor->showVersionInformation();
    QCOMPARE(upload.count(), 1);
    QCOMPARE(exporter.count(), 1);
    QCOMPARE(exporter.first().first().toString(), host.area(1)->channel()->filePath());
    QCOMPARE(channel.count(), 1);
    QCOMPARE(configuration.count(), 1);
    QCOMPARE(version.count(), 1);
}

void tst_MainMenu::requestsWithoutTabs()
{
    const EditorFixture host;
    QSignalSpy upload(host.editor, SIGNAL(requestShowUploadManager()));
    QSignalSpy exporter(host.editor, SIGNAL(requestShowChannelExporter(QString)));
    host.editor->action_upload();
    host.editor->action_output_channel_data();
    QCOMPARE(upload.count(), 1);
    QCOMPARE(exporter.count(), 0);
}

void tst_MainMenu::uploadAsksFirst()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.edit(1, QStringLiteral("x.xml"));
    QSignalSpy upload(host.editor, SIGNAL(requestShowUploadManager()));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No).whileShown([&upload](QMessageBox *) {
        QCOMPARE(upload.count(), 0);
    });
    host.action("Action_Upload")->trigger();
    QCOMPARE(upload.count(), 1);
}

void tst_MainMenu::uploadCancelled()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.edit(0, QStringLiteral("x.xml"));
    host.edit(1, QStringLiteral("x.xml"));
    QSignalSpy upload(host.editor, SIGNAL(requestShowUploadManager()));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes);
    answer.expect(QMessageBox::Cancel);
    host.action("Action_Upload")->trigger();
    QCOMPARE(upload.count(), 0);
    const ZvChannel saved =
        readChannelFile(host.data.filePath(QStringLiteral("channel/channel0.xml")));
    QCOMPARE(saved.scheduleList().first().defaultStage(), QStringLiteral("x.xml"));
}

void tst_MainMenu::saveActions()
{
    EditorFixture host;
    QVERIFY(host.start());
    const auto stageOf = [&host](int number) {
        const ZvChannel channel =
            readChannelFile(host.data.channelFolder() + QLatin1Char('/') + channelFileName(number));
        return channel.scheduleList().first().defaultStage();
    };
    for (int i = 0; i < 3; ++i)
        host.edit(i, QStringLiteral("x.xml"));
    host.action("Action_Save_Channel")->trigger();
    QCOMPARE(stageOf(2), QStringLiteral("x.xml"));
    QCOMPARE(stageOf(1), QString());
    host.action("Action_Save_All_Channel")->trigger();
    QCOMPARE(stageOf(1), QStringLiteral("x.xml"));
    QCOMPARE(stageOf(0), QStringLiteral("x.xml"));
}

void tst_MainMenu::renameAction()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.tabs()->setCurrentIndex(1);
    host.action("Action_Rename_Channel")->trigger();
    QWidget *editor = QApplication::focusWidget();
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("Foyer"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(host.tabs()->tabText(1), QStringLiteral("Foyer"));
    QTRY_VERIFY(host.action("Action_Undo")->isEnabled());
    host.action("Action_Undo")->trigger();
    QCOMPARE(host.tabs()->tabText(1), QStringLiteral("Beta"));
    QTRY_VERIFY(host.action("Action_Redo")->isEnabled());
    QVERIFY(!host.action("Action_Undo")->isEnabled());
    host.action("Action_Redo")->trigger();
    QCOMPARE(host.tabs()->tabText(1), QStringLiteral("Foyer"));
}

QTEST_MAIN(tst_MainMenu)
#include "tst_mainmenu.moc"
