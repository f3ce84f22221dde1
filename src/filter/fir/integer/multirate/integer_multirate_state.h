// Multi-rate integer FIR states: sizes, layout and tap tables.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "filter/common/rates.h"
#include "filter/fir/integer/integer_state.h"
#include "filter/fir/integer/multirate/fir_integer_cycle_kernels.h"
#include "filter/fir/integer/multirate/phase_lanes.h"
#include "filter/fir/integer/multirate/phase_rows.h"

namespace vlq::fir::integer {

// ---- sizes --------------------------------------------------------------------------------------

// Everything that follows from the number of taps and the factors. Elements are pairs of values.
template <int Parts>
struct PhaseSizes : RateSizes {
    // Periods of a cycle: a real filter's samples go in pairs.
    constexpr Vlq64s cycle() const { return Parts == 1 && (up % 2 != 0 || down % 2 != 0) ? 2 : 1; }
    constexpr Vlq64s inputElements() const { return cycle() * down * Parts / 2; }
    constexpr Vlq64s outputElements() const { return cycle() * up * Parts / 2; }
    constexpr Vlq64s windowWords() const { return delayLen() * Parts; }
    constexpr Vlq64s inputWords() const { return down * Parts; }  // of a period
    // Values of a window, made up to whole cycles.
    constexpr Vlq64s reach() const { return roundUpTo(windowWords(), 2 * inputElements()); }

    constexpr LaneShape lanes() const { return laneShape<Parts>(up, down); }
    // Values before the first of a period that its own outputs may load.
    constexpr Vlq64s loadedBefore() const {
        return lanes().vectorBytes ? laneReach<Parts>(delayLen()) : phaseRowLength(windowWords());
    }
    constexpr Vlq64s periodsLoadedBefore() const {
        return roundUpTo(loadedBefore(), inputWords()) / inputWords();
    }
    // Values behind the delay line, in its store.
    constexpr Vlq64s seamWords() const {
        return std::max(seam() * Parts, periodsLoadedBefore() * inputWords());
    }

private:
    static constexpr Vlq64s roundUpTo(Vlq64s n, Vlq64s multiple) {
        return (n + multiple - 1) / multiple * multiple;
    }
};
template <class State>
using PhaseSizesOf = PhaseSizes<kParts<typename State::Sample>>;

template <class State>
PhaseSizesOf<State> sizesOf(const State& state) {
    return {{state.tapsLen, state.upFactor, state.downFactor}};
}
template <class State>
Rates ratesOf(const State& state) {
    return {state.upFactor, state.upPhase, state.downFactor, state.downPhase};
}

template <class State>
constexpr Vlq64s multiRateBytes(const PhaseSizesOf<State>& d) {
    constexpr Vlq64s count = kParts<typename State::Sample>, alignment = State::kAlignment;
    const Vlq64s taps = std::max(d.paddedTaps(), d.up * roundUp(d.delayLen(), 4));
    return roundUp(Vlq64s{sizeof(typename State::Tap)} * d.tapsLen, alignment) +
           roundUp(16 * d.up + 4, alignment) + count * (32 * taps + roundUp(8 * taps, alignment)) +
           roundUp(2 * count * (d.delayLen() + d.seam()) + 4, alignment) + Vlq64s{sizeof(State)} +
           alignment;
}

// ---- tables -------------------------------------------------------------------------------------

inline Vlq16s saturated(Vlq64s value) {
    return static_cast<Vlq16s>(std::clamp<Vlq64s>(value, -32768, 32767));
}

// A tap of the list into a row; of a complex one a pair of values into the rows for the real and
// for the imaginary part.
inline void writeTap(Vlq32s tap, Vlq16s* row, Vlq16s*) { *row = saturated(tap); }
inline void writeTap(Vlq32sc tap, Vlq16s* re, Vlq16s* im) {
    re[0] = im[1] = saturated(tap.re);
    re[1] = saturated(-Vlq64s{tap.im});
    im[0] = saturated(tap.im);
}

// Sum of the absolute values of a row; of a long one the top of the type.
inline Vlq32s magnitudeOf(const Vlq16s* row, std::ptrdiff_t words) {
    Vlq64s sum = 0;
    for (std::ptrdiff_t i = 0; i < words; ++i) sum += std::abs(Vlq32s{row[i]});
    return static_cast<Vlq32s>(std::min<Vlq64s>(sum, std::numeric_limits<Vlq32s>::max()));
}

// Values from the first sample of a period to behind the newest that an output sees.
template <class State>
Vlq64s windowEnd(const State& state, Vlq64s output) {
    return (placeOf(ratesOf(state), output).newest + 1) * kParts<typename State::Sample>;
}

// Calls write(i, tap) for the taps of an output, i samples before its newest one.
template <class State, class Write>
void eachTapOf(const State& state, Vlq64s output, Write write) {
    const auto* list = state.taps.get();
    const Vlq64s last = state.tapsLen - Vlq64s{1}, up = state.upFactor;
    Vlq64s k = placeOf(ratesOf(state), output).firstTap;
    for (Vlq64s i = 0; k <= last; ++i, k += up) write(i, list[last - k]);
}

// The taps of an output, reversed, in rows that begin with its window.
template <class State>
void writeRow(const State& state, Vlq64s output, Vlq16s* row, Vlq16s* other) {
    constexpr int count = kParts<typename State::Sample>;
    const Vlq64s newest = (state.dlyLen - Vlq64s{1}) * count;
    eachTapOf(state, output, [&](Vlq64s i, auto tap) {
        writeTap(tap, row + newest - i * count, other + newest - i * count);
    });
}

// Fills in the table of row pairs; returns the length of the longest row.
template <class State>
Vlq64s writeRowPairs(const State& state, RowPair* rowPairs) {
    const PhaseSizesOf<State> d = sizesOf(state);
    constexpr int count = kParts<typename State::Sample>;
    Vlq64s longest = 0;
    for (Vlq64s e = 0; e < d.outputElements(); ++e) {
        // Both outputs of a real element have seen their windows; a complex element is one output.
        const Vlq64s first = 2 / count * e, last = first + 2 / count - 1;
        const Vlq64s ends[] = {d.reach() + windowEnd(state, first),
                               d.reach() + windowEnd(state, last)};
        const Vlq64s start = roundDown(ends[0] - d.windowWords(), 2), end = roundUp(ends[1], 2);
        const Vlq64s lead = roundDown(ends[1] - d.windowWords(), 2) - start,
                     trail = std::min(end - roundUp(ends[0], 2), end - start - lead);
        rowPairs[e] = {static_cast<Vlq32s>(start / 2), static_cast<Vlq32s>((end - start) / 2),
                       static_cast<Vlq32s>(lead / 2), static_cast<Vlq32s>(trail / 2)};
        longest = std::max(longest, end - start);
    }
    return longest;
}

template <class State>
void writeRowsOfPairs(State& state) {
    const PhaseSizesOf<State> d = sizesOf(state);
    const Vlq64s rowLen = state.rowLen, elements = d.outputElements();
    Vlq16s* row = state.tapRows;
    state.magnitude = 0;
    std::fill(row, row + 2 * elements * rowLen, Vlq16s{0});
    for (Vlq64s e = 0; e < elements; ++e, row += 2 * rowLen) {
        if constexpr (Complex<typename State::Sample>) {
            writeRow(state, e, row, row + rowLen);
        } else {
            const Vlq64s start = 2 * Vlq64s{state.phases->rowPairs()[e].start} - d.reach();
            for (int i = 0; i < 2; ++i) {
                const Vlq64s before = windowEnd(state, 2 * e + i) - d.windowWords() - start;
                writeRow(state, 2 * e + i, row + i * rowLen + before, row);
            }
        }
        state.magnitude = std::max(
            {state.magnitude, magnitudeOf(row, rowLen), magnitudeOf(row + rowLen, rowLen)});
    }
}

template <class State>
void writePhaseRows(const State& state) {
    const PhaseSizesOf<State> d = sizesOf(state);
    constexpr int count = kParts<typename State::Sample>;
    const Vlq64s rowLen = phaseRowLength(d.windowWords()), zeros = rowLen - d.windowWords();
    Vlq32s* starts = state.phases->starts;
    Vlq16s* row = state.phases->taps;
    std::fill(row, row + count * d.up * rowLen, Vlq16s{0});
    for (Vlq64s output = 0; output < d.up; ++output, row += count * rowLen) {
        *starts++ = static_cast<Vlq32s>(windowEnd(state, output) - rowLen);
        writeRow(state, output, row + zeros, row + rowLen + zeros);
    }
}

template <class State>
void writePhaseLanes(const State& state) {
    const PhaseSizesOf<State> d = sizesOf(state);
    constexpr int count = kParts<typename State::Sample>;
    const LaneShape shape = d.lanes();
    const Vlq64s group = groupOutputs<count>(shape.vectorBytes), lanes = shape.vectorBytes / 4,
                 pairWords = shape.vectorBytes,  // two vectors
        pairs = pairsOfWindow<count>(d.delayLen());
    Vlq32s* starts = state.phases->starts;
    Vlq16s* patterns = state.phases->patterns;
    Vlq16s* taps = state.phases->taps;
    std::fill(taps, taps + laneGroups<count>(d.up, shape) * pairs * pairWords, Vlq16s{0});
    for (Vlq64s first = 0;; first = std::min(first + group, d.up - group)) {
        for (Vlq64s i = 0; i < group; ++i) {
            const Vlq64s inUnit = i % shape.unitOutputs();
            const Vlq64s end = windowEnd(state, first + i - inUnit + shape.unitOutputs() - 1);
            if (inUnit == 0) *starts++ = static_cast<Vlq32s>(end - shape.unitWords());
            const auto older = static_cast<int>(end - windowEnd(state, first + i));
            *patterns++ = pickIndex(shape.unitWords() - 2 - older);
            *patterns++ = pickIndex(shape.unitWords() - 1 - older);

            Vlq16s* const lane = taps + i / lanes * 2 * lanes + i % lanes * 2;
            eachTapOf(state, first + i, [&](Vlq64s k, auto tap) {
                if constexpr (count == 2)
                    writeTap(tap, lane + k * pairWords, lane + k * pairWords + 2 * lanes);
                else
                    writeTap(tap, lane + k / 2 * pairWords + 1 - k % 2, nullptr);
            });
        }
        taps += pairs * pairWords;
        if (first == d.up - group) break;
    }
}

// All tables that hold taps, from the list.
template <class State>
void writePhaseTable(State& state) {
    writeRowsOfPairs(state);
    if (state.phases->patterns.get())
        writePhaseLanes(state);
    else
        writePhaseRows(state);
}

// ---- layout -------------------------------------------------------------------------------------

// Cycles in each of `width` streams, of which `reached` come before the first to be made. Always
// enough for the widest vector; more than fill a part of the first cache bring nothing.
inline Vlq64s streamStride(Vlq64s width, Vlq64s reached, Vlq64s bytes) {
    constexpr Vlq64s elementBytes = 4, enough = 16384 / elementBytes, lanes = 16;
    const Vlq64s useful = roundUp(std::max(enough / width, reached + 4 * lanes) + reached, lanes);
    const Vlq64s room = bytes / (elementBytes * width), rounded = roundDown(room, lanes);
    return std::min(useful, rounded >= lanes + reached ? rounded : room);
}

template <class State>
void layOutMultiRate(State& state, Vlq32s tapsLen, const Rates& rates, Cursor& cursor) {
    constexpr int count = kParts<typename State::Sample>;
    constexpr std::size_t alignment = State::kAlignment, streamAlignment = 64;
    state.tapsLen = tapsLen;
    state.upFactor = rates.up;
    state.upPhase = rates.upPhase;
    state.downFactor = rates.down;
    state.downPhase = rates.downPhase;
    const PhaseSizesOf<State> d = sizesOf(state);
    const char* const end = reinterpret_cast<const char*>(&state) + multiRateBytes<State>(d) -
                            static_cast<Vlq64s>(alignment);
    state.dlyLen = static_cast<Vlq32s>(d.delayLen());
    state.mrSamples = static_cast<Vlq32s>(d.paddedTaps() / d.up);
    state.firstChunk = static_cast<Vlq32s>(d.firstChunk());
    state.tapsStride = static_cast<Vlq32s>(d.chunkOutputs());

    state.taps = cursor.take<typename State::Tap>(tapsLen);
    PhaseTable* const phases = cursor.takeHeader<PhaseTable>(alignment);
    state.phases = phases;
    cursor.take<RowPair>(d.outputElements());
    state.rowLen = static_cast<Vlq32s>(writeRowPairs(state, phases->rowPairs()));
    // Windows may begin before the delay line, where their taps are zeros.
    const Vlq64s before = d.reach() - d.windowWords();
    Vlq16s* const line = cursor.take<Vlq16s>(d.reach() + d.seamWords(), alignment);
    std::fill(line, line + before, Vlq16s{0});
    state.dlyLine = line + before;
    state.tapRows = cursor.take<Vlq16s>(2 * d.outputElements() * state.rowLen, alignment);

    if (const LaneShape shape = d.lanes(); shape.vectorBytes) {
        const auto bytes = static_cast<std::size_t>(shape.vectorBytes);
        const Vlq64s groups = laneGroups<count>(d.up, shape), vectors = 2 / count * groups;
        phases->starts = cursor.take<Vlq32s>(vectors * shape.units());
        phases->patterns = cursor.takeBytes<Vlq16s>(vectors * shape.vectorBytes, bytes);
        phases->taps = cursor.takeBytes<Vlq16s>(
            groups * pairsOfWindow<count>(d.delayLen()) * 2 * shape.vectorBytes, bytes);
    } else {
        phases->starts = cursor.take<Vlq32s>(d.up);
        phases->taps =
            cursor.take<Vlq16s>(count * d.up * phaseRowLength(d.windowWords()),
                                static_cast<std::size_t>(rowVectorBytes(d.windowWords())));
    }

    // What is left takes the streams, or of a single stream a copy of the line with what follows.
    const Vlq64s width = d.inputElements(), reached = d.reach() / (2 * width);
    char* const rest = cursor.take<char>(0, width > 1 ? streamAlignment : 1);
    const Vlq64s stride = streamStride(width, reached, end - rest);
    state.blockBuf = cursor.take<Vlq16s>(2 * width * stride);
    phases->streamStride = static_cast<Vlq32s>(stride);
}

}  // namespace vlq::fir::integer
