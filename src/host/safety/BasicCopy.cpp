#include "safety/BasicCopy.h"

#include "Path.h"
#include "ZvChannel.h"
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
    , m_path(Path::combine(m_folder, fileName()))
{
}

QString BasicCopy::fileName()
{
    return QStringLiteral("channel.xml");
}

bool BasicCopy::exists() const
{
    const QFileInfo info(m_path);
    return info.exists() || info.isSymLink();
}

QString BasicCopy::originalPath() const
{
    constexpr int idOfBasicChannel = 0;
    const QFileInfoList files = channelFiles();
    const auto original = std::find_if(files.cbegin(), files.cend(), [](const QFileInfo &file) {
        ZvChannel channel(file.filePath());
        return channel.readFile() && channel.id() == idOfBasicChannel;
    });
    return original == files.cend() ? QString() : original->filePath();
}

bool BasicCopy::isOutdated() const
{
    struct stat status = {};
    if (::stat(QFile::encodeName(m_path).constData(), &status) != 0)
        return errno != ENOENT && errno != ENOTDIR;
    const QFileInfoList others = channelFiles();
    return std::none_of(others.cbegin(), others.cend(), [&](const QFileInfo &other) {
        return other.size() == status.st_size && isCopyOf(other.filePath());
    });
}

// The first is most likely the one that is looked for.
QFileInfoList BasicCopy::channelFiles() const
{
    return QDir(m_folder).entryInfoList({QStringLiteral("channel?*.xml")}, QDir::Files, QDir::Name);
}

bool BasicCopy::isCopyOf(const QString &filePath) const
{
    QByteArray own;
    QByteArray bytes;
    return BoundedFile::read(m_path, ChannelFile::MaximumBytes, &own) &&
           BoundedFile::read(filePath, ChannelFile::MaximumBytes, &bytes) && own == bytes;
}

} // namespace Zavo
