// Products and expansion of packed spectra: the exported functions.
#include "fourier/packed_kernels.h"

#include "vlqs/fft.h"

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

template <class T>
VlqStatus productPackConjugate(const T* src, T* srcDst, Vlq32s len) {
    if (!src || !srcDst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    multiplyPack(src, srcDst, srcDst, len, ProductConjugate{});
    return vlqStsOk;
}

// The real terms are the first element and, of an even length, element `second`; the pairs begin at
// element `pairs`.
VlqStatus productScaled(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                        Vlq32s scaleFactor, bool perm) {
    if (!srcA || !srcB || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const ProductScale scale(scaleFactor);
    const bool even = len % 2 == 0;
    const Vlq32s second = perm ? 1 : len - 1, pairs = perm && even ? 2 : 1;
    multiplyReal(srcA, srcB, dst, scale);
    if (even) multiplyReal(srcA + second, srcB + second, dst + second, scale);
    multiplyPairs(srcA + pairs, srcB + pairs, dst + pairs, (len - 1) / 2, scale);
    return vlqStsOk;
}

template <class T, class Complex>
VlqStatus expand(const T* src, Complex* dst, Vlq32s len,
                 void (*kernel)(const T*, T*, std::ptrdiff_t)) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    kernel(src, reinterpret_cast<T*>(dst), len);
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

VlqStatus vlq::vlqsMulPack_64f(const Vlq64f* srcA, const Vlq64f* srcB, Vlq64f* dst, Vlq32s len) {
    return productPack(srcA, srcB, dst, len);
}
VlqStatus vlq::vlqsMulPack_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len) {
    return productPack(src, srcDst, srcDst, len);
}
VlqStatus vlq::vlqsMulPerm_64f(const Vlq64f* srcA, const Vlq64f* srcB, Vlq64f* dst, Vlq32s len) {
    return productPerm(srcA, srcB, dst, len);
}
VlqStatus vlq::vlqsMulPerm_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len) {
    return productPerm(src, srcDst, srcDst, len);
}
VlqStatus vlq::vlqsMulPackConj_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len) {
    return productPackConjugate(src, srcDst, len);
}
VlqStatus vlq::vlqsMulPackConj_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len) {
    return productPackConjugate(src, srcDst, len);
}

VlqStatus vlq::vlqsMulPack_16s_Sfs(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    return productScaled(srcA, srcB, dst, len, scaleFactor, false);
}
VlqStatus vlq::vlqsMulPack_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len,
                                    Vlq32s scaleFactor) {
    return productScaled(src, srcDst, srcDst, len, scaleFactor, false);
}
VlqStatus vlq::vlqsMulPerm_16s_Sfs(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    return productScaled(srcA, srcB, dst, len, scaleFactor, true);
}
VlqStatus vlq::vlqsMulPerm_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len,
                                    Vlq32s scaleFactor) {
    return productScaled(src, srcDst, srcDst, len, scaleFactor, true);
}

VlqStatus vlq::vlqsConjPack_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len) {
    return expand(src, dst, len, expandPack<Vlq32f>);
}
VlqStatus vlq::vlqsConjPack_32fc_I(Vlq32fc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq32f*>(srcDst), srcDst, len, expandPack<Vlq32f>);
}
VlqStatus vlq::vlqsConjPack_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len) {
    return expand(src, dst, len, expandPack<Vlq64f>);
}
VlqStatus vlq::vlqsConjPack_64fc_I(Vlq64fc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq64f*>(srcDst), srcDst, len, expandPack<Vlq64f>);
}
VlqStatus vlq::vlqsConjPerm_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len) {
    return expand(src, dst, len, expandPerm<Vlq32f>);
}
VlqStatus vlq::vlqsConjPerm_32fc_I(Vlq32fc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq32f*>(srcDst), srcDst, len, expandPerm<Vlq32f>);
}
VlqStatus vlq::vlqsConjPerm_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len) {
    return expand(src, dst, len, expandPerm<Vlq64f>);
}
VlqStatus vlq::vlqsConjPerm_64fc_I(Vlq64fc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq64f*>(srcDst), srcDst, len, expandPerm<Vlq64f>);
}
VlqStatus vlq::vlqsConjCcs_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len) {
    return expand(src, dst, len, expandCcs<Vlq32f>);
}
VlqStatus vlq::vlqsConjCcs_32fc_I(Vlq32fc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq32f*>(srcDst), srcDst, len, expandCcs<Vlq32f>);
}
VlqStatus vlq::vlqsConjCcs_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len) {
    return expand(src, dst, len, expandCcs<Vlq64f>);
}
VlqStatus vlq::vlqsConjCcs_64fc_I(Vlq64fc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq64f*>(srcDst), srcDst, len, expandCcs<Vlq64f>);
}

VlqStatus vlq::vlqsConjCcs_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len) {
    return expand(src, dst, len, expandCcs<Vlq16s>);
}
VlqStatus vlq::vlqsConjCcs_16sc_I(Vlq16sc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq16s*>(srcDst), srcDst, len, expandCcs<Vlq16s>);
}
VlqStatus vlq::vlqsConjPack_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len) {
    return expand(src, dst, len, expandPack<Vlq16s>);
}
VlqStatus vlq::vlqsConjPack_16sc_I(Vlq16sc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq16s*>(srcDst), srcDst, len, expandPack<Vlq16s>);
}
VlqStatus vlq::vlqsConjPerm_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len) {
    return expand(src, dst, len, expandPerm<Vlq16s>);
}
VlqStatus vlq::vlqsConjPerm_16sc_I(Vlq16sc* srcDst, Vlq32s len) {
    return expand(reinterpret_cast<const Vlq16s*>(srcDst), srcDst, len, expandPerm<Vlq16s>);
}
