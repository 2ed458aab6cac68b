#pragma once

#include <QtTest>

namespace ZavoTest {

/// The button that clears a field fades in and out, and Qt never gives back a fading that is under
/// way when the program ends.
inline void waitForClearButtons()
{
    constexpr int fadeMs = 160;
    QTest::qWait(2 * fadeMs);
}

} // namespace ZavoTest
