#pragma once

#include "ZvEditorCommonExport.h"

#include <QString>

namespace Zavo {

/// Where the suite keeps its data.
class ZVEDITORCOMMON_EXPORT ZvEditorConfig
{
public:
    ZvEditorConfig() = delete;

    /// Root of the data folder: what setDataDir() was given, else the environment variable
    /// ZAVO_DATA_DIR, else the per-user application data folder.
    static QString dataDir();

    /// Replaces the data folder for this process; an empty string takes the replacement back.
    static void setDataDir(const QString &dataDir);
};

} // namespace Zavo
