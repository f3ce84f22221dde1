// The numbers of a multi-rate FIR record: what follows from the tap count, the factors and the
// phases alone.
//
// A counter of steps at the high rate takes in a sample every `up` steps and gives an output every
// `down` steps. Output m comes at step downPhase + m * down; the newest sample by then is number
// floor(t / up), t = downPhase + m * down - upPhase, and t mod up is the first of the taps that
// meet samples, every up-th from there on. A period of `up` outputs and `down` samples repeats
// itself.
#pragma once

#include <algorithm>
#include <limits>
#include <type_traits>

#include "filter/common/element.h"
#include "filter/fir/state_traits.h"
#include "frame/state/state.h"

namespace vlq::fir {

struct Rates {
    Vlq32s up, upPhase, down, downPhase;
};

inline VlqStatus checkFactors(Vlq32s up, Vlq32s down) {
    return up < 1 || down < 1 ? vlqStsBadRateFactor : vlqStsOk;
}
inline VlqStatus check(const Rates& rates) {
    if (const VlqStatus status = checkFactors(rates.up, rates.down); status != vlqStsOk)
        return status;
    const bool inRange = rates.upPhase >= 0 && rates.upPhase < rates.up && rates.downPhase >= 0 &&
                         rates.downPhase < rates.down;
    return inRange ? vlqStsOk : vlqStsBadRatePhase;
}

// Samples that a window reaches over, and the length of the delay line.
constexpr Vlq32s lineLength(Vlq32s tapsLen, Vlq32s up) {
    return tapsLen / up + (tapsLen % up != 0);
}

// An output of a period: its newest sample, counted from the first of the period (-1 is the last
// of the period before), and the first of its taps.
struct OutputPlace {
    Vlq32s newest, firstTap;
};
inline OutputPlace placeOf(const Rates& rates, Vlq32s output) {
    const Vlq64s step = rates.downPhase - Vlq64s{rates.upPhase} + Vlq64s{output} * rates.down;
    const Vlq64s newest = step < 0 ? -1 : step / rates.up;
    return {static_cast<Vlq32s>(newest), static_cast<Vlq32s>(step - newest * rates.up)};
}

// Taps from `firstTap` on, every up-th.
constexpr Vlq32s tapsFrom(Vlq32s firstTap, Vlq32s tapsLen, Vlq32s up) {
    return firstTap < tapsLen ? (tapsLen - firstTap - 1) / up + 1 : 0;
}

// How the tables of a record of elements E are laid out: the rows of the phases. Kinds 2 and 3, for
// filters that are short against the step, have room for four outputs at once besides. The
// sizes of kinds 2 and 3 in single precision are public.
template <class E>
struct MultiRatePlan {
    Vlq64s tapsLen, up, down;
    Vlq64s line;        // samples in the delay line
    Vlq64s slots;       // tapsLen + 3 * down in whole rows of `up`
    Vlq64s firstChunk;  // samples that go through the delay store where a long call begins
    Vlq64s chunkOutputs;
    Vlq32s kind;

    MultiRatePlan(Vlq32s taps, Vlq32s upFactor, Vlq32s downFactor)
        : tapsLen(taps), up(upFactor), down(downFactor) {
        line = lineLength(taps, upFactor);
        slots = (tapsLen + 3 * down + up - 1) / up * up;
        Vlq64s periods = (down + line - 1 + down - 1) / down;
        firstChunk = 4 * down * (line / (4 * down) + 1) + 1;
        // A multiple of four periods.
        const Vlq64s more = -periods & 3;
        periods += more;
        firstChunk += more * down;
        chunkOutputs = up * periods;

        const Vlq32f ratio = static_cast<Vlq32f>(tapsLen) / static_cast<Vlq32f>(tapsLen + 3 * down);
        if (Complex<E>)
            kind = 1;
        else if (up == 1)
            kind = ratio > 0.5f ? 1 : 2;
        else
            kind = static_cast<Vlq64f>(ratio) > 0.3 ? 1 : 3;
    }

    Vlq64s tapBytes() const { return roundUp(tapsLen * element, 16); }
    Vlq64s phaseBytes() const { return 16 * up; }
    // A row of `line` taps for each phase, and room for as much twice where there are groups.
    Vlq64s rowBytes() const {
        return roundUp((kind == 1 ? (up < 4 ? 1 : 3) * up * line : 4 * slots) * element, 16);
    }
    Vlq64s blockBufLength() const { return std::max<Vlq64s>(4096, (kind == 1 ? 2 : 8) * slots); }
    Vlq64s storeLength() const { return line + firstChunk; }

    Vlq64s bytes() const {
        return tapBytes() + roundDown(phaseBytes() + 19, 16) + rowBytes() +
               blockBufLength() * element + roundDown(storeLength() * element + 19, 16) +
               Shape<E>::kHeaderBytes + (Shape<E>::kAlignment - 16);
    }
    // Everything in the record is counted and reached in 32 bits.
    bool fits() const { return fitsRecord(bytes()); }

private:
    static constexpr Vlq64s element = sizeof(E);
};

}  // namespace vlq::fir
