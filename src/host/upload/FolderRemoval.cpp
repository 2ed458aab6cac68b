#include "upload/FolderRemoval.h"

#include <QRunnable>
#include <QThreadPool>

#include <utility>

namespace Zavo {

void removeAside(std::shared_ptr<QTemporaryDir> folder)
{
    if (folder)
        QThreadPool::globalInstance()->start(
            QRunnable::create([folder = std::move(folder)]() mutable { folder.reset(); }));
}

} // namespace Zavo
