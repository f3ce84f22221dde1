#include "filter/fir/fir_state.h"

namespace fir = vlq::fir;

VlqStatus vlq::vlqsFIRGetStateSize_32f(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return fir::stateSize<Vlq32f>(tapsLen, stateBytes);
}

VlqStatus vlq::vlqsFIRInit_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                               const Vlq32f* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInit32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                  Vlq32s tapsLen, const Vlq16s* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}

VlqStatus vlq::vlqsFIRInitAlloc_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                                    const Vlq32f* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRInitAlloc32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                       Vlq32s tapsLen, const Vlq16s* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}

VlqStatus vlq::vlqsFIRFree_32f(VlqsFIRState_32f* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRFree32f_16s(VlqsFIRState32f_16s* state) { return fir::release(state); }

VlqStatus vlq::vlqsFIRSetTaps_32f(const Vlq32f* taps, VlqsFIRState_32f* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRSetTaps32f_16s(const Vlq32f* taps, VlqsFIRState32f_16s* state) {
    return fir::setTaps(taps, state);
}

VlqStatus vlq::vlqsFIRGetTaps_32f(const VlqsFIRState_32f* state, Vlq32f* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRGetTaps32f_16s(const VlqsFIRState32f_16s* state, Vlq32f* taps) {
    return fir::getTaps(state, taps);
}

VlqStatus vlq::vlqsFIRSetDlyLine_32f(VlqsFIRState_32f* state, const Vlq32f* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRSetDlyLine32f_16s(VlqsFIRState32f_16s* state, const Vlq16s* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRGetDlyLine_32f(const VlqsFIRState_32f* state, Vlq32f* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine32f_16s(const VlqsFIRState32f_16s* state, Vlq16s* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRGetStateSize_32fc(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return fir::stateSize<Vlq32fc>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRInit_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                                const Vlq32fc* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps,
                                     Vlq32s tapsLen, const Vlq32fc* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree_32fc(VlqsFIRState_32fc* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps_32fc(const Vlq32fc* taps, VlqsFIRState_32fc* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_32fc(const VlqsFIRState_32fc* state, Vlq32fc* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine_32fc(VlqsFIRState_32fc* state, const Vlq32fc* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine_32fc(const VlqsFIRState_32fc* state, Vlq32fc* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRInit32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                    Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                         Vlq32s tapsLen, const Vlq16sc* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree32fc_16sc(VlqsFIRState32fc_16sc* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps32fc_16sc(const Vlq32fc* taps, VlqsFIRState32fc_16sc* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps32fc_16sc(const VlqsFIRState32fc_16sc* state, Vlq32fc* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine32fc_16sc(VlqsFIRState32fc_16sc* state, const Vlq16sc* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine32fc_16sc(const VlqsFIRState32fc_16sc* state, Vlq16sc* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRGetStateSize_64fc(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return fir::stateSize<Vlq64fc>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRInit_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                                const Vlq64fc* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps,
                                     Vlq32s tapsLen, const Vlq64fc* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree_64fc(VlqsFIRState_64fc* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps_64fc(const Vlq64fc* taps, VlqsFIRState_64fc* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_64fc(const VlqsFIRState_64fc* state, Vlq64fc* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine_64fc(VlqsFIRState_64fc* state, const Vlq64fc* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine_64fc(const VlqsFIRState_64fc* state, Vlq64fc* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRInit64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq32fc* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                         Vlq32s tapsLen, const Vlq32fc* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64fc_32fc(VlqsFIRState64fc_32fc* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps64fc_32fc(const Vlq64fc* taps, VlqsFIRState64fc_32fc* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64fc_32fc(const VlqsFIRState64fc_32fc* state, Vlq64fc* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64fc_32fc(VlqsFIRState64fc_32fc* state, const Vlq32fc* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64fc_32fc(const VlqsFIRState64fc_32fc* state, Vlq32fc* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRInit64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq32sc* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                         Vlq32s tapsLen, const Vlq32sc* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64fc_32sc(VlqsFIRState64fc_32sc* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps64fc_32sc(const Vlq64fc* taps, VlqsFIRState64fc_32sc* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64fc_32sc(const VlqsFIRState64fc_32sc* state, Vlq64fc* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64fc_32sc(VlqsFIRState64fc_32sc* state, const Vlq32sc* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64fc_32sc(const VlqsFIRState64fc_32sc* state, Vlq32sc* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRInit64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                         Vlq32s tapsLen, const Vlq16sc* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64fc_16sc(VlqsFIRState64fc_16sc* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps64fc_16sc(const Vlq64fc* taps, VlqsFIRState64fc_16sc* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64fc_16sc(const VlqsFIRState64fc_16sc* state, Vlq64fc* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64fc_16sc(VlqsFIRState64fc_16sc* state, const Vlq16sc* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64fc_16sc(const VlqsFIRState64fc_16sc* state, Vlq16sc* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRGetStateSize_64f(Vlq32s tapsLen, Vlq32s* stateBytes) {
    return fir::stateSize<Vlq64f>(tapsLen, stateBytes);
}
VlqStatus vlq::vlqsFIRInit_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               const Vlq64f* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                                    const Vlq64f* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree_64f(VlqsFIRState_64f* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps_64f(const Vlq64f* taps, VlqsFIRState_64f* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps_64f(const VlqsFIRState_64f* state, Vlq64f* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine_64f(VlqsFIRState_64f* state, const Vlq64f* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine_64f(const VlqsFIRState_64f* state, Vlq64f* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRInit64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq32f* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                       Vlq32s tapsLen, const Vlq32f* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64f_32f(VlqsFIRState64f_32f* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps64f_32f(const Vlq64f* taps, VlqsFIRState64f_32f* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64f_32f(const VlqsFIRState64f_32f* state, Vlq64f* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64f_32f(VlqsFIRState64f_32f* state, const Vlq32f* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64f_32f(const VlqsFIRState64f_32f* state, Vlq32f* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRInit64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq32s* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                       Vlq32s tapsLen, const Vlq32s* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64f_32s(VlqsFIRState64f_32s* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps64f_32s(const Vlq64f* taps, VlqsFIRState64f_32s* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64f_32s(const VlqsFIRState64f_32s* state, Vlq64f* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64f_32s(VlqsFIRState64f_32s* state, const Vlq32s* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64f_32s(const VlqsFIRState64f_32s* state, Vlq32s* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}

VlqStatus vlq::vlqsFIRInit64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq16s* dlyLine, Vlq8u* buffer) {
    return fir::init(outState, taps, tapsLen, dlyLine, buffer);
}
VlqStatus vlq::vlqsFIRInitAlloc64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                       Vlq32s tapsLen, const Vlq16s* dlyLine) {
    return fir::initAlloc(outState, taps, tapsLen, dlyLine);
}
VlqStatus vlq::vlqsFIRFree64f_16s(VlqsFIRState64f_16s* state) { return fir::release(state); }
VlqStatus vlq::vlqsFIRSetTaps64f_16s(const Vlq64f* taps, VlqsFIRState64f_16s* state) {
    return fir::setTaps(taps, state);
}
VlqStatus vlq::vlqsFIRGetTaps64f_16s(const VlqsFIRState64f_16s* state, Vlq64f* taps) {
    return fir::getTaps(state, taps);
}
VlqStatus vlq::vlqsFIRSetDlyLine64f_16s(VlqsFIRState64f_16s* state, const Vlq16s* dlyLine) {
    return fir::setDelayLine(state, dlyLine);
}
VlqStatus vlq::vlqsFIRGetDlyLine64f_16s(const VlqsFIRState64f_16s* state, Vlq16s* dlyLine) {
    return fir::getDelayLine(state, dlyLine);
}
