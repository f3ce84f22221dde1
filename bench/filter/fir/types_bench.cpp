// FIR filters over complex and double-precision arithmetic against the real single-precision ones,
// and against plain compiled loops.
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "filter/fir/peers.h"
#include "harness/bench.h"
#include "vlqs.h"
#include "vlqs/core.h"

namespace {

constexpr int kMost = 65536;
constexpr int kRoom = kMost + 2048;

template <class T>
T* noise(T* v, int parts) {
    unsigned state = 12345;
    for (int i = 0; i < parts; ++i) {
        state = state * 1664525u + 1013904223u;
        v[i] = static_cast<T>(static_cast<float>(state >> 8) * 0x1p-23f - 1);
    }
    return v;
}

Vlq32f* const x32 = noise(vlqsMalloc_32f(2 * kRoom), 2 * kRoom);
Vlq64f* const x64 = noise(vlqsMalloc_64f(2 * kRoom), 2 * kRoom);
Vlq32f* const y32 = vlqsMalloc_32f(2 * kRoom);
Vlq64f* const y64 = vlqsMalloc_64f(2 * kRoom);
const auto* const xc32 = reinterpret_cast<Vlq32fc*>(x32);
const auto* const xc64 = reinterpret_cast<Vlq64fc*>(x64);
auto* const yc32 = reinterpret_cast<Vlq32fc*>(y32);
auto* const yc64 = reinterpret_cast<Vlq64fc*>(y64);
std::vector<Vlq16s> x16(2 * kRoom, 1234), y16(2 * kRoom);

template <class State, class Sample>
auto blocks(VlqStatus (*filter)(const Sample*, Sample*, Vlq32s, State*), const Sample* src,
            Sample* dst, int len, int block, State* state) {
    return [=] {
        for (int done = 0; done < len; done += block)
            filter(src + done, dst + done, std::min(block, len - done), state);
    };
}
void row(const std::string& work, int len, const std::string& peer, double bar,
         std::function<void()> ours, std::function<void()> theirs) {
    vlqbench::add(
        {work, len, static_cast<double>(len), peer, bar, std::move(ours), std::move(theirs)});
}
void one(const std::string& work, const std::string& peer, std::function<void()> ours,
         std::function<void()> theirs) {
    vlqbench::add({work, 1, 1, peer, 0, std::move(ours), std::move(theirs)});
}

}  // namespace

int main(int argc, char** argv) {
    vlqSetNumThreads(1);
    // Four products for each of a real filter, at no other cost; double lanes are half as many.
    constexpr double kComplex = 4.4, kDouble = 2;
    for (const int taps : {8, 32, 64, 256}) {
        const std::string name = ", " + std::to_string(taps) + " taps";
        VlqsFIRState_32f* real = nullptr;
        VlqsFIRState_64f* realDouble = nullptr;
        VlqsFIRState_32fc* complex = nullptr;
        VlqsFIRState_64fc* complexDouble = nullptr;
        VlqsFIRState32fc_16sc* mixed = nullptr;
        vlqsFIRInitAlloc_32f(&real, x32, taps, nullptr);
        vlqsFIRInitAlloc_64f(&realDouble, x64, taps, nullptr);
        vlqsFIRInitAlloc_32fc(&complex, xc32, taps, nullptr);
        vlqsFIRInitAlloc_64fc(&complexDouble, xc64, taps, nullptr);
        vlqsFIRInitAlloc32fc_16sc(&mixed, xc32, taps, nullptr);
        // Blocks of 240 samples stay in the time domain by all kinds.
        for (const int len : {240, 24000}) {
            const auto realBlocks =
                blocks(vlqsFIR_32f, static_cast<const Vlq32f*>(x32), y32, len, 240, real);
            const auto complexBlocks = blocks(vlqsFIR_32fc, xc32, yc32, len, 240, complex);
            row("FIR 32fc time domain" + name, len, "FIR 32f", kComplex, complexBlocks, realBlocks);
            row("FIR 32fc time domain" + name, len, "plain loop", 1, complexBlocks,
                [=] { vlqbench::plainComplexFir(x32, x32 + 512, y32, len, taps); });
            row("FIR 64fc time domain" + name, len, "FIR 32fc", kDouble,
                blocks(vlqsFIR_64fc, xc64, yc64, len, 240, complexDouble), complexBlocks);
            const auto doubleBlocks =
                blocks(vlqsFIR_64f, static_cast<const Vlq64f*>(x64), y64, len, 240, realDouble);
            row("FIR 64f time domain" + name, len, "FIR 32f", kDouble, doubleBlocks, realBlocks);
            row("FIR 64f time domain" + name, len, "plain loop", 1, doubleBlocks,
                [=] { vlqbench::plainFir(x64, x64 + 512, y64, len, taps); });
        }
        if (taps >= 64) {
            for (const int len : {4096, kMost}) {
                row(
                    "FIR 32fc overlap-save" + name, len, "FIR 32f", 0,
                    [=] { vlqsFIR_32fc(xc32, yc32, len, complex); },
                    [=] { vlqsFIR_32f(x32, y32, len, real); });
                row(
                    "FIR 64fc overlap-save" + name, len, "FIR 32fc", kDouble,
                    [=] { vlqsFIR_64fc(xc64, yc64, len, complexDouble); },
                    [=] { vlqsFIR_32fc(xc32, yc32, len, complex); });
                row(
                    "FIR 64f overlap-save" + name, len, "FIR 32f", kDouble,
                    [=] { vlqsFIR_64f(x64, y64, len, realDouble); },
                    [=] { vlqsFIR_32f(x32, y32, len, real); });
            }
        }
        row(
            "FIR 32fc 16sc time domain" + name, 240, "FIR 32fc", 0,
            [=] {
                vlqsFIR32fc_16sc_Sfs(reinterpret_cast<Vlq16sc*>(x16.data()),
                                     reinterpret_cast<Vlq16sc*>(y16.data()), 240, mixed, 0);
            },
            [=] { vlqsFIR_32fc(xc32, yc32, 240, complex); });
        one(
            "FIR one sample 32fc" + name, "32f",
            [=] {
                vlqsFIROne_32fc({1, 2}, yc32, complex);
            },
            [=] { vlqsFIROne_32f(1, y32, real); });
        one(
            "FIR one sample 64fc" + name, "32fc",
            [=] {
                vlqsFIROne_64fc({1, 2}, yc64, complexDouble);
            },
            [=] {
                vlqsFIROne_32fc({1, 2}, yc32, complex);
            });

        // Without a state.
        struct Ring {
            Vlq32f line[512];
            Vlq16s line16[512];
            Vlq32s index;
        };
        const auto ring = std::make_shared<Ring>();
        one(
            "FIR one sample 32f, no state" + name, "state",
            [=] { vlqsFIROne_Direct_32f(1, y32, x32, taps, ring->line, &ring->index); },
            [=] { vlqsFIROne_32f(1, y32, real); });
        one(
            "FIR one sample 32f 16s, no state" + name, "",
            [=] {
                vlqsFIROne32f_Direct_16s_Sfs(1, y16.data(), x32, taps, ring->line16, &ring->index,
                                             0);
            },
            nullptr);
        row(
            "FIR 32f, no state" + name, 240, "state", 0,
            [=] { vlqsFIR_Direct_32f(x32, y32, 240, x32, taps, ring->line, &ring->index); },
            [=] { vlqsFIR_32f(x32, y32, 240, real); });
        row(
            "FIR 32f 16s, no state" + name, 240, "", 0,
            [=] {
                vlqsFIR32f_Direct_16s_Sfs(x16.data(), y16.data(), 240, x32, taps, ring->line16,
                                          &ring->index, 0);
            },
            nullptr);
    }
    return vlqbench::run(argc, argv);
}
