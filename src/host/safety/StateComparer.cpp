#include "safety/StateComparer.h"

#include "Path.h"
#include "ZvChannel.h"
#include "safety/StateDifference.h"

#include <QDir>
#include <QFile>

namespace Zavo {

StateComparer::StateComparer(const QString &dataDir, QObject *parent)
    : QObject(parent)
    , m_channelFolder(QDir(Path::combine(dataDir, QStringLiteral("channel"))).absolutePath())
{
    m_pool.setMaxThreadCount(1);
}

StateComparer::~StateComparer()
{
    ++m_generation;
    m_pool.waitForDone();
}

QString StateComparer::channelFilePath(const QString &fileName) const
{
    return Path::combine(m_channelFolder, fileName);
}

void StateComparer::compare(const QList<BackupState> &states)
{
    const int generation = ++m_generation;
    m_pool.start([this, states, generation] { compareAll(states, generation); });
}

void StateComparer::compareAll(const QList<BackupState> &states, int generation)
{
    if (states.isEmpty())
        return;
    ZvChannel present(channelFilePath(states.constFirst().fileName));
    const bool exists = QFile::exists(present.filePath());
    const bool isReadable = exists && present.readFile();
    for (const BackupState &state : states) {
        if (m_generation != generation)
            return;
        ZvChannel channel(state.path);
        if (!channel.readFile()) {
            Q_EMIT compared(state.path, tr("is no channel file"), false);
        } else if (!isReadable) {
            const QString text = exists ? tr("replaces a file that cannot be read; schedules: %1")
                                        : tr("brings the file back; schedules: %1");
            Q_EMIT compared(state.path, text.arg(channel.scheduleList().size()), true);
        } else {
            const StateDifference difference(present, channel);
            Q_EMIT compared(state.path, difference.text(), !difference.isNone());
        }
    }
}

} // namespace Zavo
