// Elementary functions beside the C library's loop, VOLK and SLEEF (SSE2 vectors, 1 ulp).
#include <sleef.h>
#include <volk/volk.h>

#include <cmath>

#include "harness/bench.h"
#include "harness/volk.h"
#include "vlqs.h"

namespace {

template <class T, class D, class Op>
[[gnu::noinline]] void plain(const T* src, D* dst, int len, Op op) {
    for (int i = 0; i < len; ++i) dst[i] = static_cast<D>(op(src[i]));
}
template <__m128 (*function)(__m128)>
[[gnu::noinline]] void sleef(const float* src, float* dst, int len) {
    for (int i = 0; i < len; i += 4) _mm_storeu_ps(dst + i, function(_mm_loadu_ps(src + i)));
}
template <__m128d (*function)(__m128d)>
[[gnu::noinline]] void sleef(const double* src, double* dst, int len) {
    for (int i = 0; i < len; i += 2) _mm_storeu_pd(dst + i, function(_mm_loadu_pd(src + i)));
}

void add(const char* work, int n, const char* peer, std::function<void()> ours,
         std::function<void()> theirs) {
    vlqbench::add({work, n, 1.0 * n, peer, 1, std::move(ours), std::move(theirs)});
}

}  // namespace

int main(int argc, char** argv) {
    vlqbench::limitVolkToBuild();
    constexpr int longest = 1 << 16;
    auto* const a = vlqsMalloc_32f(longest);
    auto* const b = vlqsMalloc_32f(longest);
    auto* const c = vlqsMalloc_64f(longest);
    auto* const d = vlqsMalloc_64f(longest);
    auto* const s = vlqsMalloc_16s(longest);
    auto* const t = vlqsMalloc_16s(longest);
    auto* const u = vlqsMalloc_32s(longest);
    auto* const v = vlqsMalloc_32s(longest);
    for (int i = 0; i < longest; ++i) {
        a[i] = 0.01f + static_cast<float>(i * 7919 % longest) * 0.001f;
        c[i] = static_cast<double>(a[i]);
        s[i] = static_cast<Vlq16s>(1 + i * 7919 % 32767);
        u[i] = 1 + (i * 7919 & 0x7FFFFFF);
    }
    for (const int n : {1024, longest}) {
        const auto count = static_cast<unsigned>(n);
        const auto exp = [](auto x) { return std::exp(x); };
        const auto log = [](auto x) { return std::log(x); };
        const auto atan = [](auto x) { return std::atan(x); };
        const auto cbrt = [](auto x) { return std::cbrt(x); };
        const auto root = [](auto x) { return std::sqrt(x); };

        add(
            "exp 32f", n, "C library", [=] { vlqsExp_32f(a, b, n); }, [=] { plain(a, b, n, exp); });
        add(
            "exp 32f", n, "SLEEF", [=] { vlqsExp_32f(a, b, n); },
            [=] { sleef<Sleef_expf4_u10sse2>(a, b, n); });
        add(
            "exp 32f", n, "VOLK", [=] { vlqsExp_32f(a, b, n); },
            [=] { volk_32f_exp_32f(b, a, count); });
        add(
            "ln 32f", n, "C library", [=] { vlqsLn_32f(a, b, n); }, [=] { plain(a, b, n, log); });
        add(
            "ln 32f", n, "SLEEF", [=] { vlqsLn_32f(a, b, n); },
            [=] { sleef<Sleef_logf4_u10sse2>(a, b, n); });
        add(
            "ln 32f", n, "VOLK, log2", [=] { vlqsLn_32f(a, b, n); },
            [=] { volk_32f_log2_32f(b, a, count); });
        add(
            "arctan 32f", n, "C library", [=] { vlqsArctan_32f(a, b, n); },
            [=] { plain(a, b, n, atan); });
        add(
            "arctan 32f", n, "SLEEF", [=] { vlqsArctan_32f(a, b, n); },
            [=] { sleef<Sleef_atanf4_u10sse2>(a, b, n); });
        add(
            "arctan 32f", n, "VOLK", [=] { vlqsArctan_32f(a, b, n); },
            [=] { volk_32f_atan_32f(b, a, count); });
        add(
            "cbrt 32f", n, "C library", [=] { vlqsCubrt_32f(a, b, n); },
            [=] { plain(a, b, n, cbrt); });
        add(
            "cbrt 32f", n, "SLEEF", [=] { vlqsCubrt_32f(a, b, n); },
            [=] { sleef<Sleef_cbrtf4_u10sse2>(a, b, n); });
        add(
            "sqrt 32f", n, "VOLK", [=] { vlqsSqrt_32f(a, b, n); },
            [=] { volk_32f_sqrt_32f(b, a, count); });
        add(
            "sqr 32f", n, "VOLK, multiply", [=] { vlqsSqr_32f(a, b, n); },
            [=] { volk_32f_x2_multiply_32f(b, a, a, count); });

        add(
            "exp 64f", n, "C library", [=] { vlqsExp_64f(c, d, n); }, [=] { plain(c, d, n, exp); });
        add(
            "exp 64f", n, "SLEEF", [=] { vlqsExp_64f(c, d, n); },
            [=] { sleef<Sleef_expd2_u10sse2>(c, d, n); });
        add(
            "ln 64f", n, "C library", [=] { vlqsLn_64f(c, d, n); }, [=] { plain(c, d, n, log); });
        add(
            "ln 64f", n, "SLEEF", [=] { vlqsLn_64f(c, d, n); },
            [=] { sleef<Sleef_logd2_u10sse2>(c, d, n); });
        add(
            "arctan 64f", n, "C library", [=] { vlqsArctan_64f(c, d, n); },
            [=] { plain(c, d, n, atan); });
        add(
            "arctan 64f", n, "SLEEF", [=] { vlqsArctan_64f(c, d, n); },
            [=] { sleef<Sleef_atand2_u10sse2>(c, d, n); });
        add(
            "sqrt 64f", n, "C library", [=] { vlqsSqrt_64f(c, d, n); },
            [=] { plain(c, d, n, root); });

        add(
            "sqrt 16s scaled", n, "C library, float", [=] { vlqsSqrt_16s_Sfs(s, t, n, -4); },
            [=] {
                plain(s, t, n, [](int x) { return std::nearbyint(std::sqrt(float(x)) * 16); });
            });
        add(
            "exp 16s scaled", n, "C library, float", [=] { vlqsExp_16s_Sfs(s, t, n, 3); },
            [=] {
                plain(s, t, n, [](int x) { return std::fmin(std::exp(float(x)) / 8, 32767); });
            });
        add(
            "ln 16s", n, "C library, float", [=] { vlqsLn_16s_Sfs(s, t, n, 0); },
            [=] { plain(s, t, n, [](int x) { return std::nearbyint(std::log(float(x))); }); });
        add(
            "ln 32s scaled", n, "C library, double", [=] { vlqsLn_32s_Sfs(u, v, n, -10); },
            [=] { plain(u, v, n, [](int x) { return std::nearbyint(std::log(x) * 1024); }); });
        add(
            "10 log10 32s", n, "C library, double", [=] { vlqs10Log10_32s_Sfs(u, v, n, -2); },
            [=] { plain(u, v, n, [](int x) { return std::nearbyint(std::log10(x) * 40); }); });
        add(
            "sum of ln 32f", n, "C library",
            [=] {
                float sum;
                vlqsSumLn_32f(a, n, &sum);
            },
            [=] {
                double sum = 0;
                for (int i = 0; i < n; ++i) sum += static_cast<double>(std::log(a[i]));
                *b = static_cast<float>(sum);
                vlqbench::clobber();
            });
    }
    const int status = vlqbench::run(argc, argv);
    for (void* p : {static_cast<void*>(a), static_cast<void*>(b), static_cast<void*>(c),
                    static_cast<void*>(d), static_cast<void*>(s), static_cast<void*>(t),
                    static_cast<void*>(u), static_cast<void*>(v)})
        vlqsFree(p);
    return status;
}
