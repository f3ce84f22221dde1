// Plain references of the real FFT: spectra in extended precision in each layout, and the sizes of
// a spec from their formulas.
#pragma once

#include "fourier/fft_complex_ref.h"

namespace vlqtest {

enum class Layout { ccs, pack, perm };

// Elements of the spectrum of n points.
inline std::size_t layoutSize(Layout layout, std::size_t n) {
    return layout != Layout::ccs ? n : n > 1 ? n + 2 : 2;
}

// Index of the real part of spectrum value k of n points, for k up to n / 2; the imaginary part,
// where it is stored, follows.
inline std::size_t indexOf(Layout layout, std::size_t k, std::size_t n) {
    if (layout == Layout::ccs) return 2 * k;
    if (k == 0) return 0;
    if (layout == Layout::perm) return 2 * k == n ? 1 : 2 * k;
    return 2 * k - 1;
}

// The first half of a spectrum in a layout, multiplied by `factor`.
inline std::vector<long double> layOut(Layout layout, const std::vector<Extended>& spectrum,
                                       long double factor) {
    const std::size_t n = spectrum.size();
    std::vector<long double> values(layoutSize(layout, n));
    for (std::size_t k = 0; k <= n / 2; ++k) {
        const std::size_t at = indexOf(layout, k, n);
        values[at] = factor * spectrum[k].real();
        if (k > 0 && 2 * k < n) values[at + 1] = factor * spectrum[k].imag();
    }
    return values;
}

template <class T>
std::vector<Extended> realDftRef(const std::vector<T>& x) {
    return dft(std::vector<Extended>(x.begin(), x.end()), -1);
}

inline std::vector<long double> realSpectrum(const std::vector<long double>& x, Layout layout) {
    return layOut(layout, realDftRef(x), 1);
}

// The unscaled inverse. Imaginary parts of the two real terms are ignored.
inline std::vector<long double> realSignal(const std::vector<long double>& y, Layout layout,
                                           std::size_t n) {
    std::vector<Extended> spectrum(n);
    for (std::size_t k = 0; k <= n / 2; ++k) {
        const std::size_t at = indexOf(layout, k, n);
        const bool pair = k > 0 && 2 * k < n;
        spectrum[k] = Extended(y[at], pair ? y[at + 1] : 0);
        if (pair) spectrum[n - k] = std::conj(spectrum[k]);
    }
    const auto signal = dft(spectrum, 1);
    std::vector<long double> x(n);
    for (std::size_t i = 0; i < n; ++i) x[i] = signal[i].real();
    return x;
}

// Sizes of a real spec: those of the complex one of half the length and of the recombination
// tables.
inline Sizes realSizes(std::size_t element, int order) {
    const bool single = element == 4;
    if (order <= (single ? 4 : 5)) return {single ? 148 : 152, 0, 0};
    const std::int64_t n = std::int64_t{1} << order;
    Sizes sizes{};
    if (order >= 7) sizes = complexSizes(element, order - 1);
    const std::int64_t factors = single ? (order < 19 ? 4 * n + 126 : n / 256 + 16510)
                                        : (order < 18 ? 8 * n + 126 : n / 64 + 16510);
    sizes.spec += factors / 128 * 128 + 192;
    if (order >= 11) sizes.init += (single ? n + 67 : 2 * n + 71) / 64 * 64 + 64;
    return sizes;
}

}  // namespace vlqtest
