// A block of samples through a floating FIR record: directly, or by overlap-save.
#pragma once

#include <algorithm>
#include <type_traits>

#include "filter/common/sample_conversion.h"
#include "filter/fir/fir_state.h"
#include "frame/team.h"

namespace vlq::fir {

// Threads that a call of `len` samples may use; 1 leaves the runtime for threads alone.
template <class E>
inline Vlq32s threadsFor(Vlq32s len) {
    return len > Shape<E>::kThreadedAbove ? ownGetNumThreads() : 1;
}

// Samples in the record's own type. Only the outputs at the seam of two calls are made from the
// delay store; the others read src where it lies.
template <class E>
void directBlock(Record<E>& record, const E* src, E* dst, Vlq32s len) {
    const Vlq32s tapsLen = record.tapsLen;
    const E* tapsWide = record.tapsWide;
    E* line = record.dlyLine;
    E* window = line + record.dlyIndex;
    record.dlyIndex = 0;
    if (len <= record.firstChunk) {
        widen(src, window + tapsLen, len);
        direct(tapsWide, window + 1, dst, len, tapsLen);
        shift(window + len, line, tapsLen);
        return;
    }
    const Vlq32s seam = Shape<E>::seamOutputs(tapsLen);
    widen(src, window + tapsLen, record.firstChunk);
    direct(tapsWide, window + 1, dst, seam, tapsLen);
    widen(src + (len - tapsLen), line, tapsLen);

    const E* x = src + (seam - tapsLen + 1);
    dst += seam;
    const Vlq32s threads = threadsFor<E>(len);
    if (threads > 1) {
        shareEvenly(threads, len - seam, [=](Vlq32s first, Vlq32s count) {
            direct(tapsWide, x + first, dst + first, count, tapsLen);
        });
    } else {
        direct(tapsWide, x, dst, len - seam, tapsLen);
    }
}

// Samples of another type, in equal shares for a team, each thread with buffers of its own. dst may
// be src, so the samples before each share come first into the staging area, before they are
// written over. Short filters alone: the past of every share must find room there.
inline constexpr Vlq32s kSharedPast = 63;

template <class E, class Sample, class Scale>
void directShares(Record<E>& record, Vlq32s shares, const Sample* src, Sample* dst, Vlq32s len,
                  Scale scale) {
    const Vlq32s tapsLen = record.tapsLen, past = tapsLen - 1;
    const Vlq32s share = len / shares;
    const E* tapsWide = record.tapsWide;
    E* line = record.dlyLine;
    E* pasts = record.blockBuf;
    if (past > 0) {
        shift(line + record.dlyIndex + 1, pasts, past);
        for (Vlq32s i = 1; i < shares; ++i) widen(src + (i * share - past), pasts + i * past, past);
    }
    record.dlyIndex = 0;
    widen(src + (len - tapsLen), line, tapsLen);

    shareEvenly(shares, shares, [=](Vlq32s first, Vlq32s count) {
        constexpr Vlq32s piece = 512;
        E window[kSharedPast + piece], filtered[piece];
        for (Vlq32s i = first; i < first + count; ++i) {
            const Vlq32s end = i == shares - 1 ? len : (i + 1) * share;
            std::copy_n(pasts + i * past, past, window);
            for (Vlq32s at = i * share; at < end; at += piece) {
                const Vlq32s outputs = std::min(piece, end - at);
                widen(src + at, window + past, outputs);
                direct<E>(tapsWide, window, filtered, outputs, tapsLen);
                narrow(filtered, dst + at, outputs, scale);
                std::copy_n(window + outputs, past, window);
            }
        }
    });
}

// Samples of another type, in pieces that half the staging area holds widened and the other half
// filtered. dst may be src.
template <class E, class Sample, class Scale>
void directPieces(Record<E>& record, const Sample* src, Sample* dst, Vlq32s len, Scale scale) {
    const Vlq32s threads = threadsFor<E>(len);
    const bool isShort =
        record.tapsLen <= kSharedPast + 1 && threads <= Shape<E>::kBlockBuf / (kSharedPast + 1);
    if (threads > 1 && isShort && len / threads >= record.tapsLen)
        return directShares(record, threads, src, dst, len, scale);
    constexpr Vlq32s half = Shape<E>::kBlockBuf / 2;
    E* widened = record.blockBuf;
    E* filtered = widened + half;
    for (Vlq32s done = 0; done < len; done += half) {
        const Vlq32s piece = std::min(half, len - done);
        widen(src + done, widened, piece);
        directBlock(record, widened, filtered, piece);
        narrow(filtered, dst + done, piece, scale);
    }
}

// Overlap-save: block i makes the outputs from i * step on, step = fftLen - (tapsLen - 1), out of
// fftLen samples that begin tapsLen - 1 before them. The first block takes those from the delay
// line; all others read src alone, so any thread may run them.
template <class E, class Sample, class Scale>
VlqStatus overlapSave(Record<E>& record, const Sample* src, Sample* dst, Vlq32s len, Scale scale) {
    const Vlq32s fftLen = record.fftLen;
    const Vlq32s tapsLen = record.tapsLen;
    const Vlq32s past = tapsLen - 1;
    const Vlq32s step = fftLen - past;
    E* line = record.dlyLine;

    auto block = [&](Vlq64s index, Vlq32s thread) -> VlqStatus {
        const auto start = static_cast<Vlq32s>(index * step);
        const Vlq32s outputs = std::min(step, len - start);
        E* work = record.fftWork + static_cast<std::ptrdiff_t>(thread) * fftLen;
        Vlq8u* buffer = record.fftBuf + static_cast<std::ptrdiff_t>(thread) * record.fftBufSize;
        const E* samples = work;
        if (start == 0) {
            if (past > 0) shift(line + record.dlyIndex + 1, work, past);
            widen(src, work + past, outputs);
            // A single block leaves its own end as the delay line, now, while it has the samples.
            if (outputs == len) shift(work + len - 1, line, tapsLen);
            record.dlyIndex = 0;
        } else if (outputs < step) {
            widen(src + (start - past), work, past + outputs);
        } else if constexpr (std::is_same_v<Sample, E>) {
            samples = src + (start - past);
        } else {
            widen(src + (start - past), work, fftLen);
        }
        if (outputs < step) std::fill(work + past + outputs, work + fftLen, E{});

        const VlqStatus status =
            fft::applyFilter(samples, work, record.tapsSpectrum.get(), record.fftSpec, buffer);
        if (status != vlqStsOk) return status;
        narrow(work + past, dst + start, outputs, scale);
        if (start == 0 && outputs < len) widen(src + (len - tapsLen), line, tapsLen);
        return vlqStsOk;
    };

    const Vlq32s threads = threadsFor<E>(len);
    if (threads > 1) return shareBlocks(threads, len, step, record.threadStatus, block);
    for (Vlq64s index = 0; index * step < len; ++index) {
        const VlqStatus status = block(index, 0);
        if (status != vlqStsOk) return status;
    }
    return vlqStsOk;
}

template <class E, class Sample, class Scale>
VlqStatus filterBlock(Record<E>& record, bool transform, const Sample* src, Sample* dst, Vlq32s len,
                      Scale scale) {
    if (transform) return overlapSave(record, src, dst, len, scale);
    if constexpr (std::is_same_v<Sample, E>)
        directBlock(record, src, dst, len);
    else
        directPieces(record, src, dst, len, scale);
    return vlqStsOk;
}

// ---- what the exports do ------------------------------------------------------------------------

template <class State, class Scale>
VlqStatus filter(const SampleOf<State>* src, SampleOf<State>* dst, Vlq32s len, State* state,
                 Scale scale) {
    if (!src || !dst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isSingleRate(*state)) return vlqStsBadSpec;
    using E = typename State::Element;
    const bool transform = len >= Shape<E>::kTransformLen && state->fftLen > 0;
    return filterBlock(*state, transform, src, dst, len, scale);
}

// In place, samples in the record's own type: blocks go through the staging area. The samples that
// are left after a block, not the block itself, decide its path.
template <class State>
VlqStatus filterInPlace(SampleOf<State>* srcDst, Vlq32s len, State* state) {
    if (!srcDst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isSingleRate(*state)) return vlqStsBadSpec;
    using E = typename State::Element;
    E* staging = state->blockBuf;
    while (len > 0) {
        const Vlq32s block = std::min(len, Shape<E>::kBlockBuf);
        len -= block;
        const bool transform = len >= Shape<E>::kTransformLen && state->fftLen > 0;
        const VlqStatus status = filterBlock(*state, transform, srcDst, staging, block, Unscaled{});
        if (status != vlqStsOk) return status;
        widen(staging, srcDst, block);
        srcDst += block;
    }
    return vlqStsOk;
}

// In place, samples of a narrower type. The pieces of the direct path are widened before they are
// written over; the transform path reads behind what it has written, so its results wait in the
// staging area, which holds at least twice its count of such samples.
template <class State, class Scale>
VlqStatus filterNarrowInPlace(SampleOf<State>* srcDst, Vlq32s len, State* state, Scale scale) {
    if (!srcDst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isSingleRate(*state)) return vlqStsBadSpec;
    using E = typename State::Element;
    if (len < Shape<E>::kTransformLen || state->fftLen < 0) {
        directPieces(*state, srcDst, srcDst, len, scale);
        return vlqStsOk;
    }
    auto* staging = reinterpret_cast<SampleOf<State>*>(state->blockBuf.get());
    while (len > 0) {
        const Vlq32s block = std::min(len, 2 * Shape<E>::kBlockBuf);
        const VlqStatus status = overlapSave(*state, srcDst, staging, block, scale);
        if (status != vlqStsOk) return status;
        copySamples(staging, srcDst, block);
        srcDst += block;
        len -= block;
    }
    return vlqStsOk;
}

}  // namespace vlq::fir
