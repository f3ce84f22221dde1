// The time-domain FIR kernels for real elements. y[n] = sum over j of g[j] * x[n + j], where g is
// the impulse response reversed and x[0] the oldest sample of the first window.
//
// Each output is summed in one order that depends on the tap count alone, never on its place in a
// block, so any split of a stream over calls, tiles or threads gives the same bits. The taps are
// taken in groups of kRows rows, a row being as many taps as a vector has lanes:
//
//     for each group, for each column p, for each row i:   chain[i mod 2] += g[p + i * lanes] * x
//
// and y = chain[0] + chain[1]. The point of going down the columns: outputs are in lanes, A
// vectors of them in a tile, and one load of samples then meets all rows of its column, each for
// another vector of outputs. A kernel that took the taps one after the other would load a vector,
// most often across a cache line, for every multiply-add.
#pragma once

#include <cstddef>
#include <utility>

#include "filter/common/tap_table.h"
#include "frame/simd/ops.h"

namespace vlq::fir {

inline constexpr int kRows = 4;

// Vectors of outputs in a tile: two accumulators for each, a tap for each row, and a load must
// fit into 16 or 32 registers.
inline constexpr int kTileVectors = kVecBytes == 64 ? 12 : kVecBytes == 32 ? 5 : 4;

// All lanes of a vector set to the tap whose 16-byte entry is at `entry`.
template <class T, int Bytes = kVecBytes>
inline Vec<T, Bytes> spreadTap(const T* entry) {
    if constexpr (Bytes == 16)
        return loadAligned<T, 16>(entry);
    else
        return Vec<T, Bytes>::broadcast(*entry);
}

// Adds `columns` columns of `Rows` taps to a tile. `tap` is the entry of the column's first row;
// later taps lie before it, since the table holds the impulse response in natural order.
template <int Rows, class T, int A>
[[gnu::always_inline]] inline void addColumns(Vec<T> (&even)[A], Vec<T> (&odd)[A], const T* tap,
                                              const T* x, int columns) {
    constexpr int lanes = Vec<T>::lanes;
#pragma GCC unroll 1
    for (; columns > 0; --columns, ++x, tap -= kReplicas<T>) {
        Vec<T> g[Rows];
#pragma GCC unroll 4
        for (int i = 0; i < Rows; ++i) g[i] = spreadTap<T>(tap - i * lanes * kReplicas<T>);
#pragma GCC unroll 16
        for (int b = 0; b < A + Rows - 1; ++b) {
            const Vec<T> samples = load<T>(x + b * lanes);
#pragma GCC unroll 4
            for (int i = 0; i < Rows; ++i) {
                const int a = b - i;
                if (a < 0 || a >= A) continue;
                Vec<T>& sum = i % 2 == 0 ? even[a] : odd[a];
                sum = mulAdd(g[i], samples, sum);
            }
        }
    }
}

// A vectors of outputs.
template <int A, class T>
[[gnu::noinline]] void convolveTile(const T* tapsWide, const T* x, T* dst, int tapsLen) {
    constexpr int lanes = Vec<T>::lanes;
    constexpr int replicas = kReplicas<T>;
    Vec<T> even[A], odd[A];
#pragma GCC unroll 12
    for (int a = 0; a < A; ++a) even[a] = odd[a] = Vec<T>::zero();

    const T* tap = tapsWide + static_cast<std::ptrdiff_t>(tapsLen - 1) * replicas;
    int left = tapsLen;
    for (; left >= kRows * lanes; left -= kRows * lanes) {
        addColumns<kRows>(even, odd, tap, x, lanes);
        tap -= kRows * lanes * replicas;
        x += kRows * lanes;
    }
    // The last group: its first columns have one row more than the others.
    const int longer = left % lanes;
    const int shorter = left >= lanes ? lanes - longer : 0;
    const T* shortTap = tap - longer * replicas;
    const T* shortX = x + longer;
    switch (left / lanes) {
        case 0: addColumns<1>(even, odd, tap, x, longer); break;
        case 1:
            addColumns<2>(even, odd, tap, x, longer);
            addColumns<1>(even, odd, shortTap, shortX, shorter);
            break;
        case 2:
            addColumns<3>(even, odd, tap, x, longer);
            addColumns<2>(even, odd, shortTap, shortX, shorter);
            break;
        default:
            addColumns<4>(even, odd, tap, x, longer);
            addColumns<3>(even, odd, shortTap, shortX, shorter);
            break;
    }
#pragma GCC unroll 12
    for (int a = 0; a < A; ++a) store(dst + a * lanes, even[a] + odd[a]);
}

// Calls visit(entry of the tap in tapsWide, j, row is odd) in the order of summation.
template <class T, class Visit>
inline void eachTap(const T* tapsWide, int tapsLen, Visit&& visit) {
    constexpr int lanes = Vec<T>::lanes;
    const T* last = tapsWide + static_cast<std::ptrdiff_t>(tapsLen - 1) * kReplicas<T>;
    for (int group = 0; group < tapsLen; group += kRows * lanes) {
        const int end = tapsLen - group < kRows * lanes ? tapsLen : group + kRows * lanes;
        for (int p = group; p < end && p < group + lanes; ++p) {
            bool odd = false;
            for (int j = p; j < end; j += lanes, odd = !odd) {
                visit(last - static_cast<std::ptrdiff_t>(j) * kReplicas<T>, j, odd);
            }
        }
    }
}

// Fewer outputs than a vector has lanes: vectors of 16 bytes, then single outputs.
template <class T>
[[gnu::noinline]] void convolveFew(const T* tapsWide, const T* x, T* dst, int n, int tapsLen) {
    using Small = Vec<T, 16>;
    for (; n >= Small::lanes; n -= Small::lanes, x += Small::lanes, dst += Small::lanes) {
        Small sum[2] = {Small::zero(), Small::zero()};
        eachTap(tapsWide, tapsLen, [&](const T* tap, int j, bool odd) {
            sum[odd] = mulAdd(spreadTap<T, 16>(tap), load<T, 16>(x + j), sum[odd]);
        });
        store(dst, sum[0] + sum[1]);
    }
    for (; n > 0; --n, ++x, ++dst) {
        T sum[2] = {0, 0};
        eachTap(tapsWide, tapsLen, [&](const T* tap, int j, bool odd) {
            sum[odd] = mulAdd(*tap, loadScalar(x + j), sum[odd]);
        });
        storeScalar(dst, sum[0] + sum[1]);
    }
}

template <class T, int... Count>
inline void convolveTileOf(int vectors, const T* tapsWide, const T* x, T* dst, int tapsLen,
                           std::integer_sequence<int, Count...>) {
    ((vectors == Count + 1 ? convolveTile<Count + 1>(tapsWide, x, dst, tapsLen) : void()), ...);
}

// n outputs; reads x[0 .. n + tapsLen - 2]. dst does not overlap x.
template <class T>
requires std::is_floating_point_v<T>
void convolve(const T* tapsWide, const T* x, T* dst, int n, int tapsLen) {
    constexpr int lanes = Vec<T>::lanes;
    constexpr int tile = kTileVectors * lanes;
    constexpr auto tiles = std::make_integer_sequence<int, kTileVectors>();
    if (n < lanes) return convolveFew(tapsWide, x, dst, n, tapsLen);
    int done = 0;
    for (; n - done >= tile; done += tile)
        convolveTile<kTileVectors>(tapsWide, x + done, dst + done, tapsLen);
    if (done == n) return;
    // What remains ends flush with the last output: it may make some outputs a second time.
    const int vectors = (n - done + lanes - 1) / lanes;
    if (vectors * lanes <= n) {
        done = n - vectors * lanes;
        convolveTileOf(vectors, tapsWide, x + done, dst + done, tapsLen, tiles);
    } else {
        convolveTileOf(vectors - 1, tapsWide, x, dst, tapsLen, tiles);
        convolveTile<1>(tapsWide, x + n - lanes, dst + n - lanes, tapsLen);
    }
}

extern template void convolve(const Vlq32f*, const Vlq32f*, Vlq32f*, int, int);
extern template void convolve(const Vlq64f*, const Vlq64f*, Vlq64f*, int, int);

}  // namespace vlq::fir
