// Test data: random, with a bias to the values where arithmetic breaks.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "vlqs/types.h"

namespace vlqtest {

using Rng = std::mt19937_64;

// The run's seed; `--seed N` on the command line repeats a failure.
std::uint64_t seed();

// Uniform bits, one element in four from the edges of the type. Floats: any bit pattern, with
// infinities, subnormals, both zeros and not-a-numbers among the edges.
template <class T>
T extremeValue(Rng& rng) {
    if constexpr (std::is_integral_v<T>) {
        if (rng() % 4 != 0) return static_cast<T>(rng());
        constexpr T low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
        const T edges[] = {low,
                           high,
                           static_cast<T>(low + 1),
                           static_cast<T>(high - 1),
                           T{0},
                           T{1},
                           static_cast<T>(-1),
                           static_cast<T>(high / 2),
                           static_cast<T>(high / 2 + 1)};
        return edges[rng() % std::size(edges)];
    } else {
        using Limits = std::numeric_limits<T>;
        if (rng() % 4 != 0) {
            // Magnitudes from far below to far above the integer ranges.
            const T mantissa = static_cast<T>(static_cast<double>(rng() >> 11) * 0x1p-53 * 2 - 1);
            return std::ldexp(mantissa, static_cast<int>(rng() % 80) - 20);
        }
        const T edges[] = {T(0),
                           -T(0),
                           T(0.5),
                           T(-0.5),
                           T(1.5),
                           T(-1.5),
                           T(2.5),
                           T(-2.5),
                           T(32767),
                           T(-32768),
                           T(32767.5),
                           T(-32768.5),
                           T(2147483648.0),
                           T(-2147483648.0),
                           Limits::infinity(),
                           -Limits::infinity(),
                           Limits::quiet_NaN(),
                           Limits::denorm_min(),
                           -Limits::denorm_min(),
                           Limits::min(),
                           Limits::max(),
                           Limits::lowest(),
                           T(127),
                           T(-128),
                           T(255),
                           T(65535)};
        return edges[rng() % std::size(edges)];
    }
}

template <class T>
std::vector<T> extremeVector(std::size_t count, Rng& rng) {
    std::vector<T> values(count);
    for (T& v : values) v = extremeValue<T>(rng);
    return values;
}

// Uniform in [low, high).
template <class T>
std::vector<T> uniformVector(std::size_t count, double low, double high, Rng& rng) {
    std::uniform_real_distribution<double> draw(low, high);
    std::vector<T> values(count);
    for (T& v : values) v = static_cast<T>(draw(rng));
    return values;
}

}  // namespace vlqtest
