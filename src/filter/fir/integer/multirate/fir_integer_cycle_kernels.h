// The kernels of integer multi-rate filters. An output of a period is a plain filter of its own,
// and so are all outputs in the same place of their periods: the windows of such a row of outputs
// are one period's input apart.
//
// Samples go two values at a time, as in the single-rate kernels: an element is two neighbouring
// samples of a real filter or one of a complex one. A cycle is as many periods, one or two, as make
// its inputs and its outputs whole elements. The input is de-interleaved into streams, element c of
// every cycle into stream c, and then lanes are cycles: each load of a stream meets two taps of two
// filters, and their sums are one output element of as many cycles as there are lanes.
#pragma once

#include "filter/fir/integer/fir_integer_kernels.h"
#include "frame/simd/transpose.h"
#include "frame/state/state.h"

namespace vlq::fir::integer {

// The taps of one output element: `pairs` pairs of either row. They begin `start` elements into the
// input of a cycle, counted from `reach` values before it. The second row has zeros in its first
// `lead` pairs, the first row in its last `trail` ones.
struct RowPair {
    Vlq32s start, pairs;
    Vlq32s lead, trail;
};

// The table of row pairs follows this.
struct PhaseTable {
    Vlq32s streamStride;
    // For few periods: phase_rows.h, or phase_lanes.h where there are patterns.
    RelPtr<Vlq32s> starts;
    RelPtr<Vlq16s> taps;
    RelPtr<Vlq16s> patterns;

    RowPair* rowPairs() { return reinterpret_cast<RowPair*>(this + 1); }
    const RowPair* rowPairs() const { return reinterpret_cast<const RowPair*>(this + 1); }
};

struct Cycle {
    Vlq64s magnitude;  // of the taps of an output, at most
    const RowPair* rowPairs;
    const Vlq16s* rows;  // two for each output element
    std::ptrdiff_t rowLen;
    std::ptrdiff_t outputs, inputs;  // elements
    std::ptrdiff_t reach;            // 16-bit values, whole cycles
    Vlq16s* streams;
    std::ptrdiff_t streamStride;  // elements, more than are reached by a vector at least

    const Vlq16s* row(std::ptrdiff_t element, int which) const {
        return rows + (2 * element + which) * rowLen;
    }
    std::ptrdiff_t reachedCycles() const { return reach / (2 * inputs); }
};

// ---- streams ------------------------------------------------------------------------------------

inline void copyElement(const Vlq16s* src, Vlq16s* dst) {
    std::memcpy(dst, src, 2 * sizeof(Vlq16s));
}

// De-interleaves `count` cycles of `width` elements: element c of cycle q to dst[c * stride + q].
template <int B>
inline void takeAsunder(const Vlq16s* src, std::ptrdiff_t width, std::ptrdiff_t count, Vlq16s* dst,
                        std::ptrdiff_t stride) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq32s, B>::lanes, block = 4;
    // A narrow cycle is read on into the next ones: there must be as many.
    const std::ptrdiff_t readable = width >= block ? count : count - (block - 1) / width;
    std::ptrdiff_t q = 0;
    while (q < readable && readable >= lanes) {
        q = std::min(q, readable - lanes);
        for (std::ptrdiff_t c = 0;;) {
            Vec<Vlq32s, B> columns[block];
            for (int k = 0; k < block; ++k)
                columns[k] = bitCast<Vlq32s>(
                    loadBlocks<B>(src + 2 * ((q + k) * width + c), 2 * block * width));
            transposeBlocks(columns);
            for (int k = 0; k < block; ++k) {
                if (c + k < width)
                    store(dst + 2 * ((c + k) * stride + q), bitCast<Vlq16s>(columns[k]));
            }
            if (c + block >= width) break;
            c = std::min(c + block, width - block);
        }
        q += lanes;
    }
    if constexpr (B > 16) {
        if (q < count) takeAsunder<16>(src + 2 * q * width, width, count - q, dst + 2 * q, stride);
    } else {
        for (; q < count; ++q) {
            for (std::ptrdiff_t c = 0; c < width; ++c)
                copyElement(src + 2 * (q * width + c), dst + 2 * (c * stride + q));
        }
    }
}

// Where the pairs of an element come from: one stream after the other, then the next cycle.
struct StreamPlace {
    const Vlq16s* x;  // of the first stream
    std::ptrdiff_t stream;
};

// Adds the next `left` pairs of taps, of both rows or of one, to a tile.
template <bool hasFirst, bool hasSecond, int A, int B>
[[gnu::always_inline]] inline void addStreams(Vec<Vlq32s, B> (&first)[A],
                                              Vec<Vlq32s, B> (&second)[A], const Vlq16s*& firstRow,
                                              const Vlq16s*& secondRow, StreamPlace& place,
                                              std::ptrdiff_t inputs, std::ptrdiff_t stride,
                                              std::ptrdiff_t left) {
    constexpr int lanes = Vec<Vlq16s, B>::lanes;
    while (left > 0) {
        const std::ptrdiff_t run = std::min(left, inputs - place.stream);
        const Vlq16s* samples = place.x + 2 * place.stream * stride;
#pragma GCC unroll 1
        for (std::ptrdiff_t i = 0; i < run;
             ++i, samples += 2 * stride, firstRow += 2, secondRow += 2) {
            const auto firstTap = broadcastPair<B>(firstRow),
                       secondTap = broadcastPair<B>(secondRow);
#pragma GCC unroll 16
            for (int a = 0; a < A; ++a) {
                const auto v =
                    opaque(load<Vlq16s, B>(samples + a * lanes));  // held, not loaded twice
                if constexpr (hasFirst) first[a] = opaque(first[a] + pairSums(firstTap, v));
                if constexpr (hasSecond) second[a] = opaque(second[a] + pairSums(secondTap, v));
            }
        }
        left -= run;
        place.stream += run;
        if (place.stream == inputs) place = {place.x + 2, 0};
    }
}

// A vectors of cycles of one output element, from streams; x is the first of them at the cycle
// `reach` values before the one that is first in the result.
template <int A, int B, class F>
inline void streamTile(const RowPair& taps, const Vlq16s* firstRow, const Vlq16s* secondRow,
                       const Vlq16s* x, std::ptrdiff_t inputs, std::ptrdiff_t stride, Vlq16s* dst,
                       const F& finish) {
    constexpr int lanes = Vec<Vlq16s, B>::lanes;
    Vec<Vlq32s, B> first[A], second[A];
#pragma GCC unroll 16
    for (int a = 0; a < A; ++a) first[a] = second[a] = finish.template start<B>();
    StreamPlace place{x + 2 * (taps.start / inputs), taps.start % inputs};
    addStreams<true, false>(first, second, firstRow, secondRow, place, inputs, stride, taps.lead);
    addStreams<true, true>(first, second, firstRow, secondRow, place, inputs, stride,
                           taps.pairs - taps.lead - taps.trail);
    addStreams<false, true>(first, second, firstRow, secondRow, place, inputs, stride, taps.trail);
#pragma GCC unroll 16
    for (int a = 0; a < A; ++a)
        store(dst + a * lanes, interleaveSat(finish(first[a]), finish(second[a])));
}

// ---- outputs in their order ---------------------------------------------------------------------

// The results of up to this many output elements wait for each other.
inline constexpr std::ptrdiff_t kWaiting = 4;

template <int B>
inline Vec<Vlq32s, B> loadElements(const Vlq16s* p) {
    return bitCast<Vlq32s>(load<Vlq16s, B>(p));
}

// Puts `count` cycles, whole vectors, of the elements that wait into their places: dst is that of
// the first element of the first cycle, `width` elements a cycle, column k of it at columns[k].
template <int B>
inline void putFour(const Vlq16s* const (&columns)[kWaiting], std::ptrdiff_t count, Vlq16s* dst,
                    std::ptrdiff_t width) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq32s, B>::lanes;
    for (std::ptrdiff_t q = 0; q < count; q += lanes) {
        Vec<Vlq32s, B> m[kWaiting];
        for (int k = 0; k < kWaiting; ++k) m[k] = loadElements<B>(columns[k] + 2 * q);
        transposeBlocks(m);
        for (int k = 0; k < kWaiting; ++k)
            storeBlocks(dst + 2 * (q + k) * width, 2 * kWaiting * width, bitCast<Vlq16s>(m[k]));
    }
}

// The same for cycles of two elements, and of three: these in fours with the first of the next
// cycle.
template <int B>
inline void putTwo(const Vlq16s* first, const Vlq16s* second, std::ptrdiff_t count, Vlq16s* dst) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq32s, B>::lanes, block = 4;
    for (std::ptrdiff_t q = 0; q < count; q += lanes) {
        auto low = loadElements<B>(first + 2 * q), high = loadElements<B>(second + 2 * q);
        interleaveBlocks(low, high);
        storeBlocks(dst + 4 * q, 4 * block, bitCast<Vlq16s>(low));
        storeBlocks(dst + 4 * q + 2 * block, 4 * block, bitCast<Vlq16s>(high));
    }
}
template <int B>
inline void putThree(const Vlq16s* const (&columns)[kWaiting], std::ptrdiff_t count, Vlq16s* dst) {
    constexpr std::ptrdiff_t width = 3;
    const std::ptrdiff_t most = count - Vec<Vlq32s, B>::lanes;
    putFour<B>({columns[0], columns[1], columns[2], columns[0] + 2}, most, dst, width);
    for (std::ptrdiff_t q = most; q < count; ++q) {
        for (int k = 0; k < width; ++k) copyElement(columns[k] + 2 * q, dst + 2 * (q * width + k));
    }
}

// ---- many cycles --------------------------------------------------------------------------------

// Vectors of cycles in a tile, at most.
inline constexpr int kCycleVectors = kVecBytes == 64 ? 8 : 5;

// A vectors of cycles, all their outputs. x: of a single stream the input, `reach` values before
// the first cycle; else the place of that cycle in the first stream.
template <int A, int B, class F>
inline void cycleTile(const Cycle& cycle, const Vlq16s* x, Vlq16s* dst, const F& finish) {
    constexpr std::ptrdiff_t words = A * Vec<Vlq16s, B>::lanes, count = words / 2;
    const std::ptrdiff_t width = cycle.outputs;
    alignas(64) Vlq16s waiting[kWaiting][words];
    for (std::ptrdiff_t e = 0; e < width; ++e) {
        const RowPair& taps = cycle.rowPairs[e];
        const Vlq16s *first = cycle.row(e, 0), *second = cycle.row(e, 1);
        Vlq16s* column = width == 1 ? dst : waiting[e % kWaiting];
        if (cycle.inputs == 1) {
            tile<A, B>(first, second, 2 * std::ptrdiff_t{taps.pairs},
                       x + 2 * std::ptrdiff_t{taps.start}, column, finish);
        } else {
            streamTile<A, B>(taps, first, second, x, cycle.inputs, cycle.streamStride, column,
                             finish);
        }
        if (width >= kWaiting && (e % kWaiting == kWaiting - 1 || e == width - 1)) {
            // The last ones of a cycle go again with those before them.
            const Vlq16s* columns[kWaiting];
            for (int k = 0; k < kWaiting; ++k) columns[k] = waiting[(e + 1 + k) % kWaiting];
            putFour<B>(columns, count, dst + 2 * (e + 1 - kWaiting), width);
        }
    }
    if (width == 2) putTwo<B>(waiting[0], waiting[1], count, dst);
    if (width == 3) putThree<B>({waiting[0], waiting[1], waiting[2], nullptr}, count, dst);
}

template <int B, class F, int... Less>
inline void cycleTileOf(int vectors, const Cycle& cycle, const Vlq16s* x, Vlq16s* dst,
                        const F& finish, std::integer_sequence<int, Less...>) {
    ((vectors == Less + 1 ? cycleTile<Less + 1, B>(cycle, x, dst, finish) : void()), ...);
}

// `count` cycles, at least one vector of them.
template <int A, int B, class F>
inline void cycleTiles(const Cycle& cycle, const Vlq16s* x, Vlq16s* dst, std::ptrdiff_t count,
                       const F& finish) {
    eachTile(count, Vec<Vlq32s, B>::lanes, A, [&](int vectors, std::ptrdiff_t done) {
        cycleTileOf<B>(vectors, cycle, x + 2 * done, dst + 2 * done * cycle.outputs, finish,
                       std::make_integer_sequence<int, A>());
    });
}

// The same of more than one stream. The `reach` values before x, where the input of the first cycle
// begins, are at `past`.
template <int A, int B, class F>
inline void streamCycles(const Cycle& cycle, const Vlq16s* past, const Vlq16s* x, Vlq16s* dst,
                         std::ptrdiff_t count, const F& finish) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq32s, B>::lanes;
    const std::ptrdiff_t inputs = cycle.inputs, stride = cycle.streamStride,
                         reached = cycle.reachedCycles();
    const std::ptrdiff_t most = (stride - reached) / lanes * lanes;
    for (std::ptrdiff_t done = 0; done < count;) {
        const std::ptrdiff_t made = std::max(std::min(most, count - done), lanes);
        done = std::min(done, count - made);
        // Of the cycles before this piece some may come before x.
        const std::ptrdiff_t before = std::max<std::ptrdiff_t>(reached - done, 0);
        takeAsunder<B>(past + 2 * (reached - before) * inputs, inputs, before, cycle.streams,
                       stride);
        takeAsunder<B>(x + 2 * (done + before - reached) * inputs, inputs, made + reached - before,
                       cycle.streams + 2 * before, stride);
        cycleTiles<A, B>(cycle, cycle.streams, dst + 2 * done * cycle.outputs, made, finish);
        done += made;
    }
}

// Fewer are made one by one.
inline constexpr std::ptrdiff_t kFewestCycles = Vec<Vlq32s, 16>::lanes;

// Returns how many cycles of `whole` it makes: all, or none where they fill no vector. Of a single
// stream `past` ends where x begins.
template <class F>
inline std::ptrdiff_t manyCycles(const Cycle& cycle, const Vlq16s* past, const Vlq16s* x,
                                 Vlq16s* dst, std::ptrdiff_t whole, const F& finish) {
    if (whole < kFewestCycles) return 0;
    const bool wide = whole >= Vec<Vlq32s>::lanes;
    if (cycle.inputs == 1 && wide)
        cycleTiles<kCycleVectors, kVecBytes>(cycle, past, dst, whole, finish);
    else if (cycle.inputs == 1)
        cycleTiles<3, 16>(cycle, past, dst, whole, finish);
    else if (wide)
        streamCycles<kCycleVectors, kVecBytes>(cycle, past, x, dst, whole, finish);
    else
        streamCycles<3, 16>(cycle, past, x, dst, whole, finish);
    return whole;
}
inline std::ptrdiff_t manyCycles(const Cycle& cycle, const Vlq16s* past, const Vlq16s* x,
                                 Vlq16s* dst, std::ptrdiff_t whole, const Finish& finish) {
    if (!NearestFinish::serves(finish, cycle.magnitude))
        return manyCycles<Finish>(cycle, past, x, dst, whole, finish);
    return manyCycles(cycle, past, x, dst, whole, NearestFinish(finish));
}

}  // namespace vlq::fir::integer
