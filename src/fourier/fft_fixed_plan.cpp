// Planning of the fixed-point FFT: the exported functions.
#include "fourier/fixed_kinds.h"

using namespace vlq;
using namespace vlq::fft;

VlqStatus vlq::vlqsFFTGetSize_C_16sc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                     Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<C_16sc>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_C_16sc(VlqsFFTSpec_C_16sc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<C_16sc>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_16sc(VlqsFFTSpec_C_16sc** outSpec, Vlq32s order, Vlq32s flag,
                                       VlqHint hint) {
    return fixedInitAlloc<C_16sc>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_16sc(const VlqsFFTSpec_C_16sc* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_16sc(VlqsFFTSpec_C_16sc* spec) { return release(spec); }

VlqStatus vlq::vlqsFFTGetSize_C_16s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<C_16s>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_C_16s(VlqsFFTSpec_C_16s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<C_16s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_16s(VlqsFFTSpec_C_16s** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return fixedInitAlloc<C_16s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_16s(const VlqsFFTSpec_C_16s* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_16s(VlqsFFTSpec_C_16s* spec) { return release(spec); }

VlqStatus vlq::vlqsFFTGetSize_R_16s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<R_16s>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_R_16s(VlqsFFTSpec_R_16s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<R_16s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_R_16s(VlqsFFTSpec_R_16s** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return fixedInitAlloc<R_16s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_R_16s(const VlqsFFTSpec_R_16s* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_16s(VlqsFFTSpec_R_16s* spec) { return release(spec); }

VlqStatus vlq::vlqsFFTGetSize_C_32sc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                     Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<C_32sc>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_C_32sc(VlqsFFTSpec_C_32sc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<C_32sc>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_32sc(VlqsFFTSpec_C_32sc** outSpec, Vlq32s order, Vlq32s flag,
                                       VlqHint hint) {
    return fixedInitAlloc<C_32sc>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_32sc(const VlqsFFTSpec_C_32sc* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_32sc(VlqsFFTSpec_C_32sc* spec) { return release(spec); }

VlqStatus vlq::vlqsFFTInit_C_32s(VlqsFFTSpec_C_32s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<C_32s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_C_32s(VlqsFFTSpec_C_32s** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return fixedInitAlloc<C_32s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_C_32s(const VlqsFFTSpec_C_32s* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_C_32s(VlqsFFTSpec_C_32s* spec) { return release(spec); }

VlqStatus vlq::vlqsFFTGetSize_R_32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                    Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<R_32s>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_R_32s(VlqsFFTSpec_R_32s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<R_32s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_R_32s(VlqsFFTSpec_R_32s** outSpec, Vlq32s order, Vlq32s flag,
                                      VlqHint hint) {
    return fixedInitAlloc<R_32s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_R_32s(const VlqsFFTSpec_R_32s* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_32s(VlqsFFTSpec_R_32s* spec) { return release(spec); }

VlqStatus vlq::vlqsFFTGetSize_R_16s32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                       Vlq32s* initBytes, Vlq32s* workBytes) {
    return fixedGetSize<R_16s32s>(order, flag, hint, specBytes, initBytes, workBytes);
}
VlqStatus vlq::vlqsFFTInit_R_16s32s(VlqsFFTSpec_R_16s32s** outSpec, Vlq32s order, Vlq32s flag,
                                    VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf) {
    return fixedInit<R_16s32s>(outSpec, order, flag, hint, specMem, initBuf);
}
VlqStatus vlq::vlqsFFTInitAlloc_R_16s32s(VlqsFFTSpec_R_16s32s** outSpec, Vlq32s order, Vlq32s flag,
                                         VlqHint hint) {
    return fixedInitAlloc<R_16s32s>(outSpec, order, flag, hint);
}
VlqStatus vlq::vlqsFFTGetBufSize_R_16s32s(const VlqsFFTSpec_R_16s32s* spec, Vlq32s* bufBytes) {
    return getBufSize(spec, bufBytes);
}
VlqStatus vlq::vlqsFFTFree_R_16s32s(VlqsFFTSpec_R_16s32s* spec) { return release(spec); }
