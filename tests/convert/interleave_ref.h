// Interleaved samples and unit floats, one at a time, each operation rounded to float.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

namespace vlqtest {

inline float toUnitRef(std::int32_t sample, int bits) {
    const float step = std::bit_cast<float>(bits == 16 ? 0x38000080u : 0x34000001u);
    const float half = std::bit_cast<float>(bits == 16 ? 0x37800080u : 0x33800000u);
    const volatile float product = static_cast<float>(sample) * step;
    return product + half;
}

inline std::int32_t fromUnitRef(float value, int bits) {
    const float clamped = std::isnan(value) || value > 1 ? 1.0f : value < -1 ? -1.0f : value;
    const volatile float product = clamped * (bits == 16 ? 32767.5f : 8388607.5f);
    return static_cast<std::int32_t>(std::nearbyint(product - 0.5f));
}

}  // namespace vlqtest
