#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

class QUndoGroup;
class QUndoStack;
class QWidget;

namespace Zavo {

class ZvScheduleEditor;

/// Tells which channels have edits that are not saved, from the history of their tabs. Follows the
/// one tab that is worked in, however many there are.
class UnsavedEdits final : public QObject
{
    Q_OBJECT

public:
    /// @p window is what the editor fills; both must outlive this object.
    UnsavedEdits(QWidget *window, ZvScheduleEditor *editor, QObject *parent = nullptr);

    /// Names of the channels, in the order of their tabs.
    QStringList channelNames() const;

Q_SIGNALS:
    void changed(const QStringList &channelNames);

private Q_SLOTS:
    void onEdited();
    void onSaved();
    void onAllSaved();

private:
    struct Entry
    {
        QPointer<const QUndoStack> stack; // null once its tab is gone
        int savedIndex = 0;
        bool isUnsaved = false;
    };

    Entry &entryOf(const QUndoStack *stack);
    void setSaved(const QUndoStack *stack);
    void reportIfChanged();

    QWidget *m_window = nullptr;
    QPointer<QUndoGroup> m_group;
    QHash<const QUndoStack *, Entry> m_entries;
    QStringList m_reported;
};

} // namespace Zavo
