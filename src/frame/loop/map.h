// Element-wise loops: dst[i] = op(src[i]...). A short head brings dst to a vector boundary, blocks
// follow, and a partial vector takes what remains, all with the same operation, so a result does
// not depend on alignment or length. Each block is read whole before it is written: dst may be
// one of the sources. Nothing outside the vectors is touched.
#pragma once

#include "frame/simd/tuning.h"

namespace vlq {

// Streaming stores go past the cache; dst then stands on a boundary of its group.
enum class Stores { Ordinary, Streaming };

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
// All bits in the lanes past the first `count`.
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

template <Stores stores, class T, int N>
inline void storeBlock(T* p, const Block<T, N>& block) {
    for (int i = 0; i < N; ++i) {
        if constexpr (stores == Stores::Streaming)
            stream(p + i * Vec<T>::lanes, block.part[i]);
        else
            store(p + i * Vec<T>::lanes, block.part[i]);
    }
}
template <class T, int N>
inline void storeBlockPartial(T* p, const Block<T, N>& block, int count) {
    constexpr int lanes = Vec<T>::lanes;
    for (int i = 0; i < N && count > 0; ++i, count -= lanes) {
        storePartial(p + i * lanes, block.part[i], count < lanes ? count : lanes);
    }
}

}  // namespace detail

// op takes one Block a source and gives a Block of D; a block is one vector of the narrowest type.
// The lanes that a partial block does not use are 0; all their bits are set for an op that says so
// by kMarkUnused.
// Elements that belong together, as the two parts of a complex value, are a group: len counts
// whole groups' elements and no group is split over two vectors.
template <int group = 1, Stores stores = Stores::Ordinary, class D, class Op, class... S>
inline void mapBlocks(D* dst, std::ptrdiff_t len, const Op& op, const S*... src) {
    constexpr int count = kVecBytes / detail::kNarrowest<D, S...>;
    constexpr int dstParts = count / Vec<D>::lanes;

    auto partial = [&](int n) {
        const auto read = [&]<class T>(const T* p) {
            const auto block = detail::loadBlockPartial<T, count / Vec<T>::lanes>(p, n);
            if constexpr (requires { Op::kMarkUnused; })
                return detail::markUnused(block, n);
            else
                return block;
        };
        const auto result = op(read(src)...);
        detail::storeBlockPartial<D, dstParts>(dst, result, n);
    };
    auto advance = [&](std::ptrdiff_t n) {
        dst += n;
        ((src += n), ...);
        len -= n;
    };

    const auto offset = reinterpret_cast<std::uintptr_t>(dst) % kVecBytes;
    if (offset % (group * sizeof(D)) == 0 && offset != 0 && len > 4 * count) {
        const int head = static_cast<int>((kVecBytes - offset) / sizeof(D));
        partial(head);
        advance(head);
    }
    // The compiler may outline what ends the vector and hand it op by address. The loops have their
    // own, whose constants then stay in registers; captures by value keep them reachable.
    const Op hot = op;
    constexpr int unroll = kMapUnroll;
    while (len >= unroll * count) {
#pragma GCC unroll 4
        for (int u = 0; u < unroll; ++u) {
            const auto result =
                hot(detail::loadBlock<S, count / Vec<S>::lanes>(src + u * count)...);
            detail::storeBlock<stores, D, dstParts>(dst + u * count, result);
        }
        advance(unroll * count);
    }
    if constexpr (stores == Stores::Streaming) streamFence();
    while (len >= count) {
        detail::storeBlock<Stores::Ordinary, D, dstParts>(
            dst, hot(detail::loadBlock<S, count / Vec<S>::lanes>(src)...));
        advance(count);
    }
    if (len > 0) partial(static_cast<int>(len));
}

// All types of one size: op takes and gives plain vectors.
template <int group = 1, Stores stores = Stores::Ordinary, class D, class Op, class... S>
inline void map(D* dst, std::ptrdiff_t len, const Op& op, const S*... src) {
    static_assert(((sizeof(S) == sizeof(D)) && ...));
    mapBlocks<group, stores>(
        dst, len, [op](const auto&... block) { return Block<D, 1>{{op(block.part[0]...)}}; },
        src...);
}

// One element at a time, for operations that no vector instruction serves: dst[i] = op(src[i]...).
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
