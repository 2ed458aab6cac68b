#include "timetable/ZvTimeTableView.h"

#include "timetable/TimeTableAccessibility.h"
#include "timetable/ZvTimeTableBaseItem.h"
#include "timetable/ZvTimeTableScene.h"

#include <QContextMenuEvent>
#include <QGraphicsItem>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

namespace Zavo {

namespace {

constexpr int movingKeyInterval = 100;     // ms
constexpr double shareOfWidth = 0.7;       // of the view, for the time table
constexpr double widthAtUnitScale = 520.0; // px

QString noTime()
{
    return QStringLiteral("--:--:--");
}

} // namespace

ZvTimeTableView::ZvTimeTableView(QGraphicsScene *scene, QWidget *parent)
    : QGraphicsView(scene, parent)
    , m_timeString(noTime())
    , m_noScheduleLabel(new QLabel(this))
{
    setMouseTracking(true);
    setDragMode(RubberBandDrag);
    setFocusPolicy(Qt::StrongFocus);
    // The scene paints every pixel, so nothing has to be painted under it.
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    // Every item sets what it paints with.
    setOptimizationFlag(DontSavePainterState);
    TimeTableAccessibility::install();
    setAccessibleName(tr("Time table"));
    setWhatsThis(tr("The day of the schedule, from 0 to 24 o'clock. Stages are dropped here, "
                    "dragged, and made longer or shorter at their edges. Ctrl adds to the "
                    "selection, and the arrow keys move what is selected."));

    m_noScheduleLabel->setStyleSheet(
        QStringLiteral("background-color: rgba(0,0,0,128); color: white; font-weight: bold;"));
    m_noScheduleLabel->setText(tr("This schedule does not exist."));
    m_noScheduleLabel->setAlignment(Qt::AlignCenter);
    m_noScheduleLabel->move(0, 0);

    m_movingKeyTimer.setInterval(movingKeyInterval);
    connect(&m_movingKeyTimer, SIGNAL(timeout()), this, SLOT(onMovingKeyCheckingTimerEvent()));
    connect(this, SIGNAL(requestContextMenu(QPoint)), this, SLOT(showContextMenu(QPoint)));
    connect(horizontalScrollBar(), SIGNAL(valueChanged(int)), this,
                                          SLOT(onHrozontalScrollBarValueChanged(int)));
}

ZvTimeTableScene *ZvTimeTableView::timeTableScene() const
{
    return qobject_cast<ZvTimeTableScene *>(scene());
}

void ZvTimeTableView::setContextMenu(QMenu *menu)
{
    m_contextMenu = menu;
}

void ZvTimeTableView::setNoScheduleLabelVisible(bool visible)
{
    m_noScheduleLabel->setVisible(visible);
}

void ZvTimeTableView::ensureItemVisible(QGraphicsItem *item)
{
    if (!item)
        return;
    const QRectF itemRect = item->mapRectToScene(item->boundingRect());
    const QRectF visibleRect(mapToScene(viewport()->rect().topLeft()),
                             mapToScene(viewport()->rect().bottomRight()));
    if (!visibleRect.contains(itemRect))
        centerOn(item);
}

void ZvTimeTableView::changeScale(double scale)
{
    const QTransform old = transform();
    setTransform(QTransform(old.m11(), old.m12(), old.m13(), old.m21(), scale, old.m23(), old.m31(),
                            old.m32(), old.m33()),
                 false);
}

void ZvTimeTableView::setHorizontalScale(double scale)
{
    const QTransform old = transform();
    setTransform(QTransform(scale, old.m12(), old.m13(), old.m21(), old.m22(), old.m23(), old.m31(),
                            old.m32(), old.m33()),
                 false);
    if (ZvTimeTableScene *timeTable = timeTableScene())
        timeTable->setHorizontalScale(scale);
}

void ZvTimeTableView::resizeEvent(QResizeEvent *event)
{
    // From right to left the scroll bar stands on the left.
    m_noScheduleLabel->move(isRightToLeft() ? viewport()->x() : 0, 0);
    m_noScheduleLabel->resize(event->size());
    const double width = event->size().width() * shareOfWidth;
    setHorizontalScale(width <= widthAtUnitScale ? 1.0 : width / widthAtUnitScale);
    QGraphicsView::resizeEvent(event);
}

bool ZvTimeTableView::isMovingKey(const QKeyEvent *event) const
{
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    const ZvTimeTableScene *timeTable = isArrow ? timeTableScene() : nullptr;
    return timeTable && !timeTable->selectedTimeItems().isEmpty();
}

// A move is reported when it ends, one by keys a moment after the last of them. Whatever comes
// before that may change the selection or the history, and the move has to be in it by then.
void ZvTimeTableView::completeMove()
{
    completeKeyMove();
    if (ZvTimeTableScene *timeTable = timeTableScene())
        timeTable->completeDrag();
}

void ZvTimeTableView::completeKeyMove()
{
    if (m_isMovingByKey)
        onMovingKeyCheckingTimerEvent();
}

bool ZvTimeTableView::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && !isMovingKey(static_cast<QKeyEvent *>(event)))
        completeKeyMove();
    return QGraphicsView::event(event);
}

// One whose release went to a menu would go on selecting during the next drag, which then moves
// what it selects.
void ZvTimeTableView::dropRubberBand()
{
    setDragMode(NoDrag);
    setDragMode(RubberBandDrag);
}

// A press during a drag is that of another button. The right one leaves the selection and the drag
// as they are.
bool ZvTimeTableView::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        completeKeyMove();
        if (static_cast<QMouseEvent *>(event)->button() != Qt::RightButton) {
            completeMove();
            dropRubberBand();
        }
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::Drop:
        completeKeyMove();
        break;
    case QEvent::MouseMove:
        if (static_cast<QMouseEvent *>(event)->buttons() != Qt::NoButton)
            completeKeyMove();
        break;
    default:
        break;
    }
    return QGraphicsView::viewportEvent(event);
}

void ZvTimeTableView::keyPressEvent(QKeyEvent *event)
{
    if (!isMovingKey(event)) {
        QGraphicsView::keyPressEvent(event);
        return;
    }
    m_movingKeyTimer.stop();
    m_isMovingByKey = true;
    const double step = 1.0 / transform().m22();
    const double dy = event->key() == Qt::Key_Up ? -step : step;
    timeTableScene()->moveSelectedTimeItems(QPointF(0.0, dy), QPointF());
    event->accept();
}

void ZvTimeTableView::keyReleaseEvent(QKeyEvent *event)
{
    if (!isMovingKey(event)) {
        QGraphicsView::keyReleaseEvent(event);
        return;
    }
    m_movingKeyTimer.start();
    event->accept();
}

void ZvTimeTableView::focusOutEvent(QFocusEvent *event)
{
    // The release of a held key goes to whoever has the focus then; the move is complete all the
    // same.
    completeKeyMove();
    QGraphicsView::focusOutEvent(event);
}

// The page of another channel comes, whose history is not for what is moved here.
void ZvTimeTableView::hideEvent(QHideEvent *event)
{
    completeMove();
    QGraphicsView::hideEvent(event);
}

void ZvTimeTableView::onMovingKeyCheckingTimerEvent()
{
    m_movingKeyTimer.stop();
    m_isMovingByKey = false;
    Q_EMIT keyReleasedWithItemMoved();
}

void ZvTimeTableView::mouseMoveEvent(QMouseEvent *event)
{
    if (const ZvTimeTableScene *timeTable = timeTableScene()) {
        const QPointF scenePos = mapToScene(event->pos());
        QString timeString = noTime();
        if (const ZvTimeTableBaseItem *base = timeTable->baseItem())
            timeString = base->timeStringAt(base->mapFromScene(scenePos));
        if (timeString != m_timeString) {
            m_timeString = timeString;
            Q_EMIT timeStringChanged(timeString);
        }
        const bool onHandle = timeTable->resizeHandleAt(scenePos) != ZvTimeTableScene::NoDrag;
        const Qt::CursorShape shape = onHandle ? Qt::SizeVerCursor : Qt::ArrowCursor;
        if (cursor().shape() != shape)
            setCursor(shape);
    }
    QGraphicsView::mouseMoveEvent(event);
}

void ZvTimeTableView::mouseReleaseEvent(QMouseEvent *event)
{
    m_lastReleasePos = event->pos();
    QGraphicsView::mouseReleaseEvent(event);
}

void ZvTimeTableView::paintEvent(QPaintEvent *event)
{
    // After the scene was given up.
    if (!scene())
        QPainter(viewport()).fillRect(event->rect(), viewport()->palette().base());
    QGraphicsView::paintEvent(event);
}

void ZvTimeTableView::contextMenuEvent(QContextMenuEvent *event)
{
    Q_EMIT requestContextMenu(event->pos());
    event->accept();
}

void ZvTimeTableView::showContextMenu(QPoint pos)
{
    if (m_contextMenu)
        m_contextMenu->exec(mapToGlobal(pos));
}

void ZvTimeTableView::onHrozontalScrollBarValueChanged(int)
{
    Q_EMIT horizontalScrollBarValueChanged();
}

} // namespace Zavo
