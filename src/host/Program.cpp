#include "Program.h"

#include "DataFolderCheck.h"
#include "DataFolderChoice.h"
#include "Display.h"
#include "HostWindow.h"
#include "LanguageChoice.h"
#include "ScreenshotTaker.h"
#include "ZvEditorConfig.h"
#include "check/CheckCommand.h"
#include "safety/DataFolderLock.h"
#include "safety/FolderInUseBox.h"
#include "safety/SafetyDesk.h"
#include "safety/SafetyNet.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QSessionManager>

#include <cstdio>

#include <unistd.h>

namespace Zavo {

namespace {

void write(FILE *stream, const QString &text)
{
    std::fputs(qUtf8Printable(text.endsWith(QLatin1Char('\n')) ? text : text + QLatin1Char('\n')),
               stream);
}

} // namespace

Program::Program(const QStringList &arguments, QObject *parent)
    : QObject(parent)
    , m_catalogues(Catalogues::standardFolders())
    , m_language(LanguageChoice::of(arguments))
    , m_languageIsKnown(m_catalogues.load(m_language))
    , m_commandLine(arguments)
{
}

Program::~Program() = default;

int Program::run()
{
    switch (m_commandLine.wish()) {
    case CommandLine::Wish::Help:
        write(stdout, m_commandLine.helpText());
        return 0;
    case CommandLine::Wish::Version:
        write(stdout, m_commandLine.versionText());
        return 0;
    case CommandLine::Wish::Nothing:
        return fail(m_commandLine.errorText());
    case CommandLine::Wish::Edit:
    case CommandLine::Wish::Screenshot:
    case CommandLine::Wish::Check:
        break;
    }
    if (!m_languageIsKnown)
        return fail(tr("\"%1\" is the name of no language.").arg(m_language));
    if (m_commandLine.dataDir().isEmpty())
        DataFolderChoice::apply();
    else
        ZvEditorConfig::setDataDir(m_commandLine.dataDir());
    if (m_commandLine.wish() == CommandLine::Wish::Check)
        return CheckCommand(stdout, stderr, isatty(STDERR_FILENO) != 0).run();
    const int exitCode = openDataFolder();
    return exitCode == Done ? runWindows() : exitCode;
}

void Program::onScreenshotDone(bool written, const QString &message)
{
    QCoreApplication::exit(written ? 0 : fail(message));
}

void Program::onCommitDataRequest(QSessionManager &manager)
{
    if (m_window->endSession(manager.allowsInteraction()))
        manager.release();
    else
        manager.cancel();
}

int Program::openDataFolder()
{
    for (;;) {
        const QString dataDir = ZvEditorConfig::dataDir();
        const QString problem = DataFolderCheck().problem(dataDir);
        if (!problem.isEmpty())
            return fail(problem);
        // A folder that cannot be made is told of by the editor.
        QDir().mkpath(dataDir);
        m_lock = std::make_unique<DataFolderLock>(dataDir);
        if (m_lock->take() != DataFolderLock::Result::HeldByOther)
            return Done;
        if (!mayAsk())
            return fail(FolderInUseBox::sentence(dataDir, *m_lock), InUse);
        const int exitCode = askAboutFolderInUse();
        if (exitCode != Done)
            return exitCode;
    }
}

int Program::askAboutFolderInUse()
{
    const QString dataDir = ZvEditorConfig::dataDir();
    switch (FolderInUseBox(dataDir, *m_lock).exec()) {
    case FolderInUseBox::TryAgain:
        return Done;
    case FolderInUseBox::TakeOver:
        m_lock->takeOver();
        return Done;
    case FolderInUseBox::ChooseAnother: {
        const QString folder =
            QFileDialog::getExistingDirectory(nullptr, tr("Data Folder"), dataDir);
        if (!folder.isEmpty())
            ZvEditorConfig::setDataDir(folder);
        return Done;
    }
    default:
        return InUse;
    }
}

int Program::runWindows()
{
    SafetyNet net(ZvEditorConfig::dataDir());
    int exitCode = Done;
    do {
        m_isToOpenAnew = false;
        exitCode = runWindow(&net);
    } while (m_isToOpenAnew);
    return exitCode;
}

int Program::runWindow(SafetyNet *net)
{
    m_window = std::make_unique<HostWindow>();
    connect(m_window.get(), SIGNAL(finished()), qApp, SLOT(quit()), Qt::QueuedConnection);
    // The session manager reads the answer when the signal returns.
    connect(qApp, SIGNAL(commitDataRequest(QSessionManager&)), this,
                         SLOT(onCommitDataRequest(QSessionManager&)),
                              Qt::ConnectionType(Qt::DirectConnection | Qt::UniqueConnection));
    QString message;
    if (!m_window->start(&message))
        return fail(message);
    auto desk = std::make_unique<SafetyDesk>(ZvEditorConfig::dataDir(), net, m_window.get());
    m_window->applyShortcuts();
    tellOfLeftSession(*net, desk.get());
    ScreenshotTaker screenshot(m_window.get(), m_commandLine.screenshotFile());
    if (m_commandLine.wish() == CommandLine::Wish::Screenshot) {
        connect(&screenshot, SIGNAL(done(bool,QString)), this,
                                    SLOT(onScreenshotDone(bool,QString)));
        screenshot.start();
    }
    m_window->show();
    const int exitCode = QCoreApplication::exec();
    const std::optional<BackupState> wanted = desk->wantedState();
    const QString remark = desk->remarkOnSaving();
    desk.reset();
    m_window.reset();
    if (!remark.isEmpty())
        fail(remark);
    if (wanted)
        restore(*wanted);
    return exitCode;
}

void Program::restore(const BackupState &state)
{
    m_isToOpenAnew = true;
    if (!SafetyDesk::restore(ZvEditorConfig::dataDir(), state)) {
        fail(tr("The channel file \"%1\" cannot be restored. It is as it was before.")
                 .arg(state.fileName));
    }
}

void Program::tellOfLeftSession(const SafetyNet &net, SafetyDesk *desk)
{
    if (m_toldOfLeftSession || !net.leftSession())
        return;
    m_toldOfLeftSession = true;
    const QString sentence = SessionRecord::sentence(*net.leftSession());
    if (mayAsk())
        desk->tell(sentence);
    else
        write(stderr, sentence);
}

bool Program::mayAsk() const
{
    return Display::isSeen() && m_commandLine.wish() == CommandLine::Wish::Edit;
}

int Program::fail(const QString &message, ExitCode exitCode) const
{
    write(stderr, QStringLiteral("%1: %2").arg(QCoreApplication::applicationName(), message));
    if (mayAsk())
        QMessageBox::critical(m_window.get(), QGuiApplication::applicationDisplayName(), message);
    return exitCode == Failed ? m_commandLine.exitCodeOfFailure() : exitCode;
}

} // namespace Zavo
