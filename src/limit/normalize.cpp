// Normalization: subtract a constant, then divide by another.
#include "limit/normalize_kernels.h"

#include <cmath>
#include <limits>

#include "frame/loop/element_views.h"
#include "frame/loop/map_complex.h"
#include "frame/simd/control.h"
#include "vlqs/limit.h"

namespace {

using namespace vlq::normalize;
using vlq::Vec;

// The limit is that of single precision for doubles too.
template <class T, class Divisor>
VlqStatus check(const T* src, const T* dst, Vlq32s len, Divisor vDiv) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if constexpr (std::is_integral_v<Divisor>)
        return vDiv == 0 ? vlqStsZeroDivisor : vlqStsOk;
    else
        return std::abs(vDiv) < Divisor{std::numeric_limits<Vlq32f>::min()} ? vlqStsZeroDivisor
                                                                            : vlqStsOk;
}

template <class T>
VlqStatus real(const T* src, T* dst, Vlq32s len, T vSub, T vDiv) {
    if (const VlqStatus status = check(src, dst, len, vDiv); status != vlqStsOk) return status;
    vlq::map(dst, len, SubtractMultiply<T>{Vec<T>::broadcast(vSub), 1 / vDiv}, src);
    return vlqStsOk;
}
template <vlq::ComplexSample C>
VlqStatus complex(const C* src, C* dst, Vlq32s len, C vSub, vlq::PartOf<C> vDiv) {
    using T = vlq::PartOf<C>;
    if (const VlqStatus status = check(src, dst, len, vDiv); status != vlqStsOk) return status;
    const SubtractMultiply<T> op{vlq::broadcastPair(vSub.re, vSub.im), 1 / vDiv};
    vlq::mapComplex(dst, len, op, src);
    return vlqStsOk;
}

// n elements of 16 bits or of two parts of 16 bits each, as parts.
template <int parts>
void integers(const Vlq16s* src, Vlq16s* dst, std::ptrdiff_t len, Vlq16s first, Vlq16s second,
              Vlq32s vDiv, Vlq32s scaleFactor) {
    const vlq::StandardFloatMode mode;
    const auto factor = 1 / static_cast<Vlq32f>(vDiv) * vlq::wrappedPower(scaleFactor);
    vlq::mapBlocks<parts>(dst, len * parts, ScaledIntegers(first, second, factor), src);
}

}  // namespace

VlqStatus vlq::vlqsNormalize_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f vSub,
                                 Vlq32f vDiv) {
    return real(src, dst, len, vSub, vDiv);
}
VlqStatus vlq::vlqsNormalize_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f vSub,
                                 Vlq64f vDiv) {
    return real(src, dst, len, vSub, vDiv);
}
VlqStatus vlq::vlqsNormalize_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32fc vSub,
                                  Vlq32f vDiv) {
    return complex(src, dst, len, vSub, vDiv);
}
VlqStatus vlq::vlqsNormalize_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64fc vSub,
                                  Vlq64f vDiv) {
    return complex(src, dst, len, vSub, vDiv);
}
VlqStatus vlq::vlqsNormalize_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s vSub,
                                     Vlq32s vDiv, Vlq32s scaleFactor) {
    if (const VlqStatus status = check(src, dst, len, vDiv); status != vlqStsOk) return status;
    integers<1>(src, dst, len, vSub, vSub, vDiv, scaleFactor);
    return vlqStsOk;
}
VlqStatus vlq::vlqsNormalize_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16sc vSub,
                                      Vlq32s vDiv, Vlq32s scaleFactor) {
    if (const VlqStatus status = check(src, dst, len, vDiv); status != vlqStsOk) return status;
    integers<2>(reals(src), reals(dst), len, vSub.re, vSub.im, vDiv, scaleFactor);
    return vlqStsOk;
}
