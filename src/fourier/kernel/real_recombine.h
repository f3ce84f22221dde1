// The step between a real signal's spectrum X, N values, and the half-length complex spectrum Z of
// z[m] = x[2m] + i x[2m+1], H = N/2 values. With w = exp(-2 pi i k / N):
//   X[k] = (Z[k] + conj Z[H-k]) / 2 - i w (Z[k] - conj Z[H-k]) / 2, and the reverse of it.
// Values k and H-k depend only on each other, so the pass goes from both ends towards the middle,
// and may run in place. Value 0 (mean and Nyquist term) is left to the caller.
#pragma once

#include <cstring>

#include "fourier/kernel/complex_transform.h"
#include "fourier/plan/real_plan.h"
#include "frame/simd/ops.h"
#include "frame/simd/split.h"

namespace vlq::fft {

// a: values k, b: values H-k, lane by lane; both are replaced by their results. c = cos / 2 and
// s = (1 - sin) / 2 of 2 pi k / N: with (1 - sin) in place of -sin no sum of real parts is needed.
template <class T, int B>
inline void recombineForward(Split<T, B>& a, Split<T, B>& b, Vec<T, B> c, Vec<T, B> s) {
    const auto dR = a.re - b.re, sI = a.im + b.im;
    const auto p = mulAdd(dR, s, sI * c);
    const auto t = mulSub(sI, s, dR * c);
    const auto aIm = t - b.im, bIm = t - a.im;
    const auto aRe = b.re + p, bRe = a.re - p;
    a = {aRe, aIm};
    b = {bRe, bIm};
}

// c = cos, s = -sin of the same angle. No factor 1/2: the unscaled inverse of N points is twice
// that of H points.
template <class T, int B>
inline void recombineInverse(Split<T, B>& a, Split<T, B>& b, Vec<T, B> c, Vec<T, B> s) {
    const auto dR = a.re - b.re, sR = a.re + b.re;
    const auto sI = a.im + b.im, dI = a.im - b.im;
    const auto q = mulSub(dR, s, sI * c);
    const auto u = mulAdd(dR, c, sI * s);
    a = {sR + q, u + dI};
    b = {sR - q, u - dI};
}

template <Direction direction, class T, int B>
inline void recombineStep(Split<T, B>& a, Split<T, B>& b, Vec<T, B> c, Vec<T, B> s) {
    if constexpr (direction == Direction::forward)
        recombineForward(a, b, c, s);
    else
        recombineInverse(a, b, c, s);
}

// src1 and dst1 point at value 1; quarter = H/2 is a multiple of the lanes. The last vectors of
// both ends hold value H/2, its own mirror: both compute the same result.
template <Direction direction, class T>
inline void recombineBlocks(const T* src1, T* dst1, const T* factors, std::ptrdiff_t quarter) {
    constexpr int lanes = Vec<T>::lanes;
    const T* srcBack = src1 + 2 * (2 * quarter - 1 - lanes);
    T* dstBack = dst1 + 2 * (2 * quarter - 1 - lanes);
    for (std::ptrdiff_t i = 0; i < 2 * quarter; i += 2 * lanes) {
        auto a = loadSplit<T>(src1 + i), b = loadSplitBackward<T>(srcBack - i);
        recombineStep<direction>(a, b, load<T>(factors + i), load<T>(factors + i + lanes));
        storeSplit(dst1 + i, a);
        storeSplitBackward(dstBack - i, b);
    }
}

// The same with each factor the product of a coarse and a fine one: k = fine * block + j.
template <Direction direction, class T>
inline void recombineTwoLevels(const T* src1, T* dst1, const T* factors, std::ptrdiff_t quarter) {
    using V = Vec<T>;
    constexpr int lanes = V::lanes;
    constexpr std::ptrdiff_t fine = std::ptrdiff_t{1} << RealLimits<T>::fineOrder;
    const T* coarse = factors + 2 * fine;
    const T* srcBack = src1 + 2 * (2 * quarter - 1 - lanes);
    T* dstBack = dst1 + 2 * (2 * quarter - 1 - lanes);
    T middle[2];
    std::memcpy(middle, src1 + 2 * (quarter - 1), sizeof middle);
    for (std::ptrdiff_t block = 0; block < 2 * quarter; block += 2 * fine, coarse += 2) {
        const V coarseRe = V::broadcast(coarse[0]), coarseIm = V::broadcast(coarse[1]);
        for (std::ptrdiff_t j = 0; j < 2 * fine; j += 2 * lanes) {
            const auto fineRe = load<T>(factors + j), fineIm = load<T>(factors + j + lanes);
            auto c = mulSubFrom(coarseIm, fineIm, coarseRe * fineRe);
            auto s = mulAdd(coarseRe, fineIm, coarseIm * fineRe);
            if constexpr (direction == Direction::forward) {
                const V half = V::broadcast(T(0.5));
                c *= half;
                s = mulAdd(s, half, half);
            }
            const std::ptrdiff_t i = block + j;
            auto a = loadSplit<T>(src1 + i), b = loadSplitBackward<T>(srcBack - i);
            recombineStep<direction>(a, b, c, s);
            storeSplit(dst1 + i, a);
            storeSplitBackward(dstBack - i, b);
        }
    }
    // At the middle the product of factors is not exactly -i: store the conjugate.
    const T factor = direction == Direction::forward ? T(1) : T(2);
    const T result[2] = {factor * middle[0], -factor * middle[1]};
    std::memcpy(dst1 + 2 * (quarter - 1), result, sizeof result);
}

}  // namespace vlq::fft
