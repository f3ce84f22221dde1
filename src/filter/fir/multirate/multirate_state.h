// Construction of a multi-rate FIR record.
#pragma once

#include "filter/fir/fir_state.h"
#include "filter/fir/multirate/multirate_kernels.h"
#include "filter/fir/multirate/multirate_sizes.h"

namespace vlq::fir {

template <class State>
inline bool isMultiRate(const State& state) {
    return state.idCtx == Kind<State>::kMultiRateWord;
}

// Kinds whose filter of factors 1 and 1 is a single-rate record.
template <class State>
inline constexpr bool kHasSingleRate =
    !Complex<typename State::Element> || std::is_same_v<State, VlqsFIRState64fc_32sc>;

template <class E>
inline Polyphase<E> polyphaseOf(const Record<E>& record) {
    const E* rows = record.tapsWide;
    const E* groups =
        hasGroups<E>(record.upFactor) ? rows + Vlq64s{record.upFactor} * record.dlyLen : nullptr;
    return {record.mrDlyPtr, rows, groups, record.upFactor, record.downFactor, record.dlyLen};
}

// Lays a record and its arrays into memory of plan.bytes() bytes.
template <class State>
State* layOut(void* memory, const MultiRatePlan<typename State::Element>& plan,
              const Rates& rates) {
    using E = typename State::Element;
    Cursor cursor(memory, plan.bytes());
    State* state = ::new (static_cast<void*>(cursor.take<State>(1, Shape<E>::kAlignment))) State{};
    state->idCtx = Kind<State>::kMultiRateWord;
    state->tapsLen = static_cast<Vlq32s>(plan.tapsLen);
    state->dlyLen = static_cast<Vlq32s>(plan.line);
    state->upFactor = rates.up;
    state->upPhase = rates.upPhase;
    state->downFactor = rates.down;
    state->downPhase = rates.downPhase;
    state->firstChunk = static_cast<Vlq32s>(plan.firstChunk);
    state->tapsStride = static_cast<Vlq32s>(plan.chunkOutputs);
    state->mrSamples = static_cast<Vlq32s>(plan.slots / plan.up);
    state->mrKind = plan.kind;
    state->fftLen = -1;

    state->taps = cursor.take<E>(plan.tapsLen);
    Phase* phases = cursor.take<Phase>(plan.up, 16);
    state->mrDlyPtr = phases;
    state->tapsWide = reinterpret_cast<E*>(cursor.take<char>(plan.rowBytes(), 16));
    state->blockBuf = cursor.take<E>(plan.blockBufLength(), 16);
    state->dlyLine = cursor.take<E>(plan.storeLength());
    for (Vlq32s k = 0; k < rates.up; ++k) {
        const OutputPlace place = placeOf(rates, k);
        phases[k] = {place.newest, tapsFrom(place.firstTap, state->tapsLen, rates.up),
                     place.firstTap * state->dlyLen, 0};
    }
    return state;
}

// ---- what the exports do ------------------------------------------------------------------------

template <class State>
VlqStatus multiRateSize(Vlq32s tapsLen, Vlq32s up, Vlq32s down, Vlq32s* stateBytes) {
    using E = typename State::Element;
    if (!stateBytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkFactors(up, down); status != vlqStsOk) return status;
    const bool single = up == 1 && down == 1;
    Vlq64s bytes = 0;
    // The complex kinds of one shape have one size, whichever record is made.
    if (!single || Complex<E>) bytes = MultiRatePlan<E>(tapsLen, up, down).bytes();
    if (single) bytes = std::max(bytes, Plan<E>(tapsLen).bytes());
    *stateBytes = toldSize(bytes);
    return vlqStsOk;
}

template <class State, class Tap>
VlqStatus multiRateInit(State** outState, const Tap* taps, Vlq32s tapsLen, const Rates& rates,
                        const SampleOf<State>* dlyLine, Vlq8u* buffer) {
    using E = typename State::Element;
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = check(rates); status != vlqStsOk) return status;
    if (kHasSingleRate<State> && rates.up == 1 && rates.down == 1)
        return init(outState, taps, tapsLen, dlyLine, buffer);
    const MultiRatePlan<E> plan(tapsLen, rates.up, rates.down);
    if (!plan.fits()) return vlqStsNoMemory;
    State* state = layOut<State>(buffer, plan, rates);
    writeTaps(*state, taps);
    writeDelayLine(*state, dlyLine);
    *outState = state;
    return vlqStsOk;
}

template <class State, class Tap>
VlqStatus multiRateInitAlloc(State** outState, const Tap* taps, Vlq32s tapsLen, const Rates& rates,
                             const SampleOf<State>* dlyLine) {
    using E = typename State::Element;
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = check(rates); status != vlqStsOk) return status;
    if (kHasSingleRate<State> && rates.up == 1 && rates.down == 1)
        return initAlloc(outState, taps, tapsLen, dlyLine);
    const MultiRatePlan<E> plan(tapsLen, rates.up, rates.down);
    if (!plan.fits()) return vlqStsNoMemory;
    Vlq8u* memory = vlqsMalloc_8u(static_cast<Vlq32s>(plan.bytes()));
    if (!memory) return vlqStsNoMemory;
    const VlqStatus status = multiRateInit(outState, taps, tapsLen, rates, dlyLine, memory);
    if (status == vlqStsOk)
        (*outState)->ownsMemory = 1;
    else
        vlqsFree(memory);
    return status;
}

}  // namespace vlq::fir
