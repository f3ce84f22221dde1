// How long filtering takes on one thread: what decides whether a team is worth its start.
#pragma once

#include "filter/common/element.h"
#include "frame/simd/vec.h"
#include "vlqs/types.h"

namespace vlq::fir {

// Measured at 3 GHz. The decision needs no more than the order of magnitude.
inline constexpr double kNanosecondsPerVector = 0.15;  // a multiply-add and its share of the loads
inline constexpr double kNanosecondsPerSample = 0.5;   // conversion, moves, ends of vectors

// Sums of `taps` products for each of `outputs`. A complex product is four real ones.
template <class E>
inline double timeDomainNanoseconds(double outputs, double taps) {
    const double products = taps * kParts<E> * kParts<E>;
    return outputs *
           (kNanosecondsPerSample + products * kNanosecondsPerVector / Vec<Part<E>>::lanes);
}

// Forward and inverse transforms of fftLen elements, for each `step` of the outputs.
template <class E>
inline double transformNanoseconds(double outputs, Vlq32s fftLen, Vlq32s step) {
    const int order = 31 - __builtin_clz(static_cast<unsigned>(fftLen));
    const double passes = 2.0 * order * fftLen / step * kParts<E>;
    return outputs *
           (kNanosecondsPerSample + 1.5 * passes * kNanosecondsPerVector / Vec<Part<E>>::lanes);
}

}  // namespace vlq::fir
