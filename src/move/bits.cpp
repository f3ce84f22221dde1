// Copying and packing of bit streams.
#include "move/bits_kernels.h"

#include "vlqs/arith.h"
#include "vlqs/move.h"

VlqStatus vlq::vlqsCopy_1u(const Vlq8u* src, Vlq32s srcBitOffset, Vlq8u* dst, Vlq32s dstBitOffset,
                           Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1 || srcBitOffset < 0 || dstBitOffset < 0) return vlqStsBadSize;
    bits::copyBits(src, srcBitOffset % 8, dst, dstBitOffset % 8, len);
    return vlqStsOk;
}

VlqStatus vlq::vlqsPackBits_32u8u(const Vlq32u* src, const Vlq32s* widths, Vlq32s len, Vlq8u* dst,
                                  Vlq32s dstBitOffset, Vlq32s* pDstBitOffset) {
    if (!src || !widths || !dst || !pDstBitOffset) return vlqStsNullPtr;
    if (len < 1 || dstBitOffset < 0) return vlqStsBadSize;
    const bits::Widths sum = bits::sumWidths(widths, len);
    if (sum.total > 0)
        bits::packBits(src, widths, len, dst + dstBitOffset / 8, dstBitOffset % 8, sum.total);
    const Vlq32s end = static_cast<Vlq32s>(static_cast<Vlq32u>(dstBitOffset + sum.total));
    std::memcpy(pDstBitOffset, &end, sizeof end);
    return sum.clamped ? vlqStsWarnBitWidth : vlqStsOk;
}
