// Element-wise loops like map's for operations of many instructions, which are compiled once for
// whole and partial blocks, and for operations with two results.
#pragma once

#include "frame/loop/map.h"

namespace vlq {

namespace detail {

template <class T, int N>
inline Block<T, N> loadFirst(const T* p, int count) {
    if (count == N * Vec<T>::lanes) return loadBlock<T, N>(p);
    return loadBlockPartial<T, N>(p, count);
}
template <class T, int N>
inline void storeFirst(T* p, const Block<T, N>& block, int count) {
    if (count == N * Vec<T>::lanes)
        storeBlock(p, block);
    else
        storeBlockPartial(p, block, count);
}

}  // namespace detail

// dst[i] = op(src[i]...), by blocks as in mapBlocks. dst may be one of the sources.
template <class D, class Op, class... S>
inline void mapLong(D* dst, std::ptrdiff_t len, const Op& op, const S*... src) {
    constexpr int count = kVecBytes / detail::kNarrowest<D, S...>;
    const Op hot = op;
    for (std::ptrdiff_t i = 0; i < len; i += count) {
        const int n = len - i < count ? static_cast<int>(len - i) : count;
        detail::storeFirst<D, count / Vec<D>::lanes>(
            dst + i, hot(detail::loadFirst<S, count / Vec<S>::lanes>(src + i, n)...), n);
    }
}

// Blocks for two destinations.
template <class T, int N>
struct TwoBlocks {
    Block<T, N> first, second;
};

// (first[i], second[i]) = op(src[i]...). Each destination may be one of the sources.
template <class D, class Op, class... S>
inline void mapToTwo(D* first, D* second, std::ptrdiff_t len, const Op& op, const S*... src) {
    constexpr int count = kVecBytes / detail::kNarrowest<D, S...>;
    const Op hot = op;
    for (std::ptrdiff_t i = 0; i < len; i += count) {
        const int n = len - i < count ? static_cast<int>(len - i) : count;
        const TwoBlocks<D, count / Vec<D>::lanes> result =
            hot(detail::loadFirst<S, count / Vec<S>::lanes>(src + i, n)...);
        detail::storeFirst(first + i, result.first, n);
        detail::storeFirst(second + i, result.second, n);
    }
}

}  // namespace vlq
