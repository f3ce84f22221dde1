// One sample through a floating FIR record.
#pragma once

#include "filter/common/sample_conversion.h"
#include "filter/fir/fir_state.h"
#include "filter/fir/single_complex_kernels.h"
#include "filter/fir/single_kernels.h"

namespace vlq::fir {

// The delay store is a ring of tapsLen samples, kept twice over so that every window lies in one
// piece. The oldest sample of the window gives way to the new one.
template <class State, class Scale>
VlqStatus one(SampleOf<State> src, SampleOf<State>* dst, State* state, Scale scale) {
    if (!dst || !state) return vlqStsNullPtr;
    if (!isSingleRate(*state)) return vlqStsBadSpec;
    using E = typename State::Element;
    const Vlq32s tapsLen = state->tapsLen;
    const E sample = convertTo<E>(src);
    E* oldest = state->dlyLine + state->dlyIndex;
    oldest[0] = sample;
    oldest[tapsLen] = sample;
    const Vlq32s next = state->dlyIndex + 1;
    state->dlyIndex = next == tapsLen ? 0 : next;
    const E sum = windowSum<E>(state->dlyLine + state->dlyIndex, sample, state->taps, tapsLen);
    narrowOne(sum, dst, scale);
    return vlqStsOk;
}

}  // namespace vlq::fir
