// Tables of the real transform: those of the half-length complex transform, and the factors that
// turn its spectrum into the real signal's.
#pragma once

#include "fourier/plan/fft_plan.h"
#include "fourier/plan/twiddles.h"
#include "frame/simd/split.h"

namespace vlq::fft {

// Orders where the form of a real record changes.
template <class T>
struct RealLimits;
template <>
struct RealLimits<Vlq32f> {
    static constexpr int largest = 29;
    static constexpr int straightLine = 4;   // up to here no table at all
    static constexpr int inRegisters = 6;    // up to here all values stay in registers
    static constexpr int complexTables = 7;  // from here the half-length transform needs tables
    static constexpr int twoLevel =
        19;  // from here factors are products of a coarse and a fine one
    static constexpr int fineOrder = 10;  // log2 of the number of fine factors
};
template <>
struct RealLimits<Vlq64f> {
    static constexpr int largest = 28;
    static constexpr int straightLine = 5;
    static constexpr int inRegisters = 6;
    static constexpr int complexTables = 7;
    static constexpr int twoLevel = 18;
    static constexpr int fineOrder = 9;
};

// Factors stand in groups as wide as a vector: the cosine parts of consecutive k, then the sine
// parts, both in the lane order of a Split vector. They begin at k = 1; up to order inRegisters,
// where vectors have 16 bytes in every build, at k = 0.

// Sizes of a real record, as its size query gives them.
template <class T>
PlanSizes realSizes(int order);

// Builds all tables of a real record behind the cursor and points the record at them.
template <class T>
void buildRealTables(FloatingRecord<T>& record, int order, const SineTable<T>& sine,
                     Cursor& cursor);

}  // namespace vlq::fft
