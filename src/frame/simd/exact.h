// What rounding leaves out of a product or a sum of doubles, itself a double.
#pragma once

#include "frame/simd/ops.h"

namespace vlq {

// x * x - square, where square is x * x rounded; exact up to one more rounding of its last bits.
template <int B>
inline Vec<double, B> squareError(Vec<double, B> x, Vec<double, B> square) {
#if defined(__FMA__)
    return mulSub(x, x, square);
#else
    // Of the upper half and the rest of x, the products are exact.
    const auto upper =
        x & Vec<double, B>::fromBits(Vec<std::int64_t, B>::broadcast(-0x8000000).raw);
    const auto lower = x - upper;
    return ((upper * upper - square) + (upper + upper) * lower) + lower * lower;
#endif
}

// a + b - sum, where sum is a + b rounded.
template <int B>
inline Vec<double, B> sumError(Vec<double, B> a, Vec<double, B> b, Vec<double, B> sum) {
    const auto second = sum - a;
    return (a - (sum - second)) + (b - second);
}

}  // namespace vlq
