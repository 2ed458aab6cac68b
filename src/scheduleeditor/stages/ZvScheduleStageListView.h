#pragma once

#include <QStringList>

class QByteArray;
class QMimeData;

namespace Zavo {

/// How stages travel by drag and drop: as the URLs of their files, and from the first accepting
/// drop target on as stage names. A stage name is the path of the file relative to the stage
/// folder, with its suffix.
class ZvScheduleStageListView
{
public:
    ZvScheduleStageListView() = delete;

    /// The suffixes of stage files, without the dot and case-sensitive.
    static QStringList stageSuffixes();

    /// Percent-encoded text with every name ended by a line break. Names hold no line break.
    static QByteArray encodeStageNames(const QStringList &names);
    /// The names of encodeStageNames() without empty ones.
    static QStringList decodeStageNames(const QByteArray &data);

    /// The names of the stage files in a "text/uri-list". A file outside the stage folder gives its
    /// absolute path, or nothing with @p stageFolderOnly; a file that is inside only until its
    /// links are followed counts as outside.
    static QStringList stageNamesFromUriList(const QByteArray &data, bool stageFolderOnly);

    /// Called when a drag enters a drop target: keeps the names of the dragged stages of the stage
    /// folder in @p mimeData itself, under ZvEditorCommon::MIME_TYPE_STAGE_NAME, where the rest of
    /// the drag reads them. False, with nothing kept, if the drag holds no such stage or
    /// @p mimeData is null.
    static bool keepStageNames(const QMimeData *mimeData);
    /// The names kept by keepStageNames(); empty if there are none or @p mimeData is null.
    static QStringList keptStageNames(const QMimeData *mimeData);
};

} // namespace Zavo
