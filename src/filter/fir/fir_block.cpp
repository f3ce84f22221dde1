#include "filter/fir/multirate/multirate_block.h"

namespace fir = vlq::fir;

VlqStatus vlq::vlqsFIR_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, VlqsFIRState_32f* state) {
    return fir::filterAnyRate(src, dst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR_32f_I(Vlq32f* srcDst, Vlq32s len, VlqsFIRState_32f* state) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR32f_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                  VlqsFIRState32f_16s* state, Vlq32s scaleFactor) {
    return fir::filterAnyRate(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32f_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState32f_16s* state,
                                   Vlq32s scaleFactor) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, scaleFactor);
}

VlqStatus vlq::vlqsFIR_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                            VlqsFIRState_32fc* state) {
    return fir::filterAnyRate(src, dst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR_32fc_I(Vlq32fc* srcDst, Vlq32s len, VlqsFIRState_32fc* state) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR32fc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                    VlqsFIRState32fc_16sc* state, Vlq32s scaleFactor) {
    return fir::filterAnyRate(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR32fc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState32fc_16sc* state,
                                     Vlq32s scaleFactor) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, scaleFactor);
}

VlqStatus vlq::vlqsFIR_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len,
                            VlqsFIRState_64fc* state) {
    return fir::filterAnyRate(src, dst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR_64fc_I(Vlq64fc* srcDst, Vlq32s len, VlqsFIRState_64fc* state) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR64fc_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                                VlqsFIRState64fc_32fc* state) {
    return fir::filterAnyRate(src, dst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR64fc_32fc_I(Vlq32fc* srcDst, Vlq32s len, VlqsFIRState64fc_32fc* state) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR64fc_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len,
                                    VlqsFIRState64fc_32sc* state, Vlq32s scaleFactor) {
    return fir::filterAnyRate(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64fc_32sc_ISfs(Vlq32sc* srcDst, Vlq32s len, VlqsFIRState64fc_32sc* state,
                                     Vlq32s scaleFactor) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64fc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                    VlqsFIRState64fc_16sc* state, Vlq32s scaleFactor) {
    return fir::filterAnyRate(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64fc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState64fc_16sc* state,
                                     Vlq32s scaleFactor) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, scaleFactor);
}

VlqStatus vlq::vlqsFIR_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, VlqsFIRState_64f* state) {
    return fir::filterAnyRate(src, dst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR_64f_I(Vlq64f* srcDst, Vlq32s len, VlqsFIRState_64f* state) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR64f_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len,
                              VlqsFIRState64f_32f* state) {
    return fir::filterAnyRate(src, dst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR64f_32f_I(Vlq32f* srcDst, Vlq32s len, VlqsFIRState64f_32f* state) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, fir::Unscaled{});
}
VlqStatus vlq::vlqsFIR64f_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len,
                                  VlqsFIRState64f_32s* state, Vlq32s scaleFactor) {
    return fir::filterAnyRate(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64f_32s_ISfs(Vlq32s* srcDst, Vlq32s len, VlqsFIRState64f_32s* state,
                                   Vlq32s scaleFactor) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, scaleFactor);
}
// A filter built from integer taps is the same record, at a single rate alone.
VlqStatus vlq::vlqsFIR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, VlqsFIRState_32s* state,
                               Vlq32s scaleFactor) {
    return fir::filter(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR_32s_ISfs(Vlq32s* srcDst, Vlq32s len, VlqsFIRState_32s* state,
                                Vlq32s scaleFactor) {
    return fir::filterNarrowInPlace(srcDst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64f_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                  VlqsFIRState64f_16s* state, Vlq32s scaleFactor) {
    return fir::filterAnyRate(src, dst, len, state, scaleFactor);
}
VlqStatus vlq::vlqsFIR64f_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState64f_16s* state,
                                   Vlq32s scaleFactor) {
    return fir::filterInPlaceAnyRate(srcDst, len, state, scaleFactor);
}
