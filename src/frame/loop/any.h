// Whether any element of a vector satisfies a condition, which takes vectors and returns lane
// masks.
#pragma once

#include "frame/loop/map.h"

namespace vlq {

template <class T, class Condition>
inline bool anyOf(const T* src, std::ptrdiff_t len, Condition condition) {
    constexpr int lanes = Vec<T>::lanes;
    if (len < lanes) {
        return any(condition(loadPartial(src, static_cast<int>(len))) &
                   ~detail::unusedLanes<BitsOf<T>>(len));
    }
    // The last vector may overlap the one before.
    auto found = condition(load(src + len - lanes));
    for (std::ptrdiff_t i = 0; i + lanes <= len; i += lanes)
        found = found | condition(load(src + i));
    return any(found);
}

// A loop's operation that also notes whether any element of the first source satisfied the
// condition. Unused lanes have all bits set and must not satisfy it. The loop works on a copy,
// which keeps the mask in a register and merges it into *found when it is destroyed.
template <class Op, class Condition, class Mask>
class Watching {
public:
    static constexpr bool kMarkUnused = true;
    Watching(Op op, Condition condition, Mask* found)
        : op_(op), condition_(condition), found_(found) {}
    ~Watching() { *found_ = *found_ | seen_; }
    Watching(const Watching&) = default;
    Watching& operator=(const Watching&) = delete;

    template <class First, class... Others>
    auto operator()(const First& first, const Others&... others) const {
        seen_ = seen_ | condition_(first.part[0]);
        return op_(first, others...);
    }

private:
    Op op_;
    Condition condition_;
    Mask* found_;
    mutable Mask seen_ = Mask::zero();
};

}  // namespace vlq
