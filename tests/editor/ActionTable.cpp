#include "ActionTable.h"

#include <QRegularExpression>

namespace ZavoTest {

namespace {

// The edit commands act on bands in the main widget and on schedules in the docks.
const QMap<QString, Effects> &effectsOnBands()
{
    static const QMap<QString, Effects> effects = {
        {QStringLiteral("Cut"),
         {{Target::Partly, "copied; bands 3>2; history 1/2>2/2; selected 1>0"},
          {Target::Wholly, "copied; bands 3>0; history 1/2>2/2; selected 3>0"},
          {Target::WeekDay, "copied; bands 3>1; history 1/2>2/2; selected 2>0"},
          {Target::Default, "copied; bands 3>0; history 1/2>2/2; selected 3>0"}}},
        {QStringLiteral("Copy"),
         {{Target::Partly, "copied"},
          {Target::Wholly, "copied"},
          {Target::WeekDay, "copied"},
          {Target::Default, "copied"}}},
        {QStringLiteral("Paste"),
         {{Target::Nothing, "bands 3>4; history 1/2>2/2; selected 0>1"},
          {Target::Partly, "bands 3>4; history 1/2>2/2"},
          {Target::Wholly, "bands 3>4; history 1/2>2/2; selected 3>1"},
          {Target::WeekDay, "bands 3>4; history 1/2>2/2; selected 2>1"},
          {Target::Default, "bands 3>4; history 1/2>2/2; selected 3>1"}}},
        {QStringLiteral("Delete"),
         {{Target::Partly, "bands 3>2; history 1/2>2/2; selected 1>0"},
          {Target::Wholly, "bands 3>0; history 1/2>2/2; selected 3>0"},
          {Target::WeekDay, "bands 3>1; history 1/2>2/2; selected 2>0"},
          {Target::Default, "bands 3>0; history 1/2>2/2; selected 3>0"}}},
        {QStringLiteral("Select All"),
         {{Target::Nothing, "selected 0>3"},
          {Target::Partly, "selected 1>3"},
          {Target::WeekDay, "selected 2>3"}}},
        {QStringLiteral("Deselect All"),
         {{Target::Partly, "selected 1>0"},
          {Target::Wholly, "selected 3>0"},
          {Target::WeekDay, "selected 2>0"},
          {Target::Default, "selected 3>0"}}},
    };
    return effects;
}

// The week of one target begins on a day without a schedule, which a paste gives one.
const QMap<QString, Effects> &effectsInSwitcher()
{
    static const char *const cut = "copied; bands 3>0; history 1/2>2/2; schedules 3>2";
    static const char *const replaced = "asks Paste Schedule; bands 3>1; history 1/2>2/2";
    static const char *const deleted =
        "asks Confirm Delete; bands 3>0; history 1/2>2/2; schedules 3>2";
    static const QMap<QString, Effects> effects = {
        {QStringLiteral("Cut"),
         {{Target::Nothing, cut},
          {Target::Partly, cut},
          {Target::Wholly, cut},
          {Target::WeekDay, cut}}},
        {QStringLiteral("Copy"),
         {{Target::Nothing, "copied"},
          {Target::Partly, "copied"},
          {Target::Wholly, "copied"},
          {Target::WeekDay, "copied"},
          {Target::Default, "copied"},
          {Target::First, "copied"}}},
        {QStringLiteral("Paste"),
         {{Target::Missing, "bands 0>1; history 1/2>2/2; schedules 3>4"},
          {Target::Nothing, replaced},
          {Target::Partly, "history 1/2>2/2; schedules 3>4"},
          {Target::Wholly, replaced},
          {Target::WeekDay, replaced},
          {Target::Default, replaced}}},
        {QStringLiteral("Delete"),
         {{Target::Nothing, deleted},
          {Target::Partly, deleted},
          {Target::Wholly, deleted},
          {Target::WeekDay, deleted}}},
    };
    return effects;
}

const QMap<QString, Effects> &effectsInList()
{
    static const char *const asked = "asks Paste Schedule";
    static const QMap<QString, Effects> effects = {
        {QStringLiteral("Cut"),
         {{Target::Partly, "copied; bands 3>0; history 1/2>2/2; marked 1>0; schedules 3>2"},
          {Target::Wholly, "copied; bands 3>0; history 1/2>2/2; marked 3>0; schedules 3>1"},
          {Target::WeekDay, "copied; bands 3>0; history 1/2>2/2; marked 1>0; schedules 3>2"}}},
        {QStringLiteral("Copy"),
         {{Target::Partly, "copied"},
          {Target::Wholly, "copied"},
          {Target::WeekDay, "copied"},
          {Target::Default, "copied"},
          {Target::First, "copied"}}},
        {QStringLiteral("Paste"),
         {{Target::Missing, asked},
          {Target::Nothing, asked},
          {Target::Partly, asked},
          {Target::Wholly, asked},
          {Target::WeekDay, asked},
          {Target::Default, asked}}},
        {QStringLiteral("Delete"),
         {{Target::Partly,
           "asks Confirm Delete; bands 3>0; history 1/2>2/2; marked 1>0; schedules 3>2"},
          {Target::Wholly,
           // the first that goes is shown before
           "asks Confirm Delete; bands 3>0; history 1/2>2/2; marked 3>0; schedules 3>1; "
           "shown 2031-05-06>day 5"},
          {Target::WeekDay,
           "asks Confirm Delete; bands 3>0; history 1/2>2/2; marked 1>0; schedules 3>2"}}},
        {QStringLiteral("Select All"),
         {{Target::Missing, "marked 0>3"},
          {Target::Nothing, "marked 0>3"},
          {Target::Partly, "marked 1>3"},
          {Target::WeekDay, "marked 1>3"},
          {Target::Default, "marked 1>3"}}},
        {QStringLiteral("Deselect All"),
         {{Target::Partly, "marked 1>0"},
          {Target::Wholly, "marked 3>0"},
          {Target::WeekDay, "marked 1>0"},
          {Target::Default, "marked 1>0"},
          {Target::First, "marked 1>0"}}},
    };
    return effects;
}

Effects editEffects(const QString &name, Activated activated)
{
    switch (activated) {
    case Activated::MainWidget:
        return effectsOnBands().value(name);
    case Activated::Switcher:
        return effectsInSwitcher().value(name);
    case Activated::List:
        return effectsInList().value(name);
    default:
        return {};
    }
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
          {Target::WeekDay, 31},
          {Target::Default, 23},
          {Target::First, 8}}},
        {Activated::Switcher,
         {{Target::Missing, 0},
          {Target::Nothing, 7},
          {Target::Partly, 7},
          {Target::Wholly, 7},
          {Target::WeekDay, 7},
          {Target::Default, 1},
          {Target::First, 1}}},
        {Activated::List,
         {{Target::Missing, 8},
          {Target::Nothing, 8},
          {Target::Partly, 31},
          {Target::Wholly, 23},
          {Target::WeekDay, 31},
          {Target::Default, 25},
          {Target::First, 17}}},
    };
    return flags.value(activated).value(target);
}

bool isPastingExpected(Activated activated, Target target)
{
    if (activated == Activated::Nobody || target == Target::First)
        return false;
    // A band has no place where there is no schedule.
    return activated != Activated::MainWidget || target != Target::Missing;
}

} // namespace

const QList<ActionRow> &actionTable()
{
    static const char *const closed = "asks Save Channel; closed";
    static const QList<ActionRow> rows = {
        {"Save Channel",
         "channel1.xml written",
         {{Target::First, "channel0.xml written; channel.xml new"}}},
        {"Save All Channels",
         "channel1.xml written; channel2.xml written; channel.xml new",
         {{Target::First, "channel0.xml written; channel2.xml written; channel.xml new"}}},
        {"Close Schedule Editor", closed},
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
         "bands 3>0; date 2031-05-06>today; shown 2031-05-06>today",
         {{Target::Missing, "date 2031-05-07>today; shown 2031-05-07>today"},
          {Target::Partly, "bands 3>0; date 2031-05-06>today; dates 7>1; shown 2031-05-06>today"},
          {Target::WeekDay, "bands 3>0; date 2031-05-06>today; shown day 5>today"},
          {Target::Default, "bands 3>0; date 2031-05-06>today; shown default>today"},
          {Target::First, "date 2031-05-06>today; shown default>today"}}},
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
        {"Output Channel Data", "export channel1.xml", {{Target::First, "export channel0.xml"}}},
        {"Show Upload Log", "asks Open Log File; opens Log/Editor"},
        {"Open Upload Log Folder", "opens Log/Editor"},
        {"New Schedule", "history 1/2>2/2; schedules 3>4"},
        {"Delete Schedule", "asks Confirm Delete; bands 3>0; history 1/2>2/2; schedules 3>2"},
        {"Rename Channel", "renames Beta1", {{Target::First, "renames Alpha"}}},
        {"Change Channel Order", "asks Change Channel Order"},
        {"Add Channel",
         "tab 1>3; tabs Alpha,Beta1,Gamma1>Alpha,Beta1,Gamma1,Ch.3; channel3.xml new",
         {{Target::First,
           "tab 0>3; tabs Alpha,Beta,Gamma1>Alpha,Beta,Gamma1,Ch.3; channel3.xml new"}}},
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
        {"Close Stage Editor", closed},
    };
    return rows;
}

bool isEditCommand(const ActionRow &row)
{
    return !row.effect;
}

QString expectedEffect(const ActionRow &row, Activated activated, Target target)
{
    const QString name = QString::fromUtf8(row.name);
    if (!isExpectedEnabled(name, activated, target))
        return {};
    const Effects effects = isEditCommand(row) ? editEffects(name, activated) : row.effects;
    return QString::fromUtf8(effects.value(target, row.effect));
}

QString relevantPart(const QString &changes, const ActionRow &row, Activated activated)
{
    QStringList parts = changes.split(QStringLiteral("; "));
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

bool isExpectedEnabled(const QString &name, Activated activated, Target target)
{
    const int flags = selectedFlags(activated, target);
    const bool isDate =
        target == Target::Nothing || target == Target::Partly || target == Target::Wholly;
    const bool isFirst = target == Target::First;
    const QMap<QString, bool> conditional = {
        {QStringLiteral("Undo"), !isFirst},
        {QStringLiteral("Redo"), !isFirst},
        {QStringLiteral("Copy"), flags & 1},
        {QStringLiteral("Cut"), flags & 2},
        {QStringLiteral("Delete"), flags & 4},
        {QStringLiteral("Select All"), flags & 8},
        {QStringLiteral("Deselect All"), flags & 16},
        {QStringLiteral("Paste"), isPastingExpected(activated, target)},
        {QStringLiteral("Clear Selections"), target == Target::Partly},
        {QStringLiteral("Upload"), !isFirst},
        {QStringLiteral("New Schedule"), target == Target::Missing},
        {QStringLiteral("Delete Schedule"), isDate || target == Target::WeekDay},
        {QStringLiteral("Change Channel Order"), !isFirst},
        {QStringLiteral("Delete Channel"), !isFirst},
    };
    return conditional.value(name, true);
}

bool isExpectedChecked(const QString &name)
{
    static const QStringList checked = {QStringLiteral("Mon"), QStringLiteral("Show Week Number"),
                                        QStringLiteral("Switch Schedule"),
                                        QStringLiteral("Assigned Item Property")};
    return checked.contains(name);
}

} // namespace ZavoTest
