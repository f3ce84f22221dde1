// FIR filters against a plain compiled loop, liquid-dsp, and overlap-save written on FFTW.
#include <emmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

// liquid's C interface takes C's complex type, which is C++'s in layout.
#include <liquid/liquid.h>

#include "filter/fir/peers.h"
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

VlqsFIRState_32f* filterOf(int taps) {
    VlqsFIRState_32f* state = nullptr;
    vlqsFIRInitAlloc_32f(&state, lowpass(taps).data(), taps, nullptr);
    return state;
}

// A user's first loop; the compiler keeps the order of a sum, so it may not use vectors. x begins
// with the past samples.
[[gnu::noinline]] void firstLoop(const float* __restrict x, const float* __restrict reversed,
                                 float* __restrict y, int len, int taps) {
    for (int n = 0; n < len; ++n) {
        float sum = 0;
        for (int k = 0; k < taps; ++k) sum += reversed[k] * x[n + k];
        y[n] = sum;
    }
}

void row(const std::string& work, int len, const std::string& peer, double bar,
         std::function<void()> ours, std::function<void()> theirs) {
    vlqbench::add(
        {work, len, static_cast<double>(len), peer, bar, std::move(ours), std::move(theirs)});
}

// FFTW's own code takes wide vectors wherever the processor has them. This is what it needs, by the
// number of taps, on 16 bytes alone.
double ofFftw(int taps) {
    if (std::strcmp(vlqbench::buildTag(), "s2") != 0) return 1;
    return taps < 128 ? 1.22 : taps < 512 ? 1.26 : 1.59;
}

}  // namespace

int main(int argc, char** argv) {
    vlqSetNumThreads(1);
    for (const int taps : {32, 64, 96, 256, 1024}) {
        auto* state = filterOf(taps);
        static std::vector<std::vector<float>> kept;
        kept.push_back(lowpass(taps));
        std::reverse(kept.back().begin(), kept.back().end());
        const float* reversed = kept.back().data();
        auto h = lowpass(taps);
        auto liquid = firfilt_rrrf_create(h.data(), static_cast<unsigned>(taps));
        const std::string name = std::to_string(taps) + " taps";

        auto blocks = [state](int len, int block) {
            return [state, len, block] {
                for (int done = 0; done < len; done += block)
                    vlqsFIR_32f(source + done, result + done, std::min(block, len - done), state);
            };
        };
        auto withLoop = [reversed, taps](int len) {
            return [=] { vlqbench::plainFir(source, reversed, result, len, taps); };
        };
        auto withLiquid = [liquid](int len) {
            return [=] {
                firfilt_rrrf_execute_block(liquid, source, static_cast<unsigned>(len), result);
            };
        };
        // Blocks of fewer than 512 samples stay in the time domain.
        row("FIR 32f time domain, " + name, 160, "plain loop", 1, blocks(160, 160), withLoop(160));
        row("FIR 32f time domain, " + name + ", blocks of 511", 65536, "plain loop", 1,
            blocks(65536, 511), withLoop(65536));
        if (taps <= 256) {
            row("FIR 32f time domain, " + name + ", blocks of 511", 65536, "liquid-dsp", 1,
                blocks(65536, 511), withLiquid(65536));
            row("FIR 32f time domain, " + name + ", blocks of 511", 65536,
                "plain loop, tap by tap inside", 1, blocks(65536, 511),
                [=] { firstLoop(source, reversed, result, 65536, taps); });
        }
        if (taps < 64) {
            row("FIR 32f, " + name, 65536, "plain loop", 1, blocks(65536, 65536), withLoop(65536));
            continue;
        }
        for (const int len : {4096, 65536}) {
            const auto fftw = vlqbench::bestFftwFir(lowpass(taps), source, result, len);
            row("FIR 32f overlap-save, " + name, len, "FFTW by hand", ofFftw(taps),
                blocks(len, len), [fftw, len] { fftw->run(source, result, len); });
        }
    }

    // A stream of 16-bit audio, 64 taps.
    {
        static std::vector<Vlq16s> samples(65536), filtered(65536);
        for (std::size_t i = 0; i < samples.size(); ++i)
            samples[i] = static_cast<Vlq16s>(source[i] * 20000);
        VlqsFIRState32f_16s* state = nullptr;
        vlqsFIRInitAlloc32f_16s(&state, lowpass(64).data(), 64, nullptr);
        const auto fftw = vlqbench::bestFftwFir(lowpass(64), source, result, 4096);
        auto byHand = [fftw](int len) {
            return [fftw, len] {
                for (int i = 0; i < len; ++i) result[i + 63] = samples[static_cast<std::size_t>(i)];
                fftw->run(result, result + 8192, len);
                for (int i = 0; i < len; i += 8) {
                    const __m128i low = _mm_cvtps_epi32(_mm_loadu_ps(result + 8192 + i));
                    const __m128i high = _mm_cvtps_epi32(_mm_loadu_ps(result + 8192 + i + 4));
                    _mm_storeu_si128(
                        reinterpret_cast<__m128i*>(&filtered[static_cast<std::size_t>(i)]),
                        _mm_packs_epi32(low, high));
                }
            };
        };
        row(
            "FIR 32f 16s, 64 taps", 4096, "FFTW by hand", ofFftw(64),
            [state] { vlqsFIR32f_16s_Sfs(samples.data(), filtered.data(), 4096, state, 0); },
            byHand(4096));
        row(
            "FIR 32f 16s in place, 64 taps", 4096, "FFTW by hand", ofFftw(64),
            [state] { vlqsFIR32f_16s_ISfs(filtered.data(), 4096, state, 0); }, byHand(4096));
        row(
            "FIR 32f 16s time domain, 64 taps", 160, "", 0,
            [state] { vlqsFIR32f_16s_Sfs(samples.data(), filtered.data(), 160, state, 0); },
            nullptr);
        vlqbench::add({"FIR one sample 32f 16s, 64 taps", 1, 1, "", 0,
                       [state] { vlqsFIROne32f_16s_Sfs(1234, filtered.data(), state, 0); },
                       nullptr});
    }
    {
        auto* state = filterOf(64);
        auto h = lowpass(64);
        auto liquid = firfilt_rrrf_create(h.data(), 64);
        vlqbench::add({"FIR one sample 32f, 64 taps", 1, 1, "liquid-dsp", 1,
                       [state] { vlqsFIROne_32f(0.5f, result, state); },
                       [liquid] {
                           firfilt_rrrf_push(liquid, 0.5f);
                           firfilt_rrrf_execute(liquid, result);
                       }});
        row(
            "FIR 32f in place, 64 taps", 65536, "out of place", 0,
            [state] { vlqsFIR_32f_I(result, 65536, state); },
            [state] { vlqsFIR_32f(source, result, 65536, state); });
    }

    // Two threads against one.
    for (const int taps : {32, 64, 256, 1024}) {
        vlqSetNumThreads(2);
        auto* two = filterOf(taps);
        vlqSetNumThreads(1);
        auto* one = filterOf(taps);
        row(
            "FIR 32f, " + std::to_string(taps) + " taps, two threads", kLong, "one thread", 1 / 1.7,
            [two] {
                vlqSetNumThreads(2);
                vlqsFIR_32f(source, result, kLong, two);
                vlqSetNumThreads(1);
            },
            [one] { vlqsFIR_32f(source, result, kLong, one); });
    }
    return vlqbench::run(argc, argv);
}
