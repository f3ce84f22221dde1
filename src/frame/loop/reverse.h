// Reversal of a vector, in place or into another: from both ends inwards, a block is read at either
// end and each is written, reversed, to the place of the other.
#pragma once

#include "frame/simd/permute.h"

namespace vlq {

namespace detail {

// The bytes [low, high), whose mirror image is the same range, in steps of a vector of B bytes from
// both ends; leaves a middle of less than B bytes.
template <int Size, int B>
inline void reverseEnds(unsigned char* dst, const unsigned char* src, std::ptrdiff_t& low,
                        std::ptrdiff_t& high) {
    using Bytes = Vec<unsigned char, B>;
    const auto swapEnds = [&](std::ptrdiff_t step) {
        const Bytes first = load<unsigned char, B>(src + low);
        const Bytes last = load<unsigned char, B>(src + high - B);
        store(dst + high - B, reversed<Size>(first));
        store(dst + low, reversed<Size>(last));
        low += step;
        high -= step;
    };
    while (high - low >= 2 * B) swapEnds(B);
    if (high - low >= B) {
        // The two may overlap: both are read before either is written.
        swapEnds(B);
        high = low;
    }
}

}  // namespace detail

// dst[i] = src[len - 1 - i] for elements of Size bytes. dst is src, or does not overlap it.
template <std::size_t Size, class T>
inline void reverseElements(T* dstElements, const T* srcElements, std::ptrdiff_t len) {
    auto* dst = reinterpret_cast<unsigned char*>(dstElements);
    const auto* src = reinterpret_cast<const unsigned char*>(srcElements);
    constexpr auto size = static_cast<std::ptrdiff_t>(Size);
    std::ptrdiff_t low = 0, high = len * size;
    detail::reverseEnds<Size, kVecBytes>(dst, src, low, high);
#if VLQ_SIMD_BYTES >= 64
    detail::reverseEnds<Size, 32>(dst, src, low, high);
#endif
#if VLQ_SIMD_BYTES >= 32
    detail::reverseEnds<Size, 16>(dst, src, low, high);
#endif
    for (; low < high; low += size, high -= size) {
        unsigned char first[Size], last[Size];
        std::memcpy(first, src + low, Size);
        std::memcpy(last, src + high - size, Size);
        std::memcpy(dst + low, last, Size);
        std::memcpy(dst + high - size, first, Size);
    }
}

}  // namespace vlq
