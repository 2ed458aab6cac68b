#include "HostWindow.h"

#include "ConfigurationDialog.h"
#include "Display.h"
#include "HostNames.h"
#include "ScenePurger.h"
#include "VersionBox.h"
#include "ZvEditorConfig.h"
#include "ZvSystemInfo.h"
#include "channels/ChannelConfigurationDialog.h"
#include "check/CheckDialog.h"
#include "editor/ZvScheduleEditor.h"
#include "exporter/ExportDialog.h"
#include "guide/GuideDialog.h"
#include "shortcuts/ShortcutDialog.h"
#include "shortcuts/Shortcuts.h"
#include "upload/UploadDialog.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QWhatsThis>

namespace Zavo {

namespace {
// Times the ratio of the screen, by which the docks are scaled too.
constexpr QSize defaultSize(1280, 860);
// What a window takes of a small screen, so that its frame fits too.
constexpr double screenShare = 0.92;
} // namespace

HostWindow::HostWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_scenePurger(new ScenePurger(this))
    , m_editor(new ZvScheduleEditor(this))
{
    setWindowTitle(
        tr("%1 - Zavo Schedule Editor").arg(QDir::toNativeSeparators(ZvEditorConfig::dataDir())));
    setWindowIcon(QIcon(QStringLiteral(":/icons/zavo-schedule-editor.svg")));
    takeDefaultSize();
    // Where the status tips of the actions appear.
    statusBar()->setSizeGripEnabled(false);
    m_editor->setHelpMenu(createHelpMenu());
    const QList<QMenu *> menus = m_editor->menu();
    for (QMenu *menu : menus)
        menuBar()->addMenu(menu);
    // The help stays the last.
    menuBar()->insertMenu(menus.last()->menuAction(), createToolsMenu());
    connectEditor();
}

HostWindow::~HostWindow()
{
    // Before the help menu, which the editor still knows.
    delete m_editor;
}

bool HostWindow::start(QString *message)
{
    if (m_editor->exec())
        return true;
    m_editor->hasError(message);
    return false;
}

ZvScheduleEditor *HostWindow::editor() const
{
    return m_editor;
}

// Who never changed a key need not wait until the commands are gone through.
void HostWindow::applyShortcuts()
{
    if (Shortcuts::areStored())
        shortcuts()->load();
}

bool HostWindow::endSession(bool mayAsk)
{
    if (!m_editorClosed && (!mayAsk || m_busyCount > 0))
        return false;
    closeEditor();
    return true;
}

void HostWindow::showVersionInformation()
{
    VersionBox(this).exec();
}

void HostWindow::explain()
{
    QWhatsThis::enterWhatsThisMode();
}

void HostWindow::showConfiguration()
{
    const bool isUploading = m_uploadDialog && m_uploadDialog->isUploading();
    ConfigurationDialog dialog(isUploading, this);
    if (dialog.exec() == QDialog::Accepted && m_uploadDialog && !isUploading)
        m_uploadDialog->reloadTargets();
}

void HostWindow::showShortcuts()
{
    ShortcutDialog(shortcuts(), this).exec();
}

void HostWindow::showChannelConfiguration()
{
    ChannelConfigurationDialog(this).exec();
}

void HostWindow::showUploadManager()
{
    if (!m_uploadDialog) {
        m_uploadDialog = new UploadDialog(ZvScheduleEditor::getUploadLogDir().absolutePath(), this);
        connect(m_uploadDialog, SIGNAL(logRequested()), m_editor, SLOT(showUploadLogFile()));
    }
    m_uploadDialog->show();
    m_uploadDialog->raise();
    m_uploadDialog->activateWindow();
}

void HostWindow::checkData()
{
    if (!m_checkDialog)
        m_checkDialog = new CheckDialog(this);
    m_checkDialog->check();
}

void HostWindow::showChannelExporter(const QString &channelFilePath)
{
    if (!m_exportDialog)
        m_exportDialog = new ExportDialog(this);
    m_exportDialog->showChannel(channelFilePath);
}

void HostWindow::showGuide()
{
    if (!m_guideDialog)
        m_guideDialog = new GuideDialog(this);
    m_guideDialog->read();
}

void HostWindow::closeEvent(QCloseEvent *event)
{
    if (!m_editorClosed && !m_closing && !confirmEndOfUpload()) {
        event->ignore();
        return;
    }
    closeEditor();
    event->setAccepted(m_editorClosed);
}

void HostWindow::onEditorClosed()
{
    if (m_editorClosed)
        return;
    m_editorClosed = true;
    close();
    Q_EMIT finished();
}

void HostWindow::takeDefaultSize()
{
    // Without a person there is no real screen either.
    const bool bounded = Display::isSeen() && screen();
    const QSize wanted = defaultSize * ZvSystemInfo::getDpiRatio(this);
    resize(bounded ? wanted.boundedTo(screen()->availableSize() * screenShare) : wanted);
}

QMenu *HostWindow::createToolsMenu()
{
    auto *const menu = new QMenu(tr("&Tools"), this);
    menu->setObjectName(QLatin1String(HostNames::toolsMenu));
    QAction *const check = menu->addAction(tr("Check &Data..."), this, SLOT(checkData()));
    check->setObjectName(QLatin1String(HostNames::checkAction));
    check->setStatusTip(tr("Looks for what is wrong in the saved channels and their stages"));
    check->setWhatsThis(tr("Reads all channel files and the stages they use and lists what is "
                           "wrong: stages that are missing, time without a stage, bands that "
                           "overlap, files that are passed over."));
    menu->addSeparator();
    QAction *const configuration =
        menu->addAction(tr("&Configuration..."), m_editor, SLOT(showConfiguration()));
    configuration->setObjectName(QLatin1String(HostNames::configurationAction));
    configuration->setStatusTip(
        tr("Changes the data folder, what its schedules are shown by, and the upload targets"));
    configuration->setWhatsThis(tr("Shows the data folder, the settings of its schedules and the "
                                   "upload targets, each with an explanation, to be changed."));
    configuration->setMenuRole(QAction::PreferencesRole);
    QAction *const keys =
        menu->addAction(tr("&Keyboard Shortcuts..."), this, SLOT(showShortcuts()));
    keys->setObjectName(QLatin1String(HostNames::shortcutsAction));
    keys->setStatusTip(tr("Shows and changes the keys of all commands"));
    keys->setWhatsThis(tr("Lists all commands with their keys. Other keys can be given to each of "
                          "them; what is already in use is told."));
    return menu;
}

QMenu *HostWindow::createHelpMenu()
{
    auto *const menu = new QMenu(tr("&Help"), this);
    menu->setObjectName(QLatin1String(HostNames::helpMenu));
    QAction *const guide = menu->addAction(tr("User's &Guide"), this, SLOT(showGuide()));
    guide->setObjectName(QLatin1String(HostNames::guideAction));
    guide->setShortcut(Qt::Key_F1);
    guide->setStatusTip(tr("Leads through the first hour and explains every message"));
    guide->setWhatsThis(tr("Opens the guide in a window of its own, which can stay open beside the "
                           "work."));
    QAction *const whatsThis = menu->addAction(tr("&What's This?"), this, SLOT(explain()));
    whatsThis->setObjectName(QLatin1String(HostNames::whatsThisAction));
    whatsThis->setShortcut(QKeySequence(QStringLiteral("Shift+F1")));
    whatsThis->setStatusTip(tr("Explains what you click next"));
    whatsThis->setWhatsThis(tr("Click a command or a part of the window after this, and it is "
                               "explained. Esc ends it."));
    menu->addSeparator();
    QAction *const about = menu->addAction(tr("&About Zavo Schedule Editor"), m_editor,
                                           SLOT(showVersionInformation()));
    about->setObjectName(QLatin1String(HostNames::aboutAction));
    about->setStatusTip(tr("Shows the version of the program and where its data are"));
    about->setWhatsThis(tr("Shows the version of the program, of the library it is built on, and "
                           "the data folder that is open."));
    about->setMenuRole(QAction::AboutRole);
    QAction *const aboutQt = menu->addAction(tr("About &Qt"), qApp, SLOT(aboutQt()));
    aboutQt->setObjectName(QLatin1String(HostNames::aboutQtAction));
    aboutQt->setStatusTip(tr("Shows the version of the library that the program is built on"));
    aboutQt->setWhatsThis(tr("Tells about Qt, the library that the program is built on."));
    aboutQt->setMenuRole(QAction::AboutQtRole);
    return menu;
}

void HostWindow::connectEditor()
{
    connect(m_editor, SIGNAL(closed()), this, SLOT(onEditorClosed()));
    connect(m_editor, SIGNAL(requestQuit()), this, SLOT(close()));
    connect(m_editor, SIGNAL(requestShowVersionInformation()), this,
                             SLOT(showVersionInformation()));
    connect(m_editor, SIGNAL(requestShowConfiguration()), this, SLOT(showConfiguration()));
    connect(m_editor, SIGNAL(requestShowChannelConfiguration()), this,
                             SLOT(showChannelConfiguration()));
    connect(m_editor, SIGNAL(requestShowUploadManager()), this, SLOT(showUploadManager()));
    connect(m_editor, SIGNAL(requestShowChannelExporter(QString)), this,
                             SLOT(showChannelExporter(QString)));
    connect(m_editor, SIGNAL(graphicsScenePurged(QGraphicsScene*)), m_scenePurger,
                             SLOT(purge(QGraphicsScene*)));
    connect(m_editor, SIGNAL(graphicsScenePurged(QList<QGraphicsScene*>)), m_scenePurger,
                             SLOT(purge(QList<QGraphicsScene*>)));
}

Shortcuts *HostWindow::shortcuts()
{
    if (!m_shortcuts)
        m_shortcuts = std::make_unique<Shortcuts>(this);
    return m_shortcuts.get();
}

void HostWindow::closeEditor()
{
    // The editor asks in a loop of its own, in which the window can be told again to close.
    if (m_closing || m_editorClosed || m_busyCount > 0)
        return;
    m_closing = true;
    m_editor->close();
}

bool HostWindow::confirmEndOfUpload()
{
    if (!m_uploadDialog || !m_uploadDialog->isUploading())
        return true;
    const auto answer = QMessageBox::question(
        this, tr("Upload"),
        tr("An upload is going on. If the program ends now, the targets that are not complete keep "
           "what they had.\n\nDo you want to cancel the upload and close?"));
    if (answer != QMessageBox::Yes)
        return false;
    m_uploadDialog->cancelUpload();
    return true;
}

} // namespace Zavo
