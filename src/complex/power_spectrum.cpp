// Squared magnitudes: of floats, of integers to floats, and of integers with a scale factor.
#include "complex/power_spectrum_kernels.h"

#include <algorithm>

#include "frame/loop/element_views.h"
#include "frame/scale/power_of_two.h"
#include "frame/simd/control.h"
#include "vlqs/complex.h"

namespace {

using namespace vlq::power;
using vlq::onPairs16;
using vlq::onParts;
using vlq::pairs;

template <class D, class... S>
VlqStatus check(const D* dst, Vlq32s len, const S*... src) {
    if ((!src || ...) || !dst) return vlqStsNullPtr;
    return len < 1 ? vlqStsBadSize : vlqStsOk;
}

// Sources are one vector of complex elements or two of parts.
template <class T, class... S>
VlqStatus real(T* dst, Vlq32s len, const S*... src) {
    if (const VlqStatus status = check(dst, len, src...); status != vlqStsOk) return status;
    vlq::mapBlocks(dst, len, onParts<T>(Power<T>{}), src...);
    return vlqStsOk;
}
template <class... S>
VlqStatus toFloats(Vlq32f* dst, Vlq32s len, const S*... src) {
    if (const VlqStatus status = check(dst, len, src...); status != vlqStsOk) return status;
    vlq::mapBlocks(dst, len, onPairs16<Vlq32f>(Power16ToFloat{}), src...);
    return vlqStsOk;
}
template <class... S>
VlqStatus scaled(Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor, const S*... src) {
    if (const VlqStatus status = check(dst, len, src...); status != vlqStsOk) return status;
    if (scaleFactor >= Power16Right::kVanishes) return vlq::clear(dst, len);
    if (scaleFactor > 0)
        vlq::mapBlocks(dst, len, onPairs16<Vlq16s>(Power16Right(scaleFactor)), src...);
    else if (scaleFactor < 0)
        vlq::mapBlocks(dst, len, onPairs16<Vlq16s>(Power16Left(scaleFactor)), src...);
    else
        vlq::mapBlocks(dst, len, onPairs16<Vlq16s>(Power16{}), src...);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsMagSquared_32fc64f(const Vlq32fc* src, Vlq64f* dst, Vlq32s len) {
    if (const VlqStatus status = check(dst, len, src); status != vlqStsOk) return status;
    vlq::mapBlocks(dst, len, PowerInDoubles{}, pairs(src));
    return vlqStsOk;
}
VlqStatus vlq::vlqsMagSquared_32sc32s_Sfs(const Vlq32sc* src, Vlq32s* dst, Vlq32s len,
                                          Vlq32s scaleFactor) {
    if (const VlqStatus status = check(dst, len, src); status != vlqStsOk) return status;
    if (scaleFactor > 63) return vlqsZero_32s(dst, len);
    const vlq::StandardFloatMode mode;
    // From -31 down everything but 0 saturates.
    const auto factor = scaleFactorPower<double>(std::max(scaleFactor, -31));
    vlq::mapLong(dst, len, onParts<Vlq32s>(Power32(factor)), pairs(src));
    return vlqStsOk;
}

VlqStatus vlq::vlqsPowerSpectr_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dst,
                                   Vlq32s len) {
    return real(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsPowerSpectr_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dst,
                                   Vlq32s len) {
    return real(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsPowerSpectr_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len) {
    return real(dst, len, pairs(src));
}
VlqStatus vlq::vlqsPowerSpectr_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len) {
    return real(dst, len, pairs(src));
}
VlqStatus vlq::vlqsPowerSpectr_16s32f(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq32f* dst,
                                      Vlq32s len) {
    return toFloats(dst, len, srcRe, srcIm);
}
VlqStatus vlq::vlqsPowerSpectr_16sc32f(const Vlq16sc* src, Vlq32f* dst, Vlq32s len) {
    return toFloats(dst, len, pairs(src));
}
VlqStatus vlq::vlqsPowerSpectr_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dst,
                                       Vlq32s len, Vlq32s scaleFactor) {
    return scaled(dst, len, scaleFactor, srcRe, srcIm);
}
VlqStatus vlq::vlqsPowerSpectr_16sc_Sfs(const Vlq16sc* src, Vlq16s* dst, Vlq32s len,
                                        Vlq32s scaleFactor) {
    return scaled(dst, len, scaleFactor, pairs(src));
}
