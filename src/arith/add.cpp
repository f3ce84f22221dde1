// Sums and differences of two vectors. A difference is second minus first: src2 - src1, and
// srcDst - src in place.
#include "arith/add_kernels.h"
#include "frame/loop/element_views.h"

namespace {

using namespace vlq;
using namespace vlq::add;

// Clears dst, for scale factors at which every result is 0.
template <class T>
VlqStatus vanish(T* dst, Vlq32s len) {
    return clear(dst, len);
}
// Cleared as 32-bit integers, in a count of 32 bits: a count that wraps is refused by the clear.
VlqStatus vanish(Vlq64s* dst, Vlq32s len) {
    return clear(reinterpret_cast<Vlq32s*>(dst), twice(len));
}

template <class Op, class T>
VlqStatus scaled(const T* a, const T* b, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (classify<Op, T>(scaleFactor) == Scaling::Vanish) return vanish(dst, len);
    withScale<Op, T>(scaleFactor, [&](auto op) { map(dst, len, op, a, b); });
    return vlqStsOk;
}

template <class A, class B, class D, class Op>
VlqStatus unscaled(const A* a, const B* b, D* dst, Vlq32s len, Op op) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if constexpr (sizeof(A) == sizeof(B) && sizeof(B) == sizeof(D))
        mapStreaming(dst, len, op, a, b);
    else
        mapBlocksStreaming(dst, len, op, a, b);
    return vlqStsOk;
}

}  // namespace

// ---- sums ---------------------------------------------------------------------------------------
VlqStatus vlq::vlqsAdd_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                              Vlq32s scaleFactor) {
    return scaled<Sum>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Sum>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_8u16u(const Vlq8u* src1, const Vlq8u* src2, Vlq16u* dst, Vlq32s len) {
    return unscaled(src1, src2, dst, len, Widened<Sum>{});
}
VlqStatus vlq::vlqsAdd_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len) {
    return unscaled(src1, src2, dst, len, Saturated<Sum>{});
}
VlqStatus vlq::vlqsAdd_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Sum>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Sum>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len) {
    return unscaled(src1, src2, dst, len, Saturated<Sum>{});
}
VlqStatus vlq::vlqsAdd_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len) {
    return unscaled(srcDst, src, srcDst, len, Saturated<Sum>{});
}
VlqStatus vlq::vlqsAdd_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Sum>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Sum>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len) {
    return unscaled(src1, src2, dst, len, Widened<Sum>{});
}
VlqStatus vlq::vlqsAdd_16s32s_I(const Vlq16s* src, Vlq32s* srcDst, Vlq32s len) {
    return unscaled(srcDst, src, srcDst, len, WidenedToSum{});
}
VlqStatus vlq::vlqsAdd_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    if (len < 1) return vlqStsBadSize;
    return vlqsAdd_16s_Sfs(reals(src1), reals(src2), reals(dst), twice(len), scaleFactor);
}
VlqStatus vlq::vlqsAdd_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    if (len < 1) return vlqStsBadSize;
    return vlqsAdd_16s_ISfs(reals(src), reals(srcDst), twice(len), scaleFactor);
}
VlqStatus vlq::vlqsAdd_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len) {
    return unscaled(src1, src2, dst, len, Saturated<Sum>{});
}
VlqStatus vlq::vlqsAdd_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Sum>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Sum>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    if (len < 1) return vlqStsBadSize;
    return vlqsAdd_32s_Sfs(reals(src1), reals(src2), reals(dst), twice(len), scaleFactor);
}
VlqStatus vlq::vlqsAdd_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    if (len < 1) return vlqStsBadSize;
    return vlqsAdd_32s_ISfs(reals(src), reals(srcDst), twice(len), scaleFactor);
}
VlqStatus vlq::vlqsAdd_64s_Sfs(const Vlq64s* src1, const Vlq64s* src2, Vlq64s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Sum>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsAdd_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len) {
    return unscaled(src1, src2, dst, len, Exact<Sum>{});
}
VlqStatus vlq::vlqsAdd_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len) {
    return unscaled(srcDst, src, srcDst, len, Exact<Sum>{});
}
VlqStatus vlq::vlqsAdd_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len) {
    if (len < 1) return vlqStsBadSize;
    return vlqsAdd_32f(reals(src1), reals(src2), reals(dst), twice(len));
}
VlqStatus vlq::vlqsAdd_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len) {
    if (len < 1) return vlqStsBadSize;
    return vlqsAdd_32f_I(reals(src), reals(srcDst), twice(len));
}
VlqStatus vlq::vlqsAdd_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len) {
    return unscaled(src1, src2, dst, len, Exact<Sum>{});
}
VlqStatus vlq::vlqsAdd_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len) {
    return unscaled(srcDst, src, srcDst, len, Exact<Sum>{});
}
VlqStatus vlq::vlqsAdd_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len) {
    if (len < 1) return vlqStsBadSize;
    return vlqsAdd_64f(reals(src1), reals(src2), reals(dst), twice(len));
}
VlqStatus vlq::vlqsAdd_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len) {
    if (len < 1) return vlqStsBadSize;
    return vlqsAdd_64f_I(reals(src), reals(srcDst), twice(len));
}

// ---- differences --------------------------------------------------------------------------------
VlqStatus vlq::vlqsSub_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                              Vlq32s scaleFactor) {
    return scaled<Difference>(src2, src1, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Difference>(src2, src1, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len) {
    return unscaled(src2, src1, dst, len, Saturated<Difference>{});
}
VlqStatus vlq::vlqsSub_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len) {
    return unscaled(srcDst, src, srcDst, len, Saturated<Difference>{});
}
VlqStatus vlq::vlqsSub_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Difference>(src2, src1, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len) {
    return unscaled(src2, src1, dst, len, Widened<Difference>{});
}
VlqStatus vlq::vlqsSub_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    if (len < 1) return vlqStsBadSize;
    return vlqsSub_16s_Sfs(reals(src1), reals(src2), reals(dst), twice(len), scaleFactor);
}
VlqStatus vlq::vlqsSub_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    if (len < 1) return vlqStsBadSize;
    return vlqsSub_16s_ISfs(reals(src), reals(srcDst), twice(len), scaleFactor);
}
VlqStatus vlq::vlqsSub_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Difference>(src2, src1, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Difference>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSub_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    if (len < 1) return vlqStsBadSize;
    return vlqsSub_32s_Sfs(reals(src1), reals(src2), reals(dst), twice(len), scaleFactor);
}
VlqStatus vlq::vlqsSub_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    if (len < 1) return vlqStsBadSize;
    return vlqsSub_32s_ISfs(reals(src), reals(srcDst), twice(len), scaleFactor);
}
VlqStatus vlq::vlqsSub_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len) {
    return unscaled(src2, src1, dst, len, Exact<Difference>{});
}
VlqStatus vlq::vlqsSub_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len) {
    return unscaled(srcDst, src, srcDst, len, Exact<Difference>{});
}
VlqStatus vlq::vlqsSub_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len) {
    if (len < 1) return vlqStsBadSize;
    return vlqsSub_32f(reals(src1), reals(src2), reals(dst), twice(len));
}
VlqStatus vlq::vlqsSub_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len) {
    if (len < 1) return vlqStsBadSize;
    return vlqsSub_32f_I(reals(src), reals(srcDst), twice(len));
}
VlqStatus vlq::vlqsSub_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len) {
    return unscaled(src2, src1, dst, len, Exact<Difference>{});
}
VlqStatus vlq::vlqsSub_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len) {
    return unscaled(srcDst, src, srcDst, len, Exact<Difference>{});
}
VlqStatus vlq::vlqsSub_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len) {
    if (len < 1) return vlqStsBadSize;
    return vlqsSub_64f(reals(src1), reals(src2), reals(dst), twice(len));
}
VlqStatus vlq::vlqsSub_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len) {
    if (len < 1) return vlqStsBadSize;
    return vlqsSub_64f_I(reals(src), reals(srcDst), twice(len));
}
