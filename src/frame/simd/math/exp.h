// e^x.
#pragma once

#include "frame/simd/math/format.h"

namespace vlq::math {

template <class T>
struct ExpConstants;
// e^r = 1 + r + r^2 p(r) for |r| <= 0.3475, a little over ln(2)/2; relative error 4.5e-9 (float)
// and 5.0e-18 (double). ln(2) is split so that n * ln2High is exact.
template <>
struct ExpConstants<float> {
    static constexpr float lowest = -104.0f, highest = 89.0f;  // beyond, 0 and infinity
    static constexpr float log2e = 0x1.715476p0f;
    static constexpr float ln2High = 0x1.62e4p-1f, ln2Low = 0x1.7f7d1cp-20f;
    static constexpr float p[] = {0x1.fffff4p-2f, 0x1.55548cp-3f, 0x1.555dd2p-5f, 0x1.123d6p-7f,
                                  0x1.6721e8p-10f};
};
template <>
struct ExpConstants<double> {
    static constexpr double lowest = -746.0, highest = 710.0;
    static constexpr double log2e = 0x1.71547652b82fep0;
    static constexpr double ln2High = 0x1.62e42fefa4p-1, ln2Low = -0x1.8432a1b0e2634p-43;
    static constexpr double p[] = {
        0x1.000000000000cp-1,  0x1.5555555555561p-3,  0x1.555555554fd7ep-5, 0x1.111111110d624p-7,
        0x1.6c16c18635d61p-10, 0x1.a01a01baf0c2fp-13, 0x1.a019951c861ep-16, 0x1.71dddf9f2301cp-19,
        0x1.28b19e9b6b508p-22, 0x1.af85de53dd47ep-26};
};

// e^x within 1 ulp. Overflow gives infinity, underflow a subnormal number or 0; NaN gives NaN.
// Method: x = n ln(2) + r by the nearest integer n, e^x = 2^n e^r (W. J. Cody and W. Waite,
// Software Manual for the Elementary Functions, 1980).
template <class T, int B>
inline Vec<T, B> exp(Vec<T, B> x) {
    using C = ExpConstants<T>;
    const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
    // The operand order keeps NaN.
    x = minimum(splat(C::highest), maximum(splat(C::lowest), x));
    const auto sum = mulAdd(x, splat(C::log2e), splat(kRoundingShift<T>));
    const auto n = sum - splat(kRoundingShift<T>);
    // e^x/2^n as high + low: high = 1 + (x - n ln2High), rounded, and low is all the rest.
    const auto upper = mulSubFrom(n, splat(C::ln2High), x);
    const auto rest = n * splat(C::ln2Low), r = upper - rest;
    const auto high = splat(T(1)) + upper;
    const auto low = (upper - (high - splat(T(1)))) + mulSub(r * r, polynomial(r, C::p), rest);
    return scaleByPower(high + low, sum);
}

}  // namespace vlq::math
