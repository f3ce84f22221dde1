// Plain references of the complex transform: sizes from their formulas, and the transform itself
// in extended precision.
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

// By definition, n^2 products.
inline std::vector<Extended> dftByDefinition(const std::vector<Extended>& x, int sign) {
    const std::size_t n = x.size();
    std::vector<Extended> result(n);
    for (std::size_t k = 0; k < n; ++k) {
        for (std::size_t i = 0; i < n; ++i) result[k] += x[i] * unitRoot(i * k % n, n, sign);
    }
    return result;
}

// By halving; roots holds the n-th roots of unity of the outermost call.
inline void dftByHalves(const Extended* x, Extended* result, std::size_t n, std::size_t stride,
                        const std::vector<Extended>& roots) {
    if (n == 1) {
        *result = *x;
        return;
    }
    const std::size_t half = n / 2;
    dftByHalves(x, result, half, 2 * stride, roots);
    dftByHalves(x + stride, result + half, half, 2 * stride, roots);
    for (std::size_t k = 0; k < half; ++k) {
        const Extended w = roots[k * (roots.size() / n)], a = result[k], b = result[k + half];
        const Extended t(w.real() * b.real() - w.imag() * b.imag(), w.real() * b.imag() + w.imag() * b.real());
        result[k] = a + t;
        result[k + half] = a - t;
    }
}
inline std::vector<Extended> dft(const std::vector<Extended>& x, int sign) {
    std::vector<Extended> roots(x.size()), result(x.size());
    for (std::size_t k = 0; k < x.size(); ++k) roots[k] = unitRoot(k, x.size(), sign);
    dftByHalves(x.data(), result.data(), x.size(), 1, roots);
    return result;
}

struct Sizes {
    std::int64_t spec, init, work;
    bool operator==(const Sizes&) const = default;
};

// Sizes of a record with its tables, scratch and work buffer, single precision.
inline Sizes complexSizes32(int order) {
    auto down64 = [](std::int64_t x) { return x / 64 * 64; };
    const std::int64_t n = std::int64_t{1} << order;
    if (order <= 5) return {148, 0, 0};
    const std::int64_t reversal = down64(n + 67);
    const std::int64_t init = order <= 10 ? 0 : reversal + 64;
    if (order <= 15) return {down64(8 * n + 71) + reversal + 192, init, down64(8 * n + 63) + 64};

    struct Plan { int a, h, w; };
    auto plan = [](int p) -> Plan {
        switch (p) {
            case 16: return {4, 12, 5};
            case 17: return {4, 13, 6};
            case 18: return {4, 14, 6};
            case 19: return {6, 13, 7};
            case 20: return {6, 14, 7};
            case 21: return {6, 15, 7};
            default: return {8, p - 8, 6};
        }
    };
    std::int64_t spec = order == 16 ? reversal : 4 * (std::int64_t{1} << (order - 12)) + 4160;
    std::int64_t work = order >= 17 ? 0x10000 : 0;
    int level = order;
    for (; level > 15; level = plan(level).h) {
        spec += 8 * (std::int64_t{1} << (level - 1));
        work = std::max(work, 8 * (std::int64_t{1} << (plan(level).a + plan(level).w)));
    }
    const std::int64_t row = std::int64_t{1} << level;
    spec += down64(8 * row + 71);
    work = std::max(work, down64(8 * row + 63));
    return {spec + 192, init, work + 64};
}

}  // namespace vlqtest
