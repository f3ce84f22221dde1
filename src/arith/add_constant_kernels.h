// Sums and differences with a constant: 32-bit results, whose saturation limits are known before
// the loop, and 64-bit sums, which are exact to 65 bits at every scale factor and have a rounding
// mode.
#pragma once

#include <algorithm>

#include "arith/add_kernels.h"

namespace vlq::add {

// There is no saturating instruction for 32 bits, but with a constant the samples whose results
// saturate are those beyond limits that are computed before the loop.

// The sample whose result with val is e, or the nearest sample if there is none.
template <class Op>
inline Vec<std::int32_t> sampleFor(std::int64_t e, std::int32_t val) {
    const std::int64_t x = Op::inverse(e, val);
    return Vec<std::int32_t>::broadcast(
        static_cast<std::int32_t>(std::clamp<std::int64_t>(x, INT32_MIN, INT32_MAX)));
}

// Whether the result decreases as the sample increases.
template <class Op>
inline constexpr bool falls = Op::inverse(0, 0) > Op::inverse(1, 0);

// Scale factor 0. With a given constant, results can saturate at one limit only, and only for
// samples near one limit.
template <class Op, bool upperSamples>
class ConstantSaturated {
public:
    using V = Vec<std::int32_t>;

    explicit ConstantSaturated(std::int32_t val)
        : val_(V::broadcast(val)), end_(V::broadcast(kEnd)), limit_(sampleFor<Op>(kEnd, val)) {}

    V operator()(V x) const {
        return select(upperSamples ? x > limit_ : limit_ > x, end_, Op::exact(x, val_));
    }

private:
    static constexpr std::int32_t kEnd = upperSamples != falls<Op> ? INT32_MAX : INT32_MIN;
    V val_, end_, limit_;
};

// Negative scale factors. A result of 0 or -1 never saturates, so the samples for both limits can
// be clamped to the samples' own range.
template <class Op>
class ConstantLeft {
public:
    using V = Vec<std::int32_t>;

    ConstantLeft(std::int32_t val, std::int32_t scaleFactor)
        : count_(scaleFactor < -31 ? 31 : -scaleFactor),
          val_(V::broadcast(val)),
          lowest_(sampleFor<Op>(INT32_MIN >> count_, val)),
          highest_(sampleFor<Op>(INT32_MAX >> count_, val)) {}

    V operator()(V x) const {
        const auto below = falls<Op> ? x > lowest_ : lowest_ > x;
        const auto above = falls<Op> ? highest_ > x : x > highest_;
        return select(below | above, below ^ V::broadcast(INT32_MAX),
                      shiftLeft(Op::exact(x, val_), count_));
    }

private:
    int count_;
    V val_, lowest_, highest_;  // samples of the lowest and the highest result
};

// Calls run with the operation on one vector for a scale factor of 0 or less.
template <class Op, class Run>
inline void withConstant(std::int32_t val, std::int32_t scaleFactor, Run run) {
    if (scaleFactor < 0) return run(ConstantLeft<Op>(val, scaleFactor));
    // Whether large samples saturate: whether the sample for the limit is below the largest one.
    const bool upper = Op::inverse(falls<Op> ? INT32_MIN : INT32_MAX, val) < INT32_MAX;
    if (upper)
        run(ConstantSaturated<Op, true>(val));
    else
        run(ConstantSaturated<Op, false>(val));
}

// e / 2
template <class T, Rounding rounding>
struct RoundHalf {
    Vec<T> operator()(Halved<T> e) const {
        return e.half + (e.odd & tieGoesUp<rounding>(e, e.half) & Vec<T>::broadcast(1));
    }
};

// The last scale factor with results other than 0 is one too many for a shift of the half. One bit
// is shifted off first and kept, as a sticky bit, in the odd bit.
template <class T, Rounding rounding>
struct ScaleRightLast {
    ScaleRight<T, rounding> scale{8 * sizeof(T)};
    Vec<T> operator()(Halved<T> e) const { return scale({shiftRight(e.half, 1), e.odd | e.half}); }
};

template <class T, Rounding rounding, class Run>
inline void withPositiveScale(std::int32_t scaleFactor, Run run) {
    constexpr int bits = 8 * sizeof(T);
    auto scaled = [&](auto scale) {
        run([=](Vec<T> a, Vec<T> b) { return scale(Sum::halved(a, b)); });
    };
    if (scaleFactor == 1)
        scaled(RoundHalf<T, rounding>{});
    else if (scaleFactor <= bits)
        scaled(ScaleRight<T, rounding>(scaleFactor));
    else if (scaleFactor == bits + 1)
        scaled(ScaleRightLast<T, rounding>{});
    else
        run([](Vec<T>, Vec<T>) { return Vec<T>::zero(); });
}

// Calls run with the operation that sums two vectors, scaled and rounded. It is exact at every
// scale factor.
template <class T, class Run>
inline void withScaleAndRounding(std::int32_t scaleFactor, VlqRoundMode mode, Run run) {
    using V = Vec<T>;
    if (scaleFactor == 0) return run([](V a, V b) { return addSat(a, b); });
    if (scaleFactor < 0)
        return run([scale = ScaleLeft<T>(scaleFactor)](V a, V b) { return scale(addSat(a, b)); });
    withRounding(mode, [&](auto rounding) { withPositiveScale<T, rounding()>(scaleFactor, run); });
}

}  // namespace vlq::add
