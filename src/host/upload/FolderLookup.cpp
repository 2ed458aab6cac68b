#include "upload/FolderLookup.h"

#include <QFileInfo>

namespace Zavo {

FolderLookup::FolderLookup(const QString &folder)
    : m_folder(folder)
{
    connect(this, SIGNAL(finished()), this, SLOT(deleteLater()), Qt::QueuedConnection);
}

void FolderLookup::run()
{
    Q_EMIT found(QFileInfo(m_folder).canonicalFilePath());
}

} // namespace Zavo
