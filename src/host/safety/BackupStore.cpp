#include "safety/BackupStore.h"

#include "Calendars.h"
#include "Path.h"
#include "ZvNaturalOrder.h"
#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <functional>

#include <fcntl.h>
#include <unistd.h>

namespace Zavo {

namespace {

const QLatin1String backupFolderName("backup");
const QLatin1String copySuffix(".xml");
const QLatin1String targetCopySuffix("-target.xml");
constexpr int dateLength = 10;

// Of its own for each program, which may lie in the same folder; what a killed one leaves is swept.
QString incomingName()
{
    static std::atomic<unsigned> s_count{0};
    return QStringLiteral(".zavo-%1-%2.tmp").arg(::getpid()).arg(s_count++);
}

// The moment in UTC as yyyy-MM-ddTHH-mm-ss.zzzZ. The formats of Qt would take the digits of the
// system's language, and would not read an hour that the local time leaves out.
QString copyNameOf(const QDateTime &moment, QLatin1String suffix)
{
    return moment.toUTC().toString(Qt::ISODateWithMs).replace(QLatin1Char(':'), QLatin1Char('-')) +
           suffix;
}

/// The moment in which the copy was made; invalid if the name is none of a copy.
QDateTime momentOf(const QString &copyName, QLatin1String suffix)
{
    if (!copyName.endsWith(suffix))
        return {};
    QString time = copyName.mid(dateLength);
    time.chop(suffix.size());
    time.replace(QLatin1Char('-'), QLatin1Char(':'));
    const QDateTime moment =
        QDateTime::fromString(copyName.left(dateLength) + time, Qt::ISODateWithMs);
    return copyNameOf(moment, suffix) == copyName ? moment : QDateTime();
}

bool hasBytes(const QString &path, const QByteArray &bytes)
{
    QByteArray read;
    return QFileInfo(path).size() == bytes.size() &&
           BoundedFile::read(path, ChannelFile::MaximumBytes, &read) && read == bytes;
}

/// False, with the reason in errno, if it was not possible; EEXIST if the name is taken. QFile
/// would then copy over the file of that name.
bool renameWithoutReplacing(const QString &path, const QString &newPath)
{
    const QByteArray from = QFile::encodeName(path);
    const QByteArray to = QFile::encodeName(newPath);
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // Some file systems of other makers and of the network do not know that.
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    if (::link(from.constData(), to.constData()) == 0) {
        ::unlink(from.constData());
        return true;
    }
    if (errno == EEXIST)
        return false;
    if (QFile::exists(newPath)) {
        errno = EEXIST;
        return false;
    }
    return ::rename(from.constData(), to.constData()) == 0;
}

/// Under the name of that moment, or of a later one if another program has just taken it.
bool putInPlace(const QString &incoming, const QString &folder, QDateTime moment,
                QLatin1String suffix)
{
    constexpr int maximumTries = 100;
    for (int tries = 0; tries < maximumTries; ++tries) {
        const QString name = copyNameOf(moment, suffix);
        if (renameWithoutReplacing(incoming, Path::combine(folder, name)))
            return true;
        if (errno != EEXIST)
            return false;
        moment = moment.addMSecs(1);
    }
    return false;
}

/// Later than every other, also if the clock was put back.
QDateTime momentOfNext(const QStringList &copies, QLatin1String suffix)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QDateTime last = momentOf(copies.value(0), suffix);
    return last.isValid() ? qMax(now, last.addMSecs(1)) : now;
}

} // namespace

BackupStore::BackupStore(const QString &dataDir)
    : m_folder(QDir(Path::combine(dataDir, backupFolderName)).absolutePath())
{
    makeCalendars();
}

QStringList BackupStore::fileNames() const
{
    QStringList names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(names.begin(), names.end(), [](const QString &left, const QString &right) {
        return ZvNaturalOrder::compare(left, right) < 0;
    });
    return names;
}

QList<BackupState> BackupStore::states(const QString &fileName) const
{
    const QMutexLocker locker(&m_mutex);
    QStringList copies = ownCopiesOf(fileName) + copiesOf(fileName, targetCopySuffix);
    std::sort(copies.begin(), copies.end(), std::greater<>());
    QList<BackupState> states;
    for (const QString &copy : qAsConst(copies)) {
        const QString path = Path::combine(folderOf(fileName), copy);
        states.append(
            {fileName, path, QFileInfo(path).lastModified(), copy.endsWith(targetCopySuffix)});
    }
    return states;
}

QString BackupStore::lastError() const
{
    const QMutexLocker locker(&m_mutex);
    return m_lastError;
}

BackupStore::Result BackupStore::keep(const QString &filePath)
{
    const QMutexLocker locker(&m_mutex);
    const QFileInfo info(filePath);
    const FileStamp stamp = FileStamp::of(filePath);
    if (!stamp.exists())
        return Result::Unchanged;
    const Kept known = m_kept.value(info.fileName());
    if (known.stamp == stamp && QFile::exists(known.copy))
        return Result::Unchanged;
    QByteArray bytes;
    if (!BoundedFile::read(filePath, ChannelFile::MaximumBytes, &bytes))
        return fail(QStringLiteral("%1: %2").arg(info.fileName(), qt_error_string(errno)));
    const Result result =
        keepState(info.fileName(), bytes, {info.lastModified(), info.permissions()});
    // A file that was written to while it was read is looked at again.
    if (result != Result::Failed && FileStamp::of(filePath) == stamp) {
        m_kept.insert(info.fileName(),
                      {stamp, Path::combine(folderOf(info.fileName()),
                                            ownCopiesOf(info.fileName()).value(0))});
    }
    return result;
}

BackupStore::Result BackupStore::keepBytes(const QString &fileName, const QByteArray &bytes)
{
    const QMutexLocker locker(&m_mutex);
    m_kept.remove(fileName);
    return keepState(fileName, bytes, {QDateTime::currentDateTime(), {}});
}

BackupStore::Result BackupStore::keepFromTarget(const QString &fileName, const QByteArray &bytes,
                                                const QDateTime &modified)
{
    const QMutexLocker locker(&m_mutex);
    const QString folder = folderOf(fileName);
    if (!QDir().mkpath(folder))
        return fail(tr("The folder \"%1\" cannot be made.").arg(QDir::toNativeSeparators(folder)));
    const QStringList copies = copiesOf(fileName, targetCopySuffix);
    const QStringList all = ownCopiesOf(fileName) + copies;
    const bool isKnown = std::any_of(all.cbegin(), all.cend(), [&](const QString &copy) {
        return hasBytes(Path::combine(folder, copy), bytes);
    });
    if (isKnown)
        return Result::Unchanged;
    if (!write(folder, copies, targetCopySuffix, bytes, {modified, {}}))
        return Result::Failed;
    removeBehind(MaximumTargetStates, fileName, copiesOf(fileName, targetCopySuffix));
    return Result::Kept;
}

void BackupStore::sync() const
{
    const int folder =
        ::open(QFile::encodeName(m_folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::syncfs(folder);
    ::close(folder);
}

QString BackupStore::folderOf(const QString &fileName) const
{
    return Path::combine(m_folder, fileName);
}

QStringList BackupStore::ownCopiesOf(const QString &fileName) const
{
    return copiesOf(fileName, copySuffix);
}

QStringList BackupStore::copiesOf(const QString &fileName, QLatin1String suffix) const
{
    QStringList copies =
        QDir(folderOf(fileName)).entryList(QDir::Files, QDir::Name | QDir::Reversed);
    copies.erase(
        std::remove_if(copies.begin(), copies.end(),
                       [suffix](const QString &name) { return !momentOf(name, suffix).isValid(); }),
        copies.end());
    return copies;
}

BackupStore::Result BackupStore::keepState(const QString &fileName, const QByteArray &bytes,
                                           const Origin &origin)
{
    const QString folder = folderOf(fileName);
    if (!QDir().mkpath(folder))
        return fail(tr("The folder \"%1\" cannot be made.").arg(QDir::toNativeSeparators(folder)));
    const QStringList copies = ownCopiesOf(fileName);
    const auto same = std::find_if(copies.cbegin(), copies.cend(), [&](const QString &copy) {
        return hasBytes(Path::combine(folder, copy), bytes);
    });
    if (same != copies.cend() && same == copies.cbegin())
        return Result::Unchanged;
    if (!write(folder, copies, copySuffix, bytes, origin))
        return Result::Failed;
    if (same != copies.cend())
        QFile::remove(Path::combine(folder, *same));
    removeBehind(MaximumEarlierStates + 1, fileName, ownCopiesOf(fileName));
    return Result::Kept;
}

bool BackupStore::write(const QString &folder, const QStringList &copies, QLatin1String suffix,
                        const QByteArray &bytes, const Origin &origin)
{
    QFile file(Path::combine(folder, incomingName()));
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                         file.write(bytes) == bytes.size() && file.flush() &&
                         file.setFileTime(origin.modified, QFileDevice::FileModificationTime) &&
                         (!origin.permissions || file.setPermissions(origin.permissions));
    QString reason = file.errorString();
    file.close();
    if (written && file.error() == QFileDevice::NoError) {
        if (putInPlace(file.fileName(), folder, momentOfNext(copies, suffix), suffix))
            return true;
        reason = qt_error_string(errno);
    }
    fail(QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(folder), reason));
    file.remove();
    return false;
}

void BackupStore::removeBehind(int count, const QString &fileName, const QStringList &copies) const
{
    for (int index = count; index < copies.size(); ++index)
        QFile::remove(Path::combine(folderOf(fileName), copies.at(index)));
}

BackupStore::Result BackupStore::fail(const QString &reason)
{
    m_lastError = reason;
    return Result::Failed;
}

} // namespace Zavo
