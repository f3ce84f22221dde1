// How a complex transform is cut into passes. Up to the size of a cache it takes one pass after the
// other over all values; beyond, it is cut into sixteen rows, and those once more, as long as a row
// and the work buffer fit a cache; beyond that, into three phases of column transforms.
#pragma once

#include <algorithm>

#include "frame/simd/vec.h"
#include "vlqs/types.h"

namespace vlq::fft {

// ---- in cache -----------------------------------------------------------------------------------
// The passes of one order and the width of their vectors. The first pass transposes and has no
// twiddles; each later one has a table that it reads forwards.
struct PassPlan {
    int bytes;  // of a vector
    int first;  // radix of the first pass: a multiple of a vector's lanes
    int count;  // of the passes after it
    int radix[5];
};

inline constexpr int kFirstPlanned = 6;  // order

// Radices by order from 6, the fastest as measured. Radix 16 saves passes over the data where the
// lanes of a vector and the number of registers allow; vectors of 16 bytes are faster without.
template <class T, int bytes>
inline constexpr signed char kRadices[10][6] = {
    {8, 8},       {8, 4, 4},       {8, 8, 4},       {8, 8, 8},       {8, 4, 8, 4},
    {8, 8, 8, 4}, {8, 4, 4, 8, 4}, {8, 8, 8, 4, 4}, {8, 4, 8, 8, 8}, {8, 8, 4, 8, 4, 4}};
template <>
inline constexpr signed char kRadices<Vlq32f, 32>[10][6] = {
    {8, 8},        {16, 8},      {16, 4, 4},      {16, 8, 4},       {16, 4, 4, 4},
    {16, 4, 8, 4}, {16, 16, 16}, {8, 4, 8, 8, 4}, {8, 4, 8, 16, 4}, {8, 4, 8, 16, 8}};
template <>
inline constexpr signed char kRadices<Vlq64f, 32>[10][6] = {
    {16, 4},      {8, 4, 4},   {16, 4, 4},   {16, 8, 4},
    {8, 4, 8, 4}, {16, 8, 16}, {8, 8, 8, 8}, {8, 4, 8, 8, 4}};
template <>
inline constexpr signed char kRadices<Vlq32f, 64>[10][6] = {{},
                                                            {},
                                                            {16, 16},
                                                            {16, 8, 4},
                                                            {16, 16, 4},
                                                            {16, 8, 4, 4},
                                                            {16, 16, 16},
                                                            {16, 8, 16, 4},
                                                            {16, 8, 16, 8},
                                                            {16, 8, 16, 4, 4}};
template <>
inline constexpr signed char kRadices<Vlq64f, 64>[10][6] = {
    {8, 8}, {16, 8}, {16, 16}, {8, 16, 4}, {16, 4, 16}, {16, 16, 8}, {8, 8, 16, 4}, {8, 8, 16, 8}};

template <class T, int bytes>
constexpr PassPlan planOf(int order) {
    const signed char* radices = kRadices<T, bytes>[order - kFirstPlanned];
    PassPlan plan{bytes, *radices, 0, {}};
    for (int product = plan.first; product < 1 << order; product *= plan.radix[plan.count++]) {
        plan.radix[plan.count] = radices[plan.count + 1];
    }
    return plan;
}

// The first order for the widest vectors: the first pass transposes squares of lanes by lanes, and
// the values must fill at least one. Smaller orders run on vectors of half the width.
template <class T>
inline constexpr int kFirstFullWidth = kVecBytes / sizeof(T) == 16 ? 8 : kFirstPlanned;

// Whether a later pass on vectors of `bytes` bytes has this radix. Half-width vectors serve two
// orders; what these do not use need not be compiled.
template <class T, int bytes>
constexpr bool hasLaterRadix(int radix) {
    if (bytes == kVecBytes) return radix < 16 || bytes > 16;
    for (int order = kFirstPlanned; order < kFirstFullWidth<T>; ++order) {
        const PassPlan plan = planOf<T, bytes>(order);
        for (int i = 0; i < plan.count; ++i) {
            if (plan.radix[i] == radix) return true;
        }
    }
    return false;
}

template <class T>
constexpr PassPlan passPlan(int order) {
    if constexpr (kFirstFullWidth < T >> kFirstPlanned) {
        if (order < kFirstFullWidth<T>) return planOf<T, kVecBytes / 2>(order);
    }
    return planOf<T, kVecBytes>(order);
}

// ---- rows ---------------------------------------------------------------------------------------
// Last orders of sixteen rows, and of sixteen times sixteen.
template <class T>
inline constexpr int kLastSplitOnce = sizeof(T) == 4 ? 18 : 17;
template <class T>
inline constexpr int kLastSplitTwice = kLastSplitOnce<T> + 4;

// The passes of one row after the rows have been split off: groups of 2^spanBits values are done.
// All passes run between the row and the work buffer but the last, which may run in place.
inline constexpr int kFewestRowBits = 2;
inline constexpr signed char kRowRadices[2][9][4] = {
    {{4}, {8}, {4, 4}, {8, 4}, {8, 8}, {8, 4, 4}, {8, 8, 4}, {8, 8, 8}, {8, 8, 4, 4}},
    {{4}, {8}, {16}, {8, 4}, {8, 8}, {8, 16}, {16, 16}, {16, 8, 4}, {16, 16, 4}}};

constexpr PassPlan rowPlan(int order, int spanBits) {
    PassPlan plan{kVecBytes, 1 << spanBits, 0, {}};
    for (const signed char radix : kRowRadices[kVecBytes > 16][order - spanBits - kFewestRowBits]) {
        if (radix > 0) plan.radix[plan.count++] = radix;
    }
    return plan;
}

// ---- phases -------------------------------------------------------------------------------------
// Above kLastSplitTwice, N = 2^outer * 2^middle * 2^outer values form a cube [h][m][r] with r
// contiguous. The first phase transforms over h and exchanges h and r, tile by tile; the second
// combines over m, the third over r. Each takes a few columns at a time through the work buffer and
// writes the results to the rows they came from.
struct LargePlan {
    int outer;
    int middle;
};
constexpr LargePlan largePlan(int order) {
    const int outer = order % 3 == 2 ? order / 3 + 1 : order / 3;
    return {outer, order - 2 * outer};
}

// Columns of a tile: 128 bytes of interleaved values.
template <class T>
inline constexpr int kTileColumns = 64 / static_cast<int>(sizeof(T));

// A column transform of 2^bits values: radix-8 and radix-16 steps, decimation in frequency.
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

// Number of twiddles between the steps of a column transform.
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
