#include "filter/fir/integer/integer_taps.h"

namespace fir = vlq::fir::integer;

namespace {

VlqStatus checked(const fir::Rates& rates) {
    if (rates.upFactor < 1 || rates.downFactor < 1) return vlqStsBadRateFactor;
    if (rates.upPhase < 0 || rates.upPhase >= rates.upFactor) return vlqStsBadRatePhase;
    if (rates.downPhase < 0 || rates.downPhase >= rates.downFactor) return vlqStsBadRatePhase;
    return vlqStsOk;
}

template <class State>
VlqStatus stateSize(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor, Vlq32s* stateBytes) {
    if (!stateBytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checked({upFactor, 0, downFactor, 0}); status != vlqStsOk)
        return status;
    const fir::Derived numbers{tapsLen, upFactor, downFactor};
    *stateBytes = vlq::toldSize(fir::multiRateBytes<State>(numbers));
    return vlqStsOk;
}

// take(state, taps) brings the taps into the record.
template <class State, class Take>
void build(State** outState, void* memory, bool owned, const auto* taps, Vlq32s tapsLen,
           const fir::Rates& rates, const typename State::Sample* dlyLine, Take take) {
    State* state = fir::layOutMultiRate<State>(memory, tapsLen, rates);
    state->ownsMemory = owned ? 1 : 0;
    take(*state, taps);
    fir::writeDelayLine(*state, fir::reals(dlyLine));
    *outState = state;
}

template <class State, class Take>
VlqStatus init(State** outState, const auto* taps, Vlq32s tapsLen, const fir::Rates& rates,
               const typename State::Sample* dlyLine, Vlq8u* buffer, Take take) {
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checked(rates); status != vlqStsOk) return status;
    if (!fir::fitsMultiRate<State>({tapsLen, rates.upFactor, rates.downFactor}))
        return vlqStsNoMemory;
    build(outState, buffer, false, taps, tapsLen, rates, dlyLine, take);
    return vlqStsOk;
}
template <class State, class Take>
VlqStatus initAlloc(State** outState, const auto* taps, Vlq32s tapsLen, const fir::Rates& rates,
                    const typename State::Sample* dlyLine, Take take) {
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checked(rates); status != vlqStsOk) return status;
    const fir::Derived numbers{tapsLen, rates.upFactor, rates.downFactor};
    if (!fir::fitsMultiRate<State>(numbers)) return vlqStsNoMemory;
    Vlq8u* memory = vlq::vlqsMalloc_8u(static_cast<Vlq32s>(fir::multiRateBytes<State>(numbers)));
    if (!memory) return vlqStsNoMemory;
    build(outState, memory, true, taps, tapsLen, rates, dlyLine, take);
    return vlqStsOk;
}

struct IntegerTaps {
    Vlq32s tapsFactor;
    void operator()(auto& state, const auto* taps) const {
        fir::takeIntegerTaps(state, taps, tapsFactor);
    }
};
struct FloatTaps {
    void operator()(auto& state, const auto* taps) const {
        fir::takeFloatTaps(state, taps, fir::kInitLimit);
    }
};

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
                buffer, FloatTaps{});
}
VlqStatus vlq::vlqsFIRMRInit32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                          Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                          Vlq32s downFactor, Vlq32s downPhase,
                                          const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                buffer, FloatTaps{});
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
                     FloatTaps{});
}
VlqStatus vlq::vlqsFIRMRInitAlloc32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState,
                                               const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                               Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                               const Vlq16sc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                     FloatTaps{});
}
