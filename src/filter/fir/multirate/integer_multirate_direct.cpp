// Integer multi-rate filters without a record: taps and delay line are the caller's.
#include "filter/fir/multirate/integer_multirate_state.h"

namespace fir = vlq::fir::integer;

namespace {

// Sums that wrap to 32 bits.
struct RealSum {
    Vlq32u sum = 0;
    void add(Vlq32s x, Vlq32s h) { sum += static_cast<Vlq32u>(x) * static_cast<Vlq32u>(h); }
    Vlq16s result(const fir::Finish& finish) const { return finish(static_cast<Vlq32s>(sum)); }
};
struct ComplexSum {
    RealSum re, im;
    void add(Vlq16sc x, Vlq32sc h) {
        re.add(x.re, h.re);
        re.add(-Vlq32s{x.im}, h.im);
        im.add(x.re, h.im);
        im.add(x.im, h.re);
    }
    Vlq16sc result(const fir::Finish& finish) const {
        return {re.result(finish), im.result(finish)};
    }
};
RealSum sumOf(Vlq16s) { return {}; }
ComplexSum sumOf(Vlq16sc) { return {}; }

// One output: the taps of its phase, the newest `seen` samples of src, and the line behind them.
template <class Sample, class Tap>
Sample output(const Sample* src, std::ptrdiff_t seen, const Sample* dlyLine, const Tap* taps,
              std::ptrdiff_t tapsLen, std::ptrdiff_t up, std::ptrdiff_t phase,
              const fir::Finish& finish) {
    auto sum = sumOf(Sample{});
    std::ptrdiff_t k = phase;
    for (std::ptrdiff_t i = seen; i > 0 && k < tapsLen; k += up)
        sum.add(vlq::loadScalar(src + --i), vlq::loadScalar(taps + k));
    for (std::ptrdiff_t i = 0; k < tapsLen; k += up)
        sum.add(vlq::loadScalar(dlyLine + i++), vlq::loadScalar(taps + k));
    return sum.result(finish);
}

// Puts `count` samples into a line of len, newest first.
template <class Sample>
void moveLine(const Sample* src, std::ptrdiff_t count, Sample* dlyLine, std::ptrdiff_t len) {
    const std::ptrdiff_t fresh = std::min(count, len);
    std::memmove(dlyLine + fresh, dlyLine, static_cast<std::size_t>(len - fresh) * sizeof(Sample));
    for (std::ptrdiff_t i = 0; i < fresh; ++i)
        std::memcpy(dlyLine + i, src + (count - 1 - i), sizeof(Sample));
}

template <class Sample, class Tap>
void filter(const Sample* src, Sample* dst, Vlq32s numIters, const Tap* taps, Vlq32s tapsLen,
            const fir::Rates& rates, Sample* dlyLine, Vlq32s scaleFactor) {
    const fir::Finish finish(-Vlq64s{scaleFactor});
    const Vlq64s up = rates.upFactor, down = rates.downFactor, inputs = numIters * down;
    // Steps at the high rate since the last input; at step 0 of an input its own phase.
    Vlq64s step = rates.downPhase - Vlq64s{rates.upPhase} + up;
    for (Vlq64s n = 0; n < numIters * up; ++n, step += down) {
        const Sample y = output(src, step / up, dlyLine, taps, tapsLen, up, step % up, finish);
        std::memcpy(dst + n, &y, sizeof y);
    }
    moveLine(src, inputs, dlyLine, (tapsLen + up - 1) / up);
}

template <class Sample, class Tap>
VlqStatus checked(const Sample* src, const Sample* dst, Vlq32s numIters, const Tap* taps,
                  Vlq32s tapsLen, const fir::Rates& rates, const Sample* dlyLine) {
    if (!src || !dst) return vlqStsNullPtr;
    if (numIters < 1) return vlqStsBadSize;
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (rates.upFactor < 1 || rates.downFactor < 1) return vlqStsBadRateFactor;
    if (rates.upPhase < 0 || rates.upPhase >= rates.upFactor) return vlqStsBadRatePhase;
    if (rates.downPhase < 0 || rates.downPhase >= rates.downFactor) return vlqStsBadRatePhase;
    if (!dlyLine) return vlqStsNullPtr;
    return vlqStsOk;
}

template <class Sample, class Tap>
VlqStatus direct(const Sample* src, Sample* dst, Vlq32s numIters, const Tap* taps, Vlq32s tapsLen,
                 const fir::Rates& rates, Sample* dlyLine, Vlq32s scaleFactor) {
    if (const VlqStatus status = checked(src, dst, numIters, taps, tapsLen, rates, dlyLine);
        status != vlqStsOk)
        return status;
    filter(src, dst, numIters, taps, tapsLen, rates, dlyLine, scaleFactor);
    return vlqStsOk;
}

// From a copy of the input.
template <class Sample, class Tap>
VlqStatus directInPlace(Sample* srcDst, Vlq32s numIters, const Tap* taps, Vlq32s tapsLen,
                        const fir::Rates& rates, Sample* dlyLine, Vlq32s scaleFactor) {
    if (const VlqStatus status = checked(srcDst, srcDst, numIters, taps, tapsLen, rates, dlyLine);
        status != vlqStsOk)
        return status;
    const Vlq64s inputs = Vlq64s{numIters} * rates.downFactor;
    constexpr Vlq32s bytes = sizeof(Sample), most = std::numeric_limits<Vlq32s>::max() / bytes;
    Vlq8u* memory =
        inputs > most ? nullptr : vlq::vlqsMalloc_8u(static_cast<Vlq32s>(inputs) * bytes);
    if (!memory) return vlqStsNoMemory;
    std::memcpy(memory, srcDst, static_cast<std::size_t>(inputs) * sizeof(Sample));
    filter(reinterpret_cast<const Sample*>(memory), srcDst, numIters, taps, tapsLen, rates, dlyLine,
           scaleFactor);
    vlq::vlqsFree(memory);
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
