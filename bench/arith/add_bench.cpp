// Sums and differences against plain compiled loops of the same rule, VOLK, and a copy that moves
// as many bytes.
#include <volk/volk.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

__extension__ typedef __int128 Int128;

// Two sources and a result, of 64 MiB each.
constexpr std::size_t kBytes = std::size_t{1} << 26;

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
template <class T, class Exact>
[[gnu::noinline]] void plainAdd(const T* __restrict x, const T* __restrict y, T* __restrict z,
                                int len, int s) {
    for (int i = 0; i < len; ++i)
        z[i] = scaleRule<T, Exact>(static_cast<Exact>(x[i]) + static_cast<Exact>(y[i]), s);
}
template <class T, class Exact>
[[gnu::noinline]] void plainSub(const T* __restrict x, const T* __restrict y, T* __restrict z,
                                int len, int s) {
    for (int i = 0; i < len; ++i)
        z[i] = scaleRule<T, Exact>(static_cast<Exact>(y[i]) - static_cast<Exact>(x[i]), s);
}
template <class T, class Exact>
[[gnu::noinline]] void plainAddC(const T* __restrict x, T val, T* __restrict z, int len, int s) {
    for (int i = 0; i < len; ++i)
        z[i] = scaleRule<T, Exact>(static_cast<Exact>(x[i]) + static_cast<Exact>(val), s);
}
template <class T, class Exact>
[[gnu::noinline]] void plainSubC(const T* __restrict x, T val, T* __restrict z, int len, int s) {
    for (int i = 0; i < len; ++i)
        z[i] = scaleRule<T, Exact>(static_cast<Exact>(x[i]) - static_cast<Exact>(val), s);
}
template <class T, class Exact>
[[gnu::noinline]] void plainSubCRev(const T* __restrict x, T val, T* __restrict z, int len, int s) {
    for (int i = 0; i < len; ++i)
        z[i] = scaleRule<T, Exact>(static_cast<Exact>(val) - static_cast<Exact>(x[i]), s);
}
template <class T, class Exact>
[[gnu::noinline]] void plainAddComplexC(const T* __restrict x, T re, T im, T* __restrict z, int len,
                                        int s) {
    for (int i = 0; i < 2 * len; i += 2) {
        z[i] = scaleRule<T, Exact>(static_cast<Exact>(x[i]) + static_cast<Exact>(re), s);
        z[i + 1] = scaleRule<T, Exact>(static_cast<Exact>(x[i + 1]) + static_cast<Exact>(im), s);
    }
}
template <class S, class D>
[[gnu::noinline]] void plainWide(const S* __restrict x, const S* __restrict y, D* __restrict z,
                                 int len) {
    for (int i = 0; i < len; ++i) z[i] = static_cast<D>(x[i] + y[i]);
}
template <class S, class D>
[[gnu::noinline]] void plainWideSub(const S* __restrict x, const S* __restrict y, D* __restrict z,
                                    int len) {
    for (int i = 0; i < len; ++i) z[i] = static_cast<D>(y[i] - x[i]);
}
[[gnu::noinline]] void plainAddOnto(const Vlq16s* __restrict x, Vlq32s* __restrict z, int len) {
    for (int i = 0; i < len; ++i) z[i] = scaleRule<Vlq32s, long>(static_cast<long>(z[i]) + x[i], 0);
}
template <class T>
[[gnu::noinline]] void plainFloatC(const T* __restrict x, T val, T* __restrict z, int len) {
    for (int i = 0; i < len; ++i) z[i] = val - x[i];
}
template <class T>
[[gnu::noinline]] void plainFloat(const T* __restrict x, const T* __restrict y, T* __restrict z,
                                  int len) {
    for (int i = 0; i < len; ++i) z[i] = x[i] + y[i];
}

// ---- rows ---------------------------------------------------------------------------------------
constexpr int kL1 = 1024;

std::string at(const char* name, int s) {
    return std::string(name) + " scale " + std::to_string(s);
}

template <class T, class Exact>
void addScaled(const char* name, VlqStatus (*add)(const T*, const T*, T*, Vlq32s, Vlq32s),
               VlqStatus (*sub)(const T*, const T*, T*, Vlq32s, Vlq32s),
               const std::initializer_list<int>& factors, double bar) {
    const Vectors<T> v = vectors<T>();
    for (const int s : factors) {
        vlqbench::add({at((std::string("add ") + name).c_str(), s), kL1, kL1, "plain loop", bar,
                       [=] { add(v.a, v.b, v.d, kL1, s); },
                       [=] { plainAdd<T, Exact>(v.a, v.b, v.d, kL1, s); }});
        if (!sub) continue;
        vlqbench::add({at((std::string("sub ") + name).c_str(), s), kL1, kL1, "plain loop", bar,
                       [=] { sub(v.a, v.b, v.d, kL1, s); },
                       [=] { plainSub<T, Exact>(v.a, v.b, v.d, kL1, s); }});
    }
}

// With a constant: sum, difference and reverse difference, each against its own plain loop.
template <class T>
using ConstantCall = VlqStatus (*)(const T*, T, T*, Vlq32s, Vlq32s);
template <class T, class Exact>
void addConstant(const char* type, ConstantCall<T> sum, ConstantCall<T> difference,
                 ConstantCall<T> reverse, const std::initializer_list<int>& factors) {
    const Vectors<T> v = vectors<T>();
    const T val = 77;
    const auto row = [&](const char* name, ConstantCall<T> call, auto plain, int s) {
        vlqbench::add({at((std::string(name) + type).c_str(), s), kL1, kL1, "plain loop", 0.33,
                       [=] { call(v.a, val, v.d, kL1, s); },
                       [=] { plain(v.a, val, v.d, kL1, s); }});
    };
    for (const int s : factors) {
        row("add constant ", sum, plainAddC<T, Exact>, s);
        row("sub constant ", difference, plainSubC<T, Exact>, s);
        row("constant minus ", reverse, plainSubCRev<T, Exact>, s);
    }
}
template <class T, class C, class Exact>
void addComplexConstant(const char* name, VlqStatus (*call)(const C*, C, C*, Vlq32s, Vlq32s),
                        const std::initializer_list<int>& factors) {
    const Vectors<T> v = vectors<T>();
    for (const int s : factors) {
        vlqbench::add({at(name, s), kL1, kL1, "plain loop", 0.33,
                       [=] {
                           call(reinterpret_cast<const C*>(v.a), C{77, -5},
                                reinterpret_cast<C*>(v.d), kL1, s);
                       },
                       [=] { plainAddComplexC<T, Exact>(v.a, 77, -5, v.d, kL1, s); }});
    }
}

template <class T>
void addRounded(const char* name,
                VlqStatus (*call)(const T*, T, T*, Vlq32u, Vlq32s, VlqRoundMode)) {
    const Vectors<T> v = vectors<T>();
    const T val = 77;
    for (const int s : {0, 1, 5, -5}) {
        vlqbench::add({at(name, s), kL1, kL1, "plain loop", 1,
                       [=] { call(v.a, val, v.d, kL1, s, vlqRndNear); },
                       [=] { plainAddC<T, Int128>(v.a, val, v.d, kL1, s); }});
    }
}

// Against a copy that reads and writes as many bytes.
template <class T, class Call>
void againstCopy(const char* name, Call call, int vectorCount) {
    const Vectors<T> v = vectors<T>();
    const std::size_t mostElements = kBytes / sizeof(T);
    for (const std::size_t len : {std::size_t{65536}, mostElements / 16, mostElements}) {
        const std::size_t copied = len * sizeof(T) * static_cast<std::size_t>(vectorCount) / 2;
        auto* from = reinterpret_cast<unsigned char*>(v.a);
        auto* to = reinterpret_cast<unsigned char*>(v.d);
        // Three halves of the longest vector do not fit one: two copies then.
        const std::size_t first = std::min(copied, kBytes), second = copied - first;
        vlqbench::add({name, static_cast<long>(len), static_cast<double>(len),
                       "memcpy of as many bytes", 1.3,
                       [=] { call(v.a, v.b, v.d, static_cast<int>(len)); },
                       [=] {
                           std::memcpy(to, from, first);
                           vlqbench::clobber();
                           if (second) std::memcpy(to, v.b, second);
                       }});
    }
}

}  // namespace

int main(int argc, char** argv) {
    const Vectors<Vlq32f> f = vectors<Vlq32f>();
    const Vectors<Vlq64f> g = vectors<Vlq64f>();
    const Vectors<Vlq16s> w = vectors<Vlq16s>();
    const Vectors<Vlq8u> u = vectors<Vlq8u>();
    const Vectors<Vlq32s> n = vectors<Vlq32s>();

    vlqbench::add({"add 32f", kL1, kL1, "VOLK", 1, [=] { vlqsAdd_32f(f.a, f.b, f.d, kL1); },
                   [=] { volk_32f_x2_add_32f(f.d, f.a, f.b, kL1); }});
    vlqbench::add({"add 32f", kL1, kL1, "plain loop", 1, [=] { vlqsAdd_32f(f.a, f.b, f.d, kL1); },
                   [=] { plainFloat(f.a, f.b, f.d, kL1); }});
    vlqbench::add({"add 64f", kL1, kL1, "plain loop", 1, [=] { vlqsAdd_64f(g.a, g.b, g.d, kL1); },
                   [=] { plainFloat(g.a, g.b, g.d, kL1); }});
    vlqbench::add({"add 16s to 32f", kL1, kL1, "plain loop", 1,
                   [=] { vlqsAdd_16s32f(w.a, w.b, f.d, kL1); },
                   [=] { plainWide(w.a, w.b, f.d, kL1); }});
    vlqbench::add({"add 8u to 16u", kL1, kL1, "plain loop", 1,
                   [=] { vlqsAdd_8u16u(u.a, u.b, reinterpret_cast<Vlq16u*>(w.d), kL1); },
                   [=] { plainWide(u.a, u.b, reinterpret_cast<Vlq16u*>(w.d), kL1); }});
    vlqbench::add({"add 16s onto 32s", kL1, kL1, "plain loop", 0.33,
                   [=] { vlqsAdd_16s32s_I(w.a, n.d, kL1); }, [=] { plainAddOnto(w.a, n.d, kL1); }});
    vlqbench::add({"sub 16s to 32f", kL1, kL1, "plain loop", 1,
                   [=] { vlqsSub_16s32f(w.a, w.b, f.d, kL1); },
                   [=] { plainWideSub(w.a, w.b, f.d, kL1); }});
    vlqbench::add({"add 32u", kL1, kL1, "plain loop", 0.33,
                   [=] {
                       vlqsAdd_32u(reinterpret_cast<Vlq32u*>(n.a), reinterpret_cast<Vlq32u*>(n.b),
                                   reinterpret_cast<Vlq32u*>(n.d), kL1);
                   },
                   [=] {
                       plainAdd<Vlq32u, long>(reinterpret_cast<Vlq32u*>(n.a),
                                              reinterpret_cast<Vlq32u*>(n.b),
                                              reinterpret_cast<Vlq32u*>(n.d), kL1, 0);
                   }});
    vlqbench::add({"constant minus 32f", kL1, kL1, "plain loop", 1,
                   [=] { vlqsSubCRev_32f(f.a, 1.5f, f.d, kL1); },
                   [=] { plainFloatC(f.a, 1.5f, f.d, kL1); }});
    vlqbench::add({"constant minus 64f", kL1, kL1, "plain loop", 1,
                   [=] { vlqsSubCRev_64f(g.a, 1.5, g.d, kL1); },
                   [=] { plainFloatC(g.a, 1.5, g.d, kL1); }});

    addScaled<Vlq8u, int>("8u", vlqsAdd_8u_Sfs, vlqsSub_8u_Sfs, {0, 1, 4, 8, 10, -3, -8}, 0.33);
    addScaled<Vlq16s, int>("16s", vlqsAdd_16s_Sfs, vlqsSub_16s_Sfs, {0, 1, 4, 16, 17, -3, -16},
                           0.33);
    addScaled<Vlq16u, long>("16u", vlqsAdd_16u_Sfs, vlqsSub_16u_Sfs, {0, 1, 4, 16, 17, 18, -3, -16},
                            0.33);
    addScaled<Vlq32s, long>("32s", vlqsAdd_32s_Sfs, vlqsSub_32s_Sfs, {0, 1, 2, 4, 32, 33, -3, -29},
                            0.33);
    addScaled<Vlq64s, Int128>("64s", vlqsAdd_64s_Sfs, nullptr, {0, 1, 4, 63, -3, -62}, 1);
    addConstant<Vlq8u, int>("8u", vlqsAddC_8u_Sfs, vlqsSubC_8u_Sfs, vlqsSubCRev_8u_Sfs,
                            {0, 1, 4, -3});
    addConstant<Vlq16s, int>("16s", vlqsAddC_16s_Sfs, vlqsSubC_16s_Sfs, vlqsSubCRev_16s_Sfs,
                             {0, 1, 4, -3});
    addConstant<Vlq16u, long>("16u", vlqsAddC_16u_Sfs, vlqsSubC_16u_Sfs, vlqsSubCRev_16u_Sfs,
                              {0, 1, 4, -3});
    addConstant<Vlq32s, long>("32s", vlqsAddC_32s_Sfs, vlqsSubC_32s_Sfs, vlqsSubCRev_32s_Sfs,
                              {0, 1, 4, -3});
    addComplexConstant<Vlq16s, Vlq16sc, int>("add constant 16sc", vlqsAddC_16sc_Sfs, {0, 4, -3});
    addComplexConstant<Vlq32s, Vlq32sc, long>("add constant 32sc", vlqsAddC_32sc_Sfs, {0, 4, -3});
    addRounded<Vlq64s>("add constant 64s", vlqsAddC_64s_Sfs);
    addRounded<Vlq64u>("add constant 64u", vlqsAddC_64u_Sfs);

    againstCopy<Vlq32f>("add 32f", vlqsAdd_32f, 3);
    againstCopy<Vlq32f>("sub 32f", vlqsSub_32f, 3);
    againstCopy<Vlq32f>(
        "add 32f in place",
        [](const Vlq32f* a, const Vlq32f*, Vlq32f* d, int len) { vlqsAdd_32f_I(a, d, len); }, 3);
    againstCopy<Vlq16s>("add 16s", vlqsAdd_16s, 3);
    againstCopy<Vlq16s>(
        "add 16s scale 1",
        [](const Vlq16s* a, const Vlq16s* b, Vlq16s* d, int len) {
            vlqsAdd_16s_Sfs(a, b, d, len, 1);
        },
        3);
    againstCopy<Vlq32s>(
        "add 32s scale 4",
        [](const Vlq32s* a, const Vlq32s* b, Vlq32s* d, int len) {
            vlqsAdd_32s_Sfs(a, b, d, len, 4);
        },
        3);

    const auto call = [](const char* name, std::function<void()> ours) {
        vlqbench::add({name, 8, 1, "ns a call", 15, std::move(ours), nullptr});
    };
    call("call: add 32f", [=] { vlqsAdd_32f(f.a, f.b, f.d, 8); });
    call("call: add 16s", [=] { vlqsAdd_16s(w.a, w.b, w.d, 8); });
    call("call: add 16s scale 1", [=] { vlqsAdd_16s_Sfs(w.a, w.b, w.d, 8, 1); });
    call("call: add 16s scale 5", [=] { vlqsAdd_16s_Sfs(w.a, w.b, w.d, 8, 5); });
    call("call: add 8u scale -2", [=] { vlqsAdd_8u_Sfs(u.a, u.b, u.d, 8, -2); });
    call("call: add 32s scale 5", [=] { vlqsAdd_32s_Sfs(n.a, n.b, n.d, 8, 5); });
    call("call: add constant 32f, 7 elements", [=] { vlqsAddC_32f(f.a, 3.0f, f.d, 7); });
    return vlqbench::run(argc, argv);
}
