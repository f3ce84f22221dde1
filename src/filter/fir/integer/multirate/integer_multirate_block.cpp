// Multi-rate integer filters, block by block: which kernel makes the periods, and how those that
// begin in the delay line get their samples.
#include "filter/fir/integer/multirate/integer_multirate_block.h"

#include "filter/fir/integer/multirate/integer_multirate_state.h"

namespace vlq::fir::integer {

namespace {

// From so many cycles on lanes are cycles. Measured: where a period has few outputs, the other
// kernels hardly fill their vectors.
template <int Parts>
std::ptrdiff_t fewestCycles(const PhaseSizes<Parts>& d, const LaneShape& shape) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq32s>::lanes;
    if (d.up * Parts < Vec<Vlq16s, 16>::lanes) return kFewestCycles;
    return shape.vectorBytes ? shape.vectorBytes / 2 : std::min<std::ptrdiff_t>(2 * lanes, 16);
}

template <class State>
struct Filter {
    static constexpr int kCount = kParts<typename State::Sample>;

    State& state;
    const Finish& finish;
    PhaseSizes<kCount> d = sizesOf(state);
    LaneShape shape = d.lanes();
    std::ptrdiff_t inputWords = d.inputWords(), outputWords = d.up * kCount;  // of a period

    // Whole periods that begin at x.
    void fewPeriods(const Vlq16s* x, Vlq16s* dst, std::ptrdiff_t periods) const {
        const PhaseTable& table = *state.phases;
        if (shape.vectorBytes) {
            laneOutputs<kCount>({shape, table.taps, table.patterns, table.starts,
                                 static_cast<std::ptrdiff_t>(pairsOfWindow<kCount>(d.delayLen())),
                                 static_cast<std::ptrdiff_t>(d.up), inputWords},
                                x, dst, periods, finish);
        } else {
            rowOutputs<kCount>({table.taps, table.starts,
                                static_cast<std::ptrdiff_t>(phaseRowLength(d.windowWords())),
                                static_cast<std::ptrdiff_t>(d.up), inputWords},
                               x, dst, periods, finish);
        }
    }

    // Whole periods that begin at x; the `reach` values before them are at `past`, and before x
    // unless there are streams. What is left finds the samples that it needs before its own.
    void manyPeriods(const Vlq16s* past, const Vlq16s* x, Vlq16s* dst,
                     std::ptrdiff_t periods) const {
        const PhaseTable& table = *state.phases;
        const Cycle cycle = {state.magnitude,
                             table.rowPairs(),
                             state.tapRows,
                             state.rowLen,
                             static_cast<std::ptrdiff_t>(d.outputElements()),
                             static_cast<std::ptrdiff_t>(d.inputElements()),
                             static_cast<std::ptrdiff_t>(d.reach()),
                             state.blockBuf,
                             table.streamStride};
        const std::ptrdiff_t done =
            d.cycle() * manyCycles(cycle, past, x, dst, periods / d.cycle(), finish);
        if (done < periods)
            fewPeriods(x + done * inputWords, dst + done * outputWords, periods - done);
    }

    // Where a call is short: all of it behind the delay line. What comes before that, inside the
    // state, meets zeros or nothing.
    void fromStore(const Vlq16s* src, Vlq16s* dst, std::ptrdiff_t periods, bool many) const {
        Vlq16s* const samples = state.dlyLine + d.windowWords();
        moveWords(src, samples, periods * inputWords);
        if (many)
            manyPeriods(samples - d.reach(), samples, dst, periods);
        else
            fewPeriods(samples, dst, periods);
    }

    // Few periods: those that begin in the delay line first.
    void fromSeam(const Vlq16s* src, Vlq16s* dst, std::ptrdiff_t periods) const {
        const auto seam = std::min<std::ptrdiff_t>(periods, d.periodsLoadedBefore());
        fromStore(src, dst, seam, false);
        if (seam < periods)
            fewPeriods(src + seam * inputWords, dst + seam * outputWords, periods - seam);
    }

    // A single stream is the input itself: the first periods are made from a copy that the
    // delay line comes before.
    void fromCopy(const Vlq16s* before, const Vlq16s* src, Vlq16s* dst,
                  std::ptrdiff_t periods) const {
        Vlq16s* const copy = state.blockBuf;
        const std::ptrdiff_t reach = d.reach();
        const std::ptrdiff_t room =
            (2 * std::ptrdiff_t{state.phases->streamStride} - reach) / (2 * inputWords) * 2;
        const std::ptrdiff_t first = std::min(periods, room), firstWords = first * inputWords;
        moveWords(before, copy, reach);
        moveWords(src, copy + reach, firstWords);
        manyPeriods(copy, copy + reach, dst, first);
        if (first < periods)
            manyPeriods(src + firstWords - reach, src + firstWords, dst + first * outputWords,
                        periods - first);
    }

    void run(const Vlq16s* src, Vlq16s* dst, std::ptrdiff_t periods) const {
        const std::ptrdiff_t words = periods * inputWords, past = d.windowWords(),
                             cycles = periods / d.cycle(), rest = periods % d.cycle();
        Vlq16s* const line = state.dlyLine;
        const Vlq16s* const before = line + past - d.reach();
        const bool many = cycles >= fewestCycles(d, shape);
        if (many && words <= d.seam() * kCount)
            fromStore(src, dst, periods, true);
        else if (many && d.inputElements() == 1)
            fromCopy(before, src, dst, periods);
        else if (many && (rest == 0 || words - inputWords >= d.loadedBefore()))
            manyPeriods(before, src, dst, periods);
        else
            fromSeam(src, dst, periods);
        moveWords(words < past ? line + words : src + words - past, line, past);
    }
};

}  // namespace

template <class State>
void multiRateBlock(State& state, const Vlq16s* src, Vlq16s* dst, Vlq32s periods,
                    const Finish& finish) {
    Filter<State>{state, finish}.run(src, dst, periods);
}
template void multiRateBlock(VlqsFIRState_16s&, const Vlq16s*, Vlq16s*, Vlq32s, const Finish&);
template void multiRateBlock(VlqsFIRState32s_16s&, const Vlq16s*, Vlq16s*, Vlq32s, const Finish&);
template void multiRateBlock(VlqsFIRState32sc_16sc&, const Vlq16s*, Vlq16s*, Vlq32s, const Finish&);

}  // namespace vlq::fir::integer
