// A block of samples through a single-rate integer FIR state.
#pragma once

#include <algorithm>

#include "filter/fir/integer/integer_state.h"

namespace vlq::fir::integer {

// len samples by way of the staging area, which must hold them and the line before them. dst may be
// src. len counts samples, everything else 16-bit values.
template <class State>
void blockStaged(State& state, const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Finish& finish) {
    constexpr int count = kParts<typename State::Sample>;
    const std::ptrdiff_t past = std::ptrdiff_t{state.tapsLen} * count,
                         words = std::ptrdiff_t{len} * count;
    Vlq16s *line = state.dlyLine, *staging = state.blockBuf;
    moveWords(line + std::ptrdiff_t{state.dlyIndex} * count, staging, past);
    moveWords(src, staging + past, words);
    moveWords(staging + words, line, past);
    state.dlyIndex = 0;
    filterWords(rowsOf(state), staging + count, dst, words, finish);
}

// Up to so many 16-bit values a copy is cheaper than two runs of the kernel.
inline constexpr std::ptrdiff_t kStagedWords = 1024;

// The outputs at the seam of two calls are made from a copy of the samples; the others read src
// where it is, and first: loads of what has just been stored in parts wait for the cache.
template <class State>
void block(State& state, const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Finish& finish) {
    constexpr int count = kParts<typename State::Sample>;
    constexpr std::ptrdiff_t lanes = Vec<Vlq16s>::lanes;
    const TapRows<count> taps = rowsOf(state);
    const std::ptrdiff_t past = std::ptrdiff_t{state.tapsLen} * count,
                         words = std::ptrdiff_t{len} * count,
                         room = std::ptrdiff_t{kStaging} * count - past;
    std::ptrdiff_t seam = (past - count + lanes - 1) / lanes * lanes;
    const bool isShort = words <= state.firstChunk;
    if (!isShort && words < std::max(2 * seam, kStagedWords) && words <= room)
        return blockStaged(state, src, dst, len, finish);

    Vlq16s* const line = state.dlyLine;
    Vlq16s* window = line + std::ptrdiff_t{state.dlyIndex} * count;
    state.dlyIndex = 0;
    if (isShort) {
        moveWords(src, window + past, words);
        filterWords(taps, window + count, dst, words, finish);
        return moveWords(window + words, line, past);
    }
    if (seam <= room && seam <= words) {
        moveWords(window, state.blockBuf, past);
        window = state.blockBuf;
    } else {
        seam = state.firstChunk;  // what the delay store has room for
    }
    moveWords(src, window + past, seam);
    filterWords(taps, src + seam - past + count, dst + seam, words - seam, finish);
    if (seam > 0) filterWords(taps, window + count, dst, seam, finish);
    moveWords(src + words - past, line, past);
}

// In place, in pieces: results go back from the staging area, or with filters that leave it room
// for half of it samples go there.
template <class State>
void blockInPlace(State& state, Vlq16s* srcDst, Vlq32s len, const Finish& finish) {
    const bool staged = state.tapsLen <= kStaging / 2;
    const Vlq32s longest = staged ? kStaging - state.tapsLen : kStaging;
    while (len > 0) {
        const Vlq32s piece = std::min(len, longest);
        const std::ptrdiff_t words = std::ptrdiff_t{piece} * kParts<typename State::Sample>;
        if (staged) {
            blockStaged(state, srcDst, srcDst, piece, finish);
        } else {
            Vlq16s* staging = state.blockBuf;
            block(state, srcDst, staging, piece, finish);
            moveWords(staging, srcDst, words);
        }
        srcDst += words;
        len -= piece;
    }
}

}  // namespace vlq::fir::integer
