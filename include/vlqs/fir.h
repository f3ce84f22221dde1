/**
 * @file fir.h
 * @brief FIR filters: single-rate and multi-rate, with floating-point and integer arithmetic.
 */
#ifndef VLQS_FIR_H
#define VLQS_FIR_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/**
 * @defgroup vlqs_fir FIR filters
 *
 * `y[n] = sum over k of h[k] * x[n-k]` over a stream that the caller cuts into blocks.
 *
 * In the line of a function, h is the impulse response (the taps), x the stream of samples, and the
 * sum runs over all taps; `h 32f, x 16s` names their types. `sat` clamps to the type of the result
 * and `round` rounds to an integer. A *stateless* variant keeps no state object: taps and delay
 * line are arguments. In integer filters g are the taps as the state holds them and f their
 * exponent, `h[k] = g[k] * 2^f`.
 *
 * A filter state is built by `Init` in memory of the caller's or by `InitAlloc` in memory of the
 * library's. A state changes with every call, so it serves one stream and one call at a time. Even
 * with a state in caller-owned memory some calls allocate, all of them in place or stateless: the
 * table in the manual's introduction lists them.
 *
 * **Which type?** Filters with float or double taps do not overflow: take `32f_16s` for 16-bit
 * audio. Filters with 16-bit or 32-bit integer taps add up in 32 bits, which wrap without notice:
 * see @ref vlqs_fir_integer before you choose one.
 */

/**
 * @defgroup vlqs_fir_states States of FIR filters, opaque
 * @ingroup vlqs_fir
 *
 * The first type is that of the taps, the second that of the samples; a single type is both.
 *
 * @{
 */
typedef struct VlqsFIRState_32f VlqsFIRState_32f;       /**< float taps, float samples */
typedef struct VlqsFIRState32f_16s VlqsFIRState32f_16s; /**< float taps, 16-bit samples */
typedef struct VlqsFIRState_32fc VlqsFIRState_32fc;     /**< complex float taps and samples */
/** complex float taps, complex 16-bit samples */
typedef struct VlqsFIRState32fc_16sc VlqsFIRState32fc_16sc;
typedef struct VlqsFIRState_64fc VlqsFIRState_64fc; /**< complex double taps and samples */
/** complex double taps, complex float samples */
typedef struct VlqsFIRState64fc_32fc VlqsFIRState64fc_32fc;
/** complex double taps, complex 32-bit samples */
typedef struct VlqsFIRState64fc_32sc VlqsFIRState64fc_32sc;
/** complex double taps, complex 16-bit samples */
typedef struct VlqsFIRState64fc_16sc VlqsFIRState64fc_16sc;
typedef struct VlqsFIRState_64f VlqsFIRState_64f;       /**< double taps, double samples */
typedef struct VlqsFIRState64f_32f VlqsFIRState64f_32f; /**< double taps, float samples */
typedef struct VlqsFIRState64f_32s VlqsFIRState64f_32s; /**< double taps, 32-bit samples */
typedef VlqsFIRState64f_32s VlqsFIRState_32s;           /**< integer taps, 32-bit samples */
typedef struct VlqsFIRState64f_16s VlqsFIRState64f_16s; /**< double taps, 16-bit samples */
/** @} */

/**
 * @defgroup vlqs_fir_init FIR: states
 * @ingroup vlqs_fir
 *
 * A state holds a filter of @p tapsLen taps h and its delay line, the last @p tapsLen samples of
 * the stream. `GetStateSize` returns the size of a state, `Init` builds one in caller-owned memory,
 * `InitAlloc` in blocks of its own, `Free` releases it.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has as many, the newest
 * sample first; if it is null, the delay line starts with zeros. Both are copied. @p buffer has the
 * size that `GetStateSize` returns and may begin at any address; the state is aligned within it and
 * must not be copied or moved. If the state would need 2 GiB or more, `GetStateSize` returns
 * INT32_MAX, and `Init` and `InitAlloc` return #vlqStsNoMemory.
 *
 * The `_32s` variants take integer taps and build a state of the kind `64f_32s` that never uses a
 * transform. All calls on `64f_32s` states accept it; `GetTaps_32s` truncates the taps to 32-bit
 * integers.
 *
 * **Threads.** A state has room for as many threads as the core library allows when its size is
 * queried and when it is built. Set the count before both, and do not raise it while the state is
 * in use.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer other than @p dlyLine,
 * #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsNoMemory. `Free`: #vlqStsNullPtr,
 * #vlqStsBadSpec for a state of another kind. If no transform can be prepared, for lack of memory
 * or otherwise, that is not an error: the filter then computes every block directly.
 *
 * **Memory.** `InitAlloc` allocates the state and, for a filter with a transform, the spec of the
 * transform and, during the call, its scratch; `Free` releases both. A transform is prepared from
 * 64 taps on in single precision, from 32 on in double precision, from 16 on for complex taps. A
 * state built by `Init` needs no `Free`, which leaves it as it is: just reuse or release the
 * buffer.
 *
 * @arg @c tapsLen    number of taps, at least 1
 * @arg @c stateBytes receives the size of a state
 * @arg @c outState   receives the address of the state
 * @arg @c taps       impulse response
 * @arg @c dlyLine    previous samples, or null
 * @arg @c buffer     memory for the state
 * @arg @c state      filter state
 *
 * @{
 */

/** Size in bytes of a filter state: 32f taps and samples. */
VlqStatus vlqsFIRGetStateSize_32f(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 32f taps, 16s samples. */
VlqStatus vlqsFIRGetStateSize32f_16s(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 32fc taps and samples. */
VlqStatus vlqsFIRGetStateSize_32fc(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRGetStateSize32fc_16sc(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 64fc taps and samples. */
VlqStatus vlqsFIRGetStateSize_64fc(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRGetStateSize64fc_32fc(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRGetStateSize64fc_32sc(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRGetStateSize64fc_16sc(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 64f taps and samples. */
VlqStatus vlqsFIRGetStateSize_64f(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 64f taps, 32f samples. */
VlqStatus vlqsFIRGetStateSize64f_32f(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 64f taps, 32s samples. */
VlqStatus vlqsFIRGetStateSize64f_32s(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 32s taps and samples. */
VlqStatus vlqsFIRGetStateSize_32s(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 64f taps, 16s samples. */
VlqStatus vlqsFIRGetStateSize64f_16s(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Builds a filter state in buffer: 32f taps and samples. */
VlqStatus vlqsFIRInit_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                          const Vlq32f* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 32f taps, 16s samples. */
VlqStatus vlqsFIRInit32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps, Vlq32s tapsLen,
                             const Vlq16s* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 32fc taps and samples. */
VlqStatus vlqsFIRInit_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                           const Vlq32fc* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRInit32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                               Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 64fc taps and samples. */
VlqStatus vlqsFIRInit_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                           const Vlq64fc* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRInit64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                               Vlq32s tapsLen, const Vlq32fc* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRInit64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                               Vlq32s tapsLen, const Vlq32sc* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRInit64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                               Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 64f taps and samples. */
VlqStatus vlqsFIRInit_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                          const Vlq64f* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 64f taps, 32f samples. */
VlqStatus vlqsFIRInit64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                             const Vlq32f* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 64f taps, 32s samples. */
VlqStatus vlqsFIRInit64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps, Vlq32s tapsLen,
                             const Vlq32s* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 32s taps and samples. */
VlqStatus vlqsFIRInit_32s(VlqsFIRState_32s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                          const Vlq32s* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 64f taps, 16s samples. */
VlqStatus vlqsFIRInit64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps, Vlq32s tapsLen,
                             const Vlq16s* dlyLine, Vlq8u* buffer);
/** Allocates a filter state: 32f taps and samples. */
VlqStatus vlqsFIRInitAlloc_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                               const Vlq32f* dlyLine);
/** Allocates a filter state: 32f taps, 16s samples. */
VlqStatus vlqsFIRInitAlloc32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                  Vlq32s tapsLen, const Vlq16s* dlyLine);
/** Allocates a filter state: 32fc taps and samples. */
VlqStatus vlqsFIRInitAlloc_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                                const Vlq32fc* dlyLine);
/** Allocates a filter state: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRInitAlloc32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                    Vlq32s tapsLen, const Vlq16sc* dlyLine);
/** Allocates a filter state: 64fc taps and samples. */
VlqStatus vlqsFIRInitAlloc_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                                const Vlq64fc* dlyLine);
/** Allocates a filter state: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRInitAlloc64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq32fc* dlyLine);
/** Allocates a filter state: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRInitAlloc64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq32sc* dlyLine);
/** Allocates a filter state: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRInitAlloc64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                    Vlq32s tapsLen, const Vlq16sc* dlyLine);
/** Allocates a filter state: 64f taps and samples. */
VlqStatus vlqsFIRInitAlloc_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               const Vlq64f* dlyLine);
/** Allocates a filter state: 64f taps, 32f samples. */
VlqStatus vlqsFIRInitAlloc64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq32f* dlyLine);
/** Allocates a filter state: 64f taps, 32s samples. */
VlqStatus vlqsFIRInitAlloc64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq32s* dlyLine);
/** Allocates a filter state: 32s taps and samples. */
VlqStatus vlqsFIRInitAlloc_32s(VlqsFIRState_32s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                               const Vlq32s* dlyLine);
/** Allocates a filter state: 64f taps, 16s samples. */
VlqStatus vlqsFIRInitAlloc64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                  Vlq32s tapsLen, const Vlq16s* dlyLine);
/** Releases a filter state: 32f taps and samples. */
VlqStatus vlqsFIRFree_32f(VlqsFIRState_32f* state);
/** Releases a filter state: 32f taps, 16s samples. */
VlqStatus vlqsFIRFree32f_16s(VlqsFIRState32f_16s* state);
/** Releases a filter state: 32fc taps and samples. */
VlqStatus vlqsFIRFree_32fc(VlqsFIRState_32fc* state);
/** Releases a filter state: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRFree32fc_16sc(VlqsFIRState32fc_16sc* state);
/** Releases a filter state: 64fc taps and samples. */
VlqStatus vlqsFIRFree_64fc(VlqsFIRState_64fc* state);
/** Releases a filter state: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRFree64fc_32fc(VlqsFIRState64fc_32fc* state);
/** Releases a filter state: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRFree64fc_32sc(VlqsFIRState64fc_32sc* state);
/** Releases a filter state: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRFree64fc_16sc(VlqsFIRState64fc_16sc* state);
/** Releases a filter state: 64f taps and samples. */
VlqStatus vlqsFIRFree_64f(VlqsFIRState_64f* state);
/** Releases a filter state: 64f taps, 32f samples. */
VlqStatus vlqsFIRFree64f_32f(VlqsFIRState64f_32f* state);
/** Releases a filter state: 64f taps, 32s samples. */
VlqStatus vlqsFIRFree64f_32s(VlqsFIRState64f_32s* state);
/** Releases a filter state: 64f taps, 16s samples. */
VlqStatus vlqsFIRFree64f_16s(VlqsFIRState64f_16s* state);
/** @} */

/**
 * @defgroup vlqs_fir_taps FIR: taps and delay line
 * @ingroup vlqs_fir
 *
 * `SetTaps` replaces the taps and leaves the delay line as it is; `GetTaps` returns them bit for
 * bit. `SetDlyLine` replaces the delay line, with zeros if @p dlyLine is null; `GetDlyLine` returns
 * it.
 *
 * **Shapes.** @p taps and @p dlyLine have as many elements as the filter has taps: h[0] first, and
 * the newest sample first. The delay line of a multi-rate state has ceil(tapsLen / U) elements.
 * `SetTaps` takes the taps before the state, unlike the other calls.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer other than the @p dlyLine of
 * `SetDlyLine`, #vlqStsBadSpec for a state of another kind. If `SetTaps` cannot transform the new
 * taps, it returns the error of the transform, and the state must not be used for filtering any
 * more.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c taps    impulse response
 * @arg @c dlyLine previous samples
 * @arg @c state   filter state
 *
 * @{
 */

/** Replaces the taps, keeps the delay line: 32f taps and samples. */
VlqStatus vlqsFIRSetTaps_32f(const Vlq32f* taps, VlqsFIRState_32f* state);
/** Replaces the taps, keeps the delay line: 32f taps, 16s samples. */
VlqStatus vlqsFIRSetTaps32f_16s(const Vlq32f* taps, VlqsFIRState32f_16s* state);
/** Replaces the taps, keeps the delay line: 32fc taps and samples. */
VlqStatus vlqsFIRSetTaps_32fc(const Vlq32fc* taps, VlqsFIRState_32fc* state);
/** Replaces the taps, keeps the delay line: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRSetTaps32fc_16sc(const Vlq32fc* taps, VlqsFIRState32fc_16sc* state);
/** Replaces the taps, keeps the delay line: 64fc taps and samples. */
VlqStatus vlqsFIRSetTaps_64fc(const Vlq64fc* taps, VlqsFIRState_64fc* state);
/** Replaces the taps, keeps the delay line: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRSetTaps64fc_32fc(const Vlq64fc* taps, VlqsFIRState64fc_32fc* state);
/** Replaces the taps, keeps the delay line: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRSetTaps64fc_32sc(const Vlq64fc* taps, VlqsFIRState64fc_32sc* state);
/** Replaces the taps, keeps the delay line: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRSetTaps64fc_16sc(const Vlq64fc* taps, VlqsFIRState64fc_16sc* state);
/** Replaces the taps, keeps the delay line: 64f taps and samples. */
VlqStatus vlqsFIRSetTaps_64f(const Vlq64f* taps, VlqsFIRState_64f* state);
/** Replaces the taps, keeps the delay line: 64f taps, 32f samples. */
VlqStatus vlqsFIRSetTaps64f_32f(const Vlq64f* taps, VlqsFIRState64f_32f* state);
/** Replaces the taps, keeps the delay line: 64f taps, 32s samples. */
VlqStatus vlqsFIRSetTaps64f_32s(const Vlq64f* taps, VlqsFIRState64f_32s* state);
/** Replaces the taps, keeps the delay line: 32s taps and samples. */
VlqStatus vlqsFIRSetTaps_32s(const Vlq32s* taps, VlqsFIRState_32s* state);
/** Replaces the taps, keeps the delay line: 64f taps, 16s samples. */
VlqStatus vlqsFIRSetTaps64f_16s(const Vlq64f* taps, VlqsFIRState64f_16s* state);
/** Reads the taps back, h[0] first: 32f taps and samples. */
VlqStatus vlqsFIRGetTaps_32f(const VlqsFIRState_32f* state, Vlq32f* taps);
/** Reads the taps back, h[0] first: 32f taps, 16s samples. */
VlqStatus vlqsFIRGetTaps32f_16s(const VlqsFIRState32f_16s* state, Vlq32f* taps);
/** Reads the taps back, h[0] first: 32fc taps and samples. */
VlqStatus vlqsFIRGetTaps_32fc(const VlqsFIRState_32fc* state, Vlq32fc* taps);
/** Reads the taps back, h[0] first: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRGetTaps32fc_16sc(const VlqsFIRState32fc_16sc* state, Vlq32fc* taps);
/** Reads the taps back, h[0] first: 64fc taps and samples. */
VlqStatus vlqsFIRGetTaps_64fc(const VlqsFIRState_64fc* state, Vlq64fc* taps);
/** Reads the taps back, h[0] first: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRGetTaps64fc_32fc(const VlqsFIRState64fc_32fc* state, Vlq64fc* taps);
/** Reads the taps back, h[0] first: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRGetTaps64fc_32sc(const VlqsFIRState64fc_32sc* state, Vlq64fc* taps);
/** Reads the taps back, h[0] first: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRGetTaps64fc_16sc(const VlqsFIRState64fc_16sc* state, Vlq64fc* taps);
/** Reads the taps back, h[0] first: 64f taps and samples. */
VlqStatus vlqsFIRGetTaps_64f(const VlqsFIRState_64f* state, Vlq64f* taps);
/** Reads the taps back, h[0] first: 64f taps, 32f samples. */
VlqStatus vlqsFIRGetTaps64f_32f(const VlqsFIRState64f_32f* state, Vlq64f* taps);
/** Reads the taps back, h[0] first: 64f taps, 32s samples. */
VlqStatus vlqsFIRGetTaps64f_32s(const VlqsFIRState64f_32s* state, Vlq64f* taps);
/** Reads the taps back, h[0] first, truncated to 32-bit integers. */
VlqStatus vlqsFIRGetTaps_32s(const VlqsFIRState_32s* state, Vlq32s* taps);
/** Reads the taps back, h[0] first: 64f taps, 16s samples. */
VlqStatus vlqsFIRGetTaps64f_16s(const VlqsFIRState64f_16s* state, Vlq64f* taps);
/** Replaces the delay line, newest sample first, null for zeros: 32f taps and samples. */
VlqStatus vlqsFIRSetDlyLine_32f(VlqsFIRState_32f* state, const Vlq32f* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 32f taps, 16s samples. */
VlqStatus vlqsFIRSetDlyLine32f_16s(VlqsFIRState32f_16s* state, const Vlq16s* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 32fc taps and samples. */
VlqStatus vlqsFIRSetDlyLine_32fc(VlqsFIRState_32fc* state, const Vlq32fc* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRSetDlyLine32fc_16sc(VlqsFIRState32fc_16sc* state, const Vlq16sc* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 64fc taps and samples. */
VlqStatus vlqsFIRSetDlyLine_64fc(VlqsFIRState_64fc* state, const Vlq64fc* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRSetDlyLine64fc_32fc(VlqsFIRState64fc_32fc* state, const Vlq32fc* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRSetDlyLine64fc_32sc(VlqsFIRState64fc_32sc* state, const Vlq32sc* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRSetDlyLine64fc_16sc(VlqsFIRState64fc_16sc* state, const Vlq16sc* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 64f taps and samples. */
VlqStatus vlqsFIRSetDlyLine_64f(VlqsFIRState_64f* state, const Vlq64f* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 64f taps, 32f samples. */
VlqStatus vlqsFIRSetDlyLine64f_32f(VlqsFIRState64f_32f* state, const Vlq32f* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 64f taps, 32s samples. */
VlqStatus vlqsFIRSetDlyLine64f_32s(VlqsFIRState64f_32s* state, const Vlq32s* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 64f taps, 16s samples. */
VlqStatus vlqsFIRSetDlyLine64f_16s(VlqsFIRState64f_16s* state, const Vlq16s* dlyLine);
/** Reads the delay line, newest sample first: 32f taps and samples. */
VlqStatus vlqsFIRGetDlyLine_32f(const VlqsFIRState_32f* state, Vlq32f* dlyLine);
/** Reads the delay line, newest sample first: 32f taps, 16s samples. */
VlqStatus vlqsFIRGetDlyLine32f_16s(const VlqsFIRState32f_16s* state, Vlq16s* dlyLine);
/** Reads the delay line, newest sample first: 32fc taps and samples. */
VlqStatus vlqsFIRGetDlyLine_32fc(const VlqsFIRState_32fc* state, Vlq32fc* dlyLine);
/** Reads the delay line, newest sample first: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRGetDlyLine32fc_16sc(const VlqsFIRState32fc_16sc* state, Vlq16sc* dlyLine);
/** Reads the delay line, newest sample first: 64fc taps and samples. */
VlqStatus vlqsFIRGetDlyLine_64fc(const VlqsFIRState_64fc* state, Vlq64fc* dlyLine);
/** Reads the delay line, newest sample first: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRGetDlyLine64fc_32fc(const VlqsFIRState64fc_32fc* state, Vlq32fc* dlyLine);
/** Reads the delay line, newest sample first: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRGetDlyLine64fc_32sc(const VlqsFIRState64fc_32sc* state, Vlq32sc* dlyLine);
/** Reads the delay line, newest sample first: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRGetDlyLine64fc_16sc(const VlqsFIRState64fc_16sc* state, Vlq16sc* dlyLine);
/** Reads the delay line, newest sample first: 64f taps and samples. */
VlqStatus vlqsFIRGetDlyLine_64f(const VlqsFIRState_64f* state, Vlq64f* dlyLine);
/** Reads the delay line, newest sample first: 64f taps, 32f samples. */
VlqStatus vlqsFIRGetDlyLine64f_32f(const VlqsFIRState64f_32f* state, Vlq32f* dlyLine);
/** Reads the delay line, newest sample first: 64f taps, 32s samples. */
VlqStatus vlqsFIRGetDlyLine64f_32s(const VlqsFIRState64f_32s* state, Vlq32s* dlyLine);
/** Reads the delay line, newest sample first: 64f taps, 16s samples. */
VlqStatus vlqsFIRGetDlyLine64f_16s(const VlqsFIRState64f_16s* state, Vlq16s* dlyLine);
/** @} */

/**
 * @defgroup vlqs_fir_32s FIR: integer taps, 32-bit samples
 * @ingroup vlqs_fir
 *
 * A state of vlqsFIRInit_32s() is of the kind `64f_32s`. The library has no functions of these
 * names; the header provides them inline, so that every call is found under the name one expects.
 *
 * **Returns** what the `64f_32s` call returns.
 *
 * @arg @c state   filter state
 * @arg @c dlyLine previous samples
 *
 * @{
 */

/** Releases a state of vlqsFIRInit_32s(): calls vlqsFIRFree64f_32s(). */
static inline VlqStatus vlqsFIRFree_32s(VlqsFIRState_32s* state) {
    return vlqsFIRFree64f_32s(state);
}
/** Replaces the delay line: calls vlqsFIRSetDlyLine64f_32s(). */
static inline VlqStatus vlqsFIRSetDlyLine_32s(VlqsFIRState_32s* state, const Vlq32s* dlyLine) {
    return vlqsFIRSetDlyLine64f_32s(state, dlyLine);
}
/** Reads the delay line: calls vlqsFIRGetDlyLine64f_32s(). */
static inline VlqStatus vlqsFIRGetDlyLine_32s(const VlqsFIRState_32s* state, Vlq32s* dlyLine) {
    return vlqsFIRGetDlyLine64f_32s(state, dlyLine);
}
/** @} */

/**
 * @defgroup vlqs_fir_filter FIR: filtering
 * @ingroup vlqs_fir
 *
 * `y[n] = sum over k of h[k] * x[n-k]`, with x[n] for n < 0 from the delay line, which the call
 * updates: a stream may be cut in any way into blocks and single samples (`One`). The `_Sfs`
 * variants store `sat(round(y[n] * 2^-scaleFactor))`, rounded to nearest with ties to even, each
 * part of a complex value separately; a NaN gives the largest value.
 *
 * **Accuracy.** Sums are formed in the type of the taps. If the state has a transform, blocks of at
 * least 512 samples (256 complex ones) are computed by overlap-save, with transforms of 2 to 4
 * times the number of taps; all others are computed directly. The two paths round differently.
 * In-place calls whose samples have the type of the taps work in blocks of 4096 samples, and a
 * block is transformed if at least 512 (256) samples remain *after* it; other in-place calls decide
 * by the whole length. Results of the direct path do not depend on how the stream is cut into
 * calls.
 *
 * **Shapes.** @p src and @p dst have @p len elements and any alignment, and must not overlap. With
 * a multi-rate state @p len counts periods: each reads D samples and writes U outputs, and
 * @p srcDst has room for the larger number. `One` and the `_32s` variants do not accept multi-rate
 * states.
 *
 * **Threads.** Blocks above 1600 samples (800 complex ones) may be shared among the threads that
 * the core library allows. The results do not depend on their number. A state serves one call at a
 * time.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer, #vlqStsBadSize for @p len
 * below 1, #vlqStsBadSpec for a state of another kind, #vlqStsNoMemory.
 *
 * **Memory.** Allocates nothing, with one exception: an in-place call with a multi-rate state and
 * U > D allocates a copy of the samples for the duration of the call.
 *
 * **Source.** Overlap-save: A. V. Oppenheim, R. W. Schafer, Discrete-Time Signal Processing, on
 * implementing linear time-invariant systems with the DFT.
 *
 * @arg @c src         samples; for `One` the sample itself
 * @arg @c dst         result
 * @arg @c srcDst      samples and result of the in-place variants
 * @arg @c len         number of samples
 * @arg @c state       filter state
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sum h[k] x[n-k], h and x 32f. */
VlqStatus vlqsFIR_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, VlqsFIRState_32f* state);
/** srcDst = sum h[k] x[n-k], h and x 32f. */
VlqStatus vlqsFIR_32f_I(Vlq32f* srcDst, Vlq32s len, VlqsFIRState_32f* state);
/** dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32f, x 16s. */
VlqStatus vlqsFIR32f_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState32f_16s* state,
                             Vlq32s scaleFactor);
/** srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32f, x 16s. */
VlqStatus vlqsFIR32f_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState32f_16s* state,
                              Vlq32s scaleFactor);
/** dst = sum h[k] x[n-k], h and x 32fc. */
VlqStatus vlqsFIR_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, VlqsFIRState_32fc* state);
/** srcDst = sum h[k] x[n-k], h and x 32fc. */
VlqStatus vlqsFIR_32fc_I(Vlq32fc* srcDst, Vlq32s len, VlqsFIRState_32fc* state);
/** dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32fc, x 16sc. */
VlqStatus vlqsFIR32fc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                               VlqsFIRState32fc_16sc* state, Vlq32s scaleFactor);
/** srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32fc, x 16sc. */
VlqStatus vlqsFIR32fc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState32fc_16sc* state,
                                Vlq32s scaleFactor);
/** dst = sum h[k] x[n-k], h and x 64fc. */
VlqStatus vlqsFIR_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, VlqsFIRState_64fc* state);
/** srcDst = sum h[k] x[n-k], h and x 64fc. */
VlqStatus vlqsFIR_64fc_I(Vlq64fc* srcDst, Vlq32s len, VlqsFIRState_64fc* state);
/** dst = sum h[k] x[n-k], h 64fc, x 32fc. */
VlqStatus vlqsFIR64fc_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len,
                           VlqsFIRState64fc_32fc* state);
/** srcDst = sum h[k] x[n-k], h 64fc, x 32fc. */
VlqStatus vlqsFIR64fc_32fc_I(Vlq32fc* srcDst, Vlq32s len, VlqsFIRState64fc_32fc* state);
/** dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 32sc. */
VlqStatus vlqsFIR64fc_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len,
                               VlqsFIRState64fc_32sc* state, Vlq32s scaleFactor);
/** srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 32sc. */
VlqStatus vlqsFIR64fc_32sc_ISfs(Vlq32sc* srcDst, Vlq32s len, VlqsFIRState64fc_32sc* state,
                                Vlq32s scaleFactor);
/** dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 16sc. */
VlqStatus vlqsFIR64fc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                               VlqsFIRState64fc_16sc* state, Vlq32s scaleFactor);
/** srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 16sc. */
VlqStatus vlqsFIR64fc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState64fc_16sc* state,
                                Vlq32s scaleFactor);
/** dst = sum h[k] x[n-k], h and x 64f. */
VlqStatus vlqsFIR_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, VlqsFIRState_64f* state);
/** srcDst = sum h[k] x[n-k], h and x 64f. */
VlqStatus vlqsFIR_64f_I(Vlq64f* srcDst, Vlq32s len, VlqsFIRState_64f* state);
/** dst = sum h[k] x[n-k], h 64f, x 32f. */
VlqStatus vlqsFIR64f_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, VlqsFIRState64f_32f* state);
/** srcDst = sum h[k] x[n-k], h 64f, x 32f. */
VlqStatus vlqsFIR64f_32f_I(Vlq32f* srcDst, Vlq32s len, VlqsFIRState64f_32f* state);
/** dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 32s. */
VlqStatus vlqsFIR64f_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, VlqsFIRState64f_32s* state,
                             Vlq32s scaleFactor);
/** srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 32s. */
VlqStatus vlqsFIR64f_32s_ISfs(Vlq32s* srcDst, Vlq32s len, VlqsFIRState64f_32s* state,
                              Vlq32s scaleFactor);
/** dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h and x 32s. */
VlqStatus vlqsFIR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, VlqsFIRState_32s* state,
                          Vlq32s scaleFactor);
/** srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h and x 32s. */
VlqStatus vlqsFIR_32s_ISfs(Vlq32s* srcDst, Vlq32s len, VlqsFIRState_32s* state, Vlq32s scaleFactor);
/** dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 16s. */
VlqStatus vlqsFIR64f_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState64f_16s* state,
                             Vlq32s scaleFactor);
/** srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 16s. */
VlqStatus vlqsFIR64f_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState64f_16s* state,
                              Vlq32s scaleFactor);
/** One sample: dst = sum h[k] x[n-k], h and x 32f. */
VlqStatus vlqsFIROne_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState_32f* state);
/** One sample: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32f, x 16s. */
VlqStatus vlqsFIROne32f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState32f_16s* state,
                                Vlq32s scaleFactor);
/** One sample: dst = sum h[k] x[n-k], h and x 32fc. */
VlqStatus vlqsFIROne_32fc(Vlq32fc src, Vlq32fc* dst, VlqsFIRState_32fc* state);
/** One sample: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32fc, x 16sc. */
VlqStatus vlqsFIROne32fc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState32fc_16sc* state,
                                  Vlq32s scaleFactor);
/** One sample: dst = sum h[k] x[n-k], h and x 64fc. */
VlqStatus vlqsFIROne_64fc(Vlq64fc src, Vlq64fc* dst, VlqsFIRState_64fc* state);
/** One sample: dst = sum h[k] x[n-k], h 64fc, x 32fc. */
VlqStatus vlqsFIROne64fc_32fc(Vlq32fc src, Vlq32fc* dst, VlqsFIRState64fc_32fc* state);
/** One sample: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 32sc. */
VlqStatus vlqsFIROne64fc_32sc_Sfs(Vlq32sc src, Vlq32sc* dst, VlqsFIRState64fc_32sc* state,
                                  Vlq32s scaleFactor);
/** One sample: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 16sc. */
VlqStatus vlqsFIROne64fc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState64fc_16sc* state,
                                  Vlq32s scaleFactor);
/** One sample: dst = sum h[k] x[n-k], h and x 64f. */
VlqStatus vlqsFIROne_64f(Vlq64f src, Vlq64f* dst, VlqsFIRState_64f* state);
/** One sample: dst = sum h[k] x[n-k], h 64f, x 32f. */
VlqStatus vlqsFIROne64f_32f(Vlq32f src, Vlq32f* dst, VlqsFIRState64f_32f* state);
/** One sample: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 32s. */
VlqStatus vlqsFIROne64f_32s_Sfs(Vlq32s src, Vlq32s* dst, VlqsFIRState64f_32s* state,
                                Vlq32s scaleFactor);
/** One sample: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h and x 32s. */
VlqStatus vlqsFIROne_32s_Sfs(Vlq32s src, Vlq32s* dst, VlqsFIRState_32s* state, Vlq32s scaleFactor);
/** One sample: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 16s. */
VlqStatus vlqsFIROne64f_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState64f_16s* state,
                                Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_fir_direct FIR: caller-owned delay line
 * @ingroup vlqs_fir
 *
 * The same sums without a state: the caller keeps the taps, a buffer of previous samples and an
 * index. The buffer holds a ring of @p tapsLen samples twice, one copy after the other. Before
 * sample x[n], with i the index, `dlyLine[i]` to `dlyLine[i + tapsLen - 1]` hold `x[n - tapsLen]`
 * to `x[n - 1]`. Start with a buffer of zeros and the index 0. All variants of one pair of types
 * may continue each other's streams.
 *
 * A single sample (`One`) is written to i and to i + tapsLen, and the index advances by one modulo
 * @p tapsLen. Blocks do the same sample by sample, except where samples and taps have the same
 * type:
 * - with fewer than 64 taps (`32fc`: 32, `64f`: 32, `64fc`: 16), not in place, the index ends at
 *   `tapsLen - 1` if @p len is at least @p tapsLen;
 * - with that many taps or more, and always in place, the call builds a filter state for its
 *   duration and filters like @ref vlqs_fir_filter. The index stays, and the window at the index
 *   holds the new history.
 *
 * vlqsFIR64fc_Direct_32fc() builds such a state from 128 samples on, vlqsFIR64f_Direct_32f() from
 * 256 on; so do their in-place variants. The `_Sfs` variants multiply by 2^-scaleFactor, saturate,
 * and then round to nearest with ties **away from zero**, unlike the variants with a state; a NaN
 * gives the largest value.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first; @p dlyLine has twice as many. The index
 * must be 0 to tapsLen - 1; this is not tested. @p src and @p dst have @p len elements and must not
 * overlap. Any alignment.
 *
 * **Threads.** As with a state, where a block is not filtered sample by sample.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for null samples, #vlqStsBadSize for @p len below
 * 1, #vlqStsNullPtr for null @p taps, #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsNullPtr for
 * a null @p dlyLine or @p dlyLineIndex, #vlqStsNoMemory, after which nothing has changed.
 *
 * **Memory.** Allocates nothing, except where it builds a filter state for the call, as said above.
 * To filter long blocks without allocation, use a state.
 *
 * @arg @c src          samples; for `One` the sample itself
 * @arg @c dst          result
 * @arg @c srcDst       samples and result of the in-place variants
 * @arg @c len          number of samples
 * @arg @c taps         impulse response
 * @arg @c tapsLen      number of taps, at least 1
 * @arg @c dlyLine      previous samples
 * @arg @c dlyLineIndex index of the oldest of them; the call advances it
 * @arg @c scaleFactor  the result is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** Stateless: dst = sum h[k] x[n-k], h and x 32f. */
VlqStatus vlqsFIR_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, const Vlq32f* taps,
                             Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: srcDst = sum h[k] x[n-k], h and x 32f. */
VlqStatus vlqsFIR_Direct_32f_I(Vlq32f* srcDst, Vlq32s len, const Vlq32f* taps, Vlq32s tapsLen,
                               Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: dst = sum h[k] x[n-k], h and x 32f. */
VlqStatus vlqsFIROne_Direct_32f(Vlq32f src, Vlq32f* dst, const Vlq32f* taps, Vlq32s tapsLen,
                                Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: srcDst = sum h[k] x[n-k], h and x 32f. */
VlqStatus vlqsFIROne_Direct_32f_I(Vlq32f* srcDst, const Vlq32f* taps, Vlq32s tapsLen,
                                  Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: dst = sum h[k] x[n-k], h and x 32fc. */
VlqStatus vlqsFIR_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, const Vlq32fc* taps,
                              Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: srcDst = sum h[k] x[n-k], h and x 32fc. */
VlqStatus vlqsFIR_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s len, const Vlq32fc* taps, Vlq32s tapsLen,
                                Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: dst = sum h[k] x[n-k], h and x 32fc. */
VlqStatus vlqsFIROne_Direct_32fc(Vlq32fc src, Vlq32fc* dst, const Vlq32fc* taps, Vlq32s tapsLen,
                                 Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: srcDst = sum h[k] x[n-k], h and x 32fc. */
VlqStatus vlqsFIROne_Direct_32fc_I(Vlq32fc* srcDst, const Vlq32fc* taps, Vlq32s tapsLen,
                                   Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32f, x 16s. */
VlqStatus vlqsFIR32f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq32f* taps,
                                    Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                    Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32f, x 16s. */
VlqStatus vlqsFIR32f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq32f* taps, Vlq32s tapsLen,
                                     Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32f, x 16s. */
VlqStatus vlqsFIROne32f_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq32f* taps, Vlq32s tapsLen,
                                       Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32f, x 16s. */
VlqStatus vlqsFIROne32f_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq32f* taps, Vlq32s tapsLen,
                                        Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** Stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32fc, x 16sc. */
VlqStatus vlqsFIR32fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                      const Vlq32fc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32fc, x 16sc. */
VlqStatus vlqsFIR32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq32fc* taps,
                                       Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32fc, x 16sc. */
VlqStatus vlqsFIROne32fc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq32fc* taps,
                                         Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32fc, x 16sc. */
VlqStatus vlqsFIROne32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq32fc* taps, Vlq32s tapsLen,
                                          Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor);
/** Stateless: dst = sum h[k] x[n-k], h and x 64fc. */
VlqStatus vlqsFIR_Direct_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, const Vlq64fc* taps,
                              Vlq32s tapsLen, Vlq64fc* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: srcDst = sum h[k] x[n-k], h and x 64fc. */
VlqStatus vlqsFIR_Direct_64fc_I(Vlq64fc* srcDst, Vlq32s len, const Vlq64fc* taps, Vlq32s tapsLen,
                                Vlq64fc* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: dst = sum h[k] x[n-k], h and x 64fc. */
VlqStatus vlqsFIROne_Direct_64fc(Vlq64fc src, Vlq64fc* dst, const Vlq64fc* taps, Vlq32s tapsLen,
                                 Vlq64fc* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: srcDst = sum h[k] x[n-k], h and x 64fc. */
VlqStatus vlqsFIROne_Direct_64fc_I(Vlq64fc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                   Vlq64fc* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: dst = sum h[k] x[n-k], h 64fc, x 32fc. */
VlqStatus vlqsFIR64fc_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, const Vlq64fc* taps,
                                  Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: srcDst = sum h[k] x[n-k], h 64fc, x 32fc. */
VlqStatus vlqsFIR64fc_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                    Vlq32s tapsLen, Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: dst = sum h[k] x[n-k], h 64fc, x 32fc. */
VlqStatus vlqsFIROne64fc_Direct_32fc(Vlq32fc src, Vlq32fc* dst, const Vlq64fc* taps, Vlq32s tapsLen,
                                     Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: srcDst = sum h[k] x[n-k], h 64fc, x 32fc. */
VlqStatus vlqsFIROne64fc_Direct_32fc_I(Vlq32fc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                       Vlq32fc* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 16sc. */
VlqStatus vlqsFIR64fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                      const Vlq64fc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 16sc. */
VlqStatus vlqsFIR64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                       Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 16sc. */
VlqStatus vlqsFIROne64fc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 16sc. */
VlqStatus vlqsFIROne64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                          Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor);
/** Stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 32sc. */
VlqStatus vlqsFIR64fc_Direct_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len,
                                      const Vlq64fc* taps, Vlq32s tapsLen, Vlq32sc* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 32sc. */
VlqStatus vlqsFIR64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, Vlq32s len, const Vlq64fc* taps,
                                       Vlq32s tapsLen, Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 32sc. */
VlqStatus vlqsFIROne64fc_Direct_32sc_Sfs(Vlq32sc src, Vlq32sc* dst, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64fc, x 32sc. */
VlqStatus vlqsFIROne64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, const Vlq64fc* taps, Vlq32s tapsLen,
                                          Vlq32sc* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor);
/** Stateless: dst = sum h[k] x[n-k], h and x 64f. */
VlqStatus vlqsFIR_Direct_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, const Vlq64f* taps,
                             Vlq32s tapsLen, Vlq64f* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: srcDst = sum h[k] x[n-k], h and x 64f. */
VlqStatus vlqsFIR_Direct_64f_I(Vlq64f* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                               Vlq64f* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: dst = sum h[k] x[n-k], h and x 64f. */
VlqStatus vlqsFIROne_Direct_64f(Vlq64f src, Vlq64f* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                Vlq64f* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: srcDst = sum h[k] x[n-k], h and x 64f. */
VlqStatus vlqsFIROne_Direct_64f_I(Vlq64f* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                  Vlq64f* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: dst = sum h[k] x[n-k], h 64f, x 32f. */
VlqStatus vlqsFIR64f_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, const Vlq64f* taps,
                                Vlq32s tapsLen, Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: srcDst = sum h[k] x[n-k], h 64f, x 32f. */
VlqStatus vlqsFIR64f_Direct_32f_I(Vlq32f* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                                  Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: dst = sum h[k] x[n-k], h 64f, x 32f. */
VlqStatus vlqsFIROne64f_Direct_32f(Vlq32f src, Vlq32f* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                   Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
/** One sample, stateless: srcDst = sum h[k] x[n-k], h 64f, x 32f. */
VlqStatus vlqsFIROne64f_Direct_32f_I(Vlq32f* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                     Vlq32f* dlyLine, Vlq32s* dlyLineIndex);
/** Stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 16s. */
VlqStatus vlqsFIR64f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                    Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 16s. */
VlqStatus vlqsFIR64f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                                     Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 16s. */
VlqStatus vlqsFIROne64f_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                       Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 16s. */
VlqStatus vlqsFIROne64f_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                        Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** Stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 32s. */
VlqStatus vlqsFIR64f_Direct_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s* dlyLine, Vlq32s* dlyLineIndex,
                                    Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 32s. */
VlqStatus vlqsFIR64f_Direct_32s_ISfs(Vlq32s* srcDst, Vlq32s len, const Vlq64f* taps, Vlq32s tapsLen,
                                     Vlq32s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 32s. */
VlqStatus vlqsFIROne64f_Direct_32s_Sfs(Vlq32s src, Vlq32s* dst, const Vlq64f* taps, Vlq32s tapsLen,
                                       Vlq32s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 64f, x 32s. */
VlqStatus vlqsFIROne64f_Direct_32s_ISfs(Vlq32s* srcDst, const Vlq64f* taps, Vlq32s tapsLen,
                                        Vlq32s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_firmr_init Multi-rate FIR: states
 * @ingroup vlqs_fir
 *
 * A multi-rate filter raises the rate of a stream by U = @p upFactor, filters it at that high rate
 * with @p tapsLen taps h, and lowers the rate by D = @p downFactor, all in one: it multiplies by no
 * inserted zero and computes no output that is dropped. With D = 1 it is an interpolator, with
 * U = 1 a decimator.
 *
 * Count the steps of the high rate. Samples arrive at steps P, P + U, P + 2 U, ..., P = @p upPhase;
 * outputs leave at steps Q, Q + D, Q + 2 D, ..., Q = @p downPhase. The output at step t is
 *
 * `y = sum over i of h[p + i U] * x[q - i]`, q = floor((t - P) / U), p = t - P - q U, over all
 * i >= 0 with p + i U < @p tapsLen,
 *
 * where x[q] is the newest sample at that step. Filter with the calls `vlqsFIR_...` of the same
 * types, whose length then counts periods of D samples and U outputs.
 *
 * An interpolator spreads the energy of each sample over U outputs: scale the taps to a sum of U,
 * not 1, to keep the level.
 *
 * `GetStateSize` returns the size of a state, `Init` builds one in caller-owned memory, `InitAlloc`
 * in a block of its own; `vlqsFIRFree` of the type releases it. With U = D = 1 the state is that of
 * the single-rate filter, except for complex types other than `64fc_32sc`.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has ceil(tapsLen / U), the
 * newest sample first; if it is null, the delay line starts with zeros. Both are copied.
 * `SetDlyLine` and `GetDlyLine` of the type take as many. @p buffer has the size that
 * `GetStateSize` returns and may begin at any address; the state is aligned within it and must not
 * be copied or moved.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer other than @p dlyLine,
 * #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsBadRateFactor for a factor below 1,
 * #vlqStsBadRatePhase for @p upPhase outside 0 to upFactor - 1 or @p downPhase outside 0 to
 * downFactor - 1, #vlqStsNoMemory, also for a state that would need 2 GiB or more.
 *
 * **Memory.** `InitAlloc` allocates the state, `Free` releases it. A state built by `Init` needs no
 * `Free`.
 *
 * **Source.** R. E. Crochiere, L. R. Rabiner, Multirate Digital Signal Processing, on polyphase
 * structures.
 *
 * @arg @c tapsLen    number of taps, at least 1
 * @arg @c upFactor   U, by which the rate is raised
 * @arg @c upPhase    P, step of the first sample
 * @arg @c downFactor D, by which the rate is lowered
 * @arg @c downPhase  Q, step of the first output
 * @arg @c stateBytes receives the size of a state
 * @arg @c outState   receives the address of the state
 * @arg @c taps       impulse response at the high rate
 * @arg @c dlyLine    previous samples, or null
 * @arg @c buffer     memory for the state
 *
 * @{
 */

/** Size in bytes of a multi-rate filter state: 32f taps and samples. */
VlqStatus vlqsFIRMRGetStateSize_32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                    Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 32f taps, 16s samples. */
VlqStatus vlqsFIRMRGetStateSize32f_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 64f taps and samples. */
VlqStatus vlqsFIRMRGetStateSize_64f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                    Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 64f taps, 32f samples. */
VlqStatus vlqsFIRMRGetStateSize64f_32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 64f taps, 32s samples. */
VlqStatus vlqsFIRMRGetStateSize64f_32s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 64f taps, 16s samples. */
VlqStatus vlqsFIRMRGetStateSize64f_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 32fc taps and samples. */
VlqStatus vlqsFIRMRGetStateSize_32fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                     Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRMRGetStateSize32fc_16sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 64fc taps and samples. */
VlqStatus vlqsFIRMRGetStateSize_64fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                     Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRMRGetStateSize64fc_32fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRMRGetStateSize64fc_32sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRMRGetStateSize64fc_16sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
/** Builds a multi-rate filter state in buffer: 32f taps and samples. */
VlqStatus vlqsFIRMRInit_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                            Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                            const Vlq32f* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 32f taps, 16s samples. */
VlqStatus vlqsFIRMRInit32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps, Vlq32s tapsLen,
                               Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                               const Vlq16s* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 64f taps and samples. */
VlqStatus vlqsFIRMRInit_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                            Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                            const Vlq64f* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 64f taps, 32f samples. */
VlqStatus vlqsFIRMRInit64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                               const Vlq32f* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 64f taps, 32s samples. */
VlqStatus vlqsFIRMRInit64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                               const Vlq32s* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 64f taps, 16s samples. */
VlqStatus vlqsFIRMRInit64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps, Vlq32s tapsLen,
                               Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                               const Vlq16s* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 32fc taps and samples. */
VlqStatus vlqsFIRMRInit_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                             Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                             const Vlq32fc* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRMRInit32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq16sc* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 64fc taps and samples. */
VlqStatus vlqsFIRMRInit_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                             Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                             const Vlq64fc* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRMRInit64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq32fc* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRMRInit64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq32sc* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRMRInit64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq16sc* dlyLine, Vlq8u* buffer);
/** Allocates a multi-rate filter state: 32f taps and samples. */
VlqStatus vlqsFIRMRInitAlloc_32f(VlqsFIRState_32f** outState, const Vlq32f* taps, Vlq32s tapsLen,
                                 Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq32f* dlyLine);
/** Allocates a multi-rate filter state: 32f taps, 16s samples. */
VlqStatus vlqsFIRMRInitAlloc32f_16s(VlqsFIRState32f_16s** outState, const Vlq32f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine);
/** Allocates a multi-rate filter state: 64f taps and samples. */
VlqStatus vlqsFIRMRInitAlloc_64f(VlqsFIRState_64f** outState, const Vlq64f* taps, Vlq32s tapsLen,
                                 Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, const Vlq64f* dlyLine);
/** Allocates a multi-rate filter state: 64f taps, 32f samples. */
VlqStatus vlqsFIRMRInitAlloc64f_32f(VlqsFIRState64f_32f** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq32f* dlyLine);
/** Allocates a multi-rate filter state: 64f taps, 32s samples. */
VlqStatus vlqsFIRMRInitAlloc64f_32s(VlqsFIRState64f_32s** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq32s* dlyLine);
/** Allocates a multi-rate filter state: 64f taps, 16s samples. */
VlqStatus vlqsFIRMRInitAlloc64f_16s(VlqsFIRState64f_16s** outState, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine);
/** Allocates a multi-rate filter state: 32fc taps and samples. */
VlqStatus vlqsFIRMRInitAlloc_32fc(VlqsFIRState_32fc** outState, const Vlq32fc* taps, Vlq32s tapsLen,
                                  Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                  Vlq32s downPhase, const Vlq32fc* dlyLine);
/** Allocates a multi-rate filter state: 32fc taps, 16sc samples. */
VlqStatus vlqsFIRMRInitAlloc32fc_16sc(VlqsFIRState32fc_16sc** outState, const Vlq32fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine);
/** Allocates a multi-rate filter state: 64fc taps and samples. */
VlqStatus vlqsFIRMRInitAlloc_64fc(VlqsFIRState_64fc** outState, const Vlq64fc* taps, Vlq32s tapsLen,
                                  Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                  Vlq32s downPhase, const Vlq64fc* dlyLine);
/** Allocates a multi-rate filter state: 64fc taps, 32fc samples. */
VlqStatus vlqsFIRMRInitAlloc64fc_32fc(VlqsFIRState64fc_32fc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32fc* dlyLine);
/** Allocates a multi-rate filter state: 64fc taps, 32sc samples. */
VlqStatus vlqsFIRMRInitAlloc64fc_32sc(VlqsFIRState64fc_32sc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq32sc* dlyLine);
/** Allocates a multi-rate filter state: 64fc taps, 16sc samples. */
VlqStatus vlqsFIRMRInitAlloc64fc_16sc(VlqsFIRState64fc_16sc** outState, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine);
/** @} */

/**
 * @defgroup vlqs_firmr_direct Multi-rate FIR: caller-owned delay line
 * @ingroup vlqs_fir
 *
 * The filters of @ref vlqs_firmr_init without a state, over @p numIters periods of D samples and U
 * outputs. Products are formed in the type of the taps, sums in double precision. The `_Sfs`
 * variants store `sat(round(y * 2^-scaleFactor))`, rounded to nearest with ties to even, each part
 * of a complex value separately.
 *
 * **Shapes.** @p src has numIters D elements, @p dst has numIters U, with any alignment; they must
 * not overlap. @p srcDst has the larger of the two numbers. @p taps has @p tapsLen elements, h[0]
 * first. @p dlyLine has ceil(tapsLen / U), the newest sample first; the call updates it, so that a
 * stream may be cut into calls in any way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for null samples, #vlqStsBadSize for @p numIters
 * below 1, #vlqStsNullPtr for null @p taps, #vlqStsBadTapCount for @p tapsLen below 1,
 * #vlqStsBadRateFactor, #vlqStsBadRatePhase, #vlqStsNullPtr for a null @p dlyLine, #vlqStsNoMemory.
 *
 * **Memory.** The in-place variants allocate a copy of the samples for the duration of the call;
 * the others allocate nothing.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c srcDst      samples and result of the in-place variants
 * @arg @c numIters    number of periods
 * @arg @c taps        impulse response at the high rate
 * @arg @c tapsLen     number of taps, at least 1
 * @arg @c upFactor    U, by which the rate is raised
 * @arg @c upPhase     P, step of the first sample
 * @arg @c downFactor  D, by which the rate is lowered
 * @arg @c downPhase   Q, step of the first output
 * @arg @c dlyLine     previous samples
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** Multi-rate: dst = sum h[p+iU] x[q-i], h and x 32f. */
VlqStatus vlqsFIRMR_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s numIters, const Vlq32f* taps,
                               Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                               Vlq32s downPhase, Vlq32f* dlyLine);
/** Allocates: srcDst = sum h[p+iU] x[q-i], h and x 32f. */
VlqStatus vlqsFIRMR_Direct_32f_I(Vlq32f* srcDst, Vlq32s numIters, const Vlq32f* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, Vlq32f* dlyLine);
/** Multi-rate: dst = sum h[p+iU] x[q-i], h and x 32fc. */
VlqStatus vlqsFIRMR_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s numIters,
                                const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                Vlq32fc* dlyLine);
/** Allocates: srcDst = sum h[p+iU] x[q-i], h and x 32fc. */
VlqStatus vlqsFIRMR_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s numIters, const Vlq32fc* taps,
                                  Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                  Vlq32s downFactor, Vlq32s downPhase, Vlq32fc* dlyLine);
/** Multi-rate: dst = sum h[p+iU] x[q-i], h and x 64f. */
VlqStatus vlqsFIRMR_Direct_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s numIters, const Vlq64f* taps,
                               Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                               Vlq32s downPhase, Vlq64f* dlyLine);
/** Allocates: srcDst = sum h[p+iU] x[q-i], h and x 64f. */
VlqStatus vlqsFIRMR_Direct_64f_I(Vlq64f* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                 Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                                 Vlq32s downPhase, Vlq64f* dlyLine);
/** Multi-rate: dst = sum h[p+iU] x[q-i], h and x 64fc. */
VlqStatus vlqsFIRMR_Direct_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s numIters,
                                const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                Vlq64fc* dlyLine);
/** Allocates: srcDst = sum h[p+iU] x[q-i], h and x 64fc. */
VlqStatus vlqsFIRMR_Direct_64fc_I(Vlq64fc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                  Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                  Vlq32s downFactor, Vlq32s downPhase, Vlq64fc* dlyLine);
/** Multi-rate: dst = sum h[p+iU] x[q-i], h 64f, x 32f. */
VlqStatus vlqsFIRMR64f_Direct_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s numIters,
                                  const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                  Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                  Vlq32f* dlyLine);
/** Allocates: srcDst = sum h[p+iU] x[q-i], h 64f, x 32f. */
VlqStatus vlqsFIRMR64f_Direct_32f_I(Vlq32f* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, Vlq32f* dlyLine);
/** Multi-rate: dst = sum h[p+iU] x[q-i], h 64fc, x 32fc. */
VlqStatus vlqsFIRMR64fc_Direct_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s numIters,
                                    const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    Vlq32fc* dlyLine);
/** Allocates: srcDst = sum h[p+iU] x[q-i], h 64fc, x 32fc. */
VlqStatus vlqsFIRMR64fc_Direct_32fc_I(Vlq32fc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                      Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                      Vlq32s downFactor, Vlq32s downPhase, Vlq32fc* dlyLine);
/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 32f, x 16s. */
VlqStatus vlqsFIRMR32f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                      const Vlq32f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      Vlq16s* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 32f, x 16s. */
VlqStatus vlqsFIRMR32f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq32f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                       Vlq32s scaleFactor);
/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 32fc, x 16sc. */
VlqStatus vlqsFIRMR32fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                        const Vlq32fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq16sc* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 32fc, x 16sc. */
VlqStatus vlqsFIRMR32fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq32fc* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                         Vlq32s scaleFactor);
/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 64f, x 16s. */
VlqStatus vlqsFIRMR64f_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                      const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      Vlq16s* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 64f, x 16s. */
VlqStatus vlqsFIRMR64f_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                       Vlq32s scaleFactor);
/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 64fc, x 16sc. */
VlqStatus vlqsFIRMR64fc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                        const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq16sc* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 64fc, x 16sc. */
VlqStatus vlqsFIRMR64fc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                         Vlq32s scaleFactor);
/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 64f, x 32s. */
VlqStatus vlqsFIRMR64f_Direct_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s numIters,
                                      const Vlq64f* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      Vlq32s* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 64f, x 32s. */
VlqStatus vlqsFIRMR64f_Direct_32s_ISfs(Vlq32s* srcDst, Vlq32s numIters, const Vlq64f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq32s* dlyLine,
                                       Vlq32s scaleFactor);
/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 64fc, x 32sc. */
VlqStatus vlqsFIRMR64fc_Direct_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, Vlq32s numIters,
                                        const Vlq64fc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq32sc* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 64fc, x 32sc. */
VlqStatus vlqsFIRMR64fc_Direct_32sc_ISfs(Vlq32sc* srcDst, Vlq32s numIters, const Vlq64fc* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq32sc* dlyLine,
                                         Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_fir_integer_states States of FIR filters with integer arithmetic, opaque
 * @ingroup vlqs_fir
 *
 * The first type is that of the taps, the second that of the samples. The last two names are the
 * same states with taps given as floats.
 *
 * @{
 */
typedef struct VlqsFIRState_16s VlqsFIRState_16s;       /**< 16-bit taps and samples */
typedef struct VlqsFIRState32s_16s VlqsFIRState32s_16s; /**< 32-bit taps, 16-bit samples */
/** complex 32-bit taps, complex 16-bit samples */
typedef struct VlqsFIRState32sc_16sc VlqsFIRState32sc_16sc;
/** the state of 32-bit taps with its taps given as floats */
typedef VlqsFIRState32s_16s VlqsFIRState32s_16s32f;
/** the state of complex 32-bit taps with its taps given as complex floats */
typedef VlqsFIRState32sc_16sc VlqsFIRState32sc_16sc32fc;
/** @} */

/**
 * @defgroup vlqs_fir_integer Integer FIR: states
 * @ingroup vlqs_fir
 *
 * A state holds taps g of 16 bits, an exponent f with `h[k] = g[k] * 2^f`, and the delay line, the
 * last @p tapsLen samples of the stream.
 *
 * **How taps become 16-bit.** Integer taps come with an exponent, `h[k] = taps[k] * 2^tapsFactor`.
 * 32-bit taps are shifted right, rounding towards minus infinity, until none exceeds 32766 in
 * magnitude; 16-bit taps are shifted by one if one of them is -32768. Each shift adds 1 to the
 * exponent. Float taps are multiplied by the power of two for which the largest magnitude is above
 * 16383 and not above 32767, and rounded to nearest with ties away from zero; that power is limited
 * to 2^33 and 2^-33. Real and imaginary parts of complex taps share one exponent. An exponent
 * saturates at the top of its type; a tap that is then still too large saturates to 16 bits.
 *
 * **When the sums wrap.** Sums `g[k] * x[n-k]` are formed in 32 bits and wrap without notice. In
 * terms of your own taps, and with X the largest magnitude of a sample, no sum can wrap
 * - with float taps (`32s_16s32f`, `32sc_16sc32fc`), if `sum |h[k]| * X * 2^e < 2^31`, where 2^e is
 *   the power of two for which `max |h[k]| * 2^e` is above 16383 and not above 32767. A gain in the
 *   taps makes no difference, since they are scaled to 16 bits in any case. (Leave a margin for
 *   their rounding, half a unit of 2^-e for each tap);
 * - with integer taps (`16s`, `32s_16s`, `32sc_16sc`), if `sum |taps[k]| * X < 2^31` and no tap
 *   exceeds 32766: `sum |taps[k]| <= 65535` is safe for all samples. Larger 32-bit taps are shifted
 *   right first and count as shifted.
 *
 * For complex filters add up the magnitudes of real and imaginary parts. In a multi-rate filter
 * only the taps of one phase meet in a sum.
 *
 * Example: an ordinary decimator by 6 from 48 kHz, 192 taps, a windowed sinc with a cut-off of 3.6
 * kHz and a Hamming window. Its taps have a largest magnitude of 0.149 and magnitudes that sum to
 * 1.94. As float taps they are multiplied by 2^17, so sums can wrap as soon as samples exceed
 * 8,428, that is -11.8 dBFS. Instead:
 * - take `32f_16s`, whose sums are floats and never wrap;
 * - or give the taps in Q15: `taps[k] = round(h[k] * 32768)` with a @p tapsFactor of -15. Their
 *   magnitudes sum to 63,690, which is below 65,536: no sample wraps. Any filter whose magnitudes
 *   sum to less than 2, with a margin for rounding, and with no tap of 1 or more can be given so.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has as many, the newest
 * sample first; if it is null, the delay line starts with zeros. Both are copied. @p buffer has the
 * size that `GetStateSize` returns and may begin at any address; the state is aligned within it and
 * must not be copied or moved. If the state would need 2 GiB or more, `GetStateSize` returns
 * INT32_MAX, and `Init` and `InitAlloc` return #vlqStsNoMemory.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer other than @p dlyLine,
 * #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsNoMemory. `Free`: #vlqStsNullPtr,
 * #vlqStsBadSpec for a state of another kind.
 *
 * **Memory.** `InitAlloc` allocates the state, `Free` releases it. A state built by `Init` needs no
 * `Free`, which leaves it as it is.
 *
 * @arg @c tapsLen    number of taps, at least 1
 * @arg @c stateBytes receives the size of a state
 * @arg @c outState   receives the address of the state
 * @arg @c taps       impulse response
 * @arg @c tapsFactor exponent of the taps
 * @arg @c dlyLine    previous samples, or null
 * @arg @c buffer     memory for the state
 * @arg @c state      filter state
 *
 * @{
 */

/** Size in bytes of a filter state: 16s taps and samples. */
VlqStatus vlqsFIRGetStateSize_16s(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 32s taps, 16s samples. */
VlqStatus vlqsFIRGetStateSize32s_16s(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 32sc taps, 16sc samples. */
VlqStatus vlqsFIRGetStateSize32sc_16sc(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 32f taps held as 16s, 16s samples. */
VlqStatus vlqsFIRGetStateSize32s_16s32f(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Size in bytes of a filter state: 32fc taps held as 16sc, 16sc samples. */
VlqStatus vlqsFIRGetStateSize32sc_16sc32fc(Vlq32s tapsLen, Vlq32s* stateBytes);
/** Builds a filter state in buffer: 16s taps and samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRInit_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                          Vlq32s tapsFactor, const Vlq16s* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 32s taps, 16s samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRInit32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                             Vlq32s tapsFactor, const Vlq16s* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 32sc taps, 16sc samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRInit32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                               Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16sc* dlyLine,
                               Vlq8u* buffer);
/** Builds a filter state in buffer: 32f taps held as 16s, 16s samples. */
VlqStatus vlqsFIRInit32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                Vlq32s tapsLen, const Vlq16s* dlyLine, Vlq8u* buffer);
/** Builds a filter state in buffer: 32fc taps held as 16sc, 16sc samples. */
VlqStatus vlqsFIRInit32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                   Vlq32s tapsLen, const Vlq16sc* dlyLine, Vlq8u* buffer);
/** Allocates a filter state: 16s taps and samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRInitAlloc_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                               Vlq32s tapsFactor, const Vlq16s* dlyLine);
/** Allocates a filter state: 32s taps, 16s samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRInitAlloc32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                  Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16s* dlyLine);
/** Allocates a filter state: 32sc taps, 16sc samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRInitAlloc32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                    Vlq32s tapsLen, Vlq32s tapsFactor, const Vlq16sc* dlyLine);
/** Allocates a filter state: 32f taps held as 16s, 16s samples. */
VlqStatus vlqsFIRInitAlloc32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                     Vlq32s tapsLen, const Vlq16s* dlyLine);
/** Allocates a filter state: 32fc taps held as 16sc, 16sc samples. */
VlqStatus vlqsFIRInitAlloc32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                        Vlq32s tapsLen, const Vlq16sc* dlyLine);
/** Releases a filter state: 16s taps and samples. */
VlqStatus vlqsFIRFree_16s(VlqsFIRState_16s* state);
/** Releases a filter state: 32s taps, 16s samples. */
VlqStatus vlqsFIRFree32s_16s(VlqsFIRState32s_16s* state);
/** Releases a filter state: 32sc taps, 16sc samples. */
VlqStatus vlqsFIRFree32sc_16sc(VlqsFIRState32sc_16sc* state);
/** @} */

/**
 * @defgroup vlqs_fir_integer_taps Integer FIR: taps and delay line
 * @ingroup vlqs_fir
 *
 * `SetTaps` replaces the taps and leaves the delay line as it is. `GetTaps` returns the taps as the
 * state holds them: as integers and their exponent, or, in the variants that end in a float type,
 * as floats that include it. `SetDlyLine` replaces the delay line, with zeros if @p dlyLine is
 * null; `GetDlyLine` returns it.
 *
 * **Shapes.** @p taps and @p dlyLine have as many elements as the filter has taps: h[0] first, and
 * the newest sample first. `SetTaps` takes the taps before the state, unlike the other calls; it
 * converts them to 16 bits as `Init` does, but limits the power of two of float taps to 2^32 and
 * 2^-32.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer other than the @p dlyLine of
 * `SetDlyLine`, #vlqStsBadSpec for a state of another kind.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c taps       impulse response
 * @arg @c state      filter state
 * @arg @c tapsFactor exponent of the taps; in `GetTaps`, receives it
 * @arg @c dlyLine    previous samples
 *
 * @{
 */

/** Replaces the taps, keeps the delay line: 16s taps and samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRSetTaps_16s(const Vlq16s* taps, VlqsFIRState_16s* state, Vlq32s tapsFactor);
/** Replaces the taps, keeps the delay line: 32s taps, 16s samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRSetTaps32s_16s(const Vlq32s* taps, VlqsFIRState32s_16s* state, Vlq32s tapsFactor);
/** Replaces the taps, keeps the delay line: 32sc taps, 16sc samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRSetTaps32sc_16sc(const Vlq32sc* taps, VlqsFIRState32sc_16sc* state,
                                  Vlq32s tapsFactor);
/** Replaces the taps, keeps the delay line: 32f taps held as 16s, 16s samples. */
VlqStatus vlqsFIRSetTaps32s_16s32f(const Vlq32f* taps, VlqsFIRState32s_16s32f* state);
/** Replaces the taps, keeps the delay line: 32fc taps held as 16sc, 16sc samples. */
VlqStatus vlqsFIRSetTaps32sc_16sc32fc(const Vlq32fc* taps, VlqsFIRState32sc_16sc32fc* state);
/** Reads the taps and their factor back, h[0] first: 16s taps and samples. */
VlqStatus vlqsFIRGetTaps_16s(const VlqsFIRState_16s* state, Vlq16s* taps, Vlq32s* tapsFactor);
/** Reads the taps and their factor back, h[0] first: 32s taps, 16s samples. */
VlqStatus vlqsFIRGetTaps32s_16s(const VlqsFIRState32s_16s* state, Vlq32s* taps, Vlq32s* tapsFactor);
/** Reads the taps and their factor back, h[0] first: 32sc taps, 16sc samples. */
VlqStatus vlqsFIRGetTaps32sc_16sc(const VlqsFIRState32sc_16sc* state, Vlq32sc* taps,
                                  Vlq32s* tapsFactor);
/** Reads the taps back, h[0] first: 32f taps held as 16s, 16s samples. */
VlqStatus vlqsFIRGetTaps32s_16s32f(const VlqsFIRState32s_16s32f* state, Vlq32f* taps);
/** Reads the taps back, h[0] first: 32fc taps held as 16sc, 16sc samples. */
VlqStatus vlqsFIRGetTaps32sc_16sc32fc(const VlqsFIRState32sc_16sc32fc* state, Vlq32fc* taps);
/** Replaces the delay line, newest sample first, null for zeros: 16s taps and samples. */
VlqStatus vlqsFIRSetDlyLine_16s(VlqsFIRState_16s* state, const Vlq16s* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 32s taps, 16s samples. */
VlqStatus vlqsFIRSetDlyLine32s_16s(VlqsFIRState32s_16s* state, const Vlq16s* dlyLine);
/** Replaces the delay line, newest sample first, null for zeros: 32sc taps, 16sc samples. */
VlqStatus vlqsFIRSetDlyLine32sc_16sc(VlqsFIRState32sc_16sc* state, const Vlq16sc* dlyLine);
/** Reads the delay line, newest sample first: 16s taps and samples. */
VlqStatus vlqsFIRGetDlyLine_16s(const VlqsFIRState_16s* state, Vlq16s* dlyLine);
/** Reads the delay line, newest sample first: 32s taps, 16s samples. */
VlqStatus vlqsFIRGetDlyLine32s_16s(const VlqsFIRState32s_16s* state, Vlq16s* dlyLine);
/** Reads the delay line, newest sample first: 32sc taps, 16sc samples. */
VlqStatus vlqsFIRGetDlyLine32sc_16sc(const VlqsFIRState32sc_16sc* state, Vlq16sc* dlyLine);
/** @} */

/**
 * @defgroup vlqs_fir_integer_filter Integer FIR: filtering
 * @ingroup vlqs_fir
 *
 * `y[n] = sum over k of g[k] * x[n-k]`, with x[n] for n < 0 from the delay line, which the call
 * updates: a stream may be cut in any way into blocks and single samples (`One`). The result is
 * `sat(round(y[n] * 2^(f - scaleFactor)))`, with g and f as the state holds them (see
 * @ref vlqs_fir_integer); real and imaginary parts alike.
 *
 * **Arithmetic.** Sums are formed in 32 bits and wrap without notice: @ref vlqs_fir_integer says
 * when, and what to use instead. If f - scaleFactor is negative, the sum is shifted right by at
 * most 31 bits and rounded to nearest with ties to even. If it is positive, the sum is shifted left
 * in 32 bits, where bits are lost *before* the result is saturated; a shift by 32 or more gives 0.
 * Every scale factor is legal. Results depend neither on how the stream is cut into calls nor on
 * the build.
 *
 * **Shapes.** @p src and @p dst have @p len elements and any alignment, and must not overlap. With
 * a multi-rate state see @ref vlqs_firmr_integer.
 *
 * **Threads.** One. A state serves one call at a time.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer, #vlqStsBadSize for @p len
 * below 1, #vlqStsBadSpec for a state of another kind, #vlqStsNoMemory.
 *
 * **Memory.** Allocates nothing, with one exception: an in-place call with a multi-rate state
 * allocates a copy of the samples for the duration of the call.
 *
 * @arg @c src         samples; for `One` the sample itself
 * @arg @c dst         result
 * @arg @c srcDst      samples and result of the in-place variants
 * @arg @c len         number of samples
 * @arg @c state       filter state
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState_16s* state,
                          Vlq32s scaleFactor);
/** srcDst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIR_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState_16s* state, Vlq32s scaleFactor);
/** dst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIR32s_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, VlqsFIRState32s_16s* state,
                             Vlq32s scaleFactor);
/** srcDst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIR32s_16s_ISfs(Vlq16s* srcDst, Vlq32s len, VlqsFIRState32s_16s* state,
                              Vlq32s scaleFactor);
/** dst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIR32sc_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                               VlqsFIRState32sc_16sc* state, Vlq32s scaleFactor);
/** srcDst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIR32sc_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, VlqsFIRState32sc_16sc* state,
                                Vlq32s scaleFactor);
/** One sample: dst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIROne_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState_16s* state, Vlq32s scaleFactor);
/** One sample: dst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIROne32s_16s_Sfs(Vlq16s src, Vlq16s* dst, VlqsFIRState32s_16s* state,
                                Vlq32s scaleFactor);
/** One sample: dst = sat(round(2^(f - scaleFactor) * sum g[k] x[n-k])), 32-bit sums that wrap. */
VlqStatus vlqsFIROne32sc_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, VlqsFIRState32sc_16sc* state,
                                  Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_fir_integer_direct Integer FIR: caller-owned delay line
 * @ingroup vlqs_fir
 *
 * Filters with integer taps that keep no state. The blocks vlqsFIR_Direct_16s_Sfs() and
 * vlqsFIR_Direct_16s_ISfs() take Q15 taps, `y[n] = sum over k of taps[k] * 2^-15 * x[n-k]`; all
 * others compute the same without the factor 2^-15. The result is
 * `sat(round(y[n] * 2^-scaleFactor))`, with the arithmetic of the filters with a state
 * (@ref vlqs_fir_integer_filter): 32-bit sums that wrap unless `sum |taps[k]| * X < 2^31`, rounded
 * to nearest with ties to even. The taps are used as they are.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has room for 2 @p tapsLen
 * samples: a ring of @p tapsLen, held twice. The window of the last @p tapsLen samples starts at
 * the index, 0 to tapsLen - 1, oldest first; the call updates both, so that a stream may be cut
 * into calls in any way. Start with a buffer of zeros and the index 0. The blocks with Q15 taps
 * differ: they expect the window at the index with the newest sample first, and leave it so at the
 * start of the buffer, with the index at 0. Their delay line therefore does not fit the other
 * variants. @p src and @p dst have @p len elements and any alignment, and must not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for null samples, #vlqStsBadSize for @p len below
 * 1, #vlqStsNullPtr for null @p taps, #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsNullPtr for
 * a null @p dlyLine or @p dlyLineIndex, #vlqStsBadDlyIndex, #vlqStsNoMemory. Only the variants with
 * 16-bit taps test the index.
 *
 * **Memory.** vlqsFIR_Direct_16s_Sfs() and vlqsFIR_Direct_16s_ISfs() allocate a filter state for
 * the duration of the call, the others nothing.
 *
 * @arg @c src          samples; for `One` the sample itself
 * @arg @c dst          result
 * @arg @c srcDst       samples and result of the in-place variants
 * @arg @c len          number of samples
 * @arg @c taps         impulse response
 * @arg @c tapsLen      number of taps, at least 1
 * @arg @c dlyLine      previous samples
 * @arg @c dlyLineIndex start of the window; the call advances it
 * @arg @c scaleFactor  the result is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** Stateless: dst = sat(round(2^-(scaleFactor + 15) * sum h[k] x[n-k])), h and x 16s. */
VlqStatus vlqsFIR_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq16s* taps,
                                 Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                 Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-(scaleFactor + 15) * sum h[k] x[n-k])), h and x 16s. */
VlqStatus vlqsFIR_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq16s* taps, Vlq32s tapsLen,
                                  Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** Stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32s, x 16s. */
VlqStatus vlqsFIR32s_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, const Vlq32s* taps,
                                    Vlq32s tapsLen, Vlq16s* dlyLine, Vlq32s* dlyLineIndex,
                                    Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32s, x 16s. */
VlqStatus vlqsFIR32s_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s len, const Vlq32s* taps, Vlq32s tapsLen,
                                     Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** Stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32sc, x 16sc. */
VlqStatus vlqsFIR32sc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len,
                                      const Vlq32sc* taps, Vlq32s tapsLen, Vlq16sc* dlyLine,
                                      Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** Stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32sc, x 16sc. */
VlqStatus vlqsFIR32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, const Vlq32sc* taps,
                                       Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                       Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h and x 16s. */
VlqStatus vlqsFIROne_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq16s* taps, Vlq32s tapsLen,
                                    Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h and x 16s. */
VlqStatus vlqsFIROne_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq16s* taps, Vlq32s tapsLen,
                                     Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32s, x 16s. */
VlqStatus vlqsFIROne32s_Direct_16s_Sfs(Vlq16s src, Vlq16s* dst, const Vlq32s* taps, Vlq32s tapsLen,
                                       Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32s, x 16s. */
VlqStatus vlqsFIROne32s_Direct_16s_ISfs(Vlq16s* srcDst, const Vlq32s* taps, Vlq32s tapsLen,
                                        Vlq16s* dlyLine, Vlq32s* dlyLineIndex, Vlq32s scaleFactor);
/** One sample, stateless: dst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32sc, x 16sc. */
VlqStatus vlqsFIROne32sc_Direct_16sc_Sfs(Vlq16sc src, Vlq16sc* dst, const Vlq32sc* taps,
                                         Vlq32s tapsLen, Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                         Vlq32s scaleFactor);
/** One sample, stateless: srcDst = sat(round(2^-scaleFactor * sum h[k] x[n-k])), h 32sc, x 16sc. */
VlqStatus vlqsFIROne32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, const Vlq32sc* taps, Vlq32s tapsLen,
                                          Vlq16sc* dlyLine, Vlq32s* dlyLineIndex,
                                          Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_firmr_integer Integer multi-rate FIR: states
 * @ingroup vlqs_fir
 *
 * A multi-rate filter raises the sample rate by U = @p upFactor, filters at that rate, and keeps
 * every D-th result, D = @p downFactor, without multiplying by the inserted zeros or computing a
 * result that is dropped. D samples give U results:
 *
 * `y[n] = sum over i of g[p + i U] * x[q - i]`, where `downPhase - upPhase + n D = q U + p`,
 * 0 <= p < U.
 *
 * So at the high rate samples arrive at steps `upPhase + k U`, and results leave at steps
 * `downPhase + k D`.
 *
 * **Use.** These states are filtered by the calls of the single-rate filters, with the same
 * arithmetic: vlqsFIR_16s_Sfs(), vlqsFIR32s_16s_Sfs(), vlqsFIR32sc_16sc_Sfs() and their in-place
 * variants. `SetTaps`, `GetTaps`, `SetDlyLine`, `GetDlyLine` and `Free` of the type apply too. The
 * length of a filter call counts periods: it reads `len * D` samples and writes `len * U` results.
 * In place a vector has room for the larger number, and the call allocates a copy of its input
 * (#vlqStsNoMemory if it cannot). Single samples (`One`) are refused with #vlqStsBadSpec. A factor
 * of 1 is legal, also for both; the state is then a multi-rate one all the same.
 *
 * **Taps** become 16-bit as in single-rate states, all phases with one exponent; the sums of a
 * phase wrap by the same rule, see @ref vlqs_fir_integer.
 *
 * **Shapes.** @p taps has @p tapsLen elements, g[0] first. The delay line has ceil(tapsLen / U)
 * samples, the newest first, here and in the calls that set and read it; if @p dlyLine is null, it
 * starts with zeros. Both are copied. @p buffer has the size that `GetStateSize` returns and may
 * begin at any address; the state is aligned within it and must not be copied or moved.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer other than @p dlyLine,
 * #vlqStsBadTapCount for @p tapsLen below 1, #vlqStsBadRateFactor for a factor below 1,
 * #vlqStsBadRatePhase for a phase that is negative or not below its factor, #vlqStsNoMemory. If the
 * state would need 2 GiB or more, `GetStateSize` returns INT32_MAX, and `Init` and `InitAlloc`
 * return #vlqStsNoMemory.
 *
 * **Memory.** `InitAlloc` allocates the state, `Free` releases it. A state built by `Init` needs no
 * `Free`.
 *
 * **Source.** R. E. Crochiere, L. R. Rabiner, Multirate Digital Signal Processing, chapter 3:
 * polyphase structures.
 *
 * @arg @c tapsLen    number of taps, at least 1
 * @arg @c upFactor   U, at least 1
 * @arg @c upPhase    step of the first sample, below U
 * @arg @c downFactor D, at least 1
 * @arg @c downPhase  step of the first result, below D
 * @arg @c stateBytes receives the size of a state
 * @arg @c outState   receives the address of the state
 * @arg @c taps       impulse response at the high rate
 * @arg @c tapsFactor exponent of the taps
 * @arg @c dlyLine    previous samples, or null
 * @arg @c buffer     memory for the state
 *
 * @{
 */

/** Size in bytes of a multi-rate filter state: 16s taps and samples. */
VlqStatus vlqsFIRMRGetStateSize_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                    Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 32s taps, 16s samples. */
VlqStatus vlqsFIRMRGetStateSize32s_16s(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                       Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 32sc taps, 16sc samples. */
VlqStatus vlqsFIRMRGetStateSize32sc_16sc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                         Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 32f taps held as 16s, 16s samples. */
VlqStatus vlqsFIRMRGetStateSize32s_16s32f(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                          Vlq32s* stateBytes);
/** Size in bytes of a multi-rate filter state: 32fc taps held as 16sc, 16sc samples. */
VlqStatus vlqsFIRMRGetStateSize32sc_16sc32fc(Vlq32s tapsLen, Vlq32s upFactor, Vlq32s downFactor,
                                             Vlq32s* stateBytes);
/** Builds a multi-rate filter state in buffer: 16s taps and samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRMRInit_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                            Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase, Vlq32s downFactor,
                            Vlq32s downPhase, const Vlq16s* dlyLine, Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 32s taps, 16s samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRMRInit32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps, Vlq32s tapsLen,
                               Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase,
                               Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                               Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 32sc taps, 16sc samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRMRInit32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                 Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase,
                                 Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine,
                                 Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 32f taps held as 16s, 16s samples. */
VlqStatus vlqsFIRMRInit32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                  Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                  Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine,
                                  Vlq8u* buffer);
/** Builds a multi-rate filter state in buffer: 32fc taps held as 16sc, 16sc samples. */
VlqStatus vlqsFIRMRInit32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                     Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                     Vlq32s downFactor, Vlq32s downPhase, const Vlq16sc* dlyLine,
                                     Vlq8u* buffer);
/** Allocates a multi-rate filter state: 16s taps and samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRMRInitAlloc_16s(VlqsFIRState_16s** outState, const Vlq16s* taps, Vlq32s tapsLen,
                                 Vlq32s tapsFactor, Vlq32s upFactor, Vlq32s upPhase,
                                 Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine);
/** Allocates a multi-rate filter state: 32s taps, 16s samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRMRInitAlloc32s_16s(VlqsFIRState32s_16s** outState, const Vlq32s* taps,
                                    Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                    Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                    const Vlq16s* dlyLine);
/** Allocates a multi-rate filter state: 32sc taps, 16sc samples, h = taps * 2^tapsFactor. */
VlqStatus vlqsFIRMRInitAlloc32sc_16sc(VlqsFIRState32sc_16sc** outState, const Vlq32sc* taps,
                                      Vlq32s tapsLen, Vlq32s tapsFactor, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      const Vlq16sc* dlyLine);
/** Allocates a multi-rate filter state: 32f taps held as 16s, 16s samples. */
VlqStatus vlqsFIRMRInitAlloc32s_16s32f(VlqsFIRState32s_16s32f** outState, const Vlq32f* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, const Vlq16s* dlyLine);
/** Allocates a multi-rate filter state: 32fc taps held as 16sc, 16sc samples. */
VlqStatus vlqsFIRMRInitAlloc32sc_16sc32fc(VlqsFIRState32sc_16sc32fc** outState, const Vlq32fc* taps,
                                          Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                          Vlq32s downFactor, Vlq32s downPhase,
                                          const Vlq16sc* dlyLine);
/** @} */

/**
 * @defgroup vlqs_firmr_integer_direct Integer multi-rate FIR: caller-owned delay line
 * @ingroup vlqs_fir
 *
 * The filters of @ref vlqs_firmr_integer without a state. The taps are used as they are, without an
 * exponent. The result is `sat(round(y[n] * 2^-scaleFactor))`, with 32-bit sums that wrap and the
 * rounding of @ref vlqs_fir_integer_filter. @p numIters periods take `numIters * D` samples to
 * `numIters * U` results.
 *
 * **Shapes.** @p taps has @p tapsLen elements, h[0] first. @p dlyLine has ceil(tapsLen / U)
 * samples, the newest first; the call updates it. @p src and @p dst must not overlap; @p srcDst has
 * room for the longer of the two. Any alignment.
 *
 * **Threads.** One.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for null samples, #vlqStsBadSize for @p numIters
 * below 1, #vlqStsNullPtr for null @p taps, #vlqStsBadTapCount for @p tapsLen below 1,
 * #vlqStsBadRateFactor for a factor below 1, #vlqStsBadRatePhase for a phase that is negative or
 * not below its factor, #vlqStsNullPtr for a null @p dlyLine, #vlqStsNoMemory, after which nothing
 * has changed.
 *
 * **Memory.** The in-place variants allocate a copy of the samples for the duration of the call;
 * the others allocate nothing.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c srcDst      samples and result of the in-place variants
 * @arg @c numIters    number of periods
 * @arg @c taps        impulse response at the high rate
 * @arg @c tapsLen     number of taps, at least 1
 * @arg @c upFactor    U, at least 1
 * @arg @c upPhase     step of the first sample, below U
 * @arg @c downFactor  D, at least 1
 * @arg @c downPhase   step of the first result, below D
 * @arg @c dlyLine     previous samples
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h and x 16s. */
VlqStatus vlqsFIRMR_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                   const Vlq16s* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                   Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                   Vlq16s* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h and x 16s. */
VlqStatus vlqsFIRMR_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq16s* taps,
                                    Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                    Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                    Vlq32s scaleFactor);
/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 32s, x 16s. */
VlqStatus vlqsFIRMR32s_Direct_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s numIters,
                                      const Vlq32s* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                      Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                      Vlq16s* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 32s, x 16s. */
VlqStatus vlqsFIRMR32s_Direct_16s_ISfs(Vlq16s* srcDst, Vlq32s numIters, const Vlq32s* taps,
                                       Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                       Vlq32s downFactor, Vlq32s downPhase, Vlq16s* dlyLine,
                                       Vlq32s scaleFactor);
/** Multi-rate: dst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 32sc, x 16sc. */
VlqStatus vlqsFIRMR32sc_Direct_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s numIters,
                                        const Vlq32sc* taps, Vlq32s tapsLen, Vlq32s upFactor,
                                        Vlq32s upPhase, Vlq32s downFactor, Vlq32s downPhase,
                                        Vlq16sc* dlyLine, Vlq32s scaleFactor);
/** Allocates: srcDst = sat(round(2^-scaleFactor * sum h[p+iU] x[q-i])), h 32sc, x 16sc. */
VlqStatus vlqsFIRMR32sc_Direct_16sc_ISfs(Vlq16sc* srcDst, Vlq32s numIters, const Vlq32sc* taps,
                                         Vlq32s tapsLen, Vlq32s upFactor, Vlq32s upPhase,
                                         Vlq32s downFactor, Vlq32s downPhase, Vlq16sc* dlyLine,
                                         Vlq32s scaleFactor);
/** @} */

VLQS_END_DECLS

#endif
