// A block of samples through an integer FIR record.
#pragma once

#include <cstring>

#include "filter/fir/integer/integer_state.h"

namespace vlq::fir::integer {

// Outputs are scaled by 2^exponent; factors may be anything.
template <class State>
Finish finishOf(const State& state, Vlq32s scaleFactor) {
    return Finish(Vlq64s{state.tapsFactor} - scaleFactor);
}

// len samples by way of the staging area, which must hold them and the line before them. dst may be
// src. len counts samples, everything else words.
template <class ListPart, int Parts>
void blockStaged(Record<ListPart, Parts>& record, const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                 const Finish& finish) {
    const std::ptrdiff_t past = std::ptrdiff_t{record.tapsLen} * Parts,
                         words = std::ptrdiff_t{len} * Parts;
    Vlq16s *line = record.dlyLine, *staging = record.blockBuf;
    moveWords(line + std::ptrdiff_t{record.dlyIndex} * Parts, staging, past);
    moveWords(src, staging + past, words);
    moveWords(staging + words, line, past);
    record.dlyIndex = 0;
    filterWords(rowsOf(record), staging + Parts, dst, words, finish);
}

// Only the outputs at the seam of two calls are made from a copy of the samples, in the delay store
// or in the staging area; the others read src where it lies.
template <class ListPart, int Parts>
void block(Record<ListPart, Parts>& record, const Vlq16s* src, Vlq16s* dst, Vlq32s len,
           const Finish& finish) {
    const TapRows<Parts> taps = rowsOf(record);
    const std::ptrdiff_t past = std::ptrdiff_t{record.tapsLen} * Parts;
    const std::ptrdiff_t words = std::ptrdiff_t{len} * Parts;
    const std::ptrdiff_t room = std::ptrdiff_t{kBlock} * Parts - past;
    if (words > record.firstChunk && words <= room)
        return blockStaged(record, src, dst, len, finish);

    Vlq16s* line = record.dlyLine;
    Vlq16s* window = line + std::ptrdiff_t{record.dlyIndex} * Parts;
    record.dlyIndex = 0;
    const std::ptrdiff_t seam = std::min<std::ptrdiff_t>(record.firstChunk, words);
    moveWords(src, window + past, seam);
    filterWords(taps, window + Parts, dst, seam, finish);
    if (seam == words) return moveWords(window + words, line, past);
    moveWords(src + words - past, line, past);
    filterWords(taps, src + seam - past + Parts, dst + seam, words - seam, finish);
}

// In place, in pieces: results go back from the staging area, or with filters that leave it room
// for half of it samples go there.
template <class ListPart, int Parts>
void blockInPlace(Record<ListPart, Parts>& record, Vlq16s* srcDst, Vlq32s len,
                  const Finish& finish) {
    const bool staged = record.tapsLen <= kBlock / 2;
    const Vlq32s longest = staged ? kBlock - record.tapsLen : kBlock;
    while (len > 0) {
        const Vlq32s piece = std::min(len, longest);
        if (staged) {
            blockStaged(record, srcDst, srcDst, piece, finish);
        } else {
            Vlq16s* staging = record.blockBuf;
            block(record, srcDst, staging, piece, finish);
            moveWords(staging, srcDst, std::ptrdiff_t{piece} * Parts);
        }
        srcDst += std::ptrdiff_t{piece} * Parts;
        len -= piece;
    }
}

}  // namespace vlq::fir::integer
