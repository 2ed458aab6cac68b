#pragma once

#include "ZvTime.h"
#include "domain/ZvScheduleCommonInterface.h"

#include <QList>
#include <QMap>
#include <QMessageBox>
#include <QPointer>
#include <QRectF>
#include <QWidget>

#include <memory>

class QGraphicsScene;
class QMenu;

namespace Zavo {

class WorkingAreaHeader;
class WorkingAreaStatusBar;
class UnseenWidgets;
class ZvSchedule;
class ZvTimeTableScene;
class ZvTimeTableTimeItem;
class ZvTimeTableTimeZoneItem;
class ZvTimeTableView;

/// The table side of a working area: header, time table and status bar, and all that is done to the
/// bands on show. Which schedule that is, and where it is kept, is the working area's affair.
///
/// Once the scene was taken its operations do nothing.
class TimeTablePage : public QWidget
{
    Q_OBJECT

public:
    using SelectedType = ZvScheduleCommonInterface::SelectedType;

    /// Gives up the scene by graphicsScenePurged(), unless it was taken.
    ~TimeTablePage() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Whether the schedule on show exists and can be edited.
    bool isCurrentScheduleEnabled() const { return m_scheduleEnabled; }
    /// What stands behind "Schedule of" in the title.
    QString currentScheduleName() const { return m_currentScheduleName; }
    QString defaultStageName() const;

    /// The records of all bands in order.
    QList<ZvTime> currentTimes() const;
    QList<ZvTimeTableTimeItem *> selectedTimeItems() const;
    QList<ZvTime> timeItemsInRange(QTime start, QTime end) const;
    /// The edit commands that the selection of bands allows.
    SelectedType hasSelectedItems() const;

    /// Whether the clipboard holds bands and the mouse, or else its last release, is over the
    /// strip.
    bool isPastingPossible() const;

    /// Reports a move that is still under way, which what comes next would else lose: that changes
    /// the selection, the table or the history.
    void completeMove();

    void insertTimeItems(const QList<ZvTime> &times);
    void removeTimeItems(const QList<ZvTime> &times);
    /// Removes the selected bands and returns their records.
    QList<ZvTime> deleteSelectedItems();
    void selectAllItems();
    void deselectAllItems();
    /// False, with the clipboard as it was, if nothing is selected.
    bool copySelectedItems();
    /// Copies and removes the selected bands and returns their records.
    QList<ZvTime> cutSelectedItems();
    /// Pastes the clipboard's bands as one block at the last mouse release, after a question if
    /// bands are in its way. False if nothing was pasted.
    bool pasteItems();

    /// The menu of the time table, which stays its owner's.
    void setContextMenu(QMenu *menu);
    /// Hands over the scene, cut off from all receivers; null if it was given up before.
    QGraphicsScene *takeScene();

public Q_SLOTS:
    /// Fills the table. False if @p schedule does not exist or a band could not be placed.
    bool switchSchedule(const ZvSchedule &schedule);
    void setDefaultStageName(const QString &name);

    /// Sets bands to a geometry they had, by index; an index without a band is passed over.
    void moveTimeItems(const QMap<int, QRectF> &afterRects, bool select = true);
    void changeTimeItemTimes(const QMap<int, ZvTime> &itemTimes);
    void selectPreviousTimeItem();
    void selectNextTimeItem();

    void onTimeItemInserted(const QList<ZvTime> &times);
    /// Closes a move, a resize, a key move or a change of times into one report.
    void onMousePressingMoved();
    void onDefaultStageNameChangedWithUndo(const QString &oldName, const QString &newName);
    void onTimeStringChanged(const QString &timeString);
    void onCriticalErrorOccured(const QString &message);
    void onWarningErrorOccured(const QString &message);

Q_SIGNALS:
    /// Comes with every switch, changed or not.
    void currentScheuleEnabledChanged(bool enabled);
    /// A drop made these bands.
    void timeItemInserted(const QList<ZvTime> &times);
    /// @p pastedTimes came in, and @p removedTimes gave way.
    void timeItemPasted(const QList<ZvTime> &removedTimes, const QList<ZvTime> &pastedTimes);
    /// All selected bands have changed; both maps have the same indices as keys.
    void timeTableTimeItemsMovingFinished(const QMap<int, QRectF> &afterRects,
                                          const QMap<int, QRectF> &beforeRects);
    void defaultStageNameChangedWithUndo(const QString &oldName, const QString &newName);
    void requestCreateCurrentSchedule();
    /// The time table was pressed.
    void activated();
    /// The page dies; @p scene, without a parent, is the receiver's to delete.
    void graphicsScenePurged(QGraphicsScene *scene);

protected:
    explicit TimeTablePage(QWidget *parent);

    WorkingAreaHeader *header() const { return m_header; }
    /// Null once the scene was given up.
    ZvTimeTableScene *scene() const;
    /// Null once the scene was given up.
    ZvTimeTableTimeZoneItem *timeZone() const;

    void setTitle(const QString &name);
    /// Sets the look of a schedule that exists, or of one that does not.
    void setScheduleEnabled(bool enabled);
    /// What the table holds is not to be stored any more; its look stays until the next switch.
    void forgetSchedule() { m_scheduleEnabled = false; }

    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void onScaleComboBoxIndexChanged(int index);
    void onSceneActivated();
    void onSceneItemSelectionChanged();
    void onCreateScheduleButtonClicked();
    void showWarning(const QString &title, const QString &message);
    void showCritical(const QString &title, const QString &message);
    int showWarningQuestion(const QString &title, const QString &message,
                            int *pressedButton = nullptr);
    int showQuestion(const QString &title, const QString &message, int *pressedButton = nullptr);

private:
    const TimeTablePage *spokesman() const;
    void createTimeTable();
    void connectParts();
    ZvTimeTableScene *releaseScene();
    QPointF positionInZone(const QPoint &viewPosition) const;
    bool makeRoom(const QList<ZvTime> &timesInTheWay);
    int ask(QMessageBox::Icon icon, const QString &title, const QString &message,
            int *pressedButton);

    std::unique_ptr<UnseenWidgets> m_unseenWidgets;
    bool m_isBlank = true; ///< neither seen nor filled yet
    bool m_scheduleEnabled = false;
    QString m_currentScheduleName;
    WorkingAreaHeader *m_header;
    QPointer<ZvTimeTableScene> m_scene;
    ZvTimeTableView *m_view;
    WorkingAreaStatusBar *m_statusBar;
    /// The selected bands by index, where the last step of undo left them.
    QMap<int, QRectF> m_selectedItemRects;
};

} // namespace Zavo
