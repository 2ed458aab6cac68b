#include "timetable/TimeTableAccessibility.h"

#include "timetable/TimeAxis.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QStringList>

namespace Zavo {

namespace {

// What a band's times lose when they are made of its geometry.
constexpr int truncatedMilliseconds = 5;

ZvTimeTableScene *timeTableOf(const QGraphicsItem *band)
{
    return band ? qobject_cast<ZvTimeTableScene *>(band->scene()) : nullptr;
}

ZvTimeTableTimeZoneItem *stripOf(const ZvTimeTableScene *scene)
{
    return scene ? scene->timeZoneItem() : nullptr;
}

QString spokenTime(QTime time)
{
    const int milliseconds = time.msecsSinceStartOfDay() + truncatedMilliseconds;
    return milliseconds >= TimeAxis::millisecondsPerDay
               ? QStringLiteral("24:00:00")
               : QLocale::c().toString(QTime::fromMSecsSinceStartOfDay(milliseconds),
                                       QStringLiteral("hh:mm:ss"));
}

/// A band. It is the cache's, which deletes it with the band.
class AccessibleBand final : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit AccessibleBand(ZvTimeTableTimeItem *band)
        : QAccessibleObject(band)
    {
    }

    bool isValid() const override { return QAccessibleObject::isValid() && view(); }
    QWindow *window() const override
    {
        const ZvTimeTableView *const shown = view();
        return shown ? shown->window()->windowHandle() : nullptr;
    }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(view());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    ZvTimeTableTimeItem *band() const { return qobject_cast<ZvTimeTableTimeItem *>(object()); }
    ZvTimeTableView *view() const
    {
        const ZvTimeTableTimeZoneItem *const strip = stripOf(timeTableOf(band()));
        return strip ? strip->view() : nullptr;
    }
};

QRect AccessibleBand::rect() const
{
    const ZvTimeTableView *const shown = view();
    if (!shown)
        return {};
    const QRectF inScene = band()->mapRectToScene(band()->boundingRect());
    const QRect inView = shown->mapFromScene(inScene).boundingRect();
    return {shown->viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

QString AccessibleBand::text(QAccessible::Text kind) const
{
    const ZvTimeTableTimeItem *const shown = band();
    return shown && kind == QAccessible::Name ? TimeTableAccessibility::nameOf(shown->timeInfo())
                                              : QString();
}

QAccessible::State AccessibleBand::state() const
{
    QAccessible::State state;
    const ZvTimeTableView *const shown = view();
    if (!shown) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.multiSelectable = true;
    state.extSelectable = true;
    state.focusable = true;
    state.selected = band()->isSelected();
    state.focused =
        shown->hasFocus() && timeTableOf(band())->selectedTimeItems().value(0) == band();
    const QRect viewport(shown->viewport()->mapToGlobal(QPoint()), shown->viewport()->size());
    state.offscreen = !viewport.intersects(rect());
    state.invisible = !shown->isVisible();
    state.disabled = !shown->isEnabled();
    return state;
}

void *AccessibleBand::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QStringList AccessibleBand::actionNames() const
{
    return isValid() ? QStringList{pressAction(), toggleAction(), setFocusAction()} : QStringList();
}

// As by the mouse: the page is the one in use from then on, and a move under way has ended. Who
// hears of that may remove the band, and with it this.
void AccessibleBand::doAction(const QString &name)
{
    ZvTimeTableView *const shown = view();
    if (!shown || !actionNames().contains(name))
        return;
    const bool isToToggle = name == toggleAction();
    const QPointer<ZvTimeTableTimeItem> acted(band());
    shown->completeMove();
    if (ZvTimeTableScene *const scene = timeTableOf(acted)) {
        shown->setFocus();
        Q_EMIT scene->mousePressed();
    }
    ZvTimeTableTimeZoneItem *const strip = stripOf(timeTableOf(acted));
    if (isToToggle && acted)
        acted->setSelected(!acted->isSelected());
    else if (strip)
        strip->selectOnly(acted);
}

/// The view. Its own children, such as the scroll bars, come after the bands.
class AccessibleTimeTable final : public QAccessibleWidget
{
public:
    explicit AccessibleTimeTable(ZvTimeTableView *view)
        : QAccessibleWidget(view, QAccessible::List)
    {
    }

    QAccessibleInterface *child(int index) const override;
    int childCount() const override { return bands().size() + QAccessibleWidget::childCount(); }
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QString text(QAccessible::Text kind) const override;

private:
    ZvTimeTableView *view() const { return qobject_cast<ZvTimeTableView *>(object()); }
    ZvTimeTableScene *scene() const
    {
        return view() ? qobject_cast<ZvTimeTableScene *>(view()->scene()) : nullptr;
    }
    QList<ZvTimeTableTimeItem *> bands() const
    {
        const ZvTimeTableTimeZoneItem *const strip = stripOf(scene());
        return strip ? strip->timeItems() : QList<ZvTimeTableTimeItem *>();
    }
};

QAccessibleInterface *AccessibleTimeTable::child(int index) const
{
    const QList<ZvTimeTableTimeItem *> items = bands();
    return index >= 0 && index < items.size()
               ? QAccessible::queryAccessibleInterface(items.at(index))
               : QAccessibleWidget::child(index - items.size());
}

int AccessibleTimeTable::indexOfChild(const QAccessibleInterface *child) const
{
    if (const auto *band =
            child ? qobject_cast<const ZvTimeTableTimeItem *>(child->object()) : nullptr)
        return bands().value(band->index()) == band ? band->index() : -1;
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : index + bands().size();
}

QAccessibleInterface *AccessibleTimeTable::childAt(int x, int y) const
{
    const ZvTimeTableView *const shown = view();
    const QPoint position = shown ? shown->viewport()->mapFromGlobal({x, y}) : QPoint();
    if (!shown || !shown->viewport()->rect().contains(position))
        return QAccessibleWidget::childAt(x, y);
    for (QGraphicsItem *item = shown->itemAt(position); item; item = item->parentItem()) {
        if (auto *const band = qgraphicsitem_cast<ZvTimeTableTimeItem *>(item))
            return QAccessible::queryAccessibleInterface(band);
    }
    return QAccessibleWidget::childAt(x, y);
}

QAccessibleInterface *AccessibleTimeTable::focusChild() const
{
    const ZvTimeTableScene *const shown = scene();
    if (!stripOf(shown) || !view()->hasFocus())
        return QAccessibleWidget::focusChild();
    const QList<ZvTimeTableTimeItem *> selected = stripOf(shown)->selectedTimeItems();
    return selected.isEmpty() ? QAccessibleWidget::focusChild()
                              : QAccessible::queryAccessibleInterface(selected.first());
}

// The notice that covers the table says why it is empty.
QString AccessibleTimeTable::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Description && view()) {
        const auto *const notice = view()->findChild<QLabel *>({}, Qt::FindDirectChildrenOnly);
        if (notice && notice->isVisibleTo(view()))
            return notice->text();
    }
    return QAccessibleWidget::text(kind);
}

QAccessibleInterface *createTimeTableInterface(const QString &className, QObject *object)
{
    if (className == QLatin1String(ZvTimeTableView::staticMetaObject.className())) {
        if (auto *const view = qobject_cast<ZvTimeTableView *>(object))
            return new AccessibleTimeTable(view);
    } else if (className == QLatin1String(ZvTimeTableTimeItem::staticMetaObject.className())) {
        if (auto *const band = qobject_cast<ZvTimeTableTimeItem *>(object))
            return new AccessibleBand(band);
    }
    return nullptr;
}

/// Keeps whether somebody listens, which is asked at every step of a drag.
class Audience final : public QAccessible::ActivationObserver
{
    Q_DISABLE_COPY(Audience)

public:
    Audience()
        : m_isThere(QAccessible::isActive())
    {
        QAccessible::installActivationObserver(this);
    }
    ~Audience() override = default;

    bool isThere() const { return m_isThere; }

    // Never destroyed, since nobody knows who of the library goes first at the end.
    static const Audience &instance()
    {
        static const auto *const audience = new Audience;
        return *audience;
    }

protected:
    void accessibilityActiveChanged(bool active) override { m_isThere = active; }

private:
    bool m_isThere = false;
};

void report(QObject *object, QAccessible::Event kind)
{
    QAccessibleEvent event(object, kind);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void TimeTableAccessibility::install()
{
    QAccessible::installFactory(createTimeTableInterface);
    Audience::instance();
}

bool TimeTableAccessibility::isHeard()
{
    return Audience::instance().isThere();
}

QString TimeTableAccessibility::nameOf(const ZvTime &time)
{
    return QCoreApplication::translate("Zavo::ZvTimeTableView", "%1, %2 to %3")
        .arg(time.stageName(), spokenTime(time.startTime()), spokenTime(time.endTime()));
}

void TimeTableAccessibility::reportBands(ZvTimeTableView *view, ZvTimeTableTimeItem *newBand)
{
    if (!isHeard() || !view)
        return;
    if (newBand)
        report(newBand, QAccessible::ObjectCreated);
    report(view, QAccessible::ObjectReorder);
}

void TimeTableAccessibility::reportSelection(const ZvTimeTableScene &scene)
{
    if (!isHeard())
        return;
    const ZvTimeTableTimeZoneItem *const strip = scene.timeZoneItem();
    ZvTimeTableView *const view = strip ? strip->view() : nullptr;
    if (!view)
        return;
    const QList<ZvTimeTableTimeItem *> selected = scene.selectedTimeItems();
    // However many there are, one event.
    if (selected.size() != 1) {
        report(view, QAccessible::SelectionWithin);
        return;
    }
    report(selected.first(), QAccessible::Selection);
    if (view->hasFocus())
        report(selected.first(), QAccessible::Focus);
}

void TimeTableAccessibility::reportMove(const ZvTimeTableScene &scene)
{
    if (!isHeard())
        return;
    const QList<ZvTimeTableTimeItem *> selected = scene.selectedTimeItems();
    if (selected.size() == 1)
        report(selected.first(), QAccessible::NameChanged);
}

} // namespace Zavo
