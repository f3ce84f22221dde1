// Taps into an integer FIR state: reduced to 16 bits, listed as they are read back, and in the rows
// of the kernels.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "filter/common/reversal.h"
#include "filter/fir/integer/multirate/integer_multirate_state.h"

namespace vlq::fir::integer {

// ---- taps to 16 bits ----------------------------------------------------------------------------

// A tap is an integer of 16 bits times 2^exponent.
struct Keep {
    static constexpr Vlq32s exponent = 0;
    template <class T>
    Vlq32s operator()(T tap) const {
        return tap;
    }
};
struct ShiftDown {
    Vlq32s exponent;
    Vlq32s operator()(Vlq32s tap) const { return tap >> exponent; }
};
inline ShiftDown fitted(const Vlq32s* taps, std::ptrdiff_t count) {
    Vlq32u peak = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const auto tap = static_cast<Vlq32u>(loadScalar(taps + i));
        peak = std::max(peak, std::min(tap, 0 - tap));
    }
    Vlq32s shift = 0;
    for (; peak > 32766; peak >>= 1) ++shift;
    return {shift};
}
// Already of 16 bits; -32768 alone has no counterpart.
inline ShiftDown fitted(const Vlq16s* taps, std::ptrdiff_t count) {
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        if (loadScalar(taps + i) == -32768) return {1};
    }
    return {0};
}

// Floats times a power of two, rounded to nearest, ties away from zero; the largest then takes 15
// bits, unless the power would be beyond 2^-limit or 2^limit.
struct Quantize {
    Vlq32s exponent;
    double scale;
    Vlq32s operator()(Vlq32f tap) const {
        using Limits = std::numeric_limits<Vlq32s>;
        const double scaled = scale * static_cast<double>(tap);
        const double rounded = scaled < 0 ? scaled - 0.5 : scaled + 0.5;
        if (!(rounded > Limits::min())) return Limits::min();
        return rounded < Limits::max() ? static_cast<Vlq32s>(rounded) : Limits::max();
    }
};
inline Quantize quantized(const Vlq32f* taps, std::ptrdiff_t count, Vlq32s limit) {
    constexpr double top = 32767.0;
    double peak = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i)
        peak = std::max(peak, std::fabs(static_cast<double>(loadScalar(taps + i))));
    Quantize rule{0, 1.0};
    for (; peak > top && rule.exponent < limit; peak *= 0.5, rule.scale *= 0.5) ++rule.exponent;
    if (rule.exponent > 0) return rule;
    for (double twice = peak + peak; twice < top && rule.exponent > -limit;
         twice += twice, rule.scale += rule.scale) {
        --rule.exponent;
    }
    return rule;
}

// The sum stays in range: a factor that far out moves every sum out of its range anyway.
inline Vlq32s effectiveFactor(Vlq32s tapsFactor, Vlq32s exponent) {
    using Limits = std::numeric_limits<Vlq32s>;
    return static_cast<Vlq32s>(std::min<Vlq64s>(Vlq64s{tapsFactor} + exponent, Limits::max()));
}

// ---- into the state -----------------------------------------------------------------------------

// The list that is read back, from taps in natural order.
template <class State, class Tap, class Rule>
void writeList(State& state, const Tap* taps, const Rule& rule) {
    using Listed = typename State::Tap;
    copyReversed(taps, state.taps.get(), state.tapsLen, [&](Tap tap) -> Listed {
        if constexpr (Complex<Tap>)
            return {rule(tap.re), rule(tap.im)};
        else
            return static_cast<Listed>(rule(tap));
    });
}

// The rows of a single-rate filter, from the list.
template <class State>
void writeSingleRateRows(State& state) {
    const std::ptrdiff_t len = state.tapsLen;
    const auto* list = state.taps.get();
    Vlq16s* row = state.tapRows;
    if constexpr (Complex<typename State::Sample>) {
        for (std::ptrdiff_t i = 0; i < len; ++i)
            writeTap(list[i], row + 2 * i, row + state.rowLen + 2 * i);
    } else {
        std::fill(row, row + state.rowLen, Vlq16s{0});
        for (std::ptrdiff_t i = 0; i < len; ++i) writeTap(list[i], row + kZeros + i, nullptr);
    }
    state.magnitude = magnitudeOf(row, state.rowLen);
}
template <class State>
void writeRows(State& state) {
    if (state.phases.get())
        writePhaseTable(state);
    else
        writeSingleRateRows(state);
}

template <class State, class Tap, class Rule>
void takeTaps(State& state, const Tap* taps, const Rule& rule, Vlq32s tapsFactor) {
    writeList(state, taps, rule);
    writeRows(state);
    state.tapsFactor = effectiveFactor(tapsFactor, rule.exponent);
}

// What Init and SetTaps take taps by.
struct IntegerTaps {
    Vlq32s tapsFactor;
    template <class State, class Tap>
    void operator()(State& state, const Tap* taps) const {
        const std::ptrdiff_t count = std::ptrdiff_t{state.tapsLen} * kParts<Tap>;
        takeTaps(state, taps, fitted(parts(taps), count), tapsFactor);
    }
};
// The factor of float taps follows from their size, within limits that differ a little.
struct FloatTaps {
    Vlq32s limit;
    template <class State, class Tap>
    void operator()(State& state, const Tap* taps) const {
        const std::ptrdiff_t count = std::ptrdiff_t{state.tapsLen} * kParts<Tap>;
        takeTaps(state, taps, quantized(parts(taps), count, limit), 0);
    }
};
inline constexpr FloatTaps kInitFloatTaps{33}, kSetFloatTaps{32};

}  // namespace vlq::fir::integer
