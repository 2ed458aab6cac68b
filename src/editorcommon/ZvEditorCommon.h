#pragma once

#include "ZvEditorCommonExport.h"

#include <QList>
#include <QString>

class QDockWidget;
class QMainWindow;

namespace Zavo {

/// What the editors of the suite share: the MIME types of their payloads, and the memory for the
/// docks of their windows.
///
/// The state of a dock is kept under its object name in the user's settings, together with the
/// screen and DPI ratio it was seen on. What is damaged, or comes from other screens, is passed
/// over: the dock stays as it is. A null argument, a dock without object name, and settings that
/// are null do nothing.
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

    /// Stores area, place, size, and whether @p dock floats and is visible.
    static void storeDockWidgetGeometry(QDockWidget *dock, QMainWindow *window);

    /// Brings @p dock to its stored area, or floating to its stored place on the screen, and shows
    /// or hides it. Its place and size among other docks follow by reorderDockWidgets().
    static void restoreDockWidgetGeometry(QDockWidget *dock, QMainWindow *window);

    /// Stores under @p name which docks of @p window are tabs of one group, their order and which
    /// is in front.
    static void storeTabifiedSettings(const QString &name, QMainWindow *window);

    /// Makes the docks of @p window tabs of one group, or separate ones, as stored under @p name.
    /// To be called after reorderDockWidgets().
    static void restoreTabifiedSettings(const QString &name, QMainWindow *window);

    /// Puts @p docks into their stored order within their areas, and gives them their stored sizes:
    /// at once if they are visible, else when they are shown.
    static void reorderDockWidgets(QList<QDockWidget *> docks, QMainWindow *window);
};

} // namespace Zavo
