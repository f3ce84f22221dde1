// Short forward DFTs on vectors of complex values, and the constants they need. The inverse
// transform runs on these as well, with real and imaginary parts exchanged on input and output.
#pragma once

#include <utility>

#include "frame/simd/ops.h"
#include "frame/simd/split.h"

namespace vlq::fft {

// body(integral_constant) for 0 to count - 1, always unrolled.
template <int count, class Body>
[[gnu::always_inline]] inline void unroll(Body&& body) {
    [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) {
        (body(std::integral_constant<int, i>{}), ...);
    }
    (std::make_integer_sequence<int, count>{});
}

// ---- complex arithmetic -------------------------------------------------------------------------
// On complex vectors, and on complex scalars in straight-line code.
template <class S>
concept ComplexLike = requires(S s) {
    s.re;
    s.im;
};

template <ComplexLike S>
[[gnu::always_inline]] inline S operator+(S a, S b) {
    return {a.re + b.re, a.im + b.im};
}
template <ComplexLike S>
[[gnu::always_inline]] inline S operator-(S a, S b) {
    return {a.re - b.re, a.im - b.im};
}
template <ComplexLike S>
[[gnu::always_inline]] inline S operator*(S a, S w) {
    return {mulSubFrom(a.im, w.im, a.re * w.re), mulAdd(a.im, w.re, a.re * w.im)};
}
// a - i b, a + i b
template <ComplexLike S>
[[gnu::always_inline]] inline S minusI(S a, S b) {
    return {a.re + b.im, a.im - b.re};
}
template <ComplexLike S>
[[gnu::always_inline]] inline S plusI(S a, S b) {
    return {a.re - b.im, a.im + b.re};
}
template <ComplexLike S, class R>
[[gnu::always_inline]] inline S times(S a, R s) {
    return {a.re * s, a.im * s};
}

// ---- constants ----------------------------------------------------------------------------------
// 1/sqrt(2). The eight-point transform that begins an odd order in single precision multiplies by
// the next float above it, in every build: results are tied to that factor.
template <class T>
inline constexpr T kRootHalf = T(0.70710678118654752440);
template <class T>
inline constexpr T kEightPoint = sizeof(T) == 4 ? T(0x1.6a09e8p-1) : T(0.70710678118654752440);

// The factor of the eight-point transform in the first pass of an order.
template <class T>
constexpr T eightPointFactor(int order) {
    return order % 2 ? kEightPoint<T> : kRootHalf<T>;
}

// cos(2 pi k / 128)
inline constexpr double kCosine128[33] = {1.0,
                                          0.99879545620517239271,
                                          0.99518472667219688624,
                                          0.98917650996478097345,
                                          0.98078528040323044913,
                                          0.9700312531945439926,
                                          0.95694033573220886494,
                                          0.94154406518302077841,
                                          0.92387953251128675613,
                                          0.90398929312344333159,
                                          0.88192126434835502971,
                                          0.8577286100002720699,
                                          0.83146961230254523708,
                                          0.80320753148064490981,
                                          0.77301045336273696081,
                                          0.74095112535495909118,
                                          0.70710678118654752440,
                                          0.67155895484701840063,
                                          0.63439328416364549822,
                                          0.59569930449243334347,
                                          0.55557023301960222474,
                                          0.51410274419322172659,
                                          0.47139673682599764856,
                                          0.42755509343028209432,
                                          0.38268343236508977173,
                                          0.33688985339222005069,
                                          0.29028467725446236764,
                                          0.24298017990326388995,
                                          0.19509032201612826785,
                                          0.14673047445536175166,
                                          0.098017140329560601994,
                                          0.049067674327418014255,
                                          0.0};
constexpr double cosine128(int k) {
    k &= 127;
    if (k > 64) k = 128 - k;
    return k > 32 ? -kCosine128[64 - k] : kCosine128[k];
}
// -sin(2 pi k / 128)
constexpr double minusSine128(int k) { return cosine128(k + 32); }

// ---- transforms ---------------------------------------------------------------------------------
template <class S>
[[gnu::always_inline]] inline void dft4(S& x0, S& x1, S& x2, S& x3) {
    const S u = x0 + x2, v = x0 - x2, p = x1 + x3, d = x1 - x3;
    x0 = u + p;
    x1 = minusI(v, d);
    x2 = u - p;
    x3 = plusI(v, d);
}

template <class S, class R>
[[gnu::always_inline]] inline void dft8(S (&x)[8], R half) {
    dft4(x[0], x[2], x[4], x[6]);
    const S a = x[1] + x[5], b = x[1] - x[5], c = x[3] + x[7], d = x[3] - x[7];
    const S o0 = a + c, o2 = a - c;
    const S e = minusI(b, d), f = plusI(b, d);
    // Values 1 and 3 of the odd half, turned by one and three eighths; o3.im has the opposite sign.
    const S o1{(e.re + e.im) * half, (e.im - e.re) * half};
    const S o3{(f.im - f.re) * half, (f.re + f.im) * half};
    const S y0 = x[0], y1 = x[2], y2 = x[4], y3 = x[6];
    x[0] = y0 + o0;
    x[4] = y0 - o0;
    x[1] = y1 + o1;
    x[5] = y1 - o1;
    x[2] = minusI(y2, o2);
    x[6] = plusI(y2, o2);
    x[3] = S{y3.re + o3.re, y3.im - o3.im};
    x[7] = S{y3.re - o3.re, y3.im + o3.im};
}

}  // namespace vlq::fft
