// Real transforms of 32 and 64 points on registers of interleaved values: the complex transform of
// half the length, and the recombination with every factor a literal.
#pragma once

#include "fourier/kernel/real_recombine.h"
#include "fourier/kernel/small_interleaved.h"

namespace vlq::fft {

// With A = Z[k] and B = conj Z[H-k] the result is (A + B) / 2 + turn * (A - B), turn = -i w / 2 and
// w = exp(-2 pi i k / N), forward; A + B + turn * (A - B), turn = i conj w, inverse. Parts of
// `turn` as of InnerTwiddles.
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
        const double cosine = cosine128(turn), sine = -cosine128(turn + 32);
        t.re[2 * k] = t.re[2 * k + 1] = static_cast<T>(forward ? -sine / 2 : -sine);
        t.im[2 * k] = static_cast<T>(forward ? cosine / 2 : -cosine);
        t.im[2 * k + 1] = static_cast<T>(forward ? -cosine / 2 : cosine);
    }
    return t;
}
template <class T, int order, Direction direction>
inline constexpr RealTurns<T, order, direction> kRealTurns = realTurns<T, order, direction>();

// The sign bit of the imaginary parts, and all bits of the first value.
template <class T>
struct RealMasks {
    alignas(64) T conjugate[8] = {T(0), -T(0), T(0), -T(0), T(0), -T(0), T(0), -T(0)};
    alignas(64) BitsOf<T> first[8] = {-1, -1, 0, 0, 0, 0, 0, 0};
};
template <class T>
inline constexpr RealMasks<T> kRealMasks;

// All H values of one side into those of the other. The first holds the mean and the Nyquist term
// on the spectrum's side: its parts become their own sum and difference, both ways.
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

// Real transform of 2^order points to and from Perm form, order 5 or 6. src may be dst.
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
