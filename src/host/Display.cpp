#include "Display.h"

#include <QGuiApplication>

#include <algorithm>
#include <iterator>

namespace Zavo::Display {

namespace {
constexpr char platformVariable[] = "QT_QPA_PLATFORM";
constexpr char offscreenPlatform[] = "offscreen";
} // namespace

bool isMissing()
{
    constexpr const char *variables[] = {platformVariable, "DISPLAY", "WAYLAND_DISPLAY"};
    return std::all_of(std::begin(variables), std::end(variables),
                       [](const char *variable) { return qEnvironmentVariableIsEmpty(variable); });
}

void useOffscreen()
{
    qputenv(platformVariable, offscreenPlatform);
}

bool isSeen()
{
    return QGuiApplication::platformName() != QLatin1String(offscreenPlatform);
}

} // namespace Zavo::Display
