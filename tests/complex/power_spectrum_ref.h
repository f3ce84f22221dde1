// Squared magnitudes by their definitions, one element at a time.
#pragma once

#include <cmath>

#include "harness/element.h"
#include "harness/scale_ref.h"

namespace vlqtest {

inline std::int64_t powerRef(std::int64_t re, std::int64_t im) { return re * re + im * im; }

// Rounded in doubles by every operation; saturated.
inline Vlq32s powerInDoublesRef(Vlq32sc x, int scaleFactor) {
    if (scaleFactor > 63) return 0;
    if (scaleFactor < -30) return x.re == 0 && x.im == 0 ? 0 : 2147483647;
    const double re = x.re, im = x.im;
    const double power = std::ldexp(re * re + im * im, -scaleFactor);
    return power >= 2147483647.0 ? 2147483647 : static_cast<Vlq32s>(std::nearbyint(power));
}

}  // namespace vlqtest
