#pragma once

#include "ZvCoreExport.h"

#include <QByteArray>
#include <QString>

namespace Zavo {

/// Reads whole files without trusting them: nothing but a regular file is read, so that no pipe or
/// device can make the reader wait, and no more memory is taken than the limit allows.
class ZVCORE_EXPORT BoundedFile
{
public:
    BoundedFile() = delete;

    /// False, with @p bytes untouched, if the file cannot be read or is longer than the limit.
    static bool read(const QString &filePath, int maximumBytes, QByteArray *bytes);
};

} // namespace Zavo
