#include "upload/TargetKeeper.h"

#include "Path.h"
#include "safety/BackupStore.h"
#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"
#include "upload/FolderRemoval.h"
#include "upload/UploadNames.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace Zavo {

TargetKeeper::TargetKeeper(const QString &setFolder, const std::shared_ptr<BackupStore> &store,
                           QObject *parent)
    : QThread(parent)
    , m_setFolder(setFolder)
    , m_store(store)
    , m_folder(std::make_shared<QTemporaryDir>(
          Path::combine(QDir::tempPath(), QStringLiteral("zavo-replaced-XXXXXX"))))
{
}

TargetKeeper::~TargetKeeper()
{
    cancel();
    wait();
    removeAside(std::move(m_folder));
}

QString TargetKeeper::folder() const
{
    return m_folder && m_folder->isValid() ? m_folder->path() : QString();
}

void TargetKeeper::run()
{
    const QDir fetched(m_folder->filePath(QLatin1String(UploadNames::channelFolder)));
    const QStringList names = fetched.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        if (m_cancelled)
            break;
        keep(name);
    }
    m_store->sync();
    m_folder.reset();
}

void TargetKeeper::keep(const QString &fileName)
{
    const QString path = Path::combine(QLatin1String(UploadNames::channelFolder), fileName);
    const QString fetched = m_folder->filePath(path);
    QByteArray bytes;
    if (!BoundedFile::read(fetched, ChannelFile::MaximumBytes, &bytes)) {
        m_problem = tr("\"%1\" cannot be read.").arg(fetched);
        return;
    }
    QByteArray present;
    if (BoundedFile::read(Path::combine(m_setFolder, path), ChannelFile::MaximumBytes, &present) &&
        present == bytes)
        return;
    const auto result = m_store->keepFromTarget(fileName, bytes, QFileInfo(fetched).lastModified());
    if (result == BackupStore::Result::Failed)
        m_problem = m_store->lastError();
    else
        ++m_count;
}

} // namespace Zavo
