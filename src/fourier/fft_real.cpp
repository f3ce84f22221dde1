// Real FFT in floating point: choice of the method by order, and the exported functions.
#include "fourier/kernel/complex_transform.h"
#include "fourier/kernel/layouts.h"
#include "fourier/kernel/real_recombine.h"
#include "fourier/kernel/real_small.h"
#include "fourier/plan/lifecycle.h"
#include "fourier/plan/real_plan.h"

namespace {

using namespace vlq;
using namespace vlq::fft;

template <class SpecType, class T>
struct RealKind {
    using Spec = SpecType;
    using Element = T;
    static constexpr int largestOrder = RealLimits<T>::largest;
    static PlanSizes sizes(int order) { return realSizes<T>(order); }
    static void build(FloatSpec<T>& spec, int order, const SineTable<T>& sine, Cursor& cursor) {
        buildRealTables<T>(spec, order, sine, cursor);
    }
};
using R_32f = RealKind<VlqsFFTSpec_R_32f, Vlq32f>;
using R_64f = RealKind<VlqsFFTSpec_R_64f, Vlq64f>;

// ---- up to 16 points: scalar --------------------------------------------------------------------
template <Direction direction, Layout layout, int order, class T>
void scalarTransform(const FloatSpec<T>& spec, const T* src, T* dst) {
    constexpr bool forward = direction == Direction::forward;
    constexpr int n = 1 << order;
    T x[n], y[n];
    if constexpr (forward) {
        std::memcpy(x, src, sizeof x);
        realForward<order, 1>(x, y);
    } else {
        layoutToPerm<layout, n>(src, x);
        realInverse<order, 1>(x, y);
    }
    if (forward ? spec.doFwdScale : spec.doInvScale) {
        for (T& value : y) value *= spec.normFactor;
    }
    std::memcpy(dst, y, sizeof y);
    if constexpr (forward) permToLayout<layout>(dst, n);
}

// ---- 32 and 64 points: vectors in registers -----------------------------------------------------
template <Direction direction, int order, bool scaled, class T>
void vectorTransform(const FloatSpec<T>& spec, const T* src, T* dst) {
    // Split vectors need the fewest operations but a table, which the spec of double precision
    // lacks at order 5; wide vectors of doubles are faster interleaved.
    if constexpr (sizeof(T) == 8 && (order == 5 || kVecBytes > 16))
        realInterleaved<T, order, direction, scaled>(src, dst, spec.normFactor);
    else
        realInRegisters<T, order, direction, scaled>(spec, src, dst);
}

template <Direction direction, Layout layout, int order, class T>
void registerTransform(const FloatSpec<T>& spec, const T* src, T* dst) {
    constexpr bool forward = direction == Direction::forward;
    T perm[1 << order];
    if constexpr (!forward && layout != Layout::perm) {
        layoutToPerm<layout, 1 << order>(src, perm);
        src = perm;
    }
    if (forward ? spec.doFwdScale : spec.doInvScale)
        vectorTransform<direction, order, true>(spec, src, dst);
    else
        vectorTransform<direction, order, false>(spec, src, dst);
    if constexpr (forward) permToLayout<layout>(dst, 1 << order);
}

// Orders up to inRegisters.
template <Direction direction, Layout layout, class T>
void shortTransform(const FloatSpec<T>& spec, const T* src, T* dst) {
    switch (spec.order) {
        case 0: return scalarTransform<direction, layout, 0>(spec, src, dst);
        case 1: return scalarTransform<direction, layout, 1>(spec, src, dst);
        case 2: return scalarTransform<direction, layout, 2>(spec, src, dst);
        case 3: return scalarTransform<direction, layout, 3>(spec, src, dst);
        case 4: return scalarTransform<direction, layout, 4>(spec, src, dst);
        case 5: return registerTransform<direction, layout, 5>(spec, src, dst);
        default: return registerTransform<direction, layout, 6>(spec, src, dst);
    }
}

// ---- beyond: complex transform and recombination ------------------------------------------------
// Values 1 to N/2 - 1; src1 and dst1 point at value 1 and may be equal.
template <Direction direction, class T>
void recombine(const FloatSpec<T>& spec, const T* src1, T* dst1) {
    const T* factors = direction == Direction::forward ? spec.realTwiddleFwd : spec.realTwiddleInv;
    const std::ptrdiff_t quarter = std::ptrdiff_t{1} << (spec.order - 2);
    if (spec.order < RealLimits<T>::twoLevel)
        recombineBlocks<direction>(src1, dst1, factors, quarter);
    else
        recombineTwoLevels<direction>(src1, dst1, factors, quarter);
}

template <Layout layout, class T>
void longForward(const FloatSpec<T>& spec, const T* src, T* dst, void* work) {
    complexTransform<T, Direction::forward>(spec.order - 1, spec, src, dst, work,
                                            spec.doFwdScale != 0);
    const T re = loadScalar(dst), im = loadScalar(dst + 1);
    storeScalar(dst, re + im);
    storeScalar(dst + 1, re - im);
    recombine<Direction::forward>(spec, dst + 2, dst + 2);
    permToLayout<layout>(dst, std::ptrdiff_t{1} << spec.order);
}

template <Layout layout, class T>
void longInverse(const FloatSpec<T>& spec, const T* src, T* dst, void* work) {
    const std::ptrdiff_t n = std::ptrdiff_t{1} << spec.order;
    const T mean = loadScalar(src), nyquist = loadScalar(src + nyquistIndex<layout>(n));
    const T* values = src + kFirstPair<layout>;
    if (layout == Layout::pack && src == dst) {
        // In place the values move first to where the pass writes them.
        std::memmove(dst + 2, values, static_cast<std::size_t>(n - 2) * sizeof(T));
        values = dst + 2;
    }
    storeScalar(dst, mean + nyquist);
    storeScalar(dst + 1, mean - nyquist);
    recombine<Direction::inverse>(spec, values, dst + 2);
    complexTransform<T, Direction::inverse>(spec.order - 1, spec, dst, dst, work,
                                            spec.doInvScale != 0);
}

template <class Kind, Direction direction, Layout layout, class T>
VlqStatus transform(const T* src, T* dst, const typename Kind::Spec* spec, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<typename Kind::Spec>) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    if (spec->order <= RealLimits<T>::inRegisters) {
        shortTransform<direction, layout>(*spec, src, dst);
        return vlqStsOk;
    }
    const WorkBuffer work(buf, spec->workBytes);
    if (work.refused()) return vlqStsNoMemory;
    if constexpr (direction == Direction::forward)
        longForward<layout, T>(*spec, src, dst, work.data());
    else
        longInverse<layout, T>(*spec, src, dst, work.data());
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
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_32f(VlqsFFTSpec_R_32f* spec) { return release(spec); }

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
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_64f(VlqsFFTSpec_R_64f* spec) { return release(spec); }

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
