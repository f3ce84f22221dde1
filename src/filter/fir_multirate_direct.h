// Multi-rate FIR filters without a record: taps and delay line are the caller's, and the polyphase
// rule is followed output by output. Products are formed in the type of the taps and added up in
// double precision.
#pragma once

#include <algorithm>
#include <cstring>

#include "filter/fir_multirate_block.h"
#include "filter/fir_multirate_direct_kernels.h"

namespace vlq::fir {

// Outputs wait here until there are enough of them to be brought into the type of the samples.
inline constexpr int kDirectOutputs = 256;

template <class Tap, class Sample, class Scale>
void polyphaseDirect(const Sample* src, Sample* dst, Vlq32s periods, const Tap* taps, Vlq32s tapsLen, const Rates& rates, Sample* line, Scale scale) {
    const Vlq32s length = lineLength(tapsLen, rates.up);
    const Vlq64s samples = Vlq64s{periods} * rates.down;
    auto [newest, firstTap] = placeOf(rates, 0);
    DirectSum<Tap> sums[kDirectOutputs];
    Vlq64s last = newest;
    for (Vlq64s left = Vlq64s{periods} * rates.up; left > 0;) {
        const auto some = static_cast<Vlq32s>(std::min<Vlq64s>(left, kDirectOutputs));
        for (Vlq32s o = 0; o < some; ++o) {
            sums[o] = directSum(taps + firstTap, tapsFrom(firstTap, tapsLen, rates.up), rates.up, src, last, line);
            last += rates.down / rates.up;
            firstTap += rates.down % rates.up;
            if (firstTap >= rates.up) {
                firstTap -= rates.up;
                ++last;
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

// ---- what the exports do -------------------------------------------------------------------------

template <class Tap, class Sample>
VlqStatus checkDirect(const Sample* src, const Sample* dst, Vlq32s periods, const Tap* taps, Vlq32s tapsLen, const Rates& rates, const Sample* dlyLine) {
    if (!src || !dst) return vlqStsNullPtr;
    if (periods < 1) return vlqStsBadSize;
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = check(rates); status != vlqStsOk) return status;
    return dlyLine ? vlqStsOk : vlqStsNullPtr;
}

template <class Tap, class Sample, class Scale>
VlqStatus multiRateDirect(const Sample* src, Sample* dst, Vlq32s periods, const Tap* taps, Vlq32s tapsLen, const Rates& rates, Sample* dlyLine, Scale scale) {
    const VlqStatus status = checkDirect(src, dst, periods, taps, tapsLen, rates, dlyLine);
    if (status == vlqStsOk) polyphaseDirect(src, dst, periods, taps, tapsLen, rates, dlyLine, scale);
    return status;
}

template <class Tap, class Sample, class Scale>
VlqStatus multiRateDirectInPlace(Sample* srcDst, Vlq32s periods, const Tap* taps, Vlq32s tapsLen, const Rates& rates, Sample* dlyLine, Scale scale) {
    const VlqStatus status = checkDirect(srcDst, srcDst, periods, taps, tapsLen, rates, dlyLine);
    if (status != vlqStsOk) return status;
    const SampleCopy<Sample> copy(srcDst, Vlq64s{periods} * rates.down);
    if (!copy.get()) return vlqStsNoMemory;
    polyphaseDirect(copy.get(), srcDst, periods, taps, tapsLen, rates, dlyLine, scale);
    return vlqStsOk;
}

}  // namespace vlq::fir
