// Complex FFT in both precisions: forward and inverse out of place against FFTW on the same data;
// in place against out of place, and without a work buffer against the same with an allocation, our
// own. FFT_ORDERS=from-to takes some of the orders.
#include <vector>

#include "fourier/fft_bench.h"
#include "vlqs/fft.h"

namespace {

using vlqbench::Bar;
using vlqbench::zeros;

constexpr Bar kBars[] = {
    {4, 0.46, 0.25, 0.25},  {5, 1.08, 0.64, 0.48},  {6, 1.51, 0.82, 0.82},  {7, 1.68, 0.98, 0.70},
    {8, 1.77, 0.94, 0.69},  {9, 1.84, 0.92, 0.70},  {10, 1.86, 0.92, 0.73}, {11, 1.86, 0.94, 0.71},
    {12, 1.80, 0.89, 0.71}, {13, 1.51, 0.83, 0.62}, {14, 1.46, 0.78, 0.53}, {15, 1.43, 0.82, 0.78},
    {16, 1.39, 0.89, 0.89}, {18, 1.25, 0.67, 0.67}, {20, 0.60, 0.51, 0.51}, {22, 0.95, 0.91, 0.73}};
constexpr Bar kDoubleBars[] = {
    {4, 0.98, 0.60, 0.47},  {5, 1.05, 0.76, 0.48},  {6, 1.43, 0.85, 0.56},  {7, 1.66, 0.92, 0.67},
    {8, 1.93, 0.91, 0.63},  {9, 1.92, 0.94, 0.60},  {10, 1.82, 0.92, 0.63}, {11, 1.85, 0.89, 0.71},
    {12, 1.74, 0.89, 0.62}, {13, 1.51, 0.93, 0.56}, {14, 1.70, 1.00, 0.64}, {15, 1.33, 0.93, 0.76},
    {16, 1.29, 0.94, 0.86}, {18, 1.53, 1.00, 0.85}, {20, 0.97, 0.80, 0.72}, {22, 0.59, 0.51, 0.50}};

struct Single {
    using Value = Vlq32fc;
    using Spec = VlqsFFTSpec_C_32fc;
    using Peer = fftwf_complex;
    static constexpr const char* name = "32fc";
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32fc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32fc;
    static constexpr auto forward = vlqsFFTFwd_CToC_32fc;
    static constexpr auto inverse = vlqsFFTInv_CToC_32fc;
    static constexpr auto inPlace = vlqsFFTFwd_CToC_32fc_I;
    static constexpr auto plan = fftwf_plan_dft_1d;
    static constexpr auto execute = fftwf_execute;
};
struct Double {
    using Value = Vlq64fc;
    using Spec = VlqsFFTSpec_C_64fc;
    using Peer = fftw_complex;
    static constexpr const char* name = "64fc";
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_64fc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_64fc;
    static constexpr auto forward = vlqsFFTFwd_CToC_64fc;
    static constexpr auto inverse = vlqsFFTInv_CToC_64fc;
    static constexpr auto inPlace = vlqsFFTFwd_CToC_64fc_I;
    static constexpr auto plan = fftw_plan_dft_1d;
    static constexpr auto execute = fftw_execute;
};

template <class Precision>
void addOrder(int order, double bar) {
    using Value = typename Precision::Value;
    const int n = 1 << order;
    auto* src = zeros<Value>(n);
    auto* dst = zeros<Value>(n);
    typename Precision::Spec* spec = nullptr;
    Precision::initAlloc(&spec, order, vlqNormNone, vlqHintNone);
    Vlq32s bytes = 0;
    Precision::getBufSize(spec, &bytes);
    Vlq8u* work = vlqsMalloc_8u(bytes);
    auto* in = reinterpret_cast<typename Precision::Peer*>(zeros<Value>(n));
    auto* out = reinterpret_cast<typename Precision::Peer*>(zeros<Value>(n));
    const unsigned effort = vlqbench::planEffort(order);
    const std::string peer = std::string("FFTW") + vlqbench::planRemark(order);
    const auto forwardPlan = Precision::plan(n, in, out, FFTW_FORWARD, effort);
    const auto inversePlan = Precision::plan(n, in, out, FFTW_BACKWARD, effort);
    for (int i = 0; i < n; ++i) {
        using Real = decltype(Value::re);
        in[i][0] = src[i].re = static_cast<Real>(std::rand() % 2001 - 1000);
        in[i][1] = src[i].im = static_cast<Real>(std::rand() % 2001 - 1000);
    }
    const std::string name = Precision::name;
    vlqbench::add({"complex FFT " + name, n, 1, peer, bar,
                   [=] { Precision::forward(src, dst, spec, work); },
                   [=] { Precision::execute(forwardPlan); }});
    vlqbench::add({"inverse complex FFT " + name, n, 1, peer, bar,
                   [=] { Precision::inverse(src, dst, spec, work); },
                   [=] { Precision::execute(inversePlan); }});
    if (order > 14) return;

    // Several vectors in turn, so that a call need not wait for the one before.
    constexpr unsigned turns = 8;
    std::vector<Value*> vectors;
    for (unsigned i = 0; i < 2 * turns; ++i) vectors.push_back(zeros<Value>(n));
    vlqbench::add(
        {"complex FFT " + name + ", in place", n, 1, "out of place", 1.15,
         [=, turn = 0u]() mutable { Precision::inPlace(vectors[turn++ % turns], spec, work); },
         [=, turn = 0u]() mutable {
             Precision::forward(vectors[turn % turns], vectors[turn % turns + turns], spec, work);
             ++turn;
         }});
    if (bytes == 0) return;
    vlqbench::add({"complex FFT " + name + ", no work buffer", n, 1, "one allocation more", 1.05,
                   [=] { Precision::forward(src, dst, spec, nullptr); },
                   [=] {
                       Vlq8u* block = vlqsMalloc_8u(bytes);
                       Precision::forward(src, dst, spec, block);
                       vlqsFree(block);
                   }});
}

}  // namespace

int main(int argc, char** argv) {
    vlqbench::eachOrder(kBars, addOrder<Single>);
    vlqbench::eachOrder(kDoubleBars, addOrder<Double>);
    return vlqbench::run(argc, argv);
}
