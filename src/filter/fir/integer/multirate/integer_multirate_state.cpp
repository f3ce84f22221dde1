// Multi-rate states of integer FIR filters: size and construction. They are released as
// single-rate ones.
#include "filter/fir/integer/integer_build.h"

namespace {

using namespace vlq;
using namespace vlq::fir;
using namespace vlq::fir::integer;

template <class State>
VlqStatus stateSize(Vlq32s tapsLen, Vlq32s up, Vlq32s down, Vlq32s* bytes) {
    if (!bytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkFactors(up, down); status != vlqStsOk) return status;
    *bytes = reportedSize(multiRateBytes<State>({{tapsLen, up, down}}));
    return vlqStsOk;
}

template <class State, class Tap, class Take>
VlqStatus buildMultiRate(State** outState, Vlq8u* memory, Vlq64s bytes, const Tap* taps,
                         Vlq32s tapsLen, const Rates& rates, const typename State::Sample* dlyLine,
                         Take take) {
    return initState(outState, TagsOf<State>::kMultiRate, memory, bytes,
                     [&](State& state, Cursor& cursor) {
                         layOutMultiRate(state, tapsLen, rates, cursor);
                         take(state, taps);
                         writeDelayLine(state, dlyLine);
                         return vlqStsOk;
                     });
}

template <class State, class Tap, class Take>
VlqStatus init(State** outState, const Tap* taps, Vlq32s tapsLen, const Rates& rates,
               const typename State::Sample* dlyLine, Vlq8u* buffer, Take take) {
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkRates(rates); status != vlqStsOk) return status;
    const Vlq64s bytes = multiRateBytes<State>({{tapsLen, rates.up, rates.down}});
    return buildMultiRate(outState, buffer, bytes, taps, tapsLen, rates, dlyLine, take);
}
template <class State, class Tap, class Take>
VlqStatus initAlloc(State** outState, const Tap* taps, Vlq32s tapsLen, const Rates& rates,
                    const typename State::Sample* dlyLine, Take take) {
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkRates(rates); status != vlqStsOk) return status;
    const Vlq64s bytes = multiRateBytes<State>({{tapsLen, rates.up, rates.down}});
    return initAllocState(outState, bytes, 0, [&](Vlq8u* memory, Vlq8u*) {
        return buildMultiRate(outState, memory, bytes, taps, tapsLen, rates, dlyLine, take);
    });
}

}  // namespace

VlqStatus vlq::vlqsFIRMRGetStateSize_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes) {
    return stateSize<VlqsFIRState_16s>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRGetStateSize32s_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return stateSize<VlqsFIRState32s_16s>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRGetStateSize32sc_16sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                              Vlq32s* stateBytes) {
    return stateSize<VlqsFIRState32sc_16sc>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRGetStateSize32s_16s32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                               Vlq32s* stateBytes) {
    return vlqsFIRMRGetStateSize32s_16s(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRGetStateSize32sc_16sc32fc(Vlq32s tapsLen, Vlq32s upFactor,
                                                  Vlq32s downFactor, Vlq32s* stateBytes) {
    return vlqsFIRMRGetStateSize32sc_16sc(tapsLen, upFactor, downFactor, stateBytes);
}

VlqStatus vlq::vlqsFIRMRInit_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                                 Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase,
                                 Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                                 Vlq8u* buffer) {
    return init(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                buffer, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRMRInit32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                    Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    const Vlq16s* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                buffer, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRMRInit32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                      Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                buffer, IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRMRInit32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                                       Vlq8u* buffer) {
    return init(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                buffer, kInitFloatTaps);
}
VlqStatus vlq::vlqsFIRMRInit32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                          Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                          Vlq32s downFactor, Vlq32s downPhase,
                                          const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                buffer, kInitFloatTaps);
}

VlqStatus vlq::vlqsFIRMRInitAlloc_16s(VlqsFIRState_16s** outState, const Vlq16s* taps,
                                      Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      const Vlq16s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                     IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRMRInitAlloc32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                         Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                         Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq16s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                     IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRMRInitAlloc32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                           Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                           Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq16sc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                     IntegerTaps{tapsFactor});
}
VlqStatus vlq::vlqsFIRMRInitAlloc32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                            Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                            Vlq32s downFactor, Vlq32s downPhase,
                                            const Vlq16s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                     kInitFloatTaps);
}
VlqStatus vlq::vlqsFIRMRInitAlloc32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState,
                                               const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                               Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                               const Vlq16sc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                     kInitFloatTaps);
}
