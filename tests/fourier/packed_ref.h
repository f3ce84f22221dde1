// Plain reference of products of packed spectra, value by value.
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

}  // namespace vlqtest
