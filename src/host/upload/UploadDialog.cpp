#include "upload/UploadDialog.h"

#include "ZvEditorConfig.h"
#include "upload/UploadNames.h"
#include "upload/UploadRun.h"
#include "upload/UploadTargetDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Zavo {

namespace {
constexpr int targetColumn = 0;
constexpr int progressColumn = 1;
constexpr int resultColumn = 2;
constexpr int dialogWidthInCharacters = 110;
constexpr int dialogHeightInLines = 22;
constexpr int shareOfTarget = 38; // of the width of the list, in percent
constexpr int shareOfProgress = 20;

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
    , m_list(new QTreeWidget(this))
    , m_summary(new QLabel(this))
{
    setObjectName(QLatin1String(UploadNames::dialog));
    setWindowTitle(tr("Upload"));
    createList();
    auto *const label = new QLabel(
        tr("The saved channels and the stages they use go to every &target that is checked."),
        this);
    label->setBuddy(m_list);
    auto *const middle = new QHBoxLayout;
    middle->addWidget(m_list);
    middle->addLayout(createListButtons());
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
    layout->addLayout(middle);
    layout->addWidget(m_summary);
    layout->addLayout(bottom);
    resize(fontMetrics().averageCharWidth() * dialogWidthInCharacters,
           fontMetrics().lineSpacing() * dialogHeightInLines);
    m_list->setColumnWidth(targetColumn, width() * shareOfTarget / 100);
    m_list->setColumnWidth(progressColumn, width() * shareOfProgress / 100);
    const QList<ListedTarget> targets = UploadTargets::load();
    for (const ListedTarget &listed : targets)
        addItem(listed);
    updateButtons();
}

UploadDialog::~UploadDialog()
{
    delete m_run;
}

bool UploadDialog::isUploading() const
{
    return m_run && !m_run->isOver();
}

void UploadDialog::cancelUpload()
{
    if (m_run)
        m_run->cancel();
}

void UploadDialog::upload()
{
    QList<UploadTarget> targets;
    for (int index = 0; index < m_list->topLevelItemCount(); ++index) {
        const QTreeWidgetItem *const item = m_list->topLevelItem(index);
        if (item->checkState(targetColumn) == Qt::Checked)
            targets.append(UploadTarget(item->text(targetColumn)));
    }
    start(targets);
}

void UploadDialog::retry()
{
    start(targetsToRetry());
}

void UploadDialog::addTarget()
{
    editTarget(nullptr);
}

void UploadDialog::changeTarget()
{
    if (QTreeWidgetItem *const item = currentItem())
        editTarget(item);
}

void UploadDialog::removeTarget()
{
    delete currentItem();
    storeTargets();
    updateButtons();
}

void UploadDialog::onItemChanged(QTreeWidgetItem *, int column)
{
    if (m_isFilling || column != targetColumn)
        return;
    storeTargets();
    updateButtons();
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
        sentences.append(tr("%n stage(s) or picture(s) were not found; the log names them.",
                            nullptr, remarkCount));
    if (!m_run->isLogWhole())
        sentences.append(tr("The log cannot be written: \"%1\".").arg(m_run->logFile()));
    m_summary->setText(sentences.join(QLatin1Char('\n')));
    m_summary->setToolTip(m_run->remarks().mid(0, dialogHeightInLines).join(QLatin1Char('\n')));
    updateButtons();
}

void UploadDialog::updateButtons()
{
    const bool idle = !isUploading();
    const bool hasCurrent = currentItem() != nullptr;
    bool hasChecked = false;
    for (int index = 0; index < m_list->topLevelItemCount() && !hasChecked; ++index)
        hasChecked = m_list->topLevelItem(index)->checkState(targetColumn) == Qt::Checked;
    m_add->setEnabled(idle);
    m_change->setEnabled(idle && hasCurrent);
    m_remove->setEnabled(idle && hasCurrent);
    m_upload->setEnabled(idle && hasChecked);
    m_retry->setEnabled(idle && !targetsToRetry().isEmpty());
    m_cancel->setEnabled(!idle);
}

void UploadDialog::createList()
{
    m_list->setObjectName(QLatin1String(UploadNames::targetList));
    m_list->setAccessibleName(tr("Targets of uploads"));
    m_list->setHeaderLabels({tr("Target"), tr("Progress"), tr("Result")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setSectionsMovable(false);
    // clang-format off
    connect(m_list, SIGNAL(itemChanged(QTreeWidgetItem*,int)), this,
                    SLOT(onItemChanged(QTreeWidgetItem*,int)));
    connect(m_list, SIGNAL(currentItemChanged(QTreeWidgetItem*,QTreeWidgetItem*)), this,
                    SLOT(updateButtons()));
    connect(m_list, SIGNAL(itemSelectionChanged()), this, SLOT(updateButtons()));
    // clang-format on
}

QVBoxLayout *UploadDialog::createListButtons()
{
    m_add = createButton(UploadNames::addButton, tr("&Add..."), tr("Enter a new target"),
                         SLOT(addTarget()));
    m_change = createButton(UploadNames::changeButton, tr("C&hange..."),
                            tr("Change the address of the chosen target"), SLOT(changeTarget()));
    m_remove = createButton(UploadNames::removeButton, tr("&Remove"),
                            tr("Take the chosen target from the list; what lies there stays"),
                            SLOT(removeTarget()));
    auto *const layout = new QVBoxLayout;
    for (QPushButton *button : {m_add, m_change, m_remove})
        layout->addWidget(button);
    layout->addStretch();
    return layout;
}

void UploadDialog::createRunButtons()
{
    m_log = createButton(UploadNames::logButton, tr("Show &Log"),
                         tr("Open the log of the last upload"), SIGNAL(logRequested()));
    m_upload = createButton(UploadNames::uploadButton, tr("&Upload"),
                            tr("Upload to all targets that are checked"), SLOT(upload()));
    m_retry =
        createButton(UploadNames::retryButton, tr("Retry &Failed"),
                     tr("Upload again to the targets that did not get everything"), SLOT(retry()));
    m_cancel = createButton(UploadNames::cancelButton, tr("&Cancel Upload"),
                            tr("Break the upload off; the targets keep what they had"),
                            SLOT(cancelUpload()));
    m_close = createButton(UploadNames::closeButton, tr("Close"),
                           tr("Close this window; an upload goes on"), SLOT(reject()));
    m_upload->setDefault(true);
}

QPushButton *UploadDialog::createButton(const char *name, const QString &text,
                                        const QString &toolTip, const char *slot)
{
    auto *const button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setStatusTip(toolTip);
    button->setAutoDefault(false);
    connect(button, SIGNAL(clicked()), this, slot);
    return button;
}

QTreeWidgetItem *UploadDialog::addItem(const ListedTarget &listed)
{
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    auto *const item = new QTreeWidgetItem(m_list, {listed.target.address()});
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                   Qt::ItemNeverHasChildren);
    item->setCheckState(targetColumn, listed.selected ? Qt::Checked : Qt::Unchecked);
    item->setToolTip(targetColumn, listed.target.address());
    return item;
}

void UploadDialog::editTarget(QTreeWidgetItem *item)
{
    UploadTargetDialog dialog(item ? item->text(targetColumn) : QString(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const UploadTarget target = dialog.target();
    QTreeWidgetItem *const known = itemOf(target);
    if (known && known != item) {
        QMessageBox::warning(this, dialog.windowTitle(),
                             tr("The target \"%1\" is in the list already.").arg(target.address()));
        return;
    }
    if (!item) {
        item = addItem({target, true});
    } else {
        item->setText(targetColumn, target.address());
        item->setToolTip(targetColumn, target.address());
        clearResult(item);
    }
    m_list->setCurrentItem(item);
    storeTargets();
    updateButtons();
}

QTreeWidgetItem *UploadDialog::itemOf(const UploadTarget &target) const
{
    for (int index = 0; index < m_list->topLevelItemCount(); ++index) {
        if (m_list->topLevelItem(index)->text(targetColumn) == target.address())
            return m_list->topLevelItem(index);
    }
    return nullptr;
}

QTreeWidgetItem *UploadDialog::currentItem() const
{
    const QList<QTreeWidgetItem *> selected = m_list->selectedItems();
    return selected.isEmpty() ? nullptr : selected.constFirst();
}

QList<UploadTarget> UploadDialog::targetsToRetry() const
{
    QList<UploadTarget> targets;
    if (!m_run)
        return targets;
    for (const UploadJob *job : m_run->jobs()) {
        const bool isMissing = job->isOver() && job->state() != UploadJob::State::Done;
        if (isMissing && itemOf(job->target()))
            targets.append(job->target());
    }
    return targets;
}

void UploadDialog::start(const QList<UploadTarget> &targets)
{
    if (targets.isEmpty() || isUploading())
        return;
    delete m_run;
    m_run = new UploadRun(ZvEditorConfig::dataDir(), m_logFolder, this);
    connect(m_run, SIGNAL(changed()), this, SLOT(onRunChanged()));
    connect(m_run, SIGNAL(finished()), this, SLOT(onRunFinished()));
    for (int index = 0; index < m_list->topLevelItemCount(); ++index)
        clearResult(m_list->topLevelItem(index));
    m_summary->setText(tr("Uploading..."));
    m_summary->setToolTip(QString());
    m_run->start(targets);
    onRunChanged();
}

void UploadDialog::showJob(int index)
{
    const UploadJob *const job = m_run->jobs().at(index);
    QTreeWidgetItem *const item = itemOf(job->target());
    if (!item)
        return;
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    auto *bar = qobject_cast<QProgressBar *>(m_list->itemWidget(item, progressColumn));
    if (!bar) {
        bar = createProgressBar(job->target().address());
        m_list->setItemWidget(item, progressColumn, bar);
    }
    // Without an end while nobody knows how much there is to do.
    bar->setMaximum(job->state() == UploadJob::State::Waiting ? 0 : 100);
    bar->setValue(job->percent());
    item->setText(resultColumn, job->message());
    item->setIcon(resultColumn, iconOf(job->state(), *style()));
    item->setToolTip(resultColumn,
                     (QStringList(job->message()) + job->details()).join(QLatin1Char('\n')));
}

void UploadDialog::storeTargets() const
{
    QList<ListedTarget> targets;
    for (int index = 0; index < m_list->topLevelItemCount(); ++index) {
        const QTreeWidgetItem *const item = m_list->topLevelItem(index);
        targets.append({UploadTarget(item->text(targetColumn)),
                        item->checkState(targetColumn) == Qt::Checked});
    }
    UploadTargets::store(targets);
}

void UploadDialog::clearResult(QTreeWidgetItem *item)
{
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    m_list->removeItemWidget(item, progressColumn);
    item->setText(resultColumn, QString());
    item->setIcon(resultColumn, QIcon());
    item->setToolTip(resultColumn, QString());
}

} // namespace Zavo
