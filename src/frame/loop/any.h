// Does any element of a vector satisfy a condition? The condition sees vectors and gives lane masks.
#pragma once

#include "frame/loop/map.h"

namespace vlq {

template <class T, class Condition>
inline bool anyOf(const T* src, std::ptrdiff_t len, Condition condition) {
    constexpr int lanes = Vec<T>::lanes;
    if (len < lanes) {
        return any(condition(loadPartial(src, static_cast<int>(len))) & ~detail::unusedLanes<BitsOf<T>>(len));
    }
    // The last vector may overlap the one before.
    auto found = condition(load(src + len - lanes));
    for (std::ptrdiff_t i = 0; i + lanes <= len; i += lanes) found = found | condition(load(src + i));
    return any(found);
}

// An operation of a loop that also tells whether any element of its first source satisfied the
// condition. Unused lanes have all bits set and must not satisfy it.
template <class Op, class Condition, class Mask>
struct Watching {
    static constexpr bool kMarkUnused = true;
    Op op;
    Condition condition;
    Mask* found;

    template <class First, class... Others>
    auto operator()(const First& first, const Others&... others) const {
        *found = *found | condition(first.part[0]);
        return op(first, others...);
    }
};

}  // namespace vlq
