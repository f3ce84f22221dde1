// Real transforms of up to 32 points, straight-line: every loop below has constant bounds and every
// factor is a literal. Data in registers or locals; spectra in Perm form: the two real terms, then
// real and imaginary parts of values 1 to N/2 - 1.
#pragma once

#include "fourier/kernel/small.h"

namespace vlq::fft {

// spectrum = DFT of x[0], x[stride], ... , decimated in time: X[k] = E[k] + w^k O[k] and its
// mirror.
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

// x[0], x[stride], ... = inverse DFT of the spectrum, unscaled: realForward read backwards.
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

}  // namespace vlq::fft
