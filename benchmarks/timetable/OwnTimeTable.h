#pragma once

#include "ZvTime.h"

#include <QList>
#include <QMap>
#include <QPoint>
#include <QRectF>

#include <memory>

class QUndoCommand;

namespace Zavo {
class ZvScheduleWorkingArea;
class ZvTimeTableScene;
class ZvTimeTableTimeItem;
class ZvTimeTableView;
} // namespace Zavo

/// The page of a channel with two schedules, shown, and driven as a user and the commands of undo
/// drive it.
class OwnTimeTable final
{
public:
    /// The schedules have @p count bands each, and differ in all of them.
    explicit OwnTimeTable(int count);
    ~OwnTimeTable();
    Q_DISABLE_COPY(OwnTimeTable)

    QSize viewSize() const;

    /// Shows one of the schedules.
    void switchTo(bool second);
    /// Adds bands to the table.
    void load(const QList<Zavo::ZvTime> &times);
    void remove(const QList<Zavo::ZvTime> &times);
    void clear();
    void selectAll();
    void deselectAll();
    /// Where the bands are, by their index.
    QMap<int, QRectF> rects() const;
    /// Sets the bands to these places, as the undo of a move does.
    void place(const QMap<int, QRectF> &rects);

    /// Cuts the selection, and pastes it at the start of the day, as steps of undo.
    void cut();
    void paste();
    /// Puts @p times in the place of the whole table, as a step of undo.
    void reset(const QList<Zavo::ZvTime> &times);
    void undo();
    void redo();

    /// Presses the mouse on a selected band in sight; dragBy() then moves the selection.
    void startDrag();
    void dragBy(int pixels);
    void endDrag();

    void look(double scale, int index);
    void selectOne(int index);
    void repaint();
    void settle();

    /// Lets go of whatever is kept of earlier bands, as in a program that has just started.
    static void forgetKeptLabels();

private:
    Zavo::ZvTimeTableScene *scene() const;
    QList<Zavo::ZvTimeTableTimeItem *> items() const;
    void push(QUndoCommand *command);
    QPoint pointOnSelection() const;
    void sendMouse(int type, Qt::MouseButton button);

    std::unique_ptr<Zavo::ZvScheduleWorkingArea> m_area;
    Zavo::ZvTimeTableView *m_view = nullptr;
    QPoint m_mousePos;
};
