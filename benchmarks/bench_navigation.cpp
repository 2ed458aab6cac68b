#include "Bench.h"
#include "navigation/ScheduleList.h"
#include "navigation/ZvCalendarWidget.h"

#include <QApplication>
#include <QTableView>

#include <functional>

using namespace Zavo;

namespace {

constexpr int width = 320;
constexpr int height = 260;
constexpr int cellCount = 42;
constexpr int repaints = 20;
constexpr double pageGoal = 2.0;
const QDate shown(2025, 7, 1);

/// A calendar on show, ours or the plain one, both with week numbers and grid.
template<typename Calendar>
class Page final
{
public:
    Page()
    {
        m_calendar.setGridVisible(true);
        m_calendar.resize(width, height);
        m_calendar.setSelectedDate(shown);
        m_calendar.show();
        QCoreApplication::processEvents();
    }

    Calendar *calendar() { return &m_calendar; }

    double repaint()
    {
        QWidget *viewport = m_calendar.template findChild<QTableView *>()->viewport();
        return Bench::measureProcessor([viewport] {
            for (int i = 0; i < repaints; ++i)
                viewport->repaint();
        });
    }

    double turn()
    {
        return Bench::measureProcessor([this] {
            for (int i = 0; i < repaints; ++i) {
                m_calendar.showNextMonth();
                QCoreApplication::processEvents();
            }
        });
    }

private:
    Calendar m_calendar;
};

using OwnPage = Page<ZvCalendarWidget>;
using BarePage = Page<QCalendarWidget>;

void add(Bench::Table *table, const char *operation, const std::function<double(BarePage *)> &limit,
         const std::function<double(OwnPage *)> &ours,
         const std::function<void(ZvCalendarWidget *)> &prepare)
{
    BarePage bare;
    OwnPage own;
    prepare(own.calendar());
    table->addFigures(
        {QString::fromLatin1(operation), cellCount, pageGoal}, [&] { return limit(&bare); },
        [&] { return ours(&own); });
}

void markAll(ZvCalendarWidget *calendar)
{
    for (int day = -cellCount; day < 2 * cellCount; ++day)
        calendar->setScheduledDate(shown.addDays(day));
}

void benchPages(Bench::Table *table)
{
    add(table, "repaint of a month / bare", &BarePage::repaint, &OwnPage::repaint,
        [](ZvCalendarWidget *) {});
    add(table, "the same with every day marked / bare", &BarePage::repaint, &OwnPage::repaint,
        markAll);
    add(table, "the same with every day marked, selected / bare", &BarePage::repaint,
        &OwnPage::repaint, [](ZvCalendarWidget *calendar) {
            markAll(calendar);
            calendar->selectMonth();
        });
    add(table, "turn of the page / bare", &BarePage::turn, &OwnPage::turn,
        [](ZvCalendarWidget *) {});
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    Bench::Table table(QCoreApplication::arguments());
    benchPages(&table);
    benchScheduleList(&table);
    return table.finish();
}
