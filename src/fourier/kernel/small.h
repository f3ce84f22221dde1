// Transforms of up to 32 values, interleaved ones of up to 128, straight-line: everything is read
// before anything is written, and every factor is a literal.
#pragma once

#include "fourier/kernel/passes.h"
#include "fourier/kernel/roots.h"
#include "fourier/kernel/small_interleaved.h"

namespace vlq::fft {

// Twiddles of a last radix-4 pass over N = 4 * span values, in vectors of B bytes.
template <class T, int B, int span>
struct LastTwiddles {
    static constexpr int lanes = B / static_cast<int>(sizeof(T));
    alignas(64) T values[2 * 3 * span];
};

template <class T, int B, int span>
constexpr LastTwiddles<T, B, span> lastTwiddles() {
    LastTwiddles<T, B, span> table{};
    constexpr int lanes = B / static_cast<int>(sizeof(T));
    T* next = table.values;
    for (int k = 0; k < span; k += lanes) {
        for (int p = 1; p < 4; ++p) {
            for (int lane = 0; lane < lanes; ++lane) {
                const int turn = p * (k + splitLane<T, B>(lane)) * (32 / span);
                next[lane] = static_cast<T>(cosine128(turn));
                next[lanes + lane] = static_cast<T>(cosine128(turn + 32));  // minus the sine
            }
            next += 2 * lanes;
        }
    }
    return table;
}
template <class T, int B, int span>
inline constexpr LastTwiddles<T, B, span> kLastTwiddles = lastTwiddles<T, B, span>();

template <class View>
inline constexpr bool kIsInterleaved = false;
template <class P, bool exchanged>
inline constexpr bool kIsInterleaved<Interleaved<P, exchanged>> = true;

template <class T, int order, bool scaled, class In, class Out>
void straightLine(In src, Out dst, T scale) {
    constexpr int n = 1 << order;
    if constexpr (order <= 3) {
        Value<T> x[n];
        unroll<n>([&](auto i) __attribute__((always_inline)) { x[i] = src.one(i); });
        if constexpr (order == 1) {
            const Value<T> sum = x[0] + x[1];
            x[1] = x[0] - x[1];
            x[0] = sum;
        } else if constexpr (order == 2) {
            dft4(x[0], x[1], x[2], x[3]);
        } else if constexpr (order == 3) {
            dft8(x, kEightPoint<T>);
        }
        unroll<n>([&](auto i) __attribute__((always_inline)) {
            dst.putOne(i, scaled ? times(x[i], scale) : x[i]);
        });
    } else if constexpr (kIsInterleaved<In>) {
        transformInterleaved<T, order, In::kExchanged, scaled>(src.p, dst.p, scale);
    } else {
        constexpr int first = order == 4 ? 4 : 8;
        constexpr int B = kVecBytes >= 32 && sizeof(T) == 8 ? 32 : 16;  // four lanes at most
        alignas(64) T w[2 * n];
        firstPass<T, B, first>(src, Blocks<T>{w}, n, kEightPoint<T>);
        laterPass<T, B, 4, scaled>(Blocks<T>{w}, dst, n, first, kLastTwiddles<T, B, first>.values,
                                   scale);
    }
}

}  // namespace vlq::fft
