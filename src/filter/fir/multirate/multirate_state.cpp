// Multi-rate FIR states of floating arithmetic: size and construction. Release, taps and delay line
// are those of single-rate states.
#include "filter/fir/multirate/multirate_state.h"
#include "filter/fir/fir_taps.h"
#include "vlqs/core.h"

namespace {

using namespace vlq;
using namespace vlq::fir;

template <class E>
void layOut(FirState<E>& state, const MultiRatePlan<E>& plan, const Rates& rates, Cursor& cursor) {
    state.tapsLen = static_cast<Vlq32s>(plan.sizes.tapsLen);
    state.dlyLen = static_cast<Vlq32s>(plan.delayLen);
    state.upFactor = rates.up;
    state.upPhase = rates.upPhase;
    state.downFactor = rates.down;
    state.downPhase = rates.downPhase;
    state.firstChunk = static_cast<Vlq32s>(plan.firstChunk);
    state.chunkOutputs = static_cast<Vlq32s>(plan.sizes.chunkOutputs());
    state.paddedPhase = static_cast<Vlq32s>(plan.paddedTaps / plan.sizes.up);
    state.multiRateKind = plan.kind;
    state.fftLen = -1;
    state.threads = ownGetNumThreads();

    state.taps = cursor.take<E>(plan.sizes.tapsLen);
    Phase* phases = cursor.take<Phase>(plan.sizes.up, 16);
    state.phases = phases;
    state.tapsWide = cursor.takeBytes<E>(plan.rowBytes(), 16);
    state.blockBuf = cursor.take<E>(plan.stagingLength(), 16);
    state.dlyLine = cursor.take<E>(plan.storeLength());
    for (Vlq32s k = 0; k < rates.up; ++k) {
        const OutputPlace place = placeOf(rates, k);
        phases[k] = {static_cast<Vlq32s>(place.newest),
                     tapsFrom(place.firstTap, state.tapsLen, rates.up),
                     place.firstTap * state.dlyLen, 0};
    }
}

template <class State, class Tap>
VlqStatus build(State** outState, const MultiRatePlan<typename State::Element>& plan,
                const Rates& rates, const Tap* taps, const SampleOf<State>* dlyLine, void* memory) {
    using E = typename State::Element;
    return initState(outState, TagsOf<State>::kMultiRate, memory, plan.bytes(),
                     [&](State& state, Cursor& cursor) {
                         layOut<E>(state, plan, rates, cursor);
                         writeTaps<E>(state, taps);
                         writeDelayLine<E>(state, dlyLine);
                         return vlqStsOk;
                     });
}

// ---- what the exports do ------------------------------------------------------------------------
// Where a filter of factors 1 and 1 is a single-rate state, they are given the calls that make one.

constexpr bool areOne(const Rates& rates) { return rates.up == 1 && rates.down == 1; }

using SizeQuery = VlqStatus(Vlq32s tapsLen, Vlq32s* stateBytes);

template <class E>
VlqStatus multiRateSize(Vlq32s tapsLen, Vlq32s up, Vlq32s down, Vlq32s* stateBytes,
                        SizeQuery& singleRateSize) {
    if (!stateBytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkFactors(up, down); status != vlqStsOk) return status;
    const Vlq32s multiRate = reportedSize(MultiRatePlan<E>(tapsLen, up, down).bytes());
    if (up > 1 || down > 1) {
        *stateBytes = multiRate;
        return vlqStsOk;
    }
    // The complex types of one element have one size, whichever state is made.
    const VlqStatus status = singleRateSize(tapsLen, stateBytes);
    if (Complex<E>) *stateBytes = std::max(*stateBytes, multiRate);
    return status;
}

template <class State, class Tap, class... SingleRateInit>
VlqStatus multiRateInit(State** outState, const Tap* taps, Vlq32s tapsLen, const Rates& rates,
                        const SampleOf<State>* dlyLine, Vlq8u* buffer,
                        SingleRateInit&... singleRateInit) {
    using E = typename State::Element;
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkRates(rates); status != vlqStsOk) return status;
    if constexpr (sizeof...(singleRateInit) > 0) {
        if (areOne(rates)) return (singleRateInit(outState, taps, tapsLen, dlyLine, buffer), ...);
    }
    const MultiRatePlan<E> plan(tapsLen, rates.up, rates.down);
    return build(outState, plan, rates, taps, dlyLine, buffer);
}

template <class State, class Tap, class... SingleRateInit>
VlqStatus multiRateInitAlloc(State** outState, const Tap* taps, Vlq32s tapsLen, const Rates& rates,
                             const SampleOf<State>* dlyLine, SingleRateInit&... singleRateInit) {
    using E = typename State::Element;
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkRates(rates); status != vlqStsOk) return status;
    if constexpr (sizeof...(singleRateInit) > 0) {
        if (areOne(rates)) return (singleRateInit(outState, taps, tapsLen, dlyLine), ...);
    }
    const MultiRatePlan<E> plan(tapsLen, rates.up, rates.down);
    return initAllocState(outState, plan.bytes(), 0, [&](Vlq8u* memory, Vlq8u*) {
        return build(outState, plan, rates, taps, dlyLine, memory);
    });
}

}  // namespace

VlqStatus vlq::vlqsFIRMRGetStateSize_32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes) {
    return multiRateSize<Vlq32f>(tapsLen, upFactor, downFactor, stateBytes,
                                 vlqsFIRGetStateSize_32f);
}
VlqStatus vlq::vlqsFIRMRInit_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                                 Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq32f* dlyLine, Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer, vlqsFIRInit_32f);
}
VlqStatus vlq::vlqsFIRMRInitAlloc_32f(VlqsFIRState_32f** outState, const Vlq32f* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32f* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, vlqsFIRInitAlloc_32f);
}
VlqStatus vlq::vlqsFIRMRGetStateSize32f_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return multiRateSize<Vlq32f>(tapsLen, upFactor, downFactor, stateBytes,
                                 vlqsFIRGetStateSize_32f);
}
VlqStatus vlq::vlqsFIRMRInit32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                                    Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer, vlqsFIRInit32f_16s);
}
VlqStatus vlq::vlqsFIRMRInitAlloc32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq16s* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, vlqsFIRInitAlloc32f_16s);
}
VlqStatus vlq::vlqsFIRMRGetStateSize_64f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes) {
    return multiRateSize<Vlq64f>(tapsLen, upFactor, downFactor, stateBytes,
                                 vlqsFIRGetStateSize_64f);
}
VlqStatus vlq::vlqsFIRMRInit_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                                 Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq64f* dlyLine, Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer, vlqsFIRInit_64f);
}
VlqStatus vlq::vlqsFIRMRInitAlloc_64f(VlqsFIRState_64f** outState, const Vlq64f* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq64f* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, vlqsFIRInitAlloc_64f);
}
VlqStatus vlq::vlqsFIRMRGetStateSize64f_32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return multiRateSize<Vlq64f>(tapsLen, upFactor, downFactor, stateBytes,
                                 vlqsFIRGetStateSize_64f);
}
VlqStatus vlq::vlqsFIRMRInit64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq32f* dlyLine,
                                    Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer, vlqsFIRInit64f_32f);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq32f* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, vlqsFIRInitAlloc64f_32f);
}
VlqStatus vlq::vlqsFIRMRGetStateSize64f_32s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return multiRateSize<Vlq64f>(tapsLen, upFactor, downFactor, stateBytes,
                                 vlqsFIRGetStateSize_64f);
}
VlqStatus vlq::vlqsFIRMRInit64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq32s* dlyLine,
                                    Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer, vlqsFIRInit64f_32s);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq32s* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, vlqsFIRInitAlloc64f_32s);
}
VlqStatus vlq::vlqsFIRMRGetStateSize64f_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return multiRateSize<Vlq64f>(tapsLen, upFactor, downFactor, stateBytes,
                                 vlqsFIRGetStateSize_64f);
}
VlqStatus vlq::vlqsFIRMRInit64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                                    Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer, vlqsFIRInit64f_16s);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq16s* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, vlqsFIRInitAlloc64f_16s);
}
VlqStatus vlq::vlqsFIRMRGetStateSize_32fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                          Vlq32s* stateBytes) {
    return multiRateSize<Vlq32fc>(tapsLen, upFactor, downFactor, stateBytes,
                                  vlqsFIRGetStateSize_32fc);
}
VlqStatus vlq::vlqsFIRMRInit_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                                  Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                  Vlq32s downPhase, const Vlq32fc* dlyLine, Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase,
                                       const Vlq32fc* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine);
}
VlqStatus vlq::vlqsFIRMRInit32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine,
                                      Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq16sc* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine);
}
VlqStatus vlq::vlqsFIRMRGetStateSize_64fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                          Vlq32s* stateBytes) {
    return multiRateSize<Vlq64fc>(tapsLen, upFactor, downFactor, stateBytes,
                                  vlqsFIRGetStateSize_64fc);
}
VlqStatus vlq::vlqsFIRMRInit_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                                  Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                  Vlq32s downPhase, const Vlq64fc* dlyLine, Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase,
                                       const Vlq64fc* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine);
}
VlqStatus vlq::vlqsFIRMRInit64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32fc* dlyLine,
                                      Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq32fc* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine);
}
VlqStatus vlq::vlqsFIRMRInit64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32sc* dlyLine,
                                      Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer, vlqsFIRInit64fc_32sc);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq32sc* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, vlqsFIRInitAlloc64fc_32sc);
}
VlqStatus vlq::vlqsFIRMRInit64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine,
                                      Vlq8u* buffer) {
    return multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                         dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq16sc* dlyLine) {
    return multiRateInitAlloc(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine);
}
