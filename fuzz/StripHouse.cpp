#include "StripHouse.h"

#include "ZvChannel.h"
#include "timetable/WorkingAreaStatusBar.h"
#include "timetable/ZvScheduleItemPropertyWidget.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QMessageBox>
#include <QMouseEvent>
#include <QUndoGroup>
#include <QUndoStack>

using namespace Zavo;

namespace ZavoFuzz {

namespace {

bool hasNoLength(const ZvTime &time)
{
    return time.startTime().msecsTo(time.endTime()) <= ZvTime::ToleranceMs;
}

// Bands without length at one moment have no order among them.
QList<ZvTime> inOneOrder(QList<ZvTime> times)
{
    for (int i = 1; i < times.size(); ++i) {
        for (int j = i; j > 0; --j) {
            const ZvTime &left = times.at(j - 1);
            const ZvTime &right = times.at(j);
            const bool areAtOneMoment =
                hasNoLength(left) && hasNoLength(right) &&
                left.startTime().msecsTo(right.startTime()) <= ZvTime::ToleranceMs;
            if (!areAtOneMoment || left.stageName() <= right.stageName())
                break;
            times.swapItemsAt(j - 1, j);
        }
    }
    return times;
}

} // namespace

OnePage::OnePage(ZvChannel *channel)
    : m_area(new ZvScheduleWorkingArea(channel, this))
{
    connectWorkingArea(m_area);
    undoGroup()->addStack(m_area->undoStack());
    undoGroup()->setActiveStack(m_area->undoStack());
    connect(this, &ScheduleRouter::graphicsScenePurged, this,
            [](QGraphicsScene *scene) { delete scene; });
    m_area->switchToDefaultSchedule();
}

OnePage::~OnePage()
{
    delete m_area;
}

StripHouse::StripHouse()
    : m_page(std::make_unique<OnePage>(new ZvChannel(QString())))
    , m_panel(std::make_unique<ZvScheduleItemPropertyWidget>())
{
    // clang-format off
    connect(page(), SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)), panel(), SLOT(onTimeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)));
    connect(page(), SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)), panel(), SLOT(onTimeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)));
    connect(panel(), SIGNAL(itemPropertyChangedByUser()), page(), SLOT(onItemPropertyChangedByPropertyWidget()));
    // clang-format on
    view()->resize(600, 900);
    qApp->installEventFilter(this);
}

StripHouse::~StripHouse()
{
    m_panel.reset();
    m_page.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents();
}

void StripHouse::reset()
{
    QMouseEvent release(QEvent::MouseButtonRelease, QPoint(), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(view()->viewport(), &release);
    area()->findChild<WorkingAreaStatusBar *>()->scaleComboBox()->setCurrentIndex(0);
    QGuiApplication::clipboard()->clear();
    const QList<ZvSchedule> list = area()->channel()->scheduleList();
    for (const ZvSchedule &schedule : list)
        area()->removeSchedule(ZvScheduleBasicInfo(schedule));
    area()->switchToDefaultSchedule();
    zone()->removeAllTimeItems();
    area()->setDefaultStageName(QString());
    area()->channel()->scheduleList().clear();
    area()->channel()->setName(QString());
    area()->switchToScheduleInfo(ZvScheduleBasicInfo(ZvSchedule::Default), true);
    area()->channel()->scheduleList().clear();
    area()->undoStack()->clear();
    area()->renewSavedChannel();
    QCoreApplication::sendPostedEvents();
}

ZvTimeTableView *StripHouse::view() const
{
    return area()->findChild<ZvTimeTableView *>();
}

ZvTimeTableScene *StripHouse::scene() const
{
    return qobject_cast<ZvTimeTableScene *>(view()->scene());
}

ZvTimeTableTimeZoneItem *StripHouse::zone() const
{
    return scene()->timeZoneItem();
}

ZvChannel StripHouse::content() const
{
    ZvChannel content(*area()->channel());
    if (area()->isCurrentScheduleEnabled()) {
        ZvSchedule shown = area()->currentScheduleInfo().toSchedule();
        shown.setDefaultStage(area()->defaultStageName());
        shown.setTimeList(area()->currentTimes());
        content.insertSchedule(shown);
    }
    const QList<ZvSchedule> &list = content.scheduleList();
    if (!list.isEmpty() && list.first().type() == ZvSchedule::Default && list.first().isEmpty())
        content.removeSchedule(ZvSchedule(list.first()));
    for (const ZvSchedule &schedule : list)
        schedule.timeList() = inOneOrder(schedule.timeList());
    return content;
}

bool StripHouse::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(watched) : nullptr;
    if (box) {
        ++m_boxCount;
        const bool isQuestion = box->standardButtons().testFlag(QMessageBox::No);
        const int answer = !isQuestion    ? QMessageBox::Ok
                           : m_answersYes ? QMessageBox::Yes
                                          : QMessageBox::No;
        QMetaObject::invokeMethod(box, "done", Qt::QueuedConnection, Q_ARG(int, answer));
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ZavoFuzz
