// What taps and samples are made of: a real value, or two for a complex one.
#pragma once

#include <concepts>
#include <type_traits>

#include "vlqs/types.h"

namespace vlq::fir {

template <class E>
concept Complex = requires(E value) {
    value.re;
    value.im;
};

namespace detail {
template <class E>
struct PartOf {
    using type = E;
};
template <Complex E>
struct PartOf<E> {
    using type = decltype(E::re);
};
}  // namespace detail

template <class E>
using Part = typename detail::PartOf<E>::type;
template <class E>
inline constexpr int kParts = Complex<E> ? 2 : 1;

// A vector of complex values as one of their parts.
template <class E>
inline Part<E>* parts(E* p) {
    return reinterpret_cast<Part<E>*>(p);
}
template <class E>
inline const Part<E>* parts(const E* p) {
    return reinterpret_cast<const Part<E>*>(p);
}

// One value in another type. A real value that a 32-bit integer does not hold comes out saturated.
template <class To, class From>
inline To convertTo(From value) {
    if constexpr (Complex<To>) {
        return {convertTo<Part<To>>(value.re), convertTo<Part<To>>(value.im)};
    } else if constexpr (std::floating_point<From> && std::is_same_v<To, Vlq32s>) {
        if (!(value < 2147483647.0)) return 2147483647;
        return value > -2147483648.0 ? static_cast<To>(value) : -2147483647 - 1;
    } else {
        return static_cast<To>(value);
    }
}

}  // namespace vlq::fir
