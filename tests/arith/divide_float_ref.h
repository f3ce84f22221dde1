// The definition of quotients of floats, in extended precision.
#pragma once

#include <cmath>
#include <limits>

#include "vlqs/types.h"

namespace vlqtest {

// Parts of (c + di) / (a + bi). Where the divisor is 0 each part of the numerator over its real
// part.
struct LongComplex {
    long double re, im;
};
template <class C>
LongComplex complexQuotientRef(C divisor, C numerator) {
    const long double a = divisor.re, b = divisor.im, c = numerator.re, d = numerator.im;
    if (a == 0 && b == 0) return {c / a, d / a};
    const long double norm = a * a + b * b;
    return {(c * a + d * b) / norm, (d * a - c * b) / norm};
}

// Steps between two floats of one kind; 0 for equal values and for two that are not numbers.
template <class T>
double stepsApart(T got, long double want) {
    const T rounded = static_cast<T>(want);
    if (std::isnan(got) || std::isnan(rounded))
        return std::isnan(got) && std::isnan(rounded) ? 0 : INFINITY;
    if (got == rounded) return std::signbit(got) == std::signbit(rounded) ? 0 : INFINITY;
    if (std::isinf(got) || std::isinf(rounded)) {
        // The last step before infinity.
        const T finite = std::isinf(got) ? rounded : got;
        return std::abs(finite) == std::numeric_limits<T>::max() &&
                       std::signbit(got) == std::signbit(rounded)
                   ? 1
                   : INFINITY;
    }
    int exponent = 0;
    std::frexp(rounded, &exponent);
    const int lowest = std::numeric_limits<T>::min_exponent;
    const long double step =
        std::ldexp(1.0L, (exponent < lowest ? lowest : exponent) - std::numeric_limits<T>::digits);
    return static_cast<double>(std::abs(static_cast<long double>(got) - want) / step);
}

}  // namespace vlqtest
