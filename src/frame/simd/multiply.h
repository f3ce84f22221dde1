// Exact products: integers of twice the width.
#pragma once

#include "frame/simd/ops.h"

namespace vlq {

#if VLQ_SIMD_BYTES == 16
#define VLQ_INTRINSIC(name) _mm_##name
#elif VLQ_SIMD_BYTES == 32
#define VLQ_INTRINSIC(name) _mm256_##name
#else
#define VLQ_INTRINSIC(name) _mm512_##name
#endif

// ---- lane order ------------------------------------------------------------------------------------
// The order in which a 16-byte unpack leaves widened elements; a pack of the two parts undoes it.
// It costs no moves between 16-byte lanes.
namespace detail {
template <class Wide, class Register>
inline Block<Wide, 2> unpackBytes(Register low, Register high) {
    return {{fromRegister<Wide>(VLQ_INTRINSIC(unpacklo_epi8)(low, high)), fromRegister<Wide>(VLQ_INTRINSIC(unpackhi_epi8)(low, high))}};
}
template <class Wide, class Register>
inline Block<Wide, 2> unpackWords(Register low, Register high) {
    return {{fromRegister<Wide>(VLQ_INTRINSIC(unpacklo_epi16)(low, high)), fromRegister<Wide>(VLQ_INTRINSIC(unpackhi_epi16)(low, high))}};
}
}  // namespace detail

// From lane order to memory order.
template <class T>
inline Block<T, 2> inMemoryOrder(Block<T, 2> v) {
    const auto a = asInt(v.part[0]), b = asInt(v.part[1]);
#if VLQ_SIMD_BYTES == 16
    return {{fromRegister<T>(a), fromRegister<T>(b)}};
#elif VLQ_SIMD_BYTES == 32
    return {{fromRegister<T>(_mm256_permute2x128_si256(a, b, 0x20)), fromRegister<T>(_mm256_permute2x128_si256(a, b, 0x31))}};
#else
    return {{fromRegister<T>(_mm512_permutex2var_epi64(a, _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11), b)),
             fromRegister<T>(_mm512_permutex2var_epi64(a, _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15), b))}};
#endif
}

// ---- products in lane order --------------------------------------------------------------------------
inline Block<std::uint16_t, 2> productLanes(Vec<std::uint8_t> a, Vec<std::uint8_t> b) {
    const auto zero = asInt(Vec<std::uint8_t>::zero());
    const auto x = detail::unpackBytes<std::uint16_t>(asInt(a), zero), y = detail::unpackBytes<std::uint16_t>(asInt(b), zero);
    return {{x.part[0] * y.part[0], x.part[1] * y.part[1]}};
}
inline Block<std::int32_t, 2> productLanes(Vec<std::int16_t> a, Vec<std::int16_t> b) {
    return detail::unpackWords<std::int32_t>(VLQ_INTRINSIC(mullo_epi16)(asInt(a), asInt(b)), VLQ_INTRINSIC(mulhi_epi16)(asInt(a), asInt(b)));
}
inline Block<std::uint32_t, 2> productLanes(Vec<std::uint16_t> a, Vec<std::uint16_t> b) {
    return detail::unpackWords<std::uint32_t>(VLQ_INTRINSIC(mullo_epi16)(asInt(a), asInt(b)), VLQ_INTRINSIC(mulhi_epu16)(asInt(a), asInt(b)));
}
inline Block<std::int32_t, 2> productLanes(Vec<std::uint16_t> a, Vec<std::int16_t> b) {
    // As unsigned a negative b is 2^16 too much, and the upper word of the product is a too much.
    const auto excess = a & bitCast<std::uint16_t>(shiftRight(b, 15));
    const auto upper = fromRegister<std::uint16_t>(VLQ_INTRINSIC(mulhi_epu16)(asInt(a), asInt(b))) - excess;
    return detail::unpackWords<std::int32_t>(VLQ_INTRINSIC(mullo_epi16)(asInt(a), asInt(b)), asInt(upper));
}

#undef VLQ_INTRINSIC

}  // namespace vlq
