// Products of floats, and products added to floats.
#include "arith/multiply_float_kernels.h"

#include "vlqs/arith.h"

namespace {

using namespace vlq::multiply;
using vlq::Vec;

template <class T>
VlqStatus product(const T* a, const T* b, T* dst, Vlq32s len) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapStreaming(dst, len, Product{}, a, b);
    return vlqStsOk;
}

template <class T>
VlqStatus complexProduct(const T* a, const T* b, T* dst, Vlq32s len) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapComplex(dst, len, ComplexProduct{}, a, b);
    return vlqStsOk;
}

template <class T>
VlqStatus productByConstant(const T* src, T val, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapStreaming(
        dst, len, [b = Vec<T>::broadcast(val)](Vec<T> a) { return a * b; }, src);
    return vlqStsOk;
}

template <class T>
VlqStatus complexProductByConstant(const T* src, T val, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    using V = Vec<decltype(val.re)>;
    vlq::mapComplex(
        dst, len, [b = vlq::broadcastPair(val.re, val.im)](V a) { return ComplexProduct{}(b, a); },
        src);
    return vlqStsOk;
}

VlqStatus realByComplex(const Vlq32f* real, const Vlq32fc* complex, Vlq32fc* dst, Vlq32s len) {
    if (!real || !complex || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapRealByComplex(dst, len, Product{}, real, complex);
    return vlqStsOk;
}

template <class T>
VlqStatus accumulate(const T* a, const T* b, T* acc, Vlq32s len) {
    if (!a || !b || !acc) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::map(acc, len, Accumulate<Product>{}, acc, a, b);
    return vlqStsOk;
}

template <class T>
VlqStatus accumulateComplex(const T* a, const T* b, T* acc, Vlq32s len) {
    if (!a || !b || !acc) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapComplex(acc, len, Accumulate<ComplexProduct>{}, acc, a, b);
    return vlqStsOk;
}

}  // namespace

// ---- two vectors --------------------------------------------------------------------------------
VlqStatus vlq::vlqsMul_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len) {
    return product(src1, src2, dst, len);
}
VlqStatus vlq::vlqsMul_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len) {
    return product(srcDst, src, srcDst, len);
}
VlqStatus vlq::vlqsMul_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len) {
    return product(src1, src2, dst, len);
}
VlqStatus vlq::vlqsMul_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len) {
    return product(srcDst, src, srcDst, len);
}
VlqStatus vlq::vlqsMul_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len) {
    return complexProduct(src1, src2, dst, len);
}
VlqStatus vlq::vlqsMul_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len) {
    return complexProduct(srcDst, src, srcDst, len);
}
VlqStatus vlq::vlqsMul_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len) {
    return complexProduct(src1, src2, dst, len);
}
VlqStatus vlq::vlqsMul_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len) {
    return complexProduct(srcDst, src, srcDst, len);
}
VlqStatus vlq::vlqsMul_32f32fc(const Vlq32f* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len) {
    return realByComplex(src1, src2, dst, len);
}
VlqStatus vlq::vlqsMul_32f32fc_I(const Vlq32f* src, Vlq32fc* srcDst, Vlq32s len) {
    return realByComplex(src, srcDst, srcDst, len);
}
VlqStatus vlq::vlqsMul_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    mapBlocks(dst, len, ProductAsFloat{}, src1, src2);
    return vlqStsOk;
}

// ---- a constant ---------------------------------------------------------------------------------
VlqStatus vlq::vlqsMulC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len) {
    return productByConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsMulC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len) {
    return productByConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsMulC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len) {
    return productByConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsMulC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len) {
    return productByConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsMulC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len) {
    return complexProductByConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsMulC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len) {
    return complexProductByConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsMulC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len) {
    return complexProductByConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsMulC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len) {
    return complexProductByConstant(srcDst, val, srcDst, len);
}

// ---- products added to a vector -----------------------------------------------------------------
VlqStatus vlq::vlqsAddProduct_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* srcDst,
                                  Vlq32s len) {
    return accumulate(src1, src2, srcDst, len);
}
VlqStatus vlq::vlqsAddProduct_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* srcDst,
                                  Vlq32s len) {
    return accumulate(src1, src2, srcDst, len);
}
VlqStatus vlq::vlqsAddProduct_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* srcDst,
                                   Vlq32s len) {
    return accumulateComplex(src1, src2, srcDst, len);
}
VlqStatus vlq::vlqsAddProduct_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* srcDst,
                                   Vlq32s len) {
    return accumulateComplex(src1, src2, srcDst, len);
}
VlqStatus vlq::vlqsAddProductC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* srcDst, Vlq32s len) {
    if (!src || !srcDst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    using V = Vec<Vlq32f>;
    map(
        srcDst, len, [b = V::broadcast(val)](V acc, V a) { return acc + a * b; }, srcDst, src);
    return vlqStsOk;
}
