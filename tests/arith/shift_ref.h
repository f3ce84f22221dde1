// The definition of the shifts: one element, in 64-bit arithmetic.
#pragma once

#include <cstdint>

namespace vlqtest {

// count >= 0
template <class T>
T leftShiftRef(T value, int count) {
    if (count >= static_cast<int>(8 * sizeof(T))) return 0;
    return static_cast<T>(static_cast<std::uint64_t>(value) << count);
}
template <class T>
T rightShiftRef(T value, int count) {
    // Division by a power of two that rounds downwards.
    std::int64_t quotient = value;
    for (int i = 0; i < count && i < 40; ++i) quotient = (quotient - (quotient & 1)) / 2;
    return static_cast<T>(quotient);
}

}  // namespace vlqtest
