#include "ZvFileSystemModel.h"

#include "ZvFileIcons.h"
#include "ZvFileOperations.h"
#include "ZvFileSystemNode.h"
#include "ZvFolderComparison.h"
#include "ZvFolderLister.h"
#include "ZvFolderWatch.h"

#include <QDateTime>
#include <QLocale>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSet>
#include <QUrl>

namespace Zavo {

namespace {
QString uriListType()
{
    return QStringLiteral("text/uri-list");
}

// The name of the root is a path.
QString fileNameOf(const ZvFileSystemNode &node)
{
    return node.parent() ? node.name() : QFileInfo(node.name()).fileName();
}
} // namespace

ZvFileSystemModel::ZvFileSystemModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_lister(std::make_unique<ZvFolderLister>())
    , m_icons(std::make_unique<ZvFileIcons>())
    , m_watch(new ZvFolderWatch(this))
{
    connect(m_watch, SIGNAL(foldersChanged(QStringList)), this,
                            SLOT(onFoldersChanged(QStringList)));
}

ZvFileSystemModel::~ZvFileSystemModel() = default;

QStringList ZvFileSystemModel::nameFilters() const
{
    return m_lister->nameFilters();
}

QDir::Filters ZvFileSystemModel::filter() const
{
    return m_lister->filter();
}

QStringList ZvFileSystemModel::exclusionNamePattern() const
{
    return m_lister->exclusionPatterns();
}

void ZvFileSystemModel::setNameFilters(const QStringList &filters)
{
    m_lister->setNameFilters(filters);
    update();
}

void ZvFileSystemModel::setFilter(const QFlags<QDir::Filter> &filters)
{
    m_lister->setFilter(filters);
    update();
}

void ZvFileSystemModel::setExclusionNamePattern(const QStringList &patterns)
{
    m_lister->setExclusionPatterns(patterns);
    update();
}

QModelIndex ZvFileSystemModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const ZvFileSystemNode *folder = nodeAt(parent);
    return createIndex(row, column, folder ? folder->child(row) : m_root.get());
}

QModelIndex ZvFileSystemModel::parent(const QModelIndex &child) const
{
    const ZvFileSystemNode *node = nodeAt(child);
    return node ? indexOf(node->parent()) : QModelIndex();
}

QModelIndex ZvFileSystemModel::sibling(int row, int column, const QModelIndex &index) const
{
    const bool sameRow = nodeAt(index) && row == index.row();
    if (sameRow && column >= 0 && column < ColumnCount)
        return createIndex(row, column, index.internalPointer());
    return nodeAt(index) ? this->index(row, column, parent(index)) : QModelIndex();
}

int ZvFileSystemModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_root ? 1 : 0;
    const ZvFileSystemNode *node = nodeAt(parent);
    return node && parent.column() == NameColumn ? node->childCount() : 0;
}

int ZvFileSystemModel::columnCount(const QModelIndex &parent) const
{
    return parent.column() > NameColumn ? 0 : ColumnCount;
}

bool ZvFileSystemModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0 || canFetchMore(parent);
}

QVariant ZvFileSystemModel::data(const QModelIndex &index, int role) const
{
    const ZvFileSystemNode *node = nodeAt(index);
    if (!node)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return displayData(*node, index.column());
    case FileIconRole:
        return index.column() == NameColumn ? QVariant(icon(index)) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == SizeColumn ? QVariant(Qt::AlignTrailing | Qt::AlignVCenter)
                                            : QVariant();
    case FilePathRole:
        return node->path();
    case FileNameRole:
        return fileName(index);
    case FilePermissions:
        return static_cast<int>(node->info().permissions());
    default:
        return {};
    }
}

bool ZvFileSystemModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    ZvFileSystemNode *node = nodeAt(index);
    const bool isEdit = role == Qt::EditRole && index.column() == NameColumn;
    if (!node || !node->parent() || !isEdit || m_readOnly || m_changing)
        return false;
    const QString name = value.toString();
    if (name == node->name())
        return true;
    ZvFileSystemNode *folder = node->parent();
    if (!ZvFileOperations::rename(node->path(), name))
        return false;
    const int generation = m_generation;
    renameNode(node, name);
    if (generation == m_generation)
        refresh(folder, false);
    return true;
}

QVariant ZvFileSystemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractItemModel::headerData(section, orientation, role);
    switch (section) {
    case NameColumn:
        return tr("Name");
    case SizeColumn:
        return tr("Size");
    case TypeColumn:
        return tr("Type");
    case DateColumn:
        return tr("Date Modified");
    default:
        return {};
    }
}

QStringList ZvFileSystemModel::mimeTypes() const
{
    return {uriListType()};
}

QMimeData *ZvFileSystemModel::mimeData(const QModelIndexList &indexes) const
{
    QList<QUrl> urls;
    QSet<const ZvFileSystemNode *> seen;
    for (const QModelIndex &index : indexes) {
        const ZvFileSystemNode *node = nodeAt(index);
        if (!node || seen.contains(node))
            continue;
        seen.insert(node);
        urls.append(QUrl::fromLocalFile(node->path()));
    }
    if (urls.isEmpty())
        return nullptr;
    auto *data = new QMimeData;
    data->setUrls(urls);
    return data;
}

bool ZvFileSystemModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                     int column, const QModelIndex &parent)
{
    Q_UNUSED(row)
    Q_UNUSED(column)
    ZvFileSystemNode *folder = parent.isValid() ? nodeAt(parent) : m_root.get();
    if (!data || !data->hasUrls() || !folder || !folder->isDir() || m_readOnly || m_changing)
        return false;
    if (action == Qt::IgnoreAction)
        return true;
    bool complete = true;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls)
        complete &= ZvFileOperations::transfer(url.toLocalFile(), folder->path(), action);
    if (folder->isListed())
        refresh(folder, false);
    return complete;
}

Qt::DropActions ZvFileSystemModel::supportedDropActions() const
{
    return Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
}

bool ZvFileSystemModel::removeRows(int row, int count, const QModelIndex &parent)
{
    ZvFileSystemNode *folder = nodeAt(parent);
    if (!folder || m_readOnly || m_changing || row < 0 || count <= 0 ||
        row > folder->childCount() - count)
        return false;
    const QScopedValueRollback<bool> changing(m_changing, true);
    const int generation = m_generation;
    bool complete = true;
    for (int last = row + count - 1; last >= row && generation == m_generation; --last) {
        const QString path = folder->child(last)->path();
        if (!ZvFileOperations::remove(path)) {
            complete = false;
            continue;
        }
        m_watch->letGo(path);
        beginRemoveRows(parent, last, last);
        folder->removeChildren(last, 1);
        endRemoveRows();
    }
    return complete;
}

void ZvFileSystemModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent))
        return;
    ZvFileSystemNode *folder = nodeAt(parent);
    folder->setListed(true);
    m_watch->follow(folder->path());
    insertNew(folder, m_lister->list(folder->path()));
}

bool ZvFileSystemModel::canFetchMore(const QModelIndex &parent) const
{
    const ZvFileSystemNode *node = nodeAt(parent);
    return node && parent.column() == NameColumn && node->isDir() && !node->isListed();
}

Qt::ItemFlags ZvFileSystemModel::flags(const QModelIndex &index) const
{
    const ZvFileSystemNode *node = nodeAt(index);
    if (!node)
        return QAbstractItemModel::flags(index);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    flags.setFlag(Qt::ItemIsDragEnabled, node->parent());
    flags.setFlag(Qt::ItemNeverHasChildren, !node->isDir());
    if (m_readOnly)
        return flags;
    flags.setFlag(Qt::ItemIsEditable, node->parent() && index.column() == NameColumn);
    flags.setFlag(Qt::ItemIsDropEnabled, node->isDir());
    return flags;
}

QModelIndex ZvFileSystemModel::setRootPath(const QString &path)
{
    const QString root =
        path.isEmpty() ? QString() : QDir::cleanPath(QDir::current().absoluteFilePath(path));
    if (root == rootPath())
        return rootIndex();
    ++m_generation;
    beginResetModel();
    m_watch->setRoot(root);
    m_root.reset();
    if (!root.isEmpty()) {
        m_root = std::make_unique<ZvFileSystemNode>(root, true);
        m_root->setListed(true);
        auto runs = ZvFolderComparison::insertions(*m_root, m_lister->list(root));
        for (ZvFolderComparison::Insertion &run : runs)
            m_root->insertChildren(run.row, std::move(run.children));
    }
    endResetModel();
    return rootIndex();
}

QString ZvFileSystemModel::rootPath() const
{
    return m_root ? m_root->name() : QString();
}

QModelIndex ZvFileSystemModel::rootIndex() const
{
    return indexOf(m_root.get());
}

QFileInfo ZvFileSystemModel::fileInfo(const QModelIndex &index) const
{
    const QString path = filePath(index);
    return path.isEmpty() ? QFileInfo() : QFileInfo(path);
}

QString ZvFileSystemModel::filePath(const QModelIndex &index) const
{
    const ZvFileSystemNode *node = nodeAt(index);
    return node ? node->path() : QString();
}

QString ZvFileSystemModel::fileName(const QModelIndex &index) const
{
    const ZvFileSystemNode *node = nodeAt(index);
    return node ? fileNameOf(*node) : QString();
}

bool ZvFileSystemModel::isDir(const QModelIndex &index) const
{
    const ZvFileSystemNode *node = nodeAt(index);
    return node && node->isDir();
}

QIcon ZvFileSystemModel::icon(const QModelIndex &index) const
{
    const ZvFileSystemNode *node = nodeAt(index);
    return node ? m_icons->icon(node->path(), node->isDir()) : QIcon();
}

void ZvFileSystemModel::update()
{
    if (m_root)
        refresh(m_root.get(), true);
}

void ZvFileSystemModel::onFoldersChanged(const QStringList &folders)
{
    if (m_updatePending) {
        update();
        return;
    }
    for (const QString &folder : folders) {
        ZvFileSystemNode *node = nodeAtPath(folder);
        if (node && node->isListed())
            refresh(node, false);
    }
}

ZvFileSystemNode *ZvFileSystemModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() && index.model() == this
               ? static_cast<ZvFileSystemNode *>(index.internalPointer())
               : nullptr;
}

ZvFileSystemNode *ZvFileSystemModel::nodeAtPath(const QString &path) const
{
    return m_root ? m_root->descendant(path) : nullptr;
}

QModelIndex ZvFileSystemModel::indexOf(const ZvFileSystemNode *node) const
{
    return node ? createIndex(node->row(), NameColumn, const_cast<ZvFileSystemNode *>(node))
                : QModelIndex();
}

QVariant ZvFileSystemModel::displayData(const ZvFileSystemNode &node, int column) const
{
    switch (column) {
    case NameColumn:
        return fileNameOf(node);
    case SizeColumn:
        return node.isDir() ? QString() : QLocale().formattedDataSize(node.info().size());
    case TypeColumn:
        return m_icons->type(node.path(), node.isDir());
    case DateColumn:
        return QLocale().toString(node.info().lastModified(), QLocale::ShortFormat);
    default:
        return {};
    }
}

void ZvFileSystemModel::emitChanged(const ZvFileSystemNode *node)
{
    const QModelIndex first = indexOf(node);
    Q_EMIT dataChanged(first, first.sibling(first.row(), ColumnCount - 1));
}

void ZvFileSystemModel::refresh(ZvFileSystemNode *folder, bool deep)
{
    if (m_changing) {
        // Asked for by somebody who is just told of a change: after that.
        m_updatePending = m_updatePending || deep;
        m_watch->suspect(folder->path());
        return;
    }
    if (deep)
        m_updatePending = false;
    const QScopedValueRollback<bool> changing(m_changing, true);
    refreshListed(folder, deep);
}

bool ZvFileSystemModel::refreshListed(ZvFileSystemNode *folder, bool deep)
{
    const QString path = folder->path();
    m_watch->follow(path);
    const QHash<QString, bool> entries = m_lister->list(path);
    return removeMissing(folder, entries) && insertNew(folder, entries) &&
           refreshChildren(folder, deep);
}

bool ZvFileSystemModel::removeMissing(ZvFileSystemNode *folder, const QHash<QString, bool> &entries)
{
    const int generation = m_generation;
    const QModelIndex parent = indexOf(folder);
    for (const auto &run : ZvFolderComparison::removals(*folder, entries)) {
        for (int row = run.row; row < run.row + run.count; ++row) {
            if (folder->child(row)->isListed())
                m_watch->letGo(folder->child(row)->path());
        }
        beginRemoveRows(parent, run.row, run.row + run.count - 1);
        folder->removeChildren(run.row, run.count);
        endRemoveRows();
        if (generation != m_generation)
            return false;
    }
    return true;
}

bool ZvFileSystemModel::insertNew(ZvFileSystemNode *folder, const QHash<QString, bool> &entries)
{
    const int generation = m_generation;
    const QModelIndex parent = indexOf(folder);
    for (auto &run : ZvFolderComparison::insertions(*folder, entries)) {
        const int count = static_cast<int>(run.children.size());
        beginInsertRows(parent, run.row, run.row + count - 1);
        folder->insertChildren(run.row, std::move(run.children));
        endInsertRows();
        if (generation != m_generation)
            return false;
    }
    return true;
}

bool ZvFileSystemModel::refreshChildren(ZvFileSystemNode *folder, bool deep)
{
    const int generation = m_generation;
    for (int row = 0; row < folder->childCount(); ++row) {
        ZvFileSystemNode *child = folder->child(row);
        if (child->refreshInfo())
            emitChanged(child);
        if (generation != m_generation)
            return false;
        const bool needed = child->isListed() && (deep || m_watch->isStale(child->path()));
        if (needed && !refreshListed(child, deep))
            return false;
    }
    return true;
}

void ZvFileSystemModel::renameNode(ZvFileSystemNode *node, const QString &name)
{
    const QScopedValueRollback<bool> changing(m_changing, true);
    const int generation = m_generation;
    ZvFileSystemNode *folder = node->parent();
    const QModelIndex parent = indexOf(folder);
    const int from = node->row();
    const int before = folder->rowFor(name, node->isDir());
    const bool moves = beginMoveRows(parent, from, from, parent, before);
    m_watch->letGo(node->path());
    node->rename(name);
    followAll(node);
    if (moves) {
        folder->moveChild(from, before > from ? before - 1 : before);
        endMoveRows();
    }
    if (generation == m_generation)
        emitChanged(node);
}

void ZvFileSystemModel::followAll(const ZvFileSystemNode *folder)
{
    if (!folder->isListed())
        return;
    m_watch->follow(folder->path());
    for (int row = 0; row < folder->childCount(); ++row)
        followAll(folder->child(row));
}

} // namespace Zavo
