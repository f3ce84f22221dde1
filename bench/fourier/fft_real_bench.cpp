// Real FFT in Perm layout in both precisions: both directions against FFTW, in place against out of
// place. FFT_ORDERS=from-to takes some of the orders.
#include <vector>

#include "fourier/fft_bench.h"
#include "vlqs/fft.h"

namespace {

using vlqbench::Bar;
using vlqbench::zeros;

constexpr Bar kBars[] = {{3, 0, 0, 0},           {4, 0, 0, 0},           {5, 0.88, 0.72, 0.72},
                         {6, 0.97, 0.72, 0.72},  {7, 1.14, 0.74, 0.74},  {8, 1.20, 0.83, 0.78},
                         {9, 1.34, 0.73, 0.70},  {10, 1.31, 0.72, 0.51}, {11, 1.40, 0.69, 0.47},
                         {12, 1.36, 0.69, 0.53}, {13, 1.49, 0.72, 0.56}, {14, 1.26, 0.66, 0.57},
                         {15, 1.26, 0.63, 0.60}, {16, 1.04, 0.74, 0.74}, {18, 1.13, 0.99, 0.79},
                         {20, 1.05, 0.79, 0.79}, {22, 0.42, 0.42, 0.42}};
constexpr Bar kDoubleBars[] = {
    {3, 0, 0, 0},           {4, 0, 0, 0},           {5, 0.98, 0.78, 0.78},  {6, 1.17, 0.86, 0.84},
    {7, 1.36, 0.83, 0.68},  {8, 1.62, 0.88, 0.70},  {9, 1.65, 0.86, 0.57},  {10, 1.71, 0.89, 0.56},
    {11, 1.69, 0.87, 0.58}, {12, 1.71, 0.88, 0.70}, {13, 1.63, 0.84, 0.73}, {14, 1.42, 0.88, 0.65},
    {15, 1.41, 0.94, 0.77}, {16, 1.30, 0.96, 0.79}, {18, 1.39, 1.00, 0.83}, {20, 0.50, 0.49, 0.42},
    {22, 0.39, 0.35, 0.31}};

struct Single {
    using Real = Vlq32f;
    using Spec = VlqsFFTSpec_R_32f;
    using Peer = fftwf_complex;
    static constexpr const char* name = "32f";
    static constexpr auto initAlloc = vlqsFFTInitAlloc_R_32f;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_R_32f;
    static constexpr auto forward = vlqsFFTFwd_RToPerm_32f;
    static constexpr auto inverse = vlqsFFTInv_PermToR_32f;
    static constexpr auto forwardPlan = fftwf_plan_dft_r2c_1d;
    static constexpr auto inversePlan = fftwf_plan_dft_c2r_1d;
    static constexpr auto execute = fftwf_execute;
};
struct Double {
    using Real = Vlq64f;
    using Spec = VlqsFFTSpec_R_64f;
    using Peer = fftw_complex;
    static constexpr const char* name = "64f";
    static constexpr auto initAlloc = vlqsFFTInitAlloc_R_64f;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_R_64f;
    static constexpr auto forward = vlqsFFTFwd_RToPerm_64f;
    static constexpr auto inverse = vlqsFFTInv_PermToR_64f;
    static constexpr auto forwardPlan = fftw_plan_dft_r2c_1d;
    static constexpr auto inversePlan = fftw_plan_dft_c2r_1d;
    static constexpr auto execute = fftw_execute;
};

template <class Precision>
void addOrder(int order, double bar) {
    using Real = typename Precision::Real;
    const int n = 1 << order;
    auto* x = zeros<Real>(n + 2);
    auto* y = zeros<Real>(n + 2);
    auto* spectrum = reinterpret_cast<typename Precision::Peer*>(y);
    // c2r may overwrite its input: FFTW's fastest variant.
    const unsigned effort = vlqbench::planEffort(order);
    const std::string peer = vlqbench::planRemark(order);
    const auto forward = Precision::forwardPlan(n, x, spectrum, effort);
    const auto inverse = Precision::inversePlan(n, spectrum, x, effort);
    for (int i = 0; i < n + 2; ++i) x[i] = y[i] = 0;

    typename Precision::Spec* spec = nullptr;
    Precision::initAlloc(&spec, order, vlqNormNone, vlqHintNone);
    Vlq32s bytes = 0;
    Precision::getBufSize(spec, &bytes);
    Vlq8u* buf = vlqsMalloc_8u(bytes);
    auto* a = zeros<Real>(n);
    auto* b = zeros<Real>(n);
    const std::string name = Precision::name;
    vlqbench::add({"real fft forward " + name, n, 1, "FFTW r2c" + peer, bar,
                   [=] { Precision::forward(a, b, spec, buf); },
                   [=] { Precision::execute(forward); }});
    vlqbench::add({"real fft inverse " + name, n, 1, "FFTW c2r" + peer, bar,
                   [=] { Precision::inverse(a, b, spec, buf); },
                   [=] { Precision::execute(inverse); }});
    if (order > 14) return;

    // Several vectors in turn, so that a call need not wait for the one before.
    constexpr unsigned turns = 8;
    std::vector<Real*> vectors;
    for (unsigned i = 0; i < 2 * turns; ++i) vectors.push_back(zeros<Real>(n));
    vlqbench::add({"real fft forward " + name + ", in place", n, 1, "out of place", 1.15,
                   [=, turn = 0u]() mutable {
                       Real* vector = vectors[turn++ % turns];
                       Precision::forward(vector, vector, spec, buf);
                   },
                   [=, turn = 0u]() mutable {
                       Precision::forward(vectors[turn % turns], vectors[turn % turns + turns],
                                          spec, buf);
                       ++turn;
                   }});
}

}  // namespace

int main(int argc, char** argv) {
    vlqbench::eachOrder(kBars, addOrder<Single>);
    vlqbench::eachOrder(kDoubleBars, addOrder<Double>);
    return vlqbench::run(argc, argv);
}
