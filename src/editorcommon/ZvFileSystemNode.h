#pragma once

#include <QFileInfo>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace Zavo {

/// An entry of a ZvFileSystemModel: a file, or a folder with the entries that were listed of it.
class ZvFileSystemNode final
{
public:
    using Pointer = std::unique_ptr<ZvFileSystemNode>;

    ZvFileSystemNode(const QString &name, bool isDir, ZvFileSystemNode *parent = nullptr);
    Q_DISABLE_COPY(ZvFileSystemNode)

    /// File name; of the root its absolute path.
    QString name() const { return m_name; }
    QString path() const;
    bool isDir() const { return m_isDir; }
    ZvFileSystemNode *parent() const { return m_parent; }

    /// Whether the folder was listed, so that the children are what it holds.
    bool isListed() const { return m_isListed; }
    int childCount() const { return static_cast<int>(m_children.size()); }
    /// Null if @p row is out of range.
    ZvFileSystemNode *child(int row) const;

    /// The folder with this absolute path here or below; null if there is none.
    ZvFileSystemNode *descendant(const QString &path);

    /// Row among the parent's children; 0 for the root.
    int row() const;

    /// Row at which a child with this name and kind stands or would stand.
    int rowFor(const QString &name, bool isDir) const;

    /// Size, dates and permissions, asked of the disk at the first call.
    const QFileInfo &info() const;

    /// Asks the disk again for what info() told before. True if that differs.
    bool refreshInfo();

    void setListed(bool isListed) { m_isListed = isListed; }
    void rename(const QString &name);
    void insertChildren(int row, std::vector<Pointer> children);
    void removeChildren(int row, int count);
    /// Moves a child to @p row, counted without the child.
    void moveChild(int from, int row);

private:
    QString m_name;
    ZvFileSystemNode *m_parent = nullptr;
    std::vector<Pointer> m_children;
    mutable std::optional<QFileInfo> m_info;
    bool m_isDir = false;
    bool m_isListed = false;
};

} // namespace Zavo
