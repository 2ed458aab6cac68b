#include "safety/DataFolderLock.h"

#include "Path.h"

#include <QFileInfo>
#include <QSysInfo>

namespace Zavo {

DataFolderLock::DataFolderLock(const QString &dataDir)
    : m_path(Path::combine(dataDir, fileName()))
    , m_lock(m_path)
{
    // An editor is open for weeks; age says nothing about it.
    m_lock.setStaleLockTime(0);
}

QString DataFolderLock::fileName()
{
    return QStringLiteral(".zavo-lock");
}

DataFolderLock::Holder DataFolderLock::holder() const
{
    Holder holder;
    m_lock.getLockInfo(&holder.processId, &holder.host, &holder.program);
    holder.since = QFileInfo(m_path).lastModified();
    return holder;
}

bool DataFolderLock::isHolderElsewhere() const
{
    const QString host = holder().host;
    return !host.isEmpty() && host != QSysInfo::machineHostName();
}

DataFolderLock::Result DataFolderLock::take()
{
    if (m_lock.isLocked() || m_lock.tryLock(0))
        return Result::Taken;
    return m_lock.error() == QLockFile::LockFailedError ? Result::HeldByOther : Result::NotPossible;
}

DataFolderLock::Result DataFolderLock::takeOver()
{
    if (!m_lock.isLocked() && isHolderElsewhere())
        m_lock.removeStaleLockFile();
    return take();
}

} // namespace Zavo
