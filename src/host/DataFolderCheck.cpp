#include "DataFolderCheck.h"

#include "Path.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Zavo {

namespace {

/// What is known of a name without opening it.
enum class Kind { Missing, Folder, DanglingLink, Other, Unknown };

/// @p error receives the errno of Kind::Unknown.
Kind kindOf(const QByteArray &path, int *error)
{
    struct stat status = {};
    if (stat(path.constData(), &status) == 0)
        return S_ISDIR(status.st_mode) ? Kind::Folder : Kind::Other;
    *error = errno;
    if (*error != ENOENT)
        return Kind::Unknown;
    return lstat(path.constData(), &status) == 0 ? Kind::DanglingLink : Kind::Missing;
}

} // namespace

DataFolderCheck::DataFolderCheck(ListFolder listFolder)
    : m_listFolder(listFolder)
{
}

QString DataFolderCheck::problem(const QString &dataDir) const
{
    bool missing = false;
    const QString problem = problemOfFolder(dataDir, &missing);
    if (!problem.isEmpty() || missing)
        return problem;
    return problemOfFolder(Path::combine(dataDir, QStringLiteral("channel")), &missing);
}

int DataFolderCheck::listWholeFolder(const QByteArray &folder)
{
    DIR *const stream = opendir(folder.constData());
    if (!stream)
        return errno;
    // Only errno tells the end of the folder from a failure.
    do
        errno = 0;
    while (readdir(stream));
    const int error = errno;
    closedir(stream);
    if (error == 0 && access(folder.constData(), X_OK) != 0)
        return errno;
    return error;
}

QString DataFolderCheck::problemOfFolder(const QString &folder, bool *missing) const
{
    const QByteArray path = QFile::encodeName(folder);
    const QString name = QDir::toNativeSeparators(folder);
    int error = 0;
    switch (kindOf(path, &error)) {
    case Kind::Missing:
        *missing = true;
        return {};
    case Kind::DanglingLink:
        return tr("\"%1\" is a link that leads nowhere.").arg(name);
    case Kind::Other:
        return tr("\"%1\" is not a folder.").arg(name);
    case Kind::Unknown:
        return tr("The folder \"%1\" cannot be reached: %2.").arg(name, qt_error_string(error));
    case Kind::Folder:
        break;
    }
    error = m_listFolder(path);
    if (error == 0)
        return {};
    return tr("The folder \"%1\" cannot be listed: %2.").arg(name, qt_error_string(error));
}

} // namespace Zavo
