#pragma once

#include "exporter/DayProgramme.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFont>
#include <QRectF>
#include <QStringList>
#include <QVector>

class QPainter;
class QPdfWriter;

namespace Zavo {

class ZvChannel;

/// A week of a channel on a sheet of A4 as PDF: a column for each day, and behind it a list of the
/// bands that are too short to be named in their column.
class WeekSheet final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::WeekSheet)

public:
    static constexpr int DaysPerWeek = 7;

    /// The week that holds @p date; which day it begins with is the locale's choice.
    WeekSheet(const ZvChannel &channel, const QDate &date);

    QByteArray pdf();

private:
    void drawWeek(QPainter *painter);
    void drawTitle(QPainter *painter);
    void drawHours(QPainter *painter);
    void drawDay(QPainter *painter, int place);
    void drawSlot(QPainter *painter, const QRectF &column, const ProgrammeSlot &slot,
                  const QDate &date);
    void drawList(QPainter *painter, QPdfWriter *writer);
    QRectF columnOf(int place) const;
    double heightOf(int ms) const;
    QFont font(double points, bool bold = false, bool italic = false) const;

    QString m_title;
    QVector<DayProgramme> m_days;
    QRectF m_page;  // in points, within the margins
    QRectF m_hours; // where the columns stand, heads left out
    QStringList m_shortSlots;
    int m_shortSlotsLeftOut = 0;
};

} // namespace Zavo
