// Taps into a floating FIR state: the reversed list, the table or rows that its kernels read, and
// the spectrum.
#pragma once

#include <algorithm>

#include "filter/common/reversal.h"
#include "filter/common/tap_table.h"
#include "filter/fir/fir_state.h"
#include "filter/fir/multirate/polyphase_rows.h"
#include "fourier/convolver.h"

namespace vlq::fir {

template <class E, class Tap>
void writeTaps(FirState<E>& state, const Tap* taps) {
    const Vlq32s len = state.tapsLen;
    E* reversed = state.taps;
    copyReversed(taps, reversed, len);
    if (state.multiRateKind > 0) return writeRows(state);
    E* wide = state.tapsWide;
    for (Vlq32s k = 0; k < len; ++k) wide = writeWide(wide, reversed[len - 1 - k]);
}

// The transform of the taps, zero-extended, as overlap-save uses it.
template <class E>
VlqStatus writeSpectrum(FirState<E>& state) {
    const Vlq32s len = state.tapsLen;
    E* work = state.fftWork;
    copyReversed<E, E>(state.taps, work, len);
    std::fill(work + len, work + state.fftLen, E{});
    return fft::makeFilter(work, state.tapsSpectrum, state.fftSpec, state.fftBuf);
}

// dlyLine: newest sample first; null for silence.
template <class E, class Sample>
void writeDelayLine(FirState<E>& state, const Sample* dlyLine) {
    state.dlyIndex = 0;
    copyReversedOrZero<Sample, E>(dlyLine, state.dlyLine, state.dlyLen);
}

}  // namespace vlq::fir
