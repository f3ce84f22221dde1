#include "filter/fir/multirate/multirate_direct.h"

namespace fir = vlq::fir;

VlqStatus vlq::vlqsFIRMR_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s numIters,
                                    const Vlq32f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    Vlq32f* dlyLine) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_32f_I(Vlq32f* srcDst, Vlq32s numIters, const Vlq32f* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, Vlq32f* dlyLine) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s numIters,
                                     const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                     Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                     Vlq32fc* dlyLine) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s numIters, const Vlq32fc* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq32fc* dlyLine) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s numIters,
                                    const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    Vlq64f* dlyLine) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_64f_I(Vlq64f* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, Vlq64f* dlyLine) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s numIters,
                                     const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                     Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                     Vlq64fc* dlyLine) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR_Direct_64fc_I(Vlq64fc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq64fc* dlyLine) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR64f_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s numIters,
                                       const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                       Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                       Vlq32f* dlyLine) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR64f_Direct_32f_I(Vlq32f* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq32f* dlyLine) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s numIters,
                                         const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                         Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                         Vlq32fc* dlyLine) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase, Vlq32fc* dlyLine) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       fir::Unscaled{});
}
VlqStatus vlq::vlqsFIRMR32f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                           const Vlq32f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                           Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                           Vlq16s* dlyLine, Vlq32s scaleFactor) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq32f* taps,
                                            Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                            Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                            Vlq32s scaleFactor) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                             const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                             Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                             Vlq16sc* dlyLine, Vlq32s scaleFactor) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq32fc* taps,
                                              Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                              Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                              Vlq32s scaleFactor) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                           const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                           Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                           Vlq16s* dlyLine, Vlq32s scaleFactor) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                            Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                            Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                            Vlq32s scaleFactor) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                             const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                             Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                             Vlq16sc* dlyLine, Vlq32s scaleFactor) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                              Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                              Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                              Vlq32s scaleFactor) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64f_Direct_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s numIters,
                                           const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                           Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                           Vlq32s* dlyLine, Vlq32s scaleFactor) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64f_Direct_32s_ISfs(Vlq32s* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                            Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                            Vlq32s downFactor, Vlq32s downPhase, Vlq32s* dlyLine,
                                            Vlq32s scaleFactor) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s numIters,
                                             const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                             Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                             Vlq32sc* dlyLine, Vlq32s scaleFactor) {
    return fir::multiRateDirect(src, dst, numIters, taps, tapsLen,
                                {upFactor, upPhase, downFactor, downPhase}, dlyLine, scaleFactor);
}
VlqStatus vlq::vlqsFIRMR64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                              Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                              Vlq32s downFactor, Vlq32s downPhase, Vlq32sc* dlyLine,
                                              Vlq32s scaleFactor) {
    return fir::multiRateDirectInPlace(srcDst, numIters, taps, tapsLen,
                                       {upFactor, upPhase, downFactor, downPhase}, dlyLine,
                                       scaleFactor);
}
