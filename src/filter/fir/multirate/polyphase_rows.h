// The tap tables of multi-rate FIR states: a row for each phase, and groups of rows.
#pragma once

#include "filter/common/element.h"
#include "filter/fir/fir_state.h"
#include "frame/simd/vec.h"

namespace vlq::fir {

// An output of a period: its newest sample, counted from the first of the period (-1 is the last of
// the period before), and its taps.
struct Phase {
    Vlq32s newest;
    Vlq32s taps;
    Vlq32s row;  // where they begin in the rows
    Vlq32s spare;
};

// Where a period has a vector of outputs or more, their taps are also kept side by side.
template <class E>
inline constexpr int kGroup = Vec<Part<E>>::lanes;
template <class E>
constexpr bool hasGroups(Vlq32s up) {
    return up >= 4 && up >= kGroup<E>;
}

// Every up-th tap is a row of dlyLen taps; there are `up` rows. The groups follow: the first tap of
// each output of the group, the second of each, and so on, the parts of complex ones apart.
template <class E>
void writeRows(FirState<E>& state) {
    const Vlq32s len = state.tapsLen, up = state.upFactor, line = state.dlyLen;
    const E* reversed = state.taps;
    E* rows = state.tapsWide;
    for (Vlq32s k = 0; k < len; ++k) rows[Vlq64s{k % up} * line + k / up] = reversed[len - 1 - k];
    if (!hasGroups<E>(up)) return;
    const Phase* phases = state.phases;
    auto* group = parts(rows + Vlq64s{up} * line);
    for (Vlq32s first = 0; first < up; first += kGroup<E>) {
        for (Vlq32s i = 0; i < line; ++i) {
            for (int part = 0; part < kParts<E>; ++part) {
                for (int lane = 0; lane < kGroup<E>; ++lane) {
                    const bool isTap = first + lane < up && i < phases[first + lane].taps;
                    *group++ = isTap ? parts(rows + phases[first + lane].row + i)[part] : 0;
                }
            }
        }
    }
}

}  // namespace vlq::fir
