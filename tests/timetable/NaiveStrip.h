#pragma once

#include "ZvTime.h"

#include <QList>
#include <QStringList>

namespace ZavoTest {

/// The rules of the strip once more, walking and without items: what a random test compares with.
/// Times and heights go through the same truncation as those of a band on the table.
class NaiveStrip final
{
public:
    QList<Zavo::ZvTime> times() const
    {
        QList<Zavo::ZvTime> times;
        for (const Band &band : m_bands)
            times.append(band.time);
        return times;
    }

    bool insert(const QList<Zavo::ZvTime> &times)
    {
        bool allPlaced = true;
        for (const Zavo::ZvTime &time : times)
            allPlaced = insertOne(time) && allPlaced;
        return allPlaced;
    }

    void remove(const QList<Zavo::ZvTime> &times)
    {
        for (int i = times.size() - 1; i >= 0; --i)
            removeOne(times.at(i));
    }

    void set(int index, const Zavo::ZvTime &time)
    {
        m_bands[index] = bandOf(time);
        m_bands[index].time = time;
    }

    void clear() { m_bands.clear(); }

    /// True if a band between these times would touch no other by more than the tolerance.
    bool isFree(QTime start, QTime end) const
    {
        for (const Band &band : m_bands) {
            if (start.msecsTo(band.time.endTime()) > tolerance &&
                band.time.startTime().msecsTo(end) > tolerance)
                return false;
        }
        return true;
    }

    /// The bands that a drop makes; empty if it is refused.
    QList<Zavo::ZvTime> drop(QTime start, const QStringList &names)
    {
        if (start >= QTime(23, 59, 55))
            return {};
        const double y = unitsOf(start) + margin;
        double limit = bottom;
        for (const Band &band : m_bands) {
            if (y <= band.y) {
                limit = band.y;
                break;
            }
            if (band.y + band.height > y)
                return {};
        }
        const double share = (limit - y) / names.size();
        if (share < 0.0033333333333333335)
            return {};
        const int step = static_cast<int>((share < 60.0 ? share : 60.0) * 60000.0);
        const QTime last = limit - margin >= 1440.0
                               ? endOfDay()
                               : QTime(0, 0).addMSecs(static_cast<int>((limit - margin) * 60000.0));
        QList<Zavo::ZvTime> made;
        for (const QString &name : names) {
            QTime end = start.addMSecs(step);
            if (end <= start)
                end = endOfDay();
            if (end.msecsTo(last) < 5000)
                end = last;
            made.append(Zavo::ZvTime(start, end, name));
            start = end;
        }
        return insert(made) ? made : QList<Zavo::ZvTime>();
    }

private:
    struct Band
    {
        Zavo::ZvTime time;
        double y = 0.0;
        double height = 0.0;
    };

    static constexpr int tolerance = 5; // ms
    static constexpr double margin = 10.0;
    static constexpr double bottom = 1450.0;

    static QTime endOfDay() { return QTime(23, 59, 59, 999); }
    static double unitsOf(QTime time) { return time.msecsSinceStartOfDay() / 60000.0; }

    static Band bandOf(const Zavo::ZvTime &time)
    {
        Band band;
        band.y = unitsOf(time.startTime()) + margin;
        band.height =
            (time.endTime() == endOfDay() ? bottom : unitsOf(time.endTime()) + margin) - band.y;
        const QTime start =
            QTime(0, 0).addMSecs(static_cast<int>(band.y * 60000.0 - margin * 60000.0));
        const int length = static_cast<int>(band.height * 60000.0);
        QTime end = start.addMSecs(length);
        if (length != 0 && end <= start)
            end = endOfDay();
        band.time = Zavo::ZvTime(start, end, time.stageName());
        return band;
    }

    bool insertOne(const Zavo::ZvTime &time)
    {
        const auto startsInTime = [&time](const Band &band) {
            return band.time.startTime().msecsTo(time.endTime()) <= tolerance;
        };
        if (m_bands.isEmpty() || startsInTime(m_bands.first())) {
            m_bands.prepend(bandOf(time));
            return true;
        }
        if (time.startTime().msecsTo(m_bands.last().time.endTime()) <= tolerance) {
            m_bands.append(bandOf(time));
            return true;
        }
        for (int i = 1; i < m_bands.size(); ++i) {
            if (startsInTime(m_bands.at(i))) {
                m_bands.insert(i, bandOf(time));
                return true;
            }
        }
        return false;
    }

    void removeOne(const Zavo::ZvTime &time)
    {
        for (int i = m_bands.size() - 1; i >= 0; --i) {
            if (m_bands.at(i).time == time) {
                m_bands.removeAt(i);
                return;
            }
        }
    }

    QList<Band> m_bands;
};

} // namespace ZavoTest
