#include "storage/DurableFile.h"

#include "storage/FileSystemCalls.h"
#include "storage/SystemCall.h"

#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace Zavo {

namespace {
constexpr int MaximumLinkDepth = 40;
constexpr int MaximumNameTries = 100;
constexpr mode_t PermissionBits = 07777;
constexpr mode_t NewFileMode = 0666; // the umask of the process takes away from it
constexpr mode_t PrivateMode = 0600;

/// Where the links lead, which may not exist yet; empty if they lead nowhere.
QString targetOf(const QString &filePath)
{
    QString target = filePath;
    for (int depth = 0; depth < MaximumLinkDepth; ++depth) {
        const QFileInfo info(target);
        if (!info.isSymLink())
            return info.absoluteFilePath();
        target = info.symLinkTarget();
    }
    return {};
}

/// One replacement of one file. What it made on the way and did not need goes with it.
class Replacement
{
public:
    Replacement(const QString &target, FileSystemCalls &calls)
        : m_calls(calls)
        , m_target(QFile::encodeName(target))
        , m_folder(QFile::encodeName(QFileInfo(target).absolutePath()))
    {
    }
    Q_DISABLE_COPY(Replacement)

    ~Replacement()
    {
        removeHidden(m_temporary);
        removeHidden(m_backup);
        if (m_folderHandle >= 0)
            m_calls.close(m_folderHandle);
    }

    bool run(const QByteArray &bytes)
    {
        return examineTarget() && openFolder() && writeTemporary(bytes) && putInPlace();
    }

private:
    bool examineTarget()
    {
        if (m_calls.stat(m_target.constData(), &m_status) != 0)
            return errno == ENOENT;
        m_exists = true;
        return S_ISREG(m_status.st_mode) && m_calls.access(m_target.constData(), W_OK) == 0;
    }

    // Before anything is changed, so that a folder that cannot be opened costs nothing.
    bool openFolder()
    {
        m_folderHandle = retried([this] {
            return m_calls.open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
        });
        return m_folderHandle >= 0;
    }

    bool writeTemporary(const QByteArray &bytes)
    {
        const int file = openTemporary();
        if (file < 0)
            return false;
        const bool written = writeAll(file, bytes) && takeOverOwnership(file) && sync(file);
        // An interrupted close has closed, and what it had to write is on the disk already.
        const bool closed = m_calls.close(file) == 0 || errno == EINTR;
        return written && closed;
    }

    int openTemporary()
    {
        const mode_t mode = m_exists ? PrivateMode : NewFileMode;
        for (int i = 0; i < MaximumNameTries; ++i) {
            const QByteArray name = hiddenName();
            const int file = retried([&] {
                return m_calls.open(name.constData(),
                                    O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
            });
            if (file >= 0)
                m_temporary = name;
            if (file >= 0 || errno != EEXIST)
                return file;
        }
        return -1;
    }

    bool writeAll(int file, const QByteArray &bytes)
    {
        int done = 0;
        while (done < bytes.size()) {
            const ssize_t count = retried([&] {
                return m_calls.write(file, bytes.constData() + done,
                                     static_cast<size_t>(bytes.size() - done));
            });
            if (count <= 0)
                return false;
            done += static_cast<int>(count);
        }
        return true;
    }

    bool takeOverOwnership(int file)
    {
        if (!m_exists)
            return true;
        // Only root may give a file away; for others the permissions are what can be kept.
        m_calls.fchown(file, m_status.st_uid, m_status.st_gid);
        return m_calls.fchmod(file, m_status.st_mode & PermissionBits) == 0;
    }

    bool sync(int file)
    {
        return retried([&] { return m_calls.fsync(file); }) == 0;
    }

    bool syncFolder()
    {
        // Some file systems know no sync of a folder and say so; there is nothing more to be had.
        return sync(m_folderHandle) || errno == EINVAL || errno == ENOTSUP;
    }

    bool putInPlace()
    {
        keepOld();
        if (m_calls.rename(m_temporary.constData(), m_target.constData()) != 0)
            return false;
        m_temporary.clear();
        if (syncFolder())
            return true;
        bringBackOld();
        return false;
    }

    // A second name for the old file: the way back if the folder cannot be synced. File systems
    // without links have no such way.
    void keepOld()
    {
        if (!m_exists)
            return;
        for (int i = 0; i < MaximumNameTries; ++i) {
            const QByteArray name = hiddenName();
            if (m_calls.link(m_target.constData(), name.constData()) == 0)
                m_backup = name;
            if (!m_backup.isEmpty() || errno != EEXIST)
                return;
        }
    }

    void bringBackOld()
    {
        if (!m_exists) {
            m_calls.unlink(m_target.constData());
        } else if (!m_backup.isEmpty() &&
                   m_calls.rename(m_backup.constData(), m_target.constData()) == 0) {
            m_backup.clear();
        }
        m_calls.fsync(m_folderHandle);
    }

    void removeHidden(const QByteArray &name)
    {
        if (!name.isEmpty())
            m_calls.unlink(name.constData());
    }

    /// Short whatever the target is called, so that a name of full length can be replaced, too.
    QByteArray hiddenName() const
    {
        static std::atomic<unsigned> s_count{0};
        return m_folder + "/.zavo-" + QByteArray::number(static_cast<qlonglong>(::getpid())) + '-' +
               QByteArray::number(s_count++) + ".tmp";
    }

    FileSystemCalls &m_calls;
    const QByteArray m_target;
    const QByteArray m_folder;
    QByteArray m_temporary; // empty while there is none
    QByteArray m_backup;    // empty while there is none
    struct stat m_status = {};
    bool m_exists = false;
    int m_folderHandle = -1;
};
} // namespace

bool DurableFile::write(const QString &filePath, const QByteArray &bytes)
{
    if (filePath.isEmpty() || filePath.contains(QChar::Null))
        return false;
    FileSystemCalls &calls = FileSystemCalls::current();
    const QString target = targetOf(filePath);
    if (!target.isEmpty() && Replacement(target, calls).run(bytes))
        return true;
    calls.onNotReplaced(filePath, bytes);
    return false;
}

} // namespace Zavo
