// Natural and decimal logarithms.
#pragma once

#include "frame/simd/math/format.h"

namespace vlq::math {

template <class T>
struct LogConstants;
// The parts named High have so few bits that their products with an exponent, or with the upper
// half of a fraction, are exact.
template <>
struct LogConstants<float> {
    static constexpr float ln2High = 0x1.62e4p-1f, ln2Low = 0x1.7f7d1cp-20f;
    static constexpr float log2High = 0x1.344p-2f, log2Low = 0x1.3509f8p-18f;   // log10(2)
    static constexpr float logEHigh = 0x1.bccp-2f, logELow = -0x1.09d5b2p-15f;  // log10(e)
    static constexpr float logE = 0x1.bcb7b2p-2f;
    static constexpr std::uint32_t upperHalf = 0xFFFFF000u;
    static constexpr float rescale = 0x1p24f, rescaleExponent = 24;
    // ln(1 + f) = f + f^2 p(f), sqrt(1/2) - 1 <= f <= sqrt(2) - 1; relative error 9.2e-9.
    static constexpr float p[] = {-0.5f,           0x1.55552ep-2f,  -0x1.000216p-2f,
                                  0x1.99b034p-3f,  -0x1.548186p-3f, 0x1.21cd2cp-3f,
                                  -0x1.0c0eb4p-3f, 0x1.0ae6ep-3f,   -0x1.4c628cp-4f};
};
template <>
struct LogConstants<double> {
    static constexpr double ln2High = 0x1.62e42fefa4p-1, ln2Low = -0x1.8432a1b0e2634p-43;
    static constexpr double log2High = 0x1.34413509f8p-2, log2Low = -0x1.80433b83b532ap-44;
    static constexpr double logEHigh = 0x1.bcb7b18p-2, logELow = -0x1.6c8d78e6acaa4p-29;
    static constexpr double logE = 0x1.bcb7b1526e50ep-2;
    static constexpr std::uint64_t upperHalf = 0xFFFFFFFFF8000000u;
    static constexpr double rescale = 0x1p54, rescaleExponent = 54;
    // (ln((1 + s)/(1 - s)) - 2 s)/s^3 in w = s^2 up to 0.02944; relative to 2: error 4.5e-18.
    static constexpr double p[] = {0x1.5555555555558p-1, 0x1.99999999952d2p-2, 0x1.2492492df8483p-2,
                                   0x1.c71c62dad4db8p-3, 0x1.7462b7ceeaa36p-3, 0x1.39fdf94336bfep-3,
                                   0x1.2b5d203d23b42p-3};
};

namespace detail {

// ln(1 + f) - f.
template <int B>
inline Vec<float, B> log1pTail(Vec<float, B> f) {
    return f * f * polynomial(f, LogConstants<float>::p);
}
// With s = f/(2 + f), 1 + f = (1 + s)/(1 - s), a series of half as many terms.
template <int B>
inline Vec<double, B> log1pTail(Vec<double, B> f) {
    using V = Vec<double, B>;
    const V s = f / (V::broadcast(2) + f), w = s * s, half = V::broadcast(0.5) * f * f;
    return s * mulAdd(w, polynomial(w, LogConstants<double>::p), half) - half;
}

// head + tail, where an exponent's part and a fraction's part, both exact, make the head. What the
// head loses goes to the tail.
template <class T, int B>
inline Vec<T, B> sumOfParts(Vec<T, B> ofExponent, Vec<T, B> ofFraction, Vec<T, B> tail) {
    const auto head = ofExponent + ofFraction;
    return head + (tail + (ofFraction - (head - ofExponent)));
}

// Of a positive, finite and normal x.
template <class T, int B>
struct NaturalLog {
    Vec<T, B> operator()(Vec<T, B> x, Vec<T, B> bias) const {
        using C = LogConstants<T>;
        const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
        const auto [k, m] = splitExponent(x, T(0x1.6a09e6p-1), bias);
        const auto f = m - splat(1);
        return sumOfParts(k * splat(C::ln2High), f, mulAdd(k, splat(C::ln2Low), log1pTail(f)));
    }
};
template <class T, int B>
struct DecimalLog {
    Vec<T, B> operator()(Vec<T, B> x, Vec<T, B> bias) const {
        using C = LogConstants<T>;
        using Bits = typename Format<T>::Bits;
        const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
        const auto [k, m] = splitExponent(x, T(0x1.6a09e6p-1), bias);
        const auto f = m - splat(1);
        const auto upper = bitCast<T>(bitCast<Bits>(f) & Vec<Bits, B>::broadcast(C::upperHalf));
        // log10(1 + f) = log10(e) (f + tail), of which the upper half's product is exact.
        const auto rest = mulAdd(f - upper, splat(C::logEHigh), f * splat(C::logELow));
        const auto tail = mulAdd(log1pTail(f), splat(C::logE), rest);
        return sumOfParts(k * splat(C::log2High), upper * splat(C::logEHigh),
                          mulAdd(k, splat(C::log2Low), tail));
    }
};

// Any x: a subnormal one is scaled, and the special ones get their results at the end.
template <class Log, class T, int B>
[[gnu::noinline, gnu::cold]] Vec<T, B> logOfAny(Vec<T, B> x) {
    using C = LogConstants<T>;
    using Limits = std::numeric_limits<T>;
    const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
    const auto small = x < splat(Limits::min());
    const auto normal = select(small, x * splat(C::rescale), x);
    const auto bias =
        select(small, splat(kExponentBias<T> + C::rescaleExponent), splat(kExponentBias<T>));
    auto result = Log()(normal, bias);
    result = select(x == Vec<T, B>::zero(), splat(-Limits::infinity()), result);
    // Infinity and NaN themselves; NaN of negative numbers.
    result = select(x < splat(Limits::infinity()), result, x);
    return select(x < Vec<T, B>::zero(), splat(Limits::quiet_NaN()), result);
}

template <class Log, class T, int B, class OnSpecial>
inline Vec<T, B> logarithm(Vec<T, B> x, OnSpecial onSpecial) {
    if (!allPositiveNormal(x)) [[unlikely]] {
        onSpecial(x);
        return logOfAny<Log>(x);
    }
    return Log()(x, Vec<T, B>::broadcast(kExponentBias<T>));
}

struct Nothing {
    template <class V>
    void operator()(V) const {}
};

}  // namespace detail

// ln(x) and log10(x) within 1 ulp. 0 gives minus infinity, a negative number NaN; infinity and NaN
// give themselves.
// Method: x = 2^k (1 + f), ln(x) = k ln(2) + ln(1 + f), with the product in two parts (Cody and
// Waite); in double precision the series in f/(2 + f).
// onSpecial(x) is called where a lane is not a positive, finite and normal number.
template <class T, int B, class OnSpecial = detail::Nothing>
inline Vec<T, B> ln(Vec<T, B> x, OnSpecial onSpecial = {}) {
    return detail::logarithm<detail::NaturalLog<T, B>>(x, onSpecial);
}
template <class T, int B, class OnSpecial = detail::Nothing>
inline Vec<T, B> log10(Vec<T, B> x, OnSpecial onSpecial = {}) {
    return detail::logarithm<detail::DecimalLog<T, B>>(x, onSpecial);
}

}  // namespace vlq::math
