// Does any element of a vector satisfy a condition? The condition sees vectors and gives lane masks.
#pragma once

#include <type_traits>

#include "frame/simd/vec.h"

namespace vlq {

namespace detail {

// All bits in the first `count` lanes.
template <class T>
inline Vec<T> firstLanes(std::ptrdiff_t count) {
    T mask[Vec<T>::lanes];
    for (int i = 0; i < Vec<T>::lanes; ++i) mask[i] = i < count ? T(-1) : T(0);
    return load(mask);
}

}  // namespace detail

template <class T, class Condition>
inline bool anyOf(const T* src, std::ptrdiff_t len, Condition condition) {
    constexpr int lanes = Vec<T>::lanes;
    if (len < lanes) {
        return any(condition(loadPartial(src, static_cast<int>(len))) & detail::firstLanes<BitsOf<T>>(len));
    }
    // The last vector may overlap the one before.
    auto found = condition(load(src + len - lanes));
    for (std::ptrdiff_t i = 0; i + lanes <= len; i += lanes) found = found | condition(load(src + i));
    return any(found);
}

}  // namespace vlq
