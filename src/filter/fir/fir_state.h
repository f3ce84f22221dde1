// The record of a floating FIR filter: layout, construction, taps and delay line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>

#include "filter/common/element.h"
#include "filter/fir/multirate/polyphase_rows.h"
#include "filter/fir/state_traits.h"
#include "filter/fir/time_domain_complex_kernels.h"
#include "filter/fir/time_domain_kernels.h"
#include "fourier/convolver.h"
#include "frame/state/state.h"
#include "vlqs/core.h"
#include "vlqs/fir.h"

namespace vlq::fir {

template <class E>
struct Record {
    using Element = E;
    using Spec = typename Shape<E>::Spec;

    Vlq32u idCtx;
    RelPtr<E> taps;     // reversed: taps[i] = h[tapsLen - 1 - i]
    RelPtr<E> dlyLine;  // store; the live window of dlyLen samples starts at dlyIndex, oldest first
    Vlq32s tapsLen;
    Vlq32s upFactor;  // multi-rate only
    Vlq32s firstChunk;
    Vlq32s downFactor;  // multi-rate only
    Vlq32s tapsStride;  // multi-rate only
    Spec* fftSpec;      // in this block or one of its own; null without a transform
    RelPtr<E> tapsSpectrum;
    Vlq32s fftLen;  // -1 without a transform path
    Vlq32s dlyIndex;
    RelPtr<Phase> mrDlyPtr;  // multi-rate only: the outputs of a period
    RelPtr<E> tapsWide;      // each tap over 16 bytes, in natural order; multi-rate: rows
    Vlq32s mrSamples;        // multi-rate only
    Vlq32s mrKind;           // 1, 2 or 3 in multi-rate records: what their tables have room for
    Vlq32s dlyLen;
    RelPtr<E> fftWork;     // fftLen elements a thread
    RelPtr<Vlq8u> fftBuf;  // fftBufSize bytes a thread
    Vlq32s fftBufSize;
    RelPtr<E> blockBuf;
    RelPtr<VlqStatus> threadStatus;
    Vlq32s ownsMemory;
    Vlq32s upPhase;    // multi-rate only
    Vlq32s downPhase;  // multi-rate only
    Vlq32s spare[Shape<E>::kSpareWords];
};
static_assert(sizeof(Record<Vlq32f>) == Shape<Vlq32f>::kHeaderBytes);
static_assert(sizeof(Record<Vlq32fc>) == Shape<Vlq32fc>::kHeaderBytes);
static_assert(sizeof(Record<Vlq64fc>) == Shape<Vlq64fc>::kHeaderBytes);
static_assert(sizeof(Record<Vlq64f>) == Shape<Vlq64f>::kHeaderBytes);
static_assert(offsetof(Record<Vlq32f>, fftSpec) == 32 &&
              offsetof(Record<Vlq32f>, ownsMemory) == 92);

// Sizes of one record: functions of the tap count and of the thread count.
template <class E>
struct Plan {
    Vlq32s tapsLen;
    Vlq32s threads;
    Vlq32s order = -1;  // of the transform; -1 for none
    Vlq32s specBytes = 0, initBytes = 0, workBytes = 0;

    explicit Plan(Vlq32s taps) : tapsLen(taps), threads(ownGetNumThreads()) {
        if (tapsLen < Shape<E>::kTransformTaps) return;
        Vlq32s covering = 2;
        while ((Vlq64s{1} << covering) <= tapsLen) ++covering;
        if (Shape<E>::transformSize(covering + 1, vlqNormInvByN, vlqHintNone, &specBytes,
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

    // Alignment of the record itself comes out of the rounding of the delay store's share, and of
    // the slack.
    Vlq64s bytes() const {
        return tapBytes() + roundUp(delayStoreShare(), 16) + Shape<E>::tapsWideBytes(tapBytes()) +
               roundUp(4 * Vlq64s{threads}, 16) + specBytes + initBytes + blockBytes() +
               Shape<E>::kHeaderBytes + Shape<E>::kBlockBuf * element + Shape<E>::kAlignmentSlack +
               threads * (workBytes + blockBytes() + 16);
    }

private:
    static constexpr Vlq64s element = sizeof(E);
    static constexpr Vlq64s alignment = Shape<E>::kAlignment;
    Vlq64s delayStoreShare() const { return (3 * Vlq64s{tapsLen} + 4) * element + alignment - 1; }
};

// The words a state answers to, and the samples it takes.
template <class State>
struct Kind;

template <class State>
using SampleOf = typename Kind<State>::Sample;

template <class State>
inline bool isSingleRate(const State& state) {
    return state.idCtx == Kind<State>::kWord;
}
// The accessors serve single-rate and multi-rate records alike.
template <class State>
inline bool isFilter(const State& state) {
    return state.idCtx == Kind<State>::kWord || state.idCtx == Kind<State>::kMultiRateWord;
}

template <class E, class Tap>
void writeTaps(Record<E>& record, const Tap* taps) {
    const Vlq32s len = record.tapsLen;
    E* reversed = record.taps;
    E* wide = record.tapsWide;
    for (Vlq32s k = 0; k < len; ++k) {
        const E tap = convertTo<E>(read(taps + k));
        reversed[len - 1 - k] = tap;
        if (record.mrKind == 0) wide = writeWide(wide, tap);
    }
    if (record.mrKind > 0) writeRows(record);
}

// Transform of the taps, zero-extended, in the form that the filter wants.
template <class E>
VlqStatus writeSpectrum(Record<E>& record) {
    const Vlq32s len = record.tapsLen;
    const E* reversed = record.taps;
    E* work = record.fftWork;
    for (Vlq32s k = 0; k < len; ++k) work[k] = reversed[len - 1 - k];
    std::fill(work + len, work + record.fftLen, E{});
    return fft::makeFilter(work, record.tapsSpectrum, record.fftSpec, record.fftBuf);
}

// dlyLine: newest sample first; null for silence.
template <class E, class Sample>
void writeDelayLine(Record<E>& record, const Sample* dlyLine) {
    const Vlq32s len = record.dlyLen;
    E* oldest = record.dlyLine;
    record.dlyIndex = 0;
    for (Vlq32s i = 0; i < len; ++i)
        oldest[i] = dlyLine ? convertTo<E>(read(dlyLine + (len - 1 - i))) : E{};
}

// Where a record and the parts of its transform begin in a block.
template <class State>
struct Block {
    State* state;
    Vlq8u* specMemory = nullptr;
    Vlq8u* specScratch = nullptr;
};

// Lays a record and its arrays into memory of plan.bytes() bytes. The record's own boundary uses up
// the size's slack; its arrays stand on 16-byte ones. The arrays of the transform stand
// on 64-byte boundaries: the way to the first one comes out of the slack in the size of the
// transform's record, and the last work buffer then does without its own.
template <class State>
Block<State> layOut(void* memory, const Plan<typename State::Element>& plan) {
    using E = typename State::Element;
    constexpr std::size_t alignment = Shape<E>::kAlignment;
    const Vlq64s len = plan.tapsLen;
    Cursor cursor(memory, plan.bytes());
    Block<State> block{::new (static_cast<void*>(cursor.take<State>(1, alignment))) State{}};
    State& state = *block.state;
    state.tapsLen = state.dlyLen = plan.tapsLen;
    state.firstChunk = Shape<E>::firstChunk(plan.tapsLen);
    state.fftLen = -1;
    state.idCtx = Kind<State>::kWord;

    state.taps = cursor.take<E>(len);
    state.dlyLine = reinterpret_cast<E*>(cursor.take<char>(plan.delayStoreBytes(), 16));
    state.tapsWide = reinterpret_cast<E*>(
        cursor.take<char>(Shape<E>::tapsWideBytes(len * Vlq64s{sizeof(E)}), 16));
    state.threadStatus = cursor.take<VlqStatus>(plan.threads, 16);
    if (plan.order >= 0) {
        constexpr Vlq64s slack = 64;
        block.specMemory = cursor.take<Vlq8u>(plan.specBytes - slack, 64);
        block.specScratch = cursor.take<Vlq8u>(plan.initBytes, 64);
        state.tapsSpectrum = cursor.take<E>(plan.fftLen(), 64);
        if (plan.workBytes > 0)
            state.fftBuf = cursor.take<Vlq8u>(Vlq64s{plan.threads} * plan.workBytes - slack, 64);
        state.fftWork = cursor.take<E>(Vlq64s{plan.threads} * plan.fftLen(), 64);
        state.fftBufSize = plan.workBytes;
        state.fftLen = static_cast<Vlq32s>(plan.fftLen());
    }
    state.blockBuf = cursor.take<E>(Shape<E>::kBlockBuf, 16);
    return block;
}

// A whole record. makeTransform(spec) fills in the transform; a record whose transform cannot be
// made is as good as any, its filter stays on the direct path.
template <class State, class Tap, class MakeTransform>
void build(const Block<State>& block, const Tap* taps, const SampleOf<State>* dlyLine,
           MakeTransform makeTransform) {
    State& state = *block.state;
    writeTaps(state, taps);
    writeDelayLine(state, dlyLine);
    if (state.fftLen < 0) return;
    if (makeTransform(&state.fftSpec) != vlqStsOk) {
        state.fftSpec = nullptr;
        state.fftLen = -1;
        state.tapsSpectrum = nullptr;
        state.fftBuf = nullptr;
    } else if (writeSpectrum(state) != vlqStsOk) {
        state.fftLen = -1;
    }
}

// ---- what the exports do ------------------------------------------------------------------------

template <class E>
VlqStatus stateSize(Vlq32s tapsLen, Vlq32s* stateBytes) {
    if (!stateBytes) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    *stateBytes = toldSize(Plan<E>(tapsLen).bytes());
    return vlqStsOk;
}

template <class State, class Tap>
VlqStatus init(State** outState, const Tap* taps, Vlq32s tapsLen, const SampleOf<State>* dlyLine,
               Vlq8u* buffer) {
    using E = typename State::Element;
    if (!outState || !taps || !buffer) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    const Plan<E> plan(tapsLen);
    if (!fitsRecord(plan.bytes())) return vlqStsNoMemory;
    const Block<State> block = layOut<State>(buffer, plan);
    build(block, taps, dlyLine, [&](typename State::Spec** spec) {
        return Shape<E>::makeTransform(spec, plan.order, vlqNormInvByN, vlqHintNone,
                                       block.specMemory, block.specScratch);
    });
    *outState = block.state;
    return vlqStsOk;
}

// Memory of our own; null when there is none, as for a record of 2 GiB.
inline Vlq8u* allocate(Vlq64s bytes) {
    return fitsRecord(bytes) ? vlqsMalloc_8u(static_cast<Vlq32s>(bytes)) : nullptr;
}

// The transform is a block of its own here.
template <class State, class Tap>
VlqStatus initAlloc(State** outState, const Tap* taps, Vlq32s tapsLen,
                    const SampleOf<State>* dlyLine) {
    using E = typename State::Element;
    if (!outState || !taps) return vlqStsNullPtr;
    if (tapsLen < 1) return vlqStsBadTapCount;
    const Plan<E> plan(tapsLen);
    Vlq8u* memory = allocate(plan.bytes());
    if (!memory) return vlqStsNoMemory;
    const Block<State> block = layOut<State>(memory, plan);
    build(block, taps, dlyLine, [&](typename State::Spec** spec) {
        return Shape<E>::allocateTransform(spec, plan.order, vlqNormInvByN, vlqHintNone);
    });
    block.state->ownsMemory = 1;
    *outState = block.state;
    return vlqStsOk;
}

template <class State>
VlqStatus release(State* state) {
    if (!state) return vlqStsNullPtr;
    if (!Kind<State>::isFreeable(state->idCtx)) return vlqStsBadSpec;
    if (state->ownsMemory != 1) return vlqStsOk;
    if (state->fftSpec) Shape<typename State::Element>::freeTransform(state->fftSpec);
    vlqsFree(state);
    return vlqStsOk;
}

template <class State, class Tap>
VlqStatus setTaps(const Tap* taps, State* state) {
    using E = typename State::Element;
    if (!taps || !state) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    writeTaps(*state, taps);
    if (state->fftLen < 0 || !state->fftSpec) return vlqStsOk;
    const VlqStatus status = writeSpectrum(*state);
    if (status != vlqStsOk) {
        Shape<E>::freeTransform(state->fftSpec);
        state->fftSpec = nullptr;
        if constexpr (Shape<E>::kLeavesTransformPath) {
            state->fftLen = -1;
            state->tapsSpectrum = nullptr;
        }
    }
    return status;
}

template <class State, class Tap>
VlqStatus getTaps(const State* state, Tap* taps) {
    if (!state || !taps) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    const auto* reversed = state->taps.get();
    for (Vlq32s k = 0; k < state->tapsLen; ++k)
        write(taps + k, convertTo<Tap>(reversed[state->tapsLen - 1 - k]));
    return vlqStsOk;
}

template <class State>
VlqStatus setDelayLine(State* state, const SampleOf<State>* dlyLine) {
    if (!state) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    writeDelayLine(*state, dlyLine);
    return vlqStsOk;
}

template <class State>
VlqStatus getDelayLine(const State* state, SampleOf<State>* dlyLine) {
    if (!state || !dlyLine) return vlqStsNullPtr;
    if (!isFilter(*state)) return vlqStsBadSpec;
    const auto* oldest = state->dlyLine + state->dlyIndex;
    const Vlq32s len = state->dlyLen;
    // The store holds nothing but widened samples: the cast is exact.
    for (Vlq32s i = 0; i < len; ++i)
        write(dlyLine + i, convertTo<SampleOf<State>>(oldest[len - 1 - i]));
    return vlqStsOk;
}

// ---- the records --------------------------------------------------------------------------------

template <Vlq32u word, Vlq32u multiRateWord, Vlq32u... streamWord>
struct Words {
    static constexpr Vlq32u kWord = word;
    static constexpr Vlq32u kMultiRateWord = multiRateWord;
    // Streaming records are released as plain ones.
    static constexpr bool isFreeable(Vlq32u id) {
        return id == word || id == multiRateWord || ((id == streamWord) || ...);
    }
};

}  // namespace vlq::fir

struct vlq::VlqsFIRState_32f : vlq::fir::Record<Vlq32f> {};
struct vlq::VlqsFIRState32f_16s : vlq::fir::Record<Vlq32f> {};
struct vlq::VlqsFIRState_32fc : vlq::fir::Record<Vlq32fc> {};
struct vlq::VlqsFIRState32fc_16sc : vlq::fir::Record<Vlq32fc> {};
struct vlq::VlqsFIRState_64fc : vlq::fir::Record<Vlq64fc> {};
struct vlq::VlqsFIRState64fc_32fc : vlq::fir::Record<Vlq64fc> {};
struct vlq::VlqsFIRState64fc_32sc : vlq::fir::Record<Vlq64fc> {};
struct vlq::VlqsFIRState64fc_16sc : vlq::fir::Record<Vlq64fc> {};
struct vlq::VlqsFIRState_64f : vlq::fir::Record<Vlq64f> {};
struct vlq::VlqsFIRState64f_32f : vlq::fir::Record<Vlq64f> {};
struct vlq::VlqsFIRState64f_32s : vlq::fir::Record<Vlq64f> {};
struct vlq::VlqsFIRState64f_16s : vlq::fir::Record<Vlq64f> {};

namespace vlq::fir {

template <>
struct Kind<VlqsFIRState_32f> : Words<0x46493031, 0x46493033, 0x46493333, 0x46493334> {
    using Sample = Vlq32f;
};
template <>
struct Kind<VlqsFIRState32f_16s> : Words<0x46493035, 0x46493037> {
    using Sample = Vlq16s;
};
template <>
struct Kind<VlqsFIRState_32fc> : Words<0x46493032, 0x46493034> {
    using Sample = Vlq32fc;
};
template <>
struct Kind<VlqsFIRState32fc_16sc> : Words<0x46493036, 0x46493038> {
    using Sample = Vlq16sc;
};
template <>
struct Kind<VlqsFIRState_64fc> : Words<0x46493134, 0x46493136> {
    using Sample = Vlq64fc;
};
template <>
struct Kind<VlqsFIRState64fc_32fc> : Words<0x46493138, 0x46493230> {
    using Sample = Vlq32fc;
};
template <>
struct Kind<VlqsFIRState64fc_32sc> : Words<0x46493232, 0x46493234> {
    using Sample = Vlq32sc;
};
template <>
struct Kind<VlqsFIRState64fc_16sc> : Words<0x46493236, 0x46493238> {
    using Sample = Vlq16sc;
};
template <>
struct Kind<VlqsFIRState_64f> : Words<0x46493133, 0x46493135> {
    using Sample = Vlq64f;
};
template <>
struct Kind<VlqsFIRState64f_32f> : Words<0x46493137, 0x46493139> {
    using Sample = Vlq32f;
};
template <>
struct Kind<VlqsFIRState64f_32s> : Words<0x46493231, 0x46493233> {
    using Sample = Vlq32s;
};
template <>
struct Kind<VlqsFIRState64f_16s> : Words<0x46493235, 0x46493237> {
    using Sample = Vlq16s;
};

}  // namespace vlq::fir
