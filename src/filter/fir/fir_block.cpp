// Blocks of samples through a floating FIR state, single-rate or multi-rate: checks, and the choice
// between the time domain, overlap-save and the polyphase kernels.
#include "filter/fir/multirate/multirate_block.h"
#include "filter/fir/overlap_save.h"
#include "filter/fir/time_domain.h"

namespace {

using namespace vlq;
using namespace vlq::fir;

template <class State>
constexpr bool kConverts = !std::is_same_v<SampleOf<State>, typename State::Element>;

// Whether a transform was prepared for the taps, and a call of so many samples takes it.
template <class E>
bool usesTransform(const FirState<E>& state, Vlq32s len) {
    return len >= Traits<E>::kTransformLen && state.fftLen > 0;
}

template <class E, class Sample, class Scale>
VlqStatus singleRateBlock(FirState<E>& state, bool transform, const Sample* src, Sample* dst,
                          Vlq32s len, Scale scale) {
    if (transform) return overlapSave(state, src, dst, len, scale);
    if constexpr (std::is_same_v<Sample, E>)
        timeDomainBlock(state, src, dst, len);
    else
        timeDomainPieces(state, src, dst, len, scale);
    return vlqStsOk;
}

// Samples of the element's type: blocks go through the staging area. The samples that are left
// after a block, not the block itself, decide its path: a call that fits the staging area is never
// transformed, and the last block of a long call may take another path than those before it.
template <class E>
VlqStatus singleRateInPlace(FirState<E>& state, E* srcDst, Vlq32s len) {
    E* staging = state.blockBuf;
    while (len > 0) {
        const Vlq32s block = std::min(len, kStaging);
        len -= block;
        const VlqStatus status = singleRateBlock<E, E>(state, usesTransform(state, len), srcDst,
                                                       staging, block, Unscaled{});
        if (status != vlqStsOk) return status;
        widen(staging, srcDst, block);
        srcDst += block;
    }
    return vlqStsOk;
}

// Samples of a narrower type. The pieces of the time domain are widened before they are written
// over; a transform reads behind what it has written, so its results wait in the staging area,
// which holds at least twice its count of such samples.
template <class E, class Sample, class Scale>
VlqStatus singleRateInPlace(FirState<E>& state, Sample* srcDst, Vlq32s len, Scale scale) {
    if (len < Traits<E>::kTransformLen || state.fftLen < 0) {
        timeDomainPieces(state, srcDst, srcDst, len, scale);
        return vlqStsOk;
    }
    auto* staging = reinterpret_cast<Sample*>(state.blockBuf.get());
    while (len > 0) {
        const Vlq32s block = std::min(len, 2 * kStaging);
        const VlqStatus status = overlapSave(state, srcDst, staging, block, scale);
        if (status != vlqStsOk) return status;
        copySamples(staging, srcDst, block);
        srcDst += block;
        len -= block;
    }
    return vlqStsOk;
}

// ---- what the exports do ------------------------------------------------------------------------

template <class State, class Scale>
VlqStatus filterSingleRate(const SampleOf<State>* src, SampleOf<State>* dst, Vlq32s len,
                           State* state, Scale scale) {
    using E = typename State::Element;
    if (!src || !dst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isSingleRate(*state)) return vlqStsBadSpec;
    return singleRateBlock<E>(*state, usesTransform<E>(*state, len), src, dst, len, scale);
}
template <class State, class Scale>
VlqStatus filterSingleRateInPlace(SampleOf<State>* srcDst, Vlq32s len, State* state, Scale scale) {
    using E = typename State::Element;
    if (!srcDst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isSingleRate(*state)) return vlqStsBadSpec;
    if constexpr (kConverts<State>)
        return singleRateInPlace<E>(*state, srcDst, len, scale);
    else
        return singleRateInPlace<E>(*state, srcDst, len);
}

// Of multi-rate states len counts periods.
template <class State, class Scale>
VlqStatus filter(const SampleOf<State>* src, SampleOf<State>* dst, Vlq32s len, State* state,
                 Scale scale) {
    using E = typename State::Element;
    if (!src || !dst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isMultiRate(*state)) return filterSingleRate(src, dst, len, state, scale);
    multiRateFilter<E>(*state, src, dst, len, scale);
    return vlqStsOk;
}
template <class State, class Scale>
VlqStatus filterInPlace(SampleOf<State>* srcDst, Vlq32s len, State* state, Scale scale) {
    using E = typename State::Element;
    if (!srcDst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isMultiRate(*state)) return filterSingleRateInPlace(srcDst, len, state, scale);
    return multiRateInPlace<E>(*state, srcDst, len, scale);
}

}  // namespace

VlqStatus vlq::vlqsFIR_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, VlqsFIRState_32f* state) {
    return filter(src, dst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR_32f_I(Vlq32f* srcDst, Vlq32s len, VlqsFIRState_32f* state) {
    return filterInPlace(srcDst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR32f_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                  VlqsFIRState32f_16s* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32f_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState32f_16s* state,
                                   Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}

VlqStatus vlq::vlqsFIR_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                            VlqsFIRState_32fc* state) {
    return filter(src, dst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR_32fc_I(Vlq32fc* srcDst, Vlq32s len, VlqsFIRState_32fc* state) {
    return filterInPlace(srcDst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR32fc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                    VlqsFIRState32fc_16sc* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32fc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState32fc_16sc* state,
                                     Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}

VlqStatus vlq::vlqsFIR_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len,
                            VlqsFIRState_64fc* state) {
    return filter(src, dst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR_64fc_I(Vlq64fc* srcDst, Vlq32s len, VlqsFIRState_64fc* state) {
    return filterInPlace(srcDst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR64fc_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                                VlqsFIRState64fc_32fc* state) {
    return filter(src, dst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR64fc_32fc_I(Vlq32fc* srcDst, Vlq32s len, VlqsFIRState64fc_32fc* state) {
    return filterInPlace(srcDst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR64fc_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len,
                                    VlqsFIRState64fc_32sc* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64fc_32sc_ISfs(Vlq32sc* srcDst, Vlq32s len, VlqsFIRState64fc_32sc* state,
                                     Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64fc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                    VlqsFIRState64fc_16sc* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64fc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState64fc_16sc* state,
                                     Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}

VlqStatus vlq::vlqsFIR_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, VlqsFIRState_64f* state) {
    return filter(src, dst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR_64f_I(Vlq64f* srcDst, Vlq32s len, VlqsFIRState_64f* state) {
    return filterInPlace(srcDst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR64f_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len,
                              VlqsFIRState64f_32f* state) {
    return filter(src, dst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR64f_32f_I(Vlq32f* srcDst, Vlq32s len, VlqsFIRState64f_32f* state) {
    return filterInPlace(srcDst, len, state, Unscaled{});
}
VlqStatus vlq::vlqsFIR64f_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len,
                                  VlqsFIRState64f_32s* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64f_32s_ISfs(Vlq32s* srcDst, Vlq32s len, VlqsFIRState64f_32s* state,
                                   Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
// A filter built from integer taps is the same state, at a single rate alone.
VlqStatus vlq::vlqsFIR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, VlqsFIRState_32s* state,
                               Vlq32s scaleFactor) {
    return filterSingleRate(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR_32s_ISfs(Vlq32s* srcDst, Vlq32s len, VlqsFIRState_32s* state,
                                Vlq32s scaleFactor) {
    return filterSingleRateInPlace(srcDst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64f_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                  VlqsFIRState64f_16s* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64f_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState64f_16s* state,
                                   Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
