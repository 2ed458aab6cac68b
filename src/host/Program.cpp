#include "Program.h"

#include "Catalogues.h"
#include "DataFolderCheck.h"
#include "Display.h"
#include "HostWindow.h"
#include "ScreenshotTaker.h"
#include "ZvEditorConfig.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QSessionManager>

#include <cstdio>

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
        break;
    }
    Catalogues catalogues(Catalogues::standardFolders());
    if (!catalogues.load(m_commandLine.language()))
        return fail(tr("\"%1\" is the name of no language.").arg(m_commandLine.language()));
    if (!m_commandLine.dataDir().isEmpty())
        ZvEditorConfig::setDataDir(m_commandLine.dataDir());
    const QString problem = DataFolderCheck().problem(ZvEditorConfig::dataDir());
    return problem.isEmpty() ? runWindow() : fail(problem);
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

int Program::runWindow()
{
    m_window = std::make_unique<HostWindow>();
    connect(m_window.get(), SIGNAL(finished()), qApp, SLOT(quit()), Qt::QueuedConnection);
    // The session manager reads the answer when the signal returns.
    connect(qApp, SIGNAL(commitDataRequest(QSessionManager&)), this,
                         SLOT(onCommitDataRequest(QSessionManager&)), Qt::DirectConnection);
    QString message;
    if (!m_window->start(&message))
        return fail(message);
    ScreenshotTaker screenshot(m_window.get(), m_commandLine.screenshotFile());
    if (m_commandLine.wish() == CommandLine::Wish::Screenshot) {
        connect(&screenshot, SIGNAL(done(bool,QString)), this,
                                    SLOT(onScreenshotDone(bool,QString)));
        screenshot.start();
    }
    m_window->show();
    const int exitCode = QCoreApplication::exec();
    m_window.reset();
    return exitCode;
}

int Program::fail(const QString &message) const
{
    write(stderr, QStringLiteral("%1: %2").arg(QCoreApplication::applicationName(), message));
    if (Display::isSeen() && m_commandLine.wish() == CommandLine::Wish::Edit)
        QMessageBox::critical(m_window.get(), QGuiApplication::applicationDisplayName(), message);
    return 1;
}

} // namespace Zavo
