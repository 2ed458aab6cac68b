#pragma once

#include "Catalogues.h"
#include "CommandLine.h"

#include <QObject>

#include <memory>

class QSessionManager;

namespace Zavo {

class DataFolderLock;
class HostWindow;
class SafetyDesk;
class SafetyNet;
struct BackupState;

/// One run of the program, from its command line to its exit code.
class Program final : public QObject
{
    Q_OBJECT

public:
    /// @p arguments are those of the application object.
    explicit Program(const QStringList &arguments, QObject *parent = nullptr);
    ~Program() override;

    /// Runs the event loop if the command line asks for more than a text; returns the exit code: 0,
    /// 1 if what was asked for could not be done, or 3 if another program has the data folder open.
    /// A check has the codes of CheckCommand.
    int run();

private Q_SLOTS:
    void onScreenshotDone(bool written, const QString &message);
    void onCommitDataRequest(QSessionManager &manager);

private:
    enum ExitCode { Done = 0, Failed = 1, InUse = 3 };

    /// Done once the data folder belongs to this program alone.
    int openDataFolder();
    /// Done if it is worth another try, with another folder or with this one.
    int askAboutFolderInUse();
    int runWindows();
    int runWindow(SafetyNet *net);
    void restore(const BackupState &state);
    void tellOfLeftSession(const SafetyNet &net, SafetyDesk *desk);
    /// True if a person sits before the window.
    bool mayAsk() const;
    /// Tells the user why the program ends and returns @p exitCode.
    int fail(const QString &message, ExitCode exitCode = Failed) const;

    Catalogues m_catalogues;
    QString m_language;
    bool m_languageIsKnown = false;
    CommandLine m_commandLine;
    std::unique_ptr<DataFolderLock> m_lock;
    std::unique_ptr<HostWindow> m_window;
    bool m_isToOpenAnew = false;
    bool m_toldOfLeftSession = false;
};

} // namespace Zavo
