#include "ActionTable.h"

#include "navigation/ZvScheduleListWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QSignalSpy>
#include <QToolButton>
#include <QWindow>
#include <QtTest>

#include <algorithm>

using namespace Zavo;
using namespace ZavoTest;

namespace {

QtMessageHandler passedOn = nullptr;

// The log takes so many lines and no more, and this test makes many windows.
void passOn(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && !message.startsWith(QStringLiteral("This plugin does not support")))
        passedOn(type, context, message);
}

enum class Way { Menu, Shortcut, ToolBar };

const QMap<Way, QString> WayNames = {{Way::Menu, QStringLiteral("menu")},
                                     {Way::Shortcut, QStringLiteral("shortcut")},
                                     {Way::ToolBar, QStringLiteral("tool bar")}};
const QMap<Activated, QString> ActivatedNames = {
    {Activated::Nobody, QStringLiteral("nobody")},
    {Activated::MainWidget, QStringLiteral("main widget")},
    {Activated::Switcher, QStringLiteral("switcher")},
    {Activated::List, QStringLiteral("list")}};
const QMap<Target, QString> TargetNames = {
    {Target::Missing, QStringLiteral("missing")},  {Target::Nothing, QStringLiteral("nothing")},
    {Target::Partly, QStringLiteral("partly")},    {Target::Wholly, QStringLiteral("wholly")},
    {Target::WeekDay, QStringLiteral("week day")}, {Target::Default, QStringLiteral("default")},
    {Target::First, QStringLiteral("first")}};

void activate(const ActionHost &host, Activated activated)
{
    QWidget *const widgets[] = {nullptr, host.main(), host.switcher(), host.list()};
    host.editor->setActivatedWidget(widgets[int(activated)]);
}

// False if the action is not to be had in this way.
bool isReachable(const ActionHost &host, const QAction *action, Way way)
{
    switch (way) {
    case Way::Menu:
        return action->objectName() != QLatin1String("Action_Close_Stage");
    case Way::Shortcut:
        return !action->shortcut().isEmpty();
    default:
        return host.toolBar()->actions().contains(const_cast<QAction *>(action));
    }
}

// The menus that lead to the action, outermost first.
QList<QMenu *> pathTo(const QList<QMenu *> &menus, const QAction *action)
{
    for (QMenu *menu : menus) {
        const QList<QAction *> entries = menu->actions();
        if (std::find(entries.cbegin(), entries.cend(), action) != entries.cend())
            return {menu};
        QList<QMenu *> submenus;
        for (const QAction *entry : entries) {
            if (entry->menu())
                submenus.append(entry->menu());
        }
        const QList<QMenu *> path = pathTo(submenus, action);
        if (!path.isEmpty())
            return QList<QMenu *>{menu} + path;
    }
    return {};
}

void openMenu(const ActionHost &host, const QMenu *menu)
{
    QMenuBar *bar = host.window->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    QVERIFY(menu->isVisible());
}

void triggerInMenu(const ActionHost &host, QAction *action)
{
    const QList<QMenu *> path = pathTo(host.editor->menu(), action);
    QVERIFY(!path.isEmpty());
    openMenu(host, path.first());
    const auto click = [](QMenu *menu, QAction *entry) {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    };
    for (int i = 1; i < path.size(); ++i) {
        click(path.at(i - 1), path.at(i)->menuAction());
        QTRY_VERIFY(path.at(i)->isVisible());
    }
    click(path.last(), action);
    if (path.first()->isVisible())
        path.first()->close();
}

void triggerOnToolBar(const ActionHost &host, QAction *action)
{
    const QWidget *button = host.toolBar()->widgetForAction(action);
    QVERIFY(button && button->isVisible());
    QTest::mouseClick(host.window->windowHandle(), Qt::LeftButton, {},
                      button->mapTo(host.window.get(), button->rect().center()));
}

void trigger(const ActionHost &host, QAction *action, Way way)
{
    switch (way) {
    case Way::Menu:
        triggerInMenu(host, action);
        break;
    case Way::Shortcut:
        QTest::keySequence(host.window.get(), action->shortcut());
        break;
    default:
        triggerOnToolBar(host, action);
        break;
    }
    // What is queued comes within the next events.
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

} // namespace

class tst_AllActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tableIsComplete();
    void enabledStates_data();
    void enabledStates();
    void effects_data();
    void effects();
    void nothingHappensAfterNo_data();
    void nothingHappensAfterNo();
    void keysAreNotShared();
    void everyKey();
    void keysOfTheRenameEditorAreItsOwn();
    void cleanupTestCase();

private:
    ActionHost *hostShowing(Target target);

    std::unique_ptr<ActionHost> m_host;
};

// A window that is brought back is much the cheaper. Null if there is none that shows the target.
ActionHost *tst_AllActions::hostShowing(Target target)
{
    if (!m_host || !m_host->show(target)) {
        m_host.reset(); // before the next one takes its data folder
        m_host = std::make_unique<ActionHost>(target);
    }
    return m_host->isReady() ? m_host.get() : nullptr;
}

void tst_AllActions::initTestCase()
{
    passedOn = qInstallMessageHandler(passOn);
}

void tst_AllActions::cleanupTestCase()
{
    m_host.reset();
}

void tst_AllActions::tableIsComplete()
{
    const ActionHost *host = hostShowing(Target::Partly);
    QVERIFY(host);
    QStringList names;
    const QList<QAction *> actions = host->actions();
    for (const QAction *action : actions)
        names.append(ActionHost::nameOf(action));
    QStringList tabled;
    for (const ActionRow &row : actionTable())
        tabled.append(QString::fromUtf8(row.name));
    QCOMPARE(names, tabled);
}

void tst_AllActions::enabledStates_data()
{
    QTest::addColumn<int>("activated");
    QTest::addColumn<int>("target");
    for (auto widget = ActivatedNames.cbegin(); widget != ActivatedNames.cend(); ++widget) {
        for (auto target = TargetNames.cbegin(); target != TargetNames.cend(); ++target)
            QTest::newRow(qPrintable(widget.value() + QStringLiteral(", ") + target.value()))
                << int(widget.key()) << int(target.key());
    }
}

// At once, when the editor has come to rest, and in each menu as it is open.
void tst_AllActions::enabledStates()
{
    QFETCH(int, activated);
    QFETCH(int, target);
    const ActionHost *host = hostShowing(Target(target));
    QVERIFY(host);
    activate(*host, Activated(activated));
    const auto isAsExpected = [activated, target](const QAction *action) {
        return action->isEnabled() ==
               isExpectedEnabled(ActionHost::nameOf(action), Activated(activated), Target(target));
    };
    for (const int delay : {0, 40}) {
        QTest::qWait(delay);
        const QList<QAction *> actions = host->actions();
        for (const QAction *action : actions) {
            const QString name = ActionHost::nameOf(action);
            const bool isSetAtOpening = name == QLatin1String("Clear Selections");
            QVERIFY2(isSetAtOpening || isAsExpected(action), qPrintable(name));
            const QWidget *button = host->toolBar()->widgetForAction(const_cast<QAction *>(action));
            QVERIFY2(!button || button->isEnabled() == action->isEnabled(), qPrintable(name));
        }
    }
    const QList<QMenu *> menus = host->editor->menu();
    for (QMenu *menu : menus) {
        openMenu(*host, menu);
        const QList<QAction *> actions = ActionHost::actionsOf(menu);
        for (const QAction *action : actions) {
            const QString name = ActionHost::nameOf(action);
            QVERIFY2(isAsExpected(action), qPrintable(name));
            QVERIFY2(action->isChecked() == isExpectedChecked(name), qPrintable(name));
        }
        menu->close();
    }
}

void tst_AllActions::effects_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("activated");
    QTest::addColumn<int>("target");
    for (auto target = TargetNames.cbegin(); target != TargetNames.cend(); ++target) {
        for (auto way = WayNames.cbegin(); way != WayNames.cend(); ++way) {
            for (auto widget = ActivatedNames.cbegin(); widget != ActivatedNames.cend(); ++widget) {
                const QStringList names = {way.value(), widget.value(), target.value()};
                QTest::newRow(qPrintable(names.join(QStringLiteral(", "))))
                    << int(way.key()) << int(widget.key()) << int(target.key());
            }
        }
    }
}

// Every action, whatever is activated and whatever it finds.
void tst_AllActions::effects()
{
    QFETCH(int, way);
    QFETCH(int, activated);
    QFETCH(int, target);
    QStringList faults;
    ActionHost *host = nullptr;
    for (const ActionRow &row : actionTable()) {
        if (!host)
            host = hostShowing(Target(target));
        QVERIFY(host);
        const QString name = QString::fromUtf8(row.name);
        QAction *action = host->actionOf(name);
        if (!isReachable(*host, action, Way(way)))
            continue;
        activate(*host, Activated(activated));
        const QString expected = expectedEffect(row, Activated(activated), Target(target));
        const ActionHost::State before = host->state();
        trigger(*host, action, Way(way));
        const QString changes = host->changesSince(before);
        const QString effect = relevantPart(changes, row, Activated(activated));
        if (effect != expected)
            faults.append(QStringLiteral("%1: \"%2\", not \"%3\"").arg(name, effect, expected));
        if (!changes.isEmpty())
            host = nullptr;
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void tst_AllActions::nothingHappensAfterNo_data()
{
    enabledStates_data();
}

// But for a close, which nobody is asked about: only what is to be saved before.
void tst_AllActions::nothingHappensAfterNo()
{
    QFETCH(int, activated);
    QFETCH(int, target);
    for (const ActionRow &row : actionTable()) {
        const QString effect = expectedEffect(row, Activated(activated), Target(target));
        const QString question = effect.section(QStringLiteral("; "), 0, 0);
        const bool isClose = effect.endsWith(QLatin1String("; closed")) &&
                             question == QLatin1String("asks Save Channel");
        if (!question.startsWith(QLatin1String("asks ")) || isClose)
            continue;
        ActionHost *host = hostShowing(Target(target));
        QVERIFY(host);
        host->decline();
        activate(*host, Activated(activated));
        const ActionHost::State before = host->state();
        host->actionOf(QString::fromUtf8(row.name))->trigger();
        QCoreApplication::processEvents();
        const QString changes = host->changesSince(before);
        QString expected = question;
        // The list shows the first schedule that is to go, and takes the default one out, before it
        // asks.
        if (Activated(activated) == Activated::List && Target(target) == Target::Wholly &&
            qstrcmp(row.name, "Delete") == 0)
            expected += QStringLiteral("; marked 3>2; shown 2031-05-06>day 5");
        else
            QCOMPARE(host->state(), before);
        QCOMPARE(relevantPart(changes, row, Activated(activated)), expected);
    }
}

// Keys that two actions have at once would reach neither.
void tst_AllActions::keysAreNotShared()
{
    const ActionHost *host = hostShowing(Target::Partly);
    QVERIFY(host);
    QMap<QString, QString> owners;
    const QList<QAction *> actions = host->actions();
    for (const QAction *action : actions) {
        const QList<QKeySequence> shortcuts = action->shortcuts();
        for (const QKeySequence &keys : shortcuts) {
            const QString text = keys.toString();
            QVERIFY2(!owners.contains(text), qPrintable(text));
            owners.insert(text, ActionHost::nameOf(action));
        }
    }
    QCOMPARE(owners.value(QStringLiteral("Ctrl+Shift+S")), QStringLiteral("Save All Channels"));
}

// An action can have more keys than the one that its menu shows.
void tst_AllActions::everyKey()
{
    for (const char *name : {"Save Channel", "Undo", "Redo", "Cut", "Copy", "Paste", "Delete",
                             "Select All", "Deselect All"}) {
        const ActionHost *host = hostShowing(Target::Partly);
        QVERIFY(host);
        const QList<QKeySequence> shortcuts = host->actionOf(QLatin1String(name))->shortcuts();
        QVERIFY2(!shortcuts.isEmpty(), name);
        for (const QKeySequence &keys : shortcuts) {
            host = hostShowing(Target::Partly);
            QVERIFY(host);
            activate(*host, Activated::MainWidget);
            QSignalSpy triggered(host->actionOf(QLatin1String(name)), SIGNAL(triggered()));
            QTest::keySequence(host->window.get(), keys);
            QVERIFY2(triggered.count() == 1, qPrintable(keys.toString()));
        }
    }
}

// Whoever corrects a name must not delete bands by it.
void tst_AllActions::keysOfTheRenameEditorAreItsOwn()
{
    const ActionHost *host = hostShowing(Target::Wholly);
    QVERIFY(host);
    activate(*host, Activated::MainWidget);
    const ActionHost::State before = host->state();
    host->action("Action_Rename_Channel")->trigger();
    const QPointer<QLineEdit> editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor);
    const auto type = [host](const QKeySequence &keys) {
        QTest::keySequence(host->window->windowHandle(), keys);
    };
    type(Qt::Key_Home);
    for (const auto keys :
         {QKeySequence::Delete, QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut,
          QKeySequence::Undo, QKeySequence::SelectAll, QKeySequence::Paste})
        type(QKeySequence(keys));
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("eta1"));
    QCOMPARE(host->state(), before);
}

QTEST_MAIN(tst_AllActions)
#include "tst_allactions.moc"
