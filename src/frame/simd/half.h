// Conversions between IEEE 754 binary16 (as bits in 16-bit lanes) and binary32. A NaN keeps its
// sign and the top bits of its payload and becomes quiet.
#pragma once

#include "frame/simd/convert.h"
#include "frame/simd/ops.h"

namespace vlq {

#if VLQ_SIMD_BYTES == 16
// SSE2 has no instructions for them. Rounding to nearest relies on the current rounding mode.
inline constexpr bool kHalfUsesControlWord = true;

namespace detail {

// The half in the upper 16 bits of each lane.
inline Vec<float> upperHalfToFloat(Vec<std::int32_t> half) {
    using I = Vec<std::int32_t>;
    const I sign = half & I::broadcast(std::numeric_limits<std::int32_t>::min());
    const I magnitude = shiftRight(half ^ sign, 3);
    const I rebias = I::broadcast((127 - 15) << 23);
    // Exponent 31, infinity or NaN, becomes 255, and a NaN quiet.
    const I isSpecial = magnitude > I::broadcast(0x0F7FFFFF);
    const I isNaN = magnitude > I::broadcast(0x0F800000);
    const I normal =
        (magnitude + rebias + (isSpecial & rebias)) | (isNaN & I::broadcast(0x00400000));
    // A subnormal's fraction goes below the leading one of 2^-14, which is then subtracted: exact.
    const I isSmall = magnitude < I::broadcast(1 << 23);
    const Vec<float> least = Vec<float>::broadcast(0x1p-14f);
    const I small = bitCast<std::int32_t>(
        absolute(bitCast<float>(magnitude | bitCast<std::int32_t>(least)) - least));
    return bitCast<float>(select(isSmall, small, normal) | sign);
}

// The half in the lower 16 bits of each lane, and copies of its sign above.
template <bool kNearest>
inline Vec<std::int32_t> floatToLowerHalf(Vec<float> v) {
    using I = Vec<std::int32_t>;
    const Vec<float> a = absolute(v);
    const I magnitude = bitCast<std::int32_t>(a);
    // A value too large becomes 2^16, infinity once rebiased, or the largest half.
    const Vec<float> top = Vec<float>::broadcast(kNearest ? 65536.0f : 65504.0f);
    I normal = bitCast<std::int32_t>(minimum(a, top)) - I::broadcast((127 - 15) << 23);
    // Thirteen bits are dropped; a carry propagates into the exponent.
    if (kNearest)
        normal = normal + I::broadcast(0xFFF) + (shiftRight(normal, 13) & I::broadcast(1));
    normal = shiftRight(normal, 13);
    if (!kNearest) normal = normal - (magnitude == I::broadcast(0x7F800000));
    // Below 2^-14 halves are the multiples of 2^-24.
    const I isSmall = magnitude < I::broadcast((127 - 14) << 23);
    const Vec<float> steps = a * Vec<float>::broadcast(0x1p24f);
    const I small = kNearest ? toNearest(steps) : toZero(steps);

    const I isNaN = magnitude > I::broadcast(0x7F800000);
    const I quiet = (shiftRight(magnitude, 13) & I::broadcast(0x3FF)) | I::broadcast(0x7E00);
    const I sign = shiftRight(bitCast<std::int32_t>(v), 31) & I::broadcast(-0x8000);
    return select(isNaN, quiet, select(isSmall, small, normal)) | sign;
}

}  // namespace detail

inline Block<float, 2> halfToFloat(Vec<std::uint16_t> half) {
    const __m128i x = asInt(half), zero = _mm_setzero_si128();
    return {{detail::upperHalfToFloat(fromRegister<std::int32_t>(_mm_unpacklo_epi16(zero, x))),
             detail::upperHalfToFloat(fromRegister<std::int32_t>(_mm_unpackhi_epi16(zero, x)))}};
}
template <bool kNearest>
inline Vec<std::uint16_t> floatToHalf(Block<float, 2> v) {
    return bitCast<std::uint16_t>(narrowSat<std::int16_t>(
        Block<std::int32_t, 2>{{detail::floatToLowerHalf<kNearest>(v.part[0]),
                                detail::floatToLowerHalf<kNearest>(v.part[1])}}));
}

#elif VLQ_SIMD_BYTES == 32
inline constexpr bool kHalfUsesControlWord = false;

inline Block<float, 2> halfToFloat(Vec<std::uint16_t> half) {
    return {{Vec<float>(_mm256_cvtph_ps(asInt(lowHalf(half)))),
             Vec<float>(_mm256_cvtph_ps(asInt(highHalf(half))))}};
}
template <bool kNearest>
inline Vec<std::uint16_t> floatToHalf(Block<float, 2> v) {
    constexpr int mode = kNearest ? _MM_FROUND_TO_NEAREST_INT : _MM_FROUND_TO_ZERO;
    return joinHalves(fromRegister<std::uint16_t>(_mm256_cvtps_ph(v.part[0].raw, mode)),
                      fromRegister<std::uint16_t>(_mm256_cvtps_ph(v.part[1].raw, mode)));
}

#else
inline constexpr bool kHalfUsesControlWord = false;

inline Block<float, 2> halfToFloat(Vec<std::uint16_t> half) {
    return {{Vec<float>(_mm512_cvtph_ps(asInt(lowHalf(half)))),
             Vec<float>(_mm512_cvtph_ps(asInt(highHalf(half))))}};
}
template <bool kNearest>
inline Vec<std::uint16_t> floatToHalf(Block<float, 2> v) {
    constexpr int mode =
        (kNearest ? _MM_FROUND_TO_NEAREST_INT : _MM_FROUND_TO_ZERO) | _MM_FROUND_NO_EXC;
    return joinHalves(fromRegister<std::uint16_t>(_mm512_cvtps_ph(v.part[0].raw, mode)),
                      fromRegister<std::uint16_t>(_mm512_cvtps_ph(v.part[1].raw, mode)));
}
#endif

}  // namespace vlq
