// The rim of a FIR filter: samples go in and out of the type that the record computes in. One
// overload a pair of types; where both are one type, a copy.
#pragma once

#include <bit>
#include <cstring>

#include "vlqs/arith.h"
#include "vlqs/convert.h"

namespace vlq::fir {

// What a form without scale factor passes where a scaled form passes its own.
struct Unscaled {};

inline void widen(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    vlqsCopy_32s(reinterpret_cast<const Vlq32s*>(src), reinterpret_cast<Vlq32s*>(dst), len);
}
inline void widen(const Vlq16s* src, Vlq32f* dst, Vlq32s len) { vlqsConvert_16s32f(src, dst, len); }

inline void narrow(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Unscaled) { widen(src, dst, len); }
inline void narrow(const Vlq32f* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    vlqsConvert_32f16s_Sfs(src, dst, len, vlqRndNear, scaleFactor);
}

// A single output, in steps that no rounding direction of the calling thread reaches: what the
// conversion of a vector gives, without its preparations.
inline void narrowOne(Vlq32f value, Vlq32f* dst, Unscaled) { std::memcpy(dst, &value, sizeof value); }
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
    const auto sample = static_cast<Vlq16s>(rounded);
    std::memcpy(dst, &sample, sizeof sample);
}

// Elements inside a record; the ranges may overlap.
inline void shift(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    vlqsMove_32s(reinterpret_cast<const Vlq32s*>(src), reinterpret_cast<Vlq32s*>(dst), len);
}

// Samples as they are.
inline void copySamples(const Vlq16s* src, Vlq16s* dst, Vlq32s len) { vlqsCopy_16s(src, dst, len); }

}  // namespace vlq::fir
