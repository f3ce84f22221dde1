// Tables of the complex transform, built into a record's block.
#pragma once

#include "fourier/plan/record.h"
#include "fourier/plan/sine.h"

namespace vlq::fft {

// Sizes of a complex record of `order`, as its size query gives them.
template <class T>
PlanSizes complexSizes(int order);

// Builds what the complex transform of `order` needs behind the cursor and points the record at
// it; sets workBytes. A real record of order n calls this with n - 1.
template <class T>
void buildComplexTables(FloatingRecord<T>& record, int order, const SineTable<T>& sine, Cursor& cursor);

}  // namespace vlq::fft
