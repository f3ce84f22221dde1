// Multi-rate FIR filters without a state: taps and delay line are the caller's, and the polyphase
// rule is followed output by output. Products are formed in the type of the taps and added up in
// double precision.
#include <algorithm>
#include <cstring>

#include "filter/common/delay_line.h"
#include "filter/common/rates.h"
#include "filter/common/sample_conversion.h"
#include "filter/fir/multirate/multirate_direct_kernels.h"
#include "frame/state/work_buffer.h"
#include "vlqs/fir.h"

namespace {

using namespace vlq;
using namespace vlq::fir;

// Outputs that are converted to the type of the samples at a time.
inline constexpr int kDirectOutputs = 256;
// Filters of no more taps have their rows sorted once a call.
inline constexpr int kOrderedTaps = 1024;

template <class Tap, class Sample, class Scale>
void polyphaseDirect(const Sample* src, Sample* dst, Vlq32s periods, const Tap* taps,
                     Vlq32s tapsLen, const Rates& rates, Sample* line, Scale scale) {
    const Vlq32s up = rates.up, length = delayLength(tapsLen, up);
    const Vlq64s samples = Vlq64s{periods} * rates.down;
    // The rows end to end, each as its samples lie: oldest first.
    Tap rows[kOrderedTaps];
    const bool ordered = tapsLen <= kOrderedTaps && periods > 1;
    Tap* row = rows;
    for (Vlq32s first = 0; ordered && first < std::min(up, tapsLen); ++first) {
        for (Vlq32s i = tapsFrom(first, tapsLen, up) - 1; i >= 0; --i)
            *row++ = loadScalar(taps + (first + Vlq64s{i} * up));
    }
    const Vlq32s longer =
        tapsLen % up == 0 ? up : tapsLen % up;  // rows of `length` taps; the others have one less

    OutputWalk output(rates);
    DirectSum<Tap> sums[kDirectOutputs];
    for (Vlq64s left = Vlq64s{periods} * up; left > 0;) {
        const auto some = static_cast<Vlq32s>(std::min<Vlq64s>(left, kDirectOutputs));
        for (Vlq32s o = 0; o < some; ++o) {
            const Vlq32s firstTap = output.firstTap();
            const Vlq32s count = firstTap < longer ? length : length - 1;
            if (ordered && count <= output.newest() + 1) {
                const Tap* itsRow =
                    rows + (Vlq64s{firstTap} * length - std::max(0, firstTap - longer));
                sums[o] = directSum(itsRow, src + (output.newest() + 1 - count), count);
            } else {
                sums[o] = directSum(taps + firstTap, up, src, output.newest(), line, count);
            }
            output.advance();
        }
        narrow(sums, dst, some, scale);
        dst += some;
        left -= some;
    }
    pushNewestFirst(src, samples, line, length);
}

// ---- what the exports do ------------------------------------------------------------------------

template <class Tap, class Sample>
VlqStatus checkDirect(const Sample* src, const Sample* dst, Vlq32s periods, const Tap* taps,
                      Vlq32s tapsLen, const Rates& rates, const Sample* dlyLine) {
    if (!src || !dst) return vlqStsNullPtr;
    if (periods < 1) return vlqStsBadSize;
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkRates(rates); status != vlqStsOk) return status;
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
    const Vlq64s bytes = Vlq64s{periods} * rates.down * static_cast<Vlq64s>(sizeof(Sample));
    const WorkBuffer copy(nullptr, bytes);
    if (copy.refused()) return vlqStsNoMemory;
    std::memcpy(copy.data(), srcDst, static_cast<std::size_t>(bytes));
    polyphaseDirect(copy.as<const Sample>(), srcDst, periods, taps, tapsLen, rates, dlyLine, scale);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIRMR_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s numIters,
                                    const Vlq32f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    Vlq32f* dlyLine) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_32f_I(Vlq32f* srcDst, Vlq32s numIters, const Vlq32f* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, Vlq32f* dlyLine) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s numIters,
                                     const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                     Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                     Vlq32fc* dlyLine) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s numIters, const Vlq32fc* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq32fc* dlyLine) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s numIters,
                                    const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    Vlq64f* dlyLine) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_64f_I(Vlq64f* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, Vlq64f* dlyLine) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s numIters,
                                     const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                     Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                     Vlq64fc* dlyLine) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_64fc_I(Vlq64fc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq64fc* dlyLine) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR64f_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s numIters,
                                       const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                       Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                       Vlq32f* dlyLine) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR64f_Direct_32f_I(Vlq32f* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq32f* dlyLine) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s numIters,
                                         const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                         Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                         Vlq32fc* dlyLine) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase, Vlq32fc* dlyLine) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, Unscaled{});
}
VlqStatus vlq::vlqsFIRMR32f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                           const Vlq32f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                           Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                           Vlq16s* dlyLine, Vlq32s scaleFactor) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq32f* taps,
                                            Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                            Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                            Vlq32s scaleFactor) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                             const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                             Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                             Vlq16sc* dlyLine, Vlq32s scaleFactor) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq32fc* taps,
                                              Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                              Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                              Vlq32s scaleFactor) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                           const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                           Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                           Vlq16s* dlyLine, Vlq32s scaleFactor) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                            Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                            Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                            Vlq32s scaleFactor) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                             const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                             Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                             Vlq16sc* dlyLine, Vlq32s scaleFactor) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                              Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                              Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                              Vlq32s scaleFactor) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64f_Direct_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s numIters,
                                           const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                           Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                           Vlq32s* dlyLine, Vlq32s scaleFactor) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64f_Direct_32s_ISfs(Vlq32s* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                            Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                            Vlq32s downFactor, Vlq32s downPhase, Vlq32s* dlyLine,
                                            Vlq32s scaleFactor) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s numIters,
                                             const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                             Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                             Vlq32sc* dlyLine, Vlq32s scaleFactor) {
    return multiRateDirect(src, dst, numIters, taps, tapsLen,
                           {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                              Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                              Vlq32s downFactor, Vlq32s downPhase, Vlq32sc* dlyLine,
                                              Vlq32s scaleFactor) {
    return multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                  {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
