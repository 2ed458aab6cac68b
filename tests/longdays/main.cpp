// The program as it is used for long: thousands of schedules opened, started and closed again and
// again, open over many midnights. What it holds of the machine must not grow.
#include "Footprint.h"
#include "TemporaryDataFolder.h"

#include "HostWindow.h"
#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"
#include "editor/ZvScheduleEditor.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QDateTime>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTest>

#include <cstdio>
#include <functional>
#include <memory>

using namespace Zavo;
using namespace ZavoTest;

namespace {

constexpr int DateCount = 200;
constexpr int WarmUpShare = 10; // one part of so many
constexpr double LargestGrowthMiB = 5.0;
constexpr int SmallCacheKiB = 256;
constexpr int EditInterval = 3600; // s

QDate dateAt(int number)
{
    return QDate(2099, 1, 1).addDays(number % DateCount);
}

QList<ZvTime> bandsOf(int number)
{
    QList<ZvTime> bands;
    for (int hour = 0; hour < 6 + number % 12; ++hour)
        bands.append(
            ZvTime(QTime(hour, 0), QTime(hour, 40 + number % 20), QStringLiteral("welcome.xml")));
    return bands;
}

class LongDays final
{
public:
    explicit LongDays(bool checksResident);

    bool openSchedules(int count);
    bool startAndClose(int count);
    bool passDays(int count);

private:
    bool start();
    void close();
    void open(int number);
    void edit();
    void trigger(const char *action) const;
    bool repeat(const char *what, int count, const std::function<void(int)> &act) const;
    bool holds(const char *what, const Footprint &before, const Footprint &after) const;

    TemporaryDataFolder m_data;
    std::unique_ptr<HostWindow> m_window;
    bool m_checksResident;
};

LongDays::LongDays(bool checksResident)
    : m_checksResident(checksResident)
{
    m_data.copyFrom(QStringLiteral(ZAVO_EXAMPLE_DATA));
    ZvEditorConfig::getConfig()->setDefaultScheduleUsedFirst(true);
    ZvChannel channel(m_data.channelFolder() + QStringLiteral("/channel0.xml"));
    if (!channel.readFile())
        qFatal("the basic channel cannot be read");
    for (int i = 0; i < DateCount; ++i) {
        ZvSchedule schedule;
        schedule.setType(ZvSchedule::Date);
        schedule.setDate(dateAt(i));
        schedule.setTimeList(bandsOf(i));
        channel.insertSchedule(schedule);
    }
    if (!channel.writeToFile())
        qFatal("the basic channel cannot be written");
}

bool LongDays::start()
{
    m_window = std::make_unique<HostWindow>();
    QString message;
    if (!m_window->start(&message)) {
        std::fprintf(stderr, "the program does not start: %s\n", qPrintable(message));
        return false;
    }
    m_window->show();
    QApplication::processEvents();
    return true;
}

void LongDays::close()
{
    m_window->close();
    QApplication::processEvents();
    m_window.reset();
}

void LongDays::open(int number)
{
    QWidget *widget = m_window->centralWidget();
    if (number % 5 == 0)
        QMetaObject::invokeMethod(widget, "switchToDefaultSchedule");
    else
        QMetaObject::invokeMethod(widget, "switchToDateSchedule", Q_ARG(QDate, dateAt(number)));
    QApplication::processEvents();
}

void LongDays::trigger(const char *action) const
{
    if (QAction *found = m_window->editor()->getAction(QLatin1String(action)))
        found->trigger();
}

// All bands are selected, deleted and brought back, and the channel is saved.
void LongDays::edit()
{
    QMetaObject::invokeMethod(m_window->centralWidget(), "switchToDefaultSchedule");
    trigger("Action_Select_All");
    trigger("Action_Delete");
    trigger("Action_Save_Channel");
    trigger("Action_Undo");
    trigger("Action_Save_Channel");
    QApplication::processEvents();
}

bool LongDays::holds(const char *what, const Footprint &before, const Footprint &after) const
{
    const double heap = after.heapMiB - before.heapMiB;
    const double resident = after.residentMiB - before.residentMiB;
    std::printf("%s: heap %.2f MiB more, resident %.2f MiB more, %d descriptors, at last %d\n",
                what, heap, resident, before.descriptors, after.descriptors);
    return heap <= LargestGrowthMiB && (resident <= LargestGrowthMiB || !m_checksResident) &&
           after.descriptors <= before.descriptors;
}

bool LongDays::repeat(const char *what, int count, const std::function<void(int)> &act) const
{
    const int warmUp = qMax(3, count / WarmUpShare);
    for (int i = 0; i < warmUp; ++i)
        act(i);
    const Footprint before = Footprint::atRest();
    for (int i = 0; i < count; ++i)
        act(i);
    return holds(what, before, Footprint::atRest());
}

bool LongDays::openSchedules(int count)
{
    if (!start())
        return false;
    const bool isGood = repeat("opened schedules", count, [this](int number) { open(number); });
    close();
    return isGood;
}

bool LongDays::startAndClose(int count)
{
    bool starts = true;
    const bool isGood = repeat("started and closed", count, [&](int) {
        starts = starts && start();
        close();
    });
    return isGood && starts;
}

// By the clock of the machine, which may be made to run faster.
bool LongDays::passDays(int count)
{
    if (!start())
        return false;
    for (int i = 0; i < 3; ++i)
        edit();
    const Footprint before = Footprint::atRest();
    const QDateTime begin = QDateTime::currentDateTime();
    QDateTime next = begin;
    QDate today = begin.date();
    int midnights = 0;
    while (begin.daysTo(QDateTime::currentDateTime()) < count) {
        QTest::qWait(1);
        const QDateTime now = QDateTime::currentDateTime();
        if (now.date() != today) {
            today = now.date();
            ++midnights;
        }
        if (now < next)
            continue;
        next = now.addSecs(EditInterval);
        QMetaObject::invokeMethod(m_window->centralWidget(), "switchToDateSchedule",
                                  Q_ARG(QDate, today));
        edit();
    }
    std::printf("%d midnights have passed\n", midnights);
    const bool isGood = holds("days", before, Footprint::atRest());
    close();
    return isGood && midnights == count;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // Qt fills its cache of pictures up to a limit, which is soon reached with this one.
    QPixmapCache::setCacheLimit(SmallCacheKiB);
    QCommandLineParser parser;
    parser.addOptions(
        {{QStringLiteral("schedules"), QStringLiteral("How many to open."), QStringLiteral("count"),
          QStringLiteral("0")},
         {QStringLiteral("cycles"), QStringLiteral("How often to start and close."),
          QStringLiteral("count"), QStringLiteral("0")},
         {QStringLiteral("days"), QStringLiteral("How many days to stay open, by the clock."),
          QStringLiteral("count"), QStringLiteral("0")},
         {QStringLiteral("resident"), QStringLiteral("Look at the physical memory, too.")}});
    parser.addHelpOption();
    parser.process(application);
    const auto number = [&parser](const char *option) {
        return parser.value(QLatin1String(option)).toInt();
    };
    LongDays longDays(parser.isSet(QStringLiteral("resident")));
    bool isGood = true;
    if (number("schedules") > 0)
        isGood = longDays.openSchedules(number("schedules")) && isGood;
    if (number("cycles") > 0)
        isGood = longDays.startAndClose(number("cycles")) && isGood;
    if (number("days") > 0)
        isGood = longDays.passDays(number("days")) && isGood;
    return isGood ? 0 : 1;
}
