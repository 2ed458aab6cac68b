#include "safety/ChannelStates.h"

#include "Path.h"
#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Zavo {

namespace {
const QLatin1String channelFolderName("channel");
// The editor renews it from the file of the basic channel, by removing and copying.
const QLatin1String copiedChannelFile("channel.xml");
} // namespace

ChannelStates::ChannelStates(const QString &dataDir, BackupStore *store)
    : m_folder(QDir(Path::combine(dataDir, channelFolderName)).absolutePath())
    , m_store(store)
{
    const QStringList all = names();
    for (const QString &name : all)
        m_known.insert(name, {FileStamp::of(Path::combine(m_folder, name)), false});
}

QString ChannelStates::channelFileOf(const QString &path) const
{
    const QFileInfo info(path);
    if (info.path() == m_folder)
        return info.fileName().startsWith(QLatin1Char('.')) ? QString() : path;
    const QString target = info.canonicalFilePath();
    const QFileInfoList all = QDir(m_folder).entryInfoList(QDir::Files, QDir::Unsorted);
    const auto link = std::find_if(all.cbegin(), all.cend(), [&target](const QFileInfo &entry) {
        return entry.isSymLink() && !target.isEmpty() && entry.canonicalFilePath() == target;
    });
    return link == all.cend() ? QString() : link->filePath();
}

ChannelStates::Changes ChannelStates::look()
{
    Changes changes;
    bool copied = false;
    const QStringList all = names();
    for (const QString &name : all) {
        const QString path = Path::combine(m_folder, name);
        FileStamp stamp;
        {
            const QMutexLocker locker(&m_mutex);
            stamp = FileStamp::of(path);
            if (!isToBeCopied(name, stamp))
                continue;
        }
        const BackupStore::Result result = m_store->keep(path);
        copied = copied || result == BackupStore::Result::Kept;
        note(name, stamp, result, &changes);
    }
    m_lookedOnce = true;
    if (copied)
        m_store->sync();
    return changes;
}

bool ChannelStates::isChangedByOthers(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    FileStamp stamp;
    {
        const QMutexLocker locker(&m_mutex);
        stamp = FileStamp::of(path);
        const auto known = m_known.constFind(name);
        if (known != m_known.constEnd() && (known->stamp == stamp || !stamp.exists()))
            return stamp.exists() && m_changedByOthers.contains(name);
    }
    Changes changes;
    note(name, stamp, m_store->keep(path), &changes);
    const QMutexLocker locker(&m_mutex);
    return m_changedByOthers.contains(name);
}

QStringList ChannelStates::names() const
{
    return QDir(m_folder).entryList(QDir::Files, QDir::Unsorted);
}

void ChannelStates::takeOver(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    m_known.insert(name, {FileStamp::of(path), false});
    m_changedByOthers.remove(name);
}

bool ChannelStates::isToBeCopied(const QString &name, const FileStamp &stamp)
{
    const auto known = m_known.constFind(name);
    if (!stamp.exists() || (known != m_known.constEnd() && known->stamp == stamp && known->isKept))
        return false;
    const bool isSettled = !m_lookedOnce || m_unsettled.value(name) == stamp;
    if (isSettled)
        m_unsettled.remove(name);
    else
        m_unsettled.insert(name, stamp);
    return isSettled;
}

void ChannelStates::note(const QString &name, const FileStamp &stamp, BackupStore::Result result,
                         Changes *changes)
{
    const bool hasNewContent = result != BackupStore::Result::Unchanged &&
                               !(name == copiedChannelFile && isCopyOfOther(name));
    const QMutexLocker locker(&m_mutex);
    if (result == BackupStore::Result::Failed)
        changes->copiesFailed = true;
    const auto known = m_known.find(name);
    if (known == m_known.end()) {
        m_known.insert(name, {stamp, result != BackupStore::Result::Failed});
        return;
    }
    // What this program wrote in the meantime is its own.
    const bool isOurs = FileStamp::of(Path::combine(m_folder, name)) == known->stamp;
    if (!isOurs && known->stamp != stamp && hasNewContent) {
        m_changedByOthers.insert(name);
        changes->byOthers.append(name);
    }
    if (!isOurs || known->stamp == stamp)
        *known = {stamp, result != BackupStore::Result::Failed};
}

bool ChannelStates::isCopyOfOther(const QString &name) const
{
    const QString path = Path::combine(m_folder, name);
    const qint64 size = QFileInfo(path).size();
    QByteArray bytes;
    const QStringList all = names();
    return std::any_of(all.cbegin(), all.cend(), [&](const QString &other) {
        const QString otherPath = Path::combine(m_folder, other);
        if (other == name || QFileInfo(otherPath).size() != size)
            return false;
        QByteArray otherBytes;
        if (bytes.isEmpty() && !BoundedFile::read(path, ChannelFile::MaximumBytes, &bytes))
            return false;
        return BoundedFile::read(otherPath, ChannelFile::MaximumBytes, &otherBytes) &&
               otherBytes == bytes;
    });
}

} // namespace Zavo
