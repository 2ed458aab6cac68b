#include "navigation/ZvScheduleDefaultWidget.h"

#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

namespace Zavo {

ZvScheduleDefaultWidget::ZvScheduleDefaultWidget(QWidget *parent)
    : QFrame(parent)
    , m_titleLabel(new QLabel(tr("Schedule of Default"), this))
    , m_stageLabel(new QLabel(tr("Assigned Stage: None"), this))
{
    m_titleLabel->setStyleSheet(QStringLiteral("QLabel {font-size: 9.0pt; font-weight: bold;}"));
    m_stageLabel->setStyleSheet(QStringLiteral(
        "font-size: 9.0pt;margin-left: 5pt;padding: 5px;border-style: solid;border-width: 1px;"
        "border-color: gray;background-color: rgb(240, 240, 240);"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_stageLabel);
    setAccessibleName(m_titleLabel->text());
    setWhatsThis(tr("Click here to edit the default schedule. It is used on each day for which "
                    "neither its date nor its day of the week has a schedule."));
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(showContextMenu(QPoint)));
}

void ZvScheduleDefaultWidget::setEditMenu(QMenu *menu)
{
    m_editMenu = menu;
}

void ZvScheduleDefaultWidget::setStageCount(int count)
{
    m_stageCount = count;
    QString stages = tr("None");
    if (count > 0) {
        stages = tr("%1 stage").arg(count);
        if (count >= 2)
            stages += tr("s");
    }
    m_stageLabel->setText(tr("Assigned Stage: ") + stages);
}

void ZvScheduleDefaultWidget::showContextMenu(const QPoint &pos)
{
    if (m_editMenu)
        m_editMenu->exec(mapToGlobal(pos));
}

} // namespace Zavo
