#include "MainWidgetFixture.h"
#include "MessageBoxAnswer.h"

#include "workspace/ZvScheduleRenameTabWidget.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTabBar>
#include <QTimer>
#include <QUndoGroup>
#include <QUndoStack>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QStringList Names = {QStringLiteral("Alpha"), QStringLiteral("Beta"),
                           QStringLiteral("Gamma")};

ZvScheduleRenameTabWidget *editorOf(const MainWidgetFixture &main)
{
    const auto editors = main.tabs()->findChildren<ZvScheduleRenameTabWidget *>();
    for (ZvScheduleRenameTabWidget *editor : editors) {
        if (editor->isVisible())
            return editor;
    }
    return nullptr;
}

QString takenText(const QString &name)
{
    return QStringLiteral("New name \"%1\" is already used by other channel.\nYou have to specify "
                          "another name.")
        .arg(name);
}

const QString ForbiddenText = QStringLiteral(
    "The following characters are not there not be able to use.\n\n  < > : \" / \\ | "
    "? \n\nYou have to specify another name.");

} // namespace

class tst_ChannelRename : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedIntoTheTab();
    void undoBringsTheTabToTheFront();
    void caseMakesAnotherName();
    void takenName();
    void forbiddenCharacters_data();
    void forbiddenCharacters();
    void otherCharactersAreAllowed_data();
    void otherCharactersAreAllowed();
    void forbiddenBeforeTaken();
    void okOpensTheEditorAgain();
    void missingTab();
    void renamedChannelIsModified();
    void menuOfTheCurrentTab();
    void menuRenames();
    void noMenuBesideTheCurrentTab();
    void menuWithoutEditMenu();
    void endsBeforeTheNextCommand_data();
    void endsBeforeTheNextCommand();
    void goesToItsTab();
    void ofADeletedChannel();
    void startedAgainWithARefusedName();
    void widgetDiesBehindTheRefusal_data();
    void widgetDiesBehindTheRefusal();
};

void tst_ChannelRename::typedIntoTheTab()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    main.widget->toEditTabName();
    QTest::keyClicks(editorOf(main), QStringLiteral("Foyer"));
    QTest::keyClick(editorOf(main), Qt::Key_Return);
    QCOMPARE(main.tabs()->tabText(1), QStringLiteral("Foyer"));
    QCOMPARE(main.area(1)->channelName(), QStringLiteral("Foyer"));
    QCOMPARE(main.area(1)->undoStack()->count(), 1);
    QCOMPARE(main.area(0)->undoStack()->count(), 0);
}

void tst_ChannelRename::undoBringsTheTabToTheFront()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->changeChannelNameWithUndo(2, QStringLiteral("Foyer"));
    QCOMPARE(main.tabs()->currentIndex(), 2);
    QUndoStack *stack = main.area(2)->undoStack();
    QCOMPARE(main.widget->undoGroup()->activeStack(), stack);
    main.tabs()->setCurrentIndex(0);
    QVERIFY(!main.widget->undoGroup()->canUndo());
    stack->undo();
    QCOMPARE(main.tabs()->currentIndex(), 2);
    QCOMPARE(main.tabTexts(), Names);
    main.tabs()->setCurrentIndex(1);
    stack->redo();
    QCOMPARE(main.tabs()->currentIndex(), 2);
    QCOMPARE(main.tabs()->tabText(2), QStringLiteral("Foyer"));
    QCOMPARE(main.area(2)->channelName(), QStringLiteral("Foyer"));
}

void tst_ChannelRename::caseMakesAnotherName()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    const MessageBoxAnswer noBox;
    main.widget->changeChannelNameWithUndo(1, QStringLiteral("ALPHA"));
    QCOMPARE(main.tabs()->tabText(1), QStringLiteral("ALPHA"));
}

void tst_ChannelRename::takenName()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Cancel)
        .icon(QMessageBox::Critical)
        .title(QStringLiteral("Change Channel Name"))
        .text(takenText(Names[0]))
        .buttons(QMessageBox::Ok | QMessageBox::Cancel);
    main.widget->changeChannelNameWithUndo(2, Names[0]);
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(main.tabs()->currentIndex(), 2);
    QCOMPARE(main.area(2)->undoStack()->count(), 0);
    QVERIFY(!editorOf(main));
}

void tst_ChannelRename::forbiddenCharacters_data()
{
    QTest::addColumn<QString>("name");
    for (const char character : {'<', '>', ':', '"', '/', '\\', '|', '?', '*'}) {
        QTest::newRow(qPrintable(QStringLiteral("character %1").arg(int(character))))
            << QStringLiteral("a%1b").arg(QLatin1Char(character));
    }
}

void tst_ChannelRename::forbiddenCharacters()
{
    QFETCH(QString, name);
    MainWidgetFixture main;
    main.createTabs(Names);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Cancel)
        .icon(QMessageBox::Critical)
        .title(QStringLiteral("Change Channel Name"))
        .text(ForbiddenText);
    main.widget->changeChannelNameWithUndo(1, name);
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(main.area(1)->undoStack()->count(), 0);
}

void tst_ChannelRename::otherCharactersAreAllowed_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ampersand") << QStringLiteral("Bar & Grill");
    QTest::newRow("dot") << QStringLiteral("..");
    QTest::newRow("blanks") << QStringLiteral("  ");
    QTest::newRow("script") << QString::fromUtf8("駅コンコース");
    QTest::newRow("percent") << QStringLiteral("%1 %2");
    QTest::newRow("line break") << QStringLiteral("a\nb");
}

void tst_ChannelRename::otherCharactersAreAllowed()
{
    QFETCH(QString, name);
    MainWidgetFixture main;
    main.createTabs(Names);
    const MessageBoxAnswer noBox;
    main.widget->changeChannelNameWithUndo(1, name);
    QCOMPARE(main.tabs()->tabText(1), name);
    main.widget->saveCurrentChannel();
    QCOMPARE(main.stored(1).name(), name);
}

void tst_ChannelRename::forbiddenBeforeTaken()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a:b"), QStringLiteral("c")});
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Cancel).text(ForbiddenText);
    main.widget->changeChannelNameWithUndo(1, QStringLiteral("a:b"));
}

void tst_ChannelRename::okOpensTheEditorAgain()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    main.widget->toEditTabName();
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).text(takenText(Names[2]));
    QTest::keyClicks(editorOf(main), Names[2]);
    QTest::keyClick(editorOf(main), Qt::Key_Return);
    QVERIFY(answer.isDone());
    QVERIFY(editorOf(main));
    QCOMPARE(editorOf(main)->text(), Names[1]);
    QTest::keyClicks(editorOf(main), QStringLiteral("Foyer"));
    QTest::keyClick(editorOf(main), Qt::Key_Return);
    QCOMPARE(main.tabs()->tabText(1), QStringLiteral("Foyer"));
}

void tst_ChannelRename::missingTab()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    const MessageBoxAnswer noBox;
    main.widget->changeChannelNameWithUndo(-1, QStringLiteral("x"));
    main.widget->changeChannelNameWithUndo(3, QStringLiteral("x"));
    QCOMPARE(main.tabTexts(), Names);
    ZvScheduleMainWidget empty;
    empty.changeChannelNameWithUndo(0, QStringLiteral("x"));
    empty.toEditTabName();
}

void tst_ChannelRename::renamedChannelIsModified()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->changeChannelNameWithUndo(1, QStringLiteral("Foyer"));
    QVERIFY(main.area(1)->isChannelChanged());
    main.area(1)->undoStack()->undo();
    QVERIFY(!main.area(1)->isChannelChanged());
    main.area(1)->undoStack()->redo();
    main.widget->saveCurrentChannel();
    QVERIFY(!main.area(1)->isChannelChanged());
    QCOMPARE(main.stored(1).name(), QStringLiteral("Foyer"));
    main.area(1)->undoStack()->undo();
    QVERIFY(main.area(1)->isChannelChanged());
}

namespace {

// Opens the menu of a tab with the right mouse button and shows it to the visitor.
template<typename Visitor>
bool openMenu(const MainWidgetFixture &main, const QPoint &pos, Visitor visit)
{
    bool shown = false;
    QTimer::singleShot(50, main.widget.get(), [&shown, visit] {
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            shown = true;
            visit(menu);
            if (menu->isVisible())
                menu->close();
        }
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, main.tabs()->mapToGlobal(pos));
    QCoreApplication::sendEvent(main.tabs(), &event);
    QTest::qWait(60);
    return shown;
}

} // namespace

void tst_ChannelRename::menuOfTheCurrentTab()
{
    MainWidgetFixture main;
    QMenu edit;
    for (const char *name : {"Action_Redo", "Action_Copy", "Action_Undo"})
        edit.addAction(QLatin1String(name))->setObjectName(QLatin1String(name));
    main.widget->setEditMenu(&edit);
    main.createTabs(Names);
    main.widget->show();
    QSignalSpy aboutToShow(main.widget.get(), SIGNAL(requestEditMenuAboutToShow()));
    QPointer<QMenu> seen;
    QStringList names;
    QVERIFY(openMenu(main, main.tabs()->currentTabRect().center(), [&](QMenu *menu) {
        seen = menu;
        for (QAction *action : menu->actions())
            names.append(action->isSeparator() ? QStringLiteral("|") : action->objectName());
        QCOMPARE(menu->actions().first()->text(), QStringLiteral("Change Channel &Name..."));
        QCOMPARE(menu->actions().first()->shortcut(), QKeySequence(Qt::Key_F2));
    }));
    QCOMPARE(names, (QStringList{QStringLiteral("Action_Change_Channel_Name"), QStringLiteral("|"),
                                 QStringLiteral("Action_Redo"), QStringLiteral("Action_Undo")}));
    QCOMPARE(aboutToShow.count(), 1);
    QTRY_VERIFY(!seen);
    QCOMPARE(edit.actions().size(), 3);
}

void tst_ChannelRename::menuRenames()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    QString edited;
    // A platform may take the focus from the editor when the menu's window goes, so it is looked at
    // before.
    QVERIFY(openMenu(main, main.tabs()->currentTabRect().center(), [&](QMenu *menu) {
        const QRect entry = menu->actionGeometry(menu->actions().first());
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, entry.center());
        if (const ZvScheduleRenameTabWidget *editor = editorOf(main))
            edited = editor->text();
    }));
    QCOMPARE(edited, Names[1]);
}

void tst_ChannelRename::noMenuBesideTheCurrentTab()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->resize(900, 500);
    main.widget->show();
    const auto nothing = [](QMenu *) {};
    QVERIFY(!openMenu(main, main.tabs()->tabBar()->tabRect(1).center(), nothing));
    QVERIFY(!openMenu(main, QPoint(850, 5), nothing));
}

void tst_ChannelRename::menuWithoutEditMenu()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    int entries = 0;
    QVERIFY(openMenu(main, main.tabs()->currentTabRect().center(),
                     [&entries](QMenu *menu) { entries = menu->actions().size(); }));
    QCOMPARE(entries, 1);
}

void tst_ChannelRename::endsBeforeTheNextCommand_data()
{
    QTest::addColumn<bool>("adds");
    QTest::newRow("add") << true;
    QTest::newRow("delete") << false;
}

void tst_ChannelRename::endsBeforeTheNextCommand()
{
    QFETCH(bool, adds);
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    main.widget->toEditTabName();
    QTest::keyClicks(editorOf(main), QStringLiteral("Foyer"));
    if (adds) {
        main.widget->addNewChannel();
        QCOMPARE(main.tabTexts(), (QStringList{Names[0], QStringLiteral("Foyer"), Names[2],
                                               QStringLiteral("Ch.3")}));
        QCOMPARE(main.tabs()->currentIndex(), 3);
    } else {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes).whileShown([](QMessageBox *box) {
            QVERIFY(
                box->text().startsWith(QStringLiteral("The channel \"Foyer\" will be deleted.")));
        });
        main.widget->removeCurrentChannel();
        QCOMPARE(main.tabTexts(), (QStringList{Names[0], Names[2]}));
    }
    QVERIFY(!editorOf(main));
}

void tst_ChannelRename::goesToItsTab()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    main.widget->toEditTabName();
    QTest::keyClicks(editorOf(main), QStringLiteral("Foyer"));
    const QPoint pos = main.tabs()->tabBar()->rect().center();
    QWheelEvent wheel(pos, main.tabs()->tabBar()->mapToGlobal(pos), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(main.tabs()->tabBar(), &wheel);
    QCOMPARE(main.tabs()->currentIndex(), 2);
    QTest::keyClick(editorOf(main), Qt::Key_Return);
    QCOMPARE(main.tabTexts(), (QStringList{Names[0], QStringLiteral("Foyer"), Names[2]}));
    QCOMPARE(main.tabs()->currentIndex(), 1);
    main.widget->undoGroup()->undo();
    QCOMPARE(main.tabTexts(), Names);
}

void tst_ChannelRename::ofADeletedChannel()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    main.widget->toEditTabName();
    QTest::keyClicks(editorOf(main), QStringLiteral("Foyer"));
    QSignalSpy request(main.tabs(), SIGNAL(requestChangeTabName(int,QString)));
    const std::unique_ptr<ZvScheduleWorkingArea> page(main.area(1));
    main.tabs()->removeTab(1);
    QTest::keyClick(editorOf(main), Qt::Key_Return);
    QCOMPARE(request.count(), 0);
    QCOMPARE(main.tabTexts(), (QStringList{Names[0], Names[2]}));
}

void tst_ChannelRename::startedAgainWithARefusedName()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.widget->toEditTabName();
    QTest::keyClicks(editorOf(main), Names[2]);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).text(takenText(Names[2]));
    main.widget->toEditTabName();
    QVERIFY(answer.isDone());
    QVERIFY(editorOf(main));
    editorOf(main)->hide();
    QVERIFY(!editorOf(main));
    QCOMPARE(main.tabTexts(), Names);
}

void tst_ChannelRename::widgetDiesBehindTheRefusal_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char *command : {"addNewChannel", "removeCurrentChannel",
                                "showChangeChannelOrderDialog", "showCurrentChannelInformation"})
        QTest::newRow(command) << QByteArray(command);
}

void tst_ChannelRename::widgetDiesBehindTheRefusal()
{
    QFETCH(QByteArray, command);
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    main.widget->toEditTabName();
    QTest::keyClicks(editorOf(main), Names[2]);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).text(takenText(Names[2])).whileShown([&main](QMessageBox *) {
        main.widget.reset();
    });
    QMetaObject::invokeMethod(main.widget.get(), command.constData());
    QVERIFY(!main.widget);
    QCOMPARE(main.data.names(QStringLiteral("channel")).size(), 3);
}

QTEST_MAIN(tst_ChannelRename)
#include "tst_channelrename.moc"
