#pragma once

#include <QToolBar>

namespace Zavo {

/// The tool bar above the channel tabs. It shows actions that belong to the menus and outlive it,
/// and one close button of its own.
class ScheduleToolBar final : public QToolBar
{
    Q_OBJECT

public:
    /// @p actions are looked up by their object names; one that is missing is left out.
    /// The separators and blanks are there in any case.
    explicit ScheduleToolBar(const QList<QAction *> &actions, QWidget *parent = nullptr);
    ~ScheduleToolBar() override;

    /// The button at the far right, which belongs to this tool bar.
    QAction *closeAction() const { return m_closeAction; }

    /// Fits the size of the buttons to the screen.
    void scaleButtons();

private:
    void addGroup(const QList<QAction *> &actions);
    void addBlank(const QSizePolicy &policy, const QSize &minimumSize);

    QList<QAction *> m_borrowedActions;
    QAction *m_closeAction = nullptr;
};

} // namespace Zavo
