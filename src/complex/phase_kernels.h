// Phases: of floats by the vector arctangent, of integers in doubles.
#pragma once

#include "complex/integer_angles.h"
#include "complex/parts.h"
#include "frame/loop/map_long.h"
#include "frame/scale/power_of_two.h"
#include "frame/simd/convert.h"
#include "frame/simd/math/atan.h"

namespace vlq::phase {

template <class T>
struct Phase {
    Block<T, 1> operator()(Split<T> v) const { return {{math::atan2(v.im, v.re)}}; }
};
struct Phase16ToFloat {
    Vec<float> operator()(Vec<std::int32_t> v) const {
        return math::atan2(toFloat(imaginaryPart16(v)), toFloat(realPart16(v)));
    }
};

inline Block<double, 2> phases(Vec<std::int32_t> re, Vec<std::int32_t> im) {
    const auto x = toDouble(re), y = toDouble(im);
    return {{integerPhase(x.part[0], y.part[0]), integerPhase(x.part[1], y.part[1])}};
}
inline Block<double, 2> phases16(Vec<std::int32_t> v) {
    return phases(realPart16(v), imaginaryPart16(v));
}

// round(phase * factor), saturated to 32 bits.
class ScaledPhase {
public:
    explicit ScaledPhase(double factor) : factor_(factor) {}
    Vec<std::int32_t> operator()(Block<double, 2> phase) const {
        using V = Vec<double>;
        for (auto& part : phase.part) {
            part = maximum(minimum(part * V::broadcast(factor_), V::broadcast(2147483647.0)),
                           V::broadcast(-2147483648.0));
        }
        return toNearest(phase);
    }

private:
    double factor_;
};

struct Phase16 {
    ScaledPhase scaled;
    Vec<std::int32_t> operator()(Vec<std::int32_t> v) const { return scaled(phases16(v)); }
};
struct Phase32 {
    ScaledPhase scaled;
    Block<std::int32_t, 1> operator()(Split<std::int32_t> v) const {
        return {{scaled(phases(v.re, v.im))}};
    }
};

// As floats before the scale. The products are below 2^31.
struct Phase16InFloats {
    float factor;
    Vec<std::int32_t> operator()(Vec<std::int32_t> v) const {
        return toNearest(toFloat(phases16(v)) * Vec<float>::broadcast(factor));
    }
};
// As floats after the scale, ties away from zero.
struct Phase16Far {
    double factor;
    Vec<std::int32_t> operator()(Vec<std::int32_t> v) const {
        using V = Vec<float>;
        auto phase = phases16(v);
        for (auto& part : phase.part) part = part * Vec<double>::broadcast(factor);
        const auto scaled = toFloat(phase);
        const auto rounded = scaled + (V::broadcast(0.5f) | signBit(scaled));
        return toZero(maximum(minimum(rounded, V::broadcast(32767.0f)), V::broadcast(-32768.0f)));
    }
};

}  // namespace vlq::phase
