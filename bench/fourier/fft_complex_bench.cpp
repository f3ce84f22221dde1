// Complex FFT in both precisions, forward, out of place, against FFTW's measured plan on the same
// data.
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
constexpr Bar kDoubleBars[] = {{4, 0.98, 0.60, 0.47}, {5, 1.05, 0.76, 0.48}, {6, 1.43, 0.85, 0.56},
                               {7, 1.66, 0.92, 0.67}, {8, 1.93, 0.91, 0.63}, {9, 1.92, 0.94, 0.60},
                               {10, 1.82, 0.92, 0.63}, {11, 1.85, 0.89, 0.71}, {12, 1.74, 0.89, 0.62},
                               {13, 1.51, 0.93, 0.56}, {14, 1.70, 1.00, 0.64}, {15, 1.33, 0.93, 0.76},
                               {16, 1.29, 0.94, 0.86}, {18, 1.53, 1.00, 0.85}, {20, 0.97, 0.80, 0.72},
                               {22, 0.59, 0.51, 0.50}};

double barOf(const Bar& bar) {
    const char* tag = vlqbench::buildTag();
    return !std::strcmp(tag, "s2") ? bar.s2 : !std::strcmp(tag, "v3") ? bar.v3 : bar.v4;
}

struct Single {
    using Value = Vlq32fc;
    using Real = Vlq32f;
    static constexpr const char* name = "complex FFT 32fc";
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32fc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32fc;
    static constexpr auto transform = vlqsFFTFwd_CToC_32fc;
    static constexpr auto plan = fftwf_plan_dft_1d;
    static constexpr auto execute = fftwf_execute;
    using Spec = VlqsFFTSpec_C_32fc;
    using Peer = fftwf_complex;
};
struct Double {
    using Value = Vlq64fc;
    using Real = Vlq64f;
    static constexpr const char* name = "complex FFT 64fc";
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_64fc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_64fc;
    static constexpr auto transform = vlqsFFTFwd_CToC_64fc;
    static constexpr auto plan = fftw_plan_dft_1d;
    static constexpr auto execute = fftw_execute;
    using Spec = VlqsFFTSpec_C_64fc;
    using Peer = fftw_complex;
};

// Vectors of values on a cache line.
template <class Value>
Value* valuesOf(int n) { return reinterpret_cast<Value*>(vlqsMalloc_8u(n * static_cast<int>(sizeof(Value)))); }

template <class Precision>
void addOrder(int order, double bar) {
    using Value = typename Precision::Value;
    using Real = typename Precision::Real;
    const int n = 1 << order;
    auto* src = valuesOf<Value>(n);
    auto* dst = valuesOf<Value>(n);
    typename Precision::Spec* spec = nullptr;
    Precision::initAlloc(&spec, order, vlqNormNone, vlqHintNone);
    Vlq32s bytes = 0;
    Precision::getBufSize(spec, &bytes);
    Vlq8u* work = vlqsMalloc_8u(bytes);
    auto* in = reinterpret_cast<typename Precision::Peer*>(valuesOf<Value>(n));
    auto* out = reinterpret_cast<typename Precision::Peer*>(valuesOf<Value>(n));
    const auto plan = Precision::plan(n, in, out, FFTW_FORWARD, order > 18 ? FFTW_ESTIMATE : FFTW_MEASURE);
    for (int i = 0; i < n; ++i) {
        src[i] = {static_cast<Real>(std::rand() % 2001 - 1000) / 1000, static_cast<Real>(std::rand() % 2001 - 1000) / 1000};
        in[i][0] = src[i].re;
        in[i][1] = src[i].im;
    }
    vlqbench::add({Precision::name, n, 1, "FFTW", bar, [=] { Precision::transform(src, dst, spec, work); },
                   [=] { Precision::execute(plan); }});
}

}  // namespace

int main(int argc, char** argv) {
    const char* only = std::getenv("FFT_ORDERS");  // "from-to"
    fftwf_set_timelimit(20);
    fftw_set_timelimit(20);
    int from = 0, to = 99;
    if (only) std::sscanf(only, "%d-%d", &from, &to);
    for (const Bar& bar : kBars) {
        if (bar.order >= from && bar.order <= to) addOrder<Single>(bar.order, barOf(bar));
    }
    for (const Bar& bar : kDoubleBars) {
        if (bar.order >= from && bar.order <= to) addOrder<Double>(bar.order, barOf(bar));
    }
    return vlqbench::run(argc, argv);
}
