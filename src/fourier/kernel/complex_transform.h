// The complex power-of-two transform, on which all other transforms run.
#pragma once

#include "fourier/plan/fft_plan.h"

namespace vlq::fft {

enum class Direction { forward, inverse };

// dst = DFT(src) of 2^order interleaved complex values; when `scaled`, every output is multiplied
// by spec.normFactor. src may be dst. `work` has spec.workBytes bytes on a 64-byte boundary (unused
// up to order 5). `order` may differ from spec.order: a real spec of order n transforms at n - 1.
template <class T, Direction direction>
void complexTransform(int order, const FloatSpec<T>& spec, const T* src, T* dst, void* work,
                      bool scaled);

// The same with real and imaginary parts in separate arrays.
template <class T, Direction direction>
void splitTransform(int order, const FloatSpec<T>& spec, const T* srcRe, const T* srcIm, T* dstRe,
                    T* dstIm, void* work, bool scaled);

}  // namespace vlq::fft
