// Conversions to and from packed 24-bit integers.
#include "convert/packed24_kernels.h"

#include <algorithm>

#include "frame/simd/control.h"
#include "vlqs/convert.h"

namespace {

using namespace vlq::convert;
using vlq::StandardFloatMode;

template <bool kSigned, class To, class Op>
VlqStatus fromPacked(const Vlq8u* src, To* dst, Vlq32s len, Op op) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapFromPacked24<kSigned>(dst, src, len, op);
    return vlqStsOk;
}

template <class From>
VlqStatus integerToPacked(const From* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (scaleFactor > 0) {
        vlq::mapToPacked24(
            dst, src, len,
            ToPacked<RoundShiftTo24<From>>{{vlq::RoundShift<From>(std::min(scaleFactor, 31))}});
    } else {
        const int count = -std::max(scaleFactor, -ShiftLeftTo24<From>::highest);
        vlq::mapToPacked24(dst, src, len, ToPacked<ShiftLeftTo24<From>>{{count}});
    }
    return vlqStsOk;
}

VlqStatus floatToPacked(const Vlq32f* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor, float low,
                        float high) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode hold(vlq::usesControlRegister<vlq::Rounding::TiesToEven> ||
                                 !subnormalsVanish<float>(scaleFactor));
    if (scaleFactor == 0) {
        vlq::mapToPacked24(dst, src, len, ToPacked<FloatTo24<Unscaled<float>>>{{{}, low, high}});
    } else {
        const Times<float> scale{vlq::scaleFactorPower<float>(scaleFactor)};
        vlq::mapToPacked24(dst, src, len, ToPacked<FloatTo24<Times<float>>>{{scale, low, high}});
    }
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsConvert_24s32s(const Vlq8u* src, Vlq32s* dst, Vlq32s len) {
    return fromPacked<true>(src, dst, len, FromPackedInteger{});
}
VlqStatus vlq::vlqsConvert_24u32u(const Vlq8u* src, Vlq32u* dst, Vlq32s len) {
    return fromPacked<false>(src, dst, len, FromPackedUnsigned{});
}
VlqStatus vlq::vlqsConvert_24s32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len) {
    return fromPacked<true>(src, dst, len, FromPackedToFloat{});
}
VlqStatus vlq::vlqsConvert_24u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len) {
    return fromPacked<false>(src, dst, len, FromPackedToFloat{});
}

VlqStatus vlq::vlqsConvert_32s24s_Sfs(const Vlq32s* src, Vlq8u* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return integerToPacked(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsConvert_32u24u_Sfs(const Vlq32u* src, Vlq8u* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return integerToPacked(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsConvert_32f24s_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return floatToPacked(src, dst, len, scaleFactor, -8388608.0f, 8388607.0f);
}
VlqStatus vlq::vlqsConvert_32f24u_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return floatToPacked(src, dst, len, scaleFactor, 0.0f, 16777215.0f);
}
