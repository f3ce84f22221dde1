// Multi-rate FIR filters without a record: taps and delay line are the caller's, and the polyphase
// rule is followed output by output. Products are formed in the type of the taps and added up in
// double precision.
#pragma once

#include <algorithm>
#include <cstring>

#include "filter/fir/multirate/multirate_block.h"
#include "filter/fir/multirate/multirate_direct_kernels.h"

namespace vlq::fir {

// Outputs wait here until there are enough of them to be brought into the type of the samples.
inline constexpr int kDirectOutputs = 256;
// Filters of no more taps have their rows put in order once a call.
inline constexpr int kOrderedTaps = 1024;

template <class Tap, class Sample, class Scale>
void polyphaseDirect(const Sample* src, Sample* dst, Vlq32s periods, const Tap* taps,
                     Vlq32s tapsLen, const Rates& rates, Sample* line, Scale scale) {
    const Vlq32s up = rates.up, length = lineLength(tapsLen, up);
    const Vlq64s samples = Vlq64s{periods} * rates.down;
    // The rows end to end, each as its samples lie: oldest first.
    Tap rows[kOrderedTaps];
    const bool ordered = tapsLen <= kOrderedTaps && periods > 1;
    Tap* row = rows;
    for (Vlq32s first = 0; ordered && first < std::min(up, tapsLen); ++first) {
        for (Vlq32s i = tapsFrom(first, tapsLen, up) - 1; i >= 0; --i)
            *row++ = read(taps + (first + Vlq64s{i} * up));
    }
    const Vlq32s longer =
        tapsLen % up == 0 ? up : tapsLen % up;  // rows of `length` taps; the others have one less

    const Vlq32s whole = rates.down / up,
                 rest = rates.down % up;  // of the way from one output to the next
    auto [newest, firstTap] = placeOf(rates, 0);
    DirectSum<Tap> sums[kDirectOutputs];
    Vlq64s last = newest;
    for (Vlq64s left = Vlq64s{periods} * up; left > 0;) {
        const auto some = static_cast<Vlq32s>(std::min<Vlq64s>(left, kDirectOutputs));
        for (Vlq32s o = 0; o < some; ++o) {
            const Vlq32s count = firstTap < longer ? length : length - 1;
            if (ordered && count <= last + 1) {
                const Tap* itsRow =
                    rows + (Vlq64s{firstTap} * length - std::max(0, firstTap - longer));
                sums[o] = directSum(itsRow, src + (last + 1 - count), count);
            } else {
                sums[o] = directSum(taps + firstTap, up, src, last, line, count);
            }
            last += whole;
            // A sum of the two may leave 32 bits.
            if (firstTap >= up - rest) {
                firstTap -= up - rest;
                ++last;
            } else {
                firstTap += rest;
            }
        }
        narrow(sums, dst, some, scale);
        dst += some;
        left -= some;
    }
    // The line moves as far as the samples go.
    const auto moved = static_cast<Vlq32s>(std::min<Vlq64s>(samples, length));
    std::memmove(line + moved, line, static_cast<std::size_t>(length - moved) * sizeof(Sample));
    for (Vlq32s i = 0; i < moved; ++i) write(line + i, read(src + (samples - 1 - i)));
}

// ---- what the exports do ------------------------------------------------------------------------

template <class Tap, class Sample>
VlqStatus checkDirect(const Sample* src, const Sample* dst, Vlq32s periods, const Tap* taps,
                      Vlq32s tapsLen, const Rates& rates, const Sample* dlyLine) {
    if (!src || !dst) return vlqStsNullPtr;
    if (periods < 1) return vlqStsBadSize;
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = check(rates); status != vlqStsOk) return status;
    return dlyLine ? vlqStsOk : vlqStsNullPtr;
}

template <class Tap, class Sample, class Scale>
VlqStatus multiRateDirect(const Sample* src, Sample* dst, Vlq32s periods, const Tap* taps,
                          Vlq32s tapsLen, const Rates& rates, Sample* dlyLine, Scale scale) {
    const VlqStatus status = checkDirect(src, dst, periods, taps, tapsLen, rates, dlyLine);
    if (status == vlqStsOk)
        polyphaseDirect(src, dst, periods, taps, tapsLen, rates, dlyLine, scale);
    return status;
}

template <class Tap, class Sample, class Scale>
VlqStatus multiRateDirectInPlace(Sample* srcDst, Vlq32s periods, const Tap* taps, Vlq32s tapsLen,
                                 const Rates& rates, Sample* dlyLine, Scale scale) {
    const VlqStatus status = checkDirect(srcDst, srcDst, periods, taps, tapsLen, rates, dlyLine);
    if (status != vlqStsOk) return status;
    const SampleCopy<Sample> copy(srcDst, Vlq64s{periods} * rates.down);
    if (!copy.get()) return vlqStsNoMemory;
    polyphaseDirect(copy.get(), srcDst, periods, taps, tapsLen, rates, dlyLine, scale);
    return vlqStsOk;
}

}  // namespace vlq::fir
