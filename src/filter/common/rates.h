// The phase arithmetic of a change of sample rate, the same for every filter that makes one.
//
// A counter of steps at the high rate takes in a sample every `up` steps and gives an output every
// `down` steps. Output m comes at step downPhase + m * down; the newest sample by then is number
// floor(t / up), t = downPhase + m * down - upPhase, and t mod up is the first of the taps that
// meet samples, every up-th from there on. A period of `down` samples and `up` outputs repeats
// itself.
#pragma once

#include "vlqs/types.h"

namespace vlq::fir {

struct Rates {
    Vlq32s up, upPhase, down, downPhase;
};

inline VlqStatus checkFactors(Vlq32s up, Vlq32s down) {
    return up < 1 || down < 1 ? vlqStsBadRateFactor : vlqStsOk;
}
inline VlqStatus checkRates(const Rates& rates) {
    if (const VlqStatus status = checkFactors(rates.up, rates.down); status != vlqStsOk)
        return status;
    const bool inRange = rates.upPhase >= 0 && rates.upPhase < rates.up && rates.downPhase >= 0 &&
                         rates.downPhase < rates.down;
    return inRange ? vlqStsOk : vlqStsBadRatePhase;
}

// Taps from `firstTap` on, every up-th: those of one output.
constexpr Vlq32s tapsFrom(Vlq32s firstTap, Vlq32s tapsLen, Vlq32s up) {
    return firstTap < tapsLen ? (tapsLen - firstTap - 1) / up + 1 : 0;
}

// Samples that the longest window reaches over, which is the length of the delay line.
constexpr Vlq32s delayLength(Vlq32s tapsLen, Vlq32s up) { return tapsFrom(0, tapsLen, up); }

// An output: its newest sample, counted from the first of its call (-1 is the last one before), and
// the first of its taps.
struct OutputPlace {
    Vlq64s newest;
    Vlq32s firstTap;
};
constexpr OutputPlace placeOf(const Rates& rates, Vlq64s output) {
    // Never negative, upPhase being below up.
    const Vlq64s step = rates.downPhase - Vlq64s{rates.upPhase} + output * rates.down + rates.up;
    return {step / rates.up - 1, static_cast<Vlq32s>(step % rates.up)};
}

// Goes from output to output without dividing.
class OutputWalk {
public:
    explicit OutputWalk(const Rates& rates)
        : at_(placeOf(rates, 0)),
          up_(rates.up),
          whole_(rates.down / rates.up),
          rest_(rates.down % rates.up) {}
    Vlq64s newest() const { return at_.newest; }
    Vlq32s firstTap() const { return at_.firstTap; }
    void advance() {
        at_.newest += whole_;
        // The sum of firstTap and rest may exceed 32 bits.
        if (at_.firstTap >= up_ - rest_) {
            at_.firstTap -= up_ - rest_;
            ++at_.newest;
        } else {
            at_.firstTap += rest_;
        }
    }

private:
    OutputPlace at_;
    Vlq32s up_, whole_, rest_;
};

// What the layout of a multi-rate state follows from.
struct RateSizes {
    Vlq64s tapsLen, up, down;

    constexpr Vlq64s delayLen() const { return (tapsLen + up - 1) / up; }
    // Taps and the steps of four outputs, in whole periods of the phases.
    constexpr Vlq64s paddedTaps() const { return (tapsLen + 3 * down + up - 1) / up * up; }
    // Samples in whole groups of four periods, more than a window.
    constexpr Vlq64s seam() const { return 4 * down * (delayLen() / (4 * down) + 1); }
    // Periods until windows lie wholly in the samples of a call, in fours.
    constexpr Vlq64s chunkPeriods() const { return windowPeriods() + morePeriods(); }
    // Samples that go through the delay store where a long call begins, and their outputs.
    constexpr Vlq64s firstChunk() const { return seam() + 1 + morePeriods() * down; }
    constexpr Vlq64s chunkOutputs() const { return up * chunkPeriods(); }

private:
    constexpr Vlq64s windowPeriods() const { return (down + delayLen() - 1 + down - 1) / down; }
    constexpr Vlq64s morePeriods() const { return -windowPeriods() & 3; }
};

}  // namespace vlq::fir
