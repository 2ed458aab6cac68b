#include "timetable/WorkingAreaStatusBar.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include <utility>

namespace Zavo {

namespace {

// Screen pixels a minute: from 240 seconds a pixel to one.
constexpr double scales[] = {0.25, 0.5, 1.0, 2.0, 3.0, 6.0, 10.0, 15.0, 30.0, 60.0};
constexpr int initialScaleIndex = 2;

// A part is added while it is empty: the bar lays itself out at every addition, and a style sheet
// polishes all children anew.
QLayout *addPart(QStatusBar *bar)
{
    auto *part = new QWidget(bar);
    part->setStyleSheet(QStringLiteral("QLabel {font-size: 9.0pt;}"));
    auto *layout = new QHBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    bar->addWidget(part, 0);
    return layout;
}

} // namespace

WorkingAreaStatusBar::WorkingAreaStatusBar(QWidget *parent)
    : QStatusBar(parent)
{
    setSizeGripEnabled(false);
    QLayout *scalePart = addPart(this);
    addWidget(new QWidget(this), 1);
    QLayout *cursorTimePart = addPart(this);
    createScale(scalePart);
    createCursorTime(cursorTimePart);
}

void WorkingAreaStatusBar::createScale(QLayout *part)
{
    m_scaleComboBox = new QComboBox(part->parentWidget());
    for (const double scale : scales)
        m_scaleComboBox->addItem(QStringLiteral("%1%").arg(scale * 100.0), scale);
    m_scaleComboBox->setCurrentIndex(initialScaleIndex);
    auto *label = new QLabel(tr("Scale"), part->parentWidget());
    label->setBuddy(m_scaleComboBox);
    part->addWidget(label);
    part->addWidget(m_scaleComboBox);
}

void WorkingAreaStatusBar::createCursorTime(QLayout *part)
{
    m_cursorTimeLabel = new QLabel(QStringLiteral("--:--:--"), part->parentWidget());
    QFont font(QStringLiteral("Monospace"));
    font.setStyleHint(QFont::TypeWriter, QFont::PreferDefault);
    m_cursorTimeLabel->setFont(font);
    part->addWidget(new QLabel(tr("Cursor Position Time:"), part->parentWidget()));
    part->addWidget(m_cursorTimeLabel);
}

// To lay itself out the bar asks all its parts for their sizes, which is work for nothing as long
// as nobody sees it.
bool WorkingAreaStatusBar::event(QEvent *event)
{
    if (event->type() != QEvent::LayoutRequest || isVisible())
        return QStatusBar::event(event);
    m_layoutPending = true;
    return true;
}

void WorkingAreaStatusBar::showEvent(QShowEvent *event)
{
    if (std::exchange(m_layoutPending, false)) {
        QEvent layoutRequest(QEvent::LayoutRequest);
        QStatusBar::event(&layoutRequest);
    }
    QStatusBar::showEvent(event);
}

double WorkingAreaStatusBar::scaleAt(int index) const
{
    return m_scaleComboBox->itemData(index).toDouble();
}

void WorkingAreaStatusBar::setTimeString(const QString &timeString)
{
    m_cursorTimeLabel->setText(timeString);
}

} // namespace Zavo
