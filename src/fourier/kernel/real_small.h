// Real transforms of up to 64 points, straight-line: all loops have constant bounds, and all values
// stay in registers or local arrays. Spectra in Perm layout: the two real terms, then real and
// imaginary parts of values 1 to N/2 - 1.
#pragma once

#include "fourier/kernel/real_recombine.h"
#include "fourier/kernel/small.h"

namespace vlq::fft {

// ---- up to 32 points, scalar, by even and odd samples -------------------------------------------
// spectrum = DFT of x[0], x[stride], ... , decimated in time: X[k] = E[k] + w^k O[k], and its
// mirror X[N/2 - k]. T may be a fixed-point type.
template <int order, int stride, class T>
inline void realForward(const T* x, T* spectrum) {
    constexpr int n = 1 << order, half = n / 2;
    if constexpr (order == 0) {
        spectrum[0] = x[0];
    } else {
        T even[half], odd[half];
        realForward<order - 1, 2 * stride>(x, even);
        realForward<order - 1, 2 * stride>(x + stride, odd);
        spectrum[0] = even[0] + odd[0];
        spectrum[1] = even[0] - odd[0];
        if constexpr (order > 1) {
            spectrum[half] = even[1];
            spectrum[half + 1] = -odd[1];
        }
#pragma GCC unroll 8
        for (int k = 1; k < half / 2; ++k) {
            const T c = static_cast<T>(kCosine128[k * (128 / n)]),
                    s = static_cast<T>(kCosine128[32 - k * (128 / n)]);
            const T re = odd[2 * k] * c + odd[2 * k + 1] * s;
            const T im = odd[2 * k + 1] * c - odd[2 * k] * s;
            spectrum[2 * k] = even[2 * k] + re;
            spectrum[2 * k + 1] = even[2 * k + 1] + im;
            spectrum[2 * (half - k)] = even[2 * k] - re;
            spectrum[2 * (half - k) + 1] = im - even[2 * k + 1];
        }
    }
}

// x[0], x[stride], ... = inverse DFT of the spectrum, unscaled: the steps of realForward undone.
template <int order, int stride, class T>
inline void realInverse(const T* spectrum, T* x) {
    constexpr int n = 1 << order, half = n / 2;
    if constexpr (order == 0) {
        x[0] = spectrum[0];
    } else {
        T even[half], odd[half];
        even[0] = spectrum[0] + spectrum[1];
        odd[0] = spectrum[0] - spectrum[1];
        if constexpr (order > 1) {
            even[1] = spectrum[half] + spectrum[half];
            odd[1] = -(spectrum[half + 1] + spectrum[half + 1]);
        }
#pragma GCC unroll 8
        for (int k = 1; k < half / 2; ++k) {
            const T c = static_cast<T>(kCosine128[k * (128 / n)]),
                    s = static_cast<T>(kCosine128[32 - k * (128 / n)]);
            const T re = spectrum[2 * k] - spectrum[2 * (half - k)];
            const T im = spectrum[2 * k + 1] + spectrum[2 * (half - k) + 1];
            even[2 * k] = spectrum[2 * k] + spectrum[2 * (half - k)];
            even[2 * k + 1] = spectrum[2 * k + 1] - spectrum[2 * (half - k) + 1];
            odd[2 * k] = re * c - im * s;
            odd[2 * k + 1] = im * c + re * s;
        }
        realInverse<order - 1, 2 * stride>(even, x);
        realInverse<order - 1, 2 * stride>(odd, x + stride);
    }
}

// ---- 32 and 64 points, split vectors of 16 bytes ------------------------------------------------
// The complex transform of half the length and the recombination, in registers.

// A view of values in registers, for the passes; `exchanged` as in Interleaved.
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

template <class T>
[[gnu::always_inline]] inline Split<T, 16> backwardAcross(Split<T, 16> v, Split<T, 16> next) {
    return {vlq::backwardAcross(v.re, next.re), vlq::backwardAcross(v.im, next.im)};
}

// z holds H = N/2 values; on the spectrum's side the parts of the first are the mean and the
// Nyquist term. The formulas hold for k = 0 as well: value H is value 0 of the complex transform,
// and the Nyquist term of the real one.
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

// The complex transform of order 4 or 5 in two passes, the second of radix 4.
template <class T, int order, bool scaled, class In, class Out>
[[gnu::always_inline]] inline void twoPasses(In in, Out out, T scale) {
    constexpr int n = 1 << order, first = n / 4;
    Split<T, 16> w[n / Vec<T, 16>::lanes];
    firstPass<T, 16, first>(in, Registers<T, false>{w}, n,
                            first == 8 ? kEightPoint<T> : kRootHalf<T>);
    laterPass<T, 16, 4, scaled>(Registers<T, false>{w}, out, n, first,
                                kLastTwiddles<T, 16, first>.values, scale);
}

// Real transform of 2^order points to or from Perm layout, order 5 or 6. src may be dst.
template <class T, int order, Direction direction, bool scaled>
inline void realInRegisters(const FloatSpec<T>& spec, const T* src, T* dst) {
    constexpr int count = (1 << order) / 2 / Vec<T, 16>::lanes;
    Split<T, 16> z[count];
    if constexpr (direction == Direction::forward) {
        twoPasses<T, order - 1, scaled>(Interleaved<const T, false>{src}, Registers<T, false>{z},
                                        spec.normFactor);
        recombineRegisters<direction>(z, spec.realTwiddleFwd.get());
        unroll<count>([&](auto j) __attribute__((always_inline)) {
            storeSplit(dst + j * (32 / sizeof(T)), z[j]);
        });
    } else {
        unroll<count>([&](auto j) __attribute__((always_inline)) {
            z[j] = loadSplit<T, 16>(src + j * (32 / sizeof(T)));
        });
        recombineRegisters<direction>(z, spec.realTwiddleInv.get());
        twoPasses<T, order - 1, scaled>(Registers<T, true>{z}, Interleaved<T, true>{dst},
                                        spec.normFactor);
    }
}

// ---- 32 and 64 points, interleaved vectors ------------------------------------------------------
// The same on vectors of interleaved values, with all factors constant.

// The recombination with A = Z[k] and B = conj Z[H-k]: forward (A + B) / 2 + turn * (A - B) with
// turn = -i w / 2 and w = exp(-2 pi i k / N), inverse A + B + turn * (A - B) with turn = i conj w.
// The turns as operands of a product of interleaved values, as InnerTwiddles.
template <class T, int order, Direction direction>
struct RealTurns {
    alignas(64) T re[1 << order], im[1 << order];
};
template <class T, int order, Direction direction>
constexpr RealTurns<T, order, direction> realTurns() {
    RealTurns<T, order, direction> t{};
    constexpr bool forward = direction == Direction::forward;
    for (int k = 0; k < 1 << (order - 1); ++k) {
        const int turn = k << (7 - order);
        const double cosine = cosine128(turn), sine = -minusSine128(turn);
        t.re[2 * k] = t.re[2 * k + 1] = static_cast<T>(forward ? -sine / 2 : -sine);
        t.im[2 * k] = static_cast<T>(forward ? cosine / 2 : -cosine);
        t.im[2 * k + 1] = static_cast<T>(forward ? -cosine / 2 : cosine);
    }
    return t;
}
template <class T, int order, Direction direction>
inline constexpr RealTurns<T, order, direction> kRealTurns = realTurns<T, order, direction>();

// Masks of the sign bits of the imaginary parts, and of all bits of the first value.
template <class T>
struct RealMasks {
    alignas(64) T conjugate[8] = {T(0), -T(0), T(0), -T(0), T(0), -T(0), T(0), -T(0)};
    alignas(64) BitsOf<T> first[8] = {-1, -1, 0, 0, 0, 0, 0, 0};
};
template <class T>
inline constexpr RealMasks<T> kRealMasks;

// From all H values of one side to those of the other. The parts of the first are the mean and the
// Nyquist term on the spectrum's side: they become their sum and difference, in both directions.
template <Direction direction, int order, class T, int B, int registers>
[[gnu::always_inline]] inline void recombineInterleaved(const Vec<T, B> (&z)[registers],
                                                        Vec<T, B> (&x)[registers]) {
    using V = Vec<T, B>;
    constexpr const auto& turns = kRealTurns<T, order, direction>;
    const V conjugate = loadAligned<T, B>(kRealMasks<T>.conjugate);
    unroll<registers>([&](auto r) __attribute__((always_inline)) {
        const V a = z[r],
                b = valuesBackwardAcross(z[registers - 1 - r], z[(registers - r) % registers]) ^
                    conjugate;
        const V sum = a + b, difference = a - b;
        const V turned =
            mulAdd(difference, loadAligned<T, B>(turns.re + r * V::lanes),
                   exchangeParts(difference) * loadAligned<T, B>(turns.im + r * V::lanes));
        x[r] = direction == Direction::forward ? mulAdd(sum, V::broadcast(T(0.5)), turned)
                                               : sum + turned;
    });
    const auto first = typename V::Mask(loadAligned<BitsOf<T>, B>(kRealMasks<T>.first));
    x[0] = select(first, exchangeParts(z[0]) + (z[0] ^ conjugate), x[0]);
}

// Real transform of 2^order points to or from Perm layout, order 5 or 6. src may be dst.
template <class T, int order, Direction direction, bool scaled>
inline void realInterleaved(const T* src, T* dst, T scale) {
    constexpr int B = kSmallBytes<T, order - 1>;
    using V = Vec<T, B>;
    constexpr int count = V::lanes / 2, registers = (1 << order) / V::lanes;
    const V factor = V::broadcast(scale);
    V z[registers], x[registers];
    if constexpr (direction == Direction::forward) {
        transformRegisters<T, order - 1, false>(
            [&](int i) __attribute__((always_inline)) { return load<T, B>(src + 2 * i); },
            [&](int i, V v)
                __attribute__((always_inline)) { z[i / count] = scaled ? v * factor : v; });
        recombineInterleaved<direction, order>(z, x);
        unroll<registers>([&](auto r)
                              __attribute__((always_inline)) { store(dst + r * V::lanes, x[r]); });
    } else {
        unroll<registers>([&](auto r) __attribute__((always_inline)) {
            z[r] = load<T, B>(src + r * V::lanes);
        });
        recombineInterleaved<direction, order>(z, x);
        transformRegisters<T, order - 1, true>(
            [&](int i) __attribute__((always_inline)) { return x[i / count]; },
            [&](int i, V v)
                __attribute__((always_inline)) { store(dst + 2 * i, scaled ? v * factor : v); });
    }
}

}  // namespace vlq::fft
