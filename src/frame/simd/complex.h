// Interleaved complex values in one vector: real parts in the even lanes, imaginary in the odd.
#pragma once

#include "frame/simd/vec.h"

namespace vlq {

// realParts (re, re), imaginaryParts (im, im), swapParts (im, re) of each value;
// subtractAdd: a - b in the even lanes, a + b in the odd; addSubtract the other way round.
#if VLQ_SIMD_BYTES == 16
inline Vec<float> realParts(Vec<float> v) { return Vec<float>(_mm_shuffle_ps(v.raw, v.raw, 0xA0)); }
inline Vec<float> imaginaryParts(Vec<float> v) {
    return Vec<float>(_mm_shuffle_ps(v.raw, v.raw, 0xF5));
}
inline Vec<float> swapParts(Vec<float> v) { return Vec<float>(_mm_shuffle_ps(v.raw, v.raw, 0xB1)); }
inline Vec<float> subtractAdd(Vec<float> a, Vec<float> b) {
    return Vec<float>(_mm_add_ps(a.raw, _mm_xor_ps(b.raw, _mm_setr_ps(-0.0f, 0.0f, -0.0f, 0.0f))));
}
inline Vec<double> realParts(Vec<double> v) { return Vec<double>(_mm_unpacklo_pd(v.raw, v.raw)); }
inline Vec<double> imaginaryParts(Vec<double> v) {
    return Vec<double>(_mm_unpackhi_pd(v.raw, v.raw));
}
inline Vec<double> swapParts(Vec<double> v) { return Vec<double>(_mm_shuffle_pd(v.raw, v.raw, 1)); }
inline Vec<double> subtractAdd(Vec<double> a, Vec<double> b) {
    return Vec<double>(_mm_add_pd(a.raw, _mm_xor_pd(b.raw, _mm_setr_pd(-0.0, 0.0))));
}
#elif VLQ_SIMD_BYTES == 32
inline Vec<float> realParts(Vec<float> v) { return Vec<float>(_mm256_moveldup_ps(v.raw)); }
inline Vec<float> imaginaryParts(Vec<float> v) { return Vec<float>(_mm256_movehdup_ps(v.raw)); }
inline Vec<float> swapParts(Vec<float> v) { return Vec<float>(_mm256_permute_ps(v.raw, 0xB1)); }
inline Vec<float> subtractAdd(Vec<float> a, Vec<float> b) {
    return Vec<float>(_mm256_addsub_ps(a.raw, b.raw));
}
inline Vec<double> realParts(Vec<double> v) { return Vec<double>(_mm256_movedup_pd(v.raw)); }
inline Vec<double> imaginaryParts(Vec<double> v) {
    return Vec<double>(_mm256_permute_pd(v.raw, 0xF));
}
inline Vec<double> swapParts(Vec<double> v) { return Vec<double>(_mm256_permute_pd(v.raw, 0x5)); }
inline Vec<double> subtractAdd(Vec<double> a, Vec<double> b) {
    return Vec<double>(_mm256_addsub_pd(a.raw, b.raw));
}
#else
inline Vec<float> realParts(Vec<float> v) { return Vec<float>(_mm512_moveldup_ps(v.raw)); }
inline Vec<float> imaginaryParts(Vec<float> v) { return Vec<float>(_mm512_movehdup_ps(v.raw)); }
inline Vec<float> swapParts(Vec<float> v) { return Vec<float>(_mm512_permute_ps(v.raw, 0xB1)); }
// AVX-512 has no addsub; the fused one with a factor of one rounds once, as a sum does.
inline Vec<float> subtractAdd(Vec<float> a, Vec<float> b) {
    return Vec<float>(_mm512_fmaddsub_ps(a.raw, _mm512_set1_ps(1.0f), b.raw));
}
inline Vec<double> realParts(Vec<double> v) { return Vec<double>(_mm512_movedup_pd(v.raw)); }
inline Vec<double> imaginaryParts(Vec<double> v) {
    return Vec<double>(_mm512_permute_pd(v.raw, 0xFF));
}
inline Vec<double> swapParts(Vec<double> v) { return Vec<double>(_mm512_permute_pd(v.raw, 0x55)); }
inline Vec<double> subtractAdd(Vec<double> a, Vec<double> b) {
    return Vec<double>(_mm512_fmaddsub_pd(a.raw, _mm512_set1_pd(1.0), b.raw));
}
#endif

template <class T>
inline Vec<T> addSubtract(Vec<T> a, Vec<T> b) {
    return subtractAdd(a, -b);
}

// One value in all pairs of lanes.
template <class T>
inline Vec<T> broadcastPair(T re, T im) {
    T pairs[Vec<T>::lanes];
    for (int i = 0; i < Vec<T>::lanes; i += 2) {
        pairs[i] = re;
        pairs[i + 1] = im;
    }
    return load(pairs);
}

// The 16 bytes at p, a multiple of 16, repeated over the whole vector.
template <class T>
inline Vec<T> repeatAligned16(const T* p) {
    const __m128i v = asInt(loadAligned<T, 16>(p));
#if VLQ_SIMD_BYTES == 16
    return fromRegister<T>(v);
#elif VLQ_SIMD_BYTES == 32
    return fromRegister<T>(_mm256_broadcastsi128_si256(v));
#else
    return fromRegister<T>(_mm512_broadcast_i32x4(v));
#endif
}

// Each value twice, in memory order: to combine reals with interleaved complex values.
#if VLQ_SIMD_BYTES == 16
inline Block<float, 2> twice(Vec<float> v) {
    return {{Vec<float>(_mm_shuffle_ps(v.raw, v.raw, 0x50)),
             Vec<float>(_mm_shuffle_ps(v.raw, v.raw, 0xFA))}};
}
#elif VLQ_SIMD_BYTES == 32
inline Block<float, 2> twice(Vec<float> v) {
    const __m256 halves = _mm256_castpd_ps(_mm256_permute4x64_pd(_mm256_castps_pd(v.raw), 0xD8));
    return {
        {Vec<float>(_mm256_permute_ps(halves, 0x50)), Vec<float>(_mm256_permute_ps(halves, 0xFA))}};
}
#else
inline Block<float, 2> twice(Vec<float> v) {
    const __m512i low = _mm512_setr_epi32(0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7, 7);
    const __m512i high = _mm512_add_epi32(low, _mm512_set1_epi32(8));
    return {{Vec<float>(_mm512_permutexvar_ps(low, v.raw)),
             Vec<float>(_mm512_permutexvar_ps(high, v.raw))}};
}
#endif
inline Block<std::int32_t, 2> twice(Vec<std::int32_t> v) {
    const auto pairs = twice(bitCast<float>(v));
    return {{bitCast<std::int32_t>(pairs.part[0]), bitCast<std::int32_t>(pairs.part[1])}};
}

}  // namespace vlq
