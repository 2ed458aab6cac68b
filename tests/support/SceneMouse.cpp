#include "SceneMouse.h"

#include <QCoreApplication>
#include <QGraphicsView>
#include <QMouseEvent>

namespace ZavoTest {

SceneMouse::SceneMouse(QGraphicsView *view)
    : m_view(view)
{
}

void SceneMouse::setModifiers(Qt::KeyboardModifiers modifiers)
{
    m_modifiers = modifiers;
}

void SceneMouse::press(const QPointF &scenePosition, Qt::MouseButton button)
{
    moveTo(scenePosition);
    m_buttons |= button;
    send(QEvent::MouseButtonPress, button);
}

void SceneMouse::moveTo(const QPointF &scenePosition)
{
    m_scenePosition = scenePosition;
    send(QEvent::MouseMove, Qt::NoButton);
}

void SceneMouse::release(Qt::MouseButton button)
{
    m_buttons &= ~Qt::MouseButtons(button);
    send(QEvent::MouseButtonRelease, button);
}

void SceneMouse::click(const QPointF &scenePosition, Qt::MouseButton button)
{
    press(scenePosition, button);
    release(button);
}

void SceneMouse::doubleClick(const QPointF &scenePosition, Qt::MouseButton button)
{
    click(scenePosition, button);
    m_buttons |= button;
    send(QEvent::MouseButtonDblClick, button);
    release(button);
}

void SceneMouse::drag(const QPointF &from, const QPointF &to, Qt::MouseButton button)
{
    constexpr int steps = 5;
    press(from, button);
    for (int step = 1; step <= steps; ++step)
        moveTo(from + (to - from) * step / steps);
    release(button);
}

void SceneMouse::send(QEvent::Type type, Qt::MouseButton button)
{
    if (!m_view)
        return;
    QWidget *const viewport = m_view->viewport();
    const QPointF local = m_view->viewportTransform().map(m_scenePosition);
    const QPointF global = local + viewport->mapToGlobal(QPoint());
    QMouseEvent event(type, local, global, button, m_buttons, m_modifiers);
    QCoreApplication::sendEvent(viewport, &event);
}

} // namespace ZavoTest
