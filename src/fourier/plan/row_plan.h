// How a transform beyond the first caches is cut: into sixteen rows, and those once more, as long
// as rows and work buffer have room there (kernel/sixteen_rows.h). Above that, N = 2^outer *
// 2^middle * 2^outer values form a cube [H][M][r], r next to each other. A first phase transforms
// over H and exchanges H and r, tile by tile; the rest combines over M, then r. Every phase takes
// columns a few at a time through the work buffer and leaves them where they were.
#pragma once

#include <algorithm>

#include "vlqs/types.h"

namespace vlq::fft {

// Last orders of sixteen rows, and of sixteen times sixteen.
template <class T>
inline constexpr int kLastSplitOnce = sizeof(T) == 4 ? 18 : 17;
template <class T>
inline constexpr int kLastSplitTwice = kLastSplitOnce<T> + 4;

struct LargePlan {
    int outer;
    int middle;
};

// Columns that a phase takes at a time: 128 bytes of interleaved values.
template <class T>
inline constexpr int kTileColumns = 64 / static_cast<int>(sizeof(T));

// For orders above kLastSplitTwice.
constexpr LargePlan largePlan(int order) {
    const int outer = order % 3 == 2 ? order / 3 + 1 : order / 3;
    return {outer, order - 2 * outer};
}

// A column transform of 2^bits values: radix-8 and radix-16 steps, decimated in frequency.
struct ColumnPlan {
    int count;
    int radix[3];
};
constexpr ColumnPlan columnPlan(int bits) {
    ColumnPlan plan{0, {}};
    for (const int count = (bits + 3) / 4; plan.count < count; ++plan.count) {
        const int share = (bits + count - plan.count - 1) / (count - plan.count);
        plan.radix[plan.count] = 1 << share;
        bits -= share;
    }
    return plan;
}

// Factors between the steps of a column transform.
constexpr Vlq64s columnTwiddles(int bits) {
    const ColumnPlan plan = columnPlan(bits);
    Vlq64s count = 0;
    for (int i = 0; i + 1 < plan.count; ++i) {
        count += Vlq64s{1} << bits;
        for (int r = plan.radix[i]; r > 1; r /= 2) --bits;
    }
    return count;
}

}  // namespace vlq::fft
