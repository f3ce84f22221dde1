// Thresholds: what becomes of an element that is beyond a level. A comparison with NaN is false, so
// a real NaN stays as it is.
#pragma once

#include <cmath>
#include <limits>

#include "frame/loop/map.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "frame/simd/ops.h"
#include "frame/simd/pairs.h"
#include "frame/simd/saturate.h"
#include "vlqs/types.h"

namespace vlq::threshold {

enum class Side { Below, Above };

// Lane masks: v is on the given side of the level.
template <Side side, class V>
inline auto isBeyond(V v, V level) {
    if constexpr (side == Side::Below)
        return v < level;
    else
        return v > level;
}

// ---- real elements ------------------------------------------------------------------------------
// level op x ? level : x, which the minimum and maximum of the processor compute for floats, NaN
// and zeros of both signs included.
template <Side side, class T>
struct Clamp {
    T level;
    Vec<T> operator()(Vec<T> x) const {
        const auto limit = Vec<T>::broadcast(level);
        if constexpr (side == Side::Below)
            return maximum(limit, x);
        else
            return minimum(limit, x);
    }
};

// The magnitude is clamped, the sign stays.
template <Side side, class T>
struct ClampMagnitude {
    T level;
    Vec<T> operator()(Vec<T> x) const {
        if constexpr (std::is_floating_point_v<T>) {
            // A level of -0 is allowed; its sign must not get into the results.
            const auto sign = x & Vec<T>::broadcast(T(-0.0));
            return Clamp<side, T>{std::abs(level)}(absolute(x)) | sign;
        } else if constexpr (side == Side::Above) {
            const auto limit = Vec<T>::broadcast(level);
            return minimum(maximum(x, Vec<T>::zero() - limit), limit);
        } else {
            // Without forming a magnitude: that of the least integer has no representation.
            const auto limit = Vec<T>::broadcast(level);
            return select(signMask(x), minimum(x, Vec<T>::zero() - limit), maximum(x, limit));
        }
    }
};

template <Side side, class T>
struct Replace {
    T level, value;
    Vec<T> operator()(Vec<T> x) const {
        const auto isReplaced = isBeyond<side>(x, Vec<T>::broadcast(level));
        return select(isReplaced, Vec<T>::broadcast(value), x);
    }
};

template <class T>
struct ReplaceBoth {
    T levelBelow, valueBelow, levelAbove, valueAbove;
    Vec<T> operator()(Vec<T> x) const {
        const auto isBelow = x < Vec<T>::broadcast(levelBelow);
        const auto isAbove = x > Vec<T>::broadcast(levelAbove);
        return select(isBelow, Vec<T>::broadcast(valueBelow),
                      select(isAbove, Vec<T>::broadcast(valueAbove), x));
    }
};

// 1 / x, with |x| raised to the level first.
template <class T>
struct Invert {
    T level;
    Vec<T> operator()(Vec<T> x) const {
        return Vec<T>::broadcast(1) / ClampMagnitude<Side::Below, T>{level}(x);
    }
};

// ---- complex elements ---------------------------------------------------------------------------
// The parts of an element are neighbours in a vector; both lanes hold what concerns the element.

using Double = Vec<double>;

template <class T>
inline Vec<T> squaredMagnitude(Vec<T> x) {
    const auto square = x * x;
    return square + swapParts(square);
}

// An element in doubles with a magnitude whose square is a normal number, and the level to match.
// Elements of floats need no scaling for that.
struct Scaled {
    Double x, level, factor;
};
inline Scaled scaled(Double x, double level) {
    const auto size = maximum(absolute(x), absolute(swapParts(x)));
    const auto one = Double::broadcast(1);
    const auto factor =
        select(size > Double::broadcast(0x1p500), Double::broadcast(0x1p-600),
               select(size < Double::broadcast(0x1p-500), Double::broadcast(0x1p600), one));
    // The level may overflow or vanish: it is then far on the right side of the element.
    return {x * factor, Double::broadcast(level) * factor, factor};
}
template <class T>
inline Scaled prepared(Double x, double level) {
    if constexpr (sizeof(T) == 4)
        return {x, Double::broadcast(level), Double::broadcast(1)};
    else
        return scaled(x, level);
}

// (value, 0) where x is zero, which has no direction of its own.
inline Double withDirection(Double squared, double value, Double otherwise) {
    return select(squared == Double::zero(), broadcastPair(value, 0.0), otherwise);
}

// Each magnitude beyond the level becomes the level. For Below a NaN counts as beyond.
template <Side side, class T>
inline Double clampMagnitudes(Double x, double level) {
    const Scaled s = prepared<T>(x, level);
    const auto squared = squaredMagnitude(s.x);
    const auto limit = s.level * s.level;
    const auto direction = s.x / squareRoot(squared);
    if constexpr (side == Side::Below) {
        const auto moved = withDirection(squared, level, direction * Double::broadcast(level));
        return select(~(limit <= squared), moved, x);
    } else {
        return select(limit < squared, direction * Double::broadcast(level), x);
    }
}

template <Side side, class T>
inline Double replaceMagnitudes(Double x, double level, Double value) {
    const Scaled s = prepared<T>(x, level);
    return select(isBeyond<side>(squaredMagnitude(s.x), s.level * s.level), value, x);
}

// conj(x) / |x|^2, with |x| raised to the level first: conj(x) / (|x| level).
template <class T>
inline Double invertComplex(Double x, double level) {
    const Scaled s = prepared<T>(x, level);
    const auto squared = squaredMagnitude(s.x);
    const auto conjugate = s.x ^ broadcastPair(0.0, -0.0);
    // The inverse of infinity is 0 in both parts, with the signs of the conjugate.
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const auto inverse =
        select(squared == Double::broadcast(infinity), conjugate & Double::broadcast(-0.0),
               conjugate / squared * s.factor);
    if (level == 0) {
        // The inverse of zero is infinite, with the sign of the real part.
        const auto sign = x & broadcastPair(-0.0, 0.0);
        return select(squared == Double::zero(), sign | broadcastPair(infinity, 0.0), inverse);
    }
    const auto raised = withDirection(squared, 1 / level,
                                      conjugate / squareRoot(squared) / Double::broadcast(level));
    return select(squared < s.level * s.level, raised, inverse);
}

// An operation on doubles, applied to vectors of either precision.
template <class Op>
inline Double onDoubles(Double x, const Op& op) {
    return op(x);
}
template <class Op>
inline Vec<float> onDoubles(Vec<float> x, const Op& op) {
    const auto wide = toDouble(x);
    return toFloat(Block<double, 2>{{op(wide.part[0]), op(wide.part[1])}});
}

// Most vectors of a limiter have nothing to limit: squares in the precision of the elements say so,
// with a margin for their rounding, where neither they nor that of the level leave the normal
// range.
template <Side side, class T>
class Untouched {
public:
    explicit Untouched(T level) {
        const T square = level * level;
        if (square < std::numeric_limits<T>::min() / std::numeric_limits<T>::epsilon() ||
            !(square < std::numeric_limits<T>::max() / 4))
            return;
        constexpr T margin = 4 * std::numeric_limits<T>::epsilon();
        bound_ = side == Side::Below ? square * (1 + margin) : square * (1 - margin);
    }
    bool operator()(Vec<T> x) const {
        const auto squared = squaredMagnitude(x);
        const auto bound = Vec<T>::broadcast(bound_);
        if constexpr (side == Side::Below)
            return !any(~(squared >= bound));
        else
            return !any(~(squared <= bound));
    }

private:
    // No vector passes by default.
    T bound_ = std::numeric_limits<T>::quiet_NaN();
};

template <Side side, class T>
class ClampComplex {
public:
    explicit ClampComplex(T level) : level_(level), untouched_(level) {}
    Vec<T> operator()(Vec<T> x) const {
        if (untouched_(x)) return x;
        return onDoubles(x, [this](Double v) { return clampMagnitudes<side, T>(v, level_); });
    }

private:
    T level_;
    Untouched<side, T> untouched_;
};

template <Side side, class T>
class ReplaceComplex {
public:
    ReplaceComplex(T level, T re, T im)
        : level_(level), value_(broadcastPair<double>(re, im)), untouched_(level) {}
    Vec<T> operator()(Vec<T> x) const {
        if (untouched_(x)) return x;
        return onDoubles(
            x, [this](Double v) { return replaceMagnitudes<side, T>(v, level_, value_); });
    }

private:
    T level_;
    Double value_;
    Untouched<side, T> untouched_;
};

template <class T>
struct InvertComplex {
    T level;
    Vec<T> operator()(Vec<T> x) const {
        return onDoubles(x, [this](Double v) { return invertComplex<T>(v, level); });
    }
};

// ---- complex 16-bit integers --------------------------------------------------------------------
// An element is one lane of 32 bits. Its squared magnitude is at most 2^31, an unsigned number.

using Int32 = Vec<std::int32_t>;

inline Int32 squaredMagnitude(Int32 x) {
    const auto parts = bitCast<std::int16_t>(x);
    return pairSums(parts, parts);
}
template <Side side>
inline Int32 isBeyond16(Int32 x, std::int32_t level) {
    // Moved down by 2^31, unsigned numbers compare as signed ones.
    const auto bias = Int32::broadcast(std::numeric_limits<std::int32_t>::min());
    return isBeyond<side>(squaredMagnitude(x) ^ bias, Int32::broadcast(level * level) ^ bias);
}

// Each part p of a moved element becomes p * level / |x|, rounded to the nearest integer.
template <Side side>
struct ClampComplex16 {
    std::int32_t level;
    Int32 operator()(Int32 x) const {
        const auto isMoved = isBeyond16<side>(x, level);
        if (!any(isMoved)) return x;
        const auto re = toDouble(shiftRight(shiftLeft(x, 16), 16)),
                   im = toDouble(shiftRight(x, 16));
        Block<double, 2> movedRe, movedIm;
        const auto limit = Double::broadcast(level);
        for (int i = 0; i < 2; ++i) {
            const auto a = re.part[i], b = im.part[i];
            const auto size = squareRoot(a * a + b * b);
            const auto isZero = size == Double::zero();
            movedRe.part[i] = select(isZero, limit, a * limit / size);
            movedIm.part[i] = select(isZero, Double::zero(), b * limit / size);
        }
        const auto moved =
            (toNearest(movedRe) & Int32::broadcast(0xFFFF)) | shiftLeft(toNearest(movedIm), 16);
        return select(isMoved, moved, x);
    }
};

template <Side side>
struct ReplaceComplex16 {
    std::int32_t level, value;
    Int32 operator()(Int32 x) const {
        return select(isBeyond16<side>(x, level), Int32::broadcast(value), x);
    }
};

}  // namespace vlq::threshold
