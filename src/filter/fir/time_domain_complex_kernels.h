// The time-domain FIR kernels for complex elements. A vector of samples x, parts interleaved, meets
// a tap a + ib as two products by lanes, with (a, a) and with (-b, b); the sums of both over all
// taps, swap exchanging the parts of each value, give
//
//     y = sum of (a, a) x - swap(sum of (-b, b) x)
//
// so that the parts change places once an output and not once a tap. Tiles, rows and columns are
// those of the real kernels, a row being as many taps as a vector has values; both sums run down
// the columns in one order whatever the place in a block, so any split of a stream gives the same
// bits.
#pragma once

#include "filter/common/element.h"
#include "filter/fir/time_domain_kernels.h"
#include "frame/simd/complex.h"

namespace vlq::fir {

// Parts in the tap table for one tap.
template <class T>
inline constexpr int kEntry = 2 * kReplicas<T>;

// Vectors of outputs in a tile and taps that a load of samples meets: two sums a vector, two
// vectors a tap, and a load must fit into 16 or 32 registers.
inline constexpr int kComplexTile = kVecBytes == 64 ? 11 : kVecBytes == 32 ? 5 : 4;
inline constexpr int kComplexRows = kVecBytes == 64 ? 4 : 2;

// Both halves of an entry over all lanes.
template <class T>
struct WideTap {
    Vec<T> re, im;
};
template <class T>
inline WideTap<T> spreadEntry(const T* entry) {
    return {spreadTap<T>(entry), repeatAligned16(entry + kReplicas<T>)};
}

// Adds `columns` columns of `Rows` taps to a tile; `tap` is the entry of the column's first row.
template <int Rows, class T, int A>
[[gnu::always_inline]] inline void addComplexColumns(Vec<T> (&byRe)[A], Vec<T> (&byIm)[A],
                                                     const T* tap, const T* x, int columns) {
    constexpr int lanes = Vec<T>::lanes;
    constexpr int row = lanes / 2 * kEntry<T>;
#pragma GCC unroll 1
    for (; columns > 0; --columns, x += 2, tap -= kEntry<T>) {
        WideTap<T> g[Rows];
#pragma GCC unroll 4
        for (int i = 0; i < Rows; ++i) g[i] = spreadEntry<T>(tap - i * row);
#pragma GCC unroll 16
        for (int b = 0; b < A + Rows - 1; ++b) {
            const Vec<T> samples = load<T>(x + b * lanes);
#pragma GCC unroll 4
            for (int i = 0; i < Rows; ++i) {
                const int a = b - i;
                if (a < 0 || a >= A) continue;
                byRe[a] = mulAdd(g[i].re, samples, byRe[a]);
                byIm[a] = mulAdd(g[i].im, samples, byIm[a]);
            }
        }
    }
}

// The last group of fewer than Rows rows: its first columns have one row more than the others.
template <int Rows, class T, int A>
[[gnu::always_inline]] inline void addLastRows(Vec<T> (&byRe)[A], Vec<T> (&byIm)[A], const T* tap,
                                               const T* x, int left) {
    constexpr int row = Vec<T>::lanes / 2;
    if constexpr (Rows > 0) {
        if (left < (Rows - 1) * row) return addLastRows<Rows - 1>(byRe, byIm, tap, x, left);
        const int longer = left - (Rows - 1) * row;
        addComplexColumns<Rows>(byRe, byIm, tap, x, longer);
        if constexpr (Rows > 1) {
            addComplexColumns<Rows - 1>(byRe, byIm, tap - longer * kEntry<T>, x + 2 * longer,
                                        row - longer);
        }
    }
}

// A vectors of outputs.
template <int A, class T>
[[gnu::noinline]] void complexTile(const T* tapsWide, const T* x, T* dst, int tapsLen) {
    constexpr int lanes = Vec<T>::lanes;
    constexpr int group = kComplexRows * (lanes / 2);
    Vec<T> byRe[A], byIm[A];
#pragma GCC unroll 11
    for (int a = 0; a < A; ++a) byRe[a] = byIm[a] = Vec<T>::zero();

    const T* tap = tapsWide + static_cast<std::ptrdiff_t>(tapsLen - 1) * kEntry<T>;
    int left = tapsLen;
    for (; left >= group; left -= group, tap -= group * kEntry<T>, x += 2 * group) {
        addComplexColumns<kComplexRows>(byRe, byIm, tap, x, lanes / 2);
    }
    addLastRows<kComplexRows>(byRe, byIm, tap, x, left);
#pragma GCC unroll 11
    for (int a = 0; a < A; ++a) store(dst + a * lanes, byRe[a] - swapParts(byIm[a]));
}

// Calls visit(entry of the tap in tapsWide, j) in the order of summation.
template <class T, class Visit>
inline void eachComplexTap(const T* tapsWide, int tapsLen, Visit&& visit) {
    constexpr int row = Vec<T>::lanes / 2;
    constexpr int rows = kComplexRows;
    const T* last = tapsWide + static_cast<std::ptrdiff_t>(tapsLen - 1) * kEntry<T>;
    for (int group = 0; group < tapsLen; group += rows * row) {
        const int end = tapsLen - group < rows * row ? tapsLen : group + rows * row;
        for (int p = group; p < end && p < group + row; ++p) {
            for (int j = p; j < end; j += row)
                visit(last - static_cast<std::ptrdiff_t>(j) * kEntry<T>, j);
        }
    }
}

// Fewer outputs than a vector has values, one by one.
template <class T>
[[gnu::noinline]] void complexFew(const T* tapsWide, const T* x, T* dst, int n, int tapsLen) {
    for (; n > 0; --n, x += 2, dst += 2) {
        T byRe[2] = {0, 0}, byIm[2] = {0, 0};
        eachComplexTap(tapsWide, tapsLen, [&](const T* tap, int j) {
            for (int part = 0; part < 2; ++part) {
                const T sample = loadScalar(x + 2 * static_cast<std::ptrdiff_t>(j) + part);
                byRe[part] = mulAdd(tap[0], sample, byRe[part]);
                byIm[part] = mulAdd(tap[kReplicas<T> + part], sample, byIm[part]);
            }
        });
        storeScalar(dst, byRe[0] - byIm[1]);
        storeScalar(dst + 1, byRe[1] - byIm[0]);
    }
}

template <class T, int... Count>
inline void complexTileOf(int vectors, const T* tapsWide, const T* x, T* dst, int tapsLen,
                          std::integer_sequence<int, Count...>) {
    ((vectors == Count + 1 ? complexTile<Count + 1>(tapsWide, x, dst, tapsLen) : void()), ...);
}

// n outputs; reads x[0 .. n + tapsLen - 2]. dst does not overlap x.
template <Complex C>
void convolve(const C* tapsWide, const C* x, C* dst, int n, int tapsLen) {
    using T = Part<C>;
    constexpr int values = Vec<T>::lanes / 2;
    constexpr int tile = kComplexTile * values;
    constexpr auto tiles = std::make_integer_sequence<int, kComplexTile>();
    const T* taps = parts(tapsWide);
    if (n < values) return complexFew(taps, parts(x), parts(dst), n, tapsLen);
    int done = 0;
    for (; n - done >= tile; done += tile)
        complexTile<kComplexTile>(taps, parts(x + done), parts(dst + done), tapsLen);
    if (done == n) return;
    // What remains ends flush with the last output: it may make some outputs a second time.
    const int vectors = (n - done + values - 1) / values;
    if (vectors * values <= n) {
        done = n - vectors * values;
        complexTileOf(vectors, taps, parts(x + done), parts(dst + done), tapsLen, tiles);
    } else {
        complexTileOf(vectors - 1, taps, parts(x), parts(dst), tapsLen, tiles);
        complexTile<1>(taps, parts(x + n - values), parts(dst + n - values), tapsLen);
    }
}

extern template void convolve(const Vlq32fc*, const Vlq32fc*, Vlq32fc*, int, int);
extern template void convolve(const Vlq64fc*, const Vlq64fc*, Vlq64fc*, int, int);

}  // namespace vlq::fir
