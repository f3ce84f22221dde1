// Exponentials and logarithms of integers by the definition.
#pragma once

#include <array>

#include "maths/maths_check.h"

namespace vlqtest {

// A fixed-point number of 128 integer and 384 fraction bits, least significant limb first.
class Fixed {
public:
    explicit Fixed(std::uint32_t integer) { limb_[kFraction] = integer; }
    Fixed& operator+=(const Fixed& b) {
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < kLimbs; ++i) {
            carry += std::uint64_t{limb_[i]} + b.limb_[i];
            limb_[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        return *this;
    }
    Fixed& operator/=(std::uint32_t divisor) {
        std::uint64_t rest = 0;
        for (std::size_t i = kLimbs; i-- > 0;) {
            rest = rest << 32 | limb_[i];
            limb_[i] = static_cast<std::uint32_t>(rest / divisor);
            rest %= divisor;
        }
        return *this;
    }
    friend Fixed operator*(const Fixed& a, const Fixed& b) {
        std::array<std::uint64_t, 2 * kLimbs + 1> sums{};
        for (std::size_t i = 0; i < kLimbs; ++i) {
            std::uint64_t carry = 0;
            for (std::size_t j = 0; j < kLimbs; ++j) {
                carry += sums[i + j] + std::uint64_t{a.limb_[i]} * b.limb_[j];
                sums[i + j] = static_cast<std::uint32_t>(carry);
                carry >>= 32;
            }
            sums[i + kLimbs] += carry;
        }
        Fixed product(0);
        for (std::size_t i = 0; i < kLimbs; ++i)
            product.limb_[i] = static_cast<std::uint32_t>(sums[i + kFraction]);
        return product;
    }
    bool isZero() const {
        for (const std::uint32_t limb : limb_)
            if (limb != 0) return false;
        return true;
    }
    // The bit of value 2^position.
    bool bit(int position) const {
        const int at = position + 32 * static_cast<int>(kFraction);
        if (at < 0 || at >= 32 * static_cast<int>(kLimbs)) return false;
        return limb_[static_cast<std::size_t>(at / 32)] >> at % 32 & 1;
    }
    bool anyBitBelow(int position) const {
        for (int i = -32 * static_cast<int>(kFraction); i < position; ++i)
            if (bit(i)) return true;
        return false;
    }

private:
    static constexpr std::size_t kLimbs = 16, kFraction = 12;
    std::array<std::uint32_t, kLimbs> limb_{};
};

// e^x for |x| <= 80.
inline Fixed expFixed(int x) {
    // The sum of 1/n!, and of (-1)^n/n! as the pairs 1/n! - 1/(n + 1)! = n/(n + 1)! for even n.
    Fixed e(0), inverse(0), term(1);
    for (std::uint32_t n = 0; !term.isZero(); ++n) {
        e += term;
        Fixed next = term;
        next /= n + 1;
        if (n % 2 == 0) inverse += Fixed(n) * next;
        term = next;
    }
    Fixed power(1);
    for (int i = 0; i < std::abs(x); ++i) power = power * (x < 0 ? inverse : e);
    return power;
}

// clamp(round(e^x * 2^-scaleFactor)), ties to even or up.
template <class T>
T expRef(const Fixed& power, int scaleFactor, bool tiesUp) {
    for (int bit = std::numeric_limits<T>::digits + scaleFactor; bit < 128; ++bit)
        if (power.bit(bit)) return std::numeric_limits<T>::max();
    std::uint64_t result = 0;
    for (int bit = std::numeric_limits<T>::digits - 1; bit >= 0; --bit)
        result = result << 1 | (power.bit(bit + scaleFactor) ? 1 : 0);
    const bool half = power.bit(scaleFactor - 1), more = power.anyBitBelow(scaleFactor - 1);
    if (half && (more || tiesUp || result % 2 == 1)) ++result;
    const auto highest = static_cast<std::uint64_t>(std::numeric_limits<T>::max());
    return static_cast<T>(std::min(result, highest));
}

// round(ln(x)) with the two thresholds that lie one below e^(k + 1/2).
inline int steppedLnRef(Vlq32s x) {
    const int k = static_cast<int>(std::floor(std::log(static_cast<long double>(x)) + 0.5L));
    return x == 5389698 || x == 39824784 ? k + 1 : k;
}

template <class T>
T lnRef(T x, int scaleFactor) {
    return x < 1 ? std::numeric_limits<T>::min()
                 : roundedRef<T>(std::log(static_cast<long double>(x)), scaleFactor);
}
inline Vlq16s lnRef16s(Vlq16s x, int scaleFactor) {
    if (x < 1) return -32768;
    return scaleFactor > 0 ? lnRef<Vlq16s>(x, scaleFactor) : static_cast<Vlq16s>(steppedLnRef(x));
}
inline Vlq32s lnRef32s(Vlq32s x, int scaleFactor) {
    if (x < 1) return std::numeric_limits<Vlq32s>::min();
    return scaleFactor < 0 ? lnRef<Vlq32s>(x, scaleFactor)
                           : steppedLnRef(x) >> std::min(scaleFactor, 31);
}
inline Vlq16s lnRef32s16s(Vlq32s x, int scaleFactor) {
    return x < 1 ? Vlq16s{-32768}
                 : roundedRef<Vlq16s>(std::log(static_cast<long double>(x)), scaleFactor);
}
inline Vlq32s tenLog10Ref(Vlq32s x, int scaleFactor) {
    if (x < 1) return std::numeric_limits<Vlq32s>::min();
    long double log = 10 * std::log10(static_cast<long double>(x));
    Vlq32s power = 1;
    for (int k = 0; k <= 9; ++k, power = k <= 9 ? power * 10 : power)
        if (x == power) log = 10 * k;
    return roundedRef<Vlq32s>(log, scaleFactor);
}

}  // namespace vlqtest
