// Interleaved complex floats as vectors of doubles, real and imaginary parts apart, and back.
#pragma once

#include "frame/simd/split.h"

namespace vlq {

// The order of the values in the lanes is the build's own; joinToFloat restores memory order.
#if VLQ_SIMD_BYTES == 16
inline Split<double> splitToDouble(Vec<float> v) {
    const __m128 parts = _mm_shuffle_ps(v.raw, v.raw, _MM_SHUFFLE(3, 1, 2, 0));
    return {Vec<double>(_mm_cvtps_pd(parts)),
            Vec<double>(_mm_cvtps_pd(_mm_movehl_ps(parts, parts)))};
}
inline Vec<float> joinToFloat(Split<double> v) {
    return Vec<float>(_mm_unpacklo_ps(_mm_cvtpd_ps(v.re.raw), _mm_cvtpd_ps(v.im.raw)));
}
#else
namespace detail {
using HalfFloats = Vec<float, kVecBytes / 2>;
#if VLQ_SIMD_BYTES == 32
inline Vec<double> doubles(HalfFloats v) { return Vec<double>(_mm256_cvtps_pd(v.raw)); }
inline HalfFloats floats(Vec<double> v) { return HalfFloats(_mm256_cvtpd_ps(v.raw)); }
#else
inline Vec<double> doubles(HalfFloats v) { return Vec<double>(_mm512_cvtps_pd(v.raw)); }
inline HalfFloats floats(Vec<double> v) { return HalfFloats(_mm512_cvtpd_ps(v.raw)); }
#endif
}  // namespace detail
inline Split<double> splitToDouble(Vec<float> v) {
    const auto parts = detail::split(lowHalf(v), highHalf(v));
    return {detail::doubles(parts.re), detail::doubles(parts.im)};
}
inline Vec<float> joinToFloat(Split<double> v) {
    detail::HalfFloats low, high;
    detail::join({detail::floats(v.re), detail::floats(v.im)}, low, high);
    return joinHalves(low, high);
}
#endif

}  // namespace vlq
