// Transforms beyond the first caches as 16 rows of M = N / 16 values, M fitting the caches. Row r
// takes every sixteenth value from r on; what its first pass combines lies M values apart, so that
// this pass exchanges square blocks of 16 by 16 values, in place where the caller wants it so. The
// rows go on by themselves, and one radix-16 pass combines them. Sixteen streams a power of two
// apart share few ways of the first cache: the butterflies take four at a time, whole cache lines
// each, with a block of values in the work buffer between their two stages.
#pragma once

#include "fourier/kernel/passes.h"
#include "fourier/kernel/regimes.h"

namespace vlq::fft {

// The first stage of 16-point transforms of `columns` columns, 16 at most: row m + 4 q of the block
// becomes value q of the four-point transform over rows m, m + 4, m + 8, m + 12.
template <class T, int B, class Get>
[[gnu::always_inline]] inline void firstStage(Blocks<T> block, int columns, Get&& get) {
    using S = Split<T, B>;
    for (int m = 0; m < 4; ++m) {
        for (int column = 0; column < columns; column += S::lanes) {
            S a = get(m, column), b = get(m + 4, column), c = get(m + 8, column), d = get(m + 12, column);
            dft4(a, b, c, d);
            block.template put<B>(m * columns + column, a);
            block.template put<B>((m + 4) * columns + column, b);
            block.template put<B>((m + 8) * columns + column, c);
            block.template put<B>((m + 12) * columns + column, d);
        }
    }
}

// The second one; turn(column, b, c, d) may multiply values 1 to 3, put(q, column, value) takes
// value q of the transform.
template <class T, int B, class Turn, class Put>
[[gnu::always_inline]] inline void secondStage(Blocks<T> block, int columns, Turn&& turn, Put&& put) {
    using S = Split<T, B>;
    unroll<4>([&](auto q) __attribute__((always_inline)) {
        for (int column = 0; column < columns; column += S::lanes) {
            S a = block.template get<B>(4 * q * columns + column), b = block.template get<B>((4 * q + 1) * columns + column),
              c = block.template get<B>((4 * q + 2) * columns + column), d = block.template get<B>((4 * q + 3) * columns + column);
            turnSixteenths<q, T, B>(b, c, d, kRootHalf<T>);
            turn(column, b, c, d);
            dft4(a, b, c, d);
            put(q, column, a);
            put(q + 4, column, b);
            put(q + 8, column, c);
            put(q + 12, column, d);
        }
    });
}

// The rows' first pass, src to middle, times scale. src may be the memory of middle.
template <class T, int B, class In, class Middle>
void splitRows(In src, Middle middle, std::ptrdiff_t length, T* work, T scale) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    constexpr int lanes = V::lanes;
    const Blocks<T> block{work};
    const V factor = V::broadcast(scale);
    auto slot = [](int q) { return 4 * (q % 4) + q / 4; };
    for (std::ptrdiff_t j = 0; j < length; j += 16) {
        firstStage<T, B>(block, 16, [&](int row, int column) __attribute__((always_inline)) {
            return times(src.template get<B>(row * length + j + column), factor);
        });
        // Value q where its inputs were: row 4 (q % 4) + q / 4 of the block.
        secondStage<T, B>(
            block, 16, [](int, S&, S&, S&) {},
            [&](int q, int column, S v) __attribute__((always_inline)) { block.template put<B>(slot(q) * 16 + column, v); });
        for (int column = 0; column < 16; column += lanes) {
            for (int first = 0; first < 16; first += lanes) {
                V re[lanes], im[lanes];
                unroll<lanes>([&](auto i) __attribute__((always_inline)) {
                    const S v = block.template get<B>(slot(first + splitLane<T, B>(i)) * 16 + column);
                    re[i] = v.re;
                    im[i] = v.im;
                });
                transpose(re);
                transpose(im);
                unroll<lanes>([&](auto i) __attribute__((always_inline)) {
                    middle.template put<B>((column + splitLane<T, B>(i)) * length + j + first, S{re[i], im[i]});
                });
            }
        }
    }
}

// Combines the rows, middle to dst, which may be one memory. For each vector of columns k the table
// holds the powers 4, 8, 12 and 1, 2, 3 of exp(-2 pi i k / N).
template <class T, int B, class Middle, class Out>
void joinRows(Middle middle, Out dst, std::ptrdiff_t length, const T* table, T* work) {
    using S = Split<T, B>;
    constexpr int columns = 64 / static_cast<int>(sizeof(T));
    const Blocks<T> block{work};
    for (std::ptrdiff_t k = 0; k < length; k += columns, table += 12 * columns) {
        firstStage<T, B>(block, columns, [&](int row, int column) __attribute__((always_inline)) {
            const S v = middle.template get<B>(row * length + k + column);
            return row < 4 ? v : v * tableTwiddle<T, B>(table + 12 * column, row / 4 - 1);
        });
        secondStage<T, B>(
            block, columns,
            [&](int column, S& b, S& c, S& d) __attribute__((always_inline)) {
                b = b * tableTwiddle<T, B>(table + 12 * column, 3);
                c = c * tableTwiddle<T, B>(table + 12 * column, 4);
                d = d * tableTwiddle<T, B>(table + 12 * column, 5);
            },
            [&](int q, int column, S v) __attribute__((always_inline)) { dst.template put<B>(q * length + k + column, v); });
    }
}

}  // namespace vlq::fft
