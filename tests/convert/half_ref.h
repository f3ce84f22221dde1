// Binary16 numbers from their definition, in long double.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>

namespace vlqtest {

inline long double halfValue(std::uint16_t half) {
    const int exponent = half >> 10 & 31, fraction = half & 1023;
    const long double magnitude =
        exponent == 31  ? (fraction ? NAN : INFINITY)
        : exponent == 0 ? std::ldexp(static_cast<long double>(fraction), -24)
                        : std::ldexp(static_cast<long double>(1024 + fraction), exponent - 25);
    return half & 0x8000 ? -magnitude : magnitude;
}

// NaN keeps its sign and what fits of its payload, and becomes quiet.
inline std::uint32_t halfToFloatBits(std::uint16_t half) {
    const float value = static_cast<float>(halfValue(half));
    std::uint32_t bits;
    std::memcpy(&bits, &value, 4);
    if (std::isnan(value)) bits = (half & 0x8000u) << 16 | 0x7FC00000u | (half & 0x3FFu) << 13;
    return bits;
}

// Counts the halves, from zero up, that are not above the magnitude, by bisection: their bit
// patterns ascend with their values.
inline std::uint16_t floatToHalfRef(float value, int mode) {
    std::uint32_t bits;
    std::memcpy(&bits, &value, 4);
    const auto sign = static_cast<std::uint16_t>(bits >> 16 & 0x8000);
    if (std::isnan(value)) return static_cast<std::uint16_t>(sign | 0x7E00 | (bits >> 13 & 0x3FF));
    if (std::isinf(value)) return static_cast<std::uint16_t>(sign | 0x7C00);
    const long double magnitude = std::fabs(static_cast<long double>(value));
    std::uint16_t low = 0, high = 0x7C00;  // value(low) <= magnitude < value(high)
    while (high - low > 1) {
        const auto middle = static_cast<std::uint16_t>((low + high) / 2);
        (halfValue(middle) <= magnitude ? low : high) = middle;
    }
    if (mode == 1) {
        // Beyond the largest half the spacing is the same as below it.
        const long double above = high == 0x7C00 ? 65536.0L : halfValue(high);
        const long double toLow = magnitude - halfValue(low), toHigh = above - magnitude;
        if (toHigh < toLow || (toHigh == toLow && low % 2 == 1)) low = high;
    }
    return static_cast<std::uint16_t>(sign | low);
}

}  // namespace vlqtest
