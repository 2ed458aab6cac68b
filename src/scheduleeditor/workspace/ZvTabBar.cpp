#include "workspace/ZvTabBar.h"

#include "workspace/PlainTabStyle.h"

#include "ZvSystemInfo.h"

#include <QDebug>
#include <QEvent>
#include <QTimer>

namespace Zavo {

namespace {

constexpr double FirstPointSize = 8.9;
constexpr double ShownPointSize = 9.0;
constexpr double ShownScrollButtonWidth = 24.0;   // pixels at ratio 1
constexpr double ResizedScrollButtonWidth = 16.0; // pixels at ratio 1
constexpr double ScrollButtonCount = 2.0;
constexpr int ShownLookDelay = 1; // ms

QFont fontOfSize(QFont font, double pointSize)
{
    font.setPointSizeF(pointSize);
    return font;
}

} // namespace

ZvTabBar::ZvTabBar(QWidget *parent)
    : QTabBar(parent)
{
    if (PlainTabStyle *style = PlainTabStyle::create(this))
        setStyle(style);
    setFont(fontOfSize(font(), FirstPointSize));
}

bool ZvTabBar::event(QEvent *event)
{
    if (event->type() == QEvent::ShowToParent) {
        qDebug() << "ShowToParent: " << iconSize();
        m_shownLookDue = true;
        QTimer::singleShot(ShownLookDelay, this, SLOT(applyShownLook()));
    } else if (event->type() == QEvent::Resize) {
        applyResizedLook();
    }
    return QTabBar::event(event);
}

QSize ZvTabBar::tabSizeHint(int index) const
{
    return QTabBar::tabSizeHint(index);
}

void ZvTabBar::takeShownLook()
{
    if (m_shownLookDue)
        applyShownLook();
}

void ZvTabBar::applyShownLook()
{
    m_shownLookDue = false;
    const double ratio = ZvSystemInfo::getDpiRatio(this);
    setFont(fontOfSize(font(), ShownPointSize));
    setScrollerWidth(ratio * ShownScrollButtonWidth * ScrollButtonCount);
}

void ZvTabBar::applyResizedLook()
{
    const double ratio = ZvSystemInfo::getDpiRatio(this);
    if (qFuzzyCompare(ratio, m_dpiRatio))
        return;
    m_dpiRatio = ratio;
    const QSizeF iconSize = m_baseIconSize * ratio;
    setIconSize(QSize(static_cast<int>(iconSize.width()), static_cast<int>(iconSize.height())));
    setScrollerWidth(ratio * ResizedScrollButtonWidth * ScrollButtonCount);
}

// A style sheet set anew lays out every tab, so an equal one is not.
void ZvTabBar::setScrollerWidth(double width)
{
    const QString sheet = QStringLiteral("QTabBar::scroller {width: %1px;}").arg(width);
    if (styleSheet() != sheet)
        setStyleSheet(sheet);
}

} // namespace Zavo
