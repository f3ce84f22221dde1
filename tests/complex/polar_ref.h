// Magnitudes, phases and the way back by their definitions, one element at a time: integers
// exactly, floats in extended precision.
#pragma once

#include <cmath>
#include <limits>

#include "harness/element.h"
#include "harness/scale_ref.h"

namespace vlqtest {

// The distance of a result from its value, in units in the last place of T at that value.
template <class T>
double ulpsFrom(long double want, T got) {
    if (std::isnan(want) || std::isnan(got)) return std::isnan(want) && std::isnan(got) ? 0 : 1e9;
    constexpr auto largest = static_cast<long double>(std::numeric_limits<T>::max());
    const int digits = std::numeric_limits<T>::digits;
    if (std::isinf(got)) {
        // Overflow begins half a unit beyond the largest number.
        const bool isRight = std::fabs(want) > largest && std::signbit(want) == std::signbit(got);
        return isRight ? 0 : 1e9;
    }
    if (std::isinf(want)) return 1e9;
    const int exponent = want == 0 ? std::numeric_limits<T>::min_exponent : std::ilogb(want) + 1;
    const int last = std::max(exponent, std::numeric_limits<T>::min_exponent) - digits;
    return static_cast<double>(std::fabs(std::ldexp(static_cast<long double>(got) - want, -last)));
}

inline long double magnitudeRef(long double re, long double im) { return std::hypot(re, im); }
inline long double phaseRef(long double re, long double im) { return std::atan2(im, re); }

// clamp(round(sqrt(squared) 2^-scaleFactor), high), ties to even, by bisection.
inline std::int64_t scaledRootRef(std::uint64_t squared, std::int64_t scaleFactor,
                                  std::int64_t high) {
    if (squared == 0 || scaleFactor > 33) return 0;  // the root is below 2^32
    if (scaleFactor < -32) return high;
    const int up = scaleFactor < 0 ? static_cast<int>(-scaleFactor) : 0,
              down = scaleFactor > 0 ? static_cast<int>(scaleFactor) : 0;
    // Of at most 128 bits: squared below 2^64, times 4, times 4^up only up to there.
    const auto isSaturated = static_cast<ExactMagnitude>(squared) >> (2 * (32 - up)) != 0;
    if (up > 0 && isSaturated) return high;
    const ExactMagnitude value = static_cast<ExactMagnitude>(squared) << (2 + 2 * up);
    // Whether the result is at least k: (k - 1/2)^2 4^down < value / 4, or equal for an even k.
    const auto reaches = [&](std::int64_t k) {
        const auto twice = static_cast<ExactMagnitude>(2 * k - 1);
        const ExactMagnitude limit = (twice * twice) << (2 * down);
        return k % 2 == 0 ? value >= limit : value > limit;
    };
    std::int64_t low = 0, above = std::int64_t{1} << (33 - down);
    while (above - low > 1) {
        const std::int64_t middle = low + (above - low) / 2;
        (reaches(middle) ? low : above) = middle;
    }
    return low < high ? low : high;
}

// clamp(round(value), low, high), the value itself being known within a margin.
struct Rounded {
    long double value;
    std::int64_t low, high;
    bool accepts(std::int64_t got, long double margin = 0) const {
        const auto clamp = [this](long double v) {
            if (v >= static_cast<long double>(high)) return high;
            if (v <= static_cast<long double>(low)) return low;
            return static_cast<std::int64_t>(std::nearbyint(v));
        };
        return clamp(value - margin) <= got && got <= clamp(value + margin);
    }
};

// The phase of 16-bit parts as the variant for separate parts computes it.
inline Vlq16s phase16Ref(Vlq16s re, Vlq16s im, int scaleFactor) {
    if (scaleFactor >= 2) return 0;
    const long double phase = phaseRef(re, im);
    if (scaleFactor == 0) return static_cast<Vlq16s>(std::nearbyint(phase));
    const int count = -std::max(scaleFactor, -200);
    if (scaleFactor >= -28) {
        const float scaled = std::ldexp(static_cast<float>(phase), count);
        return static_cast<Vlq16s>(std::nearbyint(std::clamp(scaled, -32768.0f, 32767.0f)));
    }
    const auto scaled =
        static_cast<float>(std::ldexp(static_cast<double>(phase), count > 100 ? 100 : count));
    const float moved = scaled < 0 ? scaled - 0.5f : scaled + 0.5f;
    return static_cast<Vlq16s>(std::clamp(moved, -32768.0f, 32767.0f));
}

}  // namespace vlqtest
