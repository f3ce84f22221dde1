// Tables of the real transform: those of the complex transform of half the length, and the factors
// of the recombination step between its spectrum and that of the real signal.
#pragma once

#include "fourier/plan/fft_plan.h"
#include "fourier/plan/twiddles.h"

namespace vlq::fft {

// Orders where the method of the real transform changes.
template <class T>
struct RealLimits;
template <>
struct RealLimits<Vlq32f> {
    static constexpr int largest = 29;
    static constexpr int straightLine = 4;   // last order without tables
    static constexpr int inRegisters = 6;    // last order that keeps all values in registers
    static constexpr int complexTables = 7;  // first order whose half-length transform has tables
    static constexpr int twoLevel = 19;      // first order whose factors are products of two tables
    static constexpr int fineOrder = 10;     // log2 of the number of fine factors
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

// Factors are stored in groups of one vector: the cosine parts of consecutive k, then the sine
// parts, both in the lane order of a Split vector. They begin at k = 1, or at k = 0 up to order
// inRegisters, where vectors have 16 bytes in every build.

// Sizes of a real spec, as its size query returns them.
template <class T>
PlanSizes realSizes(int order);

// Carves all tables of a real spec from the cursor, builds them and points the spec at them.
template <class T>
void buildRealTables(FloatSpec<T>& spec, int order, const SineTable<T>& sine, Cursor& cursor);

}  // namespace vlq::fft
