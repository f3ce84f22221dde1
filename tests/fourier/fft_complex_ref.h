// Plain references of the complex FFT: the transform in extended precision, and the sizes of a spec
// from their formulas.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <vector>

namespace vlqtest {

using Extended = std::complex<long double>;

// exp(sign * 2 pi i k / n)
inline Extended unitRoot(std::size_t k, std::size_t n, int sign) {
    constexpr long double turn = 6.283185307179586476925286766559005768L;
    const long double angle = turn * static_cast<long double>(k) / static_cast<long double>(n);
    return {std::cos(angle), static_cast<long double>(sign) * std::sin(angle)};
}

// By the definition, n^2 products.
inline std::vector<Extended> dftByDefinition(const std::vector<Extended>& x, int sign) {
    const std::size_t n = x.size();
    std::vector<Extended> result(n);
    for (std::size_t k = 0; k < n; ++k) {
        for (std::size_t i = 0; i < n; ++i) result[k] += x[i] * unitRoot(i * k % n, n, sign);
    }
    return result;
}

// The last step of halving: combines the transforms of the even and of the odd samples, the two
// halves of result. roots holds the roots of unity of a multiple of n.
inline void joinHalves(Extended* result, std::size_t n, const std::vector<Extended>& roots) {
    const std::size_t half = n / 2;
    for (std::size_t k = 0; k < half; ++k) {
        const Extended w = roots[k * (roots.size() / n)], a = result[k], b = result[k + half];
        const Extended t(w.real() * b.real() - w.imag() * b.imag(),
                         w.real() * b.imag() + w.imag() * b.real());
        result[k] = a + t;
        result[k + half] = a - t;
    }
}
inline void dftByHalves(const Extended* x, Extended* result, std::size_t n, std::size_t stride,
                        const std::vector<Extended>& roots) {
    if (n == 1) {
        *result = *x;
        return;
    }
    dftByHalves(x, result, n / 2, 2 * stride, roots);
    dftByHalves(x + stride, result + n / 2, n / 2, 2 * stride, roots);
    joinHalves(result, n, roots);
}
inline std::vector<Extended> unitRoots(std::size_t n, int sign) {
    std::vector<Extended> roots(n);
    for (std::size_t k = 0; k < n; ++k) roots[k] = unitRoot(k, n, sign);
    return roots;
}
// The fast transform; n is a power of two. The roots of the last lengths are kept.
inline std::vector<Extended> dft(const std::vector<Extended>& x, int sign) {
    static std::vector<Extended> kept[2];
    std::vector<Extended>& roots = kept[sign > 0];
    if (roots.size() != x.size()) roots = unitRoots(x.size(), sign);
    std::vector<Extended> result(x.size());
    dftByHalves(x.data(), result.data(), x.size(), 1, roots);
    return result;
}

struct Sizes {
    std::int64_t spec, init, work;
    bool operator==(const Sizes&) const = default;
};

// The decomposition of the large orders: outer bits and columns of a tile, as powers of two.
struct Cut {
    int outer, columns;
};
inline Cut cutOf(bool single, int order) {
    if (single)
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

// Sizes of a spec with its tables, of the scratch of init and of the work buffer, for elements of
// `element` bytes.
inline Sizes complexSizes(std::size_t element, int order) {
    const bool single = element == 4;
    auto down64 = [](std::int64_t x) { return x / 64 * 64; };
    if (order <= 5) return {single ? 148 : 152, 0, 0};
    const std::int64_t n = std::int64_t{1} << order, value = single ? 8 : 16,
                       slack = single ? 71 : 79;
    const int inCache = single ? 15 : 13, plain = single ? 16 : 15, tile = single ? 6 : 5;
    std::int64_t spec = order <= plain
                            ? down64(n + 67)
                            : (std::int64_t{4} << (order - 2 * tile)) + (single ? 4160 : 1088);
    std::int64_t work = order <= plain ? 0 : single ? 0x10000 : 0x8000;
    int row = order;
    while (row > inCache) {
        const Cut cut = cutOf(single, row);
        spec += value << (row - 1);
        work = std::max(work, value << (cut.outer + cut.columns));
        row -= cut.outer;
    }
    spec += down64((value << row) + slack);
    work = std::max(work, down64((value << row) + 63));
    const std::int64_t init = order <= 10 ? 0
                              : single    ? down64(n + 67) + 64
                                          : down64(8 * (n / 4) + 71) + 64;
    return {spec + 192, init, work + 64};
}

}  // namespace vlqtest
