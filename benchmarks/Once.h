#pragma once

#include <functional>

/// Does a work, for a profiler that collects within this function alone.
extern "C" __attribute__((noinline)) inline void
measuredOperation(const std::function<void()> *work)
{
    (*work)();
    asm volatile(""); // no tail call: the profiler waits for the return
}
