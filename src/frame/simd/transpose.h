// Square matrices of lanes: row i of the result holds lane i of every row.
#pragma once

#include "frame/simd/vec.h"

namespace vlq {

inline void transpose(Vec<double, 16> (&m)[2]) {
    const __m128d a = m[0].raw, b = m[1].raw;
    m[0].raw = _mm_unpacklo_pd(a, b);
    m[1].raw = _mm_unpackhi_pd(a, b);
}
inline void transpose(Vec<float, 16> (&m)[4]) {
    const __m128 a = _mm_unpacklo_ps(m[0].raw, m[1].raw), b = _mm_unpackhi_ps(m[0].raw, m[1].raw);
    const __m128 c = _mm_unpacklo_ps(m[2].raw, m[3].raw), d = _mm_unpackhi_ps(m[2].raw, m[3].raw);
    m[0].raw = _mm_movelh_ps(a, c);
    m[1].raw = _mm_movehl_ps(c, a);
    m[2].raw = _mm_movelh_ps(b, d);
    m[3].raw = _mm_movehl_ps(d, b);
}

// The wider ones transpose blocks of 16 bytes in place, then the blocks among the vectors.
#if VLQ_SIMD_BYTES >= 32
inline void transpose(Vec<double, 32> (&m)[4]) {
    const __m256d a = _mm256_unpacklo_pd(m[0].raw, m[1].raw),
                  b = _mm256_unpackhi_pd(m[0].raw, m[1].raw);
    const __m256d c = _mm256_unpacklo_pd(m[2].raw, m[3].raw),
                  d = _mm256_unpackhi_pd(m[2].raw, m[3].raw);
    m[0].raw = _mm256_permute2f128_pd(a, c, 0x20);
    m[1].raw = _mm256_permute2f128_pd(b, d, 0x20);
    m[2].raw = _mm256_permute2f128_pd(a, c, 0x31);
    m[3].raw = _mm256_permute2f128_pd(b, d, 0x31);
}
inline void transpose(Vec<float, 32> (&m)[8]) {
    __m256 t[8];
#pragma GCC unroll 2
    for (int h = 0; h < 8; h += 4) {
        const __m256 a = _mm256_unpacklo_ps(m[h].raw, m[h + 1].raw),
                     b = _mm256_unpackhi_ps(m[h].raw, m[h + 1].raw);
        const __m256 c = _mm256_unpacklo_ps(m[h + 2].raw, m[h + 3].raw),
                     d = _mm256_unpackhi_ps(m[h + 2].raw, m[h + 3].raw);
        t[h] = _mm256_castpd_ps(_mm256_unpacklo_pd(_mm256_castps_pd(a), _mm256_castps_pd(c)));
        t[h + 1] = _mm256_castpd_ps(_mm256_unpackhi_pd(_mm256_castps_pd(a), _mm256_castps_pd(c)));
        t[h + 2] = _mm256_castpd_ps(_mm256_unpacklo_pd(_mm256_castps_pd(b), _mm256_castps_pd(d)));
        t[h + 3] = _mm256_castpd_ps(_mm256_unpackhi_pd(_mm256_castps_pd(b), _mm256_castps_pd(d)));
    }
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        m[i].raw = _mm256_permute2f128_ps(t[i], t[i + 4], 0x20);
        m[i + 4].raw = _mm256_permute2f128_ps(t[i], t[i + 4], 0x31);
    }
}
#endif

// Each block of 16 bytes by itself: lane 4 b + i of row j becomes lane 4 b + j of row i.
inline void transposeBlocks(Vec<std::int32_t, 16> (&m)[4]) {
    const __m128i a = _mm_unpacklo_epi32(asInt(m[0]), asInt(m[1])),
                  b = _mm_unpackhi_epi32(asInt(m[0]), asInt(m[1]));
    const __m128i c = _mm_unpacklo_epi32(asInt(m[2]), asInt(m[3])),
                  d = _mm_unpackhi_epi32(asInt(m[2]), asInt(m[3]));
    m[0] = fromRegister<std::int32_t>(_mm_unpacklo_epi64(a, c));
    m[1] = fromRegister<std::int32_t>(_mm_unpackhi_epi64(a, c));
    m[2] = fromRegister<std::int32_t>(_mm_unpacklo_epi64(b, d));
    m[3] = fromRegister<std::int32_t>(_mm_unpackhi_epi64(b, d));
}
#if VLQ_SIMD_BYTES >= 32
inline void transposeBlocks(Vec<std::int32_t, 32> (&m)[4]) {
    const __m256i a = _mm256_unpacklo_epi32(asInt(m[0]), asInt(m[1])),
                  b = _mm256_unpackhi_epi32(asInt(m[0]), asInt(m[1]));
    const __m256i c = _mm256_unpacklo_epi32(asInt(m[2]), asInt(m[3])),
                  d = _mm256_unpackhi_epi32(asInt(m[2]), asInt(m[3]));
    m[0] = fromRegister<std::int32_t>(_mm256_unpacklo_epi64(a, c));
    m[1] = fromRegister<std::int32_t>(_mm256_unpackhi_epi64(a, c));
    m[2] = fromRegister<std::int32_t>(_mm256_unpacklo_epi64(b, d));
    m[3] = fromRegister<std::int32_t>(_mm256_unpackhi_epi64(b, d));
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline void transposeBlocks(Vec<std::int32_t, 64> (&m)[4]) {
    const __m512i a = _mm512_unpacklo_epi32(asInt(m[0]), asInt(m[1])),
                  b = _mm512_unpackhi_epi32(asInt(m[0]), asInt(m[1]));
    const __m512i c = _mm512_unpacklo_epi32(asInt(m[2]), asInt(m[3])),
                  d = _mm512_unpackhi_epi32(asInt(m[2]), asInt(m[3]));
    m[0] = fromRegister<std::int32_t>(_mm512_unpacklo_epi64(a, c));
    m[1] = fromRegister<std::int32_t>(_mm512_unpackhi_epi64(a, c));
    m[2] = fromRegister<std::int32_t>(_mm512_unpacklo_epi64(b, d));
    m[3] = fromRegister<std::int32_t>(_mm512_unpackhi_epi64(b, d));
}
#endif

// Each block by itself: a[0], b[0], a[1], b[1] into a, the same of the upper half into b.
inline void interleaveBlocks(Vec<std::int32_t, 16>& a, Vec<std::int32_t, 16>& b) {
    const __m128i low = _mm_unpacklo_epi32(asInt(a), asInt(b)),
                  high = _mm_unpackhi_epi32(asInt(a), asInt(b));
    a = fromRegister<std::int32_t>(low);
    b = fromRegister<std::int32_t>(high);
}
#if VLQ_SIMD_BYTES >= 32
inline void interleaveBlocks(Vec<std::int32_t, 32>& a, Vec<std::int32_t, 32>& b) {
    const __m256i low = _mm256_unpacklo_epi32(asInt(a), asInt(b)),
                  high = _mm256_unpackhi_epi32(asInt(a), asInt(b));
    a = fromRegister<std::int32_t>(low);
    b = fromRegister<std::int32_t>(high);
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline void interleaveBlocks(Vec<std::int32_t, 64>& a, Vec<std::int32_t, 64>& b) {
    const __m512i low = _mm512_unpacklo_epi32(asInt(a), asInt(b)),
                  high = _mm512_unpackhi_epi32(asInt(a), asInt(b));
    a = fromRegister<std::int32_t>(low);
    b = fromRegister<std::int32_t>(high);
}
#endif

// The blocks of a vector, `stride` elements apart in memory.
template <int B, class T>
inline Vec<T, B> loadBlocks(const T* p, std::ptrdiff_t stride) {
    if constexpr (B == 16)
        return load<T, 16>(p);
    else
        return joinHalves(loadBlocks<B / 2>(p, stride),
                          loadBlocks<B / 2>(p + B / 32 * stride, stride));
}
template <int B, class T>
inline void storeBlocks(T* p, std::ptrdiff_t stride, Vec<T, B> v) {
    if constexpr (B == 16) {
        store(p, v);
    } else {
        storeBlocks(p, stride, lowHalf(v));
        storeBlocks(p + B / 32 * stride, stride, highHalf(v));
    }
}

#if VLQ_SIMD_BYTES >= 64
inline void transpose(Vec<double, 64> (&m)[8]) {
    __m512d t[8], u[8];
#pragma GCC unroll 4
    for (int h = 0; h < 8; h += 2) {
        t[h] = _mm512_unpacklo_pd(m[h].raw, m[h + 1].raw);
        t[h + 1] = _mm512_unpackhi_pd(m[h].raw, m[h + 1].raw);
    }
#pragma GCC unroll 2
    for (int i = 0; i < 2; ++i) {
        u[i] = _mm512_shuffle_f64x2(t[i], t[i + 2], 0x88);
        u[i + 2] = _mm512_shuffle_f64x2(t[i], t[i + 2], 0xDD);
        u[i + 4] = _mm512_shuffle_f64x2(t[i + 4], t[i + 6], 0x88);
        u[i + 6] = _mm512_shuffle_f64x2(t[i + 4], t[i + 6], 0xDD);
    }
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        m[i].raw = _mm512_shuffle_f64x2(u[i], u[i + 4], 0x88);
        m[i + 4].raw = _mm512_shuffle_f64x2(u[i], u[i + 4], 0xDD);
    }
}
inline void transpose(Vec<float, 64> (&m)[16]) {
    __m512 t[16], u[16];
#pragma GCC unroll 4
    for (int h = 0; h < 16; h += 4) {
        const __m512 a = _mm512_unpacklo_ps(m[h].raw, m[h + 1].raw),
                     b = _mm512_unpackhi_ps(m[h].raw, m[h + 1].raw);
        const __m512 c = _mm512_unpacklo_ps(m[h + 2].raw, m[h + 3].raw),
                     d = _mm512_unpackhi_ps(m[h + 2].raw, m[h + 3].raw);
        t[h] = _mm512_castpd_ps(_mm512_unpacklo_pd(_mm512_castps_pd(a), _mm512_castps_pd(c)));
        t[h + 1] = _mm512_castpd_ps(_mm512_unpackhi_pd(_mm512_castps_pd(a), _mm512_castps_pd(c)));
        t[h + 2] = _mm512_castpd_ps(_mm512_unpacklo_pd(_mm512_castps_pd(b), _mm512_castps_pd(d)));
        t[h + 3] = _mm512_castpd_ps(_mm512_unpackhi_pd(_mm512_castps_pd(b), _mm512_castps_pd(d)));
    }
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        u[i] = _mm512_shuffle_f32x4(t[i], t[i + 4], 0x88);
        u[i + 4] = _mm512_shuffle_f32x4(t[i], t[i + 4], 0xDD);
        u[i + 8] = _mm512_shuffle_f32x4(t[i + 8], t[i + 12], 0x88);
        u[i + 12] = _mm512_shuffle_f32x4(t[i + 8], t[i + 12], 0xDD);
    }
#pragma GCC unroll 8
    for (int i = 0; i < 8; ++i) {
        m[i].raw = _mm512_shuffle_f32x4(u[i], u[i + 8], 0x88);
        m[i + 8].raw = _mm512_shuffle_f32x4(u[i], u[i + 8], 0xDD);
    }
}
#endif

}  // namespace vlq
