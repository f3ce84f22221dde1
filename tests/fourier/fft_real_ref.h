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
    const long double angle =
        kTwoPi * static_cast<long double>(k % n) / static_cast<long double>(n);
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
inline std::vector<long double> layOut(Layout layout, const std::vector<Complex>& spectrum,
                                       long double factor) {
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
inline std::int64_t floorTo(std::int64_t bytes, std::int64_t multiple) {
    return bytes / multiple * multiple;
}

// The large orders: outer bits and columns of a tile, as powers of two, that cut one level.
struct Cut {
    int outer, columns;
};
inline Cut cutRef(int element, int order) {
    if (element == 4)
        return order == 16   ? Cut{4, 5}
               : order <= 18 ? Cut{4, 6}
               : order <= 21 ? Cut{6, 7}
                             : Cut{8, 6};
    return order <= 15   ? Cut{4, 4}
           : order <= 17 ? Cut{4, 6}
           : order == 18 ? Cut{6, 6}
           : order == 19 ? Cut{6, 7}
                         : Cut{8, 5};
}

// Sizes of a complex record with elements of `element` bytes.
inline Sizes complexSizesRef(int element, int order) {
    const bool single = element == 4;
    const std::int64_t slack = single ? 71 : 79;
    if (order <= 5) return {single ? 148 : 152, 0, 0};
    const std::int64_t n = std::int64_t{1} << order, value = 2 * element;
    const std::int64_t bitReversal = floorTo(n + 67, 64);
    const int inCache = single ? 15 : 13, plain = single ? 16 : 15, tile = single ? 6 : 5;
    Sizes sizes{};
    int row = order;
    while (row > inCache) {  // each level cuts off its outer bits
        const Cut cut = cutRef(element, row);
        sizes.spec += value << (row - 1);
        sizes.work = std::max(sizes.work, value << (cut.outer + cut.columns));
        row -= cut.outer;
    }
    sizes.spec += floorTo((value << row) + slack, 64);
    sizes.spec += order <= plain ? bitReversal
                                 : (std::int64_t{4} << (order - 2 * tile)) +
                                       (std::int64_t{4} << (2 * tile - 2)) + 64;
    sizes.work = std::max(sizes.work, floorTo((value << row) + 63, 64));
    if (order >= 17) sizes.work = std::max<std::int64_t>(sizes.work, single ? 0x10000 : 0);
    if (!single && order >= 16) sizes.work = std::max<std::int64_t>(sizes.work, 2 * 16384);
    sizes.spec += 192;
    sizes.work += 64;
    if (order > 10) sizes.init = floorTo(element * (n / 4) + (single ? 67 : 71), 64) + 64;
    return sizes;
}

// Sizes of a real record.
inline Sizes realSizesRef(int element, int order) {
    const bool single = element == 4;
    if (order <= (single ? 4 : 5)) return {single ? 148 : 152, 0, 0};
    const std::int64_t n = std::int64_t{1} << order;
    Sizes sizes{};
    if (order >= 7) sizes = complexSizesRef(element, order - 1);
    const std::int64_t factors = single ? (order < 19 ? 4 * n + 126 : n / 256 + 16510)
                                        : (order < 18 ? 8 * n + 126 : n / 64 + 16510);
    sizes.spec += floorTo(factors, 128) + 192;
    if (order >= 11) sizes.init += floorTo(single ? n + 67 : 2 * n + 71, 64) + 64;
    return sizes;
}

}  // namespace vlqtest
