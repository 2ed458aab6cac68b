#pragma once

#include <QDate>
#include <QList>
#include <QMap>

namespace Zavo {

/// The dates that the edit commands act on: what a click makes of them, alone, with Ctrl and with
/// Shift. It knows no widget; the one date that is edited is its owner's.
class DateSelection final
{
public:
    /// Nothing is selected. @p lastDate stands for the date of a click before the first one.
    explicit DateSelection(const QDate &lastDate);

    /// In their order.
    QList<QDate> dates() const;
    int count() const;
    bool isEmpty() const;
    bool contains(const QDate &date) const;
    /// True if a selected date is a key of @p dates.
    bool intersects(const QMap<QDate, bool> &dates) const;

    /// Which selected date is edited once @p date, one of them, is taken out: its neighbour on the
    /// side of the last click, or the last one left. Null if @p date is the only one.
    QDate successorOf(const QDate &date) const;

    void clear();
    /// Every date from @p first to @p last, none if they come in the other order.
    void setRange(const QDate &first, const QDate &last);

    /// A plain click.
    void selectOnly(const QDate &date);
    /// A click with Ctrl on a date that is not selected.
    void add(const QDate &date);
    /// A click with Ctrl on one that is, after which @p successor is edited; null if none is left.
    void takeOut(const QDate &date, const QDate &successor);
    /// A click with Shift: the selection becomes the range to @p date from its earliest date, or
    /// from its latest if @p date is earlier than all.
    void extendTo(const QDate &date);

private:
    QMap<QDate, bool> m_dates;
    /// The date that was edited after the last click; the direction of taking out.
    QDate m_lastDate;
};

} // namespace Zavo
