#pragma once

#include <QDateTime>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

namespace Zavo {
class ZvSchedule;
class ZvScheduleWorkingArea;
} // namespace Zavo

namespace ZavoTest {

class MonkeyHouse;

/// What holds in the window at any moment between two events. Each check returns what is wrong;
/// nothing if all is well.
class MonkeyChecks final
{
public:
    explicit MonkeyChecks(MonkeyHouse *house)
        : m_house(house)
    {
    }

    /// Pages and tabs, bands, selection, history.
    QStringList wrongInWindow() const;

    /// Every channel file can be read, and nothing is left beside them. Looks only at files that
    /// have changed since the last look; without @p thorough, only if a file has come, gone or been
    /// replaced.
    QStringList wrongOnDisk(bool thorough);

    enum Content { Bands, BandsAndDefaultStages };

    /// What the page holds, as text to be compared. The bands alone are given to the tenth of a
    /// second, since one that was moved and came back may have lost a millisecond.
    static QString contentOf(Zavo::ZvScheduleWorkingArea *area, Content content);

    /// The bands on show, and where the page stands in its history. The one changes only with the
    /// other.
    static Zavo::ZvSchedule tableOf(const Zavo::ZvScheduleWorkingArea *area);
    static QString placeInHistory(const Zavo::ZvScheduleWorkingArea *area);

    /// The lines that only one of two such texts has; of two tables, to the tenth of a second.
    static QStringList differences(const QString &before, const QString &after);
    static QStringList differences(const Zavo::ZvSchedule &before, const Zavo::ZvSchedule &after);

private:
    MonkeyHouse *m_house;
    QMap<QString, QPair<QDateTime, qint64>> m_seenFiles;
    QDateTime m_seenFolder;
};

} // namespace ZavoTest
