// Square roots and cube roots. Integer results are rounded once, to the nearest with ties to even,
// and saturated.
#pragma once

#include <cmath>

#include "frame/loop/map.h"
#include "frame/scale/power_of_two.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "frame/simd/math/cbrt.h"
#include "frame/simd/multiply.h"

namespace vlq::root {

struct SquareRoot {
    template <class T>
    Vec<T> operator()(Vec<T> x) const {
        return squareRoot(x);
    }
};
struct CubeRoot {
    template <class T>
    Vec<T> operator()(Vec<T> x) const {
        return math::cbrt(x);
    }
};

// 2^-scaleFactor as a factor of roots of up to 32 bits. A larger or smaller one would change
// nothing: results are 0, or saturate.
template <class T>
inline T factorOf(std::int32_t scaleFactor) {
    return scaleFactorPower<T>(scaleFactor < -40 ? -40 : scaleFactor > 40 ? 40 : scaleFactor);
}

// ---- integers of 8 and 16 bits: the root as a float ---------------------------------------------
template <class T>
class ScaledRoot {
public:
    explicit ScaledRoot(std::int32_t scaleFactor)
        : factor_(Vec<float>::broadcast(factorOf<float>(scaleFactor))) {}
    Block<T, 1> operator()(const Block<T, 1>& x) const {
        if constexpr (sizeof(T) == 1)
            return {{narrowSat<T>(roots(widenTwice(x.part[0])))}};
        else if constexpr (std::is_signed_v<T>)
            return {{narrowSat<T>(roots(widen(maximum(x.part[0], Vec<T>::zero()))))}};
        else
            return {{narrowSat<T>(roots(widen(x.part[0])))}};
    }

private:
    template <class Lane, int N>
    Block<std::int32_t, N> roots(const Block<Lane, N>& x) const {
        const auto top = Vec<float>::broadcast(std::numeric_limits<T>::max());
        Block<std::int32_t, N> result;
        for (int i = 0; i < N; ++i) {
            const auto root = squareRoot(toFloat(bitCast<std::int32_t>(x.part[i])));
            result.part[i] = toNearest(minimum(root * factor_, top));
        }
        return result;
    }
    Vec<float> factor_;
};

// ---- integers of 32 bits to 16: the root as a double --------------------------------------------
// A double holds enough of a root to round it as the exact one would be: only perfect squares and
// cubes come nearer to a tie than its last bit.
template <class Root>
class ScaledRoot32s16s {
public:
    explicit ScaledRoot32s16s(double factor) : factor_(Vec<double>::broadcast(factor)) {}
    Block<std::int16_t, 1> operator()(const Block<std::int32_t, 2>& x) const {
        return {{narrowSat<std::int16_t>(
            Block<std::int32_t, 2>{{roots(x.part[0]), roots(x.part[1])}})}};
    }

private:
    Vec<std::int32_t> roots(Vec<std::int32_t> x) const {
        if constexpr (std::is_same_v<Root, SquareRoot>) x = maximum(x, Vec<std::int32_t>::zero());
        const auto wide = toDouble(x);
        const auto one = [this](Vec<double> v) {
            const auto top = Vec<double>::broadcast(32767), bottom = Vec<double>::broadcast(-32768);
            return maximum(minimum(Root()(v) * factor_, top), bottom);
        };
        return toNearest(Block<double, 2>{{one(wide.part[0]), one(wide.part[1])}});
    }
    Vec<double> factor_;
};

// ---- integers of 64 bits, exact -----------------------------------------------------------------
__extension__ typedef unsigned __int128 Wide;

// The largest integer whose square is at most x, for x < 2^126.
inline std::uint64_t integerRoot(Wide x) {
    auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(x)));
    // Off by 2^11 at most, which one step of Newton's iteration corrects up to its rounding.
    const Wide square = Wide{root} * root;
    const auto miss = static_cast<std::int64_t>(
        (x >= square ? static_cast<double>(x - square) : -static_cast<double>(square - x)) /
        (2.0 * static_cast<double>(root) + 1));
    root += static_cast<std::uint64_t>(miss);
    while (Wide{root} * root > x) --root;
    while (Wide{root + 1} * (root + 1) <= x) ++root;
    return root;
}

// clamp(round(sqrt(x) * 2^-scaleFactor)), 0 for what is not positive.
template <class T>
class ScaledRoot64s {
public:
    explicit ScaledRoot64s(std::int32_t scaleFactor) : scaleFactor_(scaleFactor) {}
    T operator()(std::int64_t x) const {
        if (x <= 0) return 0;
        const Wide wide = static_cast<std::uint64_t>(x);
        if (scaleFactor_ > 0) return saturated(scaledDown(wide));
        // From 63 places up, or where the root has more than 63 bits then, the result saturates.
        const std::int64_t places = -std::int64_t{scaleFactor_};
        if (places >= 63 || wide >> (126 - 2 * places) != 0) return std::numeric_limits<T>::max();
        const Wide square = wide << (2 * places);
        const std::uint64_t root = integerRoot(square);
        // No integer is the square of a number in the middle between two.
        return saturated(Wide{root} + (square - Wide{root} * root > root ? 1 : 0));
    }

private:
    static T saturated(Wide v) {
        constexpr T highest = std::numeric_limits<T>::max();
        return v > static_cast<Wide>(highest) ? highest : static_cast<T>(v);
    }
    Wide scaledDown(Wide x) const {
        if (scaleFactor_ > 32) return 0;
        const std::uint64_t quotient = integerRoot(x) >> scaleFactor_;
        const Wide middle = Wide{2 * quotient + 1} << (scaleFactor_ - 1), tie = middle * middle;
        return quotient + (x > tie || (x == tie && quotient % 2 == 1) ? 1 : 0);
    }
    std::int32_t scaleFactor_;
};

// ---- complex ------------------------------------------------------------------------------------
// With t = sqrt((|z| + |re|)/2) the principal root of z is t + im/(2t) i in the right half-plane,
// and |im|/(2t) +- t i, with the sign of im, in the left one. Neither part cancels.

// t, in both lanes of each value (re, im), whose squared magnitude is a normal number.
inline Vec<double> largerPart(Vec<double> z) {
    const auto squares = z * z;
    const auto magnitude = squareRoot(squares + swapParts(squares));
    return squareRoot((magnitude + absolute(realParts(z))) * Vec<double>::broadcast(0.5));
}
inline Vec<double> rootOfLarger(Vec<double> z, Vec<double> larger) {
    using V = Vec<double>;
    // The root of 0 is 0.
    const V twice = maximum(V::broadcast(std::numeric_limits<double>::min()), larger + larger);
    const V smaller = absolute(imaginaryParts(z)) / twice;
    const V isReal = broadcastPair(std::bit_cast<double>(std::int64_t{-1}), 0.0);
    // Of the left half-plane in the other order; the imaginary part has the sign of z's.
    const auto order =
        bitCast<std::int64_t>(isReal) ^ signMask(bitCast<std::int64_t>(realParts(z)));
    return select(order, larger, smaller) | (signBit(z) & ~isReal);
}
inline Vec<double> rootOfModerate(Vec<double> z) { return rootOfLarger(z, largerPart(z)); }

struct ComplexRoot {
    // The squared magnitude of floats fits a double.
    Vec<float> operator()(Vec<float> z) const {
        const auto wide = toDouble(z);
        return toFloat(
            Block<double, 2>{{withInfinities(wide.part[0], rootOfModerate(wide.part[0])),
                              withInfinities(wide.part[1], rootOfModerate(wide.part[1]))}});
    }
    Vec<double> operator()(Vec<double> z) const {
        using V = Vec<double>;
        const V a = absolute(z), size = maximum(a, swapParts(a));
        const auto tooLarge = size > V::broadcast(0x1p500),
                   tooSmall = size < V::broadcast(0x1p-450);
        if (!any(tooLarge | tooSmall)) [[likely]]
            return rootOfModerate(z);
        const V factor = select(tooLarge, V::broadcast(0x1p-600),
                                select(tooSmall, V::broadcast(0x1p600), V::broadcast(1)));
        const V back = select(tooLarge, V::broadcast(0x1p300),
                              select(tooSmall, V::broadcast(0x1p-300), V::broadcast(1)));
        // Only t is computed from the scaled value: the other part of z may vanish in it.
        return withInfinities(z, rootOfLarger(z, largerPart(z * factor) * back));
    }

private:
    // An infinite imaginary part gives infinity + infinity i, whatever the real part (C, Annex G).
    static Vec<double> withInfinities(Vec<double> z, Vec<double> root) {
        const auto infinity = Vec<double>::broadcast(std::numeric_limits<double>::infinity());
        const auto infinite = absolute(imaginaryParts(z)) == infinity;
        const auto isReal = broadcastPair(std::bit_cast<double>(std::int64_t{-1}), 0.0);
        return select(infinite, infinity | (signBit(z) & ~isReal), root);
    }
};

// Complex values of two 16-bit integers, each in a 32-bit lane.
class ScaledComplexRoot {
public:
    explicit ScaledComplexRoot(std::int32_t scaleFactor)
        : factor_(Vec<double>::broadcast(factorOf<double>(scaleFactor))) {}
    Vec<std::int32_t> operator()(Vec<std::int32_t> z) const {
        const auto re = toDouble(shiftRight(shiftLeft(z, 16), 16)),
                   im = toDouble(shiftRight(z, 16));
        Block<double, 2> rootRe, rootIm;
        for (int i = 0; i < 2; ++i) root(re.part[i], im.part[i], rootRe.part[i], rootIm.part[i]);
        return joinParts({{toNearest(rootRe), toNearest(rootIm)}});
    }

private:
    void root(Vec<double> a, Vec<double> b, Vec<double>& re, Vec<double>& im) const {
        using V = Vec<double>;
        const V magnitude = squareRoot(a * a + b * b);
        const V larger = squareRoot((magnitude + absolute(a)) * V::broadcast(0.5));
        const V smaller = absolute(b) / maximum(V::broadcast(std::numeric_limits<double>::min()),
                                                larger + larger);
        const auto left = a < V::zero();
        // Within the range that converts; the pack saturates.
        const V top = V::broadcast(65536);
        re = minimum(select(left, smaller, larger) * factor_, top);
        im = copySign(minimum(select(left, larger, smaller) * factor_, top), b);
    }
    Vec<double> factor_;
};

}  // namespace vlq::root
