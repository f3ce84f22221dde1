// Conversions of integers: scaled and rounded by mode, or plain.
#pragma once

#include "harness/scale_ref.h"

namespace vlqtest {

template <class To, class From>
To convertRef(From value, std::int32_t scaleFactor = 0, VlqRoundMode mode = vlqRndNear) {
    return scaleRef<To>(value, scaleFactor, mode);
}

}  // namespace vlqtest
