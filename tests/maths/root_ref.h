// Roots of integers by the definition.
#pragma once

#include <cmath>

#include "harness/scale_ref.h"
#include "maths/maths_check.h"

namespace vlqtest {

// floor(sqrt(x) * 2^places) digit by digit, and what is left of x * 4^places.
struct FloorRoot {
    ExactMagnitude root, rest;
};
inline FloorRoot floorRootRef(std::uint64_t x, int places) {
    FloorRoot r{0, 0};
    for (int digit = 31; digit >= -places; --digit) {
        r.rest = r.rest << 2 | (digit >= 0 ? x >> (2 * digit) & 3 : 0);
        const ExactMagnitude trial = r.root << 2 | 1;
        r.root <<= 1;
        if (r.rest >= trial) {
            r.rest -= trial;
            r.root |= 1;
        }
    }
    return r;
}

// clamp(round(sqrt(x) * 2^-scaleFactor)), ties to even; 0 for what is not positive.
template <class T>
T rootRef(std::int64_t x, int scaleFactor) {
    if (x <= 0) return 0;
    if (scaleFactor > 64) return 0;
    const int places = scaleFactor > 0 ? 0 : std::min(-std::max(scaleFactor, -64), 64);
    const FloorRoot r = floorRootRef(static_cast<std::uint64_t>(x), places);
    ExactMagnitude result = r.root;
    if (scaleFactor <= 0) {
        if (r.rest > r.root) ++result;
    } else {
        result = r.root >> scaleFactor;
        const ExactMagnitude cut = r.root - (result << scaleFactor),
                             half = ExactMagnitude{1} << (scaleFactor - 1);
        if (cut > half || (cut == half && (r.rest != 0 || result % 2 == 1))) ++result;
    }
    const auto highest = static_cast<ExactMagnitude>(std::numeric_limits<T>::max());
    return static_cast<T>(std::min(result, highest));
}

// The root is rounded to single precision before it is scaled.
template <class T>
T floatRootRef(T x, int scaleFactor) {
    return x <= 0 ? T{0} : roundedRef<T>(std::sqrt(static_cast<float>(x)), scaleFactor);
}

inline Vlq16sc complexRootRef(Vlq16sc z, int scaleFactor) {
    const long double a = z.re, b = z.im, size = std::hypot(a, b);
    // Exact where the root is an integer.
    const long double larger = std::sqrt((size + std::fabs(a)) / 2);
    const long double smaller = larger == 0 ? 0 : std::fabs(b) / (2 * larger);
    const long double re = a < 0 ? smaller : larger, im = a < 0 ? larger : smaller;
    return {roundedRef<Vlq16s>(re, scaleFactor), roundedRef<Vlq16s>(b < 0 ? -im : im, scaleFactor)};
}

inline Vlq16s cubeRootRef(Vlq32s x, int scaleFactor) {
    const auto places =
        static_cast<unsigned>(scaleFactor < 0 ? 0u - static_cast<unsigned>(scaleFactor)
                                              : static_cast<unsigned>(scaleFactor)) %
        128;
    if (scaleFactor > 0 && places == 127) return 0;
    long double root = std::cbrt(static_cast<long double>(x));
    const long double nearest = std::nearbyint(root);
    if (nearest * nearest * nearest == x) root = nearest;
    return roundedRef<Vlq16s>(
        root, scaleFactor < 0 ? -static_cast<int>(places) : static_cast<int>(places));
}

}  // namespace vlqtest
