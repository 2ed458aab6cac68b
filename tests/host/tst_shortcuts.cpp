#include "shortcuts/ShortcutDialog.h"
#include "shortcuts/Shortcuts.h"

#include "ChannelFiles.h"
#include "ClearButton.h"
#include "DialogAnswer.h"
#include "HostWindow.h"
#include "TemporaryDataFolder.h"
#include "ZvEditorUserConfig.h"
#include "editor/ZvScheduleEditor.h"
#include "shortcuts/ShortcutNames.h"

#include <QDockWidget>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTreeWidget>
#include <QtTest>

using namespace Zavo;
using ZavoTest::DialogAnswer;
using ZavoTest::TemporaryDataFolder;

namespace {

// What a person finds in the dialog.
struct Parts
{
    explicit Parts(ShortcutDialog *shown)
        : dialog(shown)
    {
    }

    template<typename Widget>
    Widget *part(const char *name) const
    {
        return dialog->findChild<Widget *>(QLatin1String(name));
    }
    QTreeWidget *tree() const { return part<QTreeWidget>(ShortcutNames::tree); }
    QKeySequenceEdit *edit() const { return part<QKeySequenceEdit>(ShortcutNames::keyField); }
    QString problem() const { return part<QLabel>(ShortcutNames::problemLabel)->text(); }
    QPushButton *reassign() const { return part<QPushButton>(ShortcutNames::reassignButton); }

    QTreeWidgetItem *item(const QString &command) const
    {
        return tree()->findItems(command, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    QString keysOf(const QString &command) const { return item(command)->text(1); }

    void choose(const QString &command) const { tree()->setCurrentItem(item(command)); }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        edit()->setFocus();
        QTest::keyClick(edit(), Qt::Key(key), modifiers);
    }
    void give(const QString &command, int key, Qt::KeyboardModifiers modifiers) const
    {
        choose(command);
        press(key, modifiers);
    }
    void click(const char *name) const
    {
        QTest::mouseClick(part<QPushButton>(name), Qt::LeftButton);
    }

    ShortcutDialog *dialog = nullptr;
};

QStringList commandsOf(const QMenu *menu)
{
    QStringList commands;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        if (action->menu())
            commands.append(commandsOf(action->menu()));
        else if (!action->isSeparator())
            commands.append(action->text());
    }
    return commands;
}

} // namespace

class tst_Shortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void cleanupTestCase();
    void listsEveryCommand();
    void showsKeysAndDefaults();
    void typedKeysWork();
    void formerKeysWorkNoMore();
    void cancelChangesNothing();
    void keysOfAnotherCommand();
    void takesKeysAway();
    void longerSequenceIsInTheWay();
    void reservedKeys();
    void renamingMayHaveF2();
    void noKeys();
    void resetsOne();
    void resetsOneWhoseKeysAreTaken();
    void resetsAll();
    void filters();
    void filterLeavesNothingHiddenToChange();
    void keepsKeysToTheNextStart();
    void exchangedKeysAreKept();
    void settingsHoldOnlyWhatWasChanged();
    void settingsThatMakeNoSense();
    void twoStoredCommandsWithOneKey();
    void withoutSettings();
    void startWithoutChangesReadsNothing();

private:
    void open(const std::function<void(const Parts &)> &use);
    void startAnew();
    QAction *action(const char *name) const;
    void setStored(const QString &id, const QVariant &value);

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<HostWindow> m_window;
};

void tst_Shortcuts::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    ZavoTest::writeChannelFile(*m_folder, ZavoTest::channelFileName(0),
                               {0, 0, QStringLiteral("A")});
    startAnew();
}

void tst_Shortcuts::cleanup()
{
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_folder.reset();
}

void tst_Shortcuts::cleanupTestCase()
{
    ZavoTest::waitForClearButtons();
}

void tst_Shortcuts::startAnew()
{
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_window = std::make_unique<HostWindow>();
    QString message;
    QVERIFY2(m_window->start(&message), qPrintable(message));
    m_window->applyShortcuts();
    m_window->show();
    auto *const tabs = m_window->findChild<QTabWidget *>(QStringLiteral("ScheduleTabWidget"));
    QTRY_COMPARE(tabs->count(), 1);
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_Shortcuts::open(const std::function<void(const Parts &)> &use)
{
    DialogAnswer<ShortcutDialog> answer([&use](ShortcutDialog *dialog) {
        use(Parts(dialog));
        if (dialog->isVisible())
            dialog->accept();
    });
    m_window->findChild<QAction *>(QStringLiteral("Action_Keyboard_Shortcuts"))->trigger();
    QVERIFY(answer.hasCome());
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

QAction *tst_Shortcuts::action(const char *name) const
{
    return m_window->editor()->getAction(QLatin1String(name));
}

void tst_Shortcuts::setStored(const QString &id, const QVariant &value)
{
    ZvEditorUserConfig::setValue(QStringLiteral("shortcuts/") + id, value);
}

void tst_Shortcuts::listsEveryCommand()
{
    QStringList expected;
    const QList<QAction *> menus = m_window->menuBar()->actions();
    for (const QAction *menu : menus)
        expected.append(commandsOf(menu->menu()));
    expected.append(QStringLiteral("&New Schedule..."));
    for (QString &text : expected)
        text.remove(QLatin1Char('&')).remove(QStringLiteral("..."));
    QVERIFY(expected.contains(QStringLiteral("Keyboard Shortcuts")));
    open([&expected](const Parts &parts) {
        QStringList shown;
        QStringList groups;
        for (int i = 0; i < parts.tree()->topLevelItemCount(); ++i) {
            const QTreeWidgetItem *const group = parts.tree()->topLevelItem(i);
            groups.append(group->text(0));
            for (int j = 0; j < group->childCount(); ++j)
                shown.append(group->child(j)->text(0));
        }
        QCOMPARE(shown, expected);
        QCOMPARE(groups, (QStringList{QStringLiteral("File"), QStringLiteral("Edit"),
                                      QStringLiteral("Calendar"),
                                      QStringLiteral("Calendar, First Day of Week"),
                                      QStringLiteral("Calendar"), QStringLiteral("Channel"),
                                      QStringLiteral("Window"), QStringLiteral("Tools"),
                                      QStringLiteral("Help"), QStringLiteral("Schedule List")}));
    });
}

void tst_Shortcuts::showsKeysAndDefaults()
{
    open([](const Parts &parts) {
        QCOMPARE(parts.keysOf(QStringLiteral("Save All Channels")), QStringLiteral("Ctrl+Shift+S"));
        QCOMPARE(parts.keysOf(QStringLiteral("Close Schedule Editor")), QStringLiteral("Ctrl+W"));
        QCOMPARE(parts.keysOf(QStringLiteral("Upload")), QString());
        QCOMPARE(parts.item(QStringLiteral("Quit"))->text(2), QStringLiteral("Ctrl+Q"));
        QVERIFY(!parts.edit()->isEnabled());
        parts.choose(QStringLiteral("Quit"));
        QVERIFY(parts.edit()->isEnabled());
        QCOMPARE(parts.edit()->keySequence(), QKeySequence(QStringLiteral("Ctrl+Q")));
        parts.give(QStringLiteral("Quit"), Qt::Key_J, Qt::ControlModifier);
        QCOMPARE(parts.item(QStringLiteral("Quit"))->text(2), QStringLiteral("Ctrl+Q"));
        QVERIFY(parts.item(QStringLiteral("Quit"))->font(1).bold());
    });
}

void tst_Shortcuts::typedKeysWork()
{
    const auto *const dock = m_window->findChild<QDockWidget *>(QStringLiteral("ChooseStageDock"));
    QVERIFY(dock && dock->isVisible());
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Choose Stage"), Qt::Key_U, Qt::ControlModifier);
        QCOMPARE(parts.problem(), QString());
        QCOMPARE(parts.keysOf(QStringLiteral("Choose Stage")), QStringLiteral("Ctrl+U"));
    });
    QSignalSpy spy(action("Action_Set_Visible_Choose_Stage"), SIGNAL(triggered(bool)));
    QTest::keyClick(m_window.get(), Qt::Key_U, Qt::ControlModifier);
    QCOMPARE(spy.count(), 1);
}

void tst_Shortcuts::formerKeysWorkNoMore()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Save All Channels"), Qt::Key_F8, Qt::NoModifier);
    });
    QSignalSpy spy(action("Action_Save_All_Channel"), SIGNAL(triggered(bool)));
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(spy.count(), 0);
    QTest::keyClick(m_window.get(), Qt::Key_F8);
    QCOMPARE(spy.count(), 1);
}

void tst_Shortcuts::cancelChangesNothing()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Quit"), Qt::Key_F8, Qt::NoModifier);
        parts.dialog->reject();
    });
    QVERIFY(!Shortcuts::areStored());
    open([](const Parts &parts) {
        QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QStringLiteral("Ctrl+Q"));
        parts.dialog->reject();
    });
}

void tst_Shortcuts::keysOfAnotherCommand()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Upload"), Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(parts.problem(), QStringLiteral("Ctrl+Q is the key of \"Quit\" (File)."));
        QVERIFY(parts.reassign()->isVisible());
        QCOMPARE(parts.keysOf(QStringLiteral("Upload")), QString());
        // The key of a command that is in no menu of the bar.
        parts.give(QStringLiteral("Upload"), Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(parts.problem(),
                 QStringLiteral("Ctrl+N is the key of \"New Schedule\" (Schedule List)."));
        parts.choose(QStringLiteral("Undo"));
        QCOMPARE(parts.problem(), QString());
        QVERIFY(!parts.reassign()->isVisible());
    });
    QVERIFY(!Shortcuts::areStored());
}

void tst_Shortcuts::takesKeysAway()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Show Channel Information"), Qt::Key_W, Qt::ControlModifier);
        parts.click(ShortcutNames::reassignButton);
        QCOMPARE(parts.problem(), QString());
        QVERIFY(!parts.reassign()->isVisible());
        QCOMPARE(parts.keysOf(QStringLiteral("Show Channel Information")),
                 QStringLiteral("Ctrl+W"));
        QCOMPARE(parts.keysOf(QStringLiteral("Close Schedule Editor")), QString());
    });
    QSignalSpy spy(action("Action_Show_Channel_Information"), SIGNAL(triggered(bool)));
    DialogAnswer<QDialog> answer([](QDialog *dialog) { dialog->reject(); });
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(spy.count(), 1);
    QVERIFY(m_window->isVisible());
}

void tst_Shortcuts::longerSequenceIsInTheWay()
{
    open([](const Parts &parts) {
        parts.choose(QStringLiteral("Upload"));
        parts.press(Qt::Key_K, Qt::ControlModifier);
        parts.press(Qt::Key_U, Qt::ControlModifier);
        QCOMPARE(parts.keysOf(QStringLiteral("Upload")), QStringLiteral("Ctrl+K, Ctrl+U"));
        parts.give(QStringLiteral("Rename Channel"), Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(parts.problem(), QStringLiteral("Ctrl+K is the key of \"Upload\" (Channel)."));
        QCOMPARE(parts.keysOf(QStringLiteral("Rename Channel")), QString());
    });
    QCOMPARE(action("Action_Upload")->shortcut(), QKeySequence(QStringLiteral("Ctrl+K, Ctrl+U")));
}

void tst_Shortcuts::reservedKeys()
{
    const struct
    {
        int key;
        Qt::KeyboardModifiers modifiers;
        const char *message;
    } rows[] = {
        {Qt::Key_Up, {}, "Up moves what is selected in the time table."},
        {Qt::Key_Down, Qt::ControlModifier, "Ctrl+Down moves what is selected in the time table."},
        {Qt::Key_PageDown,
         {},
         "PgDown goes through texts, lists, the calendar and the time table."},
        {Qt::Key_K, {}, "K is needed to type texts."},
        {Qt::Key_K, Qt::ShiftModifier, "Shift+K is needed to type texts."},
        {Qt::Key_7, {}, "7 is needed to type texts."},
        {Qt::Key_Space, {}, "Space presses buttons and checks rows."},
        {Qt::Key_Return, {}, "Return presses buttons and checks rows."},
        {Qt::Key_Escape, {}, "Esc closes menus and dialogs."},
        {Qt::Key_F2, {}, "F2 edits the name of a channel or a target."},
        {Qt::Key_F, Qt::AltModifier, "Alt+F opens the menu \"File\"."},
        {Qt::Key_A, Qt::AltModifier, "Alt+A opens the menu \"Calendar\"."},
        {Qt::Key_Tab, Qt::ControlModifier, "Ctrl+Tab goes from one control to the next."},
    };
    open([&rows](const Parts &parts) {
        for (const auto &row : rows) {
            parts.give(QStringLiteral("Upload"), row.key, row.modifiers);
            QCOMPARE(parts.problem(), QLatin1String(row.message));
            QVERIFY(!parts.reassign()->isVisible());
            QCOMPARE(parts.keysOf(QStringLiteral("Upload")), QString());
        }
    });
    QVERIFY(!Shortcuts::areStored());
}

void tst_Shortcuts::renamingMayHaveF2()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Rename Channel"), Qt::Key_F2, Qt::NoModifier);
        QCOMPARE(parts.problem(), QString());
    });
    QTest::keyClick(m_window.get(), Qt::Key_F2);
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
}

void tst_Shortcuts::noKeys()
{
    open([](const Parts &parts) {
        parts.choose(QStringLiteral("Quit"));
        parts.click(ShortcutNames::clearButton);
        QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QString());
    });
    QTest::keyClick(m_window.get(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(m_window->isVisible());
    startAnew();
    open([](const Parts &parts) { QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QString()); });
}

void tst_Shortcuts::resetsOne()
{
    const QList<QKeySequence> defaults = action("Action_Redo")->shortcuts();
    QVERIFY(!defaults.isEmpty());
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Redo"), Qt::Key_F8, Qt::NoModifier);
        parts.give(QStringLiteral("Quit"), Qt::Key_F9, Qt::NoModifier);
    });
    QCOMPARE(action("Action_Redo")->shortcuts(), QList<QKeySequence>{Qt::Key_F8});
    open([](const Parts &parts) {
        parts.choose(QStringLiteral("Redo"));
        parts.click(ShortcutNames::resetButton);
        QVERIFY(!parts.item(QStringLiteral("Redo"))->font(1).bold());
        QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QStringLiteral("F9"));
    });
    QCOMPARE(action("Action_Redo")->shortcuts(), defaults);
}

void tst_Shortcuts::resetsOneWhoseKeysAreTaken()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Quit"), Qt::Key_F9, Qt::NoModifier);
        parts.give(QStringLiteral("Upload"), Qt::Key_Q, Qt::ControlModifier);
        parts.choose(QStringLiteral("Quit"));
        parts.click(ShortcutNames::resetButton);
        QCOMPARE(parts.problem(), QStringLiteral("Ctrl+Q is the key of \"Upload\" (Channel)."));
        QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QStringLiteral("F9"));
        parts.click(ShortcutNames::reassignButton);
        QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QStringLiteral("Ctrl+Q"));
        QCOMPARE(parts.keysOf(QStringLiteral("Upload")), QString());
        QCOMPARE(parts.problem(), QString());
    });
    QVERIFY(!Shortcuts::areStored());
}

void tst_Shortcuts::resetsAll()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Redo"), Qt::Key_F8, Qt::NoModifier);
        parts.give(QStringLiteral("Quit"), Qt::Key_F9, Qt::NoModifier);
    });
    QVERIFY(Shortcuts::areStored());
    open([](const Parts &parts) {
        parts.click(ShortcutNames::resetAllButton);
        QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QStringLiteral("Ctrl+Q"));
    });
    QVERIFY(!Shortcuts::areStored());
    QVERIFY(!action("Action_Redo")->shortcuts().contains(QKeySequence(Qt::Key_F8)));
}

void tst_Shortcuts::filters()
{
    open([](const Parts &parts) {
        auto *const field = parts.part<QLineEdit>(ShortcutNames::filterField);
        QTest::keyClicks(field, QStringLiteral("save"));
        QVERIFY(!parts.item(QStringLiteral("Save Channel"))->isHidden());
        QVERIFY(parts.item(QStringLiteral("Quit"))->isHidden());
        QVERIFY(parts.item(QStringLiteral("Undo"))->parent()->isHidden());
        // A key finds its command, the name of a menu all of its commands.
        field->setText(QStringLiteral("ctrl+q"));
        QVERIFY(!parts.item(QStringLiteral("Quit"))->isHidden());
        QVERIFY(parts.item(QStringLiteral("Save Channel"))->isHidden());
        field->setText(QStringLiteral("Window"));
        QVERIFY(!parts.item(QStringLiteral("To Default Position"))->isHidden());
        field->clear();
        QVERIFY(!parts.item(QStringLiteral("Undo"))->parent()->isHidden());
    });
}

void tst_Shortcuts::filterLeavesNothingHiddenToChange()
{
    open([](const Parts &parts) {
        parts.choose(QStringLiteral("Quit"));
        parts.part<QLineEdit>(ShortcutNames::filterField)->setText(QStringLiteral("save"));
        QVERIFY(!parts.edit()->isEnabled());
        parts.press(Qt::Key_F8);
        parts.part<QLineEdit>(ShortcutNames::filterField)->setText(QStringLiteral("no such thing"));
        QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QStringLiteral("Ctrl+Q"));
    });
}

void tst_Shortcuts::keepsKeysToTheNextStart()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Upload"), Qt::Key_U, Qt::ControlModifier | Qt::AltModifier);
        parts.give(QStringLiteral("Select Week"), Qt::Key_F8, Qt::NoModifier);
        parts.give(QStringLiteral("Close Schedule Editor"), Qt::Key_F9, Qt::NoModifier);
    });
    startAnew();
    QCOMPARE(action("Action_Upload")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Alt+U")));
    open([](const Parts &parts) {
        QCOMPARE(parts.keysOf(QStringLiteral("Select Week")), QStringLiteral("F8"));
        QCOMPARE(parts.keysOf(QStringLiteral("Close Schedule Editor")), QStringLiteral("F9"));
        QCOMPARE(parts.item(QStringLiteral("Close Schedule Editor"))->text(2),
                 QStringLiteral("Ctrl+W"));
        parts.click(ShortcutNames::resetAllButton);
    });
    QCOMPARE(action("Action_Upload")->shortcut(), QKeySequence());
}

void tst_Shortcuts::exchangedKeysAreKept()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Quit"), Qt::Key_W, Qt::ControlModifier);
        parts.click(ShortcutNames::reassignButton);
        parts.give(QStringLiteral("Close Schedule Editor"), Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(parts.problem(), QString());
    });
    startAnew();
    open([](const Parts &parts) {
        QCOMPARE(parts.keysOf(QStringLiteral("Quit")), QStringLiteral("Ctrl+W"));
        QCOMPARE(parts.keysOf(QStringLiteral("Close Schedule Editor")), QStringLiteral("Ctrl+Q"));
    });
}

void tst_Shortcuts::settingsHoldOnlyWhatWasChanged()
{
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Upload"), Qt::Key_F8, Qt::NoModifier);
    });
    QSettings *const settings = ZvEditorUserConfig::settings();
    settings->beginGroup(QStringLiteral("shortcuts"));
    const QStringList keys = settings->childKeys();
    settings->endGroup();
    QCOMPARE(keys, QStringList{QStringLiteral("Action_Upload")});
}

void tst_Shortcuts::settingsThatMakeNoSense()
{
    const QVariant values[] = {
        QStringLiteral("Abracadabra"),
        QStringLiteral("Ctrl+"),
        QStringLiteral("Ctrl+Shift"),
        QString(),
        QStringLiteral("; ; ;"),
        QStringLiteral("Up"),
        QStringLiteral("Tab"),
        QStringLiteral("K"),
        QStringLiteral("Alt+F"),
        QStringLiteral("Ctrl+Q"),
        QStringLiteral("Ctrl+Q, X"),
        QString(100000, QLatin1Char('K')),
        QStringLiteral("F5; F6; F7; F8; F9; F10; F11; F12; F13"),
        QStringLiteral("F8; Abracadabra"),
        QStringList{QStringLiteral("F8"), QStringLiteral("F9")},
        QVariantMap{{QStringLiteral("a"), 1}},
        QByteArray("\0\xff\xfe", 3),
    };
    setStored(QStringLiteral("Action_No_Such"), QStringLiteral("Ctrl+S"));
    for (const QVariant &value : values) {
        setStored(QStringLiteral("Action_Save_All_Channel"), value);
        const HostWindow window;
        Shortcuts(&window).load();
        QCOMPARE(window.editor()->getAction(QStringLiteral("Action_Save_All_Channel"))->shortcut(),
                 QKeySequence(QStringLiteral("Ctrl+Shift+S")));
        QCOMPARE(window.editor()->getAction(QStringLiteral("Action_Save_Channel"))->shortcut(),
                 QKeySequence(QKeySequence::Save));
    }
}

void tst_Shortcuts::twoStoredCommandsWithOneKey()
{
    setStored(QStringLiteral("Action_Upload"), QStringLiteral("F8"));
    setStored(QStringLiteral("Action_Rename_Channel"), QStringLiteral("F8"));
    // It has its own key back, so the one who took it has to go back as well.
    setStored(QStringLiteral("Action_Save_Channel"), QStringLiteral("Ctrl+Shift+A"));
    setStored(QStringLiteral("Action_Create_Channel"), QStringLiteral("Ctrl+S"));
    startAnew();
    QCOMPARE(action("Action_Upload")->shortcut(), QKeySequence());
    QCOMPARE(action("Action_Rename_Channel")->shortcut(), QKeySequence(Qt::Key_F8));
    QCOMPARE(action("Action_Save_Channel")->shortcut(), QKeySequence(QKeySequence::Save));
    QCOMPARE(action("Action_Create_Channel")->shortcut(), QKeySequence());
}

void tst_Shortcuts::withoutSettings()
{
    ZvEditorUserConfig::setSettings(nullptr);
    startAnew();
    open([](const Parts &parts) {
        parts.give(QStringLiteral("Upload"), Qt::Key_F8, Qt::NoModifier);
    });
    QCOMPARE(action("Action_Upload")->shortcut(), QKeySequence(Qt::Key_F8));
}

void tst_Shortcuts::startWithoutChangesReadsNothing()
{
    QVERIFY(!Shortcuts::areStored());
    setStored(QStringLiteral("Action_Upload"), QStringLiteral("F8"));
    QVERIFY(Shortcuts::areStored());
    m_window->applyShortcuts();
    QCOMPARE(action("Action_Upload")->shortcut(), QKeySequence(Qt::Key_F8));
}

QTEST_MAIN(tst_Shortcuts)

#include "tst_shortcuts.moc"
