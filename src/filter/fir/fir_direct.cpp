// FIR filters without a state: the caller keeps taps, a line of twice tapsLen samples and an index.
// The line is the ring of a state's single samples: the window line[i .. i + tapsLen - 1], i being
// the index, holds the latest samples, oldest first.
#include <algorithm>
#include <limits>

#include "filter/common/delay_line.h"
#include "filter/common/tap_table.h"
#include "filter/fir/direct_kernels.h"
#include "filter/fir/time_domain.h"
#include "vlqs/move.h"

namespace {

using namespace vlq;
using namespace vlq::fir;

// The calls of a state that exists for one call.
template <class State>
struct Calls;
template <>
struct Calls<VlqsFIRState_32f> {
    static constexpr auto init = vlqsFIRInitAlloc_32f;
    static constexpr auto filter = vlqsFIR_32f;
    static constexpr auto filterInPlace = vlqsFIR_32f_I;
    static constexpr auto free = vlqsFIRFree_32f;
};
template <>
struct Calls<VlqsFIRState_32fc> {
    static constexpr auto init = vlqsFIRInitAlloc_32fc;
    static constexpr auto filter = vlqsFIR_32fc;
    static constexpr auto filterInPlace = vlqsFIR_32fc_I;
    static constexpr auto free = vlqsFIRFree_32fc;
};
template <>
struct Calls<VlqsFIRState_64f> {
    static constexpr auto init = vlqsFIRInitAlloc_64f;
    static constexpr auto filter = vlqsFIR_64f;
    static constexpr auto filterInPlace = vlqsFIR_64f_I;
    static constexpr auto free = vlqsFIRFree_64f;
};
template <>
struct Calls<VlqsFIRState_64fc> {
    static constexpr auto init = vlqsFIRInitAlloc_64fc;
    static constexpr auto filter = vlqsFIR_64fc;
    static constexpr auto filterInPlace = vlqsFIR_64fc_I;
    static constexpr auto free = vlqsFIRFree_64fc;
};
template <>
struct Calls<VlqsFIRState64f_32f> {
    static constexpr auto init = vlqsFIRInitAlloc64f_32f;
    static constexpr auto filter = vlqsFIR64f_32f;
    static constexpr auto filterInPlace = vlqsFIR64f_32f_I;
    static constexpr auto free = vlqsFIRFree64f_32f;
};
template <>
struct Calls<VlqsFIRState64fc_32fc> {
    static constexpr auto init = vlqsFIRInitAlloc64fc_32fc;
    static constexpr auto filter = vlqsFIR64fc_32fc;
    static constexpr auto filterInPlace = vlqsFIR64fc_32fc_I;
    static constexpr auto free = vlqsFIRFree64fc_32fc;
};

void reverseInPlace(Vlq32f* v, Vlq32s len) { vlqsFlip_32f_I(v, len); }
void reverseInPlace(Vlq32fc* v, Vlq32s len) { vlqsFlip_32fc_I(v, len); }
void reverseInPlace(Vlq64f* v, Vlq32s len) { vlqsFlip_64f_I(v, len); }
void reverseInPlace(Vlq64fc* v, Vlq32s len) { vlqsFlip_64fc_I(v, len); }

// Puts a sample into the ring and returns the sum over the window that it ends.
template <class Tap, class Sample>
Tap ringStep(Sample sample, const Tap* taps, Vlq32s tapsLen, Sample* line, Vlq32s& index) {
    index = pushIntoRing(sample, line, tapsLen, index);
    return ringSum(line + index, taps, tapsLen);
}

// Sample by sample; dst may be src.
template <class Tap, class Sample, class Store>
void ringSamples(const Sample* src, Sample* dst, Vlq32s len, const Tap* taps, Vlq32s tapsLen,
                 Sample* line, Vlq32s* index, Store store) {
    Vlq32s i = *index;
    for (Vlq32s n = 0; n < len; ++n)
        store(ringStep(loadScalar(src + n), taps, tapsLen, line, i), dst + n);
    *index = i;
}

// Through a state that exists for the call. filter(state) runs it. The index stays as it is; the
// line before it becomes the later part of the new window.
template <class State, class Tap, class Filter>
VlqStatus throughState(const Tap* taps, Vlq32s tapsLen, SampleOf<State>* line, Vlq32s index,
                       Filter filter) {
    using Sample = SampleOf<State>;
    Sample* window = line + index;
    reverseInPlace(window, tapsLen);
    State* state;
    VlqStatus status = Calls<State>::init(&state, taps, tapsLen, window);
    if (status != vlqStsOk) {
        reverseInPlace(window, tapsLen);
        return status;
    }
    status = filter(state);
    narrow(state->dlyLine.get(), window, tapsLen, Unscaled{});
    if (index > 0) widen(line + tapsLen, line, index);
    Calls<State>::free(state);
    return status;
}

// Samples of the taps' own type, fewer taps than `limit`: the first outputs, whose windows reach
// back before src, one by one, the others from src itself.
template <int limit, class E>
void timeDomain(const E* src, E* dst, Vlq32s len, const E* taps, Vlq32s tapsLen, E* line,
                Vlq32s* index) {
    const Vlq32s history = std::min(tapsLen - 1, len);
    ringSamples(src, dst, history, taps, tapsLen, line, index, StoreAsIs{});
    if (tapsLen > len) return;
    alignas(64) E table[limit * kTableEntry<E>];
    E* wide = table;
    for (Vlq32s k = 0; k < tapsLen; ++k) wide = writeWide(wide, loadScalar(taps + k));
    constexpr Vlq32s anyNumber = std::numeric_limits<Vlq32s>::max();
    const Vlq32s threads = timeDomainTeam<E>(anyNumber, len, tapsLen);
    if (threads > 1) {
        const E* tapsWide = table;
        shareEvenly(threads, len - history, [=](Vlq32s first, Vlq32s count) {
            convolve(tapsWide, src + first, dst + history + first, count, tapsLen);
        });
    } else {
        convolve<E>(table, src, dst + history, len - history, tapsLen);
    }
    // The new window begins at the index; its later part comes before it too.
    widen(src + (len - tapsLen), line + history, tapsLen);
    if (history > 0) widen(src + (len - history), line, history);
    *index = history;
}

// ---- what the exports do ------------------------------------------------------------------------

template <class Tap, class Sample>
VlqStatus check(const Tap* taps, Vlq32s tapsLen, const Sample* dlyLine, const Vlq32s* index) {
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (!dlyLine || !index) return vlqStsNullPtr;
    return vlqStsOk;
}
template <class Tap, class Sample>
VlqStatus check(const Sample* src, const Sample* dst, Vlq32s len, const Tap* taps, Vlq32s tapsLen,
                const Sample* dlyLine, const Vlq32s* index) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return check(taps, tapsLen, dlyLine, index);
}

template <class Tap, class Sample, class Store>
VlqStatus one(Sample src, Sample* dst, const Tap* taps, Vlq32s tapsLen, Sample* dlyLine,
              Vlq32s* index, Store store) {
    if (!dst) return vlqStsNullPtr;
    if (const VlqStatus status = check(taps, tapsLen, dlyLine, index); status != vlqStsOk)
        return status;
    store(ringStep(src, taps, tapsLen, dlyLine, *index), dst);
    return vlqStsOk;
}
template <class Tap, class Sample, class Store>
VlqStatus oneInPlace(Sample* srcDst, const Tap* taps, Vlq32s tapsLen, Sample* dlyLine,
                     Vlq32s* index, Store store) {
    if (!srcDst) return vlqStsNullPtr;
    return one(loadScalar(srcDst), srcDst, taps, tapsLen, dlyLine, index, store);
}

// A block, sample by sample.
template <class Tap, class Sample, class Store>
VlqStatus sampleBySample(const Sample* src, Sample* dst, Vlq32s len, const Tap* taps,
                         Vlq32s tapsLen, Sample* dlyLine, Vlq32s* index, Store store) {
    const VlqStatus status = check(src, dst, len, taps, tapsLen, dlyLine, index);
    if (status == vlqStsOk) ringSamples(src, dst, len, taps, tapsLen, dlyLine, index, store);
    return status;
}

// A block: filters of fewer than `limit` taps in the time domain, others through a state.
template <int limit, class State, class E>
VlqStatus block(const E* src, E* dst, Vlq32s len, const E* taps, Vlq32s tapsLen, E* dlyLine,
                Vlq32s* index) {
    const VlqStatus status = check(src, dst, len, taps, tapsLen, dlyLine, index);
    if (status != vlqStsOk) return status;
    if (tapsLen < limit) {
        timeDomain<limit>(src, dst, len, taps, tapsLen, dlyLine, index);
        return vlqStsOk;
    }
    return throughState<State>(taps, tapsLen, dlyLine, *index, [&](State* state) {
        return Calls<State>::filter(src, dst, len, state);
    });
}
template <class State, class E>
VlqStatus blockInPlace(E* srcDst, Vlq32s len, const E* taps, Vlq32s tapsLen, E* dlyLine,
                       Vlq32s* index) {
    const VlqStatus status = check(srcDst, srcDst, len, taps, tapsLen, dlyLine, index);
    if (status != vlqStsOk) return status;
    return throughState<State>(taps, tapsLen, dlyLine, *index, [&](State* state) {
        return Calls<State>::filterInPlace(srcDst, len, state);
    });
}

// Floating samples of a narrower type: blocks shorter than `limit` sample by sample, others through
// a state.
template <int limit, class State, class Tap, class Sample>
VlqStatus narrowBlock(const Sample* src, Sample* dst, Vlq32s len, const Tap* taps, Vlq32s tapsLen,
                      Sample* dlyLine, Vlq32s* index) {
    const VlqStatus status = check(src, dst, len, taps, tapsLen, dlyLine, index);
    if (status != vlqStsOk) return status;
    if (len < limit) {
        ringSamples(src, dst, len, taps, tapsLen, dlyLine, index, StoreAsIs{});
        return vlqStsOk;
    }
    return throughState<State>(taps, tapsLen, dlyLine, *index, [&](State* state) {
        return src == dst ? Calls<State>::filterInPlace(dst, len, state)
                          : Calls<State>::filter(src, dst, len, state);
    });
}

}  // namespace

VlqStatus vlq::vlqsFIR_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, const Vlq32f* taps,
                                  Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return block<64, VlqsFIRState_32f>(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIR_Direct_32f_I(Vlq32f* srcDst, Vlq32s len, const Vlq32f* taps, Vlq32s tapsLen,
                                    Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return blockInPlace<VlqsFIRState_32f>(srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne_Direct_32f(Vlq32f src, Vlq32f* dst, const Vlq32f* taps, Vlq32s tapsLen,
                                     Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne_Direct_32f_I(Vlq32f* srcDst, const Vlq32f* taps, Vlq32s tapsLen,
                                       Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIR_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                                   const Vlq32fc* taps, Vlq32s tapsLen, Vlq32fc* dlyLine,
                                   Vlq32s* dlyLineIndex) {
    return block<32, VlqsFIRState_32fc>(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIR_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s len, const Vlq32fc* taps,
                                     Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return blockInPlace<VlqsFIRState_32fc>(srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne_Direct_32fc(Vlq32fc src, Vlq32fc* dst, const Vlq32fc* taps,
                                      Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne_Direct_32fc_I(Vlq32fc* srcDst, const Vlq32fc* taps, Vlq32s tapsLen,
                                        Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}

VlqStatus vlq::vlqsFIR32f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                         const Vlq32f* taps, Vlq32s tapsLen, Vlq16s* dlyLine,
                                         Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return sampleBySample(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq32f>(scaleFactor));
}
VlqStatus vlq::vlqsFIR32f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq32f* taps,
                                          Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor) {
    return sampleBySample(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq32f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne32f_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq32f* taps,
                                            Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreScaled<Vlq32f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne32f_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq32f* taps, Vlq32s tapsLen,
                                             Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                             Vlq32s scaleFactor) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                      StoreScaled<Vlq32f>(scaleFactor));
}

VlqStatus vlq::vlqsFIR32fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                           const Vlq32fc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                           Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return sampleBySample(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq32fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIR32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq32fc* taps,
                                            Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return sampleBySample(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq32fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne32fc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq32fc* taps,
                                              Vlq32s tapsLen, Vlq16sc* dlyLine,
                                              Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreScaled<Vlq32fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq32fc* taps, Vlq32s tapsLen,
                                               Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                               Vlq32s scaleFactor) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                      StoreScaled<Vlq32fc>(scaleFactor));
}

VlqStatus vlq::vlqsFIR_Direct_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len,
                                   const Vlq64fc* taps, Vlq32s tapsLen, Vlq64fc* dlyLine,
                                   Vlq32s* dlyLineIndex) {
    return block<16, VlqsFIRState_64fc>(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIR_Direct_64fc_I(Vlq64fc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                     Vlq32s tapsLen, Vlq64fc* dlyLine, Vlq32s* dlyLineIndex) {
    return blockInPlace<VlqsFIRState_64fc>(srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne_Direct_64fc(Vlq64fc src, Vlq64fc* dst, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq64fc* dlyLine, Vlq32s* dlyLineIndex) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne_Direct_64fc_I(Vlq64fc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                        Vlq64fc* dlyLine, Vlq32s* dlyLineIndex) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIR64fc_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                                       const Vlq64fc* taps, Vlq32s tapsLen, Vlq32fc* dlyLine,
                                       Vlq32s* dlyLineIndex) {
    return narrowBlock<128, VlqsFIRState64fc_32fc>(src, dst, len, taps, tapsLen, dlyLine,
                                                   dlyLineIndex);
}
VlqStatus vlq::vlqsFIR64fc_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return narrowBlock<128, VlqsFIRState64fc_32fc>(srcDst, srcDst, len, taps, tapsLen, dlyLine,
                                                   dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne64fc_Direct_32fc(Vlq32fc src, Vlq32fc* dst, const Vlq64fc* taps,
                                          Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne64fc_Direct_32fc_I(Vlq32fc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                            Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIR64fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                           const Vlq64fc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                           Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return sampleBySample(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                            Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return sampleBySample(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64fc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq64fc* taps,
                                              Vlq32s tapsLen, Vlq16sc* dlyLine,
                                              Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                               Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                               Vlq32s scaleFactor) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                      StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64fc_Direct_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len,
                                           const Vlq64fc* taps, Vlq32s tapsLen, Vlq32sc* dlyLine,
                                           Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return sampleBySample(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                            Vlq32s tapsLen, Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return sampleBySample(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64fc_Direct_32sc_Sfs(Vlq32sc src, Vlq32sc* dst, const Vlq64fc* taps,
                                              Vlq32s tapsLen, Vlq32sc* dlyLine,
                                              Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                               Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                               Vlq32s scaleFactor) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                      StoreScaled<Vlq64fc>(scaleFactor));
}

VlqStatus vlq::vlqsFIR_Direct_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, const Vlq64f* taps,
                                  Vlq32s tapsLen, Vlq64f* dlyLine, Vlq32s* dlyLineIndex) {
    return block<32, VlqsFIRState_64f>(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIR_Direct_64f_I(Vlq64f* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                                    Vlq64f* dlyLine, Vlq32s* dlyLineIndex) {
    return blockInPlace<VlqsFIRState_64f>(srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne_Direct_64f(Vlq64f src, Vlq64f* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                     Vlq64f* dlyLine, Vlq32s* dlyLineIndex) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne_Direct_64f_I(Vlq64f* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                       Vlq64f* dlyLine, Vlq32s* dlyLineIndex) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIR64f_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, const Vlq64f* taps,
                                     Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return narrowBlock<256, VlqsFIRState64f_32f>(src, dst, len, taps, tapsLen, dlyLine,
                                                 dlyLineIndex);
}
VlqStatus vlq::vlqsFIR64f_Direct_32f_I(Vlq32f* srcDst, Vlq32s len, const Vlq64f* taps,
                                       Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return narrowBlock<256, VlqsFIRState64f_32f>(srcDst, srcDst, len, taps, tapsLen, dlyLine,
                                                 dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne64f_Direct_32f(Vlq32f src, Vlq32f* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                        Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne64f_Direct_32f_I(Vlq32f* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                          Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, StoreAsIs{});
}
VlqStatus vlq::vlqsFIR64f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                         const Vlq64f* taps, Vlq32s tapsLen, Vlq16s* dlyLine,
                                         Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return sampleBySample(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq64f* taps,
                                          Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor) {
    return sampleBySample(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64f_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq64f* taps,
                                            Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64f_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                             Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                             Vlq32s scaleFactor) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                      StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64f_Direct_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len,
                                         const Vlq64f* taps, Vlq32s tapsLen, Vlq32s* dlyLine,
                                         Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return sampleBySample(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64f_Direct_32s_ISfs(Vlq32s* srcDst, Vlq32s len, const Vlq64f* taps,
                                          Vlq32s tapsLen, Vlq32s* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor) {
    return sampleBySample(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                          StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64f_Direct_32s_Sfs(Vlq32s src, Vlq32s* dst, const Vlq64f* taps,
                                            Vlq32s tapsLen, Vlq32s* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return one(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64f_Direct_32s_ISfs(Vlq32s* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                             Vlq32s* dlyLine, Vlq32s* dlyLineIndex,
                                             Vlq32s scaleFactor) {
    return oneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                      StoreScaled<Vlq64f>(scaleFactor));
}
