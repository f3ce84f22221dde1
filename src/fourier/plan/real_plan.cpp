#include "fourier/plan/real_plan.h"

#include "fourier/plan/complex_plan.h"

namespace vlq::fft {
namespace {

constexpr Vlq64s powerOfTwo(int exponent) { return Vlq64s{1} << exponent; }

// Where factor k (from 0) of a grouped table has its cosine; its sine follows `group` later.
template <class T>
int lanePlace(int group, Vlq64s k) {
    for (int lane = 0; lane < group; ++lane) {
        const int value = group * static_cast<int>(sizeof(T)) == 16   ? splitLane<T, 16>(lane)
                          : group * static_cast<int>(sizeof(T)) == 32 ? splitLane<T, 32>(lane)
                                                                      : splitLane<T, 64>(lane);
        if (value == k % group) return lane;
    }
    return 0;
}

// factor(k, cosine, sine) stores the two parts of factor k = 1 to count.
template <class T, class Factor>
void fillGroups(T* table, Vlq64s count, Factor factor) {
    const int group = factorGroup<T>(count);
    int place[kVecBytes];
    for (int k = 0; k < group; ++k) place[k] = lanePlace<T>(group, k);
    for (Vlq64s k = 0; k < count; ++k) {
        T* parts = table + k / group * 2 * group + place[k % group];
        factor(k + 1, parts[0], parts[group]);
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
                               ? element * powerOfTwo(order) + 126
                               : element * powerOfTwo(order - Limits::fineOrder) + 16510;
    sizes.spec += roundDown(factors, 128) + 192;
    if (order > kConstantSineOrder) {
        const Vlq64s quarterWave = element * (powerOfTwo(order - 2) + 1);
        sizes.init += roundUp(quarterWave, 64) + 64;
    }
    return sizes;
}

template <class T>
void buildRealTables(FloatingRecord<T>& record, int order, const SineTable<T>& sine, Cursor& cursor) {
    using Limits = RealLimits<T>;
    record.workBytes = 0;
    if (order <= Limits::straightLine) return;
    if (order >= Limits::complexTables) buildComplexTables(record, order - 1, sine, cursor);

    const Vlq64s quarter = powerOfTwo(order - 2);
    const int stride = sine.order - order;
    auto sinOf = [&](Vlq64s k) { return sine.values[k << stride]; };
    auto cosOf = [&](Vlq64s k) { return sine.values[(quarter - k) << stride]; };

    if (order < Limits::twoLevel) {
        T* forward = cursor.take<T>(2 * quarter, kTableAlignment);
        T* inverse = cursor.take<T>(2 * quarter, kTableAlignment);
        fillGroups(forward, quarter, [&](Vlq64s k, T& cosine, T& sin) {
            cosine = T(0.5) * cosOf(k);
            sin = static_cast<T>(0.5 - 0.5 * static_cast<double>(sinOf(k)));
        });
        fillGroups(inverse, quarter, [&](Vlq64s k, T& cosine, T& sin) {
            cosine = cosOf(k);
            sin = -sinOf(k);
        });
        record.realTwiddleFwd = forward;
        record.realTwiddleInv = inverse;
        return;
    }

    // Fine factors in groups, then the coarse ones, interleaved.
    constexpr Vlq64s fine = powerOfTwo(Limits::fineOrder);
    const Vlq64s coarse = quarter / fine;
    auto build = [&] {
        T* table = cursor.take<T>(2 * (fine + coarse), kTableAlignment);
        fillGroups(table, fine, [&](Vlq64s k, T& cosine, T& sin) {
            cosine = cosOf(k);
            sin = -sinOf(k);
        });
        for (Vlq64s b = 0; b < coarse; ++b) {
            table[2 * (fine + b)] = cosOf(fine * b);
            table[2 * (fine + b) + 1] = -sinOf(fine * b);
        }
        return table;
    };
    record.realTwiddleFwd = build();
    record.realTwiddleInv = build();
}

template PlanSizes realSizes<Vlq32f>(int);
template PlanSizes realSizes<Vlq64f>(int);
template void buildRealTables<Vlq32f>(FloatingRecord<Vlq32f>&, int, const SineTable<Vlq32f>&, Cursor&);
template void buildRealTables<Vlq64f>(FloatingRecord<Vlq64f>&, int, const SineTable<Vlq64f>&, Cursor&);

}  // namespace vlq::fft
