#include "storage/StagePictures.h"

#include "ZvStage.h"
#include "storage/BoundedFile.h"

#include <KArchive>
#include <KArchiveDirectory>
#include <KArchiveFile>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>

#include <memory>

namespace Zavo {

namespace {
constexpr int MaximumPictureBytes = 64 * 1024 * 1024;
constexpr int MaximumBytesOfAll = 256 * 1024 * 1024;
constexpr int MaximumPixelsOfAll = ZvStage::MaximumLength * ZvStage::MaximumLength;

/// The path without detours; empty if it is none from a folder to something inside it.
QString pathInside(const QString &source)
{
    const QString path = QDir::cleanPath(source);
    const bool leaves = path == QLatin1String("..") || path.startsWith(QLatin1String("../"));
    if (source.isEmpty() || source.contains(QChar::Null) || QDir::isAbsolutePath(path) || leaves)
        return {};
    return path;
}
} // namespace

StagePictures::~StagePictures() = default;

FolderPictures::FolderPictures(const QString &folder)
    : m_folder(QFileInfo(folder).canonicalFilePath())
{
    const QLatin1Char separator('/');
    if (!m_folder.endsWith(separator))
        m_folder += separator;
}

QByteArray FolderPictures::read(const QString &source, int maximumBytes) const
{
    const QString path = pathInside(source);
    if (path.isEmpty())
        return {};
    // Links may lead about inside the folder, but not out of it.
    const QString file = QFileInfo(m_folder + path).canonicalFilePath();
    QByteArray bytes;
    if (file.startsWith(m_folder))
        BoundedFile::read(file, maximumBytes, &bytes);
    return bytes;
}

PackagePictures::PackagePictures(const KArchiveDirectory &folder)
    : m_folder(folder)
{
}

QByteArray PackagePictures::read(const QString &source, int maximumBytes) const
{
    const QString path = pathInside(source);
    if (path.isEmpty())
        return {};
    const KArchiveEntry *entry = m_folder.entry(path);
    if (!entry || !entry->isFile() || !entry->symLinkTarget().isEmpty())
        return {};
    const auto *file = static_cast<const KArchiveFile *>(entry);
    if (file->size() < 0 || file->size() > maximumBytes)
        return {};
    const std::unique_ptr<QIODevice> device(file->createDevice());
    // The size in the list may be a lie: one byte more tells.
    const QByteArray bytes = device ? device->read(qint64(maximumBytes) + 1) : QByteArray();
    return bytes.size() <= maximumBytes ? bytes : QByteArray();
}

PictureLoader::PictureLoader(const StagePictures &pictures)
    : m_pictures(pictures)
    , m_bytesLeft(MaximumBytesOfAll)
    , m_pixelsLeft(MaximumPixelsOfAll)
{
}

QImage PictureLoader::load(const QString &source)
{
    const auto known = m_loaded.constFind(source);
    if (known != m_loaded.constEnd())
        return *known;
    const QByteArray bytes = m_pictures.read(source, qMin(MaximumPictureBytes, m_bytesLeft));
    m_bytesLeft -= bytes.size();
    const QImage picture = decode(bytes);
    m_loaded.insert(source, picture);
    return picture;
}

QImage PictureLoader::decode(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    if (format != "png" && format != "jpeg")
        return {};
    const QSize size = reader.size();
    const QSize largest(ZvStage::MaximumLength, ZvStage::MaximumLength);
    if (size.isEmpty() || size.boundedTo(largest) != size)
        return {};
    const int pixels = size.width() * size.height();
    if (pixels > m_pixelsLeft)
        return {};
    m_pixelsLeft -= pixels;
    return reader.read();
}

} // namespace Zavo
