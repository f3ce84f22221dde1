// Products of 8 and 16-bit integers.
#include "arith/multiply_kernels.h"
#include "frame/loop/element_views.h"

#include <bit>

namespace {

using namespace vlq::multiply;
using vlq::Block;
using vlq::clear;
using vlq::elements;
using vlq::Scaling;
using vlq::Vec;

template <class Family>
bool vanishes(Vlq32s scaleFactor) {
    return vlq::classify<Family, Vlq32s>(scaleFactor) == Scaling::Vanish;
}

// What the kernels see of a vector: 16-bit complex values move as 32-bit elements.
template <class T>
const T* elements(const T* p) {
    return p;
}
template <class T>
T* elements(T* p) {
    return p;
}
template <class T>
T element(T value) {
    return value;
}
Vlq32s element(Vlq16sc value) { return std::bit_cast<Vlq32s>(value); }

template <class Family, class A, class B, class D>
VlqStatus scaled(const A* a, const B* b, D* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<Family>(scaleFactor)) return clear(elements(dst), len);
    withScale<Family>(scaleFactor,
                      [&](auto op) { vlq::map(elements(dst), len, op, elements(a), elements(b)); });
    return vlqStsOk;
}

template <class Family, class T>
VlqStatus scaledByConstant(const T* src, T val, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<Family>(scaleFactor)) return clear(elements(dst), len);
    const auto b = Vec<decltype(element(val))>::broadcast(element(val));
    withScale<Family>(scaleFactor, [&](auto op) {
        vlq::map(
            elements(dst), len, [op, b](auto a) { return op(a, b); }, elements(src));
    });
    return vlqStsOk;
}

// A constant of 0 clears at every scale; 1 without a scale copies.
VlqStatus scaledByConstant16s(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val == 0) return vlq::vlqsZero_16s(dst, len);
    if (val == 1 && scaleFactor == 0)
        return src == dst ? vlqStsOk : vlq::vlqsCopy_16s(src, dst, len);
    return scaledByConstant<Product16s>(src, val, dst, len, scaleFactor);
}

}  // namespace

// ---- two vectors --------------------------------------------------------------------------------
VlqStatus vlq::vlqsMul_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                              Vlq32s scaleFactor) {
    return scaled<Product8u>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Product8u>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_8u16u(const Vlq8u* src1, const Vlq8u* src2, Vlq16u* dst, Vlq32s len) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    mapBlocks(
        dst, len,
        [](const Block<Vlq8u, 1>& a, const Block<Vlq8u, 1>& b) {
            return inMemoryOrder(productLanes(a.part[0], b.part[0]));
        },
        src1, src2);
    return vlqStsOk;
}
VlqStatus vlq::vlqsMul_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len) {
    return scaled<Product16s>(src1, src2, dst, len, 0);
}
VlqStatus vlq::vlqsMul_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len) {
    return scaled<Product16s>(srcDst, src, srcDst, len, 0);
}
VlqStatus vlq::vlqsMul_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Product16s>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Product16s>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled<Product16u>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled<Product16u>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_16u16s_Sfs(const Vlq16u* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                                  Vlq32s scaleFactor) {
    return scaled<Product16u16s>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaled<Product16sc>(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return scaled<Product16sc>(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_16s32s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq32s* dst, Vlq32s len,
                                  Vlq32s scaleFactor) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<Product16s32s>(scaleFactor)) return clear(dst, len);
    withScale16s32s(scaleFactor, [&](auto scale) {
        mapBlocks(dst, len, StoreProduct16s32s<decltype(scale)>{scale}, src1, src2);
    });
    return vlqStsOk;
}

// ---- a constant ---------------------------------------------------------------------------------
VlqStatus vlq::vlqsMulC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaledByConstant<Product8u>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledByConstant<Product8u>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len) {
    return scaledByConstant16s(srcDst, val, srcDst, len, 0);
}
VlqStatus vlq::vlqsMulC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaledByConstant16s(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledByConstant16s(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaledByConstant<Product16u>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledByConstant<Product16u>(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return scaledByConstant<Product16sc>(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledByConstant<Product16sc>(srcDst, val, srcDst, len, scaleFactor);
}

// ---- products added to a vector -----------------------------------------------------------------
VlqStatus vlq::vlqsAddProduct_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* srcDst,
                                      Vlq32s len, Vlq32s scaleFactor) {
    if (!src1 || !src2 || !srcDst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<SumOfProduct16s>(scaleFactor)) return clear(srcDst, len);
    withScale<SumOfProduct16s>(scaleFactor,
                               [&](auto op) { map(srcDst, len, op, srcDst, src1, src2); });
    return vlqStsOk;
}
VlqStatus vlq::vlqsAddProduct_16s32s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq32s* srcDst,
                                         Vlq32s len, Vlq32s scaleFactor) {
    if (!src1 || !src2 || !srcDst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<SumOfProduct16s32s>(scaleFactor)) return clear(srcDst, len);
    withScaleOfSum16s32s(scaleFactor, [&](auto add) {
        mapBlocks(srcDst, len, AddProduct16s32s<decltype(add)>{add}, srcDst, src1, src2);
    });
    return vlqStsOk;
}
