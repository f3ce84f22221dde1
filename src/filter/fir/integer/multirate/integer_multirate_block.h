// A block of periods through a multi-rate integer FIR state.
#pragma once

#include "filter/fir/integer/integer_state.h"

namespace vlq::fir::integer {

// src and dst do not overlap. Instantiated for every state.
template <class State>
void multiRateBlock(State& state, const Vlq16s* src, Vlq16s* dst, Vlq32s periods,
                    const Finish& finish);

}  // namespace vlq::fir::integer
