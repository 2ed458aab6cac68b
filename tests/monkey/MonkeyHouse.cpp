#include "MonkeyHouse.h"

#include "HostWindow.h"

#include "ZvConfig.h"
#include "ZvEditorConfig.h"
#include "editor/ZvScheduleEditor.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"
#include "workspace/ZvScheduleMainWidget.h"
#include "workspace/ZvScheduleTabWidget.h"

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QKeyEvent>
#include <QTableView>

using namespace Zavo;

namespace ZavoTest {

MonkeyHouse::MonkeyHouse()
{
    m_data.copyFrom(QStringLiteral(ZAVO_EXAMPLE_DATA));
    ZvEditorConfig::getConfig()->setDefaultScheduleUsedFirst(true);
    for (const char *scheme : {"", "file", "http", "https", "mailto"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "openOnDesktop");
}

MonkeyHouse::~MonkeyHouse()
{
    for (const char *scheme : {"", "file", "http", "https", "mailto"})
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
}

bool MonkeyHouse::open()
{
    close();
    m_isClosed = false;
    m_window = std::make_unique<HostWindow>();
    connect(m_window.get(), SIGNAL(finished()), this, SLOT(onFinished()));
    QString message;
    if (!m_window->start(&message))
        return false;
    m_window->show();
    m_window->activateWindow();
    return true;
}

void MonkeyHouse::close()
{
    m_window.reset();
    m_isClosed = true;
}

// A calendar that goes while a date is typed loses the validator of that date, which Qt made. So
// let the typing end before.
void MonkeyHouse::onFinished()
{
    m_isClosed = true;
    const auto calendars = m_window->findChildren<QCalendarWidget *>();
    for (const QCalendarWidget *calendar : calendars) {
        if (auto *page = calendar->findChild<QTableView *>()) {
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(page, &escape);
        }
    }
}

void MonkeyHouse::openOnDesktop(const QUrl &url)
{
    Q_UNUSED(url)
}

ZvScheduleEditor *MonkeyHouse::editor() const
{
    return m_window ? m_window->editor() : nullptr;
}

ZvScheduleMainWidget *MonkeyHouse::main() const
{
    return m_window ? dynamic_cast<ZvScheduleMainWidget *>(m_window->centralWidget()) : nullptr;
}

ZvScheduleTabWidget *MonkeyHouse::tabs() const
{
    return main() ? main()->findChild<ZvScheduleTabWidget *>() : nullptr;
}

QList<ZvScheduleWorkingArea *> MonkeyHouse::areas() const
{
    QList<ZvScheduleWorkingArea *> list;
    const ZvScheduleTabWidget *widget = tabs();
    for (int i = 0; widget && i < widget->count(); ++i) {
        if (auto *area = qobject_cast<ZvScheduleWorkingArea *>(widget->widget(i)))
            list.append(area);
    }
    return list;
}

ZvScheduleWorkingArea *MonkeyHouse::currentArea() const
{
    return main() ? main()->currentWorkingArea() : nullptr;
}

ZvTimeTableView *MonkeyHouse::view() const
{
    return currentArea() ? currentArea()->findChild<ZvTimeTableView *>() : nullptr;
}

ZvTimeTableTimeZoneItem *MonkeyHouse::timeZone(const ZvScheduleWorkingArea *area)
{
    const auto *view = area->findChild<ZvTimeTableView *>();
    const auto *scene = view ? qobject_cast<ZvTimeTableScene *>(view->scene()) : nullptr;
    return scene ? scene->timeZoneItem() : nullptr;
}

QStringList MonkeyHouse::stageFiles() const
{
    QStringList files;
    QDirIterator found(m_data.stageFolder(), QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files.append(found.next());
    files.sort();
    return files;
}

} // namespace ZavoTest
