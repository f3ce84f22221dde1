// Fixed-point FFT, scaled by 1/N, against FFTW between plain conversion loops, and 16-bit complex
// transforms against the float transform of this library between its own conversions.
#include <fftw3.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "harness/bench.h"
#include "vlqs/convert.h"
#include "vlqs/fft.h"
#include "vlqs/frame.h"

namespace {

template <class From, class To>
[[gnu::noinline]] void toFloating(const From* __restrict src, To* __restrict dst, int len) {
    for (int i = 0; i < len; ++i) dst[i] = static_cast<To>(src[i]);
}
template <class From, class To>
[[gnu::noinline]] void toFixed(const From* __restrict src, To* __restrict dst, int len,
                               From scale) {
    constexpr From least = std::numeric_limits<To>::min(), most = std::numeric_limits<To>::max();
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<To>(std::lrint(std::min(std::max(src[i] * scale, least), most)));
}

template <class T>
T* samples(int len) {
    auto* vector = reinterpret_cast<T*>(vlqsMalloc_8u(len * static_cast<int>(sizeof(T))));
    for (int i = 0; i < len; ++i) vector[i] = static_cast<T>(i * 37 % 1999 - 999);
    return vector;
}

template <class Spec>
struct Transform {
    Spec* spec = nullptr;
    Vlq8u* buf = nullptr;
};
template <class Spec>
Transform<Spec> planned(VlqStatus (*initAlloc)(Spec**, Vlq32s, Vlq32s, VlqHint),
                        VlqStatus (*getBufSize)(const Spec*, Vlq32s*), int order) {
    Transform<Spec> transform;
    initAlloc(&transform.spec, order, vlqNormNone, vlqHintNone);
    Vlq32s bytes = 0;
    getBufSize(transform.spec, &bytes);
    transform.buf = vlqsMalloc_8u(std::max(bytes, 1));
    return transform;
}

void addComplex16(int order) {
    const int n = 1 << order;
    const auto* src = samples<short>(2 * n);
    auto *dst = samples<short>(2 * n), *theirDst = samples<short>(2 * n);
    const auto* complexSrc = reinterpret_cast<const Vlq16sc*>(src);
    auto* complexDst = reinterpret_cast<Vlq16sc*>(dst);
    const auto fixed = planned(vlqsFFTInitAlloc_C_16sc, vlqsFFTGetBufSize_C_16sc, order);
    const auto ours = [=] {
        vlqsFFTFwd_CToC_16sc_Sfs(complexSrc, complexDst, fixed.spec, order, fixed.buf);
    };

    auto* values = samples<float>(2 * n);
    auto* spectrum = reinterpret_cast<fftwf_complex*>(values);
    const fftwf_plan plan = fftwf_plan_dft_1d(n, spectrum, spectrum, FFTW_FORWARD, FFTW_MEASURE);
    vlqbench::add({"complex FFT 16sc", n, 1, "FFTW and loops", 0, ours, [=] {
                       toFloating(src, values, 2 * n);
                       fftwf_execute(plan);
                       toFixed(values, theirDst, 2 * n, std::ldexp(1.0f, -order));
                   }});

    auto* floats = samples<Vlq32f>(2 * n);
    auto* complexFloats = reinterpret_cast<Vlq32fc*>(floats);
    const auto floating = planned(vlqsFFTInitAlloc_C_32fc, vlqsFFTGetBufSize_C_32fc, order);
    vlqbench::add({"complex FFT 16sc", n, 1, "our float FFT and conversions", 1.3, ours, [=] {
                       vlqsConvert_16s32f(src, floats, 2 * n);
                       vlqsFFTFwd_CToC_32fc_I(complexFloats, floating.spec, floating.buf);
                       vlqsConvert_32f16s_Sfs(floats, theirDst, 2 * n, vlqRndNear, order);
                   }});

    const auto split = planned(vlqsFFTInitAlloc_C_16s, vlqsFFTGetBufSize_C_16s, order);
    vlqbench::add(
        {"complex FFT 16s, split", n, 1, "FFTW and loops", 0,
         [=] { vlqsFFTFwd_CToC_16s_Sfs(src, src + n, dst, dst + n, split.spec, order, split.buf); },
         [=] {
             toFloating(src, values, 2 * n);
             fftwf_execute(plan);
             toFixed(values, theirDst, 2 * n, std::ldexp(1.0f, -order));
         }});
}

void addComplex32(int order) {
    const int n = 1 << order;
    const auto* src = samples<Vlq32s>(2 * n);
    auto *dst = samples<Vlq32s>(2 * n), *theirDst = samples<Vlq32s>(2 * n);
    auto* values = samples<double>(2 * n);
    auto* spectrum = reinterpret_cast<fftw_complex*>(values);
    const fftw_plan plan = fftw_plan_dft_1d(n, spectrum, spectrum, FFTW_FORWARD, FFTW_MEASURE);
    const auto peer = [=] {
        toFloating(src, values, 2 * n);
        fftw_execute(plan);
        toFixed(values, theirDst, 2 * n, std::ldexp(1.0, -order));
    };
    const auto interleaved = planned(vlqsFFTInitAlloc_C_32sc, vlqsFFTGetBufSize_C_32sc, order);
    vlqbench::add({"complex FFT 32sc", n, 1, "FFTW and loops", 0,
                   [=] {
                       vlqsFFTFwd_CToC_32sc_Sfs(reinterpret_cast<const Vlq32sc*>(src),
                                                reinterpret_cast<Vlq32sc*>(dst), interleaved.spec,
                                                order, interleaved.buf);
                   },
                   peer});
    const auto split = planned(vlqsFFTInitAlloc_C_32s, vlqsFFTGetBufSize_C_32s, order);
    vlqbench::add(
        {"complex FFT 32s, split", n, 1, "FFTW and loops", 0,
         [=] { vlqsFFTFwd_CToC_32s_Sfs(src, src + n, dst, dst + n, split.spec, order, split.buf); },
         peer});
}

template <class From, class To, class Spec>
void addReal(const std::string& name, int order,
             VlqStatus (*initAlloc)(Spec**, Vlq32s, Vlq32s, VlqHint),
             VlqStatus (*getBufSize)(const Spec*, Vlq32s*),
             VlqStatus (*forward)(const From*, To*, const Spec*, Vlq32s, Vlq8u*)) {
    const int n = 1 << order;
    const auto* src = samples<From>(n);
    auto *dst = samples<To>(n + 2), *theirDst = samples<To>(n + 2);
    const auto fixed = planned(initAlloc, getBufSize, order);
    auto* values = samples<double>(n);
    auto* spectrum = samples<double>(n + 2);
    const fftw_plan plan =
        fftw_plan_dft_r2c_1d(n, values, reinterpret_cast<fftw_complex*>(spectrum), FFTW_MEASURE);
    vlqbench::add({name, n, 1, "FFTW and loops", 0,
                   [=] { forward(src, dst, fixed.spec, order, fixed.buf); },
                   [=] {
                       toFloating(src, values, n);
                       fftw_execute(plan);
                       toFixed(spectrum, theirDst, n + 2, std::ldexp(1.0, -order));
                   }});
}

}  // namespace

int main(int argc, char** argv) {
    for (const int order : {2, 3, 4, 6, 8, 10, 12}) addComplex16(order);
    for (const int order : {4, 8, 10, 12}) {
        addComplex32(order);
        addReal("real FFT 16s", order, vlqsFFTInitAlloc_R_16s, vlqsFFTGetBufSize_R_16s,
                vlqsFFTFwd_RToCCS_16s_Sfs);
        addReal("real FFT 32s", order, vlqsFFTInitAlloc_R_32s, vlqsFFTGetBufSize_R_32s,
                vlqsFFTFwd_RToCCS_32s_Sfs);
        addReal("real FFT 16s32s", order, vlqsFFTInitAlloc_R_16s32s, vlqsFFTGetBufSize_R_16s32s,
                vlqsFFTFwd_RToCCS_16s32s_Sfs);
    }
    return vlqbench::run(argc, argv);
}
