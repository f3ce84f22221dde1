// Conversions to and from floats. A kernel that rounds to integers runs under StandardFloatMode.
#pragma once

#include <limits>

#include "frame/loop/map.h"
#include "frame/scale/power_of_two.h"
#include "frame/scale/rounding.h"
#include "frame/simd/convert.h"
#include "frame/simd/ops.h"

namespace vlq::convert {

// Whether a product rounds to the same integer with subnormals kept or flushed to zero: at these
// scale factors every product that is subnormal, or has a subnormal factor, is below one half.
template <class T>
bool subnormalsVanish(std::int32_t scaleFactor) {
    return scaleFactor >= std::numeric_limits<T>::min_exponent &&
           scaleFactor <= -std::numeric_limits<T>::min_exponent + 1;
}

// ---- floats to integers -------------------------------------------------------------------------
template <class T>
struct Unscaled {
    Vec<T> operator()(Vec<T> v) const { return v; }
};
template <class T>
struct Times {
    T factor;
    Vec<T> operator()(Vec<T> v) const { return v * Vec<T>::broadcast(factor); }
};

// Values above the range become the largest one, and so does NaN, because minimum returns its
// second operand for it. Below the range the conversion gives the lowest integer, which the
// narrowing saturates.
template <class To, class Scale, Rounding rounding>
struct ToInteger {
    Scale scale;

    template <class From>
    Vec<From> clamped(Vec<From> v) const {
        return minimum(scale(v), Vec<From>::broadcast(std::numeric_limits<To>::max()));
    }
    Vec<std::int32_t> convert(Vec<float> v) const { return toInteger<rounding>(clamped(v)); }
    Vec<std::int32_t> convert(Vec<double> low, Vec<double> high) const {
        return toInteger<rounding>(Block<double, 2>{{clamped(low), clamped(high)}});
    }

    Block<To, 1> operator()(const Block<float, 4>& v) const {
        return {{narrowSat<To>(Block<std::int32_t, 4>{
            {convert(v.part[0]), convert(v.part[1]), convert(v.part[2]), convert(v.part[3])}})}};
    }
    Block<To, 1> operator()(const Block<float, 2>& v) const {
        return {{narrowSat<To>(Block<std::int32_t, 2>{{convert(v.part[0]), convert(v.part[1])}})}};
    }
    Block<To, 1> operator()(const Block<float, 1>& block) const {
        // The largest integer is not representable as a float. Above the range, and for NaN, the
        // conversion gives the lowest integer, whose complement is the largest.
        const Vec<float> v = scale(block.part[0]);
        const Vec<std::int32_t> inRange = v < Vec<float>::broadcast(0x1p31f);
        return {{toInteger<rounding>(v) ^ ~inRange}};
    }
    Block<To, 1> operator()(const Block<double, 4>& v) const {
        return {{narrowSat<To>(Block<std::int32_t, 2>{
            {convert(v.part[0], v.part[1]), convert(v.part[2], v.part[3])}})}};
    }
    Block<To, 1> operator()(const Block<double, 2>& v) const {
        return {{convert(v.part[0], v.part[1])}};
    }
};

// For NaN the result of the conversion, the lowest integer, stays.
template <class Scale, Rounding rounding>
struct ToInteger64 {
    Scale scale;

    Block<std::int64_t, 1> operator()(const Block<double, 1>& block) const {
        const Vec<double> v = scale(block.part[0]);
        const Vec<std::int64_t> tooLarge = v >= Vec<double>::broadcast(0x1p63);
        return {{toInteger64<rounding>(v) ^ tooLarge}};
    }
};

template <class To, class Scale, Rounding rounding>
using IntegerOf = std::conditional_t<sizeof(To) == 8, ToInteger64<Scale, rounding>,
                                     ToInteger<To, Scale, rounding>>;

// ---- integers to floats -------------------------------------------------------------------------
template <class Scale>
struct ToFloat {
    Scale scale;

    Vec<float> convert(Vec<std::int32_t> v) const { return scale(toFloat(v)); }
    Vec<float> convert(Vec<std::uint32_t> v) const { return convert(bitCast<std::int32_t>(v)); }

    template <class T>
    requires(sizeof(T) == 1) Block<float, 4>
    operator()(const Block<T, 1>& v) const {
        const auto w = widenTwice(v.part[0]);
        return {{convert(w.part[0]), convert(w.part[1]), convert(w.part[2]), convert(w.part[3])}};
    }
    template <class T>
    requires(sizeof(T) == 2) Block<float, 2>
    operator()(const Block<T, 1>& v) const {
        const auto w = widen(v.part[0]);
        return {{convert(w.part[0]), convert(w.part[1])}};
    }
    Block<float, 1> operator()(const Block<std::int32_t, 1>& v) const {
        return {{convert(v.part[0])}};
    }
};

template <class Scale>
struct ToDouble {
    Scale scale;

    Block<double, 2> convert(Vec<std::int32_t> v) const {
        const auto d = toDouble(v);
        return {{scale(d.part[0]), scale(d.part[1])}};
    }
    Block<double, 4> operator()(const Block<std::int16_t, 1>& v) const {
        const auto w = widen(v.part[0]);
        const auto low = convert(w.part[0]), high = convert(w.part[1]);
        return {{low.part[0], low.part[1], high.part[0], high.part[1]}};
    }
    Block<double, 2> operator()(const Block<std::int32_t, 1>& v) const {
        return convert(v.part[0]);
    }
    Block<double, 1> operator()(const Block<std::int64_t, 1>& v) const {
        return {{toDouble(v.part[0])}};
    }
};

// ---- floats to floats ---------------------------------------------------------------------------
struct WidenFloat {
    Block<double, 2> operator()(const Block<float, 1>& v) const { return toDouble(v.part[0]); }
};
struct NarrowDouble {
    Block<float, 1> operator()(const Block<double, 2>& v) const { return {{toFloat(v)}}; }
};

}  // namespace vlq::convert
