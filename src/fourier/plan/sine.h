// The quarter wave that every twiddle is read from.
#pragma once

#include "vlqs/types.h"

namespace vlq::fft {

// values[i * stride(p)] = sin(2 pi i / 2^p) for i in 0 to 2^p / 4.
template <class T>
struct SineTable {
    const T* values;
    int order;  // values has 2^order / 4 + 1 entries
};

// The table for transforms of `order`: the library's constant one of order 10 up to there, above
// it one of its own order, computed in double precision into `scratch`.
template <class T>
SineTable<T> sineTable(int order, T* scratch);

}  // namespace vlq::fft
