// The processor's quick approximations, good to about 12 bits.
#pragma once

#include "frame/simd/vec.h"

namespace vlq {

inline float rsqrtEstimate(float x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }

}  // namespace vlq
