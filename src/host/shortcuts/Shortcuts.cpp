#include "shortcuts/Shortcuts.h"

#include "HostNames.h"
#include "ZvEditorUserConfig.h"
#include "shortcuts/MenuText.h"
#include "shortcuts/ReservedKeys.h"
#include "shortcuts/ShortcutNames.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

#include <algorithm>

namespace Zavo {

namespace {

constexpr int longestStoredText = 200;
constexpr int mostSequences = 8;

// Kept for a command from which all keys were taken.
const QLatin1String noKeys("none");

bool overlap(const QKeySequence &first, const QKeySequence &second)
{
    return !first.isEmpty() && !second.isEmpty() &&
           (first.matches(second) != QKeySequence::NoMatch ||
            second.matches(first) != QKeySequence::NoMatch);
}

bool overlap(const QList<QKeySequence> &sequences, const QKeySequence &sequence)
{
    return std::any_of(sequences.cbegin(), sequences.cend(),
                       [&sequence](const QKeySequence &own) { return overlap(own, sequence); });
}

QString settingsKey(const QString &id)
{
    return QLatin1String(ShortcutNames::settingsGroup) + QLatin1Char('/') + id;
}

} // namespace

Shortcuts::Shortcuts(const QMainWindow *window)
    : m_menuBar(window->findChild<QMenuBar *>())
{
    const QList<QAction *> menus = m_menuBar ? m_menuBar->actions() : QList<QAction *>();
    for (const QAction *action : menus) {
        if (const QMenu *menu = action->menu())
            collect(menu->actions(), menu->objectName(), MenuText::plain(menu->title()));
    }
    // It is in no menu of the bar, and its key works everywhere in the window.
    auto *const newSchedule =
        window->findChild<QAction *>(QLatin1String(HostNames::newScheduleAction));
    const auto *const dock =
        window->findChild<const QDockWidget *>(QLatin1String(HostNames::scheduleListDock));
    if (newSchedule)
        collect({newSchedule}, {}, dock ? dock->windowTitle() : QString());
}

void Shortcuts::collect(const QList<QAction *> &entries, const QString &menuId,
                        const QString &category)
{
    int place = 0;
    for (QAction *action : entries) {
        if (action->isSeparator())
            continue;
        ++place;
        if (const QMenu *submenu = action->menu()) {
            collect(submenu->actions(), submenu->objectName(),
                    QStringLiteral("%1, %2").arg(category, MenuText::plain(submenu->title())));
            continue;
        }
        // An entry without a name is known by its place.
        const QString id = action->objectName().isEmpty()
                               ? QStringLiteral("%1.%2").arg(menuId).arg(place)
                               : action->objectName();
        m_commands.append(
            {action, id, category, MenuText::plain(action->text()), action->shortcuts()});
    }
}

bool Shortcuts::areStored()
{
    QSettings *const settings = ZvEditorUserConfig::settings();
    if (!settings)
        return false;
    settings->beginGroup(QLatin1String(ShortcutNames::settingsGroup));
    const bool are = !settings->childKeys().isEmpty();
    settings->endGroup();
    return are;
}

ShortcutKeys Shortcuts::keys() const
{
    ShortcutKeys keys;
    keys.reserve(m_commands.size());
    for (const ShortcutCommand &command : m_commands)
        keys.append(command.action ? command.action->shortcuts() : command.defaults);
    return keys;
}

ShortcutKeys Shortcuts::defaultKeys() const
{
    ShortcutKeys keys;
    keys.reserve(m_commands.size());
    for (const ShortcutCommand &command : m_commands)
        keys.append(command.defaults);
    return keys;
}

Shortcuts::Conflict Shortcuts::conflict(const QKeySequence &sequence, int command,
                                        const ShortcutKeys &keys) const
{
    const QString reserved = reservedReason(sequence, command);
    if (!reserved.isEmpty())
        return {-1, reserved};
    for (int other = 0; other < keys.size(); ++other) {
        if (other != command && overlap(keys.at(other), sequence)) {
            const ShortcutCommand &holder = m_commands.at(other);
            return {other,
                    QCoreApplication::translate("Zavo::Shortcuts", "%1 is the key of \"%2\" (%3).")
                        .arg(sequence.toString(QKeySequence::NativeText), holder.name,
                             holder.category)};
        }
    }
    return {};
}

QList<QKeySequence> Shortcuts::without(const QList<QKeySequence> &sequences,
                                       const QList<QKeySequence> &wanted)
{
    QList<QKeySequence> rest;
    for (const QKeySequence &sequence : sequences) {
        if (!overlap(wanted, sequence))
            rest.append(sequence);
    }
    return rest;
}

// What a command comes with is free for it.
QString Shortcuts::reservedReason(const QKeySequence &sequence, int command) const
{
    const ShortcutCommand &own = m_commands.at(command);
    return own.defaults.contains(sequence) ? QString()
                                           : ReservedKeys::reason(sequence, own.id, m_menuBar);
}

void Shortcuts::load()
{
    if (!areStored())
        return;
    ShortcutKeys keys;
    keys.reserve(m_commands.size());
    for (int command = 0; command < m_commands.size(); ++command)
        keys.append(storedKeys(command));
    dropConflicts(&keys);
    apply(keys);
}

void Shortcuts::store(const ShortcutKeys &keys)
{
    apply(keys);
    QSettings *const settings = ZvEditorUserConfig::settings();
    if (!settings)
        return;
    for (int command = 0; command < m_commands.size(); ++command) {
        const QString key = settingsKey(m_commands.at(command).id);
        const QList<QKeySequence> &sequences = keys.at(command);
        if (sequences == m_commands.at(command).defaults)
            settings->remove(key);
        else if (sequences.isEmpty())
            settings->setValue(key, noKeys);
        else
            settings->setValue(key,
                               QKeySequence::listToString(sequences, QKeySequence::PortableText));
    }
    ZvEditorUserConfig::sync();
}

void Shortcuts::apply(const ShortcutKeys &keys)
{
    for (int command = 0; command < m_commands.size(); ++command) {
        QAction *const action = m_commands.at(command).action;
        if (action && action->shortcuts() != keys.at(command))
            action->setShortcuts(keys.at(command));
    }
}

// The defaults in the place of whatever is not wholly keys.
QList<QKeySequence> Shortcuts::storedKeys(int command) const
{
    const ShortcutCommand &own = m_commands.at(command);
    const QString text = ZvEditorUserConfig::value(settingsKey(own.id)).toString();
    if (text == noKeys)
        return {};
    if (text.isEmpty() || text.size() > longestStoredText)
        return own.defaults;
    const QList<QKeySequence> sequences =
        QKeySequence::listFromString(text, QKeySequence::PortableText);
    const bool isSense =
        !sequences.isEmpty() && sequences.size() <= mostSequences &&
        std::all_of(sequences.cbegin(), sequences.cend(),
                    [this, command](const QKeySequence &sequence) {
                        return !sequence.isEmpty() && reservedReason(sequence, command).isEmpty();
                    });
    return isSense ? sequences : own.defaults;
}

// A command that is set back may now be in the way of another that has taken its key over.
void Shortcuts::dropConflicts(ShortcutKeys *keys) const
{
    for (bool isStable = false; !isStable;) {
        isStable = true;
        for (int command = 0; command < keys->size(); ++command) {
            if (keys->at(command) == m_commands.at(command).defaults)
                continue;
            const QList<QKeySequence> sequences = keys->at(command);
            for (const QKeySequence &sequence : sequences) {
                if (conflict(sequence, command, *keys).isNone())
                    continue;
                (*keys)[command] = m_commands.at(command).defaults;
                isStable = false;
                break;
            }
        }
    }
}

} // namespace Zavo
