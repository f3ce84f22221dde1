// Powers of two as floating-point numbers: the factor of a scale factor.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace vlq {

// 2^exponent for any exponent: subnormal, 0 or infinity where it lies outside the normal range of
// T. Built from bits, so that neither the rounding mode nor flush-to-zero can change it.
template <class T>
constexpr T powerOfTwo(std::int64_t exponent) {
    using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
    constexpr int fractionBits = std::numeric_limits<T>::digits - 1;
    constexpr int largest = std::numeric_limits<T>::max_exponent - 1;  // also the exponent's bias
    constexpr int smallest = 1 - largest;
    if (exponent > largest) return std::numeric_limits<T>::infinity();
    if (exponent >= smallest)
        return std::bit_cast<T>(static_cast<Bits>(exponent + largest) << fractionBits);
    if (exponent >= smallest - fractionBits)
        return std::bit_cast<T>(Bits{1} << (exponent - smallest + fractionBits));
    return T(0);
}

// 2^-scaleFactor, the factor that every `Sfs` function applies.
template <class T>
constexpr T scaleFactorPower(std::int32_t scaleFactor) {
    return powerOfTwo<T>(-std::int64_t{scaleFactor});
}

// 2^-scaleFactor, with the count of places taken modulo 128: a scale factor beyond the range of
// floats wraps around. 127 gives 0.
constexpr float wrappedPower(std::int32_t scaleFactor) {
    constexpr std::uint32_t one = std::bit_cast<std::uint32_t>(1.0f);
    const auto places = static_cast<std::uint32_t>(scaleFactor);
    if (scaleFactor < 0) return std::bit_cast<float>(one + (((0 - places) & 127) << 23));
    return std::bit_cast<float>(one - ((places & 127) << 23));
}

}  // namespace vlq
