#include "stages/ZvScheduleStageListView.h"

#include "domain/MessageBox.h"
#include "stages/GeneratedStage.h"
#include "stages/StageItemDelegate.h"
#include "stages/StageSwitching.h"
#include "stages/StagesNames.h"
#include "stages/ZvScheduleAutoStageSwichSettingWidget.h"

#include "Path.h"
#include "ZvEditorCommon.h"
#include "ZvEditorConfig.h"
#include "ZvFileSystemModel.h"

#include <QAction>
#include <QDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QUrl>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr QSize smallestList(240, 180);

const QLatin1String stageFolderName("stage");
const QLatin1String lineBreak("\r\n");
const QLatin1String uriListFormat("text/uri-list");

QString stageFolder()
{
    return QFileInfo(Path::combine(ZvEditorConfig::dataDir(), stageFolderName)).absoluteFilePath();
}

QStringList decodedLines(const QByteArray &data)
{
    return QUrl::fromPercentEncoding(data).split(lineBreak, Qt::SkipEmptyParts);
}

bool isBelow(const QString &folder, const QString &path)
{
    return path.size() > folder.size() && path.startsWith(folder, Qt::CaseInsensitive) &&
           path.at(folder.size()) == QLatin1Char('/');
}

// A file that does not exist is judged by the nearest folder above it that does.
bool leavesByLink(const QString &folder, const QString &path)
{
    const QString canonicalFolder = QFileInfo(folder).canonicalFilePath();
    QFileInfo file(path);
    while (isBelow(folder, file.filePath())) {
        if (file.exists())
            return !isBelow(canonicalFolder, file.canonicalFilePath());
        if (file.isSymLink())
            return true;
        file.setFile(file.path());
    }
    return false;
}

} // namespace

ZvScheduleStageListView::ZvScheduleStageListView(QWidget *parent)
    : QListView(parent)
    , m_model(new ZvFileSystemModel(this))
    , m_contextMenu(new QMenu(this))
{
    setupModel();
    setupView();
    setupContextMenu();
}

void ZvScheduleStageListView::setupModel()
{
    QStringList filters;
    const QStringList suffixes = stageSuffixes();
    for (const QString &suffix : suffixes)
        filters.append(QStringLiteral("*.%1").arg(suffix));
    m_model->setNameFilters(filters);
    m_model->setFilter(QDir::Files | QDir::NoDotAndDotDot);
    m_model->setExclusionNamePattern({GeneratedStage::namePattern()});
}

void ZvScheduleStageListView::setupView()
{
    setModel(m_model);
    setItemDelegate(new StageItemDelegate(this));
    setViewMode(QListView::ListMode);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setWordWrap(true);
    setMinimumSize(smallestList);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setRootIndex(m_model->setRootPath(stageFolder()));
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDropIndicatorShown(true);
}

void ZvScheduleStageListView::setupContextMenu()
{
    QAction *setDefault = m_contextMenu->addAction(tr("Set As Default Stage"));
    setDefault->setObjectName(QLatin1String(StagesName::SetAsDefaultStage));
    QAction *setSwitching =
        m_contextMenu->addAction(tr("Set the switching interval as Default Stage..."));
    setSwitching->setObjectName(QLatin1String(StagesName::SetSwitchingInterval));
    setDefault->setStatusTip(tr("Shows this stage whenever no other one is scheduled"));
    setDefault->setWhatsThis(tr("Makes the selected stage the default stage of the schedule in the "
                                "time table. It fills all time without a stage."));
    setSwitching->setStatusTip(tr("Shows this stage anew at a regular interval"));
    setSwitching->setWhatsThis(tr("Asks for an interval and fills the schedule in the time table "
                                  "so that the selected stage takes turns with a copy of itself. "
                                  "The stages that were there are replaced."));
    setContextMenuPolicy(Qt::CustomContextMenu);
    // clang-format off
    connect(setDefault, SIGNAL(triggered()), this, SLOT(setSelectedItemToDefaultStage()));
    connect(setSwitching, SIGNAL(triggered()), this, SLOT(showAutomaticallySwitchDialog()));
    connect(m_contextMenu, SIGNAL(aboutToShow()), this, SLOT(onContextMenuAboutToShow()));
    connect(this, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(showContextMenu(QPoint)));
    // clang-format on
}

QStringList ZvScheduleStageListView::stageSuffixes()
{
    static const QStringList suffixes{QStringLiteral("xml"), QStringLiteral("zstg")};
    return suffixes;
}

QByteArray ZvScheduleStageListView::encodeStageNames(const QStringList &names)
{
    QString text;
    for (const QString &name : names)
        text += name + lineBreak;
    return QUrl::toPercentEncoding(text);
}

QStringList ZvScheduleStageListView::decodeStageNames(const QByteArray &data)
{
    return decodedLines(data);
}

QStringList ZvScheduleStageListView::stageNamesFromUriList(const QByteArray &data,
                                                           bool stageFolderOnly)
{
    const QString root = stageFolder();
    QStringList names;
    const QStringList lines = decodedLines(data);
    for (const QString &line : lines) {
        const QFileInfo file(QUrl(line, QUrl::TolerantMode).toLocalFile());
        if (!stageSuffixes().contains(file.suffix()))
            continue;
        const QString path = file.absoluteFilePath();
        if (isBelow(root, path) && !leavesByLink(root, path))
            names.append(path.mid(root.size() + 1));
        else if (!stageFolderOnly)
            names.append(path);
    }
    return names;
}

bool ZvScheduleStageListView::keepStageNames(const QMimeData *mimeData)
{
    if (!mimeData)
        return false;
    const QStringList names = stageNamesFromUriList(mimeData->data(uriListFormat), true);
    if (names.isEmpty())
        return false;
    // The data of a drag under way are handed out as const, but they are the one place that lasts
    // from the entering of a drop target to the drop.
    const_cast<QMimeData *>(mimeData)->setData(ZvEditorCommon::MIME_TYPE_STAGE_NAME,
                                               encodeStageNames(names));
    return true;
}

QStringList ZvScheduleStageListView::keptStageNames(const QMimeData *mimeData)
{
    return mimeData ? decodeStageNames(mimeData->data(ZvEditorCommon::MIME_TYPE_STAGE_NAME))
                    : QStringList();
}

// A stage is referred to, never moved away.
void ZvScheduleStageListView::startDrag(Qt::DropActions)
{
    QListView::startDrag(Qt::CopyAction | Qt::LinkAction);
}

// A file that goes while the menu is open would leave the menu acting on its neighbour.
void ZvScheduleStageListView::selectionChanged(const QItemSelection &selected,
                                               const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    if (m_contextMenu->isVisible())
        m_contextMenu->close();
}

void ZvScheduleStageListView::setSelectedItemToDefaultStage()
{
    if (currentIndex().isValid())
        Q_EMIT requestSetDefaultStageName(currentStageName());
}

void ZvScheduleStageListView::showContextMenu(const QPoint &pos)
{
    m_contextMenu->exec(mapToGlobal(pos));
}

void ZvScheduleStageListView::onContextMenuAboutToShow()
{
    const bool hasSelection = selectionModel()->hasSelection();
    const QList<QAction *> actions = m_contextMenu->actions();
    for (QAction *action : actions)
        action->setEnabled(hasSelection);
    bool isScheduleEnabled = false;
    Q_EMIT requestIsCurrentScheduleEnabled(&isScheduleEnabled);
    m_contextMenu->setEnabled(isScheduleEnabled);
}

void ZvScheduleStageListView::showAutomaticallySwitchDialog()
{
    if (isAskingHowToSwitch()) {
        m_switchDialog->raise();
        return;
    }
    m_stageToSwitch = currentStageName();
    m_switchDialog = new QDialog(this);
    m_switchDialog->setWindowTitle(tr("Set the switching interval as Default Stage"));
    m_switchDialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_switchDialog->setModal(true);
    m_switchDialog->setAttribute(Qt::WA_DeleteOnClose);
    auto *page = new ZvScheduleAutoStageSwichSettingWidget;
    auto *layout = new QVBoxLayout(m_switchDialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(page);
    connect(page, SIGNAL(requestExecute(int,QTime,QTime)), this,
                         SLOT(autoSwitchStageRequested(int,QTime,QTime)));
    m_switchDialog->show();
}

void ZvScheduleStageListView::autoSwitchStageRequested(int interval, QTime fromTime, QTime toTime)
{
    // The file may have gone while the dialog was open, and the next one in the list is not meant.
    const QString name = isAskingHowToSwitch() ? m_stageToSwitch : currentStageName();
    if (GeneratedStage::isGenerated(name)) {
        showMessageBox(messageParent(), QMessageBox::Warning, tr("Caution"),
                       tr("The selected stage was automatically generated.\nPlease select a stage "
                          "which name does not include \"_ d _\"."));
        return;
    }
    switch (GeneratedStage::write(stageFolder(), name)) {
    case GeneratedStage::OldNotRemoved:
        tellFailure(tr("Failed to delete the file for automatic generation.\n"
                       "Processing was interrupted."));
        return;
    case GeneratedStage::NotWritten:
        tellFailure(tr("Failed to create the file for automatic generation.\n"
                       "Processing was interrupted."));
        return;
    case GeneratedStage::Written:
        break;
    }
    Q_EMIT requestResetTimeTable(
        name, switchingTimes(interval, fromTime, toTime, GeneratedStage::nameFor(name)));
}

QString ZvScheduleStageListView::currentStageName() const
{
    return currentIndex().data().toString();
}

// A dialog that was closed lives on until its deletion comes from the event loop.
bool ZvScheduleStageListView::isAskingHowToSwitch() const
{
    return m_switchDialog && m_switchDialog->isVisible();
}

// A modal dialog would lie over a box of the list.
QWidget *ZvScheduleStageListView::messageParent()
{
    return isAskingHowToSwitch() ? static_cast<QWidget *>(m_switchDialog.data()) : this;
}

void ZvScheduleStageListView::tellFailure(const QString &text)
{
    showMessageBox(messageParent(), QMessageBox::Critical, tr("Error"), text);
}

} // namespace Zavo
