// Element-wise loops over interleaved complex vectors. Operations take and give vectors of the
// parts, and no value is ever split over two of them.
#pragma once

#include "frame/loop/map.h"
#include "vlqs/types.h"

namespace vlq {

template <class C>
concept ComplexSample = requires(C value) {
    value.re;
    value.im;
};
template <ComplexSample C>
using PartOf = decltype(C::re);

// How the loop moves a complex value: two floats or 32-bit integers as one 64-bit element, two
// doubles as a group of two elements.
template <class Part>
struct ComplexElement {
    static_assert(sizeof(Part) == 4);
    using Type = std::int64_t;
    static constexpr int group = 1;
};
template <>
struct ComplexElement<Vlq64f> {
    using Type = double;
    static constexpr int group = 2;
};

// An operation on vectors of parts as one on the loop's blocks of elements.
template <class Part, class Op>
struct OnParts {
    using Element = typename ComplexElement<Part>::Type;
    static constexpr bool kMarkUnused = marksUnused<Op>;
    Op op;

    template <class... B>
    Block<Element, 1> operator()(const B&... blocks) const {
        return {{bitCast<Element>(op(bitCast<Part>(blocks.part[0])...))}};
    }
};

// dst[i] = op(src[i]...)
template <class C, class Op, class... S>
inline void mapComplex(C* dst, std::ptrdiff_t len, const Op& op, const S*... src) {
    using Part = decltype(C::re);
    using Element = typename ComplexElement<Part>::Type;
    constexpr int group = ComplexElement<Part>::group;
    mapBlocks<group>(reinterpret_cast<Element*>(dst), len * group, OnParts<Part, Op>{op},
                     reinterpret_cast<const Element*>(src)...);
}

// dst[i] = op(real[i], complex[i]); op sees each real value twice, once for either part.
template <class C, class Op>
inline void mapRealByComplex(C* dst, std::ptrdiff_t len, const Op& op, const decltype(C::re)* real,
                             const C* complex) {
    using Part = decltype(C::re);
    using Element = typename ComplexElement<Part>::Type;
    mapBlocks(
        reinterpret_cast<Element*>(dst), len,
        [op](const Block<Part, 1>& a, const Block<Element, 2>& b) {
            const auto pairs = twice(a.part[0]);
            return Block<Element, 2>{
                {bitCast<Element>(op(pairs.part[0], bitCast<Part>(b.part[0]))),
                 bitCast<Element>(op(pairs.part[1], bitCast<Part>(b.part[1])))}};
        },
        real, reinterpret_cast<const Element*>(complex));
}

}  // namespace vlq
