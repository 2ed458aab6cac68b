#pragma once

#include "ZvCoreExport.h"

#include <QString>

namespace Zavo {

/// Joins names of files and folders.
class ZVCORE_EXPORT Path
{
public:
    Path() = delete;

    /// @p folder and @p name with exactly one separator between them. An empty part adds none.
    static QString combine(const QString &folder, const QString &name);
};

} // namespace Zavo
