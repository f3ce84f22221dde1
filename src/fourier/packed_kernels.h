// Products and expansion of packed spectra.
#pragma once

#include <cstring>
#include <limits>
#include <type_traits>

#include "frame/simd/ops.h"
#include "frame/simd/permute.h"
#include "frame/simd/saturate.h"
#include "frame/simd/split.h"

namespace vlq::packed {

// (a re + i a im) (b re + i b im), the sums as they stand: equal in every build.
struct Product {
    template <class V>
    void operator()(V aRe, V aIm, V bRe, V bIm, V& re, V& im) const {
        re = aRe * bRe - aIm * bIm;
        im = aRe * bIm + aIm * bRe;
    }
};
// a times the conjugate of b.
struct ProductConjugate {
    template <class V>
    void operator()(V aRe, V aIm, V bRe, V bIm, V& re, V& im) const {
        re = aRe * bRe + aIm * bIm;
        im = bRe * aIm - aRe * bIm;
    }
};

template <class T>
inline void multiplyReal(const T* a, const T* b, T* dst) {
    T x, y;
    std::memcpy(&x, a, sizeof x);
    std::memcpy(&y, b, sizeof y);
    x *= y;
    std::memcpy(dst, &x, sizeof x);
}

template <int B, class T, class Op>
inline Split<T, B> multiplySplit(const T* a, const T* b, Op op) {
    const auto x = loadSplit<T, B>(a), y = loadSplit<T, B>(b);
    Split<T, B> product;
    op(x.re, x.im, y.re, y.im, product.re, product.im);
    return product;
}

// Whole vectors of B bytes each from pair i on; returns where they end.
template <int B, class T, class Op>
inline std::ptrdiff_t multiplyVectors(const T* a, const T* b, T* dst, std::ptrdiff_t i,
                                      std::ptrdiff_t pairs, Op op) {
    constexpr int lanes = Split<T, B>::lanes;
    for (; i + lanes <= pairs; i += lanes)
        storeSplit(dst + 2 * i, multiplySplit<B>(a + 2 * i, b + 2 * i, op));
    return i;
}

// `pairs` complex values, interleaved; dst may be a or b. In vectors to the last one: of scalars
// GCC 12 makes a fused multiply-add-subtract, contraction or not.
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
    // The last vector overlaps the one before; it is read before dst is written, which may be a
    // source.
    const std::ptrdiff_t last = 2 * (pairs - lanes);
    const auto ending = multiplySplit<16>(a + last, b + last, op);
    std::ptrdiff_t i = multiplyVectors<kVecBytes>(a, b, dst, 0, pairs, op);
    if constexpr (kVecBytes > 32) i = multiplyVectors<32>(a, b, dst, i, pairs, op);
    if constexpr (kVecBytes > 16) i = multiplyVectors<16>(a, b, dst, i, pairs, op);
    if (i < pairs) storeSplit(dst + last, ending);
}

// A Pack spectrum of len values: a real term at the front, one at the end of an even length.
template <class T, class Op>
inline void multiplyPack(const T* a, const T* b, T* dst, std::ptrdiff_t len, Op op) {
    multiplyReal(a, b, dst);
    if (len % 2 == 0) multiplyReal(a + len - 1, b + len - 1, dst + len - 1);
    multiplyPairs(a + 1, b + 1, dst + 1, (len - 1) / 2, op);
}

// A Perm spectrum: both real terms at the front.
template <class T, class Op>
inline void multiplyPerm(const T* a, const T* b, T* dst, std::ptrdiff_t len, Op op) {
    T real[2] = {};
    multiplyReal(a, b, &real[0]);
    if (len % 2 == 0) {
        // The real terms go through the pairs' loop and are put right after it: so its vectors
        // stand where a transform stored its own and reads the next, and none waits for two stores.
        multiplyReal(a + 1, b + 1, &real[1]);
        multiplyPairs(a, b, dst, len / 2, op);
        std::memcpy(dst, real, sizeof real);
    } else {
        multiplyPairs(a + 1, b + 1, dst + 1, len / 2, op);
        std::memcpy(dst, real, sizeof(T));
    }
}

// -v, as the nearest value of the type.
template <class T>
inline T negated(T v) {
    if constexpr (std::is_floating_point_v<T>)
        return -v;
    else
        return v == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max()
                                                  : static_cast<T>(-v);
}

// The same for the odd lanes, which are the imaginary parts.
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

// Spectrum value k, and its conjugate at len - k, for k = 1 to `pairs`; pair 1 stands at `src`.
// From the top down, so that src may be the front of dst.
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
        // Two scalars: a masked load waits for any store whose address looks alike.
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

// All len values from a layout; src may be the front of dst. The term in the middle goes beyond
// the input, the first value over the first pair.
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
