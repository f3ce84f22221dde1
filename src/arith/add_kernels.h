// Sums and differences. Each operation provides what the scale rule needs: the saturated result,
// half the result with ties to even, and the exact result, which has one bit too many for its lane,
// as a half and an odd bit.
#pragma once

#include "frame/loop/map.h"
#include "frame/scale/scale.h"
#include "frame/simd/convert.h"

namespace vlq::add {

// a + b
struct Sum {
    static constexpr bool leavesAt0 = true;  // with b = 0 the result is a
    // The a whose result with b is e.
    static constexpr std::int64_t inverse(std::int64_t e, std::int64_t b) { return e - b; }
    // From here on results are below one half, or ties that round to 0.
    template <class T>
    static constexpr int vanishesFrom = std::numeric_limits<T>::digits + 2;

    template <class T>
    static Vec<T> exact(Vec<T> a, Vec<T> b) {
        return a + b;
    }
    template <class T>
    static Vec<T> saturated(Vec<T> a, Vec<T> b) {
        return addSat(a, b);
    }
    // The sign bit of the result is that of the exact sum: that of the operands where they agree.
    template <class T>
    static Vec<T> sign(Vec<T> a, Vec<T> b) {
        return a ^ ((a ^ b) & (a ^ (a + b)));
    }
    // An odd sum is a tie; the mean rounded up, without its lowest bit, is then the even neighbour.
    template <class T>
    static Vec<T> half(Vec<T> a, Vec<T> b) {
        return meanUp(a, b) & ~((a ^ b) & Vec<T>::broadcast(1));
    }
    // Bits that both operands have count in full, bits that only one has count half.
    template <class T>
    static Halved<T> halved(Vec<T> a, Vec<T> b) {
        const auto odd = a ^ b;
        return {(a & b) + shiftRight(odd, 1), odd};
    }
};
// The 64-bit sum is 0 from a scale factor of 64 on, as callers expect, though the largest sums
// would still round to 1 or -1.
template <>
inline constexpr int Sum::vanishesFrom<std::int64_t> = 64;

// a - b. An unsigned difference below 0 is 0 at every scale.
struct Difference {
    static constexpr bool leavesAt0 = true;
    static constexpr std::int64_t inverse(std::int64_t e, std::int64_t b) { return e + b; }
    template <class T>
    static constexpr int vanishesFrom = std::numeric_limits<T>::digits +
                                        (std::is_signed_v<T> ? 2 : 1);

    template <class T>
    static Vec<T> exact(Vec<T> a, Vec<T> b) {
        return a - b;
    }
    template <class T>
    static Vec<T> saturated(Vec<T> a, Vec<T> b) {
        return subSat(a, b);
    }
    template <class T>
    static Vec<T> sign(Vec<T> a, Vec<T> b) {
        return a ^ (~(a ^ b) & (a ^ (a - b)));
    }
    template <class T>
    static Vec<T> half(Vec<T> a, Vec<T> b) {
        if constexpr (std::is_unsigned_v<T>) {
            return Sum::half(subSat(a, b), Vec<T>::zero());
        } else {
            // A tie rounds up from an odd half, except from the largest value, where it saturates.
            const auto [floor, odd] = halved(a, b);
            const auto up = floor & odd & Vec<T>::broadcast(1);
            if constexpr (sizeof(T) == 2)
                return addSat(floor, up);
            else
                return floor + (up & ~(floor == Vec<T>::broadcast(std::numeric_limits<T>::max())));
        }
    }
    // Half of all bits that differ, less those that only b has: those are counted as positive but
    // are negative.
    template <class T>
    static Halved<T> halved(Vec<T> a, Vec<T> b) {
        if constexpr (std::is_unsigned_v<T>) {
            const auto difference = subSat(a, b);
            return {shiftRight(difference, 1), difference};
        } else {
            const auto odd = a ^ b;
            return {shiftRight(odd, 1) - (b & ~a), odd};
        }
    }
};

// b - a, which decreases as a increases.
struct ReverseDifference {
    static constexpr bool leavesAt0 = false;
    static constexpr std::int64_t inverse(std::int64_t e, std::int64_t b) { return b - e; }
    template <class T>
    static constexpr int vanishesFrom = Difference::vanishesFrom<T>;

    template <class T>
    static Vec<T> exact(Vec<T> a, Vec<T> b) {
        return Difference::exact(b, a);
    }
    template <class T>
    static Vec<T> saturated(Vec<T> a, Vec<T> b) {
        return Difference::saturated(b, a);
    }
    template <class T>
    static Vec<T> sign(Vec<T> a, Vec<T> b) {
        return Difference::sign(b, a);
    }
    template <class T>
    static Vec<T> half(Vec<T> a, Vec<T> b) {
        return Difference::half(b, a);
    }
    template <class T>
    static Halved<T> halved(Vec<T> a, Vec<T> b) {
        return Difference::halved(b, a);
    }
};

// ---- without a scale factor ---------------------------------------------------------------------
template <class Op>
struct Exact {
    template <class V>
    V operator()(V a, V b) const {
        return Op::exact(a, b);
    }
};
template <class Op>
struct Saturated {
    template <class V>
    V operator()(V a, V b) const {
        return Op::saturated(a, b);
    }
};
// 8-bit operands to 16-bit results, and 16-bit operands to floats by way of 32-bit integers: no
// result saturates.
template <class Op>
struct Widened {
    Block<std::uint16_t, 2> operator()(Block<std::uint8_t, 1> a, Block<std::uint8_t, 1> b) const {
        const auto x = widen(a.part[0]), y = widen(b.part[0]);
        return {{Op::exact(x.part[0], y.part[0]), Op::exact(x.part[1], y.part[1])}};
    }
    Block<float, 2> operator()(Block<std::int16_t, 1> a, Block<std::int16_t, 1> b) const {
        const auto x = widen(a.part[0]), y = widen(b.part[0]);
        return {
            {toFloat(Op::exact(x.part[0], y.part[0])), toFloat(Op::exact(x.part[1], y.part[1]))}};
    }
};
// 16-bit elements added to a 32-bit accumulator.
struct WidenedToSum {
    Block<std::int32_t, 2> operator()(Block<std::int32_t, 2> sum, Block<std::int16_t, 1> v) const {
        const auto x = widen(v.part[0]);
        return {{addSat(sum.part[0], x.part[0]), addSat(sum.part[1], x.part[1])}};
    }
};

// ---- with a scale factor ------------------------------------------------------------------------
// The scale factor at which only the carry of an unsigned sum is left: 1 where a + b is greater
// than the carry's weight, at which it is a tie.
template <class T>
struct CarryOfSum {
    Vec<T> operator()(Vec<T> a, Vec<T> b) const {
        const auto one = Vec<T>::broadcast(1);
        const auto aboveHighest = subSat(a, ~b);
        return one - subSat(one, subSat(aboveHighest, one));
    }
};

// Calls run with the operation on two vectors for this scale factor, which is not one of
// Scaling::Vanish.
template <class Op, class T, class Run>
inline void withScale(std::int32_t scaleFactor, Run run) {
    using V = Vec<T>;
    switch (classify<Op, T>(scaleFactor)) {
        case Scaling::None: return run([](V a, V b) { return Op::saturated(a, b); });
        case Scaling::Left:
            return run([scale = ScaleLeft<T>(scaleFactor)](V a, V b) {
                if constexpr (SignedInteger<T> && WideInteger<T>)
                    return scale(Op::exact(a, b), Op::sign(a, b));
                else
                    return scale(Op::saturated(a, b));
            });
        case Scaling::Half: return run([](V a, V b) { return Op::half(a, b); });
        case Scaling::Right:
            if constexpr (std::is_unsigned_v<T> && std::is_same_v<Op, Sum>) {
                if (scaleFactor > std::numeric_limits<T>::digits) return run(CarryOfSum<T>{});
            }
            return run(
                [scale = ScaleRight<T>(scaleFactor)](V a, V b) { return scale(Op::halved(a, b)); });
        case Scaling::Vanish: return;
    }
}

}  // namespace vlq::add
