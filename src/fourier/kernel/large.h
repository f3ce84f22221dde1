// Transforms beyond the first caches: sixteen rows, or three phases of column transforms (see
// plan/fft_passes.h).
#pragma once

#include <bit>

#include "fourier/kernel/regimes.h"
#include "fourier/kernel/sixteen_rows.h"
#include "fourier/plan/fft_passes.h"

namespace vlq::fft {

// ---- phases -------------------------------------------------------------------------------------
// A column transform runs over the rows of a tile, with the columns in the lanes: its factors are
// the same in all lanes.

// The tile in the work buffer, row by row.
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

// One radix-R step over `rows` rows: transforms rows j + p * rows / R over p, multiplies output q
// by factor [j][q], except in the last step, and writes it to row q * rows / R + j. `eighth` is the
// factor of the eight-point transform in it.
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

// A column transform of 2^bits rows in the tile. Output q is in row place(q) afterwards: the digits
// of q, one for each step, in reverse order.
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

// Twiddles of a phase: exp(-2 pi i row * column / N) as the product of a vector for the column
// within a tile and a scalar for the tile.
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

// Transposes a matrix of size * size values in place, rows `pitch` apart.
template <class T, int B, class Middle>
void transposeInPlace(Middle data, std::ptrdiff_t base, std::ptrdiff_t size, std::ptrdiff_t pitch) {
    constexpr int lanes = Vec<T, B>::lanes;
    auto take = [&](Square<T, B> & square, std::ptrdiff_t at) __attribute__((always_inline)) {
        square.load([&](auto i) __attribute__((always_inline)) {
            return data.template get<B>(at + i * pitch);
        });
        square.transpose();
    };
    auto leave = [&](const Square<T, B>& square, std::ptrdiff_t at) __attribute__((always_inline)) {
        square.store([&](auto i, Split<T, B> v) __attribute__((always_inline)) {
            data.template put<B>(at + i * pitch, v);
        });
    };
    for (std::ptrdiff_t row = 0; row < size; row += lanes) {
        Square<T, B> a, b;
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

// src to middle, over h.
template <class T, int B, class In, class Middle>
void firstPhase(const LargePlan& plan, int order, const T* factors, In src, Middle middle, T* work,
                bool inPlace) {
    constexpr int lanes = Vec<T, B>::lanes, columns = kTileColumns<T>;
    const std::ptrdiff_t size = std::ptrdiff_t{1} << plan.outer,
                         pitch = std::ptrdiff_t{1} << (order - plan.outer);
    const ColumnTransform<T, B> transform{plan.outer, factors, {work}, eightPointFactor<T>(order)};
    for (std::ptrdiff_t m = 0; m < pitch; m += size) {
        for (std::ptrdiff_t r = 0; r < size; r += columns) {
            for (std::ptrdiff_t row = 0; row < size; ++row) {
                for (int c = 0; c < columns / lanes; ++c) {
                    transform.tile.put(row, c,
                                       src.template get<B>(row * pitch + m + r + c * lanes));
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
                    Square<T, B> square;
                    square.load([&](auto i) __attribute__((always_inline)) {
                        return transform.tile.get(transform.place(q + i), c);
                    });
                    square.transpose();
                    square.store([&](auto i, Split<T, B> v) __attribute__((always_inline)) {
                        middle.template put<B>((r + c * lanes + i) * pitch + m + q, v);
                    });
                }
            }
        }
        if (inPlace) transposeInPlace<T, B>(middle, m, size, pitch);
    }
}

// Combines 2^rowBits rows of 2^columnBits columns from `base` on, and multiplies by scale.
template <class T, int B, class In, class Out>
void laterPhase(int rowBits, int columnBits, const T* factors, const T* table, In in, Out out,
                std::ptrdiff_t base, T* work, T scale) {
    constexpr int lanes = Vec<T, B>::lanes, columns = kTileColumns<T>;
    const auto factor = Vec<T, B>::broadcast(scale);
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
                                    times(transform.tile.get(transform.place(row), c), factor));
            }
        }
    }
}

// inPlace: src is the memory of dst.
template <class T, class In, class Middle, class Out>
void runPhases(int order, const FloatSpec<T>& spec, In src, Middle middle, Out dst, T* work,
               bool inPlace, bool scaled) {
    constexpr int B = kVecBytes;
    const LargePlan plan = largePlan(order);
    const int inner = order - plan.outer;
    const T* factors = spec.twiddleTable;
    const T* middleFactors = factors + 2 * columnTwiddles(plan.outer);
    firstPhase<T, B>(plan, order, factors, src, middle, work, inPlace);
    const T* middleTable = spec.outerTwiddle[1];
    for (std::ptrdiff_t row = 0; row < std::ptrdiff_t{1} << plan.outer; ++row) {
        laterPhase<T, B>(plan.middle, plan.outer, middleFactors, middleTable, middle, middle,
                         row << inner, work, T(1));
    }
    laterPhase<T, B>(plan.outer, inner, factors, spec.outerTwiddle[0].get(), middle, dst, 0, work,
                     scaled ? spec.normFactor : T(1));
}

// ---- rows ---------------------------------------------------------------------------------------
// The work buffer as the view of the data.
template <class T>
Blocks<T> workView(Blocks<T>, T* work, std::ptrdiff_t) {
    return {work};
}
template <class T>
Planes<T> workView(Planes<T>, T* work, std::ptrdiff_t length) {
    return {work, work + length};
}

// Transforms a row of 2^order values, after its first pass, as sixteen rows of its own.
template <class T, class Middle>
void splitRow(int order, const FloatSpec<T>& spec, Middle row, T* work) {
    constexpr int B = kVecBytes;
    const std::ptrdiff_t length = std::ptrdiff_t{1} << (order - 4);
    splitGroups<T, B>(row, length, 16, spec.outerTwiddle[2].get(), work);
    for (int part = 0; part < 16; ++part) {
        rowTransform<T>(order - 4, 8, spec.twiddleTable.get(), row.from(part * length),
                        workView(row, work, length));
    }
    joinRows<T, B>(row, row, length, spec.outerTwiddle[1].get(), work, T(1));
}

template <class T, class In, class Middle, class Out>
void largeTransform(int order, const FloatSpec<T>& spec, In src, Middle middle, Out dst, T* work,
                    bool inPlace, bool scaled) {
    constexpr int B = kVecBytes;
    if (order > kLastSplitTwice<T>)
        return runPhases<T>(order, spec, src, middle, dst, work, inPlace, scaled);
    const std::ptrdiff_t length = std::ptrdiff_t{1} << (order - 4);
    splitRows<T, B>(src, middle, length, work, eightPointFactor<T>(order));
    for (int r = 0; r < 16; ++r) {
        const Middle row = middle.from(r * length);
        if (order <= kLastSplitOnce<T>)
            rowTransform<T>(order - 4, 4, spec.twiddleTable.get(), row,
                            workView(middle, work, length));
        else
            splitRow<T>(order - 4, spec, row, work);
    }
    joinRows<T, B>(middle, dst, length, spec.outerTwiddle[0].get(), work,
                   scaled ? spec.normFactor : T(1));
}

}  // namespace vlq::fft
