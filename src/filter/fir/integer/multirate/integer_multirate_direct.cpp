// Integer multi-rate filters without a state: taps and delay line are the caller's.
#include "filter/common/delay_line.h"
#include "filter/common/rates.h"
#include "filter/fir/integer/fir_integer_kernels.h"
#include "frame/state/work_buffer.h"
#include "vlqs/fir.h"

namespace {

using namespace vlq;
using namespace vlq::fir;
using namespace vlq::fir::integer;

// Sums that wrap to 32 bits.
struct RealSum {
    Vlq32u sum = 0;
    void add(Vlq32s x, Vlq32s h) { sum += static_cast<Vlq32u>(x) * static_cast<Vlq32u>(h); }
    Vlq16s result(const Finish& finish) const { return finish(static_cast<Vlq32s>(sum)); }
};
struct ComplexSum {
    RealSum re, im;
    void add(Vlq16sc x, Vlq32sc h) {
        re.add(x.re, h.re);
        re.add(-Vlq32s{x.im}, h.im);
        im.add(x.re, h.im);
        im.add(x.im, h.re);
    }
    Vlq16sc result(const Finish& finish) const { return {re.result(finish), im.result(finish)}; }
};
RealSum sumOf(Vlq16s) { return {}; }
ComplexSum sumOf(Vlq16sc) { return {}; }

// One output: the taps of its phase, the newest `seen` samples of src, and the line behind them.
template <class Sample, class Tap>
Sample output(const Sample* src, std::ptrdiff_t seen, const Sample* dlyLine, const Tap* taps,
              std::ptrdiff_t tapsLen, std::ptrdiff_t up, std::ptrdiff_t phase,
              const Finish& finish) {
    auto sum = sumOf(Sample{});
    std::ptrdiff_t k = phase;
    for (std::ptrdiff_t i = seen; i > 0 && k < tapsLen; k += up)
        sum.add(loadScalar(src + --i), loadScalar(taps + k));
    for (std::ptrdiff_t i = 0; k < tapsLen; k += up)
        sum.add(loadScalar(dlyLine + i++), loadScalar(taps + k));
    return sum.result(finish);
}

template <class Sample, class Tap>
void filter(const Sample* src, Sample* dst, Vlq32s numIters, const Tap* taps, Vlq32s tapsLen,
            const Rates& rates, Sample* dlyLine, Vlq32s scaleFactor) {
    const Finish finish(-Vlq64s{scaleFactor});
    const Vlq64s outputs = Vlq64s{numIters} * rates.up, inputs = Vlq64s{numIters} * rates.down;
    OutputWalk place(rates);
    for (Vlq64s n = 0; n < outputs; ++n, place.advance()) {
        storeScalar(dst + n, output(src, place.newest() + 1, dlyLine, taps, tapsLen, rates.up,
                                    place.firstTap(), finish));
    }
    pushNewestFirst(src, inputs, dlyLine, delayLength(tapsLen, rates.up));
}

template <class Sample, class Tap>
VlqStatus check(const Sample* src, const Sample* dst, Vlq32s numIters, const Tap* taps,
                Vlq32s tapsLen, const Rates& rates, const Sample* dlyLine) {
    if (!src || !dst) return vlqStsNullPtr;
    if (numIters < 1) return vlqStsBadSize;
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (const VlqStatus status = checkRates(rates); status != vlqStsOk) return status;
    return dlyLine ? vlqStsOk : vlqStsNullPtr;
}

template <class Sample, class Tap>
VlqStatus direct(const Sample* src, Sample* dst, Vlq32s numIters, const Tap* taps, Vlq32s tapsLen,
                 const Rates& rates, Sample* dlyLine, Vlq32s scaleFactor) {
    const VlqStatus status = check(src, dst, numIters, taps, tapsLen, rates, dlyLine);
    if (status == vlqStsOk) filter(src, dst, numIters, taps, tapsLen, rates, dlyLine, scaleFactor);
    return status;
}

// From a copy of the input.
template <class Sample, class Tap>
VlqStatus directInPlace(Sample* srcDst, Vlq32s numIters, const Tap* taps, Vlq32s tapsLen,
                        const Rates& rates, Sample* dlyLine, Vlq32s scaleFactor) {
    const VlqStatus status = check(srcDst, srcDst, numIters, taps, tapsLen, rates, dlyLine);
    if (status != vlqStsOk) return status;
    constexpr Vlq64s sampleBytes = sizeof(Sample);
    const Vlq64s inputs = Vlq64s{numIters} * rates.down;
    if (inputs > kSizeLimit / sampleBytes) return vlqStsNoMemory;
    const Vlq64s bytes = inputs * sampleBytes;
    const WorkBuffer copy(nullptr, bytes);
    if (copy.refused()) return vlqStsNoMemory;
    std::memcpy(copy.data(), srcDst, static_cast<std::size_t>(bytes));
    filter(copy.as<const Sample>(), srcDst, numIters, taps, tapsLen, rates, dlyLine, scaleFactor);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIRMR_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                        const Vlq16s* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq16s* dlyLine, Vlq32s scaleFactor) {
    return direct(src, dst, numIters, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                  dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq16s* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                         Vlq32s scaleFactor) {
    return directInPlace(srcDst, numIters, taps, tapsLen,
                         {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32s_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                           const Vlq32s* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                           Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                           Vlq16s* dlyLine, Vlq32s scaleFactor) {
    return direct(src, dst, numIters, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                  dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32s_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq32s* taps,
                                            Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                            Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                            Vlq32s scaleFactor) {
    return directInPlace(srcDst, numIters, taps, tapsLen,
                         {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32sc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                             const Vlq32sc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                             Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                             Vlq16sc* dlyLine, Vlq32s scaleFactor) {
    return direct(src, dst, numIters, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                  dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq32sc* taps,
                                              Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                              Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                              Vlq32s scaleFactor) {
    return directInPlace(srcDst, numIters, taps, tapsLen,
                         {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
