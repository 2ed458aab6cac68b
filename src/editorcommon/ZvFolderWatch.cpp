#include "ZvFolderWatch.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace Zavo {

namespace {
constexpr int c_reportDelayMs = 100;

QString folderAbove(const QString &folder)
{
    return QFileInfo(folder).path();
}
} // namespace

ZvFolderWatch::ZvFolderWatch(QObject *parent)
    : QObject(parent)
{
    m_reportTimer.setSingleShot(true);
    m_reportTimer.setInterval(c_reportDelayMs);
    connect(&m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(onDirectoryChanged(QString)));
    connect(&m_reportTimer, SIGNAL(timeout()), this, SLOT(report()));
}

bool ZvFolderWatch::isStale(const QString &folder) const
{
    return !(m_followed.value(folder) == markOf(folder));
}

void ZvFolderWatch::setRoot(const QString &root)
{
    const QStringList watched = m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_reportTimer.stop();
    m_changed.clear();
    m_followed.clear();
    m_aboveRoot.clear();
    m_root = root;
    if (root.isEmpty())
        return;
    for (QString folder = root; folder != folderAbove(folder);) {
        folder = folderAbove(folder);
        watch(m_aboveRoot, folder);
    }
    follow(root);
}

void ZvFolderWatch::follow(const QString &folder)
{
    watch(m_followed, folder);
}

void ZvFolderWatch::suspect(const QString &folder)
{
    m_changed.insert(folder);
    // Not started again while it runs: a folder that never rests is still reported.
    if (!m_reportTimer.isActive())
        m_reportTimer.start();
}

void ZvFolderWatch::letGo(const QString &folder)
{
    const QString below = folder + QLatin1Char('/');
    const QStringList all = m_followed.keys();
    for (const QString &followed : all) {
        if (followed != folder && !followed.startsWith(below))
            continue;
        unwatch(followed);
        m_followed.remove(followed);
        m_changed.remove(followed);
    }
}

void ZvFolderWatch::onDirectoryChanged(const QString &folder)
{
    suspect(folder);
}

void ZvFolderWatch::report()
{
    QSet<QString> changed = std::exchange(m_changed, {});
    const QStringList above = m_aboveRoot.keys();
    for (const QString &folder : above)
        watch(m_aboveRoot, folder);
    if (isStale(m_root))
        changed.insert(m_root);
    QStringList folders;
    for (const QString &folder : std::as_const(changed)) {
        if (!m_followed.contains(folder))
            continue;
        follow(folder);
        folders.append(folder);
    }
    if (!folders.isEmpty())
        Q_EMIT foldersChanged(folders);
}

ZvFolderWatch::Mark ZvFolderWatch::markOf(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isReadable())
        return {};
    Mark mark;
    mark.isReadable = true;
#ifdef Q_OS_UNIX
    struct stat status = {};
    if (::stat(QFile::encodeName(folder).constData(), &status) == 0) {
        mark.device = status.st_dev;
        mark.number = status.st_ino;
    }
#endif
    mark.born = info.fileTime(QFileDevice::FileBirthTime);
    mark.changed = info.fileTime(QFileDevice::FileMetadataChangeTime);
    return mark;
}

void ZvFolderWatch::watch(Marks &marks, const QString &folder)
{
    const auto known = marks.constFind(folder);
    const Mark mark = markOf(folder);
    // The system's watch stays with a folder that was moved away, so it is set anew.
    if (known != marks.constEnd() && !(*known == mark))
        unwatch(folder);
    marks.insert(folder, mark);
    if (mark.isReadable && !m_watcher.directories().contains(folder))
        m_watcher.addPath(folder);
}

void ZvFolderWatch::unwatch(const QString &folder)
{
    if (m_watcher.directories().contains(folder))
        m_watcher.removePath(folder);
}

} // namespace Zavo
