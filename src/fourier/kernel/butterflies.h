// Short DFTs on vectors of complex values, forward. The inverse transform runs on these as well,
// with real and imaginary parts exchanged on the way in and out.
#pragma once

#include <utility>

#include "frame/simd/ops.h"
#include "frame/simd/split.h"

namespace vlq::fft {

// body(integral_constant) for 0 to count - 1, unrolled for certain.
template <int count, class Body>
[[gnu::always_inline]] inline void unroll(Body&& body) {
    [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) {
        (body(std::integral_constant<int, i>{}), ...);
    }
    (std::make_integer_sequence<int, count>{});
}

// Complex vectors, and complex scalars in straight-line code.
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

// 1/sqrt(2). The eight-point factor that begins an odd order is one unit above the rounded value
// in single precision, in every build.
template <class T>
inline constexpr T kRootHalf = T(0.70710678118654752440);
template <class T>
inline constexpr T kEightPoint = sizeof(T) == 4 ? T(0x1.6a09e8p-1) : T(0.70710678118654752440);

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
    // The odd half's values 1 and 3 with their eighth turns; of the latter minus the imaginary
    // part.
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
