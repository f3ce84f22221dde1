// 16 and 32 interleaved values with four to a register, for the builds with FMA: two steps and the
// transposition between them, all in registers.
#pragma once

#include "fourier/kernel/butterflies.h"
#include "fourier/kernel/roots.h"
#include "frame/simd/interleaved.h"
#include "frame/simd/transpose.h"

#if VLQ_SIMD_BYTES >= 32
namespace vlq::fft {

template <bool inverse>
struct Four {
    using V = Vec<float, 32>;
    V v;
    friend Four operator+(Four a, Four b) { return {a.v + b.v}; }
    friend Four operator-(Four a, Four b) { return {a.v - b.v}; }
    // a - i b and a + i b forward, exchanged inverse.
    static Four turned(Four a, Four b, bool plus) {
        const V one = V::broadcast(1), e = exchangeParts(b.v);
        return {plus != inverse ? mulSubAddParts(a.v, one, e) : mulAddSubParts(a.v, one, e)};
    }
    friend Four minusI(Four a, Four b) { return turned(a, b, false); }
    friend Four plusI(Four a, Four b) { return turned(a, b, true); }
};

// exp(-2 pi i j q / (4 * rows)) for q = 0 to 3, in the form of a product of interleaved values.
template <int rows>
struct InnerTwiddles {
    alignas(32) float re[rows][8], im[rows][8];
};
template <int rows, bool inverse>
constexpr InnerTwiddles<rows> innerTwiddles() {
    InnerTwiddles<rows> t{};
    for (int j = 0; j < rows; ++j) {
        for (int i = 0; i < 8; ++i) {
            const int turn = j * (i / 2) * (8 / rows);
            t.re[j][i] = static_cast<float>(cosine32(turn));
            t.im[j][i] = static_cast<float>(inverse ? -cosine32(turn + 8) : cosine32(turn + 8));
        }
    }
    return t;
}
template <int rows, bool inverse>
inline constexpr InnerTwiddles<rows> kInnerTwiddles = innerTwiddles<rows, inverse>();

template <bool inverse>
[[gnu::always_inline]] inline void dft8(Four<inverse> (&x)[8], float eighth) {
    using F = Four<inverse>;
    using V = Vec<float, 32>;
    dft4(x[0], x[2], x[4], x[6]);
    dft4(x[1], x[3], x[5], x[7]);
    const V half = V::broadcast(eighth), minusHalf = V::broadcast(-eighth);
    const F o1{minusI(x[3], x[3]).v * half}, o3{plusI(x[7], x[7]).v * minusHalf};
    const F e0 = x[0], e1 = x[2], e2 = x[4], e3 = x[6], o0 = x[1], o2 = x[5];
    x[0] = e0 + o0;
    x[1] = e1 + o1;
    x[2] = minusI(e2, o2);
    x[3] = e3 + o3;
    x[4] = e0 - o0;
    x[5] = e1 - o1;
    x[6] = plusI(e2, o2);
    x[7] = e3 - o3;
}

// 4 * rows values: rows 4 or 8.
template <int rows, bool inverse, bool scaled>
[[gnu::always_inline]] inline void transformWide(const float* src, float* dst, float scale) {
    using F = Four<inverse>;
    using V = Vec<float, 32>;
    F z[rows];
    unroll<rows / 4>([&](auto part) __attribute__((always_inline)) {
        F y[4];
        unroll<4>([&](auto p) __attribute__((always_inline)) {
            y[p].v = load<float, 32>(src + 2 * (p * rows + part * 4));
        });
        dft4(y[0], y[1], y[2], y[3]);
        Vec<double, 32> pairs[4];
        unroll<4>([&](auto q) __attribute__((always_inline)) { pairs[q] = bitCast<double>(y[q].v); });
        transpose(pairs);
        unroll<4>([&](auto i) __attribute__((always_inline)) { z[part * 4 + i].v = bitCast<float>(pairs[i]); });
    });
    unroll<rows - 1>([&](auto i) __attribute__((always_inline)) {
        constexpr int j = i + 1;
        const V re = loadAligned<float, 32>(kInnerTwiddles<rows, inverse>.re[j]),
                im = loadAligned<float, 32>(kInnerTwiddles<rows, inverse>.im[j]);
        z[j].v = mulSubAddParts(z[j].v, re, exchangeParts(z[j].v) * im);
    });
    if constexpr (rows == 4) dft4(z[0], z[1], z[2], z[3]);
    else dft8(z, kEightPoint<float>);
    const V factor = V::broadcast(scale);
    unroll<rows>([&](auto k) __attribute__((always_inline)) { store(dst + 8 * k, scaled ? z[k].v * factor : z[k].v); });
}

}  // namespace vlq::fft
#endif
