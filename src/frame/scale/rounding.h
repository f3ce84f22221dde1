// The rounding policies, and floating-point values rounded to integers by them.
#pragma once

#include <type_traits>

#include "frame/simd/convert.h"
#include "frame/simd/int64.h"
#include "vlqs/types.h"

namespace vlq {

enum class Rounding {
    ToZero,
    TiesToEven,  // to nearest, the rule wherever a function has no rounding mode
    TiesAway,    // to nearest, ties away from zero
};
template <Rounding rounding>
using RoundingConstant = std::integral_constant<Rounding, rounding>;

// Calls run with the policy of a rounding mode as a RoundingConstant. Modes other than
// vlqRndZero and vlqRndNear are vlqRndFinancial.
template <class Run>
inline void withRounding(VlqRoundMode mode, Run run) {
    switch (mode) {
        case vlqRndZero: return run(RoundingConstant<Rounding::ToZero>{});
        case vlqRndNear: return run(RoundingConstant<Rounding::TiesToEven>{});
        default: return run(RoundingConstant<Rounding::TiesAway>{});
    }
}

// V is Vec<float> or Block<double, 2>. Values out of range, and NaN, give the lowest integer.
template <Rounding rounding, class V>
inline Vec<std::int32_t> toInteger(V v) {
    if constexpr (rounding == Rounding::ToZero)
        return toZero(v);
    else if constexpr (rounding == Rounding::TiesToEven)
        return toNearest(v);
    else
        return toNearestAway(v);
}
template <Rounding rounding>
inline Vec<std::int64_t> toInteger64(Vec<double> v) {
    if constexpr (rounding == Rounding::ToZero)
        return toZero64(v);
    else if constexpr (rounding == Rounding::TiesToEven)
        return toNearest64(v);
    else
        return toNearestAway64(v);
}

// Whether that depends on the rounding mode of the control register: such a kernel runs under
// StandardFloatMode.
template <Rounding rounding>
inline constexpr bool usesControlRegister = rounding != Rounding::ToZero && !kRoundingInInstruction;

}  // namespace vlq
