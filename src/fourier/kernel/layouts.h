// The layouts of the spectrum of N real samples.
//   Perm: X[0], X[N/2], real and imaginary parts of X[1] to X[N/2-1]; the layout of the kernels.
//   Pack: X[0], the parts of X[1] to X[N/2-1], X[N/2].
//   CCS:  X[0] to X[N/2] as complex numbers, N + 2 elements.
#pragma once

#include <cstddef>
#include <cstring>

#include "frame/simd/vec.h"

namespace vlq::fft {

enum class Layout { perm, pack, ccs };

// From Perm to another layout of n points, in place.
template <Layout layout, class T>
inline void permToLayout(T* data, std::ptrdiff_t n) {
    if constexpr (layout == Layout::pack) {
        if (n < 4) return;
        const T nyquist = loadScalar(data + 1);
        std::memmove(data + 1, data + 2, static_cast<std::size_t>(n - 2) * sizeof(T));
        storeScalar(data + n - 1, nyquist);
    }
    if constexpr (layout == Layout::ccs) {
        if (n > 1) {
            storeScalar(data + n, loadScalar(data + 1));
            storeScalar(data + n + 1, T(0));
        }
        storeScalar(data + 1, T(0));
    }
}

// Index of X[N/2] in a layout of n points, n > 1.
template <Layout layout>
constexpr std::ptrdiff_t nyquistIndex(std::ptrdiff_t n) {
    return layout == Layout::perm ? 1 : layout == Layout::pack ? n - 1 : n;
}

// Index of X[1], whose parts and those of the values after it are contiguous in every layout.
template <Layout layout>
inline constexpr std::ptrdiff_t kFirstPair = layout == Layout::pack ? 1 : 2;

// A short spectrum in Perm layout. The zero imaginary parts of a CCS spectrum are not read.
template <Layout layout, int n, class T>
inline void layoutToPerm(const T* src, T* perm) {
    if constexpr (layout == Layout::perm || n == 1) {
        std::memcpy(perm, src, n * sizeof(T));
    } else {
        perm[0] = loadScalar(src);
        perm[1] = loadScalar(src + nyquistIndex<layout>(n));
        std::memcpy(perm + 2, src + kFirstPair<layout>, (n - 2) * sizeof(T));
    }
}

}  // namespace vlq::fft
