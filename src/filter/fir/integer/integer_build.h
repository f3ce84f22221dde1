// Construction of single-rate integer FIR states, and their delay lines.
#pragma once

#include "filter/fir/integer/integer_taps.h"

namespace vlq::fir::integer {

// ---- delay line ---------------------------------------------------------------------------------

// dlyLine: newest sample first; null for silence.
template <class State>
void writeDelayLine(State& state, const typename State::Sample* dlyLine) {
    using Sample = typename State::Sample;
    state.dlyIndex = 0;
    copyReversedOrZero(dlyLine, reinterpret_cast<Sample*>(state.dlyLine.get()), state.dlyLen);
}
template <class State>
void readDelayLine(const State& state, typename State::Sample* dlyLine) {
    using Sample = typename State::Sample;
    const auto* store = reinterpret_cast<const Sample*>(state.dlyLine.get());
    copyReversed(store + state.dlyIndex, dlyLine, state.dlyLen);
}

// ---- construction -------------------------------------------------------------------------------

template <int Parts>
struct Layout;

// A row has two zeros before its taps and some behind them; the block has room for four.
template <>
struct Layout<1> {
    static constexpr Vlq64s rowLen(Vlq64s tapsLen) { return (tapsLen + 11) & ~Vlq64s{7}; }
    static constexpr Vlq64s firstChunk(Vlq64s tapsLen) { return rowLen(tapsLen); }
    static constexpr Vlq64s delayStoreBytes(Vlq64s tapsLen) {
        return ((rowLen(tapsLen) + 2 * tapsLen) * 2 + 23) & ~Vlq64s{15};
    }
    static constexpr Vlq64s rowsBytes(Vlq64s tapsLen) { return 8 * rowLen(tapsLen); }
};

// Two rows of pairs: (c, -d) gives the real, (d, c) the imaginary part of a product with c + id.
template <>
struct Layout<2> {
    static constexpr Vlq64s rowLen(Vlq64s tapsLen) { return 2 * tapsLen; }
    static constexpr Vlq64s firstChunk(Vlq64s tapsLen) {
        return ((2 * tapsLen + 7) & ~Vlq64s{7}) + 2;
    }
    static constexpr Vlq64s delayStoreBytes(Vlq64s tapsLen) {
        return (12 * tapsLen + 31) & ~Vlq64s{15};
    }
    static constexpr Vlq64s rowsBytes(Vlq64s tapsLen) { return 16 * tapsLen; }
};

template <class State>
using LayoutOf = Layout<kParts<typename State::Sample>>;

template <class State>
constexpr Vlq64s stateBytes(Vlq64s tapsLen) {
    using L = LayoutOf<State>;
    constexpr Vlq64s tapBytes = sizeof(typename State::Tap), alignment = State::kAlignment;
    constexpr Vlq64s sampleBytes = 4;  // of the staging area, whatever the sample
    return roundUp(tapBytes * tapsLen, alignment) + L::delayStoreBytes(tapsLen) +
           L::rowsBytes(tapsLen) + Vlq64s{sizeof(State)} + kStaging * sampleBytes + alignment;
}

template <class State>
void layOut(State& state, Vlq32s tapsLen, Cursor& cursor) {
    using L = LayoutOf<State>;
    const Vlq64s len = tapsLen;
    state.tapsLen = state.dlyLen = tapsLen;
    state.firstChunk = static_cast<Vlq32s>(L::firstChunk(len));
    state.rowLen = static_cast<Vlq32s>(L::rowLen(len));
    state.taps = cursor.take<typename State::Tap>(len);
    state.dlyLine = cursor.takeBytes<Vlq16s>(L::delayStoreBytes(len), State::kAlignment);
    state.tapRows = cursor.takeBytes<Vlq16s>(L::rowsBytes(len));
    state.blockBuf =
        cursor.take<Vlq16s>(Vlq64s{kStaging} * kParts<typename State::Sample>, State::kAlignment);
}

// take(state, taps) stores the taps.
template <class State, class Tap, class Take>
VlqStatus build(State** outState, Vlq8u* memory, const Tap* taps, Vlq32s tapsLen,
                const typename State::Sample* dlyLine, Take take) {
    return initState(outState, TagsOf<State>::kSingleRate, memory, stateBytes<State>(tapsLen),
                     [&](State& state, Cursor& cursor) {
                         layOut(state, tapsLen, cursor);
                         take(state, taps);
                         writeDelayLine(state, dlyLine);
                         return vlqStsOk;
                     });
}
template <class State, class Tap, class Take>
VlqStatus buildAllocated(State** outState, const Tap* taps, Vlq32s tapsLen,
                         const typename State::Sample* dlyLine, Take take) {
    return initAllocState(outState, stateBytes<State>(tapsLen), 0, [&](Vlq8u* memory, Vlq8u*) {
        return build(outState, memory, taps, tapsLen, dlyLine, take);
    });
}

}  // namespace vlq::fir::integer
