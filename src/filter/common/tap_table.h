// The tap table of the time-domain kernels: each tap repeated over 16 bytes, in natural order, so
// that one aligned load gives it in every lane of a small vector.
#pragma once

#include "filter/common/element.h"

namespace vlq::fir {

// Copies of a tap's part in 16 bytes.
template <class T>
inline constexpr int kReplicas = 16 / static_cast<int>(sizeof(T));

// Elements that a tap takes: a complex tap a + ib takes 16 bytes of a and 16 bytes of -b, b.
template <class E>
inline constexpr int kTableEntry = kReplicas<Part<E>>;

// Writes a tap and returns the place of the next.
template <class E>
inline E* writeWide(E* wide, E tap) {
    if constexpr (Complex<E>) {
        constexpr int pairs = kReplicas<Part<E>> / 2;
        for (int copy = 0; copy < pairs; ++copy) *wide++ = {tap.re, tap.re};
        for (int copy = 0; copy < pairs; ++copy) *wide++ = {-tap.im, tap.im};
    } else {
        for (int copy = 0; copy < kReplicas<E>; ++copy) *wide++ = tap;
    }
    return wide;
}

}  // namespace vlq::fir
