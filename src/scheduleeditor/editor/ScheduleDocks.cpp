#include "editor/ScheduleDocks.h"

#include "editor/DockNames.h"

#include "ZvEditorCommon.h"
#include "ZvSystemInfo.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>

namespace Zavo {

namespace {

constexpr char DockContext[] = "Zavo::ZvScheduleEditor";

constexpr double HeightShare = 0.7;      // of the window
constexpr int LeftWidth = 330;           // times the ratio
constexpr int RightWidth = 300;          // times the ratio
constexpr int ItemPropertyHeight = 170;  // px
constexpr int ItemPropertyMinimum = 150; // px
constexpr int ButtonSize = 16;           // times the ratio
constexpr int FloatButtonDistance = 3;   // px

const QLatin1String
    FirstDockStyle("QDockWidget::title {height: 12pt;}"
                   "QDockWidget {titlebar-close-icon: url(:/images/close_black.svg);}");
const QLatin1String ScaledDockStyle(
    "QDockWidget {icon-size: %1px; titlebar-close-icon: url(:/images/close_black.svg); "
    "titlebar-normal-icon: url(:/images/window_normal_black.svg);}"
    "QDockWidget::float-button {right: %2px;}");

struct DockFrame
{
    const char *name;
    const char *title;
    bool translated;
};

constexpr DockFrame DockFrames[] = {
    {DockName::SwitchSchedule, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Switch Schedule"),
     true},
    {DockName::ScheduleList, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Schedule List"), true},
    {DockName::ChooseStage, QT_TRANSLATE_NOOP("Zavo::ZvScheduleEditor", "Choose Stage"), true},
    {DockName::ItemProperty, "Asssigned Item Property", false},
};

QString titleOf(const DockFrame &frame)
{
    return frame.translated ? QCoreApplication::translate(DockContext, frame.title)
                            : QLatin1String(frame.title);
}

// Docks that were just placed have no sizes yet, and no event gives them theirs as long as the
// window is not shown.
void layOutDocks(const QWidget *window)
{
    if (window && window->layout())
        window->layout()->activate();
}

// A dock below or above this one that is seen too, or null.
QDockWidget *neighbourOf(QDockWidget *dock, const QMainWindow *window)
{
    const QList<QDockWidget *> tabs = window->tabifiedDockWidgets(dock);
    const auto others = window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget *other : others) {
        const bool shares = window->dockWidgetArea(other) == window->dockWidgetArea(dock) &&
                            !other->isHidden() && !other->isFloating();
        if (shares && other != dock && !tabs.contains(other) &&
            window->rect().intersects(other->geometry()))
            return other;
    }
    return nullptr;
}

// The limits of a dock shrink the dock itself, but not the place that the layout keeps for it.
void shrinkPlace(QDockWidget *dock, QMainWindow *window, int width, int height)
{
    if (width > 0 && dock->width() != width) {
        window->resizeDocks({dock}, {width}, Qt::Horizontal);
        layOutDocks(window);
        // The window reckons with the tab bar beside the dock.
        const int corrected = 2 * width - dock->width();
        if (corrected > 0 && corrected != width)
            window->resizeDocks({dock}, {corrected}, Qt::Horizontal);
    }
    QDockWidget *neighbour = height > 0 ? neighbourOf(dock, window) : nullptr;
    const int rest = neighbour ? neighbour->height() + dock->height() - height : 0;
    if (rest > 0)
        window->resizeDocks({neighbour, dock}, {rest, height}, Qt::Vertical);
    layOutDocks(window);
}

} // namespace

ScheduleDocks::ScheduleDocks(QMainWindow *window)
    : m_window(window)
{
}

ScheduleDocks::~ScheduleDocks()
{
    for (const QPointer<QDockWidget> &dock : m_docks)
        delete dock;
}

QDockWidget *ScheduleDocks::create(Which which, QObject *filter)
{
    const DockFrame &frame = DockFrames[which];
    auto *dock = new QDockWidget(titleOf(frame));
    dock->setObjectName(QLatin1String(frame.name));
    dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    dock->setStyleSheet(FirstDockStyle);
    dock->installEventFilter(filter);
    m_docks[which] = dock;
    return dock;
}

QDockWidget *ScheduleDocks::dock(Which which) const
{
    return m_docks[which];
}

QList<QDockWidget *> ScheduleDocks::docks() const
{
    QList<QDockWidget *> result;
    for (const QPointer<QDockWidget> &dock : m_docks) {
        if (dock)
            result.append(dock);
    }
    return result;
}

// A dock behind another tab counts as visible; the layout only moves it out of the window.
bool ScheduleDocks::isInFront(Which which) const
{
    const QDockWidget *dock = m_docks[which];
    if (!dock || !dock->isVisible())
        return false;
    return dock->isFloating() || !m_window || m_window->rect().intersects(dock->geometry());
}

void ScheduleDocks::attach()
{
    if (!m_window || docks().size() < Count)
        return;
    m_attached = true;
    m_window->setTabPosition(Qt::LeftDockWidgetArea, QTabWidget::West);
    m_window->setTabPosition(Qt::RightDockWidgetArea, QTabWidget::West);
    for (const Which which : {SwitchSchedule, ScheduleList, ItemProperty, ChooseStage})
        takeHome(m_docks[which]);
    place();
    showPlaced();
}

// A dock that was in no window yet comes home when it is placed. It takes its last style sheet
// before that: each later change styles all its content anew.
void ScheduleDocks::takeHome(QDockWidget *dock) const
{
    if (dock->parentWidget() == m_window)
        dock->setFloating(false);
    else
        scaleButtons(dock);
}

void ScheduleDocks::place()
{
    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_docks[SwitchSchedule]);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_docks[ScheduleList]);
    m_window->addDockWidget(Qt::RightDockWidgetArea, m_docks[ChooseStage]);
    m_window->addDockWidget(Qt::RightDockWidgetArea, m_docks[ItemProperty]);
}

// The list is shown once so that it is known to the tab group when it is hidden.
void ScheduleDocks::showPlaced()
{
    m_docks[SwitchSchedule]->show();
    m_docks[ScheduleList]->show();
    m_window->tabifyDockWidget(m_docks[SwitchSchedule], m_docks[ScheduleList]);
    m_docks[ScheduleList]->hide();
    m_docks[ChooseStage]->show();
    for (const Which which : {SwitchSchedule, ChooseStage, ItemProperty}) {
        if (QWidget *content = m_docks[which]->widget())
            content->show();
    }
    m_docks[ItemProperty]->setMinimumHeight(ItemPropertyMinimum);
}

void ScheduleDocks::setDefaultSizes()
{
    if (!m_window)
        return;
    const double ratio = ZvSystemInfo::getDpiRatio(m_window);
    const int height = int(m_window->geometry().height() * HeightShare);
    const int left = int(ratio * LeftWidth);
    const int right = int(ratio * RightWidth);
    // Copied, since this object may be gone after the first of them.
    const std::array<QPointer<QDockWidget>, Count> docks = m_docks;
    changeDockWidgetSize(docks[SwitchSchedule], left, height);
    changeDockWidgetSize(docks[ScheduleList], left, height);
    changeDockWidgetSize(docks[ChooseStage], right, height - ItemPropertyHeight);
    changeDockWidgetSize(docks[ItemProperty], right, ItemPropertyHeight);
}

void ScheduleDocks::changeDockWidgetSize(QDockWidget *dock, int width, int height)
{
    if (!dock)
        return;
    layOutDocks(dock->parentWidget());
    const QSize minimum = dock->minimumSize();
    const QSize maximum = dock->maximumSize();
    if (width > 0 && dock->width() >= width)
        dock->setMaximumWidth(width);
    else if (width > 0)
        dock->setMinimumWidth(width);
    if (height > 0 && dock->height() >= height)
        dock->setMaximumHeight(height);
    else if (height > 0)
        dock->setMinimumHeight(height);
    const QPointer<QDockWidget> alive(dock);
    QCoreApplication::processEvents();
    if (!alive)
        return;
    dock->setMinimumSize(minimum);
    dock->setMaximumSize(maximum);
    layOutDocks(dock->parentWidget());
    auto *window = qobject_cast<QMainWindow *>(dock->parentWidget());
    if (window && !dock->isFloating() && !dock->isHidden())
        shrinkPlace(dock, window, width, height);
}

void ScheduleDocks::restore(const QString &name)
{
    const QList<QDockWidget *> all = docks();
    for (QDockWidget *dock : all)
        ZvEditorCommon::restoreDockWidgetGeometry(dock, m_window);
    ZvEditorCommon::reorderDockWidgets(all, m_window);
    ZvEditorCommon::restoreTabifiedSettings(name, m_window);
}

void ScheduleDocks::store(const QString &name) const
{
    const QList<QDockWidget *> all = docks();
    for (QDockWidget *dock : all)
        ZvEditorCommon::storeDockWidgetGeometry(dock, m_window);
    ZvEditorCommon::storeTabifiedSettings(name, m_window);
}

void ScheduleDocks::giveUp()
{
    m_attached = false;
    for (QPointer<QDockWidget> &dock : m_docks) {
        if (!dock)
            continue;
        dock->setParent(nullptr);
        dock->deleteLater();
        dock.clear();
    }
}

// A resize without a change of the ratio is no reason to style the dock anew.
void ScheduleDocks::scaleButtons(QDockWidget *dock)
{
    const int size = int(ZvSystemInfo::getDpiRatio(dock) * ButtonSize);
    const QString style = QString(ScaledDockStyle).arg(size).arg(size + FloatButtonDistance);
    if (dock->styleSheet() != style)
        dock->setStyleSheet(style);
}

} // namespace Zavo
