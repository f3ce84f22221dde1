// The processor's cache: its size, and a touch that brings a line in.
#pragma once

#include <cpuid.h>

#include <cstddef>

#include "frame/simd/vec.h"

namespace vlq {

inline void touch(const void* p) { _mm_prefetch(static_cast<const char*>(p), _MM_HINT_T0); }

// Bytes of the last-level cache, 0 where the processor does not tell. Asks the processor at each
// call and keeps nothing; under a hypervisor this takes microseconds.
inline std::size_t cacheBytes() {
    // Leaf of deterministic cache parameters, one sub-leaf a cache, in the same layout for both vendors.
    const auto fromLeaf = [](unsigned leaf) {
        std::size_t largest = 0;
        for (unsigned i = 0; i < 8; ++i) {
            unsigned a, b, c, d;
            __cpuid_count(leaf, i, a, b, c, d);
            const unsigned kind = a & 31;
            if (kind == 0) break;
            const std::size_t bytes = std::size_t{(b >> 22) + 1} * (((b >> 12) & 0x3FF) + 1) * ((b & 0xFFF) + 1) * (std::size_t{c} + 1);
            if (bytes > largest) largest = bytes;
        }
        return largest;
    };
    unsigned a, b, c, d;
    __cpuid(0, a, b, c, d);
    const bool intel = b == signature_INTEL_ebx && c == signature_INTEL_ecx && d == signature_INTEL_edx;
    if (intel) return a >= 4 ? fromLeaf(4) : 0;
    const bool amd = b == signature_AMD_ebx && c == signature_AMD_ecx && d == signature_AMD_edx;
    if (!amd) return 0;
    __cpuid(0x80000000u, a, b, c, d);
    return a >= 0x8000001Du ? fromLeaf(0x8000001Du) : 0;
}

}  // namespace vlq
