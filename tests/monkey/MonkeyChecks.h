#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace Zavo {
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
    /// have changed since the last look.
    QStringList wrongOnDisk();

    enum Content { Bands, BandsAndDefaultStages };

    /// What the page holds, as text to be compared. The bands alone are given to the tenth of a
    /// second, since one that was moved and came back may have lost a millisecond.
    static QString contentOf(Zavo::ZvScheduleWorkingArea *area, Content content);

    /// The bands on show, to the tenth of a second, and where the page stands in its history. The
    /// one changes only with the other.
    static QString tableOf(const Zavo::ZvScheduleWorkingArea *area);
    static QString placeInHistory(const Zavo::ZvScheduleWorkingArea *area);

    /// The lines that only one of two such texts has.
    static QStringList differences(const QString &before, const QString &after);

private:
    MonkeyHouse *m_house;
    QMap<QString, QString> m_seenFiles;
};

} // namespace ZavoTest
