#pragma once

#include "SignalLog.h"

#include "ZvChannel.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "navigation/ScheduleListModel.h"
#include "navigation/ZvScheduleListWidget.h"

#include <QAction>
#include <QDate>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QStandardItemModel>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

namespace ZavoTest {

inline const Zavo::ZvScheduleBasicInfo defaultInfo{Zavo::ZvSchedule::Default};

inline Zavo::ZvScheduleBasicInfo dayInfo(int day)
{
    return Zavo::ZvScheduleBasicInfo(static_cast<Zavo::Weekday::Days>(day));
}

/// Days of a month without borders in its way.
inline QDate dayOfJune(int day)
{
    return {2031, 6, day};
}

inline Zavo::ZvScheduleBasicInfo juneInfo(int day)
{
    return Zavo::ZvScheduleBasicInfo(dayOfJune(day));
}

/// A schedule with a band for each hour from midnight on, all of one stage.
inline Zavo::ZvSchedule scheduleOf(const Zavo::ZvScheduleBasicInfo &info, int bands = 0,
                                   const QString &defaultStage = QString())
{
    Zavo::ZvSchedule schedule = info.toSchedule();
    QList<Zavo::ZvTime> times;
    for (int hour = 0; hour < bands; ++hour)
        times.append(Zavo::ZvTime(QTime(hour, 0), QTime(hour, 30), QStringLiteral("a.xml")));
    schedule.setTimeList(times);
    schedule.setDefaultStage(defaultStage);
    return schedule;
}

/// A shown list with nobody behind it: what it asks for is written down, and which schedule is on
/// the time table is answered by a field.
class ScheduleListFixture
{
public:
    explicit ScheduleListFixture(const QList<Zavo::ZvScheduleBasicInfo> &infos = {})
        : channel(QStringLiteral("/nowhere/channel7.xml"))
    {
        channel.setName(QStringLiteral("Lobby"));
        for (const Zavo::ZvScheduleBasicInfo &info : infos)
            channel.insertSchedule(info.toSchedule());
        QObject::connect(&list, &Zavo::ZvScheduleListWidget::requestCurrentScheduleInfo, &list,
                         [this](Zavo::ZvScheduleBasicInfo *info) { *info = onTable; });
        list.resize(560, 480);
        list.show();
        // The ratio of the screen may put another view in place.
        QCoreApplication::processEvents();
    }

    void showChannel()
    {
        list.setCurrentChannel(&channel);
        QCoreApplication::processEvents();
    }

    QTreeView *view() const { return list.findChild<QTreeView *>(); }
    QStandardItemModel *model() const { return list.findChild<QStandardItemModel *>(); }
    QLabel *label() const { return list.findChild<QLabel *>(); }
    QToolButton *button() const
    {
        return list.findChild<QToolButton *>(QStringLiteral("zv_calendar_menubutton"));
    }
    QMenu *menu() const { return list.findChild<QMenu *>(QStringLiteral("Menu_ToolMenu")); }
    QAction *newAction() const
    {
        return list.findChild<QAction *>(QStringLiteral("Action_New_Schedule"));
    }

    QStringList texts(int column) const
    {
        QStringList texts;
        for (int row = 0; row < model()->rowCount(); ++row)
            texts.append(model()->item(row, column)->text());
        return texts;
    }
    void check(const QList<int> &rows) const
    {
        for (int row : rows)
            model()->item(row)->setCheckState(Qt::Checked);
    }
    QList<int> checkedRows() const
    {
        QList<int> rows;
        for (int row = 0; row < model()->rowCount(); ++row) {
            if (model()->item(row)->checkState() == Qt::Checked)
                rows.append(row);
        }
        return rows;
    }
    QList<int> selectedRows() const
    {
        QList<int> rows;
        const QModelIndexList indexes = view()->selectionModel()->selectedRows();
        for (const QModelIndex &index : indexes)
            rows.append(index.row());
        return rows;
    }

    QPoint middleOf(int row, int column) const
    {
        return view()->visualRect(model()->index(row, column)).center();
    }
    /// The middle of the check box.
    QPoint markOf(int row) const
    {
        QStyleOptionViewItem option;
        option.initFrom(view());
        option.rect = view()->visualRect(model()->index(row, 0));
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        return view()
            ->style()
            ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, view())
            .center();
    }
    void click(const QPoint &position) const
    {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    }

    Zavo::ZvChannel channel;
    Zavo::ZvScheduleBasicInfo onTable = defaultInfo;
    Zavo::ZvScheduleListWidget list;
};

} // namespace ZavoTest
