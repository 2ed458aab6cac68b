#include "navigation/ScheduleListModel.h"

#include "ZvSchedule.h"
#include "domain/ChannelSchedules.h"
#include "domain/ScheduleText.h"

#include <QCoreApplication>
#include <QSignalBlocker>

namespace Zavo {

namespace {

/// An item whose text follows from its value, so that only what is seen is put into words.
class TextItem final : public QStandardItem
{
public:
    using TextOf = QString (*)(const QVariant &value);

    TextItem(TextOf textOf, const QVariant &value)
        : m_textOf(textOf)
    {
        setData(value, ScheduleListModel::ValueRole);
    }

    QVariant data(int role) const override
    {
        if (role == Qt::DisplayRole || role == Qt::EditRole)
            return m_textOf(QStandardItem::data(ScheduleListModel::ValueRole));
        return QStandardItem::data(role);
    }

private:
    TextOf m_textOf;
};

ZvScheduleBasicInfo infoOf(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Int:
        return ZvScheduleBasicInfo(static_cast<Weekday::Days>(value.toInt()));
    case QMetaType::QString:
        return ZvScheduleBasicInfo(ZvSchedule::Default);
    case QMetaType::QDate:
        return ZvScheduleBasicInfo(value.toDate());
    default:
        return {};
    }
}

/// Invalid for a type that no row stands for.
QVariant valueOf(const ZvSchedule &schedule)
{
    switch (schedule.type()) {
    case ZvSchedule::Default:
        return QString();
    case ZvSchedule::Date:
        return schedule.date();
    case ZvSchedule::DayOfWeek:
        return static_cast<int>(schedule.dayOfWeek());
    default:
        return {};
    }
}

QString listText(const char *text)
{
    return QCoreApplication::translate("Zavo::ZvScheduleListWidget", text);
}

QString nameText(const QVariant &value)
{
    return scheduleText(infoOf(value));
}

QString typeText(const QVariant &value)
{
    switch (infoOf(value).type()) {
    case ZvSchedule::Default:
        return listText(QT_TRANSLATE_NOOP("Zavo::ZvScheduleListWidget", "default"));
    case ZvSchedule::Date:
        return listText(QT_TRANSLATE_NOOP("Zavo::ZvScheduleListWidget", "date"));
    case ZvSchedule::DayOfWeek:
        return listText(QT_TRANSLATE_NOOP("Zavo::ZvScheduleListWidget", "day of week"));
    default:
        return {};
    }
}

QString numberText(const QVariant &value)
{
    return QString::number(value.toInt());
}

} // namespace

ScheduleListModel::ScheduleListModel(QObject *parent)
    : QStandardItemModel(parent)
{
    connect(this, SIGNAL(dataChanged(QModelIndex,QModelIndex,QVector<int>)), this,
                         SLOT(onDataChanged(QModelIndex,QModelIndex,QVector<int>)));
}

ZvScheduleBasicInfo ScheduleListModel::info(int row) const
{
    const QStandardItem *named = item(row, NameColumn);
    return named ? infoOf(named->data(ValueRole)) : ZvScheduleBasicInfo();
}

int ScheduleListModel::rowOf(const ZvScheduleBasicInfo &info) const
{
    return m_rows.value(info, -1);
}

QList<QStandardItem *> ScheduleListModel::rowItems(const ZvScheduleBasicInfo &info) const
{
    QList<QStandardItem *> items;
    const int row = rowOf(info);
    for (int column = 0; row >= 0 && column < columnCount(); ++column)
        items.append(item(row, column));
    return items;
}

bool ScheduleListModel::isChecked(int row) const
{
    const QStandardItem *named = item(row, NameColumn);
    return named && named->checkState() == Qt::Checked;
}

int ScheduleListModel::checkedCount() const
{
    int count = 0;
    for (int row = 0; row < rowCount(); ++row)
        count += isChecked(row) ? 1 : 0;
    return count;
}

QList<ZvScheduleBasicInfo> ScheduleListModel::checkedInfos() const
{
    QList<ZvScheduleBasicInfo> infos;
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row))
            infos.append(info(row));
    }
    return infos;
}

void ScheduleListModel::clearRows()
{
    if (rowCount() == 0)
        return;
    m_rows.clear();
    removeRows(0, rowCount());
    Q_EMIT checkMarksChanged();
}

void ScheduleListModel::setSchedules(const QList<ZvSchedule> &schedules)
{
    clearRows();
    m_rows.reserve(schedules.size());
    for (const ZvSchedule &schedule : schedules)
        appendSchedule(schedule);
    setHorizontalHeaderLabels(
        {listText(QT_TRANSLATE_NOOP("Zavo::ZvScheduleListWidget", "Schedule")),
         listText(QT_TRANSLATE_NOOP("Zavo::ZvScheduleListWidget", "Type")),
         listText(QT_TRANSLATE_NOOP("Zavo::ZvScheduleListWidget", "Stages"))});
}

void ScheduleListModel::appendSchedule(const ZvSchedule &schedule)
{
    const QVariant value = valueOf(schedule);
    if (!value.isValid())
        return;
    const ZvScheduleBasicInfo info(schedule);
    if (!m_rows.contains(info))
        m_rows.insert(info, rowCount());
    auto *name = new TextItem(nameText, value);
    name->setCheckable(true);
    appendRow({name, new TextItem(typeText, value),
               new TextItem(numberText, ChannelSchedules::stageCount(schedule))});
}

void ScheduleListModel::setStageCount(const ZvScheduleBasicInfo &info, int stageCount)
{
    const QList<QStandardItem *> items = rowItems(info);
    if (items.size() > StageCountColumn)
        items.last()->setData(stageCount, ValueRole);
}

void ScheduleListModel::setAllChecked(bool checked)
{
    if (rowCount() == 0)
        return;
    {
        const QSignalBlocker blocker(this);
        for (int row = 0; row < rowCount(); ++row) {
            QStandardItem *named = item(row, NameColumn);
            if (named->isCheckable())
                named->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        }
    }
    Q_EMIT dataChanged(index(0, NameColumn), index(rowCount() - 1, NameColumn),
                       {Qt::CheckStateRole});
}

void ScheduleListModel::markPartially(int row)
{
    if (QStandardItem *named = item(row, NameColumn))
        named->setCheckState(Qt::PartiallyChecked);
}

void ScheduleListModel::onDataChanged(const QModelIndex &, const QModelIndex &,
                                      const QVector<int> &roles)
{
    if (roles.contains(Qt::CheckStateRole))
        Q_EMIT checkMarksChanged();
}

} // namespace Zavo
