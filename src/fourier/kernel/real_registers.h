// Real transforms of 32 and 64 points with all values in registers between load and store: the
// complex transform of half the length and the recombination, on vectors of 16 bytes.
#pragma once

#include "fourier/kernel/real_recombine.h"
#include "fourier/kernel/small.h"

namespace vlq::fft {

// A pass's view of values in registers; `exchanged` as in Interleaved.
template <class T, bool exchanged>
struct Registers {
    Split<T, 16>* z;
    static constexpr int lanes = Vec<T, 16>::lanes;
    template <int B>
    [[gnu::always_inline]] Split<T, B> get(std::ptrdiff_t i) const {
        const Split<T, 16> v = z[i / lanes];
        return exchanged ? Split<T, 16>{v.im, v.re} : v;
    }
    template <int B>
    [[gnu::always_inline]] void put(std::ptrdiff_t i, Split<T, B> v) const {
        z[i / lanes] = exchanged ? Split<T, 16>{v.im, v.re} : v;
    }
};

// Values `from v` and `from next` on, turned: see backwardAcross.
template <class T>
[[gnu::always_inline]] inline Split<T, 16> backwardAcross(Split<T, 16> v, Split<T, 16> next) {
    return {vlq::backwardAcross(v.re, next.re), vlq::backwardAcross(v.im, next.im)};
}

// z holds H values, the first of them the mean and the Nyquist term as its parts on the spectrum's
// side. The formulas hold for k = 0 as well, where value H is value 0 of the complex transform and
// the Nyquist term of the real one.
template <Direction direction, class T, int count>
[[gnu::always_inline]] inline void recombineRegisters(Split<T, 16> (&z)[count], const T* factors) {
    using V = Vec<T, 16>;
    using S = Split<T, 16>;
    constexpr int lanes = V::lanes, half = count / 2;
    constexpr bool forward = direction == Direction::forward;
    S back[half], middle = z[half];
    unroll<half>([&](auto j) __attribute__((always_inline)) {
        S next = j == 0 ? z[0] : z[(count - j) % count];
        if constexpr (j == 0 && !forward) next = {z[0].im, V::zero()};
        back[j] = backwardAcross(z[count - 1 - j], next);
    });
    if constexpr (!forward) z[0].im = withFirst(z[0].im, V::zero());
    unroll<half>([&](auto j) __attribute__((always_inline)) {
        recombineStep<direction>(z[j], back[j], loadAligned<T, 16>(factors + 2 * j * lanes),
                                 loadAligned<T, 16>(factors + (2 * j + 1) * lanes));
    });
    if constexpr (forward) z[0].im = withFirst(z[0].im, back[0].re);
    // Value H/2 is its own mirror.
    middle =
        forward ? S{middle.re, -middle.im} : S{middle.re + middle.re, -(middle.im + middle.im)};
    unroll<half>([&](auto j) __attribute__((always_inline)) {
        if constexpr (j + 1 < half)
            z[count - 1 - j] = backwardAcross(back[j], back[(j + 1) % half]);
        else
            z[count - 1 - j] = backwardAcross(back[j], middle);
    });
}

// 2^order complex values in two passes, order 4 or 5; the last one of radix 4.
template <class T, int order, bool scaled, class In, class Out>
[[gnu::always_inline]] inline void twoPasses(In in, Out out, T scale) {
    constexpr int n = 1 << order, first = n / 4;
    Split<T, 16> w[n / Vec<T, 16>::lanes];
    firstPass<T, 16, first>(in, Registers<T, false>{w}, n,
                            first == 8 ? kEightPoint<T> : kRootHalf<T>);
    laterPass<T, 16, 4, scaled>(Registers<T, false>{w}, out, n, first,
                                kLastTwiddles<T, 16, first>.values, scale);
}

// Real transform of 2^order points to and from Perm form, order 5 or 6. src may be dst.
template <class T, int order, Direction direction, bool scaled>
inline void realInRegisters(const FloatingRecord<T>& record, const T* src, T* dst) {
    constexpr int count = (1 << order) / 2 / Vec<T, 16>::lanes;
    Split<T, 16> z[count];
    if constexpr (direction == Direction::forward) {
        twoPasses<T, order - 1, scaled>(Interleaved<const T, false>{src}, Registers<T, false>{z},
                                        record.normFactor);
        recombineRegisters<direction>(z, record.realTwiddleFwd.get());
        unroll<count>([&](auto j) __attribute__((always_inline)) {
            storeSplit(dst + j * (32 / sizeof(T)), z[j]);
        });
    } else {
        unroll<count>([&](auto j) __attribute__((always_inline)) {
            z[j] = loadSplit<T, 16>(src + j * (32 / sizeof(T)));
        });
        recombineRegisters<direction>(z, record.realTwiddleInv.get());
        twoPasses<T, order - 1, scaled>(Registers<T, true>{z}, Interleaved<T, true>{dst},
                                        record.normFactor);
    }
}

}  // namespace vlq::fft
