// Transforms of up to 32 values, of up to 128 interleaved ones, as straight-line code: all inputs
// are read before the first output is written, and every factor is a constant.
#pragma once

#include <algorithm>
#include <array>
#include <bit>

#include "fourier/kernel/passes.h"
#include "fourier/kernel/regimes.h"
#include "frame/simd/interleaved.h"

namespace vlq::fft {

// ---- interleaved, 16 to 128 values --------------------------------------------------------------
// Two steps with a transposition between them, on vectors of up to eight interleaved values, all in
// registers as far as there are enough.

// Twiddles between the two steps: exp(-2 pi i j q / n), or its conjugate, for q from 0 on. As
// operands of v * re + exchangeParts(v) * im: each part twice, im negated in the even lanes.
template <class T, int rows, int columns, bool inverse>
struct InnerTwiddles {
    alignas(64) T re[columns][2 * rows], im[columns][2 * rows];
    // The factor of the eight-point transforms.
    alignas(64) T eighth[2 * rows], minusEighth[2 * rows];
};
template <class T, int rows, int columns, bool inverse>
constexpr InnerTwiddles<T, rows, columns, inverse> innerTwiddles() {
    InnerTwiddles<T, rows, columns, inverse> t{};
    for (int j = 0; j < columns; ++j) {
        for (int q = 0; q < rows; ++q) {
            const int turn = j * q * (128 / (rows * columns));
            const double im = inverse ? -minusSine128(turn) : minusSine128(turn);
            t.re[j][2 * q] = t.re[j][2 * q + 1] = static_cast<T>(cosine128(turn));
            t.im[j][2 * q] = static_cast<T>(-im);
            t.im[j][2 * q + 1] = static_cast<T>(im);
        }
    }
    for (int i = 0; i < 2 * rows; ++i) {
        t.eighth[i] = eightPointFactor<T>(std::countr_zero(static_cast<unsigned>(rows * columns)));
        t.minusEighth[i] = -t.eighth[i];
    }
    return t;
}
template <class T, int rows, int columns, bool inverse>
inline constexpr InnerTwiddles<T, rows, columns, inverse> kInnerTwiddles =
    innerTwiddles<T, rows, columns, inverse>();

// Turns (im, re) into the product with -i, with i in the inverse transform: as a factor of a fused
// multiply-add where the build has one, else as the sign bits of that factor.
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

// A vector of interleaved values, for the butterflies.
template <class T, int B, bool inverse>
struct Values {
    using V = Vec<T, B>;
    static constexpr int count = V::lanes / 2;
    V v;
    friend Values operator+(Values a, Values b) { return {a.v + b.v}; }
    friend Values operator-(Values a, Values b) { return {a.v - b.v}; }
    static V signs() { return loadAligned<T, B>(kQuarterTurn<T, inverse>.signs); }
    // a - i b and a + i b; in the inverse transform the other way round.
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

// exp(-2 pi i p / 16) for p = 0 to 9, or its conjugate, in all lanes; operands as InnerTwiddles.
template <class T, bool inverse>
struct Sixteenths {
    alignas(64) T re[10][64 / sizeof(T)], im[10][64 / sizeof(T)];
};
template <class T, bool inverse>
constexpr Sixteenths<T, inverse> sixteenths() {
    Sixteenths<T, inverse> t{};
    for (int p = 0; p < 10; ++p) {
        for (int i = 0; i < static_cast<int>(64 / sizeof(T)); ++i) {
            const double im = inverse ? -minusSine128(8 * p) : minusSine128(8 * p);
            t.re[p][i] = static_cast<T>(cosine128(8 * p));
            t.im[p][i] = static_cast<T>(i % 2 ? im : -im);
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

// Bytes of a vector: up to four values each, eight for 64 and 128 values.
template <class T, int order>
inline constexpr int kSmallBytes = std::min(kVecBytes,
                                            (order < 6 ? 8 : 16) * static_cast<int>(sizeof(T)));

// 2^order values, order 4 to 7: get(i) reads value i and those after it, put(i, vector) writes
// them. All are read before the first is written.
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

// The same from memory to memory; src may be dst.
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

// ---- split values -------------------------------------------------------------------------------
// Twiddles of a last radix-4 pass over N = 4 * span values, in vectors of B bytes.
template <class T, int B, int span>
struct LastTwiddles {
    static constexpr int lanes = B / static_cast<int>(sizeof(T));
    alignas(64) T values[2 * 3 * span];
};

template <class T, int B, int span>
constexpr LastTwiddles<T, B, span> lastTwiddles() {
    LastTwiddles<T, B, span> table{};
    constexpr int lanes = B / static_cast<int>(sizeof(T));
    T* next = table.values;
    for (int k = 0; k < span; k += lanes) {
        for (int p = 1; p < 4; ++p) {
            for (int lane = 0; lane < lanes; ++lane) {
                const int turn = p * (k + splitLane<T, B>(lane)) * (32 / span);
                next[lane] = static_cast<T>(cosine128(turn));
                next[lanes + lane] = static_cast<T>(minusSine128(turn));
            }
            next += 2 * lanes;
        }
    }
    return table;
}
template <class T, int B, int span>
inline constexpr LastTwiddles<T, B, span> kLastTwiddles = lastTwiddles<T, B, span>();

// ---- all orders ---------------------------------------------------------------------------------
template <class View>
inline constexpr bool kIsInterleaved = false;
template <class P, bool exchanged>
inline constexpr bool kIsInterleaved<Interleaved<P, exchanged>> = true;

template <class T, int order, bool scaled, class In, class Out>
void straightLine(In src, Out dst, T scale) {
    constexpr int n = 1 << order;
    if constexpr (order <= 3) {
        Value<T> x[n];
        unroll<n>([&](auto i) __attribute__((always_inline)) { x[i] = src.one(i); });
        if constexpr (order == 1) {
            const Value<T> sum = x[0] + x[1];
            x[1] = x[0] - x[1];
            x[0] = sum;
        } else if constexpr (order == 2) {
            dft4(x[0], x[1], x[2], x[3]);
        } else if constexpr (order == 3) {
            dft8(x, kEightPoint<T>);
        }
        unroll<n>([&](auto i) __attribute__((always_inline)) {
            dst.putOne(i, scaled ? times(x[i], scale) : x[i]);
        });
    } else if constexpr (kIsInterleaved<In>) {
        transformInterleaved<T, order, In::kExchanged, scaled>(src.p, dst.p, scale);
    } else {
        constexpr int first = order == 4 ? 4 : 8;
        constexpr int B = kVecBytes >= 32 && sizeof(T) == 8 ? 32 : 16;  // four lanes at most
        alignas(64) T w[2 * n];
        firstPass<T, B, first>(src, Blocks<T>{w}, n, kEightPoint<T>);
        laterPass<T, B, 4, scaled>(Blocks<T>{w}, dst, n, first, kLastTwiddles<T, B, first>.values,
                                   scale);
    }
}

// The kernels by order.
template <class T, bool scaled, class In, class Out>
inline constexpr auto kStraightLine = []<int... order>(std::integer_sequence<int, order...>) {
    using Kernel = void (*)(In, Out, T);
    return std::array<Kernel, sizeof...(order)>{straightLine<T, order, scaled, In, Out>...};
}
(std::make_integer_sequence<int, kLastSmall<In> + 1>{});

template <class T, class In, class Out>
void smallTransform(int order, const FloatSpec<T>& spec, In src, Out dst, bool scaled) {
    const auto index = static_cast<std::size_t>(order);
    if (scaled) return kStraightLine<T, true, In, Out>[index](src, dst, spec.normFactor);
    kStraightLine<T, false, In, Out>[index](src, dst, spec.normFactor);
}

}  // namespace vlq::fft
