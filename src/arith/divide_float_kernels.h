// Quotients of floats.
#pragma once

#include <cmath>

#include "frame/loop/any.h"
#include "frame/loop/map_complex.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "frame/simd/saturate.h"
#include "frame/simd/split_convert.h"
#include "vlqs/types.h"

namespace vlq::divide {

struct RealQuotient {
    template <class V>
    V operator()(V divisor, V numerator) const {
        return numerator / divisor;
    }
};

// x * conj(y), interleaved.
inline Vec<double> timesConjugate(Vec<double> x, Vec<double> y) {
    return addSubtract(x * realParts(y), swapParts(x) * imaginaryParts(y));
}
// |y|^2 in both lanes of a value.
inline Vec<double> norm(Vec<double> y) {
    const auto squares = y * y;
    return squares + swapParts(squares);
}

// The quotient of complex numbers x / y = x conj(y) / |y|^2. Where the divisor y is 0, both parts
// of x are divided by its real part, which gives infinities of the right sign, or NaN for 0 / 0,
// and `zeroFound` is set.
//
// Unused lanes hold NaN, so that they do not look like zero divisors.

// In double: no square of a float overflows or underflows there.
struct ComplexQuotient32fc {
    static constexpr bool kMarkUnused = true;
    bool* zeroFound;

    Vec<float> operator()(Vec<float> divisors, Vec<float> numerators) const {
        using V = Vec<double>;
        const Split<double> y = splitToDouble(divisors), x = splitToDouble(numerators);
        const V norm = y.re * y.re + y.im * y.im;
        const V re = x.re * y.re + x.im * y.im, im = x.im * y.re - x.re * y.im;
        if (any(norm == V::zero())) [[unlikely]]
            return joinToFloat(withZeros(y, x, norm, re, im));
        // One division serves both parts. What the second rounding costs in double is far below the
        // rounding to float.
        const V reciprocal = V::broadcast(1) / norm;
        return joinToFloat({re * reciprocal, im * reciprocal});
    }

private:
    [[gnu::noinline]] Split<double> withZeros(const Split<double>& y, const Split<double>& x,
                                              Vec<double> norm, Vec<double> re,
                                              Vec<double> im) const {
        *zeroFound = true;
        const auto is0 = norm == Vec<double>::zero();
        const auto reciprocal = Vec<double>::broadcast(1) / select(is0, y.re, norm);
        return {select(is0, x.re, re) * reciprocal, select(is0, x.im, im) * reciprocal};
    }
};

// Each value is scaled to a magnitude of 2 to 4 by a power of two. The powers are undone at the
// end in two steps, so that no intermediate result is out of range where the result is not.
class ScaledQuotient64fc {
public:
    using V = Vec<double>;

    V operator()(V divisors, V numerators) const {
        const Bits e = exponents(divisors), f = exponents(numerators);
        const V y = divisors * powerOfField(Bits::broadcast(kInfinity) - e),
                x = numerators * powerOfField(Bits::broadcast(kInfinity) - f);
        const V yNorm = norm(y);
        const auto is0 = yNorm == V::zero();
        const V quotient =
            select(is0, x, timesConjugate(x, y)) / select(is0, realParts(divisors), yNorm);
        // For 0 / 0 and the like the exponents mean nothing; no power of two changes the result.
        using Words = Vec<std::int32_t>;
        const Words limit = bitCast<std::int32_t>(Bits::broadcast(1100));
        Words distance = bitCast<std::int32_t>(f) - bitCast<std::int32_t>(e);
        distance = select(distance > limit, limit, distance);
        distance = select(distance < -limit, -limit, distance);
        const Words half = shiftRight(distance, 1),
                    bias = bitCast<std::int32_t>(Bits::broadcast(1023));
        return quotient * powerOfField(bitCast<std::uint64_t>(half + bias)) *
               powerOfField(bitCast<std::uint64_t>(distance - half + bias));
    }

private:
    using Bits = Vec<std::uint64_t>;
    static constexpr std::uint64_t kInfinity = 0x7FF;
    // Exponent field of the larger part, in both lanes; at least 1.
    static Bits exponents(V v) {
        const V smallest = V::broadcast(std::numeric_limits<double>::min());
        const V size = absolute(v);
        return shiftRight(bitCast<std::uint64_t>(maximum(maximum(size, swapParts(size)), smallest)),
                          52);
    }
    static V powerOfField(Bits field) { return bitCast<double>(shiftLeft(field, 52)); }
};

// Directly where neither products nor quotients can leave the range of normal numbers, else scaled.
// Scaling by powers of two is exact, so both ways give the same result.
struct ComplexQuotient64fc {
    static constexpr bool kMarkUnused = true;
    using V = Vec<double>;
    bool* zeroFound;

    V operator()(V divisors, V numerators) const {
        const V y = absolute(divisors), x = absolute(numerators);
        // With all parts within 2^-240 to 2^240 even a difference of products that almost cancel is
        // above 2^-540, and its quotient by the norm above 2^-1022.
        const auto extreme =
            (maximum(x, y) > V::broadcast(0x1p240)) | (minimum(x, y) < V::broadcast(0x1p-240));
        if (any(extreme)) [[unlikely]]
            return scaled(divisors, numerators);
        return timesConjugate(numerators, divisors) / norm(divisors);
    }

private:
    [[gnu::noinline]] V scaled(V divisors, V numerators) const {
        const auto isZero = bitCast<double>(divisors == V::zero());
        if (any(isZero & swapParts(isZero))) *zeroFound = true;
        return ScaledQuotient64fc{}(divisors, numerators);
    }
};

// ---- complex reciprocals ------------------------------------------------------------------------
// A product with the reciprocal of a constant, in double and rounded once.
struct TimesReciprocal32fc {
    Vec<double> reciprocal;
    Vec<float> operator()(Vec<float> numerators) const {
        const auto x = toDouble(numerators);
        return toFloat(Block<double, 2>{{product(x.part[0]), product(x.part[1])}});
    }

private:
    Vec<double> product(Vec<double> x) const {
        return subtractAdd(realParts(reciprocal) * x, imaginaryParts(reciprocal) * swapParts(x));
    }
};

// A quarter of the reciprocal keeps the sums of the products in range up to the last step.
struct TimesReciprocal64fc {
    Vec<double> quarter;
    Vec<double> operator()(Vec<double> x) const {
        return subtractAdd(realParts(quarter) * x, imaginaryParts(quarter) * swapParts(x)) *
               Vec<double>::broadcast(4);
    }
};

// ---- zero divisors of real quotients ------------------------------------------------------------
// dst[i] = op(divisor[i], ...). Returns whether any divisor is 0.
template <class T, class Op, class... S>
inline bool mapQuotients(T* dst, std::ptrdiff_t len, Op op, const S*... src) {
    auto found = Vec<BitsOf<T>>::zero();
    const auto isZero = [](Vec<T> v) { return v == Vec<T>::zero(); };
    const auto blocks = [op](const auto&... v) { return Block<T, 1>{{op(v.part[0]...)}}; };
    mapBlocks(dst, len,
              Watching<decltype(blocks), decltype(isZero), decltype(found)>{blocks, isZero, &found},
              src...);
    return any(found);
}

}  // namespace vlq::divide
