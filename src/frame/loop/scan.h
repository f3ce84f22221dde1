// Loops that look along a vector for the first element of a kind. Nothing outside it is read.
#pragma once

#include "frame/loop/map.h"

namespace vlq {

// Index of the first element that satisfies the condition, len where none does. The condition sees
// vectors and returns lane masks.
template <class T, class Condition>
inline std::ptrdiff_t findFirst(const T* src, std::ptrdiff_t len, Condition condition) {
    constexpr int lanes = Vec<T>::lanes;
    const auto firstOf = [](auto mask) { return std::countr_zero(maskBits(mask)); };
    std::ptrdiff_t i = 0;
    for (; len - i >= 4 * lanes; i += 4 * lanes) {
        const auto a = condition(load(src + i)), b = condition(load(src + i + lanes)),
                   c = condition(load(src + i + 2 * lanes)),
                   d = condition(load(src + i + 3 * lanes));
        if (any((a | b) | (c | d))) {
            if (any(a)) return i + firstOf(a);
            if (any(b)) return i + lanes + firstOf(b);
            if (any(c)) return i + 2 * lanes + firstOf(c);
            return i + 3 * lanes + firstOf(d);
        }
    }
    for (; len - i >= lanes; i += lanes) {
        const auto mask = condition(load(src + i));
        if (any(mask)) return i + firstOf(mask);
    }
    if (i < len) {
        const int rest = static_cast<int>(len - i);
        const auto mask = condition(loadPartial(src + i, rest)) & firstLanes<T>(rest);
        if (any(mask)) return i + firstOf(mask);
    }
    return len;
}

}  // namespace vlq
