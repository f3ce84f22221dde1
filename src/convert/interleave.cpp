// Interleaved integer samples to one float vector per channel, and back.
#include "convert/interleave_kernels.h"

#include "frame/simd/control.h"
#include "vlqs/convert.h"

namespace {

using namespace vlq::splitjoin;
using vlq::StandardFloatMode;

// The interleaved vector and the array of rows, then each row, then the two counts.
template <class Row>
VlqStatus check(const void* flat, Row* const* rows, Vlq32s channels, Vlq32s frames) {
    if (!flat || !rows) return vlqStsNullPtr;
    for (Vlq32s c = 0; c < channels; ++c) {
        if (!rows[c]) return vlqStsNullPtr;
    }
    if (channels < 1 || frames < 1) return vlqStsBadSize;
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsSplitScaled_16s32f_D2L(const Vlq16s* src, Vlq32f* const* dstRows,
                                          Vlq32s channels, Vlq32s frames) {
    if (const VlqStatus status = check(src, dstRows, channels, frames); status != vlqStsOk)
        return status;
    const StandardFloatMode hold;
    if (channels == 2)
        splitStereo(src, dstRows[0], dstRows[1], frames);
    else
        split(src, dstRows, channels, frames);
    return vlqStsOk;
}
VlqStatus vlq::vlqsSplitScaled_24s32f_D2L(const Vlq8u* src, Vlq32f* const* dstRows, Vlq32s channels,
                                          Vlq32s frames) {
    if (const VlqStatus status = check(src, dstRows, channels, frames); status != vlqStsOk)
        return status;
    const StandardFloatMode hold;
    split(src, dstRows, channels, frames);
    return vlqStsOk;
}

VlqStatus vlq::vlqsJoinScaled_32f16s_D2L(Vlq32f* const* srcRows, Vlq32s channels, Vlq32s frames,
                                         Vlq16s* dst) {
    if (const VlqStatus status = check(dst, srcRows, channels, frames); status != vlqStsOk)
        return status;
    const StandardFloatMode hold;
    if (channels == 2)
        joinStereo(srcRows[0], srcRows[1], frames, dst);
    else
        join<2>(srcRows, channels, frames, dst);
    return vlqStsOk;
}
VlqStatus vlq::vlqsJoinScaled_32f24s_D2L(Vlq32f* const* srcRows, Vlq32s channels, Vlq32s frames,
                                         Vlq8u* dst) {
    if (const VlqStatus status = check(dst, srcRows, channels, frames); status != vlqStsOk)
        return status;
    const StandardFloatMode hold;
    join<3>(srcRows, channels, frames, dst);
    return vlqStsOk;
}
