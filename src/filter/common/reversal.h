// Callers give taps from h[0] on and delay lines newest sample first. States keep both reversed, so
// that a sum over a window runs forwards through memory in both.
#pragma once

#include "filter/common/element.h"
#include "frame/simd/vec.h"
#include "vlqs/types.h"

namespace vlq::fir {

// dst[i] = convert(src[len - 1 - i]). Either may have any address; they do not overlap.
template <class From, class To, class Convert>
inline void copyReversed(const From* src, To* dst, Vlq32s len, Convert convert) {
    for (Vlq32s i = 0; i < len; ++i)
        storeScalar<To>(dst + i, convert(loadScalar(src + len - 1 - i)));
}
template <class From, class To>
inline void copyReversed(const From* src, To* dst, Vlq32s len) {
    copyReversed(src, dst, len, [](From value) { return convertTo<To>(value); });
}

// The same for a delay line that may be null: silence.
template <class From, class To>
inline void copyReversedOrZero(const From* src, To* dst, Vlq32s len) {
    if (src) return copyReversed(src, dst, len);
    for (Vlq32s i = 0; i < len; ++i) dst[i] = To{};
}

}  // namespace vlq::fir
