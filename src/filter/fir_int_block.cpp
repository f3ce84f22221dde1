#include "filter/fir_int_block.h"

namespace fir = vlq::fir::integer;

namespace {

template <class State>
VlqStatus filter(const typename State::Sample* src, typename State::Sample* dst, Vlq32s len, State* state, Vlq32s scaleFactor) {
    if (!src || !dst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!fir::isSingleRate(*state)) return vlqStsBadSpec;
    fir::block(*state, fir::reals(src), fir::reals(dst), len, fir::finishOf(*state, scaleFactor));
    return vlqStsOk;
}

template <class State>
VlqStatus filterInPlace(typename State::Sample* srcDst, Vlq32s len, State* state, Vlq32s scaleFactor) {
    if (!srcDst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!fir::isSingleRate(*state)) return vlqStsBadSpec;
    fir::blockInPlace(*state, fir::reals(srcDst), len, fir::finishOf(*state, scaleFactor));
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState_16s* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState_16s* state, Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32s_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState32s_16s* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32s_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState32s_16s* state, Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32sc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, VlqsFIRState32sc_16sc* state, Vlq32s scaleFactor) {
    return filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32sc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState32sc_16sc* state, Vlq32s scaleFactor) {
    return filterInPlace(srcDst, len, state, scaleFactor);
}
