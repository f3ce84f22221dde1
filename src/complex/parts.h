// Complex vectors and pairs of real vectors as what the loops of this chapter move: elements, of
// which a block holds the real and the imaginary parts.
#pragma once

#include <cstdint>

#include "frame/simd/bits128.h"
#include "frame/simd/deinterleave.h"
#include "vlqs/types.h"

namespace vlq {

// ---- vectors ------------------------------------------------------------------------------------
template <class Part>
struct ElementOfParts {
    using Type = std::int64_t;
};
template <>
struct ElementOfParts<Vlq16s> {
    using Type = std::int32_t;
};
template <>
struct ElementOfParts<Vlq64f> {
    using Type = Bits128;
};
template <class Part>
using PairOf = typename ElementOfParts<Part>::Type;

template <class C>
inline auto pairs(const C* v) {
    return reinterpret_cast<const PairOf<decltype(C::re)>*>(v);
}
template <class C>
inline auto pairs(C* v) {
    return reinterpret_cast<PairOf<decltype(C::re)>*>(v);
}

// ---- blocks -------------------------------------------------------------------------------------
// An operation on the parts of complex elements, vectors of T, as one on blocks: from interleaved
// elements or from separate parts.
template <class T, class Op>
struct OnBothParts {
    Op op;
    auto operator()(const Block<PairOf<T>, 2>& v) const {
        return op(deinterleave(bitCast<T>(v.part[0]), bitCast<T>(v.part[1])));
    }
    auto operator()(const Block<T, 1>& re, const Block<T, 1>& im) const {
        return op(Split<T>{re.part[0], im.part[0]});
    }
};
template <class T, class Op>
inline OnBothParts<T, Op> onParts(Op op) {
    return {op};
}

// The same for parts of 16 bits: op takes a vector of elements, 32 bits each, and gives a vector of
// R, which is narrowed and saturated if the result is to have 16 bits.
template <class R, class Op>
struct OnPairs16 {
    Op op;
    auto operator()(const Block<std::int32_t, 1>& v) const { return Block<R, 1>{{op(v.part[0])}}; }
    auto operator()(const Block<std::int32_t, 2>& v) const { return both(v.part[0], v.part[1]); }
    auto operator()(const Block<Vlq16s, 1>& re, const Block<Vlq16s, 1>& im) const {
        const auto v = interleave(re.part[0], im.part[0]);
        return both(v.part[0], v.part[1]);
    }

private:
    auto both(Vec<std::int32_t> a, Vec<std::int32_t> b) const {
        if constexpr (sizeof(R) == 2)
            return Block<R, 1>{{narrowSat<R>(Block<std::int32_t, 2>{{op(a), op(b)}})}};
        else
            return Block<R, 2>{{op(a), op(b)}};
    }
};
template <class R, class Op>
inline OnPairs16<R, Op> onPairs16(Op op) {
    return {op};
}

}  // namespace vlq
