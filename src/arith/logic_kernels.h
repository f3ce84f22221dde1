// Bitwise operations on vectors of any integer type.
#pragma once

#include "frame/loop/map.h"

namespace vlq::logic {

struct And {
    template <class V>
    V operator()(V a, V b) const { return a & b; }
};

}  // namespace vlq::logic
