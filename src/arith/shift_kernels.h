// Shifts of every element by one count, 0 to the element's width less one.
#pragma once

#include "frame/loop/map.h"
#include "frame/simd/ops.h"

namespace vlq::shift {

struct Left {
    int count;
    template <class V>
    V operator()(V v) const {
        return shiftLeft(v, count);
    }
};
// Arithmetic on signed types.
struct Right {
    int count;
    template <class V>
    V operator()(V v) const {
        return shiftRight(v, count);
    }
};

}  // namespace vlq::shift
