#pragma once

#include "TimeTableFixture.h"

#include <QString>

namespace ZavoTest {

/// As band() of the fixture, for literals in ASCII.
inline Zavo::ZvTime band(const char *start, const char *end, const char *stageName = "a.xml")
{
    return band(QString::fromLatin1(start), QString::fromLatin1(end),
                QString::fromLatin1(stageName));
}

inline double yOf(const char *time)
{
    return yOf(QString::fromLatin1(time));
}

/// "hh:mm:ss" with or without ".zzz"; "24:00:00" is the end of the day.
inline QTime at(const char *time)
{
    return band(time, time).startTime();
}

/// What is wrong with the links, the numbers or the stacking order of the bands; empty if nothing.
inline QString disorderOf(const Zavo::ZvTimeTableTimeZoneItem *strip)
{
    const QList<Zavo::ZvTimeTableTimeItem *> items = strip->timeItems();
    for (int i = 0; i < items.size(); ++i) {
        const Zavo::ZvTimeTableTimeItem *item = items.at(i);
        if (item->previousItem() != (i > 0 ? items.at(i - 1) : nullptr))
            return QStringLiteral("wrong previous item at %1").arg(i);
        if (item->nextItem() != (i + 1 < items.size() ? items.at(i + 1) : nullptr))
            return QStringLiteral("wrong next item at %1").arg(i);
        if (item->index() != i)
            return QStringLiteral("number %1 at %2").arg(item->index()).arg(i);
        if (indexLabelOf(item)->toPlainText() != QStringLiteral("#%1").arg(i))
            return QStringLiteral("text %1 at %2").arg(indexLabelOf(item)->toPlainText()).arg(i);
        if (item->zValue() != i + (item->isSelected() ? 10000.0 : 0.0))
            return QStringLiteral("z value %1 at %2").arg(item->zValue()).arg(i);
    }
    return QString();
}

} // namespace ZavoTest
