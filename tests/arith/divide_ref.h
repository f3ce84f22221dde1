// The definition of scaled quotients, one element at a time.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "harness/scale_ref.h"

namespace vlqtest {

template <class T>
T clampFloatRef(double v) {
    constexpr double low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return static_cast<T>(v < low ? low : v > high ? high : v);
}

inline double roundRef(double v, int mode) {
    if (mode == vlqRndZero) return std::trunc(v);
    if (mode == vlqRndNear) return std::nearbyint(v);
    return std::round(v);
}

// The result for a divisor of 0.
template <class T, class N>
T overZeroRef(N numerator) {
    if (numerator == 0) return 0;
    return numerator > 0 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
}

// The end of the range that a quotient's sign points to; 0 stays.
template <class T, class N, class D>
T saturatedRef(N numerator, D divisor) {
    return overZeroRef<T>(divisor < 0 ? -static_cast<std::int64_t>(numerator)
                                      : static_cast<std::int64_t>(numerator));
}
// Scale factors below these saturate every quotient but 0.
template <class T>
constexpr std::int32_t kLeastQuotientScale = sizeof(T) == 4 ? -62 : -30;

// numerator / divisor * 2^-scaleFactor with the quotient rounded to F.
template <class T, class F, class N, class D>
T quotientRef(N numerator, D divisor, int mode, std::int32_t scaleFactor) {
    if (divisor == 0) return overZeroRef<T>(numerator);
    if (scaleFactor < kLeastQuotientScale<N>) return saturatedRef<T>(numerator, divisor);
    const F quotient = static_cast<F>(numerator) / static_cast<F>(divisor);
    const int scale = scaleFactor > 500 ? 500 : scaleFactor < -500 ? -500 : scaleFactor;
    return clampFloatRef<T>(
        roundRef(std::ldexp(static_cast<double>(quotient), -scale), mode));  // the scale is exact
}

// The same quotient rounded exactly: numerator * 2^-scaleFactor / divisor to the nearest, ties to
// even, stopped at the ends of T.
template <class T>
T exactQuotientRef(Exact numerator, Exact divisor, std::int32_t scaleFactor) {
    const bool negative = (numerator < 0) != (divisor < 0);
    const ExactMagnitude n = static_cast<ExactMagnitude>(numerator < 0 ? -numerator : numerator);
    ExactMagnitude d = static_cast<ExactMagnitude>(divisor < 0 ? -divisor : divisor);
    const ExactMagnitude limit = static_cast<ExactMagnitude>(std::numeric_limits<T>::max()) +
                                 (negative && std::numeric_limits<T>::min() != 0);
    if (n == 0 || (negative && std::numeric_limits<T>::min() == 0)) return 0;
    if (scaleFactor > 0) {
        if (scaleFactor > 64) return 0;  // numerators have up to 64 bits
        d <<= scaleFactor;
    }
    ExactMagnitude quotient = n / d, rest = n % d;
    // A negative scale factor: long division by 60 bits at a time, since divisors have up to 64.
    for (std::int64_t left = -std::int64_t{scaleFactor};
         left > 0 && quotient <= limit && (quotient != 0 || rest != 0);) {
        const int step = left < 60 ? static_cast<int>(left) : 60;
        quotient = (quotient << step) + (rest << step) / d;
        rest = (rest << step) % d;
        left -= step;
    }
    if (2 * rest > d || (2 * rest == d && quotient % 2 == 1)) ++quotient;
    if (quotient > limit) quotient = limit;
    return static_cast<T>(negative ? -static_cast<Exact>(quotient) : static_cast<Exact>(quotient));
}

// numerator * (2^-scaleFactor / divisor) in single precision.
template <class T>
T timesReciprocalRef(T numerator, T divisor, std::int32_t scaleFactor) {
    if (scaleFactor > 40) return 0;
    if (scaleFactor < kLeastQuotientScale<T>) return saturatedRef<T>(numerator, divisor);
    const float reciprocal = std::ldexp(1.0f, -scaleFactor) / static_cast<float>(divisor);
    const float product = static_cast<float>(numerator) * reciprocal;
    return clampFloatRef<T>(std::nearbyint(product));
}

// The same for complex values, in double precision: the reciprocal's parts are rounded once each.
inline Vlq16sc timesComplexReciprocalRef(Vlq16sc numerator, Vlq16sc divisor,
                                         std::int32_t scaleFactor) {
    const double a = divisor.re, b = divisor.im, c = numerator.re, d = numerator.im;
    const double factor = std::ldexp(1.0, scaleFactor > 120    ? -120
                                          : scaleFactor < -120 ? 120
                                                               : -scaleFactor) /
                          (a * a + b * b);
    const double re = a * factor, im = -b * factor;
    return {clampFloatRef<Vlq16s>(std::nearbyint(c * re - d * im)),
            clampFloatRef<Vlq16s>(std::nearbyint(c * im + d * re))};
}

// (c + di) / (a + bi), each part rounded exactly.
inline Vlq16sc complexQuotientRef(Vlq16sc divisor, Vlq16sc numerator, std::int32_t scaleFactor) {
    const Exact a = divisor.re, b = divisor.im, c = numerator.re, d = numerator.im;
    if (a == 0 && b == 0)
        return {overZeroRef<Vlq16s>(numerator.re), overZeroRef<Vlq16s>(numerator.im)};
    const int scale = scaleFactor > 60 ? 60 : scaleFactor;
    return {exactQuotientRef<Vlq16s>(c * a + d * b, a * a + b * b, scale),
            exactQuotientRef<Vlq16s>(d * a - c * b, a * a + b * b, scale)};
}

}  // namespace vlqtest
