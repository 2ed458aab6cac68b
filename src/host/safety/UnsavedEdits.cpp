#include "safety/UnsavedEdits.h"

#include "HostNames.h"
#include "editor/ZvScheduleEditor.h"

#include <QAction>
#include <QSet>
#include <QTabWidget>
#include <QUndoGroup>
#include <QUndoStack>

namespace Zavo {

UnsavedEdits::UnsavedEdits(QWidget *window, ZvScheduleEditor *editor, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_group(window->findChild<QUndoGroup *>())
{
    if (!m_group)
        return;
    connect(m_group, SIGNAL(indexChanged(int)), this, SLOT(onEdited()));
    // The editor was connected first, so it has saved by then.
    if (const QAction *const save = editor->getAction(QLatin1String(HostNames::saveAction)))
        connect(save, SIGNAL(triggered()), this, SLOT(onSaved()));
    if (const QAction *const save = editor->getAction(QLatin1String(HostNames::saveAllAction)))
        connect(save, SIGNAL(triggered()), this, SLOT(onAllSaved()));
}

QStringList UnsavedEdits::channelNames() const
{
    QSet<const QObject *> pages;
    for (const Entry &entry : m_entries) {
        if (entry.stack && entry.isUnsaved)
            pages.insert(entry.stack->parent());
    }
    QStringList names;
    const auto *const tabs = m_window->findChild<QTabWidget *>(QLatin1String(HostNames::tabWidget));
    for (int index = 0; tabs && !pages.isEmpty() && index < tabs->count(); ++index) {
        if (pages.contains(tabs->widget(index)))
            names.append(tabs->tabText(index));
    }
    return names;
}

// The group also speaks when another tab is chosen; nothing was edited by that.
void UnsavedEdits::onEdited()
{
    const QUndoStack *const stack = m_group ? m_group->activeStack() : nullptr;
    if (!stack)
        return;
    Entry &entry = entryOf(stack);
    entry.isUnsaved = stack->index() != entry.savedIndex;
    reportIfChanged();
}

void UnsavedEdits::onSaved()
{
    if (const QUndoStack *const stack = m_group ? m_group->activeStack() : nullptr)
        setSaved(stack);
    reportIfChanged();
}

void UnsavedEdits::onAllSaved()
{
    const QList<QUndoStack *> stacks = m_group ? m_group->stacks() : QList<QUndoStack *>();
    for (const QUndoStack *stack : stacks)
        setSaved(stack);
    reportIfChanged();
}

UnsavedEdits::Entry &UnsavedEdits::entryOf(const QUndoStack *stack)
{
    Entry &entry = m_entries[stack];
    // New, or at the address of one that is gone.
    if (!entry.stack)
        entry = {stack, 0, false};
    return entry;
}

void UnsavedEdits::setSaved(const QUndoStack *stack)
{
    Entry &entry = entryOf(stack);
    entry.savedIndex = stack->index();
    entry.isUnsaved = false;
}

void UnsavedEdits::reportIfChanged()
{
    const QStringList names = channelNames();
    if (names == m_reported)
        return;
    m_reported = names;
    Q_EMIT changed(names);
}

} // namespace Zavo
