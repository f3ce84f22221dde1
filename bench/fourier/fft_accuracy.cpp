// The error of the transforms, order by order: relative L2 error of a forward transform of random
// samples against an extended-precision transform, and of the round trip against the samples.
// Prints tab-separated rows: build, kind, order, forward and round-trip error in units of
// sqrt(log2 N) u, and the part of the forward error that the eight-point factor alone makes.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

#include "fourier/fft_complex_ref.h"
#include "vlqs/fft.h"
#include "vlqs/frame.h"

namespace {

using vlqtest::Extended;

// Even at single precision, so that both precisions transform the same samples.
std::vector<float> randomSamples(std::size_t count) {
    std::mt19937 engine(20);
    std::uniform_real_distribution<float> uniform(-1, 1);
    std::vector<float> samples(count);
    for (float& x : samples) x = uniform(engine);
    return samples;
}

// Odd orders of single precision have one stage of eight-point transforms, whose factor is one unit
// in the last place above 1/sqrt(2). This is the transform that errs there and nowhere else.
void dftWithEightPointFactor(const Extended* x, Extended* result, std::size_t n, std::size_t stride,
                             const std::vector<Extended>& roots,
                             const std::vector<Extended>& eightRoots) {
    if (n == 8) return vlqtest::dftByHalves(x, result, n, stride, eightRoots);
    dftWithEightPointFactor(x, result, n / 2, 2 * stride, roots, eightRoots);
    dftWithEightPointFactor(x + stride, result + n / 2, n / 2, 2 * stride, roots, eightRoots);
    vlqtest::joinHalves(result, n, roots);
}
std::vector<Extended> dftWithEightPointFactor(const std::vector<Extended>& x) {
    std::vector<Extended> eightRoots = vlqtest::unitRoots(8, -1), result(x.size());
    constexpr long double factor = 0x1.6a09e8p-1L;
    eightRoots[1] = {factor, -factor};
    eightRoots[3] = {-factor, -factor};
    dftWithEightPointFactor(x.data(), result.data(), x.size(), 1, vlqtest::unitRoots(x.size(), -1),
                            eightRoots);
    return result;
}

// |measured - exact| / |exact| over interleaved parts; only the first `count` values of exact.
template <class T>
long double relativeError(const T* measured, const std::vector<Extended>& exact,
                          std::size_t count) {
    long double error = 0, norm = 0;
    for (std::size_t i = 0; i < count; ++i) {
        error += std::norm(Extended(measured[2 * i], measured[2 * i + 1]) - exact[i]);
        norm += std::norm(exact[i]);
    }
    return std::sqrt(error / norm);
}

template <class T>
T* vectorOf(std::size_t count) {
    return reinterpret_cast<T*>(vlqsMalloc_8u(static_cast<int>(count * sizeof(T))));
}

void check(VlqStatus status) {
    if (status == vlqStsOk) return;
    std::fprintf(stderr, "transform refused: status %d\n", status);
    std::exit(1);
}

template <class SpecType, class ValueType, auto initAllocCall, auto freeCall, auto forwardCall,
          auto inverseCall>
struct Kind {
    using Spec = SpecType;
    using Value = ValueType;
    static constexpr auto initAlloc = initAllocCall;
    static constexpr auto free = freeCall;
    static constexpr auto forward = forwardCall;
    static constexpr auto inverse = inverseCall;
};
using ComplexSingle = Kind<VlqsFFTSpec_C_32fc, Vlq32fc, vlqsFFTInitAlloc_C_32fc, vlqsFFTFree_C_32fc,
                           vlqsFFTFwd_CToC_32fc, vlqsFFTInv_CToC_32fc>;
using ComplexDouble = Kind<VlqsFFTSpec_C_64fc, Vlq64fc, vlqsFFTInitAlloc_C_64fc, vlqsFFTFree_C_64fc,
                           vlqsFFTFwd_CToC_64fc, vlqsFFTInv_CToC_64fc>;
using RealSingle = Kind<VlqsFFTSpec_R_32f, Vlq32f, vlqsFFTInitAlloc_R_32f, vlqsFFTFree_R_32f,
                        vlqsFFTFwd_RToCCS_32f, vlqsFFTInv_CCSToR_32f>;
using RealDouble = Kind<VlqsFFTSpec_R_64f, Vlq64f, vlqsFFTInitAlloc_R_64f, vlqsFFTFree_R_64f,
                        vlqsFFTFwd_RToCCS_64f, vlqsFFTInv_CCSToR_64f>;

// Transforms the samples there and back, and prints the row. `spectrum` has `bins` values that
// count.
template <class Kind, class T>
void measure(const char* name, int order, const std::vector<float>& samples,
             const std::vector<Extended>& spectrum, std::size_t bins, long double eightPointShare) {
    using Value = typename Kind::Value;
    T* in = vectorOf<T>(samples.size());
    T* out = vectorOf<T>(samples.size() + 2);  // CCS has two values more than the signal
    T* back = vectorOf<T>(samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) in[i] = samples[i];

    typename Kind::Spec* spec = nullptr;
    check(Kind::initAlloc(&spec, order, vlqNormInvByN, vlqHintNone));
    check(Kind::forward(reinterpret_cast<const Value*>(in), reinterpret_cast<Value*>(out), spec,
                        nullptr));
    check(Kind::inverse(reinterpret_cast<const Value*>(out), reinterpret_cast<Value*>(back), spec,
                        nullptr));
    check(Kind::free(spec));

    long double roundTrip = 0, norm = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const long double x = samples[i];
        roundTrip += (back[i] - x) * (back[i] - x);
        norm += x * x;
    }
    const long double unit =
        std::sqrt(static_cast<long double>(order)) * (sizeof(T) == 4 ? 0x1p-24L : 0x1p-53L);
    std::printf("%s\t%s\t%d\t%.3Lf\t%.3Lf\t%.3Lf\n", vlqsGetLibVersion()->targetTag, name, order,
                relativeError(out, spectrum, bins) / unit, std::sqrt(roundTrip / norm) / unit,
                eightPointShare / unit);
    std::fflush(stdout);
    for (T* vector : {in, out, back}) vlqsFree(vector);
}

}  // namespace

int main() {
    constexpr int kLargestOrder = 22;
    for (int order = 1; order <= kLargestOrder; ++order) {
        const std::size_t n = std::size_t{1} << order;
        const std::vector<float> samples = randomSamples(2 * n);
        std::vector<Extended> complexSignal(n), realSignal(n);
        for (std::size_t i = 0; i < n; ++i) {
            complexSignal[i] = {samples[2 * i], samples[2 * i + 1]};
            realSignal[i] = samples[i];
        }

        const std::vector<Extended> spectrum = vlqtest::dft(complexSignal, -1);
        long double share = 0;
        if (order % 2 && order > 1) {
            const std::vector<Extended> other = dftWithEightPointFactor(complexSignal);
            long double difference = 0, norm = 0;
            for (std::size_t i = 0; i < n; ++i) {
                difference += std::norm(other[i] - spectrum[i]);
                norm += std::norm(spectrum[i]);
            }
            share = std::sqrt(difference / norm);
        }
        measure<ComplexSingle, float>("complex single", order, samples, spectrum, n, share);
        measure<ComplexDouble, double>("complex double", order, samples, spectrum, n, 0);

        const std::vector<float> realSamples(samples.begin(),
                                             samples.begin() + static_cast<std::ptrdiff_t>(n));
        const std::vector<Extended> realSpectrum = vlqtest::dft(realSignal, -1);
        measure<RealSingle, float>("real single", order, realSamples, realSpectrum, n / 2 + 1, 0);
        measure<RealDouble, double>("real double", order, realSamples, realSpectrum, n / 2 + 1, 0);
    }
    return 0;
}
