// The configuration of the data folder, and the settings of the user with the places of the docks.
#include "Application.h"
#include "Disk.h"
#include "FuzzInput.h"

#include "ZvConfig.h"
#include "ZvEditorCommon.h"
#include "ZvEditorUserConfig.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QSettings>

#include <memory>

using namespace Zavo;
using namespace ZavoFuzz;

namespace {

constexpr int LargestCoordinate = 65536;

void checkConfig(const QByteArray &bytes, const Disk &disk)
{
    const QString path = disk.write(QStringLiteral("config.ini"), bytes);
    ZvConfig config(path);
    require(config.removingDuration() >= 0, QStringLiteral("a duration is negative"));
    config.setAllInOne(!config.allInOne());
    config.setRemovingDuration(17);
    require(config.write(), QStringLiteral("the configuration cannot be written"));
    const ZvConfig back(path);
    require(back.allInOne() == config.allInOne() &&
                back.defaultScheduleUsedFirst() == config.defaultScheduleUsedFirst() &&
                back.removingDuration() == 17,
            QStringLiteral("the configuration reads differently"));
}

QList<QDockWidget *> addDocks(QMainWindow *window)
{
    QList<QDockWidget *> docks;
    for (const char *name : {"A", "B", "C", "D"}) {
        auto *dock = new QDockWidget(window);
        dock->setObjectName(QLatin1String(name));
        window->addDockWidget(docks.size() < 2 ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea,
                              dock);
        docks.append(dock);
    }
    return docks;
}

void restore(const QList<QDockWidget *> &docks, QMainWindow *window)
{
    for (QDockWidget *dock : docks)
        ZvEditorCommon::restoreDockWidgetGeometry(dock, window);
    ZvEditorCommon::reorderDockWidgets(docks, window);
    ZvEditorCommon::restoreTabifiedSettings(QStringLiteral("Tabs"), window);
}

void checkDocks(const QList<QDockWidget *> &docks, const QMainWindow &window)
{
    const QRect sane(-LargestCoordinate, -LargestCoordinate, 2 * LargestCoordinate,
                     2 * LargestCoordinate);
    for (QDockWidget *dock : docks) {
        require(dock->parentWidget() == &window, QStringLiteral("a dock has left the window"));
        require(sane.contains(dock->geometry()), QStringLiteral("a dock is out of reach"));
    }
}

void checkUserSettings(const QByteArray &bytes, const Disk &disk)
{
    const QString path = disk.write(QStringLiteral("settings.ini"), bytes);
    QSettings settings(path, QSettings::IniFormat);
    ZvEditorUserConfig::setSettings(&settings);
    QMainWindow window;
    window.resize(800, 600);
    const QList<QDockWidget *> docks = addDocks(&window);
    restore(docks, &window);
    checkDocks(docks, window);
    for (QDockWidget *dock : docks)
        ZvEditorCommon::storeDockWidgetGeometry(dock, &window);
    ZvEditorCommon::storeTabifiedSettings(QStringLiteral("Tabs"), &window);
    restore(docks, &window);
    checkDocks(docks, window);
    ZvEditorUserConfig::setSettings(nullptr);
}

void keepSilent(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startApplication();
    // A value that makes no sense is told, as it should be.
    qInstallMessageHandler(keepSilent);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static const Disk disk;
    FuzzInput input(bytes, size);
    if (input.byte() == 'C')
        checkConfig(input.rest(), disk);
    else
        checkUserSettings(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<int>(size)),
                          disk);
    return 0;
}
