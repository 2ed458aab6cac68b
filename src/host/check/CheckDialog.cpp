#include "check/CheckDialog.h"

#include "ZvSystemInfo.h"
#include "check/CheckFindingModel.h"
#include "check/CheckFindingView.h"
#include "check/CheckNames.h"
#include "check/CheckText.h"
#include "check/CheckThread.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHideEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace Zavo {

namespace {
constexpr int checkProgressDelayMs = 500;
constexpr int checkProgressIntervalMs = 100;
// Times the ratio of the screen.
constexpr QSize checkDialogSize(860, 460);
} // namespace

CheckDialog::CheckDialog(QWidget *parent)
    : QDialog(parent)
    , m_model(new CheckFindingModel(this))
{
    setObjectName(QLatin1String(CheckNames::dialog));
    setWindowTitle(tr("Check Data"));
    makeWidgets();
    resize(checkDialogSize * ZvSystemInfo::getDpiRatio(this));
    connect(&m_progressTimer, SIGNAL(timeout()), this, SLOT(showProgress()));
}

CheckDialog::~CheckDialog() = default;

void CheckDialog::check()
{
    show();
    raise();
    activateWindow();
    start();
}

void CheckDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    m_startsAgain = false;
    cancel();
}

void CheckDialog::start()
{
    if (m_thread) {
        m_startsAgain = m_thread->isCancelled();
        return;
    }
    m_thread = std::make_unique<CheckThread>();
    connect(m_thread.get(), SIGNAL(finished()), this, SLOT(onFinished()), Qt::QueuedConnection);
    showRunning(true);
    m_thread->start();
    m_progressTimer.start(checkProgressDelayMs);
}

void CheckDialog::cancel()
{
    if (m_thread)
        m_thread->cancel();
}

void CheckDialog::copyFindings()
{
    QStringList lines;
    for (const CheckFinding &finding : m_model->findings())
        lines.append(CheckText::line(finding));
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void CheckDialog::showProgress()
{
    if (!m_thread)
        return;
    m_progressTimer.start(checkProgressIntervalMs);
    m_progress->setRange(0, qMax(1, m_thread->total()));
    m_progress->setValue(m_thread->done());
    m_progress->setVisible(true);
}

void CheckDialog::onFinished()
{
    if (!m_thread || !m_thread->isFinished())
        return;
    const CheckReport report = m_thread->report();
    m_thread.reset();
    showRunning(false);
    if (m_startsAgain) {
        m_startsAgain = false;
        start();
        return;
    }
    m_model->setFindings(report.findings);
    m_copyButton->setEnabled(!report.findings.isEmpty());
    if (report.isComplete)
        m_summary->setText(CheckText::summary(report));
    else
        m_summary->setText(report.problem.isEmpty() ? tr("The check was cancelled.")
                                                    : report.problem);
    Q_EMIT checked();
}

void CheckDialog::makeWidgets()
{
    auto *const layout = new QVBoxLayout(this);
    auto *const explanation = new QLabel(
        tr("The files of the data folder are checked. What is not saved yet is not."), this);
    explanation->setWordWrap(true);
    layout->addWidget(explanation);
    layout->addWidget(createFindingView(m_model, this));
    m_summary = new QLabel(this);
    m_summary->setObjectName(QLatin1String(CheckNames::summary));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    layout->addWidget(m_summary);
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QLatin1String(CheckNames::progress));
    m_progress->setAccessibleName(tr("Progress of the check"));
    // Its place stays its own, so that nothing jumps when it comes and goes.
    QSizePolicy policy = m_progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(policy);
    layout->addWidget(m_progress);
    makeButtons();
}

void CheckDialog::makeButtons()
{
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_againButton = buttons->addButton(tr("Check &Again"), QDialogButtonBox::ActionRole);
    m_againButton->setObjectName(QLatin1String(CheckNames::again));
    m_cancelButton = buttons->addButton(tr("Ca&ncel Check"), QDialogButtonBox::ActionRole);
    m_cancelButton->setObjectName(QLatin1String(CheckNames::cancel));
    m_copyButton = buttons->addButton(tr("&Copy Findings"), QDialogButtonBox::ActionRole);
    m_copyButton->setObjectName(QLatin1String(CheckNames::copy));
    m_copyButton->setEnabled(false);
    layout()->addWidget(buttons);
    connect(m_againButton, SIGNAL(clicked()), this, SLOT(start()));
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(cancel()));
    connect(m_copyButton, SIGNAL(clicked()), this, SLOT(copyFindings()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
}

void CheckDialog::showRunning(bool running)
{
    m_againButton->setEnabled(!running);
    m_cancelButton->setEnabled(running);
    if (running)
        m_summary->setText(tr("Checking ..."));
    else
        m_progressTimer.stop();
    m_progress->setVisible(false);
}

} // namespace Zavo
