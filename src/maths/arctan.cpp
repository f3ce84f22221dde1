// Arctangents.
#include "frame/loop/map.h"
#include "frame/simd/math/atan.h"
#include "vlqs/maths.h"

namespace {

template <class T>
VlqStatus arctan(const T* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::map(
        dst, len, [](vlq::Vec<T> x) { return vlq::math::atan(x); }, src);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsArctan_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    return arctan(src, dst, len);
}
VlqStatus vlq::vlqsArctan_32f_I(Vlq32f* srcDst, Vlq32s len) { return arctan(srcDst, srcDst, len); }
VlqStatus vlq::vlqsArctan_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    return arctan(src, dst, len);
}
VlqStatus vlq::vlqsArctan_64f_I(Vlq64f* srcDst, Vlq32s len) { return arctan(srcDst, srcDst, len); }
