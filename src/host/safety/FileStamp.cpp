#include "safety/FileStamp.h"

#include <QFile>

#include <sys/stat.h>

namespace Zavo {

namespace {

qint64 nanoseconds(const timespec &time)
{
    constexpr qint64 perSecond = 1000000000;
    return qint64(time.tv_sec) * perSecond + qint64(time.tv_nsec);
}

} // namespace

FileStamp FileStamp::of(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return {status.st_ino, status.st_size, nanoseconds(status.st_mtim)};
}

} // namespace Zavo
