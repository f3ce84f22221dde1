// Lane-wise operations that have no operator.
#pragma once

#include <cmath>
#include <limits>

#include "frame/simd/vec.h"

namespace vlq {

// ---- minimum, maximum ---------------------------------------------------------------------------
// For floats the second operand is the answer when either is not a number (the hardware's rule,
// which several families rest on).
template <class T, int B>
inline Vec<T, B> minimum(Vec<T, B> a, Vec<T, B> b) {
    return select(a < b, a, b);
}
template <class T, int B>
inline Vec<T, B> maximum(Vec<T, B> a, Vec<T, B> b) {
    return select(a > b, a, b);
}

using Float4 = Vec<float, 16>;
using Double2 = Vec<double, 16>;
inline Float4 minimum(Float4 a, Float4 b) { return Float4(_mm_min_ps(a.raw, b.raw)); }
inline Float4 maximum(Float4 a, Float4 b) { return Float4(_mm_max_ps(a.raw, b.raw)); }
inline Double2 minimum(Double2 a, Double2 b) { return Double2(_mm_min_pd(a.raw, b.raw)); }
inline Double2 maximum(Double2 a, Double2 b) { return Double2(_mm_max_pd(a.raw, b.raw)); }
#if VLQ_SIMD_BYTES >= 32
using Float8 = Vec<float, 32>;
using Double4 = Vec<double, 32>;
inline Float8 minimum(Float8 a, Float8 b) { return Float8(_mm256_min_ps(a.raw, b.raw)); }
inline Float8 maximum(Float8 a, Float8 b) { return Float8(_mm256_max_ps(a.raw, b.raw)); }
inline Double4 minimum(Double4 a, Double4 b) { return Double4(_mm256_min_pd(a.raw, b.raw)); }
inline Double4 maximum(Double4 a, Double4 b) { return Double4(_mm256_max_pd(a.raw, b.raw)); }
#endif
#if VLQ_SIMD_BYTES >= 64
using Float16 = Vec<float, 64>;
using Double8 = Vec<double, 64>;
inline Float16 minimum(Float16 a, Float16 b) { return Float16(_mm512_min_ps(a.raw, b.raw)); }
inline Float16 maximum(Float16 a, Float16 b) { return Float16(_mm512_max_ps(a.raw, b.raw)); }
inline Double8 minimum(Double8 a, Double8 b) { return Double8(_mm512_min_pd(a.raw, b.raw)); }
inline Double8 maximum(Double8 a, Double8 b) { return Double8(_mm512_max_pd(a.raw, b.raw)); }
#endif

// ---- square root --------------------------------------------------------------------------------
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

// ---- fused where the build has it ---------------------------------------------------------------
// a * b + c: one rounding in the builds with FMA, two without. For results whose last bit the
// manual leaves open.
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

// ---- saturating integers ------------------------------------------------------------------------
#define VLQ_LANEWISE(name, T, op)                             \
    inline Vec<T, 16> name(Vec<T, 16> a, Vec<T, 16> b) {      \
        return fromRegister<T>(_mm_##op(asInt(a), asInt(b))); \
    }                                                         \
    VLQ_LANEWISE_32(name, T, op)                              \
    VLQ_LANEWISE_64(name, T, op)
#if VLQ_SIMD_BYTES >= 32
#define VLQ_LANEWISE_32(name, T, op)                             \
    inline Vec<T, 32> name(Vec<T, 32> a, Vec<T, 32> b) {         \
        return fromRegister<T>(_mm256_##op(asInt(a), asInt(b))); \
    }
#else
#define VLQ_LANEWISE_32(name, T, op)
#endif
#if VLQ_SIMD_BYTES >= 64
#define VLQ_LANEWISE_64(name, T, op)                             \
    inline Vec<T, 64> name(Vec<T, 64> a, Vec<T, 64> b) {         \
        return fromRegister<T>(_mm512_##op(asInt(a), asInt(b))); \
    }
#else
#define VLQ_LANEWISE_64(name, T, op)
#endif
VLQ_LANEWISE(addSat, std::int8_t, adds_epi8)
VLQ_LANEWISE(addSat, std::uint8_t, adds_epu8)
VLQ_LANEWISE(addSat, std::int16_t, adds_epi16)
VLQ_LANEWISE(addSat, std::uint16_t, adds_epu16)
VLQ_LANEWISE(subSat, std::int8_t, subs_epi8)
VLQ_LANEWISE(subSat, std::uint8_t, subs_epu8)
VLQ_LANEWISE(subSat, std::int16_t, subs_epi16)
VLQ_LANEWISE(subSat, std::uint16_t, subs_epu16)
VLQ_LANEWISE(minimum, std::int16_t, min_epi16)
VLQ_LANEWISE(maximum, std::int16_t, max_epi16)
VLQ_LANEWISE(minimum, std::uint8_t, min_epu8)
VLQ_LANEWISE(maximum, std::uint8_t, max_epu8)
#undef VLQ_LANEWISE
#undef VLQ_LANEWISE_32
#undef VLQ_LANEWISE_64

// ---- shifts by one count for all lanes ----------------------------------------------------------
// 0 <= count < width of the element. Right shifts are arithmetic on signed types.
template <class T, int B>
inline Vec<T, B> shiftLeft(Vec<T, B> v, int count) {
    using U = typename Vec<T, B>::WrapType;
    if constexpr (sizeof(T) == 1) {
        // No byte shift exists: shift words, then drop the bits that crossed over.
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

// ---- floats -------------------------------------------------------------------------------------
template <class T, int B>
requires std::is_floating_point_v<T>
inline Vec<T, B> absolute(Vec<T, B> v) {
    return v & Vec<T, B>::fromBits(
                   Vec<BitsOf<T>, B>::broadcast(std::numeric_limits<BitsOf<T>>::max()).raw);
}

}  // namespace vlq
