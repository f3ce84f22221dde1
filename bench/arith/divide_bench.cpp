// Quotients against VOLK and plain compiled loops of the same rule.
#include <volk/volk.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

__extension__ typedef __int128 Int128;

constexpr std::size_t kBytes = std::size_t{1} << 22;

// No zeros: those are the exception in practice too.
template <class T>
T* vector(std::size_t step) {
    const std::size_t count = kBytes / sizeof(T);
    auto* v = reinterpret_cast<T*>(vlqsMalloc_8u(static_cast<int>(kBytes)));
    for (std::size_t i = 0; i < count; ++i) {
        v[i] = static_cast<T>(static_cast<long>(i * step % 60000) - 30000);
        if (v[i] == T{0}) v[i] = T{3};
    }
    return v;
}
template <class T>
struct Vectors {
    T* a = vector<T>(7919);
    T* b = vector<T>(104729);
    T* d = vector<T>(1);
};
template <class T>
const Vectors<T>& vectors() {
    static const Vectors<T> all;
    return all;
}

// ---- plain loops --------------------------------------------------------------------------------
template <class T, class F>
[[gnu::noinline]] int plainDiv(const T* __restrict x, const T* __restrict y, T* __restrict z,
                               int len, int s) {
    const F factor = std::ldexp(F(1), -s);
    constexpr F low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    int found0 = 0;
    for (int i = 0; i < len; ++i) {
        if (x[i] == 0) {
            found0 = 1;
            z[i] = y[i] == 0  ? T{0}
                   : y[i] > 0 ? std::numeric_limits<T>::max()
                              : std::numeric_limits<T>::min();
            continue;
        }
        const F v = std::nearbyint(static_cast<F>(y[i]) / static_cast<F>(x[i]) * factor);
        z[i] = static_cast<T>(v < low ? low : v > high ? high : v);
    }
    return found0;
}
template <class T>
[[gnu::noinline]] void plainFloatDiv(const T* __restrict x, const T* __restrict y, T* __restrict z,
                                     int len) {
    for (int i = 0; i < len; ++i) z[i] = y[i] / x[i];
}
template <class T>
[[gnu::noinline]] void plainComplexDiv(const T* __restrict x, const T* __restrict y,
                                       T* __restrict z, int len) {
    for (int i = 0; i < 2 * len; i += 2) {
        const T a = x[i], b = x[i + 1], c = y[i], d = y[i + 1], norm = a * a + b * b;
        z[i] = (c * a + d * b) / norm;
        z[i + 1] = (d * a - c * b) / norm;
    }
}
// Rounded to the nearest integer, ties to even. A positive scale is part of the divisor.
[[gnu::noinline]] void plainDivC64(const Vlq64s* __restrict x, Vlq64s val, Vlq64s* __restrict z,
                                   int len) {
    for (int i = 0; i < len; ++i) {
        const Vlq64s quotient = x[i] / val, rest = std::abs(x[i] % val), left = val - rest;
        z[i] = quotient +
               (rest > left || (rest == left && quotient % 2 != 0) ? (x[i] < 0 ? -1 : 1) : 0);
    }
}
// Times 2^up first, in an integer with room for it.
[[gnu::noinline]] void plainDivC64Up(const Vlq64s* __restrict x, Vlq64s val, Vlq64s* __restrict z,
                                     int len, int up) {
    constexpr Int128 low = std::numeric_limits<Vlq64s>::min(),
                     high = std::numeric_limits<Vlq64s>::max();
    for (int i = 0; i < len; ++i) {
        const Int128 n = x[i] * (Int128{1} << up), quotient = n / val,
                     rest = n % val < 0 ? -(n % val) : n % val, left = val - rest;
        const Int128 v =
            quotient + (rest > left || (rest == left && quotient % 2 != 0) ? (n < 0 ? -1 : 1) : 0);
        z[i] = static_cast<Vlq64s>(v < low ? low : v > high ? high : v);
    }
}

template <class T, class F>
void addDiv(const char* form, VlqStatus (*call)(const T*, const T*, T*, Vlq32s, Vlq32s),
            std::initializer_list<int> scales) {
    for (const int s : scales) {
        vlqbench::add({std::string(form) + " S=" + std::to_string(s), 1024, 1024, "plain loop", 1,
                       [=] { call(vectors<T>().a, vectors<T>().b, vectors<T>().d, 1024, s); },
                       [=] {
                           plainDiv<T, F>(vectors<T>().a, vectors<T>().b, vectors<T>().d, 1024, s);
                           vlqbench::clobber();
                       }});
    }
}

}  // namespace

int main(int argc, char** argv) {
    // Made before anything is timed.
    vectors<Vlq8u>();
    vectors<Vlq16s>();
    vectors<Vlq16u>();
    vectors<Vlq32s>();
    vectors<Vlq64s>();
    const auto& v = vectors<Vlq32f>();
    const auto& w = vectors<Vlq64f>();
    for (const int n : {8, 1024, 65536}) {
        vlqbench::add(
            {"div 32f", n, n == 8 ? 1.0 : n, "VOLK", 1, [&v, n] { vlqsDiv_32f(v.a, v.b, v.d, n); },
             [&v, n] { volk_32f_x2_divide_32f(v.d, v.b, v.a, static_cast<unsigned>(n)); }});
    }
    const int n = 1024;
    vlqbench::add({"div 32f", n, n, "plain loop", 1, [&v] { vlqsDiv_32f(v.a, v.b, v.d, n); },
                   [&v] { plainFloatDiv(v.a, v.b, v.d, n); }});
    vlqbench::add({"div 64f", n, n, "plain loop", 1, [&w] { vlqsDiv_64f(w.a, w.b, w.d, n); },
                   [&w] { plainFloatDiv(w.a, w.b, w.d, n); }});
    vlqbench::add({"div 32fc", n, n, "plain loop", 1,
                   [&v] {
                       vlqsDiv_32fc(reinterpret_cast<Vlq32fc*>(v.a),
                                    reinterpret_cast<Vlq32fc*>(v.b),
                                    reinterpret_cast<Vlq32fc*>(v.d), n);
                   },
                   [&v] { plainComplexDiv(v.a, v.b, v.d, n); }});
    vlqbench::add({"div 64fc", n, n, "plain loop", 1,
                   [&w] {
                       vlqsDiv_64fc(reinterpret_cast<Vlq64fc*>(w.a),
                                    reinterpret_cast<Vlq64fc*>(w.b),
                                    reinterpret_cast<Vlq64fc*>(w.d), n);
                   },
                   [&w] { plainComplexDiv(w.a, w.b, w.d, n); }});
    vlqbench::add({"divC 32f", n, n, "plain division", 1, [&v] { vlqsDivC_32f(v.a, 1.7f, v.d, n); },
                   [&v] { plainFloatDiv(v.b, v.a, v.d, n); }});
    vlqbench::add({"divC 32fc",
                   n,
                   n,
                   "",
                   0,
                   [&v] {
                       vlqsDivC_32fc(reinterpret_cast<Vlq32fc*>(v.a), {1.5f, 2},
                                     reinterpret_cast<Vlq32fc*>(v.d), n);
                   },
                   {}});
    vlqbench::add({"divC 64fc",
                   n,
                   n,
                   "",
                   0,
                   [&w] {
                       vlqsDivC_64fc(reinterpret_cast<Vlq64fc*>(w.a), {1.5, 2},
                                     reinterpret_cast<Vlq64fc*>(w.d), n);
                   },
                   {}});
    addDiv<Vlq8u, float>("div 8u", vlqsDiv_8u_Sfs, {0, 3, -3, 30});
    addDiv<Vlq16s, float>("div 16s", vlqsDiv_16s_Sfs, {0, 3, -3, 30});
    addDiv<Vlq16u, float>("div 16u", vlqsDiv_16u_Sfs, {0, 3});
    addDiv<Vlq32s, double>("div 32s", vlqsDiv_32s_Sfs, {0, 3, -3});
    vlqbench::add({"div 16sc S=0",
                   n,
                   n,
                   "",
                   0,
                   [] {
                       vlqsDiv_16sc_Sfs(reinterpret_cast<Vlq16sc*>(vectors<Vlq16s>().a),
                                        reinterpret_cast<Vlq16sc*>(vectors<Vlq16s>().b),
                                        reinterpret_cast<Vlq16sc*>(vectors<Vlq16s>().d), n, 0);
                   },
                   {}});
    vlqbench::add({"div 32s by 16s to 16s S=0",
                   n,
                   n,
                   "",
                   0,
                   [] {
                       vlqsDiv_32s16s_Sfs(vectors<Vlq16s>().a, vectors<Vlq32s>().b,
                                          vectors<Vlq16s>().d, n, 0);
                   },
                   {}});
    vlqbench::add({"divC 8u S=2",
                   n,
                   n,
                   "",
                   0,
                   [] { vlqsDivC_8u_Sfs(vectors<Vlq8u>().a, 77, vectors<Vlq8u>().d, n, 2); },
                   {}});
    vlqbench::add({"divC 16u S=2",
                   n,
                   n,
                   "",
                   0,
                   [] { vlqsDivC_16u_Sfs(vectors<Vlq16u>().a, 77, vectors<Vlq16u>().d, n, 2); },
                   {}});
    vlqbench::add({"divC 16sc S=2",
                   n,
                   n,
                   "",
                   0,
                   [] {
                       vlqsDivC_16sc_Sfs(reinterpret_cast<Vlq16sc*>(vectors<Vlq16s>().a), {77, -5},
                                         reinterpret_cast<Vlq16sc*>(vectors<Vlq16s>().d), n, 2);
                   },
                   {}});
    vlqbench::add({"divCRev 32f", n, n, "", 0, [&v] { vlqsDivCRev_32f(v.a, 1.5f, v.d, n); }, {}});
    vlqbench::add({"div 16s rounded by mode 2",
                   n,
                   n,
                   "",
                   0,
                   [] {
                       vlqsDiv_Round_16s_Sfs(vectors<Vlq16s>().a, vectors<Vlq16s>().b,
                                             vectors<Vlq16s>().d, n, vlqRndFinancial, 1);
                   },
                   {}});
    vlqbench::add({"divC 16s S=2",
                   n,
                   n,
                   "",
                   0,
                   [] { vlqsDivC_16s_Sfs(vectors<Vlq16s>().a, 77, vectors<Vlq16s>().d, n, 2); },
                   {}});
    vlqbench::add({"divCRev 16u",
                   n,
                   n,
                   "",
                   0,
                   [] { vlqsDivCRev_16u(vectors<Vlq16u>().a, 7777, vectors<Vlq16u>().d, n); },
                   {}});
    for (const int s : {0, 5, -5}) {
        // In place the values would wear off: each call starts from a copy.
        vlqbench::add({"copy and divC 64s S=" + std::to_string(s), n, n, "plain loop", 1,
                       [s] {
                           vlqsCopy_64s(vectors<Vlq64s>().a, vectors<Vlq64s>().d, n);
                           vlqsDivC_64s_ISfs(7, vectors<Vlq64s>().d, n, s);
                       },
                       [s] {
                           if (s < 0)
                               plainDivC64Up(vectors<Vlq64s>().a, 7, vectors<Vlq64s>().d, n, -s);
                           else
                               plainDivC64(vectors<Vlq64s>().a, Vlq64s{7} << s, vectors<Vlq64s>().d,
                                           n);
                           vlqbench::clobber();
                       }});
    }
    vlqbench::add({"div 16s S=0, a call",
                   8,
                   1,
                   "",
                   0,
                   [] {
                       vlqsDiv_16s_Sfs(vectors<Vlq16s>().a, vectors<Vlq16s>().b,
                                       vectors<Vlq16s>().d, 8, 0);
                   },
                   {}});
    return vlqbench::run(argc, argv);
}
