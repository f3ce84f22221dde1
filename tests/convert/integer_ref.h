// Scaled conversions of integers, one element at a time, in exact 128-bit integers.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace vlqtest {

__extension__ typedef __int128 Wide;

inline Wide clampTo(Wide value, Wide low, Wide high) { return std::clamp(value, low, high); }

// value / 2^count: truncated, to nearest even, or to nearest away from zero.
inline Wide divideRef(Wide value, int count, int mode) {
    const Wide divisor = Wide{1} << count, magnitude = value < 0 ? -value : value;
    const Wide whole = magnitude / divisor, twiceRest = 2 * (magnitude % divisor);
    bool up = false;
    if (mode == 1)
        up = twiceRest > divisor || (twiceRest == divisor && whole % 2 == 1);
    else if (mode != 0)
        up = twiceRest >= divisor;
    const Wide rounded = whole + (up ? 1 : 0);
    return value < 0 ? -rounded : rounded;
}

// value * 2^-scaleFactor; past 64 places either way nothing changes any more.
inline Wide scaleRef(std::int64_t value, std::int64_t scaleFactor, int mode) {
    if (scaleFactor > 0)
        return divideRef(value, static_cast<int>(std::min<std::int64_t>(scaleFactor, 66)), mode);
    return static_cast<Wide>(value) * (Wide{1} << std::min<std::int64_t>(-scaleFactor, 62));
}

template <class To>
To saturateRef(Wide value) {
    return static_cast<To>(
        clampTo(value, std::numeric_limits<To>::min(), std::numeric_limits<To>::max()));
}

}  // namespace vlqtest
