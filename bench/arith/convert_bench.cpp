// Type conversions against VOLK where it has the kernel, else against a plain compiled loop.
#include <volk/volk.h>

#include <cmath>
#include <random>
#include <type_traits>

#include "harness/bench.h"
#include "vlqs/convert.h"
#include "vlqs/frame.h"

namespace {

constexpr int kLongest = 65536;

// One vector of each role, aligned as the allocator gives it. Samples stay in the 16-bit range:
// what saturates costs the same.
template <class T>
T* vectorOf(int count) {
    T* p = reinterpret_cast<T*>(vlqsMalloc_8u(count * static_cast<int>(sizeof(T))));
    std::mt19937 random(1);
    std::uniform_real_distribution<float> draw(-30000, 30000);
    for (int i = 0; i < count; ++i) {
        if constexpr (sizeof(T) <= 2) p[i] = static_cast<T>(random());
        else if constexpr (std::is_floating_point_v<T>) p[i] = static_cast<T>(draw(random));
        else p[i] = static_cast<T>(static_cast<std::int64_t>(draw(random)));
    }
    return p;
}
template <class T>
T* source() {
    static T* const p = vectorOf<T>(3 * kLongest);
    return p;
}
template <class T>
T* target() {
    static T* const p = vectorOf<T>(3 * kLongest);
    return p;
}

// ours(src, dst, len) and theirs(dst, src, len), for each length.
template <class S, class D, class Ours, class Theirs>
void rows(const char* work, const char* peer, Ours ours, Theirs theirs) {
    for (const int len : {64, 1024, kLongest}) {
        const S* src = source<S>();
        D* dst = target<D>();
        vlqbench::add({work, len, static_cast<double>(len), peer, 0, [=] { ours(src, dst, len); },
                       [=] { theirs(dst, src, static_cast<unsigned>(len)); }});
    }
}

// The loop that a user would write; op is one element's conversion.
template <class Op>
struct Loop {
    template <class S, class D>
    [[gnu::noinline]] void operator()(D* __restrict dst, const S* __restrict src, unsigned len) const {
        for (unsigned i = 0; i < len; ++i) dst[i] = static_cast<D>(Op()(src[i]));
    }
};
struct Cast {
    template <class S>
    S operator()(S v) const { return v; }
};
template <class To>
struct RoundAndClamp {
    template <class S>
    S operator()(S v) const {
        constexpr S low = static_cast<S>(std::numeric_limits<To>::min()), high = static_cast<S>(std::numeric_limits<To>::max());
        v = std::nearbyint(v);
        return v < low ? low : v > high ? high : v;
    }
};

template <class S, class D>
void cast(const char* work, VlqStatus (*ours)(const S*, D*, Vlq32s)) {
    rows<S, D>(work, "plain loop", ours, Loop<Cast>{});
}
template <class S, class D>
void nearest(const char* work, VlqStatus (*ours)(const S*, D*, Vlq32s, VlqRoundMode, Vlq32s)) {
    rows<S, D>(work, "plain loop", [=](const S* s, D* d, int n) { ours(s, d, n, 1, 0); }, Loop<RoundAndClamp<D>>{});
}

}  // namespace

int main(int argc, char** argv) {
    rows<Vlq16s, Vlq32f>("convert 16s32f", "VOLK", vlqsConvert_16s32f,
                         [](Vlq32f* d, const Vlq16s* s, unsigned n) { volk_16i_s32f_convert_32f(d, s, 1.0f, n); });
    rows<Vlq32f, Vlq16s>("convert 32f16s nearest", "VOLK",
                         [](const Vlq32f* s, Vlq16s* d, int n) { vlqsConvert_32f16s_Sfs(s, d, n, 1, 0); },
                         [](Vlq16s* d, const Vlq32f* s, unsigned n) { volk_32f_s32f_convert_16i(d, s, 1.0f, n); });
    rows<Vlq32f, Vlq16s>("convert 32f16s nearest, scaled", "VOLK",
                         [](const Vlq32f* s, Vlq16s* d, int n) { vlqsConvert_32f16s_Sfs(s, d, n, 1, 3); },
                         [](Vlq16s* d, const Vlq32f* s, unsigned n) { volk_32f_s32f_convert_16i(d, s, 0.125f, n); });
    rows<Vlq32f, Vlq16s>("convert 32f16s towards zero", "VOLK (nearest)",
                         [](const Vlq32f* s, Vlq16s* d, int n) { vlqsConvert_32f16s_Sfs(s, d, n, 0, 0); },
                         [](Vlq16s* d, const Vlq32f* s, unsigned n) { volk_32f_s32f_convert_16i(d, s, 1.0f, n); });
    rows<Vlq32f, Vlq16s>("convert 32f16s financial", "VOLK (nearest)",
                         [](const Vlq32f* s, Vlq16s* d, int n) { vlqsConvert_32f16s_Sfs(s, d, n, 2, 0); },
                         [](Vlq16s* d, const Vlq32f* s, unsigned n) { volk_32f_s32f_convert_16i(d, s, 1.0f, n); });
    cast("convert 8s32f", vlqsConvert_8s32f);
    cast("convert 8u32f", vlqsConvert_8u32f);
    cast("convert 16u32f", vlqsConvert_16u32f);
    cast("convert 32s32f", vlqsConvert_32s32f);
    nearest("convert 32f8s nearest", vlqsConvert_32f8s_Sfs);
    nearest("convert 32f8u nearest", vlqsConvert_32f8u_Sfs);
    nearest("convert 32f16u nearest", vlqsConvert_32f16u_Sfs);
    rows<Vlq32f, Vlq32s>("convert 32f32s nearest", "VOLK",
                         [](const Vlq32f* s, Vlq32s* d, int n) { vlqsConvert_32f32s_Sfs(s, d, n, 1, 0); },
                         [](Vlq32s* d, const Vlq32f* s, unsigned n) { volk_32f_s32f_convert_32i(d, s, 1.0f, n); });
    nearest("convert 64f16s nearest", vlqsConvert_64f16s_Sfs);
    nearest("convert 64f32s nearest", vlqsConvert_64f32s_Sfs);
    return vlqbench::run(argc, argv);
}
