// Tuning by vector width: unrolling, tiles and the lengths at which a loop changes its method.
// Measured; they change the speed of a result, never the result, with one exception that says so.
#pragma once

#include <cstddef>

#include "frame/simd/vec.h"

namespace vlq {

// Blocks in one step of an element-wise loop.
inline constexpr int kMapUnroll = 4;

// Independent accumulators of a reduction: a floating-point sum of this library is defined by their
// number.
inline constexpr int kReduceAccumulators = 4;

// A search for an extreme value and its position takes the value of one tile of this many bytes
// after another, and looks for the position in the last tile that had a better value.
inline constexpr std::ptrdiff_t kExtremeTileBytes = 4096;

}  // namespace vlq
