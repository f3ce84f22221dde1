// Vectors of interleaved complex values (re, im, re, im ...), where that is cheaper than
// de-interleaving them.
#pragma once

#include "frame/simd/transpose.h"

namespace vlq {

// (im, re) for each value. The integer shuffle of SSE2 does not overwrite its operand.
inline Vec<float, 16> exchangeParts(Vec<float, 16> v) {
    return fromRegister<float>(_mm_shuffle_epi32(asInt(v), 0xB1));
}
inline Vec<double, 16> exchangeParts(Vec<double, 16> v) {
    return fromRegister<double>(_mm_shuffle_epi32(asInt(v), 0x4E));
}
#if VLQ_SIMD_BYTES >= 32
inline Vec<float, 32> exchangeParts(Vec<float, 32> v) {
    return Vec<float, 32>(_mm256_permute_ps(v.raw, 0xB1));
}
inline Vec<double, 32> exchangeParts(Vec<double, 32> v) {
    return Vec<double, 32>(_mm256_permute_pd(v.raw, 0x5));
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline Vec<float, 64> exchangeParts(Vec<float, 64> v) {
    return Vec<float, 64>(_mm512_permute_ps(v.raw, 0xB1));
}
inline Vec<double, 64> exchangeParts(Vec<double, 64> v) {
    return Vec<double, 64>(_mm512_permute_pd(v.raw, 0x55));
}
#endif

// The first value of `next`, then those of v from its last to its second: where next follows v in
// memory, the values from next[0] backwards.
inline Vec<double, 16> valuesBackwardAcross(Vec<double, 16>, Vec<double, 16> next) { return next; }
#if VLQ_SIMD_BYTES >= 32
inline Vec<double, 32> valuesBackwardAcross(Vec<double, 32> v, Vec<double, 32> next) {
    return Vec<double, 32>(_mm256_permute2f128_pd(next.raw, v.raw, 0x30));
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline Vec<double, 64> valuesBackwardAcross(Vec<double, 64> v, Vec<double, 64> next) {
    return Vec<double, 64>(
        _mm512_permutex2var_pd(next.raw, _mm512_setr_epi64(0, 1, 14, 15, 12, 13, 10, 11), v.raw));
}
#endif

// Square matrices of values: row i of the result holds value i of every row.
inline void transposeValues(Vec<double, 16> (&)[1]) {}
inline void transposeValues(Vec<float, 16> (&m)[2]) {
    Vec<double, 16> pairs[2] = {bitCast<double>(m[0]), bitCast<double>(m[1])};
    transpose(pairs);
    m[0] = bitCast<float>(pairs[0]);
    m[1] = bitCast<float>(pairs[1]);
}
#if VLQ_SIMD_BYTES >= 32
inline void transposeValues(Vec<float, 32> (&m)[4]) {
    Vec<double, 32> pairs[4] = {bitCast<double>(m[0]), bitCast<double>(m[1]), bitCast<double>(m[2]),
                                bitCast<double>(m[3])};
    transpose(pairs);
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) m[i] = bitCast<float>(pairs[i]);
}
inline void transposeValues(Vec<double, 32> (&m)[2]) {
    const __m256d a = m[0].raw, b = m[1].raw;
    m[0].raw = _mm256_permute2f128_pd(a, b, 0x20);
    m[1].raw = _mm256_permute2f128_pd(a, b, 0x31);
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline void transposeValues(Vec<float, 64> (&m)[8]) {
    Vec<double, 64> pairs[8];
#pragma GCC unroll 8
    for (int i = 0; i < 8; ++i) pairs[i] = bitCast<double>(m[i]);
    transpose(pairs);
#pragma GCC unroll 8
    for (int i = 0; i < 8; ++i) m[i] = bitCast<float>(pairs[i]);
}
inline void transposeValues(Vec<double, 64> (&m)[4]) {
    const __m512d a = _mm512_shuffle_f64x2(m[0].raw, m[1].raw, 0x44),
                  b = _mm512_shuffle_f64x2(m[0].raw, m[1].raw, 0xEE);
    const __m512d c = _mm512_shuffle_f64x2(m[2].raw, m[3].raw, 0x44),
                  d = _mm512_shuffle_f64x2(m[2].raw, m[3].raw, 0xEE);
    m[0].raw = _mm512_shuffle_f64x2(a, c, 0x88);
    m[1].raw = _mm512_shuffle_f64x2(a, c, 0xDD);
    m[2].raw = _mm512_shuffle_f64x2(b, d, 0x88);
    m[3].raw = _mm512_shuffle_f64x2(b, d, 0xDD);
}
#endif

}  // namespace vlq
