// Thresholds: elements beyond a level are limited to it or replaced.
#include "limit/threshold_kernels.h"

#include "frame/loop/any.h"
#include "frame/loop/element_views.h"
#include "frame/loop/map_complex.h"
#include "frame/simd/control.h"
#include "vlqs/limit.h"

namespace {

using namespace vlq::threshold;
using vlq::ComplexSample;
using vlq::PartOf;
using vlq::Vec;

template <class T>
VlqStatus check(const T* src, const T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    return len < 1 ? vlqStsBadSize : vlqStsOk;
}
// The same, and a level of magnitudes.
template <class T, class Level>
VlqStatus check(const T* src, const T* dst, Vlq32s len, Level level) {
    if (const VlqStatus status = check(src, dst, len); status != vlqStsOk) return status;
    return level < 0 ? vlqStsThresholdNegative : vlqStsOk;
}

template <Side side, class T>
VlqStatus clamp(const T* src, T* dst, Vlq32s len, T level) {
    if (const VlqStatus status = check(src, dst, len); status != vlqStsOk) return status;
    vlq::map(dst, len, Clamp<side, T>{level}, src);
    return vlqStsOk;
}
template <Side side, ComplexSample C>
VlqStatus clamp(const C* src, C* dst, Vlq32s len, PartOf<C> level) {
    if (const VlqStatus status = check(src, dst, len, level); status != vlqStsOk) return status;
    // No magnitude is below 0, and only 0 is not above it.
    if (level == 0) return side == Side::Below ? vlq::copy(src, dst, len) : vlq::clear(dst, len);
    const vlq::StandardFloatMode mode;
    if constexpr (sizeof(C) == sizeof(Vlq16sc))
        vlq::map(vlq::elements(dst), len, ClampComplex16<side>{level}, vlq::elements(src));
    else
        vlq::mapComplex(dst, len, ClampComplex<side, PartOf<C>>(level), src);
    return vlqStsOk;
}
template <class T, class Level>
VlqStatus clampEither(const T* src, T* dst, Vlq32s len, Level level, VlqCmpOp relOp) {
    if (const VlqStatus status = check(src, dst, len); status != vlqStsOk) return status;
    if (relOp == vlqCmpLess) return clamp<Side::Below>(src, dst, len, level);
    if (relOp == vlqCmpGreater) return clamp<Side::Above>(src, dst, len, level);
    return vlqStsBadArg;
}

template <Side side, class T>
VlqStatus clampMagnitude(const T* src, T* dst, Vlq32s len, T level) {
    if (const VlqStatus status = check(src, dst, len, level); status != vlqStsOk) return status;
    vlq::map(dst, len, ClampMagnitude<side, T>{level}, src);
    return vlqStsOk;
}

template <Side side, class T>
VlqStatus replace(const T* src, T* dst, Vlq32s len, T level, T value) {
    if (const VlqStatus status = check(src, dst, len); status != vlqStsOk) return status;
    vlq::map(dst, len, Replace<side, T>{level, value}, src);
    return vlqStsOk;
}
template <Side side, ComplexSample C>
VlqStatus replace(const C* src, C* dst, Vlq32s len, PartOf<C> level, C value) {
    if (const VlqStatus status = check(src, dst, len, level); status != vlqStsOk) return status;
    if constexpr (sizeof(C) == sizeof(Vlq16sc)) {
        const ReplaceComplex16<side> op{level, std::bit_cast<Vlq32s>(value)};
        vlq::map(vlq::elements(dst), len, op, vlq::elements(src));
    } else {
        const ReplaceComplex<side, PartOf<C>> op(level, value.re, value.im);
        vlq::mapComplex(dst, len, op, src);
    }
    return vlqStsOk;
}

template <class T>
VlqStatus replaceBoth(const T* src, T* dst, Vlq32s len, T levelLT, T valueLT, T levelGT,
                      T valueGT) {
    if (const VlqStatus status = check(src, dst, len); status != vlqStsOk) return status;
    if (levelLT > levelGT) return vlqStsThresholdRange;
    vlq::map(dst, len, ReplaceBoth<T>{levelLT, valueLT, levelGT, valueGT}, src);
    return vlqStsOk;
}

// A zero element has an inverse only where the level raises it first.
template <class T>
VlqStatus invert(const T* src, T* dst, Vlq32s len, T level) {
    if (const VlqStatus status = check(src, dst, len, level); status != vlqStsOk) return status;
    const bool hasZero =
        level == 0 && vlq::anyOf(src, len, [](Vec<T> x) { return x == Vec<T>::zero(); });
    vlq::map(dst, len, Invert<T>{level}, src);
    return hasZero ? vlqStsWarnInvZero : vlqStsOk;
}
template <ComplexSample C>
VlqStatus invert(const C* src, C* dst, Vlq32s len, PartOf<C> level) {
    using T = PartOf<C>;
    if (const VlqStatus status = check(src, dst, len, level); status != vlqStsOk) return status;
    const auto isZero = [](Vec<T> x) {
        const auto parts = vlq::bitCast<T>(x == Vec<T>::zero());
        return vlq::bitCast<vlq::BitsOf<T>>(parts & vlq::swapParts(parts));
    };
    const bool hasZero = level == 0 && vlq::anyOf(vlq::reals(src), 2 * std::ptrdiff_t{len}, isZero);
    vlq::mapComplex(dst, len, InvertComplex<T>{level}, src);
    return hasZero ? vlqStsWarnInvZero : vlqStsOk;
}

}  // namespace

// ---- a level on either side ---------------------------------------------------------------------
VlqStatus vlq::vlqsThreshold_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level,
                                 VlqCmpOp relOp) {
    return clampEither(src, dst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level, VlqCmpOp relOp) {
    return clampEither(srcDst, srcDst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level,
                                 VlqCmpOp relOp) {
    return clampEither(src, dst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level, VlqCmpOp relOp) {
    return clampEither(srcDst, srcDst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level,
                                 VlqCmpOp relOp) {
    return clampEither(src, dst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level, VlqCmpOp relOp) {
    return clampEither(srcDst, srcDst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level,
                                  VlqCmpOp relOp) {
    return clampEither(src, dst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level, VlqCmpOp relOp) {
    return clampEither(srcDst, srcDst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level,
                                  VlqCmpOp relOp) {
    return clampEither(src, dst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level, VlqCmpOp relOp) {
    return clampEither(srcDst, srcDst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level,
                                  VlqCmpOp relOp) {
    return clampEither(src, dst, len, level, relOp);
}
VlqStatus vlq::vlqsThreshold_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level, VlqCmpOp relOp) {
    return clampEither(srcDst, srcDst, len, level, relOp);
}
// ---- a level on one side ------------------------------------------------------------------------
VlqStatus vlq::vlqsThreshold_LT_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level) {
    return clamp<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level) {
    return clamp<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s level) {
    return clamp<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s level) {
    return clamp<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level) {
    return clamp<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level) {
    return clamp<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level) {
    return clamp<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level) {
    return clamp<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level) {
    return clamp<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level) {
    return clamp<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level) {
    return clamp<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level) {
    return clamp<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level) {
    return clamp<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LT_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level) {
    return clamp<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level) {
    return clamp<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level) {
    return clamp<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s level) {
    return clamp<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s level) {
    return clamp<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level) {
    return clamp<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level) {
    return clamp<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level) {
    return clamp<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level) {
    return clamp<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level) {
    return clamp<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level) {
    return clamp<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level) {
    return clamp<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level) {
    return clamp<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level) {
    return clamp<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GT_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level) {
    return clamp<Side::Above>(srcDst, srcDst, len, level);
}
// ---- a level for magnitudes ---------------------------------------------------------------------
VlqStatus vlq::vlqsThreshold_LTAbs_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level) {
    return clampMagnitude<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTAbs_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level) {
    return clampMagnitude<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTAbs_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s level) {
    return clampMagnitude<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTAbs_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s level) {
    return clampMagnitude<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTAbs_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level) {
    return clampMagnitude<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTAbs_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level) {
    return clampMagnitude<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTAbs_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level) {
    return clampMagnitude<Side::Below>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTAbs_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level) {
    return clampMagnitude<Side::Below>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GTAbs_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level) {
    return clampMagnitude<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GTAbs_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level) {
    return clampMagnitude<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GTAbs_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s level) {
    return clampMagnitude<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GTAbs_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s level) {
    return clampMagnitude<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GTAbs_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level) {
    return clampMagnitude<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GTAbs_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level) {
    return clampMagnitude<Side::Above>(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_GTAbs_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level) {
    return clampMagnitude<Side::Above>(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_GTAbs_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level) {
    return clampMagnitude<Side::Above>(srcDst, srcDst, len, level);
}
// ---- another value in place of the level --------------------------------------------------------
VlqStatus vlq::vlqsThreshold_LTVal_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level,
                                       Vlq16s value) {
    return replace<Side::Below>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level, Vlq16s value) {
    return replace<Side::Below>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level,
                                       Vlq32f value) {
    return replace<Side::Below>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level, Vlq32f value) {
    return replace<Side::Below>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level,
                                       Vlq64f value) {
    return replace<Side::Below>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level, Vlq64f value) {
    return replace<Side::Below>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level,
                                        Vlq16sc value) {
    return replace<Side::Below>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level,
                                          Vlq16sc value) {
    return replace<Side::Below>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level,
                                        Vlq32fc value) {
    return replace<Side::Below>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level,
                                          Vlq32fc value) {
    return replace<Side::Below>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level,
                                        Vlq64fc value) {
    return replace<Side::Below>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_LTVal_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level,
                                          Vlq64fc value) {
    return replace<Side::Below>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level,
                                       Vlq16s value) {
    return replace<Side::Above>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level, Vlq16s value) {
    return replace<Side::Above>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level,
                                       Vlq32f value) {
    return replace<Side::Above>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level, Vlq32f value) {
    return replace<Side::Above>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level,
                                       Vlq64f value) {
    return replace<Side::Above>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level, Vlq64f value) {
    return replace<Side::Above>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level,
                                        Vlq16sc value) {
    return replace<Side::Above>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level,
                                          Vlq16sc value) {
    return replace<Side::Above>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level,
                                        Vlq32fc value) {
    return replace<Side::Above>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level,
                                          Vlq32fc value) {
    return replace<Side::Above>(srcDst, srcDst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level,
                                        Vlq64fc value) {
    return replace<Side::Above>(src, dst, len, level, value);
}
VlqStatus vlq::vlqsThreshold_GTVal_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level,
                                          Vlq64fc value) {
    return replace<Side::Above>(srcDst, srcDst, len, level, value);
}
// ---- two levels, two values ---------------------------------------------------------------------
VlqStatus vlq::vlqsThreshold_LTValGTVal_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                            Vlq16s levelLT, Vlq16s valueLT, Vlq16s levelGT,
                                            Vlq16s valueGT) {
    return replaceBoth(src, dst, len, levelLT, valueLT, levelGT, valueGT);
}
VlqStatus vlq::vlqsThreshold_LTValGTVal_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s levelLT,
                                              Vlq16s valueLT, Vlq16s levelGT, Vlq16s valueGT) {
    return replaceBoth(srcDst, srcDst, len, levelLT, valueLT, levelGT, valueGT);
}
VlqStatus vlq::vlqsThreshold_LTValGTVal_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len,
                                            Vlq32s levelLT, Vlq32s valueLT, Vlq32s levelGT,
                                            Vlq32s valueGT) {
    return replaceBoth(src, dst, len, levelLT, valueLT, levelGT, valueGT);
}
VlqStatus vlq::vlqsThreshold_LTValGTVal_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s levelLT,
                                              Vlq32s valueLT, Vlq32s levelGT, Vlq32s valueGT) {
    return replaceBoth(srcDst, srcDst, len, levelLT, valueLT, levelGT, valueGT);
}
VlqStatus vlq::vlqsThreshold_LTValGTVal_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len,
                                            Vlq32f levelLT, Vlq32f valueLT, Vlq32f levelGT,
                                            Vlq32f valueGT) {
    return replaceBoth(src, dst, len, levelLT, valueLT, levelGT, valueGT);
}
VlqStatus vlq::vlqsThreshold_LTValGTVal_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f levelLT,
                                              Vlq32f valueLT, Vlq32f levelGT, Vlq32f valueGT) {
    return replaceBoth(srcDst, srcDst, len, levelLT, valueLT, levelGT, valueGT);
}
VlqStatus vlq::vlqsThreshold_LTValGTVal_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len,
                                            Vlq64f levelLT, Vlq64f valueLT, Vlq64f levelGT,
                                            Vlq64f valueGT) {
    return replaceBoth(src, dst, len, levelLT, valueLT, levelGT, valueGT);
}
VlqStatus vlq::vlqsThreshold_LTValGTVal_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f levelLT,
                                              Vlq64f valueLT, Vlq64f levelGT, Vlq64f valueGT) {
    return replaceBoth(srcDst, srcDst, len, levelLT, valueLT, levelGT, valueGT);
}
// ---- inverses -----------------------------------------------------------------------------------
VlqStatus vlq::vlqsThreshold_LTInv_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level) {
    return invert(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTInv_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level) {
    return invert(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTInv_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level) {
    return invert(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTInv_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level) {
    return invert(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTInv_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                                        Vlq32f level) {
    return invert(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTInv_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level) {
    return invert(srcDst, srcDst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTInv_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len,
                                        Vlq64f level) {
    return invert(src, dst, len, level);
}
VlqStatus vlq::vlqsThreshold_LTInv_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level) {
    return invert(srcDst, srcDst, len, level);
}
