#pragma once

#include <QCoreApplication>
#include <QString>

namespace Zavo {

/// Looks at one stage as a display would.
class StageInspection final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::StageInspection)

public:
    StageInspection() = delete;

    /// What is wrong with the stage of that name in the stage folder, in a sentence; empty if
    /// nothing is.
    static QString problem(const QString &stageFolder, const QString &name);
};

} // namespace Zavo
