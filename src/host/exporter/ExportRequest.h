#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>

namespace Zavo {

/// What is to be exported, and where to.
struct ExportRequest
{
    enum Format { Package, Table, Calendar, WeekSheet };

    /// Longest range of dates, a leap year.
    static constexpr int MaximumDays = 366;

    Format format = Package;
    QString dataDir;
    QString channelFile;
    QString target;
    QDate from; ///< first date of a calendar, or a date of the week of a sheet
    QDate to;   ///< last date of a calendar
};

/// What became of it.
struct ExportResult
{
    QString problem;     ///< a sentence for the user; empty if the target was written
    QStringList remarks; ///< what the target lacks, a sentence each
};

/// The bytes of an export, or why there are none.
struct ExportContent
{
    QByteArray bytes;
    QString problem;
    QStringList remarks;
};

} // namespace Zavo
