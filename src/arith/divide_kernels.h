// Quotients of integers. They are formed in floats, scaled by a power of two, which rounds
// nothing, and converted; the kernels run under StandardFloatMode. A zero divisor needs no care
// but for 0 / 0: the infinity of the others saturates by the sign of the numerator.
#pragma once

#include <bit>

#include "frame/loop/any.h"
#include "frame/loop/map.h"
#include "frame/scale.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "vlqs/types.h"

namespace vlq::divide {

// 2^-scaleFactor, not above 2^limit nor below 2^-limit: quotients past these saturate or are 0.
template <class T>
inline T powerWithin(std::int32_t scaleFactor, std::int32_t limit) {
    using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
    constexpr int bias = std::numeric_limits<T>::max_exponent - 1;
    const std::int32_t exponent = scaleFactor > limit ? -limit : scaleFactor < -limit ? limit : -scaleFactor;
    return std::bit_cast<T>(static_cast<Bits>(exponent + bias) << (std::numeric_limits<T>::digits - 1));
}
inline constexpr std::int32_t kFloatLimit = 60;    // quotients of up to 17 bits either way
inline constexpr std::int32_t kDoubleLimit = 120;  // of up to 33 bits

// ---- rounding ----------------------------------------------------------------------------------------
struct Nearest {
    template <class V>
    Vec<std::int32_t> operator()(V v) const { return toNearest(v); }
};
struct TowardsZero {
    template <class V>
    Vec<std::int32_t> operator()(V v) const { return toZero(v); }
};
struct NearestAway {
    template <class V>
    Vec<std::int32_t> operator()(V v) const { return toNearestAway(v); }
};

// ---- in and out ----------------------------------------------------------------------------------------
// 8 and 16-bit elements as floats.
template <class T>
inline auto floats(Vec<T> v) {
    constexpr int parts = 4 / static_cast<int>(sizeof(T));
    Block<float, parts> result;
    const auto wide = [v] {
        if constexpr (sizeof(T) == 1) return widenTwice(v);
        else return widen(v);
    }();
    for (int i = 0; i < parts; ++i) result.part[i] = toFloat(bitCast<std::int32_t>(wide.part[i]));
    return result;
}

// The bound is the second operand: what is above it, infinity too, becomes the top value. Below
// the range a conversion gives the most negative integer, and the pack saturates it.
template <class To, class From>
inline Vec<From> belowTop(Vec<From> v) {
    return minimum(v, Vec<From>::broadcast(static_cast<From>(std::numeric_limits<To>::max())));
}
template <class To, class Round, int parts>
inline Block<To, 1> stored(Block<float, parts> v, Round round) {
    Block<std::int32_t, parts> integers;
    for (int i = 0; i < parts; ++i) integers.part[i] = round(belowTop<To>(v.part[i]));
    return {{narrowSat<To>(integers)}};
}
template <class To>
inline Vec<std::int32_t> storedDouble(Block<double, 2> v) {
    return toNearest(Block<double, 2>{{belowTop<To>(v.part[0]), belowTop<To>(v.part[1])}});
}

// numerator / divisor * factor, and 0 for a numerator of 0 whatever the divisor.
template <class T>
inline Vec<T> quotient(Vec<T> numerator, Vec<T> divisor, Vec<T> factor) {
    const auto isNot0 = numerator != Vec<T>::zero();
    return (numerator / divisor * factor) & Vec<T>::fromBits(isNot0.raw);
}

// ---- 8 and 16 bits -----------------------------------------------------------------------------------
template <class T, class Round>
struct Quotient {
    Vec<float> factor;
    Round round;
    Block<T, 1> operator()(const Block<T, 1>& divisors, const Block<T, 1>& numerators) const {
        const auto d = floats(divisors.part[0]);
        auto n = floats(numerators.part[0]);
        constexpr int count = 4 / static_cast<int>(sizeof(T));
        for (int i = 0; i < count; ++i) n.part[i] = quotient(n.part[i], d.part[i], factor);
        return stored<T>(n, round);
    }
};

// n * reciprocal, the reciprocal with its scale rounded once.
template <class T>
struct TimesReciprocal {
    Vec<float> reciprocal;
    Block<T, 1> operator()(const Block<T, 1>& numerators) const {
        auto n = floats(numerators.part[0]);
        for (Vec<float>& part : n.part) part *= reciprocal;
        return stored<T>(n, Nearest{});
    }
};

// ---- 32 bits --------------------------------------------------------------------------------------------
struct Quotient32s {
    Vec<double> factor;
    Block<std::int32_t, 1> operator()(const Block<std::int32_t, 1>& divisors, const Block<std::int32_t, 1>& numerators) const {
        return {{storedDouble<std::int32_t>(quotients(divisors.part[0], numerators.part[0]))}};
    }
    // 32-bit numerators, 16-bit divisors and results.
    Block<std::int16_t, 1> operator()(const Block<std::int16_t, 1>& divisors, const Block<std::int32_t, 2>& numerators) const {
        const auto d = widen(divisors.part[0]);
        return {{narrowSat<std::int16_t>(Block<std::int32_t, 2>{{storedDouble<std::int16_t>(quotients(d.part[0], numerators.part[0])),
                                                                 storedDouble<std::int16_t>(quotients(d.part[1], numerators.part[1]))}})}};
    }

private:
    Block<double, 2> quotients(Vec<std::int32_t> divisors, Vec<std::int32_t> numerators) const {
        const auto d = toDouble(divisors), n = toDouble(numerators);
        return {{quotient(n.part[0], d.part[0], factor), quotient(n.part[1], d.part[1], factor)}};
    }
};

// ---- complex values of 16-bit parts --------------------------------------------------------------------------
struct Parts {
    Block<double, 2> re, im;
};
inline Parts parts(Vec<std::int32_t> values) {
    return {toDouble(shiftRight(shiftLeft(values, 16), 16)), toDouble(shiftRight(values, 16))};
}
inline Vec<std::int32_t> joined(const Parts& v) {
    const auto within = [](Vec<double> x) {
        return maximum(belowTop<std::int16_t>(x), Vec<double>::broadcast(std::numeric_limits<std::int16_t>::min()));
    };
    const auto re = toNearest(Block<double, 2>{{within(v.re.part[0]), within(v.re.part[1])}});
    const auto im = toNearest(Block<double, 2>{{within(v.im.part[0]), within(v.im.part[1])}});
    return shiftLeft(im, 16) | (re & Vec<std::int32_t>::broadcast(0xFFFF));
}

// (c + di) / (a + bi) = ((ca + db) + (da - cb)i) / (a^2 + b^2), all of it exact but for the quotient;
// over 0 the numerator's parts by themselves.
struct ComplexQuotient16sc {
    Vec<double> factor;
    Vec<std::int32_t> operator()(Vec<std::int32_t> divisors, Vec<std::int32_t> numerators) const {
        const Parts d = parts(divisors), n = parts(numerators);
        Parts result;
        for (int i = 0; i < 2; ++i) {
            const auto a = d.re.part[i], b = d.im.part[i], x = n.re.part[i], y = n.im.part[i];
            const auto norm = a * a + b * b;
            const auto is0 = norm == Vec<double>::zero();
            result.re.part[i] = quotient(select(is0, x, x * a + y * b), norm, factor);
            result.im.part[i] = quotient(select(is0, y, y * a - x * b), norm, factor);
        }
        return joined(result);
    }
};

struct TimesReciprocal16sc {
    Vec<double> re, im;
    Vec<std::int32_t> operator()(Vec<std::int32_t> numerators) const {
        const Parts n = parts(numerators);
        Parts result;
        for (int i = 0; i < 2; ++i) {
            const auto x = n.re.part[i], y = n.im.part[i];
            result.re.part[i] = x * re - y * im;
            result.im.part[i] = x * im + y * re;
        }
        return joined(result);
    }
};

// ---- 64 bits by a constant, exactly ---------------------------------------------------------------------------
__extension__ typedef unsigned __int128 Unsigned128;

// round(size * 2^up / divisor) of magnitudes up to 2^63, from a tie to the even integer, stopped at a
// limit.
class Quotient64 {
public:
    Quotient64(std::uint64_t divisor, std::int64_t up) : divisor_(divisor), reciprocal_(~std::uint64_t{0} / divisor), up_(up) {}

    std::uint64_t operator()(std::uint64_t size, std::uint64_t limit) const {
        // The quotient by the reciprocal is at most 2 too small.
        std::uint64_t quotient = static_cast<std::uint64_t>(static_cast<Unsigned128>(size) * reciprocal_ >> 64), rest = size - quotient * divisor_;
        for (int i = 0; i < 2; ++i) {
            const std::uint64_t more = rest >= divisor_;
            quotient += more;
            rest -= divisor_ & (0 - more);
        }
        return up_ == 0 ? rounded(quotient, rest, limit) : longDivision(quotient, rest, limit);
    }

private:
    // quotient + rest / divisor
    std::uint64_t rounded(std::uint64_t quotient, std::uint64_t rest, std::uint64_t limit) const {
        // Twice the rest may need one bit more: compare with what is left of the divisor.
        const std::uint64_t left = divisor_ - rest;
        quotient += (rest + (quotient & 1)) > left;
        return quotient < limit ? quotient : limit;
    }
    // The bits that the scale brings up from below the point, up to 63 at a time.
    std::uint64_t longDivision(std::uint64_t quotient, std::uint64_t rest, std::uint64_t limit) const {
        for (std::int64_t left = up_; left > 0;) {
            if (rest == 0) {
                if (quotient == 0) return 0;
                return left > 63 || quotient > limit >> left ? limit : quotient << left;
            }
            const int step = static_cast<int>(left < 63 ? left : 63);
            if (quotient > limit >> step) return limit;
            const Unsigned128 shifted = static_cast<Unsigned128>(rest) << step;
            quotient = (quotient << step) + static_cast<std::uint64_t>(shifted / divisor_);
            rest = static_cast<std::uint64_t>(shifted % divisor_);
            left -= step;
        }
        return rounded(quotient, rest, limit);
    }

    std::uint64_t divisor_, reciprocal_;
    std::int64_t up_;
};

// Exact quotients of signed integers; rounding to even does not look at the sign.
struct Quotient64s {
    Quotient64 magnitudes;
    bool negative;  // divisor
    Vlq64s operator()(Vlq64s numerator) const {
        // Signs as masks: they change too often to branch on.
        const auto bits = static_cast<std::uint64_t>(numerator), sign = static_cast<std::uint64_t>(numerator >> 63);
        const std::uint64_t below0 = sign ^ (0 - static_cast<std::uint64_t>(negative));
        constexpr std::uint64_t top = std::numeric_limits<Vlq64s>::max();
        const std::uint64_t result = magnitudes((bits ^ sign) - sign, top - below0);
        return static_cast<Vlq64s>((result ^ below0) - below0);
    }
};

}  // namespace vlq::divide
