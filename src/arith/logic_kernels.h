// Bitwise operations on vectors of any integer type.
#pragma once

#include "frame/loop/map.h"

namespace vlq::logic {

struct And {
    template <class V>
    V operator()(V a, V b) const {
        return a & b;
    }
};
struct Or {
    template <class V>
    V operator()(V a, V b) const {
        return a | b;
    }
};
struct Xor {
    template <class V>
    V operator()(V a, V b) const {
        return a ^ b;
    }
};
struct Not {
    template <class V>
    V operator()(V a) const {
        return ~a;
    }
};

// The second operand is one value.
template <class Op, class T>
struct WithConstant {
    explicit WithConstant(T value) : constant(Vec<T>::broadcast(value)) {}
    Vec<T> operator()(Vec<T> a) const { return Op{}(a, constant); }
    Vec<T> constant;
};

}  // namespace vlq::logic
