// The sum over one window of complex samples.
#pragma once

#include "filter/common/element.h"
#include "filter/fir/single_kernels.h"
#include "frame/simd/complex.h"

namespace vlq::fir {

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
// and with (im, re) of a tap: the real part is the difference of the first ones' sums, the
// imaginary part the sum of the others'. As in the real sum, the samples that the calls before
// have only just stored are taken singly.
template <Complex C>
inline C windowSum(const C* x, C newest, const C* g, int n) {
    using T = Part<C>;
    constexpr int values = Vec<T>::lanes / 2;
    constexpr int kFresh = 4;
    C straight = {newest.re * g[n - 1].re, newest.im * g[n - 1].im};
    C crossed = {newest.re * g[n - 1].im, newest.im * g[n - 1].re};
    int j = 0;
    if (n - kFresh >= 2 * values) {
        Vec<T> straights[2] = {Vec<T>::zero(), Vec<T>::zero()},
               crosses[2] = {Vec<T>::zero(), Vec<T>::zero()};
        for (; j + 2 * values <= n - kFresh; j += 2 * values) {
#pragma GCC unroll 2
            for (int i = 0; i < 2; ++i) {
                const Vec<T> samples = load<T>(parts(x + j + i * values)),
                             taps = load<T>(parts(g + j + i * values));
                straights[i] = mulAdd(samples, taps, straights[i]);
                crosses[i] = mulAdd(samples, swapParts(taps), crosses[i]);
            }
        }
        addPairs(straights[0] + straights[1], straight.re, straight.im);
        addPairs(crosses[0] + crosses[1], crossed.re, crossed.im);
    }
    for (; j < n - 1; ++j) {
        straight.re = mulAdd(x[j].re, g[j].re, straight.re);
        straight.im = mulAdd(x[j].im, g[j].im, straight.im);
        crossed.re = mulAdd(x[j].re, g[j].im, crossed.re);
        crossed.im = mulAdd(x[j].im, g[j].re, crossed.im);
    }
    return {straight.re - straight.im, crossed.re + crossed.im};
}

}  // namespace vlq::fir
