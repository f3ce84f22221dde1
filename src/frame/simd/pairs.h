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

// Blocks of 16 bytes. Each by itself: lane i holds the sum, wrapped, of the block's lanes of row i.
inline Vec<std::int32_t, 16> blockSums(const Vec<std::int32_t, 16> (&m)[4]) {
    const auto ab = _mm_add_epi32(_mm_unpacklo_epi32(asInt(m[0]), asInt(m[1])),
                                  _mm_unpackhi_epi32(asInt(m[0]), asInt(m[1])));
    const auto cd = _mm_add_epi32(_mm_unpacklo_epi32(asInt(m[2]), asInt(m[3])),
                                  _mm_unpackhi_epi32(asInt(m[2]), asInt(m[3])));
    return fromRegister<std::int32_t>(
        _mm_add_epi32(_mm_unpacklo_epi64(ab, cd), _mm_unpackhi_epi64(ab, cd)));
}
// Each by itself: the lanes of a, then those of b, saturated.
inline Vec<std::int16_t, 16> narrowSatBlocks(Vec<std::int32_t, 16> a, Vec<std::int32_t, 16> b) {
    return fromRegister<std::int16_t>(_mm_packs_epi32(asInt(a), asInt(b)));
}
#if VLQ_SIMD_BYTES >= 32
inline Vec<std::int32_t, 32> blockSums(const Vec<std::int32_t, 32> (&m)[4]) {
    const auto ab = _mm256_add_epi32(_mm256_unpacklo_epi32(asInt(m[0]), asInt(m[1])),
                                     _mm256_unpackhi_epi32(asInt(m[0]), asInt(m[1])));
    const auto cd = _mm256_add_epi32(_mm256_unpacklo_epi32(asInt(m[2]), asInt(m[3])),
                                     _mm256_unpackhi_epi32(asInt(m[2]), asInt(m[3])));
    return fromRegister<std::int32_t>(
        _mm256_add_epi32(_mm256_unpacklo_epi64(ab, cd), _mm256_unpackhi_epi64(ab, cd)));
}
inline Vec<std::int16_t, 32> narrowSatBlocks(Vec<std::int32_t, 32> a, Vec<std::int32_t, 32> b) {
    return fromRegister<std::int16_t>(_mm256_packs_epi32(asInt(a), asInt(b)));
}
// Sums of neighbouring blocks, lane by lane, wrapped: those of a, then those of b.
inline Vec<std::int32_t, 32> addBlocks(Vec<std::int32_t, 32> a, Vec<std::int32_t, 32> b) {
    return fromRegister<std::int32_t>(
        _mm256_add_epi32(_mm256_permute2x128_si256(asInt(a), asInt(b), 0x20),
                         _mm256_permute2x128_si256(asInt(a), asInt(b), 0x31)));
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline Vec<std::int32_t, 64> blockSums(const Vec<std::int32_t, 64> (&m)[4]) {
    const auto ab = _mm512_add_epi32(_mm512_unpacklo_epi32(asInt(m[0]), asInt(m[1])),
                                     _mm512_unpackhi_epi32(asInt(m[0]), asInt(m[1])));
    const auto cd = _mm512_add_epi32(_mm512_unpacklo_epi32(asInt(m[2]), asInt(m[3])),
                                     _mm512_unpackhi_epi32(asInt(m[2]), asInt(m[3])));
    return fromRegister<std::int32_t>(
        _mm512_add_epi32(_mm512_unpacklo_epi64(ab, cd), _mm512_unpackhi_epi64(ab, cd)));
}
inline Vec<std::int16_t, 64> narrowSatBlocks(Vec<std::int32_t, 64> a, Vec<std::int32_t, 64> b) {
    return fromRegister<std::int16_t>(_mm512_packs_epi32(asInt(a), asInt(b)));
}
inline Vec<std::int32_t, 64> addBlocks(Vec<std::int32_t, 64> a, Vec<std::int32_t, 64> b) {
    return fromRegister<std::int32_t>(
        _mm512_add_epi32(_mm512_shuffle_i32x4(asInt(a), asInt(b), 0x88),
                         _mm512_shuffle_i32x4(asInt(a), asInt(b), 0xDD)));
}
#endif

// pick() takes words from anywhere inside units of so many bytes: the whole vector in the widest
// build, blocks of 16 bytes in the next, and SSE2 has none. pickIndex is what a pattern holds for
// word w of the unit.
template <int B>
inline constexpr int kPickUnit = kVecBytes == 64 ? B : 16;
constexpr std::int16_t pickIndex(int w) {
    return static_cast<std::int16_t>(kVecBytes == 64 ? w : (2 * w + 1) << 8 | 2 * w);
}
#if VLQ_SIMD_BYTES >= 32
// The lanes of a, then those of b, saturated.
inline Vec<std::int16_t, 16> joinSat(Vec<std::int32_t, 16> a, Vec<std::int32_t, 16> b) {
    return narrowSatBlocks(a, b);
}
inline Vec<std::int16_t, 32> joinSat(Vec<std::int32_t, 32> a, Vec<std::int32_t, 32> b) {
    return fromRegister<std::int16_t>(
        _mm256_permute4x64_epi64(asInt(narrowSatBlocks(a, b)), _MM_SHUFFLE(3, 1, 2, 0)));
}
#if VLQ_SIMD_BYTES >= 64
inline Vec<std::int16_t, 64> joinSat(Vec<std::int32_t, 64> a, Vec<std::int32_t, 64> b) {
    return fromRegister<std::int16_t>(_mm512_permutexvar_epi64(
        _mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), asInt(narrowSatBlocks(a, b))));
}
#endif

#endif
#if VLQ_SIMD_BYTES >= 64
inline Vec<std::int16_t, 16> pick(Vec<std::int16_t, 16> v, Vec<std::int16_t, 16> pattern) {
    return fromRegister<std::int16_t>(_mm_permutexvar_epi16(asInt(pattern), asInt(v)));
}
inline Vec<std::int16_t, 32> pick(Vec<std::int16_t, 32> v, Vec<std::int16_t, 32> pattern) {
    return fromRegister<std::int16_t>(_mm256_permutexvar_epi16(asInt(pattern), asInt(v)));
}
inline Vec<std::int16_t, 64> pick(Vec<std::int16_t, 64> v, Vec<std::int16_t, 64> pattern) {
    return fromRegister<std::int16_t>(_mm512_permutexvar_epi16(asInt(pattern), asInt(v)));
}
#elif VLQ_SIMD_BYTES >= 32
inline Vec<std::int16_t, 16> pick(Vec<std::int16_t, 16> v, Vec<std::int16_t, 16> pattern) {
    return fromRegister<std::int16_t>(_mm_shuffle_epi8(asInt(v), asInt(pattern)));
}
inline Vec<std::int16_t, 32> pick(Vec<std::int16_t, 32> v, Vec<std::int16_t, 32> pattern) {
    return fromRegister<std::int16_t>(_mm256_shuffle_epi8(asInt(v), asInt(pattern)));
}
#endif

// The pair at p in all lanes.
template <int B = kVecBytes>
inline Vec<std::int16_t, B> broadcastPair(const std::int16_t* p) {
    return bitCast<std::int16_t>(Vec<std::int32_t, B>::broadcast(loadScalar<std::int32_t>(p)));
}

}  // namespace vlq
