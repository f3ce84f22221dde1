// Taps of the caller's into an integer record: brought to 16 bits, listed, and in the rows of its
// kind.
#pragma once

#include "filter/fir/multirate/integer_multirate_state.h"

namespace vlq::fir::integer {

// Float taps get their factor from their size, and the limits of that differ a little.
inline constexpr Vlq32s kInitLimit = 33, kSetTapsLimit = 32;

// The rule that brings taps to 16 bits, and the factor of the record.
template <class State, class Rule>
void takeTaps(State& state, const auto* parts, const Rule& rule, Vlq32s tapsFactor) {
    writeList(state, parts, rule);
    if (isMultiRate(state))
        writePhaseRows(state);
    else
        writeRows(state);
    state.tapsFactor = effectiveFactor(tapsFactor, rule.exponent);
}
template <class State>
void takeIntegerTaps(State& state, const auto* taps, Vlq32s tapsFactor) {
    const auto* parts = reals(taps);
    takeTaps(state, parts, fitted(parts, std::ptrdiff_t{state.tapsLen} * State::kParts),
             tapsFactor);
}
template <class State>
void takeFloatTaps(State& state, const auto* taps, Vlq32s limit) {
    const auto* parts = reals(taps);
    takeTaps(state, parts, quantized(parts, std::ptrdiff_t{state.tapsLen} * State::kParts, limit),
             0);
}

}  // namespace vlq::fir::integer
