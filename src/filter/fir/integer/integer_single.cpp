// Integer FIR filters, sample by sample.
#include "filter/common/delay_line.h"
#include "filter/fir/integer/integer_state.h"

namespace {

using namespace vlq;
using namespace vlq::fir;
using namespace vlq::fir::integer;

// The delay store is a ring. The new sample meets its tap in registers: a vector load across a
// fresh store would wait for the cache.
template <class State>
VlqStatus one(typename State::Sample src, typename State::Sample* dst, State* state,
              Vlq32s scaleFactor) {
    using Sample = typename State::Sample;
    if (!dst || !state) return vlqStsNullPtr;
    if (!isSingleRate(*state)) return vlqStsBadSpec;
    constexpr int count = kParts<Sample>;
    Vlq16s* const line = state->dlyLine;
    state->dlyIndex =
        pushIntoRing(src, reinterpret_cast<Sample*>(line), state->tapsLen, state->dlyIndex);

    const TapRows<count> taps = rowsOf(*state);
    const std::ptrdiff_t stored = taps.words - count;
    auto sums = dots(line + std::ptrdiff_t{state->dlyIndex} * count, taps.row, stored);
    const Vlq16s* newest = parts(&src);
    const Finish finish = finishOf(*state, scaleFactor);
    Vlq16s result[count];
    for (int r = 0; r < count; ++r) {
        for (int p = 0; p < count; ++p)
            sums.of[r] = wrappingAdd(sums.of[r], newest[p] * taps.row[r][stored + p]);
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
