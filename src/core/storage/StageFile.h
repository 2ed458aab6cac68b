#pragma once

#include "storage/StageRecord.h"

#include <QString>

namespace Zavo::StageFile {

/// Reads a stage: a scene, or with the suffix zstg a package of a scene and its pictures. False,
/// with
/// @p record untouched, if anything in it is not as it should be.
bool read(const QString &filePath, StageRecord *record);

} // namespace Zavo::StageFile
