#pragma once

#include "../timetable/BandText.h"
#include "../workspace/MainWidgetFixture.h"
#include "PageState.h"

#include "domain/ActionNames.h"

#include <QUndoGroup>
#include <QUndoStack>

namespace ZavoTest {

inline const Zavo::ZvScheduleBasicInfo defaultInfo{Zavo::ZvSchedule::Default};
inline const Zavo::ZvScheduleBasicInfo mondayInfo{Zavo::Weekday::Monday};
inline const Zavo::ZvScheduleBasicInfo tuesdayInfo{Zavo::Weekday::Tuesday};
inline const Zavo::ZvScheduleBasicInfo sundayInfo{Zavo::Weekday::Sunday};

/// A date that no clean-up reaches.
inline Zavo::ZvScheduleBasicInfo dateInfo(int offset = 0)
{
    return Zavo::ZvScheduleBasicInfo(QDate::currentDate().addDays(30 + offset));
}

inline Zavo::ZvSchedule scheduleOf(const Zavo::ZvScheduleBasicInfo &info,
                                   const QString &defaultStage = QString(),
                                   const QList<Zavo::ZvTime> &times = {})
{
    Zavo::ZvSchedule schedule = info.toSchedule();
    schedule.setDefaultStage(defaultStage);
    schedule.setTimeList(times);
    return schedule;
}

inline const QList<Zavo::ZvTime> mondayBands{band("08:00:00", "09:00:00", "a.xml"),
                                             band("10:00:00", "11:00:00", "b.xml"),
                                             band("23:00:00", "24:00:00", "c.xml")};
inline const QList<Zavo::ZvTime> otherBands{band("00:00:00", "01:00:00", "d.xml"),
                                            band("02:00:00", "03:00:00", "e.xml")};

/// Two channel tabs as the user has them. The first has a default schedule, a Monday and a date,
/// and shows its Monday, of which the band in the middle is selected; the second is empty. Both
/// count as saved.
class TwoTabs final
{
public:
    TwoTabs()
        : main({QLatin1String(Zavo::ActionName::CreateSchedule),
                QLatin1String(Zavo::ActionName::DeleteSchedule)})
    {
        main.choice = mondayInfo;
        main.createTabs({QStringLiteral("First"), QStringLiteral("Second")});
        Zavo::ZvChannel *channel = first()->channel();
        channel->insertSchedule(scheduleOf(defaultInfo, QStringLiteral("def.xml"), otherBands));
        channel->insertSchedule(scheduleOf(mondayInfo, QStringLiteral("mon.xml"), mondayBands));
        channel->insertSchedule(scheduleOf(dateInfo(), QString(), otherBands));
        first()->renewSavedChannel();
        first()->switchToScheduleInfo(mondayInfo, true);
        select({1});
        main.widget->resize(900, 700);
        main.widget->show();
        QCoreApplication::processEvents();
    }
    Q_DISABLE_COPY(TwoTabs)

    Zavo::ZvScheduleMainWidget *widget() const { return main.widget.get(); }
    Zavo::ZvScheduleWorkingArea *first() const { return main.area(0); }
    Zavo::ZvScheduleWorkingArea *second() const { return main.area(1); }
    QUndoGroup *group() const { return widget()->undoGroup(); }
    Zavo::ZvTimeTableView *view() const { return first()->findChild<Zavo::ZvTimeTableView *>(); }
    Zavo::ZvTimeTableScene *scene() const
    {
        return qobject_cast<Zavo::ZvTimeTableScene *>(view()->scene());
    }
    QAction *action(const char *name) const
    {
        return widget()->findActions({QLatin1String(name)}).value(0);
    }
    QStringList state() const { return stateOf(first()); }
    QString selection() const { return selectionOf(first()); }

    /// Selects these bands of the first tab and no others.
    void select(const QList<int> &indices) const
    {
        scene()->clearSelection();
        for (int index : indices)
            scene()->timeZoneItem()->timeItems().at(index)->setSelected(true);
    }

    MainWidgetFixture main;
};

} // namespace ZavoTest
