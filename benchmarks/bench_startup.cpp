#include "Bench.h"
#include "Once.h"

#include "Path.h"
#include "ZvChannel.h"
#include "ZvEditorConfig.h"
#include "ZvEditorUserConfig.h"
#include "editor/ZvScheduleEditor.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QApplication>
#include <QDir>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMainWindow>
#include <QMap>
#include <QMenuBar>
#include <QProcess>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

#include <sys/resource.h>

#include <cstdlib>

using namespace Zavo;

namespace {

constexpr int channelCount = 100;
constexpr int windowWidth = 1280;
constexpr int windowHeight = 860;
constexpr int settlingTime = 200; // ms, longer than any timer of the start
constexpr double tabsGoal = 3.5;
constexpr double startGoal = 4.0;

/// What a page cannot do without: a widget with a view on a scene.
QWidget *createBarePage()
{
    auto *page = new QWidget;
    auto *view = new QGraphicsView(page);
    view->setScene(new QGraphicsScene(view));
    (new QVBoxLayout(page))->addWidget(view);
    return page;
}

/// The names of the channels that writeChannels() writes.
QStringList plainTitles()
{
    QStringList titles;
    for (int i = 0; i < channelCount; ++i)
        titles.append(QStringLiteral("Ch.%1").arg(i));
    return titles;
}

/// The same titles as ours: to find fonts for the scripts of the world is the framework's work.
void addBarePages(QTabWidget *tabs, const QStringList &titles)
{
    for (const QString &title : titles)
        tabs->addTab(createBarePage(), title);
}

/// A shown widget that is measured while it is filled. The scenes of its pages go with it.
template<typename Widget>
void show(Widget *widget)
{
    widget->resize(windowWidth, windowHeight);
    widget->show();
    QCoreApplication::processEvents();
}

/// Milliseconds of the work, which a profiler finds under its name.
double measure(const std::function<void()> &work)
{
    return Bench::measureProcessor([&work] { measuredOperation(&work); });
}

double bareTabs()
{
    QTabWidget tabs;
    show(&tabs);
    return measure([&tabs] {
        addBarePages(&tabs, plainTitles());
        QCoreApplication::processEvents();
    });
}

double ownTabs()
{
    ZvScheduleMainWidget widget;
    widget.setupWidgets();
    show(&widget);
    const double figure = measure([&widget] {
        QMetaObject::invokeMethod(&widget, "createTabs");
        QCoreApplication::processEvents();
    });
    qDeleteAll(widget.takeGraphicsScenes());
    return figure;
}

/// Shows a window of empty pages.
void openBareWindow(QMainWindow *window, const QStringList &titles)
{
    auto *tabs = new QTabWidget;
    window->setCentralWidget(tabs);
    addBarePages(tabs, titles);
    show(window);
}

/// Shows the editor in a window and waits for its tabs.
ZvScheduleEditor *openOwnWindow(QMainWindow *window, int pageCount)
{
    const auto tabCount = [window] {
        const auto *tabs = window->findChild<QTabWidget *>();
        return tabs ? tabs->count() : 0;
    };
    auto *editor = new ZvScheduleEditor(window);
    for (QMenu *menu : editor->menu())
        window->menuBar()->addMenu(menu);
    editor->exec();
    show(window);
    while (tabCount() < pageCount)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    return editor;
}

double bareStart(const QStringList &titles)
{
    QMainWindow window;
    return measure([&] { openBareWindow(&window, titles); });
}

double ownStart(int pageCount)
{
    QMainWindow window;
    ZvScheduleEditor *editor = nullptr;
    const double figure = measure([&] { editor = openOwnWindow(&window, pageCount); });
    QList<QGraphicsScene *> scenes;
    QObject::connect(
        editor, qOverload<const QList<QGraphicsScene *> &>(&ZvScheduleEditor::graphicsScenePurged),
        [&scenes](const QList<QGraphicsScene *> &purged) { scenes = purged; });
    editor->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qDeleteAll(scenes);
    return figure;
}

/// The life of a program of its own until its window is idle, the timers of its start included.
[[noreturn]] void liveAlone(bool plain, const QStringList &titles)
{
    QMainWindow window;
    if (plain)
        openBareWindow(&window, titles);
    else
        openOwnWindow(&window, titles.size());
    QTimer::singleShot(settlingTime, qApp, SLOT(quit()));
    QCoreApplication::exec();
    std::_Exit(0);
}

double processorTimeOfChildren()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto milliseconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

double programStart(bool plain, const QStringList &titles)
{
    QStringList arguments{QStringLiteral("--alone"),
                          plain ? QStringLiteral("--bare") : QStringLiteral("--own")};
    arguments.append(titles);
    const double before = processorTimeOfChildren();
    if (QProcess::execute(QCoreApplication::applicationFilePath(), arguments) != 0)
        qFatal("cannot start a program");
    return processorTimeOfChildren() - before;
}

void writeChannels(const QString &dataDir)
{
    const QString folder = Path::combine(dataDir, QStringLiteral("channel"));
    QDir().mkpath(folder);
    for (int i = 0; i < channelCount; ++i) {
        ZvChannel channel(Path::combine(folder, QStringLiteral("channel%1.xml").arg(i)));
        channel.setId(i);
        channel.setIndex(i);
        channel.setName(QStringLiteral("Ch.%1").arg(i));
        ZvSchedule schedule;
        schedule.setType(ZvSchedule::Default);
        channel.insertSchedule(schedule);
        if (!channel.writeToFile())
            qFatal("cannot write %s", qPrintable(channel.filePath()));
    }
}

/// What the tabs of a data folder are called, in their order.
QStringList titlesOf(const QString &dataDir)
{
    const QDir folder(Path::combine(dataDir, QStringLiteral("channel")));
    const QStringList files = folder.entryList({QStringLiteral("channel?*.xml")}, QDir::Files);
    QMap<int, QString> titles;
    for (const QString &file : files) {
        ZvChannel channel(folder.filePath(file));
        if (!channel.readFile())
            qFatal("cannot read %s", qPrintable(file));
        titles.insert(channel.index(), channel.name());
    }
    return titles.values();
}

void beSilent(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void doOnce(const QString &name, bool plain, const QStringList &titles)
{
    // The first time warms up what a process has only once.
    for (int i = 0; i < 2; ++i) {
        if (name == QLatin1String("createTabs"))
            plain ? bareTabs() : ownTabs();
        else
            plain ? bareStart(titles) : ownStart(titles.size());
    }
}

} // namespace

/// Without arguments the table; with --check the exit status says whether the goals hold; with
/// --once createTabs|start [--bare] one of them, ours or the plain one, for a profiler.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    qInstallMessageHandler(beSilent);
    ZvEditorUserConfig::setSettings(nullptr);
    const QStringList arguments = QCoreApplication::arguments();
    const bool plain = arguments.contains(QStringLiteral("--bare"));
    const QString examples = QStringLiteral(ZAVO_EXAMPLE_DATA);
    ZvEditorConfig::setDataDir(examples);
    if (arguments.value(1) == QLatin1String("--alone"))
        liveAlone(plain, arguments.mid(3));
    const QStringList titles = titlesOf(examples);

    QTemporaryDir many;
    writeChannels(many.path());
    if (arguments.value(1) == QLatin1String("--once")) {
        const QString name = arguments.value(2);
        if (name == QLatin1String("createTabs"))
            ZvEditorConfig::setDataDir(many.path());
        doOnce(name, plain, titles);
        return 0;
    }

    Bench::Table table(arguments);
    table.addFigures(
        {QStringLiteral("start of the program / of a bare one"), titles.size(), startGoal},
        [&titles] { return programStart(true, titles); },
        [&titles] { return programStart(false, titles); });
    table.addFigures(
        {QStringLiteral("window in a running program / bare one"), titles.size(), Bench::NoGoal},
        [&titles] { return bareStart(titles); }, [&titles] { return ownStart(titles.size()); });
    ZvEditorConfig::setDataDir(many.path());
    table.addFigures({QStringLiteral("createTabs / as many bare pages"), channelCount, tabsGoal},
                     bareTabs, ownTabs);
    return table.finish();
}
