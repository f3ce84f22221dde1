// The definition of products of floats, one element at a time, each operation rounded by itself.
#pragma once

#include "vlqs/types.h"

namespace vlqtest {

inline Vlq32f productRef(Vlq32f a, Vlq32f b) { return a * b; }
inline Vlq64f productRef(Vlq64f a, Vlq64f b) { return a * b; }
inline Vlq32fc productRef(Vlq32fc x, Vlq32fc y) {
    return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
}
inline Vlq64fc productRef(Vlq64fc x, Vlq64fc y) {
    return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
}
inline Vlq32fc productRef(Vlq32f a, Vlq32fc y) { return {a * y.re, a * y.im}; }
inline Vlq32f productRef(Vlq16s a, Vlq16s b) {
    return static_cast<Vlq32f>(static_cast<Vlq32s>(a) * static_cast<Vlq32s>(b));
}

inline Vlq32f sumRef(Vlq32f a, Vlq32f b) { return a + b; }
inline Vlq64f sumRef(Vlq64f a, Vlq64f b) { return a + b; }
inline Vlq32fc sumRef(Vlq32fc a, Vlq32fc b) { return {a.re + b.re, a.im + b.im}; }
inline Vlq64fc sumRef(Vlq64fc a, Vlq64fc b) { return {a.re + b.re, a.im + b.im}; }

}  // namespace vlqtest
