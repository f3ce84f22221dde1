// Multi-rate FIR filters against a plain loop of the polyphase rule, against liquid-dsp, and
// against the multiplications that remain at the speed of the single-rate filter.
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

// liquid's C interface takes C's complex type, which is C++'s in layout.
#include <complex>

#include <liquid/liquid.h>

#include "harness/bench.h"
#include "vlqs.h"
#include "vlqs/core.h"

namespace {

constexpr int kLong = 1 << 20;

template <class T>
T* vectorOf(int len, bool random) {
    T* v = reinterpret_cast<T*>(vlqsMalloc_8u(len * static_cast<int>(sizeof(T))));
    unsigned state = 12345;
    for (int i = 0; i < len; ++i) {
        state = state * 1664525u + 1013904223u;
        v[i] = random ? static_cast<T>(static_cast<float>(state >> 8) * 0x1p-23f - 1) : T(0);
    }
    return v;
}

float* const source = vectorOf<float>(kLong + 8192, true);
float* const result = vectorOf<float>(kLong + 8192, false);
double* const sourceDouble = vectorOf<double>(131072 + 8192, true);
double* const resultDouble = vectorOf<double>(131072 + 8192, false);

template <class T = float>
std::vector<T> lowpass(int taps) {
    std::vector<T> h(static_cast<std::size_t>(taps));
    for (int i = 0; i < taps; ++i) {
        const double t = i - (taps - 1) / 2.0 + 1e-9;
        h[static_cast<std::size_t>(i)] = static_cast<T>(std::sin(0.4 * t) / (3.14159265 * t));
    }
    return h;
}

// Rows of taps, and for each output of a period its row and newest sample.
template <class T>
struct Plain {
    Plain(int taps, int upFactor, int downFactor)
        : up(upFactor),
          down(downFactor),
          length((taps + up - 1) / up),
          rows(static_cast<std::size_t>(up * length)) {
        const auto h = lowpass<T>(taps);
        for (int k = 0; k < taps; ++k)
            rows[static_cast<std::size_t>(k % up * length + k / up)] =
                h[static_cast<std::size_t>(k)];
    }
    // x begins with the past samples.
    [[gnu::noinline]] void run(const T* __restrict x, T* __restrict y, int periods) const {
        for (int n = 0; n < periods; ++n, x += down) {
            for (int k = 0; k < up; ++k) {
                const int step = k * down;
                const T* newest = x + length - 1 + step / up;
                const T* row = rows.data() + step % up * length;
                T sum = 0;
                for (int i = 0; i < length; ++i) sum += row[i] * newest[-i];
                *y++ = sum;
            }
        }
    }
    int up, down, length;
    std::vector<T> rows;
};

std::string describe(const char* type, int taps, int up, int down) {
    return std::string("Multi-rate FIR ") + type + ", up " + std::to_string(up) + ", down " +
           std::to_string(down) + ", " + std::to_string(taps) + " taps";
}

void row(const std::string& work, int outputs, const std::string& peer, double bar,
         std::function<void()> ours, std::function<void()> theirs) {
    vlqbench::add({work, outputs, static_cast<double>(outputs), peer, bar, std::move(ours),
                   std::move(theirs)});
}

// As many multiplications through the single-rate filter of 96 taps, in blocks that it filters in
// the time domain.
const char* const kSameWork = "as many multiplications, single rate";

}  // namespace

int main(int argc, char** argv) {
    vlqSetNumThreads(1);
    VlqsFIRState_32f* single = nullptr;
    VlqsFIRState_64f* singleDouble = nullptr;
    VlqsFIRState_32fc* singleComplex = nullptr;
    VlqsFIRState_64fc* singleComplexDouble = nullptr;
    const auto h96 = lowpass(96);
    const auto d96 = lowpass<double>(96);
    std::vector<Vlq32fc> c96(96);
    std::vector<Vlq64fc> z96(96);
    for (std::size_t i = 0; i < 96; ++i)
        c96[i] = {h96[i], h96[95 - i] * 0.5f}, z96[i] = {d96[i], d96[95 - i] * 0.5};
    vlqsFIRInitAlloc_32f(&single, h96.data(), 96, nullptr);
    vlqsFIRInitAlloc_64f(&singleDouble, d96.data(), 96, nullptr);
    vlqsFIRInitAlloc_32fc(&singleComplex, c96.data(), 96, nullptr);
    vlqsFIRInitAlloc_64fc(&singleComplexDouble, z96.data(), 96, nullptr);

    struct Case {
        int taps, up, down, periods;
    };
    for (const Case& c : {Case{96, 1, 6, 8192},
                          {96, 6, 1, 8192},
                          {96, 1, 6, 160},
                          {96, 6, 1, 160},
                          {96, 1, 2, 8192},
                          {96, 2, 1, 8192},
                          {96, 3, 2, 8192},
                          {96, 2, 3, 8192},
                          {24, 1, 6, 8192},
                          {12, 1, 6, 8192},
                          {1000, 1, 2, 8192},
                          {3200, 160, 147, 100},
                          {3200, 160, 147, 3},
                          {96, 1, 6, 4}}) {
        VlqsFIRState_32f* state = nullptr;
        vlqsFIRMRInitAlloc_32f(&state, lowpass(c.taps).data(), c.taps, c.up, 0, c.down, 0, nullptr);
        const auto plain = std::make_shared<Plain<float>>(c.taps, c.up, c.down);
        const int periods = c.periods, outputs = periods * c.up;
        const std::string work =
            describe("32f", c.taps, c.up, c.down) + ", " + std::to_string(periods) + " periods";
        const auto ours = [=] { vlqsFIR_32f(source, result, periods, state); };
        row(work, outputs, "plain loop", 1, ours, [=] { plain->run(source, result, periods); });
        const long products = static_cast<long>(outputs) * plain->length;
        const int same = static_cast<int>(products / 96);
        const bool stated =
            c.taps == 96 && periods == 8192 && c.up * c.down == 6 && (c.up == 1 || c.down == 1);
        row(work, outputs, kSameWork, stated ? 1.3 : 0, ours, [=] {
            for (int done = 0; done < same; done += 511)
                vlqsFIR_32f(source + done, result + done, std::min(511, same - done), single);
        });
        auto h = lowpass(c.taps);
        if (c.up == 1 && periods == 8192) {
            auto liquid = firdecim_rrrf_create(static_cast<unsigned>(c.down), h.data(),
                                               static_cast<unsigned>(c.taps));
            row(work, outputs, "liquid-dsp", 1, ours, [=] {
                firdecim_rrrf_execute_block(liquid, source, static_cast<unsigned>(periods), result);
            });
        } else if (c.down == 1 && periods == 8192) {
            auto liquid = firinterp_rrrf_create(static_cast<unsigned>(c.up), h.data(),
                                                static_cast<unsigned>(c.taps));
            row(work, outputs, "liquid-dsp", 1, ours, [=] {
                firinterp_rrrf_execute_block(liquid, source, static_cast<unsigned>(periods),
                                             result);
            });
        }
    }
    for (const auto& [up, down] : {std::pair{1, 6}, {6, 1}}) {
        const int periods = 4096, same = periods * up * (96 / up) / 96;
        {
            VlqsFIRState_64f* state = nullptr;
            vlqsFIRMRInitAlloc_64f(&state, d96.data(), 96, up, 0, down, 0, nullptr);
            const auto plain = std::make_shared<Plain<double>>(96, up, down);
            const auto ours = [=] { vlqsFIR_64f(sourceDouble, resultDouble, periods, state); };
            row(describe("64f", 96, up, down), periods * up, "plain loop", 1, ours,
                [=] { plain->run(sourceDouble, resultDouble, periods); });
            row(describe("64f", 96, up, down), periods * up, kSameWork, 1.3, ours, [=] {
                for (int done = 0; done < same; done += 511)
                    vlqsFIR_64f(sourceDouble + done, resultDouble + done,
                                std::min(511, same - done), singleDouble);
            });
        }
        {
            VlqsFIRState_32fc* state = nullptr;
            vlqsFIRMRInitAlloc_32fc(&state, c96.data(), 96, up, 0, down, 0, nullptr);
            auto* x = reinterpret_cast<Vlq32fc*>(source);
            auto* y = reinterpret_cast<Vlq32fc*>(result);
            row(
                describe("32fc", 96, up, down), periods * up, kSameWork, 1.3,
                [=] { vlqsFIR_32fc(x, y, periods, state); },
                [=] {
                    for (int done = 0; done < same; done += 255)
                        vlqsFIR_32fc(x + done, y + done, std::min(255, same - done), singleComplex);
                });
        }
        {
            VlqsFIRState_64fc* state = nullptr;
            vlqsFIRMRInitAlloc_64fc(&state, z96.data(), 96, up, 0, down, 0, nullptr);
            auto* x = reinterpret_cast<Vlq64fc*>(sourceDouble);
            auto* y = reinterpret_cast<Vlq64fc*>(resultDouble);
            row(
                describe("64fc", 96, up, down), periods * up, kSameWork, 1.3,
                [=] { vlqsFIR_64fc(x, y, periods, state); },
                [=] {
                    for (int done = 0; done < same; done += 255)
                        vlqsFIR_64fc(x + done, y + done, std::min(255, same - done),
                                     singleComplexDouble);
                });
        }
        {
            static std::vector<Vlq16s> samples(32768), filtered(32768);
            for (std::size_t i = 0; i < samples.size(); ++i)
                samples[i] = static_cast<Vlq16s>(source[i] * 20000);
            VlqsFIRState32f_16s* state = nullptr;
            vlqsFIRMRInitAlloc32f_16s(&state, h96.data(), 96, up, 0, down, 0, nullptr);
            row(
                describe("32f 16s", 96, up, down), periods * up, kSameWork, 0,
                [=] { vlqsFIR32f_16s_Sfs(samples.data(), filtered.data(), periods, state, 0); },
                [=] {
                    for (int done = 0; done < same; done += 511)
                        vlqsFIR_32f(source + done, result + done, std::min(511, same - done),
                                    single);
                });
        }
        {
            const int n = 1024;
            static float line[128];
            const auto plain = std::make_shared<Plain<float>>(96, up, down);
            row(
                describe("32f", 96, up, down) + ", without a state", n * up, "plain loop", 1,
                [=] {
                    vlqsFIRMR_Direct_32f(source, result, n, h96.data(), 96, up, 0, down, 0, line);
                },
                [=] { plain->run(source, result, n); });
        }
    }
    // Two threads against one.
    for (const auto& [up, down] : {std::pair{1, 6}, {6, 1}}) {
        VlqsFIRState_32f* state = nullptr;
        vlqsFIRMRInitAlloc_32f(&state, h96.data(), 96, up, 0, down, 0, nullptr);
        const int periods = kLong / 6;
        row(
            describe("32f", 96, up, down) + ", two threads", periods * up, "one thread", 1 / 1.7,
            [=] {
                vlqSetNumThreads(2);
                vlqsFIR_32f(source, result, periods, state);
                vlqSetNumThreads(1);
            },
            [=] { vlqsFIR_32f(source, result, periods, state); });
    }
    return vlqbench::run(argc, argv);
}
