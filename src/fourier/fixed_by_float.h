// Fixed-point transforms by way of floating ones. The work buffer holds the floating transform's
// own work area, which thereby stays aligned, and behind it the values.
#pragma once

#include "fourier/kernel/complex_transform.h"
#include "fourier/kernel/layouts.h"
#include "fourier/plan/fixed_plan.h"
#include "vlqs/convert.h"
#include "vlqs/fft.h"

namespace vlq::fft {

// Which calls a floating kind has.
struct FloatC32fc {
    using Spec = VlqsFFTSpec_C_32fc;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_C_32fc;
    static constexpr auto init = vlq::vlqsFFTInit_C_32fc;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_C_32fc;
};
struct FloatC32f {
    using Spec = VlqsFFTSpec_C_32f;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_C_32fc;
    static constexpr auto init = vlq::vlqsFFTInit_C_32f;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_C_32f;
};
struct FloatR32f {
    using Spec = VlqsFFTSpec_R_32f;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_R_32f;
    static constexpr auto init = vlq::vlqsFFTInit_R_32f;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_R_32f;
};
struct FloatC64fc {
    using Spec = VlqsFFTSpec_C_64fc;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_C_64fc;
    static constexpr auto init = vlq::vlqsFFTInit_C_64fc;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_C_64fc;
};
struct FloatC64f {
    using Spec = VlqsFFTSpec_C_64f;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_C_64fc;
    static constexpr auto init = vlq::vlqsFFTInit_C_64f;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_C_64f;
};
struct FloatR64f {
    using Spec = VlqsFFTSpec_R_64f;
    static constexpr auto getSize = vlq::vlqsFFTGetSize_R_64f;
    static constexpr auto init = vlq::vlqsFFTInit_R_64f;
    static constexpr auto getBufSize = vlq::vlqsFFTGetBufSize_R_64f;
};

inline void toFloat(const Vlq16s* src, Vlq32f* dst, Vlq32s len) {
    vlq::vlqsConvert_16s32f(src, dst, len);
}
inline void toFloat(const Vlq32s* src, Vlq32f* dst, Vlq32s len) {
    vlq::vlqsConvert_32s32f(src, dst, len);
}
inline void toFloat(const Vlq32s* src, Vlq64f* dst, Vlq32s len) {
    vlq::vlqsConvert_32s64f(src, dst, len);
}
inline void toFixed(const Vlq32f* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlq::vlqsConvert_32f16s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}
inline void toFixed(const Vlq32f* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlq::vlqsConvert_32f32s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}
inline void toFixed(const Vlq64f* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlq::vlqsConvert_64f32s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}

// Elements of a spectrum of n real points.
constexpr Vlq32s ccsLength(Vlq32s n) { return n > 1 ? n + 2 : 2; }

template <class Kind>
typename Kind::Real* valuesIn(const typename Kind::Spec& spec, Vlq8u* work) {
    return reinterpret_cast<typename Kind::Real*>(work +
                                                  (spec.workBytes - Kind::dataBytes(spec.order)));
}

// `call` is the floating transform in place; real and complex interleaved ones alike: srcLen
// elements become dstLen.
template <class Kind, class From, class To, class Call>
VlqStatus throughFloats(const From* src, Vlq32s srcLen, To* dst, Vlq32s dstLen,
                        const typename Kind::Spec& spec, Vlq32s scaleFactor, Vlq8u* work,
                        Call call) {
    auto* const values = valuesIn<Kind>(spec, work);
    toFloat(src, values, srcLen);
    const VlqStatus status =
        call(reinterpret_cast<typename Kind::Value*>(values), spec.floatSpec, work);
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

}  // namespace vlq::fft
