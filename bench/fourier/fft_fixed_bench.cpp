// Fixed-point FFT against FFTW in single precision between plain conversion loops.
#include <fftw3.h>

#include <algorithm>
#include <cmath>

#include "harness/bench.h"
#include "vlqs/fourier.h"
#include "vlqs/frame.h"

namespace {

[[gnu::noinline]] void toFloats(const short* __restrict src, float* __restrict dst, int len) {
    for (int i = 0; i < len; ++i) dst[i] = src[i];
}
[[gnu::noinline]] void toShorts(const float* __restrict src, short* __restrict dst, int len, float scale) {
    for (int i = 0; i < len; ++i) {
        dst[i] = static_cast<short>(std::lrintf(std::min(std::max(src[i] * scale, -32768.0f), 32767.0f)));
    }
}

void addOrder(int order) {
    const int n = 1 << order;
    auto* src = reinterpret_cast<Vlq16sc*>(vlqsMalloc_16s(2 * n));
    auto* dst = reinterpret_cast<Vlq16sc*>(vlqsMalloc_16s(2 * n));
    auto* values = vlqsMalloc_32f(2 * n);
    auto* spectrum = reinterpret_cast<fftwf_complex*>(values);
    const fftwf_plan plan = fftwf_plan_dft_1d(n, spectrum, spectrum, FFTW_FORWARD, FFTW_MEASURE);
    for (int i = 0; i < n; ++i) src[i] = {static_cast<Vlq16s>(i * 37 % 1999), static_cast<Vlq16s>(i * 91 % 1777)};
    VlqsFFTSpec_C_16sc* spec = nullptr;
    vlqsFFTInitAlloc_C_16sc(&spec, order, vlqNormNone, vlqHintNone);
    Vlq32s bytes = 0;
    vlqsFFTGetBufSize_C_16sc(spec, &bytes);
    Vlq8u* buf = vlqsMalloc_8u(bytes);
    auto* shorts = reinterpret_cast<const short*>(src);
    auto* result = reinterpret_cast<short*>(dst);
    vlqbench::add({"complex FFT 16sc", n, 1, "FFTW and loops", 0,
                   [=] { vlqsFFTFwd_CToC_16sc_Sfs(src, dst, spec, order, buf); },
                   [=] {
                       toFloats(shorts, values, 2 * n);
                       fftwf_execute(plan);
                       toShorts(values, result, 2 * n, std::ldexp(1.0f, -order));
                   }});
}

}  // namespace

int main(int argc, char** argv) {
    for (const int order : {2, 3, 4, 6, 8, 10, 12}) addOrder(order);
    return vlqbench::run(argc, argv);
}
