// From polar to Cartesian coordinates: floats, and integers with phases in fixed point.
#pragma once

#include "complex/integer_angles.h"
#include "complex/parts.h"
#include "frame/loop/map_long.h"
#include "frame/simd/convert.h"
#include "frame/simd/math/large_angle.h"

namespace vlq::rotation {

template <class T>
inline Split<T> cartesian(const Block<T, 1>& magnitude, const Block<T, 1>& phase) {
    const auto of = math::sinCosOfAny(phase.part[0]);
    return {magnitude.part[0] * of.cosine, magnitude.part[0] * of.sine};
}
template <class T>
struct ToParts {
    TwoBlocks<T, 1> operator()(const Block<T, 1>& magnitude, const Block<T, 1>& phase) const {
        const auto v = cartesian(magnitude, phase);
        return {{{v.re}}, {{v.im}}};
    }
};
template <class T>
struct ToPairs {
    Block<PairOf<T>, 2> operator()(const Block<T, 1>& magnitude, const Block<T, 1>& phase) const {
        const auto v = interleave(cartesian(magnitude, phase));
        return {{bitCast<PairOf<T>>(v.part[0]), bitCast<PairOf<T>>(v.part[1])}};
    }
};

// round(magnitude magnitudeFactor exp(i phase phaseFactor)), saturated to 32 bits. Phases that are
// infinite after scaling have no direction and give 0.
class FromIntegers {
public:
    FromIntegers(double magnitudeFactor, double phaseFactor)
        : magnitudeFactor_(magnitudeFactor), phaseFactor_(phaseFactor) {}

    Split<std::int32_t> operator()(Vec<std::int32_t> magnitude, Vec<std::int32_t> phase) const {
        const auto m = toDouble(magnitude), p = toDouble(phase);
        Block<double, 2> re, im;
        for (int i = 0; i < 2; ++i) {
            // 0 is 0 even if the factor is infinite.
            const auto isZero = p.part[i] == Double::zero();
            const auto angle = p.part[i] * Double::broadcast(phaseFactor_);
            const auto of = fixedPointSinCos(select(isZero, Double::zero(), angle));
            const auto size = m.part[i] * Double::broadcast(magnitudeFactor_);
            re.part[i] = inRange(size * of.cosine);
            im.part[i] = inRange(size * of.sine);
        }
        return {toNearest(re), toNearest(im)};
    }

private:
    using Double = Vec<double>;
    static Double inRange(Double v) {
        const auto number = v & bitCast<double>(v == v);
        return maximum(minimum(number, Double::broadcast(2147483647.0)),
                       Double::broadcast(-2147483648.0));
    }
    double magnitudeFactor_, phaseFactor_;
};

struct ToPairs32 {
    FromIntegers convert;
    Block<std::int64_t, 2> operator()(const Block<Vlq32s, 1>& magnitude,
                                      const Block<Vlq32s, 1>& phase) const {
        const auto v = interleave(convert(magnitude.part[0], phase.part[0]));
        return {{bitCast<std::int64_t>(v.part[0]), bitCast<std::int64_t>(v.part[1])}};
    }
};
struct ToPairs16 {
    FromIntegers convert;
    Block<std::int32_t, 2> operator()(const Block<Vlq16s, 1>& magnitude,
                                      const Block<Vlq16s, 1>& phase) const {
        const auto m = widen(magnitude.part[0]), p = widen(phase.part[0]);
        const auto low = convert(m.part[0], p.part[0]), high = convert(m.part[1], p.part[1]);
        return interleave(narrowSat<Vlq16s>(Block<std::int32_t, 2>{{low.re, high.re}}),
                          narrowSat<Vlq16s>(Block<std::int32_t, 2>{{low.im, high.im}}));
    }
};

}  // namespace vlq::rotation
