// The state of a FIR filter with integer arithmetic. Counts named words are of 16-bit values, two
// to a complex sample; lengths of delay lines and calls are in samples.
#pragma once

#include <cstddef>
#include <cstring>

#include "filter/common/element.h"
#include "filter/fir/fir_tags.h"
#include "filter/fir/integer/fir_integer_kernels.h"
#include "frame/state/state.h"

namespace vlq::fir::integer {

// Samples of a call that go through the staging area at once.
inline constexpr Vlq32s kStaging = 4096;

struct PhaseTable;  // of multi-rate filters

// TapType is that of the list which is read back.
template <class SampleType, class TapType>
struct IntegerState {
    using Sample = SampleType;
    using Tap = TapType;
    static constexpr std::size_t kAlignment = 16;

    Vlq32u tag;
    RelPtr<Tap> taps;  // reversed: taps[i] = h[tapsLen - 1 - i]
    RelPtr<Vlq16s>
        dlyLine;  // store; the live window of dlyLen samples starts at dlyIndex, oldest first
    Vlq32s tapsLen;
    Vlq32s upFactor;    // multi-rate only
    Vlq32s firstChunk;  // values that go into the store at the seam of two blocks
    Vlq32s downFactor;  // multi-rate only
    Vlq32s tapsStride;  // multi-rate only: outputs of the first chunk
    Vlq32s tapsFactor;
    RelPtr<Vlq16s> tapRows;
    Vlq32s dlyIndex;
    RelPtr<PhaseTable> phases;  // multi-rate only
    Vlq32s rowLen;              // 16-bit values
    Vlq32s dlyLen;              // samples in the delay line
    RelPtr<Vlq16s> blockBuf;    // kStaging samples; multi-rate: the streams
    Vlq32s owned;
    Vlq32s upPhase;  // multi-rate only, as the next two
    Vlq32s downPhase;
    Vlq32s mrSamples;  // taps of a phase, room for the decimator's steps included
    Vlq32s magnitude;  // sum of the absolute taps of an output, at most
};
using RealState = IntegerState<Vlq16s, Vlq32s>;
static_assert(sizeof(RealState) == 80 && offsetof(RealState, owned) == 60);

// Before the taps of a real row.
inline constexpr int kZeros = 2;

template <class State>
TapRows<kParts<typename State::Sample>> rowsOf(const State& state) {
    if constexpr (Complex<typename State::Sample>)
        return {{state.tapRows, state.tapRows + state.rowLen},
                2 * std::ptrdiff_t{state.tapsLen},
                state.magnitude};
    else
        return {{state.tapRows + kZeros}, state.tapsLen, state.magnitude};
}

// Outputs are scaled by 2^exponent; factors may be anything.
template <class State>
Finish finishOf(const State& state, Vlq32s scaleFactor) {
    return Finish(Vlq64s{state.tapsFactor} - scaleFactor);
}

inline void moveWords(const Vlq16s* src, Vlq16s* dst, std::ptrdiff_t words) {
    std::memmove(dst, src, static_cast<std::size_t>(words) * sizeof(Vlq16s));
}

}  // namespace vlq::fir::integer

struct vlq::VlqsFIRState_16s : vlq::fir::integer::IntegerState<Vlq16s, Vlq16s> {};
struct vlq::VlqsFIRState32s_16s : vlq::fir::integer::IntegerState<Vlq16s, Vlq32s> {};
struct vlq::VlqsFIRState32sc_16sc : vlq::fir::integer::IntegerState<Vlq16sc, Vlq32sc> {};
