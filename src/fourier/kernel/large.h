// Transforms far beyond the first caches, in three phases of column transforms (see
// plan/large.h). A column transform runs over the rows of a tile with the columns in the lanes:
// its factors are the same in all lanes.
#pragma once

#include <bit>

#include "fourier/kernel/passes.h"
#include "fourier/plan/fft_plan.h"
#include "fourier/plan/row_plan.h"

namespace vlq::fft {

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
    Tile from(std::ptrdiff_t row) const { return {p + 2 * row * kTileColumns<T>}; }
};

// One radix-R step over `rows` rows: row j + p * rows / R meets its kind, output q is multiplied by
// factor [j][q], but not in the last step (without factors), and goes to row q * rows / R + j.
// eighth is the factor of the eight-point transform in it.
template <class T, int B, int R>
[[gnu::noinline]] void columnStep(std::ptrdiff_t rows, const T* factors, T eighth,
                                  Tile<T, B> tile) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    constexpr int vectors = kTileColumns<T> / V::lanes;
    const std::ptrdiff_t stride = rows / R;
    for (std::ptrdiff_t j = 0; j < stride; ++j) {
        const T* const factor = factors ? factors + 2 * R * j : nullptr;
        for (int c = 0; c < vectors; ++c) {
            auto finish = [&](auto q, S v) __attribute__((always_inline)) {
                if (q != 0 && factor)
                    v = v * S{V::broadcast(factor[2 * q]), V::broadcast(factor[2 * q + 1])};
                tile.put(q * stride + j, c, v);
            };
            if constexpr (R == 16) {
                dft16<T, B>(
                    eighth,
                    [&](auto p)
                        __attribute__((always_inline)) { return tile.get(j + p * stride, c); },
                    finish);
            } else {
                S x[8];
                unroll<8>([&](auto p) __attribute__((always_inline)) {
                    x[p] = tile.get(j + p * stride, c);
                });
                dft8(x, V::broadcast(eighth));
                unroll<8>([&](auto q) __attribute__((always_inline)) { finish(q, x[q]); });
            }
        }
    }
}

// A column transform of 2^bits rows in the tile. Output q is left at row place(q): its digits by
// radix stand in the opposite order.
template <class T, int B>
struct ColumnTransform {
    int bits;
    const T* factors;
    Tile<T, B> tile;
    T eighth = kRootHalf<T>;  // of the first step
    ColumnPlan plan = columnPlan(bits);
    int bits0 = std::countr_zero(static_cast<unsigned>(plan.radix[0]));
    int bits1 = plan.count == 3 ? std::countr_zero(static_cast<unsigned>(plan.radix[1])) : 0;

    std::ptrdiff_t rows() const { return std::ptrdiff_t{1} << bits; }

    std::ptrdiff_t place(std::ptrdiff_t q) const {
        const std::ptrdiff_t q0 = q & ((1 << bits0) - 1), q1 = (q >> bits0) & ((1 << bits1) - 1);
        return (((q0 << bits1) + q1) << (bits - bits0 - bits1)) + (q >> (bits0 + bits1));
    }

    void run() const {
        const T* next = factors;
        std::ptrdiff_t inner = rows();
        for (int i = 0; i < plan.count; ++i) {
            const auto step = plan.radix[i] == 16 ? columnStep<T, B, 16> : columnStep<T, B, 8>;
            for (std::ptrdiff_t row = 0; row < rows(); row += inner) {
                step(inner, i + 1 < plan.count ? next : nullptr, i == 0 ? eighth : kRootHalf<T>,
                     tile.from(row));
            }
            next += 2 * inner;
            inner /= plan.radix[i];
        }
    }
};

// Twiddles of a phase: W^(row * column) as the product of a vector for the column within a tile
// and a scalar for the tile.
template <class T, int B>
struct PhaseTwiddles {
    const T* within;  // [row][column]
    const T* tiles;   // [tile][row]
    PhaseTwiddles(const T* table, int rowBits)
        : within(table), tiles(table + ((2 * kTileColumns<T>) << rowBits)) {}
    [[gnu::always_inline]] Split<T, B> of(std::ptrdiff_t row, int c, const T* tile) const {
        using V = Vec<T, B>;
        const T* w = within + 2 * (row * kTileColumns<T> + c * V::lanes);
        return Split<T, B>{loadAligned<T, B>(w), loadAligned<T, B>(w + V::lanes)} *
               Split<T, B>{V::broadcast(tile[2 * row]), V::broadcast(tile[2 * row + 1])};
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
    auto take = [&](Square & s, std::ptrdiff_t at) __attribute__((always_inline)) {
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

// src to middle, over H, multiplied by scale; middle is the memory of dst in the form that phases
// use among themselves.
template <class T, int B, class In, class Middle>
void firstPhase(const LargePlan& plan, int order, const T* factors, In src, Middle middle, T* work,
                bool inPlace, T scale) {
    using V = Vec<T, B>;
    using S = Split<T, B>;
    constexpr int lanes = V::lanes, columns = kTileColumns<T>;
    const std::ptrdiff_t size = std::ptrdiff_t{1} << plan.outer,
                         pitch = std::ptrdiff_t{1} << (order - plan.outer);
    const ColumnTransform<T, B> transform{
        plan.outer, factors, {work}, order % 2 ? kEightPoint<T> : kRootHalf<T>};
    const V factor = V::broadcast(scale);
    for (std::ptrdiff_t m = 0; m < pitch; m += size) {
        for (std::ptrdiff_t r = 0; r < size; r += columns) {
            for (std::ptrdiff_t row = 0; row < size; ++row) {
                for (int c = 0; c < columns / lanes; ++c) {
                    transform.tile.put(
                        row, c,
                        times(src.template get<B>(row * pitch + m + r + c * lanes), factor));
                }
            }
            transform.run();
            if (inPlace) {
                for (std::ptrdiff_t q = 0; q < size; ++q) {
                    for (int c = 0; c < columns / lanes; ++c) {
                        middle.template put<B>(q * pitch + m + r + c * lanes,
                                               transform.tile.get(transform.place(q), c));
                    }
                }
                continue;
            }
            for (std::ptrdiff_t q = 0; q < size; q += lanes) {
                for (int c = 0; c < columns / lanes; ++c) {
                    V re[lanes], im[lanes];
                    unroll<lanes>([&](auto i) __attribute__((always_inline)) {
                        const S v = transform.tile.get(transform.place(q + splitLane<T, B>(i)), c);
                        re[i] = v.re;
                        im[i] = v.im;
                    });
                    transpose(re);
                    transpose(im);
                    unroll<lanes>([&](auto i) __attribute__((always_inline)) {
                        middle.template put<B>((r + c * lanes + splitLane<T, B>(i)) * pitch + m + q,
                                               S{re[i], im[i]});
                    });
                }
            }
        }
        if (inPlace) transposeInPlace<T, B>(middle, m, size, pitch);
    }
}

// Combines 2^rowBits rows of 2^columnBits columns from `base` on.
template <class T, int B, class In, class Out>
void laterPhase(int rowBits, int columnBits, const T* factors, const T* table, In in, Out out,
                std::ptrdiff_t base, T* work) {
    constexpr int lanes = Vec<T, B>::lanes, columns = kTileColumns<T>;
    const PhaseTwiddles<T, B> twiddles(table, rowBits);
    const ColumnTransform<T, B> transform{rowBits, factors, {work}};
    const T* scalars = twiddles.tiles;
    for (std::ptrdiff_t k = 0; k < std::ptrdiff_t{1} << columnBits;
         k += columns, scalars += 2 << rowBits) {
        for (std::ptrdiff_t row = 0; row < transform.rows(); ++row) {
            for (int c = 0; c < columns / lanes; ++c) {
                transform.tile.put(row, c,
                                   in.template get<B>(base + (row << columnBits) + k + c * lanes) *
                                       twiddles.of(row, c, scalars));
            }
        }
        transform.run();
        for (std::ptrdiff_t row = 0; row < transform.rows(); ++row) {
            for (int c = 0; c < columns / lanes; ++c) {
                out.template put<B>(base + (row << columnBits) + k + c * lanes,
                                    transform.tile.get(transform.place(row), c));
            }
        }
    }
}

// inPlace: src is the memory of dst.
template <class T, class In, class Middle, class Out>
void runPhases(int order, const FloatingRecord<T>& record, In src, Middle middle, Out dst, T* work,
               bool inPlace, bool scaled) {
    constexpr int B = kVecBytes;
    const LargePlan plan = largePlan(order);
    const int inner = order - plan.outer;
    const T* factors = record.twiddleTable;
    const T* middleFactors = factors + 2 * columnTwiddles(plan.outer);
    firstPhase<T, B>(plan, order, factors, src, middle, work, inPlace,
                     scaled ? record.normFactor : T(1));
    const T* middleTable = record.outerTwiddle[1];
    for (std::ptrdiff_t row = 0; row < std::ptrdiff_t{1} << plan.outer; ++row) {
        laterPhase<T, B>(plan.middle, plan.outer, middleFactors, middleTable, middle, middle,
                         row << inner, work);
    }
    laterPhase<T, B>(plan.outer, inner, factors, record.outerTwiddle[0].get(), middle, dst, 0,
                     work);
}

}  // namespace vlq::fft
