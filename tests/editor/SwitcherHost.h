#pragma once

#include "EditorFixture.h"
#include "SignalLog.h"

#include "../navigation/SwitcherFixture.h"

#include <QDockWidget>

namespace ZavoTest {

/// A host with three channels that looks at the switcher in its dock. The first channel has a
/// default schedule, a Monday and the dates of two days.
class SwitcherHost final : public EditorFixture
{
public:
    /// The days with schedules, which no clean-up reaches; both on one page of the calendar.
    static QDate firstDate() { return QDate(QDate::currentDate().year() + 1, 5, 12); }
    static QDate secondDate() { return firstDate().addDays(2); }

    explicit SwitcherHost(bool defaultFirst = true)
    {
        using namespace Zavo;
        const QString file = data.channelFolder() + QLatin1Char('/') + channelFileName(0);
        ZvChannel channel = readChannelFile(file);
        channel.insertSchedule(scheduleWith(ZvScheduleBasicInfo(ZvSchedule::Default), "default"));
        channel.insertSchedule(scheduleWith(ZvScheduleBasicInfo(Weekday::Monday), "monday"));
        channel.insertSchedule(scheduleWith(ZvScheduleBasicInfo(firstDate()), "first"));
        channel.insertSchedule(scheduleWith(ZvScheduleBasicInfo(secondDate()), "second"));
        channel.writeToFile();
        useDefaultScheduleFirst(defaultFirst);
        makeEditor();
    }

    Zavo::ZvScheduleSwitcherWidget *switcher() const
    {
        return window->findChild<Zavo::ZvScheduleSwitcherWidget *>();
    }
    SwitcherParts parts() const { return SwitcherParts(switcher()); }
    QDockWidget *dock() const
    {
        return window->findChild<QDockWidget *>(QStringLiteral("SwitchScheuleDock"));
    }

    Zavo::ZvScheduleBasicInfo shown() const
    {
        return area(tabs()->currentIndex())->currentScheduleInfo();
    }
    /// The default stage of the schedule that the channel of the current tab holds; "-" if there is
    /// no such schedule.
    QString stored(const Zavo::ZvScheduleBasicInfo &info) const
    {
        const auto *page = area(tabs()->currentIndex());
        return page->hasSchedule(info) ? page->schedules({info}).first().defaultStage()
                                       : QStringLiteral("-");
    }

    /// Clicks on a date, whose page is turned to.
    void click(const QDate &date, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        parts().calendar()->setCurrentPage(date.year(), date.month());
        CalendarMouse mouse(parts().calendar());
        mouse.click(date, modifiers);
        mouse.releaseKeys();
    }
    void click(Qt::DayOfWeek day) const { QTest::mouseClick(parts().cell(day), Qt::LeftButton); }
    void clickDefault() const { QTest::mouseClick(parts().defaults(), Qt::LeftButton); }
    void selectDates(const QDate &from, const QDate &to) const
    {
        click(from);
        click(to, Qt::ShiftModifier);
    }

private:
    static Zavo::ZvSchedule scheduleWith(const Zavo::ZvScheduleBasicInfo &info, const char *stage)
    {
        return ZavoTest::scheduleWith(info, QString::fromLatin1(stage));
    }
};

inline const Zavo::ZvScheduleBasicInfo defaultInfo{Zavo::ZvSchedule::Default};
inline const Zavo::ZvScheduleBasicInfo mondayInfo{Zavo::Weekday::Monday};
inline const Zavo::ZvScheduleBasicInfo fridayInfo{Zavo::Weekday::Friday};

/// The dates with a schedule, and the day between them, which has none.
inline Zavo::ZvScheduleBasicInfo firstInfo()
{
    return Zavo::ZvScheduleBasicInfo(SwitcherHost::firstDate());
}
inline Zavo::ZvScheduleBasicInfo betweenInfo()
{
    return Zavo::ZvScheduleBasicInfo(SwitcherHost::firstDate().addDays(1));
}
inline Zavo::ZvScheduleBasicInfo secondInfo()
{
    return Zavo::ZvScheduleBasicInfo(SwitcherHost::secondDate());
}
/// From a week behind the first date on there are no schedules.
inline Zavo::ZvScheduleBasicInfo laterInfo(int days)
{
    return Zavo::ZvScheduleBasicInfo(SwitcherHost::firstDate().addDays(7 + days));
}

} // namespace ZavoTest
