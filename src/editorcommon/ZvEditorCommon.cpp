#include "ZvEditorCommon.h"

namespace Zavo {

const QString ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA =
    QStringLiteral("application/x-zavo-schedule-data");
const QString ZvEditorCommon::MIME_TYPE_TIME_DATA = QStringLiteral("application/x-zavo-time-data");
const QString ZvEditorCommon::MIME_TYPE_STAGE_NAME =
    QStringLiteral("application/x-zavo-stage-name");

} // namespace Zavo
