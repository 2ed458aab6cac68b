#pragma once

#include "ZvCoreExport.h"

#include <QByteArray>
#include <QString>

#include <sys/stat.h>
#include <sys/types.h>

namespace Zavo {

/// The calls of the operating system by which files are read and replaced, with their own results
/// and errno. A seam: what a failing disk does can be acted out by a derived class.
class ZVCORE_EXPORT FileSystemCalls
{
public:
    FileSystemCalls() = default;
    Q_DISABLE_COPY(FileSystemCalls)
    virtual ~FileSystemCalls();

    /// The calls in use: the system's, unless others were set.
    static FileSystemCalls &current();

    /// Puts @p calls, which stay the caller's, in the place of the system's; null ends that.
    static void setCurrent(FileSystemCalls *calls);

    virtual int stat(const char *path, struct stat *status);
    virtual int access(const char *path, int mode);
    virtual int open(const char *path, int flags, mode_t mode);
    virtual int fstat(int file, struct stat *status);
    virtual ssize_t read(int file, void *bytes, size_t count);
    virtual ssize_t write(int file, const void *bytes, size_t count);
    virtual int fchown(int file, uid_t owner, gid_t group);
    virtual int fchmod(int file, mode_t mode);
    virtual int fsync(int file);
    virtual int close(int file);
    virtual int link(const char *from, const char *to);
    virtual int rename(const char *from, const char *to);
    virtual int unlink(const char *path);

    /// Told by DurableFile that a file could not be replaced, and with what; the file is the old
    /// one, or there is none. Does nothing by itself.
    virtual void onNotReplaced(const QString &filePath, const QByteArray &bytes);
};

} // namespace Zavo
