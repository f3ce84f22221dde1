// What differs between the arithmetics of FIR records: the thresholds of the transform path and of
// the threads, the sizes, and the transform. Everything else is one template over the element E
// that taps and delay line are held in.
#pragma once

#include "vlqs/arith.h"
#include "vlqs/fourier.h"

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

    static VlqStatus transformSize(Vlq32s order, Vlq32s* spec, Vlq32s* init, Vlq32s* work) {
        return vlqsFFTGetSize_R_32f(order, vlqNormInvByN, vlqHintNone, spec, init, work);
    }
    static VlqStatus makeTransform(Spec** spec, Vlq32s order, Vlq8u* memory, Vlq8u* scratch) {
        return vlqsFFTInit_R_32f(spec, order, vlqNormInvByN, vlqHintNone, memory, scratch);
    }
    static VlqStatus allocateTransform(Spec** spec, Vlq32s order) {
        return vlqsFFTInitAlloc_R_32f(spec, order, vlqNormInvByN, vlqHintNone);
    }
    static VlqStatus freeTransform(Spec* spec) { return vlqsFFTFree_R_32f(spec); }

    static VlqStatus forward(const Vlq32f* src, Vlq32f* dst, const Spec* spec, Vlq8u* work) {
        return vlqsFFTFwd_RToPerm_32f(src, dst, spec, work);
    }
    static VlqStatus inverse(const Vlq32f* src, Vlq32f* dst, const Spec* spec, Vlq8u* work) {
        return vlqsFFTInv_PermToR_32f(src, dst, spec, work);
    }
    static VlqStatus multiplySpectra(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len) {
        return vlqsMulPerm_32f_I(src, srcDst, len);
    }
};

// Complex float.
template <>
struct Shape<Vlq32fc> : ComplexShape, SinglePrecision {
    using Spec = VlqsFFTSpec_C_32fc;

    static constexpr Vlq32s kTransformTaps = 16;  // a transform is prepared from this many taps
    // The table of the direct kernels, and room for two rows of taps and twelve elements.
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 6 * tapBytes + 48; }
    static constexpr Vlq64s kAlignmentSlack = 0;

    static VlqStatus transformSize(Vlq32s order, Vlq32s* spec, Vlq32s* init, Vlq32s* work) {
        return vlqsFFTGetSize_C_32fc(order, vlqNormInvByN, vlqHintNone, spec, init, work);
    }
    static VlqStatus makeTransform(Spec** spec, Vlq32s order, Vlq8u* memory, Vlq8u* scratch) {
        return vlqsFFTInit_C_32fc(spec, order, vlqNormInvByN, vlqHintNone, memory, scratch);
    }
    static VlqStatus allocateTransform(Spec** spec, Vlq32s order) {
        return vlqsFFTInitAlloc_C_32fc(spec, order, vlqNormInvByN, vlqHintNone);
    }
    static VlqStatus freeTransform(Spec* spec) { return vlqsFFTFree_C_32fc(spec); }

    static VlqStatus forward(const Vlq32fc* src, Vlq32fc* dst, const Spec* spec, Vlq8u* work) {
        return vlqsFFTFwd_CToC_32fc(src, dst, spec, work);
    }
    static VlqStatus inverse(const Vlq32fc* src, Vlq32fc* dst, const Spec* spec, Vlq8u* work) {
        return vlqsFFTInv_CToC_32fc(src, dst, spec, work);
    }
    static VlqStatus multiplySpectra(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len) {
        return vlqsMul_32fc_I(src, srcDst, len);
    }
};

// Complex double.
template <>
struct Shape<Vlq64fc> : ComplexShape, DoublePrecision {
    using Spec = VlqsFFTSpec_C_64fc;

    static constexpr Vlq32s kTransformTaps = 16;  // a transform is prepared from this many taps
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 2 * tapBytes; }
    static constexpr Vlq64s kAlignmentSlack = 32;

    static VlqStatus transformSize(Vlq32s order, Vlq32s* spec, Vlq32s* init, Vlq32s* work) {
        return vlqsFFTGetSize_C_64fc(order, vlqNormInvByN, vlqHintNone, spec, init, work);
    }
    static VlqStatus makeTransform(Spec** spec, Vlq32s order, Vlq8u* memory, Vlq8u* scratch) {
        return vlqsFFTInit_C_64fc(spec, order, vlqNormInvByN, vlqHintNone, memory, scratch);
    }
    static VlqStatus allocateTransform(Spec** spec, Vlq32s order) {
        return vlqsFFTInitAlloc_C_64fc(spec, order, vlqNormInvByN, vlqHintNone);
    }
    static VlqStatus freeTransform(Spec* spec) { return vlqsFFTFree_C_64fc(spec); }

    static VlqStatus forward(const Vlq64fc* src, Vlq64fc* dst, const Spec* spec, Vlq8u* work) {
        return vlqsFFTFwd_CToC_64fc(src, dst, spec, work);
    }
    static VlqStatus inverse(const Vlq64fc* src, Vlq64fc* dst, const Spec* spec, Vlq8u* work) {
        return vlqsFFTInv_CToC_64fc(src, dst, spec, work);
    }
    static VlqStatus multiplySpectra(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len) {
        return vlqsMul_64fc_I(src, srcDst, len);
    }
};

// Real double.
template <>
struct Shape<Vlq64f> : RealShape, DoublePrecision {
    using Spec = VlqsFFTSpec_R_64f;

    static constexpr Vlq32s kTransformTaps = 32;  // a transform is prepared from this many taps
    static constexpr Vlq64s tapsWideBytes(Vlq64s tapBytes) { return 2 * tapBytes; }
    static constexpr Vlq64s kAlignmentSlack = 16;

    static VlqStatus transformSize(Vlq32s order, Vlq32s* spec, Vlq32s* init, Vlq32s* work) {
        return vlqsFFTGetSize_R_64f(order, vlqNormInvByN, vlqHintNone, spec, init, work);
    }
    static VlqStatus makeTransform(Spec** spec, Vlq32s order, Vlq8u* memory, Vlq8u* scratch) {
        return vlqsFFTInit_R_64f(spec, order, vlqNormInvByN, vlqHintNone, memory, scratch);
    }
    static VlqStatus allocateTransform(Spec** spec, Vlq32s order) {
        return vlqsFFTInitAlloc_R_64f(spec, order, vlqNormInvByN, vlqHintNone);
    }
    static VlqStatus freeTransform(Spec* spec) { return vlqsFFTFree_R_64f(spec); }

    static VlqStatus forward(const Vlq64f* src, Vlq64f* dst, const Spec* spec, Vlq8u* work) {
        return vlqsFFTFwd_RToPerm_64f(src, dst, spec, work);
    }
    static VlqStatus inverse(const Vlq64f* src, Vlq64f* dst, const Spec* spec, Vlq8u* work) {
        return vlqsFFTInv_PermToR_64f(src, dst, spec, work);
    }
    static VlqStatus multiplySpectra(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len) {
        return vlqsMulPerm_64f_I(src, srcDst, len);
    }
};

}  // namespace vlq::fir
