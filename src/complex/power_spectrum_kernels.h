// Squared magnitudes.
#pragma once

#include "complex/parts.h"
#include "frame/loop/map.h"
#include "frame/loop/map_long.h"
#include "frame/scale/scale.h"
#include "frame/simd/convert.h"
#include "frame/simd/ops.h"
#include "frame/simd/pairs.h"

namespace vlq::power {

template <class T>
struct Power {
    Block<T, 1> operator()(Split<T> v) const { return {{v.re * v.re + v.im * v.im}}; }
};

// In doubles squares of floats are exact.
struct PowerInDoubles {
    Block<double, 1> operator()(const Block<std::int64_t, 1>& v) const {
        const auto wide = toDouble(bitCast<float>(v.part[0]));
        const auto parts = deinterleave(wide.part[0], wide.part[1]);
        return {{parts.re * parts.re + parts.im * parts.im}};
    }
};

// ---- 16-bit parts -------------------------------------------------------------------------------
// At most 2^31, which 32 bits wrap to the least integer.
inline Vec<std::int32_t> wrappedPower16(Vec<std::int32_t> v) {
    const auto parts = bitCast<std::int16_t>(v);
    return pairSums(parts, parts);
}
struct Power16ToFloat {
    Vec<float> operator()(Vec<std::int32_t> v) const {
        return absolute(toFloat(wrappedPower16(v)));
    }
};
// 2^31 - 1 in place of 2^31, which no scale factor and no saturation can tell from it.
inline Vec<std::int32_t> power16(Vec<std::int32_t> v) {
    const auto power = wrappedPower16(v);
    return power + signMask(power);
}
struct Power16 {
    Vec<std::int32_t> operator()(Vec<std::int32_t> v) const { return power16(v); }
};
class Power16Right {
public:
    // From this shift on all results are 0.
    static constexpr int kVanishes = 32;
    explicit Power16Right(int scaleFactor) : scale_(scaleFactor) {}
    Vec<std::int32_t> operator()(Vec<std::int32_t> v) const { return scale_(power16(v)); }

private:
    RoundShift<std::int32_t> scale_;
};
class Power16Left {
public:
    explicit Power16Left(int scaleFactor) : count_(scaleFactor < -15 ? 15 : -scaleFactor) {}
    Vec<std::int32_t> operator()(Vec<std::int32_t> v) const {
        // 2^15 saturates as every larger value does.
        const auto limit = Vec<std::int32_t>::broadcast(0x8000);
        return shiftLeft(minimum(power16(v), limit), count_);
    }

private:
    int count_;
};

// ---- 32-bit parts -------------------------------------------------------------------------------
class Power32 {
public:
    explicit Power32(double factor) : factor_(factor) {}
    Block<std::int32_t, 1> operator()(Split<std::int32_t> v) const {
        const auto re = toDouble(v.re), im = toDouble(v.im);
        return {{toNearest(
            Block<double, 2>{{scaled(re.part[0], im.part[0]), scaled(re.part[1], im.part[1])}})}};
    }

private:
    Vec<double> scaled(Vec<double> re, Vec<double> im) const {
        const auto power = (re * re + im * im) * Vec<double>::broadcast(factor_);
        return minimum(power, Vec<double>::broadcast(2147483647.0));
    }
    double factor_;
};

}  // namespace vlq::power
