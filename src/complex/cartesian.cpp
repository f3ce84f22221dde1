// Views of a complex signal: conjugates, real and imaginary parts, absolute values.
#include "complex/cartesian_kernels.h"

#include "vlqs/complex.h"

namespace {

using namespace vlq::cartesian;
using vlq::pairs;

template <class C>
VlqStatus conj(const C* src, C* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    conjugate<decltype(C::re)>(pairs(dst), len, pairs(src));
    return vlqStsOk;
}
template <class C>
VlqStatus conjFlip(const C* src, C* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    conjugateReversed<decltype(C::re)>(pairs(dst), len, pairs(src));
    return vlqStsOk;
}
template <Part part, class C, class T>
VlqStatus onePart(const C* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapBlocks(dst, len, OnePart<T, part>{}, pairs(src));
    return vlqStsOk;
}
template <class T, class C>
VlqStatus realToCplx(const T* srcRe, const T* srcIm, C* dst, Vlq32s len) {
    if ((!srcRe && !srcIm) || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!srcIm)
        vlq::mapBlocks(pairs(dst), len, JoinOne<T, Part::Real>{}, srcRe);
    else if (!srcRe)
        vlq::mapBlocks(pairs(dst), len, JoinOne<T, Part::Imaginary>{}, srcIm);
    else
        vlq::mapBlocks(pairs(dst), len, Join<T>{}, srcRe, srcIm);
    return vlqStsOk;
}
template <class C, class T>
VlqStatus cplxToReal(const C* src, T* dstRe, T* dstIm, Vlq32s len) {
    if (!src || !dstRe || !dstIm) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapToTwo(dstRe, dstIm, len, BothParts<T>{}, pairs(src));
    return vlqStsOk;
}
template <class T>
VlqStatus abs(const T* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::map(dst, len, Absolute<T>{}, src);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsConj_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len) {
    return conj(src, dst, len);
}
VlqStatus vlq::vlqsConj_16sc_I(Vlq16sc* srcDst, Vlq32s len) { return conj(srcDst, srcDst, len); }
VlqStatus vlq::vlqsConj_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len) {
    return conj(src, dst, len);
}
VlqStatus vlq::vlqsConj_32fc_I(Vlq32fc* srcDst, Vlq32s len) { return conj(srcDst, srcDst, len); }
VlqStatus vlq::vlqsConj_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len) {
    return conj(src, dst, len);
}
VlqStatus vlq::vlqsConj_64fc_I(Vlq64fc* srcDst, Vlq32s len) { return conj(srcDst, srcDst, len); }
VlqStatus vlq::vlqsConjFlip_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len) {
    return conjFlip(src, dst, len);
}
VlqStatus vlq::vlqsConjFlip_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len) {
    return conjFlip(src, dst, len);
}
VlqStatus vlq::vlqsConjFlip_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len) {
    return conjFlip(src, dst, len);
}
VlqStatus vlq::vlqsReal_16sc(const Vlq16sc* src, Vlq16s* dst, Vlq32s len) {
    return onePart<Part::Real>(src, dst, len);
}
VlqStatus vlq::vlqsReal_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len) {
    return onePart<Part::Real>(src, dst, len);
}
VlqStatus vlq::vlqsReal_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len) {
    return onePart<Part::Real>(src, dst, len);
}
VlqStatus vlq::vlqsImag_16sc(const Vlq16sc* src, Vlq16s* dst, Vlq32s len) {
    return onePart<Part::Imaginary>(src, dst, len);
}
VlqStatus vlq::vlqsImag_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len) {
    return onePart<Part::Imaginary>(src, dst, len);
}
VlqStatus vlq::vlqsImag_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len) {
    return onePart<Part::Imaginary>(src, dst, len);
}
VlqStatus vlq::vlqsRealToCplx_16s(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16sc* dst,
                                  Vlq32s len) {
    return realToCplx(srcRe, srcIm, dst, len);
}
VlqStatus vlq::vlqsRealToCplx_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32fc* dst,
                                  Vlq32s len) {
    return realToCplx(srcRe, srcIm, dst, len);
}
VlqStatus vlq::vlqsRealToCplx_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64fc* dst,
                                  Vlq32s len) {
    return realToCplx(srcRe, srcIm, dst, len);
}
VlqStatus vlq::vlqsCplxToReal_16sc(const Vlq16sc* src, Vlq16s* dstRe, Vlq16s* dstIm, Vlq32s len) {
    return cplxToReal(src, dstRe, dstIm, len);
}
VlqStatus vlq::vlqsCplxToReal_32fc(const Vlq32fc* src, Vlq32f* dstRe, Vlq32f* dstIm, Vlq32s len) {
    return cplxToReal(src, dstRe, dstIm, len);
}
VlqStatus vlq::vlqsCplxToReal_64fc(const Vlq64fc* src, Vlq64f* dstRe, Vlq64f* dstIm, Vlq32s len) {
    return cplxToReal(src, dstRe, dstIm, len);
}
VlqStatus vlq::vlqsAbs_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len) {
    return abs(src, dst, len);
}
VlqStatus vlq::vlqsAbs_16s_I(Vlq16s* srcDst, Vlq32s len) { return abs(srcDst, srcDst, len); }
VlqStatus vlq::vlqsAbs_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len) {
    return abs(src, dst, len);
}
VlqStatus vlq::vlqsAbs_32s_I(Vlq32s* srcDst, Vlq32s len) { return abs(srcDst, srcDst, len); }
VlqStatus vlq::vlqsAbs_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    return abs(src, dst, len);
}
VlqStatus vlq::vlqsAbs_32f_I(Vlq32f* srcDst, Vlq32s len) { return abs(srcDst, srcDst, len); }
VlqStatus vlq::vlqsAbs_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    return abs(src, dst, len);
}
VlqStatus vlq::vlqsAbs_64f_I(Vlq64f* srcDst, Vlq32s len) { return abs(srcDst, srcDst, len); }
