#include "domain/DpiRatioWatch.h"

#include "ZvSystemInfo.h"

#include <QEvent>

namespace Zavo {

bool DpiRatioWatch::hasChanged(QWidget *widget, const QEvent *event)
{
    if (event->type() != QEvent::Resize && event->type() != QEvent::ShowToParent)
        return false;
    const double ratio = ZvSystemInfo::getDpiRatio(widget);
    if (qFuzzyCompare(ratio, m_ratio))
        return false;
    m_ratio = ratio;
    return true;
}

} // namespace Zavo
