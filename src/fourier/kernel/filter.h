// The step in the middle of a real filter by transforms. A real signal of N points goes through the
// complex transform of half the length, H = N/2, as z[m] = x[2m] + i x[2m+1], with the spectrum Z;
// where X is the spectrum of the impulse response, Z of the filtered signal is
//
//     Z'[k] = (s - d sin t) Z[k] + i d cos t conj Z[H-k],    t = 2 pi k / N
//     2 s = X[k] + conj X[H-k],  2 d = X[k] - conj X[H-k]
//
// which is the product of the real spectra with the recombinations before and after it, in one pass
// that goes from both ends towards the middle. At H-k stand conj s and -conj d.
#pragma once

#include "fourier/kernel/real_recombine.h"

namespace vlq::fft {

// Below, every block of factors is a vector each of Re s, Im s, Re d, Im d of consecutive k, from
// k = 1 to H/2. Value H/2 has a real s and an imaginary d; the other parts of its lane, the last
// one, hold the factors of value 0, both real.
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

// z: H interleaved values of Z, in place.
template <class T>
inline void filterPass(int order, const FloatingRecord<T>& record, const T* factors, T* z) {
    using V = Vec<T>;
    using S = Split<T, kVecBytes>;
    constexpr int lanes = V::lanes;
    const std::ptrdiff_t half = std::ptrdiff_t{1} << (order - 1);
    const T* angles = record.realTwiddleInv;  // cos t and -sin t
    const T* last = factors + 2 * half - 1 - 3 * lanes;
    T first[2], middle[2];
    std::memcpy(first, z, sizeof first);
    std::memcpy(middle, z + half, sizeof middle);
    T* front = z + 2;
    T* back = z + 2 * (half - lanes);
    for (const T* f = factors; front < z + half; front += 2 * lanes, back -= 2 * lanes, f += 4 * lanes, angles += 2 * lanes) {
        const S a = loadSplit<T>(front), b = loadSplitBackward<T>(back);
        const V c = load<T>(angles), n = load<T>(angles + lanes);
        const S s{load<T>(f), load<T>(f + lanes)}, d{load<T>(f + 2 * lanes), load<T>(f + 3 * lanes)};
        const S p{mulAdd(n, d.re, s.re), mulAdd(n, d.im, s.im)};
        const S q{mulSubFrom(n, d.re, s.re), mulSubFrom(n, d.im, s.im)};
        const S g{c * d.re, c * d.im};
        // a p + i g conj b, and the conjugate of q conj b - i g a
        const S front2{mulSubFrom(g.im, b.re, mulAdd(g.re, b.im, mulSubFrom(p.im, a.im, p.re * a.re))),
                       mulAdd(g.im, b.im, mulAdd(g.re, b.re, mulAdd(p.im, a.re, p.re * a.im)))};
        const S back2{mulAdd(g.im, a.re, mulAdd(g.re, a.im, mulAdd(q.im, b.im, q.re * b.re))),
                      mulSubFrom(g.im, a.im, mulAdd(g.re, a.re, mulSubFrom(q.im, b.re, q.re * b.im)))};
        storeSplit(front, front2);
        storeSplitBackward(back, back2);
    }
    const T s0 = last[lanes], d0 = last[2 * lanes];
    const T start[2] = {s0 * first[0] + d0 * first[1], s0 * first[1] + d0 * first[0]};
    const T sm = last[0], dm = last[3 * lanes];  // s - d = sm - i dm
    const T centre[2] = {sm * middle[0] + dm * middle[1], sm * middle[1] - dm * middle[0]};
    std::memcpy(z, start, sizeof start);
    std::memcpy(z + half, centre, sizeof centre);
}

}  // namespace vlq::fft
