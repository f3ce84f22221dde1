// Sums and differences against plain compiled loops of the same rule, VOLK and memcpy.
#include <volk/volk.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>

#include "harness/bench.h"
#include "vlqs.h"

namespace {

constexpr int kLongest = 1 << 24;

template <class T>
T* vector(int fillStep) {
    auto* v = reinterpret_cast<T*>(vlqsMalloc_8u(kLongest * 4));
    for (std::size_t i = 0; i < kLongest * 4 / sizeof(T); ++i) {
        v[i] = static_cast<T>(static_cast<long>((i * static_cast<std::size_t>(fillStep)) % 60000) - 30000);
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

// The rule as a user would write it, in an integer with room for the exact result.
template <class T, class Exact>
T scaleRule(Exact e, int s) {
    constexpr Exact low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    if (s > 0) e = (e + (Exact{1} << (s - 1)) - 1 + ((e >> s) & 1)) >> s;
    else if (s < 0) e = e * (Exact{1} << -s);
    return static_cast<T>(std::min(std::max(e, low), high));
}
template <class T, class Exact>
[[gnu::noinline]] void plainAdd(const T* __restrict x, const T* __restrict y, T* __restrict z, int len, int s) {
    for (int i = 0; i < len; ++i) z[i] = scaleRule<T, Exact>(static_cast<Exact>(x[i]) + static_cast<Exact>(y[i]), s);
}

template <class T, class Exact>
void addScaled(const char* type, VlqStatus (*call)(const T*, const T*, T*, Vlq32s, Vlq32s), int len, const std::initializer_list<int>& factors) {
    const Vectors<T> v = vectors<T>();
    for (const int s : factors) {
        vlqbench::add({std::string("add ") + type + " scale " + std::to_string(s), len, static_cast<double>(len), "plain loop", 0.33,
                       [=] { call(v.a, v.b, v.d, len, s); }, [=] { plainAdd<T, Exact>(v.a, v.b, v.d, len, s); }});
    }
}

}  // namespace

int main(int argc, char** argv) {
    addScaled<Vlq16s, Vlq32s>("16s", vlqsAdd_16s_Sfs, 1024, {0, 1, 2, 8, 16, 17, -1, -15, -16});
    addScaled<Vlq16s, Vlq32s>("16s sub", vlqsSub_16s_Sfs, 1024, {0, 1, 2, 8, 16, 17, -1, -15, -16});
    return vlqbench::run(argc, argv);
}
