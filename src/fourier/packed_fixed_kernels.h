// Scaled products of packed spectra of 16-bit integers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "frame/loop/map.h"
#include "frame/scale/scale.h"
#include "frame/simd/multiply.h"
#include "vlqs/types.h"

namespace vlq::packed {

constexpr Vlq16s clampTo16(Vlq32s v) { return static_cast<Vlq16s>(std::clamp(v, -32768, 32767)); }

// A product to 16 bits: shifted right without rounding, or brought into 16 bits and shifted left.
struct ProductScale {
    int right;
    int left;
    explicit ProductScale(Vlq32s scaleFactor)
        : right(std::clamp(scaleFactor, 0, 31)),
          left(scaleFactor < 0 ? -std::max(scaleFactor, -16) : 0) {}
    Vlq16s operator()(Vlq32s product) const {
        if (left == 0) return clampTo16(product >> right);
        return clampTo16(clampTo16(product) * (Vlq32s{1} << left));
    }
};

inline void multiplyReal(const Vlq16s* a, const Vlq16s* b, Vlq16s* dst, ProductScale scale) {
    const Vlq16s product = scale(Vlq32s{loadScalar(a)} * loadScalar(b));
    std::memcpy(dst, &product, sizeof product);
}

// `pairs` complex values, interleaved; dst may be a or b. A value is a lane of 32 bits.
inline void multiplyPairs(const Vlq16s* a, const Vlq16s* b, Vlq16s* dst, std::ptrdiff_t pairs,
                          ProductScale scale) {
    using V = Vec<std::int32_t>;
    const auto multiply = [=](auto op) {
        map(reinterpret_cast<std::int32_t*>(dst), pairs, op,
            reinterpret_cast<const std::int32_t*>(a), reinterpret_cast<const std::int32_t*>(b));
    };
    if (scale.left == 0) {
        multiply([right = scale.right](V x, V y) {
            const auto e = productParts(x, y);
            return joinParts({{shiftRight(e.part[0], right), shiftRight(e.part[1], right)}});
        });
    } else {
        multiply([left = ScaleLeft<Vlq16s>(-scale.left)](V x, V y) {
            return bitCast<std::int32_t>(left(bitCast<Vlq16s>(joinParts(productParts(x, y)))));
        });
    }
}

}  // namespace vlq::packed
