#include "Display.h"

#include <QApplication>
#include <QFont>

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
    return QApplication::platformName() != QLatin1String(offscreenPlatform);
}

void chooseFont()
{
    constexpr int pointSize = 9;
    if (!isSeen())
        QApplication::setFont(QFont(QStringLiteral("Sans Serif"), pointSize));
}

} // namespace Zavo::Display
