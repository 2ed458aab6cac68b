#pragma once

#include <QTemporaryDir>

#include <memory>

namespace Zavo {

/// Gives up a share in a folder. If it was the last, the folder is removed in another thread, since
/// a large one takes its time.
void removeAside(std::shared_ptr<QTemporaryDir> folder);

} // namespace Zavo
