#include "timetable/TimeTablePage.h"

#include "ZvSchedule.h"
#include "domain/MessageBox.h"
#include "services/ZvScheduleClipboard.h"
#include "stages/ZvScheduleDefaultStageWidget.h"
#include "timetable/TimeBlock.h"
#include "timetable/TimeItemRects.h"
#include "timetable/UnseenWidgets.h"
#include "timetable/WorkingAreaHeader.h"
#include "timetable/WorkingAreaStatusBar.h"
#include "timetable/ZvTimeTableBaseItem.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCursor>
#include <QVBoxLayout>

#include <utility>

namespace Zavo {

namespace {

constexpr double spaceAboveTable = 20.0; ///< in scene units
constexpr double spaceBelowTable = 40.0; ///< in scene units

} // namespace

TimeTablePage::TimeTablePage(QWidget *parent)
    : QWidget(parent)
    , m_header(new WorkingAreaHeader(this))
    , m_scene(new ZvTimeTableScene)
    , m_view(new ZvTimeTableView(m_scene, this))
    , m_statusBar(new WorkingAreaStatusBar(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_view);
    layout->addWidget(m_statusBar);
    createTimeTable();
    connectParts();
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Schedule of the channel"));
    m_unseenWidgets = std::make_unique<UnseenWidgets>(this);
}

TimeTablePage::~TimeTablePage()
{
    if (ZvTimeTableScene *scene = releaseScene())
        Q_EMIT graphicsScenePurged(scene);
}

// A tab widget asks all its pages for their sizes, and each answer means to style and lay out every
// child of a page. Blank pages are alike, so one of them answers for its siblings.
const TimeTablePage *TimeTablePage::spokesman() const
{
    static QPointer<const TimeTablePage> first;
    if (!m_isBlank)
        return this;
    if (!first || !first->m_isBlank || first->parentWidget() != parentWidget())
        first = this;
    return first;
}

QSize TimeTablePage::sizeHint() const
{
    return spokesman()->QWidget::sizeHint();
}

QSize TimeTablePage::minimumSizeHint() const
{
    return spokesman()->QWidget::minimumSizeHint();
}

void TimeTablePage::showEvent(QShowEvent *event)
{
    m_unseenWidgets.reset();
    m_isBlank = false;
    updateGeometry();
    QWidget::showEvent(event);
}

void TimeTablePage::createTimeTable()
{
    auto *baseItem = new ZvTimeTableBaseItem;
    m_scene->setBaseItem(baseItem);
    auto *zone = new ZvTimeTableTimeZoneItem;
    baseItem->addTimeZone(zone);
    m_scene->setTimeZoneItem(zone);

    QRectF rect = m_scene->sceneRect();
    rect.setHeight(baseItem->itemHeight() + spaceBelowTable);
    rect.setTop(-spaceAboveTable);
    m_view->setSceneRect(rect);
    m_view->setBaseItem(baseItem);
}

void TimeTablePage::connectParts()
{
    const QObject *box = m_header->defaultStageWidget();
    const QObject *zone = timeZone();
    const QObject *scene = m_scene;
    // clang-format off
    connect(m_header->createButton(), SIGNAL(clicked()), this, SLOT(onCreateScheduleButtonClicked()));
    connect(m_statusBar->scaleComboBox(), SIGNAL(currentIndexChanged(int)), this, SLOT(onScaleComboBoxIndexChanged(int)));
    connect(zone, SIGNAL(warningErrorOccured(QString)), this, SLOT(onWarningErrorOccured(QString)));
    connect(zone, SIGNAL(criticalErrorOccured(QString)), this, SLOT(onCriticalErrorOccured(QString)));
    connect(zone, SIGNAL(timeItemInserted(QList<ZvTime>)), this, SLOT(onTimeItemInserted(QList<ZvTime>)));
    connect(zone, SIGNAL(requestDisableSelectionChanged(bool)), scene, SLOT(setDisableSelectionChanged(bool)), Qt::DirectConnection);
    connect(zone, SIGNAL(requestSelectionChanged()), scene, SLOT(onSelectionChanged()));
    connect(zone, SIGNAL(requestSelectionChanged()), this, SLOT(onSceneItemSelectionChanged()));
    connect(m_view, SIGNAL(timeStringChanged(QString)), this, SLOT(onTimeStringChanged(QString)), Qt::QueuedConnection);
    connect(m_view, SIGNAL(keyReleasedWithItemMoved()), this, SLOT(onMousePressingMoved()));
    connect(zone, SIGNAL(timeStringChanged(QString)), this, SLOT(onTimeStringChanged(QString)), Qt::QueuedConnection);
    connect(scene, SIGNAL(selectionChanged()), this, SLOT(onSceneItemSelectionChanged()));
    connect(scene, SIGNAL(mousePressingMoved()), this, SLOT(onMousePressingMoved()));
    connect(scene, SIGNAL(mousePressed()), this, SLOT(onSceneActivated()));
    connect(box, SIGNAL(stageNameChangedWithUndo(QString,QString)), this, SLOT(onDefaultStageNameChangedWithUndo(QString,QString)));
    // clang-format on
}

QString TimeTablePage::defaultStageName() const
{
    return m_header->defaultStageWidget()->stageName();
}

QList<ZvTime> TimeTablePage::currentTimes() const
{
    const ZvTimeTableTimeZoneItem *zone = timeZone();
    return zone ? zone->times() : QList<ZvTime>();
}

QList<ZvTimeTableTimeItem *> TimeTablePage::selectedTimeItems() const
{
    return m_scene ? m_scene->selectedTimeItems() : QList<ZvTimeTableTimeItem *>();
}

QList<ZvTime> TimeTablePage::timeItemsInRange(QTime start, QTime end) const
{
    return m_scene ? m_scene->timeItemsInRange(start, end) : QList<ZvTime>();
}

TimeTablePage::SelectedType TimeTablePage::hasSelectedItems() const
{
    using Interface = ZvScheduleCommonInterface;
    const ZvTimeTableTimeZoneItem *zone = timeZone();
    if (!zone)
        return {};
    const int selected = zone->selectedTimeItemCount();
    if (selected == 0)
        return Interface::SelectedSelectAll;
    SelectedType possible = Interface::SelectedCopy | Interface::SelectedCut |
                            Interface::SelectedDelete | Interface::SelectedDeselectAll;
    possible.setFlag(Interface::SelectedSelectAll, selected < zone->timeItemCount());
    return possible;
}

void TimeTablePage::completeMove()
{
    if (m_scene)
        m_view->completeMove();
}

void TimeTablePage::insertTimeItems(const QList<ZvTime> &times)
{
    if (m_scene)
        m_scene->insertTimeItems(times);
}

void TimeTablePage::removeTimeItems(const QList<ZvTime> &times)
{
    if (m_scene)
        m_scene->removeTimeItems(times);
}

QList<ZvTime> TimeTablePage::deleteSelectedItems()
{
    return m_scene ? m_scene->removeSelectedTimeItems() : QList<ZvTime>();
}

void TimeTablePage::selectAllItems()
{
    if (ZvTimeTableTimeZoneItem *zone = timeZone())
        zone->selectAllTimeItems();
}

void TimeTablePage::deselectAllItems()
{
    if (ZvTimeTableTimeZoneItem *zone = timeZone())
        zone->clearSelection();
}

bool TimeTablePage::copySelectedItems()
{
    if (!m_scheduleEnabled || !m_scene)
        return false;
    const QList<ZvTime> times = m_scene->selectedTimes();
    ZvScheduleClipboard::writeTimesToClipboard(TimeBlock::copyOf(times));
    return !times.isEmpty();
}

QList<ZvTime> TimeTablePage::cutSelectedItems()
{
    return copySelectedItems() ? deleteSelectedItems() : QList<ZvTime>();
}

QPointF TimeTablePage::positionInZone(const QPoint &viewPosition) const
{
    return timeZone()->mapFromScene(m_view->mapToScene(viewPosition));
}

bool TimeTablePage::isPastingPossible() const
{
    const ZvTimeTableTimeZoneItem *zone = timeZone();
    if (!m_scheduleEnabled || !zone || !ZvScheduleClipboard::hasTimeData())
        return false;
    const QRectF strip = zone->innerRect();
    return strip.contains(positionInZone(m_view->mapFromGlobal(QCursor::pos()))) ||
           strip.contains(positionInZone(m_view->lastReleasePos()));
}

bool TimeTablePage::pasteItems()
{
    if (!m_scheduleEnabled || !timeZone())
        return false;
    const QList<ZvTime> times = ZvScheduleClipboard::readTimesFromClipboard();
    const QPointF position = positionInZone(m_view->lastReleasePos());
    if (times.isEmpty() || !timeZone()->innerRect().contains(position))
        return false;

    const TimeBlock block(times);
    const QTime target = timeZone()->timeAtY(position.y());
    if (!block.fitsAt(target)) {
        showCritical(tr("Stopped"),
                     tr("Can not paste.\nThere is not enough blank duration to paste "
                        "in the time area."));
        return false;
    }
    const QList<ZvTime> pasted = block.movedTo(target);
    const QList<ZvTime> removed =
        timeItemsInRange(pasted.first().startTime(), pasted.last().endTime());
    if (!removed.isEmpty() && !makeRoom(removed))
        return false;
    const QPointer<TimeTablePage> self(this);
    insertTimeItems(pasted);
    if (!self) // A message about a band runs an event loop.
        return false;
    Q_EMIT timeItemPasted(removed, pasted);
    return true;
}

bool TimeTablePage::makeRoom(const QList<ZvTime> &timesInTheWay)
{
    const int answer = showWarningQuestion(
        tr("Notice"),
        tr("There is the assigned time band in target range.\nDo you want to delete the "
           "assigned time band and to paste?"));
    if (answer != QMessageBox::Yes)
        return false;
    removeTimeItems(timesInTheWay);
    return true;
}

void TimeTablePage::setContextMenu(QMenu *menu)
{
    m_view->setContextMenu(menu);
}

ZvTimeTableScene *TimeTablePage::releaseScene()
{
    ZvTimeTableScene *scene = m_scene;
    if (!scene)
        return nullptr;
    if (timeZone())
        timeZone()->disconnect(this);
    scene->disconnect(this);
    scene->setParent(nullptr);
    m_scene.clear();
    return scene;
}

QGraphicsScene *TimeTablePage::takeScene()
{
    ZvTimeTableScene *scene = releaseScene();
    if (scene)
        scene->disconnect();
    return scene;
}

ZvTimeTableScene *TimeTablePage::scene() const
{
    return m_scene;
}

ZvTimeTableTimeZoneItem *TimeTablePage::timeZone() const
{
    return m_scene ? m_scene->timeZoneItem() : nullptr;
}

void TimeTablePage::setTitle(const QString &name)
{
    m_isBlank = false;
    m_header->setTitle(name.isEmpty() ? tr("Schedule of Unknown") : tr("Schedule of %1").arg(name));
    m_currentScheduleName = name;
}

void TimeTablePage::setScheduleEnabled(bool enabled)
{
    m_isBlank = false;
    m_scheduleEnabled = enabled;
    m_header->setScheduleEnabled(enabled);
    m_view->setNoScheduleLabelVisible(!enabled);
    Q_EMIT currentScheuleEnabledChanged(enabled);
}

bool TimeTablePage::switchSchedule(const ZvSchedule &schedule)
{
    if (!m_scene)
        return false;
    m_isBlank = false;
    ZvScheduleDefaultStageWidget *box = m_header->defaultStageWidget();
    box->setStageName(QString());
    m_scene->removeAllTimeItems();
    if (schedule.isEmpty() && schedule.type() != ZvSchedule::Default)
        return false;
    box->setStageName(schedule.defaultStage());
    // A listener of these changes may have taken the scene.
    return m_scene && m_scene->insertTimeItems(schedule.timeList());
}

void TimeTablePage::setDefaultStageName(const QString &name)
{
    m_isBlank = false;
    m_header->defaultStageWidget()->setStageName(name);
}

void TimeTablePage::moveTimeItems(const QMap<int, QRectF> &afterRects, bool select)
{
    if (!timeZone())
        return;
    applyRects(m_scene, afterRects, select);
    if (select)
        onSceneItemSelectionChanged();
}

void TimeTablePage::changeTimeItemTimes(const QMap<int, ZvTime> &itemTimes)
{
    if (ZvTimeTableTimeZoneItem *zone = timeZone())
        zone->setTimeItemTimes(itemTimes);
}

void TimeTablePage::selectPreviousTimeItem()
{
    completeMove();
    if (ZvTimeTableTimeZoneItem *zone = timeZone())
        zone->selectPreviousTimeItem();
}

void TimeTablePage::selectNextTimeItem()
{
    completeMove();
    if (ZvTimeTableTimeZoneItem *zone = timeZone())
        zone->selectNextTimeItem();
}

void TimeTablePage::onTimeItemInserted(const QList<ZvTime> &times)
{
    if (!times.isEmpty())
        Q_EMIT timeItemInserted(times);
}

void TimeTablePage::onSceneItemSelectionChanged()
{
    // Within a bulk change the selection changes with every band; its end is reported once.
    if (timeZone() && !m_scene->isDesabeleSelectionChanged())
        m_selectedItemRects = rectsOf(timeZone()->selectedTimeItems());
}

void TimeTablePage::onMousePressingMoved()
{
    const ZvTimeTableTimeZoneItem *zone = timeZone();
    if (!zone)
        return;
    const QList<ZvTimeTableTimeItem *> items = zone->selectedTimeItems();
    if (items.isEmpty() || items.size() != m_selectedItemRects.size())
        return;
    const TimeItemRects afterRects = changedRects(items, m_selectedItemRects);
    if (afterRects.size() != m_selectedItemRects.size())
        return;
    const TimeItemRects beforeRects = std::exchange(m_selectedItemRects, afterRects);
    Q_EMIT timeTableTimeItemsMovingFinished(afterRects, beforeRects);
}

void TimeTablePage::onDefaultStageNameChangedWithUndo(const QString &oldName,
                                                      const QString &newName)
{
    Q_EMIT defaultStageNameChangedWithUndo(oldName, newName);
}

void TimeTablePage::onScaleComboBoxIndexChanged(int index)
{
    const double scale = m_statusBar->scaleAt(index);
    if (scale <= 0.0)
        return;
    if (m_scene)
        m_scene->setVerticalScale(scale);
    m_view->changeScale(scale);
}

void TimeTablePage::onTimeStringChanged(const QString &timeString)
{
    m_statusBar->setTimeString(timeString);
}

void TimeTablePage::onSceneActivated()
{
    Q_EMIT activated();
}

void TimeTablePage::onCreateScheduleButtonClicked()
{
    Q_EMIT requestCreateCurrentSchedule();
}

void TimeTablePage::onCriticalErrorOccured(const QString &message)
{
    showCritical(tr("Error"), message);
}

void TimeTablePage::onWarningErrorOccured(const QString &message)
{
    showWarning(tr("Notice"), message);
}

void TimeTablePage::showWarning(const QString &title, const QString &message)
{
    showMessageBox(this, QMessageBox::Warning, title, message);
}

void TimeTablePage::showCritical(const QString &title, const QString &message)
{
    showMessageBox(this, QMessageBox::Critical, title, message);
}

int TimeTablePage::showWarningQuestion(const QString &title, const QString &message,
                                       int *pressedButton)
{
    return ask(QMessageBox::Warning, title, message, pressedButton);
}

int TimeTablePage::showQuestion(const QString &title, const QString &message, int *pressedButton)
{
    return ask(QMessageBox::Question, title, message, pressedButton);
}

int TimeTablePage::ask(QMessageBox::Icon icon, const QString &title, const QString &message,
                       int *pressedButton)
{
    const int pressed =
        showMessageBox(this, icon, title, message, QMessageBox::Yes | QMessageBox::No);
    if (pressedButton)
        *pressedButton = pressed;
    return pressed;
}

} // namespace Zavo
