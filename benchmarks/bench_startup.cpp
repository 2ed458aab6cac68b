#include "Bench.h"

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
#include <QMenuBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <memory>

using namespace Zavo;

namespace {

constexpr int channelCount = 100;
constexpr int windowWidth = 1280;
constexpr int windowHeight = 860;

/// What a page cannot do without: a widget with a view on a scene.
QWidget *createBarePage()
{
    auto *page = new QWidget;
    auto *view = new QGraphicsView(page);
    view->setScene(new QGraphicsScene(view));
    (new QVBoxLayout(page))->addWidget(view);
    return page;
}

void addBarePages(QTabWidget *tabs, int count)
{
    for (int i = 0; i < count; ++i)
        tabs->addTab(createBarePage(), QStringLiteral("Ch.%1").arg(i));
}

/// A shown widget that is measured while it is filled. The scenes of its pages go with it.
template<typename Widget>
void show(Widget *widget)
{
    widget->resize(windowWidth, windowHeight);
    widget->show();
    QCoreApplication::processEvents();
}

double bareTabs()
{
    QTabWidget tabs;
    show(&tabs);
    return Bench::measure([&tabs] {
        addBarePages(&tabs, channelCount);
        QCoreApplication::processEvents();
    });
}

double ownTabs()
{
    ZvScheduleMainWidget widget;
    widget.setupWidgets();
    show(&widget);
    const double figure = Bench::measure([&widget] {
        QMetaObject::invokeMethod(&widget, "createTabs");
        QCoreApplication::processEvents();
    });
    qDeleteAll(widget.takeGraphicsScenes());
    return figure;
}

double bareStart(int pageCount)
{
    std::unique_ptr<QMainWindow> window;
    return Bench::measure([&window, pageCount] {
        window = std::make_unique<QMainWindow>();
        auto *tabs = new QTabWidget;
        window->setCentralWidget(tabs);
        addBarePages(tabs, pageCount);
        show(window.get());
    });
}

double ownStart(int pageCount)
{
    QMainWindow window;
    ZvScheduleEditor *editor = nullptr;
    const auto tabCount = [&window] {
        const auto *tabs = window.findChild<QTabWidget *>();
        return tabs ? tabs->count() : 0;
    };
    const double figure = Bench::measure([&] {
        editor = new ZvScheduleEditor(&window);
        for (QMenu *menu : editor->menu())
            window.menuBar()->addMenu(menu);
        editor->exec();
        show(&window);
        while (tabCount() < pageCount)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    });
    QList<QGraphicsScene *> scenes;
    QObject::connect(
        editor, qOverload<const QList<QGraphicsScene *> &>(&ZvScheduleEditor::graphicsScenePurged),
        [&scenes](const QList<QGraphicsScene *> &purged) { scenes = purged; });
    editor->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qDeleteAll(scenes);
    return figure;
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

int countChannels(const QString &dataDir)
{
    const QDir folder(Path::combine(dataDir, QStringLiteral("channel")));
    return folder.entryList({QStringLiteral("channel?*.xml")}, QDir::Files).size();
}

void beSilent(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    qInstallMessageHandler(beSilent);
    ZvEditorUserConfig::setSettings(nullptr);
    Bench::Table table(QCoreApplication::arguments());

    QTemporaryDir many;
    writeChannels(many.path());
    ZvEditorConfig::setDataDir(many.path());
    table.addFigures({QStringLiteral("createTabs / as many bare pages"), channelCount, 3.5},
                     bareTabs, ownTabs);

    const QString examples = QStringLiteral(ZAVO_EXAMPLE_DATA);
    ZvEditorConfig::setDataDir(examples);
    const int count = countChannels(examples);
    table.addFigures(
        {QStringLiteral("start until idle / window of empty pages"), count, 4.0},
        [count] { return bareStart(count); }, [count] { return ownStart(count); });
    return table.finish();
}
