#include "ZvFileSystemNode.h"

#include "ZvNaturalOrder.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace Zavo {

ZvFileSystemNode::ZvFileSystemNode(const QString &name, bool isDir, ZvFileSystemNode *parent)
    : m_name(name)
    , m_parent(parent)
    , m_isDir(isDir)
{
}

QString ZvFileSystemNode::path() const
{
    if (!m_parent)
        return m_name;
    const QString folder = m_parent->path();
    return folder.endsWith(QLatin1Char('/')) ? folder + m_name : folder + QLatin1Char('/') + m_name;
}

ZvFileSystemNode *ZvFileSystemNode::child(int row) const
{
    return row >= 0 && row < childCount() ? m_children[static_cast<size_t>(row)].get() : nullptr;
}

ZvFileSystemNode *ZvFileSystemNode::descendant(const QString &path)
{
    const QLatin1Char separator('/');
    const QString own = this->path();
    if (path == own)
        return this;
    const QString below = own.endsWith(separator) ? own : QString(own + separator);
    if (!path.startsWith(below))
        return nullptr;
    ZvFileSystemNode *node = this;
    const QStringList names = path.mid(below.size()).split(separator);
    for (const QString &name : names) {
        node = node->child(node->rowFor(name, true));
        if (!node || node->m_name != name)
            return nullptr;
    }
    return node;
}

int ZvFileSystemNode::row() const
{
    return m_parent ? m_parent->rowFor(m_name, m_isDir) : 0;
}

int ZvFileSystemNode::rowFor(const QString &name, bool isDir) const
{
    const auto it =
        std::partition_point(m_children.cbegin(), m_children.cend(), [&](const Pointer &child) {
            if (child->m_isDir != isDir)
                return child->m_isDir;
            return ZvNaturalOrder::compare(child->m_name, name) < 0;
        });
    return static_cast<int>(std::distance(m_children.cbegin(), it));
}

const QFileInfo &ZvFileSystemNode::info() const
{
    if (!m_info) {
        m_info.emplace(path());
        // Read as a whole now: later, it would tell of another state.
        m_info->exists();
    }
    return *m_info;
}

bool ZvFileSystemNode::refreshInfo()
{
    if (!m_info)
        return false;
    QFileInfo now(path());
    now.exists();
    const bool differs = now.size() != m_info->size() ||
                         now.lastModified() != m_info->lastModified() ||
                         now.permissions() != m_info->permissions();
    if (differs)
        m_info = now;
    return differs;
}

void ZvFileSystemNode::rename(const QString &name)
{
    m_name = name;
    m_info.reset();
}

void ZvFileSystemNode::insertChildren(int row, std::vector<Pointer> children)
{
    m_children.insert(m_children.begin() + row, std::make_move_iterator(children.begin()),
                      std::make_move_iterator(children.end()));
}

void ZvFileSystemNode::removeChildren(int row, int count)
{
    m_children.erase(m_children.begin() + row, m_children.begin() + row + count);
}

void ZvFileSystemNode::moveChild(int from, int row)
{
    const auto first = m_children.begin();
    if (row < from)
        std::rotate(first + row, first + from, first + from + 1);
    else
        std::rotate(first + from, first + from + 1, first + row + 1);
}

} // namespace Zavo
