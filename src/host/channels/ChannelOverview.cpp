#include "channels/ChannelOverview.h"

#include "Path.h"
#include "ZvChannel.h"
#include "check/ChannelListing.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace Zavo {

ChannelOverview::ChannelOverview(const QString &dataDir, QObject *parent)
    : QThread(parent)
    , m_dataDir(dataDir)
{
}

ChannelOverview::~ChannelOverview()
{
    requestInterruption();
    wait();
}

void ChannelOverview::run()
{
    const QDir folder(Path::combine(m_dataDir, QStringLiteral("channel")));
    const QStringList names = folder.entryList(channelNameFilters(), QDir::Files);
    m_total = names.size();
    for (const QString &name : names) {
        if (isInterruptionRequested())
            return;
        ZvChannel channel(folder.filePath(name));
        ChannelLine line;
        line.fileName = name;
        line.lastSaved = QFileInfo(channel.filePath()).lastModified();
        line.isReadable = channel.readFile();
        line.id = channel.id();
        line.index = channel.index();
        line.name = channel.name();
        const QList<ZvSchedule> &schedules = channel.scheduleList();
        line.scheduleCount = schedules.size();
        m_lines.append(line);
        ++m_done;
    }
    std::sort(m_lines.begin(), m_lines.end(), [](const ChannelLine &a, const ChannelLine &b) {
        return std::make_tuple(!a.isReadable, a.index, a.id, a.fileName) <
               std::make_tuple(!b.isReadable, b.index, b.id, b.fileName);
    });
}

} // namespace Zavo
