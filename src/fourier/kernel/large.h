// Transforms beyond the first caches, in two or three phases of column transforms (see
// plan/large.h). A column transform runs over the rows of a tile with the columns in the lanes:
// its factors are the same in all lanes.
#pragma once

#include <bit>

#include "fourier/kernel/passes.h"
#include "fourier/plan/large.h"
#include "fourier/plan/record.h"

namespace vlq::fft {

// One radix-R step over `rows` rows: row j + p * rows / R meets its kind, output q goes to row
// q * rows / R + j (rank q for a last step, where rows = R), multiplied by factor [j][q].
template <class T, int B, int R, bool last, class Get, class Put>
[[gnu::always_inline]] inline void columnStep(std::ptrdiff_t rows, const T* factors, Get&& get, Put&& put) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    constexpr int vectors = kTileColumns<T> / V::lanes;
    const std::ptrdiff_t stride = rows / R;
    for (std::ptrdiff_t j = 0; j < stride; ++j, factors += 2 * R) {
        for (int c = 0; c < vectors; ++c) {
            auto finish = [&](auto q, S v) __attribute__((always_inline)) {
                if constexpr (!last && q != 0) {
                    v = v * S{V::broadcast(factors[2 * q]), V::broadcast(factors[2 * q + 1])};
                }
                put(q * stride + j, c, v);
            };
            if constexpr (R == 16) {
                S x[16];
                unroll<16>([&](auto p) __attribute__((always_inline)) { x[p] = get(j + p * stride, c); });
                dft16<T, B>(kRootHalf<T>, [&](auto p) __attribute__((always_inline)) { return x[p]; }, finish);
            } else {
                S x[8];
                unroll<8>([&](auto p) __attribute__((always_inline)) { x[p] = get(j + p * stride, c); });
                dft8(x, V::broadcast(kRootHalf<T>));
                unroll<8>([&](auto q) __attribute__((always_inline)) { finish(q, x[q]); });
            }
        }
    }
}

template <class T, int B, bool last, class Get, class Put>
void columnStepOf(int radix, std::ptrdiff_t rows, const T* factors, Get get, Put put) {
    if (radix == 16) columnStep<T, B, 16, last>(rows, factors, get, put);
    else columnStep<T, B, 8, last>(rows, factors, get, put);
}

// The tile in the work buffer, a row of columns after the other.
template <class T, int B>
struct Tile {
    T* p;
    [[gnu::always_inline]] Split<T, B> get(std::ptrdiff_t row, int c) const {
        return Blocks<T>{p}.template get<B>(row * kTileColumns<T> + c * Vec<T, B>::lanes);
    }
    [[gnu::always_inline]] void put(std::ptrdiff_t row, int c, Split<T, B> v) const {
        Blocks<T>{p}.template put<B>(row * kTileColumns<T> + c * Vec<T, B>::lanes, v);
    }
};

// Transforms the columns that get(row, vector) gives; put(row, vector, value) takes output `row`.
template <class T, int B, class Get, class Put>
void columnTransform(int bits, const T* factors, Tile<T, B> tile, Get get, Put put) {
    const ColumnPlan plan = columnPlan(bits);
    std::ptrdiff_t rows = std::ptrdiff_t{1} << bits;
    auto toTile = [&](std::ptrdiff_t row, int c, Split<T, B> v) __attribute__((always_inline)) { tile.put(row, c, v); };
    columnStepOf<T, B, false>(plan.radix[0], rows, factors, get, toTile);
    factors += 2 * rows;
    rows /= plan.radix[0];
    std::ptrdiff_t ranks = plan.radix[0];
    if (plan.count == 3) {
        for (std::ptrdiff_t q = 0; q < ranks; ++q) {
            const Tile<T, B> part{tile.p + 2 * q * rows * kTileColumns<T>};
            columnStepOf<T, B, false>(
                plan.radix[1], rows, factors,
                [&](std::ptrdiff_t row, int c) __attribute__((always_inline)) { return part.get(row, c); },
                [&](std::ptrdiff_t row, int c, Split<T, B> v) __attribute__((always_inline)) { part.put(row, c, v); });
        }
        rows /= plan.radix[1];
        ranks *= plan.radix[1];
    }
    const int lowRadix = plan.radix[0], highRanks = static_cast<int>(ranks) / lowRadix;
    for (int q0 = 0; q0 < lowRadix; ++q0) {
        for (int q1 = 0; q1 < highRanks; ++q1) {
            const Tile<T, B> part{tile.p + 2 * (q0 * highRanks + q1) * rows * kTileColumns<T>};
            const std::ptrdiff_t rank = q0 + lowRadix * q1;
            columnStepOf<T, B, true>(
                plan.radix[plan.count - 1], rows, factors,
                [&](std::ptrdiff_t row, int c) __attribute__((always_inline)) { return part.get(row, c); },
                [&](std::ptrdiff_t row, int c, Split<T, B> v) __attribute__((always_inline)) {
                    put(rank + row * ranks, c, v);
                });
        }
    }
}

// Twiddles of a phase: W^(row * column) as the product of a vector for the column within a tile
// and a scalar for the tile.
template <class T, int B>
struct PhaseTwiddles {
    const T* within;  // [row][column]
    const T* tiles;   // [tile][row]
    PhaseTwiddles(const T* table, int rowBits) : within(table), tiles(table + ((2 * kTileColumns<T>) << rowBits)) {}
    [[gnu::always_inline]] Split<T, B> of(std::ptrdiff_t row, int c, const T* tile) const {
        using V = Vec<T, B>;
        const T* w = within + 2 * (row * kTileColumns<T> + c * V::lanes);
        return Split<T, B>{loadAligned<T, B>(w), loadAligned<T, B>(w + V::lanes)} * Split<T, B>{V::broadcast(tile[2 * row]), V::broadcast(tile[2 * row + 1])};
    }
};

// Exchanges rows and columns of square tiles of vectors in place.
template <class T, int B, class Middle>
void transposeInPlace(Middle data, std::ptrdiff_t base, std::ptrdiff_t size, std::ptrdiff_t pitch) {
    using V = Vec<T, B>;
    constexpr int lanes = V::lanes;
    struct Square {
        V re[lanes], im[lanes];
    };
    auto take = [&](Square& s, std::ptrdiff_t at) __attribute__((always_inline)) {
        unroll<lanes>([&](auto i) __attribute__((always_inline)) {
            const Split<T, B> v = data.template get<B>(at + splitLane<T, B>(i) * pitch);
            s.re[i] = v.re;
            s.im[i] = v.im;
        });
        transpose(s.re);
        transpose(s.im);
    };
    auto leave = [&](const Square& s, std::ptrdiff_t at) __attribute__((always_inline)) {
        unroll<lanes>([&](auto i) __attribute__((always_inline)) {
            data.template put<B>(at + splitLane<T, B>(i) * pitch, Split<T, B>{s.re[i], s.im[i]});
        });
    };
    for (std::ptrdiff_t row = 0; row < size; row += lanes) {
        Square a, b;
        take(a, base + row * pitch + row);
        leave(a, base + row * pitch + row);
        for (std::ptrdiff_t column = row + lanes; column < size; column += lanes) {
            take(a, base + row * pitch + column);
            take(b, base + column * pitch + row);
            leave(a, base + column * pitch + row);
            leave(b, base + row * pitch + column);
        }
    }
}

// src to middle, over H; middle is the memory of dst in the form that passes use.
template <class T, int B, bool scaled, class In, class Middle>
void firstPhase(const LargePlan& plan, int order, const T* factors, In src, Middle middle, T* work, bool inPlace, T scale) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    constexpr int lanes = V::lanes, columns = kTileColumns<T>;
    const std::ptrdiff_t size = std::ptrdiff_t{1} << plan.outer, pitch = std::ptrdiff_t{1} << (order - plan.outer);
    const Tile<T, B> tile{work};
    [[maybe_unused]] const V factor = V::broadcast(scale);
    for (std::ptrdiff_t m = 0; m < pitch; m += size) {
        for (std::ptrdiff_t r = 0; r < size; r += columns) {
            auto get = [&](std::ptrdiff_t row, int c) __attribute__((always_inline)) {
                const S v = src.template get<B>(row * pitch + m + r + c * lanes);
                return scaled ? times(v, factor) : v;
            };
            if (inPlace) {
                columnTransform<T, B>(plan.outer, factors, tile, get,
                                      [&](std::ptrdiff_t row, int c, S v) __attribute__((always_inline)) {
                                          middle.template put<B>(row * pitch + m + r + c * lanes, v);
                                      });
                continue;
            }
            // Outputs stay in the tile, then leave transposed: `place` is where output q lies.
            const ColumnPlan steps = columnPlan(plan.outer);
            const int bits0 = std::countr_zero(static_cast<unsigned>(steps.radix[0])),
                      bits1 = steps.count == 3 ? std::countr_zero(static_cast<unsigned>(steps.radix[1])) : 0;
            auto place = [&](std::ptrdiff_t q) __attribute__((always_inline)) {
                const std::ptrdiff_t q0 = q & ((1 << bits0) - 1), q1 = (q >> bits0) & ((1 << bits1) - 1),
                                     q2 = q >> (bits0 + bits1);
                return (((q0 << bits1) + q1) << (plan.outer - bits0 - bits1)) + q2;
            };
            columnTransform<T, B>(plan.outer, factors, tile, get,
                                  [&](std::ptrdiff_t row, int c, S v) __attribute__((always_inline)) {
                                      tile.put(place(row), c, v);
                                  });
            for (std::ptrdiff_t q = 0; q < size; q += lanes) {
                for (int c = 0; c < columns / lanes; ++c) {
                    V re[lanes], im[lanes];
                    unroll<lanes>([&](auto i) __attribute__((always_inline)) {
                        const S v = tile.get(place(q + splitLane<T, B>(i)), c);
                        re[i] = v.re;
                        im[i] = v.im;
                    });
                    transpose(re);
                    transpose(im);
                    unroll<lanes>([&](auto i) __attribute__((always_inline)) {
                        middle.template put<B>((r + c * lanes + splitLane<T, B>(i)) * pitch + m + q, S{re[i], im[i]});
                    });
                }
            }
        }
        if (inPlace) transposeInPlace<T, B>(middle, m, size, pitch);
    }
}

// Combines 2^rowBits rows of 2^columnBits columns from `base` on; rowAt(j) is the distance of
// input row j, output row q lies at q << columnBits.
template <class T, int B, class In, class Out, class RowAt>
void laterPhase(int rowBits, int columnBits, const T* factors, const T* table, In in, Out out, std::ptrdiff_t base,
                T* work, RowAt rowAt) {
    using S = Split<T, B>;
    constexpr int lanes = Vec<T, B>::lanes, columns = kTileColumns<T>;
    const PhaseTwiddles<T, B> twiddles(table, rowBits);
    const T* scalars = twiddles.tiles;
    for (std::ptrdiff_t k = 0; k < std::ptrdiff_t{1} << columnBits; k += columns, scalars += 2 << rowBits) {
        columnTransform<T, B>(
            rowBits, factors, Tile<T, B>{work},
            [&](std::ptrdiff_t row, int c) __attribute__((always_inline)) {
                return in.template get<B>(base + rowAt(row) + k + c * lanes) * twiddles.of(row, c, scalars);
            },
            [&](std::ptrdiff_t row, int c, S v) __attribute__((always_inline)) {
                out.template put<B>(base + (row << columnBits) + k + c * lanes, v);
            });
    }
}

template <class T, class In, class Middle, class Out>
void largeTransform(int order, const FloatingRecord<T>& record, In src, Middle middle, Out dst, T* work, bool inPlace,
                    bool scaled) {
    constexpr int B = kVecBytes;
    const LargePlan plan = largePlan<T>(order);
    const int inner = order - plan.outer;
    const T* factors = record.twiddleTable;
    const T* laterFactors = factors + 2 * columnTwiddles(plan.outer);
    if (scaled) firstPhase<T, B, true>(plan, order, factors, src, middle, work, inPlace, record.normFactor);
    else firstPhase<T, B, false>(plan, order, factors, src, middle, work, inPlace, T(1));

    if (plan.twoPhases) {
        const std::ptrdiff_t outerMask = (std::ptrdiff_t{1} << plan.outer) - 1;
        laterPhase<T, B>(inner, plan.outer, laterFactors, record.outerTwiddle[0].get(), middle, dst, 0, work,
                         [=](std::ptrdiff_t j) { return ((j & outerMask) << inner) + ((j >> plan.outer) << plan.outer); });
        return;
    }
    const T* middleTable = record.outerTwiddle[1];
    for (std::ptrdiff_t row = 0; row < std::ptrdiff_t{1} << plan.outer; ++row) {
        laterPhase<T, B>(plan.middle, plan.outer, laterFactors, middleTable, middle, middle, row << inner, work,
                         [=](std::ptrdiff_t j) { return j << plan.outer; });
    }
    laterPhase<T, B>(plan.outer, inner, factors, record.outerTwiddle[0].get(), middle, dst, 0, work,
                     [=](std::ptrdiff_t j) { return j << inner; });
}

}  // namespace vlq::fft
