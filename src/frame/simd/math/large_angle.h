// Angles too large for sinCos, and sine and cosine of an angle of any size.
#pragma once

#include "frame/simd/convert.h"
#include "frame/simd/math/sincos.h"

namespace vlq::math {

__extension__ typedef unsigned __int128 Product128;
__extension__ typedef __int128 Fraction128;

// x = quadrant * pi/2 + rest, |rest| <= pi/4, with quadrant modulo 4.
struct ReducedAngle {
    double rest;
    int quadrant;
};

// For finite |x| >= 2^20. Method: x times as many bits of 2/pi as neither drop out as multiples of
// 4 nor are too small to matter (Payne and Hanek).
inline ReducedAngle reduceLargeAngle(double x) {
    // 2/pi from the bit of weight 1/2 on, after a word of zeros.
    static constexpr std::uint64_t twoOverPi[] = {
        0,
        0xA2F9836E4E441529,
        0xFC2757D1F534DDC0,
        0xDB6295993C439041,
        0xFE5163ABDEBBC561,
        0xB7246E3A424DD2E0,
        0x06492EEA09D1921C,
        0xFE1DEB1CB129A73E,
        0xE88235F52EBB4484,
        0xE99C7026B45F7E41,
        0x3991D639835339F4,
        0x9C845F8BBDF9283B,
        0x1FF897FFDE05980F,
        0xEF2F118B5A0A6D1F,
        0x6D367ECF27CB09B7,
        0x4F463F669E5FEA2D,
        0x7527BAC7EBE5F17B,
        0x3D0739F78A5292EA,
        0x6BFB5FB11F8D5D08,
        0x56033046FC7B6BAB,
        0xF0CFBC209AF4361D,
    };
    using F = Format<double>;
    const std::uint64_t bits = bitsOf(x);
    // |x| = significand * 2^exponent
    const int exponent =
        static_cast<int>(bits >> F::fractionBits & 0x7FF) - F::bias - F::fractionBits;
    const std::uint64_t significand =
        (bits & ((std::uint64_t{1} << F::fractionBits) - 1)) | std::uint64_t{1} << F::fractionBits;
    // 192 bits of 2/pi, the first of which has a weight of 2 in the product with 2^exponent.
    const int first = exponent + 62;
    std::uint64_t window[3];
    for (int i = 0; i < 3; ++i) {
        const std::uint64_t* const words = twoOverPi + first / 64 + i;
        const int shift = first % 64;
        window[i] = shift == 0 ? words[0] : words[0] << shift | words[1] >> (64 - shift);
    }
    // The product modulo 4, in units of 2^-190.
    const Product128 low = Product128{significand} * window[2];
    const Product128 middle = Product128{significand} * window[1] + (low >> 64);
    const std::uint64_t high = significand * window[0] + static_cast<std::uint64_t>(middle >> 64);
    // Its fraction as a signed number: from one half on it belongs to the next quadrant.
    const auto fraction = static_cast<Fraction128>(
        Product128{high} << 66 | Product128{static_cast<std::uint64_t>(middle)} << 2 |
        static_cast<std::uint64_t>(low) >> 62);
    const int quadrant = static_cast<int>(high >> 62) + (fraction < 0);
    const double rest = static_cast<double>(fraction) * 0x1.921fb54442d18p-128;  // pi/2
    return x < 0 ? ReducedAngle{-rest, -quadrant & 3} : ReducedAngle{rest, quadrant & 3};
}

// Within 2 ulp for finite angles of any size; infinities and NaN give NaN.
inline SinCos<double, kVecBytes> sinCosOfAny(Vec<double> x) {
    auto result = sinCos(x);
    const auto size = absolute(x);
    const auto isLarge = (size > Vec<double>::broadcast(SinCosConstants<double>::limit)) &
                         (size <= Vec<double>::broadcast(std::numeric_limits<double>::max()));
    if (!any(isLarge)) [[likely]]
        return result;
    constexpr int lanes = Vec<double>::lanes;
    auto rest = Vec<double>::zero();
    int quadrant[lanes];
    for (int i = 0; i < lanes; ++i) {
        if (!isLarge[i]) continue;
        const ReducedAngle reduced = reduceLargeAngle(x[i]);
        rest.raw[i] = reduced.rest;
        quadrant[i] = reduced.quadrant;
    }
    const auto of = sinCos(rest);
    for (int i = 0; i < lanes; ++i) {
        if (!isLarge[i]) continue;
        const bool isOdd = quadrant[i] % 2 != 0;
        const double sine = isOdd ? of.cosine[i] : of.sine[i],
                     cosine = isOdd ? of.sine[i] : of.cosine[i];
        result.sine.raw[i] = quadrant[i] >= 2 ? -sine : sine;
        result.cosine.raw[i] = quadrant[i] == 1 || quadrant[i] == 2 ? -cosine : cosine;
    }
    return result;
}

// The same of floats; beyond the limit of sinCos in doubles.
inline SinCos<float, kVecBytes> sinCosOfAny(Vec<float> x) {
    const auto result = sinCos(x);
    const auto isLarge = absolute(x) > Vec<float>::broadcast(SinCosConstants<float>::limit);
    if (!any(isLarge)) [[likely]]
        return result;
    const auto wide = toDouble(x);
    const auto low = sinCosOfAny(wide.part[0]), high = sinCosOfAny(wide.part[1]);
    return {select(isLarge, toFloat(Block<double, 2>{{low.sine, high.sine}}), result.sine),
            select(isLarge, toFloat(Block<double, 2>{{low.cosine, high.cosine}}), result.cosine)};
}

}  // namespace vlq::math
