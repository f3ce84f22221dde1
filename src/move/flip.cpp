// Reversal of vectors.
#include "frame/loop/reverse.h"
#include "vlqs/arith.h"
#include "vlqs/move.h"

namespace {

template <class T>
VlqStatus flip(const T* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::reverseElements<sizeof(T)>(dst, src, len);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsFlip_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len) { return flip(src, dst, len); }
VlqStatus vlq::vlqsFlip_8u_I(Vlq8u* srcDst, Vlq32s len) { return flip(srcDst, srcDst, len); }
VlqStatus vlq::vlqsFlip_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len) {
    return flip(src, dst, len);
}
VlqStatus vlq::vlqsFlip_16u_I(Vlq16u* srcDst, Vlq32s len) { return flip(srcDst, srcDst, len); }
VlqStatus vlq::vlqsFlip_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    return flip(src, dst, len);
}
VlqStatus vlq::vlqsFlip_32f_I(Vlq32f* srcDst, Vlq32s len) { return flip(srcDst, srcDst, len); }
VlqStatus vlq::vlqsFlip_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    return flip(src, dst, len);
}
VlqStatus vlq::vlqsFlip_64f_I(Vlq64f* srcDst, Vlq32s len) { return flip(srcDst, srcDst, len); }
VlqStatus vlq::vlqsFlip_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len) {
    return flip(src, dst, len);
}
VlqStatus vlq::vlqsFlip_32fc_I(Vlq32fc* srcDst, Vlq32s len) { return flip(srcDst, srcDst, len); }
VlqStatus vlq::vlqsFlip_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len) {
    return flip(src, dst, len);
}
VlqStatus vlq::vlqsFlip_64fc_I(Vlq64fc* srcDst, Vlq32s len) { return flip(srcDst, srcDst, len); }
