#pragma once

#include "FaultHouse.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace ZavoTest {

/// How one operation with a fault went.
struct Outcome
{
    bool isDone = false; ///< it ended by itself
    QStringList boxes;   ///< what the user was told, as "<title>|<text>"
    Files files;         ///< what lies in the folder afterwards

    bool tells(const QString &words) const;
};

/// Something that the user does and that goes to the disk.
struct Operation
{
    QString name;
    Files before;
    bool needsWindow = true; ///< the window stands before; otherwise starting it is the operation

    std::function<void(FaultHouse &house)> act;

    /// What is wrong with the outcome; empty if nothing is. The house stands on the folder that it
    /// speaks of, which may be written to.
    std::function<QString(const Outcome &outcome, const FaultHouse &house)> check;
};

/// All of them. The window of the house is open on the sample, with everything edited and nothing
/// saved.
std::vector<Operation> allOperations(const FaultHouse &house);

} // namespace ZavoTest
