#include "fourier/plan/complex_plan.h"

#include <algorithm>

#include "fourier/plan/large.h"

namespace vlq::fft {
namespace {

constexpr Vlq64s powerOfTwo(int exponent) { return Vlq64s{1} << exponent; }

// The twiddles of the in-cache passes: one complex value an element, padded.
template <class T>
constexpr Vlq64s passTableBytes(int order) {
    return roundDown(static_cast<Vlq64s>(2 * sizeof(T)) * powerOfTwo(order) + (sizeof(T) == 4 ? 71 : 79), 64);
}
template <class T>
constexpr Vlq64s passWorkBytes(int order) {
    return roundDown(static_cast<Vlq64s>(2 * sizeof(T)) * powerOfTwo(order) + 63, 64);
}
// A quarter of N words and one, padded: the bit-reversal table.
constexpr Vlq64s plainReversalBytes(int order) { return roundDown(powerOfTwo(order) + 67, 64); }

// The reversal in tiles of 2^t by 2^t values: the tiles' words, then the swap list of one tile.
template <class T>
constexpr Vlq64s tiledReversalBytes(int order) {
    constexpr int t = sizeof(T) == 4 ? 6 : 5;
    return 4 * powerOfTwo(order - 2 * t) + 4 * powerOfTwo(2 * t - 2) + 64;
}

template <class T>
constexpr Vlq64s quarterWaveBytes(int order) {
    constexpr Vlq64s element = sizeof(T);
    return roundDown(element * (powerOfTwo(order - 2) + 1) + 63, 64);
}

// Table and work of a large order, without the record and the slack.
template <class T>
PlanSizes largeSizes(int order) {
    constexpr Vlq64s value = 2 * sizeof(T);
    PlanSizes sizes{};
    sizes.spec = order <= ComplexLimits<T>::plainReversal ? plainReversalBytes(order) : tiledReversalBytes<T>(order);
    int level = order;
    while (level > ComplexLimits<T>::inCache) {
        const LargeStep step = largeStep<T>(level);
        sizes.spec += value * powerOfTwo(level - 1);
        sizes.work = std::max(sizes.work, value * powerOfTwo(step.outerBits + step.tileBits));
        level -= step.outerBits;
    }
    sizes.spec += passTableBytes<T>(level);
    sizes.work = std::max(sizes.work, passWorkBytes<T>(level));
    return sizes;
}

}  // namespace

template <class T>
PlanSizes complexSizes(int order) {
    using Limits = ComplexLimits<T>;
    if (order <= Limits::straightLine) return {sizeof(T) == 4 ? 148 : 152, 0, 0};
    PlanSizes sizes = order > Limits::inCache
                          ? largeSizes<T>(order)
                          : PlanSizes{passTableBytes<T>(order) + plainReversalBytes(order), 0, passWorkBytes<T>(order)};
    sizes.spec += 192;
    sizes.work += 64;
    if (order > kConstantSineOrder) sizes.init = quarterWaveBytes<T>(order) + 64;
    return sizes;
}

template <class T>
void buildComplexTables(FloatingRecord<T>& record, int order, const SineTable<T>& sine, Cursor& cursor) {
    using Limits = ComplexLimits<T>;
    record.workBytes = 0;
    if (order <= Limits::straightLine) return;
    record.workBytes = static_cast<Vlq32s>(complexSizes<T>(order).work - 64);
    if (order > Limits::inCache) return;

    T* table = cursor.take<T>(2 * powerOfTwo(order), kTableAlignment);
    record.twiddleTable = table;
    for (Vlq64s k = 0; k < powerOfTwo(order); ++k) {
        const Twiddle<T> w = twiddle(sine, order, k);
        table[2 * k] = w.re;
        table[2 * k + 1] = w.im;
    }
}

template PlanSizes complexSizes<Vlq32f>(int);
template PlanSizes complexSizes<Vlq64f>(int);
template void buildComplexTables<Vlq32f>(FloatingRecord<Vlq32f>&, int, const SineTable<Vlq32f>&, Cursor&);
template void buildComplexTables<Vlq64f>(FloatingRecord<Vlq64f>&, int, const SineTable<Vlq64f>&, Cursor&);

}  // namespace vlq::fft
