// Sine and cosine of the same angle.
#pragma once

#include "frame/simd/math/format.h"

namespace vlq::math {

template <class T>
struct SinCosConstants;
// pi/2 in parts of so few bits that the product of each but the last with an integer is exact. On
// |r| <= pi/4 sin(r) = r + r^3 s(r^2), cos(r) = 1 - r^2/2 + r^4 c(r^2); errors relative to r and to
// 1 of 1.2e-8 and 7.3e-10 (float), 1.4e-17 and 1.0e-18 (double).
template <>
struct SinCosConstants<float> {
    static constexpr float limit = 8192.0f;
    static constexpr float twoOverPi = 0x1.45f306p-1f;
    static constexpr int parts = 4;
    static constexpr float halfPi[] = {0x1.92p0f, 0x1.fb4p-12f, 0x1.444p-24f, 0x1.68c234p-39f};
    static constexpr float s[] = {-0x1.555552p-3f, 0x1.110be6p-7f, -0x1.9ab408p-13f};
    static constexpr float c[] = {0x1.555554p-5f, -0x1.6c129ep-10f, 0x1.9bc76cp-16f};
};
template <>
struct SinCosConstants<double> {
    static constexpr double limit = 1048576.0;
    static constexpr double twoOverPi = 0x1.45f306dc9c883p-1;
    static constexpr int parts = 3;
    static constexpr double halfPi[] = {0x1.921fb544p0, 0x1.0b4611a6p-34, 0x1.3198a2e037073p-69};
    static constexpr double s[] = {-0x1.5555555555555p-3,  0x1.1111111110c83p-7,
                                   -0x1.a01a019ea130ap-13, 0x1.71de37b1ca273p-19,
                                   -0x1.ae60210233ab8p-26, 0x1.5e118e8486ce5p-33};
    static constexpr double c[] = {0x1.5555555555555p-5,  -0x1.6c16c16c168ccp-10,
                                   0x1.a01a019f38afap-16, -0x1.27e4fa036d38fp-22,
                                   0x1.1eeb58509df49p-29, -0x1.9073d4444af15p-37};
};

template <class T, int B>
struct SinCos {
    Vec<T, B> sine, cosine;
};

// sin(x) and cos(x) within 2 ulp for |x| <= 8192 (float) or 2^20 (double); beyond, and of NaN, NaN.
// Method: x = n pi/2 + r by the nearest integer n, with pi/2 in parts (Cody and Waite); n mod 4
// selects the function of r and the signs.
template <class T, int B>
inline SinCos<T, B> sinCos(Vec<T, B> x) {
    using C = SinCosConstants<T>;
    using Bits = BitsOf<T>;
    constexpr T shift = T(1.5) * Format<T>::twoToFraction;
    constexpr int top = 8 * static_cast<int>(sizeof(T)) - 1;
    const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
    // Of |x|: the sine of -0 is -0.
    const auto a = absolute(x);
    const auto sum = mulAdd(a, splat(C::twoOverPi), splat(shift));
    const auto n = sum - splat(shift);
    auto upper = a;
    for (int i = 0; i < C::parts - 2; ++i) upper = mulSubFrom(n, splat(C::halfPi[i]), upper);
    // The last two parts together, so that the result is rounded once.
    const auto next = splat(C::halfPi[C::parts - 2]), last = splat(C::halfPi[C::parts - 1]);
    auto r = mulSubFrom(n, next, upper);
    r = r + mulSubFrom(n, last, mulSubFrom(n, next, upper - r));
    // NaN where x is out of range, or NaN itself.
    r = r | bitCast<T>(~(a <= splat(C::limit)));

    const auto r2 = r * r;
    const auto sine = mulAdd(r * r2, polynomial(r2, C::s), r);
    const auto cosine =
        mulAdd(r2 * r2, polynomial(r2, C::c), mulSubFrom(splat(T(0.5)), r2, splat(1)));
    // Bit 0 of n swaps the functions, bit 1 is the sine's sign, bit 0 ^ bit 1 the cosine's.
    const auto bits = bitCast<Bits>(sum);
    const auto swap = shiftLeft(bits, top), turn = shiftLeft(bits, top - 1);
    const auto pick = [&](Vec<T, B> swapped, Vec<T, B> kept) {
        return bitCast<T>(selectNegative(swap, bitCast<Bits>(swapped), bitCast<Bits>(kept)));
    };
    return {pick(cosine, sine) ^ signBit(bitCast<T>(turn) ^ x),
            pick(sine, cosine) ^ signBit(bitCast<T>(turn ^ swap))};
}

}  // namespace vlq::math
