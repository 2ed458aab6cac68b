#include "upload/UploadDialog.h"

#include "ZvEditorConfig.h"
#include "upload/UploadButton.h"
#include "upload/UploadCheck.h"
#include "upload/UploadFindingsDialog.h"
#include "upload/UploadNames.h"
#include "upload/UploadRun.h"
#include "upload/UploadTargetList.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Zavo {

namespace {
constexpr int progressColumn = 1;
constexpr int resultColumn = 2;
constexpr int dialogWidthInCharacters = 126;
constexpr int dialogHeightInLines = 22;
constexpr int shareOfTarget = 32; // of the width of the list, in percent
constexpr int shareOfProgress = 14;

QIcon iconOf(UploadJob::State state, const QStyle &style)
{
    switch (state) {
    case UploadJob::State::Done:
        return style.standardIcon(QStyle::SP_DialogApplyButton);
    case UploadJob::State::Failed:
        return style.standardIcon(QStyle::SP_MessageBoxCritical);
    case UploadJob::State::Cancelled:
        return style.standardIcon(QStyle::SP_MessageBoxWarning);
    case UploadJob::State::Waiting:
    case UploadJob::State::Running:
        break;
    }
    return {};
}

QProgressBar *createProgressBar(const QString &address)
{
    auto *const bar = new QProgressBar;
    bar->setRange(0, 100);
    bar->setAccessibleName(UploadDialog::tr("Progress of the upload to %1").arg(address));
    return bar;
}
} // namespace

UploadDialog::UploadDialog(const QString &logFolder, QWidget *parent)
    : QDialog(parent)
    , m_logFolder(logFolder)
    , m_check(new UploadCheck(this))
    , m_list(new UploadTargetList({tr("Progress"), tr("Result")}, this))
    , m_summary(new QLabel(this))
{
    setObjectName(QLatin1String(UploadNames::dialog));
    setWindowTitle(tr("Upload"));
    auto *const label = new QLabel(
        tr("The saved channels and the stages they use go to every &target that is checked."),
        this);
    label->setBuddy(m_list);
    connect(m_check, SIGNAL(progressed(int,int)), this, SLOT(onCheckProgressed(int,int)));
    connect(m_check, SIGNAL(finished()), this, SLOT(onChecked()));
    createRunButtons();
    auto *const bottom = new QHBoxLayout;
    bottom->addWidget(m_log);
    bottom->addStretch();
    for (QPushButton *button : {m_upload, m_retry, m_cancel, m_close})
        bottom->addWidget(button);
    m_summary->setObjectName(QLatin1String(UploadNames::summaryLabel));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addWidget(m_summary);
    layout->addLayout(bottom);
    resize(fontMetrics().averageCharWidth() * dialogWidthInCharacters,
           fontMetrics().lineSpacing() * dialogHeightInLines);
    m_list->tree()->setColumnWidth(UploadTargetList::targetColumn, width() * shareOfTarget / 100);
    m_list->tree()->setColumnWidth(progressColumn, width() * shareOfProgress / 100);
    connect(m_list, SIGNAL(changed()), this, SLOT(onTargetsChanged()));
    reloadTargets();
}

UploadDialog::~UploadDialog()
{
    delete m_run;
}

bool UploadDialog::isUploading() const
{
    return m_check->isRunning() || m_question || (m_run && !m_run->isOver());
}

void UploadDialog::cancelUpload()
{
    m_check->cancel();
    if (m_question)
        m_question->reject();
    if (m_run)
        m_run->cancel();
}

void UploadDialog::reloadTargets()
{
    m_list->setTargets(UploadTargets::load());
    updateButtons();
}

void UploadDialog::upload()
{
    m_findings.clear();
    begin(m_list->selectedTargets());
}

void UploadDialog::retry()
{
    begin(targetsToRetry());
}

void UploadDialog::onTargetsChanged()
{
    UploadTargets::store(m_list->targets());
    updateButtons();
}

void UploadDialog::onCheckProgressed(int done, int total)
{
    m_summary->setText(tr("Checking the data: %1 of %2 files...").arg(done).arg(total));
}

void UploadDialog::onChecked()
{
    const CheckReport &report = m_check->report();
    if (!report.isComplete) {
        giveUp(report.problem.isEmpty() ? tr("Cancelled before anything was sent.")
                                        : report.problem);
        return;
    }
    // What was accepted before is not asked about again at a retry.
    const bool isAccepted = report.findings == m_findings;
    m_findings = report.findings;
    if (report.findings.isEmpty() || isAccepted)
        start();
    else
        ask(report);
}

void UploadDialog::onGoingOn()
{
    m_question = nullptr;
    start();
}

void UploadDialog::onStopped()
{
    m_question = nullptr;
    m_findings.clear();
    giveUp(tr("Nothing was uploaded."));
}

void UploadDialog::onRunChanged()
{
    for (int index = 0; index < m_run->jobs().size(); ++index)
        showJob(index);
    updateButtons();
}

void UploadDialog::onRunFinished()
{
    using State = UploadJob::State;
    QStringList sentences{tr("%1 complete, %2 failed, %3 cancelled.")
                              .arg(m_run->count(State::Done))
                              .arg(m_run->count(State::Failed))
                              .arg(m_run->count(State::Cancelled))};
    const int remarkCount = m_run->remarks().size();
    if (remarkCount > 0)
        sentences.append(tr("%n thing(s) to note; the log names them.", nullptr, remarkCount));
    if (!m_run->isLogWhole())
        sentences.append(tr("The log cannot be written: \"%1\".").arg(m_run->logFile()));
    m_summary->setText(sentences.join(QLatin1Char('\n')));
    m_summary->setToolTip(m_run->remarks().mid(0, dialogHeightInLines).join(QLatin1Char('\n')));
    updateButtons();
}

void UploadDialog::updateButtons()
{
    const bool idle = !isUploading();
    m_list->setEditable(idle);
    m_upload->setEnabled(idle && !m_list->selectedTargets().isEmpty());
    m_retry->setEnabled(idle && !targetsToRetry().isEmpty());
    m_cancel->setEnabled(!idle);
}

void UploadDialog::createRunButtons()
{
    m_log = createUploadButton(this, UploadNames::logButton, tr("Show &Log"),
                               tr("Open the log of the last upload"), SIGNAL(logRequested()));
    m_upload = createUploadButton(this, UploadNames::uploadButton, tr("&Upload"),
                                  tr("Upload to all targets that are checked"), SLOT(upload()));
    m_retry = createUploadButton(this, UploadNames::retryButton, tr("Retry &Failed"),
                                 tr("Upload again to the targets that did not get everything"),
                                 SLOT(retry()));
    m_cancel = createUploadButton(this, UploadNames::cancelButton, tr("&Cancel Upload"),
                                  tr("Break the upload off; the targets keep what they had"),
                                  SLOT(cancelUpload()));
    m_close = createUploadButton(this, UploadNames::closeButton, tr("Close"),
                                 tr("Close this window; an upload goes on"), SLOT(reject()));
    m_upload->setDefault(true);
}

QList<UploadTarget> UploadDialog::targetsToRetry() const
{
    QList<UploadTarget> targets;
    if (!m_run)
        return targets;
    for (const UploadJob *job : m_run->jobs()) {
        const bool isMissing = job->isOver() && job->state() != UploadJob::State::Done;
        if (isMissing && m_list->itemOf(job->target()))
            targets.append(job->target());
    }
    return targets;
}

void UploadDialog::begin(const QList<UploadTarget> &targets)
{
    if (targets.isEmpty() || isUploading())
        return;
    m_wanted = targets;
    m_summary->setText(tr("Checking the data..."));
    m_summary->setToolTip(QString());
    m_check->start();
    updateButtons();
}

void UploadDialog::ask(const CheckReport &report)
{
    // An upload goes on behind a closed window, but nobody can be asked there.
    show();
    raise();
    m_question = new UploadFindingsDialog(report, this);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_question, SIGNAL(accepted()), this, SLOT(onGoingOn()));
    connect(m_question, SIGNAL(rejected()), this, SLOT(onStopped()));
    m_question->open();
}

void UploadDialog::giveUp(const QString &reason)
{
    m_wanted.clear();
    m_summary->setText(reason);
    updateButtons();
}

void UploadDialog::start()
{
    delete m_run;
    m_run = new UploadRun(ZvEditorConfig::dataDir(), m_logFolder, this);
    connect(m_run, SIGNAL(changed()), this, SLOT(onRunChanged()));
    connect(m_run, SIGNAL(finished()), this, SLOT(onRunFinished()));
    for (int index = 0; index < m_list->tree()->topLevelItemCount(); ++index)
        clearResult(m_list->tree()->topLevelItem(index));
    m_summary->setText(tr("Uploading..."));
    m_run->start(m_wanted, m_findings);
    onRunChanged();
}

void UploadDialog::showJob(int index)
{
    const UploadJob *const job = m_run->jobs().at(index);
    QTreeWidgetItem *const item = m_list->itemOf(job->target());
    if (!item)
        return;
    auto *bar = qobject_cast<QProgressBar *>(m_list->tree()->itemWidget(item, progressColumn));
    if (!bar) {
        bar = createProgressBar(job->target().address());
        m_list->tree()->setItemWidget(item, progressColumn, bar);
    }
    // Without an end while nobody knows how much there is to do.
    bar->setMaximum(job->state() == UploadJob::State::Waiting ? 0 : 100);
    bar->setValue(job->percent());
    item->setText(resultColumn, job->message());
    item->setIcon(resultColumn, iconOf(job->state(), *style()));
    item->setToolTip(resultColumn,
                     (QStringList(job->message()) + job->details()).join(QLatin1Char('\n')));
}

void UploadDialog::clearResult(QTreeWidgetItem *item)
{
    m_list->tree()->removeItemWidget(item, progressColumn);
    item->setText(resultColumn, QString());
    item->setIcon(resultColumn, QIcon());
    item->setToolTip(resultColumn, QString());
}

} // namespace Zavo
