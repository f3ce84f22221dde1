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

}  // namespace vlq
