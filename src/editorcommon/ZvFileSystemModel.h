#pragma once

#include "ZvEditorCommonExport.h"

#include <QAbstractItemModel>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QIcon>
#include <QStringList>

#include <memory>

namespace Zavo {

class ZvFileIcons;
class ZvFileSystemNode;
class ZvFolderLister;
class ZvFolderWatch;

/// The entries of one folder as an item model, folders first and by name, with the sub-folders
/// below them as far as the filters show any; a sub-folder is listed when it is first asked for.
/// The folder itself is the single row at the top, whose index setRootPath() returns.
///
/// Follows its folder: a file that comes or goes is a row that comes or goes, so that selection
/// and scroll position of a view stay. The folder may vanish and come back. Works on the thread
/// it lives on and lists at once, without waiting for the event loop.
class ZVEDITORCOMMON_EXPORT ZvFileSystemModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// What a column tells of an entry.
    enum Columns { NameColumn, SizeColumn, TypeColumn, DateColumn, ColumnCount };
    /// What can be asked of an entry, in any column but for the icon, which the first has.
    enum Roles {
        FileIconRole = Qt::DecorationRole,
        FilePathRole = Qt::UserRole + 1,
        FileNameRole = Qt::UserRole + 2,
        FilePermissions = Qt::UserRole + 3
    };

    /// Shows nothing before setRootPath().
    explicit ZvFileSystemModel(QObject *parent = nullptr);
    ~ZvFileSystemModel() override;

    /// @{
    /// What was set, unchanged.
    QStringList nameFilters() const;
    QDir::Filters filter() const;
    QStringList exclusionNamePattern() const;
    /// @}

    /// Whether renaming, dropping and removing are refused, which they are at first.
    bool isReadOnly() const { return m_readOnly; }

    /// Shows the files whose names match one of these wildcards, all if there are none.
    void setNameFilters(const QStringList &filters);
    /// Shows these kinds of entries. The folder's own "." and ".." are never shown.
    void setFilter(const QFlags<QDir::Filter> &filters);
    /// Hides the files of whose names one of these regular expressions matches the whole. An
    /// invalid one hides nothing and prints a warning.
    void setExclusionNamePattern(const QStringList &patterns);
    /// Refuses to rename, to drop and to remove, or does not any more.
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }

    /// @{
    /// As QAbstractItemModel describes it. An entry has children if it is a folder; it is listed by
    /// the first look at its rows.
    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    QModelIndex sibling(int row, int column, const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// @}
    /// Renames the file unless the model is read-only. False if the name is none, is taken or
    /// the disk refuses.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// The titles of the columns.
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// That of mimeData().
    QStringList mimeTypes() const override;
    /// The files' URLs as "text/uri-list", each file once. The caller owns the result, which is
    /// null if no index names a file.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// Copies, moves or links the local files of @p data into the folder @p parent, unless the
    /// model is read-only. Overwrites nothing. False if one of them stayed behind.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;
    /// Copying, moving and linking.
    Qt::DropActions supportedDropActions() const override;
    /// Deletes the files, and folders that are empty, from the disk, unless the model is
    /// read-only. Irrevocable. False if one of them stayed.
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    /// @{
    /// Lists a folder that was not listed yet, and follows it from then on.
    void fetchMore(const QModelIndex &parent) override;
    bool canFetchMore(const QModelIndex &parent) const override;
    /// @}
    /// Entries can be dragged; renaming and dropping takes a model that is not read-only.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Shows the folder @p path, which need not exist, and lists it. Returns its index, which is
    /// valid for as long as this folder is the root; an empty path gives an invalid one.
    virtual QModelIndex setRootPath(const QString &path);
    /// Absolute and clean, with "/" between the names; empty at first.
    virtual QString rootPath() const;
    /// What setRootPath() returned last.
    virtual QModelIndex rootIndex() const;
    /// A default-constructed one for an index that is not of this model.
    virtual QFileInfo fileInfo(const QModelIndex &index) const;
    /// Absolute path, empty for an index that is not of this model.
    virtual QString filePath(const QModelIndex &index) const;
    /// Without the path; of an index that is not of this model empty.
    virtual QString fileName(const QModelIndex &index) const;
    /// False for an index that is not of this model.
    virtual bool isDir(const QModelIndex &index) const;
    /// One for the kind of the entry, null for an index that is not of this model.
    virtual QIcon icon(const QModelIndex &index) const;
    /// Lists everything afresh, without waiting for the report of a change.
    virtual void update();

private Q_SLOTS:
    void onFoldersChanged(const QStringList &folders);

private:
    ZvFileSystemNode *nodeAt(const QModelIndex &index) const;
    ZvFileSystemNode *nodeAtPath(const QString &path) const;
    QModelIndex indexOf(const ZvFileSystemNode *node) const;
    QVariant displayData(const ZvFileSystemNode &node, int column) const;
    void emitChanged(const ZvFileSystemNode *node);
    void refresh(ZvFileSystemNode *folder, bool deep);
    bool refreshListed(ZvFileSystemNode *folder, bool deep);
    bool removeMissing(ZvFileSystemNode *folder, const QHash<QString, bool> &entries);
    bool insertNew(ZvFileSystemNode *folder, const QHash<QString, bool> &entries);
    bool refreshChildren(ZvFileSystemNode *folder, bool deep);
    void renameNode(ZvFileSystemNode *node, const QString &name);
    void followAll(const ZvFileSystemNode *folder);

    std::unique_ptr<ZvFileSystemNode> m_root;
    std::unique_ptr<ZvFolderLister> m_lister;
    std::unique_ptr<ZvFileIcons> m_icons;
    ZvFolderWatch *m_watch = nullptr;
    int m_generation = 0;
    bool m_changing = false;
    bool m_updatePending = false;
    bool m_readOnly = true;
};

} // namespace Zavo
