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

// The passes after the first, for `bits` of the order: at most radix 2^widest, even shares.
constexpr PassPlan planOf(int bytes, int first, int bits, int widest) {
    PassPlan plan{bytes, first, 0, {}};
    for (const int last = (bits + widest - 1) / widest; plan.count < last; ++plan.count) {
        const int share = bits / (last - plan.count);
        plan.radix[plan.count] = 1 << share;
        bits -= share;
    }
    return plan;
}

// Radix 16 saves passes over the data, at the price of much straight-line code. Vectors of 16 bytes
// need the most of it: at short lengths, where each piece runs but a few times, forward and inverse
// in turn then drive each other out of the processor's decoded instructions; at long ones the
// sixteen streams meet in too few ways of the first cache.
constexpr int widestPass(int bytes, int order) {
    if (bytes == 64) return 4;
    if (order > 12) return 3;
    if (bytes == 32) return 4;
    return order <= 7 ? 2 : order == 8 ? 3 : 4;
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
    return planOf(bytes, 1 << firstBits, order - firstBits, widestPass(bytes, order));
}

}  // namespace vlq::fft
