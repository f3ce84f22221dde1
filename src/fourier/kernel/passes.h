// The passes of the self-sorting transform (Stockham). Before a pass of radix R, group j of `span`
// values holds the transform of the samples j, j + n / span, j + 2 n / span ... The pass combines R
// groups at distance n / R into one of R * span values: it reads R sequential streams and writes
// contiguous groups. A pass that makes one group of all (R * span = n) may run in place.
#pragma once

#include "fourier/kernel/butterflies.h"
#include "fourier/kernel/views.h"
#include "frame/simd/transpose.h"

namespace vlq::fft {

// cos and sin of 2 pi / 16
inline constexpr double kCosine16 = 0.92387953251128675613, kSine16 = 0.38268343236508977173;

template <class V>
[[gnu::always_inline]] inline Split<typename V::Scalar, V::bytes> constantTwiddle(double re,
                                                                                  double im) {
    using T = typename V::Scalar;
    return {V::broadcast(static_cast<T>(re)), V::broadcast(static_cast<T>(im))};
}

// Between the two stages of a 16-point transform: inputs m = 1, 2, 3 of the q-th second butterfly
// times exp(-2 pi i q m / 16). `eighth` is the factor of the eight-point transform in it.
template <int q, class T, int B>
[[gnu::always_inline]] inline void turnSixteenths(Split<T, B>& b, Split<T, B>& c, Split<T, B>& d,
                                                  T eighth) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    auto turn1 = [](S v, V h) __attribute__((always_inline)) {
        return S{(v.re + v.im) * h, (v.im - v.re) * h};
    };
    auto turn3 = [](S v, V h) __attribute__((always_inline)) {
        return S{(v.im - v.re) * h, (v.re + v.im) * (V::zero() - h)};
    };
    const S w3 = constantTwiddle<V>(kSine16, -kCosine16);
    if constexpr (q == 1) {
        b = b * constantTwiddle<V>(kCosine16, -kSine16);
        c = turn1(c, V::broadcast(eighth));
        d = d * w3;
    } else if constexpr (q == 2) {
        b = turn1(b, V::broadcast(kRootHalf<T>));
        c = S{c.im, V::zero() - c.re};
        d = turn3(d, V::broadcast(kRootHalf<T>));
    } else if constexpr (q == 3) {
        b = b * w3;
        c = turn3(c, V::broadcast(eighth));
        d = d * constantTwiddle<V>(-kCosine16, kSine16);
    }
}

// A 16-point transform as four by four: get(p) reads input p, turn(q, b, c, d) multiplies inputs 1
// to 3 of the q-th butterfly of the second stage, put(q, value) writes output q.
template <class T, int B, class Get, class Turn, class Put>
[[gnu::always_inline]] inline void fourByFour(Get&& get, Turn&& turn, Put&& put) {
    using S = Split<T, B>;
    S t[16];
    unroll<4>([&](auto m) __attribute__((always_inline)) {
        S a = get(std::integral_constant<int, m>{}), b = get(std::integral_constant<int, m + 4>{}),
          c = get(std::integral_constant<int, m + 8>{}),
          d = get(std::integral_constant<int, m + 12>{});
        dft4(a, b, c, d);
        t[m] = a;
        t[m + 4] = b;
        t[m + 8] = c;
        t[m + 12] = d;
    });
    unroll<4>([&](auto q) __attribute__((always_inline)) {
        S a = t[4 * q], b = t[4 * q + 1], c = t[4 * q + 2], d = t[4 * q + 3];
        turn(q, b, c, d);
        dft4(a, b, c, d);
        put(std::integral_constant<int, q>{}, a);
        put(std::integral_constant<int, q + 4>{}, b);
        put(std::integral_constant<int, q + 8>{}, c);
        put(std::integral_constant<int, q + 12>{}, d);
    });
}

// The plain transform of 16 values.
template <class T, int B, class Get, class Put>
[[gnu::always_inline]] inline void dft16(T eighth, Get&& get, Put&& put) {
    using S = Split<T, B>;
    fourByFour<T, B>(
        get,
        [&](auto q, S& b, S& c, S& d)
            __attribute__((always_inline)) { turnSixteenths<q, T, B>(b, c, d, eighth); },
        put);
}

// A square of complex values, a vector for each row. Vector i is row splitLane(i), so that rows and
// columns have the same order.
template <class T, int B>
struct Square {
    using V = Vec<T, B>;
    static constexpr int lanes = V::lanes;
    V re[lanes], im[lanes];
    template <class Get>
    [[gnu::always_inline]] void load(Get&& row) {
        unroll<lanes>([&](auto i) __attribute__((always_inline)) {
            const Split<T, B> v = row(std::integral_constant<int, splitLane<T, B>(i)>{});
            re[i] = v.re;
            im[i] = v.im;
        });
    }
    [[gnu::always_inline]] void transpose() {
        vlq::transpose(re);
        vlq::transpose(im);
    }
    template <class Put>
    [[gnu::always_inline]] void store(Put&& row) const {
        unroll<lanes>([&](auto i) __attribute__((always_inline)) {
            row(std::integral_constant<int, splitLane<T, B>(i)>{}, Split<T, B>{re[i], im[i]});
        });
    }
};

// R vectors, outputs q of columns j to j + lanes - 1, become `lanes` contiguous groups of R
// outputs.
template <int R, class T, int B, class Out>
[[gnu::always_inline]] inline void putTransposed(Out out, std::ptrdiff_t j,
                                                 const Split<T, B> (&y)[R]) {
    constexpr int lanes = Vec<T, B>::lanes;
    unroll<R / lanes>([&](auto part) __attribute__((always_inline)) {
        Square<T, B> square;
        square.load([&](auto i) __attribute__((always_inline)) { return y[part * lanes + i]; });
        square.transpose();
        square.store([&](auto i, Split<T, B> v) __attribute__((always_inline)) {
            out.template put<B>((j + i) * R + part * lanes, v);
        });
    });
}

// The first pass, span 1.
template <class T, int B, int R, class In, class Out>
void firstPass(In in, Out out, std::ptrdiff_t n, T eighth) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    const std::ptrdiff_t stride = n / R;
    for (std::ptrdiff_t j = 0; j < stride; j += V::lanes) {
        S y[R];
        if constexpr (R == 16) {
            dft16<T, B>(
                eighth,
                [&](auto p)
                    __attribute__((always_inline)) { return in.template get<B>(j + p * stride); },
                [&](auto q, S v) __attribute__((always_inline)) { y[q] = v; });
        } else {
            unroll<R>([&](auto p) __attribute__((always_inline)) {
                y[p] = in.template get<B>(j + p * stride);
            });
            if constexpr (R == 8)
                dft8(y, V::broadcast(eighth));
            else
                dft4(y[0], y[1], y[2], y[3]);
        }
        putTransposed<R>(out, j, y);
    }
}

template <class T, int B>
[[gnu::always_inline]] inline Split<T, B> tableTwiddle(const T* table, int index) {
    const Split<T, B> w{loadAligned<T, B>(table + 2 * index * Vec<T, B>::lanes),
                        loadAligned<T, B>(table + (2 * index + 1) * Vec<T, B>::lanes)};
    // Two-operand instructions multiply by a factor in memory; others load it once for four uses.
    if constexpr (B == 16)
        return w;
    else
        return {opaque(w.re), opaque(w.im)};
}

// The butterfly of a later pass: get(p) reads input p, put(q, value) writes output q. The table
// holds the R - 1 twiddles of these columns.
template <class T, int B, int R, class Get, class Put>
[[gnu::always_inline]] inline void combine(const T* table, Get&& get, Put&& put) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    if constexpr (R == 4) {
        S a = get(std::integral_constant<int, 0>{}),
          b = get(std::integral_constant<int, 1>{}) * tableTwiddle<T, B>(table, 0),
          c = get(std::integral_constant<int, 2>{}) * tableTwiddle<T, B>(table, 1),
          d = get(std::integral_constant<int, 3>{}) * tableTwiddle<T, B>(table, 2);
        dft4(a, b, c, d);
        put(std::integral_constant<int, 0>{}, a);
        put(std::integral_constant<int, 1>{}, b);
        put(std::integral_constant<int, 2>{}, c);
        put(std::integral_constant<int, 3>{}, d);
    } else if constexpr (R == 8) {
        S x[8];
        x[0] = get(std::integral_constant<int, 0>{});
        unroll<7>([&](auto p) __attribute__((always_inline)) {
            x[p + 1] = get(std::integral_constant<int, p + 1>{}) * tableTwiddle<T, B>(table, p);
        });
        dft8(x, V::broadcast(kRootHalf<T>));
        unroll<8>([&](auto q) __attribute__((always_inline)) { put(q, x[q]); });
    } else {
        // All butterflies of the first stage have the same three twiddles.
        fourByFour<T, B>(
            [&](auto p) __attribute__((always_inline)) {
                if constexpr (p < 4)
                    return get(p);
                else
                    return get(p) * tableTwiddle<T, B>(table, p / 4 - 1);
            },
            [&](auto q, S& b, S& c, S& d) __attribute__((always_inline)) {
                b = b * tableTwiddle<T, B>(table, 3 * q + 3);
                c = c * tableTwiddle<T, B>(table, 3 * q + 4);
                d = d * tableTwiddle<T, B>(table, 3 * q + 5);
            },
            put);
    }
}

// A pass from groups of `span` values; the last one of a normalized transform multiplies by scale.
template <class T, int B, int R, bool scaled, class In, class Out>
void laterPass(In in, Out out, std::ptrdiff_t n, std::ptrdiff_t span, const T* table, T scale) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    const std::ptrdiff_t stride = n / R;
    [[maybe_unused]] const V factor = V::broadcast(scale);
    for (std::ptrdiff_t group = 0; group < stride; group += span) {
        const T* w = table;
        for (std::ptrdiff_t k = 0; k < span; k += V::lanes, w += 2 * (R - 1) * V::lanes) {
            combine<T, B, R>(
                w,
                [&](auto p) __attribute__((always_inline)) {
                    return in.template get<B>(group + k + p * stride);
                },
                [&](auto q, S v) __attribute__((always_inline)) {
                    out.template put<B>(group * R + k + q * span, scaled ? times(v, factor) : v);
                });
        }
    }
}

}  // namespace vlq::fft
