// FIR states of integer taps: a state in double precision that never prepares a transform. Other
// calls take it for one of double taps and 32-bit samples, whose tag it has.
#include "filter/fir/fir_taps.h"
#include "vlqs/core.h"

namespace {

using namespace vlq;
using namespace vlq::fir;
using State = VlqsFIRState64f_32s;

Vlq64s stateBytes(Vlq64s tapsLen, Vlq64s threads) {
    return roundUp(24 * tapsLen + 47, 16) + 3 * roundUp(8 * tapsLen, 16) + 112 + 32 * threads +
           32767;
}

// Less room than in the other states: the delay store ends where the first chunk can end at most,
// and there is no status for each thread, which only the transform path writes.
VlqStatus build(State** outState, const Vlq32s* taps, Vlq32s tapsLen, const Vlq32s* dlyLine,
                Vlq32s threads, void* memory) {
    return initState(outState, TagsOf<State>::kSingleRate, memory, stateBytes(tapsLen, threads),
                     [&](State& state, Cursor& cursor) {
                         state.tapsLen = state.dlyLen = tapsLen;
                         state.firstChunk = Traits<Vlq64f>::firstChunk(tapsLen);
                         state.fftLen = -1;
                         state.threads = threads;
                         state.taps = cursor.take<Vlq64f>(tapsLen);
                         state.dlyLine = cursor.take<Vlq64f>(3 * Vlq64s{tapsLen} + 3);
                         state.tapsWide = cursor.take<Vlq64f>(2 * Vlq64s{tapsLen}, 16);
                         state.blockBuf = cursor.take<Vlq64f>(kStaging);
                         writeTaps<Vlq64f>(state, taps);
                         writeDelayLine<Vlq64f>(state, dlyLine);
                         return vlqStsOk;
                     });
}

}  // namespace

VlqStatus vlq::vlqsFIRGetStateSize_32s(Vlq32s tapsLen, Vlq32s* outBytes) {
    if (!outBytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    *outBytes = reportedSize(stateBytes(tapsLen, ownGetNumThreads()));
    return vlqStsOk;
}
VlqStatus vlq::vlqsFIRInit_32s(VlqsFIRState_32s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                               const Vlq32s* dlyLine, Vlq8u* buffer) {
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    return build(outState, taps, tapsLen, dlyLine, ownGetNumThreads(), buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc_32s(VlqsFIRState_32s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                                    const Vlq32s* dlyLine) {
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    const Vlq32s threads = ownGetNumThreads();
    return initAllocState(outState, stateBytes(tapsLen, threads), 0, [&](Vlq8u* memory, Vlq8u*) {
        return build(outState, taps, tapsLen, dlyLine, threads, memory);
    });
}
