#pragma once

#include <QString>

namespace ZavoTest {

/// What this process holds of its machine.
struct Footprint
{
    double heapMiB = 0.0;     ///< given out by the allocator and not given back
    double residentMiB = 0.0; ///< of physical memory
    int descriptors = 0;

    static Footprint now();

    /// Waits for what is to be deleted later, then takes it.
    static Footprint atRest();
};

} // namespace ZavoTest
