#pragma once

#include <QCoreApplication>

#include <cstdio>

namespace Zavo {

/// The check as a command, for scripts and terminals.
class CheckCommand final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::CheckCommand)

public:
    enum ExitCode { NothingFound = 0, Found = 1, NotChecked = 2 };

    /// Findings go to @p out, a line each, errors to @p errors. With @p showProgress a line of
    /// @p errors tells how far the check is once it takes longer than half a second.
    CheckCommand(FILE *out, FILE *errors, bool showProgress);

    /// Checks the data folder of ZvEditorConfig.
    ExitCode run();

private:
    void writeProgress(int done, int total);
    void clearProgress();

    FILE *m_out;
    FILE *m_errors;
    bool m_showProgress;
    bool m_progressShown = false;
};

} // namespace Zavo
