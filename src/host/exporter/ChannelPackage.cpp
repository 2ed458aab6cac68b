#include "exporter/ChannelPackage.h"

#include "Path.h"
#include "ZvChannel.h"
#include "storage/BoundedFile.h"
#include "storage/StageFile.h"

#include <KZip>

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Zavo {

namespace {

constexpr int maximumPackedFileBytes = 256 * 1024 * 1024;
constexpr mode_t packedFileMode = 0100644;

/// The path without detours if it leads from a folder to something in it, else empty. What is left
/// of a detour would be another name than the channel has.
QString packedPath(const QString &name)
{
    const QStringList parts = name.split(QLatin1Char('/'));
    if (name.isEmpty() || name.contains(QChar::Null) || name.startsWith(QLatin1Char('/')) ||
        parts.contains(QLatin1String("..")))
        return {};
    return QDir::cleanPath(name);
}

/// True if the file lies in the folder, also when links are followed.
bool isFileBelow(const QString &folder, const QString &file)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    const QFileInfo info(QFileInfo(file).canonicalFilePath());
    return !root.isEmpty() && info.isFile() && info.filePath().startsWith(root + QLatin1Char('/'));
}

QStringList usedStages(const ZvChannel &channel)
{
    QSet<QString> names;
    const QList<ZvSchedule> &schedules = channel.scheduleList();
    for (const ZvSchedule &schedule : schedules) {
        names.insert(schedule.defaultStage());
        const QList<ZvTime> &bands = schedule.timeList();
        for (const ZvTime &band : bands)
            names.insert(band.stageName());
    }
    names.remove(QString());
    QStringList sorted = names.values();
    sorted.sort();
    return sorted;
}

} // namespace

ChannelPackage::ChannelPackage(const QString &dataDir, std::function<bool()> isCancelled)
    : m_stageFolder(Path::combine(dataDir, QStringLiteral("stage")))
    , m_isCancelled(std::move(isCancelled))
{
}

ExportContent ChannelPackage::of(const ZvChannel &channel, const QByteArray &channelBytes)
{
    QBuffer buffer;
    KZip zip(&buffer);
    if (!zip.open(QIODevice::WriteOnly)) {
        fail(tr("The package cannot be made."));
        return m_content;
    }
    const QString fileName = QFileInfo(channel.filePath()).fileName();
    const bool added = addBytes(channelBytes, QStringLiteral("channel/") + fileName, &zip) &&
                       addStages(channel, &zip);
    const bool closed = zip.close();
    if (added && !closed)
        fail(tr("The package cannot be made."));
    if (m_content.problem.isEmpty())
        m_content.bytes = buffer.data();
    return m_content;
}

bool ChannelPackage::addStages(const ZvChannel &channel, KZip *zip)
{
    const QStringList names = usedStages(channel);
    return std::all_of(names.cbegin(), names.cend(),
                       [this, zip](const QString &name) { return addStage(name, zip); });
}

bool ChannelPackage::addStage(const QString &name, KZip *zip)
{
    const QString path = packedPath(name);
    if (path.isEmpty())
        return fail(tr("The stage \"%1\" does not lie in the stage folder, so no package of the "
                       "channel can be made.")
                        .arg(name));
    const QString source = Path::combine(m_stageFolder, path);
    if (!isFileBelow(m_stageFolder, source)) {
        m_content.remarks.append(tr("The stage \"%1\" does not exist.").arg(name));
        return true;
    }
    return addFile(source, path, zip) && addPictures(path, zip);
}

bool ChannelPackage::addPictures(const QString &stagePath, KZip *zip)
{
    QStringList sources;
    if (!StageFile::pictureSources(Path::combine(m_stageFolder, stagePath), &sources)) {
        m_content.remarks.append(tr("The stage \"%1\" is damaged.").arg(stagePath));
        return true;
    }
    return std::all_of(sources.cbegin(), sources.cend(),
                       [&](const QString &source) { return addPicture(stagePath, source, zip); });
}

bool ChannelPackage::addPicture(const QString &stagePath, const QString &source, KZip *zip)
{
    const QString below = QFileInfo(stagePath).path();
    const QString path = QDir::cleanPath(Path::combine(below, source));
    const QString file = Path::combine(m_stageFolder, path);
    const QString folder = QDir::cleanPath(Path::combine(m_stageFolder, below));
    if (!packedPath(path).isEmpty() && isFileBelow(folder, file))
        return addFile(file, path, zip);
    m_content.remarks.append(
        tr(R"(The picture "%1" of the stage "%2" does not exist.)").arg(source, stagePath));
    return true;
}

bool ChannelPackage::addFile(const QString &source, const QString &path, KZip *zip)
{
    const QString place = QStringLiteral("stage/") + path;
    if (m_added.contains(place))
        return true;
    QByteArray bytes;
    if (!BoundedFile::read(source, maximumPackedFileBytes, &bytes))
        return fail(tr("\"%1\" cannot be read.").arg(QDir::toNativeSeparators(source)));
    return addBytes(bytes, place, zip);
}

bool ChannelPackage::addBytes(const QByteArray &bytes, const QString &path, KZip *zip)
{
    if (m_isCancelled())
        return fail(tr("The export was cancelled."));
    m_bytes += bytes.size();
    if (m_bytes > MaximumBytes)
        return fail(tr("The stages of the channel are too large for a package."));
    m_added.insert(path);
    return zip->writeFile(path, bytes, packedFileMode) || fail(tr("The package cannot be made."));
}

bool ChannelPackage::fail(const QString &problem)
{
    m_content.problem = problem;
    return false;
}

} // namespace Zavo
