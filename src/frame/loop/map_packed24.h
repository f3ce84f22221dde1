// Element-wise loops from and to packed 24-bit integers: whole blocks, then the rest by way of a
// local buffer. Nothing outside the vectors is read or written.
#pragma once

#include "frame/loop/map.h"
#include "frame/simd/packed24.h"

namespace vlq {

// dst[i] = op(src[i]): op takes 32-bit lanes and returns a Block of D, which has 32 bits too.
template <bool kSigned, class D, class Op>
inline void mapFromPacked24(D* dst, const std::uint8_t* src, std::ptrdiff_t len, Op op) {
    static_assert(sizeof(D) == 4);
    constexpr int count = kPacked24Count;
    while (len >= count) {
        detail::storeBlock(dst, op(unpack24<kSigned>(src)));
        dst += count;
        src += 3 * count;
        len -= count;
    }
    if (len > 0) {
        std::uint8_t bytes[3 * count] = {};
        std::memcpy(bytes, src, static_cast<std::size_t>(3 * len));
        detail::storeBlockPartial<D, 2>(dst, op(unpack24<kSigned>(bytes)), static_cast<int>(len));
    }
}

// dst[i] = op(src[i]): op takes a Block of S and returns 32-bit lanes, of which the low three bytes
// are stored.
template <class S, class Op>
inline void mapToPacked24(std::uint8_t* dst, const S* src, std::ptrdiff_t len, Op op) {
    static_assert(sizeof(S) == 4);
    constexpr int count = kPacked24Count;
    while (len >= count) {
        pack24(dst, op(detail::loadBlock<S, 2>(src)));
        dst += 3 * count;
        src += count;
        len -= count;
    }
    if (len > 0) {
        std::uint8_t bytes[3 * count];
        pack24(bytes, op(detail::loadBlockPartial<S, 2>(src, static_cast<int>(len))));
        std::memcpy(dst, bytes, static_cast<std::size_t>(3 * len));
    }
}

}  // namespace vlq
