// Conversions to and from half-precision (binary16) numbers.
#include "convert/half_kernels.h"

#include "frame/simd/control.h"
#include "vlqs/convert.h"

namespace {

using namespace vlq::convert;
using vlq::Rounding;
using vlq::StandardFloatMode;

// The checks, and run with the policy of one of the two rounding modes that there are here.
template <class From, class To, class Run>
VlqStatus byMode(const From* src, const To* dst, Vlq32s len, VlqRoundMode mode, Run run) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (mode != vlqRndZero && mode != vlqRndNear) return vlqStsBadRoundMode;
    const StandardFloatMode hold(vlq::kHalfUsesControlWord);
    if (mode == vlqRndNear)
        run(vlq::RoundingConstant<Rounding::TiesToEven>{});
    else
        run(vlq::RoundingConstant<Rounding::ToZero>{});
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsConvert_16f32f(const Vlq16f* src, Vlq32f* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapBlocks(dst, len, WidenHalf{}, src);
    return vlqStsOk;
}

VlqStatus vlq::vlqsConvert_32f16f(const Vlq32f* src, Vlq16f* dst, Vlq32s len,
                                  VlqRoundMode rndMode) {
    return byMode(src, dst, len, rndMode, [=](auto rounding) {
        vlq::mapBlocks(dst, len, NarrowToHalf<rounding()>{}, src);
    });
}

VlqStatus vlq::vlqsConvert_16s16f(const Vlq16s* src, Vlq16f* dst, Vlq32s len,
                                  VlqRoundMode rndMode) {
    return byMode(src, dst, len, rndMode, [=](auto rounding) {
        vlq::mapBlocks(dst, len, IntegerToHalf<rounding()>{}, src);
    });
}

VlqStatus vlq::vlqsConvert_16f16s_Sfs(const Vlq16f* src, Vlq16s* dst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return byMode(src, dst, len, rndMode, [=](auto rounding) {
        // A subnormal factor must not be flushed to 0, or infinity times the factor would be NaN.
        const StandardFloatMode hold(vlq::usesControlRegister<rounding()> || scaleFactor > 126);
        if (scaleFactor == 0) {
            vlq::mapBlocks(dst, len, HalfToInteger<Unscaled<float>, rounding()>{}, src);
        } else {
            const Times<float> scale{vlq::scaleFactorPower<float>(scaleFactor)};
            vlq::mapBlocks(dst, len, HalfToInteger<Times<float>, rounding()>{{scale}}, src);
        }
    });
}
