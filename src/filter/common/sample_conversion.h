// Sample conversion of filters: between the caller's samples and the type that the filter computes
// in. One overload for each pair of types; where both are one type, a copy.
#pragma once

#include <bit>

#include "filter/common/element.h"
#include "frame/simd/vec.h"
#include "vlqs/arith.h"
#include "vlqs/convert.h"
#include "vlqs/move.h"

namespace vlq::fir {

// What a variant without scale factor passes where a scaled one passes its own.
struct Unscaled {};

inline void widen(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    vlqsCopy_32s(reinterpret_cast<const Vlq32s*>(src), reinterpret_cast<Vlq32s*>(dst), len);
}
inline void widen(const Vlq16s* src, Vlq32f* dst, Vlq32s len) { vlqsConvert_16s32f(src, dst, len); }

inline void narrow(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Unscaled) { widen(src, dst, len); }
inline void narrow(const Vlq32f* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlqsConvert_32f16s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}

inline void widen(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    vlqsCopy_64s(reinterpret_cast<const Vlq64s*>(src), reinterpret_cast<Vlq64s*>(dst), len);
}
inline void widen(const Vlq32f* src, Vlq64f* dst, Vlq32s len) { vlqsConvert_32f64f(src, dst, len); }
inline void widen(const Vlq32s* src, Vlq64f* dst, Vlq32s len) { vlqsConvert_32s64f(src, dst, len); }
inline void widen(const Vlq16s* src, Vlq64f* dst, Vlq32s len) {
    vlqsConvert_16s64f_Sfs(src, dst, len, 0);
}

inline void narrow(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Unscaled) { widen(src, dst, len); }
inline void narrow(const Vlq64f* src, Vlq32f* dst, Vlq32s len, Unscaled) {
    vlqsConvert_64f32f(src, dst, len);
}
inline void narrow(const Vlq64f* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlqsConvert_64f32s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}
inline void narrow(const Vlq64f* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlqsConvert_64f16s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}

// Complex samples as their parts. Twice len does not overflow: pieces and transforms are short.
template <Complex From, Complex To>
inline void widen(const From* src, To* dst, Vlq32s len) {
    widen(parts(src), parts(dst), 2 * len);
}
template <Complex From, Complex To, class Scale>
inline void narrow(const From* src, To* dst, Vlq32s len, Scale scale) {
    narrow(parts(src), parts(dst), 2 * len, scale);
}

// A single output: what the conversion of a vector gives, without its preparations, and without
// instructions that depend on the rounding mode of the calling thread.
inline void narrowOne(Vlq32f value, Vlq32f* dst, Unscaled) { storeScalar(dst, value); }
inline void narrowOne(Vlq32f value, Vlq16s* dst, Vlq32s scaleFactor) {
    if (scaleFactor < -126 || scaleFactor > 126) return narrow(&value, dst, 1, scaleFactor);
    const auto factor = std::bit_cast<Vlq32f>((127 - scaleFactor) << 23);
    const Vlq32f scaled = value * factor;
    Vlq32s rounded = 32767;  // also for what is not a number
    if (scaled <= -32768.0f) {
        rounded = -32768;
    } else if (scaled < 32767.0f) {
        rounded = static_cast<Vlq32s>(scaled);
        const Vlq32f rest = scaled - static_cast<Vlq32f>(rounded);
        // Exact, below 1 in magnitude: away from zero beyond a half, and at a half to even.
        const bool odd = (rounded & 1) != 0;
        if (rest > 0.5f || (rest == 0.5f && odd)) ++rounded;
        if (rest < -0.5f || (rest == -0.5f && odd)) --rounded;
    }
    storeScalar(dst, static_cast<Vlq16s>(rounded));
}

template <class E, class Sample, class Scale>
inline void narrowOne(E value, Sample* dst, Scale scale) {
    if constexpr (std::is_same_v<Scale, Unscaled>) {
        storeScalar(dst, convertTo<Sample>(value));
    } else if constexpr (Complex<E>) {
        narrowOne(value.re, parts(dst), scale);
        narrowOne(value.im, parts(dst) + 1, scale);
    } else {
        narrow(&value, dst, 1, scale);
    }
}

// Elements inside a state; the ranges may overlap.
inline void moveElements(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    vlqsMove_32s(reinterpret_cast<const Vlq32s*>(src), reinterpret_cast<Vlq32s*>(dst), len);
}
inline void moveElements(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    vlqsMove_64s(reinterpret_cast<const Vlq64s*>(src), reinterpret_cast<Vlq64s*>(dst), len);
}
template <Complex E>
inline void moveElements(const E* src, E* dst, Vlq32s len) {
    moveElements(parts(src), parts(dst), 2 * len);
}

// Samples as they are.
template <class Sample>
inline void copySamples(const Sample* src, Sample* dst, Vlq32s len) {
    if constexpr (sizeof(Part<Sample>) == 2) {
        vlqsCopy_16s(reinterpret_cast<const Vlq16s*>(src), reinterpret_cast<Vlq16s*>(dst),
                     kParts<Sample> * len);
    } else {
        vlqsCopy_32s(reinterpret_cast<const Vlq32s*>(src), reinterpret_cast<Vlq32s*>(dst),
                     kParts<Sample> * len);
    }
}

}  // namespace vlq::fir
