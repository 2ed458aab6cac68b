#pragma once

#include <QCoreApplication>
#include <QString>

namespace Zavo {

class ZvChannel;

/// What it would change to put one state of a channel in the place of another.
class StateDifference final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::StateDifference)

public:
    StateDifference(const ZvChannel &present, const ZvChannel &state);

    int addedSchedules() const { return m_added; }
    int removedSchedules() const { return m_removed; }
    int changedSchedules() const { return m_changed; }

    /// True if nothing would change at all.
    bool isNone() const;

    /// The change in a line, "schedules: 2 added, 1 changed".
    QString text() const;

private:
    int m_added = 0;
    int m_removed = 0;
    int m_changed = 0;
    bool m_isMoved = false;
    QString m_newName; // null if the name stays
};

} // namespace Zavo
