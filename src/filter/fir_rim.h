// The rim of a FIR filter: samples go in and out of the type that the record computes in. One
// overload a pair of types; where both are one type, a copy.
#pragma once

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

// Elements inside a record; the ranges may overlap.
inline void shift(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    vlqsMove_32s(reinterpret_cast<const Vlq32s*>(src), reinterpret_cast<Vlq32s*>(dst), len);
}

// Samples as they are.
inline void copySamples(const Vlq16s* src, Vlq16s* dst, Vlq32s len) { vlqsCopy_16s(src, dst, len); }

}  // namespace vlq::fir
