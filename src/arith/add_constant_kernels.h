// 64-bit sums that keep their sixty-fifth bit under every scale factor and round as they are told.
#pragma once

#include "arith/add_kernels.h"

namespace vlq::add {

// e / 2
template <class T, Rounding rounding>
struct RoundHalf {
    Vec<T> operator()(Halved<T> e) const {
        return e.half + (e.odd & middleGoesUp<rounding>(e, e.half) & Vec<T>::broadcast(1));
    }
};

// The last scale factor that leaves anything is one too many for a shift of the half: a bit goes
// first, and stays noted in the odd bit, which lies below the middle then.
template <class T, Rounding rounding>
struct ScaleRightLast {
    ScaleRight<T, rounding> scale{8 * sizeof(T)};
    Vec<T> operator()(Halved<T> e) const { return scale({shiftRight(e.half, 1), e.odd | e.half}); }
};

template <class T, Rounding rounding, class Run>
inline void withRounding(std::int32_t scaleFactor, Run run) {
    constexpr int bits = 8 * sizeof(T);
    auto scaled = [&](auto scale) { run([=](Vec<T> a, Vec<T> b) { return scale(Sum::halved(a, b)); }); };
    if (scaleFactor == 1) scaled(RoundHalf<T, rounding>{});
    else if (scaleFactor <= bits) scaled(ScaleRight<T, rounding>(scaleFactor));
    else if (scaleFactor == bits + 1) scaled(ScaleRightLast<T, rounding>{});
    else run([](Vec<T>, Vec<T>) { return Vec<T>::zero(); });
}

// Hands `run` the sum of two vectors, scaled and rounded; no scale factor is given up early.
template <class T, class Run>
inline void withScaleAndRounding(std::int32_t scaleFactor, Rounding rounding, Run run) {
    using V = Vec<T>;
    if (scaleFactor == 0) return run([](V a, V b) { return addSat(a, b); });
    if (scaleFactor < 0) return run([scale = ScaleLeft<T>(scaleFactor)](V a, V b) { return scale(addSat(a, b)); });
    switch (rounding) {
    case Rounding::ToZero: return withRounding<T, Rounding::ToZero>(scaleFactor, run);
    case Rounding::TiesToEven: return withRounding<T, Rounding::TiesToEven>(scaleFactor, run);
    case Rounding::TiesAway: return withRounding<T, Rounding::TiesAway>(scaleFactor, run);
    }
}

}  // namespace vlq::add
