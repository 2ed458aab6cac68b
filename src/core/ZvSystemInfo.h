#pragma once

#include "ZvCoreExport.h"

class QWidget;

namespace Zavo {

/// What the editors need to know of the machine.
class ZVCORE_EXPORT ZvSystemInfo
{
public:
    ZvSystemInfo() = delete;

    /// By what to multiply a length in pixels so that it looks the same on every screen: the device
    /// pixel ratio of the widget's screen (1.0 without one), times its logical DPI over 96 rounded
    /// to quarters. setDpiRatioOverride() replaces it, else the environment variable
    /// ZAVO_DPI_RATIO.
    static double getDpiRatio(QWidget *widget);

    /// Replaces the ratio for this process; 0 ends that. Ratios that are no number from 0.25 to 16
    /// end it, too.
    static void setDpiRatioOverride(double ratio);
};

} // namespace Zavo
