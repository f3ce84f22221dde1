// Conjugates, parts and absolute values by their definitions, one element at a time.
#pragma once

#include <cmath>
#include <limits>
#include <type_traits>

#include "harness/element.h"

namespace vlqtest {

template <class T>
T negatedRef(T x) {
    if constexpr (std::is_floating_point_v<T>)
        return -x;
    else
        return x == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max()
                                                  : static_cast<T>(-x);
}
template <class C>
C conjRef(C x) {
    return {x.re, negatedRef(x.im)};
}
template <class T>
T absRef(T x) {
    if constexpr (std::is_floating_point_v<T>)
        return std::fabs(x);
    else
        return x < 0 ? negatedRef(x) : x;
}

}  // namespace vlqtest
