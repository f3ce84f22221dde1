// Sums and differences. Each operation gives what the scale rule asks of it: the saturated result,
// half the result with ties to even, and the exact result split in half and odd bit, which fits
// where the result itself has a bit too many for its lane.
#pragma once

#include "frame/loop/map.h"
#include "frame/scale/scale.h"
#include "frame/simd/convert.h"

namespace vlq::add {

// a + b
struct Sum {
    static constexpr bool leavesAt0 = true;  // b of 0 leaves a as it is
    // The a that gives the result e with b.
    static constexpr std::int64_t inverse(std::int64_t e, std::int64_t b) { return e - b; }
    // Unsigned sums reach one bit further than signed ones; a tie of the largest goes to 0.
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
    // In the sign bit, that of the exact sum: the operands' own where they agree.
    template <class T>
    static Vec<T> sign(Vec<T> a, Vec<T> b) {
        return a ^ ((a ^ b) & (a ^ (a + b)));
    }
    // The sum's lowest bit marks a tie, and the even neighbour is the upper one less its own.
    template <class T>
    static Vec<T> half(Vec<T> a, Vec<T> b) {
        return meanUp(a, b) & ~((a ^ b) & Vec<T>::broadcast(1));
    }
    // Bits that both have count whole, bits that one has count half.
    template <class T>
    static Halved<T> halved(Vec<T> a, Vec<T> b) {
        const auto odd = a ^ b;
        return {(a & b) + shiftRight(odd, 1), odd};
    }
};
// 64 is where the 64-bit sum is given up, though the largest ones would still round to 1 or -1.
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
            // A tie goes up from an odd half, except from the largest, which has no neighbour
            // above.
            const auto [floor, odd] = halved(a, b);
            const auto up = floor & odd & Vec<T>::broadcast(1);
            if constexpr (sizeof(T) == 2)
                return addSat(floor, up);
            else
                return floor + (up & ~(floor == Vec<T>::broadcast(std::numeric_limits<T>::max())));
        }
    }
    // Half of all bits that differ, less those that only b has: they counted up and go down.
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

// Operands the other way round: b - a. It falls where a rises.
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
// Bytes to words, and words to floats by way of integers: wide enough for every result.
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
// Words onto integers.
struct WidenedToSum {
    Block<std::int32_t, 2> operator()(Block<std::int32_t, 2> sum, Block<std::int16_t, 1> v) const {
        const auto x = widen(v.part[0]);
        return {{addSat(sum.part[0], x.part[0]), addSat(sum.part[1], x.part[1])}};
    }
};

// ---- with a scale factor ------------------------------------------------------------------------
// The scale factor that leaves an unsigned sum nothing but its carry: 1 where a + b lies above
// the carry's weight, which is the tie.
template <class T>
struct CarryOfSum {
    Vec<T> operator()(Vec<T> a, Vec<T> b) const {
        const auto one = Vec<T>::broadcast(1);
        const auto aboveHighest = subSat(a, ~b);
        return one - subSat(one, subSat(aboveHighest, one));
    }
};

// Hands `run` the operation on two vectors that serves this scale factor; not for a range that
// vanishes.
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
