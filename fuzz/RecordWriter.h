#pragma once

#include "FuzzInput.h"

#include "ZvSchedule.h"

#include <QList>
#include <QString>

namespace ZavoFuzz {

/// Records of every kind from the bytes of an input: names with any code unit, times that are none
/// or out of order, days and dates that do not exist.
class RecordWriter final
{
public:
    explicit RecordWriter(FuzzInput *input)
        : m_input(input)
    {
    }

    /// Mostly short, of code units of all planes, with halves of surrogates and control characters.
    QString name();
    QTime time();
    Zavo::ZvTime band();
    Zavo::ZvSchedule schedule();
    QList<Zavo::ZvSchedule> schedules();

private:
    FuzzInput *m_input;
};

} // namespace ZavoFuzz
