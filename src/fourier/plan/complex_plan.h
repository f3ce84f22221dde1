// Tables of the complex transform, built into the block of a spec.
#pragma once

#include "fourier/plan/fft_plan.h"
#include "fourier/plan/twiddles.h"

namespace vlq::fft {

// Last orders of the regimes of the complex transform.
template <class T>
struct ComplexLimits {
    static constexpr bool single = sizeof(T) == 4;
    static constexpr int largest = single ? 28 : 27;
    static constexpr int straightLine = 5;            // no tables
    static constexpr int inCache = single ? 15 : 13;  // one table for all passes
    static constexpr int plainReversal = single ? 16 : 15;
};

// Sizes of a complex spec of `order`, as its size query returns them.
template <class T>
PlanSizes complexSizes(int order);

// Carves the tables of the complex transform of `order` from the cursor, builds them, points the
// spec at them and sets workBytes. A real spec of order n calls this with n - 1.
template <class T>
void buildComplexTables(FloatSpec<T>& spec, int order, const SineTable<T>& sine, Cursor& cursor);

}  // namespace vlq::fft
