#pragma once

#include "MessageBoxAnswer.h"
#include "TemporaryDataFolder.h"
#include "TimeTableFixture.h"

#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "stages/ZvScheduleDefaultStageWidget.h"
#include "timetable/ZvScheduleWorkingArea.h"

#include <QCoreApplication>
#include <QDate>

#include <memory>

namespace ZavoTest {

inline const Zavo::ZvScheduleBasicInfo defaultInfo{Zavo::ZvSchedule::Default};
inline const Zavo::ZvScheduleBasicInfo mondayInfo{Zavo::Weekday::Monday};

/// A date that no clean-up reaches.
inline QDate futureDate(int offset = 0)
{
    return QDate::currentDate().addDays(30 + offset);
}

inline Zavo::ZvScheduleBasicInfo dateInfo(int offset = 0)
{
    return Zavo::ZvScheduleBasicInfo(futureDate(offset));
}

inline Zavo::ZvTime band(const char *start, const char *end, const char *stageName = "a.xml")
{
    return band(QString::fromLatin1(start), QString::fromLatin1(end),
                QString::fromLatin1(stageName));
}

inline Zavo::ZvSchedule scheduleOf(const Zavo::ZvScheduleBasicInfo &info,
                                   const QList<Zavo::ZvTime> &times = {},
                                   const QString &defaultStage = QString())
{
    Zavo::ZvSchedule schedule = info.toSchedule();
    schedule.setTimeList(times);
    schedule.setDefaultStage(defaultStage);
    return schedule;
}

/// The page of one channel in a data folder of its own, shown, with no box expected.
class WorkingAreaFixture final
{
public:
    explicit WorkingAreaFixture(const QList<Zavo::ZvSchedule> &schedules = {},
                                int removingDays = Zavo::ZvConfig::DefaultRemovingDurationDays)
        : m_area(newArea(schedules, removingDays))
    {
        m_area->resize(900, 700);
        m_area->show();
        settle();
    }
    Q_DISABLE_COPY(WorkingAreaFixture)

    ~WorkingAreaFixture()
    {
        if (m_area)
            delete m_area->takeScene();
    }

    Zavo::ZvScheduleWorkingArea *area() const { return m_area.get(); }
    Zavo::ZvChannel *channel() const { return m_area->channel(); }
    TemporaryDataFolder &folder() { return m_folder; }
    MessageBoxAnswer &boxes() { return m_boxes; }

    template<typename T>
    T *child(const QString &name = QString()) const
    {
        return m_area->findChild<T *>(name);
    }
    Zavo::ZvTimeTableView *view() const { return child<Zavo::ZvTimeTableView>(); }
    Zavo::ZvScheduleDefaultStageWidget *box() const
    {
        return child<Zavo::ZvScheduleDefaultStageWidget>();
    }
    Zavo::ZvTimeTableScene *scene() const
    {
        return qobject_cast<Zavo::ZvTimeTableScene *>(view()->scene());
    }
    Zavo::ZvTimeTableTimeZoneItem *strip() const { return scene()->timeZoneItem(); }
    Zavo::ZvTimeTableTimeItem *item(int index) const { return strip()->timeItems().at(index); }
    QStringList texts() const { return textOf(m_area->currentTimes()); }

    /// Records of the schedule in the channel as text; for one that it does not hold as well.
    QStringList storedTexts(const Zavo::ZvScheduleBasicInfo &info) const
    {
        return textOf(m_area->schedules({info}).value(0).timeList());
    }

    void select(const QList<int> &indices) const
    {
        scene()->clearSelection();
        for (int index : indices)
            item(index)->setSelected(true);
        settle();
    }

    /// Shows the table at a scale and brings @p time to the middle.
    void look(const QString &time) const
    {
        view()->centerOn(QPointF(180.0, yOf(time)));
        settle();
    }

    /// Delivers what is queued.
    static void settle() { QCoreApplication::processEvents(); }

    /// Destroys the page.
    void destroy() { m_area.reset(); }

private:
    Zavo::ZvScheduleWorkingArea *newArea(const QList<Zavo::ZvSchedule> &schedules, int removingDays)
    {
        Zavo::ZvEditorConfig::getConfig()->setRemovingDuration(removingDays);
        auto *channel = new Zavo::ZvChannel(m_folder.filePath(QStringLiteral("channel/c.xml")));
        channel->setName(QStringLiteral("Lobby"));
        for (const Zavo::ZvSchedule &schedule : schedules)
            channel->insertSchedule(schedule);
        return new Zavo::ZvScheduleWorkingArea(channel);
    }

    TemporaryDataFolder m_folder;
    MessageBoxAnswer m_boxes;
    std::unique_ptr<Zavo::ZvScheduleWorkingArea> m_area;
};

/// A point in the middle of the band, in scene coordinates.
inline QPointF middleOf(const Zavo::ZvTimeTableTimeItem *item)
{
    return item->mapToScene(item->boundingRect().center());
}

} // namespace ZavoTest
