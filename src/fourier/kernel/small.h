// Transforms of up to 32 values, straight-line: everything is read before anything is written, and
// every factor is a literal.
#pragma once

#include "fourier/kernel/passes.h"

namespace vlq::fft {

// Twiddles of a last radix-4 pass over N = 4 * span values, in vectors of B bytes.
template <class T, int B, int span>
struct LastTwiddles {
    static constexpr int lanes = B / static_cast<int>(sizeof(T));
    alignas(64) T values[2 * 3 * span];
};

// cos(2 pi k / 32)
inline constexpr double kCosine32[9] = {1.0,
                                        0.98078528040323044913,
                                        0.92387953251128675613,
                                        0.83146961230254523708,
                                        0.70710678118654752440,
                                        0.55557023301960222474,
                                        0.38268343236508977173,
                                        0.19509032201612826785,
                                        0.0};
constexpr double cosine32(int k) {
    k &= 31;
    if (k > 16) k = 32 - k;
    return k > 8 ? -kCosine32[16 - k] : kCosine32[k];
}

template <class T, int B, int span>
constexpr LastTwiddles<T, B, span> lastTwiddles() {
    LastTwiddles<T, B, span> table{};
    constexpr int lanes = B / static_cast<int>(sizeof(T));
    T* next = table.values;
    for (int k = 0; k < span; k += lanes) {
        for (int p = 1; p < 4; ++p) {
            for (int lane = 0; lane < lanes; ++lane) {
                const int turn = p * (k + splitLane<T, B>(lane)) * (8 / span);
                next[lane] = static_cast<T>(cosine32(turn));
                next[lanes + lane] = static_cast<T>(cosine32(turn + 8));  // minus the sine
            }
            next += 2 * lanes;
        }
    }
    return table;
}
template <class T, int B, int span>
inline constexpr LastTwiddles<T, B, span> kLastTwiddles = lastTwiddles<T, B, span>();

template <class T, bool scaled, class In, class Out>
void straightLine(int order, In src, Out dst, T scale) {
    auto put = [&](int i, Value<T> v) __attribute__((always_inline)) { dst.putOne(i, scaled ? times(v, scale) : v); };
    switch (order) {
        case 0: put(0, src.one(0)); break;
        case 1: {
            const Value<T> a = src.one(0), b = src.one(1);
            put(0, a + b);
            put(1, a - b);
            break;
        }
        case 2: {
            Value<T> a = src.one(0), b = src.one(1), c = src.one(2), d = src.one(3);
            dft4(a, b, c, d);
            put(0, a);
            put(1, b);
            put(2, c);
            put(3, d);
            break;
        }
        case 3: {
            Value<T> x[8];
            unroll<8>([&](auto i) __attribute__((always_inline)) { x[i] = src.one(i); });
            dft8(x, kEightPoint<T>);
            unroll<8>([&](auto i) __attribute__((always_inline)) { put(i, x[i]); });
            break;
        }
        case 4: {
            alignas(64) T w[32];
            firstPass<T, 16, 4>(src, Blocks<T>{w}, 16, kRootHalf<T>);
            laterPass<T, 16, 4, scaled>(Blocks<T>{w}, dst, 16, 4, kLastTwiddles<T, 16, 4>.values, scale);
            break;
        }
        default: {
            alignas(64) T w[64];
            firstPass<T, 16, 8>(src, Blocks<T>{w}, 32, kEightPoint<T>);
            laterPass<T, 16, 4, scaled>(Blocks<T>{w}, dst, 32, 8, kLastTwiddles<T, 16, 8>.values, scale);
        }
    }
}

}  // namespace vlq::fft
