#include "timetable/WorkingAreaStatusBar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace Zavo {

namespace {

// Screen pixels a minute: from 240 seconds a pixel to one.
constexpr double scales[] = {0.25, 0.5, 1.0, 2.0, 3.0, 6.0, 10.0, 15.0, 30.0, 60.0};
constexpr int initialScaleIndex = 2;

QWidget *newPart(QWidget *parent)
{
    auto *part = new QWidget(parent);
    // Before there are children, which would all be polished anew.
    part->setStyleSheet(QStringLiteral("QLabel {font-size: 9.0pt;}"));
    auto *layout = new QHBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    return part;
}

} // namespace

WorkingAreaStatusBar::WorkingAreaStatusBar(QWidget *parent)
    : QStatusBar(parent)
{
    setSizeGripEnabled(false);
    addWidget(newScaleWidget(), 0);
    addWidget(new QWidget(this), 1);
    addWidget(newCursorTimeWidget(), 0);
}

QWidget *WorkingAreaStatusBar::newScaleWidget()
{
    QWidget *part = newPart(this);
    m_scaleComboBox = new QComboBox(part);
    for (const double scale : scales)
        m_scaleComboBox->addItem(QStringLiteral("%1%").arg(scale * 100.0), scale);
    m_scaleComboBox->setCurrentIndex(initialScaleIndex);
    part->layout()->addWidget(new QLabel(tr("Scale"), part));
    part->layout()->addWidget(m_scaleComboBox);
    return part;
}

QWidget *WorkingAreaStatusBar::newCursorTimeWidget()
{
    QWidget *part = newPart(this);
    m_cursorTimeLabel = new QLabel(QStringLiteral("--:--:--"), part);
    QFont font(QStringLiteral("Monospace"));
    font.setStyleHint(QFont::TypeWriter, QFont::PreferDefault);
    m_cursorTimeLabel->setFont(font);
    part->layout()->addWidget(new QLabel(tr("Cursor Position Time:"), part));
    part->layout()->addWidget(m_cursorTimeLabel);
    return part;
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
