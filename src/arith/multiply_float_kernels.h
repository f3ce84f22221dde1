// Products of floats. Products and sums are rounded separately, never fused, so that results are
// the same in all builds.
#pragma once

#include "frame/loop/map_complex.h"
#include "frame/simd/complex.h"
#include "frame/simd/convert.h"
#include "frame/simd/multiply.h"
#include "vlqs/types.h"

namespace vlq::multiply {

struct Product {
    template <class V>
    V operator()(V a, V b) const {
        return a * b;
    }
};

// (a + bi)(c + di) = (ac - bd) + (ad + bc)i
struct ComplexProduct {
    template <class T>
    Vec<T> operator()(Vec<T> x, Vec<T> y) const {
        return subtractAdd(realParts(x) * y, imaginaryParts(x) * swapParts(y));
    }
};

// acc + a * b
template <class Multiply>
struct Accumulate {
    template <class V>
    V operator()(V acc, V a, V b) const {
        return acc + Multiply{}(a, b);
    }
};

// The exact product of integers, rounded once.
struct ProductAsFloat {
    Block<float, 2> operator()(const Block<std::int16_t, 1>& a,
                               const Block<std::int16_t, 1>& b) const {
        const auto e = inMemoryOrder(productLanes(a.part[0], b.part[0]));
        return {{toFloat(e.part[0]), toFloat(e.part[1])}};
    }
};

}  // namespace vlq::multiply
