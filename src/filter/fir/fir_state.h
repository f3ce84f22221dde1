// The state of a floating FIR filter, single-rate or multi-rate: its fields, and what differs
// between the types of element that taps and delay line are held in.
#pragma once

#include <cstddef>

#include "filter/fir/fir_tags.h"
#include "frame/state/state.h"
#include "vlqs/fft.h"
#include "vlqs/fir.h"

namespace vlq::fir {

// ---- what differs between the elements ----------------------------------------------------------

struct RealTraits {
    static constexpr Vlq32s kTransformLen = 512;    // samples a call from which a transform is used
    static constexpr Vlq32s kThreadedAbove = 1600;  // samples that one thread takes alone
    // Samples of a long block that go through the delay store: those of the outputs at the seam,
    // and one more.
    static constexpr Vlq32s firstChunk(Vlq32s tapsLen) { return ((tapsLen + 3) & ~3) + 1; }
};
struct ComplexTraits {
    static constexpr Vlq32s kTransformLen = 256;
    static constexpr Vlq32s kThreadedAbove = 800;
    static constexpr Vlq32s firstChunk(Vlq32s tapsLen) { return (tapsLen + 3) & ~3; }
};

struct SinglePrecision {
    static constexpr std::size_t kAlignment = 16;
    static constexpr Vlq64s kHeaderBytes = 112;
    static constexpr Vlq32s kSpareFields = 1;
    // Whether a state whose new taps could not be transformed goes on in the time domain. One that
    // does not must not be filtered any more.
    static constexpr bool kLeavesTransformPath = false;
};
struct DoublePrecision {
    static constexpr std::size_t kAlignment = 32;
    static constexpr Vlq64s kHeaderBytes = 128;
    static constexpr Vlq32s kSpareFields = 5;
    static constexpr bool kLeavesTransformPath = true;
};

template <class E>
struct Traits;
template <>
struct Traits<Vlq32f> : RealTraits, SinglePrecision {
    using Spec = VlqsFFTSpec_R_32f;
};
template <>
struct Traits<Vlq32fc> : ComplexTraits, SinglePrecision {
    using Spec = VlqsFFTSpec_C_32fc;
};
template <>
struct Traits<Vlq64f> : RealTraits, DoublePrecision {
    using Spec = VlqsFFTSpec_R_64f;
};
template <>
struct Traits<Vlq64fc> : ComplexTraits, DoublePrecision {
    using Spec = VlqsFFTSpec_C_64fc;
};

// Elements of the staging area.
inline constexpr Vlq32s kStaging = 4096;

// ---- the state ----------------------------------------------------------------------------------

struct Phase;  // of multi-rate filters

template <class E>
struct FirState {
    using Element = E;
    using Spec = typename Traits<E>::Spec;
    static constexpr std::size_t kAlignment = Traits<E>::kAlignment;

    Vlq32u tag;
    RelPtr<E> taps;     // reversed: taps[i] = h[tapsLen - 1 - i]
    RelPtr<E> dlyLine;  // store; the live window of dlyLen samples starts at dlyIndex, oldest first
    Vlq32s tapsLen;
    Vlq32s upFactor;  // multi-rate only
    Vlq32s firstChunk;
    Vlq32s downFactor;    // multi-rate only
    Vlq32s chunkOutputs;  // multi-rate only
    Spec* fftSpec;        // in this block or one of its own; null without a transform
    RelPtr<E> tapsSpectrum;
    Vlq32s fftLen;  // -1 without a transform path
    Vlq32s dlyIndex;
    RelPtr<Phase> phases;  // multi-rate only: the outputs of a period
    RelPtr<E> tapsWide;    // each tap over 16 bytes, in natural order; multi-rate: rows
    Vlq32s paddedPhase;    // multi-rate only
    Vlq32s multiRateKind;  // 1, 2 or 3 in multi-rate states: what their tables have room for
    Vlq32s dlyLen;
    RelPtr<E> fftWork;     // fftLen elements a thread
    RelPtr<Vlq8u> fftBuf;  // fftBufSize bytes a thread
    Vlq32s fftBufSize;
    RelPtr<E> blockBuf;  // staging area
    RelPtr<VlqStatus> threadStatus;
    Vlq32s owned;
    Vlq32s upPhase;    // multi-rate only
    Vlq32s downPhase;  // multi-rate only
    Vlq32s threads;    // that the arrays have room for
    Vlq32s spare[Traits<E>::kSpareFields];
};
static_assert(sizeof(FirState<Vlq32f>) == Traits<Vlq32f>::kHeaderBytes);
static_assert(sizeof(FirState<Vlq32fc>) == Traits<Vlq32fc>::kHeaderBytes);
static_assert(sizeof(FirState<Vlq64f>) == Traits<Vlq64f>::kHeaderBytes);
static_assert(sizeof(FirState<Vlq64fc>) == Traits<Vlq64fc>::kHeaderBytes);
static_assert(offsetof(FirState<Vlq32f>, fftSpec) == 32 && offsetof(FirState<Vlq32f>, owned) == 92);

// For samples of one type.
template <class E, class SampleType>
struct FirStateFor : FirState<E> {
    using Sample = SampleType;
};
template <class State>
using SampleOf = typename State::Sample;

}  // namespace vlq::fir

struct vlq::VlqsFIRState_32f : vlq::fir::FirStateFor<Vlq32f, Vlq32f> {};
struct vlq::VlqsFIRState32f_16s : vlq::fir::FirStateFor<Vlq32f, Vlq16s> {};
struct vlq::VlqsFIRState_32fc : vlq::fir::FirStateFor<Vlq32fc, Vlq32fc> {};
struct vlq::VlqsFIRState32fc_16sc : vlq::fir::FirStateFor<Vlq32fc, Vlq16sc> {};
struct vlq::VlqsFIRState_64f : vlq::fir::FirStateFor<Vlq64f, Vlq64f> {};
struct vlq::VlqsFIRState64f_32f : vlq::fir::FirStateFor<Vlq64f, Vlq32f> {};
struct vlq::VlqsFIRState64f_32s : vlq::fir::FirStateFor<Vlq64f, Vlq32s> {};
struct vlq::VlqsFIRState64f_16s : vlq::fir::FirStateFor<Vlq64f, Vlq16s> {};
struct vlq::VlqsFIRState_64fc : vlq::fir::FirStateFor<Vlq64fc, Vlq64fc> {};
struct vlq::VlqsFIRState64fc_32fc : vlq::fir::FirStateFor<Vlq64fc, Vlq32fc> {};
struct vlq::VlqsFIRState64fc_32sc : vlq::fir::FirStateFor<Vlq64fc, Vlq32sc> {};
struct vlq::VlqsFIRState64fc_16sc : vlq::fir::FirStateFor<Vlq64fc, Vlq16sc> {};
