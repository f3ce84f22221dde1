// Sizes and tables of the real transform.
#include "fourier/plan/real_plan.h"

#include "fourier/plan/complex_plan.h"
#include "frame/simd/split.h"

namespace vlq::fft {
namespace {

// Fills groups of B bytes a part; factor(k, cosine, sine) sets both parts of factor k, for k from
// `first` to first + count - 1.
template <int B, class T, class Factor>
void fillGroups(T* table, Vlq64s first, Vlq64s count, Factor factor) {
    constexpr int lanes = B / static_cast<int>(sizeof(T));
    for (Vlq64s group = 0; group < count; group += lanes, table += 2 * lanes) {
        for (int lane = 0; lane < lanes; ++lane) {
            factor(first + group + splitLane<T, B>(lane), table[lane], table[lanes + lane]);
        }
    }
}

}  // namespace

template <class T>
PlanSizes realSizes(int order) {
    using Limits = RealLimits<T>;
    constexpr Vlq64s element = sizeof(T);
    PlanSizes sizes{sizeof(T) == 4 ? 148 : 152, 0, 0};
    if (order <= Limits::straightLine) return sizes;

    sizes.spec = 0;
    if (order >= Limits::complexTables) sizes = complexSizes<T>(order - 1);
    const Vlq64s factors = order < Limits::twoLevel
                               ? element * pow2(order) + 126
                               : element * pow2(order - Limits::fineOrder) + 16510;
    sizes.spec += roundDown(factors, 128) + 192;
    if (order > kConstantSineOrder) {
        const Vlq64s quarterWave = element * (pow2(order - 2) + 1);
        sizes.init += roundUp(quarterWave, 64) + 64;
    }
    return sizes;
}

template <class T>
void buildRealTables(FloatSpec<T>& spec, int order, const SineTable<T>& sine, Cursor& cursor) {
    using Limits = RealLimits<T>;
    spec.workBytes = 0;
    if (order <= Limits::straightLine) return;
    if (order >= Limits::complexTables) buildComplexTables(spec, order - 1, sine, cursor);

    const Vlq64s quarter = pow2(order - 2);
    const int stride = sine.order - order;
    auto sinOf = [&](Vlq64s k) { return sine.values[k << stride]; };
    auto cosOf = [&](Vlq64s k) { return sine.values[(quarter - k) << stride]; };
    auto plainFactor = [&](Vlq64s k, T& cosine, T& sin) {
        cosine = cosOf(k);
        sin = -sinOf(k);
    };

    if (order < Limits::twoLevel) {
        T* forward = cursor.take<T>(2 * quarter, kTableAlignment);
        T* inverse = cursor.take<T>(2 * quarter, kTableAlignment);
        auto forwardFactor = [&](Vlq64s k, T& cosine, T& sin) {
            cosine = T(0.5) * cosOf(k);
            sin = static_cast<T>(0.5 - 0.5 * static_cast<double>(sinOf(k)));
        };
        if (order <= Limits::inRegisters) {
            fillGroups<16>(forward, 0, quarter, forwardFactor);
            fillGroups<16>(inverse, 0, quarter, plainFactor);
        } else {
            fillGroups<kVecBytes>(forward, 1, quarter, forwardFactor);
            fillGroups<kVecBytes>(inverse, 1, quarter, plainFactor);
        }
        spec.realTwiddleFwd = forward;
        spec.realTwiddleInv = inverse;
        return;
    }

    // The fine factors in groups, then the coarse ones, interleaved.
    constexpr Vlq64s fine = pow2(Limits::fineOrder);
    const Vlq64s coarse = quarter / fine;
    auto build = [&] {
        T* table = cursor.take<T>(2 * (fine + coarse), kTableAlignment);
        fillGroups<kVecBytes>(table, 1, fine, plainFactor);
        for (Vlq64s b = 0; b < coarse; ++b)
            plainFactor(fine * b, table[2 * (fine + b)], table[2 * (fine + b) + 1]);
        return table;
    };
    spec.realTwiddleFwd = build();
    spec.realTwiddleInv = build();
}

template PlanSizes realSizes<Vlq32f>(int);
template PlanSizes realSizes<Vlq64f>(int);
template void buildRealTables<Vlq32f>(FloatSpec<Vlq32f>&, int, const SineTable<Vlq32f>&, Cursor&);
template void buildRealTables<Vlq64f>(FloatSpec<Vlq64f>&, int, const SineTable<Vlq64f>&, Cursor&);

}  // namespace vlq::fft
