#pragma once

#include <QPointer>
#include <QTest>
#include <QWindow>

namespace ZavoTest {

/// Presses and releases @p key in @p window, which may go with each press, of a modifier too.
inline void strike(QWindow *window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPointer<QWindow> live(window);
    const auto change = [&live](bool press, Qt::Key code, Qt::KeyboardModifiers held,
                                const QString &text = QString()) {
        if (live)
            QTest::simulateEvent(live.data(), press, code, held, text, false);
    };
    const char character = QTest::keyToAscii(key);
    const QString text = character ? QString(QChar::fromLatin1(character)) : QString();
    static const QPair<Qt::KeyboardModifier, Qt::Key> keys[] = {
        {Qt::ShiftModifier, Qt::Key_Shift},
        {Qt::ControlModifier, Qt::Key_Control},
        {Qt::AltModifier, Qt::Key_Alt},
        {Qt::MetaModifier, Qt::Key_Meta},
    };
    for (const auto &modifier : keys) {
        if (modifiers & modifier.first)
            change(true, modifier.second, Qt::NoModifier);
    }
    change(true, key, modifiers, text);
    change(false, key, modifiers, text);
    for (const auto &modifier : keys) {
        if (modifiers & modifier.first)
            change(false, modifier.second, Qt::NoModifier);
    }
}

} // namespace ZavoTest
