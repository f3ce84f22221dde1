// Plain references of products and expansion of packed spectra, value by value.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "vlqs/types.h"

namespace vlqtest {

// `front` real terms at the front (1 in Pack, 1 or 2 in Perm), `back` at the end, pairs between.
template <class T>
std::vector<T> packedProductRef(const std::vector<T>& a, const std::vector<T>& b, std::size_t front,
                                std::size_t back) {
    std::vector<T> product(a.size());
    for (std::size_t i = 0; i < front; ++i) product[i] = a[i] * b[i];
    for (std::size_t i = a.size() - back; i < a.size(); ++i) product[i] = a[i] * b[i];
    for (std::size_t i = front; i + 1 < a.size() - back; i += 2) {
        // Each product is rounded before the sum.
        const volatile T rr = a[i] * b[i], ii = a[i + 1] * b[i + 1], ri = a[i] * b[i + 1],
                         ir = a[i + 1] * b[i];
        product[i] = rr - ii;
        product[i + 1] = ri + ir;
    }
    return product;
}
template <class T>
std::vector<T> mulPackRef(const std::vector<T>& a, const std::vector<T>& b) {
    return packedProductRef(a, b, 1, a.size() % 2 == 0 ? 1 : 0);
}
template <class T>
std::vector<T> mulPermRef(const std::vector<T>& a, const std::vector<T>& b) {
    return packedProductRef(a, b, a.size() % 2 == 0 ? 2 : 1, 0);
}

// Real terms multiply; a pair gives a times the conjugate of b.
template <class T>
std::vector<T> mulPackConjRef(const std::vector<T>& a, const std::vector<T>& b) {
    std::vector<T> product(a.size());
    product[0] = a[0] * b[0];
    if (a.size() % 2 == 0) product.back() = a.back() * b.back();
    for (std::size_t i = 1; i + 1 < a.size(); i += 2) {
        const volatile T rr = a[i] * b[i], ii = a[i + 1] * b[i + 1], ri = a[i] * b[i + 1],
                         ir = a[i + 1] * b[i];
        product[i] = rr + ii;
        product[i + 1] = ir - ri;
    }
    return product;
}

// Scaled integers: exact sums, 2^31 as 2^31 - 1; shifted right as they are, or left after a clamp.
inline Vlq16s scaledProductRef(std::int64_t sum, Vlq32s scaleFactor) {
    auto to16 = [](std::int64_t v) { return std::clamp<std::int64_t>(v, -32768, 32767); };
    if (sum == 0x80000000) sum = 0x7FFFFFFF;
    if (scaleFactor >= 0)
        sum >>= std::min(scaleFactor, 62);
    else
        sum = to16(sum) * (std::int64_t{1} << std::min(-std::max(scaleFactor, -40), 40));
    return static_cast<Vlq16s>(to16(sum));
}
inline std::vector<Vlq16s> scaledPackedRef(const std::vector<Vlq16s>& a,
                                           const std::vector<Vlq16s>& b, bool perm,
                                           Vlq32s scaleFactor) {
    const std::size_t len = a.size();
    std::vector<Vlq16s> product(len);
    auto term = [&](std::size_t i, std::size_t j) { return std::int64_t{a[i]} * b[j]; };
    auto real = [&](std::size_t i) { product[i] = scaledProductRef(term(i, i), scaleFactor); };
    real(0);
    if (len % 2 == 0) real(perm ? 1 : len - 1);
    for (std::size_t i = perm && len % 2 == 0 ? 2 : 1; i + 1 < len; i += 2) {
        product[i] = scaledProductRef(term(i, i) - term(i + 1, i + 1), scaleFactor);
        product[i + 1] = scaledProductRef(term(i, i + 1) + term(i + 1, i), scaleFactor);
    }
    return product;
}

template <class T>
T conjugatedRef(T imaginary) {
    return -imaginary;
}
inline Vlq16s conjugatedRef(Vlq16s imaginary) {
    return static_cast<Vlq16s>(std::min(-static_cast<int>(imaginary), 32767));
}

// Interleaved values of the whole spectrum; value k of the half is (half[2k], half[2k + 1]).
template <class T>
std::vector<T> mirrorRef(std::vector<T> half, std::size_t len) {
    half.resize(2 * len);
    for (std::size_t k = 1; k < len - k; ++k) {
        half[2 * (len - k)] = half[2 * k];
        half[2 * (len - k) + 1] = conjugatedRef(half[2 * k + 1]);
    }
    return half;
}
template <class T>
std::vector<T> conjPackRef(const std::vector<T>& src, std::size_t len) {
    std::vector<T> half{src[0], T(0)};
    half.insert(half.end(), src.begin() + 1, src.end());
    if (len % 2 == 0) half.push_back(T(0));
    return mirrorRef(half, len);
}
template <class T>
std::vector<T> conjPermRef(const std::vector<T>& src, std::size_t len) {
    if (len % 2 != 0) return conjPackRef(src, len);
    std::vector<T> half{src[0], T(0)};
    half.insert(half.end(), src.begin() + 2, src.end());
    half.insert(half.end(), {src[1], T(0)});
    return mirrorRef(half, len);
}
template <class T>
std::vector<T> conjCcsRef(const std::vector<T>& src, std::size_t len) {
    return mirrorRef(src, len);
}

}  // namespace vlqtest
