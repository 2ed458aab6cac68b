#include "storage/StageFile.h"

#include "storage/BoundedFile.h"
#include "storage/StageParser.h"
#include "storage/StagePictures.h"

#include <KArchive>
#include <KArchiveDirectory>
#include <KZip>

#include <QBuffer>
#include <QFileInfo>

namespace Zavo::StageFile {

namespace {
constexpr int MaximumPackageEntries = 4096;
constexpr char EntrySignature[] = "PK\x01\x02";

bool parse(const QByteArray &bytes, const StagePictures &pictures, StageRecord *record)
{
    StageParser parser({bytes.constData(), static_cast<size_t>(bytes.size())}, pictures);
    StageRecord read;
    if (!parser.run(&read))
        return false;
    *record = read;
    return true;
}

/// The bytes of a package as the archive library wants them. It goes in circles over some that are
/// damaged: a place behind the end is the end here, and after more steps than any sound package
/// needs nothing is read any more. It lives on the stack, so without a parent.
class PackageDevice final : public QBuffer // clazy:exclude=ctor-missing-parent-argument
{
public:
    explicit PackageDevice(QByteArray *bytes)
        : QBuffer(bytes)
        , m_stepsLeft(StepsPerByte * qint64(bytes->size()) + StepsOfAnyPackage)
    {
    }

    bool seek(qint64 position) override
    {
        return --m_stepsLeft > 0 && QBuffer::seek(qBound<qint64>(0, position, size()));
    }

protected:
    qint64 readData(char *data, qint64 length) override
    {
        return --m_stepsLeft > 0 ? QBuffer::readData(data, length) : -1;
    }

private:
    static constexpr qint64 StepsPerByte = 4;
    static constexpr qint64 StepsOfAnyPackage = 100000;

    qint64 m_stepsLeft;
};

bool readPackage(QByteArray &bytes, StageRecord *record)
{
    // Counted before they are listed, since each takes memory of its own.
    if (bytes.count(EntrySignature) > MaximumPackageEntries)
        return false;
    PackageDevice buffer(&bytes);
    KZip package(&buffer);
    if (!buffer.open(QIODevice::ReadOnly) || !package.open(QIODevice::ReadOnly))
        return false;
    const PackagePictures entries(*package.directory());
    const QByteArray scene = entries.read(QStringLiteral("stage.xml"), StageParser::MaximumBytes);
    return parse(scene, entries, record);
}

/// Gives no picture, but remembers which ones were asked for.
class AskedPictures final : public StagePictures
{
public:
    QByteArray read(const QString &source, int) const override
    {
        m_sources.append(source);
        return {};
    }

    const QStringList &sources() const { return m_sources; }

private:
    mutable QStringList m_sources;
};

bool isPackage(const QString &filePath)
{
    return QFileInfo(filePath).suffix().compare(QLatin1String("zstg"), Qt::CaseInsensitive) == 0;
}
} // namespace

bool read(const QString &filePath, StageRecord *record)
{
    QByteArray bytes;
    if (!BoundedFile::read(filePath, StageParser::MaximumBytes, &bytes))
        return false;
    if (isPackage(filePath))
        return readPackage(bytes, record);
    return parse(bytes, FolderPictures(QFileInfo(filePath).absolutePath()), record);
}

bool pictureSources(const QString &filePath, QStringList *sources)
{
    StageRecord record;
    if (isPackage(filePath)) {
        if (!read(filePath, &record))
            return false;
        sources->clear();
        return true;
    }
    QByteArray bytes;
    const AskedPictures pictures;
    if (!BoundedFile::read(filePath, StageParser::MaximumBytes, &bytes) ||
        !parse(bytes, pictures, &record))
        return false;
    *sources = pictures.sources();
    return true;
}

} // namespace Zavo::StageFile
