#include "navigation/SwitcherAccessibility.h"

#include "navigation/CalendarAccessibility.h"
#include "navigation/NavigationNames.h"
#include "navigation/ZvDayOfWeekWidget.h"
#include "navigation/ZvScheduleSwitcherSelectedWidget.h"
#include "navigation/ZvTodayWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLocale>

namespace Zavo::SwitcherAccessibility {

namespace {

/// A widget that is pressed by the mouse alone.
class AccessiblePressable : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QStringList actionNames() const final
    {
        return widget() && widget()->isEnabled() ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString &name) final
    {
        if (actionNames().contains(name))
            press();
    }

protected:
    virtual void press() = 0;
};

class AccessibleToday final : public AccessiblePressable
{
public:
    explicit AccessibleToday(QWidget *line)
        : AccessiblePressable(line, QAccessible::Button)
    {
    }

protected:
    void press() override
    {
        if (auto *const line = qobject_cast<ZvTodayWidget *>(object()))
            Q_EMIT line->mouseReleased();
    }
};

class AccessibleDay final : public AccessiblePressable
{
public:
    explicit AccessibleDay(QWidget *cell)
        : AccessiblePressable(cell, QAccessible::RadioButton)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const ZvDayOfWeekWidget *const shown = cell();
        if (!shown || kind != QAccessible::Name || shown->dayOfWeek() == 0)
            return AccessiblePressable::text(kind);
        const QString day = QLocale::system().dayName(shown->dayOfWeek(), QLocale::LongFormat);
        return shown->isScheduled() ? ZvDayOfWeekWidget::tr("%1, has a schedule").arg(day) : day;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.checkable = true;
        state.checked = cell() && cell()->isSelected();
        return state;
    }

protected:
    void press() override
    {
        if (ZvDayOfWeekWidget *const shown = cell())
            shown->select();
    }

private:
    ZvDayOfWeekWidget *cell() const { return qobject_cast<ZvDayOfWeekWidget *>(object()); }
};

class AccessibleFrame final : public AccessiblePressable
{
public:
    explicit AccessibleFrame(QWidget *frame)
        : AccessiblePressable(frame, QAccessible::Grouping)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.selectable = true;
        state.selected = frame() && frame()->isSelected();
        return state;
    }

protected:
    void press() override
    {
        if (ZvScheduleSwitcherSelectedWidget *const shown = frame())
            Q_EMIT shown->clicked(shown);
    }

private:
    ZvScheduleSwitcherSelectedWidget *frame() const
    {
        return qobject_cast<ZvScheduleSwitcherSelectedWidget *>(object());
    }
};

QAccessibleInterface *createSwitcherInterface(const QString &className, QObject *object)
{
    const auto is = [&className](const QMetaObject &metaObject) {
        return className == QLatin1String(metaObject.className());
    };
    if (is(ZvTodayWidget::staticMetaObject))
        return new AccessibleToday(qobject_cast<QWidget *>(object));
    if (is(ZvDayOfWeekWidget::staticMetaObject))
        return new AccessibleDay(qobject_cast<QWidget *>(object));
    if (is(ZvScheduleSwitcherSelectedWidget::staticMetaObject))
        return new AccessibleFrame(qobject_cast<QWidget *>(object));
    const bool isCalendarView =
        object && object->objectName() == QLatin1String(NavigationName::CalendarView);
    return isCalendarView ? createCalendarInterface(object) : nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(createSwitcherInterface);
}

} // namespace Zavo::SwitcherAccessibility
