// The three regimes of the complex transform, by length: straight-line code, passes within a cache,
// and rows or phases beyond it. In and Out are views of the caller's data; Middle is the view that
// passes use among themselves, on the memory of Out. Definitions and instances are in files of
// their own for each regime.
#pragma once

#include "fourier/kernel/views.h"
#include "fourier/plan/fft_plan.h"

namespace vlq::fft {

// The last order of straight-line code.
template <class In>
inline constexpr int kLastSmall = 5;
template <class P, bool exchanged>
inline constexpr int kLastSmall<Interleaved<P, exchanged>> = kVecBytes / sizeof(P) == 16 ? 7 : 6;

// Straight-line code, orders 0 to kLastSmall.
template <class T, class In, class Out>
void smallTransform(int order, const FloatSpec<T>& spec, In src, Out dst, bool scaled);

// Self-sorting passes between `work` and `middle`.
template <class T, class In, class Middle, class Out>
void inCacheTransform(int order, const FloatSpec<T>& spec, In src, Middle work, Middle middle,
                      Out dst, bool scaled);

// The remaining passes of one row of 2^order values whose groups of 2^spanBits are done, between
// row and work: see rowPlan.
template <class T, class Middle>
void rowTransform(int order, int spanBits, const T* table, Middle row, Middle work);

// Rows or phases through `work`; inPlace: src is the memory of dst.
template <class T, class In, class Middle, class Out>
void largeTransform(int order, const FloatSpec<T>& spec, In src, Middle middle, Out dst, T* work,
                    bool inPlace, bool scaled);

// The views of the interleaved transforms. The inverse transform is the forward one with real and
// imaginary parts exchanged on input and output.
template <class T>
using ForwardIn = Interleaved<const T, false>;
template <class T>
using ForwardOut = Interleaved<T, false>;
template <class T>
using InverseIn = Interleaved<const T, true>;
template <class T>
using InverseOut = Interleaved<T, true>;

}  // namespace vlq::fft
