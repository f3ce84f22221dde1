// Conversions of integers to integers. A scaled one divides by a power of two and rounds, or
// multiplies by one and saturates.
#pragma once

#include <cstdint>
#include <limits>

#include "frame/loop/map.h"
#include "frame/simd/convert.h"
#include "frame/simd/int64.h"
#include "frame/simd/ops.h"
#include "frame/simd/saturate.h"

namespace vlq::convert {

// ---- v / 2^count, rounded -----------------------------------------------------------------------
// The largest remainder that the floor of the quotient still stands for; above it the quotient is
// one more. Given are that floor, the dividend's sign as a mask and the largest remainder there is.
struct TowardsZero {
    template <class V>
    static V limit(V, V sign, V mask) {
        return mask & ~sign;
    }
};
struct TiesToEven {
    template <class V>
    static V limit(V quotient, V, V mask) {
        const V one = V::broadcast(typename V::Scalar{1});
        return shiftRight(mask, 1) + one - (quotient & one);
    }
};
struct TiesAway {
    template <class V>
    static V limit(V, V sign, V mask) {
        return shiftRight(mask, 1) - sign;
    }
};

// 1 <= count < width
template <class Round, class T>
struct RoundShift {
    int count;

    Vec<T> operator()(Vec<T> v) const {
        using V = Vec<T>;
        using Unsigned = std::make_unsigned_t<T>;
        const V mask = V::broadcast(static_cast<T>((Unsigned{1} << count) - 1));
        const V quotient = shiftRight(v, count);
        V sign = V::zero();
        if constexpr (std::is_signed_v<T>) sign = signMask(v);
        const V limit = Round::limit(quotient, sign, mask);
        using Lane = BitsOf<T>;
        return quotient - bitCast<T>(isAbove(bitCast<Lane>(v & mask), bitCast<Lane>(limit)));
    }
};

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

// 32-bit integers times 2^count in 16 bits: the product of a value of 16 bits cannot overflow.
struct NarrowThenShiftLeft16 {
    int count;  // up to 15
    Block<std::int16_t, 1> operator()(const Block<std::int32_t, 2>& v) const {
        auto w = widen(narrowSat<std::int16_t>(v));
        return {{narrowSat<std::int16_t>(
            Block<std::int32_t, 2>{{shiftLeft(w.part[0], count), shiftLeft(w.part[1], count)}})}};
    }
};
// 16-bit integers times 2^count in 8 bits.
struct ClampThenShiftLeft8 {
    int count;  // up to 7
    Vec<std::int16_t> operator()(Vec<std::int16_t> v) const {
        using V = Vec<std::int16_t>;
        return shiftLeft(maximum(minimum(v, V::broadcast(127)), V::broadcast(-128)), count);
    }
};
// 64-bit integers times 2^count in 32 bits.
struct NarrowThenShiftLeft32 {
    int count;  // up to 31
    Block<std::int32_t, 1> operator()(const Block<std::int64_t, 2>& v) const {
        return {{shiftLeftSat(narrowSat(v), count)}};
    }
};
// Of all 16-bit values over 2^16 only the smallest reaches one half.
struct SmallestToMinusOne {
    Vec<std::int16_t> operator()(Vec<std::int16_t> v) const {
        return v == Vec<std::int16_t>::broadcast(std::numeric_limits<std::int16_t>::min());
    }
};

}  // namespace vlq::convert
