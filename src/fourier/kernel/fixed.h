// Transforms of 2 to 8 16-bit samples in integers.
#pragma once

#include <algorithm>

#include "fourier/kernel/real_small.h"
#include "fourier/kernel/small.h"

namespace vlq::fft {

// A 32-bit value, or a factor up to 1 with 14 fractional bits. Sums wrap; with the headroom of a
// transform they stay in range.
struct Fixed {
    Vlq32s bits;
    Fixed() = default;
    constexpr explicit Fixed(double factor) : bits(static_cast<Vlq32s>(factor * 16384 + 0.5)) {}
    static Fixed of(Vlq32u bits) {
        Fixed v;
        v.bits = static_cast<Vlq32s>(bits);
        return v;
    }
    Vlq32u asUnsigned() const { return static_cast<Vlq32u>(bits); }

    friend Fixed operator+(Fixed a, Fixed b) { return of(a.asUnsigned() + b.asUnsigned()); }
    friend Fixed operator-(Fixed a, Fixed b) { return of(a.asUnsigned() - b.asUnsigned()); }
    Fixed operator-() const { return of(0 - asUnsigned()); }
    // The second operand is the factor, not negative. In halves of 16 bits, the low one rounded.
    friend Fixed operator*(Fixed a, Fixed factor) {
        const Vlq32s high = a.bits >> 16, low = a.bits & 0xFFFF;
        const Vlq32u upper = 4 * static_cast<Vlq32u>(high * factor.bits);
        return of(upper + static_cast<Vlq32u>((low * factor.bits + 8192) >> 14));
    }
};

// A sample shifted left, with headroom for a sum of 2^order samples.
constexpr int headroom(int order) { return 15 - order; }
inline Fixed widen(Vlq16s sample, int order) {
    return Fixed::of(static_cast<Vlq32u>(static_cast<Vlq32s>(sample)) << headroom(order));
}

// value * 2^-shift, halves rounded up, saturated to 16 bits. Left shifts drop what exceeds 32 bits.
inline Vlq16s narrow(Fixed value, Vlq64s shift) {
    Vlq64s v = value.bits;
    if (shift > 0) {
        const Vlq64s right =
            std::min<Vlq64s>(shift, 31);  // beyond 2^30 the result is 1 or -1, not 0
        v = (v + (Vlq64s{1} << (right - 1))) >> right;
    } else if (shift < 0) {
        v = shift <= -32 ? 0 : static_cast<Vlq32s>(value.asUnsigned() << -shift);
    }
    return static_cast<Vlq16s>(std::clamp<Vlq64s>(v, -32768, 32767));
}

// x = DFT of x, forward. The inverse transform exchanges real and imaginary parts around it.
inline void fixedTransform(int order, Value<Fixed>* x) {
    if (order == 1) {
        const Value<Fixed> sum = x[0] + x[1];
        x[1] = x[0] - x[1];
        x[0] = sum;
    } else if (order == 2) {
        dft4(x[0], x[1], x[2], x[3]);
    } else {
        Value<Fixed> y[8];
        std::copy(x, x + 8, y);
        dft8(y, Fixed(kRootHalf<double>));
        std::copy(y, y + 8, x);
    }
}

// From a signal to its spectrum in Perm layout or back, in place.
template <bool forward, int order>
inline void fixedReal(Fixed* x) {
    Fixed y[1 << order];
    if constexpr (forward)
        realForward<order, 1>(x, y);
    else
        realInverse<order, 1>(x, y);
    std::copy(y, y + (1 << order), x);
}
template <bool forward>
inline void fixedRealTransform(int order, Fixed* x) {
    if (order == 1)
        fixedReal<forward, 1>(x);
    else if (order == 2)
        fixedReal<forward, 2>(x);
    else
        fixedReal<forward, 3>(x);
}

}  // namespace vlq::fft
