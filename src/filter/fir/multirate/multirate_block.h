// A block of periods through a multi-rate FIR record.
#pragma once

#include "filter/fir/block.h"
#include "filter/fir/multirate/multirate_state.h"

namespace vlq::fir {

// Samples in the record's own type. The outputs whose windows reach into the past are made from the
// delay store; the others read src where it lies.
template <class E>
void multiRateBlock(Record<E>& record, const E* src, E* dst, Vlq32s periods) {
    const Polyphase<E> f = polyphaseOf(record);
    const Vlq64s samples = Vlq64s{periods} * f.down;
    E* line = record.dlyLine;
    E* behind = line + f.line;
    if (samples <= record.firstChunk) {
        const auto count = static_cast<Vlq32s>(samples);
        widen(src, behind, count);
        multiRate(f, behind, dst, periods);
        shift(line + count, line, f.line);
        return;
    }
    // As many periods as it takes until windows lie in src.
    const Vlq32s seam = (f.line + f.down - 1) / f.down;
    widen(src, behind, seam * f.down);
    multiRate(f, behind, dst, seam);
    widen(src + (samples - f.line), line, f.line);

    src += seam * f.down;
    dst += static_cast<std::ptrdiff_t>(seam) * f.up;
    const Vlq32s threads = threadsFor<E>(periods);
    if (threads > 1) {
        shareEvenly(threads, periods - seam, [&](Vlq32s first, Vlq32s count) {
            multiRate(f, src + static_cast<std::ptrdiff_t>(first) * f.down,
                      dst + static_cast<std::ptrdiff_t>(first) * f.up, count);
        });
    } else {
        multiRate(f, src, dst, periods - seam);
    }
}

// Samples of another type, in pieces that are widened behind the past, and filtered, in the staging
// area. dst may be src where there are no more outputs than samples.
template <class E, class Sample, class Scale>
void multiRatePieces(Record<E>& record, const Sample* src, Sample* dst, Vlq32s periods,
                     Scale scale) {
    const Polyphase<E> f = polyphaseOf(record);
    const MultiRatePlan<E> plan(record.tapsLen, f.up, f.down);
    const auto most = static_cast<Vlq32s>((plan.blockBufLength() - f.line) / (plan.down + plan.up));
    E* line = record.blockBuf;
    E* past = record.dlyLine;
    shift(past, line, f.line);
    while (periods > 0) {
        const Vlq32s piece = std::min(most, periods);
        const Vlq32s samples = piece * f.down, outputs = piece * f.up;
        E* widened = line + f.line;
        E* filtered = widened + samples;
        widen(src, widened, samples);
        multiRate(f, widened, filtered, piece);
        narrow(filtered, dst, outputs, scale);
        shift(line + samples, line, f.line);
        src += samples;
        dst += outputs;
        periods -= piece;
    }
    shift(line, past, f.line);
}

template <class E, class Sample, class Scale>
void multiRateFilter(Record<E>& record, const Sample* src, Sample* dst, Vlq32s periods,
                     Scale scale) {
    if constexpr (std::is_same_v<Sample, E>)
        multiRateBlock(record, src, dst, periods);
    else
        multiRatePieces(record, src, dst, periods, scale);
}

// A copy of `len` samples that lives for the call.
template <class Sample>
class SampleCopy {
public:
    SampleCopy(const Sample* src, Vlq64s len) {
        const Vlq64s bytes = len * static_cast<Vlq64s>(sizeof(Sample));
        if (bytes > std::numeric_limits<Vlq32s>::max()) return;
        memory_ = vlqsMalloc_8u(static_cast<Vlq32s>(bytes));
        if (memory_)
            vlqsCopy_8u(reinterpret_cast<const Vlq8u*>(src), memory_, static_cast<Vlq32s>(bytes));
    }
    ~SampleCopy() {
        if (memory_) vlqsFree(memory_);
    }
    SampleCopy(const SampleCopy&) = delete;
    SampleCopy& operator=(const SampleCopy&) = delete;
    const Sample* get() const { return reinterpret_cast<const Sample*>(memory_); }

private:
    Vlq8u* memory_ = nullptr;
};

// ---- what the exports do ------------------------------------------------------------------------

// Single-rate and multi-rate records alike; of the latter len counts periods.
template <class State, class Scale>
VlqStatus filterAnyRate(const SampleOf<State>* src, SampleOf<State>* dst, Vlq32s len, State* state,
                        Scale scale) {
    if (!src || !dst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isMultiRate(*state)) return filter(src, dst, len, state, scale);
    multiRateFilter(*state, src, dst, len, scale);
    return vlqStsOk;
}

template <class State, class Scale>
VlqStatus filterInPlaceAnyRate(SampleOf<State>* srcDst, Vlq32s len, State* state, Scale scale) {
    using Sample = SampleOf<State>;
    using E = typename State::Element;
    if (!srcDst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isMultiRate(*state)) {
        if constexpr (std::is_same_v<Sample, E>)
            return filterInPlace(srcDst, len, state);
        else
            return filterNarrowInPlace(srcDst, len, state, scale);
    }
    const Vlq32s up = state->upFactor, down = state->downFactor;
    if (up > down) {
        // Outputs overtake the samples.
        const SampleCopy<Sample> copy(srcDst, Vlq64s{len} * down);
        if (!copy.get()) return vlqStsNoMemory;
        multiRateFilter(*state, copy.get(), srcDst, len, scale);
    } else if constexpr (std::is_same_v<Sample, E>) {
        E* staging = state->blockBuf;
        const Sample* src = srcDst;
        for (Vlq32s block; len > 0; len -= block) {
            block = std::min(len, std::max(1, Shape<E>::kBlockBuf / up));
            multiRateBlock(*state, src, staging, block);
            widen(staging, srcDst, block * up);
            src += static_cast<std::ptrdiff_t>(block) * down;
            srcDst += static_cast<std::ptrdiff_t>(block) * up;
        }
    } else {
        multiRatePieces(*state, srcDst, srcDst, len, scale);
    }
    return vlqStsOk;
}

}  // namespace vlq::fir
