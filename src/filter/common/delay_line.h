// Delay lines as single samples and filters without a state keep them.
#pragma once

#include <algorithm>
#include <cstring>

#include "frame/simd/vec.h"
#include "vlqs/types.h"

namespace vlq::fir {

// A ring of `len` samples kept twice over, so that every window is contiguous: the window
// line[index .. index + len - 1] holds the latest samples, oldest first. Puts a sample in the place
// of the oldest and returns the index of the window that it ends.
template <class Sample>
inline Vlq32s pushIntoRing(Sample sample, Sample* line, Vlq32s len, Vlq32s index) {
    storeScalar(line + index, sample);
    storeScalar(line + index + len, sample);
    const Vlq32s next = index + 1;
    return next >= len ? 0 : next;
}

// A line of `len` samples, newest first, after `count` more samples.
template <class Sample>
inline void pushNewestFirst(const Sample* src, Vlq64s count, Sample* line, Vlq32s len) {
    const auto fresh = static_cast<Vlq32s>(std::min<Vlq64s>(count, len));
    std::memmove(line + fresh, line, static_cast<std::size_t>(len - fresh) * sizeof(Sample));
    for (Vlq32s i = 0; i < fresh; ++i) storeScalar(line + i, loadScalar(src + (count - 1 - i)));
}

}  // namespace vlq::fir
