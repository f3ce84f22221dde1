// Products of floats. Every product and every sum is rounded by itself, so a result is the same
// in all builds.
#pragma once

#include "frame/loop/map.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "frame/simd/multiply.h"
#include "vlqs/types.h"

namespace vlq::multiply {

struct Product {
    template <class V>
    V operator()(V a, V b) const {
        return a * b;
    }
};

// (a + bi)(c + di) = (ac - bd) + (ad + bc)i
struct ComplexProduct {
    template <class T>
    Vec<T> operator()(Vec<T> x, Vec<T> y) const {
        return subtractAdd(realParts(x) * y, imaginaryParts(x) * swapParts(y));
    }
};

// acc + a * b
template <class Multiply>
struct Accumulate {
    template <class V>
    V operator()(V acc, V a, V b) const {
        return acc + Multiply{}(a, b);
    }
};

// The exact product of integers, rounded once.
struct ProductAsFloat {
    Block<float, 2> operator()(const Block<std::int16_t, 1>& a,
                               const Block<std::int16_t, 1>& b) const {
        const auto e = inMemoryOrder(productLanes(a.part[0], b.part[0]));
        return {{toFloat(e.part[0]), toFloat(e.part[1])}};
    }
};

// A complex value of floats moves as one 64-bit element, so that a loop never splits it; of
// doubles, as a group of two.
template <class Complex>
struct Parts;
template <>
struct Parts<Vlq32fc> {
    using Part = float;
    using Element = std::int64_t;
    static constexpr int group = 1;
};
template <>
struct Parts<Vlq64fc> {
    using Part = double;
    using Element = double;
    static constexpr int group = 2;
};

// dst[i] = op(src[i]...) over vectors of interleaved parts.
template <class C, class Op, class... Sources>
inline void mapComplex(C* dst, std::ptrdiff_t len, Op op, const Sources*... src) {
    using Part = typename Parts<C>::Part;
    using Element = typename Parts<C>::Element;
    constexpr int group = Parts<C>::group;
    mapBlocks<group>(
        reinterpret_cast<Element*>(dst), len * group,
        [op](const auto&... block) {
            return Block<Element, 1>{{bitCast<Element>(op(bitCast<Part>(block.part[0])...))}};
        },
        reinterpret_cast<const Element*>(src)...);
}

// dst[i] = real[i] * complex[i]
inline void mapRealByComplex(Vlq32fc* dst, std::ptrdiff_t len, const Vlq32f* real,
                             const Vlq32fc* complex) {
    using Element = std::int64_t;
    mapBlocks(
        reinterpret_cast<Element*>(dst), len,
        [](const Block<float, 1>& a, const Block<Element, 2>& b) {
            const auto factor = twice(a.part[0]);
            return Block<Element, 2>{
                {bitCast<Element>(factor.part[0] * bitCast<float>(b.part[0])),
                 bitCast<Element>(factor.part[1] * bitCast<float>(b.part[1]))}};
        },
        real, reinterpret_cast<const Element*>(complex));
}

}  // namespace vlq::multiply
