#pragma once

#include <QString>

namespace Zavo {

/// Copies of stages under generated names. A schedule that is to switch between a stage and itself
/// needs the stage a second time; the copy lies beside it and carries a mark in its name, by which
/// it is kept out of lists.
class GeneratedStage final
{
public:
    enum Result {
        Written,
        OldNotRemoved, ///< the folder is as it was
        NotWritten     ///< there is no copy, an earlier one included
    };

    GeneratedStage() = delete;

    /// A regular expression for the whole name of a generated stage.
    static QString namePattern();

    /// Whether the suffixes of @p stageName carry the mark.
    static bool isGenerated(const QString &stageName);

    /// What the copy of @p stageName, a file name without folders, is called.
    static QString nameFor(const QString &stageName);

    /// Makes the copy of @p stageName in the same @p folder, in place of an earlier one. The copy
    /// has the permissions of the stage, and appears with its whole content or not at all.
    static Result write(const QString &folder, const QString &stageName);
};

} // namespace Zavo
