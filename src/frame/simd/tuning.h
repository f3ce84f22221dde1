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

// ---- bulk copies and fills, in bytes ------------------------------------------------------------
// The C library moves and fills with the widest vectors that the processor has. The baseline build
// has only narrow ones and calls it for middle lengths; the widest build gains nothing by it.
inline constexpr bool kCLibraryIsWider = kVecBytes == 16;
// Copies of these lengths are the C library's.
inline constexpr std::size_t kLibraryCopiesFrom = kVecBytes == 16 ? 0 : 512;
inline constexpr std::size_t kLibraryCopiesBelow = kVecBytes == 64 ? 0 : 4096;
// From here on the string instruction copies. Narrow vectors soon lose to it, wide ones when source
// and destination no longer fit the first cache.
inline constexpr std::size_t kCopyByWords = kVecBytes == 16 ? 4096 : 24 << 10;
// The same for a fill, which has the first and second caches to itself.
inline constexpr std::size_t kFillByWords = kVecBytes == 16 ? 6 << 10 : 1 << 20;

}  // namespace vlq
