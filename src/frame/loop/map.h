// Element-wise loops: dst[i] = op(src[i]...). A short head aligns dst to a vector boundary, blocks
// follow, and a partial vector takes the rest, all with the same operation, so that results do not
// depend on alignment or length. Each block is read completely before it is written, so dst may be
// one of the sources. Nothing outside the vectors is read or written.
#pragma once

#include "frame/simd/cache.h"
#include "frame/simd/control.h"
#include "frame/simd/tuning.h"

namespace vlq {

// Whether an operation asks for all bits set in the unused lanes of a partial block, instead of 0.
template <class Op>
inline constexpr bool marksUnused = requires {
    requires Op::kMarkUnused;
};

namespace detail {

template <class... T>
inline constexpr int kNarrowest = [] {
    int narrowest = 64;
    ((narrowest =
          static_cast<int>(sizeof(T)) < narrowest ? static_cast<int>(sizeof(T)) : narrowest),
     ...);
    return narrowest;
}();

template <class T, int N>
inline Block<T, N> loadBlock(const T* p) {
    Block<T, N> block;
    for (int i = 0; i < N; ++i) block.part[i] = load<T>(p + i * Vec<T>::lanes);
    return block;
}
template <class T, int N>
inline Block<T, N> loadBlockPartial(const T* p, int count) {
    constexpr int lanes = Vec<T>::lanes;
    Block<T, N> block;
    for (int i = 0; i < N; ++i, count -= lanes) {
        block.part[i] = count <= 0 ? Vec<T>::zero()
                                   : loadPartial<T>(p + i * lanes, count < lanes ? count : lanes);
    }
    return block;
}
// All bits set in the lanes after the first `count`.
template <class T>
inline Vec<T> unusedLanes(std::ptrdiff_t count) {
    BitsOf<T> mask[Vec<T>::lanes];
    for (int i = 0; i < Vec<T>::lanes; ++i) mask[i] = i < count ? BitsOf<T>{0} : BitsOf<T>{-1};
    return bitCast<T>(load(mask));
}
template <class T, int N>
inline Block<T, N> markUnused(Block<T, N> block, int count) {
    for (int i = 0; i < N; ++i)
        block.part[i] = block.part[i] | unusedLanes<T>(count - i * Vec<T>::lanes);
    return block;
}

template <class T, int N>
inline void storeBlock(T* p, const Block<T, N>& block) {
    for (int i = 0; i < N; ++i) store(p + i * Vec<T>::lanes, block.part[i]);
}
template <class T, int N>
inline void streamBlock(T* p, const Block<T, N>& block) {
    for (int i = 0; i < N; ++i) stream(p + i * Vec<T>::lanes, block.part[i]);
}
template <class T, int N>
inline void storeBlockPartial(T* p, const Block<T, N>& block, int count) {
    constexpr int lanes = Vec<T>::lanes;
    for (int i = 0; i < N && count > 0; ++i, count -= lanes) {
        storePartial(p + i * lanes, block.part[i], count < lanes ? count : lanes);
    }
}

// Elements in a block: as many as one vector of the narrowest type holds.
template <class... T>
inline constexpr int kBlock = kVecBytes / kNarrowest<T...>;

// The first n elements, fewer than a block.
template <class D, class Op, class... S>
inline void mapPartial(D* dst, int n, const Op& op, const S*... src) {
    constexpr int count = kBlock<D, S...>;
    const auto read = [n]<class T>(const T* p) {
        const auto block = loadBlockPartial<T, count / Vec<T>::lanes>(p, n);
        if constexpr (marksUnused<Op>)
            return markUnused(block, n);
        else
            return block;
    };
    const auto result = op(read(src)...);
    storeBlockPartial<D, count / Vec<D>::lanes>(dst, result, n);
}

// Elements before the first vector boundary of dst; 0 if there is none at an element, or group.
template <int group, class D>
inline int headLength(const D* dst) {
    const auto offset = reinterpret_cast<std::uintptr_t>(dst) % kVecBytes;
    return offset % (group * sizeof(D)) == 0 && offset != 0
               ? static_cast<int>((kVecBytes - offset) / sizeof(D))
               : 0;
}

// Bytes of all vectors together from which on it is worth asking whether they exceed the cache.
inline constexpr std::size_t kLongBytes = std::size_t{8} << 20;

template <class D, class... S>
inline bool overlapsNone(const D* dst, std::ptrdiff_t len, const S*... src) {
    const auto begin = reinterpret_cast<std::uintptr_t>(dst),
               end = begin + static_cast<std::uintptr_t>(len) * sizeof(D);
    return (... && (reinterpret_cast<std::uintptr_t>(src) >= end ||
                    reinterpret_cast<std::uintptr_t>(src + len) <= begin));
}

// mapBlocks for long vectors and a dst that overlaps no source, with non-temporal stores where the
// vectors exceed the cache. The first and the last block overlap their neighbours: the elements in
// both are computed twice. A function of its own, because short calls feel the stack frame that a
// caller that inlined it would need.
template <int group, class D, class Op, class... S>
[[gnu::noinline]] void mapLong(D* dst, std::ptrdiff_t len, Op op, const S*... src) {
    constexpr int count = kBlock<D, S...>;
    const bool streams =
        exceedsCache(static_cast<std::size_t>(len) * (sizeof(D) + ... + sizeof(S)));
    const std::ptrdiff_t head = headLength<group>(dst), last = len - count;
    for (std::ptrdiff_t i = 0;;) {
        const auto result = op(loadBlock<S, count / Vec<S>::lanes>(src + i)...);
        if (streams && reinterpret_cast<std::uintptr_t>(dst + i) % kVecBytes == 0)
            streamBlock(dst + i, result);
        else
            storeBlock(dst + i, result);
        if (i == last) break;
        i = i == 0 && head != 0 ? head : i + count;
        if (i > last) i = last;
    }
    streamFence();
    clearUpperHalves();  // op may hold vectors
}

}  // namespace detail

// op takes one Block per source and returns a Block of D; a block is as many elements as one vector
// of the narrowest type holds. Elements that belong together, as the two parts of a complex value,
// form a group. len counts elements and is a multiple of the group; no group is split over two
// vectors.
template <int group = 1, class D, class Op, class... S>
inline void mapBlocks(D* dst, std::ptrdiff_t len, const Op& op, const S*... src) {
    constexpr int count = detail::kBlock<D, S...>;
    const auto partial = [&](int n) { detail::mapPartial(dst, n, op, src...); };
    const auto advance = [&](std::ptrdiff_t n) {
        dst += n;
        ((src += n), ...);
        len -= n;
    };
    if (const int head = detail::headLength<group>(dst); head != 0 && len > 4 * count) {
        partial(head);
        advance(head);
    }
    // The compiler may outline the partial blocks and pass them op by address. The loops use a
    // copy, so that its constants stay in registers.
    const Op hot = op;
    constexpr int unroll = 4;
    while (len >= unroll * count) {
#pragma GCC unroll 4
        for (int u = 0; u < unroll; ++u) {
            const auto result =
                hot(detail::loadBlock<S, count / Vec<S>::lanes>(src + u * count)...);
            detail::storeBlock(dst + u * count, result);
        }
        advance(unroll * count);
    }
    while (len >= count) {
        detail::storeBlock(dst, hot(detail::loadBlock<S, count / Vec<S>::lanes>(src)...));
        advance(count);
    }
    if (len > 0) partial(static_cast<int>(len));
    clearUpperHalves();  // op may hold vectors, and this may be no function of its own
}

// All types of one size: op takes and returns single vectors.
template <int group = 1, class D, class Op, class... S>
inline void map(D* dst, std::ptrdiff_t len, const Op& op, const S*... src) {
    static_assert(((sizeof(S) == sizeof(D)) && ...));
    mapBlocks<group>(
        dst, len, [op](const auto&... block) { return Block<D, 1>{{op(block.part[0]...)}}; },
        src...);
}

// The same two for operations that cost less than their memory traffic: results of vectors that
// exceed the cache bypass it. For others that is not worth a second copy of their code.
template <int group = 1, class D, class Op, class... S>
inline void mapBlocksStreaming(D* dst, std::ptrdiff_t len, const Op& op, const S*... src) {
    constexpr std::size_t bytes = (sizeof(D) + ... + sizeof(S));  // of an element in all vectors
    if (len >= static_cast<std::ptrdiff_t>(detail::kLongBytes / bytes)) [[unlikely]] {
        if (detail::overlapsNone(dst, len, src...))
            return detail::mapLong<group>(dst, len, op, src...);
    }
    mapBlocks<group>(dst, len, op, src...);
}
template <int group = 1, class D, class Op, class... S>
inline void mapStreaming(D* dst, std::ptrdiff_t len, const Op& op, const S*... src) {
    mapBlocksStreaming<group>(
        dst, len, [op](const auto&... block) { return Block<D, 1>{{op(block.part[0]...)}}; },
        src...);
}

// One element at a time, for operations without vector instructions: dst[i] = op(src[i]...).
template <class D, class Op, class... S>
inline void mapScalars(D* dst, std::ptrdiff_t len, Op&& op, const S*... src) {
    const auto element = []<class T>(const T* p) {
        T value;
        std::memcpy(&value, p, sizeof value);
        return value;
    };
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        const D result = op(element(src + i)...);
        std::memcpy(dst + i, &result, sizeof result);
    }
}

}  // namespace vlq
