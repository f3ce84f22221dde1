// 16 to 128 interleaved values, up to eight to a register: two steps and the transposition
// between them, all in registers as far as they reach.
#pragma once

#include <algorithm>

#include "fourier/kernel/butterflies.h"
#include "fourier/kernel/roots.h"
#include "frame/simd/interleaved.h"

namespace vlq::fft {

// exp(-2 pi i j q / n), or its conjugate, for q from 0 on, in the form of a product of interleaved
// values: the imaginary parts negative in the even lanes.
template <class T, int rows, int columns, bool inverse>
struct InnerTwiddles {
    alignas(64) T re[columns][2 * rows], im[columns][2 * rows];
    alignas(64) T eighth[2 * rows],
        minusEighth[2 * rows];  // the factor of the eight-point transforms
};
template <class T, int rows, int columns, bool inverse>
constexpr InnerTwiddles<T, rows, columns, inverse> innerTwiddles() {
    InnerTwiddles<T, rows, columns, inverse> t{};
    for (int j = 0; j < columns; ++j) {
        for (int q = 0; q < rows; ++q) {
            const int turn = j * q * (128 / (rows * columns));
            const double sine =
                inverse ? -cosine128(turn + 32) : cosine128(turn + 32);  // minus the sine, forward
            t.re[j][2 * q] = t.re[j][2 * q + 1] = static_cast<T>(cosine128(turn));
            t.im[j][2 * q] = static_cast<T>(-sine);
            t.im[j][2 * q + 1] = static_cast<T>(sine);
        }
    }
    for (int i = 0; i < 2 * rows; ++i) {
        t.eighth[i] = rows * columns == 32 || rows * columns == 128 ? kEightPoint<T> : kRootHalf<T>;
        t.minusEighth[i] = -t.eighth[i];
    }
    return t;
}
template <class T, int rows, int columns, bool inverse>
inline constexpr InnerTwiddles<T, rows, columns, inverse> kInnerTwiddles =
    innerTwiddles<T, rows, columns, inverse>();

// What makes (im, re) the product with -i forward, with i inverse: a factor, or the sign bits of
// one in a build whose sums do not take a product with them.
template <class T>
inline constexpr T kOneOrZero = kVecBytes == 16 ? T(0) : T(1);
template <class T, bool inverse>
struct QuarterTurn {
    alignas(64) T signs[64 / sizeof(T)];
};
template <class T, bool inverse>
constexpr QuarterTurn<T, inverse> quarterTurn() {
    QuarterTurn<T, inverse> t{};
    for (int i = 0; i < static_cast<int>(64 / sizeof(T)); ++i)
        t.signs[i] = (i % 2 == 0) == inverse ? -kOneOrZero<T> : kOneOrZero<T>;
    return t;
}
template <class T, bool inverse>
inline constexpr QuarterTurn<T, inverse> kQuarterTurn = quarterTurn<T, inverse>();

template <class T, int B, bool inverse>
struct Values {
    using V = Vec<T, B>;
    static constexpr int count = V::lanes / 2;
    V v;
    friend Values operator+(Values a, Values b) { return {a.v + b.v}; }
    friend Values operator-(Values a, Values b) { return {a.v - b.v}; }
    // a - i b and a + i b forward, exchanged inverse.
    static V signs() { return loadAligned<T, B>(kQuarterTurn<T, inverse>.signs); }
    friend Values minusI(Values a, Values b) {
        if constexpr (kVecBytes == 16)
            return {a.v + (exchangeParts(b.v) ^ signs())};
        else
            return {mulAdd(exchangeParts(b.v), signs(), a.v)};
    }
    friend Values plusI(Values a, Values b) {
        if constexpr (kVecBytes == 16)
            return {a.v - (exchangeParts(b.v) ^ signs())};
        else
            return {mulSubFrom(exchangeParts(b.v), signs(), a.v)};
    }
};

template <class T, int B, bool inverse>
[[gnu::always_inline]] inline void dft(Values<T, B, inverse> (&x)[4], const T*, const T*) {
    dft4(x[0], x[1], x[2], x[3]);
}
template <class T, int B, bool inverse>
[[gnu::always_inline]] inline void dft(Values<T, B, inverse> (&x)[8], const T* eighth,
                                       const T* minusEighth) {
    using F = Values<T, B, inverse>;
    dft4(x[0], x[2], x[4], x[6]);
    dft4(x[1], x[3], x[5], x[7]);
    const F o0 = x[1], o1{minusI(x[3], x[3]).v * loadAligned<T, B>(eighth)}, o2 = x[5],
            o3{plusI(x[7], x[7]).v * loadAligned<T, B>(minusEighth)};
    const F e0 = x[0], e1 = x[2], e2 = x[4], e3 = x[6];
    x[0] = e0 + o0;
    x[1] = e1 + o1;
    x[2] = minusI(e2, o2);
    x[3] = e3 + o3;
    x[4] = e0 - o0;
    x[5] = e1 - o1;
    x[6] = plusI(e2, o2);
    x[7] = e3 - o3;
}

// exp(-2 pi i p / 16) for p to 9, or its conjugate, in all values of a register; as InnerTwiddles.
template <class T, bool inverse>
struct Sixteenths {
    alignas(64) T re[10][64 / sizeof(T)], im[10][64 / sizeof(T)];
};
template <class T, bool inverse>
constexpr Sixteenths<T, inverse> sixteenths() {
    Sixteenths<T, inverse> t{};
    for (int p = 0; p < 10; ++p) {
        for (int i = 0; i < static_cast<int>(64 / sizeof(T)); ++i) {
            const double sine = inverse ? -cosine128(8 * p + 32) : cosine128(8 * p + 32);
            t.re[p][i] = static_cast<T>(cosine128(8 * p));
            t.im[p][i] = static_cast<T>(i % 2 ? sine : -sine);
        }
    }
    return t;
}
template <class T, bool inverse>
inline constexpr Sixteenths<T, inverse> kSixteenths = sixteenths<T, inverse>();

template <class T, int B, bool inverse>
[[gnu::always_inline]] inline void dft(Values<T, B, inverse> (&x)[16], const T*, const T*) {
    using F = Values<T, B, inverse>;
    F t[16];
    unroll<4>([&](auto m) __attribute__((always_inline)) {
        dft4(x[m], x[m + 4], x[m + 8], x[m + 12]);
        unroll<4>([&](auto q) __attribute__((always_inline)) {
            constexpr int p = m * q;
            const F v = x[m + 4 * q];
            t[4 * q + m].v =
                p == 0
                    ? v.v
                    : mulAdd(v.v, loadAligned<T, B>(kSixteenths<T, inverse>.re[p]),
                             exchangeParts(v.v) * loadAligned<T, B>(kSixteenths<T, inverse>.im[p]));
        });
    });
    unroll<4>([&](auto q) __attribute__((always_inline)) {
        dft4(t[4 * q], t[4 * q + 1], t[4 * q + 2], t[4 * q + 3]);
        unroll<4>([&](auto i) __attribute__((always_inline)) { x[q + 4 * i] = t[4 * q + i]; });
    });
}

// Width of a register: up to four values, eight of 64 and 128 where they exist.
template <class T, int order>
inline constexpr int kSmallBytes = std::min(kVecBytes,
                                            (order < 6 ? 8 : 16) * static_cast<int>(sizeof(T)));

// 2^order values, order 4 to 7: get(i) gives value i and those behind it, put(i, vector) takes
// them. All are read before the first is put.
template <class T, int order, bool inverse, class Get, class Put>
[[gnu::always_inline]] inline void transformRegisters(Get&& get, Put&& put) {
    constexpr int B = kSmallBytes<T, order>;
    constexpr int rows = order < 6 ? 4 : 8, columns = (1 << order) / rows;
    using F = Values<T, B, inverse>;
    using V = Vec<T, B>;
    constexpr int count = F::count;
    constexpr const auto& twiddles = kInnerTwiddles<T, rows, columns, inverse>;
    F z[columns][rows / count];
    unroll<columns / count>([&](auto part) __attribute__((always_inline)) {
        F y[rows];
        unroll<rows>([&](auto p) __attribute__((always_inline)) {
            y[p].v = get(p * columns + part * count);
        });
        dft(y, twiddles.eighth, twiddles.minusEighth);
        unroll<rows / count>([&](auto group) __attribute__((always_inline)) {
            V block[count];
            unroll<count>([&](auto i) __attribute__((always_inline)) {
                block[i] = y[group * count + i].v;
            });
            transposeValues(block);
            unroll<count>([&](auto i) __attribute__((always_inline)) {
                constexpr int j = part * count + i, first = 2 * group * count;
                const V re = loadAligned<T, B>(twiddles.re[j] + first),
                        im = loadAligned<T, B>(twiddles.im[j] + first);
                z[j][group].v =
                    j == 0 ? block[i] : mulAdd(block[i], re, exchangeParts(block[i]) * im);
            });
        });
    });
    unroll<rows / count>([&](auto group) __attribute__((always_inline)) {
        F x[columns];
        unroll<columns>([&](auto j) __attribute__((always_inline)) { x[j] = z[j][group]; });
        dft(x, twiddles.eighth, twiddles.minusEighth);
        unroll<columns>([&](auto k) __attribute__((always_inline)) {
            put(k * rows + group * count, x[k].v);
        });
    });
}

// The same between memory; src may be dst.
template <class T, int order, bool inverse, bool scaled>
[[gnu::always_inline]] inline void transformInterleaved(const T* src, T* dst, T scale) {
    constexpr int B = kSmallBytes<T, order>;
    using V = Vec<T, B>;
    const V factor = V::broadcast(scale);
    transformRegisters<T, order, inverse>(
        [&](int i) __attribute__((always_inline)) { return load<T, B>(src + 2 * i); },
        [&](int i, V v)
            __attribute__((always_inline)) { store(dst + 2 * i, scaled ? v * factor : v); });
}

}  // namespace vlq::fft
