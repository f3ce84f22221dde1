// Transforms beyond the first caches as 16 rows of N / 16 values, which fit the caches. Row r is
// the transform of every sixteenth sample from r on. Its first pass combines samples N / 16 apart,
// so that this pass, for all rows, exchanges square blocks of 16 by 16 values, and may run in
// place. The rows then continue one by one, and a radix-16 pass combines them. Sixteen streams a
// power of two apart compete for a few ways of the first cache: the butterflies access four at a
// time, in whole cache lines, and keep a block of values in the work buffer between their two
// stages. A row that is too long itself is split and joined once more.
#pragma once

#include "fourier/kernel/passes.h"
#include "fourier/kernel/regimes.h"

namespace vlq::fft {

// The first stage of the 16-point transforms of so many columns: four-point transforms over rows m,
// m + 4, m + 8, m + 12 of the input; their value q goes to row m + 4 q of the block.
template <class T, int B, class Get>
[[gnu::always_inline]] inline void firstStage(Blocks<T> block, int columns, Get&& get) {
    using S = Split<T, B>;
    for (int m = 0; m < 4; ++m) {
        for (int column = 0; column < columns; column += S::lanes) {
            S a = get(m, column), b = get(m + 4, column), c = get(m + 8, column),
              d = get(m + 12, column);
            dft4(a, b, c, d);
            block.template put<B>(m * columns + column, a);
            block.template put<B>((m + 4) * columns + column, b);
            block.template put<B>((m + 8) * columns + column, c);
            block.template put<B>((m + 12) * columns + column, d);
        }
    }
}

// The second stage; turn(column, b, c, d) may multiply inputs 1 to 3, put(q, column, value) writes
// value q of the transform. `eighth` is the factor of the eight-point transform in it.
template <class T, int B, class Turn, class Put>
[[gnu::always_inline]] inline void secondStage(Blocks<T> block, int columns, T eighth, Turn&& turn,
                                               Put&& put) {
    using S = Split<T, B>;
    unroll<4>([&](auto q) __attribute__((always_inline)) {
        for (int column = 0; column < columns; column += S::lanes) {
            S a = block.template get<B>(4 * q * columns + column),
              b = block.template get<B>((4 * q + 1) * columns + column),
              c = block.template get<B>((4 * q + 2) * columns + column),
              d = block.template get<B>((4 * q + 3) * columns + column);
            turnSixteenths<q, T, B>(b, c, d, eighth);
            turn(column, b, c, d);
            dft4(a, b, c, d);
            put(q, column, a);
            put(q + 4, column, b);
            put(q + 8, column, c);
            put(q + 12, column, d);
        }
    });
}

// The row of the block for value q of the transforms: that of an input already used.
constexpr int slotOf(int q) { return 4 * (q % 4) + q / 4; }

// The first pass of all rows, src to middle. src may be the memory of middle.
template <class T, int B, class In, class Middle>
void splitRows(In src, Middle middle, std::ptrdiff_t length, T* work, T eighth) {
    using S = Split<T, B>;
    constexpr int lanes = S::lanes;
    const Blocks<T> block{work};
    for (std::ptrdiff_t j = 0; j < length; j += 16) {
        firstStage<T, B>(
            block, 16, [&](int row, int column) __attribute__((always_inline)) {
                return src.template get<B>(row * length + j + column);
            });
        secondStage<T, B>(
            block, 16, eighth, [](int, S&, S&, S&) {},
            [&](int q, int column, S v) __attribute__((always_inline)) {
                block.template put<B>(slotOf(q) * 16 + column, v);
            });
        for (int column = 0; column < 16; column += lanes) {
            for (int first = 0; first < 16; first += lanes) {
                Square<T, B> square;
                square.load([&](auto i) __attribute__((always_inline)) {
                    return block.template get<B>(slotOf(first + i) * 16 + column);
                });
                square.transpose();
                square.store([&](auto i, S v) __attribute__((always_inline)) {
                    middle.template put<B>((column + i) * length + j + first, v);
                });
            }
        }
    }
}

// Powers 4, 8, 12 and 1, 2, 3 of exp(-2 pi i k / n), six vectors for each vector of columns k.
template <class T, int B>
struct SixteenthPowers {
    const T* table;
    [[gnu::always_inline]] Split<T, B> times(Split<T, B> v, int row, std::ptrdiff_t k) const {
        return row < 4 ? v : v * tableTwiddle<T, B>(table + 12 * k, row / 4 - 1);
    }
    [[gnu::always_inline]] void turn(std::ptrdiff_t k, Split<T, B>& b, Split<T, B>& c,
                                     Split<T, B>& d) const {
        b = b * tableTwiddle<T, B>(table + 12 * k, 3);
        c = c * tableTwiddle<T, B>(table + 12 * k, 4);
        d = d * tableTwiddle<T, B>(table + 12 * k, 5);
    }
};

// The second pass of a row of 16 * length values in groups of `span`, in place: makes sixteen rows
// of it. The table is that of 16 * span values.
template <class T, int B, class Middle>
void splitGroups(Middle row, std::ptrdiff_t length, std::ptrdiff_t span, const T* table, T* work) {
    using S = Split<T, B>;
    constexpr int chunk = 64 / static_cast<int>(sizeof(T)), columns = 16 * chunk;
    const Blocks<T> block{work};
    for (std::ptrdiff_t j = 0; j < length; j += 16 * span) {
        for (std::ptrdiff_t k = 0; k < span; k += chunk) {
            const SixteenthPowers<T, B> powers{table + 12 * k};
            firstStage<T, B>(
                block, columns, [&](int part, int column) __attribute__((always_inline)) {
                    const std::ptrdiff_t at =
                        part * length + j + column / chunk * span + k + column % chunk;
                    return powers.times(row.template get<B>(at), part, column % chunk);
                });
            secondStage<T, B>(
                block, columns, kRootHalf<T>,
                [&](int column, S& b, S& c, S& d)
                    __attribute__((always_inline)) { powers.turn(column % chunk, b, c, d); },
                [&](int q, int column, S v) __attribute__((always_inline)) {
                    block.template put<B>(slotOf(q) * columns + column, v);
                });
            for (int group = 0; group < 16; ++group) {
                for (int q = 0; q < 16; ++q) {
                    for (int i = 0; i < chunk; i += S::lanes) {
                        row.template put<B>(
                            group * length + j + q * span + k + i,
                            block.template get<B>(slotOf(q) * columns + group * chunk + i));
                    }
                }
            }
        }
    }
}

// Combines the rows, middle to dst, which may be the same memory, and multiplies by scale. The
// table is that of all their values.
template <class T, int B, class Middle, class Out>
void joinRows(Middle middle, Out dst, std::ptrdiff_t length, const T* table, T* work, T scale) {
    using S = Split<T, B>;
    constexpr int columns = 64 / static_cast<int>(sizeof(T));
    const Blocks<T> block{work};
    const auto factor = Vec<T, B>::broadcast(scale);
    for (std::ptrdiff_t k = 0; k < length; k += columns) {
        const SixteenthPowers<T, B> powers{table + 12 * k};
        firstStage<T, B>(
            block, columns, [&](int row, int column) __attribute__((always_inline)) {
                return powers.times(middle.template get<B>(row * length + k + column), row, column);
            });
        secondStage<T, B>(
            block, columns, kRootHalf<T>,
            [&](int column, S& b, S& c, S& d)
                __attribute__((always_inline)) { powers.turn(column, b, c, d); },
            [&](int q, int column, S v) __attribute__((always_inline)) {
                dst.template put<B>(q * length + k + column, times(v, factor));
            });
    }
}

}  // namespace vlq::fft
