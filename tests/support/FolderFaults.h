#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace ZavoTest {

/// While it lives, nothing can be created, changed or removed in a folder, not by root either: it
/// is a read-only mount or, where nothing can be mounted, has permissions that bind root too.
class ReadOnlyFolder final
{
    Q_DISABLE_COPY(ReadOnlyFolder)

public:
    explicit ReadOnlyFolder(const QString &path);
    ~ReadOnlyFolder();

    /// False if this machine has no means to make a folder read-only; it is as it was then.
    bool isEffective() const { return m_means != Means::None; }

private:
    enum class Means { None, Mount, Permissions };

    bool mountReadOnly();
    bool takePermissions();
    void givePermissions();

    QByteArray m_path;
    Means m_means = Means::None;
};

/// While it lives, a file can be read, but neither removed nor replaced.
class UnremovableFile final
{
    Q_DISABLE_COPY(UnremovableFile)

public:
    explicit UnremovableFile(const QString &path);
    ~UnremovableFile();

    /// False if this machine has no means to keep a file; it is as it was then.
    bool isEffective() const { return m_isMounted || m_folder->isEffective(); }

private:
    QByteArray m_path;
    bool m_isMounted = false;
    std::unique_ptr<ReadOnlyFolder> m_folder;
};

/// While it lives, a folder, which has to be empty, is a disk of its own of some 128 KiB, or as
/// told. Where no disk can be mounted, a full one is made of a limit to the size of files.
class SmallDisk final
{
    Q_DISABLE_COPY(SmallDisk)

public:
    explicit SmallDisk(const QString &path, int kibibytes = 128);
    ~SmallDisk();

    /// False where none can be mounted.
    bool isOwn() const { return m_isMounted; }

    /// Takes all the space that is left.
    void fill();

    /// Gives it back.
    void makeRoom();

private:
    struct Limit;

    QByteArray m_path;
    bool m_isMounted = false;
    std::unique_ptr<Limit> m_limit;
};

} // namespace ZavoTest
