#pragma once

#include "CalendarMouse.h"
#include "SignalLog.h"
#include "TemporaryDataFolder.h"

#include "domain/ZvScheduleBasicInfo.h"
#include "navigation/NavigationNames.h"
#include "navigation/ZvCalendarWidget.h"
#include "navigation/ZvDayOfWeekWidget.h"
#include "navigation/ZvScheduleDefaultWidget.h"
#include "navigation/ZvScheduleSwitcherSelectedWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "navigation/ZvScheduledToBeExecutedWidget.h"
#include "navigation/ZvTodayWidget.h"
#include "navigation/ZvWeekWidget.h"

#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"

#include <QLabel>
#include <QLayout>
#include <QtTest>

#include <memory>

namespace ZavoTest {

/// The parts of a switcher, found as a person sees them.
class SwitcherParts
{
public:
    explicit SwitcherParts(Zavo::ZvScheduleSwitcherWidget *switcher)
        : m_switcher(switcher)
    {
    }

    Zavo::ZvCalendarWidget *calendar() const
    {
        return m_switcher->findChild<Zavo::ZvCalendarWidget *>();
    }
    Zavo::ZvWeekWidget *week() const { return m_switcher->findChild<Zavo::ZvWeekWidget *>(); }
    Zavo::ZvTodayWidget *today() const { return m_switcher->findChild<Zavo::ZvTodayWidget *>(); }
    Zavo::ZvScheduleDefaultWidget *defaults() const
    {
        return m_switcher->findChild<Zavo::ZvScheduleDefaultWidget *>();
    }
    Zavo::ZvScheduleSwitcherSelectedWidget *frame(const char *name) const
    {
        return m_switcher->findChild<Zavo::ZvScheduleSwitcherSelectedWidget *>(QLatin1String(name));
    }
    Zavo::ZvDayOfWeekWidget *cell(int day) const
    {
        const auto cells = week()->findChildren<Zavo::ZvDayOfWeekWidget *>();
        for (Zavo::ZvDayOfWeekWidget *cell : cells) {
            if (cell->dayOfWeek() == day)
                return cell;
        }
        return nullptr;
    }

    /// The letters of the frames that show as selected, of "CWD".
    QString selectedFrames() const
    {
        using namespace Zavo::NavigationName;
        QString letters;
        for (const char *name : {CalendarFrame, WeekFrame, DefaultFrame}) {
            if (frame(name)->isSelected())
                letters.append(QLatin1Char(name[0]));
        }
        return letters;
    }
    /// What the display of the schedule to be executed shows, with its colour.
    QString executed() const
    {
        const auto *display = m_switcher->findChild<Zavo::ZvScheduledToBeExecutedWidget *>();
        const auto *name =
            display->findChild<QWidget *>(QLatin1String(Zavo::NavigationName::ExecutedSchedule));
        const auto *label = qobject_cast<QLabel *>(name->layout()->itemAt(1)->widget());
        return label->text() + QLatin1Char(' ') + label->styleSheet();
    }
    QString executedTitle() const
    {
        const auto *display = m_switcher->findChild<Zavo::ZvScheduledToBeExecutedWidget *>();
        return qobject_cast<QLabel *>(display->layout()->itemAt(0)->widget())->text();
    }
    QString defaultText() const
    {
        return qobject_cast<QLabel *>(defaults()->layout()->itemAt(1)->widget())->text();
    }
    QString countText() const
    {
        const auto labels = frame(Zavo::NavigationName::CalendarFrame)->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->text().startsWith(QLatin1String("Schedule of days")))
                return label->text();
        }
        return {};
    }

private:
    Zavo::ZvScheduleSwitcherWidget *m_switcher;
};

/// How the display shows that the schedule of the date wins, that of its day, or the default one.
inline QString executedDate(const QDate &date)
{
    return QLocale::system().toString(date, QLocale::LongFormat) + QLatin1String(" color: blue;");
}
inline QString executedDay(const QDate &date)
{
    return QLocale::system().dayName(date.dayOfWeek(), QLocale::LongFormat).toUpper() +
           QLatin1String(" color: green;");
}
inline QString executedDefault()
{
    return QStringLiteral("DEFAULT color: orange;");
}

inline Zavo::ZvSchedule scheduleWith(const Zavo::ZvScheduleBasicInfo &info, const QString &stage)
{
    Zavo::ZvSchedule schedule = info.toSchedule();
    schedule.setDefaultStage(stage);
    return schedule;
}

/// A shown switcher with a real channel, alone: what it asks for is written down and not answered.
class SwitcherFixture : public SwitcherParts
{
public:
    explicit SwitcherFixture(bool defaultFirst = false)
        : SwitcherFixture(makeSwitcher(defaultFirst))
    {
    }

    Zavo::ZvScheduleBasicInfo current() const
    {
        Zavo::ZvScheduleBasicInfo info;
        switcher->getCurrentScheduleInfo(&info);
        return info;
    }
    /// The requests and reports since the last call, with the date or day of the switches.
    QStringList taken()
    {
        QStringList entries;
        const QStringList names = log.names();
        for (int i = 0; i < names.size(); ++i) {
            const QVariant first = log.arguments(i).value(0);
            QString entry = names.at(i);
            if (entry == QLatin1String("requestSwitchToDate"))
                entry += QLatin1Char(' ') + first.toDate().toString(Qt::ISODate);
            else if (entry == QLatin1String("requestSwitchToDayOfWeek"))
                entry += QLatin1Char(' ') + QString::number(first.value<Qt::DayOfWeek>());
            entries.append(entry);
        }
        log.clear();
        return entries;
    }
    void add(const Zavo::ZvScheduleBasicInfo &info, const QString &stage = QString())
    {
        channel.insertSchedule(scheduleWith(info, stage));
    }

    std::unique_ptr<TemporaryDataFolder> data;
    std::unique_ptr<Zavo::ZvScheduleSwitcherWidget> switcher;
    Zavo::ZvChannel channel{QString()};
    SignalLog log;

private:
    struct Made
    {
        std::unique_ptr<TemporaryDataFolder> data;
        std::unique_ptr<Zavo::ZvScheduleSwitcherWidget> switcher;
    };

    static Made makeSwitcher(bool defaultFirst)
    {
        Made made;
        made.data = std::make_unique<TemporaryDataFolder>();
        Zavo::ZvEditorConfig::getConfig()->setDefaultScheduleUsedFirst(defaultFirst);
        made.switcher = std::make_unique<Zavo::ZvScheduleSwitcherWidget>();
        return made;
    }
    explicit SwitcherFixture(Made made)
        : SwitcherParts(made.switcher.get())
        , data(std::move(made.data))
        , switcher(std::move(made.switcher))
    {
        log.watch(switcher.get(), SIGNAL(requestSwitchToDefault()));
        log.watch(switcher.get(), SIGNAL(requestSwitchToDayOfWeek(Qt::DayOfWeek)));
        log.watch(switcher.get(), SIGNAL(requestSwitchToDate(QDate)));
        log.watch(switcher.get(), SIGNAL(requestStoreCurrentSchedule()));
        log.watch(switcher.get(), SIGNAL(requestRemoveSchedule(QList<ZvScheduleBasicInfo>,bool)));
        log.watch(switcher.get(), SIGNAL(requestRemoveAndInsertSchedule(QList<ZvScheduleBasicInfo>,QList<ZvSchedule>)));
        log.watch(switcher.get(), SIGNAL(currentChannelChanged(const ZvChannel*)));
        log.watch(switcher.get(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)));
        log.watch(switcher.get(),
                  SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)));
        log.watch(switcher.get(), SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)));
        log.watch(switcher.get(), SIGNAL(activated(QWidget*)));
        log.watch(switcher.get(), SIGNAL(requestEditMenuAboutToShow()));
        switcher->resize(360, 700);
        switcher->show();
        QCoreApplication::processEvents();
    }
};

} // namespace ZavoTest
