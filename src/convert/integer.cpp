// Conversions of integers to integers of another width.
#include "convert/integer_kernels.h"

#include <algorithm>
#include <cstring>

#include "vlqs/convert.h"

namespace {

using namespace vlq::convert;

template <class From, class To, class Op>
VlqStatus plain(const From* src, To* dst, Vlq32s len, Op op) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapBlocks(dst, len, op, src);
    return vlqStsOk;
}

// -count for a negative scale factor, at most `highest`; no scale factor overflows.
int leftShift(Vlq32s scaleFactor, int highest) { return -std::max(scaleFactor, -highest); }

// The division by 2^count in the rounding mode, then Narrow.
template <template <class> class Narrow, class From, class To>
void divide(const From* src, To* dst, std::int64_t len, VlqRoundMode mode, int count) {
    vlq::withRounding(mode, [&](auto rounding) {
        using Divide = vlq::RoundShift<From, rounding()>;
        vlq::mapBlocks(dst, len, Narrow<Divide>{Divide(count)}, src);
    });
}

}  // namespace

// ---- widening -----------------------------------------------------------------------------------
VlqStatus vlq::vlqsConvert_8s16s(const Vlq8s* src, Vlq16s* dst, Vlq32s len) {
    return plain(src, dst, len, Widen{});
}
VlqStatus vlq::vlqsConvert_16s32s(const Vlq16s* src, Vlq32s* dst, Vlq32s len) {
    return plain(src, dst, len, Widen{});
}

// ---- narrowing ----------------------------------------------------------------------------------
VlqStatus vlq::vlqsConvert_32s16s(const Vlq32s* src, Vlq16s* dst, Vlq32s len) {
    return plain(src, dst, len, ThenNarrow16<Same>{});
}

VlqStatus vlq::vlqsConvert_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len,
                                      Vlq32s scaleFactor) {
    if (scaleFactor == 0) return plain(src, dst, len, ThenNarrow16<Same>{});
    if (scaleFactor < 0)
        return plain(src, dst, len, NarrowThenShiftLeft16{leftShift(scaleFactor, 15)});
    return plain(
        src, dst, len,
        ThenNarrow16<vlq::RoundShift<Vlq32s>>{vlq::RoundShift<Vlq32s>(std::min(scaleFactor, 31))});
}

VlqStatus vlq::vlqsConvert_16s8s_Sfs(const Vlq16s* src, Vlq8s* dst, Vlq32u len,
                                     VlqRoundMode rndMode, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len == 0) return vlqStsBadSize;
    if (scaleFactor == 0) {
        vlq::mapBlocks(dst, len, ThenNarrow8<Same>{}, src);
    } else if (scaleFactor < 0) {
        vlq::mapBlocks(dst, len, ThenNarrow8<ClampThenShiftLeft8>{{leftShift(scaleFactor, 7)}},
                       src);
    } else if (scaleFactor < 16) {
        divide<ThenNarrow8>(src, dst, len, rndMode, scaleFactor);
    } else if (scaleFactor == 16 && rndMode != vlqRndZero && rndMode != vlqRndNear) {
        vlq::mapBlocks(dst, len, ThenNarrow8<SmallestToMinusOne>{}, src);
    } else {
        std::memset(dst, 0, len);
    }
    return vlqStsOk;
}

VlqStatus vlq::vlqsConvert_64s32s_Sfs(const Vlq64s* src, Vlq32s* dst, Vlq32s len,
                                      VlqRoundMode rndMode, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (scaleFactor == 0)
        vlq::mapBlocks(dst, len, ThenNarrow32<Same>{}, src);
    else if (scaleFactor < 0)
        vlq::mapBlocks(dst, len, NarrowThenShiftLeft32{leftShift(scaleFactor, 31)}, src);
    else
        divide<ThenNarrow32>(src, dst, len, rndMode, std::min(scaleFactor, 63));
    return vlqStsOk;
}
