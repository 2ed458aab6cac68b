#include "ZvFolderComparison.h"

#include "ZvNaturalOrder.h"

#include <algorithm>

namespace Zavo {

namespace {
std::vector<ZvFileSystemNode::Pointer> sortedNodes(const ZvFolderComparison::Entries &entries,
                                                   ZvFileSystemNode *folder)
{
    std::vector<ZvFileSystemNode::Pointer> nodes;
    nodes.reserve(static_cast<size_t>(entries.size()));
    for (auto it = entries.cbegin(); it != entries.cend(); ++it)
        nodes.push_back(std::make_unique<ZvFileSystemNode>(it.key(), it.value(), folder));
    std::sort(nodes.begin(), nodes.end(),
              [](const ZvFileSystemNode::Pointer &left, const ZvFileSystemNode::Pointer &right) {
                  if (left->isDir() != right->isDir())
                      return left->isDir();
                  return ZvNaturalOrder::compare(left->name(), right->name()) < 0;
              });
    return nodes;
}
} // namespace

std::vector<ZvFolderComparison::Removal>
ZvFolderComparison::removals(const ZvFileSystemNode &folder, const Entries &entries)
{
    std::vector<Removal> runs;
    for (int row = folder.childCount() - 1; row >= 0; --row) {
        const ZvFileSystemNode *child = folder.child(row);
        const auto entry = entries.constFind(child->name());
        if (entry != entries.constEnd() && *entry == child->isDir())
            continue;
        if (!runs.empty() && runs.back().row == row + 1)
            runs.back() = {row, runs.back().count + 1};
        else
            runs.push_back({row, 1});
    }
    return runs;
}

std::vector<ZvFolderComparison::Insertion> ZvFolderComparison::insertions(ZvFileSystemNode &folder,
                                                                          Entries entries)
{
    for (int row = 0; row < folder.childCount(); ++row)
        entries.remove(folder.child(row)->name());
    std::vector<Insertion> runs;
    for (ZvFileSystemNode::Pointer &node : sortedNodes(entries, &folder)) {
        const int row = folder.rowFor(node->name(), node->isDir());
        if (runs.empty() || runs.back().row != row)
            runs.push_back({row, {}});
        runs.back().children.push_back(std::move(node));
    }
    std::reverse(runs.begin(), runs.end());
    return runs;
}

} // namespace Zavo
