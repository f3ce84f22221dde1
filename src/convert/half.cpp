#include "convert/half_kernels.h"

#include "frame/simd/control.h"
#include "vlqs/convert.h"

namespace {

using namespace vlq::convert;
using vlq::StandardFloatMode;

// Checks and the choice between the two rounding modes that there are; op(bool) runs the kernel.
template <class From, class To, class Run>
VlqStatus byMode(const From* src, const To* dst, Vlq32s len, VlqRoundMode mode, Run run) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (mode != vlqRndZero && mode != vlqRndNear) return vlqStsBadRoundMode;
    const StandardFloatMode hold(vlq::kHalfUsesControlWord);
    if (mode == vlqRndNear)
        run(std::true_type{});
    else
        run(std::false_type{});
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
    return byMode(src, dst, len, rndMode,
                  [=](auto nearest) { vlq::mapBlocks(dst, len, NarrowToHalf<nearest()>{}, src); });
}

VlqStatus vlq::vlqsConvert_16s16f(const Vlq16s* src, Vlq16f* dst, Vlq32s len,
                                  VlqRoundMode rndMode) {
    return byMode(src, dst, len, rndMode,
                  [=](auto nearest) { vlq::mapBlocks(dst, len, IntegerToHalf<nearest()>{}, src); });
}

VlqStatus vlq::vlqsConvert_16f16s_Sfs(const Vlq16f* src, Vlq16s* dst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return byMode(src, dst, len, rndMode, [=](auto nearest) {
        using Round = std::conditional_t<nearest(), Nearest, Zero>;
        // A factor that is subnormal must not be flushed, or infinity times it is no number.
        const StandardFloatMode hold(Round::usesControlWord || scaleFactor > 126);
        if (scaleFactor == 0) {
            vlq::mapBlocks(dst, len, HalfToInteger<Unscaled<float>, Round>{}, src);
        } else {
            const Times<float> scale{vlq::scaleFactorPower<float>(scaleFactor)};
            vlq::mapBlocks(dst, len, HalfToInteger<Times<float>, Round>{{scale, {}}}, src);
        }
    });
}
