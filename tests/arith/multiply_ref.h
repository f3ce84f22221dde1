// The definition of scaled products.
#pragma once

#include "harness/scale_ref.h"

namespace vlqtest {

// The stored product of any two integers.
template <class D, class A, class B>
D productRef(A a, B b, std::int32_t scaleFactor) {
    return scaleRef<D>(Exact{a} * Exact{b}, scaleFactor);
}

// (a + bi)(c + di) = (ac - bd) + (ad + bc)i
template <class C>
C complexProductRef(C x, C y, std::int32_t scaleFactor) {
    using Part = decltype(x.re);
    return {scaleRef<Part>(Exact{x.re} * y.re - Exact{x.im} * y.im, scaleFactor),
            scaleRef<Part>(Exact{x.re} * y.im + Exact{x.im} * y.re, scaleFactor)};
}

template <class D, class A>
D sumOfProductRef(D acc, A a, A b, std::int32_t scaleFactor) {
    return scaleRef<D>(Exact{acc} + Exact{a} * Exact{b}, scaleFactor);
}

}  // namespace vlqtest
