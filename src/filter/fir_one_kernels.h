// The sum over one window of samples.
#pragma once

#include "filter/fir_direct_kernels.h"

namespace vlq::fir {

template <class T, int Bytes>
inline T laneSum(Vec<T, Bytes> v) {
    if constexpr (Bytes > 16) {
        return laneSum(lowHalf(v) + highHalf(v));
    } else {
        T sum = v[0];
        for (int lane = 1; lane < Vec<T, Bytes>::lanes; ++lane) sum += v[lane];
        return sum;
    }
}

// sum of x[j] * g[j], j from 0 to n - 2, plus newest * g[n - 1]. The newest sample comes in a
// register: it has just been stored, and a vector load across a fresh store waits for the cache.
template <class T>
inline T windowSum(const T* x, T newest, const T* g, int n) {
    constexpr int lanes = Vec<T>::lanes;
    constexpr int kShort = 12;  // a shorter window is one chain in its own order
    const int stored = n - 1;
    T sum = 0;
    int j = 0;
    if (n >= kShort) {
        Vec<T> sums[4] = {Vec<T>::zero(), Vec<T>::zero(), Vec<T>::zero(), Vec<T>::zero()};
        for (; j + 4 * lanes <= stored; j += 4 * lanes) {
#pragma GCC unroll 4
            for (int i = 0; i < 4; ++i) {
                sums[i] = mulAdd(load<T>(x + j + i * lanes), load<T>(g + j + i * lanes), sums[i]);
            }
        }
        for (; j + lanes <= stored; j += lanes) sums[0] = mulAdd(load<T>(x + j), load<T>(g + j), sums[0]);
        if constexpr (kVecBytes == 64) {  // masked loads are cheap there
            sums[1] = mulAdd(loadPartial<T>(x + j, stored - j), loadPartial<T>(g + j, stored - j), sums[1]);
            j = stored;
        }
        sum = laneSum((sums[0] + sums[1]) + (sums[2] + sums[3]));
    }
    for (; j < stored; ++j) sum = mulAdd(x[j], g[j], sum);
    return mulAdd(newest, g[stored], sum);
}

}  // namespace vlq::fir
