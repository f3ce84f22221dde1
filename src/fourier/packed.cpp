#include "fourier/packed_kernels.h"

#include "vlqs/fourier.h"

namespace {

using namespace vlq::packed;

template <class T>
VlqStatus productPack(const T* srcA, const T* srcB, T* dst, Vlq32s len) {
    if (!srcA || !srcB || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    multiplyPack(srcA, srcB, dst, len, Product{});
    return vlqStsOk;
}

template <class T>
VlqStatus productPerm(const T* srcA, const T* srcB, T* dst, Vlq32s len) {
    if (!srcA || !srcB || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    multiplyPerm(srcA, srcB, dst, len, Product{});
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsMulPack_32f(const Vlq32f* srcA, const Vlq32f* srcB, Vlq32f* dst, Vlq32s len) {
    return productPack(srcA, srcB, dst, len);
}
VlqStatus vlq::vlqsMulPack_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len) {
    return productPack(src, srcDst, srcDst, len);
}
VlqStatus vlq::vlqsMulPerm_32f(const Vlq32f* srcA, const Vlq32f* srcB, Vlq32f* dst, Vlq32s len) {
    return productPerm(srcA, srcB, dst, len);
}
VlqStatus vlq::vlqsMulPerm_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len) {
    return productPerm(src, srcDst, srcDst, len);
}
