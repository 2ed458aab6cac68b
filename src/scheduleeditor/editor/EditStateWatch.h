#pragma once

#include <QObject>
#include <QTimer>

namespace Zavo {

class ZvScheduleMainWidget;

/// Tells when the edit actions may have to change their enabled state. Their shortcuts work while
/// no menu is open, so they follow the selection, the undo stacks and the clipboard.
class EditStateWatch final : public QObject
{
    Q_OBJECT

public:
    EditStateWatch(ZvScheduleMainWidget *widget, QObject *parent);

    /// Counts @p signal of @p sender, as SIGNAL() gives it, as a change too.
    void watch(const QObject *sender, const char *signal);

Q_SIGNALS:
    /// Once after a burst of changes, when it has come to rest.
    void changed();

private:
    QTimer m_rest;
};

} // namespace Zavo
