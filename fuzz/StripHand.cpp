#include "StripHand.h"

#include "FuzzInput.h"
#include "StripHouse.h"

#include "timetable/TimeAxis.h"
#include "timetable/ZvScheduleItemPropertyWidget.h"
#include "timetable/ZvTimeSpinBox.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

using namespace Zavo;

namespace ZavoFuzz {

StripHand::StripHand(StripHouse *house)
    : m_house(house)
{
}

// A band, one of its edges, or anywhere.
QPoint StripHand::place(FuzzInput *input) const
{
    const ZvTimeTableTimeZoneItem *zone = m_house->zone();
    const ZvTimeTableView *view = m_house->view();
    const int where = input->below(8);
    const QList<ZvTimeTableTimeItem *> items = zone->timeItems();
    if (where < 2 || items.isEmpty()) {
        const double y = TimeAxis::dayTop + input->word() * TimeAxis::dayLength / 65535.0;
        return view->mapFromScene(zone->mapToScene(zone->innerRect().center().x(), y));
    }
    const QRectF band = items.at(input->byte() % items.size())->sceneBoundingRect();
    const QPoint top = view->mapFromScene(band.center().x(), band.top());
    const QPoint bottom = view->mapFromScene(band.center().x(), band.bottom());
    switch (where) {
    case 2:
        return top + QPoint(0, 1);
    case 3:
        return bottom - QPoint(0, 1);
    case 4:
        return bottom;
    default:
        return {top.x(), (top.y() + bottom.y()) / 2};
    }
}

void StripHand::sendMouse(int type, Qt::MouseButton button)
{
    QWidget *viewport = m_house->view()->viewport();
    QMouseEvent event(static_cast<QEvent::Type>(type), m_place,
                      viewport->mapTo(m_house->area(), m_place), viewport->mapToGlobal(m_place),
                      button, m_buttons, m_modifiers);
    QCoreApplication::sendEvent(viewport, &event);
}

void StripHand::press(FuzzInput *input)
{
    const QPoint there = place(input);
    const int how = input->byte();
    if (m_button != Qt::NoButton) {
        clickAside(how);
        return;
    }
    m_place = there;
    sendMouse(QEvent::MouseMove, Qt::NoButton);
    m_button = how % 16 == 15 ? Qt::RightButton : Qt::LeftButton;
    m_buttons = m_button;
    m_modifiers = how % 4 == 1   ? Qt::ControlModifier
                  : how % 4 == 2 ? Qt::ShiftModifier
                                 : Qt::NoModifier;
    sendMouse(QEvent::MouseButtonPress, m_button);
}

// Another button than the one that is held.
void StripHand::clickAside(int how)
{
    const Qt::MouseButton held = m_button;
    const Qt::MouseButton other = held == Qt::RightButton ? Qt::LeftButton
                                  : how % 2 == 0          ? Qt::RightButton
                                                          : Qt::MiddleButton;
    m_buttons = held | other;
    sendMouse(how % 4 < 2 ? QEvent::MouseButtonPress : QEvent::MouseButtonDblClick, other);
    m_buttons = held;
    sendMouse(QEvent::MouseButtonRelease, other);
}

void StripHand::move(FuzzInput *input)
{
    const int distance = input->byte() - 128;
    const bool isFar = input->flag();
    m_place += QPoint(0, isFar ? distance * 8 : distance);
    sendMouse(QEvent::MouseMove, Qt::NoButton);
}

void StripHand::release()
{
    if (m_button == Qt::NoButton)
        return;
    const Qt::MouseButton button = m_button;
    m_button = Qt::NoButton;
    m_buttons = Qt::NoButton;
    sendMouse(QEvent::MouseButtonRelease, button);
    m_modifiers = Qt::NoModifier;
}

void StripHand::pressKey(FuzzInput *input)
{
    const int count = 1 + input->below(40);
    const Qt::Key key = input->flag() ? Qt::Key_Up : Qt::Key_Down;
    if (m_key != Qt::Key_unknown && m_key != key)
        releaseKey();
    for (int i = 0; i < count; ++i) {
        QKeyEvent shortcut(QEvent::ShortcutOverride, key, Qt::NoModifier);
        QCoreApplication::sendEvent(m_house->view(), &shortcut);
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), i > 0);
        QCoreApplication::sendEvent(m_house->view(), &event);
    }
    m_key = key;
    m_isKeyMove = true;
}

void StripHand::releaseKey()
{
    if (m_key == Qt::Key_unknown)
        return;
    QKeyEvent event(QEvent::KeyRelease, m_key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_house->view(), &event);
    m_key = Qt::Key_unknown;
}

void StripHand::waitForKeyMove()
{
    if (!m_isKeyMove || m_key != Qt::Key_unknown)
        return;
    m_isKeyMove = false;
    QMetaObject::invokeMethod(m_house->view(), "onMovingKeyCheckingTimerEvent");
}

void StripHand::leave()
{
    QFocusEvent event(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(m_house->view(), &event);
}

void StripHand::strikeShortcut()
{
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    QCoreApplication::sendEvent(m_house->view(), &event);
}

void StripHand::stepPanel(FuzzInput *input)
{
    const auto boxes = m_house->panel()->findChildren<ZvTimeSpinBox *>();
    ZvTimeSpinBox *box = boxes.at(input->byte() % boxes.size());
    const int steps = input->byte() - 128;
    if (input->flag())
        box->stepBy(steps);
    else
        box->setValue(steps + 64);
}

void StripHand::letGo()
{
    release();
    releaseKey();
    waitForKeyMove();
}

} // namespace ZavoFuzz
