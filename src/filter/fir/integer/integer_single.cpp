#include "filter/fir/integer/integer_block.h"

namespace fir = vlq::fir::integer;

namespace {

// The delay store is a ring of tapsLen samples, kept twice over so that every window lies in one
// piece. The oldest sample of the window gives way to the new one. That one meets its tap in
// registers: a vector load across a fresh store would wait for the cache.
template <class State>
VlqStatus one(typename State::Sample src, typename State::Sample* dst, State* state,
              Vlq32s scaleFactor) {
    if (!dst || !state) return vlqStsNullPtr;
    if (!fir::isSingleRate(*state)) return vlqStsBadSpec;
    constexpr int parts = State::kParts;
    const Vlq32s tapsLen = state->tapsLen;
    Vlq16s* line = state->dlyLine;
    Vlq16s* oldest = line + std::ptrdiff_t{state->dlyIndex} * parts;
    std::memcpy(oldest, &src, sizeof src);
    std::memcpy(oldest + std::ptrdiff_t{tapsLen} * parts, &src, sizeof src);
    const Vlq32s next = state->dlyIndex + 1;
    state->dlyIndex = next == tapsLen ? 0 : next;

    const fir::TapRows<parts> taps = fir::rowsOf(*state);
    const std::ptrdiff_t stored = taps.words - parts;
    auto sums = fir::dots(line + std::ptrdiff_t{state->dlyIndex} * parts, taps.row, stored);
    const Vlq16s* newest = fir::reals(&src);
    const fir::Finish finish = fir::finishOf(*state, scaleFactor);
    Vlq16s result[parts];
    for (int r = 0; r < parts; ++r) {
        for (int p = 0; p < parts; ++p)
            sums.of[r] = fir::wrappingAdd(sums.of[r], newest[p] * taps.row[r][stored + p]);
        result[r] = finish(sums.of[r]);
    }
    std::memcpy(dst, result, sizeof result);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFIROne_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState_16s* state,
                                  Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne32s_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState32s_16s* state,
                                     Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne32sc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState32sc_16sc* state,
                                       Vlq32s scaleFactor) {
    return one(src, dst, state, scaleFactor);
}
