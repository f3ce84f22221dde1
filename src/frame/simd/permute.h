// Orders of bytes and lanes: byte swap inside elements, reversal of a whole vector, repetition.
#pragma once

#include "frame/simd/vec.h"

namespace vlq {

namespace detail {

// Swaps the bytes of each 16-bit lane.
inline __m128i swapWordBytes(__m128i v) {
    return _mm_or_si128(_mm_slli_epi16(v, 8), _mm_srli_epi16(v, 8));
}
// The four 16-bit lanes of each half in reverse.
inline __m128i reverseWordsOfHalves(__m128i v) {
    return _mm_shufflehi_epi16(_mm_shufflelo_epi16(v, 0x1B), 0x1B);
}

#if defined(__SSSE3__)
// Byte order inside 16 bytes that reverses the bytes of each element of Size bytes.
template <int Size>
inline __m128i swapOrder() {
    static_assert(Size == 2 || Size == 4 || Size == 8);
    if constexpr (Size == 2)
        return _mm_set_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1);
    else if constexpr (Size == 4)
        return _mm_set_epi8(12, 13, 14, 15, 8, 9, 10, 11, 4, 5, 6, 7, 0, 1, 2, 3);
    else
        return _mm_set_epi8(8, 9, 10, 11, 12, 13, 14, 15, 0, 1, 2, 3, 4, 5, 6, 7);
}
#endif

// Byte order inside 16 bytes that reverses elements of Size bytes.
template <int Size>
inline __m128i reverse16(__m128i v) {
    if constexpr (Size == 16)
        return v;
    else if constexpr (Size == 8)
        return _mm_shuffle_epi32(v, 0x4E);
    else if constexpr (Size == 4)
        return _mm_shuffle_epi32(v, 0x1B);
#if defined(__SSSE3__)
    else if constexpr (Size == 2)
        return _mm_shuffle_epi8(v,
                                _mm_set_epi8(1, 0, 3, 2, 5, 4, 7, 6, 9, 8, 11, 10, 13, 12, 15, 14));
    else
        return _mm_shuffle_epi8(v,
                                _mm_set_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
#else
    else if constexpr (Size == 2)
        return _mm_shuffle_epi32(reverseWordsOfHalves(v), 0x4E);
    else
        return _mm_shuffle_epi32(reverseWordsOfHalves(swapWordBytes(v)), 0x4E);
#endif
}

#if VLQ_SIMD_BYTES >= 32
template <int Size>
inline __m256i reverse32(__m256i v) {
    if constexpr (Size == 16)
        return _mm256_permute4x64_epi64(v, 0x4E);
    else if constexpr (Size == 8)
        return _mm256_permute4x64_epi64(v, 0x1B);
    else if constexpr (Size == 4)
        return _mm256_permutevar8x32_epi32(v, _mm256_set_epi32(0, 1, 2, 3, 4, 5, 6, 7));
    else {
        const __m128i order =
            reverse16<Size>(_mm_set_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
        return _mm256_permute4x64_epi64(_mm256_shuffle_epi8(v, _mm256_broadcastsi128_si256(order)),
                                        0x4E);
    }
}
#endif
#if VLQ_SIMD_BYTES >= 64
template <int Size>
inline __m512i reverse64(__m512i v) {
    if constexpr (Size == 16)
        return _mm512_shuffle_i64x2(v, v, 0x1B);
    else if constexpr (Size == 8)
        return _mm512_permutexvar_epi64(_mm512_set_epi64(0, 1, 2, 3, 4, 5, 6, 7), v);
    else if constexpr (Size == 4) {
        return _mm512_permutexvar_epi32(
            _mm512_set_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15), v);
    } else {
        const __m128i order =
            reverse16<Size>(_mm_set_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
        const __m512i inLanes = _mm512_shuffle_epi8(v, _mm512_broadcast_i32x4(order));
        return _mm512_shuffle_i64x2(inLanes, inLanes, 0x1B);
    }
}
#endif

}  // namespace detail

// The first To bytes of a vector, and its first eight as an integer. Opaque: GCC 12 otherwise keeps
// the whole vector in general registers.
template <int To, class T, int B>
inline Vec<T, To> firstBytes(Vec<T, B> v) {
    if constexpr (To == B)
        return v;
    else
        return firstBytes<To>(lowHalf(v));
}
template <class T, int B>
inline std::uint64_t firstWord(Vec<T, B> v) {
    return static_cast<std::uint64_t>(_mm_cvtsi128_si64(asInt(opaque(firstBytes<16>(v)))));
}

// The two values in alternating lanes.
inline Vec<std::int64_t> alternating(std::int64_t even, std::int64_t odd) {
    const __m128i pair = _mm_set_epi64x(odd, even);
#if VLQ_SIMD_BYTES == 16
    return fromRegister<std::int64_t>(pair);
#elif VLQ_SIMD_BYTES == 32
    return fromRegister<std::int64_t>(_mm256_broadcastsi128_si256(pair));
#else
    return fromRegister<std::int64_t>(_mm512_broadcast_i32x4(pair));
#endif
}

// The elements of Size bytes (1, 2, 4, 8, 16) in reverse order.
template <int Size, class T, int B>
inline Vec<T, B> reversed(Vec<T, B> v) {
    if constexpr (B == 16) return fromRegister<T>(detail::reverse16<Size>(asInt(v)));
#if VLQ_SIMD_BYTES >= 32
    else if constexpr (B == 32)
        return fromRegister<T>(detail::reverse32<Size>(asInt(v)));
#endif
#if VLQ_SIMD_BYTES >= 64
    else if constexpr (B == 64)
        return fromRegister<T>(detail::reverse64<Size>(asInt(v)));
#endif
}

// The bytes of each lane in reverse order.
template <class T, int B>
inline Vec<T, B> byteSwapped(Vec<T, B> v) {
    constexpr int size = static_cast<int>(sizeof(T));
#if defined(__SSSE3__)
    const __m128i order = detail::swapOrder<size>();
    if constexpr (B == 16) return fromRegister<T>(_mm_shuffle_epi8(asInt(v), order));
#if VLQ_SIMD_BYTES >= 32
    else if constexpr (B == 32)
        return fromRegister<T>(_mm256_shuffle_epi8(asInt(v), _mm256_broadcastsi128_si256(order)));
#endif
#if VLQ_SIMD_BYTES >= 64
    else if constexpr (B == 64)
        return fromRegister<T>(_mm512_shuffle_epi8(asInt(v), _mm512_broadcast_i32x4(order)));
#endif
#else
    __m128i words = asInt(v);
    if constexpr (size == 4) words = _mm_shufflehi_epi16(_mm_shufflelo_epi16(words, 0xB1), 0xB1);
    if constexpr (size == 8) words = detail::reverseWordsOfHalves(words);
    return fromRegister<T>(detail::swapWordBytes(words));
#endif
}

// Five elements of three bytes, the bytes of each in reverse order; the sixteenth byte stays.
inline Vec<unsigned char, 16> tripleBytesSwapped(Vec<unsigned char, 16> v) {
#if defined(__SSSE3__)
    const __m128i order = _mm_set_epi8(15, 12, 13, 14, 9, 10, 11, 6, 7, 8, 3, 4, 5, 0, 1, 2);
    return fromRegister<unsigned char>(_mm_shuffle_epi8(asInt(v), order));
#else
    const __m128i x = asInt(v);
    const __m128i first = _mm_set_epi8(0, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1);
    const __m128i third = _mm_slli_si128(first, 2);
    const __m128i middle = _mm_set_epi8(-1, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0);
    const __m128i fromThird = _mm_and_si128(_mm_srli_si128(x, 2), first);
    const __m128i fromFirst = _mm_and_si128(_mm_slli_si128(x, 2), third);
    return fromRegister<unsigned char>(
        _mm_or_si128(_mm_and_si128(x, middle), _mm_or_si128(fromThird, fromFirst)));
#endif
}

}  // namespace vlq
