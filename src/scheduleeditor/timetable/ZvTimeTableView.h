#pragma once

#include <QGraphicsView>
#include <QPointer>
#include <QTimer>

class QLabel;
class QMenu;

namespace Zavo {

class ZvTimeTableScene;

/// Shows the time table: carries the zoom in its transform, moves selected bands by the arrow keys,
/// reports the time under the cursor and covers itself with a notice while there is no schedule.
class ZvTimeTableView final : public QGraphicsView
{
    Q_OBJECT

public:
    explicit ZvTimeTableView(QGraphicsScene *scene, QWidget *parent = nullptr);

    /// Viewport position of the last mouse release; a paste starts there.
    QPoint lastReleasePos() const { return m_lastReleasePos; }

    void setBaseItem(QGraphicsItem *baseItem) { m_baseItem = baseItem; }
    /// The menu stays its owner's.
    void setContextMenu(QMenu *menu);
    void setNoScheduleLabelVisible(bool visible);
    /// Centres on @p item unless it is in sight as a whole.
    void ensureItemVisible(QGraphicsItem *item);
    /// Reports a move by keys or mouse now that is still under way.
    void completeMove();

public Q_SLOTS:
    /// Vertical zoom: screen pixels a minute.
    void changeScale(double scale);
    void setHorizontalScale(double scale);

Q_SIGNALS:
    /// The time under the cursor changed; "--:--:--" outside the day.
    void timeStringChanged(QString timeString);
    void horizontalScrollBarValueChanged();
    /// A key move is complete: 100 ms after the last release of an arrow key, or earlier if
    /// something else is about to happen.
    void keyReleasedWithItemMoved();
    void requestContextMenu(QPoint pos);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void onHrozontalScrollBarValueChanged(int value);
    void onMovingKeyCheckingTimerEvent();
    void showContextMenu(QPoint pos);

private:
    ZvTimeTableScene *timeTableScene() const;
    void completeKeyMove();
    void dropRubberBand();
    bool isMovingKey(const QKeyEvent *event) const;

    QString m_timeString;
    QGraphicsItem *m_baseItem = nullptr;
    QLabel *m_noScheduleLabel = nullptr;
    QTimer m_movingKeyTimer;
    bool m_isMovingByKey = false;
    QPointer<QMenu> m_contextMenu;
    QPoint m_lastReleasePos;
};

} // namespace Zavo
