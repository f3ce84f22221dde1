// Pairs of adjacent 16-bit integers: sums of two products, and narrowing back from 32 bits.
#pragma once

#include "frame/simd/horizontal.h"

namespace vlq {

// For each pair the sum of its two products, wrapped to 32 bits.
inline Vec<std::int32_t, 16> pairSums(Vec<std::int16_t, 16> a, Vec<std::int16_t, 16> b) {
    return fromRegister<std::int32_t>(_mm_madd_epi16(asInt(a), asInt(b)));
}
// even[0], odd[0], even[1], odd[1] ..., saturated.
inline Vec<std::int16_t, 16> interleaveSat(Vec<std::int32_t, 16> even, Vec<std::int32_t, 16> odd) {
    return fromRegister<std::int16_t>(_mm_packs_epi32(_mm_unpacklo_epi32(asInt(even), asInt(odd)),
                                                      _mm_unpackhi_epi32(asInt(even), asInt(odd))));
}
#if VLQ_SIMD_BYTES >= 32
inline Vec<std::int32_t, 32> pairSums(Vec<std::int16_t, 32> a, Vec<std::int16_t, 32> b) {
    return fromRegister<std::int32_t>(_mm256_madd_epi16(asInt(a), asInt(b)));
}
inline Vec<std::int16_t, 32> interleaveSat(Vec<std::int32_t, 32> even, Vec<std::int32_t, 32> odd) {
    return fromRegister<std::int16_t>(
        _mm256_packs_epi32(_mm256_unpacklo_epi32(asInt(even), asInt(odd)),
                           _mm256_unpackhi_epi32(asInt(even), asInt(odd))));
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline Vec<std::int32_t, 64> pairSums(Vec<std::int16_t, 64> a, Vec<std::int16_t, 64> b) {
    return fromRegister<std::int32_t>(_mm512_madd_epi16(asInt(a), asInt(b)));
}
inline Vec<std::int16_t, 64> interleaveSat(Vec<std::int32_t, 64> even, Vec<std::int32_t, 64> odd) {
    return fromRegister<std::int16_t>(
        _mm512_packs_epi32(_mm512_unpacklo_epi32(asInt(even), asInt(odd)),
                           _mm512_unpackhi_epi32(asInt(even), asInt(odd))));
}
#endif

// The pair at p in all lanes.
template <int B = kVecBytes>
inline Vec<std::int16_t, B> broadcastPair(const std::int16_t* p) {
    return bitCast<std::int16_t>(Vec<std::int32_t, B>::broadcast(loadScalar<std::int32_t>(p)));
}

}  // namespace vlq
