// FIR filters in integer arithmetic against the float filter, and against a plain loop where there
// is no float filter of the kind.
#include <algorithm>
#include <vector>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

// A window of samples, oldest first, slides over the input.
[[gnu::noinline]] void plainFilter(Vlq16s* __restrict dst, const Vlq16s* __restrict x,
                                   const Vlq16s* __restrict reversed, int taps, int len) {
    for (int n = 0; n < len; ++n) {
        Vlq32s sum = 0;
        for (int j = 0; j < taps; ++j) sum += x[n + j] * reversed[j];
        dst[n] = static_cast<Vlq16s>(std::clamp((sum + (1 << 14)) >> 15, -32768, 32767));
    }
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int longest = 1 << 16;
    constexpr int mostTaps = 512;
    auto* const src = vlqsMalloc_16s(longest + mostTaps);
    auto* const dst = vlqsMalloc_16s(longest + mostTaps);
    auto* const floatSrc = vlqsMalloc_32f(longest);
    auto* const floatDst = vlqsMalloc_32f(longest);
    auto* const complexSrc = reinterpret_cast<Vlq16sc*>(src);
    auto* const complexDst = reinterpret_cast<Vlq16sc*>(dst);
    for (int i = 0; i < longest + mostTaps; ++i) {
        src[i] = static_cast<Vlq16s>(i * 7919);
        if (i < longest) floatSrc[i] = static_cast<float>(src[i]);
    }
    for (const int taps : {8, 16, 63, 64, 256}) {
        const auto count = static_cast<std::size_t>(taps);
        static std::vector<std::vector<Vlq16s>> rows;
        std::vector<Vlq32s> h(count);
        std::vector<Vlq16s> shorts(count);
        std::vector<float> floats(count);
        std::vector<Vlq32sc> complexTaps(count);
        rows.emplace_back(count);
        for (std::size_t k = 0; k < count; ++k) {
            h[k] = static_cast<Vlq32s>(k * 977 % 2000) - 1000;
            shorts[k] = static_cast<Vlq16s>(h[k]);
            floats[k] = static_cast<float>(h[k]);
            complexTaps[k] = {h[k], -h[k] / 2};
            rows.back()[k] = static_cast<Vlq16s>(h[k]);
        }
        const Vlq16s* const row = rows.back().data();
        VlqsFIRState32s_16s* state = nullptr;
        VlqsFIRState32sc_16sc* complexState = nullptr;
        VlqsFIRState_32f* floatState = nullptr;
        VlqsFIRState_16s* shortState = nullptr;
        VlqsFIRState32f_16s* mixedState = nullptr;
        vlqsFIRInitAlloc32s_16s(&state, h.data(), taps, -15, nullptr);
        vlqsFIRInitAlloc32sc_16sc(&complexState, complexTaps.data(), taps, -15, nullptr);
        vlqsFIRInitAlloc_32f(&floatState, floats.data(), taps, nullptr);
        vlqsFIRInitAlloc_16s(&shortState, shorts.data(), taps, -15, nullptr);
        vlqsFIRInitAlloc32f_16s(&mixedState, floats.data(), taps, nullptr);
        const std::string name = std::to_string(taps) + " taps";
        // Up to 511 samples the float filter stays on its direct path.
        for (const int n : {32, 128, 511, longest}) {
            if (n < 512) {
                vlqbench::add({"FIR 16s, " + name, n, 1.0 * n, "32f_16s, direct", 1,
                               [=] { vlqsFIR_16s_Sfs(src, dst, n, shortState, 0); },
                               [=] { vlqsFIR32f_16s_Sfs(src, dst, n, mixedState, 15); }});
                vlqbench::add({"FIR 32s_16s, " + name, n, 1.0 * n, "32f, direct",
                               taps > 16 ? 0.5 : 1,
                               [=] { vlqsFIR32s_16s_Sfs(src, dst, n, state, 0); },
                               [=] { vlqsFIR_32f(floatSrc, floatDst, n, floatState); }});
            }
            vlqbench::add({"FIR 32s_16s, in place, " + name, n, 1.0 * n, "plain loop", 1,
                           [=] { vlqsFIR32s_16s_ISfs(dst, n, state, 0); },
                           [=] { plainFilter(dst, src, row, taps, n); }});
            const int half = n / 2;
            vlqbench::add(
                {"FIR 32sc_16sc, " + name, half, 1.0 * half, "32s_16s, four times", 1,
                 [=] { vlqsFIR32sc_16sc_Sfs(complexSrc, complexDst, half, complexState, 0); },
                 [=] {
                     for (int i = 0; i < 4; ++i) vlqsFIR32s_16s_Sfs(src, dst, half, state, 0);
                 }});
        }
        vlqbench::add({"FIR one 32s_16s, " + name, 1, 1, "32f", 1,
                       [=] { vlqsFIROne32s_16s_Sfs(77, dst, state, 0); },
                       [=] { vlqsFIROne_32f(77, floatDst, floatState); }});
        vlqbench::add({"FIR one 32sc_16sc, " + name, 1, 1, "32f, four times", 1,
                       [=] {
                           vlqsFIROne32sc_16sc_Sfs({77, 5}, complexDst, complexState, 0);
                       },
                       [=] {
                           for (int i = 0; i < 4; ++i) vlqsFIROne_32f(77, floatDst, floatState);
                       }});
    }
    return vlqbench::run(argc, argv);
}
