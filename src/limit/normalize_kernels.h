// (x - subtrahend) / divisor, computed as a product with the reciprocal.
#pragma once

#include <limits>

#include "frame/loop/map.h"
#include "frame/scale/power_of_two.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "frame/simd/ops.h"

namespace vlq::normalize {

template <class T>
struct SubtractMultiply {
    Vec<T> subtrahend;
    T reciprocal;
    Vec<T> operator()(Vec<T> x) const { return (x - subtrahend) * Vec<T>::broadcast(reciprocal); }
};

// Products rounded to the nearest integer, ties to even, and saturated. The difference of two
// 16-bit integers is exact as a float.
class ScaledIntegers {
public:
    // Subtrahends of the elements with even and with odd numbers.
    ScaledIntegers(std::int16_t even, std::int16_t odd, float factor)
        : subtrahend_(broadcastPair<std::int32_t>(even, odd)), factor_(factor) {}
    Block<std::int16_t, 1> operator()(const Block<std::int16_t, 1>& x) const {
        const auto wide = widen(x.part[0]);
        return {{narrowSat<std::int16_t>(
            Block<std::int32_t, 2>{{rounded(wide.part[0]), rounded(wide.part[1])}})}};
    }

private:
    Vec<std::int32_t> rounded(Vec<std::int32_t> x) const {
        const auto product = toFloat(x - subtrahend_) * Vec<float>::broadcast(factor_);
        // Above the range of 32 bits the conversion would change the sign.
        return toNearest(minimum(product, Vec<float>::broadcast(32767.0f)));
    }
    Vec<std::int32_t> subtrahend_;
    float factor_;
};

}  // namespace vlq::normalize
