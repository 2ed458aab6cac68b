#include "Bench.h"

#include "Path.h"
#include "ZvChannel.h"
#include "ZvEditorConfig.h"
#include "ZvEditorUserConfig.h"
#include "domain/MessageBox.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/ZvScheduleMainWidget.h"
#include "workspace/ZvScheduleTabWidget.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGraphicsScene>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QUndoGroup>
#include <QUndoStack>

#include <memory>

using namespace Zavo;

namespace {

constexpr int channelCount = 200;
constexpr int scheduleCount = 1000;
constexpr int bandsPerSchedule = 24;
constexpr int windowWidth = 1280;
constexpr int windowHeight = 860;
constexpr double tabGoal = 2.0;
constexpr double schedulesGoal = 3.0;
constexpr int movedFrom = 50;
constexpr int movedTo = 150;
const QDate firstDate(2040, 1, 1);

ZvChannel *newChannel(const QString &folder, int number)
{
    auto *channel = new ZvChannel(Path::combine(
        folder, QStringLiteral("channel%1.xml").arg(number, 3, 10, QLatin1Char('0'))));
    channel->setId(number);
    channel->setIndex(number);
    channel->setName(QStringLiteral("Ch.%1").arg(number));
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Default);
    channel->insertSchedule(schedule);
    return channel;
}

void write(ZvChannel *channel)
{
    if (!channel->writeToFile())
        qFatal("cannot write %s", qPrintable(channel->filePath()));
}

void settle()
{
    QCoreApplication::processEvents();
}

/// Answers the next message box with Yes.
void answerYes()
{
    QTimer::singleShot(0, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Yes)->click();
    });
}

/// What is done to a tab among many, with all that it takes to be seen.
class Tabs
{
public:
    explicit Tabs(QString folder)
        : m_folder(std::move(folder))
    {
    }
    virtual ~Tabs() = default;
    Q_DISABLE_COPY(Tabs)

    virtual void add(ZvChannel *channel) = 0;
    virtual void deleteCurrent() = 0;
    virtual void rename(int index, const QString &name) = 0;
    virtual void move(int from, int to) = 0;
    virtual QTabWidget *tabWidget() = 0;

    double addOne()
    {
        ZvChannel *channel = newChannel(m_folder, channelCount);
        write(channel);
        const double figure = Bench::measureProcessor([this, channel] {
            add(channel);
            settle();
        });
        removeAdded();
        return figure;
    }

    double deleteOne()
    {
        ZvChannel *channel = newChannel(m_folder, channelCount);
        write(channel);
        add(channel);
        tabWidget()->setCurrentIndex(tabWidget()->count() - 1);
        settle();
        return Bench::measureProcessor([this] {
            answerYes();
            deleteCurrent();
            settle();
        });
    }

    double renameOne()
    {
        m_renamed = !m_renamed;
        return Bench::measureProcessor([this] {
            rename(movedFrom, m_renamed ? QStringLiteral("Renamed") : QStringLiteral("Named"));
            settle();
        });
    }

    double moveOne()
    {
        m_moved = !m_moved;
        return Bench::measureProcessor([this] {
            if (m_moved)
                move(movedFrom, movedTo);
            else
                move(movedTo, movedFrom);
            settle();
        });
    }

private:
    void removeAdded()
    {
        tabWidget()->setCurrentIndex(tabWidget()->count() - 1);
        answerYes();
        deleteCurrent();
        settle();
    }

    QString m_folder;
    bool m_renamed = false;
    bool m_moved = false;
};

class OwnTabs final : public Tabs
{
public:
    explicit OwnTabs(const QString &folder)
        : Tabs(folder)
    {
        m_main.setupWidgets();
        m_main.resize(windowWidth, windowHeight);
        m_main.show();
        settle();
        QMetaObject::invokeMethod(&m_main, "createTabs");
        m_tabs = m_main.findChild<ZvScheduleTabWidget *>();
        settle();
    }
    ~OwnTabs() override { qDeleteAll(m_main.takeGraphicsScenes()); }
    Q_DISABLE_COPY(OwnTabs)

    void add(ZvChannel *channel) override { m_main.addChannel(channel); }
    void deleteCurrent() override { m_main.removeCurrentChannel(); }
    void rename(int index, const QString &name) override
    {
        m_main.changeChannelNameWithUndo(index, name);
    }
    void move(int from, int to) override
    {
        m_tabs->moveTab(from, to);
        m_tabs->onTabMoved(from, to);
    }
    QTabWidget *tabWidget() override { return m_tabs; }

private:
    ZvScheduleMainWidget m_main;
    ZvScheduleTabWidget *m_tabs = nullptr;
};

/// The same pages in a plain tab widget.
class BareTabs final : public Tabs
{
public:
    explicit BareTabs(const QString &folder)
        : Tabs(folder)
    {
        for (int i = 0; i < channelCount; ++i)
            BareTabs::add(newChannel(folder, i));
        m_tabs.setMovable(true);
        m_tabs.resize(windowWidth, windowHeight);
        m_tabs.show();
        settle();
    }
    ~BareTabs() override
    {
        for (int i = 0; i < m_tabs.count(); ++i)
            delete page(i)->takeScene();
    }
    Q_DISABLE_COPY(BareTabs)

    void add(ZvChannel *channel) override
    {
        m_tabs.addTab(new ZvScheduleWorkingArea(channel, nullptr), m_icon, channel->name());
    }
    void deleteCurrent() override
    {
        const int index = m_tabs.currentIndex();
        ZvScheduleWorkingArea *area = page(index);
        showMessageBox(&m_tabs, QMessageBox::Warning, QStringLiteral("Delete Channel"),
                       QStringLiteral("The channel will be deleted."),
                       QMessageBox::Yes | QMessageBox::No);
        QFile::remove(area->channel()->filePath());
        m_tabs.removeTab(index);
        delete area->takeScene();
        delete area;
    }
    void rename(int index, const QString &name) override
    {
        m_tabs.setTabText(index, name);
        m_tabs.setCurrentIndex(index);
    }
    void move(int from, int to) override { m_tabs.tabBar()->moveTab(from, to); }
    QTabWidget *tabWidget() override { return &m_tabs; }

private:
    ZvScheduleWorkingArea *page(int index) const
    {
        return qobject_cast<ZvScheduleWorkingArea *>(m_tabs.widget(index));
    }

    QTabWidget m_tabs;
    QIcon m_icon{QStringLiteral(":/images/channel.svg")};
};

void benchTabs(Bench::Table *table, const QString &dataDir)
{
    const QString folder = Path::combine(dataDir, QStringLiteral("channel"));
    QDir().mkpath(folder);
    for (int i = 0; i < channelCount; ++i) {
        const std::unique_ptr<ZvChannel> channel(newChannel(folder, i));
        write(channel.get());
    }
    OwnTabs own(folder);
    BareTabs bare(folder);
    const struct
    {
        const char *label;
        double (Tabs::*operation)();
    } rows[] = {
        {"add a tab / bare", &Tabs::addOne},
        {"delete a tab / bare", &Tabs::deleteOne},
        {"rename a tab / bare", &Tabs::renameOne},
        {"move a tab / bare", &Tabs::moveOne},
    };
    for (const auto &row : rows) {
        table->addFigures(
            {QString::fromLatin1(row.label), channelCount, tabGoal},
            [&bare, &row] { return (bare.*row.operation)(); },
            [&own, &row] { return (own.*row.operation)(); });
    }
}

QList<ZvSchedule> manySchedules()
{
    QList<ZvSchedule> schedules;
    for (int i = 0; i < scheduleCount; ++i) {
        ZvSchedule schedule = ZvScheduleBasicInfo(firstDate.addDays(i)).toSchedule();
        QList<ZvTime> bands;
        for (int hour = 0; hour < bandsPerSchedule; ++hour)
            bands.append(ZvTime(QTime(hour, 0), QTime(hour, 30), QStringLiteral("a.xml")));
        schedule.setTimeList(bands);
        schedules.append(schedule);
    }
    return schedules;
}

/// Schedules that are taken out of a channel by one command and brought back by its undo.
void benchSchedules(Bench::Table *table, const QString &dataDir)
{
    ZvScheduleMainWidget main;
    main.setupWidgets();
    main.resize(windowWidth, windowHeight);
    main.show();
    const QList<ZvSchedule> schedules = manySchedules();
    auto *channel = newChannel(Path::combine(dataDir, QStringLiteral("channel")), channelCount + 1);
    QList<ZvScheduleBasicInfo> infos;
    for (const ZvSchedule &schedule : schedules) {
        channel->insertSchedule(schedule);
        infos.append(ZvScheduleBasicInfo(schedule.date()));
    }
    main.addChannel(channel);
    main.switchToDefaultSchedule();
    settle();
    table->addFigures(
        {QStringLiteral("remove schedules, undo / insertSchedule"), scheduleCount, schedulesGoal},
        [&schedules] {
            ZvChannel bare{QString()};
            return Bench::measureProcessor([&] {
                for (const ZvSchedule &schedule : schedules)
                    bare.insertSchedule(schedule);
            });
        },
        [&main, &infos] {
            return Bench::measureProcessor([&] {
                main.removeScheduleWithUndo(infos, false);
                main.undoGroup()->activeStack()->undo();
                settle();
            });
        });
    qDeleteAll(main.takeGraphicsScenes());
}

void beSilent(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    qInstallMessageHandler(beSilent);
    ZvEditorUserConfig::setSettings(nullptr);
    const QTemporaryDir data;
    ZvEditorConfig::setDataDir(data.path());
    Bench::Table table(QCoreApplication::arguments());
    benchSchedules(&table, data.path());
    benchTabs(&table, data.path());
    return table.finish();
}
