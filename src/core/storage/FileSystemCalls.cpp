#include "storage/FileSystemCalls.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace Zavo {

namespace {
FileSystemCalls *s_current = nullptr;
}

FileSystemCalls::~FileSystemCalls() = default;

FileSystemCalls &FileSystemCalls::current()
{
    static FileSystemCalls system;
    return s_current ? *s_current : system;
}

void FileSystemCalls::setCurrent(FileSystemCalls *calls)
{
    s_current = calls;
}

int FileSystemCalls::stat(const char *path, struct stat *status)
{
    return ::stat(path, status);
}

int FileSystemCalls::access(const char *path, int mode)
{
    return ::access(path, mode);
}

int FileSystemCalls::open(const char *path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

int FileSystemCalls::fstat(int file, struct stat *status)
{
    return ::fstat(file, status);
}

ssize_t FileSystemCalls::read(int file, void *bytes, size_t count)
{
    return ::read(file, bytes, count);
}

ssize_t FileSystemCalls::write(int file, const void *bytes, size_t count)
{
    return ::write(file, bytes, count);
}

int FileSystemCalls::fchown(int file, uid_t owner, gid_t group)
{
    return ::fchown(file, owner, group);
}

int FileSystemCalls::fchmod(int file, mode_t mode)
{
    return ::fchmod(file, mode);
}

int FileSystemCalls::fsync(int file)
{
    return ::fsync(file);
}

int FileSystemCalls::close(int file)
{
    return ::close(file);
}

int FileSystemCalls::link(const char *from, const char *to)
{
    return ::link(from, to);
}

int FileSystemCalls::rename(const char *from, const char *to)
{
    return ::rename(from, to);
}

int FileSystemCalls::unlink(const char *path)
{
    return ::unlink(path);
}

void FileSystemCalls::onNotReplaced(const QString &, const QByteArray &) {}

} // namespace Zavo
