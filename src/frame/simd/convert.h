// Vectors of one type from vectors of another, elements in memory order.
#pragma once

#include <limits>

#include "frame/simd/vec.h"

namespace vlq {

// ---- integers to integers of twice the width ----------------------------------------------------
#if VLQ_SIMD_BYTES == 16
inline Block<std::int16_t, 2> widen(Vec<std::int8_t> v) {
    const __m128i x = asInt(v), sign = _mm_cmpgt_epi8(_mm_setzero_si128(), x);
    return {{fromRegister<std::int16_t>(_mm_unpacklo_epi8(x, sign)),
             fromRegister<std::int16_t>(_mm_unpackhi_epi8(x, sign))}};
}
inline Block<std::uint16_t, 2> widen(Vec<std::uint8_t> v) {
    const __m128i x = asInt(v), zero = _mm_setzero_si128();
    return {{fromRegister<std::uint16_t>(_mm_unpacklo_epi8(x, zero)),
             fromRegister<std::uint16_t>(_mm_unpackhi_epi8(x, zero))}};
}
inline Block<std::int32_t, 2> widen(Vec<std::int16_t> v) {
    const __m128i x = asInt(v), sign = _mm_srai_epi16(x, 15);
    return {{fromRegister<std::int32_t>(_mm_unpacklo_epi16(x, sign)),
             fromRegister<std::int32_t>(_mm_unpackhi_epi16(x, sign))}};
}
inline Block<std::uint32_t, 2> widen(Vec<std::uint16_t> v) {
    const __m128i x = asInt(v), zero = _mm_setzero_si128();
    return {{fromRegister<std::uint32_t>(_mm_unpacklo_epi16(x, zero)),
             fromRegister<std::uint32_t>(_mm_unpackhi_epi16(x, zero))}};
}
inline Block<std::int32_t, 4> widenTwice(Vec<std::int8_t> v) {
    const auto words = widen(v);
    const auto low = widen(words.part[0]), high = widen(words.part[1]);
    return {{low.part[0], low.part[1], high.part[0], high.part[1]}};
}
inline Block<std::uint32_t, 4> widenTwice(Vec<std::uint8_t> v) {
    const auto words = widen(v);
    const auto low = widen(words.part[0]), high = widen(words.part[1]);
    return {{low.part[0], low.part[1], high.part[0], high.part[1]}};
}
#else
namespace detail {
#if VLQ_SIMD_BYTES == 32
inline __m256i extend(Vec<std::int8_t, 16> v) { return _mm256_cvtepi8_epi16(asInt(v)); }
inline __m256i extend(Vec<std::uint8_t, 16> v) { return _mm256_cvtepu8_epi16(asInt(v)); }
inline __m256i extend(Vec<std::int16_t, 16> v) { return _mm256_cvtepi16_epi32(asInt(v)); }
inline __m256i extend(Vec<std::uint16_t, 16> v) { return _mm256_cvtepu16_epi32(asInt(v)); }
#else
inline __m512i extend(Vec<std::int8_t, 32> v) { return _mm512_cvtepi8_epi16(asInt(v)); }
inline __m512i extend(Vec<std::uint8_t, 32> v) { return _mm512_cvtepu8_epi16(asInt(v)); }
inline __m512i extend(Vec<std::int16_t, 32> v) { return _mm512_cvtepi16_epi32(asInt(v)); }
inline __m512i extend(Vec<std::uint16_t, 32> v) { return _mm512_cvtepu16_epi32(asInt(v)); }
#endif
template <class Wide, class T>
inline Block<Wide, 2> widenHalves(Vec<T> v) {
    return {{fromRegister<Wide>(extend(lowHalf(v))), fromRegister<Wide>(extend(highHalf(v)))}};
}
}  // namespace detail
inline Block<std::int16_t, 2> widen(Vec<std::int8_t> v) {
    return detail::widenHalves<std::int16_t>(v);
}
inline Block<std::uint16_t, 2> widen(Vec<std::uint8_t> v) {
    return detail::widenHalves<std::uint16_t>(v);
}
inline Block<std::int32_t, 2> widen(Vec<std::int16_t> v) {
    return detail::widenHalves<std::int32_t>(v);
}
inline Block<std::uint32_t, 2> widen(Vec<std::uint16_t> v) {
    return detail::widenHalves<std::uint32_t>(v);
}

#if VLQ_SIMD_BYTES == 32
inline Block<std::int32_t, 4> widenTwice(Vec<std::int8_t> v) {
    const __m128i low = asInt(lowHalf(v)), high = asInt(highHalf(v));
    using T = std::int32_t;
    return {{fromRegister<T>(_mm256_cvtepi8_epi32(low)),
             fromRegister<T>(_mm256_cvtepi8_epi32(_mm_srli_si128(low, 8))),
             fromRegister<T>(_mm256_cvtepi8_epi32(high)),
             fromRegister<T>(_mm256_cvtepi8_epi32(_mm_srli_si128(high, 8)))}};
}
inline Block<std::uint32_t, 4> widenTwice(Vec<std::uint8_t> v) {
    const __m128i low = asInt(lowHalf(v)), high = asInt(highHalf(v));
    using T = std::uint32_t;
    return {{fromRegister<T>(_mm256_cvtepu8_epi32(low)),
             fromRegister<T>(_mm256_cvtepu8_epi32(_mm_srli_si128(low, 8))),
             fromRegister<T>(_mm256_cvtepu8_epi32(high)),
             fromRegister<T>(_mm256_cvtepu8_epi32(_mm_srli_si128(high, 8)))}};
}
#else
inline Block<std::int32_t, 4> widenTwice(Vec<std::int8_t> v) {
    const __m512i x = asInt(v);
    using T = std::int32_t;
    return {{fromRegister<T>(_mm512_cvtepi8_epi32(_mm512_castsi512_si128(x))),
             fromRegister<T>(_mm512_cvtepi8_epi32(_mm512_extracti32x4_epi32(x, 1))),
             fromRegister<T>(_mm512_cvtepi8_epi32(_mm512_extracti32x4_epi32(x, 2))),
             fromRegister<T>(_mm512_cvtepi8_epi32(_mm512_extracti32x4_epi32(x, 3)))}};
}
inline Block<std::uint32_t, 4> widenTwice(Vec<std::uint8_t> v) {
    const __m512i x = asInt(v);
    using T = std::uint32_t;
    return {{fromRegister<T>(_mm512_cvtepu8_epi32(_mm512_castsi512_si128(x))),
             fromRegister<T>(_mm512_cvtepu8_epi32(_mm512_extracti32x4_epi32(x, 1))),
             fromRegister<T>(_mm512_cvtepu8_epi32(_mm512_extracti32x4_epi32(x, 2))),
             fromRegister<T>(_mm512_cvtepu8_epi32(_mm512_extracti32x4_epi32(x, 3)))}};
}
#endif
#endif

// ---- integers to integers of half the width, saturating -----------------------------------------
namespace detail {
// The pack instructions of the wider builds work within lanes of 16 bytes; this puts the 8-byte
// parts of their result in memory order.
#if VLQ_SIMD_BYTES == 16
inline __m128i inOrder(__m128i packed) { return packed; }
inline __m128i packWords(__m128i a, __m128i b) { return _mm_packs_epi32(a, b); }
inline __m128i packBytes(__m128i a, __m128i b) { return _mm_packs_epi16(a, b); }
inline __m128i packUnsignedBytes(__m128i a, __m128i b) { return _mm_packus_epi16(a, b); }
inline __m128i packUnsignedWords(__m128i a, __m128i b) {
    // Negatives to zero, then a signed pack of the values less 2^15.
    const __m128i half = _mm_set1_epi32(0x8000);
    a = _mm_sub_epi32(_mm_andnot_si128(_mm_srai_epi32(a, 31), a), half);
    b = _mm_sub_epi32(_mm_andnot_si128(_mm_srai_epi32(b, 31), b), half);
    return _mm_xor_si128(_mm_packs_epi32(a, b), _mm_set1_epi16(static_cast<short>(0x8000)));
}
// The same for 8-bit lanes packed twice from 32-bit lanes.
inline __m128i inOrderTwice(__m128i packed) { return packed; }
#elif VLQ_SIMD_BYTES == 32
inline __m256i inOrder(__m256i packed) {
    return _mm256_permute4x64_epi64(packed, _MM_SHUFFLE(3, 1, 2, 0));
}
inline __m256i packWords(__m256i a, __m256i b) { return _mm256_packs_epi32(a, b); }
inline __m256i packBytes(__m256i a, __m256i b) { return _mm256_packs_epi16(a, b); }
inline __m256i packUnsignedBytes(__m256i a, __m256i b) { return _mm256_packus_epi16(a, b); }
inline __m256i packUnsignedWords(__m256i a, __m256i b) { return _mm256_packus_epi32(a, b); }
inline __m256i inOrderTwice(__m256i packed) {
    return _mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
}
#else
inline __m512i inOrder(__m512i packed) {
    return _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), packed);
}
inline __m512i packWords(__m512i a, __m512i b) { return _mm512_packs_epi32(a, b); }
inline __m512i packBytes(__m512i a, __m512i b) { return _mm512_packs_epi16(a, b); }
inline __m512i packUnsignedBytes(__m512i a, __m512i b) { return _mm512_packus_epi16(a, b); }
inline __m512i packUnsignedWords(__m512i a, __m512i b) { return _mm512_packus_epi32(a, b); }
inline __m512i inOrderTwice(__m512i packed) {
    return _mm512_permutexvar_epi32(
        _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15), packed);
}
#endif
}  // namespace detail

template <class To>
requires(sizeof(To) == 2) inline Vec<To> narrowSat(Block<std::int32_t, 2> v) {
    const auto a = asInt(v.part[0]), b = asInt(v.part[1]);
    if constexpr (std::is_signed_v<To>)
        return fromRegister<To>(detail::inOrder(detail::packWords(a, b)));
    else
        return fromRegister<To>(detail::inOrder(detail::packUnsignedWords(a, b)));
}
template <class To>
requires(sizeof(To) == 1) inline Vec<To> narrowSat(Block<std::int16_t, 2> v) {
    const auto a = asInt(v.part[0]), b = asInt(v.part[1]);
    if constexpr (std::is_signed_v<To>)
        return fromRegister<To>(detail::inOrder(detail::packBytes(a, b)));
    else
        return fromRegister<To>(detail::inOrder(detail::packUnsignedBytes(a, b)));
}
template <class To>
requires(sizeof(To) == 1) inline Vec<To> narrowSat(Block<std::int32_t, 4> v) {
    const auto low = detail::packWords(asInt(v.part[0]), asInt(v.part[1]));
    const auto high = detail::packWords(asInt(v.part[2]), asInt(v.part[3]));
    if constexpr (std::is_signed_v<To>)
        return fromRegister<To>(detail::inOrderTwice(detail::packBytes(low, high)));
    else
        return fromRegister<To>(detail::inOrderTwice(detail::packUnsignedBytes(low, high)));
}

// ---- 32-bit integers and floats -----------------------------------------------------------------
// Float results are rounded in the current rounding mode.
#if VLQ_SIMD_BYTES == 16
inline Vec<float> toFloat(Vec<std::int32_t> v) { return Vec<float>(_mm_cvtepi32_ps(asInt(v))); }
inline Block<double, 2> toDouble(Vec<std::int32_t> v) {
    const __m128i x = asInt(v);
    return {
        {Vec<double>(_mm_cvtepi32_pd(x)), Vec<double>(_mm_cvtepi32_pd(_mm_unpackhi_epi64(x, x)))}};
}
inline Block<double, 2> toDouble(Vec<float> v) {
    return {
        {Vec<double>(_mm_cvtps_pd(v.raw)), Vec<double>(_mm_cvtps_pd(_mm_movehl_ps(v.raw, v.raw)))}};
}
inline Vec<float> toFloat(Block<double, 2> v) {
    return Vec<float>(_mm_movelh_ps(_mm_cvtpd_ps(v.part[0].raw), _mm_cvtpd_ps(v.part[1].raw)));
}
#elif VLQ_SIMD_BYTES == 32
inline Vec<float> toFloat(Vec<std::int32_t> v) { return Vec<float>(_mm256_cvtepi32_ps(asInt(v))); }
inline Block<double, 2> toDouble(Vec<std::int32_t> v) {
    return {{Vec<double>(_mm256_cvtepi32_pd(asInt(lowHalf(v)))),
             Vec<double>(_mm256_cvtepi32_pd(asInt(highHalf(v))))}};
}
inline Block<double, 2> toDouble(Vec<float> v) {
    return {{Vec<double>(_mm256_cvtps_pd(lowHalf(v).raw)),
             Vec<double>(_mm256_cvtps_pd(highHalf(v).raw))}};
}
inline Vec<float> toFloat(Block<double, 2> v) {
    return Vec<float>(
        _mm256_set_m128(_mm256_cvtpd_ps(v.part[1].raw), _mm256_cvtpd_ps(v.part[0].raw)));
}
#else
inline Vec<float> toFloat(Vec<std::int32_t> v) { return Vec<float>(_mm512_cvtepi32_ps(asInt(v))); }
inline Block<double, 2> toDouble(Vec<std::int32_t> v) {
    return {{Vec<double>(_mm512_cvtepi32_pd(asInt(lowHalf(v)))),
             Vec<double>(_mm512_cvtepi32_pd(asInt(highHalf(v))))}};
}
inline Block<double, 2> toDouble(Vec<float> v) {
    return {{Vec<double>(_mm512_cvtps_pd(lowHalf(v).raw)),
             Vec<double>(_mm512_cvtps_pd(highHalf(v).raw))}};
}
inline Vec<float> toFloat(Block<double, 2> v) {
    const Vec<float, 32> low(_mm512_cvtpd_ps(v.part[0].raw)), high(_mm512_cvtpd_ps(v.part[1].raw));
    return joinHalves(low, high);
}
#endif

// ---- floats to integers -------------------------------------------------------------------------
// Out of range, and of NaN: the most negative integer. toZero drops the fraction; toNearest takes
// the even one of two equally near; toNearestAway the one farther from zero. The latter two rely on
// the default rounding mode, except where the instruction carries its own.
inline constexpr bool kRoundingInInstruction = VLQ_SIMD_BYTES == 64;

#if VLQ_SIMD_BYTES == 16
inline Vec<std::int32_t> toNearest(Vec<float> v) {
    return fromRegister<std::int32_t>(_mm_cvtps_epi32(v.raw));
}
inline Vec<std::int32_t> toZero(Vec<float> v) {
    return fromRegister<std::int32_t>(_mm_cvttps_epi32(v.raw));
}
inline Vec<std::int32_t> toNearest(Block<double, 2> v) {
    return fromRegister<std::int32_t>(
        _mm_unpacklo_epi64(_mm_cvtpd_epi32(v.part[0].raw), _mm_cvtpd_epi32(v.part[1].raw)));
}
inline Vec<std::int32_t> toZero(Block<double, 2> v) {
    return fromRegister<std::int32_t>(
        _mm_unpacklo_epi64(_mm_cvttpd_epi32(v.part[0].raw), _mm_cvttpd_epi32(v.part[1].raw)));
}
#elif VLQ_SIMD_BYTES == 32
inline Vec<std::int32_t> toNearest(Vec<float> v) {
    return fromRegister<std::int32_t>(_mm256_cvtps_epi32(v.raw));
}
inline Vec<std::int32_t> toZero(Vec<float> v) {
    return fromRegister<std::int32_t>(_mm256_cvttps_epi32(v.raw));
}
inline Vec<std::int32_t> toNearest(Block<double, 2> v) {
    return fromRegister<std::int32_t>(
        _mm256_set_m128i(_mm256_cvtpd_epi32(v.part[1].raw), _mm256_cvtpd_epi32(v.part[0].raw)));
}
inline Vec<std::int32_t> toZero(Block<double, 2> v) {
    return fromRegister<std::int32_t>(
        _mm256_set_m128i(_mm256_cvttpd_epi32(v.part[1].raw), _mm256_cvttpd_epi32(v.part[0].raw)));
}
#else
namespace detail {
inline constexpr int kNearest = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;
}
inline Vec<std::int32_t> toNearest(Vec<float> v) {
    return fromRegister<std::int32_t>(_mm512_cvt_roundps_epi32(v.raw, detail::kNearest));
}
inline Vec<std::int32_t> toZero(Vec<float> v) {
    return fromRegister<std::int32_t>(_mm512_cvttps_epi32(v.raw));
}
inline Vec<std::int32_t> toNearest(Block<double, 2> v) {
    return joinHalves(
        fromRegister<std::int32_t>(_mm512_cvt_roundpd_epi32(v.part[0].raw, detail::kNearest)),
        fromRegister<std::int32_t>(_mm512_cvt_roundpd_epi32(v.part[1].raw, detail::kNearest)));
}
inline Vec<std::int32_t> toZero(Block<double, 2> v) {
    return joinHalves(fromRegister<std::int32_t>(_mm512_cvttpd_epi32(v.part[0].raw)),
                      fromRegister<std::int32_t>(_mm512_cvttpd_epi32(v.part[1].raw)));
}
#endif

namespace detail {
// The largest value below one half, with the sign of v. Added to v it reaches the next integer
// from every tie on and from nothing below one, where one half itself would round up from
// 0.49999997.
template <class T>
inline Vec<T> plusAlmostHalf(Vec<T> v) {
    constexpr T almostHalf = T(0.5) - std::numeric_limits<T>::epsilon() / 4;
    const Vec<T> offset = Vec<T>::broadcast(almostHalf) | (v & Vec<T>::broadcast(T(-0.0)));
#if VLQ_SIMD_BYTES == 64
    if constexpr (sizeof(T) == 4)
        return Vec<T>(_mm512_add_round_ps(v.raw, offset.raw, kNearest));
    else
        return Vec<T>(_mm512_add_round_pd(v.raw, offset.raw, kNearest));
#else
    return v + offset;
#endif
}
}  // namespace detail
inline Vec<std::int32_t> toNearestAway(Vec<float> v) { return toZero(detail::plusAlmostHalf(v)); }
inline Vec<std::int32_t> toNearestAway(Block<double, 2> v) {
    return toZero(
        Block<double, 2>{{detail::plusAlmostHalf(v.part[0]), detail::plusAlmostHalf(v.part[1])}});
}

}  // namespace vlq
