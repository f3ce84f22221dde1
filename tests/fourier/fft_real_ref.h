// Plain references: the DFT in long double, the three layouts of a real signal's spectrum, and the
// sizes of a real record.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <vector>

namespace vlqtest {

using Complex = std::complex<long double>;

inline constexpr long double kTwoPi = 6.283185307179586476925286766559L;

// exp(-2 pi i k / n)
inline Complex unitRoot(std::size_t k, std::size_t n) {
    const long double angle = kTwoPi * static_cast<long double>(k % n) / static_cast<long double>(n);
    return {std::cos(angle), -std::sin(angle)};
}

// X[k] = sum x[n] exp(-2 pi i n k / N), as it stands.
inline std::vector<Complex> dftSum(const std::vector<Complex>& x) {
    const std::size_t n = x.size();
    std::vector<Complex> spectrum(n);
    for (std::size_t k = 0; k < n; ++k) {
        for (std::size_t i = 0; i < n; ++i) spectrum[k] += x[i] * unitRoot(i * k, n);
    }
    return spectrum;
}

// The same for a power of two, by halves.
inline std::vector<Complex> dftRef(const std::vector<Complex>& x) {
    const std::size_t n = x.size();
    if (n == 1) return x;
    std::vector<Complex> even(n / 2), odd(n / 2), spectrum(n);
    for (std::size_t i = 0; i < n / 2; ++i) {
        even[i] = x[2 * i];
        odd[i] = x[2 * i + 1];
    }
    even = dftRef(even);
    odd = dftRef(odd);
    for (std::size_t k = 0; k < n / 2; ++k) {
        const Complex turned = odd[k] * unitRoot(k, n);
        spectrum[k] = even[k] + turned;
        spectrum[k + n / 2] = even[k] - turned;
    }
    return spectrum;
}

template <class T>
std::vector<Complex> realDftRef(const std::vector<T>& x) {
    return dftRef(std::vector<Complex>(x.begin(), x.end()));
}

enum class Layout { ccs, pack, perm };

// Elements of a spectrum of n points.
inline std::size_t layoutSize(Layout layout, std::size_t n) {
    if (layout != Layout::ccs) return n;
    return n == 1 ? 2 : n + 2;
}

// The first half of a spectrum in its layout, multiplied by `factor`.
inline std::vector<long double> layOut(Layout layout, const std::vector<Complex>& spectrum, long double factor) {
    const std::size_t n = spectrum.size();
    std::vector<long double> values{spectrum[0].real()};
    if (layout == Layout::ccs) values.push_back(0);
    if (layout == Layout::perm && n > 1) values.push_back(spectrum[n / 2].real());
    for (std::size_t k = 1; k < n / 2; ++k) {
        values.push_back(spectrum[k].real());
        values.push_back(spectrum[k].imag());
    }
    if (layout != Layout::perm && n > 1) values.push_back(spectrum[n / 2].real());
    if (layout == Layout::ccs && n > 1) values.push_back(0);
    for (long double& v : values) v *= factor;
    return values;
}

struct Sizes {
    std::int64_t spec, init, work;
};
inline std::int64_t floorTo(std::int64_t bytes, std::int64_t multiple) { return bytes / multiple * multiple; }

// Sizes of a complex record in single precision.
inline Sizes complexSizesRef(int order) {
    if (order <= 5) return {148, 0, 0};
    const std::int64_t n = std::int64_t{1} << order;
    const std::int64_t bitReversal = floorTo(n + 67, 64);
    Sizes sizes{};
    if (order <= 15) {
        sizes.spec = floorTo(8 * n + 71, 64) + bitReversal;
        sizes.work = floorTo(8 * n + 63, 64);
    } else {
        int row = order;
        while (row > 15) {  // each level cuts off its outer bits
            const int outer = row <= 18 ? 4 : row <= 21 ? 6 : 8;
            const int columns = row == 16 ? 5 : row <= 18 ? 6 : row <= 21 ? 7 : 6;
            sizes.spec += std::int64_t{8} << (row - 1);
            sizes.work = std::max(sizes.work, std::int64_t{8} << (outer + columns));
            row -= outer;
        }
        sizes.spec += floorTo((std::int64_t{8} << row) + 71, 64);
        sizes.spec += order < 17 ? bitReversal : (std::int64_t{4} << (order - 12)) + 4160;
        sizes.work = std::max(sizes.work, floorTo((std::int64_t{8} << row) + 63, 64));
        if (order >= 17) sizes.work = std::max<std::int64_t>(sizes.work, 0x10000);
    }
    sizes.spec += 192;
    sizes.work += 64;
    if (order > 10) sizes.init = bitReversal + 64;
    return sizes;
}

// Sizes of a real record in single precision.
inline Sizes realSizesRef(int order) {
    if (order <= 4) return {148, 0, 0};
    const std::int64_t n = std::int64_t{1} << order;
    Sizes sizes{};
    if (order >= 7) sizes = complexSizesRef(order - 1);
    sizes.spec += floorTo(order < 19 ? 4 * n + 126 : n / 256 + 16510, 128) + 192;
    if (order >= 11) sizes.init += floorTo(n + 67, 64) + 64;
    return sizes;
}

}  // namespace vlqtest
