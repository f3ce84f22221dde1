// Magnitude and phase of a complex signal, together or one of them, and the way back.
#include <algorithm>

#include "complex/magnitude_kernels.h"
#include "complex/phase_kernels.h"
#include "complex/rotation_kernels.h"
#include "frame/loop/element_views.h"
#include "frame/simd/control.h"
#include "vlqs/complex.h"

namespace {

using namespace vlq::magnitude;
using namespace vlq::phase;
using namespace vlq::rotation;
using vlq::Block;
using vlq::onPairs16;
using vlq::onParts;
using vlq::pairs;
using vlq::powerOfTwo;
using vlq::scaleFactorPower;
using vlq::StandardFloatMode;

template <class D, class... S>
VlqStatus check(const D* dst, Vlq32s len, const S*... src) {
    if ((!src || ...) || !dst) return vlqStsNullPtr;
    return len < 1 ? vlqStsBadSize : vlqStsOk;
}

// 2^-scaleFactor, limited to factors beyond which every result is 0 or saturates.
double limitedFactor(Vlq32s scaleFactor) {
    return scaleFactorPower<double>(std::clamp(scaleFactor, -200, 200));
}

// Sources are one vector of complex elements or two of parts.
template <class Op, class D, class... S>
VlqStatus run(const Op& op, D* dst, Vlq32s len, const S*... src) {
    if (const VlqStatus status = check(dst, len, src...); status != vlqStsOk) return status;
    vlq::mapLong(dst, len, op, src...);
    return vlqStsOk;
}
// The same of integers, whose rounding depends on the control register.
template <class Op, class D, class... S>
VlqStatus runRounding(const Op& op, D* dst, Vlq32s len, const S*... src) {
    if (const VlqStatus status = check(dst, len, src...); status != vlqStsOk) return status;
    const StandardFloatMode mode;
    vlq::mapLong(dst, len, op, src...);
    return vlqStsOk;
}

// ---- magnitude ----------------------------------------------------------------------------------
template <class T, class... S>
VlqStatus magnitudeOf(T* dst, Vlq32s len, const S*... src) {
    return run(onParts<T>(Magnitude<T>{}), dst, len, src...);
}
template <class... S>
VlqStatus magnitude16(Vlq32f* dst, Vlq32s len, const S*... src) {
    return run(onPairs16<Vlq32f>(Magnitude16ToFloat{}), dst, len, src...);
}
template <class... S>
VlqStatus magnitude16(Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor, const S*... src) {
    const Magnitude16 op(limitedFactor(scaleFactor));
    return runRounding(onPairs16<Vlq16s>(op), dst, len, src...);
}

// ---- phase --------------------------------------------------------------------------------------
template <class T, class... S>
VlqStatus phaseOf(T* dst, Vlq32s len, const S*... src) {
    return run(onParts<T>(Phase<T>{}), dst, len, src...);
}
template <class... S>
VlqStatus phase16(Vlq32f* dst, Vlq32s len, const S*... src) {
    return run(onPairs16<Vlq32f>(Phase16ToFloat{}), dst, len, src...);
}

// ---- both ---------------------------------------------------------------------------------------
template <class T>
struct MagnitudeAndPhase {
    vlq::TwoBlocks<T, 1> operator()(vlq::Split<T> v) const {
        return {Magnitude<T>{}(v), Phase<T>{}(v)};
    }
};
template <class T, class... S>
VlqStatus cartToPolar(T* dstMagn, T* dstPhase, Vlq32s len, const S*... src) {
    if (!dstPhase) return vlqStsNullPtr;
    if (const VlqStatus status = check(dstMagn, len, src...); status != vlqStsOk) return status;
    vlq::mapToTwo(dstMagn, dstPhase, len, onParts<T>(MagnitudeAndPhase<T>{}), src...);
    return vlqStsOk;
}

// ---- back ---------------------------------------------------------------------------------------
template <class T>
VlqStatus polarToCart(const T* srcMagn, const T* srcPhase, T* dstRe, T* dstIm, Vlq32s len) {
    if (!dstIm) return vlqStsNullPtr;
    if (const VlqStatus status = check(dstRe, len, srcMagn, srcPhase); status != vlqStsOk)
        return status;
    vlq::mapToTwo(dstRe, dstIm, len, ToParts<T>{}, srcMagn, srcPhase);
    return vlqStsOk;
}
template <class C, class T>
VlqStatus polarToCart(const T* srcMagn, const T* srcPhase, C* dst, Vlq32s len) {
    return run(ToPairs<T>{}, pairs(dst), len, srcMagn, srcPhase);
}
// The unit of the phases is a float.
FromIntegers fromFixedPoint(Vlq32s phaseFixedPoint) {
    return {1.0, double{scaleFactorPower<float>(phaseFixedPoint)}};
}

}  // namespace

VlqStatus vlq::vlqsCartToPolar_16sc_Sfs(const Vlq16sc* src, Vlq16s* dstMagn, Vlq16s* dstPhase,
                                        Vlq32s len, Vlq32s magnScale, Vlq32s phaseScale) {
    // Two calls: an error of the second one leaves the magnitudes of the first.
    if (const VlqStatus status = vlqsMagnitude_16sc_Sfs(src, dstMagn, len, magnScale);
        status != vlqStsOk)
        return status;
    return vlqsPhase_16sc_Sfs(src, dstPhase, len, phaseScale);
}
VlqStatus vlq::vlqsPhase_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    if (const VlqStatus status = check(dst, len, srcRe, srcIm); status != vlqStsOk) return status;
    // Even where a phase near pi would round to 1.
    if (scaleFactor >= 2) return clear(dst, len);
    const StandardFloatMode mode;
    if (scaleFactor == 0) {
        const Phase16 op{ScaledPhase(1.0)};
        mapLong(dst, len, onPairs16<Vlq16s>(op), srcRe, srcIm);
    } else if (scaleFactor >= -28) {
        const Phase16InFloats op{static_cast<float>(scaleFactorPower<double>(scaleFactor))};
        mapLong(dst, len, onPairs16<Vlq16s>(op), srcRe, srcIm);
    } else {
        // From -30 down everything but 0 saturates.
        const Phase16Far op{scaleFactorPower<double>(std::max(scaleFactor, -30))};
        mapLong(dst, len, onPairs16<Vlq16s>(op), srcRe, srcIm);
    }
    return vlqStsOk;
}

VlqStatus vlq::vlqsMagnitude_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dst,
                                 Vlq32s len) {
    return magnitudeOf(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsMagnitude_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dst,
                                 Vlq32s len) {
    return magnitudeOf(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsMagnitude_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len) {
    return magnitudeOf(dst, len, pairs(src));
}
VlqStatus vlq::vlqsMagnitude_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len) {
    return magnitudeOf(dst, len, pairs(src));
}
VlqStatus vlq::vlqsMagnitude_16s32f(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq32f* dst,
                                    Vlq32s len) {
    return magnitude16(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsMagnitude_16sc32f(const Vlq16sc* src, Vlq32f* dst, Vlq32s len) {
    return magnitude16(dst, len, pairs(src));
}
VlqStatus vlq::vlqsMagnitude_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dst,
                                     Vlq32s len, Vlq32s scaleFactor) {
    return magnitude16(dst, len, scaleFactor, srcRe, srcIm);
}
VlqStatus vlq::vlqsMagnitude_16sc_Sfs(const Vlq16sc* src, Vlq16s* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return magnitude16(dst, len, scaleFactor, pairs(src));
}
VlqStatus vlq::vlqsMagnitude_32sc_Sfs(const Vlq32sc* src, Vlq32s* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return runRounding(onParts<Vlq32s>(Magnitude32(std::clamp(scaleFactor, -40, 40))), dst, len,
                       pairs(src));
}

VlqStatus vlq::vlqsPhase_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dst, Vlq32s len) {
    return phaseOf(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsPhase_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dst, Vlq32s len) {
    return phaseOf(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsPhase_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len) {
    return phaseOf(dst, len, pairs(src));
}
VlqStatus vlq::vlqsPhase_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len) {
    return phaseOf(dst, len, pairs(src));
}
VlqStatus vlq::vlqsPhase_16s32f(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq32f* dst, Vlq32s len) {
    return phase16(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsPhase_16sc32f(const Vlq16sc* src, Vlq32f* dst, Vlq32s len) {
    return phase16(dst, len, pairs(src));
}
VlqStatus vlq::vlqsPhase_16sc_Sfs(const Vlq16sc* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return runRounding(onPairs16<Vlq16s>(Phase16{ScaledPhase(limitedFactor(scaleFactor))}), dst,
                       len, pairs(src));
}
VlqStatus vlq::vlqsPhase_32sc_Sfs(const Vlq32sc* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return runRounding(onParts<Vlq32s>(Phase32{ScaledPhase(limitedFactor(scaleFactor))}), dst, len,
                       pairs(src));
}

VlqStatus vlq::vlqsCartToPolar_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstMagn,
                                   Vlq32f* dstPhase, Vlq32s len) {
    return cartToPolar(dstMagn, dstPhase, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsCartToPolar_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dstMagn,
                                   Vlq64f* dstPhase, Vlq32s len) {
    return cartToPolar(dstMagn, dstPhase, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsCartToPolar_32fc(const Vlq32fc* src, Vlq32f* dstMagn, Vlq32f* dstPhase,
                                    Vlq32s len) {
    return cartToPolar(dstMagn, dstPhase, len, pairs(src));
}
VlqStatus vlq::vlqsCartToPolar_64fc(const Vlq64fc* src, Vlq64f* dstMagn, Vlq64f* dstPhase,
                                    Vlq32s len) {
    return cartToPolar(dstMagn, dstPhase, len, pairs(src));
}

VlqStatus vlq::vlqsPolarToCart_32f(const Vlq32f* srcMagn, const Vlq32f* srcPhase, Vlq32f* dstRe,
                                   Vlq32f* dstIm, Vlq32s len) {
    return polarToCart(srcMagn, srcPhase, dstRe, dstIm, len);
}
VlqStatus vlq::vlqsPolarToCart_64f(const Vlq64f* srcMagn, const Vlq64f* srcPhase, Vlq64f* dstRe,
                                   Vlq64f* dstIm, Vlq32s len) {
    return polarToCart(srcMagn, srcPhase, dstRe, dstIm, len);
}
VlqStatus vlq::vlqsPolarToCart_32fc(const Vlq32f* srcMagn, const Vlq32f* srcPhase, Vlq32fc* dst,
                                    Vlq32s len) {
    return polarToCart(srcMagn, srcPhase, dst, len);
}
VlqStatus vlq::vlqsPolarToCart_64fc(const Vlq64f* srcMagn, const Vlq64f* srcPhase, Vlq64fc* dst,
                                    Vlq32s len) {
    return polarToCart(srcMagn, srcPhase, dst, len);
}
VlqStatus vlq::vlqsPolarToCart_16sc(const Vlq16s* srcMagn, const Vlq16s* srcPhase,
                                    Vlq32s phaseFixedPoint, Vlq16sc* dst, Vlq32s len) {
    if (const VlqStatus status = check(dst, len, srcMagn, srcPhase); status != vlqStsOk)
        return status;
    if (phaseFixedPoint >= 16) return vlqStsBadSize;
    const StandardFloatMode mode;
    mapLong(pairs(dst), len, ToPairs16{fromFixedPoint(phaseFixedPoint)}, srcMagn, srcPhase);
    return vlqStsOk;
}
VlqStatus vlq::vlqsPolarToCart_32sc(const Vlq32s* srcMagn, const Vlq32s* srcPhase,
                                    Vlq32s phaseFixedPoint, Vlq32sc* dst, Vlq32s len) {
    if (const VlqStatus status = check(dst, len, srcMagn, srcPhase); status != vlqStsOk)
        return status;
    if (phaseFixedPoint >= 32) return vlqStsBadSize;
    const StandardFloatMode mode;
    mapLong(pairs(dst), len, ToPairs32{fromFixedPoint(phaseFixedPoint)}, srcMagn, srcPhase);
    return vlqStsOk;
}
VlqStatus vlq::vlqsPolarToCart_16sc_Sfs(const Vlq16s* srcMagn, const Vlq16s* srcPhase, Vlq16sc* dst,
                                        Vlq32s len, Vlq32s magnScale, Vlq32s phaseScale) {
    const auto magnFactor = powerOfTwo<double>(std::clamp(magnScale, -200, 200)),
               phaseFactor = powerOfTwo<double>(phaseScale);
    return runRounding(ToPairs16{FromIntegers(magnFactor, phaseFactor)}, pairs(dst), len, srcMagn,
                       srcPhase);
}
