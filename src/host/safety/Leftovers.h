#pragma once

#include <QStringList>

namespace Zavo::Leftovers {

/// Removes the hidden files that saves left behind whose program was killed, from @p dataDir and
/// from its folders of channels, stages and safety copies. A program that runs keeps its own.
/// Returns the paths of what was removed.
QStringList sweep(const QString &dataDir);

} // namespace Zavo::Leftovers
