// Tables of the complex transform, built into a record's block.
#pragma once

#include "fourier/plan/fft_plan.h"
#include "fourier/plan/twiddles.h"

namespace vlq::fft {

// Where the regimes of the complex transform change, by order.
template <class T>
struct ComplexLimits {
    static constexpr bool single = sizeof(T) == 4;
    static constexpr int largest = single ? 28 : 27;
    static constexpr int straightLine = 5;            // the last without tables
    static constexpr int inCache = single ? 15 : 13;  // the last with one table for all passes
    static constexpr int plainReversal = single ? 16 : 15;
};

// Sizes of a complex record of `order`, as its size query gives them.
template <class T>
PlanSizes complexSizes(int order);

// Builds what the complex transform of `order` needs behind the cursor and points the record at
// it; sets workBytes. A real record of order n calls this with n - 1.
template <class T>
void buildComplexTables(FloatingRecord<T>& record, int order, const SineTable<T>& sine,
                        Cursor& cursor);

}  // namespace vlq::fft
