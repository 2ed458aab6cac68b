#pragma once

#include <QString>

#include <cstdio>
#include <cstdlib>

namespace ZavoFuzz {

/// Ends the run on the input at hand, which the fuzzer keeps then, unless @p holds.
inline void require(bool holds, const QString &what)
{
    if (holds)
        return;
    std::fprintf(stderr, "WRONG: %s\n", qPrintable(what));
    std::abort();
}

} // namespace ZavoFuzz
