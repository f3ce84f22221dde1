// Thresholds and normalization by their definitions, one element at a time, in extended precision.
#pragma once

#include <cmath>
#include <limits>
#include <type_traits>

#include "harness/element.h"

namespace vlqtest {

template <class T>
T clampRef(bool below, T x, T level) {
    return (below ? x < level : x > level) ? level : x;
}
template <class T>
T clampMagnitudeRef(bool below, T x, T level) {
    using Wide = std::conditional_t<std::is_integral_v<T>, long long, T>;
    const Wide magnitude = x < 0 ? -static_cast<Wide>(x) : static_cast<Wide>(x);
    if (!(below ? magnitude < level : magnitude > level)) return x;
    if constexpr (std::is_floating_point_v<T>)
        return std::copysign(level, x);
    else
        return static_cast<T>(x < 0 ? -level : level);
}

struct LongParts {
    long double re, im;
};
template <ComplexElement C>
long double magnitudeRef(C x) {
    return std::hypot(static_cast<long double>(x.re), static_cast<long double>(x.im));
}
// x scaled to the magnitude level.
template <ComplexElement C>
LongParts directedRef(C x, long double level) {
    const long double size = magnitudeRef(x);
    if (size == 0) return {level, 0};
    return {static_cast<long double>(x.re) / size * level,
            static_cast<long double>(x.im) / size * level};
}
// The inverse, the magnitude raised to the level first. x is not zero where the level is.
template <ComplexElement C>
LongParts inverseRef(C x, long double level) {
    const long double size = magnitudeRef(x);
    if (size == 0) return {1 / level, -0.0L};
    const long double raised = size < level ? level : size;
    return {static_cast<long double>(x.re) / size / raised,
            -static_cast<long double>(x.im) / size / raised};
}

// 2^-scaleFactor with the exponent modulo 128.
inline double wrappedPowerRef(int scaleFactor) {
    const long long places = scaleFactor < 0 ? -static_cast<long long>(scaleFactor) : scaleFactor;
    const int count = static_cast<int>(places % 128);
    if (scaleFactor >= 0 && count == 127) return 0;
    return std::ldexp(1.0, scaleFactor < 0 ? count : -count);
}

}  // namespace vlqtest
