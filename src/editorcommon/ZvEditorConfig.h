#pragma once

#include "ZvEditorCommonExport.h"

#include <QString>

namespace Zavo {

class ZvConfig;

/// Where the suite keeps its data, and how it is configured. To be used on the GUI thread.
class ZVEDITORCOMMON_EXPORT ZvEditorConfig
{
public:
    ZvEditorConfig() = delete;

    /// Root of the data folder: what setDataDir() was given, else the environment variable
    /// ZAVO_DATA_DIR, else the per-user application data folder.
    static QString dataDir();

    /// Replaces the data folder for this process; an empty string takes the replacement back.
    static void setDataDir(const QString &dataDir);

    /// The configuration in "config.ini" of the data folder, read at the first call and whenever
    /// the data folder has become another one. Never null; the object lives as long as the process
    /// and belongs to this class.
    static ZvConfig *getConfig();

    /// Reads the file again into the object that getConfig() gives.
    static void reload();
};

} // namespace Zavo
