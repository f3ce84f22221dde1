// Transforms of 32-bit samples, and of 16-bit signals with 32-bit spectra.
#include "fourier/fixed_by_float.h"
#include "fourier/kernel/layouts.h"

struct vlq::VlqsFFTSpec_C_32sc : vlq::fft::FixedSpec32<vlq::VlqsFFTSpec_C_64fc> {};
struct vlq::VlqsFFTSpec_C_32s : vlq::fft::FixedSpec32<vlq::VlqsFFTSpec_C_64f> {};
struct vlq::VlqsFFTSpec_R_32s : vlq::fft::FixedSpec32<vlq::VlqsFFTSpec_R_64f> {};
struct vlq::VlqsFFTSpec_R_16s32s : vlq::fft::FixedSpec32<vlq::VlqsFFTSpec_R_32f> {};

namespace {

using namespace vlq;
using namespace vlq::fft;

template <class SpecType, class FloatCalls, class R, class V, Vlq32s word, int largest, bool real>
struct Kind32 {
    using Spec = SpecType;
    using Float = FloatCalls;
    using Real = R;
    using Value = V;
    static constexpr bool is16 = false;
    static constexpr Vlq32s ident = word;
    static constexpr int largestOrder = largest;
    static constexpr Vlq64s dataBytes(int order) {
        const Vlq64s n = Vlq64s{1} << order, element = sizeof(Real);
        return real ? element * (n + 2) : 2 * element * n;
    }
};
using C_32sc = Kind32<VlqsFFTSpec_C_32sc, FloatC64fc, Vlq64f, Vlq64fc, 0x434D414C, 27, false>;
using C_32s = Kind32<VlqsFFTSpec_C_32s, FloatC64f, Vlq64f, Vlq64f, 0x434D414D, 27, false>;
using R_32s = Kind32<VlqsFFTSpec_R_32s, FloatR64f, Vlq64f, Vlq64f, 0x434D414E, 28, true>;
using R_16s32s = Kind32<VlqsFFTSpec_R_16s32s, FloatR32f, Vlq32f, Vlq32f, 0x434D414F, 29, true>;

template <Direction direction>
VlqStatus interleaved(const Vlq32sc* src, Vlq32sc* dst, const VlqsFFTSpec_C_32sc* spec,
                      Vlq32s scaleFactor, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != C_32sc::ident) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (!work.data()) return vlqStsNoMemory;
    constexpr auto call =
        direction == Direction::forward ? vlq::vlqsFFTFwd_CToC_64fc_I : vlq::vlqsFFTInv_CToC_64fc_I;
    const Vlq32s len = Vlq32s{2} << spec->order;
    return throughFloats<C_32sc>(reinterpret_cast<const Vlq32s*>(src), len,
                                 reinterpret_cast<Vlq32s*>(dst), len, *spec, scaleFactor,
                                 work.data(), call);
}

template <Direction direction>
VlqStatus split(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe, Vlq32s* dstIm,
                const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != C_32s::ident) return vlqStsBadSpec;
    if (!srcRe || !srcIm || !dstRe || !dstIm) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (!work.data()) return vlqStsNoMemory;
    constexpr auto call =
        direction == Direction::forward ? vlq::vlqsFFTFwd_CToC_64f_I : vlq::vlqsFFTInv_CToC_64f_I;
    return splitThroughFloats<C_32s>(srcRe, srcIm, dstRe, dstIm, *spec, scaleFactor, work.data(),
                                     call);
}

template <Direction direction, Layout layout>
constexpr auto floatCall() {
    if constexpr (direction == Direction::forward) {
        return layout == Layout::ccs    ? vlq::vlqsFFTFwd_RToCCS_64f_I
               : layout == Layout::pack ? vlq::vlqsFFTFwd_RToPack_64f_I
                                        : vlq::vlqsFFTFwd_RToPerm_64f_I;
    } else {
        return layout == Layout::ccs    ? vlq::vlqsFFTInv_CCSToR_64f_I
               : layout == Layout::pack ? vlq::vlqsFFTInv_PackToR_64f_I
                                        : vlq::vlqsFFTInv_PermToR_64f_I;
    }
}

template <Direction direction, Layout layout>
VlqStatus real(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
               Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != R_32s::ident) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (!work.data()) return vlqStsNoMemory;
    const Vlq32s n = Vlq32s{1} << spec->order, spectrum = layout == Layout::ccs ? ccsLength(n) : n;
    constexpr bool forward = direction == Direction::forward;
    return throughFloats<R_32s>(src, forward ? n : spectrum, dst, forward ? spectrum : n, *spec,
                                scaleFactor, work.data(), floatCall<direction, layout>());
}

}  // namespace

VlqStatus vlq::vlqsFFTGetSize_C_32sc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                     Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<C_32sc>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_C_32sc(VlqsFFTSpec_C_32sc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<C_32sc>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_32sc(VlqsFFTSpec_C_32sc** outSpec, Vlq32s order, Vlq32s flag,
                                       VlqHint hint) {
    return fixedInitAlloc<C_32sc>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_32sc(const VlqsFFTSpec_C_32sc* spec, Vlq32s* bufBytes) {
    return getBufSize<C_32sc>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_32sc(VlqsFFTSpec_C_32sc* spec) { return release<C_32sc>(spec); }

VlqStatus vlq::vlqsFFTInit_C_32s(VlqsFFTSpec_C_32s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<C_32s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_32s(VlqsFFTSpec_C_32s** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return fixedInitAlloc<C_32s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_32s(const VlqsFFTSpec_C_32s* spec, Vlq32s* bufBytes) {
    return getBufSize<C_32s>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_32s(VlqsFFTSpec_C_32s* spec) { return release<C_32s>(spec); }

VlqStatus vlq::vlqsFFTGetSize_R_32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<R_32s>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_R_32s(VlqsFFTSpec_R_32s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<R_32s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_R_32s(VlqsFFTSpec_R_32s** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return fixedInitAlloc<R_32s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_R_32s(const VlqsFFTSpec_R_32s* spec, Vlq32s* bufBytes) {
    return getBufSize<R_32s>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_32s(VlqsFFTSpec_R_32s* spec) { return release<R_32s>(spec); }

VlqStatus vlq::vlqsFFTGetSize_R_16s32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                       Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<R_16s32s>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_R_16s32s(VlqsFFTSpec_R_16s32s** outSpec, Vlq32s order, Vlq32s flag,
                                    VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<R_16s32s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_R_16s32s(VlqsFFTSpec_R_16s32s** outSpec, Vlq32s order, Vlq32s flag,
                                         VlqHint hint) {
    return fixedInitAlloc<R_16s32s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_R_16s32s(const VlqsFFTSpec_R_16s32s* spec, Vlq32s* bufBytes) {
    return getBufSize<R_16s32s>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_16s32s(VlqsFFTSpec_R_16s32s* spec) { return release<R_16s32s>(spec); }

VlqStatus vlq::vlqsFFTFwd_CToC_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst,
                                        const VlqsFFTSpec_C_32sc* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return interleaved<Direction::forward>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_32sc_ISfs(Vlq32sc* srcDst, const VlqsFFTSpec_C_32sc* spec,
                                         Vlq32s scaleFactor, Vlq8u* buf) {
    return interleaved<Direction::forward>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst,
                                        const VlqsFFTSpec_C_32sc* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return interleaved<Direction::inverse>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32sc_ISfs(Vlq32sc* srcDst, const VlqsFFTSpec_C_32sc* spec,
                                         Vlq32s scaleFactor, Vlq8u* buf) {
    return interleaved<Direction::inverse>(srcDst, srcDst, spec, scaleFactor, buf);
}

VlqStatus vlq::vlqsFFTFwd_CToC_32s_Sfs(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe,
                                       Vlq32s* dstIm, const VlqsFFTSpec_C_32s* spec,
                                       Vlq32s scaleFactor, Vlq8u* buf) {
    return split<Direction::forward>(srcRe, srcIm, dstRe, dstIm, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_32s_ISfs(Vlq32s* srcDstRe, Vlq32s* srcDstIm,
                                        const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return split<Direction::forward>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec, scaleFactor,
                                     buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32s_Sfs(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe,
                                       Vlq32s* dstIm, const VlqsFFTSpec_C_32s* spec,
                                       Vlq32s scaleFactor, Vlq8u* buf) {
    return split<Direction::inverse>(srcRe, srcIm, dstRe, dstIm, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32s_ISfs(Vlq32s* srcDstRe, Vlq32s* srcDstIm,
                                        const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return split<Direction::inverse>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec, scaleFactor,
                                     buf);
}

VlqStatus vlq::vlqsFFTFwd_RToCCS_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                         const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                         Vlq8u* buf) {
    return real<Direction::forward, Layout::ccs>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToCCS_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                          Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::forward, Layout::ccs>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                          const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<Direction::forward, Layout::pack>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::forward, Layout::pack>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                          const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<Direction::forward, Layout::perm>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::forward, Layout::perm>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                         const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                         Vlq8u* buf) {
    return real<Direction::inverse, Layout::ccs>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                          Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::inverse, Layout::ccs>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                          const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<Direction::inverse, Layout::pack>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::inverse, Layout::pack>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                          const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<Direction::inverse, Layout::perm>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::inverse, Layout::perm>(srcDst, srcDst, spec, scaleFactor, buf);
}

VlqStatus vlq::vlqsFFTFwd_RToCCS_16s32s_Sfs(const Vlq16s* src, Vlq32s* dst,
                                            const VlqsFFTSpec_R_16s32s* spec, Vlq32s scaleFactor,
                                            Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != R_16s32s::ident) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (!work.data()) return vlqStsNoMemory;
    const Vlq32s n = Vlq32s{1} << spec->order;
    const VlqStatus status = throughFloats<R_16s32s>(src, n, dst, n, *spec, scaleFactor,
                                                     work.data(), vlq::vlqsFFTFwd_RToPerm_32f_I);
    if (status == vlqStsOk) permToLayout<Layout::ccs>(dst, n);
    return status;
}
VlqStatus vlq::vlqsFFTInv_CCSToR_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst,
                                            const VlqsFFTSpec_R_16s32s* spec, Vlq32s scaleFactor,
                                            Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != R_16s32s::ident) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (!work.data()) return vlqStsNoMemory;
    const Vlq32s n = Vlq32s{1} << spec->order;
    return throughFloats<R_16s32s>(src, n + 1, dst, n, *spec, scaleFactor, work.data(),
                                   vlq::vlqsFFTInv_CCSToR_32f_I);
}
