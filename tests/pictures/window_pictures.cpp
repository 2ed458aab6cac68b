#include "PicturedWindow.h"

#include "Display.h"
#include "check/CheckDialog.h"
#include "upload/UploadDialog.h"
#include "upload/UploadTargets.h"

#include <QApplication>
#include <QTabBar>
#include <QTabWidget>

using namespace Zavo;
using ZavoTest::DragGesture;

namespace {

const QDate pictured(2026, 12, 24);

void nameFirstTab(const PicturedWindow &window, const QString &name)
{
    QTabBar *bar = window.window()->findChild<QTabWidget *>()->tabBar();
    QTest::mouseDClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    window.settle();
    QTest::keyClicks(QApplication::focusWidget(), name);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

void dropDefaultStage(const PicturedWindow &window, const QString &stage)
{
    const QList<QLabel *> labels = window.window()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->isVisible() && label->acceptDrops()) {
            DragGesture drag(DragGesture::filesMimeData({window.stage(stage)}));
            drag.enter(label, label->rect().center());
            drag.drop();
            return;
        }
    }
}

void drawFirstHour(const QString &folder)
{
    const PicturedWindow window(PicturedWindow::Data::StagesOnly);
    window.click(window.widget("DefaultScheduleSelectedWidget"), QPoint(3, 3));
    window.chooseStage(QStringLiteral("welcome.xml"));
    window.draw(folder + QStringLiteral("/guide-start.png"));

    nameFirstTab(window, QStringLiteral("Lobby"));
    window.drop(QStringLiteral("welcome.xml"), QTime(7, 30));
    window.drop(QStringLiteral("news.xml"), QTime(8, 30));
    window.drop(QStringLiteral("lunch_menu.zstg"), QTime(10, 0));
    dropDefaultStage(window, QStringLiteral("logo.zstg"));
    window.clickTime(QTime(9, 0));
    window.draw(folder + QStringLiteral("/guide-bands.png"));
}

void drawDialogs(const PicturedWindow &window, const QString &folder)
{
    window.window()->checkData();
    auto *check = window.window()->findChild<CheckDialog *>();
    check->resize(760, 300);
    if (!QTest::qWaitFor([check] { return !check->isChecking(); }, 20000))
        qFatal("the check does not end");
    window.draw(*check, folder + QStringLiteral("/guide-check.png"));
    check->close();

    UploadTargets::store({{UploadTarget(QStringLiteral("/mnt/lobby-wall")), true},
                          {UploadTarget(QStringLiteral("rsync://foyer/display")), true},
                          {UploadTarget(QStringLiteral("zavo@concourse:/srv/zavo")), false}});
    window.window()->showUploadManager();
    auto *upload = window.window()->findChild<UploadDialog *>();
    upload->resize(640, 320);
    window.draw(*upload, folder + QStringLiteral("/guide-upload.png"));
    upload->close();
}

} // namespace

/// Draws the window with each kind of schedule on show into the folder that is its argument.
int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    Display::chooseFont();
    const QString folder = QCoreApplication::arguments().value(1, QStringLiteral("."));
    drawFirstHour(folder);

    const PicturedWindow window;
    window.chooseStage(QStringLiteral("welcome.xml"));
    window.click(window.widget("DefaultScheduleSelectedWidget"), QPoint(3, 3));
    window.settle();
    window.clickTime(QTime(8, 30));
    window.draw(folder + QStringLiteral("/window-default.png"));

    window.clickDate(pictured);
    window.clickDate(pictured.addDays(2), Qt::ControlModifier);
    window.clickDate(pictured.addDays(1), Qt::ControlModifier);
    window.draw(folder + QStringLiteral("/window-date.png"));

    window.clickDate(pictured.addDays(4));
    window.draw(folder + QStringLiteral("/guide-missing.png"));

    window.clickDay(QStringLiteral("Fri"));
    window.raise("ScheduleListDock");
    window.draw(folder + QStringLiteral("/window-day.png"));

    drawDialogs(window, folder);
    return 0;
}
