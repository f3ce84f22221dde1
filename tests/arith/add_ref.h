// The definition of the scaled sums and differences, in exact integers.
#pragma once

#include <cstdint>
#include <limits>

namespace vlqtest {

__extension__ typedef __int128 Exact;

template <class T>
T clampRef(Exact e) {
    constexpr Exact low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return static_cast<T>(e < low ? low : e > high ? high : e);
}

enum class Tie { Even, Away };

// e / 2^shift for 1 <= shift <= 100, by the distance to the integers on both sides.
inline Exact nearestRef(Exact e, int shift, Tie tie) {
    const Exact unit = Exact{1} << shift;
    const Exact below = e >> shift;
    const Exact distance = e - below * unit, left = unit - distance;
    if (distance != left) return distance < left ? below : below + 1;
    if (tie == Tie::Away) return e < 0 ? below : below + 1;
    return below % 2 == 0 ? below : below + 1;
}

// clamp(round(e * 2^-scaleFactor)) for |e| <= 2^65.
template <class T>
T scaleRef(Exact e, std::int32_t scaleFactor, Tie tie = Tie::Even) {
    if (scaleFactor > 100) return 0;
    if (scaleFactor > 0) return clampRef<T>(nearestRef(e, scaleFactor, tie));
    // What lies outside the range stays outside, so two halves of the shift may clamp in between;
    // 64 bits saturate anything but 0.
    const int first = scaleFactor < -32 ? 32 : -scaleFactor;
    const int second = scaleFactor < -64 ? 32 : -scaleFactor - first;
    const Exact value = clampRef<T>(Exact{clampRef<T>(e)} * (Exact{1} << first));
    return clampRef<T>(value * (Exact{1} << second));
}

template <class T>
T sumRef(T a, T b, std::int32_t scaleFactor) {
    return scaleRef<T>(Exact{a} + b, scaleFactor);
}
template <class T>
T differenceRef(T a, T b, std::int32_t scaleFactor) {
    return scaleRef<T>(Exact{a} - b, scaleFactor);
}

}  // namespace vlqtest
