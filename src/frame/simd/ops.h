// Lane-wise operations that have no operator.
#pragma once

#include <cmath>
#include <limits>

#include "frame/simd/vec.h"

namespace vlq {

using Float4 = Vec<float, 16>;
using Double2 = Vec<double, 16>;
#if VLQ_SIMD_BYTES >= 32
using Float8 = Vec<float, 32>;
using Double4 = Vec<double, 32>;
#endif
#if VLQ_SIMD_BYTES >= 64
using Float16 = Vec<float, 64>;
using Double8 = Vec<double, 64>;
#endif

// ---- operations with an instruction for each width ----------------------------------------------
// One overload a width: for integers from the register as bits, for floats as it is.
#define VLQ_INTEGER_OP(name, T, op)                           \
    inline Vec<T, 16> name(Vec<T, 16> a, Vec<T, 16> b) {      \
        return fromRegister<T>(_mm_##op(asInt(a), asInt(b))); \
    }                                                         \
    VLQ_INTEGER_OP_32(name, T, op)                            \
    VLQ_INTEGER_OP_64(name, T, op)
#define VLQ_FLOAT_OP(name, op)                                                                 \
    inline Float4 name(Float4 a, Float4 b) { return Float4(_mm_##op##_ps(a.raw, b.raw)); }     \
    inline Double2 name(Double2 a, Double2 b) { return Double2(_mm_##op##_pd(a.raw, b.raw)); } \
    VLQ_FLOAT_OP_32(name, op)                                                                  \
    VLQ_FLOAT_OP_64(name, op)
#if VLQ_SIMD_BYTES >= 32
#define VLQ_INTEGER_OP_32(name, T, op)                           \
    inline Vec<T, 32> name(Vec<T, 32> a, Vec<T, 32> b) {         \
        return fromRegister<T>(_mm256_##op(asInt(a), asInt(b))); \
    }
#define VLQ_FLOAT_OP_32(name, op)                                                             \
    inline Float8 name(Float8 a, Float8 b) { return Float8(_mm256_##op##_ps(a.raw, b.raw)); } \
    inline Double4 name(Double4 a, Double4 b) { return Double4(_mm256_##op##_pd(a.raw, b.raw)); }
#else
#define VLQ_INTEGER_OP_32(name, T, op)
#define VLQ_FLOAT_OP_32(name, op)
#endif
#if VLQ_SIMD_BYTES >= 64
#define VLQ_INTEGER_OP_64(name, T, op)                           \
    inline Vec<T, 64> name(Vec<T, 64> a, Vec<T, 64> b) {         \
        return fromRegister<T>(_mm512_##op(asInt(a), asInt(b))); \
    }
#define VLQ_FLOAT_OP_64(name, op)                                                                 \
    inline Float16 name(Float16 a, Float16 b) { return Float16(_mm512_##op##_ps(a.raw, b.raw)); } \
    inline Double8 name(Double8 a, Double8 b) { return Double8(_mm512_##op##_pd(a.raw, b.raw)); }
#else
#define VLQ_INTEGER_OP_64(name, T, op)
#define VLQ_FLOAT_OP_64(name, op)
#endif

// Saturating sums and differences; those of 32 and 64 bits are in saturate.h.
VLQ_INTEGER_OP(addSat, std::int8_t, adds_epi8)
VLQ_INTEGER_OP(addSat, std::uint8_t, adds_epu8)
VLQ_INTEGER_OP(addSat, std::int16_t, adds_epi16)
VLQ_INTEGER_OP(addSat, std::uint16_t, adds_epu16)
VLQ_INTEGER_OP(subSat, std::int8_t, subs_epi8)
VLQ_INTEGER_OP(subSat, std::uint8_t, subs_epu8)
VLQ_INTEGER_OP(subSat, std::int16_t, subs_epi16)
VLQ_INTEGER_OP(subSat, std::uint16_t, subs_epu16)

// Minimum and maximum. Of floats, where either operand is NaN, and of two zeros, the result is the
// second operand: maximum(v, highest) ignores what is NaN in v.
VLQ_FLOAT_OP(minimum, min)
VLQ_FLOAT_OP(maximum, max)
VLQ_INTEGER_OP(minimum, std::int16_t, min_epi16)
VLQ_INTEGER_OP(maximum, std::int16_t, max_epi16)
VLQ_INTEGER_OP(minimum, std::uint8_t, min_epu8)
VLQ_INTEGER_OP(maximum, std::uint8_t, max_epu8)
#if defined(__SSE4_1__)
VLQ_INTEGER_OP(minimum, std::int8_t, min_epi8)
VLQ_INTEGER_OP(maximum, std::int8_t, max_epi8)
VLQ_INTEGER_OP(minimum, std::uint16_t, min_epu16)
VLQ_INTEGER_OP(maximum, std::uint16_t, max_epu16)
VLQ_INTEGER_OP(minimum, std::int32_t, min_epi32)
VLQ_INTEGER_OP(maximum, std::int32_t, max_epi32)
VLQ_INTEGER_OP(minimum, std::uint32_t, min_epu32)
VLQ_INTEGER_OP(maximum, std::uint32_t, max_epu32)
#endif
#if defined(__AVX512VL__)
VLQ_INTEGER_OP(minimum, std::int64_t, min_epi64)
VLQ_INTEGER_OP(maximum, std::int64_t, max_epi64)
VLQ_INTEGER_OP(minimum, std::uint64_t, min_epu64)
VLQ_INTEGER_OP(maximum, std::uint64_t, max_epu64)
#endif
#undef VLQ_INTEGER_OP
#undef VLQ_INTEGER_OP_32
#undef VLQ_INTEGER_OP_64
#undef VLQ_FLOAT_OP
#undef VLQ_FLOAT_OP_32
#undef VLQ_FLOAT_OP_64

// The types without an instruction.
template <class T, int B>
requires std::is_integral_v<T>
inline Vec<T, B> minimum(Vec<T, B> a, Vec<T, B> b) {
    if constexpr (std::is_same_v<T, std::uint16_t>)
        return a - subSat(a, b);
    else
        return select(a < b, a, b);
}
template <class T, int B>
requires std::is_integral_v<T>
inline Vec<T, B> maximum(Vec<T, B> a, Vec<T, B> b) {
    if constexpr (std::is_same_v<T, std::uint16_t>)
        return subSat(a, b) + b;
    else
        return select(a > b, a, b);
}

// ---- shifts by one count for all lanes ----------------------------------------------------------
// 0 <= count < width of the element. Right shifts are arithmetic on signed types.
template <class T, int B>
inline Vec<T, B> shiftLeft(Vec<T, B> v, int count) {
    using U = typename Vec<T, B>::WrapType;
    if constexpr (sizeof(T) == 1) {
        // No byte shift exists: shift 16-bit lanes, then clear the bits from the other byte.
        auto words = bitCast<std::uint16_t>(v);
        const auto keep = Vec<T, B>::broadcast(static_cast<T>(0xFFu << count));
        return bitCast<T>(shiftLeft(words, count)) & keep;
    } else {
        return Vec<T, B>((typename Vec<T, B>::RawType)(
            (U)v.raw << static_cast<typename Wrapping<T>::type>(count)));
    }
}
template <class T, int B>
inline Vec<T, B> shiftRight(Vec<T, B> v, int count) {
    static_assert(sizeof(T) > 1 || std::is_unsigned_v<T>);
    if constexpr (sizeof(T) == 1) {
        auto words = bitCast<std::uint16_t>(v);
        const auto keep = Vec<T, B>::broadcast(static_cast<T>(0xFFu >> count));
        return bitCast<T>(shiftRight(words, count)) & keep;
#if !defined(__AVX512VL__)
    } else if constexpr (sizeof(T) == 8 && std::is_signed_v<T>) {
        // No arithmetic shift of this width: shift in zeros, then spread the sign bit.
        const auto moved = bitCast<T>(shiftRight(bitCast<std::uint64_t>(v), count));
        const auto sign = Vec<T, B>::broadcast(static_cast<T>(std::uint64_t{1} << (63 - count)));
        return (moved ^ sign) - sign;
#endif
    } else {
        return Vec<T, B>(v.raw >> static_cast<T>(count));
    }
}

// ---- fused where the build has it ---------------------------------------------------------------
// a * b + c: one rounding in the builds with FMA, two without. For results whose last bit is left
// open.
inline Float4 mulAdd(Float4 a, Float4 b, Float4 c) {
#if defined(__FMA__)
    return Float4(_mm_fmadd_ps(a.raw, b.raw, c.raw));
#else
    return a * b + c;
#endif
}
inline Double2 mulAdd(Double2 a, Double2 b, Double2 c) {
#if defined(__FMA__)
    return Double2(_mm_fmadd_pd(a.raw, b.raw, c.raw));
#else
    return a * b + c;
#endif
}
// c - a * b
inline Float4 mulSubFrom(Float4 a, Float4 b, Float4 c) {
#if defined(__FMA__)
    return Float4(_mm_fnmadd_ps(a.raw, b.raw, c.raw));
#else
    return c - a * b;
#endif
}
inline Double2 mulSubFrom(Double2 a, Double2 b, Double2 c) {
#if defined(__FMA__)
    return Double2(_mm_fnmadd_pd(a.raw, b.raw, c.raw));
#else
    return c - a * b;
#endif
}
// a * b - c
inline Float4 mulSub(Float4 a, Float4 b, Float4 c) {
#if defined(__FMA__)
    return Float4(_mm_fmsub_ps(a.raw, b.raw, c.raw));
#else
    return a * b - c;
#endif
}
inline Double2 mulSub(Double2 a, Double2 b, Double2 c) {
#if defined(__FMA__)
    return Double2(_mm_fmsub_pd(a.raw, b.raw, c.raw));
#else
    return a * b - c;
#endif
}
#if VLQ_SIMD_BYTES >= 32
inline Float8 mulAdd(Float8 a, Float8 b, Float8 c) {
    return Float8(_mm256_fmadd_ps(a.raw, b.raw, c.raw));
}
inline Double4 mulAdd(Double4 a, Double4 b, Double4 c) {
    return Double4(_mm256_fmadd_pd(a.raw, b.raw, c.raw));
}
inline Float8 mulSubFrom(Float8 a, Float8 b, Float8 c) {
    return Float8(_mm256_fnmadd_ps(a.raw, b.raw, c.raw));
}
inline Double4 mulSubFrom(Double4 a, Double4 b, Double4 c) {
    return Double4(_mm256_fnmadd_pd(a.raw, b.raw, c.raw));
}
inline Float8 mulSub(Float8 a, Float8 b, Float8 c) {
    return Float8(_mm256_fmsub_ps(a.raw, b.raw, c.raw));
}
inline Double4 mulSub(Double4 a, Double4 b, Double4 c) {
    return Double4(_mm256_fmsub_pd(a.raw, b.raw, c.raw));
}
#endif
#if VLQ_SIMD_BYTES >= 64
inline Float16 mulAdd(Float16 a, Float16 b, Float16 c) {
    return Float16(_mm512_fmadd_ps(a.raw, b.raw, c.raw));
}
inline Double8 mulAdd(Double8 a, Double8 b, Double8 c) {
    return Double8(_mm512_fmadd_pd(a.raw, b.raw, c.raw));
}
inline Float16 mulSubFrom(Float16 a, Float16 b, Float16 c) {
    return Float16(_mm512_fnmadd_ps(a.raw, b.raw, c.raw));
}
inline Double8 mulSubFrom(Double8 a, Double8 b, Double8 c) {
    return Double8(_mm512_fnmadd_pd(a.raw, b.raw, c.raw));
}
inline Float16 mulSub(Float16 a, Float16 b, Float16 c) {
    return Float16(_mm512_fmsub_ps(a.raw, b.raw, c.raw));
}
inline Double8 mulSub(Double8 a, Double8 b, Double8 c) {
    return Double8(_mm512_fmsub_pd(a.raw, b.raw, c.raw));
}
#endif
// The scalar twins round as the vectors do.
template <class T>
requires std::is_floating_point_v<T>
inline T mulAdd(T a, T b, T c) {
#if defined(__FMA__)
    return std::fma(a, b, c);
#else
    return a * b + c;
#endif
}

// ---- magnitude and sign -------------------------------------------------------------------------
// Only the sign bit of each lane.
template <class T, int B>
requires std::is_floating_point_v<T>
inline Vec<T, B> signBit(Vec<T, B> v) { return v & Vec<T, B>::broadcast(T(-0.0)); }

// |v|; of integers the most negative one stays itself.
template <class T, int B>
requires std::is_floating_point_v<T>
inline Vec<T, B> absolute(Vec<T, B> v) {
    return v & Vec<T, B>::fromBits(
                   Vec<BitsOf<T>, B>::broadcast(std::numeric_limits<BitsOf<T>>::max()).raw);
}
template <class T, int B>
requires(std::is_integral_v<T>&& std::is_signed_v<T>) inline Vec<T, B> absolute(Vec<T, B> v) {
    if constexpr (sizeof(T) <= 2) {
        // As unsigned, -v is the smaller one of the two exactly where v is negative.
        using U = std::make_unsigned_t<T>;
        return bitCast<T>(minimum(bitCast<U>(v), bitCast<U>(-v)));
    } else if constexpr (sizeof(T) == 4) {
        const auto sign = shiftRight(v, 31);
        return (v ^ sign) - sign;
    } else {
        return maximum(v, -v);
    }
}

// The magnitude of the first with the sign of the second.
template <class T, int B>
requires std::is_floating_point_v<T>
inline Vec<T, B> copySign(Vec<T, B> magnitude, Vec<T, B> sign) {
    return absolute(magnitude) | signBit(sign);
}

// ---- roots --------------------------------------------------------------------------------------
inline Float4 squareRoot(Float4 v) { return Float4(_mm_sqrt_ps(v.raw)); }
inline Double2 squareRoot(Double2 v) { return Double2(_mm_sqrt_pd(v.raw)); }
#if VLQ_SIMD_BYTES >= 32
inline Float8 squareRoot(Float8 v) { return Float8(_mm256_sqrt_ps(v.raw)); }
inline Double4 squareRoot(Double4 v) { return Double4(_mm256_sqrt_pd(v.raw)); }
#endif
#if VLQ_SIMD_BYTES >= 64
inline Float16 squareRoot(Float16 v) { return Float16(_mm512_sqrt_ps(v.raw)); }
inline Double8 squareRoot(Double8 v) { return Double8(_mm512_sqrt_pd(v.raw)); }
#endif

// ---- rounding to an integer that stays a float --------------------------------------------------
// Of any magnitude; infinities, NaN and the sign of a zero result are kept. nearestInteger takes
// the even one of two equally near, truncate the one towards zero, floor the one below. The
// baseline build rests on nearest rounding in the control register.
#if defined(__SSE4_1__)
#define VLQ_ROUNDING(name, mode)                                                                   \
    inline Float4 name(Float4 v) { return Float4(_mm_round_ps(v.raw, mode | _MM_FROUND_NO_EXC)); } \
    inline Double2 name(Double2 v) {                                                               \
        return Double2(_mm_round_pd(v.raw, mode | _MM_FROUND_NO_EXC));                             \
    }                                                                                              \
    inline Float8 name(Float8 v) {                                                                 \
        return Float8(_mm256_round_ps(v.raw, mode | _MM_FROUND_NO_EXC));                           \
    }                                                                                              \
    inline Double4 name(Double4 v) {                                                               \
        return Double4(_mm256_round_pd(v.raw, mode | _MM_FROUND_NO_EXC));                          \
    }                                                                                              \
    VLQ_ROUNDING_64(name, mode)
#if VLQ_SIMD_BYTES >= 64
#define VLQ_ROUNDING_64(name, mode)                                            \
    inline Float16 name(Float16 v) {                                           \
        return Float16(_mm512_roundscale_ps(v.raw, mode | _MM_FROUND_NO_EXC)); \
    }                                                                          \
    inline Double8 name(Double8 v) {                                           \
        return Double8(_mm512_roundscale_pd(v.raw, mode | _MM_FROUND_NO_EXC)); \
    }
#else
#define VLQ_ROUNDING_64(name, mode)
#endif
VLQ_ROUNDING(nearestInteger, _MM_FROUND_TO_NEAREST_INT)
VLQ_ROUNDING(truncate, _MM_FROUND_TO_ZERO)
VLQ_ROUNDING(floor, _MM_FROUND_TO_NEG_INF)
#undef VLQ_ROUNDING
#undef VLQ_ROUNDING_64
#else
template <class T>
requires std::is_floating_point_v<T>
inline Vec<T, 16> nearestInteger(Vec<T, 16> v) {
    // From 2^23 (2^52) on, all values are integers; below, adding that drops the fraction.
    const auto whole = Vec<T, 16>::broadcast(T(1) / std::numeric_limits<T>::epsilon());
    const auto a = absolute(v);
    return select(a < whole, (a + whole) - whole, a) | signBit(v);
}
template <class T>
requires std::is_floating_point_v<T>
inline Vec<T, 16> truncate(Vec<T, 16> v) {
    const auto a = absolute(v), n = nearestInteger(a);
    return (n - (bitCast<T>(n > a) & Vec<T, 16>::broadcast(T(1)))) | signBit(v);
}
template <class T>
requires std::is_floating_point_v<T>
inline Vec<T, 16> floor(Vec<T, 16> v) {
    const auto n = nearestInteger(v);
    return n - (bitCast<T>(n > v) & Vec<T, 16>::broadcast(T(1)));
}
#endif

}  // namespace vlq
