// Bulk movement of bytes: copy, move and fill. Short runs are a few overlapping loads and stores
// with everything read before anything is written; longer ones step over an aligned destination;
// runs that would sweep the cache go past it with non-temporal stores.
#pragma once

#include "frame/simd/cache.h"
#include "frame/simd/vec.h"

namespace vlq {

using Byte = unsigned char;

namespace detail {

template <int B>
using Bytes = Vec<Byte, B>;

// Runs from here on look up the cache. The look-up may trap to a hypervisor for microseconds.
inline constexpr std::size_t kLookUpFrom = std::size_t{4} << 20;
// A copy is warmed and stored in stretches of this size.
inline constexpr std::size_t kStretch = 0x40000;

// A word of memory of N bytes as a plain value.
template <class Word>
inline Word loadWord(const Byte* p) {
    Word w;
    std::memcpy(&w, p, sizeof(Word));
    return w;
}
template <class Word>
inline void storeWord(Byte* p, Word w) { std::memcpy(p, &w, sizeof(Word)); }

// n from sizeof(Word) to twice that: two words that may overlap.
template <class Word>
inline void copyTwoWords(Byte* dst, const Byte* src, std::size_t n) {
    const Word first = loadWord<Word>(src), last = loadWord<Word>(src + n - sizeof(Word));
    storeWord(dst, first);
    storeWord(dst + n - sizeof(Word), last);
}

// n from N * B to 2 * N * B: N vectors from either end.
template <int B, int N>
inline void copyEnds(Byte* dst, const Byte* src, std::size_t n) {
    Bytes<B> first[N], last[N];
    for (int i = 0; i < N; ++i) first[i] = load<Byte, B>(src + i * B);
    for (int i = 0; i < N; ++i) last[i] = load<Byte, B>(src + n - (i + 1) * B);
    for (int i = 0; i < N; ++i) store(dst + i * B, first[i]);
    for (int i = 0; i < N; ++i) store(dst + n - (i + 1) * B, last[i]);
}

inline constexpr std::size_t kShort = 8 * kVecBytes;

// Up to kShort bytes, any overlap.
inline void copyShort(Byte* dst, const Byte* src, std::size_t n) {
    if (n >= 4 * kVecBytes) return copyEnds<kVecBytes, 4>(dst, src, n);
    if (n >= 2 * kVecBytes) return copyEnds<kVecBytes, 2>(dst, src, n);
    if (n >= kVecBytes) return copyEnds<kVecBytes, 1>(dst, src, n);
#if VLQ_SIMD_BYTES >= 64
    if (n >= 32) return copyEnds<32, 1>(dst, src, n);
#endif
#if VLQ_SIMD_BYTES >= 32
    if (n >= 16) return copyEnds<16, 1>(dst, src, n);
#endif
    if (n >= 8) return copyTwoWords<std::uint64_t>(dst, src, n);
    if (n >= 4) return copyTwoWords<std::uint32_t>(dst, src, n);
    if (n >= 2) return copyTwoWords<std::uint16_t>(dst, src, n);
    if (n == 1) *dst = *src;
}

// First byte to the last, from kShort bytes; dst may overlap src from below. The ends are read
// before the loop writes, and written after it.
inline void copyUpwards(Byte* dst, const Byte* src, std::size_t n) {
    constexpr int B = kVecBytes;
    const auto first = load<Byte>(src);
    Bytes<B> last[4];
    for (int i = 0; i < 4; ++i) last[i] = load<Byte>(src + n - (i + 1) * B);
    Byte* const start = dst;
    Byte* const end = dst + n;
    const std::size_t head = B - reinterpret_cast<std::uintptr_t>(dst) % B;
    dst += head;
    src += head;
    while (end - dst > 4 * B) {
        Bytes<B> v[4];
        for (int i = 0; i < 4; ++i) v[i] = load<Byte>(src + i * B);
        for (int i = 0; i < 4; ++i) storeAligned(dst + i * B, v[i]);
        dst += 4 * B;
        src += 4 * B;
    }
    for (int i = 0; i < 4; ++i) store(end - (i + 1) * B, last[i]);
    store(start, first);
}

// Last byte to the first, from kShort bytes; dst may overlap src from above.
inline void copyDownwards(Byte* dst, const Byte* src, std::size_t n) {
    constexpr int B = kVecBytes;
    const auto last = load<Byte>(src + n - B);
    Bytes<B> first[4];
    for (int i = 0; i < 4; ++i) first[i] = load<Byte>(src + i * B);
    Byte* const start = dst;
    Byte* const end = dst + n;
    const std::size_t tail = (reinterpret_cast<std::uintptr_t>(end) - 1) % B + 1;
    dst = end - tail;
    src += n - tail;
    while (dst - start > 4 * B) {
        dst -= 4 * B;
        src -= 4 * B;
        Bytes<B> v[4];
        for (int i = 0; i < 4; ++i) v[i] = load<Byte>(src + i * B);
        for (int i = 0; i < 4; ++i) storeAligned(dst + i * B, v[i]);
    }
    for (int i = 0; i < 4; ++i) store(start + i * B, first[i]);
    store(end - B, last);
}

// Past the cache: each stretch is touched, so that the reads run at full speed, then stored
// non-temporally. The regions are apart.
inline void copyStreaming(Byte* dst, const Byte* src, std::size_t n) {
    constexpr int B = kVecBytes;
    const std::size_t head = (B - reinterpret_cast<std::uintptr_t>(dst) % B) % B;
    copyShort(dst, src, head);
    dst += head;
    src += head;
    n -= head;
    while (n >= 4 * B) {
        const std::size_t stretch = n < kStretch ? n / (4 * B) * (4 * B) : kStretch;
        for (std::size_t i = 0; i < stretch; i += 64) touch(src + i);
        for (std::size_t i = 0; i < stretch; i += 4 * B) {
            Bytes<B> v[4];
            for (int k = 0; k < 4; ++k) v[k] = load<Byte>(src + i + k * B);
            for (int k = 0; k < 4; ++k) stream(dst + i + k * B, v[k]);
        }
        dst += stretch;
        src += stretch;
        n -= stretch;
    }
    streamFence();
    copyShort(dst, src, n);
}

inline bool sweepsCache(std::size_t n) {
    if (n < kLookUpFrom) return false;
    const std::size_t cache = cacheBytes();
    return cache != 0 && n >= cache / 2;
}

}  // namespace detail

// The regions do not overlap.
inline void copyBytes(void* dst, const void* src, std::size_t n) {
    auto* d = static_cast<Byte*>(dst);
    const auto* s = static_cast<const Byte*>(src);
    if (n <= detail::kShort) detail::copyShort(d, s, n);
    else if (detail::sweepsCache(n)) detail::copyStreaming(d, s, n);
    else detail::copyUpwards(d, s, n);
}

// Any overlap.
inline void moveBytes(void* dst, const void* src, std::size_t n) {
    auto* d = static_cast<Byte*>(dst);
    const auto* s = static_cast<const Byte*>(src);
    const std::uintptr_t ahead = reinterpret_cast<std::uintptr_t>(d) - reinterpret_cast<std::uintptr_t>(s);
    if (ahead == 0) return;
    if (n <= detail::kShort) detail::copyShort(d, s, n);
    else if (ahead < n) detail::copyDownwards(d, s, n);
    else if (0 - ahead < n || !detail::sweepsCache(n)) detail::copyUpwards(d, s, n);
    else detail::copyStreaming(d, s, n);
}

namespace detail {

template <int B>
inline Bytes<B> leadingBytes(Bytes<kVecBytes> v) {
    if constexpr (B == kVecBytes) return v;
#if VLQ_SIMD_BYTES == 32
    else return lowHalf(v);
#elif VLQ_SIMD_BYTES == 64
    else if constexpr (B == 32) return lowHalf(v);
    else return lowHalf(lowHalf(v));
#endif
}

template <int B, int N>
inline void fillEnds(Byte* dst, std::size_t n, Bytes<kVecBytes> pattern) {
    const Bytes<B> v = leadingBytes<B>(pattern);
    for (int i = 0; i < N; ++i) store(dst + i * B, v);
    for (int i = 0; i < N; ++i) store(dst + n - (i + 1) * B, v);
}
template <class Word>
inline void fillTwoWords(Byte* dst, std::size_t n, std::uint64_t pattern) {
    const Word w = static_cast<Word>(pattern);
    storeWord(dst, w);
    storeWord(dst + n - sizeof(Word), w);
}

inline void fillShort(Byte* dst, std::size_t n, Bytes<kVecBytes> pattern) {
    if (n >= 4 * kVecBytes) return fillEnds<kVecBytes, 4>(dst, n, pattern);
    if (n >= 2 * kVecBytes) return fillEnds<kVecBytes, 2>(dst, n, pattern);
    if (n >= kVecBytes) return fillEnds<kVecBytes, 1>(dst, n, pattern);
#if VLQ_SIMD_BYTES >= 64
    if (n >= 32) return fillEnds<32, 1>(dst, n, pattern);
#endif
#if VLQ_SIMD_BYTES >= 32
    if (n >= 16) return fillEnds<16, 1>(dst, n, pattern);
#endif
    const auto word = static_cast<std::uint64_t>(bitCast<std::int64_t>(pattern)[0]);
    if (n >= 8) return fillTwoWords<std::uint64_t>(dst, n, word);
    if (n >= 4) return fillTwoWords<std::uint32_t>(dst, n, word);
    if (n >= 2) return fillTwoWords<std::uint16_t>(dst, n, word);
    if (n == 1) *dst = static_cast<Byte>(word);
}

template <class Store>
inline void fillVectors(Byte* dst, Byte* end, Bytes<kVecBytes> pattern, Store put) {
    for (; end - dst > 4 * kVecBytes; dst += 4 * kVecBytes) {
        for (int i = 0; i < 4; ++i) put(dst + i * kVecBytes, pattern);
    }
}

// n bytes, more than kShort; `pattern` repeats with a period of `period` bytes from dst on.
inline void fillLong(Byte* dst, std::size_t n, Bytes<kVecBytes> pattern, std::size_t period) {
    constexpr int B = kVecBytes;
    Byte* const end = dst + n;
    store(dst, pattern);
    const std::size_t head = B - reinterpret_cast<std::uintptr_t>(dst) % B;
    if (head % period != 0) {
        // No element stands on a vector's boundary.
        fillVectors(dst, end, pattern, [](Byte* p, Bytes<B> v) { store(p, v); });
    } else if (sweepsCache(n)) {
        fillVectors(dst + head, end, pattern, [](Byte* p, Bytes<B> v) { stream(p, v); });
        streamFence();
    } else {
        fillVectors(dst + head, end, pattern, [](Byte* p, Bytes<B> v) { storeAligned(p, v); });
    }
    for (int i = 0; i < 4; ++i) store(end - (i + 1) * B, pattern);
}

}  // namespace detail

// `pattern` over `count` elements of type T.
template <class T>
inline void fill(T* dst, Vec<unsigned char> pattern, std::size_t count) {
    static_assert(16 % sizeof(T) == 0);
    auto* d = reinterpret_cast<Byte*>(dst);
    const std::size_t n = count * sizeof(T);
    if (n <= detail::kShort) detail::fillShort(d, n, pattern);
    else detail::fillLong(d, n, pattern, sizeof(T));
}

// A value of 1, 2, 4, 8 or 16 bytes over and over; every bit is kept.
template <class T>
inline Vec<unsigned char> repeated(const T& value) {
    if constexpr (sizeof(T) == 16) {
        Vec<Byte, 16> v;
        std::memcpy(&v.raw, &value, 16);
#if VLQ_SIMD_BYTES >= 64
        return joinHalves(joinHalves(v, v), joinHalves(v, v));
#elif VLQ_SIMD_BYTES >= 32
        return joinHalves(v, v);
#else
        return v;
#endif
    } else {
        return bitCast<Byte>(Vec<BitsOf<T>>::broadcast(std::bit_cast<BitsOf<T>>(value)));
    }
}

}  // namespace vlq
