#pragma once

#include "ZvFileSystemNode.h"

#include <QHash>

#include <vector>

namespace Zavo {

/// What must change in the children of a listed folder so that they are what the disk holds, in
/// runs of rows that change together. All runs come last to first, so that carrying one out does
/// not move the rows of the next. Linear in the entries, but for sorting the new ones.
class ZvFolderComparison final
{
public:
    ZvFolderComparison() = delete;

    /// Name of each entry on disk, with whether it is a folder.
    using Entries = QHash<QString, bool>;

    struct Removal
    {
        int row = 0;
        int count = 0;
    };

    struct Insertion
    {
        int row = 0;
        std::vector<ZvFileSystemNode::Pointer> children;
    };

    static std::vector<Removal> removals(const ZvFileSystemNode &folder, const Entries &entries);

    /// To be asked when the removals are carried out.
    static std::vector<Insertion> insertions(ZvFileSystemNode &folder, Entries entries);
};

} // namespace Zavo
