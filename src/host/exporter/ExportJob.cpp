#include "exporter/ExportJob.h"

#include "Path.h"
#include "ZvChannel.h"
#include "exporter/ChannelCalendar.h"
#include "exporter/ChannelPackage.h"
#include "exporter/ChannelTable.h"
#include "exporter/WeekSheet.h"
#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"
#include "storage/DurableFile.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace Zavo {

namespace {

/// True if the path lies in the folder, also when links are followed.
bool isTargetBelow(const QString &folder, const QString &targetFolder)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    const QString path = QFileInfo(targetFolder).canonicalFilePath();
    return !root.isEmpty() && (path == root || path.startsWith(root + QLatin1Char('/')));
}

/// The channel as it stood in the bytes.
bool makeChannel(const QByteArray &bytes, ZvChannel *channel)
{
    ChannelRecord record;
    if (!ChannelFile::parse(bytes, &record))
        return false;
    channel->setId(record.id);
    channel->setIndex(record.index);
    channel->setName(record.name);
    channel->scheduleList() = record.schedules;
    return true;
}

} // namespace

ExportJob::ExportJob(const ExportRequest &request, QObject *parent)
    : QThread(parent)
    , m_request(request)
{
}

ExportJob::~ExportJob()
{
    cancel();
    wait();
}

QString ExportJob::problemOf(const ExportRequest &request)
{
    const QString target = QDir::fromNativeSeparators(request.target);
    const QFileInfo info(target);
    const QString name = QDir::toNativeSeparators(target);
    if (target.isEmpty() || info.fileName().isEmpty())
        return tr("Choose the file to write.");
    if (target.contains(QChar::Null) ||
        target.split(QLatin1Char('/')).contains(QLatin1String("..")))
        return tr(R"(The name "%1" goes out of a folder by "..". Write where it leads to.)")
            .arg(name);
    if (!info.isAbsolute())
        return tr("\"%1\" is no whole path of a file.").arg(name);
    if (info.isDir())
        return tr("\"%1\" is a folder.").arg(name);
    if (!info.absoluteDir().exists())
        return tr("There is no folder \"%1\".").arg(QDir::toNativeSeparators(info.absolutePath()));
    for (const auto *folder : {"channel", "stage"}) {
        if (isTargetBelow(Path::combine(request.dataDir, QLatin1String(folder)),
                          info.absolutePath()))
            return tr("\"%1\" lies among the files that are exported. Choose another folder.")
                .arg(name);
    }
    if (request.format == ExportRequest::Calendar &&
        (!request.from.isValid() || !request.to.isValid() || request.to < request.from))
        return tr("The last date is before the first.");
    if (request.format == ExportRequest::Calendar &&
        request.from.daysTo(request.to) >= ExportRequest::MaximumDays)
        return tr("A calendar holds no more than %n day(s).", nullptr, ExportRequest::MaximumDays);
    return {};
}

void ExportJob::run()
{
    m_result.problem = problemOf(m_request);
    if (!m_result.problem.isEmpty())
        return;
    QByteArray bytes;
    ZvChannel channel(m_request.channelFile);
    if (!BoundedFile::read(m_request.channelFile, ChannelFile::MaximumBytes, &bytes) ||
        !makeChannel(bytes, &channel)) {
        m_result.problem = tr("The channel file \"%1\" cannot be read.")
                               .arg(QDir::toNativeSeparators(m_request.channelFile));
        return;
    }
    const ExportContent content = makeContent(channel, bytes);
    m_result.problem = content.problem;
    m_result.remarks = content.remarks;
    if (m_result.problem.isEmpty() && m_cancelled)
        m_result.problem = tr("The export was cancelled.");
    if (m_result.problem.isEmpty() && !DurableFile::write(m_request.target, content.bytes))
        m_result.problem = writeProblem(content.bytes.size());
}

ExportContent ExportJob::makeContent(const ZvChannel &channel, const QByteArray &bytes) const
{
    ExportContent content;
    switch (m_request.format) {
    case ExportRequest::Package:
        return ChannelPackage(m_request.dataDir, [this] { return m_cancelled.load(); })
            .of(channel, bytes);
    case ExportRequest::Calendar:
        return ChannelCalendar::of(channel, m_request.from, m_request.to);
    case ExportRequest::Table:
        content.bytes = ChannelTable::of(channel);
        break;
    case ExportRequest::WeekSheet:
        content.bytes = WeekSheet(channel, m_request.from).pdf();
        break;
    }
    if (content.bytes.isEmpty())
        content.problem = tr("The file cannot be made.");
    return content;
}

QString ExportJob::writeProblem(qint64 bytes) const
{
    const QString name = QDir::toNativeSeparators(m_request.target);
    const QFileInfo info(m_request.target);
    const QStorageInfo disk(info.absolutePath());
    const QString unchanged =
        info.exists() ? tr("The file that is there stays as it was.") : tr("Nothing was written.");
    QString reason = tr("\"%1\" cannot be written.").arg(name);
    if (disk.isReadOnly())
        reason = tr("\"%1\" cannot be written: the disk is read-only.").arg(name);
    else if (disk.isValid() && disk.bytesAvailable() < bytes)
        reason = tr("\"%1\" cannot be written: the disk is full.").arg(name);
    else if (!QFileInfo(info.absolutePath()).isWritable() || (info.exists() && !info.isWritable()))
        reason = tr("\"%1\" cannot be written: you may not write there.").arg(name);
    return reason + QLatin1Char(' ') + unchanged;
}

} // namespace Zavo
