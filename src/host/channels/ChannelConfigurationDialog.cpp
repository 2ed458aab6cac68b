#include "channels/ChannelConfigurationDialog.h"

#include "HostNames.h"
#include "ZvEditorConfig.h"
#include "channels/ChannelOverview.h"
#include "channels/ChannelSettings.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Zavo {

namespace {
enum ChannelColumn { NameColumn, NumberColumn, FileColumn, SchedulesColumn, SavedColumn };
constexpr int channelIdRole = Qt::UserRole;
constexpr int channelsWidthInCharacters = 96;
constexpr int channelsHeightInLines = 24;
constexpr int readingShownAfterMs = 500;
constexpr int readingShownEveryMs = 100;
} // namespace

ChannelConfigurationDialog::ChannelConfigurationDialog(QWidget *parent)
    : QDialog(parent)
    , m_overview(std::make_unique<ChannelOverview>(ZvEditorConfig::dataDir()))
    , m_label(new QLabel(tr("Reading the channels..."), this))
    , m_tree(new QTreeWidget(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QLatin1String(HostNames::channelConfigurationDialog));
    setWindowTitle(tr("Channel Configuration"));
    createTree();
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setBuddy(m_tree);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_tree);
    layout->addWidget(m_buttons);
    resize(fontMetrics().averageCharWidth() * channelsWidthInCharacters,
           fontMetrics().lineSpacing() * channelsHeightInLines);
    // clang-format off
    connect(m_buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(m_overview.get(), SIGNAL(finished()), this, SLOT(onChannelsRead()),
                              Qt::QueuedConnection);
    // clang-format on
    connect(&m_progressTimer, SIGNAL(timeout()), this, SLOT(showProgress()));
    m_overview->start();
    m_progressTimer.start(readingShownAfterMs);
}

ChannelConfigurationDialog::~ChannelConfigurationDialog() = default;

void ChannelConfigurationDialog::accept()
{
    ChannelSettings settings(ZvEditorConfig::dataDir());
    QSet<int> ids;
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *const item = m_tree->topLevelItem(row);
        const QVariant id = item->data(NameColumn, channelIdRole);
        if (!id.isValid())
            continue;
        ids.insert(id.toInt());
        settings.setUploaded(id.toInt(), item->checkState(NameColumn) == Qt::Checked);
    }
    settings.keepOnly(ids);
    if (settings.write()) {
        QDialog::accept();
        return;
    }
    QMessageBox::critical(this, windowTitle(),
                          tr("The settings cannot be written. Nothing has been changed."));
}

void ChannelConfigurationDialog::onChannelsRead()
{
    m_progressTimer.stop();
    m_label->setText(tr("C&hannels that are not checked stay here when the others are uploaded, "
                        "and disappear from the targets."));
    const ChannelSettings settings(ZvEditorConfig::dataDir());
    const QList<ChannelLine> &lines = m_overview->lines();
    for (const ChannelLine &line : lines)
        addLine(line, settings.isUploaded(line.id));
    if (m_tree->topLevelItemCount() > 0)
        m_tree->setCurrentItem(m_tree->topLevelItem(0));
    for (int column = NameColumn; column < SavedColumn; ++column)
        m_tree->resizeColumnToContents(column);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(true);
}

void ChannelConfigurationDialog::showProgress()
{
    m_progressTimer.start(readingShownEveryMs);
    if (m_overview->total() > 0)
        m_label->setText(tr("Reading the channels: %1 of %2...")
                             .arg(m_overview->done())
                             .arg(m_overview->total()));
}

void ChannelConfigurationDialog::createTree()
{
    m_tree->setObjectName(QLatin1String(HostNames::channelTree));
    m_tree->setAccessibleName(tr("Channels"));
    m_tree->setHeaderLabels(
        {tr("Channel"), tr("Number"), tr("File"), tr("Schedules"), tr("Last saved")});
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->header()->setSectionsMovable(false);
}

void ChannelConfigurationDialog::addLine(const ChannelLine &line, bool uploaded)
{
    auto *const item = new QTreeWidgetItem(m_tree);
    item->setText(FileColumn, line.fileName);
    item->setText(SavedColumn, QLocale().toString(line.lastSaved, QLocale::ShortFormat));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren);
    if (!line.isReadable) {
        item->setText(NameColumn, tr("(cannot be read)"));
        item->setToolTip(NameColumn,
                         tr("As long as this file cannot be read, nothing is uploaded."));
        return;
    }
    item->setText(NameColumn, line.name);
    item->setText(NumberColumn, QString::number(line.id));
    item->setText(SchedulesColumn, QString::number(line.scheduleCount));
    item->setTextAlignment(NumberColumn, Qt::AlignRight | Qt::AlignVCenter);
    item->setTextAlignment(SchedulesColumn, Qt::AlignRight | Qt::AlignVCenter);
    item->setData(NameColumn, channelIdRole, line.id);
    item->setCheckState(NameColumn, uploaded ? Qt::Checked : Qt::Unchecked);
    if (line.id != ChannelSettings::basicChannelId)
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    else
        item->setToolTip(NameColumn, tr("The basic channel is always uploaded."));
}

} // namespace Zavo
