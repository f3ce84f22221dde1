// Byte order of elements.
#pragma once

#include "frame/loop/map.h"
#include "frame/simd/permute.h"

namespace vlq::swap_bytes {

struct Swap {
    template <class V>
    V operator()(V v) const {
        return byteSwapped(v);
    }
};

// Elements of three bytes, five in a step of 15 bytes. A step also reads and writes back a
// sixteenth byte. The next vector is loaded before the store, so that no load waits for it. dst may
// be src.
inline void swapTriples(const unsigned char* src, unsigned char* dst, std::ptrdiff_t len) {
    constexpr int step = 15;
    std::ptrdiff_t bytes = 3 * len;
    if (bytes >= 16) {
        auto next = load<unsigned char, 16>(src);
        while (bytes >= 16 + step) {
            const auto current = next;
            next = load<unsigned char, 16>(src + step);
            store(dst, tripleBytesSwapped(current));
            src += step;
            dst += step;
            bytes -= step;
        }
        storePartial(dst, tripleBytesSwapped(next), step);
        src += step;
        dst += step;
        bytes -= step;
    }
    for (; bytes > 0; bytes -= 3, src += 3, dst += 3) {
        const unsigned char first = src[0], middle = src[1], third = src[2];
        dst[0] = third;
        dst[1] = middle;
        dst[2] = first;
    }
}

}  // namespace vlq::swap_bytes
