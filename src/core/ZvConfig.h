#pragma once

#include "ZvCoreExport.h"

#include <QString>

namespace Zavo {

/// The suite's configuration as far as the schedule editor reads it, kept in an INI file.
class ZVCORE_EXPORT ZvConfig
{
public:
    /// The removingDuration() of a file that names none.
    static constexpr int DefaultRemovingDurationDays = 365;

    /// Reads the file. What is missing in it, or the file itself, gives the default; a value that
    /// makes no sense gives the default and a warning on the debug stream.
    explicit ZvConfig(const QString &filePath);

    /// The file, which need not exist.
    QString filePath() const { return m_filePath; }

    /// True if player and editor share one machine, so that there is nothing to upload.
    bool allInOne() const { return m_allInOne; }

    /// True if the editor starts with the default schedule instead of the kind shown last.
    bool defaultScheduleUsedFirst() const { return m_defaultScheduleUsedFirst; }

    /// Age in days, 0 or more, beyond which the schedule of a date is removed.
    int removingDuration() const { return m_removingDurationDays; }

    /// @{
    /// Changes the value here; write() brings it into the file.
    void setAllInOne(bool allInOne) { m_allInOne = allInOne; }
    void setDefaultScheduleUsedFirst(bool usedFirst) { m_defaultScheduleUsedFirst = usedFirst; }
    /// @}

    /// A negative duration counts as 0.
    void setRemovingDuration(int days) { m_removingDurationDays = qMax(0, days); }

    /// Writes the three values into the file and leaves the rest of it alone. True once that is on
    /// the disk; false if the old file stays.
    bool write() const;

private:
    QString m_filePath;
    bool m_allInOne = false;
    bool m_defaultScheduleUsedFirst = false;
    int m_removingDurationDays = DefaultRemovingDurationDays;
};

} // namespace Zavo
