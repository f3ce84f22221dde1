// The middle step of filtering a real signal by transforms. The N samples are transformed as
// z[m] = x[2m] + i x[2m+1], with spectrum Z of H = N/2 values. With X the spectrum of the impulse
// response, that of the filtered signal is
//
//     Z'[k] = (s - d sin t) Z[k] + i d cos t conj Z[H-k],    t = 2 pi k / N
//     2 s = X[k] + conj X[H-k],  2 d = X[k] - conj X[H-k]
//
// which is the product of the real spectra and the recombinations before and after it in one pass,
// from both ends towards the middle. At H-k, s and d are replaced by conj s and -conj d.
#pragma once

#include "fourier/kernel/real_recombine.h"

namespace vlq::fft {

// The factors 2/N s and 2/N d from a spectrum in Perm layout; scale = 1/N, so that the inverse
// transform need not be scaled. A block is one vector each of Re s, Im s, Re d, Im d for
// consecutive k from 1 to H/2, in the lane order of loadSplit. At H/2, the last lane, s is real and
// d imaginary; the unused two elements hold the factors of value 0, both real.
template <class T>
inline void filterFactors(int order, T scale, const T* perm, T* factors) {
    constexpr int lanes = Vec<T>::lanes;
    const std::ptrdiff_t half = std::ptrdiff_t{1} << (order - 1);
    T* next = factors;
    for (std::ptrdiff_t group = 1; group < half / 2; group += lanes, next += 4 * lanes) {
        for (int lane = 0; lane < lanes; ++lane) {
            const std::ptrdiff_t k = group + splitLane<T>(lane);
            const T* front = perm + 2 * k;
            const T* back = perm + 2 * (half - k);
            next[lane] = scale * (front[0] + back[0]);
            next[lane + lanes] = scale * (front[1] - back[1]);
            next[lane + 2 * lanes] = scale * (front[0] - back[0]);
            next[lane + 3 * lanes] = scale * (front[1] + back[1]);
        }
    }
    factors[2 * half - 1 - 2 * lanes] = scale * (perm[0] + perm[1]);
    factors[2 * half - 1 - lanes] = scale * (perm[0] - perm[1]);
}

// The factors of one block.
template <class T>
struct FilterFactors {
    Split<T, kVecBytes> s, d;
    explicit FilterFactors(const T* f)
        : s{loadAligned<T>(f), loadAligned<T>(f + Vec<T>::lanes)},
          d{loadAligned<T>(f + 2 * Vec<T>::lanes), loadAligned<T>(f + 3 * Vec<T>::lanes)} {}
};

// a: values k, b: values H-k, lane by lane; both are replaced by their results. The angles are cos
// t and -sin t.
template <class T>
[[gnu::always_inline]] inline void filterStep(Split<T, kVecBytes>& a, Split<T, kVecBytes>& b,
                                              FilterFactors<T> f, const T* angles) {
    using V = Vec<T>;
    using S = Split<T, kVecBytes>;
    const V cosine = loadAligned<T>(angles), sine = loadAligned<T>(angles + V::lanes);
    const S p{mulAdd(sine, f.d.re, f.s.re), mulAdd(sine, f.d.im, f.s.im)};
    const S q{mulSubFrom(sine, f.d.re, f.s.re), mulSubFrom(sine, f.d.im, f.s.im)};
    const S g{cosine * f.d.re, cosine * f.d.im};
    // p a + i g conj b, and the conjugate of q conj b - i g a
    const S front{mulSubFrom(g.im, b.re, mulAdd(g.re, b.im, mulSubFrom(p.im, a.im, p.re * a.re))),
                  mulAdd(g.im, b.im, mulAdd(g.re, b.re, mulAdd(p.im, a.re, p.re * a.im)))};
    b = {mulAdd(g.im, a.re, mulAdd(g.re, a.im, mulAdd(q.im, b.im, q.re * b.re))),
         mulSubFrom(g.im, a.im, mulAdd(g.re, a.re, mulSubFrom(q.im, b.re, q.re * b.im)))};
    a = front;
}

// Values 0 and H/2, which have no partner, as they are before the pass.
template <class T>
struct LoneValues {
    T startRe, startIm, middleRe, middleIm;
    LoneValues(const T* re, const T* im, std::ptrdiff_t middle)
        : startRe(re[0]), startIm(im[0]), middleRe(re[middle]), middleIm(im[middle]) {}
    void put(const T* factors, std::ptrdiff_t half, T* re, T* im, std::ptrdiff_t middle) const {
        constexpr int lanes = Vec<T>::lanes;
        const T* last = factors + 2 * half - 4 * lanes + lanes - 1;
        const T s0 = last[lanes], d0 = last[2 * lanes], s = last[0], d = last[3 * lanes];
        re[0] = s0 * startRe + d0 * startIm;
        im[0] = s0 * startIm + d0 * startRe;
        re[middle] = s * middleRe + d * middleIm;
        im[middle] = s * middleIm - d * middleRe;
    }
};

// Z, H interleaved values, in place.
template <class T>
inline void filterInterleaved(int order, const T* angles, const T* factors, T* z) {
    constexpr int lanes = Vec<T>::lanes;
    const std::ptrdiff_t half = std::ptrdiff_t{1} << (order - 1);
    const LoneValues<T> lone(z, z + 1, half);
    T* front = z + 2;
    T* back = z + 2 * (half - lanes);
    for (const T* f = factors; front < z + half;
         front += 2 * lanes, back -= 2 * lanes, f += 4 * lanes, angles += 2 * lanes) {
        auto a = loadSplit<T>(front), b = loadSplitBackward<T>(back);
        filterStep(a, b, FilterFactors<T>(f), angles);
        storeSplit(front, a);
        storeSplitBackward(back, b);
    }
    lone.put(factors, half, z, z + 1, half);
}

// The same with the values in Blocks. A block of the lower half begins one value too early for its
// partner: the pass works on all but its first value, and the first of the next block.
template <class T>
inline void filterBlocks(int order, const T* angles, const T* factors, T* z) {
    using S = Split<T, kVecBytes>;
    constexpr int lanes = Vec<T>::lanes;
    const std::ptrdiff_t half = std::ptrdiff_t{1} << (order - 1);
    const LoneValues<T> lone(z, z + lanes, half);
    auto read = [](const T* p) { return S{load<T>(p), load<T>(p + lanes)}; };
    auto write = [](T* p, S v) {
        store(p, v.re);
        store(p + lanes, v.im);
    };
    T* back = z + 2 * (half - lanes);
    S block = read(z), before = block;
    for (T* front = z; front < z + half;
         front += 2 * lanes, back -= 2 * lanes, factors += 4 * lanes, angles += 2 * lanes) {
        const S next = read(front + 2 * lanes), last = read(back);
        S a{laterRun(block.re, next.re), laterRun(block.im, next.im)};
        S b{reverseRun(last.re), reverseRun(last.im)};
        filterStep(a, b, FilterFactors<T>(factors), angles);
        a = {lastToFront(a.re), lastToFront(a.im)};
        write(front, {withFirst(a.re, before.re), withFirst(a.im, before.im)});
        write(back, {reverseRun(b.re), reverseRun(b.im)});
        before = a;
        block = next;
    }
    lone.put(factors - 2 * half, half, z, z + lanes, half);
}

}  // namespace vlq::fft
