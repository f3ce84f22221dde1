// Integer FIR filters, block by block, of one rate or two.
#include "filter/fir/integer/integer_block.h"

#include "filter/fir/integer/multirate/integer_multirate_block.h"
#include "frame/state/work_buffer.h"

namespace {

using namespace vlq;
using namespace vlq::fir;
using namespace vlq::fir::integer;

template <class State>
VlqStatus filter(const typename State::Sample* src, typename State::Sample* dst, Vlq32s len,
                 State* state, Vlq32s scaleFactor) {
    if (!src || !dst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isFilter(*state)) return vlqStsBadSpec;
    const Finish finish = finishOf(*state, scaleFactor);
    if (isMultiRate(*state))
        multiRateBlock(*state, parts(src), parts(dst), len, finish);
    else
        block(*state, parts(src), parts(dst), len, finish);
    return vlqStsOk;
}

// len periods from a copy of their input.
template <class State>
VlqStatus multiRateInPlace(typename State::Sample* srcDst, Vlq32s len, State& state,
                           const Finish& finish) {
    const Vlq64s words = Vlq64s{len} * state.downFactor * kParts<typename State::Sample>;
    constexpr Vlq64s wordBytes = sizeof(Vlq16s);
    if (words > kSizeLimit / wordBytes) return vlqStsNoMemory;
    const WorkBuffer copy(nullptr, words * wordBytes);
    if (copy.refused()) return vlqStsNoMemory;
    moveWords(parts(srcDst), copy.as<Vlq16s>(), words);
    multiRateBlock(state, copy.as<Vlq16s>(), parts(srcDst), len, finish);
    return vlqStsOk;
}

template <class State>
VlqStatus filterInPlace(typename State::Sample* srcDst, Vlq32s len, State* state,
                        Vlq32s scaleFactor) {
    if (!srcDst || !state) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!isFilter(*state)) return vlqStsBadSpec;
    const Finish finish = finishOf(*state, scaleFactor);
    if (isMultiRate(*state)) return multiRateInPlace(srcDst, len, *state, finish);
    blockInPlace(*state, parts(srcDst), len, finish);
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
