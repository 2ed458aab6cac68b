#pragma once

#include <QString>
#include <Qt>

namespace Zavo {

/// What a model of files does to the disk. Nothing here overwrites a file or asks anybody.
class ZvFileOperations final
{
public:
    ZvFileOperations() = delete;

    /// Gives the file or folder at @p path another name in the same folder. False if @p name is no
    /// file name, is taken or the disk refuses.
    static bool rename(const QString &path, const QString &name);

    /// Removes a file, a link or an empty folder.
    static bool remove(const QString &path);

    /// Copies, moves or links @p source into @p folder under its own name.
    static bool transfer(const QString &source, const QString &folder, Qt::DropAction action);
};

} // namespace Zavo
