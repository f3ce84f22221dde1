// Real FFT in Perm form against FFTW, both directions, with every order of the bars.
#include <fftw3.h>

#include <memory>

#include "harness/bench.h"
#include "vlqs/fourier.h"
#include "vlqs/frame.h"

namespace {

// Time over FFTW's that we mean to reach, by order from 5, for the three builds.
struct Bar {
    double s2, v3, v4;
};
constexpr Bar kBars[] = {{0.88, 0.72, 0.72}, {0.97, 0.72, 0.72}, {1.14, 0.74, 0.74}, {1.20, 0.83, 0.78},
                         {1.34, 0.73, 0.70}, {1.31, 0.72, 0.51}, {1.40, 0.69, 0.47}, {1.36, 0.69, 0.53},
                         {1.49, 0.72, 0.56}, {1.26, 0.66, 0.57}, {1.26, 0.63, 0.60}, {1.04, 0.74, 0.74},
                         {1.04, 0.74, 0.74}, {1.13, 0.99, 0.79}, {1.13, 0.99, 0.79}, {1.05, 0.79, 0.79}};

double barOf(int order) {
    if (order < 5 || order > 20) return 0;
    const Bar& bar = kBars[order - 5];
    const std::string tag = vlqbench::buildTag();
    return tag == "v4" ? bar.v4 : tag == "v3" ? bar.v3 : bar.s2;
}

void addOrder(int order) {
    const long n = 1L << order;
    const auto count = static_cast<std::size_t>(n) + 16;
    auto* x = static_cast<float*>(fftwf_malloc(count * sizeof(float)));
    auto* y = static_cast<float*>(fftwf_malloc(count * sizeof(float)));
    auto* spectrum = reinterpret_cast<fftwf_complex*>(y);
    // Destroyed input is FFTW's quickest c2r.
    const fftwf_plan forward = fftwf_plan_dft_r2c_1d(static_cast<int>(n), x, spectrum, FFTW_MEASURE);
    const fftwf_plan inverse = fftwf_plan_dft_c2r_1d(static_cast<int>(n), spectrum, x, FFTW_MEASURE);
    for (std::size_t i = 0; i < count; ++i) x[i] = y[i] = 0;

    VlqsFFTSpec_R_32f* spec = nullptr;
    vlqsFFTInitAlloc_R_32f(&spec, order, vlqNormNone, vlqHintNone);
    Vlq32s bytes = 0;
    vlqsFFTGetBufSize_R_32f(spec, &bytes);
    Vlq8u* buf = vlqsMalloc_8u(bytes);
    Vlq32f* a = vlqsMalloc_32f(static_cast<Vlq32s>(count));
    Vlq32f* b = vlqsMalloc_32f(static_cast<Vlq32s>(count));
    for (std::size_t i = 0; i < count; ++i) a[i] = b[i] = 0;

    vlqbench::add({"real fft forward 32f", n, 1, "FFTW r2c", barOf(order),
                   [=] { vlqsFFTFwd_RToPerm_32f(a, b, spec, buf); }, [=] { fftwf_execute(forward); }});
    vlqbench::add({"real fft inverse 32f", n, 1, "FFTW c2r", barOf(order),
                   [=] { vlqsFFTInv_PermToR_32f(a, b, spec, buf); }, [=] { fftwf_execute(inverse); }});
}

}  // namespace

int main(int argc, char** argv) {
    for (int order = 3; order <= 20; ++order) addOrder(order);
    return vlqbench::run(argc, argv);
}
