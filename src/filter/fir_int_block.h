// A block of samples through an integer FIR record.
#pragma once

#include <cstring>

#include "filter/fir_int_record.h"

namespace vlq::fir::integer {

// Outputs are scaled by 2^exponent; factors may be anything.
template <class State>
Finish finishOf(const State& state, Vlq32s scaleFactor) {
    return Finish(Vlq64s{state.tapsFactor} - scaleFactor);
}

// Only the outputs at the seam of two calls are made from the delay store; the others read src
// where it lies. len counts samples, everything else words.
template <class ListPart, int Parts>
void block(Record<ListPart, Parts>& record, const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Finish& finish) {
    const TapRows<Parts> taps = rowsOf(record);
    const std::ptrdiff_t past = std::ptrdiff_t{record.tapsLen} * Parts;
    const std::ptrdiff_t words = std::ptrdiff_t{len} * Parts;
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

// In place: through the staging area.
template <class ListPart, int Parts>
void blockInPlace(Record<ListPart, Parts>& record, Vlq16s* srcDst, Vlq32s len, const Finish& finish) {
    Vlq16s* staging = record.blockBuf;
    while (len > 0) {
        const Vlq32s piece = std::min(len, kBlock);
        block(record, srcDst, staging, piece, finish);
        moveWords(staging, srcDst, std::ptrdiff_t{piece} * Parts);
        srcDst += std::ptrdiff_t{piece} * Parts;
        len -= piece;
    }
}

}  // namespace vlq::fir::integer
