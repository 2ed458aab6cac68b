#pragma once

#include "check/CheckFinding.h"

#include <QCoreApplication>
#include <QString>

namespace Zavo {

/// A check in words.
class CheckText final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::CheckText)

public:
    CheckText() = delete;

    /// One line without its end: file, channel and schedule as far as there are any, and what is to
    /// be said. What would break the line or steer a terminal is shown as a box.
    static QString line(const CheckFinding &finding);

    /// How many findings there are in how many files.
    static QString summary(const CheckReport &report);
};

} // namespace Zavo
