// How a transform beyond the caches is cut: 2^outerBits rows, combined in tiles of 2^tileBits
// columns. A row that is still too long is cut again.
#pragma once

#include "vlqs/types.h"

namespace vlq::fft {

struct LargeStep {
    int outerBits;
    int tileBits;
};

// For orders above ComplexLimits<T>::inCache. Tiles stay near the first cache up to the middle
// orders, near the second above.
template <class T>
constexpr LargeStep largeStep(int order) {
    if constexpr (sizeof(T) == 4) {
        if (order == 16) return {4, 5};
        if (order <= 18) return {4, 6};
        if (order <= 21) return {6, 7};
        return {8, 6};
    } else {
        if (order <= 15) return {4, 4};
        if (order <= 17) return {4, 6};
        if (order == 18) return {6, 6};
        if (order == 19) return {6, 7};
        return {8, 5};
    }
}

}  // namespace vlq::fft
