// Across the lanes of one vector: sums and extremes, in one fixed order.
#pragma once

#include "frame/simd/ops.h"

namespace vlq {

namespace detail {

// Folds the upper half of the lanes onto the lower half until one lane is left.
template <class T, int B, class Op>
inline T foldLanes(Vec<T, B> v, Op op) {
    if constexpr (B > 16) {
        return foldLanes(op(lowHalf(v), highHalf(v)), op);
    } else {
        v = op(v, fromRegister<T>(_mm_shuffle_epi32(asInt(v), 0x4E)));
        if constexpr (sizeof(T) <= 4) v = op(v, fromRegister<T>(_mm_shuffle_epi32(asInt(v), 0xB1)));
        if constexpr (sizeof(T) <= 2)
            v = op(v, fromRegister<T>(_mm_shufflelo_epi16(asInt(v), 0xB1)));
        if constexpr (sizeof(T) == 1) v = op(v, fromRegister<T>(_mm_srli_epi16(asInt(v), 8)));
        return v[0];
    }
}

}  // namespace detail

// Sum of all lanes; of integers, wrapped.
template <class T, int B>
inline T laneSum(Vec<T, B> v) {
    return detail::foldLanes(v, [](auto a, auto b) { return a + b; });
}

// Of floats with a NaN among them, any lane's value: see minimum.
template <class T, int B>
inline T laneMinimum(Vec<T, B> v) {
    return detail::foldLanes(v, [](auto a, auto b) { return minimum(a, b); });
}
template <class T, int B>
inline T laneMaximum(Vec<T, B> v) {
    return detail::foldLanes(v, [](auto a, auto b) { return maximum(a, b); });
}

}  // namespace vlq
