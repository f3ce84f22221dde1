// Quotients of integers. The second vector is divided by the first.
#include "arith/divide_kernels.h"
#include "arith/divide_wide_kernels.h"
#include "frame/loop/element_views.h"

#include <algorithm>

#include "frame/simd/control.h"

namespace {

using namespace vlq::divide;
using vlq::clear;
using vlq::elements;
using vlq::Rounding;
using vlq::StandardFloatMode;
using vlq::Vec;

template <class T>
bool anyZero(const T* divisors, Vlq32s len) {
    return vlq::anyOf(divisors, len, [](Vec<T> v) { return v == Vec<T>::zero(); });
}

template <class Op, class A, class B, class D>
VlqStatus divided(const Op& op, const A* divisors, const B* numerators, D* dst, Vlq32s len) {
    auto found0 = Vec<vlq::BitsOf<A>>::zero();
    const auto is0 = [](Vec<A> v) { return v == Vec<A>::zero(); };
    vlq::mapBlocks(dst, len, vlq::Watching<Op, decltype(is0), decltype(found0)>(op, is0, &found0),
                   divisors, numerators);
    const bool hasZero = vlq::any(found0);
    vlq::clearUpperHalves();  // the loop hands its findings over in vectors after its end
    return hasZero ? vlqStsWarnDivByZero : vlqStsOk;
}

// Below -30 every quotient but 0 must saturate; a factor of 2^31 would not be enough for 1 / 65535.
float quotientScale(Vlq32s scaleFactor) {
    return floatFactor(scaleFactor < -30 ? std::min(scaleFactor, -32) : scaleFactor);
}

template <Rounding rounding, class T>
VlqStatus divided(const T* divisors, const T* numerators, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    const StandardFloatMode hold;
    const auto factor = Vec<float>::broadcast(quotientScale(scaleFactor));
    return divided(Quotient<T, rounding>{factor}, divisors, numerators, dst, len);
}

template <class T>
VlqStatus scaled(const T* src1, const T* src2, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    return divided<Rounding::TiesToEven>(src1, src2, dst, len, scaleFactor);
}

template <class T>
VlqStatus roundedByMode(const T* src1, const T* src2, T* dst, Vlq32s len, VlqRoundMode rndMode,
                        Vlq32s scaleFactor) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (rndMode != vlqRndZero && rndMode != vlqRndNear && rndMode != vlqRndFinancial)
        return vlqStsBadRoundMode;
    if (scaleFactor >= 17) {
        // From here on all results are 0, even those of zero divisors, which still warn.
        const VlqStatus status = anyZero(src1, len) ? vlqStsWarnDivByZero : vlqStsOk;
        clear(dst, len);
        return status;
    }
    VlqStatus status = vlqStsOk;
    vlq::withRounding(rndMode, [&](auto rounding) {
        status = divided<rounding()>(src1, src2, dst, len, scaleFactor);
    });
    return status;
}

VlqStatus scaled32s(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                    Vlq32s scaleFactor) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode hold;
    return divided(Quotient32s{Vec<double>::broadcast(doubleFactor(scaleFactor))}, src1, src2, dst,
                   len);
}

VlqStatus scaled16sc(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                     Vlq32s scaleFactor) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode hold;
    const ComplexQuotient16sc op{Vec<double>::broadcast(doubleFactor(scaleFactor))};
    return divided(
        [op](const auto& d, const auto& n) {
            return vlq::Block<Vlq32s, 1>{{op(d.part[0], n.part[0])}};
        },
        elements(src1), elements(src2), elements(dst), len);
}

template <class T>
VlqStatus scaledByConstant(const T* src, T val, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val == 0) return vlqStsZeroDivisor;
    const StandardFloatMode hold;
    const float reciprocal = quotientScale(scaleFactor) / static_cast<float>(val);
    vlq::mapBlocks(dst, len, TimesReciprocal<T>{Vec<float>::broadcast(reciprocal)}, src);
    return vlqStsOk;
}

VlqStatus scaledByConstant16sc(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val.re == 0 && val.im == 0) return vlqStsZeroDivisor;
    const StandardFloatMode hold;
    const double re = val.re, im = val.im;
    const double factor = doubleFactor(scaleFactor) / (re * re + im * im);
    vlq::map(elements(dst), len,
             TimesReciprocal16sc{Vec<double>::broadcast(re * factor),
                                 Vec<double>::broadcast(-im * factor)},
             elements(src));
    return vlqStsOk;
}

VlqStatus constantBy16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const VlqStatus status = anyZero(src, len) ? vlqStsWarnDivByZero : vlqStsOk;
    if (val == 0) {
        clear(dst, len);
        return status;
    }
    const StandardFloatMode hold;
    const Quotient<Vlq16u, Rounding::TiesToEven> op{Vec<float>::broadcast(1.0f)};
    const vlq::Block<Vlq16u, 1> numerators{{Vec<Vlq16u>::broadcast(val)}};
    vlq::mapBlocks(
        dst, len, [op, numerators](const auto& divisors) { return op(divisors, numerators); }, src);
    return status;
}

}  // namespace

// ---- two vectors --------------------------------------------------------------------------------
VlqStatus vlq::vlqsDiv_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                              Vlq32s scaleFactor) {
    return scaled(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(src, srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(src, srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(src, srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaled32s(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled32s(src, srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_32s16s_Sfs(const Vlq16s* src1, const Vlq32s* src2, Vlq16s* dst, Vlq32s len,
                                  Vlq32s scaleFactor) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode hold;
    return divided(Quotient32s{Vec<double>::broadcast(doubleFactor(scaleFactor))}, src1, src2, dst,
                   len);
}
VlqStatus vlq::vlqsDiv_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaled16sc(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDiv_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return scaled16sc(src, srcDst, srcDst, len, scaleFactor);
}

// ---- two vectors, rounded by mode ---------------------------------------------------------------
VlqStatus vlq::vlqsDiv_Round_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                                    VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedByMode(src1, src2, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsDiv_Round_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len,
                                     VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedByMode(src, srcDst, srcDst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsDiv_Round_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst,
                                     Vlq32s len, VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedByMode(src1, src2, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsDiv_Round_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedByMode(src, srcDst, srcDst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsDiv_Round_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst,
                                     Vlq32s len, VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedByMode(src1, src2, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsDiv_Round_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedByMode(src, srcDst, srcDst, len, rndMode, scaleFactor);
}

// ---- a constant ---------------------------------------------------------------------------------
VlqStatus vlq::vlqsDivC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return scaledByConstant(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDivC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledByConstant(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsDivC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaledByConstant(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDivC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledByConstant(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsDivC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return scaledByConstant(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDivC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledByConstant(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsDivC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return scaledByConstant16sc(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsDivC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledByConstant16sc(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsDivC_64s_ISfs(Vlq64s val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    if (!srcDst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val == 0) return vlqStsZeroDivisor;
    const bool vanishes =
        withQuotient(val, scaleFactor, [&](auto op) { mapScalars(srcDst, len, op, srcDst); });
    return vanishes ? vlqsZero_64s(srcDst, len) : vlqStsOk;
}
VlqStatus vlq::vlqsDivCRev_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len) {
    return constantBy16u(src, val, dst, len);
}
VlqStatus vlq::vlqsDivCRev_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len) {
    return constantBy16u(srcDst, val, srcDst, len);
}
