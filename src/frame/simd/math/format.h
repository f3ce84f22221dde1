// What the elementary functions share: the fields of a binary floating-point number, polynomials,
// and scaling by powers of two.
//
// Each function is one template over the element type and the vector size. A lane's result depends
// on that lane alone, and only IEEE operations and table-free integer steps are used, so that a
// build gives the same bits on every processor. In the builds with FMA mulAdd rounds once, so the
// last bit may differ between builds. Polynomials are minimax approximations with coefficients in
// the element type, computed with Sollya's fpminimax over the interval that each comment states.
#pragma once

#include "frame/simd/ops.h"
#include "frame/simd/saturate.h"

namespace vlq::math {

template <class T>
struct Format;
template <>
struct Format<float> {
    using Bits = std::uint32_t;
    static constexpr int fractionBits = 23;
    static constexpr int bias = 127;
    static constexpr float twoToFraction = 0x1p23f;  // the first integer without a fraction
};
template <>
struct Format<double> {
    using Bits = std::uint64_t;
    static constexpr int fractionBits = 52;
    static constexpr int bias = 1023;
    static constexpr double twoToFraction = 0x1p52;
};

template <class T>
constexpr auto bitsOf(T value) {
    return std::bit_cast<typename Format<T>::Bits>(value);
}

// c[0] + c[1] x + c[2] x^2 ...
template <class T, int B, std::size_t n>
inline Vec<T, B> polynomial(Vec<T, B> x, const T (&c)[n]) {
    auto sum = Vec<T, B>::broadcast(c[n - 1]);
    for (std::size_t i = n - 1; i > 0; --i) sum = mulAdd(sum, x, Vec<T, B>::broadcast(c[i - 1]));
    return sum;
}

// x = 2^exponent * fraction, fraction from low to 2 low; x is positive, finite and normal. The
// exponent's bias is a parameter so that a caller may correct it lane by lane.
template <class T>
inline constexpr T kExponentBias = Format<T>::twoToFraction + Format<T>::bias;
template <class T, int B>
struct Parts {
    Vec<T, B> exponent, fraction;
};
template <class T, int B>
inline Parts<T, B> splitExponent(Vec<T, B> x, T low, Vec<T, B> bias) {
    using F = Format<T>;
    using Bits = typename F::Bits;
    using U = Vec<Bits, B>;
    constexpr Bits one = bitsOf(T(1));
    const Bits lowBits = bitsOf(low);
    const U t = bitCast<Bits>(x) + U::broadcast(one - lowBits);
    const U exponent = shiftRight(t, F::fractionBits) | U::broadcast(bitsOf(F::twoToFraction));
    const U fraction = (t & U::broadcast((Bits{1} << F::fractionBits) - 1)) + U::broadcast(lowBits);
    return {bitCast<T>(exponent) - bias, bitCast<T>(fraction)};
}

// A sum with this constant rounds to an integer, held in the lowest bits of the sum, with an
// excess of twice the exponent's bias: see scaleByPower.
template <class T>
inline constexpr T kRoundingShift = T(1.5) * Format<T>::twoToFraction + 2 * Format<T>::bias;

// v * 2^n for sum = n + kRoundingShift, correctly rounded if the result overflows or is subnormal;
// |n| is at most 1.5 times the bias.
template <class T, int B>
inline Vec<T, B> scaleByPower(Vec<T, B> v, Vec<T, B> sum) {
#if VLQ_SIMD_BYTES == 64
    const auto n = sum - Vec<T, B>::broadcast(kRoundingShift<T>);
    if constexpr (B == 64 && sizeof(T) == 4) return Vec<T, B>(_mm512_scalef_ps(v.raw, n.raw));
    if constexpr (B == 64 && sizeof(T) == 8) return Vec<T, B>(_mm512_scalef_pd(v.raw, n.raw));
    if constexpr (B == 32 && sizeof(T) == 4) return Vec<T, B>(_mm256_scalef_ps(v.raw, n.raw));
    if constexpr (B == 32 && sizeof(T) == 8) return Vec<T, B>(_mm256_scalef_pd(v.raw, n.raw));
    if constexpr (B == 16 && sizeof(T) == 4) return Vec<T, B>(_mm_scalef_ps(v.raw, n.raw));
    if constexpr (B == 16 && sizeof(T) == 8) return Vec<T, B>(_mm_scalef_pd(v.raw, n.raw));
#else
    // Two factors, since 2^n alone may not be a normal number: their biased exponents add up to the
    // excess. Shifted into place, the constant's own bits drop out at the top.
    constexpr int fractionBits = Format<T>::fractionBits;
    const auto bits = bitCast<typename Format<T>::Bits>(sum);
    const auto half = shiftRight(bits, 1);
    const auto first = bitCast<T>(shiftLeft(half, fractionBits)),
               second = bitCast<T>(shiftLeft(bits - half, fractionBits));
    return v * first * second;
#endif
}

// True when all lanes are positive, finite and normal.
template <class T, int B>
inline bool allPositiveNormal(Vec<T, B> x) {
#if VLQ_SIMD_BYTES == 64
    // The class of everything else.
    if constexpr (B == 64 && sizeof(T) == 4) return _mm512_fpclass_ps_mask(x.raw, 0xFF) == 0;
    if constexpr (B == 64 && sizeof(T) == 8) return _mm512_fpclass_pd_mask(x.raw, 0xFF) == 0;
    if constexpr (B == 32 && sizeof(T) == 4) return _mm256_fpclass_ps_mask(x.raw, 0xFF) == 0;
    if constexpr (B == 32 && sizeof(T) == 8) return _mm256_fpclass_pd_mask(x.raw, 0xFF) == 0;
    if constexpr (B == 16 && sizeof(T) == 4) return _mm_fpclass_ps_mask(x.raw, 0xFF) == 0;
    if constexpr (B == 16 && sizeof(T) == 8) return _mm_fpclass_pd_mask(x.raw, 0xFF) == 0;
#else
    if constexpr (sizeof(T) == 4) {
        // The bits less those of the smallest normal number, from the lowest integer on: one
        // comparison serves both ends.
        constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
        const auto moved = bitCast<std::int32_t>(x) +
                           Vec<std::int32_t, B>::broadcast(
                               std::numeric_limits<std::int32_t>::max() - (1 << 23) + 1);
        return !any(moved > Vec<std::int32_t, B>::broadcast(lowest + (254 << 23) - 1));
    } else {
        using Limits = std::numeric_limits<T>;
        return all((x >= Vec<T, B>::broadcast(Limits::min())) &
                   (x <= Vec<T, B>::broadcast(Limits::max())));
    }
#endif
}

}  // namespace vlq::math
