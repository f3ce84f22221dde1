// The quarter wave that every twiddle is read from.
#pragma once

#include "vlqs/types.h"

namespace vlq::fft {

inline constexpr int kConstantSineOrder = 10;  // up to here the table is the library's

// values[i << (order - p)] = sin(2 pi i / 2^p) for p up to `order` and i in 0 to 2^p / 4.
template <class T>
struct SineTable {
    const T* values;
    int order;  // values has 2^order / 4 + 1 entries
};

// The table for transforms of `order`: the library's constant one of order 10 up to there, above
// it one of its own order, computed in double precision into `scratch`.
template <class T>
SineTable<T> sineTable(int order, T* scratch);

template <class T>
struct Twiddle {
    T re;
    T im;
};

// exp(-2 pi i k / 2^order) for 0 <= k < 2^order, folded into the quarter wave: no arithmetic but
// signs, so that values a quarter turn apart agree to the bit.
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
