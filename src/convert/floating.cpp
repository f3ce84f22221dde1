// Conversions between integers and floats, and between floats of both widths.
#include "convert/floating_kernels.h"

#include <algorithm>

#include "frame/simd/control.h"
#include "vlqs/convert.h"

namespace {

using namespace vlq::convert;
using vlq::StandardFloatMode;

template <class From, class To, class Op>
VlqStatus plain(const From* src, To* dst, std::int64_t len, Op op) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapBlocks(dst, len, op, src);
    return vlqStsOk;
}

template <class From, class To>
VlqStatus roundedToInteger(const From* src, To* dst, std::int64_t len, VlqRoundMode mode,
                           Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const bool flushingMatters = !subnormalsVanish<From>(scaleFactor);
    auto withScale = [&](auto scale) {
        vlq::withRounding(mode, [&](auto rounding) {
            const StandardFloatMode hold(vlq::usesControlRegister<rounding()> || flushingMatters);
            vlq::mapBlocks(dst, len, IntegerOf<To, decltype(scale), rounding()>{scale}, src);
        });
    };
    if (scaleFactor == 0)
        withScale(Unscaled<From>{});
    else
        withScale(Times<From>{vlq::scaleFactorPower<From>(scaleFactor)});
    return vlqStsOk;
}

// Op<Scale> with 2^-scaleFactor, where scaleFactor is clamped to [lowest, highest].
template <template <class> class Op, class T, class From>
VlqStatus toScaled(const From* src, T* dst, Vlq32s len, Vlq32s scaleFactor, int lowest,
                   int highest) {
    if (scaleFactor == 0) return plain(src, dst, len, Op<Unscaled<T>>{});
    return plain(
        src, dst, len,
        Op<Times<T>>{{vlq::scaleFactorPower<T>(std::clamp(scaleFactor, lowest, highest))}});
}

}  // namespace

// ---- integers to floats -------------------------------------------------------------------------
VlqStatus vlq::vlqsConvert_8s32f(const Vlq8s* src, Vlq32f* dst, Vlq32s len) {
    return plain(src, dst, len, ToFloat<Unscaled<float>>{});
}
VlqStatus vlq::vlqsConvert_8u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len) {
    return plain(src, dst, len, ToFloat<Unscaled<float>>{});
}
VlqStatus vlq::vlqsConvert_16s32f(const Vlq16s* src, Vlq32f* dst, Vlq32s len) {
    return plain(src, dst, len, ToFloat<Unscaled<float>>{});
}
VlqStatus vlq::vlqsConvert_16u32f(const Vlq16u* src, Vlq32f* dst, Vlq32s len) {
    return plain(src, dst, len, ToFloat<Unscaled<float>>{});
}
VlqStatus vlq::vlqsConvert_32s32f(const Vlq32s* src, Vlq32f* dst, Vlq32s len) {
    return plain(src, dst, len, ToFloat<Unscaled<float>>{});
}
VlqStatus vlq::vlqsConvert_32s64f(const Vlq32s* src, Vlq64f* dst, Vlq32s len) {
    return plain(src, dst, len, ToDouble<Unscaled<double>>{});
}
VlqStatus vlq::vlqsConvert_64s64f(const Vlq64s* src, Vlq64f* dst, Vlq32u len) {
    return plain(src, dst, len, ToDouble<Unscaled<double>>{});
}

// The lowest scale factors keep every 16-bit sample finite. For 32-bit samples the power of two
// itself is kept finite, not the result.
VlqStatus vlq::vlqsConvert_16s32f_Sfs(const Vlq16s* src, Vlq32f* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return toScaled<ToFloat>(src, dst, len, scaleFactor, -112, 126);
}
VlqStatus vlq::vlqsConvert_16s64f_Sfs(const Vlq16s* src, Vlq64f* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return toScaled<ToDouble>(src, dst, len, scaleFactor, -1008, 1022);
}
VlqStatus vlq::vlqsConvert_32s32f_Sfs(const Vlq32s* src, Vlq32f* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return toScaled<ToFloat>(src, dst, len, scaleFactor, -127, 126);
}
VlqStatus vlq::vlqsConvert_32s64f_Sfs(const Vlq32s* src, Vlq64f* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    return toScaled<ToDouble>(src, dst, len, scaleFactor, -1023, 1022);
}

// ---- floats to integers -------------------------------------------------------------------------
VlqStatus vlq::vlqsConvert_32f8s_Sfs(const Vlq32f* src, Vlq8s* dst, Vlq32s len,
                                     VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedToInteger(src, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsConvert_32f8u_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len,
                                     VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedToInteger(src, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsConvert_32f16s_Sfs(const Vlq32f* src, Vlq16s* dst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedToInteger(src, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsConvert_32f16u_Sfs(const Vlq32f* src, Vlq16u* dst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedToInteger(src, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsConvert_32f32s_Sfs(const Vlq32f* src, Vlq32s* dst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedToInteger(src, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsConvert_64f16s_Sfs(const Vlq64f* src, Vlq16s* dst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedToInteger(src, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsConvert_64f32s_Sfs(const Vlq64f* src, Vlq32s* dst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedToInteger(src, dst, len, rndMode, scaleFactor);
}
VlqStatus vlq::vlqsConvert_64f64s_Sfs(const Vlq64f* src, Vlq64s* dst, Vlq32u len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    return roundedToInteger(src, dst, len, rndMode, scaleFactor);
}

// ---- floats to floats ---------------------------------------------------------------------------
VlqStatus vlq::vlqsConvert_32f64f(const Vlq32f* src, Vlq64f* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode hold;
    vlq::mapBlocks(dst, len, WidenFloat{}, src);
    return vlqStsOk;
}
VlqStatus vlq::vlqsConvert_64f32f(const Vlq64f* src, Vlq32f* dst, Vlq32s len) {
    return plain(src, dst, len, NarrowDouble{});
}
