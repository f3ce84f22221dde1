#include "filter/fir/multirate/multirate_state.h"

namespace fir = vlq::fir;

VlqStatus vlq::vlqsFIRMRGetStateSize_32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes) {
    return fir::multiRateSize<VlqsFIRState_32f>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRInit_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                                 Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq32f* dlyLine, Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc_32f(VlqsFIRState_32f** outState, const Vlq32f* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32f* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRGetStateSize32f_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return fir::multiRateSize<VlqsFIRState32f_16s>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRInit32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                                    Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq16s* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRGetStateSize_64f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes) {
    return fir::multiRateSize<VlqsFIRState_64f>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRInit_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                                 Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq64f* dlyLine, Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc_64f(VlqsFIRState_64f** outState, const Vlq64f* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq64f* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRGetStateSize64f_32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return fir::multiRateSize<VlqsFIRState64f_32f>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRInit64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq32f* dlyLine,
                                    Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq32f* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRGetStateSize64f_32s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return fir::multiRateSize<VlqsFIRState64f_32s>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRInit64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq32s* dlyLine,
                                    Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq32s* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRGetStateSize64f_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                            Vlq32s* stateBytes) {
    return fir::multiRateSize<VlqsFIRState64f_16s>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRInit64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                                    Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase,
                                         const Vlq16s* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRGetStateSize_32fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                          Vlq32s* stateBytes) {
    return fir::multiRateSize<VlqsFIRState_32fc>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRInit_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                                  Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                  Vlq32s downPhase, const Vlq32fc* dlyLine, Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase,
                                       const Vlq32fc* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRInit32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine,
                                      Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq16sc* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRGetStateSize_64fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                          Vlq32s* stateBytes) {
    return fir::multiRateSize<VlqsFIRState_64fc>(tapsLen, upFactor, downFactor, stateBytes);
}
VlqStatus vlq::vlqsFIRMRInit_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                                  Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                  Vlq32s downPhase, const Vlq64fc* dlyLine, Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase,
                                       const Vlq64fc* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRInit64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32fc* dlyLine,
                                      Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq32fc* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRInit64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32sc* dlyLine,
                                      Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq32sc* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
VlqStatus vlq::vlqsFIRMRInit64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine,
                                      Vlq8u* buffer) {
    return fir::multiRateInit(outState, taps, tapsLen, {upFactor, upPhase, downFactor, downPhase},
                              dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRMRInitAlloc64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                           Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                           Vlq32s downFactor, Vlq32s downPhase,
                                           const Vlq16sc* dlyLine) {
    return fir::multiRateInitAlloc(outState, taps, tapsLen,
                                   {upFactor, upPhase, downFactor, downPhase}, dlyLine);
}
