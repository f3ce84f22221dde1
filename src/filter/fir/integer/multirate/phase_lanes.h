// Few periods of an integer multi-rate filter, with neighbouring outputs of a period in the lanes.
//
// Where a filter has many outputs to a period and no more than about as many inputs, the windows of
// neighbours are so close to each other that one load holds a pair of samples for every lane, and a
// shuffle moves the pairs to their lanes. The taps are stored in the order in which the lanes take
// them. It needs a shuffle of 16-bit values under control of a vector, which SSE2 has not.
#pragma once

#include "filter/fir/integer/fir_integer_kernels.h"
#include "frame/simd/transpose.h"

namespace vlq::fir::integer {

// A vector of sums holds the outputs of a group, of a complex filter one of their parts; of a real
// filter two vectors make a group. A unit is what one load fills and a shuffle reaches.
struct LaneShape {
    int vectorBytes;  // 0: lanes do not serve the filter
    int unitBytes;
    int pairsOfLoad;  // pairs of every window that one load holds

    constexpr int units() const { return vectorBytes / unitBytes; }
    constexpr int unitOutputs() const { return unitBytes / 4; }
    constexpr int unitWords() const { return unitBytes / 2; }
};
template <int Parts>
constexpr int groupOutputs(int vectorBytes) {
    return vectorBytes / (2 * Parts);
}
// The last group ends with the period, and makes some outputs a second time.
template <int Parts>
constexpr Vlq64s laneGroups(Vlq64s up, const LaneShape& shape) {
    const int outputs = groupOutputs<Parts>(shape.vectorBytes);
    return (up + outputs - 1) / outputs;
}
template <int Parts>
constexpr Vlq64s pairsOfWindow(Vlq64s delayLen) {
    return Parts == 2 ? delayLen : (delayLen + 1) / 2;
}

template <int Parts>
constexpr LaneShape laneShape([[maybe_unused]] Vlq64s up, [[maybe_unused]] Vlq64s down) {
#if VLQ_SIMD_BYTES >= 32
    // Blocks of 16 bytes hold too few complex samples.
    if (Parts == 2 && kPickUnit<kVecBytes> == 16) return {0, 16, 0};
    constexpr int narrowest = kVecBytes == 64 ? 32 : kVecBytes;
    for (int bytes = kVecBytes; bytes >= narrowest; bytes /= 2) {
        LaneShape shape{bytes, kPickUnit<kVecBytes> == 16 ? 16 : bytes, 0};
        // Values between the newest samples of the first output of a unit and of the last.
        const Vlq64s apart = ((shape.unitOutputs() - 1) * down + up - 1) / up * Parts,
                     spare = shape.unitWords() - 2 - apart;
        if (up < groupOutputs<Parts>(bytes) || spare < 0) continue;
        shape.pairsOfLoad = static_cast<int>(spare / 2 + 1);
        return shape;
    }
#endif
    return {0, 16, 0};
}

// Values before the first sample of a period that may be loaded.
template <int Parts>
constexpr Vlq64s laneReach(Vlq64s delayLen) {
    return kVecBytes / 2 + 2 * (pairsOfWindow<Parts>(delayLen) - 1);
}

// Pairs go back in time, so that nothing is read behind the newest sample.
struct PhaseLanes {
    LaneShape shape;
    const Vlq16s* taps;      // for each group, for each pair of a window, two vectors
    const Vlq16s* patterns;  // to pick the newest pairs with, a vector for each vector of outputs
    const Vlq32s* starts;    // of the units that hold them, in values from the period's first
    std::ptrdiff_t pairs;    // of a window
    std::ptrdiff_t outputs;  // of a period
    std::ptrdiff_t inputWords;  // of a period
};

#if VLQ_SIMD_BYTES >= 32

template <int B>
[[gnu::always_inline]] inline Vec<Vlq16s, B> loadUnits(const Vlq16s* x, const Vlq32s* starts) {
    if constexpr (kPickUnit<B> == B)
        return load<Vlq16s, B>(x + starts[0]);
    else
        return joinHalves(load<Vlq16s, 16>(x + starts[0]), load<Vlq16s, 16>(x + starts[1]));
}

// One group: a vector of results.
template <int B, int Parts, int PairsOfLoad>
[[gnu::always_inline]] inline Vec<Vlq16s, B> groupOfOutputs(const PhaseLanes& phases,
                                                            const Vlq16s* x, std::ptrdiff_t group,
                                                            const Finish& finish) {
    using V = Vec<Vlq16s, B>;
    constexpr std::ptrdiff_t lanes = V::lanes, vectors = 2 / Parts, units = B / kPickUnit<B>;
    const Vlq16s* taps = phases.taps + group * phases.pairs * 2 * lanes;
    const Vlq16s* newest = phases.patterns + group * vectors * lanes;
    const Vlq32s* starts = phases.starts + group * vectors * units;
    V pattern[PairsOfLoad][vectors];
    for (int v = 0; v < vectors; ++v) {
        pattern[0][v] = loadAligned<Vlq16s, B>(newest + v * lanes);
        for (int k = 1; k < PairsOfLoad; ++k)
            pattern[k][v] = pattern[0][v] -
                            V::broadcast(static_cast<Vlq16s>(k * (pickIndex(2) - pickIndex(0))));
    }
    auto first = Vec<Vlq32s, B>::zero(), second = first;
    auto addPairs = [&]<int Count>(std::integral_constant<int, Count>) {
        V loaded[vectors];
        for (int v = 0; v < vectors; ++v) loaded[v] = loadUnits<B>(x, starts + v * units);
#pragma GCC unroll 4
        for (int k = 0; k < Count; ++k) {
            const V samples = pick(loaded[0], pattern[k][0]);
            const V others =
                Parts == 2 ? samples : pick(loaded[vectors - 1], pattern[k][vectors - 1]);
            first += pairSums(samples, loadAligned<Vlq16s, B>(taps));
            second += pairSums(others, loadAligned<Vlq16s, B>(taps + lanes));
            taps += 2 * lanes;
        }
        x -= 2 * Count;
    };
    std::ptrdiff_t left = phases.pairs;
    for (; left >= PairsOfLoad; left -= PairsOfLoad)
        addPairs(std::integral_constant<int, PairsOfLoad>());
    for (; left > 0; --left) addPairs(std::integral_constant<int, 1>());
    if constexpr (Parts == 2)
        return interleaveSat(finish(first), finish(second));
    else
        return joinSat(finish(first), finish(second));
}

template <int B, int Parts, int PairsOfLoad>
[[gnu::noinline]] void lanePeriods(const PhaseLanes& phases, const Vlq16s* x, Vlq16s* dst,
                                   std::ptrdiff_t periods, const Finish& finish) {
    constexpr std::ptrdiff_t outputs = groupOutputs<Parts>(B);
    const std::ptrdiff_t last = phases.outputs - outputs;
    for (; periods > 0; --periods, x += phases.inputWords, dst += phases.outputs * Parts) {
        std::ptrdiff_t group = 0;
        for (std::ptrdiff_t first = 0;; ++group, first = std::min(first + outputs, last)) {
            store(dst + first * Parts,
                  groupOfOutputs<B, Parts, PairsOfLoad>(phases, x, group, finish));
            if (first == last) break;
        }
    }
}

// The outputs of whole periods, whose samples begin at x.
template <int Parts>
inline void laneOutputs(const PhaseLanes& phases, const Vlq16s* x, Vlq16s* dst,
                        std::ptrdiff_t periods, const Finish& finish) {
    const bool several = phases.shape.pairsOfLoad >= 2;
#if VLQ_SIMD_BYTES >= 64
    if (phases.shape.vectorBytes == 32) {
        return several ? lanePeriods<32, Parts, 2>(phases, x, dst, periods, finish)
                       : lanePeriods<32, Parts, 1>(phases, x, dst, periods, finish);
    }
    if (phases.shape.pairsOfLoad >= 4)
        return lanePeriods<64, Parts, 4>(phases, x, dst, periods, finish);
#endif
    return several ? lanePeriods<kVecBytes, Parts, 2>(phases, x, dst, periods, finish)
                   : lanePeriods<kVecBytes, Parts, 1>(phases, x, dst, periods, finish);
}

#else

template <int Parts>
inline void laneOutputs(const PhaseLanes&, const Vlq16s*, Vlq16s*, std::ptrdiff_t, const Finish&) {}

#endif

}  // namespace vlq::fir::integer
