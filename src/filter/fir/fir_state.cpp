// FIR states of floating arithmetic: size, construction in the caller's memory or in memory of
// their own, release.
#include "filter/fir/fir_taps.h"
#include "vlqs/core.h"

namespace {

using namespace vlq;
using namespace vlq::fir;

// ---- sizes --------------------------------------------------------------------------------------

// What a state's size and its transform follow from, besides the type of element.
template <class E>
struct Needs;
template <>
struct Needs<Vlq32f> {
    static constexpr Vlq32s kTransformTaps = 64;  // a transform is prepared from this many taps on
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 4 * tapBytes; }
    static constexpr Vlq64s kAlignmentSlack = 0;
    static constexpr auto transformSize = vlqsFFTGetSize_R_32f;
    static constexpr auto initTransform = vlqsFFTInit_R_32f;
    static constexpr auto initAllocTransform = vlqsFFTInitAlloc_R_32f;
    static constexpr auto freeTransform = vlqsFFTFree_R_32f;
};
template <>
struct Needs<Vlq32fc> {
    static constexpr Vlq32s kTransformTaps = 16;
    // The table of the time-domain kernels, and room for two rows of taps and twelve elements.
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 6 * tapBytes + 48; }
    static constexpr Vlq64s kAlignmentSlack = 0;
    static constexpr auto transformSize = vlqsFFTGetSize_C_32fc;
    static constexpr auto initTransform = vlqsFFTInit_C_32fc;
    static constexpr auto initAllocTransform = vlqsFFTInitAlloc_C_32fc;
    static constexpr auto freeTransform = vlqsFFTFree_C_32fc;
};
template <>
struct Needs<Vlq64f> {
    static constexpr Vlq32s kTransformTaps = 32;
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 2 * tapBytes; }
    static constexpr Vlq64s kAlignmentSlack = 16;
    static constexpr auto transformSize = vlqsFFTGetSize_R_64f;
    static constexpr auto initTransform = vlqsFFTInit_R_64f;
    static constexpr auto initAllocTransform = vlqsFFTInitAlloc_R_64f;
    static constexpr auto freeTransform = vlqsFFTFree_R_64f;
};
template <>
struct Needs<Vlq64fc> {
    static constexpr Vlq32s kTransformTaps = 16;
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 2 * tapBytes; }
    static constexpr Vlq64s kAlignmentSlack = 32;
    static constexpr auto transformSize = vlqsFFTGetSize_C_64fc;
    static constexpr auto initTransform = vlqsFFTInit_C_64fc;
    static constexpr auto initAllocTransform = vlqsFFTInitAlloc_C_64fc;
    static constexpr auto freeTransform = vlqsFFTFree_C_64fc;
};

// Sizes of one state: functions of the tap count and of the number of threads.
template <class E>
struct Plan {
    Vlq32s tapsLen;
    Vlq32s threads;
    Vlq32s order = -1;  // of the transform; -1 for none
    Vlq32s specBytes = 0, initBytes = 0, workBytes = 0;

    explicit Plan(Vlq32s taps) : tapsLen(taps), threads(ownGetNumThreads()) {
        if (tapsLen < Needs<E>::kTransformTaps) return;
        Vlq32s covering = 2;
        while ((Vlq64s{1} << covering) <= tapsLen) ++covering;
        if (Needs<E>::transformSize(covering + 1, vlqNormInvByN, vlqHintNone, &specBytes,
                                    &initBytes, &workBytes) == vlqStsOk) {
            order = covering + 1;
        } else {
            specBytes = initBytes = workBytes = 0;
        }
    }
    Vlq64s fftLen() const { return order < 0 ? 0 : Vlq64s{1} << order; }
    Vlq64s blockBytes() const { return roundUp(fftLen() * element, 16); }
    Vlq64s tapBytes() const { return roundUp(tapsLen * element, 16); }
    // Room for two delay lines and the first chunk of a block, from a boundary to a boundary.
    Vlq64s delayStoreBytes() const { return roundDown(delayStoreShare(), 16); }

    // Alignment of the header itself comes out of the rounding of the delay store's share, and of
    // the slack.
    Vlq64s bytes() const {
        return tapBytes() + roundUp(delayStoreShare(), 16) + Needs<E>::tapsWideBytes(tapBytes()) +
               roundUp(4 * Vlq64s{threads}, 16) + specBytes + initBytes + blockBytes() +
               Traits<E>::kHeaderBytes + kStaging * element + Needs<E>::kAlignmentSlack +
               threads * (workBytes + blockBytes() + 16);
    }

private:
    static constexpr Vlq64s element = sizeof(E);
    static constexpr Vlq64s alignment = Traits<E>::kAlignment;
    Vlq64s delayStoreShare() const { return (3 * Vlq64s{tapsLen} + 4) * element + alignment - 1; }
};

// ---- construction -------------------------------------------------------------------------------

// Where a transform is built that is part of the state's block.
struct TransformMemory {
    Vlq8u* spec = nullptr;
    Vlq8u* scratch = nullptr;
};

// The header's own boundary uses up the size's slack; the arrays are put on 16-byte boundaries,
// those of the transform on 64-byte ones: the way to the first of these comes out of the slack in
// the size of the transform's spec, and the last work buffer then does without its own.
template <class E>
TransformMemory layOut(FirState<E>& state, const Plan<E>& plan, Cursor& cursor) {
    const Vlq64s len = plan.tapsLen;
    state.tapsLen = state.dlyLen = plan.tapsLen;
    state.firstChunk = Traits<E>::firstChunk(plan.tapsLen);
    state.fftLen = -1;
    state.threads = plan.threads;

    TransformMemory transform;
    state.taps = cursor.take<E>(len);
    state.dlyLine = cursor.takeBytes<E>(plan.delayStoreBytes(), 16);
    state.tapsWide = cursor.takeBytes<E>(Needs<E>::tapsWideBytes(len * Vlq64s{sizeof(E)}), 16);
    state.threadStatus = cursor.take<VlqStatus>(plan.threads, 16);
    if (plan.order >= 0) {
        constexpr Vlq64s slack = 64;
        transform.spec = cursor.take<Vlq8u>(plan.specBytes - slack, 64);
        transform.scratch = cursor.take<Vlq8u>(plan.initBytes, 64);
        state.tapsSpectrum = cursor.take<E>(plan.fftLen(), 64);
        if (plan.workBytes > 0)
            state.fftBuf = cursor.take<Vlq8u>(Vlq64s{plan.threads} * plan.workBytes - slack, 64);
        state.fftWork = cursor.take<E>(Vlq64s{plan.threads} * plan.fftLen(), 64);
        state.fftBufSize = plan.workBytes;
        state.fftLen = static_cast<Vlq32s>(plan.fftLen());
    }
    state.blockBuf = cursor.take<E>(kStaging, 16);
    return transform;
}

// initTransform(&spec, memory) makes the transform. A state whose transform cannot be made is as
// good as any: its filter stays in the time domain.
template <class State, class Tap, class InitTransform>
VlqStatus build(State** outState, const Plan<typename State::Element>& plan, void* memory,
                const Tap* taps, const SampleOf<State>* dlyLine, InitTransform initTransform) {
    using E = typename State::Element;
    return initState(outState, TagsOf<State>::kSingleRate, memory, plan.bytes(),
                     [&](State& state, Cursor& cursor) {
                         const TransformMemory transform = layOut<E>(state, plan, cursor);
                         writeTaps<E>(state, taps);
                         writeDelayLine<E>(state, dlyLine);
                         if (state.fftLen < 0) return vlqStsOk;
                         if (initTransform(&state.fftSpec, transform) != vlqStsOk) {
                             state.fftSpec = nullptr;
                             state.fftLen = -1;
                             state.tapsSpectrum = nullptr;
                             state.fftBuf = nullptr;
                         } else if (writeSpectrum<E>(state) != vlqStsOk) {
                             state.fftLen = -1;
                         }
                         return vlqStsOk;
                     });
}

// ---- what the exports do ------------------------------------------------------------------------

template <class E>
VlqStatus stateSize(Vlq32s tapsLen, Vlq32s* stateBytes) {
    if (!stateBytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    *stateBytes = reportedSize(Plan<E>(tapsLen).bytes());
    return vlqStsOk;
}

template <class State, class Tap>
VlqStatus init(State** outState, const Tap* taps, Vlq32s tapsLen, const SampleOf<State>* dlyLine,
               Vlq8u* buffer) {
    using E = typename State::Element;
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    const Plan<E> plan(tapsLen);
    return build(outState, plan, buffer, taps, dlyLine,
                 [&](typename State::Spec** spec, const TransformMemory& memory) {
                     return Needs<E>::initTransform(spec, plan.order, vlqNormInvByN, vlqHintNone,
                                                    memory.spec, memory.scratch);
                 });
}

// The transform is a block of its own here.
template <class State, class Tap>
VlqStatus initAlloc(State** outState, const Tap* taps, Vlq32s tapsLen,
                    const SampleOf<State>* dlyLine) {
    using E = typename State::Element;
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    const Plan<E> plan(tapsLen);
    return initAllocState(outState, plan.bytes(), 0, [&](Vlq8u* memory, Vlq8u*) {
        return build(outState, plan, memory, taps, dlyLine,
                     [&](typename State::Spec** spec, const TransformMemory&) {
                         return Needs<E>::initAllocTransform(spec, plan.order, vlqNormInvByN,
                                                             vlqHintNone);
                     });
    });
}

template <class State>
VlqStatus release(State* state) {
    return TagsOf<State>::release(state, [](State& owned) {
        if (owned.fftSpec) Needs<typename State::Element>::freeTransform(owned.fftSpec);
    });
}

}  // namespace

VlqStatus vlq::vlqsFIRGetStateSize_32f(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return stateSize<Vlq32f>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRInit_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                               const Vlq32f* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                                    const Vlq32f* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree_32f(VlqsFIRState_32f* state) { return release(state); }

VlqStatus vlq::vlqsFIRInit32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                  Vlq32s tapsLen, const Vlq16s* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                       Vlq32s tapsLen, const Vlq16s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree32f_16s(VlqsFIRState32f_16s* state) { return release(state); }

VlqStatus vlq::vlqsFIRGetStateSize_32fc(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return stateSize<Vlq32fc>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRInit_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                                const Vlq32fc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps,
                                     Vlq32s tapsLen, const Vlq32fc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree_32fc(VlqsFIRState_32fc* state) { return release(state); }

VlqStatus vlq::vlqsFIRInit32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                    Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                         Vlq32s tapsLen, const Vlq16sc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree32fc_16sc(VlqsFIRState32fc_16sc* state) { return release(state); }

VlqStatus vlq::vlqsFIRGetStateSize_64f(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return stateSize<Vlq64f>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRInit_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               const Vlq64f* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                                    const Vlq64f* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree_64f(VlqsFIRState_64f* state) { return release(state); }

VlqStatus vlq::vlqsFIRInit64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq32f* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                       Vlq32s tapsLen, const Vlq32f* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64f_32f(VlqsFIRState64f_32f* state) { return release(state); }

VlqStatus vlq::vlqsFIRInit64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq32s* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                       Vlq32s tapsLen, const Vlq32s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64f_32s(VlqsFIRState64f_32s* state) { return release(state); }

VlqStatus vlq::vlqsFIRInit64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq16s* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                       Vlq32s tapsLen, const Vlq16s* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64f_16s(VlqsFIRState64f_16s* state) { return release(state); }

VlqStatus vlq::vlqsFIRGetStateSize_64fc(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return stateSize<Vlq64fc>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRInit_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                                const Vlq64fc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps,
                                     Vlq32s tapsLen, const Vlq64fc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree_64fc(VlqsFIRState_64fc* state) { return release(state); }

VlqStatus vlq::vlqsFIRInit64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq32fc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                         Vlq32s tapsLen, const Vlq32fc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64fc_32fc(VlqsFIRState64fc_32fc* state) { return release(state); }

VlqStatus vlq::vlqsFIRInit64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq32sc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                         Vlq32s tapsLen, const Vlq32sc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64fc_32sc(VlqsFIRState64fc_32sc* state) { return release(state); }

VlqStatus vlq::vlqsFIRInit64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                         Vlq32s tapsLen, const Vlq16sc* dlyLine) {
    return initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64fc_16sc(VlqsFIRState64fc_16sc* state) { return release(state); }
