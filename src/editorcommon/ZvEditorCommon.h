#pragma once

#include "ZvEditorCommonExport.h"

#include <QString>

namespace Zavo {

/// What the editors of the suite share: the MIME types of their payloads.
class ZVEDITORCOMMON_EXPORT ZvEditorCommon
{
public:
    ZvEditorCommon() = delete;

    /// Schedules on the clipboard.
    static const QString MIME_TYPE_SCHEDULE_DATA;
    /// Bands on the clipboard.
    static const QString MIME_TYPE_TIME_DATA;
    /// Stage names inside a drag.
    static const QString MIME_TYPE_STAGE_NAME;
};

} // namespace Zavo
