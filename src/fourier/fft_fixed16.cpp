// Transforms of 16-bit samples: short ones in integers, the others in floating point.
#include "fourier/fixed_by_float.h"
#include "fourier/kernel/fixed.h"
#include "fourier/kernel/layouts.h"

struct vlq::VlqsFFTSpec_C_16sc : vlq::fft::FixedSpec16<vlq::VlqsFFTSpec_C_32fc> {};
struct vlq::VlqsFFTSpec_C_16s : vlq::fft::FixedSpec16<vlq::VlqsFFTSpec_C_32f> {};
struct vlq::VlqsFFTSpec_R_16s : vlq::fft::FixedSpec16<vlq::VlqsFFTSpec_R_32f> {};

namespace {

using namespace vlq;
using namespace vlq::fft;

template <class SpecType, class FloatCalls, class V, Vlq32s word, int largest, bool real,
          int integerBytes>
struct Kind16 {
    using Spec = SpecType;
    using Float = FloatCalls;
    using Real = Vlq32f;
    using Value = V;
    static constexpr bool is16 = true, isReal = real;
    static constexpr Vlq32s ident = word;
    static constexpr int largestOrder = largest;
    static constexpr Vlq64s dataBytes(int order) {
        return real ? (Vlq64s{4} << order) + 8 : Vlq64s{8} << order;
    }
    static constexpr Vlq64s integerWork(int order) {
        return (Vlq64s{integerBytes} << order) + (real ? 8 : 0);
    }
};
using C_16sc = Kind16<VlqsFFTSpec_C_16sc, FloatC32fc, Vlq32fc, 1, 28, false, 8>;
using C_16s = Kind16<VlqsFFTSpec_C_16s, FloatC32f, Vlq32f, 2, 28, false, 12>;
using R_16s = Kind16<VlqsFFTSpec_R_16s, FloatR32f, Vlq32f, 3, 29, true, 4>;

// The integer path: what the result is shifted by, and a result as the shift is to find it.
template <Direction direction>
Vlq64s shiftOf(const auto& spec, Vlq32s scaleFactor) {
    return (direction == Direction::forward ? spec.fwdShift : spec.invShift) + Vlq64s{scaleFactor} +
           headroom(spec.order);
}
Fixed halved(const auto& spec, Fixed v) { return spec.halfStep ? v * Fixed(kRootHalf<double>) : v; }

// Views of the two complex forms; the inverse transform takes the parts for one another.
template <Direction direction, class In, class Out>
void inIntegers(In src, Out dst, const auto& spec, Vlq32s scaleFactor, Vlq8u* work) {
    const int order = spec.order, n = 1 << order;
    const Vlq64s shift = shiftOf<direction>(spec, scaleFactor);
    auto* const x = reinterpret_cast<Value<Fixed>*>(work);
    for (int i = 0; i < n; ++i) x[i] = {widen(src.one(i).re, order), widen(src.one(i).im, order)};
    fixedTransform(order, x);
    for (int i = 0; i < n; ++i) {
        dst.putOne(i, Value<Vlq16s>{narrow(halved(spec, x[i].re), shift),
                                    narrow(halved(spec, x[i].im), shift)});
    }
}

// One value: nothing but the scale.
inline Vlq16s scaled(Vlq16s sample, Vlq32s scaleFactor) {
    return narrow(Fixed::of(static_cast<Vlq32u>(static_cast<Vlq32s>(sample))), scaleFactor);
}
void scaleOne(auto src, auto dst, Vlq32s scaleFactor) {
    const auto v = src.one(0);
    dst.putOne(0, Value<Vlq16s>{scaled(v.re, scaleFactor), scaled(v.im, scaleFactor)});
}

template <Direction direction>
VlqStatus interleaved(const Vlq16sc* src, Vlq16sc* dst, const VlqsFFTSpec_C_16sc* spec,
                      Vlq32s scaleFactor, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != C_16sc::ident) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    constexpr bool exchanged = direction == Direction::inverse;
    const auto* from = reinterpret_cast<const Vlq16s*>(src);
    auto* to = reinterpret_cast<Vlq16s*>(dst);
    const Interleaved<const Vlq16s, exchanged> in{from};
    const Interleaved<Vlq16s, exchanged> out{to};
    if (spec->order == 0) {
        scaleOne(in, out, scaleFactor);
        return vlqStsOk;
    }
    const WorkBuffer work(buf, spec->workBytes);
    if (!work.data()) return vlqStsNoMemory;
    if (!spec->useFloat) {
        inIntegers<direction>(in, out, *spec, scaleFactor, work.data());
        return vlqStsOk;
    }
    constexpr auto call = exchanged ? vlq::vlqsFFTInv_CToC_32fc_I : vlq::vlqsFFTFwd_CToC_32fc_I;
    const Vlq32s len = Vlq32s{2} << spec->order;
    return throughFloats<C_16sc>(from, len, to, len, *spec, scaleFactor, work.data(), call);
}

template <Direction direction>
VlqStatus split(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe, Vlq16s* dstIm,
                const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != C_16s::ident) return vlqStsBadSpec;
    if (!srcRe || !srcIm || !dstRe || !dstIm) return vlqStsNullPtr;
    constexpr bool exchanged = direction == Direction::inverse;
    const Parts<const Vlq16s> in{exchanged ? srcIm : srcRe, exchanged ? srcRe : srcIm};
    const Parts<Vlq16s> out{exchanged ? dstIm : dstRe, exchanged ? dstRe : dstIm};
    if (spec->order == 0) {
        scaleOne(in, out, scaleFactor);
        return vlqStsOk;
    }
    const WorkBuffer work(buf, spec->workBytes);
    if (!work.data()) return vlqStsNoMemory;
    if (!spec->useFloat) {
        inIntegers<direction>(in, out, *spec, scaleFactor, work.data());
        return vlqStsOk;
    }
    constexpr auto call = exchanged ? vlq::vlqsFFTInv_CToC_32f_I : vlq::vlqsFFTFwd_CToC_32f_I;
    return splitThroughFloats<C_16s>(srcRe, srcIm, dstRe, dstIm, *spec, scaleFactor, work.data(),
                                     call);
}

template <Direction direction, Layout layout>
constexpr auto floatCall() {
    if constexpr (direction == Direction::forward) {
        return layout == Layout::ccs    ? vlq::vlqsFFTFwd_RToCCS_32f_I
               : layout == Layout::pack ? vlq::vlqsFFTFwd_RToPack_32f_I
                                        : vlq::vlqsFFTFwd_RToPerm_32f_I;
    } else {
        return layout == Layout::ccs    ? vlq::vlqsFFTInv_CCSToR_32f_I
               : layout == Layout::pack ? vlq::vlqsFFTInv_PackToR_32f_I
                                        : vlq::vlqsFFTInv_PermToR_32f_I;
    }
}

// Where value i of a Perm spectrum of n points stands in a layout.
template <Layout layout>
constexpr int placeOf(int i, int n) {
    if (layout == Layout::ccs) return i == 1 ? n : i;
    return layout == Layout::perm || i == 0 ? i : i == 1 ? n - 1 : i - 1;
}

template <Direction direction, Layout layout>
void realInIntegers(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s& spec,
                    Vlq32s scaleFactor, Vlq8u* work) {
    constexpr bool forward = direction == Direction::forward;
    const int order = spec.order, n = 1 << order;
    const Vlq64s shift = shiftOf<direction>(spec, scaleFactor);
    auto* const x = reinterpret_cast<Fixed*>(work);
    for (int i = 0; i < n; ++i)
        x[i] = widen(loadScalar(src + (forward ? i : placeOf<layout>(i, n))), order);
    fixedRealTransform<forward>(order, x);
    for (int i = 0; i < n; ++i) {
        storeScalar(dst + (forward ? placeOf<layout>(i, n) : i), narrow(halved(spec, x[i]), shift));
    }
    if (forward && layout == Layout::ccs) {
        storeScalar<Vlq16s>(dst + 1, 0);
        storeScalar<Vlq16s>(dst + n + 1, 0);
    }
}

template <Direction direction, Layout layout>
VlqStatus real(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
               Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->ident != R_16s::ident) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    constexpr bool forward = direction == Direction::forward;
    if (spec->order == 0) {
        storeScalar(dst, scaled(loadScalar(src), scaleFactor));
        if (forward && layout == Layout::ccs) storeScalar<Vlq16s>(dst + 1, 0);
        return vlqStsOk;
    }
    const WorkBuffer work(buf, spec->workBytes);
    if (!work.data()) return vlqStsNoMemory;
    if (!spec->useFloat) {
        realInIntegers<direction, layout>(src, dst, *spec, scaleFactor, work.data());
        return vlqStsOk;
    }
    const Vlq32s n = Vlq32s{1} << spec->order, spectrum = layout == Layout::ccs ? ccsLength(n) : n;
    return throughFloats<R_16s>(src, forward ? n : spectrum, dst, forward ? spectrum : n, *spec,
                                scaleFactor, work.data(), floatCall<direction, layout>());
}

}  // namespace

VlqStatus vlq::vlqsFFTGetSize_C_16sc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                     Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<C_16sc>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_C_16sc(VlqsFFTSpec_C_16sc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<C_16sc>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_16sc(VlqsFFTSpec_C_16sc** outSpec, Vlq32s order, Vlq32s flag,
                                       VlqHint hint) {
    return fixedInitAlloc<C_16sc>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_16sc(const VlqsFFTSpec_C_16sc* spec, Vlq32s* bufBytes) {
    return getBufSize<C_16sc>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_16sc(VlqsFFTSpec_C_16sc* spec) { return release<C_16sc>(spec); }

VlqStatus vlq::vlqsFFTGetSize_C_16s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<C_16s>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_C_16s(VlqsFFTSpec_C_16s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<C_16s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_16s(VlqsFFTSpec_C_16s** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return fixedInitAlloc<C_16s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_16s(const VlqsFFTSpec_C_16s* spec, Vlq32s* bufBytes) {
    return getBufSize<C_16s>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_16s(VlqsFFTSpec_C_16s* spec) { return release<C_16s>(spec); }

VlqStatus vlq::vlqsFFTGetSize_R_16s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<R_16s>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_R_16s(VlqsFFTSpec_R_16s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<R_16s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_R_16s(VlqsFFTSpec_R_16s** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return fixedInitAlloc<R_16s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_R_16s(const VlqsFFTSpec_R_16s* spec, Vlq32s* bufBytes) {
    return getBufSize<R_16s>(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_16s(VlqsFFTSpec_R_16s* spec) { return release<R_16s>(spec); }

VlqStatus vlq::vlqsFFTFwd_CToC_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst,
                                        const VlqsFFTSpec_C_16sc* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return interleaved<Direction::forward>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_16sc_ISfs(Vlq16sc* srcDst, const VlqsFFTSpec_C_16sc* spec,
                                         Vlq32s scaleFactor, Vlq8u* buf) {
    return interleaved<Direction::forward>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst,
                                        const VlqsFFTSpec_C_16sc* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return interleaved<Direction::inverse>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_16sc_ISfs(Vlq16sc* srcDst, const VlqsFFTSpec_C_16sc* spec,
                                         Vlq32s scaleFactor, Vlq8u* buf) {
    return interleaved<Direction::inverse>(srcDst, srcDst, spec, scaleFactor, buf);
}

VlqStatus vlq::vlqsFFTFwd_CToC_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe,
                                       Vlq16s* dstIm, const VlqsFFTSpec_C_16s* spec,
                                       Vlq32s scaleFactor, Vlq8u* buf) {
    return split<Direction::forward>(srcRe, srcIm, dstRe, dstIm, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_16s_ISfs(Vlq16s* srcDstRe, Vlq16s* srcDstIm,
                                        const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return split<Direction::forward>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec, scaleFactor,
                                     buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe,
                                       Vlq16s* dstIm, const VlqsFFTSpec_C_16s* spec,
                                       Vlq32s scaleFactor, Vlq8u* buf) {
    return split<Direction::inverse>(srcRe, srcIm, dstRe, dstIm, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_16s_ISfs(Vlq16s* srcDstRe, Vlq16s* srcDstIm,
                                        const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return split<Direction::inverse>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec, scaleFactor,
                                     buf);
}

VlqStatus vlq::vlqsFFTFwd_RToCCS_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                         const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                         Vlq8u* buf) {
    return real<Direction::forward, Layout::ccs>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToCCS_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                          Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::forward, Layout::ccs>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                          const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<Direction::forward, Layout::pack>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::forward, Layout::pack>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                          const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<Direction::forward, Layout::perm>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::forward, Layout::perm>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                         const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                         Vlq8u* buf) {
    return real<Direction::inverse, Layout::ccs>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                          Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::inverse, Layout::ccs>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                          const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<Direction::inverse, Layout::pack>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::inverse, Layout::pack>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                          const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<Direction::inverse, Layout::perm>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<Direction::inverse, Layout::perm>(srcDst, srcDst, spec, scaleFactor, buf);
}
