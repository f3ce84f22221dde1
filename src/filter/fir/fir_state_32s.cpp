// Integer taps: a record in double precision that never prepares a transform. Other calls take it
// for one of double taps and 32-bit samples, whose word it has.
#include "filter/fir/fir_state.h"

namespace fir = vlq::fir;

namespace {

using namespace vlq;
using State = VlqsFIRState64f_32s;

Vlq64s recordBytes(Vlq64s tapsLen) {
    return roundUp(24 * tapsLen + 47, 16) + 3 * roundUp(8 * tapsLen, 16) + 112 +
           32 * Vlq64s{ownGetNumThreads()} + 32767;
}

// Less room than in the other records: the delay store ends where the first chunk can end at most,
// and there are no words for threads, which only the transform path writes.
State* layOut(void* memory, Vlq32s tapsLen) {
    using Shape = fir::Shape<Vlq64f>;
    Cursor cursor(memory, recordBytes(tapsLen));
    State* state = ::new (static_cast<void*>(cursor.take<State>(1, Shape::kAlignment))) State{};
    state->idCtx = fir::Kind<State>::kWord;
    state->tapsLen = state->dlyLen = tapsLen;
    state->firstChunk = Shape::firstChunk(tapsLen);
    state->fftLen = -1;
    state->taps = cursor.take<Vlq64f>(tapsLen);
    state->dlyLine = cursor.take<Vlq64f>(3 * Vlq64s{tapsLen} + 3);
    state->tapsWide = cursor.take<Vlq64f>(2 * Vlq64s{tapsLen}, 16);
    state->blockBuf = cursor.take<Vlq64f>(Shape::kBlockBuf);
    return state;
}

}  // namespace

VlqStatus vlq::vlqsFIRGetStateSize_32s(Vlq32s tapsLen, Vlq32s* stateBytes) {
    if (!stateBytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    *stateBytes = vlq::toldSize(recordBytes(tapsLen));
    return vlqStsOk;
}
VlqStatus vlq::vlqsFIRInit_32s(VlqsFIRState_32s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                               const Vlq32s* dlyLine, Vlq8u* buffer) {
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    if (!vlq::fitsRecord(recordBytes(tapsLen))) return vlqStsNoMemory;
    State* state = layOut(buffer, tapsLen);
    fir::writeTaps(*state, taps);
    fir::writeDelayLine(*state, dlyLine);
    *outState = state;
    return vlqStsOk;
}
VlqStatus vlq::vlqsFIRInitAlloc_32s(VlqsFIRState_32s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                                    const Vlq32s* dlyLine) {
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    Vlq8u* memory = fir::allocate(recordBytes(tapsLen));
    if (!memory) return vlqStsNoMemory;
    vlqsFIRInit_32s(outState, taps, tapsLen, dlyLine, memory);
    (*outState)->ownsMemory = 1;
    return vlqStsOk;
}
VlqStatus vlq::vlqsFIRSetTaps_32s(const Vlq32s* taps, VlqsFIRState_32s* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_32s(const VlqsFIRState_32s* state, Vlq32s* taps) {
    return fir::getTaps(state, taps);
}
