// Complex FFT in floating point: the exported functions.
#include "fourier/kernel/complex_transform.h"
#include "fourier/plan/complex_plan.h"
#include "fourier/plan/lifecycle.h"

namespace {

using namespace vlq;
using namespace vlq::fft;

template <class SpecType, class T>
struct ComplexKind {
    using Spec = SpecType;
    using Element = T;
    static constexpr int largestOrder = ComplexLimits<T>::largest;
    static PlanSizes sizes(int order) { return complexSizes<T>(order); }
    static void build(FloatSpec<T>& spec, int order, const SineTable<T>& sine, Cursor& cursor) {
        buildComplexTables<T>(spec, order, sine, cursor);
    }
};
using C_32fc = ComplexKind<VlqsFFTSpec_C_32fc, Vlq32f>;
using C_32f = ComplexKind<VlqsFFTSpec_C_32f, Vlq32f>;
using C_64fc = ComplexKind<VlqsFFTSpec_C_64fc, Vlq64f>;
using C_64f = ComplexKind<VlqsFFTSpec_C_64f, Vlq64f>;

constexpr bool isScaled(const auto& spec, Direction direction) {
    return (direction == Direction::forward ? spec.doFwdScale : spec.doInvScale) != 0;
}

template <class Kind, Direction direction, class Value>
VlqStatus interleaved(const Value* src, Value* dst, const typename Kind::Spec* spec, Vlq8u* buf) {
    using T = typename Kind::Element;
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<typename Kind::Spec>) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (work.refused()) return vlqStsNoMemory;
    complexTransform<T, direction>(spec->order, *spec, reinterpret_cast<const T*>(src),
                                   reinterpret_cast<T*>(dst), work.data(),
                                   isScaled(*spec, direction));
    return vlqStsOk;
}

template <class Kind, Direction direction, class T>
VlqStatus split(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const typename Kind::Spec* spec,
                Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<typename Kind::Spec>) return vlqStsBadSpec;
    if (!srcRe || !srcIm || !dstRe || !dstIm) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (work.refused()) return vlqStsNoMemory;
    splitTransform<T, direction>(spec->order, *spec, srcRe, srcIm, dstRe, dstIm, work.data(),
                                 isScaled(*spec, direction));
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFFTGetSize_C_32fc(Vlq32s order, Vlq32s flag, VlqHint, Vlq32s* specBytes,
                                     Vlq32s* initBytes, Vlq32s* workBytes) {
    return getSize<C_32fc>(order, flag, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTGetSize_C_32f(Vlq32s order, Vlq32s flag, VlqHint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return getSize<C_32f>(order, flag, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_C_32fc(VlqsFFTSpec_C_32fc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return init<C_32fc>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInit_C_32f(VlqsFFTSpec_C_32f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return init<C_32f>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_32fc(VlqsFFTSpec_C_32fc** outSpec, Vlq32s order, Vlq32s flag,
                                       VlqHint hint) {
    return initAlloc<C_32fc>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_32f(VlqsFFTSpec_C_32f** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return initAlloc<C_32f>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_32fc(const VlqsFFTSpec_C_32fc* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_32f(const VlqsFFTSpec_C_32f* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_32fc(VlqsFFTSpec_C_32fc* spec) { return release(spec); }
VlqStatus vlq::vlqsFFTFree_C_32f(VlqsFFTSpec_C_32f* spec) { return release(spec); }

VlqStatus vlq::vlqsFFTFwd_CToC_32fc(const Vlq32fc* src, Vlq32fc* dst,
                                    const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf) {
    return interleaved<C_32fc, Direction::forward>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_32fc_I(Vlq32fc* srcDst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf) {
    return interleaved<C_32fc, Direction::forward>(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32fc(const Vlq32fc* src, Vlq32fc* dst,
                                    const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf) {
    return interleaved<C_32fc, Direction::inverse>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32fc_I(Vlq32fc* srcDst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf) {
    return interleaved<C_32fc, Direction::inverse>(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstRe,
                                   Vlq32f* dstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf) {
    return split<C_32f, Direction::forward>(srcRe, srcIm, dstRe, dstIm, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_32f_I(Vlq32f* srcDstRe, Vlq32f* srcDstIm,
                                     const VlqsFFTSpec_C_32f* spec, Vlq8u* buf) {
    return split<C_32f, Direction::forward>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstRe,
                                   Vlq32f* dstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf) {
    return split<C_32f, Direction::inverse>(srcRe, srcIm, dstRe, dstIm, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32f_I(Vlq32f* srcDstRe, Vlq32f* srcDstIm,
                                     const VlqsFFTSpec_C_32f* spec, Vlq8u* buf) {
    return split<C_32f, Direction::inverse>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec, buf);
}

VlqStatus vlq::vlqsFFTGetSize_C_64fc(Vlq32s order, Vlq32s flag, VlqHint, Vlq32s* specBytes,
                                     Vlq32s* initBytes, Vlq32s* workBytes) {
    return getSize<C_64fc>(order, flag, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTGetSize_C_64f(Vlq32s order, Vlq32s flag, VlqHint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return getSize<C_64f>(order, flag, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_C_64fc(VlqsFFTSpec_C_64fc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return init<C_64fc>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInit_C_64f(VlqsFFTSpec_C_64f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return init<C_64f>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_64fc(VlqsFFTSpec_C_64fc** outSpec, Vlq32s order, Vlq32s flag,
                                       VlqHint hint) {
    return initAlloc<C_64fc>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_64f(VlqsFFTSpec_C_64f** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return initAlloc<C_64f>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_64fc(const VlqsFFTSpec_C_64fc* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_64f(const VlqsFFTSpec_C_64f* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_64fc(VlqsFFTSpec_C_64fc* spec) { return release(spec); }
VlqStatus vlq::vlqsFFTFree_C_64f(VlqsFFTSpec_C_64f* spec) { return release(spec); }

VlqStatus vlq::vlqsFFTFwd_CToC_64fc(const Vlq64fc* src, Vlq64fc* dst,
                                    const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf) {
    return interleaved<C_64fc, Direction::forward>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_64fc_I(Vlq64fc* srcDst, const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf) {
    return interleaved<C_64fc, Direction::forward>(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_64fc(const Vlq64fc* src, Vlq64fc* dst,
                                    const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf) {
    return interleaved<C_64fc, Direction::inverse>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_64fc_I(Vlq64fc* srcDst, const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf) {
    return interleaved<C_64fc, Direction::inverse>(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dstRe,
                                   Vlq64f* dstIm, const VlqsFFTSpec_C_64f* spec, Vlq8u* buf) {
    return split<C_64f, Direction::forward>(srcRe, srcIm, dstRe, dstIm, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_64f_I(Vlq64f* srcDstRe, Vlq64f* srcDstIm,
                                     const VlqsFFTSpec_C_64f* spec, Vlq8u* buf) {
    return split<C_64f, Direction::forward>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dstRe,
                                   Vlq64f* dstIm, const VlqsFFTSpec_C_64f* spec, Vlq8u* buf) {
    return split<C_64f, Direction::inverse>(srcRe, srcIm, dstRe, dstIm, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_64f_I(Vlq64f* srcDstRe, Vlq64f* srcDstIm,
                                     const VlqsFFTSpec_C_64f* spec, Vlq8u* buf) {
    return split<C_64f, Direction::inverse>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec, buf);
}
