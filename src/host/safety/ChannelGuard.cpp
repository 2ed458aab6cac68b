#include "safety/ChannelGuard.h"

#include "safety/BackupStore.h"
#include "safety/BasicCopy.h"
#include "safety/ChannelStates.h"
#include "safety/FileStamp.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cerrno>

#include <sys/stat.h>

namespace Zavo {

ChannelGuard::ChannelGuard(ChannelStates *states, BackupStore *store)
    : m_states(states)
    , m_store(store)
{
    FileSystemCalls::setCurrent(this);
}

ChannelGuard::~ChannelGuard()
{
    FileSystemCalls::setCurrent(nullptr);
}

void ChannelGuard::setQuestion(const Question &question)
{
    m_question = question;
}

int ChannelGuard::rename(const char *from, const char *to)
{
    const QString filePath = m_states->channelFileOf(QFile::decodeName(to));
    if (filePath.isEmpty())
        return FileSystemCalls::rename(from, to);
    if (m_states->isChangedByOthers(filePath) && !mayReplace(filePath)) {
        errno = ECANCELED;
        return -1;
    }
    // What the other program did while the question was open goes no other way.
    m_store->keep(filePath);
    QFile ours(QFile::decodeName(from));
    ours.open(QIODevice::ReadOnly);
    const int result =
        m_states->replaceByOurs(filePath, [&] { return FileSystemCalls::rename(from, to); });
    const int error = errno;
    // At once, since the next that happens to the file may be its removal.
    if (result == 0) {
        keepReplaced(filePath, &ours);
        if (QFileInfo(filePath).fileName() == BasicCopy::fileName())
            m_basicReplaced = true;
    }
    errno = error;
    return result;
}

void ChannelGuard::keepReplaced(const QString &filePath, QFile *ours)
{
    m_store->keep(filePath);
    struct stat written = {};
    if (!ours->isOpen() || ::fstat(ours->handle(), &written) != 0 ||
        FileStamp::of(filePath).inode == written.st_ino)
        return;
    // Another program has replaced it in its turn, perhaps before it was copied.
    const QByteArray bytes = ours->readAll();
    m_store->keepBytes(QFileInfo(filePath).fileName(), bytes);
    m_store->keep(filePath);
}

void ChannelGuard::onNotReplaced(const QString &filePath, const QByteArray &bytes)
{
    const QString channelFile = m_states->channelFileOf(filePath);
    if (channelFile.isEmpty())
        return;
    m_store->keepBytes(QFileInfo(channelFile).fileName(), bytes);
    // The present state is the newest again.
    m_store->keep(channelFile);
}

bool ChannelGuard::mayReplace(const QString &filePath) const
{
    return m_question && QThread::currentThread() == qApp->thread() && m_question(filePath);
}

} // namespace Zavo
