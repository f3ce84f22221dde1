// The record of an integer multi-rate filter: the numbers that follow from its factors, its layout
// and its tap rows.
#pragma once

#include "filter/fir/integer/integer_state.h"
#include "filter/fir/multirate/integer_multirate_kernels.h"

namespace vlq::fir::integer {

struct Rates {
    Vlq32s upFactor, upPhase, downFactor, downPhase;
};

// Everything that follows from the number of taps and the factors.
struct Derived {
    Vlq64s tapsLen, up, down;

    // Taps of the longest phase: the samples that an output sees.
    constexpr Vlq64s dlyLen() const { return (tapsLen + up - 1) / up; }
    // Taps and the steps of four outputs, as whole periods of the phases.
    constexpr Vlq64s padded() const { return (tapsLen + 3 * down + up - 1) / up * up; }
    // Whole groups of four periods of input, more than a window.
    constexpr Vlq64s seam() const { return 4 * down * (dlyLen() / (4 * down) + 1); }

    // The first chunk and its outputs, those a multiple of four periods.
    constexpr Vlq64s chunkPeriods() const { return (down + dlyLen() - 1 + down - 1) / down; }
    constexpr Vlq64s addedPeriods() const { return (4 - chunkPeriods() % 4) % 4; }
    constexpr Vlq64s firstChunk() const { return seam() + 1 + addedPeriods() * down; }
    constexpr Vlq64s tapsStride() const { return up * (chunkPeriods() + addedPeriods()); }

    // Periods of a cycle: a real filter's samples go in pairs.
    constexpr Vlq64s cycle(int parts) const {
        return parts == 1 && (up % 2 != 0 || down % 2 != 0) ? 2 : 1;
    }
    constexpr Vlq64s inputElements(int parts) const { return cycle(parts) * down * parts / 2; }
    constexpr Vlq64s outputElements(int parts) const { return cycle(parts) * up * parts / 2; }
    // Words of a window, made up to whole cycles.
    constexpr Vlq64s reach(int parts) const {
        const Vlq64s unit = 2 * inputElements(parts);
        return (dlyLen() * parts + unit - 1) / unit * unit;
    }
};

// Where an output of a cycle stands: its phase, and the samples that it has seen of the cycle.
struct Place {
    Vlq64s phase, seen;
};
template <class State>
Place placeOf(const State& state, Vlq64s output) {
    const Vlq64s up = state.upFactor;
    const Vlq64s step =
        state.downPhase - Vlq64s{state.upPhase} + output * state.downFactor + up;  // at least 1
    return {step % up, step / up};
}

template <class State>
Derived derivedOf(const State& state) {
    return {state.tapsLen, state.upFactor, state.downFactor};
}

// ---- sizes --------------------------------------------------------------------------------------

inline constexpr Vlq64s kRecordAlignment = 16;
inline constexpr Vlq64s kStreamAlignment = 64;

// What the rows, the delay line and the streams share.
template <int Parts>
constexpr Vlq64s tablesBytes(const Derived& d) {
    const Vlq64s taps = std::max(d.padded(), d.up * roundUp(d.dlyLen(), 4));
    return Parts * (32 * taps + roundUp(8 * taps, kRecordAlignment)) +
           roundUp(2 * Parts * (d.dlyLen() + d.seam()) + 4, kRecordAlignment);
}
template <class State>
constexpr Vlq64s multiRateBytes(const Derived& d) {
    constexpr Vlq64s tapBytes = State::kParts * static_cast<Vlq64s>(sizeof(typename State::Part));
    return roundUp(tapBytes * d.tapsLen, kRecordAlignment) +
           roundUp(16 * d.up + 4, kRecordAlignment) + tablesBytes<State::kParts>(d) +
           Vlq64s{sizeof(State)} + kRecordAlignment;
}
template <class State>
constexpr bool fitsMultiRate(const Derived& d) {
    return fitsRecord(multiRateBytes<State>(d));
}

// ---- rows ---------------------------------------------------------------------------------------

// Words of a cycle's input, from `reach` before it, to where the window of an output begins.
template <class State>
Vlq64s windowStart(const State& state, const Derived& d, Vlq64s output) {
    return d.reach(State::kParts) + State::kParts * (placeOf(state, output).seen - d.dlyLen());
}

// Fills the table of row pairs; answers the words of the longest row.
template <class State>
Vlq64s writeRowPairs(const State& state, const Derived& d, RowPair* rowPairs) {
    constexpr int parts = State::kParts;
    Vlq64s longest = 0;
    for (Vlq64s e = 0; e < d.outputElements(parts); ++e) {
        // Both outputs of a real element have seen their windows; a complex element is one output.
        const Vlq64s first = 2 / parts * e, last = first + 2 / parts - 1;
        const Vlq64s starts[] = {windowStart(state, d, first), windowStart(state, d, last)},
                     len = d.dlyLen() * parts;
        const Vlq64s start = roundDown(starts[0], 2), end = roundUp(starts[1] + len, 2);
        const Vlq64s lead = roundDown(starts[1], 2) - start,
                     trail = std::min(end - roundUp(starts[0] + len, 2), end - start - lead);
        rowPairs[e] = {static_cast<Vlq32s>(start / 2), static_cast<Vlq32s>((end - start) / 2),
                       static_cast<Vlq32s>(lead / 2), static_cast<Vlq32s>(trail / 2)};
        longest = std::max(longest, end - start);
    }
    return longest;
}

// The taps of one phase, reversed, in a row whose window begins at `row`. Of complex taps the row
// for the imaginary part too.
template <class ListPart, int Parts>
void writePhase(const Record<ListPart, Parts>& record, Vlq64s phase, Vlq16s* row, Vlq16s* other) {
    const ListPart* list = record.taps;
    const Vlq64s last = record.tapsLen - Vlq64s{1}, up = record.upFactor;
    for (Vlq64s i = record.dlyLen - Vlq64s{1}, k = phase; k <= last; --i, k += up) {
        if constexpr (Parts == 1)
            row[i] = saturated(list[last - k]);
        else
            writeComplexTap(list + 2 * (last - k), row + 2 * i, other + 2 * i);
    }
}

template <class ListPart, int Parts>
void writePhaseRows(Record<ListPart, Parts>& record) {
    const Derived d = derivedOf(record);
    const PhaseTable& phases = *record.phases;
    const Vlq64s rowLen = record.rowLen, count = d.outputElements(Parts);
    Vlq16s* row = record.tapRows;
    record.magnitude = 0;
    std::fill(row, row + 2 * count * rowLen, Vlq16s{0});
    for (Vlq64s e = 0; e < count; ++e, row += 2 * rowLen) {
        if constexpr (Parts == 2) {
            writePhase(record, placeOf(record, e).phase, row, row + rowLen);
        } else {
            for (int i = 0; i < 2; ++i) {
                const Vlq64s output = 2 * e + i;
                const Vlq64s before =
                    windowStart(record, d, output) - 2 * Vlq64s{phases.rowPairs()[e].start};
                writePhase<ListPart, Parts>(record, placeOf(record, output).phase,
                                            row + i * rowLen + before, nullptr);
            }
        }
        record.magnitude = std::max(
            {record.magnitude, magnitudeOf(row, rowLen), magnitudeOf(row + rowLen, rowLen)});
    }
}

// ---- the record ---------------------------------------------------------------------------------

// Cycles in each of `width` streams, of which `reached` come before the first to be made. Always
// enough for the widest vector; more than fill a part of the first cache bring nothing.
inline Vlq64s streamStride(Vlq64s width, Vlq64s reached, Vlq64s bytes) {
    constexpr Vlq64s elementBytes = 4, enough = 16384 / elementBytes, lanes = 16;
    const Vlq64s useful = roundUp(std::max({enough / width, reached, 4 * lanes}) + reached, lanes);
    const Vlq64s room = bytes / (elementBytes * width), rounded = roundDown(room, lanes);
    return std::min(useful, rounded >= lanes + reached ? rounded : room);
}

template <class State>
State* layOutMultiRate(void* memory, Vlq32s tapsLen, const Rates& rates) {
    constexpr int parts = State::kParts;
    const Derived d{tapsLen, rates.upFactor, rates.downFactor};
    char* const end = alignUp(static_cast<char*>(memory), kRecordAlignment) +
                      multiRateBytes<State>(d) - kRecordAlignment;
    Cursor cursor(memory, multiRateBytes<State>(d));
    auto* state = ::new (static_cast<void*>(cursor.take<State>(1, kRecordAlignment))) State{};
    state->idCtx = Kind<State>::kMultiRateWord;
    state->tapsLen = tapsLen;
    state->upFactor = rates.upFactor;
    state->upPhase = rates.upPhase;
    state->downFactor = rates.downFactor;
    state->downPhase = rates.downPhase;
    state->dlyLen = static_cast<Vlq32s>(d.dlyLen());
    state->mrSamples = static_cast<Vlq32s>(d.padded() / d.up);
    state->firstChunk = static_cast<Vlq32s>(d.firstChunk());
    state->tapsStride = static_cast<Vlq32s>(d.tapsStride());

    state->taps = cursor.take<typename State::Part>(Vlq64s{tapsLen} * parts);
    state->phases = cursor.take<PhaseTable>(1, kRecordAlignment);
    cursor.take<RowPair>(d.outputElements(parts));
    state->rowLen = static_cast<Vlq32s>(writeRowPairs(*state, d, state->phases->rowPairs()));
    // Windows may begin before the delay line, where their taps are zeros.
    const Vlq64s before = d.reach(parts) - d.dlyLen() * parts;
    Vlq16s* line = cursor.take<Vlq16s>(d.reach(parts) + d.seam() * parts, kRecordAlignment);
    std::fill(line, line + before, Vlq16s{0});
    state->dlyLine = line + before;
    state->tapRows =
        cursor.take<Vlq16s>(2 * d.outputElements(parts) * state->rowLen, kRecordAlignment);

    // What is left takes the streams, or of a single stream a copy of the line with what follows.
    const Vlq64s width = d.inputElements(parts), reached = d.reach(parts) / (2 * width);
    char* const rest = cursor.take<char>(0, width > 1 ? kStreamAlignment : 1);
    const Vlq64s stride = streamStride(width, reached, end - rest);
    state->blockBuf = cursor.take<Vlq16s>(2 * width * stride);
    state->phases->streamStride = static_cast<Vlq32s>(stride);
    return state;
}

template <class State>
Cycle cycleOf(const State& state) {
    const Derived d = derivedOf(state);
    constexpr int parts = State::kParts;
    return {state.magnitude, state.phases->rowPairs(), state.tapRows,
            state.rowLen,    d.outputElements(parts),  d.inputElements(parts),
            d.reach(parts),  state.blockBuf,           state.phases->streamStride};
}

// ---- filtering ----------------------------------------------------------------------------------

// Whole periods that begin at x; the `reach` words before them lie at `past`, and before x unless
// streams are made of many cycles.
template <class ListPart, int Parts>
void filterPeriods(const Record<ListPart, Parts>& record, const Vlq16s* past, const Vlq16s* x,
                   Vlq16s* dst, std::ptrdiff_t count, const Finish& finish) {
    const Cycle cycle = cycleOf(record);
    const std::ptrdiff_t inputWords = std::ptrdiff_t{record.downFactor} * Parts,
                         outputWords = std::ptrdiff_t{record.upFactor} * Parts;
    const std::ptrdiff_t periods = 2 * cycle.inputs / inputWords;  // of a cycle
    std::ptrdiff_t done = periods * manyCycles(cycle, past, x, dst, count / periods, finish);
    for (; done < count; ++done)
        onePeriod<Parts>(cycle, x + done * inputWords, inputWords, dst + done * outputWords,
                         outputWords, finish);
}

// numIters periods. The first ones see the delay line, and need it before their samples: in its own
// store for few of them, in the copy for a single stream. Streams take it asunder where it lies.
template <class ListPart, int Parts>
void multiRateBlock(Record<ListPart, Parts>& record, const Vlq16s* src, Vlq16s* dst,
                    Vlq32s numIters, const Finish& finish) {
    const Derived d = derivedOf(record);
    const std::ptrdiff_t inputWords = std::ptrdiff_t{record.downFactor} * Parts,
                         outputWords = std::ptrdiff_t{record.upFactor} * Parts;
    const std::ptrdiff_t past = std::ptrdiff_t{record.dlyLen} * Parts, reach = d.reach(Parts),
                         words = numIters * inputWords;
    Vlq16s* const line = record.dlyLine;
    const Vlq16s* const before = line + past - reach;
    if (d.inputElements(Parts) > 1 && numIters / d.cycle(Parts) >= kFewestCycles &&
        words > d.seam() * Parts) {
        filterPeriods(record, before, src, dst, numIters, finish);
        return moveWords(src + words - past, line, past);
    }
    Vlq16s* samples = line + past;
    std::ptrdiff_t room = d.seam() / record.downFactor;  // periods
    if (numIters > room && d.inputElements(Parts) == 1) {
        Vlq16s* const copy = record.blockBuf;
        moveWords(before, copy, reach);
        samples = copy + reach;
        room = (2 * std::ptrdiff_t{record.phases->streamStride} - reach) / (2 * inputWords) * 2;
    }
    const std::ptrdiff_t first = std::min<std::ptrdiff_t>(numIters, room),
                         firstWords = first * inputWords;
    moveWords(src, samples, firstWords);
    filterPeriods(record, samples - reach, samples, dst, first, finish);
    if (first < numIters) {
        const Vlq16s* const others = src + firstWords;
        filterPeriods(record, others - reach, others, dst + first * outputWords, numIters - first,
                      finish);
    }
    if (words < past)
        moveWords(samples + words - past, line, past);
    else
        moveWords(src + words - past, line, past);
}

}  // namespace vlq::fir::integer
