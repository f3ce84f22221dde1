// Loops that fold vectors into one value. Which element meets which accumulator depends on its
// index alone, and the order in which accumulators are combined on nothing: a result is the same
// for every alignment. Nothing outside the vectors is read.
#pragma once

#include <algorithm>
#include <limits>

#include "frame/loop/map.h"
#include "frame/loop/scan.h"
#include "frame/simd/horizontal.h"
#include "frame/simd/tuning.h"

namespace vlq {

namespace detail {

// f(0), f(1) ... f(n - 1) with constants for indices: from loops over an array of accumulators GCC
// 12 keeps it in memory.
template <int n, class F>
inline void forEachIndex(F f) {
    [&]<int... u>(std::integer_sequence<int, u...>) { (f(std::integral_constant<int, u>()), ...); }
    (std::make_integer_sequence<int, n>());
}

template <int n, class Acc, class Op>
inline void mergeUpperHalf(Acc* acc, const Op& op) {
    if constexpr (n > 1) {
        forEachIndex<n / 2>([&](auto u) { acc[u] = op.merge(acc[u], acc[u + n / 2]); });
        mergeUpperHalf<n / 2>(acc, op);
    }
}

}  // namespace detail

// acc = op(acc, block of each source) for all blocks, one vector of the narrowest type each, over
// `accumulators` (a power of two) in turn, which op.merge(a, b) then combines in pairs. All begin
// as `start`, which is neutral in a merge. Lanes past the end are 0, or repeat the last element for
// an op that says by kIdempotent that an element may count twice.
template <int accumulators = kReduceAccumulators, class Acc, class Op, class... S>
inline Acc reduce(std::ptrdiff_t len, Acc start, const Op& op, const S*... src) {
    static_assert((accumulators & (accumulators - 1)) == 0);
    constexpr int count = kVecBytes / detail::kNarrowest<S...>;
    Acc acc[accumulators];
    detail::forEachIndex<accumulators>([&](auto u) { acc[u] = start; });

    const Op hot = op;
    std::ptrdiff_t i = 0;
    const auto whole = [&](Acc& into) {
        into = hot(into, detail::loadBlock<S, count / Vec<S>::lanes>(src + i)...);
        i += count;
    };
    while (len - i >= accumulators * count)
        detail::forEachIndex<accumulators>([&](auto u) { whole(acc[u]); });
    detail::forEachIndex<accumulators - 1>([&](auto u) {
        if (len - i >= count) whole(acc[u]);
    });
    if (i < len) {
        const int rest = static_cast<int>(len - i);
        const auto partial = [rest]<class T>(const T* p) {
            constexpr int lanes = Vec<T>::lanes;
            auto block = detail::loadBlockPartial<T, count / lanes>(p, rest);
            if constexpr (requires { Op::kIdempotent; }) {
                const auto last = Vec<T>::broadcast(loadScalar(p + rest - 1));
                for (int k = 0; k < count / lanes; ++k) {
                    const int used = std::clamp(rest - k * lanes, 0, lanes);
                    block.part[k] = select(firstLanes<T>(used), block.part[k], last);
                }
            }
            return block;
        };
        acc[accumulators - 1] = hot(acc[accumulators - 1], partial(src + i)...);
    }
    detail::mergeUpperHalf<accumulators>(acc, op);
    return acc[0];
}

// ---- extremes -----------------------------------------------------------------------------------
// The smallest or the largest transform(element). NaN is passed over; of a vector of nothing else
// the result is kWorst.
struct Identity {
    template <class V>
    V operator()(V v) const {
        return v;
    }
};

template <class T, class Transform = Identity>
struct Smallest {
    static constexpr bool kIdempotent = true;
    static constexpr T kWorst = std::numeric_limits<T>::has_infinity
                                    ? std::numeric_limits<T>::infinity()
                                    : std::numeric_limits<T>::max();
    static bool better(T a, T b) { return a < b; }
    static Vec<T> merge(Vec<T> a, Vec<T> b) { return minimum(b, a); }
    static T lanes(Vec<T> v) { return laneMinimum(v); }
    Vec<T> operator()(Vec<T> acc, const Block<T, 1>& v) const {
        return minimum(transform(v.part[0]), acc);
    }
    [[no_unique_address]] Transform transform{};
};
template <class T, class Transform = Identity>
struct Largest {
    static constexpr bool kIdempotent = true;
    static constexpr T kWorst = std::numeric_limits<T>::has_infinity
                                    ? -std::numeric_limits<T>::infinity()
                                    : std::numeric_limits<T>::min();
    static bool better(T a, T b) { return a > b; }
    static Vec<T> merge(Vec<T> a, Vec<T> b) { return maximum(b, a); }
    static T lanes(Vec<T> v) { return laneMaximum(v); }
    Vec<T> operator()(Vec<T> acc, const Block<T, 1>& v) const {
        return maximum(transform(v.part[0]), acc);
    }
    [[no_unique_address]] Transform transform{};
};

// The extreme value itself: extreme<Largest<float>>(src, len).
template <class Kind, class T>
inline T extreme(const T* src, std::ptrdiff_t len, Kind kind = {}) {
    return kind.lanes(reduce(len, Vec<T>::broadcast(Kind::kWorst), kind, src));
}

template <class T>
struct ExtremeAt {
    T value;
    std::ptrdiff_t index;  // of the first element with that value; len where all are NaN
};

// The extreme value and where it comes first.
template <class Kind, class T>
inline ExtremeAt<T> extremeAt(const T* src, std::ptrdiff_t len, Kind kind = {}) {
    constexpr std::ptrdiff_t tile = kExtremeTileBytes / static_cast<std::ptrdiff_t>(sizeof(T));
    T best = Kind::kWorst;
    std::ptrdiff_t bestTile = 0;
    for (std::ptrdiff_t i = 0; i < len; i += tile) {
        const T value = extreme<Kind>(src + i, std::min(tile, len - i), kind);
        if (kind.better(value, best)) {
            best = value;
            bestTile = i;
        }
    }
    // A vector whose best value is the worst there is has it anywhere.
    const std::ptrdiff_t last = best == Kind::kWorst ? len : std::min(bestTile + tile, len);
    const std::ptrdiff_t found = findFirst(src + bestTile, last - bestTile, [&](Vec<T> v) {
        return kind.transform(v) == Vec<T>::broadcast(best);
    });
    return {best, bestTile + found};
}

}  // namespace vlq
