// The scale rule: how an exact integer result e becomes a stored sample of type T.
//
//     dst = clamp(round(e * 2^-scaleFactor)),    round: to nearest, ties to the even integer
//
// Every 32-bit scale factor is legal. Its range is classified once, before the loop; each range
// has a policy below that holds its constants as vectors and never forms e in full where e is
// wider than a lane:
//
//     Scaling::None     dst = clamp(e)                  the family's saturating operation
//     Scaling::Left     dst = clamp(clamp(e) * 2^n)     ScaleLeft, on the saturated result or,
//     where
//                                                       that is dear, on lower bits and sign
//     Scaling::Half     one bit rounded off             the family's own trick, or RoundRight
//     Scaling::Right    more bits rounded off           ScaleRight, on e split in half and odd
//                                                       bit, or RoundRight, in wider lanes
//     Scaling::Vanish   dst = 0 for every e             a clear of the destination
//
// Clamping before a left shift is exact: a value outside the range stays outside it.
#pragma once

#include "frame/simd/saturate.h"

namespace vlq {

enum class Scaling { None, Left, Half, Right, Vanish };

// Family::vanishesFrom<T> is the first scale factor at which no operands give anything but 0.
template <class Family, class T>
constexpr Scaling classify(std::int32_t scaleFactor) {
    if (scaleFactor == 0) return Scaling::None;
    if (scaleFactor < 0) return Scaling::Left;
    if (scaleFactor >= Family::template vanishesFrom<T>) return Scaling::Vanish;
    return scaleFactor == 1 ? Scaling::Half : Scaling::Right;
}

// Negative scale factors. The count ends at the value bits of T: from there on any value but 0
// saturates, and a longer shift changes nothing.
template <class T>
class ScaleLeft {
public:
    explicit ScaleLeft(std::int32_t scaleFactor)
        : count_(scaleFactor < -kBits ? kBits : -scaleFactor) {}
    Vec<T> operator()(Vec<T> clamped) const { return shiftLeftSat(clamped, count_); }
    // A result of one bit more than T, by its lower bits and its sign: where clamping costs more.
    Vec<T> operator()(Vec<T> lower, Vec<T> signBit) const {
        return shiftLeftSat(lower, signBit, count_);
    }

private:
    static constexpr int kBits = std::numeric_limits<T>::digits;
    int count_;
};

// An exact integer of one bit more than T: e = 2 half + (lowest bit of odd). The other bits of odd
// mean nothing.
template <class T>
struct Halved {
    Vec<T> half;
    Vec<T> odd;
};

// To the nearest: ties to the even integer, which is the rule, or away from zero.
enum class Rounding { ToZero, TiesToEven, TiesAway };

// All bits where e is negative.
template <class T>
inline Vec<T> negative(Halved<T> e) {
    if constexpr (std::is_signed_v<T>)
        return signMask(e.half);
    else
        return Vec<T>::zero();
}

// The lowest bit is set where a value in the middle between the quotient and the next goes up.
template <Rounding rounding, class T>
inline Vec<T> middleGoesUp(Halved<T> e, Vec<T> quotient) {
    if constexpr (rounding == Rounding::TiesToEven)
        return quotient;
    else if constexpr (rounding == Rounding::TiesAway)
        return ~negative(e);
    else
        return negative(e);
}

// e * 2^-scaleFactor for 2 <= scaleFactor <= width of T.
template <class T, Rounding rounding = Rounding::TiesToEven>
class ScaleRight {
public:
    explicit ScaleRight(std::int32_t scaleFactor)
        : shift_(scaleFactor - 1),
          remainder_(Vec<T>::broadcast(static_cast<T>((Wide{1} << shift_) - 1))),
          middle_(Vec<T>::broadcast(
              static_cast<T>(rounding == Rounding::ToZero ? 0 : Wide{1} << (shift_ - 1)))) {}

    Vec<T> operator()(Halved<T> e) const {
        using S = BitsOf<T>;
        const auto one = Vec<T>::broadcast(1);
        const auto quotient = shiftRight(e.half, shift_);
        const auto remainder = e.half & remainder_;
        if constexpr (rounding == Rounding::ToZero) {
            // From the floor up where anything was cut off a negative e.
            const auto cut = isAbove(bitCast<S>(remainder), bitCast<S>(middle_ - (e.odd & one)));
            return quotient - (bitCast<T>(cut) & negative(e));
        } else {
            // In the middle a set odd bit lies above the tie.
            const auto tip = (e.odd | middleGoesUp<rounding>(e, quotient)) & one;
            return quotient - bitCast<T>(isAbove(bitCast<S>(remainder), bitCast<S>(middle_ - tip)));
        }
    }

private:
    using Wide = std::uint64_t;
    int shift_;  // of the half
    Vec<T> remainder_, middle_;
};

// e * 2^-scaleFactor for results that fit their lane with room for half a quotient more:
// |e| + 2^(scaleFactor-1) lies in T, 1 <= scaleFactor < width of T. The result is not clamped.
template <class T>
class RoundRight {
public:
    explicit RoundRight(std::int32_t scaleFactor)
        : shift_(scaleFactor),
          bias_(Vec<T>::broadcast(static_cast<T>((std::uint64_t{1} << (scaleFactor - 1)) - 1))) {}
    Vec<T> operator()(Vec<T> e) const {
        const auto odd = shiftRight(e, shift_) & Vec<T>::broadcast(1);
        return shiftRight(e + bias_ + odd, shift_);
    }

private:
    int shift_;
    Vec<T> bias_;
};

// ---- one integer at a time ----------------------------------------------------------------------
// For exact results that no lane holds, in an integer type Wide that does.
template <class T, class Wide>
constexpr T clampTo(Wide e) {
    constexpr Wide low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return static_cast<T>(e < low ? low : e > high ? high : e);
}

// clamp(e * 2^count), any count from 0 on.
template <class T, class Wide>
class ScalarLeft {
public:
    explicit ScalarLeft(std::int64_t count)
        : count_(count < kBits ? static_cast<int>(count) : kBits) {}
    T operator()(Wide e) const {
        const T value = clampTo<T>(e);
        // Bits above the limit would be lost.
        constexpr T low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
        if (value > (high >> count_)) return high;
        if (value < (low >> count_)) return low;
        return static_cast<T>(static_cast<std::make_unsigned_t<T>>(value) << count_);
    }

private:
    static constexpr int kBits = std::numeric_limits<T>::digits;
    int count_;
};

// clamp(round(e * 2^-shift)), 1 <= shift. Which values saturate is known beforehand; the others
// leave room for half a quotient more.
template <class T, class Wide>
class ScalarRight {
public:
    static constexpr int lastShift = std::numeric_limits<T>::digits + 1;

    explicit ScalarRight(int shift)
        : shift_(shift),
          bias_((Wide{1} << (shift - 1)) - 1),
          low_(Wide{std::numeric_limits<T>::min()} * (Wide{1} << shift)),
          high_(Wide{std::numeric_limits<T>::max()} * (Wide{1} << shift)) {}
    T operator()(Wide e) const {
        const Wide within = e < low_ ? low_ : e > high_ ? high_ : e;
        return static_cast<T>((within + bias_ + (within >> shift_ & 1)) >> shift_);
    }

private:
    int shift_;
    Wide bias_, low_, high_;
};

// The same for lastShift < shift < width of Wide: every result fits. A bit goes first, which stays
// noted in the lowest one.
template <class T, class Wide>
class ScalarRightFar {
public:
    explicit ScalarRightFar(int shift) : shift_(shift - 1), bias_((Wide{1} << (shift - 2)) - 1) {}
    T operator()(Wide e) const {
        const Wide half = e >> 1 | (e & 1);
        return static_cast<T>((half + bias_ + (half >> shift_ & 1)) >> shift_);
    }

private:
    int shift_;
    Wide bias_;
};

}  // namespace vlq
