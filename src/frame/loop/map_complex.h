// Element-wise loops over complex vectors: an operation sees the parts of whole elements, real and
// imaginary ones in neighbouring lanes.
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

namespace detail {
// An element of two floats moves as one of 64 bits, so that no loop splits it; one of two doubles,
// as a group of two.
template <class C>
using ElementOf = std::conditional_t<sizeof(C) == 8, std::int64_t, PartOf<C>>;
}  // namespace detail

// dst[i] = op(src[i]...).
template <ComplexSample C, class Op, class... Sources>
inline void mapComplex(C* dst, std::ptrdiff_t len, Op op, const Sources*... src) {
    using Part = PartOf<C>;
    using Element = detail::ElementOf<C>;
    constexpr int group = sizeof(C) / sizeof(Element);
    mapBlocks<group>(
        reinterpret_cast<Element*>(dst), len * group,
        [op](const auto&... block) {
            return Block<Element, 1>{{bitCast<Element>(op(bitCast<Part>(block.part[0])...))}};
        },
        reinterpret_cast<const Element*>(src)...);
}

}  // namespace vlq
