// The sum over one window of samples in a state.
#pragma once

#include "filter/common/element.h"
#include "frame/simd/complex.h"
#include "frame/simd/ops.h"

namespace vlq::fir {

template <class T, int Bytes>
inline T laneSum(Vec<T, Bytes> v) {
    if constexpr (Bytes > 16) {
        return laneSum(lowHalf(v) + highHalf(v));
    } else {
        // Halves again, which the compiler turns into shuffles.
        constexpr int half = Vec<T, Bytes>::lanes / 2;
        T sum = v[0] + v[half];
        for (int lane = 1; lane < half; ++lane) sum += v[lane] + v[lane + half];
        return sum;
    }
}

// sum of x[j] * g[j], j from 0 to n - 2, plus newest * g[n - 1]. The newest sample comes in a
// register and the few before it are taken singly: the calls before have only just stored them,
// and a vector load across a fresh store waits for the cache.
template <class T>
requires std::is_floating_point_v<T>
inline T windowSum(const T* x, T newest, const T* g, int n) {
    // Wider vectors gain nothing here: they take longer to sum up and to wait for.
    using Wide = Vec<T, kVecBytes == 16 ? 16 : 32>;
    using Small = Vec<T, 16>;
    constexpr int kShort = 12;  // a shorter window is one chain in its own order
    constexpr int kFresh = 4;
    if (n < kShort) {
        T sum = 0;
        for (int j = 0; j < n - 1; ++j) sum = mulAdd(x[j], g[j], sum);
        return mulAdd(newest, g[n - 1], sum);
    }
    const int settled = n - kFresh;
    int j = 0;
    Wide sums[4] = {Wide::zero(), Wide::zero(), Wide::zero(), Wide::zero()};
    for (; j + 4 * Wide::lanes <= settled; j += 4 * Wide::lanes) {
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) {
            const int at = j + i * Wide::lanes;
            sums[i] = mulAdd(load<T, Wide::bytes>(x + at), load<T, Wide::bytes>(g + at), sums[i]);
        }
    }
    // At most three more; a constant count keeps the sums in registers.
#pragma GCC unroll 3
    for (int i = 0; i < 3; ++i) {
        if (j + Wide::lanes > settled) break;
        sums[i] = mulAdd(load<T, Wide::bytes>(x + j), load<T, Wide::bytes>(g + j), sums[i]);
        j += Wide::lanes;
    }
    T tail = 0;
    if (Wide::bytes > 16 && j + Small::lanes <= settled) {
        tail = laneSum(load<T, 16>(x + j) * load<T, 16>(g + j));
        j += Small::lanes;
    }
    for (; j < settled; ++j) tail = mulAdd(x[j], g[j], tail);
    T fresh = newest * g[n - 1];
    for (int i = settled; i < n - 1; ++i) fresh = mulAdd(x[i], g[i], fresh);
    return laneSum((sums[0] + sums[1]) + (sums[2] + sums[3])) + (tail + fresh);
}

// ---- complex ------------------------------------------------------------------------------------

// Sums of the even and of the odd lanes.
template <class T, int Bytes>
inline void addPairs(Vec<T, Bytes> v, T& even, T& odd) {
    if constexpr (Bytes > 16) {
        addPairs(lowHalf(v) + highHalf(v), even, odd);
    } else {
        for (int lane = 0; lane < Vec<T, Bytes>::lanes; lane += 2) {
            even += v[lane];
            odd += v[lane + 1];
        }
    }
}

// sum of x[j] * g[j], j from 0 to n - 2, plus newest * g[n - 1]. Products by lanes with (re, im)
// and with (im, re) of a tap: the real part is the difference of the sums of re*re and im*im, the
// imaginary part the sum of the cross terms. As in the real sum, the samples that the calls before
// have only just stored are taken singly.
template <Complex C>
inline C windowSum(const C* x, C newest, const C* g, int n) {
    using T = Part<C>;
    constexpr int values = Vec<T>::lanes / 2;
    constexpr int kFresh = 4;
    C real = {newest.re * g[n - 1].re, newest.im * g[n - 1].im};
    C cross = {newest.re * g[n - 1].im, newest.im * g[n - 1].re};
    int j = 0;
    if (n - kFresh >= 2 * values) {
        Vec<T> reals[2] = {Vec<T>::zero(), Vec<T>::zero()},
               crosses[2] = {Vec<T>::zero(), Vec<T>::zero()};
        for (; j + 2 * values <= n - kFresh; j += 2 * values) {
#pragma GCC unroll 2
            for (int i = 0; i < 2; ++i) {
                const Vec<T> samples = load<T>(parts(x + j + i * values)),
                             taps = load<T>(parts(g + j + i * values));
                reals[i] = mulAdd(samples, taps, reals[i]);
                crosses[i] = mulAdd(samples, swapParts(taps), crosses[i]);
            }
        }
        addPairs(reals[0] + reals[1], real.re, real.im);
        addPairs(crosses[0] + crosses[1], cross.re, cross.im);
    }
    for (; j < n - 1; ++j) {
        real.re = mulAdd(x[j].re, g[j].re, real.re);
        real.im = mulAdd(x[j].im, g[j].im, real.im);
        cross.re = mulAdd(x[j].re, g[j].im, cross.re);
        cross.im = mulAdd(x[j].im, g[j].re, cross.im);
    }
    return {real.re - real.im, cross.re + cross.im};
}

}  // namespace vlq::fir
