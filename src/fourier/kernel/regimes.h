// The three regimes of the complex transform, each compiled by itself. In and Out are views of the
// caller's data, Middle is the memory of Out in the form that passes use among themselves.
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
void smallTransform(int order, const FloatingRecord<T>& record, In src, Out dst, bool scaled);

// Self-sorting passes between `work` and `middle`.
template <class T, class In, class Middle, class Out>
void inCacheTransform(int order, const FloatingRecord<T>& record, In src, Middle work,
                      Middle middle, Out dst, bool scaled);

// The rest of the passes of one row of 2^order values in groups of 2^spanBits, between row and
// work; see plan/passes.h.
template <class T, class Middle>
void rowTransform(int order, int spanBits, const T* table, Middle row, Middle work);

// Rows or phases of column transforms through `work`; inPlace says that src is the memory of dst.
template <class T, class In, class Middle, class Out>
void largeTransform(int order, const FloatingRecord<T>& record, In src, Middle middle, Out dst,
                    T* work, bool inPlace, bool scaled);

// The views that transforms run on: forward and inverse interleaved, and split.
template <class T>
using ForwardIn = Interleaved<const T, false>;
template <class T>
using ForwardOut = Interleaved<T, false>;
template <class T>
using InverseIn = Interleaved<const T, true>;
template <class T>
using InverseOut = Interleaved<T, true>;

}  // namespace vlq::fft
