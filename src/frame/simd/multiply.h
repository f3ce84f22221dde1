// Exact products: integers of twice the width.
#pragma once

#include "frame/simd/convert.h"
#include "frame/simd/ops.h"

namespace vlq {

#if VLQ_SIMD_BYTES == 16
#define VLQ_INTRINSIC(name) _mm_##name
#elif VLQ_SIMD_BYTES == 32
#define VLQ_INTRINSIC(name) _mm256_##name
#else
#define VLQ_INTRINSIC(name) _mm512_##name
#endif

// ---- lane order ---------------------------------------------------------------------------------
// The order in which unpack instructions leave widened elements; a pack of both parts undoes it. It
// needs no moves across 16-byte lanes.
namespace detail {
template <class Wide, class Register>
inline Block<Wide, 2> unpackBytes(Register low, Register high) {
    return {{fromRegister<Wide>(VLQ_INTRINSIC(unpacklo_epi8)(low, high)),
             fromRegister<Wide>(VLQ_INTRINSIC(unpackhi_epi8)(low, high))}};
}
template <class Wide, class Register>
inline Block<Wide, 2> unpackWords(Register low, Register high) {
    return {{fromRegister<Wide>(VLQ_INTRINSIC(unpacklo_epi16)(low, high)),
             fromRegister<Wide>(VLQ_INTRINSIC(unpackhi_epi16)(low, high))}};
}
}  // namespace detail

// From lane order to memory order.
template <class T>
inline Block<T, 2> inMemoryOrder(Block<T, 2> v) {
    const auto a = asInt(v.part[0]), b = asInt(v.part[1]);
#if VLQ_SIMD_BYTES == 16
    return {{fromRegister<T>(a), fromRegister<T>(b)}};
#elif VLQ_SIMD_BYTES == 32
    return {{fromRegister<T>(_mm256_permute2x128_si256(a, b, 0x20)),
             fromRegister<T>(_mm256_permute2x128_si256(a, b, 0x31))}};
#else
    return {{fromRegister<T>(
                 _mm512_permutex2var_epi64(a, _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11), b)),
             fromRegister<T>(
                 _mm512_permutex2var_epi64(a, _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15), b))}};
#endif
}

// ---- halves of products -------------------------------------------------------------------------
// The upper 16 bits of the products; the lower ones are a * b.
inline Vec<std::int16_t> productUpper(Vec<std::int16_t> a, Vec<std::int16_t> b) {
    return fromRegister<std::int16_t>(VLQ_INTRINSIC(mulhi_epi16)(asInt(a), asInt(b)));
}
inline Vec<std::int16_t> productUpper(Vec<std::uint16_t> a, Vec<std::int16_t> b) {
    // As unsigned, a negative b is 2^16 too large, and the upper half of the product a too large.
    const auto excess = a & bitCast<std::uint16_t>(shiftRight(b, 15));
    return bitCast<std::int16_t>(
        fromRegister<std::uint16_t>(VLQ_INTRINSIC(mulhi_epu16)(asInt(a), asInt(b))) - excess);
}

// ---- products in lane order ---------------------------------------------------------------------
inline Block<std::uint16_t, 2> productLanes(Vec<std::uint8_t> a, Vec<std::uint8_t> b) {
    const auto zero = asInt(Vec<std::uint8_t>::zero());
    const auto x = detail::unpackBytes<std::uint16_t>(asInt(a), zero),
               y = detail::unpackBytes<std::uint16_t>(asInt(b), zero);
    return {{x.part[0] * y.part[0], x.part[1] * y.part[1]}};
}
inline Block<std::int32_t, 2> productLanes(Vec<std::int16_t> a, Vec<std::int16_t> b) {
    return detail::unpackWords<std::int32_t>(VLQ_INTRINSIC(mullo_epi16)(asInt(a), asInt(b)),
                                             VLQ_INTRINSIC(mulhi_epi16)(asInt(a), asInt(b)));
}
inline Block<std::uint32_t, 2> productLanes(Vec<std::uint16_t> a, Vec<std::uint16_t> b) {
    return detail::unpackWords<std::uint32_t>(VLQ_INTRINSIC(mullo_epi16)(asInt(a), asInt(b)),
                                              VLQ_INTRINSIC(mulhi_epu16)(asInt(a), asInt(b)));
}
inline Block<std::int32_t, 2> productLanes(Vec<std::uint16_t> a, Vec<std::int16_t> b) {
    return detail::unpackWords<std::int32_t>(VLQ_INTRINSIC(mullo_epi16)(asInt(a), asInt(b)),
                                             asInt(productUpper(a, b)));
}

// c + a * b, where it fits: c is a product with one.
inline Block<std::int32_t, 2> productLanesPlus(Vec<std::int16_t> a, Vec<std::int16_t> b,
                                               Vec<std::int16_t> c) {
    const auto one = asInt(Vec<std::int16_t>::broadcast(1));
    return {{fromRegister<std::int32_t>(
                 VLQ_INTRINSIC(madd_epi16)(VLQ_INTRINSIC(unpacklo_epi16)(asInt(a), asInt(c)),
                                           VLQ_INTRINSIC(unpacklo_epi16)(asInt(b), one))),
             fromRegister<std::int32_t>(
                 VLQ_INTRINSIC(madd_epi16)(VLQ_INTRINSIC(unpackhi_epi16)(asInt(a), asInt(c)),
                                           VLQ_INTRINSIC(unpackhi_epi16)(asInt(b), one)))}};
}

// Elements of both signs, widened.
inline Block<std::int32_t, 2> widenLanes(Vec<std::int16_t> v) {
    return detail::unpackWords<std::int32_t>(asInt(v), asInt(shiftRight(v, 15)));
}

// ---- narrowing from lane order, saturating ------------------------------------------------------
template <class To>
requires std::is_same_v<To, std::int16_t>
inline Vec<To> narrowLanes(Block<std::int32_t, 2> v) {
    return fromRegister<To>(VLQ_INTRINSIC(packs_epi32)(asInt(v.part[0]), asInt(v.part[1])));
}
// From values below 2^31.
template <class To>
requires std::is_same_v<To, std::uint16_t>
inline Vec<To> narrowLanes(Block<std::uint32_t, 2> v) {
#if VLQ_SIMD_BYTES == 16
    const auto half = Vec<std::uint32_t>::broadcast(0x8000);
    return fromRegister<To>(_mm_packs_epi32(asInt(v.part[0] - half), asInt(v.part[1] - half))) ^
           Vec<To>::broadcast(0x8000);
#else
    return fromRegister<To>(VLQ_INTRINSIC(packus_epi32)(asInt(v.part[0]), asInt(v.part[1])));
#endif
}
// From values below 2^15.
template <class To>
requires std::is_same_v<To, std::uint8_t>
inline Vec<To> narrowLanes(Block<std::uint16_t, 2> v) {
    return fromRegister<To>(VLQ_INTRINSIC(packus_epi16)(asInt(v.part[0]), asInt(v.part[1])));
}

// ---- saturating products ------------------------------------------------------------------------
inline Vec<std::uint16_t> productSat(Vec<std::uint16_t> a, Vec<std::uint16_t> b) {
    const auto upper = fromRegister<std::uint16_t>(VLQ_INTRINSIC(mulhi_epu16)(asInt(a), asInt(b)));
    return (a * b) | ~bitCast<std::uint16_t>(upper == Vec<std::uint16_t>::zero());
}
inline Vec<std::uint8_t> productSat(Vec<std::uint8_t> a, Vec<std::uint8_t> b) {
    const auto e = productLanes(a, b);
    const auto top = Vec<std::uint16_t>::broadcast(255);
    return narrowLanes<std::uint8_t>(
        {{e.part[0] - subSat(e.part[0], top), e.part[1] - subSat(e.part[1], top)}});
}

// ---- complex products of 16-bit parts -----------------------------------------------------------
// Real and imaginary parts, ac - bd and ad + bc, of each lane's value. The one part that does not
// fit is 2^31, of four times -2^15; 2^31 - 1 takes its place, which scales and saturates alike.
inline Block<std::int32_t, 2> productParts(Vec<std::int32_t> x, Vec<std::int32_t> y) {
    using V = Vec<std::int32_t>;
    // -d may not fit either: ac + b(-1 - d) + b.
    const V notIm = y ^ V::broadcast(static_cast<std::int32_t>(0xFFFF0000u));
    const V swapped =
        shiftLeft(y, 16) | bitCast<std::int32_t>(shiftRight(bitCast<std::uint32_t>(y), 16));
    const V re = fromRegister<std::int32_t>(VLQ_INTRINSIC(madd_epi16)(asInt(x), asInt(notIm))) +
                 shiftRight(x, 16);
    const V im = fromRegister<std::int32_t>(VLQ_INTRINSIC(madd_epi16)(asInt(x), asInt(swapped)));
    return {{re, im + (im == V::broadcast(std::numeric_limits<std::int32_t>::min()))}};
}
// Parts to values of two 16-bit parts, saturating.
inline Vec<std::int32_t> joinParts(Block<std::int32_t, 2> v) {
    const auto re = asInt(v.part[0]), im = asInt(v.part[1]);
    return fromRegister<std::int32_t>(VLQ_INTRINSIC(packs_epi32)(
        VLQ_INTRINSIC(unpacklo_epi32)(re, im), VLQ_INTRINSIC(unpackhi_epi32)(re, im)));
}

// ---- products of 32 bits ------------------------------------------------------------------------
// Of the even lanes and of the odd lanes, in lanes of twice the width.
inline Vec<std::uint64_t> productEven(Vec<std::uint32_t> a, Vec<std::uint32_t> b) {
    return fromRegister<std::uint64_t>(VLQ_INTRINSIC(mul_epu32)(asInt(a), asInt(b)));
}
inline Vec<std::uint64_t> productOdd(Vec<std::uint32_t> a, Vec<std::uint32_t> b) {
    const auto x = shiftRight(bitCast<std::uint64_t>(a), 32),
               y = shiftRight(bitCast<std::uint64_t>(b), 32);
    return fromRegister<std::uint64_t>(VLQ_INTRINSIC(mul_epu32)(asInt(x), asInt(y)));
}
#if VLQ_SIMD_BYTES >= 32
// Of the lower 32 bits of each lane, signed; SSE2 has no instruction for it.
inline Vec<std::int64_t> productLower(Vec<std::int64_t> a, Vec<std::int64_t> b) {
    return fromRegister<std::int64_t>(VLQ_INTRINSIC(mul_epi32)(asInt(a), asInt(b)));
}
#endif
// The low 32 bits of both, back in their lanes.
inline Vec<std::uint32_t> joinEvenOdd(Vec<std::uint64_t> even, Vec<std::uint64_t> odd) {
    const auto low = even & Vec<std::uint64_t>::broadcast(0xFFFFFFFF);
    return bitCast<std::uint32_t>(low | shiftLeft(odd, 32));
}

#undef VLQ_INTRINSIC

}  // namespace vlq
