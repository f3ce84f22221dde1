// Byte order of elements, reversed.
#include "move/swap_bytes_kernels.h"

#include "vlqs/arith.h"
#include "vlqs/move.h"

namespace {

using namespace vlq::swap_bytes;

template <class T>
VlqStatus swapBytes(const T* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::map(dst, len, Swap{}, src);
    return vlqStsOk;
}

// Three bytes an element.
VlqStatus swapBytes24(const Vlq8u* src, Vlq8u* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    swapTriples(src, dst, len);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsSwapBytes_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len) {
    return swapBytes(src, dst, len);
}
VlqStatus vlq::vlqsSwapBytes_16u_I(Vlq16u* srcDst, Vlq32s len) {
    return swapBytes(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsSwapBytes_24u(const Vlq8u* src, Vlq8u* dst, Vlq32s len) {
    return swapBytes24(src, dst, len);
}
VlqStatus vlq::vlqsSwapBytes_24u_I(Vlq8u* srcDst, Vlq32s len) {
    return swapBytes24(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsSwapBytes_32u(const Vlq32u* src, Vlq32u* dst, Vlq32s len) {
    return swapBytes(src, dst, len);
}
VlqStatus vlq::vlqsSwapBytes_32u_I(Vlq32u* srcDst, Vlq32s len) {
    return swapBytes(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsSwapBytes_64u(const Vlq64u* src, Vlq64u* dst, Vlq32s len) {
    return swapBytes(src, dst, len);
}
VlqStatus vlq::vlqsSwapBytes_64u_I(Vlq64u* srcDst, Vlq32s len) {
    return swapBytes(srcDst, srcDst, len);
}
