#pragma once

class QEvent;
class QWidget;

namespace Zavo {

/// Tells a widget that scales with its screen when the ratio of that screen has changed. The widget
/// owns one as a value and shows it every event it receives.
class DpiRatioWatch final
{
public:
    /// The ratio last seen; 1.0 before the first change.
    double ratio() const { return m_ratio; }

    /// True if @p event may have brought @p widget to another screen and the ratio differs from the
    /// one last seen, which it then replaces.
    bool hasChanged(QWidget *widget, const QEvent *event);

private:
    double m_ratio = 1.0;
};

} // namespace Zavo
