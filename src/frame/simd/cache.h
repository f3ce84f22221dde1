// The size of the processor's cache.
#pragma once

#include <cpuid.h>

#include <cstddef>

namespace vlq {

// Bytes of the last-level cache, 0 where the processor does not report it. Executes CPUID at each
// call and caches nothing: under a hypervisor that takes a microsecond or two each time.
inline std::size_t cacheBytes() {
    unsigned a, b, c, d;
    __cpuid(0, a, b, c, d);
    // The deterministic cache parameters: one layout, at a leaf number of each vendor's own. A
    // processor without them returns zeros: no cache of that index.
    unsigned leaf = 0;
    if (b == signature_INTEL_ebx && c == signature_INTEL_ecx && d == signature_INTEL_edx && a >= 4)
        leaf = 4;
    if (b == signature_AMD_ebx && c == signature_AMD_ecx && d == signature_AMD_edx)
        leaf = 0x8000001Du;
    if (leaf == 0) return 0;
    // Index 3 is the third level, 2 the second.
    for (unsigned index = 3; index >= 2; --index) {
        __cpuid_count(leaf, index, a, b, c, d);
        const unsigned kind = a & 31;
        if (kind == 0) continue;
        const std::size_t ways = (b >> 22) + 1, partitions = ((b >> 12) & 0x3FF) + 1,
                          line = (b & 0xFFF) + 1;
        return ways * partitions * line * (std::size_t{c} + 1);
    }
    return 0;
}

}  // namespace vlq
