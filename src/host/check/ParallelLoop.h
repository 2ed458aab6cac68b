#pragma once

#include <functional>

namespace Zavo {

/// Calls @p work with each number from 0 to @p count - 1, on this thread and as many others as the
/// machine has processors for. Returns when all calls have returned. Once @p isCancelled gives
/// true, no more calls begin.
void runInParallel(int count, const std::function<void(int)> &work,
                   const std::function<bool()> &isCancelled);

} // namespace Zavo
