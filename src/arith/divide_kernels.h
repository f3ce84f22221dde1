// Quotients of integers: computed in floating point, scaled by a power of two, which is exact, and
// converted with rounding and saturation. The kernels run under StandardFloatMode. Of zero divisors
// only 0 / 0 needs care: other quotients are infinite and saturate by the numerator's sign.
#pragma once

#include <algorithm>

#include "frame/loop/any.h"
#include "frame/loop/map.h"
#include "frame/scale/power_of_two.h"
#include "frame/scale/rounding.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "vlqs/types.h"

namespace vlq::divide {

// 2^-scaleFactor as the factor of a quotient. Clamping keeps the factor normal, and beyond these
// limits every quotient saturates or becomes 0 anyway: quotients of 16-bit integers lie between
// 2^-17 and 2^17, those of 32-bit integers and of complex 16-bit integers between 2^-33 and 2^33.
inline float floatFactor(std::int32_t scaleFactor) {
    return scaleFactorPower<float>(std::clamp(scaleFactor, -60, 60));
}
inline double doubleFactor(std::int32_t scaleFactor) {
    return scaleFactorPower<double>(std::clamp(scaleFactor, -120, 120));
}

// ---- conversion of operands and results ---------------------------------------------------------
// 8 and 16-bit elements as floats.
template <class T>
inline auto floats(Vec<T> v) {
    constexpr int parts = 4 / static_cast<int>(sizeof(T));
    Block<float, parts> result;
    const auto wide = [v] {
        if constexpr (sizeof(T) == 1)
            return widenTwice(v);
        else
            return widen(v);
    }();
    for (int i = 0; i < parts; ++i) result.part[i] = toFloat(bitCast<std::int32_t>(wide.part[i]));
    return result;
}

// Values above the range of To, infinity included, become its largest value. Below the range the
// conversion gives the lowest integer, which the narrowing saturates.
template <class To, class From>
inline Vec<From> belowTop(Vec<From> v) {
    return minimum(v, Vec<From>::broadcast(static_cast<From>(std::numeric_limits<To>::max())));
}
template <class To, Rounding rounding, int parts>
inline Block<To, 1> stored(Block<float, parts> v) {
    Block<std::int32_t, parts> integers;
    for (int i = 0; i < parts; ++i) integers.part[i] = toInteger<rounding>(belowTop<To>(v.part[i]));
    return {{narrowSat<To>(integers)}};
}
template <class To>
inline Vec<std::int32_t> storedDouble(Block<double, 2> v) {
    return toNearest(Block<double, 2>{{belowTop<To>(v.part[0]), belowTop<To>(v.part[1])}});
}

// numerator / divisor * factor, and 0 for a numerator of 0 with any divisor.
template <class T>
inline Vec<T> quotient(Vec<T> numerator, Vec<T> divisor, Vec<T> factor) {
    const auto isNot0 = numerator != Vec<T>::zero();
    return (numerator / divisor * factor) & Vec<T>::fromBits(isNot0.raw);
}

// ---- 8 and 16 bits ------------------------------------------------------------------------------
template <class T, Rounding rounding>
struct Quotient {
    Vec<float> factor;
    Block<T, 1> operator()(const Block<T, 1>& divisors, const Block<T, 1>& numerators) const {
        const auto d = floats(divisors.part[0]);
        auto n = floats(numerators.part[0]);
        constexpr int count = 4 / static_cast<int>(sizeof(T));
        for (int i = 0; i < count; ++i) n.part[i] = quotient(n.part[i], d.part[i], factor);
        return stored<T, rounding>(n);
    }
};

// n * reciprocal, where the scaled reciprocal has been rounded once.
template <class T>
struct TimesReciprocal {
    Vec<float> reciprocal;
    Block<T, 1> operator()(const Block<T, 1>& numerators) const {
        auto n = floats(numerators.part[0]);
        for (Vec<float>& part : n.part) part *= reciprocal;
        return stored<T, Rounding::TiesToEven>(n);
    }
};

// ---- 32 bits ------------------------------------------------------------------------------------
struct Quotient32s {
    Vec<double> factor;
    Block<std::int32_t, 1> operator()(const Block<std::int32_t, 1>& divisors,
                                      const Block<std::int32_t, 1>& numerators) const {
        return {{storedDouble<std::int32_t>(quotients(divisors.part[0], numerators.part[0]))}};
    }
    // 32-bit numerators, 16-bit divisors and results.
    Block<std::int16_t, 1> operator()(const Block<std::int16_t, 1>& divisors,
                                      const Block<std::int32_t, 2>& numerators) const {
        const auto d = widen(divisors.part[0]);
        return {{narrowSat<std::int16_t>(Block<std::int32_t, 2>{
            {storedDouble<std::int16_t>(quotients(d.part[0], numerators.part[0])),
             storedDouble<std::int16_t>(quotients(d.part[1], numerators.part[1]))}})}};
    }

private:
    Block<double, 2> quotients(Vec<std::int32_t> divisors, Vec<std::int32_t> numerators) const {
        const auto d = toDouble(divisors), n = toDouble(numerators);
        return {{quotient(n.part[0], d.part[0], factor), quotient(n.part[1], d.part[1], factor)}};
    }
};

// ---- complex values of 16-bit parts -------------------------------------------------------------
struct Parts {
    Block<double, 2> re, im;
};
inline Parts parts(Vec<std::int32_t> values) {
    return {toDouble(shiftRight(shiftLeft(values, 16), 16)), toDouble(shiftRight(values, 16))};
}
inline Vec<std::int32_t> joined(const Parts& v) {
    const auto within = [](Vec<double> x) {
        return maximum(belowTop<std::int16_t>(x),
                       Vec<double>::broadcast(std::numeric_limits<std::int16_t>::min()));
    };
    const auto re = toNearest(Block<double, 2>{{within(v.re.part[0]), within(v.re.part[1])}});
    const auto im = toNearest(Block<double, 2>{{within(v.im.part[0]), within(v.im.part[1])}});
    return shiftLeft(im, 16) | (re & Vec<std::int32_t>::broadcast(0xFFFF));
}

// (c + di) / (a + bi) = ((ca + db) + (da - cb)i) / (a^2 + b^2). Only the division rounds. For a
// divisor of 0 each part of the numerator is divided by 0.
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

}  // namespace vlq::divide
