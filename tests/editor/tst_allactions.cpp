#include "ActionHost.h"

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

// The log takes so many lines and no more, and this test makes hundreds of windows.
void passOn(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && !message.startsWith(QStringLiteral("This plugin does not support")))
        passedOn(type, context, message);
}

enum class Way { Menu, Shortcut, ToolBar };
enum class Activated { Nobody, MainWidget, Switcher, List };

const QMap<Way, QString> WayNames = {{Way::Menu, QStringLiteral("menu")},
                                     {Way::Shortcut, QStringLiteral("shortcut")},
                                     {Way::ToolBar, QStringLiteral("tool bar")}};
const QMap<Activated, QString> ActivatedNames = {
    {Activated::Nobody, QStringLiteral("nobody")},
    {Activated::MainWidget, QStringLiteral("main widget")},
    {Activated::Switcher, QStringLiteral("switcher")},
    {Activated::List, QStringLiteral("list")}};
const QMap<Target, QString> TargetNames = {{Target::Missing, QStringLiteral("missing")},
                                           {Target::Nothing, QStringLiteral("nothing")},
                                           {Target::Partly, QStringLiteral("partly")},
                                           {Target::Wholly, QStringLiteral("wholly")},
                                           {Target::Default, QStringLiteral("default")}};

using Effects = QMap<Target, const char *>;

// What an action does where it is enabled: the same to every target, or to each its own.
struct Row
{
    const char *name;
    const char *effect;
    Effects effects = {};
};

const QList<Row> &table()
{
    static const QList<Row> rows = {
        {"Save Channel", "channel1.xml written"},
        {"Save All Channels", "channel1.xml written; channel2.xml written; channel.xml new"},
        {"Close Schedule Editor", "asks Save Channel; closed"},
        {"Quit", "quit"},
        {"Undo", "history 1/2>0/2; tabs Alpha,Beta1,Gamma1>Alpha,Beta,Gamma1"},
        {"Redo", "history 1/2>2/2; tabs Alpha,Beta1,Gamma1>Alpha,Beta2,Gamma1"},
        {"Cut", nullptr},
        {"Copy", nullptr},
        {"Paste", nullptr},
        {"Delete", nullptr},
        {"Select All", nullptr},
        {"Deselect All", nullptr},
        {"Move to Today",
         "bands 3>0; date 2031-05-06>today",
         {{Target::Missing, "date 2031-05-07>today"},
          {Target::Partly, "bands 3>0; date 2031-05-06>today; dates 7>1"}}},
        {"Select Week", "dates 1>7", {{Target::Partly, ""}}},
        {"Select Month", "dates 1>31", {{Target::Partly, "dates 7>31"}}},
        {"Clear Selections", "", {{Target::Partly, "dates 7>1"}}},
        {"Mon", ""},
        {"Tue", "first day Mon>Tue"},
        {"Wed", "first day Mon>Wed"},
        {"Thu", "first day Mon>Thu"},
        {"Fri", "first day Mon>Fri"},
        {"Sat", "first day Mon>Sat"},
        {"Sun", "first day Mon>Sun"},
        {"Show Week Number", "week numbers shown>hidden"},
        {"Upload", "asks Save Channel; upload"},
        {"Output Channel Data", "export channel1.xml"},
        {"Show Upload Log", "asks Open Log File; opens Log/Editor"},
        {"Open Upload Log Folder", "opens Log/Editor"},
        {"New Schedule", "history 1/2>2/2; schedules 2>3"},
        {"Delete Schedule", "asks Confirm Delete; bands 3>0; history 1/2>2/2; schedules 2>1"},
        {"Rename Channel", "renames Beta1"},
        {"Change Channel Order", "asks Change Channel Order"},
        {"Add Channel",
         "tab 1>3; tabs Alpha,Beta1,Gamma1>Alpha,Beta1,Gamma1,Ch.3; channel3.xml new"},
        {"Delete Channel",
         "asks Delete Channel; channel1.xml removed; tabs Alpha,Beta1,Gamma1>Alpha,Gamma1"},
        {"Delete All Channels and Settings",
         "asks Delete All Channels and Settings; asks Delete All Channels and Settings; closed; "
         "channel0.xml removed; channel1.xml removed; channel2.xml removed"},
        {"Show Channel Information", "asks Channel Information"},
        {"Channel Configuration", "configure"},
        {"Switch Schedule", "docks Property+Schedule>Property"},
        {"Schedule List", "docks Property+Schedule>List+Property+Schedule"},
        {"Choose Stage", "docks Property+Schedule>Property+Schedule+Stage"},
        {"Assigned Item Property", "docks Property+Schedule>Schedule"},
        {"To Default Position", "docks Property+Schedule>Property+Schedule+Stage"},
        {"Close Stage Editor", "asks Save Channel; closed"},
    };
    return rows;
}

// The edit commands act on bands in the main widget and on schedules in the docks.
const QMap<QString, Effects> &editEffects(Activated activated)
{
    static const QMap<Activated, QMap<QString, Effects>> effects = {
        {Activated::MainWidget,
         {{QStringLiteral("Cut"),
           {{Target::Partly, "copied; bands 3>2; history 1/2>2/2; selected 1>0"},
            {Target::Wholly, "copied; bands 3>0; history 1/2>2/2; selected 3>0"},
            {Target::Default, "copied; bands 3>0; history 1/2>2/2; selected 3>0"}}},
          {QStringLiteral("Copy"),
           {{Target::Partly, "copied"}, {Target::Wholly, "copied"}, {Target::Default, "copied"}}},
          {QStringLiteral("Paste"),
           {{Target::Nothing, "bands 3>4; history 1/2>2/2; selected 0>1"},
            {Target::Partly, "bands 3>4; history 1/2>2/2"},
            {Target::Wholly, "bands 3>4; history 1/2>2/2; selected 3>1"},
            {Target::Default, "bands 3>4; history 1/2>2/2; selected 3>1"}}},
          {QStringLiteral("Delete"),
           {{Target::Partly, "bands 3>2; history 1/2>2/2; selected 1>0"},
            {Target::Wholly, "bands 3>0; history 1/2>2/2; selected 3>0"},
            {Target::Default, "bands 3>0; history 1/2>2/2; selected 3>0"}}},
          {QStringLiteral("Select All"),
           {{Target::Missing, ""},
            {Target::Nothing, "selected 0>3"},
            {Target::Partly, "selected 1>3"}}},
          {QStringLiteral("Deselect All"),
           {{Target::Partly, "selected 1>0"},
            {Target::Wholly, "selected 3>0"},
            {Target::Default, "selected 3>0"}}}}},
        {Activated::Switcher,
         {{QStringLiteral("Cut"),
           {{Target::Nothing, "copied; bands 3>0; history 1/2>2/2; schedules 2>1"},
            {Target::Partly, "copied; bands 3>0; history 1/2>2/2; schedules 2>1"},
            {Target::Wholly, "copied; bands 3>0; history 1/2>2/2; schedules 2>1"}}},
          {QStringLiteral("Copy"),
           {{Target::Nothing, "copied"},
            {Target::Partly, "copied"},
            {Target::Wholly, "copied"},
            {Target::Default, "copied"}}},
          {QStringLiteral("Paste"),
           {{Target::Missing, "bands 0>1; history 1/2>2/2; schedules 2>3"},
            {Target::Nothing, "asks Paste Schedule; bands 3>1; history 1/2>2/2"},
            {Target::Partly, "history 1/2>2/2; schedules 2>3"},
            {Target::Wholly, "asks Paste Schedule; bands 3>1; history 1/2>2/2"},
            {Target::Default, "asks Paste Schedule; bands 3>1; history 1/2>2/2"}}},
          {QStringLiteral("Delete"),
           {{Target::Nothing, "asks Confirm Delete; bands 3>0; history 1/2>2/2; schedules 2>1"},
            {Target::Partly, "asks Confirm Delete; bands 3>0; history 1/2>2/2; schedules 2>1"},
            {Target::Wholly, "asks Confirm Delete; bands 3>0; history 1/2>2/2; schedules 2>1"}}}}},
        {Activated::List,
         {{QStringLiteral("Cut"),
           {{Target::Partly, "copied; bands 3>0; history 1/2>2/2; marked 1>0; schedules 2>1"},
            {Target::Wholly, "copied; bands 3>0; history 1/2>2/2; marked 2>0; schedules 2>1"}}},
          {QStringLiteral("Copy"),
           {{Target::Partly, "copied"}, {Target::Wholly, "copied"}, {Target::Default, "copied"}}},
          {QStringLiteral("Paste"),
           {{Target::Missing, "asks Paste Schedule"},
            {Target::Nothing, "asks Paste Schedule"},
            {Target::Partly, "asks Paste Schedule"},
            {Target::Wholly, "asks Paste Schedule"},
            {Target::Default, "asks Paste Schedule"}}},
          {QStringLiteral("Delete"),
           {{Target::Partly,
             "asks Confirm Delete; bands 3>0; history 1/2>2/2; marked 1>0; schedules 2>1"},
            {Target::Wholly,
             "asks Confirm Delete; bands 3>0; history 1/2>2/2; marked 2>0; schedules 2>1"}}},
          {QStringLiteral("Select All"),
           {{Target::Missing, "marked 0>2"},
            {Target::Nothing, "marked 0>2"},
            {Target::Partly, "marked 1>2"},
            {Target::Default, "marked 1>2"}}},
          {QStringLiteral("Deselect All"),
           {{Target::Partly, "marked 1>0"},
            {Target::Wholly, "marked 2>0"},
            {Target::Default, "marked 1>0"}}}}},
    };
    static const QMap<QString, Effects> none;
    const auto found = effects.constFind(activated);
    return found == effects.cend() ? none : *found;
}

bool isEditCommand(const Row &row)
{
    return !row.effect;
}

QString effectOf(const Row &row, Activated activated, Target target)
{
    const Effects effects =
        isEditCommand(row) ? editEffects(activated).value(QLatin1String(row.name)) : row.effects;
    return QString::fromUtf8(effects.value(target, row.effect));
}

// Which bands are selected and which schedules marked is of interest where the command acts on
// them.
QString relevantPart(const QString &effect, const Row &row, Activated activated)
{
    QStringList parts = effect.split(QStringLiteral("; "));
    const auto leaveOut = [&parts](const char *key) {
        parts =
            parts.filter(QRegularExpression(QStringLiteral("^(?!%1 )").arg(QLatin1String(key))));
    };
    if (!isEditCommand(row) || activated != Activated::MainWidget)
        leaveOut("selected");
    if (!isEditCommand(row) || activated != Activated::List)
        leaveOut("marked");
    return parts.join(QStringLiteral("; "));
}

// The edit commands that the activated widget offers, as copy 1, cut 2, delete 4, select all 8 and
// deselect all 16.
int selectedFlags(Activated activated, Target target)
{
    static const QMap<Activated, QMap<Target, int>> flags = {
        {Activated::MainWidget,
         {{Target::Missing, 8},
          {Target::Nothing, 8},
          {Target::Partly, 31},
          {Target::Wholly, 23},
          {Target::Default, 23}}},
        {Activated::Switcher,
         {{Target::Missing, 0},
          {Target::Nothing, 7},
          {Target::Partly, 7},
          {Target::Wholly, 7},
          {Target::Default, 1}}},
        {Activated::List,
         {{Target::Missing, 8},
          {Target::Nothing, 8},
          {Target::Partly, 31},
          {Target::Wholly, 23},
          {Target::Default, 25}}},
    };
    return flags.value(activated).value(target);
}

bool isPastingExpected(Activated activated, Target target)
{
    // A band has no place where there is no schedule.
    return activated != Activated::Nobody &&
           (activated != Activated::MainWidget || target != Target::Missing);
}

bool isExpectedEnabled(const QString &name, Activated activated, Target target)
{
    const int flags = selectedFlags(activated, target);
    const bool isDate = target != Target::Missing && target != Target::Default;
    const QMap<QString, bool> conditional = {
        {QStringLiteral("Copy"), flags & 1},
        {QStringLiteral("Cut"), flags & 2},
        {QStringLiteral("Delete"), flags & 4},
        {QStringLiteral("Select All"), flags & 8},
        {QStringLiteral("Deselect All"), flags & 16},
        {QStringLiteral("Paste"), isPastingExpected(activated, target)},
        {QStringLiteral("New Schedule"), target == Target::Missing},
        {QStringLiteral("Delete Schedule"), isDate},
    };
    return conditional.value(name, true);
}

void activate(const ActionHost &host, Activated activated)
{
    QWidget *const widgets[] = {nullptr, host.main(), host.switcher(), host.list()};
    host.editor->setActivatedWidget(widgets[int(activated)]);
}

// The edit commands act on what the activated widget holds, the others on the same whatever it is.
// It is enough if those meet one target in each way with each widget, and all targets in turn.
bool isMet(int row, Way way, Activated activated, Target target)
{
    return isEditCommand(table().at(row)) ||
           (row + int(way) + int(activated)) % TargetNames.size() == int(target);
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

void triggerInMenu(const ActionHost &host, QAction *action)
{
    const QList<QMenu *> path = pathTo(host.editor->menu(), action);
    QVERIFY(!path.isEmpty());
    QMenuBar *bar = host.window->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {},
                      bar->actionGeometry(path.first()->menuAction()).center());
    QVERIFY(path.first()->isVisible());
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
    void keysAreNotShared();
    void everyKey();
    void keysOfTheRenameEditorAreItsOwn();
};

void tst_AllActions::initTestCase()
{
    passedOn = qInstallMessageHandler(passOn);
}

void tst_AllActions::tableIsComplete()
{
    const ActionHost host(Target::Partly);
    QVERIFY(host.isReady());
    QStringList names;
    const QList<QAction *> actions = host.actions();
    for (const QAction *action : actions)
        names.append(ActionHost::nameOf(action));
    QStringList tabled;
    for (const Row &row : table())
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

// At once, and when the editor has come to rest.
void tst_AllActions::enabledStates()
{
    QFETCH(int, activated);
    QFETCH(int, target);
    const ActionHost host{Target(target)};
    QVERIFY(host.isReady());
    activate(host, Activated(activated));
    for (const int delay : {0, 40}) {
        QTest::qWait(delay);
        const QList<QAction *> actions = host.actions();
        for (const QAction *action : actions) {
            const QString name = ActionHost::nameOf(action);
            const bool expected = isExpectedEnabled(name, Activated(activated), Target(target));
            QVERIFY2(action->isEnabled() == expected, qPrintable(name));
        }
    }
}

void tst_AllActions::effects_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("activated");
    QTest::addColumn<int>("target");
    for (auto way = WayNames.cbegin(); way != WayNames.cend(); ++way) {
        for (auto widget = ActivatedNames.cbegin(); widget != ActivatedNames.cend(); ++widget) {
            for (auto target = TargetNames.cbegin(); target != TargetNames.cend(); ++target) {
                const QStringList names = {way.value(), widget.value(), target.value()};
                QTest::newRow(qPrintable(names.join(QStringLiteral(", "))))
                    << int(way.key()) << int(widget.key()) << int(target.key());
            }
        }
    }
}

void tst_AllActions::effects()
{
    QFETCH(int, way);
    QFETCH(int, activated);
    QFETCH(int, target);
    QStringList faults;
    std::unique_ptr<ActionHost> host;
    for (int i = 0; i < table().size(); ++i) {
        if (!isMet(i, Way(way), Activated(activated), Target(target)))
            continue;
        const Row &row = table().at(i);
        if (!host)
            host = std::make_unique<ActionHost>(Target(target));
        QVERIFY(host->isReady());
        const QString name = QString::fromUtf8(row.name);
        QAction *action = host->actionOf(name);
        if (!isReachable(*host, action, Way(way)))
            continue;
        activate(*host, Activated(activated));
        const bool enabled = isExpectedEnabled(name, Activated(activated), Target(target));
        const QString expected =
            enabled ? effectOf(row, Activated(activated), Target(target)) : QString();
        const ActionHost::State before = host->state();
        trigger(*host, action, Way(way));
        const QString changes = host->changesSince(before);
        const QString effect = relevantPart(changes, row, Activated(activated));
        if (effect != expected)
            faults.append(QStringLiteral("%1: \"%2\", not \"%3\"").arg(name, effect, expected));
        // A window that asked may still have the activation, which comes back in its own time.
        const bool asked = changes.contains(QStringLiteral("asks"));
        const bool isUsable = isEditCommand(row) ? host->goBackTo(before) : host->state() == before;
        if (asked || !isUsable)
            host.reset();
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

// Keys that two actions have at once would reach neither.
void tst_AllActions::keysAreNotShared()
{
    const ActionHost host(Target::Partly);
    QMap<QString, QString> owners;
    const QList<QAction *> actions = host.actions();
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
        const QList<QKeySequence> shortcuts =
            ActionHost(Target::Partly).actionOf(QLatin1String(name))->shortcuts();
        QVERIFY2(!shortcuts.isEmpty(), name);
        for (const QKeySequence &keys : shortcuts) {
            const ActionHost host(Target::Partly);
            QVERIFY(host.isReady());
            activate(host, Activated::MainWidget);
            QSignalSpy triggered(host.actionOf(QLatin1String(name)), SIGNAL(triggered()));
            QTest::keySequence(host.window.get(), keys);
            QVERIFY2(triggered.count() == 1, qPrintable(keys.toString()));
        }
    }
}

// Whoever corrects a name must not delete bands by it.
void tst_AllActions::keysOfTheRenameEditorAreItsOwn()
{
    const ActionHost host(Target::Wholly);
    QVERIFY(host.isReady());
    activate(host, Activated::MainWidget);
    const ActionHost::State before = host.state();
    host.action("Action_Rename_Channel")->trigger();
    const QPointer<QLineEdit> editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor);
    const auto type = [&host](const QKeySequence &keys) {
        QTest::keySequence(host.window->windowHandle(), keys);
    };
    type(Qt::Key_Home);
    for (const auto keys :
         {QKeySequence::Delete, QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut,
          QKeySequence::Undo, QKeySequence::SelectAll, QKeySequence::Paste})
        type(QKeySequence(keys));
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("eta1"));
    QCOMPARE(host.state(), before);
}

QTEST_MAIN(tst_AllActions)
#include "tst_allactions.moc"
