#include "filter/fir/integer/integer_taps.h"

namespace fir = vlq::fir::integer;

namespace {

template <class State>
VlqStatus stateSize(Vlq32s tapsLen, Vlq32s* stateBytes) {
    if (!stateBytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    *stateBytes = vlq::toldSize(fir::recordBytes<State>(tapsLen));
    return vlqStsOk;
}

template <class State, class Take>
VlqStatus init(State** outState, const auto* taps, Vlq32s tapsLen,
               const typename State::Sample* dlyLine, Vlq8u* buffer, Take take) {
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (!vlq::fitsRecord(fir::recordBytes<State>(tapsLen))) return vlqStsNoMemory;
    State* state = fir::layOut<State>(buffer, tapsLen);
    take(*state, taps);
    fir::writeDelayLine(*state, fir::reals(dlyLine));
    *outState = state;
    return vlqStsOk;
}
template <class State>
VlqStatus initInteger(State** outState, const auto* taps, Vlq32s tapsLen, Vlq32s tapsFactor,
                      const typename State::Sample* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer,
                [=](State& state, const auto* t) { fir::takeIntegerTaps(state, t, tapsFactor); });
}
template <class State>
VlqStatus initFloat(State** outState, const auto* taps, Vlq32s tapsLen,
                    const typename State::Sample* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer,
                [](State& state, const auto* t) { fir::takeFloatTaps(state, t, fir::kInitLimit); });
}

template <class State, class Take>
VlqStatus initAlloc(State** outState, const auto* taps, Vlq32s tapsLen,
                    const typename State::Sample* dlyLine, Take take) {
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    State* state = fir::allocate<State>(tapsLen);
    if (!state) return vlqStsNoMemory;
    take(*state, taps);
    fir::writeDelayLine(*state, fir::reals(dlyLine));
    *outState = state;
    return vlqStsOk;
}
template <class State>
VlqStatus initAllocInteger(State** outState, const auto* taps, Vlq32s tapsLen, Vlq32s tapsFactor,
                           const typename State::Sample* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine, [=](State& state, const auto* t) {
        fir::takeIntegerTaps(state, t, tapsFactor);
    });
}
template <class State>
VlqStatus initAllocFloat(State** outState, const auto* taps, Vlq32s tapsLen,
                         const typename State::Sample* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine, [](State& state, const auto* t) {
        fir::takeFloatTaps(state, t, fir::kInitLimit);
    });
}

template <class State>
VlqStatus release(State* state) {
    if (!state) return vlqStsNullPtr;
    if (!fir::Kind<State>::isFreeable(state->idCtx)) return vlqStsBadSpec;
    if (state->ownsMemory == 1) vlq::vlqsFree(state);
    return vlqStsOk;
}

template <class State>
VlqStatus setIntegerTaps(const auto* taps, State* state, Vlq32s tapsFactor) {
    if (!taps || !state) return vlqStsNullPtr;
    if (!fir::isFilter(*state)) return vlqStsBadSpec;
    fir::takeIntegerTaps(*state, taps, tapsFactor);
    return vlqStsOk;
}
template <class State>
VlqStatus setFloatTaps(const auto* taps, State* state) {
    if (!taps || !state) return vlqStsNullPtr;
    if (!fir::isFilter(*state)) return vlqStsBadSpec;
    fir::takeFloatTaps(*state, taps, fir::kSetTapsLimit);
    return vlqStsOk;
}

// Calls store(part of a tap) in natural order.
template <class State, class T, class Convert>
void readTaps(const State& state, T* parts, Convert convert) {
    const std::ptrdiff_t len = state.tapsLen;
    const auto* list = state.taps.get();
    for (std::ptrdiff_t k = 0; k < len; ++k) {
        for (int p = 0; p < State::kParts; ++p) {
            const T part = convert(list[(len - 1 - k) * State::kParts + p]);
            std::memcpy(parts + k * State::kParts + p, &part, sizeof part);
        }
    }
}
template <class State>
VlqStatus getIntegerTaps(const State* state, auto* taps, Vlq32s* tapsFactor) {
    if (!state || !taps || !tapsFactor) return vlqStsNullPtr;
    if (!fir::isFilter(*state)) return vlqStsBadSpec;
    readTaps(*state, fir::reals(taps), [](auto part) { return part; });
    std::memcpy(tapsFactor, &state->tapsFactor, sizeof *tapsFactor);
    return vlqStsOk;
}
template <class State>
VlqStatus getFloatTaps(const State* state, auto* taps) {
    if (!state || !taps) return vlqStsNullPtr;
    if (!fir::isFilter(*state)) return vlqStsBadSpec;
    const int exponent = state->tapsFactor;
    readTaps(*state, fir::reals(taps),
             [=](Vlq32s part) { return std::ldexp(static_cast<Vlq32f>(part), exponent); });
    return vlqStsOk;
}

template <class State>
VlqStatus setDelayLine(State* state, const typename State::Sample* dlyLine) {
    if (!state) return vlqStsNullPtr;
    if (!fir::isFilter(*state)) return vlqStsBadSpec;
    fir::writeDelayLine(*state, fir::reals(dlyLine));
    return vlqStsOk;
}
template <class State>
VlqStatus getDelayLine(const State* state, typename State::Sample* dlyLine) {
    if (!state || !dlyLine) return vlqStsNullPtr;
    if (!fir::isFilter(*state)) return vlqStsBadSpec;
    fir::readDelayLine(*state, fir::reals(dlyLine));
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIRGetStateSize_16s(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return stateSize<VlqsFIRState_16s>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRGetStateSize32s_16s(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return stateSize<VlqsFIRState32s_16s>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRGetStateSize32sc_16sc(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return stateSize<VlqsFIRState32sc_16sc>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRGetStateSize32s_16s32f(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return vlqsFIRGetStateSize32s_16s(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRGetStateSize32sc_16sc32fc(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return vlqsFIRGetStateSize32sc_16sc(tapsLen, stateBytes);
}

VlqStatus vlq::vlqsFIRInit_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                               Vlq32s tapsFactor, const Vlq16s* dlyLine, Vlq8u* buffer) {
    return initInteger(outState, taps, tapsLen, tapsFactor, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInit32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                  Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16s* dlyLine,
                                  Vlq8u* buffer) {
    return initInteger(outState, taps, tapsLen, tapsFactor, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInit32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                    Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16sc* dlyLine,
                                    Vlq8u* buffer) {
    return initInteger(outState, taps, tapsLen, tapsFactor, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInit32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                     Vlq32s tapsLen, const Vlq16s* dlyLine, Vlq8u* buffer) {
    return initFloat(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInit32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                        Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return initFloat(outState, taps, tapsLen, dlyLine, buffer);
}

VlqStatus vlq::vlqsFIRInitAlloc_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                                    Vlq32s tapsFactor, const Vlq16s* dlyLine) {
    return initAllocInteger(outState, taps, tapsLen, tapsFactor, dlyLine);
}
VlqStatus vlq::vlqsFIRInitAlloc32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                       Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16s* dlyLine) {
    return initAllocInteger(outState, taps, tapsLen, tapsFactor, dlyLine);
}
VlqStatus vlq::vlqsFIRInitAlloc32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                         Vlq32s tapsLen, Vlq32s tapsFactor,
                                         const Vlq16sc* dlyLine) {
    return initAllocInteger(outState, taps, tapsLen, tapsFactor, dlyLine);
}
VlqStatus vlq::vlqsFIRInitAlloc32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                          Vlq32s tapsLen, const Vlq16s* dlyLine) {
    return initAllocFloat(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRInitAlloc32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState,
                                             const Vlq32fc* taps, Vlq32s tapsLen,
                                             const Vlq16sc* dlyLine) {
    return initAllocFloat(outState, taps, tapsLen, dlyLine);
}

VlqStatus vlq::vlqsFIRFree_16s(VlqsFIRState_16s* state) { return release(state); }
VlqStatus vlq::vlqsFIRFree32s_16s(VlqsFIRState32s_16s* state) { return release(state); }
VlqStatus vlq::vlqsFIRFree32sc_16sc(VlqsFIRState32sc_16sc* state) { return release(state); }

VlqStatus vlq::vlqsFIRSetTaps_16s(const Vlq16s* taps, VlqsFIRState_16s* state, Vlq32s tapsFactor) {
    return setIntegerTaps(taps, state, tapsFactor);
}
VlqStatus vlq::vlqsFIRSetTaps32s_16s(const Vlq32s* taps, VlqsFIRState32s_16s* state,
                                     Vlq32s tapsFactor) {
    return setIntegerTaps(taps, state, tapsFactor);
}
VlqStatus vlq::vlqsFIRSetTaps32sc_16sc(const Vlq32sc* taps, VlqsFIRState32sc_16sc* state,
                                       Vlq32s tapsFactor) {
    return setIntegerTaps(taps, state, tapsFactor);
}
VlqStatus vlq::vlqsFIRSetTaps32s_16s32f(const Vlq32f* taps, VlqsFIRState32s_16s32f* state) {
    return setFloatTaps(taps, state);
}
VlqStatus vlq::vlqsFIRSetTaps32sc_16sc32fc(const Vlq32fc* taps, VlqsFIRState32sc_16sc32fc* state) {
    return setFloatTaps(taps, state);
}

VlqStatus vlq::vlqsFIRGetTaps_16s(const VlqsFIRState_16s* state, Vlq16s* taps, Vlq32s* tapsFactor) {
    return getIntegerTaps(state, taps, tapsFactor);
}
VlqStatus vlq::vlqsFIRGetTaps32s_16s(const VlqsFIRState32s_16s* state, Vlq32s* taps,
                                     Vlq32s* tapsFactor) {
    return getIntegerTaps(state, taps, tapsFactor);
}
VlqStatus vlq::vlqsFIRGetTaps32sc_16sc(const VlqsFIRState32sc_16sc* state, Vlq32sc* taps,
                                       Vlq32s* tapsFactor) {
    return getIntegerTaps(state, taps, tapsFactor);
}
VlqStatus vlq::vlqsFIRGetTaps32s_16s32f(const VlqsFIRState32s_16s32f* state, Vlq32f* taps) {
    return getFloatTaps(state, taps);
}
VlqStatus vlq::vlqsFIRGetTaps32sc_16sc32fc(const VlqsFIRState32sc_16sc32fc* state, Vlq32fc* taps) {
    return getFloatTaps(state, taps);
}

VlqStatus vlq::vlqsFIRSetDlyLine_16s(VlqsFIRState_16s* state, const Vlq16s* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRSetDlyLine32s_16s(VlqsFIRState32s_16s* state, const Vlq16s* dlyLine) {
    return setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRSetDlyLine32sc_16sc(VlqsFIRState32sc_16sc* state, const Vlq16sc* dlyLine) {
    return setDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRGetDlyLine_16s(const VlqsFIRState_16s* state, Vlq16s* dlyLine) {
    return getDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine32s_16s(const VlqsFIRState32s_16s* state, Vlq16s* dlyLine) {
    return getDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine32sc_16sc(const VlqsFIRState32sc_16sc* state, Vlq16sc* dlyLine) {
    return getDelayLine(state, dlyLine);
}
