// Sums and differences of two vectors. A difference is second minus first: src2 - src1, and
// srcDst - src in place.
#include "arith/add_kernels.h"

#include "vlqs/arith.h"

namespace {

using namespace vlq::add;
using vlq::Scaling;

// All results are 0: the clear of that width tests and writes the destination.
VlqStatus vanish(Vlq16s* dst, Vlq32s len) { return vlq::vlqsZero_16s(dst, len); }

template <class Op, class T>
VlqStatus saturated(const T* a, const T* b, T* dst, Vlq32s len) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::map(dst, len, [](vlq::Vec<T> x, vlq::Vec<T> y) { return Op::saturated(x, y); }, a, b);
    return vlqStsOk;
}

template <class Op, class T>
VlqStatus scaled(const T* a, const T* b, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vlq::classify<Op, T>(scaleFactor) == Scaling::Vanish) return vanish(dst, len);
    withScale<Op, T>(scaleFactor, [&](auto op) { vlq::map(dst, len, op, a, b); });
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsAdd_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len) {
    return saturated<Sum>(src1, src2, dst, len);
}
VlqStatus vlq::vlqsAdd_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len) {
    return saturated<Sum>(srcDst, src, srcDst, len);
}
VlqStatus vlq::vlqsAdd_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Sum>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Sum>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len) {
    return saturated<Difference>(src2, src1, dst, len);
}
VlqStatus vlq::vlqsSub_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len) {
    return saturated<Difference>(srcDst, src, srcDst, len);
}
VlqStatus vlq::vlqsSub_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(src2, src1, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(srcDst, src, srcDst, len, scaleFactor);
}
