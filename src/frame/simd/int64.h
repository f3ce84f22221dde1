// Conversions of 64-bit integers, which only AVX-512 has as instructions.
#pragma once

#include "frame/simd/convert.h"
#include "frame/simd/ops.h"

namespace vlq {

inline Vec<std::int32_t> narrowSat(Block<std::int64_t, 2> v) {
#if VLQ_SIMD_BYTES == 64
    return joinHalves(fromRegister<std::int32_t>(_mm512_cvtsepi64_epi32(asInt(v.part[0]))),
                      fromRegister<std::int32_t>(_mm512_cvtsepi64_epi32(asInt(v.part[1]))));
#else
    using V = Vec<std::int32_t>;
#if VLQ_SIMD_BYTES == 16
    const __m128 a = _mm_castsi128_ps(asInt(v.part[0])), b = _mm_castsi128_ps(asInt(v.part[1]));
    const V low = bitCast<std::int32_t>(Vec<float>(_mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0))));
    const V high = bitCast<std::int32_t>(Vec<float>(_mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1))));
#else
    const __m256 a = _mm256_castsi256_ps(asInt(v.part[0])),
                 b = _mm256_castsi256_ps(asInt(v.part[1]));
    const V low =
        bitCast<std::int32_t>(Vec<float>(_mm256_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0))));
    const V high =
        bitCast<std::int32_t>(Vec<float>(_mm256_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1))));
#endif
    const V limit = shiftRight(high, 31) ^ V::broadcast(std::numeric_limits<std::int32_t>::max());
    const V result = select(shiftRight(low, 31) == high, low, limit);
#if VLQ_SIMD_BYTES == 16
    return result;
#else
    return fromRegister<std::int32_t>(detail::inOrder(asInt(result)));
#endif
#endif
}

// Rounded in the current rounding mode.
inline Vec<double> toDouble(Vec<std::int64_t> v) {
#if VLQ_SIMD_BYTES == 64
    return Vec<double>(_mm512_cvtepi64_pd(asInt(v)));
#else
    // The low 32 bits in the significand of 2^52, the high 32, offset by 2^31, in that of 2^84. The
    // difference is exact, so there is one rounding.
    using I = Vec<std::int64_t>;
    const I low = (v & I::broadcast(0xFFFFFFFF)) | I::broadcast(0x4330000000000000);
    const I high = bitCast<std::int64_t>(shiftRight(bitCast<std::uint64_t>(v), 32)) ^
                   I::broadcast(0x4530000080000000);
    const Vec<double> sum = bitCast<double>(high) -
                            Vec<double>::broadcast(0x1p84 + 0x1p63 + 0x1p52) + bitCast<double>(low);
    // In the round-down mode 0 comes out as -0: the sign is the integer's.
    return sum & bitCast<double>(v | I::broadcast(std::numeric_limits<std::int64_t>::max()));
#endif
}

// Doubles to 64-bit integers: out of range, NaN and the rounding mode as in the 32-bit conversions.
#if VLQ_SIMD_BYTES == 64
inline Vec<std::int64_t> toNearest64(Vec<double> v) {
    return fromRegister<std::int64_t>(_mm512_cvt_roundpd_epi64(v.raw, detail::kNearest));
}
inline Vec<std::int64_t> toZero64(Vec<double> v) {
    return fromRegister<std::int64_t>(_mm512_cvttpd_epi64(v.raw));
}
#else
// One lane at a time: as fast as bit manipulation in vectors.
inline Vec<std::int64_t> toNearest64(Vec<double> v) {
    Vec<std::int64_t> result;
    for (int i = 0; i < Vec<double>::lanes; ++i) result.raw[i] = _mm_cvtsd_si64(_mm_set_sd(v[i]));
    return result;
}
inline Vec<std::int64_t> toZero64(Vec<double> v) {
    Vec<std::int64_t> result;
    for (int i = 0; i < Vec<double>::lanes; ++i) result.raw[i] = _mm_cvttsd_si64(_mm_set_sd(v[i]));
    return result;
}
#endif
inline Vec<std::int64_t> toNearestAway64(Vec<double> v) {
    return toZero64(detail::plusAlmostHalf(v));
}

}  // namespace vlq
