// Fixed-point FFT: 16-bit samples of short transforms in integers, all others in floating point.
// The work buffer then holds the work area of the floating transform, which is aligned, and after
// it the values.
#include "fourier/fixed_kinds.h"
#include "fourier/kernel/complex_transform.h"
#include "fourier/kernel/fixed.h"
#include "vlqs/convert.h"

namespace {

using namespace vlq;
using namespace vlq::fft;

// Every kind needs a work buffer from order 1 on. At the largest orders its size, stored in 32
// bits, wraps to a negative number: there is no such buffer.
bool isMissing(const WorkBuffer& work) { return !work.data(); }

// ---- in floating point --------------------------------------------------------------------------
void toFloat(const Vlq16s* src, Vlq32f* dst, Vlq32s len) { vlqsConvert_16s32f(src, dst, len); }
void toFloat(const Vlq32s* src, Vlq32f* dst, Vlq32s len) { vlqsConvert_32s32f(src, dst, len); }
void toFloat(const Vlq32s* src, Vlq64f* dst, Vlq32s len) { vlqsConvert_32s64f(src, dst, len); }
void toFixed(const Vlq32f* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlqsConvert_32f16s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}
void toFixed(const Vlq32f* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlqsConvert_32f32s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}
void toFixed(const Vlq64f* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlqsConvert_64f32s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}

// Elements of a spectrum of n real points.
template <Layout layout>
constexpr Vlq32s spectrumLength(Vlq32s n) {
    return layout != Layout::ccs ? n : n > 1 ? n + 2 : 2;
}

template <class Kind>
typename Kind::Real* valuesIn(const typename Kind::Spec& spec, Vlq8u* work) {
    const Vlq64s innerWork = spec.workBytes - Kind::dataBytes(spec.order);
    return reinterpret_cast<typename Kind::Real*>(work + innerWork);
}

// Converts srcLen elements, transforms them in place by `call`, and converts the dstLen results.
template <class Kind, class From, class To, class Value, class Inner>
VlqStatus throughFloats(const From* src, Vlq32s srcLen, To* dst, Vlq32s dstLen,
                        const typename Kind::Spec& spec, Vlq32s scaleFactor, Vlq8u* work,
                        VlqStatus (*call)(Value*, const Inner*, Vlq8u*)) {
    auto* const values = valuesIn<Kind>(spec, work);
    toFloat(src, values, srcLen);
    const VlqStatus status = call(reinterpret_cast<Value*>(values), spec.floatSpec, work);
    if (status == vlqStsOk) toFixed(values, dst, dstLen, scaleFactor);
    return status;
}

template <class Kind, class T, class Call>
VlqStatus splitThroughFloats(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm,
                             const typename Kind::Spec& spec, Vlq32s scaleFactor, Vlq8u* work,
                             Call call) {
    const Vlq32s n = Vlq32s{1} << spec.order;
    auto* const re = valuesIn<Kind>(spec, work);
    auto* const im = re + n;
    toFloat(srcRe, re, n);
    toFloat(srcIm, im, n);
    const VlqStatus status = call(re, im, spec.floatSpec, work);
    if (status != vlqStsOk) return status;
    toFixed(re, dstRe, n, scaleFactor);
    toFixed(im, dstIm, n, scaleFactor);
    return vlqStsOk;
}

// ---- in integers --------------------------------------------------------------------------------
// The shift of a result to the right, and a result before the shift.
template <Direction direction>
Vlq64s shiftOf(const auto& spec, Vlq32s scaleFactor) {
    return (direction == Direction::forward ? spec.fwdShift : spec.invShift) + Vlq64s{scaleFactor} +
           headroom(spec.order);
}
Fixed halved(const auto& spec, Fixed v) { return spec.halfStep ? v * Fixed(kRootHalf<double>) : v; }

// Through views of interleaved or split values; those of the inverse transform exchange the parts.
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

// Order 0: only the scale factor applies.
inline Vlq16s scaled(Vlq16s sample, Vlq32s scaleFactor) {
    return narrow(Fixed::of(static_cast<Vlq32u>(static_cast<Vlq32s>(sample))), scaleFactor);
}
void scaleOne(auto src, auto dst, Vlq32s scaleFactor) {
    const auto v = src.one(0);
    dst.putOne(0, Value<Vlq16s>{scaled(v.re, scaleFactor), scaled(v.im, scaleFactor)});
}

// Index in a layout of element i of a Perm spectrum of n points.
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

// ---- any kind -----------------------------------------------------------------------------------
template <class Kind, Direction direction, class Complex>
VlqStatus interleaved(const Complex* src, Complex* dst, const typename Kind::Spec* spec,
                      Vlq32s scaleFactor, Vlq8u* buf) {
    using T = decltype(Complex::re);
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<typename Kind::Spec>) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    constexpr bool inverse = direction == Direction::inverse;
    const auto* from = reinterpret_cast<const T*>(src);
    auto* to = reinterpret_cast<T*>(dst);
    [[maybe_unused]] const Interleaved<const T, inverse> in{from};
    [[maybe_unused]] const Interleaved<T, inverse> out{to};
    if constexpr (Kind::is16) {
        if (spec->order == 0) {
            scaleOne(in, out, scaleFactor);
            return vlqStsOk;
        }
    }
    const WorkBuffer work(buf, spec->workBytes);
    if (isMissing(work)) return vlqStsNoMemory;
    if constexpr (Kind::is16) {
        if (!spec->useFloat) {
            inIntegers<direction>(in, out, *spec, scaleFactor, work.data());
            return vlqStsOk;
        }
    }
    constexpr auto call = inverse ? Kind::Float::inverse : Kind::Float::forward;
    const Vlq32s len = Vlq32s{2} << spec->order;
    return throughFloats<Kind>(from, len, to, len, *spec, scaleFactor, work.data(), call);
}

template <class Kind, Direction direction, class T>
VlqStatus split(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const typename Kind::Spec* spec,
                Vlq32s scaleFactor, Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<typename Kind::Spec>) return vlqStsBadSpec;
    if (!srcRe || !srcIm || !dstRe || !dstIm) return vlqStsNullPtr;
    constexpr bool inverse = direction == Direction::inverse;
    [[maybe_unused]] const Parts<const T> in{inverse ? srcIm : srcRe, inverse ? srcRe : srcIm};
    [[maybe_unused]] const Parts<T> out{inverse ? dstIm : dstRe, inverse ? dstRe : dstIm};
    if constexpr (Kind::is16) {
        if (spec->order == 0) {
            scaleOne(in, out, scaleFactor);
            return vlqStsOk;
        }
    }
    const WorkBuffer work(buf, spec->workBytes);
    if (isMissing(work)) return vlqStsNoMemory;
    if constexpr (Kind::is16) {
        if (!spec->useFloat) {
            inIntegers<direction>(in, out, *spec, scaleFactor, work.data());
            return vlqStsOk;
        }
    }
    constexpr auto call = inverse ? Kind::Float::inverse : Kind::Float::forward;
    return splitThroughFloats<Kind>(srcRe, srcIm, dstRe, dstIm, *spec, scaleFactor, work.data(),
                                    call);
}

template <class Kind, Direction direction, Layout layout, class T>
VlqStatus real(const T* src, T* dst, const typename Kind::Spec* spec, Vlq32s scaleFactor,
               Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<typename Kind::Spec>) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    constexpr bool forward = direction == Direction::forward;
    if constexpr (Kind::is16) {
        if (spec->order == 0) {
            storeScalar(dst, scaled(loadScalar(src), scaleFactor));
            if (forward && layout == Layout::ccs) storeScalar<T>(dst + 1, 0);
            return vlqStsOk;
        }
    }
    const WorkBuffer work(buf, spec->workBytes);
    if (isMissing(work)) return vlqStsNoMemory;
    if constexpr (Kind::is16) {
        if (!spec->useFloat) {
            realInIntegers<direction, layout>(src, dst, *spec, scaleFactor, work.data());
            return vlqStsOk;
        }
    }
    const Vlq32s n = Vlq32s{1} << spec->order, spectrum = spectrumLength<layout>(n);
    constexpr auto call = (forward ? Kind::Float::forward : Kind::Float::inverse)[int(layout)];
    return throughFloats<Kind>(src, forward ? n : spectrum, dst, forward ? spectrum : n, *spec,
                               scaleFactor, work.data(), call);
}

}  // namespace

VlqStatus vlq::vlqsFFTFwd_CToC_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst,
                                        const VlqsFFTSpec_C_16sc* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return interleaved<C_16sc, Direction::forward>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_16sc_ISfs(Vlq16sc* srcDst, const VlqsFFTSpec_C_16sc* spec,
                                         Vlq32s scaleFactor, Vlq8u* buf) {
    return interleaved<C_16sc, Direction::forward>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst,
                                        const VlqsFFTSpec_C_16sc* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return interleaved<C_16sc, Direction::inverse>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_16sc_ISfs(Vlq16sc* srcDst, const VlqsFFTSpec_C_16sc* spec,
                                         Vlq32s scaleFactor, Vlq8u* buf) {
    return interleaved<C_16sc, Direction::inverse>(srcDst, srcDst, spec, scaleFactor, buf);
}

VlqStatus vlq::vlqsFFTFwd_CToC_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe,
                                       Vlq16s* dstIm, const VlqsFFTSpec_C_16s* spec,
                                       Vlq32s scaleFactor, Vlq8u* buf) {
    return split<C_16s, Direction::forward>(srcRe, srcIm, dstRe, dstIm, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_16s_ISfs(Vlq16s* srcDstRe, Vlq16s* srcDstIm,
                                        const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return split<C_16s, Direction::forward>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec,
                                            scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe,
                                       Vlq16s* dstIm, const VlqsFFTSpec_C_16s* spec,
                                       Vlq32s scaleFactor, Vlq8u* buf) {
    return split<C_16s, Direction::inverse>(srcRe, srcIm, dstRe, dstIm, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_16s_ISfs(Vlq16s* srcDstRe, Vlq16s* srcDstIm,
                                        const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return split<C_16s, Direction::inverse>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec,
                                            scaleFactor, buf);
}

VlqStatus vlq::vlqsFFTFwd_RToCCS_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                         const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                         Vlq8u* buf) {
    return real<R_16s, Direction::forward, Layout::ccs>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToCCS_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                          Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_16s, Direction::forward, Layout::ccs>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                          const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<R_16s, Direction::forward, Layout::pack>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_16s, Direction::forward, Layout::pack>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                          const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<R_16s, Direction::forward, Layout::perm>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_16s, Direction::forward, Layout::perm>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                         const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                         Vlq8u* buf) {
    return real<R_16s, Direction::inverse, Layout::ccs>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                          Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_16s, Direction::inverse, Layout::ccs>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                          const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<R_16s, Direction::inverse, Layout::pack>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_16s, Direction::inverse, Layout::pack>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst,
                                          const VlqsFFTSpec_R_16s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<R_16s, Direction::inverse, Layout::perm>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_16s, Direction::inverse, Layout::perm>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst,
                                        const VlqsFFTSpec_C_32sc* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return interleaved<C_32sc, Direction::forward>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_32sc_ISfs(Vlq32sc* srcDst, const VlqsFFTSpec_C_32sc* spec,
                                         Vlq32s scaleFactor, Vlq8u* buf) {
    return interleaved<C_32sc, Direction::forward>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst,
                                        const VlqsFFTSpec_C_32sc* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return interleaved<C_32sc, Direction::inverse>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32sc_ISfs(Vlq32sc* srcDst, const VlqsFFTSpec_C_32sc* spec,
                                         Vlq32s scaleFactor, Vlq8u* buf) {
    return interleaved<C_32sc, Direction::inverse>(srcDst, srcDst, spec, scaleFactor, buf);
}

VlqStatus vlq::vlqsFFTFwd_CToC_32s_Sfs(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe,
                                       Vlq32s* dstIm, const VlqsFFTSpec_C_32s* spec,
                                       Vlq32s scaleFactor, Vlq8u* buf) {
    return split<C_32s, Direction::forward>(srcRe, srcIm, dstRe, dstIm, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_CToC_32s_ISfs(Vlq32s* srcDstRe, Vlq32s* srcDstIm,
                                        const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return split<C_32s, Direction::forward>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec,
                                            scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32s_Sfs(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe,
                                       Vlq32s* dstIm, const VlqsFFTSpec_C_32s* spec,
                                       Vlq32s scaleFactor, Vlq8u* buf) {
    return split<C_32s, Direction::inverse>(srcRe, srcIm, dstRe, dstIm, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CToC_32s_ISfs(Vlq32s* srcDstRe, Vlq32s* srcDstIm,
                                        const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor,
                                        Vlq8u* buf) {
    return split<C_32s, Direction::inverse>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, spec,
                                            scaleFactor, buf);
}

VlqStatus vlq::vlqsFFTFwd_RToCCS_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                         const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                         Vlq8u* buf) {
    return real<R_32s, Direction::forward, Layout::ccs>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToCCS_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                          Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_32s, Direction::forward, Layout::ccs>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                          const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<R_32s, Direction::forward, Layout::pack>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPack_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_32s, Direction::forward, Layout::pack>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                          const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<R_32s, Direction::forward, Layout::perm>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTFwd_RToPerm_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_32s, Direction::forward, Layout::perm>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                         const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                         Vlq8u* buf) {
    return real<R_32s, Direction::inverse, Layout::ccs>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_CCSToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                          Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_32s, Direction::inverse, Layout::ccs>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                          const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<R_32s, Direction::inverse, Layout::pack>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PackToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_32s, Direction::inverse, Layout::pack>(srcDst, srcDst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst,
                                          const VlqsFFTSpec_R_32s* spec, Vlq32s scaleFactor,
                                          Vlq8u* buf) {
    return real<R_32s, Direction::inverse, Layout::perm>(src, dst, spec, scaleFactor, buf);
}
VlqStatus vlq::vlqsFFTInv_PermToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                           Vlq32s scaleFactor, Vlq8u* buf) {
    return real<R_32s, Direction::inverse, Layout::perm>(srcDst, srcDst, spec, scaleFactor, buf);
}

VlqStatus vlq::vlqsFFTFwd_RToCCS_16s32s_Sfs(const Vlq16s* src, Vlq32s* dst,
                                            const VlqsFFTSpec_R_16s32s* spec, Vlq32s scaleFactor,
                                            Vlq8u* buf) {
    if (!spec) return vlqStsNullPtr;
    if (spec->tag != kTag<VlqsFFTSpec_R_16s32s>) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (isMissing(work)) return vlqStsNoMemory;
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
    if (spec->tag != kTag<VlqsFFTSpec_R_16s32s>) return vlqStsBadSpec;
    if (!src || !dst) return vlqStsNullPtr;
    const WorkBuffer work(buf, spec->workBytes);
    if (isMissing(work)) return vlqStsNoMemory;
    const Vlq32s n = Vlq32s{1} << spec->order;
    return throughFloats<R_16s32s>(src, n + 1, dst, n, *spec, scaleFactor, work.data(),
                                   vlq::vlqsFFTInv_CCSToR_32f_I);
}
