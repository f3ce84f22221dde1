#include "filter/fir/direct.h"

namespace fir = vlq::fir;

VlqStatus vlq::vlqsFIR_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, const Vlq32f* taps,
                                  Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalBlock<64, VlqsFIRState_32f>(src, dst, len, taps, tapsLen, dlyLine,
                                                    dlyLineIndex);
}
VlqStatus vlq::vlqsFIR_Direct_32f_I(Vlq32f* srcDst, Vlq32s len, const Vlq32f* taps, Vlq32s tapsLen,
                                    Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalBlockInPlace<VlqsFIRState_32f>(srcDst, len, taps, tapsLen, dlyLine,
                                                       dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne_Direct_32f(Vlq32f src, Vlq32f* dst, const Vlq32f* taps, Vlq32s tapsLen,
                                     Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne_Direct_32f_I(Vlq32f* srcDst, const Vlq32f* taps, Vlq32s tapsLen,
                                       Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIR_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                                   const Vlq32fc* taps, Vlq32s tapsLen, Vlq32fc* dlyLine,
                                   Vlq32s* dlyLineIndex) {
    return fir::externalBlock<32, VlqsFIRState_32fc>(src, dst, len, taps, tapsLen, dlyLine,
                                                     dlyLineIndex);
}
VlqStatus vlq::vlqsFIR_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s len, const Vlq32fc* taps,
                                     Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalBlockInPlace<VlqsFIRState_32fc>(srcDst, len, taps, tapsLen, dlyLine,
                                                        dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne_Direct_32fc(Vlq32fc src, Vlq32fc* dst, const Vlq32fc* taps,
                                      Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne_Direct_32fc_I(Vlq32fc* srcDst, const Vlq32fc* taps, Vlq32s tapsLen,
                                        Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}

VlqStatus vlq::vlqsFIR32f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                         const Vlq32f* taps, Vlq32s tapsLen, Vlq16s* dlyLine,
                                         Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalSamples(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq32f>(scaleFactor));
}
VlqStatus vlq::vlqsFIR32f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq32f* taps,
                                          Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor) {
    return fir::externalSamples(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq32f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne32f_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq32f* taps,
                                            Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex,
                            fir::StoreScaled<Vlq32f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne32f_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq32f* taps, Vlq32s tapsLen,
                                             Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                             Vlq32s scaleFactor) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                                   fir::StoreScaled<Vlq32f>(scaleFactor));
}

VlqStatus vlq::vlqsFIR32fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                           const Vlq32fc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                           Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalSamples(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq32fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIR32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq32fc* taps,
                                            Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return fir::externalSamples(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq32fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne32fc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq32fc* taps,
                                              Vlq32s tapsLen, Vlq16sc* dlyLine,
                                              Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex,
                            fir::StoreScaled<Vlq32fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq32fc* taps, Vlq32s tapsLen,
                                               Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                               Vlq32s scaleFactor) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                                   fir::StoreScaled<Vlq32fc>(scaleFactor));
}

VlqStatus vlq::vlqsFIR_Direct_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len,
                                   const Vlq64fc* taps, Vlq32s tapsLen, Vlq64fc* dlyLine,
                                   Vlq32s* dlyLineIndex) {
    return fir::externalBlock<16, VlqsFIRState_64fc>(src, dst, len, taps, tapsLen, dlyLine,
                                                     dlyLineIndex);
}
VlqStatus vlq::vlqsFIR_Direct_64fc_I(Vlq64fc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                     Vlq32s tapsLen, Vlq64fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalBlockInPlace<VlqsFIRState_64fc>(srcDst, len, taps, tapsLen, dlyLine,
                                                        dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne_Direct_64fc(Vlq64fc src, Vlq64fc* dst, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq64fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne_Direct_64fc_I(Vlq64fc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                        Vlq64fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIR64fc_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                                       const Vlq64fc* taps, Vlq32s tapsLen, Vlq32fc* dlyLine,
                                       Vlq32s* dlyLineIndex) {
    return fir::externalNarrow<128, VlqsFIRState64fc_32fc>(src, dst, len, taps, tapsLen, dlyLine,
                                                           dlyLineIndex);
}
VlqStatus vlq::vlqsFIR64fc_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalNarrow<128, VlqsFIRState64fc_32fc>(srcDst, srcDst, len, taps, tapsLen,
                                                           dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne64fc_Direct_32fc(Vlq32fc src, Vlq32fc* dst, const Vlq64fc* taps,
                                          Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne64fc_Direct_32fc_I(Vlq32fc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                            Vlq32fc* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIR64fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                           const Vlq64fc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                           Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalSamples(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                            Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return fir::externalSamples(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64fc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq64fc* taps,
                                              Vlq32s tapsLen, Vlq16sc* dlyLine,
                                              Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex,
                            fir::StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                               Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                               Vlq32s scaleFactor) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                                   fir::StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64fc_Direct_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len,
                                           const Vlq64fc* taps, Vlq32s tapsLen, Vlq32sc* dlyLine,
                                           Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalSamples(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                            Vlq32s tapsLen, Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return fir::externalSamples(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64fc_Direct_32sc_Sfs(Vlq32sc src, Vlq32sc* dst, const Vlq64fc* taps,
                                              Vlq32s tapsLen, Vlq32sc* dlyLine,
                                              Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex,
                            fir::StoreScaled<Vlq64fc>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                               Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                               Vlq32s scaleFactor) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                                   fir::StoreScaled<Vlq64fc>(scaleFactor));
}

VlqStatus vlq::vlqsFIR_Direct_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, const Vlq64f* taps,
                                  Vlq32s tapsLen, Vlq64f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalBlock<32, VlqsFIRState_64f>(src, dst, len, taps, tapsLen, dlyLine,
                                                    dlyLineIndex);
}
VlqStatus vlq::vlqsFIR_Direct_64f_I(Vlq64f* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                                    Vlq64f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalBlockInPlace<VlqsFIRState_64f>(srcDst, len, taps, tapsLen, dlyLine,
                                                       dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne_Direct_64f(Vlq64f src, Vlq64f* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                     Vlq64f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne_Direct_64f_I(Vlq64f* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                       Vlq64f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIR64f_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, const Vlq64f* taps,
                                     Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalNarrow<256, VlqsFIRState64f_32f>(src, dst, len, taps, tapsLen, dlyLine,
                                                         dlyLineIndex);
}
VlqStatus vlq::vlqsFIR64f_Direct_32f_I(Vlq32f* srcDst, Vlq32s len, const Vlq64f* taps,
                                       Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalNarrow<256, VlqsFIRState64f_32f>(srcDst, srcDst, len, taps, tapsLen,
                                                         dlyLine, dlyLineIndex);
}
VlqStatus vlq::vlqsFIROne64f_Direct_32f(Vlq32f src, Vlq32f* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                        Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIROne64f_Direct_32f_I(Vlq32f* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                          Vlq32f* dlyLine, Vlq32s* dlyLineIndex) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex, fir::StoreAsIs{});
}
VlqStatus vlq::vlqsFIR64f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len,
                                         const Vlq64f* taps, Vlq32s tapsLen, Vlq16s* dlyLine,
                                         Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalSamples(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq64f* taps,
                                          Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor) {
    return fir::externalSamples(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64f_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq64f* taps,
                                            Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex,
                            fir::StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64f_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                             Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                             Vlq32s scaleFactor) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                                   fir::StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64f_Direct_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len,
                                         const Vlq64f* taps, Vlq32s tapsLen, Vlq32s* dlyLine,
                                         Vlq32s* dlyLineIndex, Vlq32s scaleFactor) {
    return fir::externalSamples(src, dst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIR64f_Direct_32s_ISfs(Vlq32s* srcDst, Vlq32s len, const Vlq64f* taps,
                                          Vlq32s tapsLen, Vlq32s* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor) {
    return fir::externalSamples(srcDst, srcDst, len, taps, tapsLen, dlyLine, dlyLineIndex,
                                fir::StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64f_Direct_32s_Sfs(Vlq32s src, Vlq32s* dst, const Vlq64f* taps,
                                            Vlq32s tapsLen, Vlq32s* dlyLine, Vlq32s* dlyLineIndex,
                                            Vlq32s scaleFactor) {
    return fir::externalOne(src, dst, taps, tapsLen, dlyLine, dlyLineIndex,
                            fir::StoreScaled<Vlq64f>(scaleFactor));
}
VlqStatus vlq::vlqsFIROne64f_Direct_32s_ISfs(Vlq32s* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                             Vlq32s* dlyLine, Vlq32s* dlyLineIndex,
                                             Vlq32s scaleFactor) {
    return fir::externalOneInPlace(srcDst, taps, tapsLen, dlyLine, dlyLineIndex,
                                   fir::StoreScaled<Vlq64f>(scaleFactor));
}
