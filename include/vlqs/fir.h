/**
 * @file fir.h
 * @brief FIR filters: single-rate, multi-rate, with integer arithmetic, and record-less.
 */
#ifndef VLQS_FIR_H
#define VLQS_FIR_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/** @name Records of FIR filters, opaque
 *  The first type is that of the taps, the second that of the samples; one type stands for both.
 *  @{ */
typedef struct VlqsFIRState_32f VlqsFIRState_32f;       /**< float taps, float samples */
typedef struct VlqsFIRState32f_16s VlqsFIRState32f_16s; /**< float taps, 16-bit samples */
typedef struct VlqsFIRState_32fc VlqsFIRState_32fc;     /**< complex float taps and samples */
typedef struct VlqsFIRState32fc_16sc
    VlqsFIRState32fc_16sc; /**< complex float taps, complex 16-bit samples */
typedef struct VlqsFIRState_64fc VlqsFIRState_64fc; /**< complex double taps and samples */
typedef struct VlqsFIRState64fc_32fc
    VlqsFIRState64fc_32fc; /**< complex double taps, complex float samples */
typedef struct VlqsFIRState64fc_32sc
    VlqsFIRState64fc_32sc; /**< complex double taps, complex 32-bit samples */
typedef struct VlqsFIRState64fc_16sc
    VlqsFIRState64fc_16sc; /**< complex double taps, complex 16-bit samples */
typedef struct VlqsFIRState_64f VlqsFIRState_64f;       /**< double taps, double samples */
typedef struct VlqsFIRState64f_32f VlqsFIRState64f_32f; /**< double taps, float samples */
typedef struct VlqsFIRState64f_32s VlqsFIRState64f_32s; /**< double taps, 32-bit samples */
typedef VlqsFIRState64f_32s VlqsFIRState_32s;           /**< integer taps, 32-bit samples */
typedef struct VlqsFIRState64f_16s VlqsFIRState64f_16s; /**< double taps, 16-bit samples */
/** @} */

/** @name FIR: records
 *  @{ */
/**
 * A record holds a filter of @p tapsLen taps h and its delay line, the last @p tapsLen samples of
 * the stream. `GetStateSize` tells the size of a record, `Init` builds one in memory of the
 * caller's, `InitAlloc` in blocks of its own, `Free` ends it.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has as many, the newest
 * sample first; where it is null the filter starts from silence. Both are copied. @p buffer has the
 * size that `GetStateSize` tells and may begin at any address; the record lies somewhere inside and
 * can be neither copied nor moved. A record whose size would reach 2 GiB cannot be built.
 *
 * The `_32s` forms take integer taps and make a record of the kind 64f_32s, which never has a
 * transform. All calls on that kind serve both; `GetTaps` cuts taps off to 32-bit integers.
 *
 * **Threads.** A record has room for as many threads as the core library allows when its size is
 * asked for and when it is built. That count must be the same for both calls, and must not be
 * raised while the record is in use.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer other than @p dlyLine,
 * #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsNoMemory. Of `Free`: #vlqStsNullPtr,
 * #vlqStsBadSpec for a record of another kind. A transform that cannot be prepared, for want of
 * memory too, is no error: such a filter computes all blocks directly.
 *
 * **Memory.** `InitAlloc` allocates the record and, where a transform is prepared, the record of
 * the transform and for the call the scratch of building it; `Free` releases both. A transform is
 * prepared from 64 taps on in single precision, from 32 on in double, from 16 on where they are
 * complex. A record of `Init` may be
 * abandoned, `Free` leaves it as it is.
 *
 * @arg @c tapsLen    number of taps, at least 1
 * @arg @c stateBytes receives the size of a record
 * @arg @c outState   receives the record's address
 * @arg @c taps       impulse response
 * @arg @c dlyLine    past samples, or null
 * @arg @c buffer     memory for the record
 * @arg @c state      record
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIRGetStateSize_32f(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize32f_16s(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize_32fc(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize32fc_16sc(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize_64fc(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize64fc_32fc(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize64fc_32sc(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize64fc_16sc(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize_64f(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize64f_32f(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize64f_32s(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize_32s(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize64f_16s(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRInit_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                          const Vlq32f* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps, Vlq32s tapsLen,
                             const Vlq16s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                           const Vlq32fc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                               Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                           const Vlq64fc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                               Vlq32s tapsLen, const Vlq32fc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                               Vlq32s tapsLen, const Vlq32sc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                               Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                          const Vlq64f* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                             const Vlq32f* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps, Vlq32s tapsLen,
                             const Vlq32s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit_32s(VlqsFIRState_32s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                          const Vlq32s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps, Vlq32s tapsLen,
                             const Vlq16s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInitAlloc_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                               const Vlq32f* dlyLine);
VlqStatus vlqsFIRInitAlloc32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                  Vlq32s tapsLen, const Vlq16s* dlyLine);
VlqStatus vlqsFIRInitAlloc_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                                const Vlq32fc* dlyLine);
VlqStatus vlqsFIRInitAlloc32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                    Vlq32s tapsLen, const Vlq16sc* dlyLine);
VlqStatus vlqsFIRInitAlloc_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                                const Vlq64fc* dlyLine);
VlqStatus vlqsFIRInitAlloc64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq32fc* dlyLine);
VlqStatus vlqsFIRInitAlloc64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq32sc* dlyLine);
VlqStatus vlqsFIRInitAlloc64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq16sc* dlyLine);
VlqStatus vlqsFIRInitAlloc_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               const Vlq64f* dlyLine);
VlqStatus vlqsFIRInitAlloc64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq32f* dlyLine);
VlqStatus vlqsFIRInitAlloc64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq32s* dlyLine);
VlqStatus vlqsFIRInitAlloc_32s(VlqsFIRState_32s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                               const Vlq32s* dlyLine);
VlqStatus vlqsFIRInitAlloc64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq16s* dlyLine);
VlqStatus vlqsFIRFree_32f(VlqsFIRState_32f* state);
VlqStatus vlqsFIRFree32f_16s(VlqsFIRState32f_16s* state);
VlqStatus vlqsFIRFree_32fc(VlqsFIRState_32fc* state);
VlqStatus vlqsFIRFree32fc_16sc(VlqsFIRState32fc_16sc* state);
VlqStatus vlqsFIRFree_64fc(VlqsFIRState_64fc* state);
VlqStatus vlqsFIRFree64fc_32fc(VlqsFIRState64fc_32fc* state);
VlqStatus vlqsFIRFree64fc_32sc(VlqsFIRState64fc_32sc* state);
VlqStatus vlqsFIRFree64fc_16sc(VlqsFIRState64fc_16sc* state);
VlqStatus vlqsFIRFree_64f(VlqsFIRState_64f* state);
VlqStatus vlqsFIRFree64f_32f(VlqsFIRState64f_32f* state);
VlqStatus vlqsFIRFree64f_32s(VlqsFIRState64f_32s* state);
VlqStatus vlqsFIRFree64f_16s(VlqsFIRState64f_16s* state);
/** @} */

/** @name FIR: taps and delay line
 *  @{ */
/**
 * `SetTaps` replaces the taps of a record and leaves its delay line, `GetTaps` reads them back, bit
 * for bit. `SetDlyLine` replaces the delay line, with silence where @p dlyLine is null;
 * `GetDlyLine` reads it.
 *
 * **Shapes.** @p taps and @p dlyLine have as many elements as the record has taps: h[0] first, and
 * the newest sample first. The delay line of a multi-rate record has ceil(tapsLen / U). `SetTaps`
 * takes the taps before the record, unlike the other calls.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer other than the @p dlyLine of
 * `SetDlyLine`, #vlqStsBadSpec for a record of another kind. If `SetTaps` cannot transform the new
 * taps it returns the transform's error, and the record must not be used to filter any more.
 *
 * **Memory.** None.
 *
 * @arg @c taps    impulse response
 * @arg @c dlyLine past samples
 * @arg @c state   record
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIRSetTaps_32f(const Vlq32f* taps, VlqsFIRState_32f* state);
VlqStatus vlqsFIRSetTaps32f_16s(const Vlq32f* taps, VlqsFIRState32f_16s* state);
VlqStatus vlqsFIRSetTaps_32fc(const Vlq32fc* taps, VlqsFIRState_32fc* state);
VlqStatus vlqsFIRSetTaps32fc_16sc(const Vlq32fc* taps, VlqsFIRState32fc_16sc* state);
VlqStatus vlqsFIRSetTaps_64fc(const Vlq64fc* taps, VlqsFIRState_64fc* state);
VlqStatus vlqsFIRSetTaps64fc_32fc(const Vlq64fc* taps, VlqsFIRState64fc_32fc* state);
VlqStatus vlqsFIRSetTaps64fc_32sc(const Vlq64fc* taps, VlqsFIRState64fc_32sc* state);
VlqStatus vlqsFIRSetTaps64fc_16sc(const Vlq64fc* taps, VlqsFIRState64fc_16sc* state);
VlqStatus vlqsFIRSetTaps_64f(const Vlq64f* taps, VlqsFIRState_64f* state);
VlqStatus vlqsFIRSetTaps64f_32f(const Vlq64f* taps, VlqsFIRState64f_32f* state);
VlqStatus vlqsFIRSetTaps64f_32s(const Vlq64f* taps, VlqsFIRState64f_32s* state);
VlqStatus vlqsFIRSetTaps_32s(const Vlq32s* taps, VlqsFIRState_32s* state);
VlqStatus vlqsFIRSetTaps64f_16s(const Vlq64f* taps, VlqsFIRState64f_16s* state);
VlqStatus vlqsFIRGetTaps_32f(const VlqsFIRState_32f* state, Vlq32f* taps);
VlqStatus vlqsFIRGetTaps32f_16s(const VlqsFIRState32f_16s* state, Vlq32f* taps);
VlqStatus vlqsFIRGetTaps_32fc(const VlqsFIRState_32fc* state, Vlq32fc* taps);
VlqStatus vlqsFIRGetTaps32fc_16sc(const VlqsFIRState32fc_16sc* state, Vlq32fc* taps);
VlqStatus vlqsFIRGetTaps_64fc(const VlqsFIRState_64fc* state, Vlq64fc* taps);
VlqStatus vlqsFIRGetTaps64fc_32fc(const VlqsFIRState64fc_32fc* state, Vlq64fc* taps);
VlqStatus vlqsFIRGetTaps64fc_32sc(const VlqsFIRState64fc_32sc* state, Vlq64fc* taps);
VlqStatus vlqsFIRGetTaps64fc_16sc(const VlqsFIRState64fc_16sc* state, Vlq64fc* taps);
VlqStatus vlqsFIRGetTaps_64f(const VlqsFIRState_64f* state, Vlq64f* taps);
VlqStatus vlqsFIRGetTaps64f_32f(const VlqsFIRState64f_32f* state, Vlq64f* taps);
VlqStatus vlqsFIRGetTaps64f_32s(const VlqsFIRState64f_32s* state, Vlq64f* taps);
VlqStatus vlqsFIRGetTaps_32s(const VlqsFIRState_32s* state, Vlq32s* taps);
VlqStatus vlqsFIRGetTaps64f_16s(const VlqsFIRState64f_16s* state, Vlq64f* taps);
VlqStatus vlqsFIRSetDlyLine_32f(VlqsFIRState_32f* state, const Vlq32f* dlyLine);
VlqStatus vlqsFIRSetDlyLine32f_16s(VlqsFIRState32f_16s* state, const Vlq16s* dlyLine);
VlqStatus vlqsFIRSetDlyLine_32fc(VlqsFIRState_32fc* state, const Vlq32fc* dlyLine);
VlqStatus vlqsFIRSetDlyLine32fc_16sc(VlqsFIRState32fc_16sc* state, const Vlq16sc* dlyLine);
VlqStatus vlqsFIRSetDlyLine_64fc(VlqsFIRState_64fc* state, const Vlq64fc* dlyLine);
VlqStatus vlqsFIRSetDlyLine64fc_32fc(VlqsFIRState64fc_32fc* state, const Vlq32fc* dlyLine);
VlqStatus vlqsFIRSetDlyLine64fc_32sc(VlqsFIRState64fc_32sc* state, const Vlq32sc* dlyLine);
VlqStatus vlqsFIRSetDlyLine64fc_16sc(VlqsFIRState64fc_16sc* state, const Vlq16sc* dlyLine);
VlqStatus vlqsFIRSetDlyLine_64f(VlqsFIRState_64f* state, const Vlq64f* dlyLine);
VlqStatus vlqsFIRSetDlyLine64f_32f(VlqsFIRState64f_32f* state, const Vlq32f* dlyLine);
VlqStatus vlqsFIRSetDlyLine64f_32s(VlqsFIRState64f_32s* state, const Vlq32s* dlyLine);
VlqStatus vlqsFIRSetDlyLine64f_16s(VlqsFIRState64f_16s* state, const Vlq16s* dlyLine);
VlqStatus vlqsFIRGetDlyLine_32f(const VlqsFIRState_32f* state, Vlq32f* dlyLine);
VlqStatus vlqsFIRGetDlyLine32f_16s(const VlqsFIRState32f_16s* state, Vlq16s* dlyLine);
VlqStatus vlqsFIRGetDlyLine_32fc(const VlqsFIRState_32fc* state, Vlq32fc* dlyLine);
VlqStatus vlqsFIRGetDlyLine32fc_16sc(const VlqsFIRState32fc_16sc* state, Vlq16sc* dlyLine);
VlqStatus vlqsFIRGetDlyLine_64fc(const VlqsFIRState_64fc* state, Vlq64fc* dlyLine);
VlqStatus vlqsFIRGetDlyLine64fc_32fc(const VlqsFIRState64fc_32fc* state, Vlq32fc* dlyLine);
VlqStatus vlqsFIRGetDlyLine64fc_32sc(const VlqsFIRState64fc_32sc* state, Vlq32sc* dlyLine);
VlqStatus vlqsFIRGetDlyLine64fc_16sc(const VlqsFIRState64fc_16sc* state, Vlq16sc* dlyLine);
VlqStatus vlqsFIRGetDlyLine_64f(const VlqsFIRState_64f* state, Vlq64f* dlyLine);
VlqStatus vlqsFIRGetDlyLine64f_32f(const VlqsFIRState64f_32f* state, Vlq32f* dlyLine);
VlqStatus vlqsFIRGetDlyLine64f_32s(const VlqsFIRState64f_32s* state, Vlq32s* dlyLine);
VlqStatus vlqsFIRGetDlyLine64f_16s(const VlqsFIRState64f_16s* state, Vlq16s* dlyLine);
/** @} */

/** @name FIR: integer taps, 32-bit samples
 *  @{ */
/**
 * A record of `vlqsFIRInit_32s` is one of the kind 64f_32s: these are the calls on it that have no
 * function of their own, under the name that one looks for. They are not symbols of the library.
 *
 * @arg @c state   record
 * @arg @c dlyLine past samples
 * @return what the 64f_32s call returns.
 */
static inline VlqStatus vlqsFIRFree_32s(VlqsFIRState_32s* state) {
    return vlqsFIRFree64f_32s(state);
}
static inline VlqStatus vlqsFIRSetDlyLine_32s(VlqsFIRState_32s* state, const Vlq32s* dlyLine) {
    return vlqsFIRSetDlyLine64f_32s(state, dlyLine);
}
static inline VlqStatus vlqsFIRGetDlyLine_32s(const VlqsFIRState_32s* state, Vlq32s* dlyLine) {
    return vlqsFIRGetDlyLine64f_32s(state, dlyLine);
}
/** @} */

/** @name FIR: filtering
 *  @{ */
/**
 * `y[n] = sum over k of h[k] * x[n - k]`, x[n] for n below 0 from the delay line, which moves on: a
 * stream may be cut into calls, of blocks and of single samples (`One`), in any way. The `_Sfs`
 * forms store `saturate(round(y[n] * 2^-scaleFactor))`, each part of a complex value for itself,
 * round to nearest and to the even one of two equally near; a sum that is not a number gives the
 * top value.
 *
 * **Accuracy.** Sums are formed in the type of the taps. A block of at least 512 samples, 256 where
 * they are complex, through a record with a transform is computed by overlap-save with transforms
 * of 2 to 4 times the number of taps, any other directly. In place and without a change of type,
 * blocks of 4096 are taken, and the samples left after a block must be that many for the block to
 * be transformed; the other in-place forms go by the whole length. The paths differ in rounding.
 * Results of the direct path do not depend on the cut into calls.
 *
 * **Shapes.** @p src and @p dst have @p len elements and any alignment, and do not overlap. Through
 * a multi-rate record @p len counts periods: D samples come in for each and U outputs are stored,
 * @p srcDst having the larger number of both. `One` and the `_32s` forms take no such record.
 *
 * **Threads.** Blocks above 1600 samples, 800 where they are complex, are shared among the threads
 * that the core library allows. Results do not depend on their number. One record serves one call
 * at a time.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer, #vlqStsBadSize for @p len below 1,
 * #vlqStsBadSpec for a record of another kind, #vlqStsNoMemory.
 *
 * **Memory.** None, except in place through a multi-rate record with U above D: the samples are
 * copied into a block that is allocated for the call.
 *
 * **Source.** Overlap-save: A. V. Oppenheim, R. W. Schafer, Discrete-Time Signal Processing,
 * section on implementing linear time-invariant systems using the DFT.
 *
 * @arg @c src         samples; for `One` the sample itself
 * @arg @c dst         result
 * @arg @c srcDst      samples and result of the in-place forms
 * @arg @c len         number of samples
 * @arg @c state       record
 * @arg @c scaleFactor negated exponent of the factor of the result
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIR_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, VlqsFIRState_32f* state);
VlqStatus vlqsFIR_32f_I(Vlq32f* srcDst, Vlq32s len, VlqsFIRState_32f* state);
VlqStatus vlqsFIR32f_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState32f_16s* state,
                             Vlq32s scaleFactor);
VlqStatus vlqsFIR32f_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState32f_16s* state,
                              Vlq32s scaleFactor);
VlqStatus vlqsFIR_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, VlqsFIRState_32fc* state);
VlqStatus vlqsFIR_32fc_I(Vlq32fc* srcDst, Vlq32s len, VlqsFIRState_32fc* state);
VlqStatus vlqsFIR32fc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                               VlqsFIRState32fc_16sc* state, Vlq32s scaleFactor);
VlqStatus vlqsFIR32fc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState32fc_16sc* state,
                                Vlq32s scaleFactor);
VlqStatus vlqsFIR_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, VlqsFIRState_64fc* state);
VlqStatus vlqsFIR_64fc_I(Vlq64fc* srcDst, Vlq32s len, VlqsFIRState_64fc* state);
VlqStatus vlqsFIR64fc_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                           VlqsFIRState64fc_32fc* state);
VlqStatus vlqsFIR64fc_32fc_I(Vlq32fc* srcDst, Vlq32s len, VlqsFIRState64fc_32fc* state);
VlqStatus vlqsFIR64fc_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len,
                               VlqsFIRState64fc_32sc* state, Vlq32s scaleFactor);
VlqStatus vlqsFIR64fc_32sc_ISfs(Vlq32sc* srcDst, Vlq32s len, VlqsFIRState64fc_32sc* state,
                                Vlq32s scaleFactor);
VlqStatus vlqsFIR64fc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                               VlqsFIRState64fc_16sc* state, Vlq32s scaleFactor);
VlqStatus vlqsFIR64fc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState64fc_16sc* state,
                                Vlq32s scaleFactor);
VlqStatus vlqsFIR_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, VlqsFIRState_64f* state);
VlqStatus vlqsFIR_64f_I(Vlq64f* srcDst, Vlq32s len, VlqsFIRState_64f* state);
VlqStatus vlqsFIR64f_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, VlqsFIRState64f_32f* state);
VlqStatus vlqsFIR64f_32f_I(Vlq32f* srcDst, Vlq32s len, VlqsFIRState64f_32f* state);
VlqStatus vlqsFIR64f_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, VlqsFIRState64f_32s* state,
                             Vlq32s scaleFactor);
VlqStatus vlqsFIR64f_32s_ISfs(Vlq32s* srcDst, Vlq32s len, VlqsFIRState64f_32s* state,
                              Vlq32s scaleFactor);
VlqStatus vlqsFIR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, VlqsFIRState_32s* state,
                          Vlq32s scaleFactor);
VlqStatus vlqsFIR_32s_ISfs(Vlq32s* srcDst, Vlq32s len, VlqsFIRState_32s* state, Vlq32s scaleFactor);
VlqStatus vlqsFIR64f_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState64f_16s* state,
                             Vlq32s scaleFactor);
VlqStatus vlqsFIR64f_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState64f_16s* state,
                              Vlq32s scaleFactor);
VlqStatus vlqsFIROne_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState_32f* state);
VlqStatus vlqsFIROne32f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState32f_16s* state,
                                Vlq32s scaleFactor);
VlqStatus vlqsFIROne_32fc(Vlq32fc src, Vlq32fc* dst, VlqsFIRState_32fc* state);
VlqStatus vlqsFIROne32fc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState32fc_16sc* state,
                                  Vlq32s scaleFactor);
VlqStatus vlqsFIROne_64fc(Vlq64fc src, Vlq64fc* dst, VlqsFIRState_64fc* state);
VlqStatus vlqsFIROne64fc_32fc(Vlq32fc src, Vlq32fc* dst, VlqsFIRState64fc_32fc* state);
VlqStatus vlqsFIROne64fc_32sc_Sfs(Vlq32sc src, Vlq32sc* dst, VlqsFIRState64fc_32sc* state,
                                  Vlq32s scaleFactor);
VlqStatus vlqsFIROne64fc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState64fc_16sc* state,
                                  Vlq32s scaleFactor);
VlqStatus vlqsFIROne_64f(Vlq64f src, Vlq64f* dst, VlqsFIRState_64f* state);
VlqStatus vlqsFIROne64f_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState64f_32f* state);
VlqStatus vlqsFIROne64f_32s_Sfs(Vlq32s src, Vlq32s* dst, VlqsFIRState64f_32s* state,
                                Vlq32s scaleFactor);
VlqStatus vlqsFIROne_32s_Sfs(Vlq32s src, Vlq32s* dst, VlqsFIRState_32s* state, Vlq32s scaleFactor);
VlqStatus vlqsFIROne64f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState64f_16s* state,
                                Vlq32s scaleFactor);
/** @} */

/** @name FIR: filtering with a delay line of the caller's
 *  @{ */
/**
 * The same sums without a record: the caller keeps the taps, a store of past samples and an index.
 * The store is a ring of @p tapsLen samples that is kept twice over, one copy after the other:
 * before sample x[n] the window `dlyLine[i .. i + tapsLen - 1]`, i the index, holds
 * `x[n - tapsLen], ..., x[n - 1]`. A zeroed store and the index 0 begin from silence. All forms of
 * one pair of types continue a stream in any order.
 *
 * A single sample (`One`) is written at i and at i + tapsLen, and the index moves on by one, modulo
 * @p tapsLen. Blocks do so sample by sample, except where samples have the type of the taps:
 * - fewer than 64 taps (32fc: 32; 64f: 32; 64fc: 16), not in place: if @p len is at least
 *   @p tapsLen, the index ends at `tapsLen - 1`;
 * - as many taps or more, and in place always: through a record made for the call, as the block
 *   forms above. The index stays, and the window at it is the new past.
 *
 * vlqsFIR64fc_Direct_32fc goes through such a record from 128 samples on, vlqsFIR64f_Direct_32f
 * from 256 on. The `_Sfs` forms multiply by `2^-scaleFactor`, saturate, and then round to nearest,
 * half away from zero, unlike the forms with a record; a sum that is not a number gives the top
 * value.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first, @p dlyLine twice as many. The index is
 * at least 0 and below @p tapsLen, which is not tested. @p src and @p dst have @p len elements and
 * do not overlap. Any alignment.
 *
 * **Threads.** As with a record, where the block is not taken sample by sample.
 *
 * **Errors,** in this order: #vlqStsNullPtr for null samples, #vlqStsBadSize for @p len below 1,
 * #vlqStsNullPtr for null @p taps, #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsNullPtr for a
 * null
 * @p dlyLine or @p dlyLineIndex, #vlqStsNoMemory, which changes nothing.
 *
 * **Memory.** None, or a record for the call.
 *
 * @arg @c src          samples; for `One` the sample itself
 * @arg @c dst          result
 * @arg @c srcDst       samples and result of the in-place forms
 * @arg @c len          number of samples
 * @arg @c taps         impulse response
 * @arg @c tapsLen      number of taps, at least 1
 * @arg @c dlyLine      past samples
 * @arg @c dlyLineIndex index of the oldest one, moved on
 * @arg @c scaleFactor  negated exponent of the factor of the result
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIR_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, const Vlq32f* taps,
                             Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR_Direct_32f_I(Vlq32f* srcDst, Vlq32s len, const Vlq32f* taps, Vlq32s tapsLen,
                               Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne_Direct_32f(Vlq32f src, Vlq32f* dst, const Vlq32f* taps, Vlq32s tapsLen,
                                Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne_Direct_32f_I(Vlq32f* srcDst, const Vlq32f* taps, Vlq32s tapsLen,
                                  Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, const Vlq32fc* taps,
                              Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s len, const Vlq32fc* taps, Vlq32s tapsLen,
                                Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne_Direct_32fc(Vlq32fc src, Vlq32fc* dst, const Vlq32fc* taps, Vlq32s tapsLen,
                                 Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne_Direct_32fc_I(Vlq32fc* srcDst, const Vlq32fc* taps, Vlq32s tapsLen,
                                   Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR32f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq32f* taps,
                                    Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                    Vlq32s scaleFactor);
VlqStatus vlqsFIR32f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq32f* taps, Vlq32s tapsLen,
                                     Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne32f_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq32f* taps, Vlq32s tapsLen,
                                       Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne32f_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq32f* taps, Vlq32s tapsLen,
                                        Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIR32fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                      const Vlq32fc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIR32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq32fc* taps,
                                       Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor);
VlqStatus vlqsFIROne32fc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq32fc* taps,
                                         Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor);
VlqStatus vlqsFIROne32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq32fc* taps, Vlq32s tapsLen,
                                          Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor);
VlqStatus vlqsFIR_Direct_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, const Vlq64fc* taps,
                              Vlq32s tapsLen, Vlq64fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR_Direct_64fc_I(Vlq64fc* srcDst, Vlq32s len, const Vlq64fc* taps, Vlq32s tapsLen,
                                Vlq64fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne_Direct_64fc(Vlq64fc src, Vlq64fc* dst, const Vlq64fc* taps, Vlq32s tapsLen,
                                 Vlq64fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne_Direct_64fc_I(Vlq64fc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                   Vlq64fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR64fc_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, const Vlq64fc* taps,
                                  Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR64fc_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                    Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne64fc_Direct_32fc(Vlq32fc src, Vlq32fc* dst, const Vlq64fc* taps, Vlq32s tapsLen,
                                     Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne64fc_Direct_32fc_I(Vlq32fc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                       Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR64fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                      const Vlq64fc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIR64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                       Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor);
VlqStatus vlqsFIROne64fc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor);
VlqStatus vlqsFIROne64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                          Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor);
VlqStatus vlqsFIR64fc_Direct_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len,
                                      const Vlq64fc* taps, Vlq32s tapsLen, Vlq32sc* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIR64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                       Vlq32s tapsLen, Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor);
VlqStatus vlqsFIROne64fc_Direct_32sc_Sfs(Vlq32sc src, Vlq32sc* dst, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor);
VlqStatus vlqsFIROne64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                          Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor);
VlqStatus vlqsFIR_Direct_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, const Vlq64f* taps,
                             Vlq32s tapsLen, Vlq64f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR_Direct_64f_I(Vlq64f* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                               Vlq64f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne_Direct_64f(Vlq64f src, Vlq64f* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                Vlq64f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne_Direct_64f_I(Vlq64f* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                  Vlq64f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR64f_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, const Vlq64f* taps,
                                Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR64f_Direct_32f_I(Vlq32f* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                                  Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne64f_Direct_32f(Vlq32f src, Vlq32f* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                   Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIROne64f_Direct_32f_I(Vlq32f* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                     Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
VlqStatus vlqsFIR64f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                    Vlq32s scaleFactor);
VlqStatus vlqsFIR64f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                                     Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne64f_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                       Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne64f_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                        Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIR64f_Direct_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s* dlyLine, Vlq32s* dlyLineIndex,
                                    Vlq32s scaleFactor);
VlqStatus vlqsFIR64f_Direct_32s_ISfs(Vlq32s* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                                     Vlq32s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne64f_Direct_32s_Sfs(Vlq32s src, Vlq32s* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                       Vlq32s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne64f_Direct_32s_ISfs(Vlq32s* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                        Vlq32s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** @} */

/** @name Multi-rate FIR: records
 *  @{ */
/**
 * A multi-rate filter raises the rate of a stream by U = @p upFactor, filters with @p tapsLen taps
 * h at that high rate, and lowers the rate by D = @p downFactor, in one step: no zero is multiplied
 * and no output computed in vain. Let P = @p upPhase and Q = @p downPhase. A counter runs through
 * the steps of the high rate: samples come in at the steps P, P + U, P + 2 U ..., outputs are made
 * at the steps Q, Q + D, Q + 2 D ...; an output at step t is
 *
 * `y = sum over i of h[p + i U] * x[n - i]`, n = floor((t - P) / U), p = t - P - n U, over all i
 * from 0 with p + i U below @p tapsLen,
 *
 * where x[n] is the newest sample at that step. Filter with the calls `vlqsFIR_...` of the same
 * types, whose length then counts periods of D samples and U outputs. With D = 1 the filter is an
 * interpolator, with U = 1 a decimator.
 *
 * `GetStateSize` tells the size of a record, `Init` builds one in memory of the caller's,
 * `InitAlloc` in a block of its own; `vlqsFIRFree` of the type ends it. Records of factors 1 and 1
 * are those of the single-rate filter, except complex ones other than 64fc_32sc.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has ceil(tapsLen / U), the
 * newest sample first; where it is null the filter starts from silence. Both are copied.
 * `SetDlyLine` and `GetDlyLine` of the type take as many. @p buffer has the size that
 * `GetStateSize` tells and may begin at any address; the record lies somewhere inside and can be
 * neither copied nor moved.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer other than @p dlyLine,
 * #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsBadRateFactor for a factor below 1,
 * #vlqStsBadRatePhase for @p upPhase outside 0 to @p upFactor - 1 or @p downPhase outside 0 to
 * @p downFactor - 1, #vlqStsNoMemory, also for a record whose size would reach 2 GiB.
 *
 * **Memory.** `InitAlloc` allocates the record, `Free` releases it. A record of `Init` may be
 * abandoned.
 *
 * **Source.** R. E. Crochiere, L. R. Rabiner, Multirate Digital Signal Processing, on polyphase
 * structures.
 *
 * @arg @c tapsLen    number of taps, at least 1
 * @arg @c upFactor   factor U by which the rate is raised
 * @arg @c upPhase    step of the first sample
 * @arg @c downFactor factor D by which the rate is lowered
 * @arg @c downPhase  step of the first output
 * @arg @c stateBytes receives the size of a record
 * @arg @c outState   receives the record's address
 * @arg @c taps       impulse response
 * @arg @c dlyLine    past samples, or null
 * @arg @c buffer     memory for the record
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIRMRGetStateSize_32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                    Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize32f_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize_64f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                    Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize64f_32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize64f_32s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize64f_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize_32fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                     Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize32fc_16sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize_64fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                     Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize64fc_32fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize64fc_32sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize64fc_16sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
VlqStatus vlqsFIRMRInit_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                            Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                            const Vlq32f* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps, Vlq32s tapsLen,
                               Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                               const Vlq16s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                            Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                            const Vlq64f* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                               const Vlq32f* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                               const Vlq32s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                               const Vlq16s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                             Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                             const Vlq32fc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq16sc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                             Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                             const Vlq64fc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq32fc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq32sc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq16sc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInitAlloc_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                                 Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq32f* dlyLine);
VlqStatus vlqsFIRMRInitAlloc32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine);
VlqStatus vlqsFIRMRInitAlloc_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                                 Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq64f* dlyLine);
VlqStatus vlqsFIRMRInitAlloc64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq32f* dlyLine);
VlqStatus vlqsFIRMRInitAlloc64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq32s* dlyLine);
VlqStatus vlqsFIRMRInitAlloc64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine);
VlqStatus vlqsFIRMRInitAlloc_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                                  Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                  Vlq32s downPhase, const Vlq32fc* dlyLine);
VlqStatus vlqsFIRMRInitAlloc32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine);
VlqStatus vlqsFIRMRInitAlloc_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                                  Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                  Vlq32s downPhase, const Vlq64fc* dlyLine);
VlqStatus vlqsFIRMRInitAlloc64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32fc* dlyLine);
VlqStatus vlqsFIRMRInitAlloc64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32sc* dlyLine);
VlqStatus vlqsFIRMRInitAlloc64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine);
/** @} */

/** @name Multi-rate FIR: without a record
 *  @{ */
/**
 * The multi-rate filters, for @p numIters periods of D samples and U outputs, with the caller's
 * taps and delay line. Products are formed in the type of the taps, sums in double precision. The
 * `_Sfs` forms store `saturate(round(y * 2^-scaleFactor))`, each part of a complex value for
 * itself, round to nearest and to the even one of two equally near.
 *
 * **Shapes.** @p src has @p numIters D elements, @p dst @p numIters U, of any alignment; they do
 * not overlap. @p srcDst has the larger number of both. @p taps has @p tapsLen elements, h[0]
 * first.
 * @p dlyLine has ceil(tapsLen / U), the newest sample first; a call moves it on, so that a stream may
 * be cut into calls in any way.
 *
 * **Errors,** in this order: #vlqStsNullPtr for null samples, #vlqStsBadSize for @p numIters below
 * 1, #vlqStsNullPtr for null taps, #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsBadRateFactor,
 * #vlqStsBadRatePhase, #vlqStsNullPtr for a null line, #vlqStsNoMemory.
 *
 * **Memory.** The in-place forms copy the samples into a block that they allocate for the call; the
 * others need none.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c srcDst      samples and result of the in-place forms
 * @arg @c numIters    number of periods
 * @arg @c taps        impulse response
 * @arg @c tapsLen     number of taps, at least 1
 * @arg @c upFactor    factor U by which the rate is raised
 * @arg @c upPhase     step of the first sample
 * @arg @c downFactor  factor D by which the rate is lowered
 * @arg @c downPhase   step of the first output
 * @arg @c dlyLine     past samples
 * @arg @c scaleFactor negated exponent of the factor of the result
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIRMR_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s numIters, const Vlq32f* taps,
                               Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                               Vlq32s downPhase, Vlq32f* dlyLine);
VlqStatus vlqsFIRMR_Direct_32f_I(Vlq32f* srcDst, Vlq32s numIters, const Vlq32f* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, Vlq32f* dlyLine);
VlqStatus vlqsFIRMR_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s numIters,
                                const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                Vlq32fc* dlyLine);
VlqStatus vlqsFIRMR_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s numIters, const Vlq32fc* taps,
                                  Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                  Vlq32s downFactor, Vlq32s downPhase, Vlq32fc* dlyLine);
VlqStatus vlqsFIRMR_Direct_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s numIters, const Vlq64f* taps,
                               Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                               Vlq32s downPhase, Vlq64f* dlyLine);
VlqStatus vlqsFIRMR_Direct_64f_I(Vlq64f* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, Vlq64f* dlyLine);
VlqStatus vlqsFIRMR_Direct_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s numIters,
                                const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                Vlq64fc* dlyLine);
VlqStatus vlqsFIRMR_Direct_64fc_I(Vlq64fc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                  Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                  Vlq32s downFactor, Vlq32s downPhase, Vlq64fc* dlyLine);
VlqStatus vlqsFIRMR64f_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s numIters,
                                  const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                  Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                  Vlq32f* dlyLine);
VlqStatus vlqsFIRMR64f_Direct_32f_I(Vlq32f* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, Vlq32f* dlyLine);
VlqStatus vlqsFIRMR64fc_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s numIters,
                                    const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    Vlq32fc* dlyLine);
VlqStatus vlqsFIRMR64fc_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, Vlq32fc* dlyLine);
VlqStatus vlqsFIRMR32f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                      const Vlq32f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      Vlq16s* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR32f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq32f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                       Vlq32s scaleFactor);
VlqStatus vlqsFIRMR32fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                        const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq16sc* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq32fc* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                         Vlq32s scaleFactor);
VlqStatus vlqsFIRMR64f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                      const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      Vlq16s* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR64f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                       Vlq32s scaleFactor);
VlqStatus vlqsFIRMR64fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                        const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq16sc* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                         Vlq32s scaleFactor);
VlqStatus vlqsFIRMR64f_Direct_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s numIters,
                                      const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      Vlq32s* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR64f_Direct_32s_ISfs(Vlq32s* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq32s* dlyLine,
                                       Vlq32s scaleFactor);
VlqStatus vlqsFIRMR64fc_Direct_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s numIters,
                                        const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq32sc* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq32sc* dlyLine,
                                         Vlq32s scaleFactor);
/** @} */

/** @name Records of FIR filters with integer arithmetic, opaque
 *  The first type is that of the taps, the second that of the samples. A filter of integer taps may
 *  also be given its taps as floats: the last names stand for the same record.
 *  @{ */
typedef struct VlqsFIRState_16s VlqsFIRState_16s;       /**< 16-bit taps and samples */
typedef struct VlqsFIRState32s_16s VlqsFIRState32s_16s; /**< 32-bit taps, 16-bit samples */
typedef struct VlqsFIRState32sc_16sc
    VlqsFIRState32sc_16sc; /**< complex 32-bit taps, complex 16-bit samples */
typedef VlqsFIRState32s_16s VlqsFIRState32s_16s32f; /**< the same, taps given as floats */
typedef VlqsFIRState32sc_16sc
    VlqsFIRState32sc_16sc32fc; /**< the same, taps given as complex floats */
/** @} */

/** @name FIR with integer arithmetic: records
 *  @{ */
/**
 * A record holds taps g of 16 bits, a factor f that stands for `h[k] = g[k] * 2^f`, and the delay
 * line, the last @p tapsLen samples of the stream.
 *
 * **Taps.** Integer taps come with a factor: `h[k] = taps[k] * 2^tapsFactor`. Taps of 32 bits are
 * shifted down, rounded towards minus infinity, until none exceeds 32766 in magnitude; taps of 16
 * bits by one place where one of them is -32768. Each place adds one to the factor. Float taps are
 * multiplied by the power of two that takes the largest of them to more than 16383 and not above
 * 32767, and rounded to nearest, ties away from zero; the power is limited to 2^33 and 2^-33. The
 * real and the imaginary parts of complex taps share one factor. A factor stops at the top of its
 * type, a tap that is still too large at that of 16 bits.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has as many, the newest
 * sample first; where it is null the filter starts from silence. Both are copied. @p buffer has the
 * size that `GetStateSize` tells and may begin at any address; the record lies somewhere inside and
 * can be neither copied nor moved. A record whose size would reach 2 GiB cannot be built.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer other than @p dlyLine,
 * #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsNoMemory. Of `Free`: #vlqStsNullPtr,
 * #vlqStsBadSpec for a record of another kind.
 *
 * **Memory.** `InitAlloc` allocates the record, `Free` releases it. A record of `Init` may be
 * abandoned, `Free` leaves it as it is.
 *
 * @arg @c tapsLen    number of taps, at least 1
 * @arg @c stateBytes receives the size of a record
 * @arg @c outState   receives the record's address
 * @arg @c taps       impulse response
 * @arg @c tapsFactor exponent of the factor of the taps
 * @arg @c dlyLine    past samples, or null
 * @arg @c buffer     memory for the record
 * @arg @c state      record
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIRGetStateSize_16s(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize32s_16s(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize32sc_16sc(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize32s_16s32f(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRGetStateSize32sc_16sc32fc(Vlq32s tapsLen, Vlq32s* stateBytes);
VlqStatus vlqsFIRInit_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                          Vlq32s tapsFactor, const Vlq16s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                             Vlq32s tapsFactor, const Vlq16s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                               Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16sc* dlyLine,
                               Vlq8u* buffer);
VlqStatus vlqsFIRInit32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                Vlq32s tapsLen, const Vlq16s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInit32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                   Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRInitAlloc_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                               Vlq32s tapsFactor, const Vlq16s* dlyLine);
VlqStatus vlqsFIRInitAlloc32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                  Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16s* dlyLine);
VlqStatus vlqsFIRInitAlloc32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                    Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16sc* dlyLine);
VlqStatus vlqsFIRInitAlloc32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                     Vlq32s tapsLen, const Vlq16s* dlyLine);
VlqStatus vlqsFIRInitAlloc32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                        Vlq32s tapsLen, const Vlq16sc* dlyLine);
VlqStatus vlqsFIRFree_16s(VlqsFIRState_16s* state);
VlqStatus vlqsFIRFree32s_16s(VlqsFIRState32s_16s* state);
VlqStatus vlqsFIRFree32sc_16sc(VlqsFIRState32sc_16sc* state);
/** @} */

/** @name FIR with integer arithmetic: taps and delay line
 *  @{ */
/**
 * `SetTaps` replaces the taps of a record and leaves its delay line. `GetTaps` reads the taps that
 * the record holds: as integers and their factor, or, of the forms that end in a float type, as
 * floats with the factor in them. `SetDlyLine` replaces the delay line, with silence where @p
 * dlyLine is null; `GetDlyLine` reads it.
 *
 * **Shapes.** @p taps and @p dlyLine have as many elements as the record has taps: h[0] first, and
 * the newest sample first. `SetTaps` takes the taps before the record, unlike the other calls; it
 * brings them to 16 bits as `Init` does, but limits the power of two of float taps to 2^32 and
 * 2^-32.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer other than the @p dlyLine of
 * `SetDlyLine`, #vlqStsBadSpec for a record of another kind.
 *
 * **Memory.** None.
 *
 * @arg @c taps       impulse response
 * @arg @c state      record
 * @arg @c tapsFactor exponent of the factor of the taps; of `GetTaps` receives it
 * @arg @c dlyLine    past samples
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIRSetTaps_16s(const Vlq16s* taps, VlqsFIRState_16s* state, Vlq32s tapsFactor);
VlqStatus vlqsFIRSetTaps32s_16s(const Vlq32s* taps, VlqsFIRState32s_16s* state, Vlq32s tapsFactor);
VlqStatus vlqsFIRSetTaps32sc_16sc(const Vlq32sc* taps, VlqsFIRState32sc_16sc* state,
                                  Vlq32s tapsFactor);
VlqStatus vlqsFIRSetTaps32s_16s32f(const Vlq32f* taps, VlqsFIRState32s_16s32f* state);
VlqStatus vlqsFIRSetTaps32sc_16sc32fc(const Vlq32fc* taps, VlqsFIRState32sc_16sc32fc* state);
VlqStatus vlqsFIRGetTaps_16s(const VlqsFIRState_16s* state, Vlq16s* taps, Vlq32s* tapsFactor);
VlqStatus vlqsFIRGetTaps32s_16s(const VlqsFIRState32s_16s* state, Vlq32s* taps, Vlq32s* tapsFactor);
VlqStatus vlqsFIRGetTaps32sc_16sc(const VlqsFIRState32sc_16sc* state, Vlq32sc* taps,
                                  Vlq32s* tapsFactor);
VlqStatus vlqsFIRGetTaps32s_16s32f(const VlqsFIRState32s_16s32f* state, Vlq32f* taps);
VlqStatus vlqsFIRGetTaps32sc_16sc32fc(const VlqsFIRState32sc_16sc32fc* state, Vlq32fc* taps);
VlqStatus vlqsFIRSetDlyLine_16s(VlqsFIRState_16s* state, const Vlq16s* dlyLine);
VlqStatus vlqsFIRSetDlyLine32s_16s(VlqsFIRState32s_16s* state, const Vlq16s* dlyLine);
VlqStatus vlqsFIRSetDlyLine32sc_16sc(VlqsFIRState32sc_16sc* state, const Vlq16sc* dlyLine);
VlqStatus vlqsFIRGetDlyLine_16s(const VlqsFIRState_16s* state, Vlq16s* dlyLine);
VlqStatus vlqsFIRGetDlyLine32s_16s(const VlqsFIRState32s_16s* state, Vlq16s* dlyLine);
VlqStatus vlqsFIRGetDlyLine32sc_16sc(const VlqsFIRState32sc_16sc* state, Vlq16sc* dlyLine);
/** @} */

/** @name FIR with integer arithmetic: filtering
 *  @{ */
/**
 * `y[n] = sum over k of g[k] * x[n - k]`, x[n] for n below 0 from the delay line, which moves on: a
 * stream may be cut into calls, of blocks and of single samples (`One`), in any way. Stored is
 * `saturate(round(y[n] * 2^(f - scaleFactor)))`, g and f being the taps and the factor that the
 * record holds. The parts of complex values are stored by the same rule.
 *
 * **Arithmetic.** Sums are formed in 32 bits and wrap without notice: keep the sum of the
 * magnitudes of the taps times the largest sample below 2^31. With f - scaleFactor below 0 a result
 * is rounded to nearest, to the even one of two equally near, by 31 places at most; above 0 it is
 * shifted left in 32 bits, where bits are lost before it is saturated, and 0 from 32 places on.
 * Every scale factor is legal. Results do not depend on the cut into calls, nor on the build.
 *
 * **Shapes.** @p src and @p dst have @p len elements and any alignment, and do not overlap.
 *
 * **Threads.** One. A record serves one call at a time.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer, #vlqStsBadSize for @p len below 1,
 * #vlqStsBadSpec for a record of another kind.
 *
 * **Memory.** None.
 *
 * @arg @c src         samples; for `One` the sample itself
 * @arg @c dst         result
 * @arg @c srcDst      samples and result of the in-place forms
 * @arg @c len         number of samples
 * @arg @c state       record
 * @arg @c scaleFactor negated exponent of the factor of the result
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState_16s* state,
                          Vlq32s scaleFactor);
VlqStatus vlqsFIR_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState_16s* state, Vlq32s scaleFactor);
VlqStatus vlqsFIR32s_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState32s_16s* state,
                             Vlq32s scaleFactor);
VlqStatus vlqsFIR32s_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState32s_16s* state,
                              Vlq32s scaleFactor);
VlqStatus vlqsFIR32sc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                               VlqsFIRState32sc_16sc* state, Vlq32s scaleFactor);
VlqStatus vlqsFIR32sc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState32sc_16sc* state,
                                Vlq32s scaleFactor);
VlqStatus vlqsFIROne_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState_16s* state, Vlq32s scaleFactor);
VlqStatus vlqsFIROne32s_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState32s_16s* state,
                                Vlq32s scaleFactor);
VlqStatus vlqsFIROne32sc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState32sc_16sc* state,
                                  Vlq32s scaleFactor);
/** @} */

/** @name FIR with integer arithmetic: without a record
 *  @{ */
/**
 * Filters of integer taps whose taps and delay line are the caller's. `vlqsFIR_Direct_16s` computes
 * `y[n] = sum over k of taps[k] * 2^-15 * x[n - k]`, the others the same without 2^-15; stored is
 * `saturate(round(y[n] * 2^-scaleFactor))`, with the arithmetic of the filters with a record: sums
 * of 32 bits that wrap, round to nearest and to the even one of two equally near.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has room for 2 @p tapsLen
 * samples: a ring of @p tapsLen, kept twice over. The window of the last @p tapsLen samples begins
 * at the index, 0 to @p tapsLen - 1, oldest first; a call moves both on, so that a stream may be
 * cut into calls in any way. Begin with a line of zeros and index 0. `vlqsFIR_Direct_16s` is
 * different: it takes the window at the index to be newest first, leaves it so at the start of the
 * line, and the index at 0; its line does not fit the other forms. @p src and @p dst have @p len
 * elements and any alignment, and do not overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for null samples, #vlqStsBadSize for @p len below 1,
 * #vlqStsNullPtr for null taps, #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsNullPtr for a
 * null line or index, #vlqStsBadDlyIndex, #vlqStsNoMemory. Only the forms of 16-bit taps look at
 * the index, only `vlqsFIR_Direct_16s` needs memory.
 *
 * **Memory.** `vlqsFIR_Direct_16s` allocates one block for the call, the others none.
 *
 * @arg @c src          samples; for `One` the sample itself
 * @arg @c dst          result
 * @arg @c srcDst       samples and result of the in-place forms
 * @arg @c len          number of samples
 * @arg @c taps         impulse response
 * @arg @c tapsLen      number of taps, at least 1
 * @arg @c dlyLine      past samples
 * @arg @c dlyLineIndex where the window begins
 * @arg @c scaleFactor  negated exponent of the factor of the result
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIR_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq16s* taps,
                                 Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                 Vlq32s scaleFactor);
VlqStatus vlqsFIR_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq16s* taps, Vlq32s tapsLen,
                                  Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIR32s_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq32s* taps,
                                    Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                    Vlq32s scaleFactor);
VlqStatus vlqsFIR32s_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq32s* taps, Vlq32s tapsLen,
                                     Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIR32sc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                      const Vlq32sc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIR32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq32sc* taps,
                                       Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor);
VlqStatus vlqsFIROne_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq16s* taps, Vlq32s tapsLen,
                                    Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq16s* taps, Vlq32s tapsLen,
                                     Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne32s_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq32s* taps, Vlq32s tapsLen,
                                       Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne32s_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq32s* taps, Vlq32s tapsLen,
                                        Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
VlqStatus vlqsFIROne32sc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq32sc* taps,
                                         Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor);
VlqStatus vlqsFIROne32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq32sc* taps, Vlq32s tapsLen,
                                          Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor);
/** @} */

/** @name FIR with integer arithmetic and a change of rate: records
 *  @{ */
/**
 * A multi-rate filter takes U times the sample rate of its input, filters there, and keeps every
 * D-th result, U = @p upFactor, D = @p downFactor, without a multiplication by the zeros in between
 * or one for a result that is dropped. Of every D samples come U results:
 *
 * `y[n] = sum over i of g[p + i * U] * x[q - i]`, where `downPhase - upPhase + n * D = q * U + p`,
 * 0 <= p < U.
 *
 * So at the high rate samples arrive at the steps `upPhase + k * U`, and results leave at the steps
 * `downPhase + k * D`.
 *
 * **Use.** The calls for filters of the same kind without a change of rate serve these records as
 * well: vlqsFIR_16s_Sfs, vlqsFIR32s_16s_Sfs, vlqsFIR32sc_16sc_Sfs and their forms in place to
 * filter, with the same arithmetic; `SetTaps`, `GetTaps`, `SetDlyLine`, `GetDlyLine`;
 * vlqsFIRFree_16s, vlqsFIRFree32s_16s, vlqsFIRFree32sc_16sc. In a call that filters @c len counts
 * periods: it reads `len * D` samples and writes `len * U`. In place a vector has as many elements
 * as the greater of the two, and the call allocates a copy of its input: #vlqStsNoMemory. Single
 * samples (`One`) cannot be filtered: #vlqStsBadSpec. A factor of 1 is legal, for U and D alike
 * too; such a record is a multi-rate one all the same.
 *
 * **Taps** are brought to 16 bits as without a change of rate, all phases with one factor.
 *
 * **Shapes.** @p taps has @p tapsLen elements, g[0] first. The delay line has `(tapsLen + U - 1) /
 * U` samples, the newest first, here and in the calls that set and read it; where @p dlyLine is
 * null the filter starts from silence. Both are copied. @p buffer has the size that `GetStateSize`
 * tells and may begin at any address; the record lies somewhere inside and can be neither copied
 * nor moved.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer other than @p dlyLine,
 * #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsBadRateFactor for a factor below 1,
 * #vlqStsBadRatePhase for a phase that is negative or not below its factor, #vlqStsNoMemory, also
 * of `Init` for a record that would reach 2 GiB; its told size is the greatest of the type.
 *
 * **Memory.** `InitAlloc` allocates the record. A record of `Init` may be abandoned.
 *
 * **Source.** R. E. Crochiere, L. R. Rabiner, Multirate Digital Signal Processing, chapter 3:
 * polyphase structures.
 *
 * @arg @c tapsLen    number of taps, at least 1
 * @arg @c upFactor   U, at least 1
 * @arg @c upPhase    steps before the first sample, below U
 * @arg @c downFactor D, at least 1
 * @arg @c downPhase  steps before the first result, below D
 * @arg @c stateBytes receives the size of a record
 * @arg @c outState   receives the record's address
 * @arg @c taps       impulse response, at the high rate
 * @arg @c tapsFactor exponent of the factor of the taps
 * @arg @c dlyLine    past samples, or null
 * @arg @c buffer     memory for the record
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIRMRGetStateSize_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                    Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize32s_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize32sc_16sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize32s_16s32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                          Vlq32s* stateBytes);
VlqStatus vlqsFIRMRGetStateSize32sc_16sc32fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                             Vlq32s* stateBytes);
VlqStatus vlqsFIRMRInit_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                            Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                            Vlq32s downPhase, const Vlq16s* dlyLine, Vlq8u* buffer);
VlqStatus vlqsFIRMRInit32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                               Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase,
                               Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                               Vlq8u* buffer);
VlqStatus vlqsFIRMRInit32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                 Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase,
                                 Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine,
                                 Vlq8u* buffer);
VlqStatus vlqsFIRMRInit32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                  Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                  Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                                  Vlq8u* buffer);
VlqStatus vlqsFIRMRInit32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                     Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                     Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine,
                                     Vlq8u* buffer);
VlqStatus vlqsFIRMRInitAlloc_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                                 Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase,
                                 Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine);
VlqStatus vlqsFIRMRInitAlloc32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                    Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    const Vlq16s* dlyLine);
VlqStatus vlqsFIRMRInitAlloc32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                      Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      const Vlq16sc* dlyLine);
VlqStatus vlqsFIRMRInitAlloc32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine);
VlqStatus vlqsFIRMRInitAlloc32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                          Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                          Vlq32s downFactor, Vlq32s downPhase,
                                          const Vlq16sc* dlyLine);
/** @} */

/** @name FIR with integer arithmetic and a change of rate: without a record
 *  @{ */
/**
 * The same filters with the caller's taps, which stand for themselves: there is no factor, and they
 * are not reduced. Stored is `saturate(round(y[n] * 2^-scaleFactor))`, with sums of 32 bits that
 * wrap and the rounding of the filters with a record. @p numIters periods: `numIters * D` samples
 * give `numIters * U` results.
 *
 * **Shapes.** @p taps has @p tapsLen elements, g[0] first. @p dlyLine has `(tapsLen + U - 1) / U`
 * samples, the newest first, and is moved on by the samples of the call. @p src and @p dst do not
 * overlap; @p srcDst has as many elements as the longer of the two. Any alignment.
 *
 * **Threads.** One.
 *
 * **Errors,** in this order: #vlqStsNullPtr for null samples, #vlqStsBadSize for @p numIters below
 * 1, #vlqStsNullPtr for null @p taps, #vlqStsBadTapCount for @p tapsLen below 1,
 * #vlqStsBadRateFactor for a factor below 1, #vlqStsBadRatePhase for a phase that is negative or
 * not below its factor, #vlqStsNullPtr for a null @p dlyLine, #vlqStsNoMemory, which changes
 * nothing.
 *
 * **Memory.** In place a copy of the input, otherwise none.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c srcDst      samples and result of the in-place forms
 * @arg @c numIters    number of periods
 * @arg @c taps        impulse response, at the high rate
 * @arg @c tapsLen     number of taps, at least 1
 * @arg @c upFactor    U, at least 1
 * @arg @c upPhase     steps before the first sample, below U
 * @arg @c downFactor  D, at least 1
 * @arg @c downPhase   steps before the first result, below D
 * @arg @c dlyLine     past samples
 * @arg @c scaleFactor negated exponent of the factor of the result
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFIRMR_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                   const Vlq16s* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                   Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                   Vlq16s* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq16s* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                    Vlq32s scaleFactor);
VlqStatus vlqsFIRMR32s_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                      const Vlq32s* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      Vlq16s* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR32s_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq32s* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                       Vlq32s scaleFactor);
VlqStatus vlqsFIRMR32sc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                        const Vlq32sc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq16sc* dlyLine, Vlq32s scaleFactor);
VlqStatus vlqsFIRMR32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq32sc* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                         Vlq32s scaleFactor);
/** @} */

VLQS_END_DECLS

#endif
