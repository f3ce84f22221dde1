// The complex power-of-two transform: every real and packed transform runs on this.
#pragma once

#include "fourier/plan/fft_plan.h"

namespace vlq::fft {

enum class Direction { forward, inverse };

// dst = DFT(src) of 2^order interleaved complex values, multiplied by record.normFactor when
// `scaled`. src may be dst. `work` has record.workBytes bytes on a 64-byte boundary (not used up
// to order 5). `order` may differ from record.order: a real record of order n transforms at n - 1.
template <class T, Direction direction>
void complexTransform(int order, const FloatingRecord<T>& record, const T* src, T* dst, void* work,
                      bool scaled);

// The same with real and imaginary parts in arrays of their own.
template <class T, Direction direction>
void splitTransform(int order, const FloatingRecord<T>& record, const T* srcRe, const T* srcIm,
                    T* dstRe, T* dstIm, void* work, bool scaled);

}  // namespace vlq::fft
