// Views of complex signals against the sum of the same type, which moves as much, and against the
// plain loops over the C library that programs write.
#include <cmath>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

[[gnu::noinline]] void plainMagnitude(const Vlq32fc* __restrict src, Vlq32f* __restrict dst,
                                      int len) {
    for (int i = 0; i < len; ++i) dst[i] = std::sqrt(src[i].re * src[i].re + src[i].im * src[i].im);
}
[[gnu::noinline]] void plainHypot(const Vlq64fc* __restrict src, Vlq64f* __restrict dst, int len) {
    for (int i = 0; i < len; ++i) dst[i] = std::hypot(src[i].re, src[i].im);
}
[[gnu::noinline]] void plainPhase(const Vlq32fc* __restrict src, Vlq32f* __restrict dst, int len) {
    for (int i = 0; i < len; ++i) dst[i] = std::atan2(src[i].im, src[i].re);
}
[[gnu::noinline]] void plainPhase64(const Vlq64fc* __restrict src, Vlq64f* __restrict dst,
                                    int len) {
    for (int i = 0; i < len; ++i) dst[i] = std::atan2(src[i].im, src[i].re);
}
[[gnu::noinline]] void plainPolar(const Vlq32fc* __restrict src, Vlq32f* __restrict magn,
                                  Vlq32f* __restrict phase, int len) {
    for (int i = 0; i < len; ++i) {
        magn[i] = std::hypot(src[i].re, src[i].im);
        phase[i] = std::atan2(src[i].im, src[i].re);
    }
}
[[gnu::noinline]] void plainCartesian(const Vlq32f* __restrict magn, const Vlq32f* __restrict phase,
                                      Vlq32fc* __restrict dst, int len) {
    for (int i = 0; i < len; ++i)
        dst[i] = {magn[i] * std::cos(phase[i]), magn[i] * std::sin(phase[i])};
}
Vlq16s saturate(float v) {
    return static_cast<Vlq16s>(std::lrintf(v > 32767 ? 32767 : v < -32768 ? -32768 : v));
}
[[gnu::noinline]] void plainMagnitude16(const Vlq16sc* __restrict src, Vlq16s* __restrict dst,
                                        int len, float factor) {
    for (int i = 0; i < len; ++i) {
        const auto re = static_cast<float>(src[i].re), im = static_cast<float>(src[i].im);
        dst[i] = saturate(std::sqrt(re * re + im * im) * factor);
    }
}
[[gnu::noinline]] void plainPhase16(const Vlq16sc* __restrict src, Vlq16s* __restrict dst, int len,
                                    float factor) {
    for (int i = 0; i < len; ++i) {
        const auto re = static_cast<float>(src[i].re), im = static_cast<float>(src[i].im);
        dst[i] = saturate(std::atan2(im, re) * factor);
    }
}
[[gnu::noinline]] void plainCartesian16(const Vlq16s* __restrict magn,
                                        const Vlq16s* __restrict phase, Vlq16sc* __restrict dst,
                                        int len, float unit) {
    for (int i = 0; i < len; ++i) {
        const auto m = static_cast<float>(magn[i]), p = static_cast<float>(phase[i]) * unit;
        dst[i] = {saturate(m * std::cos(p)), saturate(m * std::sin(p))};
    }
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int longest = 1 << 16;
    auto* const f = vlqsMalloc_32f(2 * longest);
    auto* const g = vlqsMalloc_32f(2 * longest);
    auto* const h = vlqsMalloc_32f(2 * longest);
    auto* const d = vlqsMalloc_64f(2 * longest);
    auto* const e = vlqsMalloc_64f(2 * longest);
    auto* const s = vlqsMalloc_16s(2 * longest);
    auto* const t = vlqsMalloc_16s(2 * longest);
    auto* const u = vlqsMalloc_16s(2 * longest);
    auto* const l = vlqsMalloc_32s(2 * longest);
    auto* const k = vlqsMalloc_32s(2 * longest);
    unsigned random = 1;
    for (int i = 0; i < 2 * longest; ++i) {
        random = random * 1664525 + 1013904223;
        f[i] = static_cast<float>(static_cast<int>(random >> 8)) * 0x1p-23f - 1;
        g[i] = f[i];
        d[i] = f[i];
        s[i] = static_cast<Vlq16s>(random >> 16);
        t[i] = s[i];
        l[i] = static_cast<Vlq32s>(random);
    }
    auto* const fc = reinterpret_cast<Vlq32fc*>(f);
    auto* const hc = reinterpret_cast<Vlq32fc*>(h);
    auto* const dc = reinterpret_cast<Vlq64fc*>(d);
    auto* const sc = reinterpret_cast<Vlq16sc*>(s);
    auto* const uc = reinterpret_cast<Vlq16sc*>(u);
    auto* const lc = reinterpret_cast<Vlq32sc*>(l);
    for (const int n : {8, 1024, longest}) {
        const double count = n;
        // A sum of as many reals as a complex vector has.
        const auto add32 = [=] { vlqsAdd_32f(f, g, h, 2 * n); };
        const auto add16 = [=] { vlqsAdd_16s(s, t, u, 2 * n); };
        vlqbench::add(
            {"conjugate 32fc", n, count, "add 32f", 1, [=] { vlqsConj_32fc(fc, hc, n); }, add32});
        vlqbench::add(
            {"conjugate 16sc", n, count, "add 16s", 1, [=] { vlqsConj_16sc(sc, uc, n); }, add16});
        vlqbench::add({"conjugate backwards 32fc", n, count, "add 32f", 1,
                       [=] { vlqsConjFlip_32fc(fc, hc, n); }, add32});
        vlqbench::add(
            {"real part 32fc", n, count, "add 32f", 1, [=] { vlqsReal_32fc(fc, h, n); }, add32});
        vlqbench::add(
            {"real part 16sc", n, count, "add 16s", 1, [=] { vlqsReal_16sc(sc, u, n); }, add16});
        vlqbench::add({"split 32fc", n, count, "add 32f", 1,
                       [=] { vlqsCplxToReal_32fc(fc, h, h + n, n); }, add32});
        vlqbench::add({"split 64fc", n, count, "", 0, [=] { vlqsCplxToReal_64fc(dc, e, e + n, n); },
                       nullptr});
        vlqbench::add(
            {"join 32f", n, count, "add 32f", 1, [=] { vlqsRealToCplx_32f(f, g, hc, n); }, add32});
        vlqbench::add(
            {"join 16s", n, count, "add 16s", 1, [=] { vlqsRealToCplx_16s(s, t, uc, n); }, add16});
        vlqbench::add({"absolute values 16s", 2 * n, 2 * count, "add 16s", 1,
                       [=] { vlqsAbs_16s(s, u, 2 * n); }, add16});
        vlqbench::add({"absolute values 32f", 2 * n, 2 * count, "add 32f", 1,
                       [=] { vlqsAbs_32f(f, h, 2 * n); }, add32});
        vlqbench::add(
            {"power 32fc", n, count, "add 32f", 1, [=] { vlqsPowerSpectr_32fc(fc, h, n); }, add32});
        vlqbench::add({"power 16sc, scaled", n, count, "", 0,
                       [=] { vlqsPowerSpectr_16sc_Sfs(sc, u, n, 15); }, nullptr});
        vlqbench::add({"magnitude 32fc", n, count, "plain loop", 1,
                       [=] { vlqsMagnitude_32fc(fc, h, n); }, [=] { plainMagnitude(fc, h, n); }});
        vlqbench::add({"magnitude 64fc", n, count, "hypot", 0.5,
                       [=] { vlqsMagnitude_64fc(dc, e, n); }, [=] { plainHypot(dc, e, n); }});
        vlqbench::add({"magnitude 16sc, scaled", n, count, "plain loop", 0.17,
                       [=] { vlqsMagnitude_16sc_Sfs(sc, u, n, 1); },
                       [=] { plainMagnitude16(sc, u, n, 0.5f); }});
        vlqbench::add({"magnitude 32sc, scaled", n, count, "", 0,
                       [=] { vlqsMagnitude_32sc_Sfs(lc, k, n, 1); }, nullptr});
        vlqbench::add({"phase 32fc", n, count, "atan2", 0.1, [=] { vlqsPhase_32fc(fc, h, n); },
                       [=] { plainPhase(fc, h, n); }});
        vlqbench::add({"phase 64fc", n, count, "atan2", 0.2, [=] { vlqsPhase_64fc(dc, e, n); },
                       [=] { plainPhase64(dc, e, n); }});
        vlqbench::add({"phase 16sc, scaled", n, count, "plain loop", 0.17,
                       [=] { vlqsPhase_16sc_Sfs(sc, u, n, -13); },
                       [=] { plainPhase16(sc, u, n, 8192); }});
        vlqbench::add({"phase 32sc, scaled", n, count, "", 0,
                       [=] { vlqsPhase_32sc_Sfs(lc, k, n, -29); }, nullptr});
        vlqbench::add({"magnitude and phase 32fc", n, count, "hypot, atan2", 0.2,
                       [=] { vlqsCartToPolar_32fc(fc, h, h + n, n); },
                       [=] { plainPolar(fc, h, h + n, n); }});
        vlqbench::add({"from polar 32fc", n, count, "sin, cos", 0.2,
                       [=] { vlqsPolarToCart_32fc(f, g, hc, n); },
                       [=] { plainCartesian(f, g, hc, n); }});
        vlqbench::add({"from polar 16sc", n, count, "plain loop", 0.17,
                       [=] { vlqsPolarToCart_16sc(s, t, 13, uc, n); },
                       [=] { plainCartesian16(s, t, uc, n, 0x1p-13f); }});
    }
    const int status = vlqbench::run(argc, argv);
    for (void* p : {static_cast<void*>(f), static_cast<void*>(g), static_cast<void*>(h),
                    static_cast<void*>(d), static_cast<void*>(e), static_cast<void*>(s),
                    static_cast<void*>(t), static_cast<void*>(u), static_cast<void*>(l),
                    static_cast<void*>(k)})
        vlqsFree(p);
    return status;
}
