#pragma once
#include <cmath>
#include "fourier/kernel/complex.h"
#include "fourier/kernel/views.h"
namespace vlq::fft {
template <class T, Direction direction>
void largeTransform(int order, const FloatingRecord<T>& record, const T* srcRe, const T* srcIm, T* re, T* im, std::ptrdiff_t step, bool scaled) {
    const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
    if (srcRe != re) for (std::ptrdiff_t i = 0; i < n; ++i) { putScalar(re + i*step, scalarAt(srcRe + i*step)); putScalar(im + i*step, scalarAt(srcIm + i*step)); }
    const T scale = scaled ? record.normFactor : T(1);
    for (std::ptrdiff_t i = 1, j = 0; i < n; ++i) {
        std::ptrdiff_t bit = n >> 1;
        for (; j & bit; bit >>= 1) j ^= bit;
        j ^= bit;
        if (i >= j) continue;
        for (T* a : {re, im}) {
            const T x = scalarAt(a + i * step), y = scalarAt(a + j * step);
            putScalar(a + i * step, y);
            putScalar(a + j * step, x);
        }
    }
    for (std::ptrdiff_t span = 1; span < n; span *= 2) {
        for (std::ptrdiff_t k = 0; k < span; ++k) {
            const double angle = -3.14159265358979323846 * static_cast<double>(k) / static_cast<double>(span);
            T c = static_cast<T>(std::cos(angle)), s = static_cast<T>(std::sin(angle));
            if (direction == Direction::inverse) s = -s;
            for (std::ptrdiff_t g = k; g < n; g += 2 * span) {
                T *ar = re + g * step, *ai = im + g * step, *br = ar + span * step, *bi = ai + span * step;
                const T xr = scalarAt(br) * c - scalarAt(bi) * s, xi = scalarAt(br) * s + scalarAt(bi) * c;
                const T yr = scalarAt(ar), yi = scalarAt(ai);
                putScalar(ar, yr + xr);
                putScalar(ai, yi + xi);
                putScalar(br, yr - xr);
                putScalar(bi, yi - xi);
            }
        }
    }
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        putScalar(re + i * step, scalarAt(re + i * step) * scale);
        putScalar(im + i * step, scalarAt(im + i * step) * scale);
    }
}
}
