#include "fourier/packed_fixed_kernels.h"

#include "fourier/packed_kernels.h"
#include "vlqs/fft.h"

namespace {

using namespace vlq::packed;

// The real terms stand at the front and, of an even length, at `second`; pairs begin at `pairs`.
VlqStatus product(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
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

VlqStatus expand(const Vlq16s* src, Vlq16sc* dst, Vlq32s len,
                 void (*kernel)(const Vlq16s*, Vlq16s*, std::ptrdiff_t)) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    kernel(src, reinterpret_cast<Vlq16s*>(dst), len);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsMulPack_16s_Sfs(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    return product(srcA, srcB, dst, len, scaleFactor, false);
}
VlqStatus vlq::vlqsMulPack_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len,
                                    Vlq32s scaleFactor) {
    return product(src, srcDst, srcDst, len, scaleFactor, false);
}
VlqStatus vlq::vlqsMulPerm_16s_Sfs(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    return product(srcA, srcB, dst, len, scaleFactor, true);
}
VlqStatus vlq::vlqsMulPerm_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len,
                                    Vlq32s scaleFactor) {
    return product(src, srcDst, srcDst, len, scaleFactor, true);
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
