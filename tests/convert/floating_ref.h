// Conversions with a float on one side, one element at a time, by the C library's rounding.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace vlqtest {

// One doubled or halved |scaleFactor| times, in T's precision, until it is 0 or infinite.
template <class T>
T stepwiseFactor(std::int32_t scaleFactor) {
    T factor = 1;
    for (std::int64_t n = std::abs(std::int64_t{scaleFactor});
         n > 0 && factor != 0 && !std::isinf(factor); --n) {
        factor *= scaleFactor > 0 ? T(0.5) : T(2);
    }
    return factor;
}

inline long double roundByMode(long double value, int mode) {
    if (mode == 0) return std::trunc(value);
    if (mode == 1) return std::nearbyint(value);
    return std::round(value);
}

template <class To, class From>
To toIntegerRef(From value, int mode, std::int32_t scaleFactor) {
    constexpr long double low = std::numeric_limits<To>::min(),
                          high = std::numeric_limits<To>::max();
    const From product = scaleFactor == 0 ? value : value * stepwiseFactor<From>(scaleFactor);
    if (std::isnan(product))
        return sizeof(To) == 8 ? std::numeric_limits<To>::min() : std::numeric_limits<To>::max();
    const long double rounded = roundByMode(product, mode);
    return static_cast<To>(rounded < low ? low : rounded > high ? high : rounded);
}

}  // namespace vlqtest
