// Conversions of integers to integers: plain, divided by a power of two and rounded, or multiplied
// by one and saturated.
#pragma once

#include <cstdint>
#include <limits>

#include "frame/loop/map.h"
#include "frame/scale/scale.h"

namespace vlq::convert {

// ---- widening -----------------------------------------------------------------------------------
struct Widen {
    Block<std::int16_t, 2> operator()(const Block<std::int8_t, 1>& v) const {
        return widen(v.part[0]);
    }
    Block<std::int32_t, 2> operator()(const Block<std::int16_t, 1>& v) const {
        return widen(v.part[0]);
    }
};

// ---- narrowing ----------------------------------------------------------------------------------
// op on each vector of the source type, then saturation to the destination's.
template <class Op>
struct ThenNarrow16 {
    Op op;
    Block<std::int16_t, 1> operator()(const Block<std::int32_t, 2>& v) const {
        return {{narrowSat<std::int16_t>(Block<std::int32_t, 2>{{op(v.part[0]), op(v.part[1])}})}};
    }
};
template <class Op>
struct ThenNarrow8 {
    Op op;
    Block<std::int8_t, 1> operator()(const Block<std::int16_t, 2>& v) const {
        return {{narrowSat<std::int8_t>(Block<std::int16_t, 2>{{op(v.part[0]), op(v.part[1])}})}};
    }
};
template <class Op>
struct ThenNarrow32 {
    Op op;
    Block<std::int32_t, 1> operator()(const Block<std::int64_t, 2>& v) const {
        return {{narrowSat(Block<std::int64_t, 2>{{op(v.part[0]), op(v.part[1])}})}};
    }
};
struct Same {
    template <class V>
    V operator()(V v) const {
        return v;
    }
};

// 32-bit integers times 2^count, saturated to 16 bits. Saturating first keeps the shift from
// overflowing 32 bits.
struct NarrowThenShiftLeft16 {
    int count;  // up to 15
    Block<std::int16_t, 1> operator()(const Block<std::int32_t, 2>& v) const {
        auto w = widen(narrowSat<std::int16_t>(v));
        return {{narrowSat<std::int16_t>(
            Block<std::int32_t, 2>{{shiftLeft(w.part[0], count), shiftLeft(w.part[1], count)}})}};
    }
};
// 16-bit integers times 2^count, to be saturated to 8 bits.
struct ClampThenShiftLeft8 {
    int count;  // up to 7
    Vec<std::int16_t> operator()(Vec<std::int16_t> v) const {
        using V = Vec<std::int16_t>;
        return shiftLeft(maximum(minimum(v, V::broadcast(127)), V::broadcast(-128)), count);
    }
};
// 64-bit integers times 2^count, saturated to 32 bits.
struct NarrowThenShiftLeft32 {
    int count;  // up to 31
    Block<std::int32_t, 1> operator()(const Block<std::int64_t, 2>& v) const {
        return {{shiftLeftSat(narrowSat(v), count)}};
    }
};
// Scale factor 16 with ties away from zero: of all 16-bit values only the lowest reaches one half.
struct SmallestToMinusOne {
    Vec<std::int16_t> operator()(Vec<std::int16_t> v) const {
        return v == Vec<std::int16_t>::broadcast(std::numeric_limits<std::int16_t>::min());
    }
};

}  // namespace vlq::convert
