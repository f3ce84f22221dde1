// Blocks of periods through a floating multi-rate FIR state.
#pragma once

#include <algorithm>
#include <type_traits>

#include "filter/common/sample_conversion.h"
#include "filter/common/work.h"
#include "filter/fir/multirate/multirate_state.h"
#include "filter/fir/multirate/polyphase_segments.h"
#include "frame/team.h"
#include "vlqs/core.h"

namespace vlq::fir {

// The outputs of `periods` periods from the one that begins with sample x[0] on. Reads x[-line ..
// periods * down - 1]. dst does not overlap x.
template <class E>
inline void polyphase(const Polyphase<E>& f, const E* x, E* dst, int periods) {
    // Windows that do not overlap share nothing.
    const bool sharing = static_cast<Vlq64s>(f.line) * f.up > f.down;
    if (sharing && fitsSegments(f, periods))
        segmentOutputs(f, x, dst, periods);
    else if (f.groups)
        groupedOutputs(f, x, dst, periods);
    else
        windowOutputs(f, x, dst, periods);
}

template <class E>
inline Polyphase<E> polyphaseOf(const FirState<E>& state) {
    const E* rows = state.tapsWide;
    const E* groups =
        hasGroups<E>(state.upFactor) ? rows + Vlq64s{state.upFactor} * state.dlyLen : nullptr;
    return {state.phases, rows, groups, state.upFactor, state.downFactor, state.dlyLen};
}

template <class E>
inline Vlq32s multiRateTeam(const FirState<E>& state, Vlq32s periods) {
    if (periods <= Traits<E>::kThreadedAbove) return 1;
    const double outputs = static_cast<double>(periods) * state.upFactor;
    return teamSize(std::min(state.threads, ownGetNumThreads()),
                    timeDomainNanoseconds<E>(outputs, state.dlyLen));
}

// Samples of the element's type. The outputs whose windows reach back before src are made from the
// delay store; the others read src itself.
template <class E>
void multiRateBlock(FirState<E>& state, const E* src, E* dst, Vlq32s periods) {
    const Polyphase<E> f = polyphaseOf(state);
    const Vlq64s samples = Vlq64s{periods} * f.down;
    E* line = state.dlyLine;
    E* behind = line + f.line;
    if (samples <= state.firstChunk) {
        const auto count = static_cast<Vlq32s>(samples);
        widen(src, behind, count);
        polyphase(f, behind, dst, periods);
        moveElements(line + count, line, f.line);
        return;
    }
    // As many periods as it takes until windows are within src.
    const Vlq32s seam = (f.line + f.down - 1) / f.down;
    widen(src, behind, seam * f.down);
    polyphase(f, behind, dst, seam);
    widen(src + (samples - f.line), line, f.line);

    src += seam * f.down;
    dst += static_cast<std::ptrdiff_t>(seam) * f.up;
    const Vlq32s threads = multiRateTeam(state, periods);
    if (threads > 1) {
        shareEvenly(threads, periods - seam, [&](Vlq32s first, Vlq32s count) {
            polyphase(f, src + static_cast<std::ptrdiff_t>(first) * f.down,
                      dst + static_cast<std::ptrdiff_t>(first) * f.up, count);
        });
    } else {
        polyphase(f, src, dst, periods - seam);
    }
}

// Samples of another type, in pieces that are widened behind the delay line, and filtered, in the
// staging area. dst may be src where there are no more outputs than samples.
template <class E, class Sample, class Scale>
void multiRatePieces(FirState<E>& state, const Sample* src, Sample* dst, Vlq32s periods,
                     Scale scale) {
    const Polyphase<E> f = polyphaseOf(state);
    const MultiRatePlan<E> plan(state.tapsLen, f.up, f.down);
    const auto most =
        static_cast<Vlq32s>((plan.stagingLength() - f.line) / (Vlq64s{f.down} + f.up));
    E* line = state.blockBuf;
    E* delay = state.dlyLine;
    moveElements(delay, line, f.line);
    while (periods > 0) {
        const Vlq32s piece = std::min(most, periods);
        const Vlq32s samples = piece * f.down, outputs = piece * f.up;
        E* widened = line + f.line;
        E* filtered = widened + samples;
        widen(src, widened, samples);
        polyphase(f, widened, filtered, piece);
        narrow(filtered, dst, outputs, scale);
        moveElements(line + samples, line, f.line);
        src += samples;
        dst += outputs;
        periods -= piece;
    }
    moveElements(line, delay, f.line);
}

template <class E, class Sample, class Scale>
void multiRateFilter(FirState<E>& state, const Sample* src, Sample* dst, Vlq32s periods,
                     Scale scale) {
    if constexpr (std::is_same_v<Sample, E>)
        multiRateBlock(state, src, dst, periods);
    else
        multiRatePieces(state, src, dst, periods, scale);
}

// In place. Where outputs overtake the samples, from a copy; else block by block through the
// staging area.
template <class E, class Sample, class Scale>
VlqStatus multiRateInPlace(FirState<E>& state, Sample* srcDst, Vlq32s periods, Scale scale) {
    const Vlq32s up = state.upFactor, down = state.downFactor;
    if (up > down) {
        const Vlq64s bytes = Vlq64s{periods} * down * static_cast<Vlq64s>(sizeof(Sample));
        const WorkBuffer copy(nullptr, bytes);
        if (copy.refused()) return vlqStsNoMemory;
        vlqsCopy_8u(reinterpret_cast<const Vlq8u*>(srcDst), copy.data(),
                    static_cast<Vlq32s>(bytes));
        multiRateFilter(state, copy.as<const Sample>(), srcDst, periods, scale);
    } else if constexpr (std::is_same_v<Sample, E>) {
        E* staging = state.blockBuf;
        const E* src = srcDst;
        for (Vlq32s block; periods > 0; periods -= block) {
            block = std::min(periods, std::max(1, kStaging / up));
            multiRateBlock(state, src, staging, block);
            widen(staging, srcDst, block * up);
            src += static_cast<std::ptrdiff_t>(block) * down;
            srcDst += static_cast<std::ptrdiff_t>(block) * up;
        }
    } else {
        multiRatePieces(state, srcDst, srcDst, periods, scale);
    }
    return vlqStsOk;
}

}  // namespace vlq::fir
