// The scale rule in exact integers, the reference of every function with a scale factor:
// clamp(round(e * 2^-scaleFactor)).
#pragma once

#include <cstdint>
#include <limits>

#include "vlqs/types.h"

namespace vlqtest {

__extension__ typedef __int128 Exact;
__extension__ typedef unsigned __int128 ExactMagnitude;

inline Exact clampRef(Exact e, Exact low, Exact high) {
    return e < low ? low : e > high ? high : e;
}
template <class T>
T clampRef(Exact e) {
    return static_cast<T>(
        clampRef(e, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

// e / 2^shift rounded by mode, 1 <= shift <= 126. Modes other than vlqRndZero and vlqRndNear round
// ties away from zero.
inline Exact shiftRef(Exact e, int shift, VlqRoundMode mode) {
    const bool negative = e < 0;
    const ExactMagnitude size =
        negative ? -static_cast<ExactMagnitude>(e) : static_cast<ExactMagnitude>(e);
    ExactMagnitude quotient = size >> shift;
    const ExactMagnitude rest = size - (quotient << shift), half = ExactMagnitude{1} << (shift - 1);
    const bool up = mode == vlqRndZero   ? false
                    : mode == vlqRndNear ? rest > half || (rest == half && quotient % 2 == 1)
                                         : rest >= half;
    if (up) ++quotient;
    return negative ? -static_cast<Exact>(quotient) : static_cast<Exact>(quotient);
}

// The rule for a range of results within 64 bits either way, and |e| <= 2^126.
inline Exact scaleRef(Exact e, std::int64_t scaleFactor, VlqRoundMode mode, Exact low, Exact high) {
    if (scaleFactor > 126) return 0;  // |e| * 2^-scaleFactor is one half at most
    if (scaleFactor > 0)
        return clampRef(shiftRef(e, static_cast<int>(scaleFactor), mode), low, high);
    // A value out of range stays out of range, so the shift may be made, and clamped, in two steps
    // that 128 bits hold. 64 bits saturate everything but 0.
    const std::int64_t count = scaleFactor < -64 ? 64 : -scaleFactor, first = count / 2;
    const Exact value = clampRef(clampRef(e, low, high) * (Exact{1} << first), low, high);
    return clampRef(value * (Exact{1} << (count - first)), low, high);
}
template <class T>
T scaleRef(Exact e, std::int64_t scaleFactor, VlqRoundMode mode = vlqRndNear) {
    return static_cast<T>(scaleRef(e, scaleFactor, mode, std::numeric_limits<T>::min(),
                                   std::numeric_limits<T>::max()));
}

}  // namespace vlqtest
