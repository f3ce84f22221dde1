// Plain references of products and expansion of packed spectra, value by value.
#pragma once

#include <vector>

namespace vlqtest {

// `front` real terms at the front (1 in Pack, 1 or 2 in Perm), `back` at the end, pairs between.
template <class T>
std::vector<T> packedProductRef(const std::vector<T>& a, const std::vector<T>& b, std::size_t front, std::size_t back) {
    std::vector<T> product(a.size());
    for (std::size_t i = 0; i < front; ++i) product[i] = a[i] * b[i];
    for (std::size_t i = a.size() - back; i < a.size(); ++i) product[i] = a[i] * b[i];
    for (std::size_t i = front; i + 1 < a.size() - back; i += 2) {
        // Each product is rounded before the sum.
        const volatile T rr = a[i] * b[i], ii = a[i + 1] * b[i + 1], ri = a[i] * b[i + 1], ir = a[i + 1] * b[i];
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
        const volatile T rr = a[i] * b[i], ii = a[i + 1] * b[i + 1], ri = a[i] * b[i + 1], ir = a[i + 1] * b[i];
        product[i] = rr + ii;
        product[i + 1] = ir - ri;
    }
    return product;
}

// Interleaved values of the whole spectrum; value k of the half is (half[2k], half[2k + 1]).
template <class T>
std::vector<T> mirrorRef(std::vector<T> half, std::size_t len) {
    half.resize(2 * len);
    for (std::size_t k = 1; k < len - k; ++k) {
        half[2 * (len - k)] = half[2 * k];
        half[2 * (len - k) + 1] = -half[2 * k + 1];
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
