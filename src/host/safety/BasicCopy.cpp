#include "safety/BasicCopy.h"

#include "Path.h"
#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>

namespace Zavo {

BasicCopy::BasicCopy(const QString &dataDir)
    : m_folder(Path::combine(dataDir, QStringLiteral("channel")))
    , m_path(Path::combine(m_folder, QStringLiteral("channel.xml")))
{
}

bool BasicCopy::isOutdated() const
{
    struct stat status = {};
    if (::stat(QFile::encodeName(m_path).constData(), &status) != 0)
        return errno != ENOENT && errno != ENOTDIR;
    // Most likely the first, so the names come in their order.
    const QFileInfoList others =
        QDir(m_folder).entryInfoList({QStringLiteral("channel?*.xml")}, QDir::Files, QDir::Name);
    return std::none_of(others.cbegin(), others.cend(), [&](const QFileInfo &other) {
        return other.size() == status.st_size && isCopyOf(other.filePath());
    });
}

bool BasicCopy::isCopyOf(const QString &filePath) const
{
    QByteArray own;
    QByteArray bytes;
    return BoundedFile::read(m_path, ChannelFile::MaximumBytes, &own) &&
           BoundedFile::read(filePath, ChannelFile::MaximumBytes, &bytes) && own == bytes;
}

} // namespace Zavo
