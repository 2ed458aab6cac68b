#include "FolderFaults.h"

#include "WriteFailure.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <linux/capability.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace ZavoTest {

namespace {

constexpr mode_t AllButWriting = 0555;
constexpr mode_t All = 0755;
constexpr char Filler[] = "/.filler";

// Mounts of this process only, which end with it.
bool hasOwnMounts()
{
    static const bool has =
        unshare(CLONE_NEWNS) == 0 && mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0;
    return has;
}

bool mountOnItself(const QByteArray &path)
{
    return hasOwnMounts() &&
           mount(path.constData(), path.constData(), "none", MS_BIND, nullptr) == 0;
}

void unmount(const QByteArray &path)
{
    umount2(path.constData(), MNT_DETACH);
}

// Root passes over permissions by a capability that each thread can do without for a while.
void setOverridesPermissions(bool on)
{
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct sets[_LINUX_CAPABILITY_U32S_3] = {};
    if (syscall(SYS_capget, &header, sets) != 0)
        return;
    constexpr auto bit = 1U << CAP_DAC_OVERRIDE;
    sets[0].effective =
        on ? sets[0].effective | (sets[0].permitted & bit) : sets[0].effective & ~bit;
    syscall(SYS_capset, &header, sets);
}

bool canCreateIn(const QByteArray &folder)
{
    const QByteArray name = folder + "/.probe";
    const int file = open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, All);
    if (file < 0)
        return false;
    close(file);
    unlink(name.constData());
    return true;
}

} // namespace

ReadOnlyFolder::ReadOnlyFolder(const QString &path)
    : m_path(QFile::encodeName(path))
{
    if (mountReadOnly())
        m_means = Means::Mount;
    else if (takePermissions())
        m_means = Means::Permissions;
}

ReadOnlyFolder::~ReadOnlyFolder()
{
    if (m_means == Means::Mount)
        unmount(m_path);
    else if (m_means == Means::Permissions)
        givePermissions();
}

bool ReadOnlyFolder::mountReadOnly()
{
    if (!mountOnItself(m_path))
        return false;
    constexpr unsigned long readOnly = MS_BIND | MS_REMOUNT | MS_RDONLY;
    if (mount("none", m_path.constData(), "none", readOnly, nullptr) == 0)
        return true;
    unmount(m_path);
    return false;
}

bool ReadOnlyFolder::takePermissions()
{
    setOverridesPermissions(false);
    chmod(m_path.constData(), AllButWriting);
    if (!canCreateIn(m_path))
        return true;
    givePermissions();
    return false;
}

void ReadOnlyFolder::givePermissions()
{
    setOverridesPermissions(true);
    chmod(m_path.constData(), All);
}

UnremovableFile::UnremovableFile(const QString &path)
    : m_path(QFile::encodeName(path))
    , m_isMounted(mountOnItself(m_path))
{
    if (!m_isMounted)
        m_folder = std::make_unique<ReadOnlyFolder>(QFileInfo(path).absolutePath());
}

UnremovableFile::~UnremovableFile()
{
    if (m_isMounted)
        unmount(m_path);
}

struct SmallDisk::Limit
{
    WriteFailure failure;
};

SmallDisk::SmallDisk(const QString &path, int kibibytes)
    : m_path(QFile::encodeName(path))
{
    const QByteArray options = "size=" + QByteArray::number(kibibytes) + "k,mode=0755";
    m_isMounted =
        hasOwnMounts() && mount("none", m_path.constData(), "tmpfs", 0, options.constData()) == 0;
}

SmallDisk::~SmallDisk()
{
    m_limit.reset();
    if (m_isMounted)
        unmount(m_path);
}

void SmallDisk::fill()
{
    if (!m_isMounted) {
        m_limit = std::make_unique<Limit>();
        return;
    }
    const QByteArray name = m_path + Filler;
    const int file = open(name.constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, All);
    const QByteArray block(1024, 'x');
    while (write(file, block.constData(), size_t(block.size())) > 0) {
    }
    close(file);
}

void SmallDisk::makeRoom()
{
    m_limit.reset();
    unlink((m_path + Filler).constData());
}

} // namespace ZavoTest
