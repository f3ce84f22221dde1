// SIMD vectors of the build's width. Operators act lane by lane as on scalars; integer addition,
// subtraction and multiplication wrap. Every other operation is a function of this folder.
#pragma once

// GCC 12 warns about its own AVX-512 intrinsics, which pass undefined registers on purpose.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#if !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <immintrin.h>
#pragma GCC diagnostic pop

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

namespace vlq {

#if !defined(VLQ_SIMD_BYTES)
#error "VLQ_SIMD_BYTES (16, 32 or 64) is set by the build"
#endif

inline constexpr int kVecBytes = VLQ_SIMD_BYTES;

// A trait of its own: in a member typedef of a dependent class GCC drops the attribute.
template <class T, int Bytes>
struct Raw {
    typedef T type __attribute__((vector_size(Bytes)));
};

// The unsigned type of the same width carries wrapping arithmetic; floats stay themselves.
template <class T, bool = std::is_integral_v<T>>
struct Wrapping {
    using type = std::make_unsigned_t<T>;
};
template <class T>
struct Wrapping<T, false> {
    using type = T;
};

// Integer of the same width as T: lane masks and bit patterns.
template <class T>
using BitsOf = std::conditional_t<
    sizeof(T) == 1, std::int8_t,
    std::conditional_t<sizeof(T) == 2, std::int16_t,
                       std::conditional_t<sizeof(T) == 4, std::int32_t, std::int64_t>>>;

template <class T, int Bytes = kVecBytes>
struct Vec {
    using Scalar = T;
    using RawType = typename Raw<T, Bytes>::type;
    using WrapType = typename Raw<typename Wrapping<T>::type, Bytes>::type;
    static constexpr int bytes = Bytes;
    static constexpr int lanes = Bytes / static_cast<int>(sizeof(T));

    RawType raw;

    Vec() = default;
    explicit Vec(RawType r) : raw(r) {}
    static Vec broadcast(T value) {
        // As integer lanes: a float keeps its bits, even those of a signalling NaN.
        return fromBits(std::bit_cast<BitsOf<T>>(value) - BitsRaw{});
    }
    static Vec zero() { return Vec(RawType{}); }

    T operator[](int lane) const { return raw[lane]; }

    friend Vec operator+(Vec a, Vec b) { return Vec((RawType)((WrapType)a.raw + (WrapType)b.raw)); }
    friend Vec operator-(Vec a, Vec b) { return Vec((RawType)((WrapType)a.raw - (WrapType)b.raw)); }
    friend Vec operator*(Vec a, Vec b) { return Vec((RawType)((WrapType)a.raw * (WrapType)b.raw)); }
    friend Vec operator/(Vec a, Vec b) { return Vec(a.raw / b.raw); }
    friend Vec operator&(Vec a, Vec b) { return fromBits(a.bits() & b.bits()); }
    friend Vec operator|(Vec a, Vec b) { return fromBits(a.bits() | b.bits()); }
    friend Vec operator^(Vec a, Vec b) { return fromBits(a.bits() ^ b.bits()); }
    friend Vec operator~(Vec a) { return fromBits(~a.bits()); }
    Vec operator-() const {
        if constexpr (std::is_floating_point_v<T>)
            return Vec(-raw);
        else
            return zero() - *this;
    }
    Vec& operator+=(Vec b) { return *this = *this + b; }
    Vec& operator-=(Vec b) { return *this = *this - b; }
    Vec& operator*=(Vec b) { return *this = *this * b; }

    // Lane masks: all bits set where the comparison holds.
    using Mask = Vec<BitsOf<T>, Bytes>;
    friend Mask operator<(Vec a, Vec b) { return Mask((typename Mask::RawType)(a.raw < b.raw)); }
    friend Mask operator>(Vec a, Vec b) { return Mask((typename Mask::RawType)(a.raw > b.raw)); }
    friend Mask operator<=(Vec a, Vec b) { return Mask((typename Mask::RawType)(a.raw <= b.raw)); }
    friend Mask operator>=(Vec a, Vec b) { return Mask((typename Mask::RawType)(a.raw >= b.raw)); }
    friend Mask operator==(Vec a, Vec b) { return Mask((typename Mask::RawType)(a.raw == b.raw)); }
    friend Mask operator!=(Vec a, Vec b) { return Mask((typename Mask::RawType)(a.raw != b.raw)); }

    using BitsRaw = typename Raw<BitsOf<T>, Bytes>::type;
    BitsRaw bits() const { return (BitsRaw)raw; }
    static Vec fromBits(BitsRaw b) { return Vec((RawType)b); }
};

// N vectors of consecutive memory: a vector of a narrow type once its elements are widened.
template <class T, int N>
struct Block {
    Vec<T> part[N];
};

// The same bits seen as lanes of another type.
template <class To, class T, int B>
inline Vec<To, B> bitCast(Vec<T, B> v) {
    return Vec<To, B>((typename Vec<To, B>::RawType)v.raw);
}

// The same vector, hidden from the optimizer: it neither splits the vector into general registers
// nor replaces stores of zeros by a call of memset.
template <class T, int B>
inline Vec<T, B> opaque(Vec<T, B> v) {
    asm("" : "+v"(v.raw));
    return v;
}

// ---- intrinsic views ----------------------------------------------------------------------------
// Bits of any vector as the intrinsics' register types.
template <class T, int B>
inline auto asInt(Vec<T, B> v) {
    if constexpr (B == 16) return (__m128i)v.raw;
#if VLQ_SIMD_BYTES >= 32
    else if constexpr (B == 32)
        return (__m256i)v.raw;
#endif
#if VLQ_SIMD_BYTES >= 64
    else if constexpr (B == 64)
        return (__m512i)v.raw;
#endif
}
template <class T, class Register>
inline auto fromRegister(Register r) {
    using V = Vec<T, static_cast<int>(sizeof(Register))>;
    return V((typename V::RawType)r);
}

// ---- halves -------------------------------------------------------------------------------------
#if VLQ_SIMD_BYTES >= 32
template <class T>
inline Vec<T, 16> lowHalf(Vec<T, 32> v) {
    return fromRegister<T>(_mm256_castsi256_si128(asInt(v)));
}
template <class T>
inline Vec<T, 16> highHalf(Vec<T, 32> v) {
    return fromRegister<T>(_mm256_extracti128_si256(asInt(v), 1));
}
template <class T>
inline Vec<T, 32> joinHalves(Vec<T, 16> low, Vec<T, 16> high) {
    return fromRegister<T>(_mm256_set_m128i(asInt(high), asInt(low)));
}
#endif
#if VLQ_SIMD_BYTES >= 64
template <class T>
inline Vec<T, 32> lowHalf(Vec<T, 64> v) {
    return fromRegister<T>(_mm512_castsi512_si256(asInt(v)));
}
template <class T>
inline Vec<T, 32> highHalf(Vec<T, 64> v) {
    return fromRegister<T>(_mm512_extracti64x4_epi64(asInt(v), 1));
}
template <class T>
inline Vec<T, 64> joinHalves(Vec<T, 32> low, Vec<T, 32> high) {
    return fromRegister<T>(_mm512_inserti64x4(_mm512_castsi256_si512(asInt(low)), asInt(high), 1));
}
#endif

// ---- memory -------------------------------------------------------------------------------------
template <class T, int B = kVecBytes>
inline Vec<T, B> load(const T* p) {
    Vec<T, B> v;
    std::memcpy(&v.raw, p, B);
    return v;
}
template <class T, int B>
inline void store(T* p, Vec<T, B> v) {
    std::memcpy(p, &v.raw, B);
}
// One element at any address, as a value of another type where that is named:
// loadScalar<std::uint32_t>(bytes).
template <class As = void, class T>
inline auto loadScalar(const T* p) {
    std::conditional_t<std::is_void_v<As>, T, As> value;
    std::memcpy(&value, p, sizeof value);
    return value;
}
template <class As = void, class T>
inline void storeScalar(T* p, std::conditional_t<std::is_void_v<As>, T, As> value) {
    std::memcpy(p, &value, sizeof value);
}
// p is a multiple of the vector's size.
template <class T, int B = kVecBytes>
inline Vec<T, B> loadAligned(const T* p) {
    return load<T, B>(static_cast<const T*>(__builtin_assume_aligned(p, B)));
}
template <class T, int B>
inline void storeAligned(T* p, Vec<T, B> v) {
    store(static_cast<T*>(__builtin_assume_aligned(p, B)), v);
}
// Non-temporal store; p is a multiple of the vector's size. End a run of them with streamFence.
template <class T, int B>
inline void stream(T* p, Vec<T, B> v) {
    if constexpr (B == 16) _mm_stream_si128(reinterpret_cast<__m128i*>(p), asInt(v));
#if VLQ_SIMD_BYTES >= 32
    else if constexpr (B == 32)
        _mm256_stream_si256(reinterpret_cast<__m256i*>(p), asInt(v));
#endif
#if VLQ_SIMD_BYTES >= 64
    else if constexpr (B == 64)
        _mm512_stream_si512(reinterpret_cast<__m512i*>(p), asInt(v));
#endif
}
inline void streamFence() { _mm_sfence(); }

namespace detail {

// First `count` bytes (0 to 15) of a 16-byte vector, the others zero; nothing else is read.
inline __m128i loadBytes16(const void* p, int count) {
    const char* s = static_cast<const char*>(p);
    std::uint64_t low = 0, high = 0;
    auto gather = [](const char* from, int n) {
        std::uint64_t value = 0;
        if (n >= 4) {
            // Two overlapping loads cover 4 to 7 bytes.
            std::uint32_t a, b;
            std::memcpy(&a, from, 4);
            std::memcpy(&b, from + n - 4, 4);
            value = a | static_cast<std::uint64_t>(b) << (8 * (n - 4));
        } else if (n >= 2) {
            std::uint16_t a, b;
            std::memcpy(&a, from, 2);
            std::memcpy(&b, from + n - 2, 2);
            value = a | static_cast<std::uint64_t>(b) << (8 * (n - 2));
        } else if (n == 1) {
            value = static_cast<unsigned char>(*from);
        }
        return value;
    };
    if (count >= 8) {
        std::memcpy(&low, s, 8);
        high = gather(s + 8, count - 8);
    } else {
        low = gather(s, count);
    }
    return _mm_set_epi64x(static_cast<long long>(high), static_cast<long long>(low));
}
inline void storeBytes16(void* p, __m128i v, int count) {
    char* d = static_cast<char*>(p);
    std::uint64_t part = static_cast<std::uint64_t>(_mm_cvtsi128_si64(v));
    if (count >= 8) {
        std::memcpy(d, &part, 8);
        part = static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(v, v)));
        d += 8;
        count -= 8;
    }
    if (count & 4) {
        std::memcpy(d, &part, 4);
        part >>= 32;
        d += 4;
    }
    if (count & 2) {
        std::memcpy(d, &part, 2);
        part >>= 16;
        d += 2;
    }
    if (count & 1) std::memcpy(d, &part, 1);
}

}  // namespace detail

// The first `count` elements (0 to lanes); the other lanes are zero and are not read.
template <class T, int B = kVecBytes>
inline Vec<T, B> loadPartial(const T* p, int count) {
    [[maybe_unused]] const int byteCount = count * static_cast<int>(sizeof(T));
    if constexpr (B == 16) {
        if (count >= Vec<T, B>::lanes) return load<T, B>(p);
        return fromRegister<T>(detail::loadBytes16(p, byteCount));
    }
#if VLQ_SIMD_BYTES == 32
    else {
        constexpr int half = 16 / static_cast<int>(sizeof(T));
        if (count < half)
            return fromRegister<T>(_mm256_zextsi128_si256(detail::loadBytes16(p, byteCount)));
        return joinHalves(load<T, 16>(p), loadPartial<T, 16>(p + half, count - half));
    }
#elif VLQ_SIMD_BYTES == 64
    else {
        const __mmask64 mask = byteCount >= 64 ? ~__mmask64{0} : (__mmask64{1} << byteCount) - 1;
        if constexpr (B == 64)
            return fromRegister<T>(_mm512_maskz_loadu_epi8(mask, p));
        else
            return fromRegister<T>(_mm256_maskz_loadu_epi8(static_cast<__mmask32>(mask), p));
    }
#endif
}

// Stores the first `count` lanes (0 to lanes) and writes nothing else.
// The vector comes by reference: a function with wide vectors among its arguments, where it is not
// inlined, returns with the upper halves of the registers in use.
template <class T, int B>
inline void storePartial(T* p, const Vec<T, B>& v, int count) {
    [[maybe_unused]] const int byteCount = count * static_cast<int>(sizeof(T));
    if constexpr (B == 16) {
        if (count >= Vec<T, B>::lanes)
            store(p, v);
        else
            detail::storeBytes16(p, asInt(v), byteCount);
    }
#if VLQ_SIMD_BYTES == 32
    else {
        constexpr int half = 16 / static_cast<int>(sizeof(T));
        const auto low = fromRegister<T>(_mm256_castsi256_si128(asInt(v)));
        if (count < half) {
            detail::storeBytes16(p, asInt(low), byteCount);
        } else {
            store(p, low);
            storePartial(p + half, fromRegister<T>(_mm256_extracti128_si256(asInt(v), 1)),
                         count - half);
        }
    }
#elif VLQ_SIMD_BYTES == 64
    else {
        const __mmask64 mask = byteCount >= 64 ? ~__mmask64{0} : (__mmask64{1} << byteCount) - 1;
        if constexpr (B == 64)
            _mm512_mask_storeu_epi8(p, mask, asInt(v));
        else
            _mm256_mask_storeu_epi8(p, static_cast<__mmask32>(mask), asInt(v));
    }
#endif
}

// ---- lanes and masks ----------------------------------------------------------------------------
// 0, 1, 2 ... in the lanes.
template <class T, int B = kVecBytes>
inline Vec<T, B> laneIndices() {
    return []<std::size_t... i>(std::index_sequence<i...>) {
        return Vec<T, B>(typename Vec<T, B>::RawType{static_cast<T>(i)...});
    }
    (std::make_index_sequence<Vec<T, B>::lanes>());
}

namespace detail {
inline constexpr auto kRunOfOnes = [] {
    std::array<std::uint8_t, 2 * kVecBytes> bytes{};
    for (int i = 0; i < kVecBytes; ++i) bytes[static_cast<std::size_t>(i)] = 0xFF;
    return bytes;
}();
}  // namespace detail

// The mask of the first `count` lanes (0 to lanes).
template <class T, int B = kVecBytes>
inline Vec<BitsOf<T>, B> firstLanes(int count) {
    const std::uint8_t* end = detail::kRunOfOnes.data() + kVecBytes;
    return bitCast<BitsOf<T>>(load<std::uint8_t, B>(end - count * static_cast<int>(sizeof(T))));
}

// ---- selection ----------------------------------------------------------------------------------
// Lane by lane `yes` where the mask is set (all bits), else `no`.
template <class T, int B>
inline Vec<T, B> select(Vec<BitsOf<T>, B> mask, Vec<T, B> yes, Vec<T, B> no) {
    return Vec<T, B>::fromBits((mask.raw & yes.bits()) | (~mask.raw & no.bits()));
}

// The mask as bits: bit i is lane i.
template <class T, int B>
inline std::uint64_t maskBits(Vec<T, B> mask) {
    constexpr int size = static_cast<int>(sizeof(T));
    [[maybe_unused]] const auto x = asInt(mask);
    if constexpr (B == 16) {
        if constexpr (size == 1) return static_cast<unsigned>(_mm_movemask_epi8(x));
        if constexpr (size == 2)
            return static_cast<unsigned>(
                _mm_movemask_epi8(_mm_packs_epi16(x, _mm_setzero_si128())));
        if constexpr (size == 4) return static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(x)));
        if constexpr (size == 8) return static_cast<unsigned>(_mm_movemask_pd(_mm_castsi128_pd(x)));
    }
#if VLQ_SIMD_BYTES >= 32
    if constexpr (B == 32) {
        if constexpr (size == 1) return static_cast<unsigned>(_mm256_movemask_epi8(x));
        if constexpr (size == 2)
            return static_cast<unsigned>(_mm_movemask_epi8(
                _mm_packs_epi16(_mm256_castsi256_si128(x), _mm256_extracti128_si256(x, 1))));
        if constexpr (size == 4)
            return static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(x)));
        if constexpr (size == 8)
            return static_cast<unsigned>(_mm256_movemask_pd(_mm256_castsi256_pd(x)));
    }
#endif
#if VLQ_SIMD_BYTES >= 64
    if constexpr (B == 64) {
        if constexpr (size == 1) return _mm512_movepi8_mask(x);
        if constexpr (size == 2) return _mm512_movepi16_mask(x);
        if constexpr (size == 4) return _mm512_movepi32_mask(x);
        if constexpr (size == 8) return _mm512_movepi64_mask(x);
    }
#endif
}

// True when any lane of the mask is set.
template <class T, int B>
inline bool any(Vec<T, B> mask) {
    if constexpr (B == 16) return _mm_movemask_epi8(asInt(mask)) != 0;
#if VLQ_SIMD_BYTES >= 32
    else if constexpr (B == 32)
        return _mm256_movemask_epi8(asInt(mask)) != 0;
#endif
#if VLQ_SIMD_BYTES >= 64
    else if constexpr (B == 64)
        return _mm512_test_epi64_mask(asInt(mask), asInt(mask)) != 0;
#endif
}

// True when all lanes of the mask are set.
template <class T, int B>
inline bool all(Vec<T, B> mask) {
    if constexpr (B == 16) return _mm_movemask_epi8(asInt(mask)) == 0xFFFF;
#if VLQ_SIMD_BYTES >= 32
    else if constexpr (B == 32)
        return _mm256_movemask_epi8(asInt(mask)) == -1;
#endif
#if VLQ_SIMD_BYTES >= 64
    else if constexpr (B == 64)
        return !any(~mask);
#endif
}

}  // namespace vlq
