#include "stages/ZvScheduleDefaultStageWidget.h"

#include "domain/ElidedLabel.h"
#include "domain/MessageBox.h"
#include "stages/ZvScheduleStageListView.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QLabel>

namespace Zavo {

namespace {

constexpr int layoutMarginPx = 3;
constexpr int labelMinimumPx = 24;
constexpr int checkBoxSlackPx = 12;

const QLatin1String
    baseStyle("border: 1px solid gray;margin-left: 5px;background-color: whitesmoke;");
const QLatin1String hoverStyle("border-color: cyan; border-width: 2px; padding-left: -1px;");
const QLatin1String namedStyle("color: black; font-style: normal;");
const QLatin1String unnamedStyle("color: gray; font-style: italic;");

} // namespace

ZvScheduleDefaultStageWidget::ZvScheduleDefaultStageWidget(QWidget *parent)
    : QFrame(parent)
    , m_checkBox(new QCheckBox(tr("Default Stage"), this))
    , m_label(new ElidedLabel(this))
{
    m_checkBox->setStyleSheet(QStringLiteral("font-size: 9.0pt;"));
    m_label->setMinimumSize(labelMinimumPx, labelMinimumPx);
    m_label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    setWhatsThis(tr("The stage that is shown whenever no other one is scheduled. Drop a stage on "
                    "the box to choose it; the check mark takes it away."));

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(layoutMarginPx, layoutMarginPx, layoutMarginPx, layoutMarginPx);
    layout->setSpacing(0);
    layout->addWidget(m_checkBox);
    layout->addWidget(m_label);

    m_label->setAcceptDrops(true);
    m_label->installEventFilter(this);
    setAcceptDrops(true);
    installEventFilter(this);
    setStageName(QString());

    connect(m_checkBox, SIGNAL(clicked(bool)), this, SLOT(onCheckBoxClicked(bool)));
    connect(this, SIGNAL(dpiRatioChanged(double)), this, SLOT(onDpiRatioChanged(double)));
}

QString ZvScheduleDefaultStageWidget::stageName() const
{
    return m_stageName;
}

bool ZvScheduleDefaultStageWidget::isDefaultStageChecked() const
{
    return m_checkBox->isChecked();
}

void ZvScheduleDefaultStageWidget::setStageName(const QString &name)
{
    const bool changed = name != m_stageName;
    m_stageName = name;
    m_label->setText(name.isEmpty() ? tr("None - Drop stage here...") : name);
    m_checkBox->setChecked(!name.isEmpty());
    showResting();
    if (changed)
        Q_EMIT stageNameChanged(m_stageName);
}

void ZvScheduleDefaultStageWidget::setStageNameWithUndo(const QString &stageName)
{
    const QString oldName = m_stageName;
    setStageName(stageName);
    if (m_stageName != oldName)
        Q_EMIT stageNameChangedWithUndo(oldName, m_stageName);
}

bool ZvScheduleDefaultStageWidget::event(QEvent *event)
{
    if (m_dpiRatio.hasChanged(this, event))
        Q_EMIT dpiRatioChanged(m_dpiRatio.ratio());
    return QFrame::event(event);
}

bool ZvScheduleDefaultStageWidget::eventFilter(QObject *watched, QEvent *event)
{
    // The drag has moved from the drop box to the side of the check box.
    if (watched == this && event->type() == QEvent::DragEnter)
        showResting();
    if (watched != m_label)
        return QFrame::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::DragEnter:
        enterDrag(static_cast<QDragEnterEvent *>(event));
        return true;
    case QEvent::DragLeave:
        showResting();
        event->accept();
        return true;
    case QEvent::Drop:
        dropStage(static_cast<QDropEvent *>(event));
        return true;
    default:
        return QFrame::eventFilter(watched, event);
    }
}

void ZvScheduleDefaultStageWidget::onCheckBoxClicked(bool checked)
{
    if (!checked) {
        setStageNameWithUndo(QString());
        return;
    }
    // The box cannot choose a stage; it only tells whether there is one.
    m_checkBox->setChecked(false);
    showMessageBox(this, QMessageBox::Information, tr("Information"),
                   tr("If you set Default Stage, drop the stage into the right box, or select the "
                      "stage and from the context menu, choose Set As Default Stage."));
}

void ZvScheduleDefaultStageWidget::onDpiRatioChanged(double dpiRatio)
{
    const int textWidth = m_checkBox->fontMetrics().boundingRect(m_checkBox->text()).width();
    m_checkBox->setMinimumWidth(static_cast<int>((textWidth - checkBoxSlackPx) * dpiRatio));
}

void ZvScheduleDefaultStageWidget::setLabelStyle(const QString &frame)
{
    const QString style = frame + (m_stageName.isEmpty() ? unnamedStyle : namedStyle);
    // Setting a style sheet polishes the label anew even if the text is the same.
    if (m_label->styleSheet() != style)
        m_label->setStyleSheet(style);
}

void ZvScheduleDefaultStageWidget::showResting()
{
    setLabelStyle(baseStyle);
}

void ZvScheduleDefaultStageWidget::showHovering()
{
    setLabelStyle(baseStyle + hoverStyle);
}

void ZvScheduleDefaultStageWidget::enterDrag(QDragEnterEvent *event)
{
    const bool acceptable = ZvScheduleStageListView::keepStageNames(event->mimeData());
    if (acceptable)
        showHovering();
    event->setAccepted(acceptable);
}

void ZvScheduleDefaultStageWidget::dropStage(QDropEvent *event)
{
    const QStringList names = ZvScheduleStageListView::keptStageNames(event->mimeData());
    showResting();
    event->setAccepted(!names.isEmpty());
    if (!names.isEmpty())
        setStageNameWithUndo(names.first());
}

} // namespace Zavo
