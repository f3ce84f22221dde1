// Phases of integers, sines and cosines of fixed-point phases. Unlike the elementary functions
// that they resemble, they have the same bits in every build: no operation is fused, so that the
// integers rounded from them are the same as well.
#pragma once

#include "frame/simd/math/atan.h"
#include "frame/simd/math/large_angle.h"

namespace vlq {

namespace detail {

// c[0] + c[1] x + c[2] x^2 ...; odd and even coefficients apart halve the chain of operations.
template <std::size_t n>
inline Vec<double> unfusedPolynomial(Vec<double> x, const double (&c)[n]) {
    using V = Vec<double>;
    const auto x2 = x * x;
    V sums[2];
    sums[(n - 1) % 2] = V::broadcast(c[n - 1]);
    sums[n % 2] = V::broadcast(c[n - 2]);
#pragma GCC unroll 16
    for (std::size_t i = n - 2; i > 0; --i)
        sums[(i - 1) % 2] = sums[(i - 1) % 2] * x2 + V::broadcast(c[i - 1]);
    return sums[0] + sums[1] * x;
}

}  // namespace detail

// The phase of the points (re, im), integers of at most 32 bits; 0 at the origin. Method: as
// math::atan2, but sums and differences of integers are exact.
inline Vec<double> integerPhase(Vec<double> re, Vec<double> im) {
    using V = Vec<double>;
    using C = math::detail::AtanConstants<double>;
    const auto x = absolute(re), y = absolute(im);
    const auto smaller = minimum(x, y), larger = maximum(maximum(x, y), V::broadcast(1.0));
    const auto isNear = smaller + smaller >= larger;
    const auto isSteep = bitCast<double>(y > x), isLeft = bitCast<double>(re < V::zero());
    const auto minus = V::broadcast(-0.0);
    // Near the diagonal the angle to it, from pi/4; else that to the axis, from 0 or pi/2.
    auto z = select(isNear, smaller - larger, smaller) / select(isNear, smaller + larger, larger);
    z = z ^ (isSteep & minus);
    const auto z2 = z * z;
    const auto base =
        select(isNear, V::broadcast(C::halfPi / 2), isSteep & V::broadcast(C::halfPi));
    auto phase =
        base +
        (z + (z * z2 * detail::unfusedPolynomial(z2, C::p) + base * V::broadcast(C::lowPart)));
    const auto pi = isLeft & V::broadcast(2 * C::halfPi);
    phase = pi + ((phase ^ (isLeft & minus)) + pi * V::broadcast(C::lowPart));
    return phase | signBit(im);
}

// Sine and cosine of x = k 2^e for integers |k| <= 2^31. |x| up to 2^31 is reduced here, larger
// angles one by one; that of an infinity or NaN is NaN.
inline math::SinCos<double, kVecBytes> fixedPointSinCos(Vec<double> x) {
    using V = Vec<double>;
    using C = math::SinCosConstants<double>;
    // pi/2 in parts of 21 bits, whose products with 32-bit integers and whose differences are
    // exact, and a last one.
    constexpr double halfPi[] = {0x1.921fbp0, 0x1.5110bp-22, 0x1.184690p-44, 0x1.13198a2e03707p-65};
    constexpr double limit = 0x1p31;
    constexpr int lanes = V::lanes;

    const auto shift = V::broadcast(0x1.8p52);
    const auto sum = x * V::broadcast(C::twoOverPi) + shift;
    const auto n = sum - shift;
    auto rest = x;
    for (const double part : halfPi) rest = rest - n * V::broadcast(part);
    auto quadrant = bitCast<std::int64_t>(sum);

    const auto isLarge = ~(absolute(x) <= V::broadcast(limit));
    if (any(isLarge)) [[unlikely]] {
        for (int i = 0; i < lanes; ++i) {
            if (!isLarge[i]) continue;
            const bool isFinite = x[i] - x[i] == 0;
            const auto reduced =
                isFinite ? math::reduceLargeAngle(x[i]) : math::ReducedAngle{x[i] - x[i], 0};
            rest.raw[i] = reduced.rest;
            quadrant.raw[i] = reduced.quadrant;
        }
    }
    const auto r2 = rest * rest;
    const auto sine = rest + rest * r2 * detail::unfusedPolynomial(r2, C::s);
    const auto cosine = (V::broadcast(1.0) - V::broadcast(0.5) * r2) +
                        r2 * r2 * detail::unfusedPolynomial(r2, C::c);
    // Bit 0 of the quadrant swaps the functions, bit 1 is the sine's sign, bit 0 ^ bit 1 the
    // cosine's.
    const auto swap = shiftLeft(quadrant, 63), turn = shiftLeft(quadrant, 62);
    const auto isOdd = signMask(swap);
    return {select(isOdd, cosine, sine) ^ signBit(bitCast<double>(turn)),
            select(isOdd, sine, cosine) ^ signBit(bitCast<double>(turn ^ swap))};
}

}  // namespace vlq
