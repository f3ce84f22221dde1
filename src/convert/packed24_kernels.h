// Conversions to and from packed 24-bit integers, in blocks of 32-bit lanes.
#pragma once

#include "convert/floating_kernels.h"
#include "convert/integer_kernels.h"
#include "frame/loop/map_packed24.h"

namespace vlq::convert {

struct FromPackedInteger {
    Packed24 operator()(const Packed24& v) const { return v; }
};
struct FromPackedUnsigned {
    Block<std::uint32_t, 2> operator()(const Packed24& v) const {
        return {{bitCast<std::uint32_t>(v.part[0]), bitCast<std::uint32_t>(v.part[1])}};
    }
};
struct FromPackedToFloat {
    Block<float, 2> operator()(const Packed24& v) const {
        return {{toFloat(v.part[0]), toFloat(v.part[1])}};
    }
};

// An integer times 2^count, saturated to 24 bits: the saturating shift goes eight bits too far, to
// the limits of the lane, and is undone by a plain one.
template <class T>
struct ShiftLeftTo24 {
    static constexpr int highest =
        std::numeric_limits<T>::digits - 8;  // from here on all but 0 saturates
    int count = 0;

    Vec<std::int32_t> operator()(Vec<T> v) const {
        return bitCast<std::int32_t>(shiftRight(shiftLeftSat(v, count + 8), 8));
    }
};
// An integer over 2^count, rounded to nearest, ties to even, and saturated to 24 bits.
template <class T>
struct RoundShiftTo24 {
    RoundShift<T> divide;

    Vec<std::int32_t> operator()(Vec<T> v) const { return ShiftLeftTo24<T>{}(divide(v)); }
};

// Clamped to the range as a float, NaN to its upper end, then rounded to nearest.
template <class Scale>
struct FloatTo24 {
    Scale scale;
    float low, high;

    Vec<std::int32_t> operator()(Vec<float> v) const {
        const auto belowTop = minimum(scale(v), Vec<float>::broadcast(high));
        return toNearest(maximum(belowTop, Vec<float>::broadcast(low)));
    }
};

template <class Op>
struct ToPacked {
    Op op;
    template <class T>
    Packed24 operator()(const Block<T, 2>& v) const {
        return {{op(v.part[0]), op(v.part[1])}};
    }
};

}  // namespace vlq::convert
