#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

namespace Zavo {

/// Follows a root folder and folders below it, and reports in bundles which of them may have
/// changed. The root need not exist: all folders above it are watched for its sake, which also
/// tells when another folder is put in its place.
class ZvFolderWatch final : public QObject
{
    Q_OBJECT

public:
    explicit ZvFolderWatch(QObject *parent = nullptr);

    /// True if @p folder, which is followed, was replaced or changed since it was last seen.
    bool isStale(const QString &folder) const;

    /// Lets go of everything, and follows @p root, an absolute path, unless it is empty.
    void setRoot(const QString &root);

    /// Follows @p folder, or looks at it afresh if it is already followed.
    void follow(const QString &folder);

    /// Reports @p folder with the next bundle.
    void suspect(const QString &folder);

    /// Lets go of @p folder and all folders below it.
    void letGo(const QString &folder);

Q_SIGNALS:
    /// @p folders, all of them followed, may have other entries than before. Comes at most every
    /// 100 ms, and at the latest 100 ms after a change.
    void foldersChanged(const QStringList &folders);

private Q_SLOTS:
    void onDirectoryChanged(const QString &folder);
    void report();

private:
    /// What tells a folder from another one that took its place. Times alone do not: the clock of a
    /// file system stands still for milliseconds, in which both may have been made.
    struct Mark
    {
        bool isReadable = false;
        quint64 device = 0;
        quint64 number = 0;
        QDateTime born;
        QDateTime changed;

        bool operator==(const Mark &other) const
        {
            return isReadable == other.isReadable && device == other.device &&
                   number == other.number && born == other.born && changed == other.changed;
        }
    };

    using Marks = QHash<QString, Mark>;

    static Mark markOf(const QString &folder);
    void watch(Marks &marks, const QString &folder);
    void unwatch(const QString &folder);

    QFileSystemWatcher m_watcher;
    QTimer m_reportTimer;
    QString m_root;
    Marks m_aboveRoot;
    Marks m_followed;
    QSet<QString> m_changed;
};

} // namespace Zavo
