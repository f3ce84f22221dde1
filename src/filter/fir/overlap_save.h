// Blocks of samples through a floating FIR state by overlap-save: transforms of fftLen samples,
// multiplied by the spectrum of the taps, of which the last outputs are those of the filter.
#pragma once

#include <algorithm>
#include <type_traits>

#include "filter/common/sample_conversion.h"
#include "filter/common/work.h"
#include "filter/fir/fir_state.h"
#include "fourier/convolver.h"
#include "frame/team.h"
#include "vlqs/core.h"

namespace vlq::fir {

// Each thread has a transform's work area in the state, and there are as many as it was built for.
template <class E>
inline Vlq32s overlapSaveTeam(const FirState<E>& state, Vlq32s len, Vlq32s step) {
    if (len <= Traits<E>::kThreadedAbove) return 1;
    return teamSize(std::min(state.threads, ownGetNumThreads()),
                    transformNanoseconds<E>(len, state.fftLen, step));
}

// Block i makes the outputs from i * step on, step = fftLen - (tapsLen - 1), out of fftLen samples
// that begin tapsLen - 1 before them. The first block takes those from the delay line; all others
// read src alone, so any thread may run them.
template <class E, class Sample, class Scale>
VlqStatus overlapSave(FirState<E>& state, const Sample* src, Sample* dst, Vlq32s len, Scale scale) {
    const Vlq32s fftLen = state.fftLen;
    const Vlq32s tapsLen = state.tapsLen;
    const Vlq32s history = tapsLen - 1;
    const Vlq32s step = fftLen - history;
    E* line = state.dlyLine;

    auto block = [&](Vlq64s index, Vlq32s thread) -> VlqStatus {
        const auto start = static_cast<Vlq32s>(index * step);
        const Vlq32s outputs = std::min(step, len - start);
        E* work = state.fftWork + static_cast<std::ptrdiff_t>(thread) * fftLen;
        Vlq8u* buffer = state.fftBuf + static_cast<std::ptrdiff_t>(thread) * state.fftBufSize;
        const E* samples = work;
        if (start == 0) {
            if (history > 0) moveElements(line + state.dlyIndex + 1, work, history);
            widen(src, work + history, outputs);
            // A single block leaves its own end as the delay line, now, while it has the samples.
            if (outputs == len) moveElements(work + len - 1, line, tapsLen);
            state.dlyIndex = 0;
        } else if (outputs < step) {
            widen(src + (start - history), work, history + outputs);
        } else if constexpr (std::is_same_v<Sample, E>) {
            samples = src + (start - history);
        } else {
            widen(src + (start - history), work, fftLen);
        }
        if (outputs < step) std::fill(work + history + outputs, work + fftLen, E{});

        const VlqStatus status =
            fft::applyFilter(samples, work, state.tapsSpectrum.get(), state.fftSpec, buffer);
        if (status != vlqStsOk) return status;
        narrow(work + history, dst + start, outputs, scale);
        if (start == 0 && outputs < len) widen(src + (len - tapsLen), line, tapsLen);
        return vlqStsOk;
    };

    const Vlq32s threads = overlapSaveTeam<E>(state, len, step);
    if (threads > 1) return shareBlocks(threads, len, step, state.threadStatus, block);
    for (Vlq64s index = 0; index * step < len; ++index) {
        const VlqStatus status = block(index, 0);
        if (status != vlqStsOk) return status;
    }
    return vlqStsOk;
}

}  // namespace vlq::fir
