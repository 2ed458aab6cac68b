#include "shortcuts/ReservedKeys.h"

#include "shortcuts/MenuText.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QMenuBar>

#include <algorithm>

namespace Zavo::ReservedKeys {

namespace {

constexpr char reservedContext[] = "Zavo::ReservedKeys";
constexpr int modifierMask = static_cast<int>(Qt::KeyboardModifierMask);

QString reservedText(const char *text)
{
    return QCoreApplication::translate(reservedContext, text);
}

// A key that a widget needs for itself, with no modifier but Shift or, where it is so, with any.
struct ReservedKey
{
    int key;
    bool withAnyModifier;
    const char *reason;
};

constexpr char moves[] =
    QT_TRANSLATE_NOOP("Zavo::ReservedKeys", "%1 moves what is selected in the time table.");
constexpr char scrolls[] = QT_TRANSLATE_NOOP(
    "Zavo::ReservedKeys", "%1 goes through texts, lists, the calendar and the time table.");
constexpr char goesOn[] =
    QT_TRANSLATE_NOOP("Zavo::ReservedKeys", "%1 goes from one control to the next.");
constexpr char activates[] =
    QT_TRANSLATE_NOOP("Zavo::ReservedKeys", "%1 presses buttons and checks rows.");
constexpr char ends[] = QT_TRANSLATE_NOOP("Zavo::ReservedKeys", "%1 closes menus and dialogs.");
constexpr char writes[] = QT_TRANSLATE_NOOP("Zavo::ReservedKeys", "%1 is needed to type texts.");
constexpr char opensMenu[] = QT_TRANSLATE_NOOP("Zavo::ReservedKeys", "%1 opens the menu \"%2\".");
constexpr char renames[] =
    QT_TRANSLATE_NOOP("Zavo::ReservedKeys", "%1 edits the name of a channel or a target.");
constexpr char cannotBeStruck[] =
    QT_TRANSLATE_NOOP("Zavo::ReservedKeys", "These are no keys that can be struck.");

constexpr ReservedKey reservedKeys[] = {
    {Qt::Key_Up, true, moves},          {Qt::Key_Down, true, moves},
    {Qt::Key_Left, false, scrolls},     {Qt::Key_Right, false, scrolls},
    {Qt::Key_PageUp, false, scrolls},   {Qt::Key_PageDown, false, scrolls},
    {Qt::Key_Home, false, scrolls},     {Qt::Key_End, false, scrolls},
    {Qt::Key_Tab, true, goesOn},        {Qt::Key_Backtab, true, goesOn},
    {Qt::Key_Space, false, activates},  {Qt::Key_Return, false, activates},
    {Qt::Key_Enter, false, activates},  {Qt::Key_Escape, false, ends},
    {Qt::Key_Backspace, false, writes},
};

// The command for which F2 is no surprise: it does the same from everywhere.
constexpr char renameCommand[] = "Action_Rename_Channel";

const char *reasonOf(int key, int modifiers, const QString &commandId)
{
    const bool isPlain =
        (modifiers & ~static_cast<int>(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    const auto *const reserved = std::find_if(
        std::begin(reservedKeys), std::end(reservedKeys), [key, isPlain](const ReservedKey &row) {
            return row.key == key && (row.withAnyModifier || isPlain);
        });
    if (reserved != std::end(reservedKeys))
        return reserved->reason;
    if (key == Qt::Key_F2 && modifiers == 0 && commandId != QLatin1String(renameCommand))
        return renames;
    // The keys from here on have no sign.
    return isPlain && key < Qt::Key_Escape ? writes : nullptr;
}

bool isKey(int key)
{
    return key != 0 && key != Qt::Key_unknown && key != Qt::Key_Control && key != Qt::Key_Shift &&
           key != Qt::Key_Alt && key != Qt::Key_Meta && key != Qt::Key_AltGr;
}

} // namespace

QString reason(const QKeySequence &keys, const QString &commandId, const QMenuBar *menuBar)
{
    for (int i = 0; i < static_cast<int>(keys.count()); ++i) {
        if (!isKey(keys[static_cast<uint>(i)] & ~modifierMask))
            return reservedText(cannotBeStruck);
    }
    if (keys.isEmpty())
        return {};
    const QKeySequence first(keys[0]);
    const QString firstText = first.toString(QKeySequence::NativeText);
    const char *const found = reasonOf(keys[0] & ~modifierMask, keys[0] & modifierMask, commandId);
    if (found)
        return reservedText(found).arg(firstText);
    const QList<QAction *> menus = menuBar ? menuBar->actions() : QList<QAction *>();
    for (const QAction *menu : menus) {
        if (QKeySequence::mnemonic(menu->text()) == first)
            return reservedText(opensMenu).arg(firstText, MenuText::plain(menu->text()));
    }
    return {};
}

} // namespace Zavo::ReservedKeys
