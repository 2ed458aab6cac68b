#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QString>

class KArchiveDirectory;

namespace Zavo {

/// Where the pictures of a stage lie. Gives bytes and does not know what is in them.
class StagePictures
{
public:
    StagePictures() = default;
    Q_DISABLE_COPY(StagePictures)
    virtual ~StagePictures();

    /// Bytes of the picture, or none if it is not there, longer than the limit or not inside.
    virtual QByteArray read(const QString &source, int maximumBytes) const = 0;
};

/// Pictures in the folder of a stage file, and in the folders below it.
class FolderPictures final : public StagePictures
{
public:
    explicit FolderPictures(const QString &folder);

    QByteArray read(const QString &source, int maximumBytes) const override;

private:
    QString m_folder; // canonical, with a separator at its end
};

/// Pictures in a package.
class PackagePictures final : public StagePictures
{
public:
    /// The folder must outlive the pictures.
    explicit PackagePictures(const KArchiveDirectory &folder);

    QByteArray read(const QString &source, int maximumBytes) const override;

private:
    const KArchiveDirectory &m_folder;
};

/// Decodes the pictures of one stage, each once, and takes no more memory than one picture of the
/// largest size needs.
class PictureLoader
{
public:
    /// The pictures must outlive the loader.
    explicit PictureLoader(const StagePictures &pictures);

    /// Null for a picture that cannot be had.
    QImage load(const QString &source);

private:
    QImage decode(const QByteArray &bytes);

    const StagePictures &m_pictures;
    QHash<QString, QImage> m_loaded;
    int m_bytesLeft;
    int m_pixelsLeft;
};

} // namespace Zavo
