#include "FaultyFiles.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstring>
#include <random>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace ZavoTest {

namespace {

constexpr int MaximumFiles = 4096;
constexpr size_t LongestFolder = 512;
constexpr size_t LongestName = 24;

struct Seen
{
    std::atomic<int> calls;
    std::atomic<bool> struck;
    std::array<char, LongestName> name;
};

Seen *s_seen = nullptr;
std::atomic<bool> s_active{false};
FaultPlan s_plan;
std::array<char, LongestFolder> s_folder{};
size_t s_folderLength = 0;
std::array<std::atomic<bool>, MaximumFiles> s_watched{};
thread_local bool s_isPlanner = false;

bool isWatched(const char *path)
{
    return path && s_folderLength > 0 && std::strncmp(path, s_folder.data(), s_folderLength) == 0 &&
           (path[s_folderLength] == '/' || path[s_folderLength] == '\0');
}

bool isWatched(int file)
{
    return file >= 0 && file < MaximumFiles && s_watched[static_cast<size_t>(file)];
}

void watch(int file, bool on)
{
    if (file >= 0 && file < MaximumFiles)
        s_watched[static_cast<size_t>(file)] = on;
}

void pause()
{
    thread_local std::minstd_rand random(static_cast<unsigned>(getpid()));
    usleep(static_cast<useconds_t>(random() % s_plan.longestPauseUs));
}

/// True, with errno set, if the call is to fail. @p beforeKill does what the call had done by then.
template<typename BeforeKill>
bool strikes(const char *call, bool watched, BeforeKill beforeKill)
{
    if (watched && s_active && s_plan.longestPauseUs > 0)
        pause();
    const bool isOurs = s_isPlanner == (s_plan.thread == FaultPlan::Thread::Gui);
    if (!watched || !s_active || !isOurs)
        return false;
    const int number = ++s_seen->calls;
    const bool isDue = s_plan.lasts ? number >= s_plan.number : number == s_plan.number;
    if (!isDue || s_plan.error == FaultPlan::Nothing)
        return false;
    if (!s_seen->struck.exchange(true))
        std::strncpy(s_seen->name.data(), call, LongestName - 1);
    beforeKill();
    if (s_plan.error == FaultPlan::Kill)
        kill(getpid(), SIGKILL);
    errno = s_plan.error;
    return true;
}

bool strikes(const char *call, bool watched)
{
    return strikes(call, watched, [] {});
}

template<typename Function>
Function real(Function, const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

namespace FaultyFiles {

void share()
{
    void *const memory =
        mmap(nullptr, sizeof(Seen), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory != MAP_FAILED)
        s_seen = new (memory) Seen();
}

void begin(const FaultPlan &plan)
{
    s_active = false;
    s_plan = plan;
    s_folderLength = qMin<size_t>(static_cast<size_t>(plan.folder.size()), LongestFolder - 1);
    std::memcpy(s_folder.data(), plan.folder.constData(), s_folderLength);
    s_isPlanner = true;
    s_seen->calls = 0;
    s_seen->struck = false;
    s_seen->name.fill('\0');
    s_active = true;
}

void end()
{
    s_active = false;
}

int calls()
{
    return s_seen->calls;
}

bool haveStruck()
{
    return s_seen->struck;
}

QByteArray struckCall()
{
    return QByteArray(s_seen->name.data());
}

} // namespace FaultyFiles
} // namespace ZavoTest

// The names of the system's calls belong to these functions. A program comes before its libraries
// when they look for a name, so the libraries call them, too.
using ZavoTest::isWatched;
using ZavoTest::strikes;
using ZavoTest::watch;

#define ZAVO_EXPORTED __attribute__((visibility("default")))
#define ZAVO_REAL(name) static const auto next = ZavoTest::real(&zavo_##name, #name)

#define ZAVO_OPEN(name)                                                                            \
    extern "C" int zavo_##name(const char *path, int flags, ...) __asm__(#name) ZAVO_EXPORTED;     \
    int zavo_##name(const char *path, int flags, ...)                                              \
    {                                                                                              \
        ZAVO_REAL(name);                                                                           \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;  \
        va_end(arguments);                                                                         \
        if (strikes(#name, isWatched(path)))                                                       \
            return -1;                                                                             \
        const int file = next(path, flags, mode);                                                  \
        watch(file, isWatched(path));                                                              \
        return file;                                                                               \
    }

// What takes a path or a file first and returns -1 on failure.
#define ZAVO_CALL(name, result, key, parameters, arguments)                                        \
    extern "C" result zavo_##name parameters __asm__(#name) ZAVO_EXPORTED;                         \
    result zavo_##name parameters                                                                  \
    {                                                                                              \
        ZAVO_REAL(name);                                                                           \
        return strikes(#name, isWatched(key)) ? -1 : next arguments;                               \
    }

struct statx;
struct timespec;

// clang-format off
ZAVO_OPEN(open)
ZAVO_OPEN(open64)
ZAVO_CALL(access, int, path, (const char *path, int mode), (path, mode))
ZAVO_CALL(chmod, int, path, (const char *path, mode_t mode), (path, mode))
ZAVO_CALL(fchmod, int, file, (int file, mode_t mode), (file, mode))
ZAVO_CALL(fchown, int, file, (int file, uid_t owner, gid_t group), (file, owner, group))
ZAVO_CALL(fdatasync, int, file, (int file), (file))
ZAVO_CALL(fstat, int, file, (int file, void *status), (file, status))
ZAVO_CALL(fstat64, int, file, (int file, void *status), (file, status))
ZAVO_CALL(fsync, int, file, (int file), (file))
ZAVO_CALL(ftruncate, int, file, (int file, off_t size), (file, size))
ZAVO_CALL(ftruncate64, int, file, (int file, off64_t size), (file, size))
ZAVO_CALL(futimens, int, file, (int file, const timespec *times), (file, times))
ZAVO_CALL(link, int, from, (const char *from, const char *to), (from, to))
ZAVO_CALL(linkat, int, to, (int fromFolder, const char *from, int toFolder, const char *to, int flags),
          (fromFolder, from, toFolder, to, flags))
ZAVO_CALL(lstat, int, path, (const char *path, void *status), (path, status))
ZAVO_CALL(lstat64, int, path, (const char *path, void *status), (path, status))
ZAVO_CALL(mkdir, int, path, (const char *path, mode_t mode), (path, mode))
ZAVO_CALL(read, ssize_t, file, (int file, void *bytes, size_t count), (file, bytes, count))
ZAVO_CALL(readlink, ssize_t, path, (const char *path, char *target, size_t size), (path, target, size))
ZAVO_CALL(rename, int, from, (const char *from, const char *to), (from, to))
ZAVO_CALL(renameat2, int, from, (int fromFolder, const char *from, int toFolder, const char *to, unsigned flags),
          (fromFolder, from, toFolder, to, flags))
ZAVO_CALL(rmdir, int, path, (const char *path), (path))
ZAVO_CALL(sendfile, ssize_t, to, (int to, int from, off_t *offset, size_t count), (to, from, offset, count))
ZAVO_CALL(stat, int, path, (const char *path, void *status), (path, status))
ZAVO_CALL(stat64, int, path, (const char *path, void *status), (path, status))
ZAVO_CALL(statx, int, path, (int folder, const char *path, int flags, unsigned mask, struct statx *status),
          (folder, path, flags, mask, status))
ZAVO_CALL(symlink, int, path, (const char *target, const char *path), (target, path))
ZAVO_CALL(syncfs, int, file, (int file), (file))
ZAVO_CALL(truncate64, int, path, (const char *path, off64_t size), (path, size))
ZAVO_CALL(unlink, int, path, (const char *path), (path))
// clang-format on

extern "C" ssize_t zavo_write(int file, const void *bytes,
                              size_t count) __asm__("write") ZAVO_EXPORTED;
ssize_t zavo_write(int file, const void *bytes, size_t count)
{
    ZAVO_REAL(write);
    const auto writeHalf = [&] {
        if (next(file, bytes, count / 2) < 0)
            return;
    };
    return strikes("write", isWatched(file), writeHalf) ? -1 : next(file, bytes, count);
}

extern "C" int zavo_close(int file) __asm__("close") ZAVO_EXPORTED;
int zavo_close(int file)
{
    ZAVO_REAL(close);
    const bool fails = strikes("close", isWatched(file));
    const int error = errno;
    watch(file, false);
    const int result = next(file); // a failed close has closed, too
    if (!fails)
        return result;
    errno = error;
    return -1;
}

extern "C" char *zavo_realpath(const char *path, char *resolved) __asm__("realpath") ZAVO_EXPORTED;
char *zavo_realpath(const char *path, char *resolved)
{
    ZAVO_REAL(realpath);
    return strikes("realpath", isWatched(path)) ? nullptr : next(path, resolved);
}

extern "C" DIR *zavo_opendir(const char *path) __asm__("opendir") ZAVO_EXPORTED;
DIR *zavo_opendir(const char *path)
{
    ZAVO_REAL(opendir);
    if (strikes("opendir", isWatched(path)))
        return nullptr;
    DIR *const folder = next(path);
    if (folder)
        watch(dirfd(folder), isWatched(path));
    return folder;
}

extern "C" int zavo_closedir(DIR *folder) __asm__("closedir") ZAVO_EXPORTED;
int zavo_closedir(DIR *folder)
{
    ZAVO_REAL(closedir);
    watch(dirfd(folder), false);
    return next(folder);
}

extern "C" dirent *zavo_readdir(DIR *folder) __asm__("readdir") ZAVO_EXPORTED;
dirent *zavo_readdir(DIR *folder)
{
    ZAVO_REAL(readdir);
    return strikes("readdir", isWatched(dirfd(folder))) ? nullptr : next(folder);
}

extern "C" dirent64 *zavo_readdir64(DIR *folder) __asm__("readdir64") ZAVO_EXPORTED;
dirent64 *zavo_readdir64(DIR *folder)
{
    ZAVO_REAL(readdir64);
    return strikes("readdir64", isWatched(dirfd(folder))) ? nullptr : next(folder);
}
