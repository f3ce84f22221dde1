// The definition of scaled sums and differences.
#pragma once

#include "harness/scale_ref.h"

namespace vlqtest {

template <class T>
T sumRef(T a, T b, std::int32_t scaleFactor) {
    return scaleRef<T>(Exact{a} + b, scaleFactor);
}
template <class T>
T differenceRef(T a, T b, std::int32_t scaleFactor) {
    return scaleRef<T>(Exact{a} - b, scaleFactor);
}

}  // namespace vlqtest
