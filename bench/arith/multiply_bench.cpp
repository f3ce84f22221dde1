// Products against VOLK, plain compiled loops of the same rule, and a copy that moves as many
// bytes.
#include <volk/volk.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

__extension__ typedef __int128 Int128;

constexpr std::size_t kBytes = std::size_t{1} << 22;

template <class T>
T* vector(std::size_t step) {
    const std::size_t count = kBytes / sizeof(T);
    auto* v = reinterpret_cast<T*>(vlqsMalloc_8u(static_cast<int>(kBytes)));
    for (std::size_t i = 0; i < count; ++i)
        v[i] = static_cast<T>(static_cast<long>(i * step % 60000) - 30000);
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
Vlq32fc* complex32(Vlq32f* p) { return reinterpret_cast<Vlq32fc*>(p); }

// ---- plain loops --------------------------------------------------------------------------------
// The rule as a user would write it, in an integer with room for the exact result.
template <class T, class Exact>
T scaleRule(Exact e, int s) {
    constexpr Exact low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    if (s > 0)
        e = (e + (Exact{1} << (s - 1)) - 1 + ((e >> s) & 1)) >> s;
    else if (s < 0)
        e = e * (Exact{1} << -s);
    return static_cast<T>(std::min(std::max(e, low), high));
}
template <class D, class Exact, class A, class B>
[[gnu::noinline]] void plainMul(const A* __restrict x, const B* __restrict y, D* __restrict z,
                                int len, int s) {
    for (int i = 0; i < len; ++i)
        z[i] = scaleRule<D, Exact>(static_cast<Exact>(x[i]) * static_cast<Exact>(y[i]), s);
}
template <class D, class Exact>
[[gnu::noinline]] void plainMulC(const D* __restrict x, D val, D* __restrict z, int len, int s) {
    for (int i = 0; i < len; ++i)
        z[i] = scaleRule<D, Exact>(static_cast<Exact>(x[i]) * static_cast<Exact>(val), s);
}
template <class T, class Exact>
[[gnu::noinline]] void plainComplexMul(const T* __restrict x, const T* __restrict y,
                                       T* __restrict z, int len, int s) {
    for (int i = 0; i < 2 * len; i += 2) {
        const Exact a = x[i], b = x[i + 1], c = y[i], d = y[i + 1];
        z[i] = scaleRule<T, Exact>(a * c - b * d, s);
        z[i + 1] = scaleRule<T, Exact>(a * d + b * c, s);
    }
}
template <class T, class Exact>
[[gnu::noinline]] void plainRealByComplex(const T* __restrict x, const T* __restrict y,
                                          T* __restrict z, int len, int s) {
    for (int i = 0; i < len; ++i) {
        z[2 * i] = scaleRule<T, Exact>(static_cast<Exact>(x[i]) * static_cast<Exact>(y[2 * i]), s);
        z[2 * i + 1] =
            scaleRule<T, Exact>(static_cast<Exact>(x[i]) * static_cast<Exact>(y[2 * i + 1]), s);
    }
}
template <class T, class Exact>
[[gnu::noinline]] void plainComplexMulC(const T* __restrict x, T c, T d, T* __restrict z, int len,
                                        int s) {
    for (int i = 0; i < 2 * len; i += 2) {
        const Exact a = x[i], b = x[i + 1];
        z[i] = scaleRule<T, Exact>(a * c - b * d, s);
        z[i + 1] = scaleRule<T, Exact>(a * d + b * c, s);
    }
}
[[gnu::noinline]] void plainMulTo16u(const Vlq8u* __restrict x, const Vlq8u* __restrict y,
                                     Vlq16u* __restrict z, int len) {
    for (int i = 0; i < len; ++i) z[i] = static_cast<Vlq16u>(x[i] * y[i]);
}
template <class D, class Exact, class A>
[[gnu::noinline]] void plainAddProduct(const A* __restrict x, const A* __restrict y,
                                       D* __restrict z, int len, int s) {
    for (int i = 0; i < len; ++i)
        z[i] = scaleRule<D, Exact>(
            static_cast<Exact>(z[i]) + static_cast<Exact>(x[i]) * static_cast<Exact>(y[i]), s);
}
template <class T>
[[gnu::noinline]] void plainFloatMul(const T* __restrict x, const T* __restrict y, T* __restrict z,
                                     int len) {
    for (int i = 0; i < len; ++i) z[i] = x[i] * y[i];
}
template <class T>
[[gnu::noinline]] void plainFloatComplexMul(const T* __restrict x, const T* __restrict y,
                                            T* __restrict z, int len) {
    for (int i = 0; i < 2 * len; i += 2) {
        z[i] = x[i] * y[i] - x[i + 1] * y[i + 1];
        z[i + 1] = x[i] * y[i + 1] + x[i + 1] * y[i];
    }
}

// Rows at 1,024 elements, one for each scale factor.
template <class Ours, class Theirs>
void addScales(const std::string& form, std::initializer_list<int> scales, double bar, Ours ours,
               Theirs theirs) {
    for (const int s : scales) {
        vlqbench::add({form + " S=" + std::to_string(s), 1024, 1024, "plain loop", bar,
                       [=] { ours(1024, s); },
                       [=] {
                           theirs(1024, s);
                           vlqbench::clobber();
                       }});
    }
}

template <class D, class Exact, class A, class B>
void addMul(const char* form, VlqStatus (*call)(const A*, const B*, D*, Vlq32s, Vlq32s),
            std::initializer_list<int> scales, double bar) {
    const A* a = vectors<A>().a;
    const B* b = vectors<B>().b;
    D* d = vectors<D>().d;
    addScales(
        form, scales, bar, [=](int n, int s) { call(a, b, d, n, s); },
        [=](int n, int s) { plainMul<D, Exact>(a, b, d, n, s); });
}
template <class D, class Exact>
void addMulC(const char* form, VlqStatus (*call)(const D*, D, D*, Vlq32s, Vlq32s),
             std::initializer_list<int> scales, double bar) {
    const auto v = vectors<D>();
    addScales(
        form, scales, bar, [=](int n, int s) { call(v.a, D{77}, v.d, n, s); },
        [=](int n, int s) { plainMulC<D, Exact>(v.a, D{77}, v.d, n, s); });
}
template <class T, class C, class Exact>
void addComplexMul(const char* form, VlqStatus (*call)(const C*, const C*, C*, Vlq32s, Vlq32s),
                   std::initializer_list<int> scales, double bar) {
    const auto& v = vectors<T>();
    addScales(
        form, scales, bar,
        [=](int n, int s) {
            call(reinterpret_cast<const C*>(v.a), reinterpret_cast<const C*>(v.b),
                 reinterpret_cast<C*>(v.d), n, s);
        },
        [=](int n, int s) { plainComplexMul<T, Exact>(v.a, v.b, v.d, n, s); });
}
template <class T, class C, class Exact>
void addComplexMulC(const char* form, VlqStatus (*call)(const C*, C, C*, Vlq32s, Vlq32s),
                    std::initializer_list<int> scales, double bar) {
    const auto& v = vectors<T>();
    addScales(
        form, scales, bar,
        [=](int n, int s) {
            call(reinterpret_cast<const C*>(v.a), C{77, -5}, reinterpret_cast<C*>(v.d), n, s);
        },
        [=](int n, int s) { plainComplexMulC<T, Exact>(v.a, 77, -5, v.d, n, s); });
}
template <class D, class Exact, class A>
void addAddProduct(const char* form, VlqStatus (*call)(const A*, const A*, D*, Vlq32s, Vlq32s),
                   std::initializer_list<int> scales, double bar) {
    const auto v = vectors<A>();
    D* d = vectors<D>().d;
    addScales(
        form, scales, bar, [=](int n, int s) { call(v.a, v.b, d, n, s); },
        [=](int n, int s) { plainAddProduct<D, Exact>(v.a, v.b, d, n, s); });
}

// A copy that moves as many bytes as `bytes` a call.
std::function<void()> copyOf(std::size_t bytes) {
    return [bytes] { std::memcpy(vectors<Vlq8u>().d, vectors<Vlq8u>().a, bytes / 2); };
}

void addFloats() {
    const auto& v = vectors<Vlq32f>();
    const auto& w = vectors<Vlq64f>();
    for (const int n : {8, 1024, 65536}) {
        const double count = n == 8 ? 1 : n;  // a call, or an element
        vlqbench::add(
            {"mul 32f", n, count, "VOLK", 1, [&v, n] { vlqsMul_32f(v.a, v.b, v.d, n); },
             [&v, n] { volk_32f_x2_multiply_32f(v.d, v.a, v.b, static_cast<unsigned>(n)); }});
        vlqbench::add({"mul 32fc", n, count, "VOLK", 1,
                       [&v, n] { vlqsMul_32fc(complex32(v.a), complex32(v.b), complex32(v.d), n); },
                       [&v, n] {
                           volk_32fc_x2_multiply_32fc(reinterpret_cast<lv_32fc_t*>(v.d),
                                                      reinterpret_cast<const lv_32fc_t*>(v.a),
                                                      reinterpret_cast<const lv_32fc_t*>(v.b),
                                                      static_cast<unsigned>(n));
                       }});
    }
    const int n = 1024;
    vlqbench::add({"mul 32f", n, n, "plain loop", 1, [&v] { vlqsMul_32f(v.a, v.b, v.d, n); },
                   [&v] { plainFloatMul(v.a, v.b, v.d, n); }});
    vlqbench::add({"mul 64f", n, n, "plain loop", 1, [&w] { vlqsMul_64f(w.a, w.b, w.d, n); },
                   [&w] { plainFloatMul(w.a, w.b, w.d, n); }});
    vlqbench::add({"mul 32fc", n, n, "plain loop", 1,
                   [&v] { vlqsMul_32fc(complex32(v.a), complex32(v.b), complex32(v.d), n); },
                   [&v] { plainFloatComplexMul(v.a, v.b, v.d, n); }});
    vlqbench::add({"mul 64fc", n, n, "plain loop", 1,
                   [&w] {
                       vlqsMul_64fc(reinterpret_cast<Vlq64fc*>(w.a),
                                    reinterpret_cast<Vlq64fc*>(w.b),
                                    reinterpret_cast<Vlq64fc*>(w.d), n);
                   },
                   [&w] { plainFloatComplexMul(w.a, w.b, w.d, n); }});
    vlqbench::add({"mul 32f by 32fc",
                   n,
                   n,
                   "",
                   0,
                   [&v] { vlqsMul_32f32fc(v.a, complex32(v.b), complex32(v.d), n); },
                   {}});
    vlqbench::add({"mul 16s to 32f",
                   n,
                   n,
                   "",
                   0,
                   [&v] { vlqsMul_16s32f(vectors<Vlq16s>().a, vectors<Vlq16s>().b, v.d, n); },
                   {}});
    vlqbench::add({"mulC 32f", n, n, "", 0, [&v] { vlqsMulC_32f(v.a, 1.5f, v.d, n); }, {}});
    vlqbench::add({"mulC 32fc",
                   n,
                   n,
                   "",
                   0,
                   [&v] {
                       vlqsMulC_32fc(complex32(v.a), {1.5f, 2}, complex32(v.d), n);
                   },
                   {}});
    vlqbench::add(
        {"add product 32f", n, n, "", 0, [&v] { vlqsAddProduct_32f(v.a, v.b, v.d, n); }, {}});
    for (const int big : {65536}) {
        vlqbench::add({"mul 32f, copy of the same bytes", big, static_cast<double>(big), "memcpy",
                       1.3, [&v, big] { vlqsMul_32f(v.a, v.b, v.d, big); }, copyOf(12u * 65536)});
        vlqbench::add(
            {"mul 32fc, copy of the same bytes", big, static_cast<double>(big), "memcpy", 1.3,
             [&v, big] { vlqsMul_32fc(complex32(v.a), complex32(v.b), complex32(v.d), big); },
             copyOf(24u * 65536)});
        const auto& s = vectors<Vlq16s>();
        vlqbench::add({"mul 16s S=0, copy of the same bytes", big, static_cast<double>(big),
                       "memcpy", 1.3, [&s, big] { vlqsMul_16s(s.a, s.b, s.d, big); },
                       copyOf(6u * 65536)});
        vlqbench::add({"mul 16s S=15, copy of the same bytes", big, static_cast<double>(big),
                       "memcpy", 1.3, [&s, big] { vlqsMul_16s_Sfs(s.a, s.b, s.d, big, 15); },
                       copyOf(6u * 65536)});
    }
}

}  // namespace

int main(int argc, char** argv) {
    // Made before anything is timed.
    vectors<Vlq8u>();
    vectors<Vlq16s>();
    vectors<Vlq32s>();
    vectors<Vlq64s>();
    addFloats();
    constexpr double three = 0.333;
    addMul<Vlq8u, Vlq32s>("mul 8u", vlqsMul_8u_Sfs, {0, 1, 5, 12, 16, -3}, three);
    addMul<Vlq16s, Vlq32s>("mul 16s", vlqsMul_16s_Sfs, {0, 1, 5, 15, 20, -3}, three);
    addMul<Vlq16u, Vlq64s>("mul 16u", vlqsMul_16u_Sfs, {0, 1, 15, 32, -3}, three);
    addMul<Vlq16s, Vlq32s>("mul 16u by 16s", vlqsMul_16u16s_Sfs, {0, 1, 15, 31, -3}, three);
    addMul<Vlq32s, Vlq64s>("mul 16s to 32s", vlqsMul_16s32s_Sfs, {0, 1, 15, -3}, three);
    addMul<Vlq32s, Vlq64s>("mul 32s", vlqsMul_32s_Sfs, {0, 1, 15, 25, 40, -3}, 1);
    addComplexMul<Vlq16s, Vlq16sc, Vlq64s>("mul 16sc", vlqsMul_16sc_Sfs, {0, 1, 15, -3}, three);
    addComplexMul<Vlq32s, Vlq32sc, Vlq64s>("mul 32sc", vlqsMul_32sc_Sfs, {0, 1, 31, 50, -3}, 1);
    const auto w = vectors<Vlq32s>();
    addScales(
        "mul 32s by 32sc", {0, 15, 40, -3}, 1,
        [w](int n, int s) {
            vlqsMul_32s32sc_Sfs(w.a, reinterpret_cast<const Vlq32sc*>(w.b),
                                reinterpret_cast<Vlq32sc*>(w.d), n, s);
        },
        [w](int n, int s) { plainRealByComplex<Vlq32s, Vlq64s>(w.a, w.b, w.d, n, s); });
    addComplexMulC<Vlq16s, Vlq16sc, Vlq64s>("mulC 16sc", vlqsMulC_16sc_Sfs, {0, 15, -3}, three);
    addComplexMulC<Vlq32s, Vlq32sc, Vlq64s>("mulC 32sc", vlqsMulC_32sc_Sfs, {0, 31, -3}, 1);
    vlqbench::add({"mul 8u to 16u", 1024, 1024, "plain loop", 1,
                   [] {
                       vlqsMul_8u16u(vectors<Vlq8u>().a, vectors<Vlq8u>().b,
                                     reinterpret_cast<Vlq16u*>(vectors<Vlq16s>().d), 1024);
                   },
                   [] {
                       plainMulTo16u(vectors<Vlq8u>().a, vectors<Vlq8u>().b,
                                     reinterpret_cast<Vlq16u*>(vectors<Vlq16s>().d), 1024);
                   }});
    vlqbench::add({"mulC 64s by a double, in place",
                   1024,
                   1024,
                   "",
                   0,
                   [] { vlqsMulC_64f64s_ISfs(0.9999, vectors<Vlq64s>().d, 1024, 0); },
                   {}});
    addMulC<Vlq8u, Vlq32s>("mulC 8u", vlqsMulC_8u_Sfs, {0, 1, 5, -3}, three);
    addMulC<Vlq16s, Vlq32s>("mulC 16s", vlqsMulC_16s_Sfs, {0, 1, 5, 15, 20, -3}, three);
    addMulC<Vlq16u, Vlq64s>("mulC 16u", vlqsMulC_16u_Sfs, {0, 1, 15, -3}, three);
    addMulC<Vlq32s, Vlq64s>("mulC 32s", vlqsMulC_32s_Sfs, {0, 1, 15, 25, 40, -3}, 1);
    addScales(
        "mulC 64s in place", {0, 1, 20, 100, -3}, 1,
        [](int n, int s) { vlqsMulC_64s_ISfs(77, vectors<Vlq64s>().d, n, s); },
        [](int n, int s) {
            plainMulC<Vlq64s, Int128>(vectors<Vlq64s>().a, 77, vectors<Vlq64s>().d, n, s);
        });
    addAddProduct<Vlq16s, Vlq32s>("add product 16s", vlqsAddProduct_16s_Sfs, {0, 1, 5, 15, 31, -3},
                                  three);
    addAddProduct<Vlq32s, Vlq64s>("add product 16s to 32s", vlqsAddProduct_16s32s_Sfs,
                                  {0, 1, 15, 32, -3}, three);
    addAddProduct<Vlq32s, Vlq64s>("add product 32s", vlqsAddProduct_32s_Sfs, {0, 1, 15, 31, -3}, 1);
    vlqbench::add(
        {"mulC 32f to 16s S=3",
         1024,
         1024,
         "",
         0,
         [] { vlqsMulC_32f16s_Sfs(vectors<Vlq32f>().a, 0.3f, vectors<Vlq16s>().d, 1024, 3); },
         {}});
    vlqbench::add(
        {"mulC 32f to 16s, single precision",
         1024,
         1024,
         "",
         0,
         [] { vlqsMulC_Low_32f16s(vectors<Vlq32f>().a, 0.3f, vectors<Vlq16s>().d, 1024); },
         {}});
    const auto& s = vectors<Vlq16s>();
    vlqbench::add(
        {"mul 16s S=15, a call", 8, 1, "", 0, [&s] { vlqsMul_16s_Sfs(s.a, s.b, s.d, 8, 15); }, {}});
    vlqbench::add({"mul 32s S=15, a call",
                   8,
                   1,
                   "",
                   0,
                   [] {
                       vlqsMul_32s_Sfs(vectors<Vlq32s>().a, vectors<Vlq32s>().b,
                                       vectors<Vlq32s>().d, 8, 15);
                   },
                   {}});
    return vlqbench::run(argc, argv);
}
