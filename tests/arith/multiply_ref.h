// The definition of scaled products, in exact integers.
#pragma once

#include <cstdint>
#include <limits>

#include "vlqs/types.h"

namespace vlqtest {

__extension__ typedef __int128 Exact;
__extension__ typedef unsigned __int128 ExactMagnitude;

template <class T>
T clampRef(Exact e) {
    constexpr Exact low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return static_cast<T>(e < low ? low : e > high ? high : e);
}

// e / 2^shift to the nearest integer, from a tie to the even one; |e| < 2^127, 1 <= shift.
inline Exact nearestEvenRef(Exact e, int shift) {
    const bool negative = e < 0;
    const ExactMagnitude size =
        negative ? -static_cast<ExactMagnitude>(e) : static_cast<ExactMagnitude>(e);
    if (shift > 127) return 0;  // below one half
    ExactMagnitude quotient = size >> shift;
    const ExactMagnitude rest = size - (quotient << shift), half = ExactMagnitude{1} << (shift - 1);
    if (rest > half || (rest == half && quotient % 2 == 1)) ++quotient;
    return negative ? -static_cast<Exact>(quotient) : static_cast<Exact>(quotient);
}

// clamp(round(e * 2^-scaleFactor))
template <class T>
T scaleRef(Exact e, std::int32_t scaleFactor) {
    if (scaleFactor > 0) return clampRef<T>(nearestEvenRef(e, scaleFactor));
    // Doubling keeps outside what lies outside the range.
    Exact value = clampRef<T>(e);
    for (int n = 0; n > scaleFactor && n > -64; --n) value = clampRef<T>(value * 2);
    return static_cast<T>(value);
}

// The stored product of any two integers.
template <class D, class A, class B>
D productRef(A a, B b, std::int32_t scaleFactor) {
    return scaleRef<D>(Exact{a} * Exact{b}, scaleFactor);
}

// (a + bi)(c + di) = (ac - bd) + (ad + bc)i
template <class C>
C complexProductRef(C x, C y, std::int32_t scaleFactor) {
    using Part = decltype(x.re);
    return {scaleRef<Part>(Exact{x.re} * y.re - Exact{x.im} * y.im, scaleFactor),
            scaleRef<Part>(Exact{x.re} * y.im + Exact{x.im} * y.re, scaleFactor)};
}

template <class D, class A>
D sumOfProductRef(D acc, A a, A b, std::int32_t scaleFactor) {
    return scaleRef<D>(Exact{acc} + Exact{a} * Exact{b}, scaleFactor);
}

}  // namespace vlqtest
