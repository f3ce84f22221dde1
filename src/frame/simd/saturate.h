// Saturating integer arithmetic for the widths and shifts that have no instruction.
#pragma once

#include "frame/simd/ops.h"

namespace vlq {

template <class T>
concept SignedInteger = std::is_integral_v<T> && std::is_signed_v<T>;
template <class T>
concept UnsignedInteger = std::is_integral_v<T> && std::is_unsigned_v<T>;

// All bits where the lane is negative.
template <SignedInteger T, int B>
inline Vec<T, B> signMask(Vec<T, B> v) {
#if !defined(__AVX512VL__)
    if constexpr (sizeof(T) == 8) {
        // The sign of the upper 32 bits, in both halves.
        const auto words = shiftRight(bitCast<std::int32_t>(v), 31);
        if constexpr (B == 16) return fromRegister<T>(_mm_shuffle_epi32(asInt(words), 0xF5));
#if VLQ_SIMD_BYTES >= 32
        else
            return fromRegister<T>(_mm256_shuffle_epi32(asInt(words), 0xF5));
#endif
    } else
#endif
        return shiftRight(v, 8 * static_cast<int>(sizeof(T)) - 1);
}

// a > b where b - a cannot wrap, as of two lanes that are not negative.
template <SignedInteger T, int B>
inline Vec<T, B> isAbove(Vec<T, B> a, Vec<T, B> b) {
#if !defined(__SSE4_2__)
    if constexpr (sizeof(T) == 8)
        return signMask(b - a);
    else
#endif
        return a > b;
}

// Lane by lane `yes` where `sign` is negative, else `no`.
template <SignedInteger T, int B>
inline Vec<T, B> selectNegative(Vec<T, B> sign, Vec<T, B> yes, Vec<T, B> no) {
#if VLQ_SIMD_BYTES == 32
    if constexpr (B == 32 && sizeof(T) == 4) {
        return fromRegister<T>(_mm256_castps_si256(
            _mm256_blendv_ps(_mm256_castsi256_ps(asInt(no)), _mm256_castsi256_ps(asInt(yes)),
                             _mm256_castsi256_ps(asInt(sign)))));
    } else if constexpr (B == 32 && sizeof(T) == 8) {
        return fromRegister<T>(_mm256_castpd_si256(
            _mm256_blendv_pd(_mm256_castsi256_pd(asInt(no)), _mm256_castsi256_pd(asInt(yes)),
                             _mm256_castsi256_pd(asInt(sign)))));
    } else
#elif VLQ_SIMD_BYTES == 64
    if constexpr (B == 64 && sizeof(T) == 4) {
        return fromRegister<T>(
            _mm512_mask_mov_epi32(asInt(no), _mm512_movepi32_mask(asInt(sign)), asInt(yes)));
    } else if constexpr (B == 64 && sizeof(T) == 8) {
        return fromRegister<T>(
            _mm512_mask_mov_epi64(asInt(no), _mm512_movepi64_mask(asInt(sign)), asInt(yes)));
    } else
#endif
        return select(signMask(sign), yes, no);
}

// ---- sums and differences of 32 and 64 bits -----------------------------------------------------
template <class T>
concept WideInteger = std::is_integral_v<T> && sizeof(T) >= 4;

template <SignedInteger T, int B>
requires WideInteger<T>
inline Vec<T, B> addSat(Vec<T, B> a, Vec<T, B> b) {
    const auto lowest = Vec<T, B>::broadcast(std::numeric_limits<T>::min());
    const auto sum = a + b;
    // A sum that wrapped has the other sign than both operands.
    return selectNegative((a ^ sum) & ~(a ^ b), signMask(sum) ^ lowest, sum);
}
template <SignedInteger T, int B>
requires WideInteger<T>
inline Vec<T, B> subSat(Vec<T, B> a, Vec<T, B> b) {
    const auto lowest = Vec<T, B>::broadcast(std::numeric_limits<T>::min());
    const auto difference = a - b;
    return selectNegative((a ^ difference) & (a ^ b), signMask(difference) ^ lowest, difference);
}
template <UnsignedInteger T, int B>
requires WideInteger<T>
inline Vec<T, B> addSat(Vec<T, B> a, Vec<T, B> b) {
    using S = BitsOf<T>;
    const auto sum = a + b;
    // The carry out of the top bit, spread over the lane.
    const auto carry = bitCast<S>((a & b) | ((a | b) & ~sum));
    return sum | bitCast<T>(signMask(carry));
}

// ---- means --------------------------------------------------------------------------------------
// (a + b) / 2 without losing the carry, a half rounded up.
template <class T, int B>
requires std::is_integral_v<T>
inline Vec<T, B> meanUp(Vec<T, B> a, Vec<T, B> b) { return (a | b) - shiftRight(a ^ b, 1); }
inline Vec<std::uint8_t, 16> meanUp(Vec<std::uint8_t, 16> a, Vec<std::uint8_t, 16> b) {
    return fromRegister<std::uint8_t>(_mm_avg_epu8(asInt(a), asInt(b)));
}
inline Vec<std::uint16_t, 16> meanUp(Vec<std::uint16_t, 16> a, Vec<std::uint16_t, 16> b) {
    return fromRegister<std::uint16_t>(_mm_avg_epu16(asInt(a), asInt(b)));
}
#if VLQ_SIMD_BYTES >= 32
inline Vec<std::uint8_t, 32> meanUp(Vec<std::uint8_t, 32> a, Vec<std::uint8_t, 32> b) {
    return fromRegister<std::uint8_t>(_mm256_avg_epu8(asInt(a), asInt(b)));
}
inline Vec<std::uint16_t, 32> meanUp(Vec<std::uint16_t, 32> a, Vec<std::uint16_t, 32> b) {
    return fromRegister<std::uint16_t>(_mm256_avg_epu16(asInt(a), asInt(b)));
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline Vec<std::uint8_t, 64> meanUp(Vec<std::uint8_t, 64> a, Vec<std::uint8_t, 64> b) {
    return fromRegister<std::uint8_t>(_mm512_avg_epu8(asInt(a), asInt(b)));
}
inline Vec<std::uint16_t, 64> meanUp(Vec<std::uint16_t, 64> a, Vec<std::uint16_t, 64> b) {
    return fromRegister<std::uint16_t>(_mm512_avg_epu16(asInt(a), asInt(b)));
}
#endif

// ---- left shifts --------------------------------------------------------------------------------
// v * 2^count, saturated; 1 <= count <= value bits of T.
template <SignedInteger T, int B>
inline Vec<T, B> shiftLeftSat(Vec<T, B> v, int count) {
    constexpr T highest = std::numeric_limits<T>::max();
    const auto sign = signMask(v);
    // v or -1 - v, whichever is not negative: bits above the limit would be lost.
    const auto over = isAbove(v ^ sign, Vec<T, B>::broadcast(static_cast<T>(highest >> count)));
    return select(over, sign ^ Vec<T, B>::broadcast(highest), shiftLeft(v, count));
}
template <UnsignedInteger T, int B>
inline Vec<T, B> shiftLeftSat(Vec<T, B> v, int count) {
    using S = BitsOf<T>;
    constexpr int bits = std::numeric_limits<T>::digits;
    const auto shifted = shiftLeft(v, count < bits ? count : bits - 1);
    if constexpr (sizeof(T) == 8) {
        const auto lost = count < bits ? shiftRight(v, bits - count)
                                       : shiftRight(v, 1) | (v & Vec<T, B>::broadcast(1));
        return shifted | bitCast<T>(isAbove(bitCast<S>(lost), Vec<S, B>::zero()));
    } else {
        const T limit =
            count < bits ? static_cast<T>(std::numeric_limits<T>::max() >> count) : T{0};
        const auto top = Vec<T, B>::broadcast(static_cast<T>(T{1} << (bits - 1)));
        return shifted |
               bitCast<T>(bitCast<S>(v ^ top) > bitCast<S>(Vec<T, B>::broadcast(limit) ^ top));
    }
}

// The same for a value of one bit more than T, given by its lower bits and its sign.
template <SignedInteger T, int B>
inline Vec<T, B> shiftLeftSat(Vec<T, B> lower, Vec<T, B> signBit, int count) {
    const auto sign = signMask(signBit);
    // What is shifted out, and the bit that becomes the sign, must all be equal to it.
    const auto fits = shiftRight(lower, std::numeric_limits<T>::digits - count) == sign;
    return select(fits, shiftLeft(lower, count),
                  sign ^ Vec<T, B>::broadcast(std::numeric_limits<T>::max()));
}

}  // namespace vlq
