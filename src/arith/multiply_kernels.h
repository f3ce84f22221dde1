// Products of 8 and 16-bit integers under the scale rule. A family defines the exact product e, in
// two vectors of wider lanes, and how it is narrowed; the scaling is the same for all.
#pragma once

#include "frame/loop/map.h"
#include "frame/scale/scale.h"
#include "frame/simd/multiply.h"

namespace vlq::multiply {

// e / 2; a tie rounds up where the quotient is odd.
template <class T>
inline Vec<T> roundHalf(Vec<T> e) {
    const auto quotient = shiftRight(e, 1);
    return quotient + (e & quotient & Vec<T>::broadcast(1));
}

// ---- 16-bit results from the halves of the product ----------------------------------------------
// For large scale factors the quotient is in the upper 16 bits of the products, so that no lane
// needs widening. `lower` and `upper` are the two halves of each product.
class RoundUpperHalf {
public:
    using V = Vec<std::int16_t>;

    // 17 <= scaleFactor <= 31
    explicit RoundUpperHalf(std::int32_t scaleFactor)
        : shift_(scaleFactor - 16),
          remainder_(V::broadcast(static_cast<std::int16_t>((1 << shift_) - 1))),
          belowMiddle_(V::broadcast(static_cast<std::int16_t>((1 << (shift_ - 1)) - 1))) {}
    V operator()(V lower, V upper) const {
        const V quotient = shiftRight(upper, shift_);
        // The middle itself rounds up from an odd quotient, or where the lower half is not 0.
        const V stays = (lower == V::zero()) & ~quotient & V::broadcast(1);
        return quotient - ((upper & remainder_) > (belowMiddle_ + stays));
    }

private:
    int shift_;
    V remainder_, belowMiddle_;
};
// Scale factor 16.
struct RoundToUpperHalf {
    using V = Vec<std::int16_t>;
    V operator()(V lower, V upper) const {
        const V odd = upper & V::broadcast(1);
        return upper - ((lower ^ V::broadcast(std::numeric_limits<std::int16_t>::min())) >
                        (V::zero() - odd));
    }
};
// Scale factor 15: one bit of the quotient is in the lower half, and 2^15 saturates.
struct RoundOffLowerBits {
    using V = Vec<std::int16_t>;
    V operator()(V lower, V upper) const {
        const V bit = bitCast<std::int16_t>(shiftRight(bitCast<std::uint16_t>(lower), 15));
        const V up = (lower & V::broadcast(0x7FFF)) > (V::broadcast(0x4000) - bit);
        return subSat(addSat(addSat(upper, upper), bit), up);
    }
};
// Scale factors 2 to 14. Ties are rounded down at first, and then up where that gave an odd result.
// This is right for saturated results too: the lower limit is even, and the upper one cannot rise.
class RoundLowerHalf {
public:
    using V = Vec<std::int16_t>;

    explicit RoundLowerHalf(std::int32_t scaleFactor)
        : shift_(scaleFactor),
          bias_(Vec<std::int32_t>::broadcast((1 << (scaleFactor - 1)) - 1)),
          remainder_(V::broadcast(static_cast<std::int16_t>((1 << scaleFactor) - 1))),
          middle_(V::broadcast(static_cast<std::int16_t>(1 << (scaleFactor - 1)))) {}
    V operator()(V a, V b) const {
        const auto e = productLanes(a, b);
        const V down = narrowLanes<std::int16_t>(
            {{shiftRight(e.part[0] + bias_, shift_), shiftRight(e.part[1] + bias_, shift_)}});
        const V tie = (a * b & remainder_) == middle_;
        return addSat(down, tie & down & V::broadcast(1));
    }

private:
    int shift_;
    Vec<std::int32_t> bias_;
    V remainder_, middle_;
};

// Calls run with the operation on two vectors where the halves of the products serve, for scale
// factors above 1. Returns whether they do.
template <class A, class Run>
inline bool withHalves(std::int32_t scaleFactor, Run run) {
    using V = Vec<std::int16_t>;
    const auto halves = [&](auto round) {
        run([round](Vec<A> a, V b) {
            return round(bitCast<std::int16_t>(a) * b, productUpper(a, b));
        });
        return true;
    };
    if (scaleFactor >= 17) return halves(RoundUpperHalf(scaleFactor));
    if (scaleFactor == 16) return halves(RoundToUpperHalf{});
    if constexpr (std::is_signed_v<A>) {
        if (scaleFactor == 15) return halves(RoundOffLowerBits{});
        run(RoundLowerHalf(scaleFactor));
        return true;
    }
    return false;
}

template <class Op, class T>
inline Block<T, 2> both(const Op& op, Block<T, 2> v) {
    return {{op(v.part[0]), op(v.part[1])}};
}

// ---- families -----------------------------------------------------------------------------------
// roomUpTo is the last scale factor at which rounding cannot overflow the lane of the largest e.
struct Product8u {
    using Stored = std::uint8_t;
    using Wide = std::uint16_t;
    static constexpr int roomUpTo = 9;
    template <class>
    static constexpr int vanishesFrom = 17;
    using V = Vec<std::uint8_t>;
    static auto exact(V a, V b) { return productLanes(a, b); }
    static V saturated(V a, V b) { return productSat(a, b); }
    static V narrowed(Block<std::uint16_t, 2> e) { return narrowLanes<Stored>(e); }
};

struct Product16s {
    using Stored = std::int16_t;
    using Wide = std::int32_t;
    static constexpr int roomUpTo = 30;
    template <class>
    static constexpr int vanishesFrom = 31;
    using V = Vec<std::int16_t>;
    static auto exact(V a, V b) { return productLanes(a, b); }
    static V saturated(V a, V b) { return narrowed(exact(a, b)); }
    static V narrowed(Block<std::int32_t, 2> e) { return narrowLanes<Stored>(e); }
};

struct Product16u {
    using Stored = std::uint16_t;
    using Wide = std::uint32_t;
    static constexpr int roomUpTo = 17;
    template <class>
    static constexpr int vanishesFrom = 33;
    using V = Vec<std::uint16_t>;
    static auto exact(V a, V b) { return productLanes(a, b); }
    static V saturated(V a, V b) { return productSat(a, b); }
    static V narrowed(Block<std::uint32_t, 2> e) { return narrowLanes<Stored>(e); }
};

struct Product16u16s {
    using Stored = std::int16_t;
    using Wide = std::int32_t;
    static constexpr int roomUpTo = 17;
    template <class>
    static constexpr int vanishesFrom = 32;
    using V = Vec<std::int16_t>;
    static auto exact(Vec<std::uint16_t> a, V b) { return productLanes(a, b); }
    static V saturated(Vec<std::uint16_t> a, V b) { return narrowed(exact(a, b)); }
    static V narrowed(Block<std::int32_t, 2> e) { return narrowLanes<Stored>(e); }
};

// Complex values in 32-bit lanes.
struct Product16sc {
    using Stored = std::int16_t;
    using Wide = std::int32_t;
    static constexpr int roomUpTo = 0;
    template <class>
    static constexpr int vanishesFrom = 32;
    using V = Vec<std::int32_t>;
    static auto exact(V a, V b) { return productParts(a, b); }
    static V saturated(V a, V b) { return narrowed(exact(a, b)); }
    static V narrowed(Block<std::int32_t, 2> e) { return joinParts(e); }
};

// srcDst + src1 * src2
struct SumOfProduct16s {
    using Stored = std::int16_t;
    using Wide = std::int32_t;
    static constexpr int roomUpTo = 30;
    template <class>
    static constexpr int vanishesFrom = 32;
    using V = Vec<std::int16_t>;
    static auto exact(V acc, V a, V b) { return productLanesPlus(a, b, acc); }
    static V saturated(V acc, V a, V b) { return narrowed(exact(acc, a, b)); }
    static V narrowed(Block<std::int32_t, 2> e) { return narrowLanes<Stored>(e); }
};

// Scale factor 31: only sums above 2^30 give 1, all others 0.
struct LastOfSum16s {
    using V = Vec<std::int16_t>;
    V operator()(V acc, V a, V b) const {
        const auto middle = Vec<std::int32_t>::broadcast(1 << 30);
        const auto e = productLanesPlus(a, b, acc);
        return V::zero() - narrowLanes<std::int16_t>({{e.part[0] > middle, e.part[1] > middle}});
    }
};

// ---- the rule -----------------------------------------------------------------------------------
template <class Family, template <class> class Round>
inline auto rounded(std::int32_t scaleFactor) {
    using Wide = typename Family::Wide;
    return [scale = Round<Wide>(scaleFactor)](auto... operands) {
        return Family::narrowed(both(scale, Family::exact(operands...)));
    };
}

// Calls run with the operation on the family's vectors for this scale factor, which is not one of
// Scaling::Vanish.
template <class Family, class Run>
inline void withScale(std::int32_t scaleFactor, Run run) {
    using T = typename Family::Stored;
    switch (classify<Family, T>(scaleFactor)) {
        case Scaling::None:
            return run([](auto... operands) { return Family::saturated(operands...); });
        case Scaling::Left:
            return run([scale = ScaleLeft<T>(scaleFactor)](auto... operands) {
                const auto clamped = Family::saturated(operands...);
                using Lane = typename decltype(clamped)::Scalar;
                return bitCast<Lane>(scale(bitCast<T>(clamped)));
            });
        case Scaling::Half:
            return run([](auto... operands) {
                return Family::narrowed(
                    both([](auto e) { return roundHalf(e); }, Family::exact(operands...)));
            });
        case Scaling::Right:
            if constexpr (std::is_same_v<Family, Product16s>) {
                if (withHalves<std::int16_t>(scaleFactor, run)) return;
            } else if constexpr (std::is_same_v<Family, Product16u16s>) {
                if (withHalves<std::uint16_t>(scaleFactor, run)) return;
            } else if constexpr (std::is_same_v<Family, SumOfProduct16s>) {
                if (scaleFactor == 31) return run(LastOfSum16s{});
            }
            if (scaleFactor <= Family::roomUpTo)
                return run(rounded<Family, RoundRight>(scaleFactor));
            return run(rounded<Family, RoundRightAny>(scaleFactor));
        case Scaling::Vanish: return;
    }
}

// ---- 16-bit factors, 32-bit results -------------------------------------------------------------
// Calls run with the operation on a vector of exact products, which have 31 bits.
struct Product16s32s {
    template <class>
    static constexpr int vanishesFrom = 31;
};
template <class Run>
inline void withScale16s32s(std::int32_t scaleFactor, Run run) {
    using V = Vec<std::int32_t>;
    switch (classify<Product16s32s, std::int32_t>(scaleFactor)) {
        case Scaling::None: return run([](V e) { return e; });
        case Scaling::Left: return run(ScaleLeft<std::int32_t>(scaleFactor));
        case Scaling::Half:
        case Scaling::Right: return run(RoundRight<std::int32_t>(scaleFactor));
        case Scaling::Vanish: return;
    }
}
template <class Scale>
struct StoreProduct16s32s {
    Scale scale;
    Block<std::int32_t, 2> operator()(const Block<std::int16_t, 1>& a,
                                      const Block<std::int16_t, 1>& b) const {
        return both(scale, inMemoryOrder(productLanes(a.part[0], b.part[0])));
    }
};

// The sum of a 32-bit integer and such a product has 33 bits.
struct SumOfProduct16s32s {
    template <class>
    static constexpr int vanishesFrom = 33;

    using V = Vec<std::int32_t>;
    static V saturated(V acc, V product) { return addSat(acc, product); }
    // The sign bit of the result is that of the exact sum: that of the operands where they agree.
    static V sign(V acc, V product) { return acc ^ ((acc ^ product) & (acc ^ (acc + product))); }
    static Halved<std::int32_t> halved(V acc, V product) {
        const auto odd = acc ^ product;
        return {(acc & product) + shiftRight(odd, 1), odd};
    }
};
template <class Run>
inline void withScaleOfSum16s32s(std::int32_t scaleFactor, Run run) {
    using V = Vec<std::int32_t>;
    using Sum = SumOfProduct16s32s;
    switch (classify<Sum, std::int32_t>(scaleFactor)) {
        case Scaling::None:
            return run([](V acc, V product) { return Sum::saturated(acc, product); });
        case Scaling::Left:
            return run([scale = ScaleLeft<std::int32_t>(scaleFactor)](V acc, V product) {
                return scale(acc + product, Sum::sign(acc, product));
            });
        case Scaling::Half:
            return run([](V acc, V product) {
                const auto e = Sum::halved(acc, product);
                return e.half + (e.half & e.odd & V::broadcast(1));
            });
        case Scaling::Right:
            return run([scale = ScaleRight<std::int32_t>(scaleFactor)](V acc, V product) {
                return scale(Sum::halved(acc, product));
            });
        case Scaling::Vanish: return;
    }
}
template <class Add>
struct AddProduct16s32s {
    Add add;
    Block<std::int32_t, 2> operator()(const Block<std::int32_t, 2>& acc,
                                      const Block<std::int16_t, 1>& a,
                                      const Block<std::int16_t, 1>& b) const {
        const auto product = inMemoryOrder(productLanes(a.part[0], b.part[0]));
        return {{add(acc.part[0], product.part[0]), add(acc.part[1], product.part[1])}};
    }
};

}  // namespace vlq::multiply
