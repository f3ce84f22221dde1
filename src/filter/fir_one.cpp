#include "filter/fir_one_kernels.h"
#include "filter/fir_record.h"
#include "filter/fir_rim.h"

namespace fir = vlq::fir;

namespace {

// The delay store is a ring of tapsLen samples, kept twice over so that every window lies in one
// piece. The oldest sample of the window gives way to the new one.
template <class State, class Scale>
VlqStatus one(fir::SampleOf<State> src, fir::SampleOf<State>* dst, State* state, Scale scale) {
    if (!dst || !state) return vlqStsNullPtr;
    if (!fir::isSingleRate(*state)) return vlqStsBadSpec;
    using E = typename State::Element;
    const Vlq32s tapsLen = state->tapsLen;
    const E sample = static_cast<E>(src);
    E* oldest = state->dlyLine + state->dlyIndex;
    oldest[0] = sample;
    oldest[tapsLen] = sample;
    const Vlq32s next = state->dlyIndex + 1;
    state->dlyIndex = next == tapsLen ? 0 : next;
    const E sum = fir::windowSum<E>(state->dlyLine + state->dlyIndex, sample, state->taps, tapsLen);
    fir::narrowOne(sum, dst, scale);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIROne_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState_32f* state) {
    return one(src, dst, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIROne32f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState32f_16s* state, Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
