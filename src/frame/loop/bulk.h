// Bulk movement of bytes: copy, move and fill. The method depends on the length: a few overlapping
// loads and stores, with everything read before anything is written; a loop over an aligned
// destination; the string instructions; and non-temporal stores for what exceeds the cache. The
// limits between them were measured.
#pragma once

#include <cwchar>

#include "frame/simd/cache.h"
#include "frame/simd/permute.h"
#include "frame/simd/string.h"
#include "frame/simd/tuning.h"

namespace vlq {

using Byte = unsigned char;

// Up to here copyShort and fillShort serve: a few loads and stores from both ends. A caller that
// makes a tail call for longer ones needs no stack frame.
inline constexpr std::size_t kShort = 8 * kVecBytes;

namespace detail {

template <int B>
using Bytes = Vec<Byte, B>;

// Bytes from p to the next boundary of `Boundary` bytes, 1 to Boundary.
template <std::size_t Boundary>
inline std::size_t toNextBoundary(const Byte* p) {
    return Boundary - reinterpret_cast<std::uintptr_t>(p) % Boundary;
}

template <class Word>
inline Word loadWord(const Byte* p) {
    Word w;
    std::memcpy(&w, p, sizeof(Word));
    return w;
}
template <class Word>
inline void storeWord(Byte* p, Word w) {
    std::memcpy(p, &w, sizeof(Word));
}

// ---- copy ---------------------------------------------------------------------------------------

// n from sizeof(Word) to twice that: two integers that may overlap.
template <class Word>
inline void copyTwoWords(Byte* dst, const Byte* src, std::size_t n) {
    const Word first = loadWord<Word>(src), last = loadWord<Word>(src + n - sizeof(Word));
    storeWord(dst, first);
    storeWord(dst + n - sizeof(Word), last);
}

// n from N * B to 2 * N * B: N vectors from either end, N being 1, 2 or 4. Each has a name: arrays
// of them GCC 12 copies through the stack.
template <int B, int N>
[[gnu::always_inline]] inline void copyEnds(Byte* dst, const Byte* src, std::size_t n) {
    const Byte* const srcEnd = src + n;
    Byte* const dstEnd = dst + n;
    const auto first = load<Byte, B>(src), last = load<Byte, B>(srcEnd - B);
    if constexpr (N == 1) {
        store(dst, first);
        store(dstEnd - B, last);
    } else {
        const auto second = load<Byte, B>(src + B), lastButOne = load<Byte, B>(srcEnd - 2 * B);
        if constexpr (N == 4) {
            const auto third = load<Byte, B>(src + 2 * B), fourth = load<Byte, B>(src + 3 * B);
            const auto lastButTwo = load<Byte, B>(srcEnd - 3 * B),
                       lastButThree = load<Byte, B>(srcEnd - 4 * B);
            store(dst + 2 * B, third);
            store(dst + 3 * B, fourth);
            store(dstEnd - 3 * B, lastButTwo);
            store(dstEnd - 4 * B, lastButThree);
        }
        store(dst, first);
        store(dst + B, second);
        store(dstEnd - B, last);
        store(dstEnd - 2 * B, lastButOne);
    }
}

}  // namespace detail

// Up to kShort bytes, any overlap.
[[gnu::always_inline]] inline void copyShort(Byte* dst, const Byte* src, std::size_t n) {
    using namespace detail;
    if (n >= kVecBytes) {
        if (n <= 2 * kVecBytes) return copyEnds<kVecBytes, 1>(dst, src, n);
        if (n <= 4 * kVecBytes) return copyEnds<kVecBytes, 2>(dst, src, n);
        return copyEnds<kVecBytes, 4>(dst, src, n);
    }
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

namespace detail {

// Four vectors in a row.
struct Four {
    Bytes<kVecBytes> a, b, c, d;
};
[[gnu::always_inline]] inline Four loadFour(const Byte* p) {
    constexpr int B = kVecBytes;
    return {load<Byte>(p), load<Byte>(p + B), load<Byte>(p + 2 * B), load<Byte>(p + 3 * B)};
}
template <class Put>
[[gnu::always_inline]] inline void storeFour(Byte* p, Four v, Put put) {
    constexpr int B = kVecBytes;
    put(p, v.a);
    put(p + B, v.b);
    put(p + 2 * B, v.c);
    put(p + 3 * B, v.d);
}
inline constexpr auto kAnywhere = [](Byte* p, Bytes<kVecBytes> v) { store(p, v); };
inline constexpr auto kAligned = [](Byte* p, Bytes<kVecBytes> v) { storeAligned(p, v); };
inline constexpr auto kAroundCache = [](Byte* p, Bytes<kVecBytes> v) { stream(p, v); };

// First byte to the last, more than kShort; dst may overlap src from below. The ends are read
// before the loop writes, and written after it.
inline void copyUpwards(Byte* dst, const Byte* src, std::size_t n) {
    constexpr int B = kVecBytes;
    const auto first = load<Byte>(src);
    const Four last = loadFour(src + n - 4 * B);
    Byte* const start = dst;
    Byte* const end = dst + n;
    const std::size_t head = toNextBoundary<B>(dst);
    dst += head;
    src += head;
    while (end - dst > 4 * B) {
        storeFour(dst, loadFour(src), kAligned);
        dst += 4 * B;
        src += 4 * B;
    }
    storeFour(end - 4 * B, last, kAnywhere);
    store(start, first);
}

// Last byte to the first, more than kShort; dst may overlap src from above.
inline void copyDownwards(Byte* dst, const Byte* src, std::size_t n) {
    constexpr int B = kVecBytes;
    const auto last = load<Byte>(src + n - B);
    const Four first = loadFour(src);
    Byte* const start = dst;
    Byte* const end = dst + n;
    const std::size_t tail = B + 1 - toNextBoundary<B>(end - 1);
    dst = end - tail;
    src += n - tail;
    while (dst - start > 4 * B) {
        dst -= 4 * B;
        src -= 4 * B;
        storeFour(dst, loadFour(src), kAligned);
    }
    storeFour(start, first, kAnywhere);
    store(end - B, last);
}

// By string instruction, from a cache-line boundary of dst on. The regions do not overlap.
inline void copyByWords(Byte* dst, const Byte* src, std::size_t n) {
    const std::size_t head = toNextBoundary<64>(dst);
    copyShort(dst, src, head);
    const std::size_t words = (n - head) / 8;
    copyWords(dst + head, src + head, words);
    const std::size_t done = head + 8 * words;
    copyShort(dst + done, src + done, n - done);
}

// With non-temporal stores. The regions do not overlap.
inline void copyStreaming(Byte* dst, const Byte* src, std::size_t n) {
    constexpr int B = kVecBytes;
    const std::size_t head = toNextBoundary<B>(dst);
    copyShort(dst, src, head);
    std::size_t done = head;
    for (; n - done >= 4 * B; done += 4 * B) {
        storeFour(dst + done, loadFour(src + done), kAroundCache);
    }
    streamFence();
    copyShort(dst + done, src + done, n - done);
}

}  // namespace detail

// More than kShort bytes; the regions do not overlap.
inline void copyLong(Byte* dst, const Byte* src, std::size_t n) {
    using namespace detail;
    if (n >= kLibraryCopiesFrom && n < kLibraryCopiesBelow) {
        std::memcpy(dst, src, n);
    } else if (n < kCopyByWords) {
        copyUpwards(dst, src, n);
    } else if (exceedsCache(2 * n)) {
        copyStreaming(dst, src, n);
    } else {
        copyByWords(dst, src, n);
    }
}

// More than kShort bytes, any overlap.
inline void moveLong(Byte* dst, const Byte* src, std::size_t n) {
    using namespace detail;
    const std::uintptr_t above =
        reinterpret_cast<std::uintptr_t>(dst) - reinterpret_cast<std::uintptr_t>(src);
    if (above == 0) return;
    if (above >= n && 0 - above >= n)
        copyLong(dst, src, n);
    else if (kCLibraryIsWider)
        std::memmove(dst, src, n);
    else if (above < n)
        copyDownwards(dst, src, n);
    else
        copyUpwards(dst, src, n);
}

// ---- fill ---------------------------------------------------------------------------------------

// A value of 1, 2, 4 or 8 bytes, or a complex one of 16, over and over; every bit is kept.
template <class T>
inline Vec<Byte> repeated(const T& value) {
    if constexpr (sizeof(T) == 16) {
        // Each half in a register: the value arrived in two, and storing them to load one vector
        // back would stall.
        auto re = std::bit_cast<std::int64_t>(value.re), im = std::bit_cast<std::int64_t>(value.im);
        asm("" : "+r"(re), "+r"(im));
        return bitCast<Byte>(alternating(re, im));
    } else {
        return bitCast<Byte>(Vec<BitsOf<T>>::broadcast(std::bit_cast<BitsOf<T>>(value)));
    }
}

namespace detail {

template <int B, int N>
[[gnu::always_inline]] inline void fillEnds(Byte* dst, std::size_t n, Bytes<kVecBytes> pattern) {
    const Bytes<B> v = firstBytes<B>(pattern);
    for (int i = 0; i < N; ++i) store(dst + i * B, v);
    for (int i = 0; i < N; ++i) store(dst + n - (i + 1) * B, v);
}
template <class Word>
inline void fillTwoWords(Byte* dst, std::size_t n, std::uint64_t pattern) {
    const Word w = static_cast<Word>(pattern);
    storeWord(dst, w);
    storeWord(dst + n - sizeof(Word), w);
}

}  // namespace detail

// Up to kShort bytes; n is a multiple of the pattern's period, so that both ends are in phase.
[[gnu::always_inline]] inline void fillShort(Byte* dst, std::size_t n, Vec<Byte> pattern) {
    using namespace detail;
    if (n >= kVecBytes) {
        if (n <= 2 * kVecBytes) return fillEnds<kVecBytes, 1>(dst, n, pattern);
        if (n <= 4 * kVecBytes) return fillEnds<kVecBytes, 2>(dst, n, pattern);
        return fillEnds<kVecBytes, 4>(dst, n, pattern);
    }
#if VLQ_SIMD_BYTES >= 64
    if (n >= 32) return fillEnds<32, 1>(dst, n, pattern);
#endif
#if VLQ_SIMD_BYTES >= 32
    if (n >= 16) return fillEnds<16, 1>(dst, n, pattern);
#endif
    const std::uint64_t word = firstWord(pattern);
    if (n >= 8) return fillTwoWords<std::uint64_t>(dst, n, word);
    if (n >= 4) return fillTwoWords<std::uint32_t>(dst, n, word);
    if (n >= 2) return fillTwoWords<std::uint16_t>(dst, n, word);
    if (n == 1) *dst = static_cast<Byte>(word);
}

namespace detail {

template <class Put>
[[gnu::always_inline]] inline void fillVectors(Byte* dst, Byte* end, Bytes<kVecBytes> pattern,
                                               Put put) {
    constexpr int B = kVecBytes;
    const Four four = {pattern, pattern, pattern, pattern};
    for (; end - dst > 4 * B; dst += 4 * B) storeFour(dst, four, put);
    storeFour(end - 4 * B, four, kAnywhere);
}

}  // namespace detail

// More than kShort bytes; `pattern` repeats with a period of Period bytes from dst on.
template <std::size_t Period>
inline void fillLong(Byte* dst, std::size_t n, Vec<Byte> pattern) {
    using namespace detail;
    constexpr int B = kVecBytes;
    if (kCLibraryIsWider && Period == 1 && n < kFillByWords) {
        std::memset(dst, pattern[0], n);
        return;
    }
    if (kCLibraryIsWider && Period <= 4 && n < kFillByWords &&
        reinterpret_cast<std::uintptr_t>(dst) % sizeof(wchar_t) == 0) {
        std::wmemset(reinterpret_cast<wchar_t*>(dst), bitCast<wchar_t>(pattern)[0],
                     n / sizeof(wchar_t));
        store(dst + n - B, pattern);  // two bytes may be left over
        return;
    }
    store(dst, pattern);
    const std::size_t head = toNextBoundary<B>(dst);
    if (head % Period != 0) {
        // No element begins on a vector boundary.
        return fillVectors(dst, dst + n, pattern, kAnywhere);
    }
    Byte* const start = dst + head;
    Byte* const end = dst + n;
    if (Period <= 8 && n >= kFillByWords) {
        const std::size_t words = static_cast<std::size_t>(end - start) / 8;
        fillWords(start, firstWord(pattern), words);
        store(end - B, pattern);
    } else if (Period > 8 && exceedsCache(n)) {
        fillVectors(start, end, pattern, kAroundCache);
        streamFence();
    } else {
        fillVectors(start, end, pattern, kAligned);
    }
}

}  // namespace vlq
