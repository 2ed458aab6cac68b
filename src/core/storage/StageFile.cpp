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

bool readPackage(QByteArray &bytes, StageRecord *record)
{
    // Counted before they are listed, since each takes memory of its own.
    if (bytes.count(EntrySignature) > MaximumPackageEntries)
        return false;
    QBuffer buffer(&bytes);
    KZip package(&buffer);
    if (!buffer.open(QIODevice::ReadOnly) || !package.open(QIODevice::ReadOnly))
        return false;
    const PackagePictures entries(*package.directory());
    const QByteArray scene = entries.read(QStringLiteral("stage.xml"), StageParser::MaximumBytes);
    return parse(scene, entries, record);
}
} // namespace

bool read(const QString &filePath, StageRecord *record)
{
    QByteArray bytes;
    if (!BoundedFile::read(filePath, StageParser::MaximumBytes, &bytes))
        return false;
    const QFileInfo info(filePath);
    if (info.suffix().compare(QLatin1String("zstg"), Qt::CaseInsensitive) == 0)
        return readPackage(bytes, record);
    return parse(bytes, FolderPictures(info.absolutePath()), record);
}

} // namespace Zavo::StageFile
