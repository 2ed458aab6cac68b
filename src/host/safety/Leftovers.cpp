#include "safety/Leftovers.h"

#include "Path.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <csignal>
#include <sys/types.h>

namespace Zavo::Leftovers {

namespace {

bool isRunning(qlonglong processId)
{
    return ::kill(static_cast<pid_t>(processId), 0) == 0 || errno != ESRCH;
}

/// True for the hidden file of a save whose program has gone.
bool isLeftover(const QFileInfo &info)
{
    static const QRegularExpression expression(
        QStringLiteral("^\\.zavo-([1-9][0-9]{0,8})-[0-9]{1,10}\\.tmp$"));
    const QRegularExpressionMatch match = expression.match(info.fileName());
    return match.hasMatch() && info.isFile() && !info.isSymLink() &&
           !isRunning(match.capturedRef(1).toLongLong());
}

QStringList sweepFolder(const QString &folder, QDirIterator::IteratorFlags flags)
{
    QStringList removed;
    QDirIterator entries(folder, {QStringLiteral(".zavo-*.tmp")}, QDir::Files | QDir::Hidden,
                         flags);
    while (entries.hasNext()) {
        const QString path = entries.next();
        if (isLeftover(entries.fileInfo()) && QFile::remove(path))
            removed.append(path);
    }
    return removed;
}

} // namespace

QStringList sweep(const QString &dataDir)
{
    return sweepFolder(dataDir, QDirIterator::NoIteratorFlags) +
           sweepFolder(Path::combine(dataDir, QStringLiteral("channel")),
                       QDirIterator::NoIteratorFlags) +
           sweepFolder(Path::combine(dataDir, QStringLiteral("stage")),
                       QDirIterator::Subdirectories) +
           sweepFolder(Path::combine(dataDir, QStringLiteral("backup")),
                       QDirIterator::Subdirectories);
}

} // namespace Zavo::Leftovers
