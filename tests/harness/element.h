// Elements of any type, complex ones part by part: random values, and comparison of floats where
// every not-a-number counts as the same.
#pragma once

#include "harness/sweep.h"

namespace vlqtest {

template <class T>
concept ComplexElement = requires(T v) {
    v.re;
    v.im;
};

template <class T>
T extremeElement(Rng& rng) {
    if constexpr (ComplexElement<T>) {
        using Part = decltype(T::re);
        const auto re = extremeValue<Part>(rng);
        return T{re, extremeValue<Part>(rng)};
    } else {
        return extremeValue<T>(rng);
    }
}

template <class T>
std::vector<T> extremeElements(std::size_t count, Rng& rng) {
    std::vector<T> values(count);
    for (T& v : values) v = extremeElement<T>(rng);
    return values;
}

inline bool sameNumber(float a, float b) {
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}
inline bool sameNumber(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}
template <class T>
requires std::is_integral_v<T>
bool sameNumber(T a, T b) { return a == b; }
template <ComplexElement T>
bool sameNumber(T a, T b) {
    return sameNumber(a.re, b.re) && sameNumber(a.im, b.im);
}

inline std::string show(double v) {
    char text[64];
    std::snprintf(text, sizeof text, "%.17g (%a)", v, v);
    return text;
}
template <ComplexElement T>
std::string show(T v) {
    return show(v.re).append(" and ").append(show(v.im)).append(" i");
}

// Bit for bit but for the bits of not-a-numbers; margins included.
template <class T>
::testing::AssertionResult sameNumbers(const Buffer<T>& got, const std::vector<T>& want) {
    if (!got.marginsIntact())
        return ::testing::AssertionFailure() << "a byte outside the vector was written";
    const std::vector<T> values = got.values();
    for (std::size_t i = 0; i < want.size(); ++i) {
        if (!sameNumber(values[i], want[i])) {
            return ::testing::AssertionFailure()
                   << "element " << i << " of " << want.size() << ": " << show(values[i])
                   << ", expected " << show(want[i]);
        }
    }
    return ::testing::AssertionSuccess();
}

}  // namespace vlqtest
