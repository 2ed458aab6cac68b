#include "navigation/ZvCalendarWidget.h"

#include "navigation/CalendarCell.h"
#include "navigation/CalendarMenu.h"
#include "navigation/CalendarPage.h"
#include "navigation/NavigationNames.h"

#include "ZvSystemInfo.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTextCharFormat>

namespace Zavo {

namespace {

const QColor saturdayColor(0, 0, 255);

} // namespace

ZvCalendarWidget::ZvCalendarWidget(QWidget *parent)
    : QCalendarWidget(parent)
    , m_selection(selectedDate())
    , m_calendarView(findChild<QTableView *>(QLatin1String(NavigationName::CalendarView)))
    , m_navigationBar(this)
{
    installEventFilter(this);
    setGridVisible(true);
    // The first to hear of a selection: the others read what this one makes of it.
    connect(this, SIGNAL(activated(QDate)), this, SLOT(onActivated(QDate)));
    connect(this, SIGNAL(clicked(QDate)), this, SLOT(onClicked(QDate)));
    connect(this, SIGNAL(selectionChanged()), this, SLOT(onSelectionChanged()));

    QTextCharFormat saturday = weekdayTextFormat(Qt::Saturday);
    saturday.setForeground(saturdayColor);
    setWeekdayTextFormat(Qt::Saturday, saturday);

    m_menu = createMenu();
    setupNavigationBar();
    setupView();
    setWhatsThis(tr("Click a date to edit its schedule. Ctrl and Shift select several dates for "
                    "the commands of the edit menu. A frame marks the dates that have a schedule, "
                    "and green is today."));
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(showContextMenu(QPoint)));
}

ZvCalendarWidget::~ZvCalendarWidget() = default;

void ZvCalendarWidget::setupNavigationBar()
{
    for (QToolButton *arrow :
         {m_navigationBar.previousMonthButton(), m_navigationBar.nextMonthButton()}) {
        if (arrow)
            connect(arrow, SIGNAL(clicked()), this, SLOT(onWidgetClicked()));
    }
    setupMonthButton();
    m_navigationBar.addMenuButton(m_menu);
    m_navigationBar.setAccessibleNames();
    if (QToolButton *button = m_navigationBar.menuButton())
        button->installEventFilter(this);
    setupYearButton();
    connect(
        this, &ZvCalendarWidget::dpiRatioChanged, this,
        [this](double dpiRatio) { m_navigationBar.setIconRatio(dpiRatio); }, Qt::QueuedConnection);
}

void ZvCalendarWidget::setupMonthButton()
{
    QToolButton *button = m_navigationBar.monthButton();
    if (!button)
        return;
    button->installEventFilter(this);
    m_monthMenu = button->menu();
    if (!m_monthMenu)
        return;
    const QList<QAction *> months = m_monthMenu->actions();
    for (QAction *month : months)
        month->setCheckable(true);
    connect(m_monthMenu, SIGNAL(aboutToShow()), this, SLOT(onMonthMenuAbountToShow()));
}

void ZvCalendarWidget::setupYearButton()
{
    QToolButton *button = m_navigationBar.yearButton();
    if (!button)
        return;
    connect(button, SIGNAL(pressed()), this, SLOT(onWidgetClicked()));
    const QDate today = QDate::currentDate();
    m_navigationBar.placeYear(QLocale::system().toString(today, QLocale::LongFormat), today.year());
    button->installEventFilter(this);
}

// The base class asks for as much width as the names of days need, which is more in some languages
// than a dock has at first.
void ZvCalendarWidget::fitDayNames()
{
    constexpr int columns = 8; // with the week numbers
    constexpr int columnPx = 35;
    constexpr int marginsPx = 7;
    int widest = 1;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        const QString name = locale().dayName(day, QLocale::ShortFormat);
        widest = qMax(widest, fontMetrics().horizontalAdvance(name));
    }
    const double ratio = ZvSystemInfo::getDpiRatio(this);
    setMinimumWidth(static_cast<int>(columns * columnPx * ratio));
    const double share = (columnPx * ratio - marginsPx) / widest;
    if (share >= 1.0)
        return;
    QTextCharFormat format = headerTextFormat();
    format.setFontPointSize(font().pointSizeF() * share);
    setHeaderTextFormat(format);
}

void ZvCalendarWidget::setupView()
{
    if (!m_calendarView)
        return;
    m_calendarView->setAccessibleName(tr("Calendar"));
    m_calendarView->setAttribute(Qt::WA_MouseTracking);
    fitDayNames();
    m_calendarView->installEventFilter(this);
    // Another page puts another date under a mouse that rests.
    connect(this, SIGNAL(currentPageChanged(int,int)), this, SLOT(forgetHoveredCell()));
}

QList<QDate> ZvCalendarWidget::selectedDates() const
{
    return m_selection.dates();
}

QMap<QDate, bool> ZvCalendarWidget::scheduledDates() const
{
    return m_scheduled;
}

bool ZvCalendarWidget::isScheduledDate(const QDate &date) const
{
    return m_scheduled.contains(date);
}

bool ZvCalendarWidget::selectionHasScheduledDate() const
{
    return m_selection.intersects(m_scheduled);
}

void ZvCalendarWidget::clearAllScheduledDates()
{
    m_scheduled.clear();
    onScheduledChanged();
}

void ZvCalendarWidget::setScheduleCountLabel(QLabel *label)
{
    m_scheduleCountLabel = label;
}

void ZvCalendarWidget::setEditMenu(QMenu *menu)
{
    if (m_editMenu == menu)
        return;
    exchangeEditActions(m_menu, m_editMenu, menu);
    m_editMenu = menu;
}

QMenu *ZvCalendarWidget::createMenu()
{
    QMenu *menu = createCalendarMenu(this);
    m_menus.append(menu);
    return menu;
}

void ZvCalendarWidget::selectWeek(QDate date)
{
    if (!date.isValid())
        return;
    setSelectedDate(date);
    const int daysBefore = (date.dayOfWeek() - firstDayOfWeek() + 7) % 7;
    const QDate start = date.addDays(-daysBefore);
    m_selection.setRange(start, start.addDays(6));
    updateCells();
}

void ZvCalendarWidget::selectWeek()
{
    selectWeek(selectedDate());
}

void ZvCalendarWidget::selectMonth(QDate date)
{
    if (!date.isValid())
        return;
    setSelectedDate(date);
    const QDate start(date.year(), date.month(), 1);
    m_selection.setRange(start, start.addDays(date.daysInMonth() - 1));
    updateCells();
}

void ZvCalendarWidget::selectMonth()
{
    selectMonth(selectedDate());
}

void ZvCalendarWidget::setScheduledDate(QDate date)
{
    if (!date.isValid())
        return;
    m_scheduled.insert(date, true);
    onScheduledChanged();
}

void ZvCalendarWidget::clearScheduledDate(QDate date)
{
    m_scheduled.remove(date);
    onScheduledChanged();
}

void ZvCalendarWidget::onScheduledChanged()
{
    if (m_scheduleCountLabel) {
        QString count = tr("None");
        if (m_scheduled.size() == 1)
            count = tr("1 day");
        else if (m_scheduled.size() > 1)
            count = tr("%1 days").arg(m_scheduled.size());
        m_scheduleCountLabel->setText(tr("Schedule of days: ") + count);
    }
    updateCells();
}

void ZvCalendarWidget::selectToday()
{
    m_selection.clear();
    setSelectionMode(QCalendarWidget::NoSelection);
    updateCells();
    setSelectionMode(QCalendarWidget::SingleSelection);
    setSelectedDate(QDate::currentDate());
    showToday();
    Q_EMIT clicked(this);
}

void ZvCalendarWidget::clearMultiSelection()
{
    m_selection.setRange(selectedDate(), selectedDate());
    updateCells();
}

void ZvCalendarWidget::clearHovered()
{
    m_previousHoveredDate = QDate();
    m_hoveredDate = QDate();
    updateCells();
}

void ZvCalendarWidget::onWidgetClicked(QPoint)
{
    Q_EMIT clicked(this);
}

void ZvCalendarWidget::onWidgetClicked()
{
    Q_EMIT clicked(this);
}

bool ZvCalendarWidget::event(QEvent *event)
{
    if (m_dpiRatio.hasChanged(this, event))
        Q_EMIT dpiRatioChanged(m_dpiRatio.ratio());
    const bool recognised = QCalendarWidget::event(event);
    // The base class has just put its own arrows there.
    if (event->type() == QEvent::LayoutDirectionChange)
        m_navigationBar.setArrows(layoutDirection());
    // It was told of by clicked(); a frame around would tell of it again.
    if (event->type() == QEvent::MouseButtonPress)
        event->accept();
    return recognised;
}

// While a year is typed the base class filters the whole application, so each object is told apart.
bool ZvCalendarWidget::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == m_calendarView) {
        if (type == QEvent::MouseMove)
            onMouseMoveEvent(m_calendarView, static_cast<QMouseEvent *>(event));
        else if (type == QEvent::Leave)
            onViewLeft();
    } else if (watched == m_navigationBar.yearButton()) {
        if (type == QEvent::Paint || type == QEvent::Show || type == QEvent::ShowToParent)
            m_navigationBar.completeYearText();
    } else if (type == QEvent::MouseButtonPress &&
               (watched == this || watched == m_navigationBar.monthButton() ||
                watched == m_navigationBar.menuButton())) {
        Q_EMIT clicked(this);
    }
    return QCalendarWidget::eventFilter(watched, event);
}

void ZvCalendarWidget::onActivated(QDate)
{
    // A date is edited as soon as it is clicked.
}

void ZvCalendarWidget::onClicked(QDate)
{
    // A click on the selected date changes no selection of the base class, but perhaps ours.
    if (!m_selectionHandled)
        onSelectionChanged();
    m_selectionHandled = false;
    Q_EMIT clicked(this);
}

void ZvCalendarWidget::onSelectionChanged()
{
    if (m_selecting)
        return;
    const QScopedValueRollback<bool> guard(m_selecting, true);
    changeSelection(selectedDate(), QGuiApplication::keyboardModifiers());
    updateCells();
    m_selectionHandled = true;
}

void ZvCalendarWidget::changeSelection(const QDate &date, Qt::KeyboardModifiers modifiers)
{
    if (modifiers == Qt::ShiftModifier)
        m_selection.extendTo(date);
    else if (modifiers != Qt::ControlModifier)
        m_selection.selectOnly(date);
    else if (m_selection.contains(date))
        takeOut(date);
    else
        m_selection.add(date);
}

void ZvCalendarWidget::takeOut(const QDate &date)
{
    const QDate successor = m_selection.successorOf(date);
    if (successor.isValid())
        setSelectedDate(successor);
    m_selection.takeOut(date, successor);
}

void ZvCalendarWidget::onActionFirstDayOfWeekTriggerd(QAction *action)
{
    const auto *menu = action ? qobject_cast<QMenu *>(action->parent()) : nullptr;
    const int day = menu ? dayOfWeekOfAction(action) : 0;
    if (day == 0)
        return;
    const QString prefix = action->objectName().chopped(1);
    const QList<QAction *> siblings = menu->actions();
    for (QAction *sibling : siblings) {
        if (sibling == action || sibling->objectName().startsWith(prefix))
            sibling->setChecked(sibling == action);
    }
    setFirstDayOfWeek(static_cast<Qt::DayOfWeek>(day));
}

void ZvCalendarWidget::onMenuAboutToShow()
{
    CalendarMenuState state;
    state.severalSelected = m_selection.count() >= 2;
    state.weekNumbersShown = verticalHeaderFormat() == QCalendarWidget::ISOWeekNumbers;
    state.firstDayOfWeek = firstDayOfWeek();
    const QList<QPointer<QMenu>> menus = m_menus;
    for (const QPointer<QMenu> &menu : menus) {
        if (menu == m_menu)
            Q_EMIT requestEditMenuAboutToShow();
        if (menu)
            updateCalendarMenu(menu, state);
    }
}

void ZvCalendarWidget::onActionShowWeekNumberTriggerd(bool checked)
{
    setVerticalHeaderFormat(checked ? QCalendarWidget::ISOWeekNumbers
                                    : QCalendarWidget::NoVerticalHeader);
}

void ZvCalendarWidget::onMonthMenuAbountToShow()
{
    const QList<QAction *> months = m_monthMenu->actions();
    for (int i = 0; i < months.size(); ++i)
        months.at(i)->setChecked(i + 1 == monthShown());
}

void ZvCalendarWidget::onMouseMoveEvent(QTableView *view, QMouseEvent *event)
{
    const QModelIndex index = view->indexAt(event->pos());
    if (index == m_hoveredIndex)
        return;
    m_hoveredIndex = index;
    m_previousHoveredDate = m_hoveredDate;
    m_hoveredDate = CalendarPage(*this, *view->model()).dateAt(index);
    updateValidCell(m_hoveredDate);
    updateValidCell(m_previousHoveredDate);
}

void ZvCalendarWidget::onViewLeft()
{
    forgetHoveredCell();
    updateValidCell(m_previousHoveredDate);
}

void ZvCalendarWidget::forgetHoveredCell()
{
    m_hoveredIndex = QModelIndex();
}

void ZvCalendarWidget::updateValidCell(const QDate &date)
{
    if (date.isValid())
        updateCell(date);
}

void ZvCalendarWidget::showContextMenu(QPoint pos)
{
    m_menu->exec(mapToGlobal(pos));
}

void ZvCalendarWidget::paintCell(QPainter *painter, const QRect &rect, const QDate &date) const
{
    if (date == selectedDate() || m_selection.contains(date))
        paintSelectedCell(painter, rect);
    else
        QCalendarWidget::paintCell(painter, rect, date);

    CalendarCell cell;
    cell.day = locale().toString(date.day());
    const auto weekday = static_cast<Qt::DayOfWeek>(date.dayOfWeek());
    cell.textColor = weekdayTextFormat(weekday).foreground().color();
    cell.scheduled = m_scheduled.contains(date);
    cell.today = date == QDate::currentDate();
    cell.hovered = date == m_hoveredDate;
    paintCalendarCell(painter, rect, cell);
}

} // namespace Zavo
