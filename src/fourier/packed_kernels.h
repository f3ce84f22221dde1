// Products of packed spectra, and their expansion to all complex values. A spectrum of len real
// samples in Pack, Perm or CCS layout (kernel/layouts.h); odd lengths have no value at half the
// rate.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>
#include <type_traits>

#include "frame/loop/map.h"
#include "frame/scale/scale.h"
#include "frame/simd/multiply.h"
#include "frame/simd/ops.h"
#include "frame/simd/permute.h"
#include "frame/simd/saturate.h"
#include "frame/simd/split.h"
#include "vlqs/types.h"

namespace vlq::packed {

// ---- products in floating point -----------------------------------------------------------------
// a * b, each product and sum rounded: identical in every build.
struct Product {
    template <class V>
    void operator()(V aRe, V aIm, V bRe, V bIm, V& re, V& im) const {
        re = aRe * bRe - aIm * bIm;
        im = aRe * bIm + aIm * bRe;
    }
};
// a * conj(b)
struct ProductConjugate {
    template <class V>
    void operator()(V aRe, V aIm, V bRe, V bIm, V& re, V& im) const {
        re = aRe * bRe + aIm * bIm;
        im = bRe * aIm - aRe * bIm;
    }
};

template <class T>
inline void multiplyReal(const T* a, const T* b, T* dst) {
    storeScalar(dst, loadScalar(a) * loadScalar(b));
}

template <int B, class T, class Op>
inline Split<T, B> multiplySplit(const T* a, const T* b, Op op) {
    const auto x = loadSplit<T, B>(a), y = loadSplit<T, B>(b);
    Split<T, B> product;
    op(x.re, x.im, y.re, y.im, product.re, product.im);
    return product;
}

// As many whole vectors of B bytes as fit, from pair i on; returns the first pair left.
template <int B, class T, class Op>
inline std::ptrdiff_t multiplyVectors(const T* a, const T* b, T* dst, std::ptrdiff_t i,
                                      std::ptrdiff_t pairs, Op op) {
    constexpr int lanes = Split<T, B>::lanes;
    for (; i + lanes <= pairs; i += lanes)
        storeSplit(dst + 2 * i, multiplySplit<B>(a + 2 * i, b + 2 * i, op));
    return i;
}

// `pairs` complex values, interleaved; dst may be a or b. In vectors to the last value: GCC 12
// turns the scalar code into a fused multiply-add-subtract in spite of -ffp-contract=off.
template <class T, class Op>
inline void multiplyPairs(const T* a, const T* b, T* dst, std::ptrdiff_t pairs, Op op) {
    constexpr int lanes = Split<T, 16>::lanes;
    if (pairs < lanes) {
        T x[2 * lanes] = {}, y[2 * lanes] = {}, product[2 * lanes];
        const std::size_t bytes = static_cast<std::size_t>(pairs) * 2 * sizeof(T);
        std::memcpy(x, a, bytes);
        std::memcpy(y, b, bytes);
        storeSplit(product, multiplySplit<16>(x, y, op));
        std::memcpy(dst, product, bytes);
        return;
    }
    // The last vector overlaps the one before; it is read before dst, possibly a source, is
    // written.
    const std::ptrdiff_t last = 2 * (pairs - lanes);
    const auto ending = multiplySplit<16>(a + last, b + last, op);
    std::ptrdiff_t i = multiplyVectors<kVecBytes>(a, b, dst, 0, pairs, op);
    if constexpr (kVecBytes > 32) i = multiplyVectors<32>(a, b, dst, i, pairs, op);
    if constexpr (kVecBytes > 16) i = multiplyVectors<16>(a, b, dst, i, pairs, op);
    if (i < pairs) storeSplit(dst + last, ending);
}

// Pack: a real term first, and of an even length one last.
template <class T, class Op>
inline void multiplyPack(const T* a, const T* b, T* dst, std::ptrdiff_t len, Op op) {
    multiplyReal(a, b, dst);
    if (len % 2 == 0) multiplyReal(a + len - 1, b + len - 1, dst + len - 1);
    multiplyPairs(a + 1, b + 1, dst + 1, (len - 1) / 2, op);
}

// Perm: both real terms first.
template <class T, class Op>
inline void multiplyPerm(const T* a, const T* b, T* dst, std::ptrdiff_t len, Op op) {
    T real[2] = {};
    multiplyReal(a, b, &real[0]);
    if (len % 2 == 0) {
        // The real terms go through the loop as a pair and are replaced after it: so its vectors
        // have the boundaries of those that a transform has stored, and each load waits for one
        // store.
        multiplyReal(a + 1, b + 1, &real[1]);
        multiplyPairs(a, b, dst, len / 2, op);
        std::memcpy(dst, real, sizeof real);
    } else {
        multiplyPairs(a + 1, b + 1, dst + 1, len / 2, op);
        std::memcpy(dst, real, sizeof(T));
    }
}

// ---- scaled products of 16-bit integers ---------------------------------------------------------
constexpr Vlq16s clampTo16(Vlq32s v) { return static_cast<Vlq16s>(std::clamp(v, -32768, 32767)); }

// Scales a product to 16 bits: shifts right without rounding, or saturates and then shifts left.
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
    storeScalar(dst, scale(Vlq32s{loadScalar(a)} * loadScalar(b)));
}

// `pairs` complex values, interleaved; dst may be a or b. A complex value is a 32-bit lane.
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

// ---- expansion ----------------------------------------------------------------------------------
// -v, saturated.
template <class T>
inline T negated(T v) {
    if constexpr (std::is_floating_point_v<T>)
        return -v;
    else
        return v == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max()
                                                  : static_cast<T>(-v);
}

// The same for the odd lanes, the imaginary parts.
template <class T>
inline Vec<T> conjugated(Vec<T> values) {
    if constexpr (std::is_same_v<T, float>) {
        return values ^ bitCast<T>(Vec<std::uint64_t>::broadcast(std::uint64_t{1} << 63));
    } else if constexpr (std::is_same_v<T, double>) {
        return values ^ bitCast<T>(alternating(0, std::numeric_limits<std::int64_t>::min()));
    } else {
        static_assert(std::is_same_v<T, std::int16_t>);
        const auto imaginary = bitCast<T>(Vec<std::uint32_t>::broadcast(0xFFFF0000u));
        return (values & ~imaginary) | (subSat(Vec<T>::zero(), values) & imaginary);
    }
}

// Values k and, conjugated, len - k for k = 1 to `pairs`; src points at value 1. From the end to
// the front, so that src may be the front of dst.
template <class T>
inline void expandPairs(const T* src, T* dst, std::ptrdiff_t pairs, std::ptrdiff_t len) {
    constexpr int lanes = Vec<T>::lanes / 2;
    std::ptrdiff_t k = pairs + 1;
    for (; k > lanes; k -= lanes) {
        const auto values = load<T>(src + 2 * (k - lanes - 1));
        store(dst + 2 * (k - lanes), values);
        store(dst + 2 * (len - k + 1), reversed<2 * sizeof(T)>(conjugated(values)));
    }
    while (--k > 0) {
        // Two scalars: a masked load waits for stores to addresses of the same low bits.
        T value[2];
        std::memcpy(value, src + 2 * (k - 1), sizeof value);
        std::memcpy(dst + 2 * k, value, sizeof value);
        value[1] = negated(value[1]);
        std::memcpy(dst + 2 * (len - k), value, sizeof value);
    }
}

template <class T>
inline void putReal(T* dst, std::ptrdiff_t k, const T* term) {
    T value[2] = {};
    std::memcpy(value, term, sizeof(T));
    std::memcpy(dst + 2 * k, value, sizeof value);
}

// All len values from each layout; src may be the front of dst. Of an even length the middle value
// is written first, to an element beyond the input, and value 0 last, over the first pair.
template <class T>
inline void expandPack(const T* src, T* dst, std::ptrdiff_t len) {
    if (len % 2 == 0) putReal(dst, len / 2, src + len - 1);
    expandPairs(src + 1, dst, (len - 1) / 2, len);
    putReal(dst, 0, src);
}
template <class T>
inline void expandPerm(const T* src, T* dst, std::ptrdiff_t len) {
    const bool even = len % 2 == 0;
    if (even) putReal(dst, len / 2, src + 1);
    expandPairs(src + (even ? 2 : 1), dst, (len - 1) / 2, len);
    putReal(dst, 0, src);
}
template <class T>
inline void expandCcs(const T* src, T* dst, std::ptrdiff_t len) {
    if (len % 2 == 0) std::memmove(dst + len, src + len, 2 * sizeof(T));
    expandPairs(src + 2, dst, (len - 1) / 2, len);
    std::memmove(dst, src, 2 * sizeof(T));
}

}  // namespace vlq::packed
