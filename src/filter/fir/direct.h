// FIR filters without a record: the caller keeps taps, a store of twice tapsLen samples and an
// index. The store is the ring of a record's single samples: the window line[i .. i + tapsLen - 1]
// holds the past, oldest sample first, wherever the index i stands.
#pragma once

#include <cmath>
#include <limits>

#include "filter/fir/block.h"
#include "filter/fir/direct_kernels.h"

namespace vlq::fir {

inline void reverseInPlace(Vlq32f* v, Vlq32s len) { vlqsFlip_32f_I(v, len); }
inline void reverseInPlace(Vlq32fc* v, Vlq32s len) { vlqsFlip_32fc_I(v, len); }
inline void reverseInPlace(Vlq64f* v, Vlq32s len) { vlqsFlip_64f_I(v, len); }
inline void reverseInPlace(Vlq64fc* v, Vlq32s len) { vlqsFlip_64fc_I(v, len); }

// Puts a sample into the ring and answers the sum over the window that it ends.
template <class Tap, class Sample>
Tap ringStep(Sample sample, const Tap* taps, Vlq32s tapsLen, Sample* line, Vlq32s& index) {
    write(line + index, sample);
    write(line + index + tapsLen, sample);
    index = index + 1 == tapsLen ? 0 : index + 1;
    return ringSum(line + index, taps, tapsLen);
}

// How a sum is stored: as it is, or scaled by 2^-scaleFactor, saturated, and then rounded half away
// from zero.
struct StoreAsIs {
    template <class Tap, class Sample>
    void operator()(Tap sum, Sample* dst) const {
        write(dst, convertTo<Sample>(sum));
    }
};
template <class Tap>
class StoreScaled {
public:
    explicit StoreScaled(Vlq32s scaleFactor)
        : isPlain_(scaleFactor > -kSpan && scaleFactor < kSpan), scaleFactor_(scaleFactor) {
        if (isPlain_) factor_ = std::ldexp(Real(1), -scaleFactor);
    }
    template <class Sample>
    void operator()(Tap sum, Sample* dst) const {
        if constexpr (Complex<Tap>) {
            write(parts(dst), round<Part<Sample>>(sum.re));
            write(parts(dst) + 1, round<Part<Sample>>(sum.im));
        } else {
            write(dst, round<Sample>(sum));
        }
    }

private:
    using Real = Part<Tap>;
    static constexpr Vlq32s kSpan =
        std::numeric_limits<Real>::max_exponent - 1;  // the factor is a normal number

    template <class Integer>
    Integer round(Real sum) const {
        constexpr Real low = std::numeric_limits<Integer>::min();
        constexpr Real high = std::numeric_limits<Integer>::max();
        constexpr int beyond = 2 * std::numeric_limits<Real>::max_exponent + 64;
        const Real scaled = isPlain_ ? sum * factor_
                                     : std::ldexp(sum, scaleFactor_ > beyond    ? -beyond
                                                       : scaleFactor_ < -beyond ? beyond
                                                                                : -scaleFactor_);
        if (!(scaled < high))
            return std::numeric_limits<Integer>::max();  // also what is not a number
        if (scaled <= low) return std::numeric_limits<Integer>::min();
        return static_cast<Integer>(scaled + (scaled < 0 ? Real(-0.5) : Real(0.5)));
    }

    bool isPlain_;
    Vlq32s scaleFactor_;
    Real factor_ = 0;
};

// A sample after the other; dst may be src.
template <class Tap, class Sample, class Store>
void ringSamples(const Sample* src, Sample* dst, Vlq32s len, const Tap* taps, Vlq32s tapsLen,
                 Sample* line, Vlq32s* index, Store store) {
    Vlq32s i = *index;
    for (Vlq32s n = 0; n < len; ++n)
        store(ringStep(read(src + n), taps, tapsLen, line, i), dst + n);
    *index = i;
}

// Through a record that lives for the call. filter(state) runs it. The index stays where it is;
// what lies before it is renewed with the window, of which it is the later part.
template <class State, class Tap, class Filter>
VlqStatus throughRecord(const Tap* taps, Vlq32s tapsLen, SampleOf<State>* line, Vlq32s index,
                        Filter filter) {
    using Sample = SampleOf<State>;
    Sample* window = line + index;
    reverseInPlace(window, tapsLen);
    State* state;
    VlqStatus status = initAlloc(&state, taps, tapsLen, window);
    if (status != vlqStsOk) {
        reverseInPlace(window, tapsLen);
        return status;
    }
    status = filter(state);
    narrow(state->dlyLine.get(), window, tapsLen, Unscaled{});
    if (index > 0) widen(line + tapsLen, line, index);
    release(state);
    return status;
}

// Samples of the taps' own type, fewer taps than `limit`: the first outputs, whose windows reach
// into the past, one by one, the others straight from src.
template <int limit, class E>
void directRing(const E* src, E* dst, Vlq32s len, const E* taps, Vlq32s tapsLen, E* line,
                Vlq32s* index) {
    const Vlq32s past = std::min(tapsLen - 1, len);
    ringSamples(src, dst, past, taps, tapsLen, line, index, StoreAsIs{});
    if (tapsLen > len) return;
    alignas(64) E table[limit * kTableEntry<E>];
    E* wide = table;
    for (Vlq32s k = 0; k < tapsLen; ++k) wide = writeWide(wide, read(taps + k));
    const Vlq32s threads = threadsFor<E>(len);
    if (threads > 1) {
        const E* tapsWide = table;
        shareEvenly(threads, len - past, [=](Vlq32s first, Vlq32s count) {
            direct(tapsWide, src + first, dst + past + first, count, tapsLen);
        });
    } else {
        direct<E>(table, src, dst + past, len - past, tapsLen);
    }
    // The new window lies at the index, and its later part in front of it too.
    widen(src + (len - tapsLen), line + past, tapsLen);
    if (past > 0) widen(src + (len - past), line, past);
    *index = past;
}

// ---- what the exports do ------------------------------------------------------------------------

template <class Tap, class Sample>
VlqStatus checkExternal(const Tap* taps, Vlq32s tapsLen, const Sample* dlyLine,
                        const Vlq32s* index) {
    if (!taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (!dlyLine || !index) return vlqStsNullPtr;
    return vlqStsOk;
}
template <class Tap, class Sample>
VlqStatus checkExternal(const Sample* src, const Sample* dst, Vlq32s len, const Tap* taps,
                        Vlq32s tapsLen, const Sample* dlyLine, const Vlq32s* index) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return checkExternal(taps, tapsLen, dlyLine, index);
}

template <class Tap, class Sample, class Store>
VlqStatus externalOne(Sample src, Sample* dst, const Tap* taps, Vlq32s tapsLen, Sample* dlyLine,
                      Vlq32s* index, Store store) {
    if (!dst) return vlqStsNullPtr;
    if (const VlqStatus status = checkExternal(taps, tapsLen, dlyLine, index); status != vlqStsOk)
        return status;
    store(ringStep(src, taps, tapsLen, dlyLine, *index), dst);
    return vlqStsOk;
}
template <class Tap, class Sample, class Store>
VlqStatus externalOneInPlace(Sample* srcDst, const Tap* taps, Vlq32s tapsLen, Sample* dlyLine,
                             Vlq32s* index, Store store) {
    if (!srcDst) return vlqStsNullPtr;
    return externalOne(read(srcDst), srcDst, taps, tapsLen, dlyLine, index, store);
}

// A block, sample by sample.
template <class Tap, class Sample, class Store>
VlqStatus externalSamples(const Sample* src, Sample* dst, Vlq32s len, const Tap* taps,
                          Vlq32s tapsLen, Sample* dlyLine, Vlq32s* index, Store store) {
    const VlqStatus status = checkExternal(src, dst, len, taps, tapsLen, dlyLine, index);
    if (status == vlqStsOk) ringSamples(src, dst, len, taps, tapsLen, dlyLine, index, store);
    return status;
}

// A block: filters of fewer than `limit` taps directly, others through a record.
template <int limit, class State, class E>
VlqStatus externalBlock(const E* src, E* dst, Vlq32s len, const E* taps, Vlq32s tapsLen, E* dlyLine,
                        Vlq32s* index) {
    const VlqStatus status = checkExternal(src, dst, len, taps, tapsLen, dlyLine, index);
    if (status != vlqStsOk) return status;
    if (tapsLen < limit) {
        directRing<limit>(src, dst, len, taps, tapsLen, dlyLine, index);
        return vlqStsOk;
    }
    return throughRecord<State>(taps, tapsLen, dlyLine, *index, [&](State* state) {
        return filter(src, dst, len, state, Unscaled{});
    });
}
template <class State, class E>
VlqStatus externalBlockInPlace(E* srcDst, Vlq32s len, const E* taps, Vlq32s tapsLen, E* dlyLine,
                               Vlq32s* index) {
    const VlqStatus status = checkExternal(srcDst, srcDst, len, taps, tapsLen, dlyLine, index);
    if (status != vlqStsOk) return status;
    return throughRecord<State>(taps, tapsLen, dlyLine, *index,
                                [&](State* state) { return filterInPlace(srcDst, len, state); });
}

// Floating samples of a narrower type: blocks shorter than `limit` sample by sample, others through
// a record.
template <int limit, class State, class Tap, class Sample>
VlqStatus externalNarrow(const Sample* src, Sample* dst, Vlq32s len, const Tap* taps,
                         Vlq32s tapsLen, Sample* dlyLine, Vlq32s* index) {
    const VlqStatus status = checkExternal(src, dst, len, taps, tapsLen, dlyLine, index);
    if (status != vlqStsOk) return status;
    if (len < limit) {
        ringSamples(src, dst, len, taps, tapsLen, dlyLine, index, StoreAsIs{});
        return vlqStsOk;
    }
    return throughRecord<State>(taps, tapsLen, dlyLine, *index, [&](State* state) {
        return src == dst ? filterNarrowInPlace(dst, len, state, Unscaled{})
                          : filter(src, dst, len, state, Unscaled{});
    });
}

}  // namespace vlq::fir
