#include "filter/fir/single.h"

namespace fir = vlq::fir;

VlqStatus vlq::vlqsFIROne_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState_32f* state) {
    return fir::one(src, dst, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIROne32f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState32f_16s* state,
                                     Vlq32s scaleFactor) {
    return fir::one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne_32fc(Vlq32fc src, Vlq32fc* dst, VlqsFIRState_32fc* state) {
    return fir::one(src, dst, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIROne32fc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState32fc_16sc* state,
                                       Vlq32s scaleFactor) {
    return fir::one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne_64fc(Vlq64fc src, Vlq64fc* dst, VlqsFIRState_64fc* state) {
    return fir::one(src, dst, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIROne64fc_32fc(Vlq32fc src, Vlq32fc* dst, VlqsFIRState64fc_32fc* state) {
    return fir::one(src, dst, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIROne64fc_32sc_Sfs(Vlq32sc src, Vlq32sc* dst, VlqsFIRState64fc_32sc* state,
                                       Vlq32s scaleFactor) {
    return fir::one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne64fc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState64fc_16sc* state,
                                       Vlq32s scaleFactor) {
    return fir::one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne_64f(Vlq64f src, Vlq64f* dst, VlqsFIRState_64f* state) {
    return fir::one(src, dst, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIROne64f_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState64f_32f* state) {
    return fir::one(src, dst, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIROne64f_32s_Sfs(Vlq32s src, Vlq32s* dst, VlqsFIRState64f_32s* state,
                                     Vlq32s scaleFactor) {
    return fir::one(src, dst, state, scaleFactor);
}
VlqStatus vlq::vlqsFIROne64f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState64f_16s* state,
                                     Vlq32s scaleFactor) {
    return fir::one(src, dst, state, scaleFactor);
}
