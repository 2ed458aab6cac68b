#pragma once

#include "ZvCoreExport.h"

#include <QByteArray>
#include <QString>

namespace Zavo {

/// Replaces whole files so that at any moment, also after a kill, a power cut or with a full disk,
/// the file is the old one or the new one. Knows no format.
class ZVCORE_EXPORT DurableFile
{
public:
    DurableFile() = delete;

    /// Writes the bytes into a hidden file beside the target, syncs it, renames it and syncs the
    /// folder. True once the new file is on the disk; false if the old one, or none, stays.
    ///
    /// A link is followed and what it points to is replaced. An existing file keeps its permissions
    /// and, where the system lets it, its owner; one that may not be written to is refused, and so
    /// is everything that is not a regular file.
    static bool write(const QString &filePath, const QByteArray &bytes);
};

} // namespace Zavo
