#pragma once

#include "domain/ZvScheduleBasicInfo.h"

#include <QHash>
#include <QStandardItemModel>

namespace Zavo {

class ZvSchedule;

/// One row for each schedule of a channel, in the channel's order, with a check box in the first
/// column. A row's schedule is named by its first item alone; the texts of all items are made from
/// their values when they are looked at. Rows are replaced as a whole.
class ScheduleListModel final : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, StageCountColumn };

    /// Of the first two columns: the schedule's name, whose type tells the schedule's type. A
    /// QString is the default schedule, a QDate that of a date, an int that of a day of the week.
    /// Of the third: the number of stages as int.
    static constexpr int ValueRole = Qt::UserRole + 1;

    explicit ScheduleListModel(QObject *parent = nullptr);

    /// The schedule of a row; of type 0 for a row that there is not.
    ZvScheduleBasicInfo info(int row) const;
    /// The first row of that schedule, or -1.
    int rowOf(const ZvScheduleBasicInfo &info) const;
    /// The items of that row; empty if there is none.
    QList<QStandardItem *> rowItems(const ZvScheduleBasicInfo &info) const;

    bool isChecked(int row) const;
    int checkedCount() const;
    /// The schedules of the checked rows, in the order of the rows. A half mark is none.
    QList<ZvScheduleBasicInfo> checkedInfos() const;

    void clearRows();
    /// Replaces the rows, with no mark on any of them.
    void setSchedules(const QList<ZvSchedule> &schedules);
    /// Nothing happens if there is no such row.
    void setStageCount(const ZvScheduleBasicInfo &info, int stageCount);
    void setAllChecked(bool checked);
    void markPartially(int row);

Q_SIGNALS:
    /// Marks were set or removed, or went with their rows. Once for a change of many.
    void checkMarksChanged();

private Q_SLOTS:
    void onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                       const QVector<int> &roles);

private:
    void appendSchedule(const ZvSchedule &schedule);

    QHash<ZvScheduleBasicInfo, int> m_rows;
};

} // namespace Zavo
