// Single-rate states of integer FIR filters: size, construction, release.
#include "filter/fir/integer/integer_build.h"

namespace {

using namespace vlq;
using namespace vlq::fir;
using namespace vlq::fir::integer;

template <class State>
VlqStatus stateSize(Vlq32s tapsLen, Vlq32s* bytes) {
    if (!bytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    *bytes = reportedSize(stateBytes<State>(tapsLen));
    return vlqStsOk;
}

template <class State, class Tap, class Take>
VlqStatus init(State** outState, const Tap* taps, Vlq32s tapsLen,
               const typename State::Sample* dlyLine, Vlq8u* buffer, Take take) {
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    return build(outState, buffer, taps, tapsLen, dlyLine, take);
}
template <class State, class Tap, class Take>
VlqStatus initAlloc(State** outState, const Tap* taps, Vlq32s tapsLen,
                    const typename State::Sample* dlyLine, Take take) {
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    return buildAllocated(outState, taps, tapsLen, dlyLine, take);
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
    return init(outState, taps, tapsLen, dlyLine, buffer, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRInit32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                  Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16s* dlyLine,
                                  Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRInit32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                    Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16sc* dlyLine,
                                    Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRInit32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                     Vlq32s tapsLen, const Vlq16s* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer, kInitFloatTaps);
}
VlqStatus vlq::vlqsFIRInit32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                        Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer, kInitFloatTaps);
}

VlqStatus vlq::vlqsFIRInitAlloc_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                                    Vlq32s tapsFactor, const Vlq16s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRInitAlloc32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                       Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRInitAlloc32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                         Vlq32s tapsLen, Vlq32s tapsFactor,
                                         const Vlq16sc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRInitAlloc32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                          Vlq32s tapsLen, const Vlq16s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine, kInitFloatTaps);
}
VlqStatus vlq::vlqsFIRInitAlloc32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState,
                                             const Vlq32fc* taps, Vlq32s tapsLen,
                                             const Vlq16sc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine, kInitFloatTaps);
}

VlqStatus vlq::vlqsFIRFree_16s(VlqsFIRState_16s* state) {
    return TagsOf<VlqsFIRState_16s>::release(state);
}
VlqStatus vlq::vlqsFIRFree32s_16s(VlqsFIRState32s_16s* state) {
    return TagsOf<VlqsFIRState32s_16s>::release(state);
}
VlqStatus vlq::vlqsFIRFree32sc_16sc(VlqsFIRState32sc_16sc* state) {
    return TagsOf<VlqsFIRState32sc_16sc>::release(state);
}
