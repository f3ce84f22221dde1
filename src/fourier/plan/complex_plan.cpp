// Sizes and tables of the complex transform.
#include "fourier/plan/complex_plan.h"

#include <algorithm>
#include <bit>

#include "fourier/plan/fft_passes.h"
#include "frame/simd/split.h"

namespace vlq::fft {
namespace {

// The twiddles of the in-cache passes: one for each complex value, padded.
template <class T>
constexpr Vlq64s passTableBytes(int order) {
    return roundDown(static_cast<Vlq64s>(2 * sizeof(T)) * pow2(order) + (sizeof(T) == 4 ? 71 : 79),
                     64);
}
template <class T>
constexpr Vlq64s passWorkBytes(int order) {
    return roundDown(static_cast<Vlq64s>(2 * sizeof(T)) * pow2(order) + 63, 64);
}
// N / 4 + 1 32-bit indices, padded: the bit-reversal table.
constexpr Vlq64s plainReversalBytes(int order) { return roundDown(pow2(order) + 67, 64); }

// The bit reversal in tiles of 2^t by 2^t values: one index for each tile, then the swap list of a
// tile.
template <class T>
constexpr Vlq64s tiledReversalBytes(int order) {
    constexpr int t = sizeof(T) == 4 ? 6 : 5;
    return 4 * pow2(order - 2 * t) + 4 * pow2(2 * t - 2) + 64;
}

template <class T>
constexpr Vlq64s quarterWaveBytes(int order) {
    constexpr Vlq64s element = sizeof(T);
    return roundDown(element * (pow2(order - 2) + 1) + 63, 64);
}

template <class T>
int splitLaneOf(int bytes, int lane) {
    return bytes == 16   ? splitLane<T, 16>(lane)
           : bytes == 32 ? splitLane<T, 32>(lane)
                         : splitLane<T, 64>(lane);
}

// The twiddles of every pass after the first, in the order in which the pass reads them: for each
// vector of columns k the R - 1 factors of a radix-R pass, each as a vector of real parts and one
// of imaginary parts.
template <class T>
T* buildPassTable(const PassPlan& plan, int order, const SineTable<T>& sine, Cursor& cursor) {
    const int lanes = plan.bytes / static_cast<int>(sizeof(T));
    T* const table = cursor.take<T>(2 * (pow2(order) - plan.first), kTableAlignment);
    T* next = table;
    int spanBits = std::countr_zero(static_cast<unsigned>(plan.first));
    auto append = [&](int unitBits, Vlq64s factor, Vlq64s column) {
        for (int lane = 0; lane < lanes; ++lane) {
            const Vlq64s k = column + splitLaneOf<T>(plan.bytes, lane);
            const Twiddle<T> w = twiddle(sine, unitBits, factor * k);
            next[lane] = w.re;
            next[lanes + lane] = w.im;
        }
        next += 2 * lanes;
    };
    for (int pass = 0; pass < plan.count; ++pass) {
        const int radix = plan.radix[pass],
                  radixBits = std::countr_zero(static_cast<unsigned>(radix));
        const Vlq64s span = pow2(spanBits);
        for (Vlq64s k = 0; k < span; k += lanes) {
            if (radix == 16) {
                for (int i = 1; i < 4; ++i) append(spanBits + 2, i, k);
                for (int q = 0; q < 4; ++q) {
                    for (int m = 1; m < 4; ++m) append(spanBits + 4, m, k + q * span);
                }
            } else {
                for (int p = 1; p < radix; ++p) append(spanBits + radixBits, p, k);
            }
        }
        spanBits += radixBits;
    }
    return table;
}

// Factors exp(-2 pi i j q / rows) between the steps of a column transform, [j][q] for each step.
template <class T>
void buildColumnTable(int bits, const SineTable<T>& sine, T* next) {
    const ColumnPlan plan = columnPlan(bits);
    for (int step = 0; step + 1 < plan.count; ++step) {
        const int radix = plan.radix[step];
        for (Vlq64s j = 0; j < pow2(bits) / radix; ++j) {
            for (int q = 0; q < radix; ++q, next += 2) {
                const Twiddle<T> w = twiddle(sine, bits, j * q);
                next[0] = w.re;
                next[1] = w.im;
            }
        }
        bits -= std::countr_zero(static_cast<unsigned>(radix));
    }
}

// Twiddles of a phase of 2^rowBits rows and 2^columnBits columns: vectors for the columns of a
// tile, then one factor for each row of each tile; see PhaseTwiddles.
template <class T>
T* buildPhaseTable(int rowBits, int columnBits, const SineTable<T>& sine, Cursor& cursor) {
    constexpr int columns = kTileColumns<T>, lanes = Vec<T>::lanes;
    const Vlq64s rows = pow2(rowBits), tiles = pow2(columnBits) / columns;
    const int order = rowBits + columnBits;
    T* const table = cursor.take<T>(2 * rows * (columns + tiles), kTableAlignment);
    T* next = table;
    for (Vlq64s row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; column += lanes, next += 2 * lanes) {
            for (int lane = 0; lane < lanes; ++lane) {
                const Twiddle<T> w =
                    twiddle(sine, order, row * (column + splitLaneOf<T>(kVecBytes, lane)));
                next[lane] = w.re;
                next[lanes + lane] = w.im;
            }
        }
    }
    for (Vlq64s tile = 0; tile < tiles; ++tile) {
        for (Vlq64s row = 0; row < rows; ++row, next += 2) {
            const Twiddle<T> w = twiddle(sine, order, row * tile * columns);
            next[0] = w.re;
            next[1] = w.im;
        }
    }
    return table;
}

// Powers 4, 8, 12 and 1, 2, 3 of exp(-2 pi i k / 2^order), for each vector of columns k of 16 rows.
template <class T>
T* buildJoinTable(int order, const SineTable<T>& sine, Cursor& cursor) {
    constexpr int lanes = Vec<T>::lanes;
    const Vlq64s length = pow2(order - 4);
    T* const table = cursor.take<T>(12 * length, kTableAlignment);
    T* next = table;
    for (Vlq64s k = 0; k < length; k += lanes) {
        for (const int power : {4, 8, 12, 1, 2, 3}) {
            for (int lane = 0; lane < lanes; ++lane) {
                const Twiddle<T> w =
                    twiddle(sine, order, power * (k + splitLaneOf<T>(kVecBytes, lane)));
                next[lane] = w.re;
                next[lanes + lane] = w.im;
            }
            next += 2 * lanes;
        }
    }
    return table;
}

template <class T>
void buildLargeTables(FloatSpec<T>& spec, int order, const SineTable<T>& sine, Cursor& cursor) {
    if (order <= kLastSplitTwice<T>) {
        const int splits = order <= kLastSplitOnce<T> ? 1 : 2, rowOrder = order - 4 * splits;
        spec.twiddleTable = buildPassTable(rowPlan(rowOrder, 4 * splits), rowOrder, sine, cursor);
        spec.outerTwiddle[0] = buildJoinTable(order, sine, cursor);
        if (splits == 2) {
            spec.outerTwiddle[1] = buildJoinTable(order - 4, sine, cursor);
            spec.outerTwiddle[2] = buildJoinTable(8, sine, cursor);
        }
        return;
    }
    const LargePlan plan = largePlan(order);
    T* const factors = cursor.take<T>(
        2 * (columnTwiddles(plan.outer) + columnTwiddles(plan.middle)), kTableAlignment);
    buildColumnTable(plan.outer, sine, factors);
    buildColumnTable(plan.middle, sine, factors + 2 * columnTwiddles(plan.outer));
    spec.twiddleTable = factors;
    spec.outerTwiddle[0] = buildPhaseTable(plan.outer, order - plan.outer, sine, cursor);
    spec.outerTwiddle[1] = buildPhaseTable(plan.middle, plan.outer, sine, cursor);
}

// The sizes of the large orders are fixed: those of a decomposition into rows and outer radix-4
// stages, level by level, with the tables of a bit reversal. What is built here needs less.
struct Level {
    int outerBits;
    int tileBits;
};
template <class T>
constexpr Level levelOf(int order) {
    if constexpr (sizeof(T) == 4) {
        if (order == 16) return {4, 5};
        if (order <= 18) return {4, 6};
        if (order <= 21) return {6, 7};
        return {8, 6};
    } else {
        if (order <= 15) return {4, 4};
        if (order <= 17) return {4, 6};
        if (order == 18) return {6, 6};
        if (order == 19) return {6, 7};
        return {8, 5};
    }
}

// Tables and work buffer of a large order, without the spec itself and the slack of alignment.
template <class T>
PlanSizes largeSizes(int order) {
    constexpr Vlq64s value = 2 * sizeof(T);
    PlanSizes sizes{};
    sizes.spec = order <= ComplexLimits<T>::plainReversal ? plainReversalBytes(order)
                                                          : tiledReversalBytes<T>(order);
    int level = order;
    while (level > ComplexLimits<T>::inCache) {
        const Level step = levelOf<T>(level);
        sizes.spec += value * pow2(level - 1);
        sizes.work = std::max(sizes.work, value * pow2(step.outerBits + step.tileBits));
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
                          : PlanSizes{passTableBytes<T>(order) + plainReversalBytes(order), 0,
                                      passWorkBytes<T>(order)};
    sizes.spec += 192;
    sizes.work += 64;
    if (order > kConstantSineOrder) sizes.init = quarterWaveBytes<T>(order) + 64;
    return sizes;
}

template <class T>
void buildComplexTables(FloatSpec<T>& spec, int order, const SineTable<T>& sine, Cursor& cursor) {
    using Limits = ComplexLimits<T>;
    spec.workBytes = 0;
    if (order <= Limits::straightLine) return;
    spec.workBytes = static_cast<Vlq32s>(complexSizes<T>(order).work - 64);
    if (order > Limits::inCache)
        buildLargeTables<T>(spec, order, sine, cursor);
    else
        spec.twiddleTable = buildPassTable<T>(passPlan<T>(order), order, sine, cursor);
}

template PlanSizes complexSizes<Vlq32f>(int);
template PlanSizes complexSizes<Vlq64f>(int);
template void buildComplexTables<Vlq32f>(FloatSpec<Vlq32f>&, int, const SineTable<Vlq32f>&,
                                         Cursor&);
template void buildComplexTables<Vlq64f>(FloatSpec<Vlq64f>&, int, const SineTable<Vlq64f>&,
                                         Cursor&);

}  // namespace vlq::fft
