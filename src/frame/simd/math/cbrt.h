// Cube roots.
#pragma once

#include "frame/simd/math/format.h"

namespace vlq::math {

namespace detail {

template <class T>
struct CbrtConstants;
// (1 - e)^(-1/3) = 1 + e p(e), -0.0985 <= e <= 0.106, to 4.2e-6.
template <>
struct CbrtConstants<float> {
    static constexpr int shift = 8;  // the upper bits, as an integer below 2^23
    static constexpr std::uint32_t roundHalf = 1u << 11, upperHalf = ~((1u << 12) - 1);
    static constexpr float smallest = 0x1p-80f;  // below, the residual could underflow
    static constexpr float scale = 0x1p96f, rootOfScale = 0x1p-32f;
    static constexpr float p[] = {0x1.55534ap-2f, 0x1.c96ea4p-3f, 0x1.68be68p-3f};
};
template <>
struct CbrtConstants<double> {
    static constexpr int shift = 32;
    static constexpr std::uint64_t roundHalf = 1u << 26,
                                   upperHalf = ~((std::uint64_t{1} << 27) - 1);
    static constexpr double smallest = 0x1p-800;
    static constexpr double scale = 0x1p900, rootOfScale = 0x1p-300;
    static constexpr double p[] = {0x1.555349c114effp-2, 0x1.c96ea3f063d66p-3,
                                   0x1.68bea6f00697ep-3};
};

// x^(-1/3) to 3.5 %: -1/3 of the bits of x, seen as an integer, is nearly the logarithm that is
// wanted. The integer passes through the fraction of a float.
template <class T, int B>
inline Vec<T, B> inverseCbrtGuess(Vec<T, B> x) {
    using C = CbrtConstants<T>;
    using F = Format<T>;
    using Bits = typename F::Bits;
    using U = Vec<Bits, B>;
    constexpr T magic = F::twoToFraction;
    // 4/3 of the bits of one, less what balances the error.
    constexpr T start = static_cast<T>((bitsOf(T(1)) >> C::shift) / 3.0 * 4.0) -
                        T(0.07) * static_cast<T>(Bits{1} << (F::fractionBits - C::shift)) +
                        magic / 3 + magic;
    const U upper = shiftRight(bitCast<Bits>(x), C::shift) | U::broadcast(bitsOf(magic));
    const auto guess =
        mulAdd(bitCast<T>(upper), Vec<T, B>::broadcast(T(-1) / 3), Vec<T, B>::broadcast(start));
    return bitCast<T>(shiftLeft(bitCast<Bits>(guess), C::shift));
}

// Of a positive x that is neither very small nor infinite.
template <class T, int B>
inline Vec<T, B> cbrtPositive(Vec<T, B> x) {
    using C = CbrtConstants<T>;
    using Bits = typename Format<T>::Bits;
    using U = Vec<Bits, B>;
    const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
    // y = x^(-1/3), by e = 1 - x y^3 and (1 - e)^(-1/3) = 1 + e/3 + 2 e^2/9 + ...
    auto y = inverseCbrtGuess(x);
    const auto excess = [&] { return mulSubFrom(y * y, x * y, splat(1)); };
    auto e = excess();
    y = mulAdd(y * e, polynomial(e, C::p), y);
    if constexpr (sizeof(T) == 8) {
        e = excess();
        y = mulAdd(y * e, polynomial(e, {T(1) / 3, T(2) / 9}), y);
    }
    // t = x y^2 to half the bits, so that t^2 is exact, and x - t^3 nearly so.
    const auto y2 = y * y;
    const auto t = bitCast<T>((bitCast<Bits>(x * y2) + U::broadcast(C::roundHalf)) &
                              U::broadcast(C::upperHalf));
    const auto t2 = t * t;
#if defined(__FMA__)
    const auto residual = mulSubFrom(t2, t, x);
#else
    const auto t2Upper = bitCast<T>(bitCast<Bits>(t2) & U::broadcast(C::upperHalf));
    const auto residual = (x - t2Upper * t) - (t2 - t2Upper) * t;
#endif
    // x^(1/3) = t (1 - d)^(-1/3) with d = (x - t^3)/x.
    const auto d = residual * y2 * y;
    return mulAdd(t, d * mulAdd(d, splat(T(2) / 9), splat(T(1) / 3)), t);
}

template <class T, int B>
[[gnu::noinline, gnu::cold]] Vec<T, B> cbrtOfAny(Vec<T, B> x) {
    using C = CbrtConstants<T>;
    const auto splat = [](T value) { return Vec<T, B>::broadcast(value); };
    const auto a = absolute(x), small = a * splat(C::scale);
    const auto isSmall = a < splat(C::smallest);
    const auto root = cbrtPositive(select(isSmall, small, a));
    const auto scaled = select(isSmall, root * splat(C::rootOfScale), root) | signBit(x);
    // Zeros, infinities and NaN themselves.
    const auto keep = (a == Vec<T, B>::zero()) | ~(a <= splat(std::numeric_limits<T>::max()));
    return select(keep, x, scaled);
}

}  // namespace detail

// The cube root within 1 ulp, of negative numbers too; zeros, infinities and NaN give themselves.
// Method: x^(-1/3) from the exponent and one step (two in double precision) of a Householder
// iteration, then one correction of the root by its exact residual. No division.
template <class T, int B>
inline Vec<T, B> cbrt(Vec<T, B> x) {
    using C = detail::CbrtConstants<T>;
    const auto a = absolute(x);
    const auto usual = (a >= Vec<T, B>::broadcast(C::smallest)) &
                       (a <= Vec<T, B>::broadcast(std::numeric_limits<T>::max()));
    if (!all(usual)) [[unlikely]]
        return detail::cbrtOfAny(x);
    return detail::cbrtPositive(a) | signBit(x);
}

}  // namespace vlq::math
