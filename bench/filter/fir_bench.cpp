// FIR filters against a plain compiled loop, liquid-dsp, and overlap-save written on FFTW.
#include <fftw3.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <memory>
#include <vector>

// liquid's C interface takes C's complex type, which is C++'s in layout.
#include <liquid/liquid.h>

#include "harness/bench.h"
#include "vlqs.h"
#include "vlqs/core.h"

namespace {

constexpr int kLong = 1 << 20;

float* vectorOf(int len, bool random) {
    float* v = vlqsMalloc_32f(len);
    unsigned state = 12345;
    for (int i = 0; i < len; ++i) {
        state = state * 1664525u + 1013904223u;
        v[i] = random ? static_cast<float>(state >> 8) * 0x1p-23f - 1 : 0.0f;
    }
    return v;
}

float* const source = vectorOf(kLong + 8192, true);
float* const result = vectorOf(kLong + 8192, false);

std::vector<float> lowpass(int taps) {
    std::vector<float> h(static_cast<std::size_t>(taps));
    for (int i = 0; i < taps; ++i) {
        const double t = i - (taps - 1) / 2.0 + 1e-9;
        h[static_cast<std::size_t>(i)] = static_cast<float>(std::sin(0.6 * t) / (3.14159265 * t));
    }
    return h;
}

VlqsFIRState_32f* record(int taps) {
    VlqsFIRState_32f* state = nullptr;
    vlqsFIRInitAlloc_32f(&state, lowpass(taps).data(), taps, nullptr);
    return state;
}

// x begins with the past samples.
[[gnu::noinline]] void plainLoop(const float* __restrict x, const float* __restrict reversed, float* __restrict y, int len, int taps) {
    for (int n = 0; n < len; ++n) {
        float sum = 0;
        for (int k = 0; k < taps; ++k) sum += reversed[k] * x[n + k];
        y[n] = sum;
    }
}
// The same with the loops exchanged, which lets the compiler use vectors.
[[gnu::noinline]] void plainLoopByTap(const float* __restrict x, const float* __restrict reversed, float* __restrict y, int len, int taps) {
    constexpr int tile = 256;
    for (int from = 0; from < len; from += tile) {
        const int count = std::min(tile, len - from);
        for (int n = 0; n < count; ++n) y[from + n] = 0;
        for (int k = 0; k < taps; ++k) {
            for (int n = 0; n < count; ++n) y[from + n] += reversed[k] * x[from + n + k];
        }
    }
}

struct Fftw {
    explicit Fftw(int taps) : past(taps - 1) {
        while (n < 8 * taps) n *= 2;
        time = fftwf_alloc_real(static_cast<std::size_t>(n));
        spectrum = reinterpret_cast<std::complex<float>*>(fftwf_alloc_complex(static_cast<std::size_t>(n / 2 + 1)));
        auto* bins = reinterpret_cast<fftwf_complex*>(spectrum);
        forward = fftwf_plan_dft_r2c_1d(n, time, bins, FFTW_MEASURE);
        inverse = fftwf_plan_dft_c2r_1d(n, bins, time, FFTW_MEASURE);
        const auto h = lowpass(taps);
        std::fill_n(time, n, 0.0f);
        for (std::size_t i = 0; i < h.size(); ++i) time[i] = h[i] / static_cast<float>(n);
        fftwf_execute(forward);
        filter.assign(spectrum, spectrum + n / 2 + 1);
    }
    void run(const float* x, float* y, int len) const {  // x begins with the past samples
        const int step = n - past;
        for (int from = 0; from < len; from += step) {
            const int count = std::min(step, len - from);
            std::copy_n(x + from, count + past, time);
            std::fill(time + count + past, time + n, 0.0f);
            fftwf_execute(forward);
            for (int k = 0; k <= n / 2; ++k) {
                const auto a = spectrum[k], b = filter[static_cast<std::size_t>(k)];
                spectrum[k] = {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
            }
            fftwf_execute(inverse);
            std::copy_n(time + past, count, y + from);
        }
    }
    int past;
    int n = 64;
    float* time;
    std::complex<float>* spectrum;
    fftwf_plan forward, inverse;
    std::vector<std::complex<float>> filter;
};

void row(const std::string& work, int len, const std::string& peer, double bar, std::function<void()> ours, std::function<void()> theirs) {
    vlqbench::add({work, len, static_cast<double>(len), peer, bar, std::move(ours), std::move(theirs)});
}

}  // namespace

int main(int argc, char** argv) {
    vlqSetNumThreads(1);
    for (const int taps : {32, 64, 96, 256, 1024}) {
        auto* state = record(taps);
        static std::vector<std::vector<float>> kept;
        kept.push_back(lowpass(taps));
        std::reverse(kept.back().begin(), kept.back().end());
        const float* reversed = kept.back().data();
        auto h = lowpass(taps);
        auto liquid = firfilt_rrrf_create(h.data(), static_cast<unsigned>(taps));
        const std::string name = std::to_string(taps) + " taps";

        auto blocks = [state](int len, int block) {
            return [state, len, block] {
                for (int done = 0; done < len; done += block) vlqsFIR_32f(source + done, result + done, std::min(block, len - done), state);
            };
        };
        auto withLoop = [reversed, taps](int len) { return [=] { plainLoopByTap(source, reversed, result, len, taps); }; };
        auto withLiquid = [liquid](int len) {
            return [=] { firfilt_rrrf_execute_block(liquid, source, static_cast<unsigned>(len), result); };
        };
        // Blocks of fewer than 512 samples are computed directly.
        row("FIR 32f direct, " + name, 160, "plain loop", 1, blocks(160, 160), withLoop(160));
        row("FIR 32f direct, " + name + ", blocks of 511", 65536, "plain loop", 1, blocks(65536, 511), withLoop(65536));
        if (taps <= 256) {
            row("FIR 32f direct, " + name + ", blocks of 511", 65536, "liquid-dsp", 1, blocks(65536, 511), withLiquid(65536));
            row("FIR 32f direct, " + name + ", blocks of 511", 65536, "plain loop, tap by tap inside", 1, blocks(65536, 511),
                [=] { plainLoop(source, reversed, result, 65536, taps); });
        }
        if (taps < 64) {
            row("FIR 32f, " + name, 65536, "plain loop", 1, blocks(65536, 65536), withLoop(65536));
            continue;
        }
        auto fftw = std::make_shared<Fftw>(taps);
        for (const int len : {4096, 65536}) {
            row("FIR 32f overlap-save, " + name, len, "FFTW by hand", 1, blocks(len, len),
                [fftw, len] { fftw->run(source, result, len); });
        }
    }

    // A stream of 16-bit audio, 64 taps.
    {
        static std::vector<Vlq16s> samples(65536), filtered(65536);
        for (std::size_t i = 0; i < samples.size(); ++i) samples[i] = static_cast<Vlq16s>(source[i] * 20000);
        VlqsFIRState32f_16s* state = nullptr;
        vlqsFIRInitAlloc32f_16s(&state, lowpass(64).data(), 64, nullptr);
        auto fftw = std::make_shared<Fftw>(64);
        auto byHand = [fftw](int len) {
            return [fftw, len] {
                for (int i = 0; i < len; ++i) result[i + 63] = samples[static_cast<std::size_t>(i)];
                fftw->run(result, result + 8192, len);
                for (int i = 0; i < len; ++i) {
                    const float clamped = std::min(std::max(result[8192 + i], -32768.0f), 32767.0f);
                    filtered[static_cast<std::size_t>(i)] = static_cast<Vlq16s>(std::lrintf(clamped));
                }
            };
        };
        row("FIR 32f 16s, 64 taps", 4096, "FFTW by hand", 1,
            [state] { vlqsFIR32f_16s_Sfs(samples.data(), filtered.data(), 4096, state, 0); }, byHand(4096));
        row("FIR 32f 16s in place, 64 taps", 4096, "FFTW by hand", 1,
            [state] { vlqsFIR32f_16s_ISfs(filtered.data(), 4096, state, 0); }, byHand(4096));
        row("FIR 32f 16s direct, 64 taps", 160, "", 0,
            [state] { vlqsFIR32f_16s_Sfs(samples.data(), filtered.data(), 160, state, 0); }, nullptr);
        vlqbench::add({"FIR one sample 32f 16s, 64 taps", 1, 1, "", 0,
                       [state] { vlqsFIROne32f_16s_Sfs(1234, filtered.data(), state, 0); }, nullptr});
    }
    {
        auto* state = record(64);
        auto h = lowpass(64);
        auto liquid = firfilt_rrrf_create(h.data(), 64);
        vlqbench::add({"FIR one sample 32f, 64 taps", 1, 1, "liquid-dsp", 1, [state] { vlqsFIROne_32f(0.5f, result, state); },
                       [liquid] {
                           firfilt_rrrf_push(liquid, 0.5f);
                           firfilt_rrrf_execute(liquid, result);
                       }});
        row("FIR 32f in place, 64 taps", 65536, "out of place", 0, [state] { vlqsFIR_32f_I(result, 65536, state); },
            [state] { vlqsFIR_32f(source, result, 65536, state); });
    }

    // Two threads against one.
    for (const int taps : {32, 64, 256, 1024}) {
        vlqSetNumThreads(2);
        auto* two = record(taps);
        vlqSetNumThreads(1);
        auto* one = record(taps);
        row("FIR 32f, " + std::to_string(taps) + " taps, two threads", kLong, "one thread", 1 / 1.7,
            [two] {
                vlqSetNumThreads(2);
                vlqsFIR_32f(source, result, kLong, two);
                vlqSetNumThreads(1);
            },
            [one] { vlqsFIR_32f(source, result, kLong, one); });
    }
    return vlqbench::run(argc, argv);
}
