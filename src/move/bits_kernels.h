// Streams of bits, numbered from the most significant bit of each byte.
#pragma once

#include "frame/loop/bulk.h"
#include "frame/loop/map.h"
#include "frame/simd/ops.h"

namespace vlq::bits {

// `count` (1 to 8) bits from bit `offset` (0 to 7) of *src on, at the top of the result. The second
// byte is read only when it holds one of them.
inline unsigned readBits(const Byte* src, int offset, int count) {
    unsigned window = static_cast<unsigned>(src[0]) << 8;
    if (offset + count > 8) window |= src[1];
    return (window << offset >> 8) & 0xFFu & (0xFF00u >> count);
}

// Puts the top `count` bits of `bits` at bit `offset` of *dst; offset + count is at most 8.
inline void writeBits(Byte* dst, int offset, int count, unsigned bits) {
    const unsigned mask = ((0xFF00u >> count) & 0xFFu) >> offset;
    *dst = static_cast<Byte>((*dst & ~mask) | (bits >> offset & mask));
}

// Whole bytes from a source that begins `shift` (1 to 7) bits into its first byte.
struct Joined {
    int shift;
    template <class V>
    V operator()(V byte, V next) const {
        return shiftLeft(byte, shift) | shiftRight(next, 8 - shift);
    }
};

inline void copyBytes(Byte* dst, const Byte* src, std::size_t n) {
    if (n <= kShort)
        copyShort(dst, src, n);
    else
        copyLong(dst, src, n);
}

// Copies `len` bits. Offsets are 0 to 7; bits of dst outside the range keep their values.
inline void copyBits(const Byte* src, int srcOffset, Byte* dst, int dstOffset, std::ptrdiff_t len) {
    if (dstOffset != 0) {
        // Up to the first whole byte of dst.
        const int count = len < 8 - dstOffset ? static_cast<int>(len) : 8 - dstOffset;
        writeBits(dst, dstOffset, count, readBits(src, srcOffset, count));
        ++dst;
        srcOffset += count;
        src += srcOffset / 8;
        srcOffset %= 8;
        len -= count;
    }
    const std::ptrdiff_t whole = len / 8;
    if (srcOffset == 0)
        copyBytes(dst, src, static_cast<std::size_t>(whole));
    else if (whole > 0)
        map(dst, whole, Joined{srcOffset}, src, src + 1);
    const int rest = static_cast<int>(len % 8);
    if (rest > 0) writeBits(dst + whole, 0, rest, readBits(src + whole, srcOffset, rest));
}

// The sum of the widths, each clamped to 0 to 32, and whether that changed any.
struct Widths {
    std::int64_t total;
    bool clamped;
};
inline int clampedWidth(int width) { return width < 0 ? 0 : width > 32 ? 32 : width; }
inline Widths sumWidths(const std::int32_t* widths, std::ptrdiff_t len) {
    std::int64_t total = 0;
    std::uint32_t changed = 0;
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        const int width = clampedWidth(loadScalar(widths + i));
        total += width;
        changed |= static_cast<std::uint32_t>(width ^ loadScalar(widths + i));
    }
    return {total, changed != 0};
}

// Appends the low widths[i] bits of each value from bit `offset` (0 to 7) of *dst on. `total` is
// the sum of the widths, above 0. Bits before the offset stay, the rest of the last byte is
// cleared.
inline void packBits(const std::uint32_t* src, const std::int32_t* widths, std::ptrdiff_t len,
                     Byte* dst, int offset, std::int64_t total) {
    // Bits wait at the top of the accumulator, fewer than 32 between two values.
    std::uint64_t waiting = 0;
    int count = offset;
    if (offset != 0) waiting = static_cast<std::uint64_t>(*dst & (0xFF00u >> offset) & 0xFFu) << 56;

    // Each iteration stores the first 32 bits of the accumulator, complete or not; the incomplete
    // ones are stored again later. At the very end, with less than 32 bits of room, that would
    // write beyond the last byte.
    Byte* const wordsEnd = dst + (offset + total) / 32 * 4;
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        const int width = clampedWidth(loadScalar(widths + i));
        const std::uint64_t value = loadScalar(src + i) & ((std::uint64_t{1} << width) - 1);
        waiting |= value << ((64 - count - width) & 63);
        count += width;
        if (dst != wordsEnd) {
            const std::uint32_t word = __builtin_bswap32(static_cast<std::uint32_t>(waiting >> 32));
            std::memcpy(dst, &word, 4);
        }
        const int finished = count & 32;
        waiting <<= finished;
        dst += finished / 8;
        count &= 31;
    }
    for (; count > 0; count -= 8, waiting <<= 8) *dst++ = static_cast<Byte>(waiting >> 56);
}

}  // namespace vlq::bits
