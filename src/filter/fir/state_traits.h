// What differs between the arithmetics of FIR records: the thresholds of the transform path and of
// the threads, the sizes, and the transform. Everything else is one template over the element E
// that taps and delay line are held in.
#pragma once

#include "vlqs/arith.h"
#include "vlqs/fft.h"

namespace vlq::fir {

struct RealShape {
    static constexpr Vlq32s kTransformLen = 512;    // samples a call from which a transform is used
    static constexpr Vlq32s kThreadedAbove = 1600;  // samples that one thread takes alone
    static constexpr Vlq32s kBlockBuf = 4096;       // elements of the staging area

    // Outputs made from the delay store before a long block is read in place, and the samples
    // that go into the store for them.
    static constexpr Vlq32s seamOutputs(Vlq32s tapsLen) { return (tapsLen + 3) & ~3; }
    static constexpr Vlq32s firstChunk(Vlq32s tapsLen) { return seamOutputs(tapsLen) + 1; }
};

struct ComplexShape {
    static constexpr Vlq32s kTransformLen = 256;
    static constexpr Vlq32s kThreadedAbove = 800;
    static constexpr Vlq32s kBlockBuf = 4096;

    static constexpr Vlq32s seamOutputs(Vlq32s tapsLen) { return (tapsLen + 3) & ~3; }
    static constexpr Vlq32s firstChunk(Vlq32s tapsLen) { return seamOutputs(tapsLen); }
};

struct SinglePrecision {
    static constexpr int kAlignment = 16;
    static constexpr Vlq64s kHeaderBytes = 112;
    static constexpr Vlq32s kSpareWords = 2;
    // A record whose new taps could not be transformed: whether it goes on by the direct path. One
    // that does not must not be filtered any more.
    static constexpr bool kLeavesTransformPath = false;
};

struct DoublePrecision {
    static constexpr int kAlignment = 32;
    static constexpr Vlq64s kHeaderBytes = 128;
    static constexpr Vlq32s kSpareWords = 6;
    static constexpr bool kLeavesTransformPath = true;
};

template <class E>
struct Shape;

// Real float.
template <>
struct Shape<Vlq32f> : RealShape, SinglePrecision {
    using Spec = VlqsFFTSpec_R_32f;

    static constexpr Vlq32s kTransformTaps = 64;  // a transform is prepared from this many taps
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 4 * tapBytes; }
    static constexpr Vlq64s kAlignmentSlack = 0;

    static constexpr auto transformSize = vlqsFFTGetSize_R_32f;
    static constexpr auto makeTransform = vlqsFFTInit_R_32f;
    static constexpr auto allocateTransform = vlqsFFTInitAlloc_R_32f;
    static constexpr auto freeTransform = vlqsFFTFree_R_32f;
};

// Complex float.
template <>
struct Shape<Vlq32fc> : ComplexShape, SinglePrecision {
    using Spec = VlqsFFTSpec_C_32fc;

    static constexpr Vlq32s kTransformTaps = 16;  // a transform is prepared from this many taps
    // The table of the direct kernels, and room for two rows of taps and twelve elements.
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 6 * tapBytes + 48; }
    static constexpr Vlq64s kAlignmentSlack = 0;

    static constexpr auto transformSize = vlqsFFTGetSize_C_32fc;
    static constexpr auto makeTransform = vlqsFFTInit_C_32fc;
    static constexpr auto allocateTransform = vlqsFFTInitAlloc_C_32fc;
    static constexpr auto freeTransform = vlqsFFTFree_C_32fc;
};

// Complex double.
template <>
struct Shape<Vlq64fc> : ComplexShape, DoublePrecision {
    using Spec = VlqsFFTSpec_C_64fc;

    static constexpr Vlq32s kTransformTaps = 16;  // a transform is prepared from this many taps
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 2 * tapBytes; }
    static constexpr Vlq64s kAlignmentSlack = 32;

    static constexpr auto transformSize = vlqsFFTGetSize_C_64fc;
    static constexpr auto makeTransform = vlqsFFTInit_C_64fc;
    static constexpr auto allocateTransform = vlqsFFTInitAlloc_C_64fc;
    static constexpr auto freeTransform = vlqsFFTFree_C_64fc;
};

// Real double.
template <>
struct Shape<Vlq64f> : RealShape, DoublePrecision {
    using Spec = VlqsFFTSpec_R_64f;

    static constexpr Vlq32s kTransformTaps = 32;  // a transform is prepared from this many taps
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 2 * tapBytes; }
    static constexpr Vlq64s kAlignmentSlack = 16;

    static constexpr auto transformSize = vlqsFFTGetSize_R_64f;
    static constexpr auto makeTransform = vlqsFFTInit_R_64f;
    static constexpr auto allocateTransform = vlqsFFTInitAlloc_R_64f;
    static constexpr auto freeTransform = vlqsFFTFree_R_64f;
};

}  // namespace vlq::fir
