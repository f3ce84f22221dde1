// Conversions with a float on one side or both. A kernel that rounds runs under StandardFloatMode.
#pragma once

#include <bit>
#include <limits>

#include "frame/loop/map.h"
#include "frame/simd/convert.h"
#include "frame/simd/ops.h"

namespace vlq::convert {

// 2^-scaleFactor as doubling or halving 1 step by step gives it: subnormal, zero or infinite past
// the type's range.
template <class T>
T stepwisePower(std::int32_t scaleFactor) {
    using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
    constexpr int fraction = std::numeric_limits<T>::digits - 1;
    constexpr int top = std::numeric_limits<T>::max_exponent - 1;
    const std::int64_t exponent = -std::int64_t{scaleFactor};
    if (exponent > top) return std::numeric_limits<T>::infinity();
    if (exponent > -top) return std::bit_cast<T>(static_cast<Bits>(exponent + top) << fraction);
    if (exponent >= 1 - top - fraction) return std::bit_cast<T>(Bits{1} << (exponent + top - 1 + fraction));
    return T(0);
}

// ---- floats to integers ----------------------------------------------------------------------------
struct Zero {
    static constexpr bool usesControlWord = false;
    template <class V>
    Vec<std::int32_t> operator()(V v) const { return toZero(v); }
};
struct Nearest {
    static constexpr bool usesControlWord = !kRoundingInInstruction;
    template <class V>
    Vec<std::int32_t> operator()(V v) const { return toNearest(v); }
};
struct NearestAway {
    static constexpr bool usesControlWord = !kRoundingInInstruction;
    template <class V>
    Vec<std::int32_t> operator()(V v) const { return toNearestAway(v); }
};

template <class T>
struct Unscaled {
    Vec<T> operator()(Vec<T> v) const { return v; }
};
template <class T>
struct Times {
    T factor;
    Vec<T> operator()(Vec<T> v) const { return v * Vec<T>::broadcast(factor); }
};

// The bound is the second operand of the minimum, so a not-a-number becomes the top value. Below
// the range the conversion gives the most negative integer and the pack saturates it.
template <class To, class Scale, class Round>
struct ToInteger {
    Scale scale;
    Round round;

    template <class From>
    Vec<From> clamped(Vec<From> v) const {
        return minimum(scale(v), Vec<From>::broadcast(std::numeric_limits<To>::max()));
    }
    Vec<std::int32_t> convert(Vec<float> v) const { return round(clamped(v)); }
    Vec<std::int32_t> convert(Vec<double> low, Vec<double> high) const {
        return round(Block<double, 2>{{clamped(low), clamped(high)}});
    }

    Block<To, 1> operator()(const Block<float, 4>& v) const {
        return {{narrowSat<To>(Block<std::int32_t, 4>{{convert(v.part[0]), convert(v.part[1]), convert(v.part[2]), convert(v.part[3])}})}};
    }
    Block<To, 1> operator()(const Block<float, 2>& v) const {
        return {{narrowSat<To>(Block<std::int32_t, 2>{{convert(v.part[0]), convert(v.part[1])}})}};
    }
    Block<To, 1> operator()(const Block<float, 1>& block) const {
        // The top integer is no float. The conversion answers the most negative integer above it
        // and for a not-a-number; all bits of that are flipped.
        const Vec<float> v = scale(block.part[0]);
        const Vec<std::int32_t> inRange = v < Vec<float>::broadcast(0x1p31f);
        return {{round(v) ^ ~inRange}};
    }
    Block<To, 1> operator()(const Block<double, 4>& v) const {
        return {{narrowSat<To>(Block<std::int32_t, 2>{{convert(v.part[0], v.part[1]), convert(v.part[2], v.part[3])}})}};
    }
    Block<To, 1> operator()(const Block<double, 2>& v) const { return {{convert(v.part[0], v.part[1])}}; }
};

// ---- integers to floats ----------------------------------------------------------------------------
struct ToFloat {
    template <class T>
    Block<float, 4> operator()(const Block<T, 1>& v) const requires(sizeof(T) == 1) {
        const auto w = widenTwice(v.part[0]);
        Block<float, 4> result;
        for (int i = 0; i < 4; ++i) result.part[i] = toFloat(bitCast<std::int32_t>(w.part[i]));
        return result;
    }
    template <class T>
    Block<float, 2> operator()(const Block<T, 1>& v) const requires(sizeof(T) == 2) {
        const auto w = widen(v.part[0]);
        return {{toFloat(bitCast<std::int32_t>(w.part[0])), toFloat(bitCast<std::int32_t>(w.part[1]))}};
    }
    Block<float, 1> operator()(const Block<std::int32_t, 1>& v) const { return {{toFloat(v.part[0])}}; }
};

}  // namespace vlq::convert
