#include "Command.h"

#include <QProcess>

namespace {
constexpr int longestRunMs = 240000;
} // namespace

Command Command::run(const QString &program, const QStringList &arguments,
                     const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(longestRunMs);
    Command command;
    command.output = process.readAll();
    if (ended && process.exitStatus() == QProcess::NormalExit)
        command.exitCode = process.exitCode();
    return command;
}
