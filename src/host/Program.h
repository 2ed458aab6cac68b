#pragma once

#include "CommandLine.h"

#include <QObject>

#include <memory>

class QSessionManager;

namespace Zavo {

class HostWindow;

/// One run of the program, from its command line to its exit code.
class Program final : public QObject
{
    Q_OBJECT

public:
    /// @p arguments are those of the application object.
    explicit Program(const QStringList &arguments, QObject *parent = nullptr);
    ~Program() override;

    /// Runs the event loop if the command line asks for more than a text; returns the exit code: 0,
    /// or 1 if what was asked for could not be done.
    int run();

private Q_SLOTS:
    void onScreenshotDone(bool written, const QString &message);
    void onCommitDataRequest(QSessionManager &manager);

private:
    int runWindow();
    /// Tells the user why the program ends and returns the exit code for that.
    int fail(const QString &message) const;

    CommandLine m_commandLine;
    std::unique_ptr<HostWindow> m_window;
};

} // namespace Zavo
