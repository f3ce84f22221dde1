// The scale rule on vectors: how an exact integer result e becomes a stored sample of type T.
//
//     dst = clamp(round(e * 2^-scaleFactor)),    round: to nearest, ties to even
//
// Every 32-bit scale factor is legal. It is classified once, before the loop, and each class has
// an operation below that keeps its constants as vectors. None of them forms e in full where e is
// wider than a lane:
//
//     Scaling::None     dst = clamp(e)                a saturating operation
//     Scaling::Left     dst = clamp(clamp(e) * 2^n)   ScaleLeft, on the saturated result, or on the
//                                                     result's low bits and sign where that is
//                                                     cheaper
//     Scaling::Half     one bit is rounded off        an averaging operation, or RoundRight
//     Scaling::Right    more bits are rounded off     ScaleRight on e as a half and an odd bit,
//                                                     RoundRight or RoundRightAny on wider lanes
//     Scaling::Vanish   dst = 0 for every e           a clear of the destination
//
// Clamping before a left shift is exact: a value out of range stays out of range.
#pragma once

#include "frame/scale/rounding.h"
#include "frame/simd/saturate.h"

namespace vlq {

enum class Scaling { None, Left, Half, Right, Vanish };

// Family::vanishesFrom<T> is the first scale factor at which every result is 0.
template <class Family, class T>
constexpr Scaling classify(std::int32_t scaleFactor) {
    if (scaleFactor == 0) return Scaling::None;
    if (scaleFactor < 0) return Scaling::Left;
    if (scaleFactor >= Family::template vanishesFrom<T>) return Scaling::Vanish;
    return scaleFactor == 1 ? Scaling::Half : Scaling::Right;
}

// Negative scale factors. The shift count is limited to the value bits of T: from there on every
// value but 0 saturates.
template <class T>
class ScaleLeft {
public:
    explicit ScaleLeft(std::int32_t scaleFactor)
        : count_(scaleFactor < -kBits ? kBits : -scaleFactor) {}
    Vec<T> operator()(Vec<T> clamped) const { return shiftLeftSat(clamped, count_); }
    // A result of one bit more than T, given by its low bits and its sign.
    Vec<T> operator()(Vec<T> lower, Vec<T> signBit) const {
        return shiftLeftSat(lower, signBit, count_);
    }

private:
    static constexpr int kBits = std::numeric_limits<T>::digits;
    int count_;
};

// An exact integer of one bit more than T: e = 2 half + (lowest bit of odd). The other bits of odd
// are ignored.
template <class T>
struct Halved {
    Vec<T> half;
    Vec<T> odd;
};

// All bits set where e is negative.
template <class T>
inline Vec<T> negative(Halved<T> e) {
    if constexpr (std::is_signed_v<T>)
        return signMask(e.half);
    else
        return Vec<T>::zero();
}

// The lowest bit is set where a tie between the quotient and the next integer is rounded up.
template <Rounding rounding, class T>
inline Vec<T> tieGoesUp(Halved<T> e, Vec<T> quotient) {
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
            // The floor is one too low where bits of a negative e are cut off.
            const auto cut = isAbove(bitCast<S>(remainder), bitCast<S>(middle_ - (e.odd & one)));
            return quotient - (bitCast<T>(cut) & negative(e));
        } else {
            // Where the half's remainder is at the middle, a set odd bit puts e above the tie.
            const auto up = (e.odd | tieGoesUp<rounding>(e, quotient)) & one;
            return quotient - bitCast<T>(isAbove(bitCast<S>(remainder), bitCast<S>(middle_ - up)));
        }
    }

private:
    using Wide = std::uint64_t;
    int shift_;  // of the half
    Vec<T> remainder_, middle_;
};

// e * 2^-scaleFactor where the lane has headroom for rounding: |e| + 2^(scaleFactor-1) is in T,
// 1 <= scaleFactor < width of T. The result is not clamped.
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

// The same without headroom, for any e of the lane and 2 <= scaleFactor <= width of T.
template <class T>
class RoundRightAny {
public:
    explicit RoundRightAny(std::int32_t scaleFactor) : scale_(scaleFactor) {}
    Vec<T> operator()(Vec<T> e) const { return scale_({shiftRight(e, 1), e}); }

private:
    ScaleRight<T> scale_;
};

// v / 2^count rounded by any policy, for any v of the lane and 1 <= count < width of T.
template <class T, Rounding rounding = Rounding::TiesToEven>
class RoundShift {
public:
    using V = Vec<T>;

    explicit RoundShift(int count) : count_(count) {}

    V operator()(V v) const {
        using Lane = BitsOf<T>;
        const V mask = V::broadcast(static_cast<T>((std::make_unsigned_t<T>{1} << count_) - 1));
        const V quotient = shiftRight(v, count_);
        const auto up =
            isAbove(bitCast<Lane>(v & mask), bitCast<Lane>(roundedDown(v, quotient, mask)));
        return quotient - bitCast<T>(up);
    }

private:
    // The largest remainder that is rounded down to the quotient, which is the floor.
    static V roundedDown(V v, V quotient, V mask) {
        V sign = V::zero();
        if constexpr (std::is_signed_v<T>) sign = signMask(v);
        if constexpr (rounding == Rounding::ToZero)
            return mask & ~sign;
        else if constexpr (rounding == Rounding::TiesAway)
            return shiftRight(mask, 1) - sign;
        else
            return shiftRight(mask, 1) + V::broadcast(1) - (quotient & V::broadcast(1));
    }

    int count_;
};

}  // namespace vlq
