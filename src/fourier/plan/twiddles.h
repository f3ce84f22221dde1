// Twiddle factors, all read from one table of a quarter wave of the sine.
#pragma once

#include "vlqs/types.h"

namespace vlq::fft {

inline constexpr int kConstantSineOrder = 10;  // up to this order the table is constant data

// values[i << (order - p)] = sin(2 pi i / 2^p) for p up to `order` and 0 <= i <= 2^p / 4.
template <class T>
struct SineTable {
    const T* values;
    int order;  // values has 2^order / 4 + 1 entries
};

// The table for transforms of `order`: the constant one of order kConstantSineOrder up to there,
// above it one of the transform's own order, computed in double precision into `scratch`.
template <class T>
SineTable<T> sineTable(int order, T* scratch);

template <class T>
struct Twiddle {
    T re;
    T im;
};

// exp(-2 pi i k / 2^order) for 0 <= k < 2^order, folded into the quarter wave: only signs change,
// so factors a quarter turn apart agree to the bit.
template <class T>
inline Twiddle<T> twiddle(const SineTable<T>& sine, int order, Vlq64s k) {
    const Vlq64s quarter = Vlq64s{1} << (sine.order - 2);
    const Vlq64s angle = k << (sine.order - order);
    const Vlq64s a = angle & (quarter - 1);
    const T c = sine.values[quarter - a], s = sine.values[a];
    switch (angle / quarter) {
        case 0: return {c, -s};
        case 1: return {-s, -c};
        case 2: return {-c, s};
        default: return {s, c};
    }
}

}  // namespace vlq::fft
