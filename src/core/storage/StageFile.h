#pragma once

#include "ZvCoreExport.h"
#include "storage/StageRecord.h"

#include <QString>
#include <QStringList>

namespace Zavo::StageFile {

/// Reads a stage: a scene, or with the suffix zstg a package of a scene and its pictures. False,
/// with
/// @p record untouched, if anything in it is not as it should be.
bool read(const QString &filePath, StageRecord *record);

/// Names the pictures that lie beside a stage and are shown on it, each once, as the scene has
/// them: paths from the folder of the stage, which may lead nowhere. A package holds its own, so it
/// names none. False, with @p sources untouched, if the stage cannot be read.
ZVCORE_EXPORT bool pictureSources(const QString &filePath, QStringList *sources);

} // namespace Zavo::StageFile
