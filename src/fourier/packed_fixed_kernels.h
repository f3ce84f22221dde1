// Scaled products of packed spectra of 16-bit integers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "vlqs/types.h"

namespace vlq::packed {

inline Vlq16s sampleAt(const Vlq16s* p) {
    Vlq16s v;
    std::memcpy(&v, p, sizeof v);
    return v;
}
inline void putSample(Vlq16s* p, Vlq16s v) { std::memcpy(p, &v, sizeof v); }
constexpr Vlq16s clampTo16(Vlq32s v) { return static_cast<Vlq16s>(std::clamp(v, -32768, 32767)); }

// A product to 16 bits: shifted right without rounding, or brought into 16 bits and shifted left.
struct ProductScale {
    int right;
    int left;
    explicit ProductScale(Vlq32s scaleFactor)
        : right(std::clamp(scaleFactor, 0, 31)), left(scaleFactor < 0 ? -std::max(scaleFactor, -16) : 0) {}
    Vlq16s operator()(Vlq32s product) const {
        if (left == 0) return clampTo16(product >> right);
        return clampTo16(clampTo16(product) * (Vlq32s{1} << left));
    }
};

// Reached only by the sum of two products of -32768 with itself, one below the limit of 32 bits.
constexpr Vlq32s sumTo32(Vlq64s sum) { return static_cast<Vlq32s>(std::min<Vlq64s>(sum, 0x7FFFFFFF)); }

inline void multiplyReal(const Vlq16s* a, const Vlq16s* b, Vlq16s* dst, ProductScale scale) {
    putSample(dst, scale(Vlq32s{sampleAt(a)} * sampleAt(b)));
}

// `pairs` complex values, interleaved; dst may be a or b.
inline void multiplyPairs(const Vlq16s* a, const Vlq16s* b, Vlq16s* dst, std::ptrdiff_t pairs, ProductScale scale) {
    for (std::ptrdiff_t i = 0; i < 2 * pairs; i += 2) {
        const Vlq64s aRe = sampleAt(a + i), aIm = sampleAt(a + i + 1), bRe = sampleAt(b + i), bIm = sampleAt(b + i + 1);
        putSample(dst + i, scale(sumTo32(aRe * bRe - aIm * bIm)));
        putSample(dst + i + 1, scale(sumTo32(aRe * bIm + aIm * bRe)));
    }
}

}  // namespace vlq::packed
