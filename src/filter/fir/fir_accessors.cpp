// Taps and delay line of a floating FIR state, single-rate or multi-rate.
#include "filter/fir/fir_taps.h"

namespace {

using namespace vlq;
using namespace vlq::fir;

void freeTransform(VlqsFFTSpec_R_32f* spec) { vlqsFFTFree_R_32f(spec); }
void freeTransform(VlqsFFTSpec_C_32fc* spec) { vlqsFFTFree_C_32fc(spec); }
void freeTransform(VlqsFFTSpec_R_64f* spec) { vlqsFFTFree_R_64f(spec); }
void freeTransform(VlqsFFTSpec_C_64fc* spec) { vlqsFFTFree_C_64fc(spec); }

template <class State, class Tap>
VlqStatus setTaps(const Tap* taps, State* state) {
    using E = typename State::Element;
    if (!taps || !state) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    writeTaps<E>(*state, taps);
    if (state->fftLen < 0 || !state->fftSpec) return vlqStsOk;
    const VlqStatus status = writeSpectrum<E>(*state);
    if (status != vlqStsOk) {
        freeTransform(state->fftSpec);
        state->fftSpec = nullptr;
        if constexpr (Traits<E>::kLeavesTransformPath) {
            state->fftLen = -1;
            state->tapsSpectrum = nullptr;
        }
    }
    return status;
}

template <class State, class Tap>
VlqStatus getTaps(const State* state, Tap* taps) {
    using E = typename State::Element;
    if (!state || !taps) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    copyReversed<E, Tap>(state->taps, taps, state->tapsLen);
    return vlqStsOk;
}

template <class State>
VlqStatus setDelayLine(State* state, const SampleOf<State>* dlyLine) {
    using E = typename State::Element;
    if (!state) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    writeDelayLine<E>(*state, dlyLine);
    return vlqStsOk;
}

// The store holds nothing but widened samples: the conversion is exact.
template <class State>
VlqStatus getDelayLine(const State* state, SampleOf<State>* dlyLine) {
    if (!state || !dlyLine) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    copyReversed(state->dlyLine + state->dlyIndex, dlyLine, state->dlyLen);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIRSetTaps_32f(const Vlq32f* taps, VlqsFIRState_32f* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_32f(const VlqsFIRState_32f* state, Vlq32f* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine_32f(VlqsFIRState_32f* state, const Vlq32f* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine_32f(const VlqsFIRState_32f* state, Vlq32f* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps32f_16s(const Vlq32f* taps, VlqsFIRState32f_16s* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps32f_16s(const VlqsFIRState32f_16s* state, Vlq32f* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine32f_16s(VlqsFIRState32f_16s* state, const Vlq16s* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine32f_16s(const VlqsFIRState32f_16s* state, Vlq16s* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps_32fc(const Vlq32fc* taps, VlqsFIRState_32fc* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_32fc(const VlqsFIRState_32fc* state, Vlq32fc* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine_32fc(VlqsFIRState_32fc* state, const Vlq32fc* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine_32fc(const VlqsFIRState_32fc* state, Vlq32fc* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps32fc_16sc(const Vlq32fc* taps, VlqsFIRState32fc_16sc* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps32fc_16sc(const VlqsFIRState32fc_16sc* state, Vlq32fc* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine32fc_16sc(VlqsFIRState32fc_16sc* state, const Vlq16sc* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine32fc_16sc(const VlqsFIRState32fc_16sc* state, Vlq16sc* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps_64f(const Vlq64f* taps, VlqsFIRState_64f* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_64f(const VlqsFIRState_64f* state, Vlq64f* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine_64f(VlqsFIRState_64f* state, const Vlq64f* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine_64f(const VlqsFIRState_64f* state, Vlq64f* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps64f_32f(const Vlq64f* taps, VlqsFIRState64f_32f* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64f_32f(const VlqsFIRState64f_32f* state, Vlq64f* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64f_32f(VlqsFIRState64f_32f* state, const Vlq32f* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64f_32f(const VlqsFIRState64f_32f* state, Vlq32f* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps64f_32s(const Vlq64f* taps, VlqsFIRState64f_32s* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64f_32s(const VlqsFIRState64f_32s* state, Vlq64f* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64f_32s(VlqsFIRState64f_32s* state, const Vlq32s* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64f_32s(const VlqsFIRState64f_32s* state, Vlq32s* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps64f_16s(const Vlq64f* taps, VlqsFIRState64f_16s* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64f_16s(const VlqsFIRState64f_16s* state, Vlq64f* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64f_16s(VlqsFIRState64f_16s* state, const Vlq16s* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64f_16s(const VlqsFIRState64f_16s* state, Vlq16s* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps_64fc(const Vlq64fc* taps, VlqsFIRState_64fc* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_64fc(const VlqsFIRState_64fc* state, Vlq64fc* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine_64fc(VlqsFIRState_64fc* state, const Vlq64fc* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine_64fc(const VlqsFIRState_64fc* state, Vlq64fc* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps64fc_32fc(const Vlq64fc* taps, VlqsFIRState64fc_32fc* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64fc_32fc(const VlqsFIRState64fc_32fc* state, Vlq64fc* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64fc_32fc(VlqsFIRState64fc_32fc* state, const Vlq32fc* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64fc_32fc(const VlqsFIRState64fc_32fc* state, Vlq32fc* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps64fc_32sc(const Vlq64fc* taps, VlqsFIRState64fc_32sc* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64fc_32sc(const VlqsFIRState64fc_32sc* state, Vlq64fc* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64fc_32sc(VlqsFIRState64fc_32sc* state, const Vlq32sc* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64fc_32sc(const VlqsFIRState64fc_32sc* state, Vlq32sc* dlyLine) {
    return getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRSetTaps64fc_16sc(const Vlq64fc* taps, VlqsFIRState64fc_16sc* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64fc_16sc(const VlqsFIRState64fc_16sc* state, Vlq64fc* taps) {
    return getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64fc_16sc(VlqsFIRState64fc_16sc* state, const Vlq16sc* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64fc_16sc(const VlqsFIRState64fc_16sc* state, Vlq16sc* dlyLine) {
    return getDelayLine(state, dlyLine);
}

// A filter built from integer taps is a state of double taps.
VlqStatus vlq::vlqsFIRSetTaps_32s(const Vlq32s* taps, VlqsFIRState_32s* state) {
    return setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_32s(const VlqsFIRState_32s* state, Vlq32s* taps) {
    return getTaps(state, taps);
}
