// FIR filters as a user writes them: plain loops with outputs in lanes, and overlap-save on FFTW.
// In all of them x begins with the past samples and taps are reversed, but for the FFTW's.
#pragma once

#include <fftw3.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

namespace vlqbench {

// As many sums as keep a core busy, in registers as long as the compiler sees how.
template <class T>
[[gnu::noinline]] void plainFir(const T* __restrict x, const T* __restrict taps, T* __restrict y,
                                int len, int tapsLen) {
    constexpr int width = 48 * 4 / sizeof(T);
    int n = 0;
    for (; n + width <= len; n += width) {
        T sum[width] = {};
        for (int k = 0; k < tapsLen; ++k) {
            for (int i = 0; i < width; ++i) sum[i] += taps[k] * x[n + k + i];
        }
        for (int i = 0; i < width; ++i) y[n + i] = sum[i];
    }
    for (; n < len; ++n) {
        T sum = 0;
        for (int k = 0; k < tapsLen; ++k) sum += taps[k] * x[n + k];
        y[n] = sum;
    }
}

// Complex values as pairs: products with the real and with the imaginary parts of the taps, the
// parts of the latter exchanged at the end.
template <class T>
[[gnu::noinline]] void plainComplexFir(const T* __restrict x, const T* __restrict taps,
                                       T* __restrict y, int len, int tapsLen) {
    constexpr int width = 24 * 4 / sizeof(T);
    int n = 0;
    for (; n + width <= 2 * len; n += width) {
        T byRe[width] = {}, byIm[width] = {};
        for (int k = 0; k < tapsLen; ++k) {
            for (int i = 0; i < width; ++i) {
                byRe[i] += taps[2 * k] * x[n + 2 * k + i];
                byIm[i] += taps[2 * k + 1] * x[n + 2 * k + i];
            }
        }
        for (int i = 0; i < width; i += 2) {
            y[n + i] = byRe[i] - byIm[i + 1];
            y[n + i + 1] = byRe[i + 1] + byIm[i];
        }
    }
    for (; n < 2 * len; n += 2) {
        T re = 0, im = 0;
        for (int k = 0; k < tapsLen; ++k) {
            re += taps[2 * k] * x[n + 2 * k] - taps[2 * k + 1] * x[n + 2 * k + 1];
            im += taps[2 * k] * x[n + 2 * k + 1] + taps[2 * k + 1] * x[n + 2 * k];
        }
        y[n] = re;
        y[n + 1] = im;
    }
}

// x * (a + ib) of interleaved values, in place: x * (a, a) + swapped x * (-b, b). A multiple of
// four floats.
[[gnu::noinline]] inline void multiplySpectra(float* __restrict x, const float* __restrict byRe,
                                              const float* __restrict byIm, int floats) {
    for (int k = 0; k < floats; k += 4) {
        const float a = x[k] * byRe[k] + x[k + 1] * byIm[k];
        const float b = x[k + 1] * byRe[k + 1] + x[k] * byIm[k + 1];
        const float c = x[k + 2] * byRe[k + 2] + x[k + 3] * byIm[k + 2];
        const float d = x[k + 3] * byRe[k + 3] + x[k + 2] * byIm[k + 3];
        x[k] = a;
        x[k + 1] = b;
        x[k + 2] = c;
        x[k + 3] = d;
    }
}

// Overlap-save with measured plans of one length.
class FftwFir {
public:
    FftwFir(const std::vector<float>& taps, int length)
        : past_(static_cast<int>(taps.size()) - 1),
          n_(length),
          floats_((n_ / 2 + 1) * 2 / 4 * 4 + 4),
          time_(fftwf_alloc_real(static_cast<std::size_t>(n_))),
          spectrum_(fftwf_alloc_real(static_cast<std::size_t>(floats_))),
          byRe_(fftwf_alloc_real(static_cast<std::size_t>(floats_))),
          byIm_(fftwf_alloc_real(static_cast<std::size_t>(floats_))) {
        auto* bins = reinterpret_cast<fftwf_complex*>(spectrum_);
        forward_ = fftwf_plan_dft_r2c_1d(n_, time_, bins, FFTW_MEASURE);
        inverse_ = fftwf_plan_dft_c2r_1d(n_, bins, time_, FFTW_MEASURE);
        std::fill_n(time_, n_, 0.0f);
        std::fill_n(spectrum_, floats_, 0.0f);
        for (std::size_t i = 0; i < taps.size(); ++i) time_[i] = taps[i] / static_cast<float>(n_);
        fftwf_execute(forward_);
        for (int i = 0; i < floats_; i += 2) {
            byRe_[i] = byRe_[i + 1] = spectrum_[i];
            byIm_[i] = -spectrum_[i + 1];
            byIm_[i + 1] = spectrum_[i + 1];
        }
    }
    ~FftwFir() {
        fftwf_destroy_plan(forward_);
        fftwf_destroy_plan(inverse_);
        for (float* p : {time_, spectrum_, byRe_, byIm_}) fftwf_free(p);
    }
    FftwFir(const FftwFir&) = delete;

    void run(const float* x, float* y, int len) const {
        const int step = n_ - past_;
        for (int from = 0; from < len; from += step) {
            const int count = std::min(step, len - from);
            std::copy_n(x + from, count + past_, time_);
            std::fill(time_ + count + past_, time_ + n_, 0.0f);
            fftwf_execute(forward_);
            multiplySpectra(spectrum_, byRe_, byIm_, floats_);
            fftwf_execute(inverse_);
            std::copy_n(time_ + past_, count, y + from);
        }
    }

private:
    int past_, n_, floats_;
    float *time_, *spectrum_, *byRe_, *byIm_;
    fftwf_plan forward_, inverse_;
};

// The length that is fastest for calls of len samples.
inline std::shared_ptr<FftwFir> bestFftwFir(const std::vector<float>& taps, const float* x,
                                            float* y, int len) {
    std::shared_ptr<FftwFir> best;
    auto least = std::chrono::nanoseconds::max();
    for (int n = 128; n <= 16384; n *= 2) {
        if (n < 2 * static_cast<int>(taps.size())) continue;
        auto fir = std::make_shared<FftwFir>(taps, n);
        for (int round = 0; round < 8; ++round) {
            const auto start = std::chrono::steady_clock::now();
            fir->run(x, y, len);
            const std::chrono::nanoseconds time = std::chrono::steady_clock::now() - start;
            if (time < least) {
                least = time;
                best = fir;
            }
        }
    }
    return best;
}

}  // namespace vlqbench
