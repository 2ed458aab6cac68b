#pragma once

#include <QString>
#include <QtGlobal>

namespace Zavo {

/// What tells one state of a file from another without reading it. The time of the inode is not
/// part of it, since a second name for the file changes that, too.
struct FileStamp
{
    /// The stamp of a regular file, links followed; one that does not exist if there is none.
    static FileStamp of(const QString &path);

    bool exists() const { return inode != 0; }

    quint64 inode = 0;
    qint64 size = 0;
    qint64 modifiedNs = 0;
};

inline bool operator==(const FileStamp &a, const FileStamp &b)
{
    return a.inode == b.inode && a.size == b.size && a.modifiedNs == b.modifiedNs;
}

inline bool operator!=(const FileStamp &a, const FileStamp &b)
{
    return !(a == b);
}

} // namespace Zavo
