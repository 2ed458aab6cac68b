#include "ZvSystemInfo.h"

#include <QScreen>
#include <QWidget>

namespace Zavo {

namespace {
constexpr double StandardDpi = 96.0;
constexpr double QuartersPerUnit = 4.0;
constexpr double SmallestRatio = 0.25;
constexpr double LargestRatio = 16.0;

double s_override = 0.0;

/// 0 for what is no usable ratio, NaN included.
double usableRatio(double ratio)
{
    return ratio >= SmallestRatio && ratio <= LargestRatio ? ratio : 0.0;
}

double ratioFromEnvironment()
{
    return usableRatio(qgetenv("ZAVO_DPI_RATIO").toDouble());
}

double ratioOfScreen(const QScreen &screen)
{
    const int quarters = qRound(screen.logicalDotsPerInch() / StandardDpi * QuartersPerUnit);
    return screen.devicePixelRatio() * qMax(1, quarters) / QuartersPerUnit;
}
} // namespace

double ZvSystemInfo::getDpiRatio(QWidget *widget)
{
    if (s_override > 0.0)
        return s_override;
    const double fromEnvironment = ratioFromEnvironment();
    if (fromEnvironment > 0.0)
        return fromEnvironment;
    const QScreen *screen = widget ? widget->screen() : nullptr;
    return screen ? ratioOfScreen(*screen) : 1.0;
}

void ZvSystemInfo::setDpiRatioOverride(double ratio)
{
    s_override = usableRatio(ratio);
}

} // namespace Zavo
