// Loads of one element for each lane: base[index].
#pragma once

#include "frame/simd/vec.h"

namespace vlq {

// Elements of 4 bytes by 32-bit indices.
template <class T, int B>
requires(sizeof(T) == 4) inline Vec<T, B> gather(const T* base, Vec<std::int32_t, B> index) {
    const auto x = asInt(index);
#if VLQ_SIMD_BYTES == 16
    const std::int64_t low = _mm_cvtsi128_si64(x),
                       high = _mm_cvtsi128_si64(_mm_unpackhi_epi64(x, x));
    const auto at = [base](std::int64_t i) { return loadScalar<std::int32_t>(base + i); };
    return fromRegister<T>(_mm_setr_epi32(at(static_cast<std::int32_t>(low)), at(low >> 32),
                                          at(static_cast<std::int32_t>(high)), at(high >> 32)));
#else
    const int* p = reinterpret_cast<const int*>(base);
    if constexpr (B == 16) return fromRegister<T>(_mm_i32gather_epi32(p, x, 4));
    if constexpr (B == 32) return fromRegister<T>(_mm256_i32gather_epi32(p, x, 4));
#if VLQ_SIMD_BYTES == 64
    if constexpr (B == 64) return fromRegister<T>(_mm512_i32gather_epi32(x, p, 4));
#endif
#endif
}

// Elements of 8 bytes by 64-bit indices.
template <class T, int B>
requires(sizeof(T) == 8) inline Vec<T, B> gather(const T* base, Vec<std::int64_t, B> index) {
    const auto x = asInt(index);
#if VLQ_SIMD_BYTES == 16
    const auto at = [base](std::int64_t i) { return loadScalar<std::int64_t>(base + i); };
    const std::int64_t low = at(_mm_cvtsi128_si64(x)),
                       high = at(_mm_cvtsi128_si64(_mm_unpackhi_epi64(x, x)));
    return fromRegister<T>(_mm_set_epi64x(high, low));
#else
    const long long* p = reinterpret_cast<const long long*>(base);
    if constexpr (B == 16) return fromRegister<T>(_mm_i64gather_epi64(p, x, 8));
    if constexpr (B == 32) return fromRegister<T>(_mm256_i64gather_epi64(p, x, 8));
#if VLQ_SIMD_BYTES == 64
    if constexpr (B == 64) return fromRegister<T>(_mm512_i64gather_epi64(x, p, 8));
#endif
#endif
}

// Elements of a table of 16 by indices from 0 to 15.
inline Vec<std::int16_t> lookUp16(const std::int16_t* table, Vec<std::int16_t> index) {
#if VLQ_SIMD_BYTES == 16
    Vec<std::int16_t> result;
    for (int i = 0; i < 8; ++i) result.raw[i] = table[index.raw[i]];
    return result;
#elif VLQ_SIMD_BYTES == 32
    // The lower bytes of all elements in one register, the upper ones in another. Of an index byte
    // with the top bit set the shuffle makes 0.
    const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(table)),
                  high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(table + 8));
    const __m128i byte = _mm_set1_epi16(0xFF);
    const __m256i lower = _mm256_broadcastsi128_si256(
        _mm_packus_epi16(_mm_and_si128(low, byte), _mm_and_si128(high, byte)));
    const __m256i upper = _mm256_broadcastsi128_si256(
        _mm_packus_epi16(_mm_srli_epi16(low, 8), _mm_srli_epi16(high, 8)));
    const __m256i x = asInt(index);
    const __m256i lowerBytes =
        _mm256_shuffle_epi8(lower, _mm256_or_si256(x, _mm256_set1_epi16(-0x8000)));
    const __m256i upperBytes = _mm256_shuffle_epi8(
        upper, _mm256_or_si256(_mm256_slli_epi16(x, 8), _mm256_set1_epi16(0x80)));
    return fromRegister<std::int16_t>(_mm256_or_si256(lowerBytes, upperBytes));
#else
    const __m512i twice =
        _mm512_broadcast_i64x4(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(table)));
    return fromRegister<std::int16_t>(_mm512_permutexvar_epi16(asInt(index), twice));
#endif
}

}  // namespace vlq
