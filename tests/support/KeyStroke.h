#pragma once

#include <QPointer>
#include <QTest>
#include <QWindow>

namespace ZavoTest {

/// Presses and releases @p key in @p window, which may go with the press.
inline void strike(QWindow *window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPointer<QWindow> live(window);
    QTest::keyPress(window, key, modifiers);
    if (live)
        QTest::keyRelease(live.data(), key, modifiers);
}

} // namespace ZavoTest
