// The record of the floating power-of-two transforms, complex and real.
#pragma once

#include "frame/state/state.h"

namespace vlq::fft {

// Fields in one order for every kind; a table that a kind or an order does not need is null. Passes
// sort as they go, so that the bit-reversal table has a place but no user.
template <class T>
struct FloatingRecord {
    Vlq32s ident;       // names the kind; 0 in a dead record
    Vlq32s order;       // N = 2^order
    Vlq32s doFwdScale;  // the forward transform multiplies by normFactor
    Vlq32s doInvScale;  // the inverse does
    T normFactor;
    Vlq32s hint;       // kept, never read
    Vlq32s workBytes;  // work buffer of one transform, 0 for none
    Vlq32s owned;      // the library allocated the block
    RelPtr<Vlq32s> bitRevTable;
    RelPtr<T> twiddleTable;    // of the in-cache passes
    RelPtr<T> realTwiddleFwd;  // recombination, real kinds
    RelPtr<T> realTwiddleInv;
    RelPtr<T> outerTwiddle[3];  // one a level of the large-order decomposition
};

inline constexpr std::size_t kTableAlignment = 64;

// What a size query answers, in bytes; each non-zero size has its alignment slack in it.
struct PlanSizes {
    Vlq64s spec;
    Vlq64s init;
    Vlq64s work;
};

}  // namespace vlq::fft
