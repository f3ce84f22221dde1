// Packed three-byte integers, least significant byte first, to and from 32-bit lanes. Exactly the
// bytes of the lanes' elements are read and written.
#pragma once

#include "frame/simd/ops.h"

namespace vlq {

using Packed24 = Block<std::int32_t, 2>;
inline constexpr int kPacked24Count = 2 * Vec<std::int32_t>::lanes;

namespace detail {

// Each element in the upper three bytes of its lane; the lowest byte is unspecified.
#if VLQ_SIMD_BYTES == 16
inline Packed24 unpack24Upper(const std::uint8_t* p) {
    // Each load has its first element in the upper bytes of its first lane and the fourth element
    // after that in those of its last lane, 12 bytes on.
    const __m128 first = _mm_castsi128_ps(_mm_slli_si128(asInt(load<std::uint8_t>(p)), 1));
    const __m128 second = _mm_castsi128_ps(asInt(load<std::uint8_t>(p + 2)));
    const __m128 third = _mm_castsi128_ps(asInt(load<std::uint8_t>(p + 5)));
    const __m128 fourth = _mm_castsi128_ps(asInt(load<std::uint8_t>(p + 8)));
    const __m128 a = _mm_shuffle_ps(first, second, _MM_SHUFFLE(3, 0, 3, 0));
    const __m128 b = _mm_shuffle_ps(third, fourth, _MM_SHUFFLE(3, 0, 3, 0));
    return {{bitCast<std::int32_t>(Vec<float>(_mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)))),
             bitCast<std::int32_t>(Vec<float>(_mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1))))}};
}
#elif VLQ_SIMD_BYTES == 32
inline Packed24 unpack24Upper(const std::uint8_t* p) {
    // The upper lane is loaded from 4 bytes before its elements: no byte beyond them is read.
    const __m256i spread =
        _mm256_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1, 4, 5, 6, -1, 7,
                         8, 9, -1, 10, 11, 12, -1, 13, 14, 15);
    Packed24 v;
    for (int i = 0; i < 2; ++i, p += 24) {
        const auto both = joinHalves(load<std::uint8_t, 16>(p), load<std::uint8_t, 16>(p + 8));
        v.part[i] = fromRegister<std::int32_t>(_mm256_shuffle_epi8(asInt(both), spread));
    }
    return v;
}
#else
inline Packed24 unpack24Upper(const std::uint8_t* p) {
    const __m512i words = _mm512_setr_epi32(0, 1, 2, 0, 3, 4, 5, 0, 6, 7, 8, 0, 9, 10, 11, 0);
    const __m512i spread =
        _mm512_broadcast_i32x4(_mm_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11));
    Packed24 v;
    for (int i = 0; i < 2; ++i, p += 48) {
        const __m512i bytes = _mm512_maskz_loadu_epi32(0x0FFF, p);
        v.part[i] = fromRegister<std::int32_t>(
            _mm512_shuffle_epi8(_mm512_permutexvar_epi32(words, bytes), spread));
    }
    return v;
}
#endif

}  // namespace detail

template <bool kSigned>
inline Packed24 unpack24(const std::uint8_t* p) {
    using Lane = std::conditional_t<kSigned, std::int32_t, std::uint32_t>;
    Packed24 v = detail::unpack24Upper(p);
    for (auto& part : v.part) part = bitCast<std::int32_t>(shiftRight(bitCast<Lane>(part), 8));
    return v;
}

// The lower three bytes of each lane.
inline void pack24(std::uint8_t* p, Packed24 v) {
#if VLQ_SIMD_BYTES == 16
    auto pairs = [](Vec<std::int32_t> lanes) {
        // Two elements to the lower six bytes of each half.
        const __m128i x = asInt(lanes);
        return _mm_or_si128(
            _mm_and_si128(x, _mm_set1_epi64x(0x0000000000FFFFFF)),
            _mm_and_si128(_mm_srli_epi64(x, 8), _mm_set1_epi64x(0x0000FFFFFF000000)));
    };
    const __m128i low = pairs(v.part[0]), high = pairs(v.part[1]);
    // Each store overlaps the one before it; the last carries bytes of its predecessor in front.
    const __m128i tail =
        _mm_or_si128(_mm_slli_epi64(high, 16), _mm_srli_epi64(_mm_slli_si128(high, 8), 32));
    _mm_storel_epi64(reinterpret_cast<__m128i_u*>(p), low);
    _mm_storel_epi64(reinterpret_cast<__m128i_u*>(p + 6), _mm_unpackhi_epi64(low, low));
    _mm_storel_epi64(reinterpret_cast<__m128i_u*>(p + 12), high);
    _mm_storel_epi64(reinterpret_cast<__m128i_u*>(p + 16), _mm_unpackhi_epi64(tail, tail));
#elif VLQ_SIMD_BYTES == 32
    const __m256i gather = _mm256_broadcastsi128_si256(
        _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
    const __m256i words = _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 3, 7);
    for (const auto& part : v.part) {
        const auto bytes = fromRegister<std::uint8_t>(
            _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(asInt(part), gather), words));
        store(p, lowHalf(bytes));
        _mm_storel_epi64(reinterpret_cast<__m128i_u*>(p + 16), asInt(highHalf(bytes)));
        p += 24;
    }
#else
    const __m512i gather = _mm512_broadcast_i32x4(
        _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
    const __m512i words = _mm512_setr_epi32(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 3, 7, 11, 15);
    for (const auto& part : v.part) {
        _mm512_mask_storeu_epi32(
            p, 0x0FFF, _mm512_permutexvar_epi32(words, _mm512_shuffle_epi8(asInt(part), gather)));
        p += 48;
    }
#endif
}

}  // namespace vlq
