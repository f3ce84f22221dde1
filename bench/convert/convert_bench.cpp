// Type conversions against VOLK where it has the kernel, else against a plain compiled loop.
#include <volk/volk.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
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
        if constexpr (sizeof(T) <= 2)
            p[i] = static_cast<T>(random());
        else if constexpr (std::is_floating_point_v<T>)
            p[i] = static_cast<T>(draw(random));
        else
            p[i] = static_cast<T>(static_cast<std::int64_t>(draw(random)));
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
        std::function<void()> peerCall;
        if constexpr (!std::is_null_pointer_v<Theirs>)
            peerCall = [=] { theirs(dst, src, static_cast<unsigned>(len)); };
        vlqbench::add(
            {work, len, static_cast<double>(len), peer, 0, [=] { ours(src, dst, len); }, peerCall});
    }
}

// The loop that a user would write; op is one element's conversion.
template <class Op>
struct Loop {
    template <class S, class D>
    [[gnu::noinline]] void operator()(D* __restrict dst, const S* __restrict src,
                                      unsigned len) const {
        for (unsigned i = 0; i < len; ++i) dst[i] = static_cast<D>(Op()(src[i]));
    }
};
struct Cast {
    template <class S>
    S operator()(S v) const {
        return v;
    }
};
template <class To>
struct Clamp {
    template <class S>
    S operator()(S v) const {
        constexpr S low = static_cast<S>(std::numeric_limits<To>::min()),
                    high = static_cast<S>(std::numeric_limits<To>::max());
        return v < low ? low : v > high ? high : v;
    }
};
template <class To>
struct RoundAndClamp {
    template <class S>
    S operator()(S v) const {
        return Clamp<To>()(std::nearbyint(v));
    }
};
// Over 2^3, half added.
template <class To>
struct ShiftAndClamp {
    template <class S>
    S operator()(S v) const {
        return Clamp<To>()(static_cast<S>((v + 4) >> 3));
    }
};
struct Eighth {
    template <class S>
    float operator()(S v) const {
        return static_cast<float>(v) * 0.125f;
    }
};

// Packed 24-bit samples byte by byte.
[[gnu::noinline]] void unpackLoop(Vlq32s* __restrict dst, const Vlq8u* __restrict src,
                                  unsigned len) {
    for (unsigned i = 0; i < len; ++i, src += 3) {
        dst[i] = static_cast<Vlq32s>(static_cast<Vlq32u>(src[0] << 8 | src[1] << 16) |
                                     static_cast<Vlq32u>(src[2]) << 24) >>
                 8;
    }
}
[[gnu::noinline]] void unpackToFloatLoop(Vlq32f* __restrict dst, const Vlq8u* __restrict src,
                                         unsigned len) {
    for (unsigned i = 0; i < len; ++i, src += 3) {
        dst[i] =
            static_cast<float>(static_cast<Vlq32s>(static_cast<Vlq32u>(src[0] << 8 | src[1] << 16) |
                                                   static_cast<Vlq32u>(src[2]) << 24) >>
                               8);
    }
}
template <class S>
[[gnu::noinline]] void packLoop(Vlq8u* __restrict dst, const S* __restrict src, unsigned len) {
    for (unsigned i = 0; i < len; ++i, dst += 3) {
        const auto v = static_cast<Vlq32s>(src[i] < S(-8388608)  ? S(-8388608)
                                           : src[i] > S(8388607) ? S(8388607)
                                                                 : src[i]);
        dst[0] = static_cast<Vlq8u>(v);
        dst[1] = static_cast<Vlq8u>(v >> 8);
        dst[2] = static_cast<Vlq8u>(v >> 16);
    }
}

template <class S, class D, class Length>
void cast(const char* work, VlqStatus (*ours)(const S*, D*, Length)) {
    rows<S, D>(
        work, "plain loop", [=](const S* s, D* d, int n) { ours(s, d, static_cast<Length>(n)); },
        Loop<Cast>{});
}
template <class S, class D, class Length>
void nearest(const char* work, VlqStatus (*ours)(const S*, D*, Length, VlqRoundMode, Vlq32s)) {
    rows<S, D>(
        work, "plain loop",
        [=](const S* s, D* d, int n) { ours(s, d, static_cast<Length>(n), 1, 0); },
        Loop<RoundAndClamp<D>>{});
}
template <class S, class D>
void scaled(const char* work, VlqStatus (*ours)(const S*, D*, Vlq32s, Vlq32s)) {
    rows<S, D>(
        work, "plain loop", [=](const S* s, D* d, int n) { ours(s, d, n, 3); }, Loop<Eighth>{});
}

void splitAndJoin(int channels) {
    static Vlq32f* rowOf[8];
    static Vlq16s* flat = vectorOf<Vlq16s>(8 * kLongest);
    static Vlq8u* packed = vectorOf<Vlq8u>(3 * 8 * kLongest);
    for (auto& row : rowOf) {
        if (!row) row = vectorOf<Vlq32f>(kLongest);
    }
    const std::string count = ", " + std::to_string(channels) + " channels";
    for (const int samples : {64, 1024, kLongest}) {
        const int frames = samples / channels;
        vlqbench::add({"split 16s32f" + count, samples, static_cast<double>(samples), "plain loop",
                       0, [=] { vlqsSplitScaled_16s32f_D2L(flat, rowOf, channels, frames); },
                       [=] {
                           for (int c = 0; c < channels; ++c) {
                               for (int f = 0; f < frames; ++f)
                                   rowOf[c][f] =
                                       flat[f * channels + c] * 0x1.0001p-15f + 0x1.0001p-16f;
                           }
                       }});
        vlqbench::add(
            {"join 32f16s" + count, samples, static_cast<double>(samples), "plain loop", 0,
             [=] { vlqsJoinScaled_32f16s_D2L(rowOf, channels, frames, flat); },
             [=] {
                 for (int c = 0; c < channels; ++c) {
                     for (int f = 0; f < frames; ++f) {
                         flat[f * channels + c] = static_cast<Vlq16s>(std::lrintf(
                             std::fmin(std::fmax(rowOf[c][f], -1.0f), 1.0f) * 32767.5f - 0.5f));
                     }
                 }
             }});
        vlqbench::add({"split 24s32f" + count,
                       samples,
                       static_cast<double>(samples),
                       "none",
                       0,
                       [=] { vlqsSplitScaled_24s32f_D2L(packed, rowOf, channels, frames); },
                       {}});
        vlqbench::add({"join 32f24s" + count,
                       samples,
                       static_cast<double>(samples),
                       "none",
                       0,
                       [=] { vlqsJoinScaled_32f24s_D2L(rowOf, channels, frames, packed); },
                       {}});
    }
}

}  // namespace

int main(int argc, char** argv) {
    rows<Vlq16s, Vlq32f>(
        "convert 16s32f", "VOLK", vlqsConvert_16s32f,
        [](Vlq32f* d, const Vlq16s* s, unsigned n) { volk_16i_s32f_convert_32f(d, s, 1.0f, n); });
    auto volk32f16s = [](float scale) {
        return [=](Vlq16s* d, const Vlq32f* s, unsigned n) {
            volk_32f_s32f_convert_16i(d, s, scale, n);
        };
    };
    auto ours32f16s = [](int mode, int scaleFactor) {
        return [=](const Vlq32f* s, Vlq16s* d, int n) {
            vlqsConvert_32f16s_Sfs(s, d, n, mode, scaleFactor);
        };
    };
    rows<Vlq32f, Vlq16s>("convert 32f16s nearest", "VOLK", ours32f16s(1, 0), volk32f16s(1.0f));
    rows<Vlq32f, Vlq16s>("convert 32f16s nearest, scaled", "VOLK", ours32f16s(1, 3),
                         volk32f16s(0.125f));
    rows<Vlq32f, Vlq16s>("convert 32f16s towards zero", "VOLK (nearest)", ours32f16s(0, 0),
                         volk32f16s(1.0f));
    rows<Vlq32f, Vlq16s>("convert 32f16s financial", "VOLK (nearest)", ours32f16s(2, 0),
                         volk32f16s(1.0f));

    // Integers to floats.
    rows<Vlq8s, Vlq32f>(
        "convert 8s32f", "VOLK", vlqsConvert_8s32f,
        [](Vlq32f* d, const Vlq8s* s, unsigned n) { volk_8i_s32f_convert_32f(d, s, 1.0f, n); });
    cast("convert 8u32f", vlqsConvert_8u32f);
    cast("convert 16u32f", vlqsConvert_16u32f);
    rows<Vlq32s, Vlq32f>(
        "convert 32s32f", "VOLK", vlqsConvert_32s32f,
        [](Vlq32f* d, const Vlq32s* s, unsigned n) { volk_32i_s32f_convert_32f(d, s, 1.0f, n); });
    cast("convert 32s64f", vlqsConvert_32s64f);
    cast("convert 64s64f", vlqsConvert_64s64f);
    scaled("convert 16s32f scaled", vlqsConvert_16s32f_Sfs);
    scaled("convert 16s64f scaled", vlqsConvert_16s64f_Sfs);
    scaled("convert 32s32f scaled", vlqsConvert_32s32f_Sfs);
    scaled("convert 32s64f scaled", vlqsConvert_32s64f_Sfs);

    // Floats to integers and to floats.
    rows<Vlq32f, Vlq8s>(
        "convert 32f8s nearest", "VOLK",
        [](const Vlq32f* s, Vlq8s* d, int n) { vlqsConvert_32f8s_Sfs(s, d, n, 1, 0); },
        [](Vlq8s* d, const Vlq32f* s, unsigned n) { volk_32f_s32f_convert_8i(d, s, 1.0f, n); });
    nearest("convert 32f8u nearest", vlqsConvert_32f8u_Sfs);
    nearest("convert 32f16u nearest", vlqsConvert_32f16u_Sfs);
    rows<Vlq32f, Vlq32s>(
        "convert 32f32s nearest", "VOLK",
        [](const Vlq32f* s, Vlq32s* d, int n) { vlqsConvert_32f32s_Sfs(s, d, n, 1, 0); },
        [](Vlq32s* d, const Vlq32f* s, unsigned n) { volk_32f_s32f_convert_32i(d, s, 1.0f, n); });
    nearest("convert 64f16s nearest", vlqsConvert_64f16s_Sfs);
    nearest("convert 64f32s nearest", vlqsConvert_64f32s_Sfs);
    nearest("convert 64f64s nearest", vlqsConvert_64f64s_Sfs);
    rows<Vlq32f, Vlq64f>(
        "convert 32f64f", "VOLK", vlqsConvert_32f64f,
        [](Vlq64f* d, const Vlq32f* s, unsigned n) { volk_32f_convert_64f(d, s, n); });
    rows<Vlq64f, Vlq32f>(
        "convert 64f32f", "VOLK", vlqsConvert_64f32f,
        [](Vlq32f* d, const Vlq64f* s, unsigned n) { volk_64f_convert_32f(d, s, n); });

    // Integers to integers.
    cast("convert 8s16s", vlqsConvert_8s16s);
    cast("convert 16s32s", vlqsConvert_16s32s);
    rows<Vlq32s, Vlq16s>("convert 32s16s", "plain loop", vlqsConvert_32s16s, Loop<Clamp<Vlq16s>>{});
    rows<Vlq32s, Vlq16s>(
        "convert 32s16s scaled right", "plain loop",
        [](const Vlq32s* s, Vlq16s* d, int n) { vlqsConvert_32s16s_Sfs(s, d, n, 3); },
        Loop<ShiftAndClamp<Vlq16s>>{});
    rows<Vlq32s, Vlq16s>(
        "convert 32s16s scaled left", "plain loop (right)",
        [](const Vlq32s* s, Vlq16s* d, int n) { vlqsConvert_32s16s_Sfs(s, d, n, -3); },
        Loop<ShiftAndClamp<Vlq16s>>{});
    rows<Vlq16s, Vlq8s>(
        "convert 16s8s nearest, scaled", "plain loop",
        [](const Vlq16s* s, Vlq8s* d, int n) {
            vlqsConvert_16s8s_Sfs(s, d, static_cast<Vlq32u>(n), 1, 3);
        },
        Loop<ShiftAndClamp<Vlq8s>>{});
    rows<Vlq64s, Vlq32s>(
        "convert 64s32s nearest, scaled", "plain loop",
        [](const Vlq64s* s, Vlq32s* d, int n) { vlqsConvert_64s32s_Sfs(s, d, n, 1, 3); },
        Loop<ShiftAndClamp<Vlq32s>>{});

    // Packed samples and half floats.
    rows<Vlq8u, Vlq32s>("convert 24s32s", "plain loop", vlqsConvert_24s32s, unpackLoop);
    rows<Vlq8u, Vlq32f>("convert 24s32f", "plain loop", vlqsConvert_24s32f, unpackToFloatLoop);
    rows<Vlq8u, Vlq32u>("convert 24u32u", "none", vlqsConvert_24u32u, nullptr);
    rows<Vlq8u, Vlq32f>("convert 24u32f", "none", vlqsConvert_24u32f, nullptr);
    rows<Vlq32s, Vlq8u>(
        "convert 32s24s", "plain loop",
        [](const Vlq32s* s, Vlq8u* d, int n) { vlqsConvert_32s24s_Sfs(s, d, n, 0); },
        packLoop<Vlq32s>);
    rows<Vlq32s, Vlq8u>(
        "convert 32s24s scaled right", "plain loop (unscaled)",
        [](const Vlq32s* s, Vlq8u* d, int n) { vlqsConvert_32s24s_Sfs(s, d, n, 3); },
        packLoop<Vlq32s>);
    rows<Vlq32u, Vlq8u>(
        "convert 32u24u", "none",
        [](const Vlq32u* s, Vlq8u* d, int n) { vlqsConvert_32u24u_Sfs(s, d, n, 0); }, nullptr);
    rows<Vlq32f, Vlq8u>(
        "convert 32f24s", "plain loop (truncating)",
        [](const Vlq32f* s, Vlq8u* d, int n) { vlqsConvert_32f24s_Sfs(s, d, n, 0); },
        packLoop<Vlq32f>);
    rows<Vlq32f, Vlq8u>(
        "convert 32f24u", "none",
        [](const Vlq32f* s, Vlq8u* d, int n) { vlqsConvert_32f24u_Sfs(s, d, n, 0); }, nullptr);
    rows<Vlq16f, Vlq32f>("convert 16f32f", "none", vlqsConvert_16f32f, nullptr);
    rows<Vlq32f, Vlq16f>(
        "convert 32f16f nearest", "none",
        [](const Vlq32f* s, Vlq16f* d, int n) { vlqsConvert_32f16f(s, d, n, 1); }, nullptr);
    rows<Vlq16s, Vlq16f>(
        "convert 16s16f nearest", "none",
        [](const Vlq16s* s, Vlq16f* d, int n) { vlqsConvert_16s16f(s, d, n, 1); }, nullptr);
    rows<Vlq16f, Vlq16s>(
        "convert 16f16s nearest", "none",
        [](const Vlq16f* s, Vlq16s* d, int n) { vlqsConvert_16f16s_Sfs(s, d, n, 1, 0); }, nullptr);

    for (const int channels : {1, 2, 6}) splitAndJoin(channels);
    return vlqbench::run(argc, argv);
}
