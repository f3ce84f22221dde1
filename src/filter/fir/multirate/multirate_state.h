// How a floating multi-rate FIR state is laid out: what follows from the tap count and the factors.
#pragma once

#include <algorithm>

#include "filter/common/rates.h"
#include "filter/fir/fir_state.h"
#include "filter/fir/multirate/polyphase_rows.h"

namespace vlq::fir {

// The tables are the rows of the phases. Kinds 2 and 3, for filters that are short against the
// step, have room for four outputs at once besides. The sizes of kinds 2 and 3 in single precision
// are public.
template <class E>
struct MultiRatePlan {
    RateSizes sizes;
    Vlq64s delayLen, paddedTaps, firstChunk;
    Vlq32s kind;

    MultiRatePlan(Vlq32s tapsLen, Vlq32s up, Vlq32s down)
        : sizes{tapsLen, up, down},
          delayLen(sizes.delayLen()),
          paddedTaps(sizes.paddedTaps()),
          firstChunk(sizes.firstChunk()) {
        const Vlq32f ratio = static_cast<Vlq32f>(sizes.tapsLen) /
                             static_cast<Vlq32f>(sizes.tapsLen + 3 * sizes.down);
        if (Complex<E>)
            kind = 1;
        else if (up == 1)
            kind = ratio > 0.5f ? 1 : 2;
        else
            kind = static_cast<Vlq64f>(ratio) > 0.3 ? 1 : 3;
    }

    // A row of delayLen taps for each phase, and room for as much twice where there are groups.
    Vlq64s rowBytes() const {
        const Vlq64s rows = (sizes.up < 4 ? 1 : 3) * sizes.up * delayLen;
        return roundUp((kind == 1 ? rows : 4 * paddedTaps) * element, 16);
    }
    Vlq64s stagingLength() const {
        return std::max<Vlq64s>(kStaging, (kind == 1 ? 2 : 8) * paddedTaps);
    }
    Vlq64s storeLength() const { return delayLen + firstChunk; }

    Vlq64s bytes() const {
        const Vlq64s phaseBytes = 16 * sizes.up;
        return roundUp(sizes.tapsLen * element, 16) + roundDown(phaseBytes + 19, 16) + rowBytes() +
               stagingLength() * element + roundDown(storeLength() * element + 19, 16) +
               Traits<E>::kHeaderBytes + (Vlq64s{Traits<E>::kAlignment} - 16);
    }

private:
    static constexpr Vlq64s element = sizeof(E);
};

}  // namespace vlq::fir
