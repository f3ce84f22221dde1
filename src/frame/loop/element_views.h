// What the bodies of the element-wise families share: complex vectors viewed as reals, and the
// clear and copy functions by the type of the vector.
#pragma once

#include "vlqs/arith.h"
#include "vlqs/move.h"

namespace vlq {

// ---- n complex elements as 2 n reals ------------------------------------------------------------
inline const Vlq16s* reals(const Vlq16sc* v) { return reinterpret_cast<const Vlq16s*>(v); }
inline const Vlq32s* reals(const Vlq32sc* v) { return reinterpret_cast<const Vlq32s*>(v); }
inline const Vlq32f* reals(const Vlq32fc* v) { return reinterpret_cast<const Vlq32f*>(v); }
inline const Vlq64f* reals(const Vlq64fc* v) { return reinterpret_cast<const Vlq64f*>(v); }
inline Vlq16s* reals(Vlq16sc* v) { return reinterpret_cast<Vlq16s*>(v); }
inline Vlq32s* reals(Vlq32sc* v) { return reinterpret_cast<Vlq32s*>(v); }
inline Vlq32f* reals(Vlq32fc* v) { return reinterpret_cast<Vlq32f*>(v); }
inline Vlq64f* reals(Vlq64fc* v) { return reinterpret_cast<Vlq64f*>(v); }

// ---- n complex elements of 16 bits as n of 32 bits ----------------------------------------------
inline const Vlq32s* elements(const Vlq16sc* v) { return reinterpret_cast<const Vlq32s*>(v); }
inline Vlq32s* elements(Vlq16sc* v) { return reinterpret_cast<Vlq32s*>(v); }

// Wraps in 32 bits: from 2^30 on the doubled length is negative, and the real function refuses it.
inline Vlq32s twice(Vlq32s len) { return static_cast<Vlq32s>(2 * static_cast<Vlq32u>(len)); }

// ---- clear: checks dst and len ------------------------------------------------------------------
inline VlqStatus clear(Vlq8u* dst, Vlq32s len) { return vlqsZero_8u(dst, len); }
inline VlqStatus clear(Vlq16s* dst, Vlq32s len) { return vlqsZero_16s(dst, len); }
inline VlqStatus clear(Vlq16u* dst, Vlq32s len) {
    return vlqsZero_16s(reinterpret_cast<Vlq16s*>(dst), len);
}
inline VlqStatus clear(Vlq32s* dst, Vlq32s len) { return vlqsZero_32s(dst, len); }
inline VlqStatus clear(Vlq32u* dst, Vlq32s len) {
    return vlqsZero_32s(reinterpret_cast<Vlq32s*>(dst), len);
}
inline VlqStatus clear(Vlq64s* dst, Vlq32s len) { return vlqsZero_64s(dst, len); }
inline VlqStatus clear(Vlq16sc* dst, Vlq32s len) {
    return vlqsZero_32s(reinterpret_cast<Vlq32s*>(dst), len);
}
inline VlqStatus clear(Vlq32sc* dst, Vlq32s len) {
    return vlqsZero_64s(reinterpret_cast<Vlq64s*>(dst), len);
}
inline VlqStatus clear(Vlq32fc* dst, Vlq32s len) {
    return vlqsZero_64s(reinterpret_cast<Vlq64s*>(dst), len);
}
inline VlqStatus clear(Vlq64fc* dst, Vlq32s len) {
    return vlqsZero_64sc(reinterpret_cast<Vlq64sc*>(dst), len);
}

// ---- copy: checks both vectors and len ----------------------------------------------------------
inline VlqStatus copy(const Vlq8u* src, Vlq8u* dst, Vlq32s len) {
    return vlqsCopy_8u(src, dst, len);
}
inline VlqStatus copy(const Vlq16s* src, Vlq16s* dst, Vlq32s len) {
    return vlqsCopy_16s(src, dst, len);
}
inline VlqStatus copy(const Vlq16u* src, Vlq16u* dst, Vlq32s len) {
    return vlqsCopy_16s(reinterpret_cast<const Vlq16s*>(src), reinterpret_cast<Vlq16s*>(dst), len);
}
inline VlqStatus copy(const Vlq32s* src, Vlq32s* dst, Vlq32s len) {
    return vlqsCopy_32s(src, dst, len);
}
inline VlqStatus copy(const Vlq32u* src, Vlq32u* dst, Vlq32s len) {
    return vlqsCopy_32s(reinterpret_cast<const Vlq32s*>(src), reinterpret_cast<Vlq32s*>(dst), len);
}
inline VlqStatus copy(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    return vlqsCopy_32s(reinterpret_cast<const Vlq32s*>(src), reinterpret_cast<Vlq32s*>(dst), len);
}
inline VlqStatus copy(const Vlq64s* src, Vlq64s* dst, Vlq32s len) {
    return vlqsCopy_64s(src, dst, len);
}
inline VlqStatus copy(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    return vlqsCopy_64s(reinterpret_cast<const Vlq64s*>(src), reinterpret_cast<Vlq64s*>(dst), len);
}
inline VlqStatus copy(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len) {
    return vlqsCopy_32s(elements(src), elements(dst), len);
}
inline VlqStatus copy(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len) {
    return vlqsCopy_64s(reinterpret_cast<const Vlq64s*>(src), reinterpret_cast<Vlq64s*>(dst), len);
}
inline VlqStatus copy(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len) {
    return vlqsCopy_64sc(reinterpret_cast<const Vlq64sc*>(src), reinterpret_cast<Vlq64sc*>(dst),
                         len);
}

}  // namespace vlq
