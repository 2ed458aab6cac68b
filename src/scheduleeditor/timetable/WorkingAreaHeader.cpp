#include "timetable/WorkingAreaHeader.h"

#include "domain/ElidedLabel.h"
#include "domain/ToolButtonStyle.h"
#include "stages/ZvScheduleDefaultStageWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <utility>

namespace Zavo {

namespace {

constexpr int createButtonHeightPx = 24;
constexpr int headerGapPx = 9;

} // namespace

WorkingAreaHeader::WorkingAreaHeader(QWidget *parent)
    : QWidget(parent)
    , m_titleLabel(new ElidedLabel(this))
    , m_createWidget(newCreateWidget())
    , m_defaultStageWidget(new ZvScheduleDefaultStageWidget(this))
{
    setObjectName(QStringLiteral("HeaderWidget"));
    m_titleLabel->setText(tr("Schedule of ..."));
    showTitleFont(false);
    m_defaultStageWidget->setEnabled(false);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_createWidget);
    layout->addSpacerItem(
        new QSpacerItem(headerGapPx, headerGapPx, QSizePolicy::Expanding, QSizePolicy::Minimum));
    layout->addWidget(m_defaultStageWidget);
}

QWidget *WorkingAreaHeader::newCreateWidget()
{
    auto *widget = new QWidget(this);
    auto *button = new QToolButton(widget);
    button->setStyleSheet(QLatin1String(ToolButtonStyle));
    button->setMinimumHeight(createButtonHeightPx);
    button->setText(tr("You can create this schedule."));
    button->setWhatsThis(tr("The chosen date or day has no schedule of its own. Click here to "
                            "create it; only then can stages be dropped."));
    button->setAutoRaise(false);
    button->setPopupMode(QToolButton::InstantPopup);
    m_createButton = button;

    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(new QLabel(tr(" - None. "), widget));
    layout->addWidget(button);
    return widget;
}

void WorkingAreaHeader::setTitle(const QString &title)
{
    m_titleLabel->setText(title);
}

void WorkingAreaHeader::showTitleFont(bool enabled)
{
    QFont font = m_titleLabel->font();
    font.setWeight(enabled ? QFont::Bold : QFont::Normal);
    font.setItalic(!enabled);
    m_titleLabel->setFont(font);
}

void WorkingAreaHeader::setScheduleEnabled(bool enabled)
{
    showTitleFont(enabled);
    m_createWidget->setVisible(!enabled);
    m_defaultStageWidget->setEnabled(enabled);
}

// The tabs are as wide as the widest of their pages, and a page that waits for its first schedule
// has the button. The docks would give way to it for good.
QSize WorkingAreaHeader::minimumSizeHint() const
{
    const QSize size = QWidget::minimumSizeHint();
    return m_wasShown ? size : QSize(0, size.height());
}

void WorkingAreaHeader::showEvent(QShowEvent *event)
{
    if (!std::exchange(m_wasShown, true))
        updateGeometry();
    QWidget::showEvent(event);
}

} // namespace Zavo
