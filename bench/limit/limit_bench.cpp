// Thresholds against the sum of the same type, which moves as much; companding against table loops
// and the plain coder that programs carry with them.
#include <algorithm>
#include <array>
#include <cmath>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

using Table = std::array<Vlq16s, 256>;

// The coder by a search for the segment, sample by sample.
[[gnu::noinline]] void plainMuLaw(const Vlq16s* __restrict src, Vlq8u* __restrict dst, int len) {
    for (int i = 0; i < len; ++i) {
        const int x = src[i], sign = x < 0 ? 0x80 : 0;
        const int magnitude = std::min(((x < 0 ? ~x : x) >> 2) + 33, 8191);
        int segment = 0;
        while (magnitude >> (segment + 6)) ++segment;
        dst[i] = static_cast<Vlq8u>(~(sign | segment << 4 | (magnitude >> (segment + 1) & 15)));
    }
}
[[gnu::noinline]] void plainALaw(const Vlq16s* __restrict src, Vlq8u* __restrict dst, int len) {
    for (int i = 0; i < len; ++i) {
        const int x = src[i], mask = x < 0 ? 0x55 : 0xD5;
        const int magnitude = (x < 0 ? ~x : x) >> 3;
        int segment = 0;
        while (magnitude >> (segment + 5)) ++segment;
        const int mantissa = magnitude >> std::max(segment, 1) & 15;
        dst[i] = static_cast<Vlq8u>((segment << 4 | mantissa) ^ mask);
    }
}
template <class D>
[[gnu::noinline]] void plainTable(const Vlq8u* __restrict src, D* __restrict dst, int len,
                                  const Table& table, D unit) {
    for (int i = 0; i < len; ++i) dst[i] = static_cast<D>(static_cast<D>(table[src[i]]) * unit);
}
[[gnu::noinline]] void plainComplexLimit(const Vlq32fc* __restrict src, Vlq32fc* __restrict dst,
                                         int len, float level) {
    for (int i = 0; i < len; ++i) {
        const float size = std::sqrt(src[i].re * src[i].re + src[i].im * src[i].im);
        const float scale = size > level ? level / size : 1.0f;
        dst[i] = {src[i].re * scale, src[i].im * scale};
    }
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int longest = 1 << 16;
    auto* const f = vlqsMalloc_32f(2 * longest);
    auto* const g = vlqsMalloc_32f(2 * longest);
    auto* const h = vlqsMalloc_32f(2 * longest);
    auto* const s = vlqsMalloc_16s(longest);
    auto* const t = vlqsMalloc_16s(longest);
    auto* const u = vlqsMalloc_8u(longest);
    auto* const v = vlqsMalloc_8u(longest);
    unsigned random = 1;
    for (int i = 0; i < 2 * longest; ++i) {
        random = random * 1664525 + 1013904223;
        f[i] = static_cast<float>(static_cast<int>(random >> 8)) * 0x1p-23f - 1;
        g[i] = f[i];
        if (i < longest) s[i] = static_cast<Vlq16s>(random >> 16);
        if (i < longest) u[i] = static_cast<Vlq8u>(random >> 24);
    }
    static Table aLaw, muLaw;
    for (int i = 0; i < 256; ++i) {
        const auto code = static_cast<Vlq8u>(i);
        vlqsALawToLin_8u16s(&code, &aLaw[static_cast<unsigned>(i)], 1);
        vlqsMuLawToLin_8u16s(&code, &muLaw[static_cast<unsigned>(i)], 1);
    }
    auto* const fc = reinterpret_cast<Vlq32fc*>(f);
    auto* const hc = reinterpret_cast<Vlq32fc*>(h);
    for (const int n : {8, 1024, longest}) {
        const double count = n;
        const auto add32 = [=] { vlqsAdd_32f(f, g, h, n); };
        const auto add16 = [=] { vlqsAdd_16s(s, t, t, n); };
        vlqbench::add({"threshold below 32f", n, count, "add 32f", 1,
                       [=] { vlqsThreshold_LT_32f(f, h, n, 0.1f); }, add32});
        vlqbench::add({"threshold magnitude above 32f", n, count, "add 32f", 1,
                       [=] { vlqsThreshold_GTAbs_32f(f, h, n, 0.5f); }, add32});
        vlqbench::add({"threshold two values 32f", n, count, "add 32f", 1,
                       [=] { vlqsThreshold_LTValGTVal_32f(f, h, n, -0.5f, 0, 0.5f, 1); }, add32});
        vlqbench::add({"threshold below 16s", n, count, "add 16s", 1,
                       [=] { vlqsThreshold_LT_16s(s, t, n, 100); }, add16});
        vlqbench::add({"threshold magnitude below 16s", n, count, "add 16s", 1.5,
                       [=] { vlqsThreshold_LTAbs_16s(s, t, n, 100); }, add16});
        vlqbench::add({"limit 32fc, none beyond", n, count, "plain loop", 1,
                       [=] { vlqsThreshold_GT_32fc(fc, hc, n, 1.5f); },
                       [=] { plainComplexLimit(fc, hc, n, 1.5f); }});
        vlqbench::add({"limit 32fc, half beyond", n, count, "plain loop", 1,
                       [=] { vlqsThreshold_GT_32fc(fc, hc, n, 0.8f); },
                       [=] { plainComplexLimit(fc, hc, n, 0.8f); }});
        vlqbench::add({"inverse 32f", n, count, "add 32f", 0,
                       [=] { vlqsThreshold_LTInv_32f(f, h, n, 0.1f); }, add32});
        vlqbench::add({"normalize 32f", n, count, "add 32f", 1,
                       [=] { vlqsNormalize_32f(f, h, n, 0.1f, 3); }, add32});
        vlqbench::add({"normalize 16s, scaled", n, count, "add 16s", 0,
                       [=] { vlqsNormalize_16s_Sfs(s, t, n, 3, 7, -2); }, add16});
        // The bars ask for 0.30 and 0.15 ns in the two tuned builds: about a third of a table loop.
        vlqbench::add({"A-law to 16s", n, count, "table loop", 0.5,
                       [=] { vlqsALawToLin_8u16s(u, t, n); },
                       [=] { plainTable<Vlq16s>(u, t, n, aLaw, 1); }});
        vlqbench::add({"mu-law to 16s", n, count, "table loop", 0.5,
                       [=] { vlqsMuLawToLin_8u16s(u, t, n); },
                       [=] { plainTable<Vlq16s>(u, t, n, muLaw, 1); }});
        vlqbench::add({"mu-law to 32f", n, count, "table loop", 0.5,
                       [=] { vlqsMuLawToLin_8u32f(u, h, n); },
                       [=] { plainTable<Vlq32f>(u, h, n, muLaw, 0x1p-15f); }});
        vlqbench::add({"16s to A-law", n, count, "plain loop", 0.1,
                       [=] { vlqsLinToALaw_16s8u(s, v, n); }, [=] { plainALaw(s, v, n); }});
        vlqbench::add({"16s to mu-law", n, count, "plain loop", 0.1,
                       [=] { vlqsLinToMuLaw_16s8u(s, v, n); }, [=] { plainMuLaw(s, v, n); }});
        vlqbench::add({"32f to mu-law", n, count, "plain loop", 0.2,
                       [=] { vlqsLinToMuLaw_32f8u(f, v, n); }, [=] { plainMuLaw(s, v, n); }});
        vlqbench::add(
            {"A-law to mu-law", n, count, "", 0, [=] { vlqsALawToMuLaw_8u(u, v, n); }, nullptr});
    }
    const int status = vlqbench::run(argc, argv);
    vlqsFree(f);
    vlqsFree(g);
    vlqsFree(h);
    vlqsFree(s);
    vlqsFree(t);
    vlqsFree(u);
    vlqsFree(v);
    return status;
}
