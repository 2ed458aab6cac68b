#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

namespace Zavo {

/// Deletes all channels and what else lies in their folder, after a question above the window.
class ChannelReset final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ChannelReset)

public:
    /// @p window may be null.
    explicit ChannelReset(QWidget *window);

    /// True if the files were deleted, as far as they could be; the editor is to be closed then.
    /// False if there is no folder or the user does not want to, with nothing changed.
    bool run() const;

private:
    bool confirm(const QString &title) const;

    QPointer<QWidget> m_window;
};

} // namespace Zavo
