#include "ZvFileOperations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Zavo {

namespace {
constexpr int c_longestNameBytes = 255;

bool isFileName(const QString &name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/')) && !name.contains(QChar::Null) &&
           QFile::encodeName(name).size() <= c_longestNameBytes;
}
} // namespace

bool ZvFileOperations::rename(const QString &path, const QString &name)
{
    return isFileName(name) && QFile::rename(path, QFileInfo(path).dir().filePath(name));
}

bool ZvFileOperations::remove(const QString &path)
{
    const QFileInfo info(path);
    return info.isDir() && !info.isSymLink() ? QDir().rmdir(path) : QFile::remove(path);
}

bool ZvFileOperations::transfer(const QString &source, const QString &folder, Qt::DropAction action)
{
    const QFileInfo info(QDir::cleanPath(source));
    if (!isFileName(info.fileName()))
        return false;
    const QString target = QDir(folder).filePath(info.fileName());
    switch (action) {
    case Qt::CopyAction:
        // Reading a pipe would wait for its writer.
        return info.isFile() && QFile::copy(info.filePath(), target);
    case Qt::MoveAction:
        return QFile::rename(info.filePath(), target);
    case Qt::LinkAction:
        return QFile::link(info.filePath(), target);
    default:
        return false;
    }
}

} // namespace Zavo
