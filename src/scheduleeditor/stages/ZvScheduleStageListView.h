#pragma once

#include "ZvTime.h"

#include <QList>
#include <QListView>
#include <QPointer>
#include <QStringList>
#include <QTime>

class QByteArray;
class QDialog;
class QImage;
class QMenu;
class QMimeData;

namespace Zavo {

class ZvFileSystemModel;

/// The stage files of the data folder as a list that follows the folder. It is where the drags of
/// stages begin, and its context menu makes a stage the default stage of the schedule on show or
/// sets up a schedule that switches. It knows no schedule: what it wants done it asks for.
///
/// Its static functions are how stages travel by drag and drop: as the URLs of their files, and
/// from the first accepting drop target on as stage names. A stage name is the path of the file
/// relative to the stage folder, with its suffix.
class ZvScheduleStageListView final : public QListView
{
    Q_OBJECT

public:
    explicit ZvScheduleStageListView(QWidget *parent = nullptr);

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

Q_SIGNALS:
    /// For the picture of the stage on show, which the receiver makes and the sender owns. The
    /// connection is direct.
    void requestGetImage(QImage **image);

    /// The user wants the stage @p name to be the default stage of the schedule on show.
    void requestSetDefaultStageName(const QString &name);

    /// The user wants the schedule on show to hold @p newTimes and nothing else, with
    /// @p newDefaultStageName in the gaps. The stages that are named exist.
    void requestResetTimeTable(const QString &newDefaultStageName, const QList<ZvTime> &newTimes);

    /// Whether the schedule on show can be edited. The receiver fills @p enabled, so the connection
    /// is direct.
    void requestIsCurrentScheduleEnabled(bool *enabled);

protected:
    void startDrag(Qt::DropActions supportedActions) override;

protected Q_SLOTS:
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private Q_SLOTS:
    void setSelectedItemToDefaultStage();
    void showContextMenu(const QPoint &pos);
    void onContextMenuAboutToShow();
    void showAutomaticallySwitchDialog();
    void autoSwitchStageRequested(int interval, QTime fromTime, QTime toTime);

private:
    void setupModel();
    void setupView();
    void setupContextMenu();
    QString currentStageName() const;
    bool isAskingHowToSwitch() const;
    QWidget *messageParent();
    void tellFailure(const QString &text);

    ZvFileSystemModel *m_model;
    QMenu *m_contextMenu;
    QPointer<QDialog> m_switchDialog;
    QString m_stageToSwitch;
};

} // namespace Zavo
