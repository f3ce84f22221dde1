// Taps and delay lines of integer FIR states, of one rate or two: new ones in, present ones out.
#include "filter/fir/integer/integer_build.h"

namespace {

using namespace vlq;
using namespace vlq::fir;
using namespace vlq::fir::integer;

// take(state, taps) stores the taps.
template <class State, class Tap, class Take>
VlqStatus setTaps(const Tap* taps, State* state, Take take) {
    if (!taps || !state) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    take(*state, taps);
    return vlqStsOk;
}

template <class State>
VlqStatus getIntegerTaps(const State* state, typename State::Tap* taps, Vlq32s* tapsFactor) {
    if (!state || !taps || !tapsFactor) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    copyReversed(state->taps.get(), taps, state->tapsLen);
    storeScalar(tapsFactor, state->tapsFactor);
    return vlqStsOk;
}
template <class State, class Tap>
VlqStatus getFloatTaps(const State* state, Tap* taps) {
    using Listed = typename State::Tap;
    if (!state || !taps) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    const auto scaled = [exponent = state->tapsFactor](Vlq32s tap) {
        return std::ldexp(static_cast<Vlq32f>(tap), exponent);
    };
    copyReversed(state->taps.get(), taps, state->tapsLen, [&](Listed tap) -> Tap {
        if constexpr (Complex<Listed>)
            return {scaled(tap.re), scaled(tap.im)};
        else
            return scaled(tap);
    });
    return vlqStsOk;
}

template <class State>
VlqStatus setDelayLine(State* state, const typename State::Sample* dlyLine) {
    if (!state) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    writeDelayLine(*state, dlyLine);
    return vlqStsOk;
}
template <class State>
VlqStatus getDelayLine(const State* state, typename State::Sample* dlyLine) {
    if (!state || !dlyLine) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    readDelayLine(*state, dlyLine);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIRSetTaps_16s(const Vlq16s* taps, VlqsFIRState_16s* state, Vlq32s tapsFactor) {
    return setTaps(taps, state, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRSetTaps32s_16s(const Vlq32s* taps, VlqsFIRState32s_16s* state,
                                     Vlq32s tapsFactor) {
    return setTaps(taps, state, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRSetTaps32sc_16sc(const Vlq32sc* taps, VlqsFIRState32sc_16sc* state,
                                       Vlq32s tapsFactor) {
    return setTaps(taps, state, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRSetTaps32s_16s32f(const Vlq32f* taps, VlqsFIRState32s_16s32f* state) {
    return setTaps(taps, state, kSetFloatTaps);
}
VlqStatus vlq::vlqsFIRSetTaps32sc_16sc32fc(const Vlq32fc* taps, VlqsFIRState32sc_16sc32fc* state) {
    return setTaps(taps, state, kSetFloatTaps);
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
