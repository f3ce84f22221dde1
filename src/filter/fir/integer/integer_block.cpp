#include "filter/fir/integer/integer_block.h"
#include "filter/fir/multirate/integer_multirate_state.h"

namespace fir = vlq::fir::integer;

namespace {

template <class State>
VlqStatus filter(const typename State::Sample* src, typename State::Sample* dst, Vlq32s len,
                 State* state, Vlq32s scaleFactor) {
    if (!src || !dst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!fir::isFilter(*state)) return vlqStsBadSpec;
    const fir::Finish finish = fir::finishOf(*state, scaleFactor);
    if (fir::isMultiRate(*state))
        fir::multiRateBlock(*state, fir::reals(src), fir::reals(dst), len, finish);
    else
        fir::block(*state, fir::reals(src), fir::reals(dst), len, finish);
    return vlqStsOk;
}

// len periods from a copy of their input.
template <class State>
VlqStatus multiRateInPlace(typename State::Sample* srcDst, Vlq32s len, State& state,
                           const fir::Finish& finish) {
    constexpr int parts = State::kParts;
    const Vlq64s words = Vlq64s{len} * state.downFactor * parts;
    Vlq16s* copy = words > std::numeric_limits<Vlq32s>::max() / 2
                       ? nullptr
                       : vlq::vlqsMalloc_16s(static_cast<Vlq32s>(words));
    if (!copy) return vlqStsNoMemory;
    fir::moveWords(fir::reals(srcDst), copy, words);
    fir::multiRateBlock(state, copy, fir::reals(srcDst), len, finish);
    vlq::vlqsFree(copy);
    return vlqStsOk;
}

template <class State>
VlqStatus filterInPlace(typename State::Sample* srcDst, Vlq32s len, State* state,
                        Vlq32s scaleFactor) {
    if (!srcDst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!fir::isFilter(*state)) return vlqStsBadSpec;
    const fir::Finish finish = fir::finishOf(*state, scaleFactor);
    if (fir::isMultiRate(*state)) return multiRateInPlace(srcDst, len, *state, finish);
    fir::blockInPlace(*state, fir::reals(srcDst), len, finish);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState_16s* state,
                               Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState_16s* state,
                                Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32s_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                  VlqsFIRState32s_16s* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32s_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState32s_16s* state,
                                   Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32sc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                    VlqsFIRState32sc_16sc* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32sc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState32sc_16sc* state,
                                     Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
