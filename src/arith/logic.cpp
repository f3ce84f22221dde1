#include "arith/logic_kernels.h"

#include "vlqs/arith.h"

namespace {

using namespace vlq::logic;

template <class T, class Op>
VlqStatus twoVectors(const T* src1, const T* src2, T* dst, Vlq32s len, Op op) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::map(dst, len, op, src1, src2);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsAnd_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, And{});
}
VlqStatus vlq::vlqsAnd_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, And{});
}
