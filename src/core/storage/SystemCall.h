#pragma once

#include <cerrno>

namespace Zavo {

/// Repeats a system call for as long as a signal interrupts it, and returns its result.
template<typename Call>
auto retried(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

} // namespace Zavo
