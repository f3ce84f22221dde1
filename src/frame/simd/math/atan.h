// Arctangents of one and of two arguments.
#pragma once

#include "frame/simd/math/format.h"

namespace vlq::math {

namespace detail {

template <class T>
struct AtanConstants;
// atan(z) = z + z^3 p(z^2), |z| <= 2/3, relative error 2.3e-9 (float) and 7.2e-18 (double). The low
// part of a multiple of pi/4 is its rounding error.
template <>
struct AtanConstants<float> {
    static constexpr float halfPi = 0x1.921fb6p0f, lowPart = -0x1.de12cap-26f;
    static constexpr float p[] = {-0x1.555554p-2f, 0x1.999864p-3f, -0x1.246d4cp-3f, 0x1.c35de4p-4f,
                                  -0x1.5b97p-4f,   0x1.c04e64p-5f, -0x1.45c1c8p-6f};
};
template <>
struct AtanConstants<double> {
    static constexpr double halfPi = 0x1.921fb54442d18p0, lowPart = 0x1.678afae35cdd1p-55;
    static constexpr double p[] = {
        -0x1.5555555555555p-2, 0x1.999999999971dp-3, -0x1.2492492477fadp-3, 0x1.c71c71b93a81dp-4,
        -0x1.745d1558147f6p-4, 0x1.3b1387bbad055p-4, -0x1.110ec73632b57p-4, 0x1.e1b543b61f706p-5,
        -0x1.adf20ca044581p-5, 0x1.7ff35df7a5978p-5, -0x1.4d34b70d624bp-5,  0x1.07f5d2d7e1f09p-5,
        -0x1.575e3a6ed0e3cp-6, 0x1.37028b09c46ep-7,  -0x1.1ae238ee96079p-9};
};

// The arctangent of smaller/larger, from 0 to pi/4, or where `inverted` is set that of
// larger/smaller, from there to pi/2. Near one, atan(q) = pi/4 + atan((q - 1)/(q + 1)).
template <class T, int B>
inline Vec<T, B> atanOfQuotient(Vec<T, B> smaller, Vec<T, B> larger, Vec<BitsOf<T>, B> inverted) {
    using C = AtanConstants<T>;
    const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
    const auto near = smaller >= larger * splat(T(2) / 3);
    auto z = select(near, smaller - larger, smaller) / select(near, smaller + larger, larger);
    z = z ^ (bitCast<T>(inverted) & splat(T(-0.0)));
    const auto z2 = z * z;
    const auto base = select(near, splat(C::halfPi / 2), bitCast<T>(inverted) & splat(C::halfPi));
    return base + (z + mulAdd(z * z2, polynomial(z2, C::p), base * splat(C::lowPart)));
}

}  // namespace detail

// The arctangent within 1 ulp; atan(+-infinity) = +-pi/2, NaN gives NaN.
template <class T, int B>
inline Vec<T, B> atan(Vec<T, B> x) {
    const auto a = absolute(x), one = Vec<T, B>::broadcast(1);
    // The operand order keeps NaN.
    return detail::atanOfQuotient(minimum(one, a), maximum(one, a), a > one) | signBit(x);
}

// The angle of the point (x, y), from -pi to pi, within 2 ulp. The sign of y is the sign of the
// result; a zero y gives 0 or pi by the sign of x, two infinities multiples of pi/4 (C, Annex F).
template <class T, int B>
inline Vec<T, B> atan2(Vec<T, B> y, Vec<T, B> x) {
    using C = detail::AtanConstants<T>;
    using Limits = std::numeric_limits<T>;
    const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
    const auto ax = absolute(x), ay = absolute(y);
    auto smaller = minimum(ax, ay);
    // Not 0, so that 0/0 is 0.
    auto larger = maximum(splat(Limits::denorm_min()), maximum(ax, ay));
    if (any(larger > splat(Limits::max() / 4))) [[unlikely]] {
        // Sums must not overflow; two infinities have the quotient 1.
        const auto huge = larger > splat(Limits::max() / 4);
        const auto infinite = smaller == splat(Limits::infinity());
        smaller = select(huge, smaller * splat(T(0.25)), smaller);
        larger = select(huge, larger * splat(T(0.25)), larger);
        smaller = select(infinite, splat(1), smaller);
        larger = select(infinite, splat(1), larger);
    }
    auto angle = detail::atanOfQuotient(smaller, larger, ay > ax);
    // pi - angle where x is negative, minus zero included.
    const auto left = bitCast<T>(signMask(bitCast<BitsOf<T>>(x)));
    const auto pi = left & splat(2 * C::halfPi);
    angle = pi + ((angle ^ (left & splat(T(-0.0)))) + pi * splat(C::lowPart));
    // What is NaN makes it NaN.
    return (angle | bitCast<T>((x != x) | (y != y))) | signBit(y);
}

}  // namespace vlq::math
