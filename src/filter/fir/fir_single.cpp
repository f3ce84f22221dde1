// One sample through a floating FIR state.
#include "filter/common/delay_line.h"
#include "filter/common/sample_conversion.h"
#include "filter/fir/fir_state.h"
#include "filter/fir/single_kernels.h"

namespace {

using namespace vlq;
using namespace vlq::fir;

// The delay store is a ring here, and a block takes it from there.
template <class State, class Scale>
VlqStatus one(SampleOf<State> src, SampleOf<State>* dst, State* state, Scale scale) {
    if (!dst || !state) return vlqStsNullPtr;
    if (!isSingleRate(*state)) return vlqStsBadSpec;
    using E = typename State::Element;
    const Vlq32s tapsLen = state->tapsLen;
    const E sample = convertTo<E>(src);
    E* line = state->dlyLine;
    const Vlq32s index = pushIntoRing(sample, line, tapsLen, state->dlyIndex);
    state->dlyIndex = index;
    const E sum = windowSum<E>(line + index, sample, state->taps, tapsLen);
    narrowOne(sum, dst, scale);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIROne_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState_32f* state) {
    return one(src, dst, state, Unscaled{});
}
VlqStatus vlq::vlqsFIROne32f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState32f_16s* state,
                                     Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne_32fc(Vlq32fc src, Vlq32fc* dst, VlqsFIRState_32fc* state) {
    return one(src, dst, state, Unscaled{});
}
VlqStatus vlq::vlqsFIROne32fc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState32fc_16sc* state,
                                       Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne_64fc(Vlq64fc src, Vlq64fc* dst, VlqsFIRState_64fc* state) {
    return one(src, dst, state, Unscaled{});
}
VlqStatus vlq::vlqsFIROne64fc_32fc(Vlq32fc src, Vlq32fc* dst, VlqsFIRState64fc_32fc* state) {
    return one(src, dst, state, Unscaled{});
}
VlqStatus vlq::vlqsFIROne64fc_32sc_Sfs(Vlq32sc src, Vlq32sc* dst, VlqsFIRState64fc_32sc* state,
                                       Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne64fc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState64fc_16sc* state,
                                       Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne_64f(Vlq64f src, Vlq64f* dst, VlqsFIRState_64f* state) {
    return one(src, dst, state, Unscaled{});
}
VlqStatus vlq::vlqsFIROne64f_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState64f_32f* state) {
    return one(src, dst, state, Unscaled{});
}
VlqStatus vlq::vlqsFIROne64f_32s_Sfs(Vlq32s src, Vlq32s* dst, VlqsFIRState64f_32s* state,
                                     Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne64f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState64f_16s* state,
                                     Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
