#include "Bench.h"
#include "timetable/DenseDay.h"
#include "timetable/OwnTimeTable.h"

#include <KGanttDateTimeGrid>
#include <KGanttGlobal>
#include <KGanttGraphicsView>
#include <KGanttView>

#include <QApplication>
#include <QGraphicsScene>
#include <QStandardItemModel>

using namespace Zavo;

namespace {

constexpr int counts[] = {288, 1440, 4320};
constexpr QSize pageSize{900, 700};
constexpr double dayWidth = 1440.0; // px, a minute a pixel as at 100%
constexpr double loadGoal = 1.0;
constexpr double moveOneGoal = 1.0 / 3.0;
constexpr double moveAllGoal = 1.0 / 2.0;
constexpr int movedSeconds = 1;
const QDate day(2040, 1, 2);

/// The chart: one row that holds all bands.
class Gantt final
{
public:
    Gantt()
    {
        auto *grid = new KGantt::DateTimeGrid;
        grid->setStartDateTime(day.startOfDay());
        grid->setDayWidth(dayWidth);
        m_view.setGrid(grid);
        m_view.setModel(&m_model);
        m_view.resize(pageSize);
        m_view.show();
        settle();
    }

    void clear()
    {
        m_model.removeRows(0, m_model.rowCount());
        settle();
    }

    void load(const QList<ZvTime> &times)
    {
        QList<QStandardItem *> row = newEntry(QString(), KGantt::TypeMulti);
        for (const ZvTime &time : times) {
            const QList<QStandardItem *> band = newEntry(time.stageName(), KGantt::TypeTask);
            band.at(StartColumn)->setData(QDateTime(day, time.startTime()), KGantt::StartTimeRole);
            band.at(EndColumn)->setData(QDateTime(day, time.endTime()), KGantt::EndTimeRole);
            row.first()->appendRow(band);
        }
        m_model.appendRow(row);
    }

    /// What the chart has made of the bands.
    int itemCount() const { return m_view.graphicsView()->scene()->items().size(); }

    void move(int index, int seconds)
    {
        QStandardItem *row = m_model.item(0);
        move(row->child(index, StartColumn), KGantt::StartTimeRole, seconds);
        move(row->child(index, EndColumn), KGantt::EndTimeRole, seconds);
    }

    void moveAll(int seconds)
    {
        for (int i = 0; i < m_model.item(0)->rowCount(); ++i)
            move(i, seconds);
    }

    void settle() { QCoreApplication::processEvents(); }

private:
    // As the chart expects them.
    enum Column { NameColumn, TypeColumn, StartColumn, EndColumn, ColumnCount };

    static QList<QStandardItem *> newEntry(const QString &name, KGantt::ItemType type)
    {
        QList<QStandardItem *> entry;
        for (int column = 0; column < ColumnCount; ++column)
            entry.append(new QStandardItem);
        entry.at(NameColumn)->setText(name);
        entry.at(TypeColumn)->setData(type, Qt::DisplayRole);
        return entry;
    }

    static void move(QStandardItem *item, int role, int seconds)
    {
        item->setData(item->data(role).toDateTime().addSecs(seconds), role);
    }

    QStandardItemModel m_model;
    KGantt::View m_view;
};

/// Says 1 and -1 in turn, so that what is moved comes back.
class Direction final
{
public:
    int next() { return m_direction = -m_direction; }

private:
    int m_direction = -1;
};

template<typename Table>
double loaded(Table *table, const QList<ZvTime> &bands)
{
    table->clear();
    table->settle();
    return Bench::measureProcessor([&] {
        table->load(bands);
        table->settle();
    });
}

double movedInGantt(Gantt *gantt, int seconds, int index)
{
    return Bench::measureProcessor([&] {
        if (index >= 0)
            gantt->move(index, seconds);
        else
            gantt->moveAll(seconds);
        gantt->settle();
    });
}

double movedInOwn(OwnTimeTable *table, double units, int index)
{
    const QMap<int, QRectF> present = table->rects();
    QMap<int, QRectF> moved;
    for (auto rect = present.cbegin(); rect != present.cend(); ++rect) {
        if (index < 0 || rect.key() == index)
            moved.insert(rect.key(), rect.value().translated(0.0, units));
    }
    return Bench::measureProcessor([&] {
        table->place(moved);
        table->settle();
    });
}

void bench(Bench::Table *table, int count)
{
    constexpr int pairs = 5;
    constexpr double movedUnits = movedSeconds / 60.0;
    const QList<ZvTime> bands = DenseDay::bands(count);
    Gantt gantt;
    OwnTimeTable own(count);
    table->addFigures(
        {QStringLiteral("load / chart"), count, loadGoal}, [&] { return loaded(&gantt, bands); },
        [&] { return loaded(&own, bands); }, pairs);
    if (gantt.itemCount() < count)
        qFatal("the chart does not show all bands");
    const auto addMove = [&](const char *label, int index, double goal) {
        Direction ganttDirection;
        Direction ownDirection;
        table->addFigures(
            {QString::fromLatin1(label), count, goal},
            [&] { return movedInGantt(&gantt, ganttDirection.next() * movedSeconds, index); },
            [&] { return movedInOwn(&own, ownDirection.next() * movedUnits, index); }, pairs);
    };
    addMove("one band moved / chart", count / 2, moveOneGoal);
    addMove("all bands moved / chart", -1, moveAllGoal);
}

} // namespace

/// Beside a chart widget of the desktop, with all bands in one of its rows.
int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Bench::Table table(QCoreApplication::arguments());
    for (const int count : counts)
        bench(&table, count);
    return table.finish();
}
