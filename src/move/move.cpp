// Zero, set, copy and move.
#include "vlqs/move.h"
#include "frame/loop/bulk.h"
#include "frame/simd/control.h"
#include "vlqs/arith.h"

namespace {

using vlq::Byte;
using Pattern = vlq::Vec<Byte>;

// Long vectors are handled by functions of their own in tail calls, so that short ones, where the
// call itself is the cost, need no stack frame. No vectors are among their arguments, lest they
// return with the upper halves of the registers in use.
template <class T>
[[gnu::noinline]] VlqStatus fillLongRun(Byte* dst, std::size_t bytes, T val) {
    vlq::fillLong<sizeof(T)>(dst, bytes, vlq::repeated(val));
    return vlqStsOk;
}
[[gnu::noinline]] VlqStatus copyLongRun(Byte* dst, const Byte* src, std::size_t bytes) {
    vlq::copyLong(dst, src, bytes);
    return vlqStsOk;
}
[[gnu::noinline]] VlqStatus moveLongRun(Byte* dst, const Byte* src, std::size_t bytes) {
    vlq::moveLong(dst, src, bytes);
    return vlqStsOk;
}

template <class T, class Value>
VlqStatus fill(T* dst, Vlq32s len, Value val, Pattern pattern) {
    auto* to = reinterpret_cast<Byte*>(dst);
    const std::size_t bytes = static_cast<std::size_t>(len) * sizeof(T);
    if (bytes > vlq::kShort) return fillLongRun(to, bytes, val);
    vlq::fillShort(to, bytes, pattern);
    vlq::clearUpperHalves();  // the pattern is an argument where this is not inlined
    return vlqStsOk;
}

template <class T>
VlqStatus zero(T* dst, Vlq32s len) {
    if (!dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return fill(dst, len, Byte{0}, vlq::opaque(Pattern::zero()));
}

template <class T>
VlqStatus set(T val, T* dst, Vlq32s len) {
    if (!dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return fill(dst, len, val, vlq::repeated(val));
}

template <class T>
VlqStatus copy(const T* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    auto* to = reinterpret_cast<Byte*>(dst);
    const auto* from = reinterpret_cast<const Byte*>(src);
    const std::size_t bytes = static_cast<std::size_t>(len) * sizeof(T);
    if (bytes > vlq::kShort) return copyLongRun(to, from, bytes);
    vlq::copyShort(to, from, bytes);
    return vlqStsOk;
}

template <class T>
VlqStatus move(const T* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    auto* to = reinterpret_cast<Byte*>(dst);
    const auto* from = reinterpret_cast<const Byte*>(src);
    const std::size_t bytes = static_cast<std::size_t>(len) * sizeof(T);
    if (bytes > vlq::kShort) return moveLongRun(to, from, bytes);
    vlq::copyShort(to, from, bytes);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsZero_8u(Vlq8u* dst, Vlq32s len) { return zero(dst, len); }
VlqStatus vlq::vlqsZero_16s(Vlq16s* dst, Vlq32s len) { return zero(dst, len); }
VlqStatus vlq::vlqsZero_32s(Vlq32s* dst, Vlq32s len) { return zero(dst, len); }
VlqStatus vlq::vlqsZero_64s(Vlq64s* dst, Vlq32s len) { return zero(dst, len); }
VlqStatus vlq::vlqsZero_64sc(Vlq64sc* dst, Vlq32s len) { return zero(dst, len); }

VlqStatus vlq::vlqsSet_8u(Vlq8u val, Vlq8u* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_16s(Vlq16s val, Vlq16s* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_16sc(Vlq16sc val, Vlq16sc* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_32s(Vlq32s val, Vlq32s* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_32f(Vlq32f val, Vlq32f* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_32sc(Vlq32sc val, Vlq32sc* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_32fc(Vlq32fc val, Vlq32fc* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_64s(Vlq64s val, Vlq64s* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_64f(Vlq64f val, Vlq64f* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_64sc(Vlq64sc val, Vlq64sc* dst, Vlq32s len) { return set(val, dst, len); }
VlqStatus vlq::vlqsSet_64fc(Vlq64fc val, Vlq64fc* dst, Vlq32s len) { return set(val, dst, len); }

VlqStatus vlq::vlqsCopy_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len) { return copy(src, dst, len); }
VlqStatus vlq::vlqsCopy_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len) {
    return copy(src, dst, len);
}
VlqStatus vlq::vlqsCopy_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len) {
    return copy(src, dst, len);
}
VlqStatus vlq::vlqsCopy_64s(const Vlq64s* src, Vlq64s* dst, Vlq32s len) {
    return copy(src, dst, len);
}
VlqStatus vlq::vlqsCopy_64sc(const Vlq64sc* src, Vlq64sc* dst, Vlq32s len) {
    return copy(src, dst, len);
}

VlqStatus vlq::vlqsMove_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len) { return move(src, dst, len); }
VlqStatus vlq::vlqsMove_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len) {
    return move(src, dst, len);
}
VlqStatus vlq::vlqsMove_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len) {
    return move(src, dst, len);
}
VlqStatus vlq::vlqsMove_64s(const Vlq64s* src, Vlq64s* dst, Vlq32s len) {
    return move(src, dst, len);
}
VlqStatus vlq::vlqsMove_64sc(const Vlq64sc* src, Vlq64sc* dst, Vlq32s len) {
    return move(src, dst, len);
}
