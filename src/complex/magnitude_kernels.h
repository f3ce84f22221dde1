// Magnitudes: the root of a sum of squares that has been rounded once, so that the result is within
// 1 ulp. Squares out of the range of the type are rare and have a path of their own.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include "complex/parts.h"
#include "frame/loop/map_long.h"
#include "frame/scale/power_of_two.h"
#include "frame/simd/convert.h"
#include "frame/simd/exact.h"
#include "frame/simd/ops.h"
#include "frame/simd/pairs.h"

namespace vlq::magnitude {

// ---- floats -------------------------------------------------------------------------------------
// Infinity where a part is infinite, even beside NaN; `otherwise` elsewhere.
template <class T>
inline Vec<T> withInfinities(Split<T> v, Vec<T> otherwise) {
    const auto infinity = Vec<T>::broadcast(std::numeric_limits<T>::infinity());
    return select((absolute(v.re) == infinity) | (absolute(v.im) == infinity), infinity, otherwise);
}

inline Vec<float> magnitudes(Split<float> v) {
    const auto re = toDouble(v.re), im = toDouble(v.im);
    const Block<double, 2> squares{{re.part[0] * re.part[0] + im.part[0] * im.part[0],
                                    re.part[1] * re.part[1] + im.part[1] * im.part[1]}};
    const auto sum = toFloat(squares);
    const auto root = squareRoot(sum);
    const auto isNormal = (sum >= Vec<float>::broadcast(std::numeric_limits<float>::min())) &
                          (sum <= Vec<float>::broadcast(std::numeric_limits<float>::max()));
    if (!any(~isNormal)) [[likely]]
        return root;
    const auto precise =
        toFloat(Block<double, 2>{{squareRoot(squares.part[0]), squareRoot(squares.part[1])}});
    return select(isNormal, root, withInfinities(v, precise));
}

inline Vec<double> squaredMagnitudes(Split<double> v) {
    const auto a = v.re * v.re, b = v.im * v.im, sum = a + b;
    return sum + (sumError(a, b, sum) + (squareError(v.re, a) + squareError(v.im, b)));
}
inline Vec<double> magnitudes(Split<double> v) {
    using V = Vec<double>;
    const auto sum = squaredMagnitudes(v);
    const auto root = squareRoot(sum);
    // Rounding errors are normal numbers as well.
    const auto isNormal =
        (sum >= V::broadcast(0x1p-900)) & (sum <= V::broadcast(std::numeric_limits<double>::max()));
    if (!any(~isNormal)) [[likely]]
        return root;
    const auto one = V::broadcast(1.0);
    const auto isLarge = (absolute(v.re) >= one) | (absolute(v.im) >= one);
    const auto factor = select(isLarge, V::broadcast(0x1p-600), V::broadcast(0x1p600)),
               inverse = select(isLarge, V::broadcast(0x1p600), V::broadcast(0x1p-600));
    const auto precise = squareRoot(squaredMagnitudes({v.re * factor, v.im * factor})) * inverse;
    return select(isNormal, root, withInfinities(v, precise));
}

template <class T>
struct Magnitude {
    Block<T, 1> operator()(Split<T> v) const { return {{magnitudes(v)}}; }
};

// ---- 16-bit parts -------------------------------------------------------------------------------
// The squared magnitude is 2^31 at most. This, wrapped to 32 bits, changes its sign alone.
inline Vec<std::int32_t> wrappedSquare(Vec<std::int32_t> v) {
    const auto parts = bitCast<std::int16_t>(v);
    return pairSums(parts, parts);
}
struct Magnitude16ToFloat {
    Vec<float> operator()(Vec<std::int32_t> v) const {
        return squareRoot(absolute(toFloat(wrappedSquare(v))));
    }
};
// The root in doubles is so precise that it is on the right side of every value halfway between two
// results: those have squares with few bits, which other integers are far from.
class Magnitude16 {
public:
    explicit Magnitude16(double factor) : factor_(factor) {}
    Vec<std::int32_t> operator()(Vec<std::int32_t> v) const {
        auto root = toDouble(wrappedSquare(v));
        for (auto& part : root.part) {
            part = minimum(squareRoot(absolute(part)) * Vec<double>::broadcast(factor_),
                           Vec<double>::broadcast(32767.0));
        }
        return toNearest(root);
    }

private:
    double factor_;
};

// ---- 32-bit parts -------------------------------------------------------------------------------
__extension__ typedef unsigned __int128 Wide;

// Doubles are precise enough for all results but those next to a value halfway between two
// integers, which are decided by their squares.
class Magnitude32 {
public:
    // -40 <= scaleFactor <= 40
    explicit Magnitude32(int scaleFactor)
        : scaleFactor_(scaleFactor),
          factor_(scaleFactorPower<double>(scaleFactor)),
          precise_(scaleFactor < 0 ? 0x1p24 / factor_ : 0x1p24) {}

    Block<std::int32_t, 1> operator()(Split<std::int32_t> v) const {
        const auto re = toDouble(v.re), im = toDouble(v.im);
        Block<double, 2> scaled;
        auto isOpen = Vec<std::int64_t>::zero();
        for (int i = 0; i < 2; ++i) {
            using V = Vec<double>;
            const auto root = squareRoot(re.part[i] * re.part[i] + im.part[i] * im.part[i]);
            scaled.part[i] = minimum(root * V::broadcast(factor_), V::broadcast(2147483647.0));
            const auto distance = absolute(scaled.part[i] - nearest(scaled.part[i]));
            isOpen = isOpen |
                     ((distance > V::broadcast(0.5 - 0x1p-19)) & (root >= V::broadcast(precise_)));
        }
        const auto rounded = toNearest(scaled);
        if (!any(isOpen)) [[likely]]
            return {{rounded}};
        return {{decided(v, scaled, rounded)}};
    }

private:
    // Of values below 2^31.
    static Vec<double> nearest(Vec<double> v) {
        const auto shift = Vec<double>::broadcast(0x1.8p52);
        return (v + shift) - shift;
    }
    Vec<std::int32_t> decided(Split<std::int32_t> v, const Block<double, 2>& scaled,
                              Vec<std::int32_t> rounded) const {
        constexpr int half = Vec<double>::lanes;
        for (int i = 0; i < 2 * half; ++i) {
            const double value = scaled.part[i / half][i % half];
            const auto below = static_cast<std::int64_t>(value);
            const double fraction = value - static_cast<double>(below);
            if (fraction < 0.25 || fraction > 0.75) continue;
            // (2 root)^2 against (2 below + 1)^2 2^(2 scaleFactor)
            const auto square = [](std::int64_t x) { return static_cast<std::uint64_t>(x * x); };
            const Wide left = Wide{square(v.re[i]) + square(v.im[i])} << 2;
            const Wide right = square(2 * below + 1);
            const int shift = 2 * scaleFactor_;
            const auto a = shift < 0 ? left << -shift : left,
                       b = shift > 0 ? right << shift : right;
            rounded.raw[i] =
                static_cast<std::int32_t>(below + (a > b || (a == b && below % 2 != 0)));
        }
        return rounded;
    }

    int scaleFactor_;
    double factor_;
    // Below this magnitude doubles are precise enough.
    double precise_;
};

}  // namespace vlq::magnitude
