// Quotients of floats.
#pragma once

#include <bit>
#include <cmath>

#include "frame/loop/any.h"
#include "frame/loop/map.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "frame/simd/saturate.h"
#include "vlqs/types.h"

namespace vlq::divide {

struct RealQuotient {
    template <class V>
    V operator()(V divisor, V numerator) const {
        return numerator / divisor;
    }
};

// x conj(y) and |y|^2 of interleaved values, the latter in both lanes of each.
template <class T>
inline Vec<T> timesConjugate(Vec<T> x, Vec<T> y) {
    return subtractAdd(x * realParts(y), -(swapParts(x) * imaginaryParts(y)));
}
template <class T>
inline Vec<T> norm(Vec<T> y) {
    const auto squares = y * y;
    return squares + swapParts(squares);
}
// numerator / norm; where the divisor y is 0, the parts of x over its real part.
template <class T>
inline Vec<T> overNorm(Vec<T> numerator, Vec<T> divisorNorm, Vec<T> x, Vec<T> y) {
    const auto is0 = divisorNorm == Vec<T>::zero();
    return select(is0, x, numerator) / select(is0, realParts(y), divisorNorm);
}

// In double nothing overflows or vanishes, and the result is rounded once.
inline Block<double, 2> quotients(Block<double, 2> x, Block<double, 2> y) {
    Block<double, 2> result;
    for (int i = 0; i < 2; ++i) {
        const auto a = x.part[i], b = y.part[i];
        result.part[i] = overNorm(timesConjugate(a, b), norm(b), a, b);
    }
    return result;
}
struct ComplexQuotient32fc {
    Vec<float> operator()(Vec<float> divisors, Vec<float> numerators) const {
        return toFloat(quotients(toDouble(numerators), toDouble(divisors)));
    }
};

// Each value brought to a magnitude of 2 to 4 by a power of two, which comes back at the end in two
// steps, so that the way there stays in range where the result does.
struct ComplexQuotient64fc {
    using V = Vec<double>;
    using Bits = Vec<std::uint64_t>;

    V operator()(V divisors, V numerators) const {
        const Bits e = exponents(divisors), f = exponents(numerators);
        const V y = divisors * powerOfTwo(Bits::broadcast(kInfinity) - e),
                x = numerators * powerOfTwo(Bits::broadcast(kInfinity) - f);
        const V scaled = overNorm(timesConjugate(x, y), norm(y), x, divisors);
        // 0 over 0 and the like have no magnitude, and a power of two changes nothing of theirs.
        using Words = Vec<std::int32_t>;
        const Words limit = bitCast<std::int32_t>(Bits::broadcast(1100));
        Words distance = bitCast<std::int32_t>(f) - bitCast<std::int32_t>(e);
        distance = select(distance > limit, limit, distance);
        distance = select(distance < -limit, -limit, distance);
        const Words half = shiftRight(distance, 1),
                    bias = bitCast<std::int32_t>(Bits::broadcast(1023));
        return scaled * powerOfTwo(bitCast<std::uint64_t>(half + bias)) *
               powerOfTwo(bitCast<std::uint64_t>(distance - half + bias));
    }

private:
    static constexpr std::uint64_t kInfinity = 0x7FF;
    // Exponent field of the larger part, in both lanes; at least 1.
    static Bits exponents(V v) {
        const V smallest = V::broadcast(std::numeric_limits<double>::min());
        const V size = absolute(v);
        return shiftRight(bitCast<std::uint64_t>(maximum(maximum(size, swapParts(size)), smallest)),
                          52);
    }
    static V powerOfTwo(Bits field) { return bitCast<double>(shiftLeft(field, 52)); }
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

// ---- loops over complex values ------------------------------------------------------------------
// 32fc moves as one 64-bit element, 64fc as a group of two doubles: a loop never splits a value.
template <class Op, class... S>
inline void mapValues(Vlq32fc* dst, std::ptrdiff_t len, Op op, const S*... src) {
    map(
        reinterpret_cast<std::int64_t*>(dst), len,
        [op](auto... v) { return bitCast<std::int64_t>(op(bitCast<float>(v)...)); },
        reinterpret_cast<const std::int64_t*>(src)...);
}
template <class Op, class... S>
inline void mapValues(Vlq64fc* dst, std::ptrdiff_t len, Op op, const S*... src) {
    mapBlocks<2>(
        reinterpret_cast<double*>(dst), 2 * len,
        [op](const auto&... v) { return Block<double, 1>{{op(v.part[0]...)}}; },
        reinterpret_cast<const double*>(src)...);
}

// ---- zero divisors ------------------------------------------------------------------------------
// The lanes of a vector, as the loop sees it, that hold a zero divisor; both lanes of a complex
// one.
struct IsZero {
    template <class T>
    auto operator()(Vec<T> v) const {
        return v == Vec<T>::zero();
    }
};
struct IsZero32fc {
    Vec<std::int64_t> operator()(Vec<std::int64_t> v) const {
        const auto is0 = bitCast<float>(bitCast<float>(v) == Vec<float>::zero());
        return bitCast<std::int64_t>(is0 & swapParts(is0));
    }
};
struct IsZero64fc {
    Vec<std::int64_t> operator()(Vec<double> v) const {
        const auto is0 = bitCast<double>(v == Vec<double>::zero());
        return bitCast<std::int64_t>(is0 & swapParts(is0));
    }
};

template <int group, class Element, class Condition, class Op, class... S>
inline bool mapWatched(Element* dst, std::ptrdiff_t len, Condition condition, Op op,
                       const S*... src) {
    auto found = Vec<BitsOf<Element>>::zero();
    mapBlocks<group>(dst, len, Watching<Op, Condition, decltype(found)>{op, condition, &found},
                     src...);
    return any(found);
}

// dst[i] = op(divisor[i], ...): is any divisor 0?
template <class Op, class... S>
inline bool mapQuotients(Vlq32fc* dst, std::ptrdiff_t len, Op op, const S*... src) {
    const auto elements = [op](const auto&... v) {
        return Block<std::int64_t, 1>{{bitCast<std::int64_t>(op(bitCast<float>(v.part[0])...))}};
    };
    return mapWatched<1>(reinterpret_cast<std::int64_t*>(dst), len, IsZero32fc{}, elements,
                         reinterpret_cast<const std::int64_t*>(src)...);
}
template <class Op, class... S>
inline bool mapQuotients(Vlq64fc* dst, std::ptrdiff_t len, Op op, const S*... src) {
    const auto parts = [op](const auto&... v) { return Block<double, 1>{{op(v.part[0]...)}}; };
    return mapWatched<2>(reinterpret_cast<double*>(dst), 2 * len, IsZero64fc{}, parts,
                         reinterpret_cast<const double*>(src)...);
}
template <class T, class Op, class... S>
requires std::is_floating_point_v<T>
inline bool mapQuotients(T* dst, std::ptrdiff_t len, Op op, const S*... src) {
    return mapWatched<1>(
        dst, len, IsZero{}, [op](const auto&... v) { return Block<T, 1>{{op(v.part[0]...)}}; },
        src...);
}

}  // namespace vlq::divide
