// Complex FFT, forward, out of place, against FFTW's measured plan on the same data.
#include <fftw3.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "harness/bench.h"
#include "vlqs/fourier.h"
#include "vlqs/frame.h"

namespace {

struct Bar {
    int order;
    double s2, v3, v4;
};
// Ratio to the peer that the best of all libraries reaches with the build's instructions.
constexpr Bar kBars[] = {{4, 0.46, 0.25, 0.25},  {5, 1.08, 0.64, 0.48},  {6, 1.51, 0.82, 0.82},  {7, 1.68, 0.98, 0.70},
                         {8, 1.77, 0.94, 0.69},  {9, 1.84, 0.92, 0.70},  {10, 1.86, 0.92, 0.73}, {11, 1.86, 0.94, 0.71},
                         {12, 1.80, 0.89, 0.71}, {13, 1.51, 0.83, 0.62}, {14, 1.46, 0.78, 0.53}, {15, 1.43, 0.82, 0.78},
                         {16, 1.39, 0.89, 0.89}, {18, 1.25, 0.67, 0.67}, {20, 0.60, 0.51, 0.51}, {22, 0.95, 0.91, 0.73}};

double barOf(const Bar& bar) {
    const char* tag = vlqbench::buildTag();
    return !std::strcmp(tag, "s2") ? bar.s2 : !std::strcmp(tag, "v3") ? bar.v3 : bar.v4;
}

void addOrder(const Bar& bar) {
    const int n = 1 << bar.order;
    auto* src = vlqsMalloc_32fc(n);
    auto* dst = vlqsMalloc_32fc(n);
    VlqsFFTSpec_C_32fc* spec = nullptr;
    vlqsFFTInitAlloc_C_32fc(&spec, bar.order, vlqNormNone, vlqHintNone);
    Vlq32s bytes = 0;
    vlqsFFTGetBufSize_C_32fc(spec, &bytes);
    Vlq8u* work = vlqsMalloc_8u(bytes);
    auto* in = reinterpret_cast<fftwf_complex*>(vlqsMalloc_32fc(n));
    auto* out = reinterpret_cast<fftwf_complex*>(vlqsMalloc_32fc(n));
    fftwf_plan plan = fftwf_plan_dft_1d(n, in, out, FFTW_FORWARD, FFTW_MEASURE);
    for (int i = 0; i < n; ++i) {
        src[i] = {static_cast<float>(std::rand() % 2001 - 1000) / 1000, static_cast<float>(std::rand() % 2001 - 1000) / 1000};
        in[i][0] = src[i].re;
        in[i][1] = src[i].im;
    }
    vlqbench::add({"complex FFT 32fc", n, 1, "FFTW", barOf(bar), [=] { vlqsFFTFwd_CToC_32fc(src, dst, spec, work); },
                   [=] { fftwf_execute(plan); }});
}

}  // namespace

int main(int argc, char** argv) {
    const char* only = std::getenv("FFT_ORDERS");  // "from-to"
    fftwf_set_timelimit(20);
    int from = 0, to = 99;
    if (only) std::sscanf(only, "%d-%d", &from, &to);
    for (const Bar& bar : kBars) {
        if (bar.order >= from && bar.order <= to) addOrder(bar);
    }
    return vlqbench::run(argc, argv);
}
