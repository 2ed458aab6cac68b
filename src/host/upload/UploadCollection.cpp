#include "upload/UploadCollection.h"

#include "Path.h"
#include "ZvChannel.h"
#include "check/ChannelListing.h"
#include "storage/StageFile.h"
#include "upload/UploadNames.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <algorithm>

namespace Zavo {

namespace {
constexpr int blockBytes = 256 * 1024;
constexpr int senderDigits = 12;

/// The path without detours if it leads from a folder to something in it, else empty.
QString pathDownwards(const QString &name)
{
    const QString path = QDir::cleanPath(name);
    const bool leaves = path == QLatin1String("..") || path.startsWith(QLatin1String("../"));
    if (name.isEmpty() || name.contains(QChar::Null) || QDir::isAbsolutePath(path) || leaves)
        return {};
    return path;
}

/// Where the file lies in truth; empty if it is none or a link leads out of the folder.
QString regularFileIn(const QString &folder, const QString &path)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    const QFileInfo info(QFileInfo(Path::combine(folder, path)).canonicalFilePath());
    if (root.isEmpty() || path.isEmpty() || !info.isFile())
        return {};
    return info.filePath().startsWith(Path::combine(root, QStringLiteral("/"))) ? info.filePath()
                                                                                : QString();
}

QString senderWord(const QString &dataDir)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QSysInfo::machineUniqueId());
    hash.addData(QSysInfo::machineHostName().toUtf8());
    hash.addData(QFileInfo(dataDir).absoluteFilePath().toUtf8());
    return QString::fromLatin1(hash.result().toHex().left(senderDigits));
}
} // namespace

UploadCollection::UploadCollection(const QString &dataDir, QObject *parent)
    : QThread(parent)
    , m_dataDir(dataDir)
    , m_settings(dataDir)
{
    m_set.sender = senderWord(dataDir);
}

UploadCollection::~UploadCollection()
{
    requestInterruption();
    wait();
}

void UploadCollection::run()
{
    m_set.origin = QFileInfo(m_dataDir).canonicalFilePath();
    if (makeFolder() && collectChannels() && collectStages())
        writeMark();
}

bool UploadCollection::makeFolder()
{
    m_set.folder = std::make_shared<QTemporaryDir>(
        Path::combine(QDir::tempPath(), QStringLiteral("zavo-upload-XXXXXX")));
    const QDir folder(m_set.folder->path());
    if (m_set.folder->isValid() && folder.mkdir(QLatin1String(UploadNames::channelFolder)) &&
        folder.mkdir(QLatin1String(UploadNames::stageFolder)) &&
        folder.mkdir(QLatin1String(UploadNames::emptyFolder)))
        return true;
    return fail(tr("No folder can be made in \"%1\": %2.")
                    .arg(QDir::tempPath(), m_set.folder->errorString()));
}

bool UploadCollection::collectChannels()
{
    const QString folder = Path::combine(m_dataDir, QLatin1String(UploadNames::channelFolder));
    // What the editor opens, and the copy of the basic channel that only players open.
    const QStringList names = QDir(folder).entryList(
        channelNameFilters() + QStringList(basicChannelFileName()), QDir::Files, QDir::Name);
    if (names.isEmpty())
        return fail(tr("There are no channel files in \"%1\".").arg(folder));
    for (const QString &name : names) {
        if (!collectChannel(name))
            return false;
    }
    return m_set.channelCount > 0 || fail(tr("No channel is meant to be uploaded."));
}

bool UploadCollection::collectChannel(const QString &name)
{
    const QString path = Path::combine(QLatin1String(UploadNames::channelFolder), name);
    if (!copy(Path::combine(m_dataDir, path), path))
        return false;
    // The copy is read, since the file may have been saved again by now.
    ZvChannel channel(m_set.folder->filePath(path));
    if (!channel.readFile())
        return fail(tr("The channel file \"%1\" is damaged.").arg(name));
    if (!m_settings.isUploaded(channel.id()))
        return leaveOut(path, channel.name());
    ++m_set.channelCount;
    const QList<ZvSchedule> &schedules = channel.scheduleList();
    const auto note = [this, &channel](const QString &stage) {
        if (!stage.isEmpty() && !m_stages.contains(stage))
            m_stages.insert(stage, channel.name());
    };
    for (const ZvSchedule &schedule : schedules) {
        note(schedule.defaultStage());
        const QList<ZvTime> &bands = schedule.timeList();
        for (const ZvTime &band : bands)
            note(band.stageName());
    }
    return true;
}

bool UploadCollection::leaveOut(const QString &path, const QString &channel)
{
    const QString copied = m_set.folder->filePath(path);
    m_set.bytes -= QFileInfo(copied).size();
    m_set.remarks.append(
        tr("The channel \"%1\" stays here by the channel configuration.").arg(channel));
    return QFile::remove(copied) || fail(tr("\"%1\" cannot be removed.").arg(copied));
}

bool UploadCollection::collectStages()
{
    QStringList names = m_stages.keys();
    names.sort();
    return std::all_of(names.cbegin(), names.cend(), [this](const QString &name) {
        return collectStage(name, m_stages.value(name));
    });
}

bool UploadCollection::collectStage(const QString &name, const QString &channel)
{
    const QString folder = Path::combine(m_dataDir, QLatin1String(UploadNames::stageFolder));
    const QString path = pathDownwards(name);
    const QString file = regularFileIn(folder, path);
    if (file.isEmpty()) {
        m_set.remarks.append(
            tr(R"(The stage "%1" of the channel "%2" is missing.)").arg(name, channel));
        return true;
    }
    const QString place = Path::combine(QLatin1String(UploadNames::stageFolder), path);
    if (m_copied.contains(place))
        return true;
    ++m_set.stageCount;
    return copy(file, place) && collectPictures(path);
}

bool UploadCollection::collectPictures(const QString &stagePath)
{
    const QString folder = Path::combine(m_dataDir, QLatin1String(UploadNames::stageFolder));
    const QString stage = Path::combine(folder, stagePath);
    QStringList sources;
    if (!StageFile::pictureSources(stage, &sources)) {
        m_set.remarks.append(tr("The stage \"%1\" is damaged.").arg(stagePath));
        return true;
    }
    const QString below = QFileInfo(stagePath).path();
    for (const QString &source : qAsConst(sources)) {
        const QString path = pathDownwards(source);
        const QString file = regularFileIn(QFileInfo(stage).path(), path);
        const QString place = QDir::cleanPath(
            QStringLiteral("%1/%2/%3").arg(QLatin1String(UploadNames::stageFolder), below, path));
        if (file.isEmpty()) {
            m_set.remarks.append(
                tr(R"(The picture "%1" of the stage "%2" is missing.)").arg(source, stagePath));
        } else if (!m_copied.contains(place)) {
            ++m_set.pictureCount;
            if (!copy(file, place))
                return false;
        }
    }
    return true;
}

bool UploadCollection::writeMark()
{
    QFile mark(m_set.folder->filePath(QLatin1String(UploadNames::markFile)));
    const QByteArray text =
        QStringLiteral("%1 %2\n")
            .arg(QDateTime::currentDateTimeUtc().toString(Qt::ISODate), m_set.sender)
            .toUtf8();
    if (mark.open(QIODevice::WriteOnly) && mark.write(text) == text.size() && mark.flush())
        return true;
    return fail(tr("\"%1\" cannot be written: %2.").arg(mark.fileName(), mark.errorString()));
}

bool UploadCollection::copy(const QString &source, const QString &relativePath)
{
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        return fail(tr("\"%1\" cannot be read: %2.").arg(source, from.errorString()));
    QFile to(m_set.folder->filePath(relativePath));
    QDir().mkpath(QFileInfo(to).path());
    if (!to.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return fail(tr("\"%1\" cannot be written: %2.").arg(to.fileName(), to.errorString()));
    while (!from.atEnd()) {
        if (isInterruptionRequested())
            return fail(tr("Cancelled."));
        const QByteArray block = from.read(blockBytes);
        if (from.error() != QFile::NoError)
            return fail(tr("\"%1\" cannot be read: %2.").arg(source, from.errorString()));
        if (to.write(block) != block.size())
            return fail(tr("\"%1\" cannot be written: %2.").arg(to.fileName(), to.errorString()));
        m_set.bytes += block.size();
    }
    m_copied.insert(relativePath, true);
    return true;
}

bool UploadCollection::fail(const QString &problem)
{
    m_set.problem = problem;
    return false;
}

} // namespace Zavo
