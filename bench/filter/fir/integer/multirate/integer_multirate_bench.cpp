// Integer FIR filters with a change of rate against the plain filter of as many taps as each output
// takes, and against a plain polyphase loop.
#include <algorithm>
#include <vector>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

// Every D-th output of a window that slides over the input.
[[gnu::noinline]] void plainDecimator(Vlq16s* __restrict dst, const Vlq16s* __restrict x,
                                      const Vlq16s* __restrict reversed, int taps, int down,
                                      int outputs) {
    for (int n = 0; n < outputs; ++n) {
        Vlq32s sum = 0;
        for (int j = 0; j < taps; ++j) sum += x[n * down + j] * reversed[j];
        dst[n] = static_cast<Vlq16s>(std::clamp((sum + (1 << 14)) >> 15, -32768, 32767));
    }
}

// U phases, each a row of taps over the same window.
[[gnu::noinline]] void plainInterpolator(Vlq16s* __restrict dst, const Vlq16s* __restrict x,
                                         const Vlq16s* __restrict rows, int taps, int up,
                                         int inputs) {
    for (int n = 0; n < inputs; ++n) {
        for (int p = 0; p < up; ++p) {
            Vlq32s sum = 0;
            for (int j = 0; j < taps; ++j) sum += x[n + j] * rows[p * taps + j];
            dst[n * up + p] =
                static_cast<Vlq16s>(std::clamp((sum + (1 << 14)) >> 15, -32768, 32767));
        }
    }
}

struct Case {
    int up, down, taps;
};

}  // namespace

int main(int argc, char** argv) {
    constexpr int longest = 1 << 16;
    auto* const src = vlqsMalloc_16s(2 * longest);
    auto* const dst = vlqsMalloc_16s(2 * longest);
    auto* const complexSrc = reinterpret_cast<Vlq16sc*>(src);
    auto* const complexDst = reinterpret_cast<Vlq16sc*>(dst);
    for (int i = 0; i < 2 * longest; ++i) src[i] = static_cast<Vlq16s>(i * 7919);

    static std::vector<std::vector<Vlq16s>> rows;
    for (const Case& c : {Case{1, 6, 96},
                          {6, 1, 96},
                          {1, 2, 48},
                          {2, 1, 48},
                          {1, 3, 72},
                          {3, 1, 72},
                          {3, 2, 96},
                          {2, 3, 96},
                          {16, 15, 256},
                          {160, 147, 1280},
                          {160, 147, 3840}}) {
        const int each = c.taps / c.up;
        std::vector<Vlq32s> h(static_cast<std::size_t>(c.taps)),
            part(static_cast<std::size_t>(each));
        std::vector<Vlq32sc> complexTaps;
        for (int k = 0; k < c.taps; ++k) h[static_cast<std::size_t>(k)] = k * 977 % 2000 - 1000;
        for (const Vlq32s g : h) complexTaps.push_back({g, -g / 2});
        for (int k = 0; k < each; ++k)
            part[static_cast<std::size_t>(k)] = h[static_cast<std::size_t>(k * c.up)];
        rows.emplace_back(h.begin(), h.end());
        const Vlq16s* const row = rows.back().data();

        VlqsFIRState32s_16s *state = nullptr, *plain = nullptr;
        VlqsFIRState32sc_16sc *complexState = nullptr, *complexPlain = nullptr;
        vlqsFIRMRInitAlloc32s_16s(&state, h.data(), c.taps, -15, c.up, 0, c.down, 0, nullptr);
        vlqsFIRInitAlloc32s_16s(&plain, part.data(), each, -15, nullptr);
        vlqsFIRMRInitAlloc32sc_16sc(&complexState, complexTaps.data(), c.taps, -15, c.up, 0, c.down,
                                    0, nullptr);
        complexTaps.resize(static_cast<std::size_t>(each));
        vlqsFIRInitAlloc32sc_16sc(&complexPlain, complexTaps.data(), each, -15, nullptr);

        const std::string name = "up " + std::to_string(c.up) + ", down " + std::to_string(c.down) +
                                 ", " + std::to_string(c.taps) + " taps";
        const std::string peer = "FIR " + std::to_string(each) + " taps";
        const int greatest = std::max(c.up, c.down);
        for (const int samples : {960, longest}) {
            const int periods = samples / greatest;
            if (periods < 1) continue;
            const int inputs = periods * c.down, outputs = periods * c.up;
            // Few periods of many outputs leave less to share.
            const double bar = c.up > 8 && samples < longest ? 2 : 1.3;
            vlqbench::add({"FIR 32s_16s, " + name, outputs, 1.0 * outputs, peer, bar,
                           [=] { vlqsFIR32s_16s_Sfs(src, dst, periods, state, 0); },
                           [=] { vlqsFIR32s_16s_Sfs(src, dst, outputs, plain, 0); }});
            if (c.up == 1) {
                vlqbench::add({"FIR 32s_16s, " + name, outputs, 1.0 * outputs, "plain loop", 1,
                               [=] { vlqsFIR32s_16s_Sfs(src, dst, periods, state, 0); },
                               [=] { plainDecimator(dst, src, row, c.taps, c.down, outputs); }});
            } else if (c.down == 1) {
                vlqbench::add({"FIR 32s_16s, " + name, outputs, 1.0 * outputs, "plain loop", 1,
                               [=] { vlqsFIR32s_16s_Sfs(src, dst, periods, state, 0); },
                               [=] { plainInterpolator(dst, src, row, each, c.up, inputs); }});
            }
            vlqbench::add(
                {"FIR 32sc_16sc, " + name, outputs, 1.0 * outputs, peer, bar,
                 [=] { vlqsFIR32sc_16sc_Sfs(complexSrc, complexDst, periods, complexState, 0); },
                 [=] { vlqsFIR32sc_16sc_Sfs(complexSrc, complexDst, outputs, complexPlain, 0); }});
        }
    }
    return vlqbench::run(argc, argv);
}
