#pragma once

#include "ZvCoreExport.h"
#include "ZvSchedule.h"

#include <QDate>
#include <QList>
#include <QMetaType>
#include <QString>

namespace Zavo {

/// One channel of the playout system: its number, its name, its place among the channels and its
/// schedules, kept in a file of its own.
///
/// A copy shares the schedules with its original until one of the two is written to, so that a
/// snapshot costs next to nothing and comparing with it does not walk what both share.
class ZVCORE_EXPORT ZvChannel
{
public:
    /// An empty channel of id 0 and index 0, bound to the file, which is not touched.
    explicit ZvChannel(const QString &filePath);

    QString filePath() const { return m_filePath; } ///< what readFile() and writeToFile() use

    /// Number that stays with the channel for good.
    int id() const { return m_id; }

    QString name() const { return m_name; } ///< what people call it, not unique

    /// Place among the channels, from 0.
    int index() const { return m_index; }

    /// The live list of schedules, ordered: the default schedule, the days from Monday to Sunday,
    /// the dates ascending. Callers look, and edit by insertSchedule() and removeSchedule() alone;
    /// to look without parting the list from the copies that share it, bind it to a reference to
    /// const.
    QList<ZvSchedule> &scheduleList() const { return m_scheduleList; }

    /// The schedule of the date, or a default-constructed one if the date has none.
    ZvSchedule getSchedule(const QDate &date) const;

    /// True if id, index, name and all schedules are equal; the file path does not count. The flags
    /// leave out the index and the name.
    bool isMatch(const ZvChannel &other, bool ignoreIndex, bool ignoreName) const;

    void setFilePath(const QString &filePath) { m_filePath = filePath; } ///< touches no file
    void setId(int id) { m_id = id; }                    ///< one that no other channel has
    void setName(const QString &name) { m_name = name; } ///< any text
    void setIndex(int index) { m_index = index; }        ///< from 0

    /// Stores the schedule in its place, over the one of the same key if there is one, and returns
    /// its index. -1 if it names no day: no type, a date that is none, a day outside the week.
    ///
    /// Bands are stored sorted by start and never overlap: one that runs past the start of the next
    /// ends there. Over an equal key, a band that is == to a stored one keeps the stored record,
    /// and the times of the others move to the whole second if they are within ZvTime::ToleranceMs
    /// of it. So storing what was read back from the time table changes nothing.
    int insertSchedule(const ZvSchedule &schedule);

    /// Removes the schedule of the same key and returns the index that it had, or -1 if there was
    /// none.
    int removeSchedule(const ZvSchedule &schedule);

    /// Fills the channel from its file. False, with the channel as it was, if the file cannot be
    /// read or anything in it is not as it should be.
    bool readFile();

    /// Writes the channel to its file, which at any moment is the old one or the new one, whole.
    /// True once the new one is on the disk; false if the old one stays.
    bool writeToFile() const;

private:
    QString m_filePath;
    int m_id = 0;
    int m_index = 0;
    QString m_name;
    mutable QList<ZvSchedule> m_scheduleList;
};

} // namespace Zavo

Q_DECLARE_METATYPE(Zavo::ZvChannel *)
Q_DECLARE_METATYPE(const Zavo::ZvChannel *)
