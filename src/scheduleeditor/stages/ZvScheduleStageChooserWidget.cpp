#include "stages/ZvScheduleStageChooserWidget.h"

#include "stages/ZvScheduleStageListView.h"

#include "ZvFileSystemModel.h"
#include "ZvStagePreview.h"

#include <QCheckBox>
#include <QItemSelection>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr double chooserIconPx = 16.0;
constexpr QSize smallestPreview(240, 135);
constexpr double previewHeightParts = 9.0; // of 16 parts in the width
constexpr double previewWidthPart = 0.0625;

QString previewBoxStyle(double ratio)
{
    return QStringLiteral(
               "QCheckBox::indicator{width: %1px; height: %1px;}"
               "QCheckBox::indicator:unchecked{image: url(':/images/triangle_right.svg');}"
               "QCheckBox::indicator:unchecked:hover{image: "
               "url(':/images/triangle_right_hover.svg');}"
               "QCheckBox::indicator:checked{image: url(':/images/triangle_down.svg');}"
               "QCheckBox::indicator:checked:hover{image: "
               "url(':/images/triangle_down_hover.svg');}")
        .arg(ratio * chooserIconPx);
}

QSize scaledLimits(const QSize &size, double ratio)
{
    const auto length = [ratio](int atOne) {
        return static_cast<int>(qMin<double>(atOne * ratio, QWIDGETSIZE_MAX));
    };
    return {length(size.width()), length(size.height())};
}

// Selecting all takes the columns that the list does not show as well; a stage counts once.
QModelIndex onlyStageIn(const QItemSelection &selection)
{
    if (selection.size() != 1 || selection.first().height() != 1)
        return {};
    return selection.first().indexes().value(0);
}

} // namespace

ZvScheduleStageChooserWidget::ZvScheduleStageChooserWidget(QWidget *parent)
    : QScrollArea(parent)
    , m_preview(new ZvStagePreview)
    , m_listView(new ZvScheduleStageListView)
    , m_previewCheckBox(new QCheckBox(tr("Thumbnail of Stage")))
    , m_splitter(new QSplitter(Qt::Vertical))
{
    setupPreview();
    setupContent();
    connectWidgets();
}

void ZvScheduleStageChooserWidget::setupPreview()
{
    scaleIcons();
    m_previewCheckBox->setChecked(true);
    m_preview->setMinimumSize(smallestPreview);
    m_preview->setFrameStyle(QFrame::StyledPanel);
    m_previewMinimumSize = m_preview->minimumSize();
    m_previewMaximumSize = m_preview->maximumSize();
}

QWidget *ZvScheduleStageChooserWidget::createListPane()
{
    auto *title = new QLabel(tr("Stage List"));
    title->setStyleSheet(QStringLiteral("margin-top: 5px;"));
    m_listView->setAccessibleName(title->text());
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(m_listView);
    return pane;
}

// From the outside in: whatever is put into another widget takes its style over, with all it holds.
void ZvScheduleStageChooserWidget::setupContent()
{
    setAccessibleName(tr("Choose Stage"));
    setWhatsThis(tr("The stages of the data folder. Drag one or several to the time table, or one "
                    "to the box of the default stage above it."));
    m_preview->setAccessibleName(m_previewCheckBox->text());
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    auto *content = new QWidget;
    setWidget(content);
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(m_previewCheckBox);
    layout->addWidget(m_splitter);
    m_splitter->addWidget(m_preview);
    m_splitter->addWidget(createListPane());
    m_splitter->setChildrenCollapsible(false);
}

void ZvScheduleStageChooserWidget::connectWidgets()
{
    // clang-format off
    connect(this, SIGNAL(clearDescription()), m_preview, SLOT(clear()));
    connect(this, SIGNAL(stageSelectionChanged(ZvStage)), m_preview, SLOT(setStage(ZvStage)));
    connect(m_previewCheckBox, SIGNAL(toggled(bool)), this, SLOT(onPreviewCheckBoxToggled(bool)));
    connect(m_listView, SIGNAL(requestGetImage(QImage**)),
            m_preview, SLOT(getImage(QImage**)), Qt::DirectConnection);
    connect(m_listView->selectionModel(), SIGNAL(selectionChanged(QItemSelection,QItemSelection)),
            this, SLOT(listViewSelectionChanged(QItemSelection,QItemSelection)));
    connect(m_listView, SIGNAL(requestSetDefaultStageName(QString)),
            this, SLOT(onSetToDefaultStageRequested(QString)));
    connect(m_listView, SIGNAL(requestResetTimeTable(QString,QList<ZvTime>)),
            this, SLOT(onResetTimeTableRequested(QString,QList<ZvTime>)));
    connect(m_listView, SIGNAL(requestIsCurrentScheduleEnabled(bool*)),
            this, SLOT(onIsCurrentScheduleEnabled(bool*)), Qt::DirectConnection);
    // clang-format on
}

bool ZvScheduleStageChooserWidget::isPreviewVisible() const
{
    return m_preview->isVisible();
}

void ZvScheduleStageChooserWidget::setPreviewVisible(bool visible)
{
    m_previewCheckBox->setChecked(visible);
    m_preview->setVisible(visible);
}

void ZvScheduleStageChooserWidget::setPreviewSizeToDefault()
{
    const double height = m_preview->width() * previewHeightParts * previewWidthPart;
    m_preview->resize(m_preview->width(), static_cast<int>(height));
    m_splitter->setSizes(
        {static_cast<int>(height), static_cast<int>(m_splitter->height() - height)});
}

bool ZvScheduleStageChooserWidget::event(QEvent *event)
{
    if (m_dpiRatio.hasChanged(this, event))
        applyDpiRatio();
    return QScrollArea::event(event);
}

void ZvScheduleStageChooserWidget::onPreviewCheckBoxToggled(bool checked)
{
    m_preview->setVisible(checked);
}

// A step that adds one stage to others shows the one that came.
void ZvScheduleStageChooserWidget::listViewSelectionChanged(const QItemSelection &selected,
                                                            const QItemSelection &)
{
    const QModelIndex index = onlyStageIn(selected);
    const auto *model = qobject_cast<const ZvFileSystemModel *>(index.model());
    ZvStage stage(model ? model->filePath(index) : QString());
    if (model && stage.readFile())
        Q_EMIT stageSelectionChanged(stage);
    else
        Q_EMIT clearDescription();
}

void ZvScheduleStageChooserWidget::onSetToDefaultStageRequested(const QString &name)
{
    Q_EMIT requestSetToDefaultStage(name);
}

void ZvScheduleStageChooserWidget::onResetTimeTableRequested(const QString &newDefaultStageName,
                                                             const QList<ZvTime> &newTimes)
{
    Q_EMIT requestRestTimeTable(newDefaultStageName, newTimes);
}

void ZvScheduleStageChooserWidget::onIsCurrentScheduleEnabled(bool *enabled)
{
    Q_EMIT requestIsCurrentScheduleEnabled(enabled);
}

void ZvScheduleStageChooserWidget::scaleIcons()
{
    m_previewCheckBox->setStyleSheet(previewBoxStyle(m_dpiRatio.ratio()));
    const int iconLength = static_cast<int>(chooserIconPx * m_dpiRatio.ratio());
    m_listView->setIconSize({iconLength, iconLength});
}

void ZvScheduleStageChooserWidget::applyDpiRatio()
{
    const double ratio = m_dpiRatio.ratio();
    scaleIcons();
    m_preview->setMinimumSize(scaledLimits(m_previewMinimumSize, ratio));
    m_preview->setMaximumSize(scaledLimits(m_previewMaximumSize, ratio));
}

} // namespace Zavo
