// Products of 32 and 64-bit integers, and products of floats rounded to integers, under the scale
// rule.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>

#include "frame/loop/map_complex.h"
#include "frame/scale/power_of_two.h"
#include "frame/scale/scalar_scale.h"
#include "frame/scale/scale.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "frame/simd/multiply.h"
#include "vlqs/types.h"

namespace vlq::multiply {

// ---- 32 bits ------------------------------------------------------------------------------------
struct Exact32s {
    template <class>
    static constexpr int vanishesFrom = 63;  // 2^62 is half of 2^63, a tie at 0
};

// Rounding to even is symmetric about 0, so magnitudes are multiplied, rounded and saturated, in 64
// unsigned bits.
template <class Round>
struct Product32s {
    Round round;

    using V = Vec<std::int32_t>;
    V operator()(V a, V b) const {
        const V sign = shiftRight(a ^ b, 31);
        const auto x = magnitude(a), y = magnitude(b);
        const auto even = round(productEven(x, y)), odd = round(productOdd(x, y));
        const V fits =
            joinEvenOdd(shiftRight(even, 31), shiftRight(odd, 31)) == Vec<std::uint32_t>::zero();
        const V low = bitCast<std::int32_t>(joinEvenOdd(even, odd));
        const V size = select(fits, low, V::broadcast(std::numeric_limits<std::int32_t>::max()));
        // The complement of the upper limit is the lower limit already.
        return (size ^ sign) - (sign & fits);
    }

private:
    static Vec<std::uint32_t> magnitude(V v) {
        const V sign = shiftRight(v, 31);
        return bitCast<std::uint32_t>((v ^ sign) - sign);
    }
};

// Up to this scale factor products can be computed in double: those from 2^53 on, which a double
// rounds, are out of range anyway. These kernels run under StandardFloatMode.
inline constexpr std::int32_t kLastInDouble = 21;

// 2^-scaleFactor, at most 2^31, by which every value but 0 saturates.
inline Vec<double> factorInDouble(std::int32_t scaleFactor) {
    return Vec<double>::broadcast(scaleFactorPower<double>(std::max(scaleFactor, -31)));
}
// Below the range the conversion itself gives the lower limit.
inline Vec<std::int32_t> storedFromDouble(Block<double, 2> v) {
    const auto top = Vec<double>::broadcast(std::numeric_limits<std::int32_t>::max());
    return toNearest(Block<double, 2>{{minimum(v.part[0], top), minimum(v.part[1], top)}});
}
struct Product32sInDouble {
    Vec<double> factor;
    Vec<std::int32_t> operator()(Vec<std::int32_t> a, Vec<std::int32_t> b) const {
        const auto x = toDouble(a), y = toDouble(b);
        return storedFromDouble(
            {{x.part[0] * (y.part[0] * factor), x.part[1] * (y.part[1] * factor)}});
    }
};
struct SumOfProduct32sInDouble {
    Vec<double> factor;
    Vec<std::int32_t> operator()(Vec<std::int32_t> acc, Vec<std::int32_t> a,
                                 Vec<std::int32_t> b) const {
        const auto x = toDouble(a), y = toDouble(b), z = toDouble(acc);
        return storedFromDouble({{(z.part[0] + x.part[0] * y.part[0]) * factor,
                                  (z.part[1] + x.part[1] * y.part[1]) * factor}});
    }
};

// Complex values. One factor is split into its upper and lower half, so that the products with
// either and their sums are exact. Adding the two rounds only what is out of range anyway.
struct ComplexProduct32scInDouble {
    Vec<double> factor;
    Vec<std::int64_t> operator()(Vec<std::int64_t> x, Vec<std::int64_t> y) const {
        using V = Vec<std::int32_t>;
        const V b = bitCast<std::int32_t>(y), lowerHalf = V::broadcast(0xFFFF);
        const auto a = toDouble(bitCast<std::int32_t>(x)), upper = toDouble(b & ~lowerHalf),
                   lower = toDouble(b & lowerHalf);
        return bitCast<std::int64_t>(storedFromDouble(
            {{(product(a.part[0], upper.part[0]) + product(a.part[0], lower.part[0])) * factor,
              (product(a.part[1], upper.part[1]) + product(a.part[1], lower.part[1])) * factor}}));
    }

private:
    static Vec<double> product(Vec<double> x, Vec<double> y) {
        return subtractAdd(realParts(x) * y, imaginaryParts(x) * swapParts(y));
    }
};

// Calls run with the operation on vectors for this scale factor, which is not one of
// Scaling::Vanish.
template <class Run>
inline void withScale32s(std::int32_t scaleFactor, Run run) {
    if (scaleFactor <= kLastInDouble) return run(Product32sInDouble{factorInDouble(scaleFactor)});
    run(Product32s<RoundRight<std::uint64_t>>{RoundRight<std::uint64_t>(scaleFactor)});
}

// ---- one element at a time ----------------------------------------------------------------------
__extension__ typedef __int128 Int128;

// Calls run with the scaling as an operation on one exact integer. scaleFactor is below the width
// of Wide.
template <class T, class Wide, class Run>
inline void withScalarScale(std::int64_t scaleFactor, Run run) {
    if (scaleFactor == 0)
        run([](Wide e) { return clampTo<T>(e); });
    else if (scaleFactor < 0)
        run(ScalarLeft<T, Wide>(-scaleFactor));
    else if (scaleFactor <= ScalarRight<T, Wide>::lastShift)
        run(ScalarRight<T, Wide>(static_cast<int>(scaleFactor)));
    else
        run(ScalarRightFar<T, Wide>(static_cast<int>(scaleFactor)));
}

struct ComplexExact32s {
    template <class>
    static constexpr int vanishesFrom = 64;
};
// Parts in 64 bits. The only part that does not fit is 2^63, when all four parts are -2^31; 2^63 -
// 1 gives the same result at every scale factor.
template <class Scale>
struct ComplexProduct32sc {
    Scale scale;
    Vlq32sc operator()(Vlq32sc x, Vlq32sc y) const {
        const std::int64_t re = std::int64_t{x.re} * y.re - std::int64_t{x.im} * y.im;
        const auto wrapped =
            static_cast<std::int64_t>(static_cast<std::uint64_t>(std::int64_t{x.re} * y.im) +
                                      static_cast<std::uint64_t>(std::int64_t{x.im} * y.re));
        const std::int64_t im = wrapped == std::numeric_limits<std::int64_t>::min()
                                    ? std::numeric_limits<std::int64_t>::max()
                                    : wrapped;
        return {scale(re), scale(im)};
    }
};

#if VLQ_SIMD_BYTES >= 32
// The same in vectors of one value a lane, for scale factors from 2 on.
struct ComplexProduct32scRight {
    ScaleRight<std::int64_t> scale;
    using V = Vec<std::int64_t>;

    explicit ComplexProduct32scRight(std::int32_t scaleFactor) : scale(scaleFactor) {}
    V operator()(V x, V y) const {
        const V xIm = shiftRight(x, 32), yIm = shiftRight(y, 32);
        const V re = productLower(x, y) - productLower(xIm, yIm),
                wrapped = productLower(x, yIm) + productLower(xIm, y);
        const V im = wrapped + (wrapped == V::broadcast(std::numeric_limits<std::int64_t>::min()));
        return shiftLeft(part(im), 32) | (part(re) & V::broadcast(0xFFFFFFFF));
    }

private:
    V part(V e) const {
        const V v = scale({shiftRight(e, 1), e});
        return minimum(maximum(v, V::broadcast(std::numeric_limits<std::int32_t>::min())),
                       V::broadcast(std::numeric_limits<std::int32_t>::max()));
    }
};
#endif

struct SumOfProduct32s {
    template <class>
    static constexpr int vanishesFrom = 64;
};

struct Exact64s {
    template <class>
    static constexpr int vanishesFrom = 127;  // 2^126 is half of 2^127, a tie at 0
};

// ---- a float constant ---------------------------------------------------------------------------
// A finite double is an integer of 53 bits times a power of two.
struct IntegerAndPower {
    std::int64_t integer;
    int power;
};
inline IntegerAndPower takeApart(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const int exponent = static_cast<int>(bits >> 52 & 0x7FF);
    const auto fraction = static_cast<std::int64_t>(bits & ((std::uint64_t{1} << 52) - 1));
    const std::int64_t size = exponent == 0 ? fraction : fraction + (std::int64_t{1} << 52);
    return {bits >> 63 ? -size : size, (exponent == 0 ? 1 : exponent) - 1075};
}

// An infinite constant or NaN: only the signs matter.
struct NonFiniteProduct64s {
    double constant;
    Vlq64s operator()(Vlq64s element) const {
        if (std::isnan(constant) || element == 0 || (constant < 0) != (element < 0))
            return std::numeric_limits<Vlq64s>::min();
        return std::numeric_limits<Vlq64s>::max();
    }
};

// Values above the range become the largest one, and so does NaN, because minimum returns its
// second operand for it. Below the range the conversion gives the lowest integer, which the
// narrowing saturates.
inline constexpr int kTop16s = std::numeric_limits<std::int16_t>::max();

struct ProductInDouble16s {
    Vec<double> constant;  // times 2^-scaleFactor
    Block<std::int16_t, 1> operator()(const Block<float, 2>& v) const {
        return {{narrowSat<std::int16_t>({{convert(v.part[0]), convert(v.part[1])}})}};
    }

private:
    Vec<std::int32_t> convert(Vec<float> v) const {
        const auto wide = toDouble(v);
        const auto top = Vec<double>::broadcast(kTop16s);
        return toNearest(Block<double, 2>{
            {minimum(wide.part[0] * constant, top), minimum(wide.part[1] * constant, top)}});
    }
};

struct ProductInFloat16s {
    Vec<float> constant;
    Block<std::int16_t, 1> operator()(const Block<float, 2>& v) const {
        const auto top = Vec<float>::broadcast(kTop16s);
        return {{narrowSat<std::int16_t>({{toNearest(minimum(v.part[0] * constant, top)),
                                           toNearest(minimum(v.part[1] * constant, top))}})}};
    }
};

}  // namespace vlq::multiply
