#include "exporter/ExportDialog.h"

#include "ZvEditorConfig.h"
#include "ZvEditorUserConfig.h"
#include "ZvSystemInfo.h"
#include "exporter/ExportJob.h"
#include "exporter/ExportNames.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>

namespace Zavo {

namespace {

constexpr int busyDelayMs = 500;
constexpr int firstRangeDays = 28;
constexpr int shownRemarks = 5;
// Times the ratio of the screen.
constexpr int exportDialogWidth = 560;

QString suffixOf(int format)
{
    switch (format) {
    case ExportRequest::Table:
        return QStringLiteral("csv");
    case ExportRequest::Calendar:
        return QStringLiteral("ics");
    case ExportRequest::WeekSheet:
        return QStringLiteral("pdf");
    default:
        return QStringLiteral("zip");
    }
}

QString lastExportFolder()
{
    const QString fallback = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder =
        ZvEditorUserConfig::value(QLatin1String(ExportNames::folderKey), fallback).toString();
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

} // namespace

ExportDialog::ExportDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QLatin1String(ExportNames::dialog));
    setWindowTitle(tr("Export Channel"));
    makeWidgets();
    onFormatChanged();
    setMinimumWidth(qRound(exportDialogWidth * ZvSystemInfo::getDpiRatio(this)));
}

ExportDialog::~ExportDialog() = default;

void ExportDialog::showChannel(const QString &channelFile)
{
    if (!m_job && channelFile != m_channelFile) {
        m_channelFile = channelFile;
        m_channel->setText(QFileInfo(channelFile).fileName());
        m_target->clear();
        tell({}, false);
    }
    if (m_target->text().isEmpty())
        proposeTarget();
    show();
    raise();
    activateWindow();
}

void ExportDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (m_job && !event->spontaneous())
        m_job->cancel();
}

void ExportDialog::onFormatChanged()
{
    const int format = m_format->currentData().toInt();
    const bool hasRange = format == ExportRequest::Calendar;
    const bool hasDate = hasRange || format == ExportRequest::WeekSheet;
    m_firstDateLabel->setText(hasRange ? tr("&First date:") : tr("A &date of the week:"));
    m_firstDateLabel->setVisible(hasDate);
    m_firstDate->setVisible(hasDate);
    m_lastDateLabel->setVisible(hasRange);
    m_lastDate->setVisible(hasRange);
    const QString target = m_target->text();
    if (target.isEmpty() || target == m_proposedTarget)
        proposeTarget();
}

void ExportDialog::onFirstDateChanged(const QDate &date)
{
    m_lastDate->setDateRange(date, date.addDays(ExportRequest::MaximumDays - 1));
}

void ExportDialog::browse()
{
    const QString suffix = suffixOf(m_format->currentData().toInt());
    const QPointer<ExportDialog> self(this);
    const QString file = QFileDialog::getSaveFileName(
        this, tr("Export Channel"), m_target->text(),
        QStringLiteral("%1 (*.%2)").arg(m_format->currentText(), suffix), nullptr,
        QFileDialog::DontConfirmOverwrite);
    if (self && !file.isEmpty())
        m_target->setText(QDir::toNativeSeparators(file));
}

void ExportDialog::startExport()
{
    const ExportRequest wanted = request();
    const QString problem = ExportJob::problemOf(wanted);
    if (!problem.isEmpty()) {
        tell(problem, true);
        return;
    }
    const QPointer<ExportDialog> self(this);
    if (m_job || !mayReplace(wanted.target) || !self)
        return;
    m_job = std::make_unique<ExportJob>(wanted);
    connect(m_job.get(), SIGNAL(finished()), this, SLOT(onFinished()), Qt::QueuedConnection);
    setRunning(true);
    tell(tr("Exporting ..."), false);
    m_job->start();
    QTimer::singleShot(busyDelayMs, this, SLOT(showBusy()));
}

void ExportDialog::showBusy()
{
    m_progress->setVisible(m_job != nullptr);
}

void ExportDialog::onFinished()
{
    if (!m_job || !m_job->isFinished())
        return;
    const ExportResult result = m_job->result();
    const QString target = m_job->request().target;
    m_job.reset();
    setRunning(false);
    if (!result.problem.isEmpty()) {
        tell(result.problem, true);
    } else {
        ZvEditorUserConfig::setValue(QLatin1String(ExportNames::folderKey),
                                     QFileInfo(target).absolutePath());
        QStringList lines{tr("\"%1\" was written.").arg(QDir::toNativeSeparators(target))};
        lines += result.remarks.mid(0, shownRemarks);
        if (result.remarks.size() > shownRemarks)
            lines.append(tr("%n more remark(s).", nullptr, result.remarks.size() - shownRemarks));
        tell(lines.join(QLatin1Char('\n')), !result.remarks.isEmpty());
    }
    Q_EMIT exported();
}

void ExportDialog::makeWidgets()
{
    auto *const layout = new QVBoxLayout(this);
    auto *const form = new QFormLayout;
    layout->addLayout(form);
    makeFields(form);
    m_progress = new QProgressBar(this);
    m_progress->setRange(0, 0);
    m_progress->setAccessibleName(tr("Progress of the export"));
    m_progress->setVisible(false);
    layout->addWidget(m_progress);
    m_message = new QLabel(this);
    m_message->setObjectName(QLatin1String(ExportNames::message));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_message->setAccessibleName(tr("Result of the export"));
    // Room for a sentence, so that the dialog does not jump when it comes.
    m_message->setMinimumHeight(3 * fontMetrics().lineSpacing());
    m_message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(m_message);
    layout->addStretch();
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_exportButton = buttons->addButton(tr("&Export"), QDialogButtonBox::ActionRole);
    m_exportButton->setObjectName(QLatin1String(ExportNames::exportButton));
    m_exportButton->setDefault(true);
    layout->addWidget(buttons);
    connect(m_exportButton, SIGNAL(clicked()), this, SLOT(startExport()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
}

void ExportDialog::makeFields(QFormLayout *form)
{
    m_channel = new QLabel(this);
    m_channel->setTextFormat(Qt::PlainText);
    m_channel->setToolTip(tr("What is saved in this file is exported."));
    form->addRow(tr("Channel file:"), m_channel);
    m_format = new QComboBox(this);
    m_format->setObjectName(QLatin1String(ExportNames::format));
    m_format->addItem(tr("Package with the stages"), ExportRequest::Package);
    m_format->addItem(tr("Table of all schedules"), ExportRequest::Table);
    m_format->addItem(tr("Calendar of a range of dates"), ExportRequest::Calendar);
    m_format->addItem(tr("Week sheet to print"), ExportRequest::WeekSheet);
    form->addRow(tr("E&xport as:"), m_format);
    makeDates(form);
    makeTarget(form);
    connect(m_format, SIGNAL(currentIndexChanged(int)), this, SLOT(onFormatChanged()));
}

void ExportDialog::makeDates(QFormLayout *form)
{
    const QDate today = QDate::currentDate();
    m_firstDate = new QDateEdit(today, this);
    m_firstDate->setObjectName(QLatin1String(ExportNames::firstDate));
    m_firstDateLabel = new QLabel(this);
    m_firstDateLabel->setBuddy(m_firstDate);
    form->addRow(m_firstDateLabel, m_firstDate);
    m_lastDate = new QDateEdit(today.addDays(firstRangeDays - 1), this);
    m_lastDate->setObjectName(QLatin1String(ExportNames::lastDate));
    m_lastDateLabel = new QLabel(tr("&Last date:"), this);
    m_lastDateLabel->setBuddy(m_lastDate);
    form->addRow(m_lastDateLabel, m_lastDate);
    for (QDateEdit *const edit : {m_firstDate, m_lastDate})
        edit->setCalendarPopup(true);
    onFirstDateChanged(today);
    connect(m_firstDate, SIGNAL(dateChanged(QDate)), this, SLOT(onFirstDateChanged(QDate)));
}

void ExportDialog::makeTarget(QFormLayout *form)
{
    m_target = new QLineEdit(this);
    m_target->setObjectName(QLatin1String(ExportNames::target));
    m_browseButton = new QPushButton(tr("&Browse..."), this);
    m_browseButton->setObjectName(QLatin1String(ExportNames::browse));
    m_browseButton->setAutoDefault(false);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_target);
    row->addWidget(m_browseButton);
    auto *const label = new QLabel(tr("&To the file:"), this);
    label->setBuddy(m_target);
    form->addRow(label, row);
    connect(m_browseButton, SIGNAL(clicked()), this, SLOT(browse()));
}

ExportRequest ExportDialog::request() const
{
    ExportRequest wanted;
    wanted.format = static_cast<ExportRequest::Format>(m_format->currentData().toInt());
    wanted.dataDir = ZvEditorConfig::dataDir();
    wanted.channelFile = m_channelFile;
    wanted.target = QDir::fromNativeSeparators(m_target->text().trimmed());
    wanted.from = m_firstDate->date();
    wanted.to = m_lastDate->date();
    return wanted;
}

bool ExportDialog::mayReplace(const QString &target)
{
    if (!QFileInfo::exists(target))
        return true;
    return QMessageBox::question(
               this, tr("Export Channel"),
               tr("\"%1\" exists. Replace it?").arg(QDir::toNativeSeparators(target)),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void ExportDialog::proposeTarget()
{
    if (m_channelFile.isEmpty())
        return;
    const QString name = QFileInfo(m_channelFile).completeBaseName() + QLatin1Char('.') +
                         suffixOf(m_format->currentData().toInt());
    m_proposedTarget = QDir::toNativeSeparators(QDir(lastExportFolder()).filePath(name));
    m_target->setText(m_proposedTarget);
}

void ExportDialog::setRunning(bool running)
{
    m_exportButton->setEnabled(!running);
    if (!running)
        m_progress->setVisible(false);
}

void ExportDialog::tell(const QString &text, bool isProblem)
{
    QFont messageFont = font();
    messageFont.setBold(isProblem);
    m_message->setFont(messageFont);
    m_message->setText(text);
}

} // namespace Zavo
