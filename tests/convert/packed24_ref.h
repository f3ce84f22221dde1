// Packed 24-bit integers, byte by byte.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "convert/floating_ref.h"
#include "harness/scale_ref.h"

namespace vlqtest {

inline std::int32_t unpackRef(const std::uint8_t* p, bool isSigned) {
    const std::int32_t value = p[0] + 256 * p[1] + 65536 * p[2];
    return isSigned && value >= 8388608 ? value - 16777216 : value;
}
inline void packRef(std::vector<std::uint8_t>& bytes, std::int64_t value) {
    for (int i = 0; i < 3; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}
// Scaled and saturated to 24 bits.
inline std::int64_t scale24Ref(Exact value, std::int32_t scaleFactor, bool isSigned) {
    return static_cast<std::int64_t>(scaleRef(
        value, scaleFactor, vlqRndNear, isSigned ? -8388608 : 0, isSigned ? 8388607 : 16777215));
}
inline std::int64_t floatTo24Ref(float value, bool isSigned, std::int32_t scaleFactor) {
    const float product = scaleFactor == 0 ? value : value * stepwiseFactor<float>(scaleFactor);
    const std::int64_t low = isSigned ? -8388608 : 0, high = isSigned ? 8388607 : 16777215;
    if (std::isnan(product) || product > static_cast<float>(high)) return high;
    if (product < static_cast<float>(low)) return low;
    return static_cast<std::int64_t>(std::nearbyint(static_cast<double>(product)));
}

}  // namespace vlqtest
