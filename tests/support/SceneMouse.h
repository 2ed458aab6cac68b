#pragma once

#include <QEvent>
#include <QPointF>
#include <QPointer>
#include <Qt>

class QGraphicsView;

namespace ZavoTest {

/// A mouse over a graphics view, moved by scene positions. Its events go to the viewport with the
/// buttons that are held, which QTest::mouseMove() leaves out.
class SceneMouse final
{
public:
    explicit SceneMouse(QGraphicsView *view);

    /// Keys held during the following events.
    void setModifiers(Qt::KeyboardModifiers modifiers);

    /// Moves there without a button, then presses.
    void press(const QPointF &scenePosition, Qt::MouseButton button = Qt::LeftButton);
    /// Moves there with the buttons that are held.
    void moveTo(const QPointF &scenePosition);
    /// Releases at the last position.
    void release(Qt::MouseButton button = Qt::LeftButton);

    void click(const QPointF &scenePosition, Qt::MouseButton button = Qt::LeftButton);
    /// Press, release, double click, release, as the platform sends them.
    void doubleClick(const QPointF &scenePosition, Qt::MouseButton button = Qt::LeftButton);
    /// Press at @p from, some moves on the way, release at @p to.
    void drag(const QPointF &from, const QPointF &to, Qt::MouseButton button = Qt::LeftButton);

private:
    void send(QEvent::Type type, Qt::MouseButton button);

    QPointer<QGraphicsView> m_view;
    QPointF m_scenePosition;
    Qt::MouseButtons m_buttons = Qt::NoButton;
    Qt::KeyboardModifiers m_modifiers = Qt::NoModifier;
};

} // namespace ZavoTest
