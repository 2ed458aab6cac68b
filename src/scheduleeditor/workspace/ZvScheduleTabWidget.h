#pragma once

#include <QPointer>
#include <QRect>
#include <QTabWidget>

class QMouseEvent;

namespace Zavo {

class ZvScheduleRenameTabWidget;

/// Holds the channel pages, each a ZvScheduleWorkingArea. Its tabs can be dragged, but the first
/// one stays where it is and no other is dragged past it. Positions are the indices of the
/// channels, so the end of a drag tells every page that moved its new position.
class ZvScheduleTabWidget final : public QTabWidget
{
    Q_OBJECT

public:
    explicit ZvScheduleTabWidget(QWidget *parent = nullptr);

    /// Rectangle of the current tab in the coordinates of the tab bar.
    QRect currentTabRect() const;

    void moveTab(int from, int to);

    /// Ends a rename that is under way, as if the in-place editor had been left.
    void finishEditing();

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Opens the in-place editor over the title of the current tab.
    void editTabNameRequested();

    void showNotTabMovedToolTip();

    /// Gives the pages between @p from and @p to, both included, their positions.
    void onTabMoved(int from, int to);

Q_SIGNALS:
    /// Whether the widget that holds the tabs is the activated one. The receiver fills
    /// @p activated, so the connection is direct.
    void requestIsActivatedWidget(bool *activated);

    /// A double click on the bar, or F2. Queued, so that the bar has done with its event.
    void requestEditTabName();

    /// The in-place editor was left with the text @p name, neither empty nor the old one. It was
    /// opened for the tab that is at @p tabIndex now.
    void requestChangeTabName(int tabIndex, const QString &name);

    /// After the pages between @p from and @p to have their new positions.
    void tabMoved(int from, int to);

    /// Asks to move the tab at @p curIndex back to @p orgIndex. Queued.
    void requestCorrectFirstTab(int curIndex, int orgIndex);

private Q_SLOTS:
    void editingTabNameFinished(QObject *object);
    void correctFirstTab(int curIndex, int orgIndex);

private:
    void pressTabBar(const QMouseEvent &event);
    bool watchDrag(const QMouseEvent &event);
    bool mayDragTo(const QMouseEvent &event) const;
    void stopBesideFirstTab(const QMouseEvent &event);
    void finishDrag();
    int editedIndex() const;

    bool m_movingTabs = false;
    int m_pressedIndex = 0;
    QRect m_firstTabRect;
    int m_dragOffset = 0;
    bool m_pressed = false;
    bool m_releaseMayBeLost = false;
    QPointer<ZvScheduleRenameTabWidget> m_editor;
    QPointer<QWidget> m_editedPage;
};

} // namespace Zavo
