// Which passes the in-cache transform of an order takes, and with vectors of how many bytes. The
// first pass transposes and has no twiddles; each later one has a table that it reads forwards.
#pragma once

#include "frame/simd/vec.h"

namespace vlq::fft {

struct PassPlan {
    int bytes;  // of a vector
    int first;  // radix of the first pass: a multiple of a vector's lanes
    int count;  // of the passes after it
    int radix[4];
};

// The passes after the first, for `bits` of the order: at most radix 16, even shares.
constexpr PassPlan planOf(int bytes, int first, int bits) {
    PassPlan plan{bytes, first, 0, {}};
    for (const int last = (bits + 3) / 4; plan.count < last; ++plan.count) {
        const int share = bits / (last - plan.count);
        plan.radix[plan.count] = 1 << share;
        bits -= share;
    }
    return plan;
}

template <class T>
constexpr PassPlan passPlan(int order) {
    constexpr int size = sizeof(T);
    // The first pass fills a square of lanes from the whole length.
    int bytes = kVecBytes;
    while ((bytes / size) * (bytes / size) > 1 << order) bytes /= 2;
    const int lanes = bytes / size;
    int firstBits = order % 2 ? 3 : 4;
    if (lanes == 16) firstBits = 4;
    if (lanes == 8 && (order == 6 || order % 4 == 2)) firstBits = 3;
    return planOf(bytes, 1 << firstBits, order - firstBits);
}

}  // namespace vlq::fft
