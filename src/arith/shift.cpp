// Shifts of every element by one count.
#include "arith/shift_kernels.h"
#include "frame/loop/element_views.h"

namespace {

using namespace vlq::shift;
using vlq::clear;
using vlq::copy;

template <class T>
inline constexpr Vlq32s kWidth = 8 * static_cast<Vlq32s>(sizeof(T));

// Callers see the order of checks: a count of 0 is a copy before anything is checked, and a count
// that shifts out every bit is a clear that checks src alone.
template <class T>
VlqStatus leftShift(const T* src, Vlq32s val, T* dst, Vlq32s len) {
    if (val == 0) return copy(src, dst, len);
    if (val >= kWidth<T>) return src ? clear(dst, len) : vlqStsNullPtr;
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val < 0) return vlqStsBadShift;
    vlq::map(dst, len, Left{val}, src);
    return vlqStsOk;
}

// An unsigned element loses every bit to a large count; a signed one keeps its sign.
template <class T>
VlqStatus rightShift(const T* src, Vlq32s val, T* dst, Vlq32s len) {
    if (val == 0) return copy(src, dst, len);
    if (std::is_unsigned_v<T> && val >= kWidth<T>) return src ? clear(dst, len) : vlqStsNullPtr;
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val < 0) return vlqStsBadShift;
    vlq::map(dst, len, Right{val < kWidth<T> ? val : kWidth<T> - 1}, src);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsLShiftC_8u(const Vlq8u* src, Vlq32s val, Vlq8u* dst, Vlq32s len) {
    return leftShift(src, val, dst, len);
}
VlqStatus vlq::vlqsLShiftC_8u_I(Vlq32s val, Vlq8u* srcDst, Vlq32s len) {
    return leftShift(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsLShiftC_16s(const Vlq16s* src, Vlq32s val, Vlq16s* dst, Vlq32s len) {
    return leftShift(src, val, dst, len);
}
VlqStatus vlq::vlqsLShiftC_16s_I(Vlq32s val, Vlq16s* srcDst, Vlq32s len) {
    return leftShift(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsLShiftC_16u(const Vlq16u* src, Vlq32s val, Vlq16u* dst, Vlq32s len) {
    return leftShift(src, val, dst, len);
}
VlqStatus vlq::vlqsLShiftC_16u_I(Vlq32s val, Vlq16u* srcDst, Vlq32s len) {
    return leftShift(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsLShiftC_32s(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len) {
    return leftShift(src, val, dst, len);
}
VlqStatus vlq::vlqsLShiftC_32s_I(Vlq32s val, Vlq32s* srcDst, Vlq32s len) {
    return leftShift(srcDst, val, srcDst, len);
}

VlqStatus vlq::vlqsRShiftC_8u(const Vlq8u* src, Vlq32s val, Vlq8u* dst, Vlq32s len) {
    return rightShift(src, val, dst, len);
}
VlqStatus vlq::vlqsRShiftC_8u_I(Vlq32s val, Vlq8u* srcDst, Vlq32s len) {
    return rightShift(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsRShiftC_16s(const Vlq16s* src, Vlq32s val, Vlq16s* dst, Vlq32s len) {
    return rightShift(src, val, dst, len);
}
VlqStatus vlq::vlqsRShiftC_16s_I(Vlq32s val, Vlq16s* srcDst, Vlq32s len) {
    return rightShift(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsRShiftC_16u(const Vlq16u* src, Vlq32s val, Vlq16u* dst, Vlq32s len) {
    return rightShift(src, val, dst, len);
}
VlqStatus vlq::vlqsRShiftC_16u_I(Vlq32s val, Vlq16u* srcDst, Vlq32s len) {
    return rightShift(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsRShiftC_32s(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len) {
    return rightShift(src, val, dst, len);
}
VlqStatus vlq::vlqsRShiftC_32s_I(Vlq32s val, Vlq32s* srcDst, Vlq32s len) {
    return rightShift(srcDst, val, srcDst, len);
}
