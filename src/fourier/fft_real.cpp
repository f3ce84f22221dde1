#include "fourier/kernel/real_transform.h"
#include "fourier/plan/floating_specs.h"
#include "fourier/plan/lifecycle.h"
#include "fourier/plan/real_plan.h"

namespace {

using namespace vlq;
using namespace vlq::fft;

template <class SpecType, class T>
struct RealKind {
    using Spec = SpecType;
    using Element = T;
    static constexpr Vlq32s ident = kWord<SpecType>;
    static constexpr int largestOrder = RealLimits<T>::largest;
    static PlanSizes sizes(int order) { return realSizes<T>(order); }
    static void build(FloatingRecord<T>& record, int order, const SineTable<T>& sine,
                      Cursor& cursor) {
        buildRealTables<T>(record, order, sine, cursor);
    }
};
using R_32f = RealKind<VlqsFFTSpec_R_32f, Vlq32f>;
using R_64f = RealKind<VlqsFFTSpec_R_64f, Vlq64f>;

template <class Kind, Direction direction, Layout layout, class T>
VlqStatus transform(const T* src, T* dst, const typename Kind::Spec* spec, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != Kind::ident) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (work.refused()) return vlqStsNoMemory;
    if constexpr (direction == Direction::forward)
        realForwardTransform<layout, T>(*spec, src, dst, work.data());
    else
        realInverseTransform<layout, T>(*spec, src, dst, work.data());
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFFTGetSize_R_32f(Vlq32s order, Vlq32s flag, VlqHint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return getSize<R_32f>(order, flag, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_R_32f(VlqsFFTSpec_R_32f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return init<R_32f>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_R_32f(VlqsFFTSpec_R_32f** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return initAlloc<R_32f>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_R_32f(const VlqsFFTSpec_R_32f* spec, Vlq32s* bufBytes) {
    return getBufSize<R_32f>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_32f(VlqsFFTSpec_R_32f* spec) { return release<R_32f>(spec); }

VlqStatus vlq::vlqsFFTFwd_RToCCS_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                     Vlq8u* buf) {
    return transform<R_32f, Direction::forward, Layout::ccs>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                      Vlq8u* buf) {
    return transform<R_32f, Direction::forward, Layout::pack>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                      Vlq8u* buf) {
    return transform<R_32f, Direction::forward, Layout::perm>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToCCS_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTFwd_RToCCS_32f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTFwd_RToPack_32f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTFwd_RToPerm_32f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                     Vlq8u* buf) {
    return transform<R_32f, Direction::inverse, Layout::ccs>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                      Vlq8u* buf) {
    return transform<R_32f, Direction::inverse, Layout::pack>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                      Vlq8u* buf) {
    return transform<R_32f, Direction::inverse, Layout::perm>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTInv_CCSToR_32f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTInv_PackToR_32f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTInv_PermToR_32f(srcDst, srcDst, spec, buf);
}

VlqStatus vlq::vlqsFFTGetSize_R_64f(Vlq32s order, Vlq32s flag, VlqHint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return getSize<R_64f>(order, flag, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_R_64f(VlqsFFTSpec_R_64f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return init<R_64f>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_R_64f(VlqsFFTSpec_R_64f** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return initAlloc<R_64f>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_R_64f(const VlqsFFTSpec_R_64f* spec, Vlq32s* bufBytes) {
    return getBufSize<R_64f>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_64f(VlqsFFTSpec_R_64f* spec) { return release<R_64f>(spec); }

VlqStatus vlq::vlqsFFTFwd_RToCCS_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                     Vlq8u* buf) {
    return transform<R_64f, Direction::forward, Layout::ccs>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                      Vlq8u* buf) {
    return transform<R_64f, Direction::forward, Layout::pack>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                      Vlq8u* buf) {
    return transform<R_64f, Direction::forward, Layout::perm>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToCCS_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTFwd_RToCCS_64f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTFwd_RToPack_64f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTFwd_RToPerm_64f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                     Vlq8u* buf) {
    return transform<R_64f, Direction::inverse, Layout::ccs>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                      Vlq8u* buf) {
    return transform<R_64f, Direction::inverse, Layout::pack>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                      Vlq8u* buf) {
    return transform<R_64f, Direction::inverse, Layout::perm>(src, dst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTInv_CCSToR_64f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTInv_PackToR_64f(srcDst, srcDst, spec, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf) {
    return vlq::vlqsFFTInv_PermToR_64f(srcDst, srcDst, spec, buf);
}
