// Integer FIR filters without a state: taps and delay line are the caller's.
#include "filter/common/delay_line.h"
#include "filter/fir/integer/integer_block.h"
#include "filter/fir/integer/integer_build.h"

namespace {

using namespace vlq;
using namespace vlq::fir;
using namespace vlq::fir::integer;

// ---- a ring of the caller's ---------------------------------------------------------------------
// Taps are in natural order, and the sums wrap to 32 bits.

template <class Tap>
Vlq16s filtered(const Vlq16s* window, Vlq16s newest, const Tap* taps, std::ptrdiff_t len,
                const Finish& finish) {
    Vlq32s sum = wrappingMultiply(newest, loadScalar(taps));
    const Tap* tap = taps + len - 1;
    for (std::ptrdiff_t j = 0; j < len - 1; ++j) {
        sum = wrappingAdd(sum, wrappingMultiply(loadScalar(window + j), loadScalar(tap - j)));
    }
    return finish(sum);
}

Vlq16sc filtered(const Vlq16sc* window, Vlq16sc newest, const Vlq32sc* taps, std::ptrdiff_t len,
                 const Finish& finish) {
    Vlq32s re = 0, im = 0;
    auto add = [&](Vlq16sc x, Vlq32sc h) {
        re = wrappingAdd(re, wrappingAdd(wrappingMultiply(x.re, h.re),
                                         wrappingMultiply(wrappingMultiply(x.im, h.im), -1)));
        im = wrappingAdd(im,
                         wrappingAdd(wrappingMultiply(x.re, h.im), wrappingMultiply(x.im, h.re)));
    };
    const Vlq32sc* tap = taps + len - 1;
    for (std::ptrdiff_t j = 0; j < len - 1; ++j) add(loadScalar(window + j), loadScalar(tap - j));
    add(newest, loadScalar(taps));
    return {finish(re), finish(im)};
}

// Filters the window that a new sample ends.
template <class Sample, class Tap>
Sample step(Sample src, const Tap* taps, Vlq32s tapsLen, Sample* dlyLine, Vlq32s& index,
            const Finish& finish) {
    index = pushIntoRing(src, dlyLine, tapsLen, index);
    return filtered(dlyLine + index, src, taps, tapsLen, finish);
}

bool isIndex(Vlq32s index, Vlq32s tapsLen) { return index >= 0 && index < tapsLen; }

// Only the 16-bit variant looks at the index.
template <bool checksIndex, class Sample, class Tap>
VlqStatus oneDirect(Sample src, Sample* dst, const Tap* taps, Vlq32s tapsLen, Sample* dlyLine,
                    Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (!dlyLine || !dlyLineIndex) return vlqStsNullPtr;
    Vlq32s index = loadScalar(dlyLineIndex);
    if (checksIndex && !isIndex(index, tapsLen)) return vlqStsBadDlyIndex;
    const Sample result = step(src, taps, tapsLen, dlyLine, index, Finish(-Vlq64s{scaleFactor}));
    std::memcpy(dst, &result, sizeof result);
    std::memcpy(dlyLineIndex, &index, sizeof index);
    return vlqStsOk;
}
template <bool checksIndex, class Sample, class Tap>
VlqStatus oneDirectOf(Sample src, Sample* dst, const Tap* taps, Vlq32s tapsLen, Sample* dlyLine,
                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    if (!dst) return vlqStsNullPtr;
    return oneDirect<checksIndex>(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
template <bool checksIndex, class Sample, class Tap>
VlqStatus oneDirectInPlace(Sample* srcDst, const Tap* taps, Vlq32s tapsLen, Sample* dlyLine,
                           Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    if (!srcDst) return vlqStsNullPtr;
    return oneDirect<checksIndex>(loadScalar(srcDst), srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                                  scaleFactor);
}

// dst may be src.
template <class Sample, class Tap>
VlqStatus blockDirect(const Sample* src, Sample* dst, Vlq32s len, const Tap* taps, Vlq32s tapsLen,
                      Sample* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (!dlyLine || !dlyLineIndex) return vlqStsNullPtr;
    const Finish finish(-Vlq64s{scaleFactor});
    Vlq32s index = loadScalar(dlyLineIndex);
    for (Vlq32s i = 0; i < len; ++i) {
        const Sample result = step(loadScalar(src + i), taps, tapsLen, dlyLine, index, finish);
        std::memcpy(dst + i, &result, sizeof result);
    }
    std::memcpy(dlyLineIndex, &index, sizeof index);
    return vlqStsOk;
}

// ---- 16-bit taps in units of 2^-15, by a state for the call -------------------------------------
// Here the window at the index is newest first, and comes back so at the start of the line.

constexpr Vlq32s kQ15 = -15;

// As they are, -32768 included.
struct Q15Taps {
    void operator()(VlqsFIRState32s_16s& state, const Vlq16s* taps) const {
        takeTaps(state, taps, Keep{}, kQ15);
    }
};

// dst may be src.
VlqStatus blockQ15(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq16s* taps, Vlq32s tapsLen,
                   Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (!dlyLine || !dlyLineIndex) return vlqStsNullPtr;
    const Vlq32s index = loadScalar(dlyLineIndex);
    if (!isIndex(index, tapsLen)) return vlqStsBadDlyIndex;
    VlqsFIRState32s_16s* state = nullptr;
    const VlqStatus status = buildAllocated(&state, taps, tapsLen, dlyLine + index, Q15Taps{});
    if (status != vlqStsOk) return status;
    const Finish finish = finishOf(*state, scaleFactor);
    if (src == dst)
        blockInPlace(*state, dst, len, finish);
    else
        block(*state, src, dst, len, finish);
    readDelayLine(*state, dlyLine);
    vlqsFree(state);
    storeScalar(dlyLineIndex, 0);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIR_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                      const Vlq16s* taps, Vlq32s tapsLen, Vlq16s* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return blockQ15(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIR_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq16s* taps,
                                       Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor) {
    return blockQ15(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}

VlqStatus vlq::vlqsFIR32s_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                         const Vlq32s* taps, Vlq32s tapsLen, Vlq16s* dlyLine,
                                         Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return blockDirect(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIR32s_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq32s* taps,
                                          Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor) {
    return blockDirect(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIR32sc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                           const Vlq32sc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                           Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return blockDirect(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIR32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq32sc* taps,
                                            Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return blockDirect(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}

VlqStatus vlq::vlqsFIROne_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq16s* taps,
                                         Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor) {
    return oneDirectOf<true>(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIROne_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq16s* taps, Vlq32s tapsLen,
                                          Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor) {
    return oneDirectInPlace<true>(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIROne32s_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq32s* taps,
                                            Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return oneDirectOf<false>(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIROne32s_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq32s* taps, Vlq32s tapsLen,
                                             Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                             Vlq32s scaleFactor) {
    return oneDirectInPlace<false>(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIROne32sc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq32sc* taps,
                                              Vlq32s tapsLen, Vlq16sc* dlyLine,
                                              Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return oneDirectOf<false>(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
VlqStatus vlq::vlqsFIROne32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq32sc* taps, Vlq32s tapsLen,
                                               Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                               Vlq32s scaleFactor) {
    return oneDirectInPlace<false>(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, scaleFactor);
}
