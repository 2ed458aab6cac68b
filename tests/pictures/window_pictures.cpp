#include "CalendarMouse.h"
#include "Display.h"
#include "HostWindow.h"
#include "TemporaryDataFolder.h"

#include "ZvEditorConfig.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QDockWidget>
#include <QGraphicsView>
#include <QLabel>
#include <QListView>
#include <QtTest>

#include <memory>

using namespace Zavo;
using ZavoTest::CalendarMouse;
using ZavoTest::TemporaryDataFolder;

namespace {

constexpr int settlingTime = 400; // ms, longer than all timers of a change of schedule
const QDate pictured(2026, 12, 24);

/// The program's window on a copy of the example data, operated as by hand.
class PicturedWindow final
{
public:
    PicturedWindow()
    {
        m_data.copyFrom(QStringLiteral(ZAVO_EXAMPLE_DATA));
        ZvEditorConfig::reload();
        m_window = std::make_unique<HostWindow>();
        QString message;
        if (!m_window->start(&message))
            qFatal("%s", qPrintable(message));
        m_window->show();
        settle();
    }

    QWidget *widget(const char *name) const
    {
        auto *found = m_window->findChild<QWidget *>(QLatin1String(name));
        if (!found)
            qFatal("there is no %s", name);
        return found;
    }

    void click(QWidget *widget, const QPoint &position) const
    {
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, position);
    }

    void clickDay(const QString &text) const
    {
        const QList<QLabel *> labels = widget("WeekWidget")->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text() == text)
                click(label, label->rect().center());
        }
    }

    void clickDate(const QDate &date, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        auto *calendar = qobject_cast<QCalendarWidget *>(widget("CalendarWidget"));
        CalendarMouse(calendar).click(date, modifiers);
    }

    /// Clicks on the table on show, whose minutes are units of its scene.
    void clickTime(const QTime &time) const
    {
        const QList<QGraphicsView *> views = m_window->findChildren<QGraphicsView *>();
        for (QGraphicsView *view : views) {
            const double y = 10.0 + time.msecsSinceStartOfDay() / 60000.0;
            if (view->isVisible())
                click(view->viewport(), view->mapFromScene(view->sceneRect().center().x(), y));
        }
    }

    void chooseStage(const QString &name) const
    {
        const auto *list = widget("ChooseStageDock")->findChild<QListView *>();
        const QAbstractItemModel *model = list->model();
        for (int row = 0; row < model->rowCount(list->rootIndex()); ++row) {
            const QModelIndex index = model->index(row, 0, list->rootIndex());
            if (index.data().toString() == name)
                click(list->viewport(), list->visualRect(index).center());
        }
    }

    void raise(const char *dockName) const
    {
        auto *dock = qobject_cast<QDockWidget *>(widget(dockName));
        dock->show();
        dock->raise();
    }

    void settle() const { QTest::qWait(settlingTime); }

    void draw(const QString &filePath)
    {
        settle();
        if (!m_window->grab().save(filePath))
            qFatal("cannot write %s", qPrintable(filePath));
    }

private:
    TemporaryDataFolder m_data;
    std::unique_ptr<HostWindow> m_window;
};

} // namespace

/// Draws the window with each kind of schedule on show into the folder that is its argument.
int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    Display::chooseFont();
    const QString folder = QCoreApplication::arguments().value(1, QStringLiteral("."));
    PicturedWindow window;
    window.chooseStage(QStringLiteral("welcome.xml"));
    window.click(window.widget("DefaultScheduleSelectedWidget"), QPoint(3, 3));
    window.settle();
    window.clickTime(QTime(8, 30));
    window.draw(folder + QStringLiteral("/window-default.png"));

    window.clickDate(pictured);
    window.clickDate(pictured.addDays(2), Qt::ControlModifier);
    window.clickDate(pictured.addDays(1), Qt::ControlModifier);
    window.draw(folder + QStringLiteral("/window-date.png"));

    window.clickDay(QStringLiteral("Fri"));
    window.raise("ScheduleListDock");
    window.draw(folder + QStringLiteral("/window-day.png"));
    return 0;
}
