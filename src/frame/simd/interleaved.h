// Arithmetic on vectors of interleaved complex values (re, im, re, im ...), where that is shorter
// than to take the parts asunder. For the builds with FMA.
#pragma once

#include "frame/simd/vec.h"

#if VLQ_SIMD_BYTES >= 32
namespace vlq {

// (im, re) for each value.
inline Vec<float, 32> exchangeParts(Vec<float, 32> v) { return Vec<float, 32>(_mm256_permute_ps(v.raw, 0xB1)); }

// a * b - c in the real, a * b + c in the imaginary parts, and the opposite.
inline Vec<float, 32> mulSubAddParts(Vec<float, 32> a, Vec<float, 32> b, Vec<float, 32> c) {
    return Vec<float, 32>(_mm256_fmaddsub_ps(a.raw, b.raw, c.raw));
}
inline Vec<float, 32> mulAddSubParts(Vec<float, 32> a, Vec<float, 32> b, Vec<float, 32> c) {
    return Vec<float, 32>(_mm256_fmsubadd_ps(a.raw, b.raw, c.raw));
}

}  // namespace vlq
#endif
