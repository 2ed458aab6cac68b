#include "editor/MainMenu.h"

#include "domain/ActionNames.h"
#include "editor/ActionHelp.h"
#include "editor/ActionRegistry.h"

#include <QCoreApplication>
#include <QKeySequence>

namespace Zavo {

namespace {

constexpr char Context[] = "Zavo::ZvScheduleEditor";

struct Shortcut
{
    QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
    const char *keys = nullptr;
};

constexpr Shortcut NoKeys{};

constexpr Shortcut standard(QKeySequence::StandardKey key)
{
    return {key, nullptr};
}

constexpr Shortcut keys(const char *sequence)
{
    return {QKeySequence::UnknownKey, sequence};
}

// A row without a text is a separator. The slot of a checkable row takes whether it is checked.
struct ActionRow
{
    const char *name = nullptr;
    const char *text = nullptr;
    Shortcut shortcut;
    const char *icon = nullptr;
    const char *slot = nullptr;
    bool checkable = false;
};

constexpr ActionRow Separator{};

constexpr ActionRow FileRows[] = {
    {ActionName::SaveChannel, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Save Channel"),
     standard(QKeySequence::Save), ":/images/save.svg", "action_save_channel()"},
    {ActionName::SaveAllChannel, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Save &All Channels"),
     keys("Ctrl+Shift+S"), ":/images/save_all.svg", "action_save_all_channel()"},
    Separator,
    {nullptr, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Close Schedule Editor"), keys("Ctrl+W"),
     nullptr, "close()"},
    Separator,
    {nullptr, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Quit"), keys("Ctrl+Q"), nullptr,
     "quit()"},
};

constexpr ActionRow EditRows[] = {
    {ActionName::Undo, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Undo"),
     standard(QKeySequence::Undo), ":/images/undo.svg", "action_undo()"},
    {ActionName::Redo, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Redo"),
     standard(QKeySequence::Redo), ":/images/redo.svg", "action_redo()"},
    Separator,
    {ActionName::Cut, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Cut"),
     standard(QKeySequence::Cut), nullptr, "action_cut()"},
    {ActionName::Copy, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Copy"),
     standard(QKeySequence::Copy), nullptr, "action_copy()"},
    {ActionName::Paste, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Paste"),
     standard(QKeySequence::Paste), nullptr, "action_paste()"},
    {ActionName::Delete, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Delete"),
     standard(QKeySequence::Delete), ":/images/trash.svg", "action_delete()"},
    Separator,
    {ActionName::SelectAll, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Select &All"),
     standard(QKeySequence::SelectAll), nullptr, "action_selectAll()"},
    {ActionName::DeselectAll, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Deselect A&ll"),
     keys("Ctrl+Shift+A"), nullptr, "action_deselectAll()"},
};

constexpr ActionRow ChannelRows[] = {
    {ActionName::Upload, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Upload..."), NoKeys,
     ":/images/upload.svg", "action_upload()"},
    {ActionName::OutputChannelData,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Output Channel Data..."), NoKeys,
     ":/images/output_channel.svg", "action_output_channel_data()"},
    Separator,
    {ActionName::ShowLogFile, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "S&how Upload Log..."),
     NoKeys, nullptr, "action_show_log_file()"},
    {ActionName::OpenLogFolder,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Open Upload Log &Folder..."), NoKeys, nullptr,
     "action_open_log_folder()"},
    Separator,
    {ActionName::CreateSchedule, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&New Schedule"),
     NoKeys, ":/images/create_schedule.svg", "action_create_schedule()"},
    {ActionName::DeleteSchedule, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Delete Schedule..."),
     NoKeys, ":/images/delete_schedule.svg", "action_delete_schedule()"},
    Separator,
    {ActionName::RenameChannel, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Rename Channel"),
     NoKeys, nullptr, "action_rename_channel()"},
    {ActionName::ChangeChannelOrder,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Chan&ge Channel Order..."), NoKeys, nullptr,
     "action_change_channel_order()"},
    {ActionName::CreateChannel, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Add Channel..."),
     NoKeys, ":/images/create_channel.svg", "action_create_channel()"},
    {ActionName::DeleteChannel, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "D&elete Channel..."),
     NoKeys, ":/images/delete_channel.svg", "action_delete_channel()"},
    Separator,
    {ActionName::DeleteChannelsSettings,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Delete All Channels and &Settings..."), NoKeys,
     nullptr, "action_delete_channels_settings()"},
    Separator,
    {ActionName::ShowChannelInformation,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Show Channel &Information..."), NoKeys, nullptr,
     "action_show_channel_information()"},
    {ActionName::ChannelConfiguration,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Channel Configura&tion..."), NoKeys, nullptr,
     "action_channel_configuration()"},
};

constexpr ActionRow WindowRows[] = {
    {ActionName::SetVisibleSwitchSchedule,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Switch Schedule"), NoKeys, nullptr,
     "setVisibleSwitchSchdule(bool)", true},
    {ActionName::SetVisibleScheduleList,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Schedule &List"), NoKeys, nullptr,
     "setVisibleScheduleList(bool)", true},
    {ActionName::SetVisibleChooseStage,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Choose Stage"), NoKeys, nullptr,
     "setVisibleChooseStage(bool)", true},
    {ActionName::SetVisibleItemProperty,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Assigned Item Property"), NoKeys, nullptr,
     "setVisibleItemProperty(bool)", true},
    Separator,
    {ActionName::WindowToDefaultPosition,
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "To &Default Position"), NoKeys, nullptr,
     "action_window_to_default_position()"},
};

struct MenuRow
{
    const char *name;
    const char *title;
    const ActionRow *rows;
    int rowCount;
};

template<int N>
constexpr MenuRow menuOf(const char *name, const char *title, const ActionRow (&rows)[N])
{
    return {name, title, rows, N};
}

// The file menu has no object name, so that nobody finds it.
constexpr MenuRow Menus[] = {
    menuOf(nullptr, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&File"), FileRows),
    menuOf(MenuName::Edit, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Edit"), EditRows),
    menuOf(MenuName::Channel, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Channel"), ChannelRows),
    menuOf(MenuName::Window, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "&Window"), WindowRows),
};

QString menuText(const char *text)
{
    return QCoreApplication::translate(Context, text);
}

void setShortcut(QAction *action, const Shortcut &shortcut)
{
    if (shortcut.keys)
        action->setShortcut(QKeySequence(QLatin1String(shortcut.keys)));
    else if (shortcut.standard != QKeySequence::UnknownKey)
        action->setShortcuts(shortcut.standard);
}

void addRow(QMenu *menu, const ActionRow &row, ActionRegistry *registry, QObject *receiver)
{
    if (!row.text) {
        menu->addSeparator();
        return;
    }
    auto *action = new QAction(menuText(row.text), menu);
    action->setObjectName(QLatin1String(row.name));
    registry->addAction(action);
    if (row.icon)
        action->setIcon(QIcon(QLatin1String(row.icon)));
    setShortcut(action, row.shortcut);
    setActionHelp(action, row.name ? row.name : row.slot);
    const QByteArray slot = QByteArray::number(QSLOT_CODE) + row.slot;
    action->setCheckable(row.checkable);
    const char *signal = row.checkable ? SIGNAL(toggled(bool)) : SIGNAL(triggered());
    QObject::connect(action, signal, receiver, slot.constData());
    // Last: a menu hears of every change of an action that it has.
    menu->addAction(action);
}

} // namespace

void createMainMenu(ActionRegistry *registry, QObject *receiver)
{
    for (const MenuRow &menuRow : Menus) {
        auto *menu = new QMenu(menuText(menuRow.title));
        menu->setObjectName(QLatin1String(menuRow.name));
        for (int i = 0; i < menuRow.rowCount; ++i)
            addRow(menu, menuRow.rows[i], registry, receiver);
        registry->addMenu(menu);
    }
}

} // namespace Zavo
