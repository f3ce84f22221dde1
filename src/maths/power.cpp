// Squares: products of a vector with itself.
#include "vlqs/arith.h"
#include "vlqs/maths.h"

VlqStatus vlq::vlqsSqr_8u_Sfs(const Vlq8u* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor) {
    return vlqsMul_8u_Sfs(src, src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqr_8u_ISfs(Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return vlqsMul_8u_ISfs(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqr_16u_Sfs(const Vlq16u* src, Vlq16u* dst, Vlq32s len, Vlq32s scaleFactor) {
    return vlqsMul_16u_Sfs(src, src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqr_16u_ISfs(Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return vlqsMul_16u_ISfs(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqr_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return vlqsMul_16s_Sfs(src, src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqr_16s_ISfs(Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return vlqsMul_16s_ISfs(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqr_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq32s scaleFactor) {
    return vlqsMul_16sc_Sfs(src, src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqr_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return vlqsMul_16sc_ISfs(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqr_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    return vlqsMul_32f(src, src, dst, len);
}
VlqStatus vlq::vlqsSqr_32f_I(Vlq32f* srcDst, Vlq32s len) {
    return vlqsMul_32f_I(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsSqr_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len) {
    return vlqsMul_32fc(src, src, dst, len);
}
VlqStatus vlq::vlqsSqr_32fc_I(Vlq32fc* srcDst, Vlq32s len) {
    return vlqsMul_32fc_I(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsSqr_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    return vlqsMul_64f(src, src, dst, len);
}
VlqStatus vlq::vlqsSqr_64f_I(Vlq64f* srcDst, Vlq32s len) {
    return vlqsMul_64f_I(srcDst, srcDst, len);
}
VlqStatus vlq::vlqsSqr_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len) {
    return vlqsMul_64fc(src, src, dst, len);
}
VlqStatus vlq::vlqsSqr_64fc_I(Vlq64fc* srcDst, Vlq32s len) {
    return vlqsMul_64fc_I(srcDst, srcDst, len);
}
