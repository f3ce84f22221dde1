/**
 * @file fft.h
 * @brief Power-of-two Fourier transforms and packed real spectra.
 */
#ifndef VLQS_FFT_H
#define VLQS_FFT_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/**
 * @defgroup vlqs_fft Fourier transforms
 *
 * A transform runs from a spec, which holds its tables: build it once (`GetSize` and `Init` in
 * memory of your own, or `InitAlloc`), transform as often as you like, `Free` it. Transforms only
 * read the spec, so several threads may share one as long as each has a work buffer of its own. N
 * is 2^order throughout.
 *
 * Transforms in floating point follow the rounding mode and the flushing of subnormal numbers that
 * the calling thread has set (MXCSR); their accuracy is stated for the default, round to nearest.
 *
 * Real spectra have three layouts, see @ref vlqs_fft_real.
 */

/**
 * @defgroup vlqs_fft_complex_specs Specs of complex transforms, opaque
 * @ingroup vlqs_fft
 *
 * @{
 */
typedef struct VlqsFFTSpec_C_32fc VlqsFFTSpec_C_32fc; /**< interleaved single precision */
typedef struct VlqsFFTSpec_C_32f VlqsFFTSpec_C_32f;   /**< split single precision: re, im arrays */
typedef struct VlqsFFTSpec_C_64fc VlqsFFTSpec_C_64fc; /**< interleaved double precision */
typedef struct VlqsFFTSpec_C_64f VlqsFFTSpec_C_64f;   /**< split double precision: re, im arrays */
/** @} */

/**
 * @defgroup vlqs_fft_real_specs Specs of real transforms, opaque
 * @ingroup vlqs_fft
 *
 * @{
 */
typedef struct VlqsFFTSpec_R_32f VlqsFFTSpec_R_32f; /**< single precision */
typedef struct VlqsFFTSpec_R_64f VlqsFFTSpec_R_64f; /**< double precision */
/** @} */

/**
 * @defgroup vlqs_fft_complex_init Complex FFT: specs
 * @ingroup vlqs_fft
 *
 * The spec of a transform of N = 2^order complex values. `GetSize` returns the sizes of the spec,
 * of the scratch of `Init` and of the work buffer; `Init` builds a spec in caller-owned memory,
 * `InitAlloc` in a block of its own; `GetBufSize` returns the size of the work buffer from a spec;
 * `Free` releases the spec.
 *
 * **Normalization.** @p flag says which direction is multiplied, and by what: #vlqNormFwdByN
 * (forward by 1/N), #vlqNormInvByN (inverse by 1/N), #vlqNormBySqrtN (both by 1/sqrt(N), an IEEE
 * square root and division, exact for even orders) or #vlqNormNone.
 *
 * **Flag or hint?** @p flag comes first, @p hint second; both are integers. A flag of 0 or 3 is
 * refused, but an exchanged pair of 1 and 2 is not: `(vlqNormInvByN, vlqHintFast)` exchanged scales
 * the forward transform instead of the inverse. @p hint is stored and has no effect here.
 *
 * **Shapes.** @p order is 0 to 28 in single precision, 0 to 27 in double precision. The memory may
 * begin at any address: the sizes include the slack for aligning it. Where a size is 0, the pointer
 * may be null. The scratch is free again when `Init` returns. A spec refers to itself and must not
 * be copied or moved.
 *
 * **Errors,** in the order tested. `GetSize`: #vlqStsBadOrder for an order that is negative or
 * above 30, #vlqStsNullPtr for a null size, #vlqStsBadFlag, #vlqStsBadOrder for an order above the
 * largest one. `Init`: #vlqStsNullPtr for @p outSpec, #vlqStsBadOrder, #vlqStsNullPtr for
 * @p specMem, #vlqStsBadFlag, #vlqStsNullPtr for @p initBuf from order 11 on. `InitAlloc`:
 * #vlqStsNullPtr for @p outSpec, those of `GetSize`, #vlqStsNoMemory. `GetBufSize` and `Free`:
 * #vlqStsNullPtr for a null pointer, #vlqStsBadSpec for a spec that was freed or is of another
 * kind.
 *
 * **Memory.** `InitAlloc` allocates the spec and, during the call, the scratch of `Init`. `Free`
 * invalidates the spec, and releases it if `InitAlloc` made it. The other calls allocate nothing.
 *
 * @arg @c order     base-2 logarithm of the length
 * @arg @c flag      normalization, see above
 * @arg @c hint      stored in the spec, without effect
 * @arg @c specBytes receives the size of the spec
 * @arg @c initBytes receives the size of the scratch of `Init`
 * @arg @c workBytes receives the size of the work buffer of a transform
 * @arg @c outSpec   receives the address of the spec
 * @arg @c specMem   memory of specBytes bytes for the spec
 * @arg @c initBuf   scratch of initBytes bytes
 * @arg @c spec      spec
 * @arg @c bufBytes  receives the size of the work buffer of a transform, 0 if it needs none
 *
 * @{
 */

/** Sizes in bytes of the spec and its buffers: complex float FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_C_32fc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                Vlq32s* initBytes, Vlq32s* workBytes);
/** Sizes in bytes of the spec and its buffers: split complex float FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_C_32f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: complex float FFT of 2^order points. */
VlqStatus vlqsFFTInit_C_32fc(VlqsFFTSpec_C_32fc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                             Vlq8u* specMem, Vlq8u* initBuf);
/** Builds a spec in caller-owned memory: split complex float FFT of 2^order points. */
VlqStatus vlqsFFTInit_C_32f(VlqsFFTSpec_C_32f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: complex float FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_C_32fc(VlqsFFTSpec_C_32fc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint);
/** Allocates and builds a spec: split complex float FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_C_32f(VlqsFFTSpec_C_32f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
/** Size in bytes of the work buffer of a complex float FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_C_32fc(const VlqsFFTSpec_C_32fc* spec, Vlq32s* bufBytes);
/** Size in bytes of the work buffer of a split complex float FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_C_32f(const VlqsFFTSpec_C_32f* spec, Vlq32s* bufBytes);
/** Releases a complex float FFT spec. */
VlqStatus vlqsFFTFree_C_32fc(VlqsFFTSpec_C_32fc* spec);
/** Releases a split complex float FFT spec. */
VlqStatus vlqsFFTFree_C_32f(VlqsFFTSpec_C_32f* spec);
/** Sizes in bytes of the spec and its buffers: complex double FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_C_64fc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                Vlq32s* initBytes, Vlq32s* workBytes);
/** Sizes in bytes of the spec and its buffers: split complex double FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_C_64f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: complex double FFT of 2^order points. */
VlqStatus vlqsFFTInit_C_64fc(VlqsFFTSpec_C_64fc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                             Vlq8u* specMem, Vlq8u* initBuf);
/** Builds a spec in caller-owned memory: split complex double FFT of 2^order points. */
VlqStatus vlqsFFTInit_C_64f(VlqsFFTSpec_C_64f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: complex double FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_C_64fc(VlqsFFTSpec_C_64fc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint);
/** Allocates and builds a spec: split complex double FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_C_64f(VlqsFFTSpec_C_64f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
/** Size in bytes of the work buffer of a complex double FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_C_64fc(const VlqsFFTSpec_C_64fc* spec, Vlq32s* bufBytes);
/** Size in bytes of the work buffer of a split complex double FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_C_64f(const VlqsFFTSpec_C_64f* spec, Vlq32s* bufBytes);
/** Releases a complex double FFT spec. */
VlqStatus vlqsFFTFree_C_64fc(VlqsFFTSpec_C_64fc* spec);
/** Releases a split complex double FFT spec. */
VlqStatus vlqsFFTFree_C_64f(VlqsFFTSpec_C_64f* spec);
/** @} */

/**
 * @defgroup vlqs_fft_complex Complex FFT
 * @ingroup vlqs_fft
 *
 * Forward `X[k] = s * sum over n of x[n] * exp(-2 pi i n k / N)`, inverse `x[n] = s * sum over k of
 * X[k] * exp(2 pi i n k / N)`. The factor s follows from the spec's normalization, 1 for a
 * direction that it leaves alone. The split variants (`32f`, `64f`) have real and imaginary parts
 * in separate arrays.
 *
 * **Shapes.** All vectors have N = 2^order elements and any alignment. The destination may equal
 * the source, which is what the `_I` variants do; the vectors must not overlap in any other way.
 * Results depend neither on the alignment nor on whether the transform is in place. @p buf has the
 * size that `GetBufSize` returns, begins at any address, and holds nothing between calls.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null spec, #vlqStsBadSpec for a spec that
 * was freed or is of another kind, #vlqStsNullPtr for a null vector, #vlqStsNoMemory.
 *
 * **Memory.** With a null @p buf a call allocates the work buffer and releases it again, from order
 * 6 on. With a buffer, and up to order 5, it allocates nothing.
 *
 * **Source.** Cooley and Tukey 1965; decimation in time in Stockham's self-sorting form (C. Van
 * Loan, Computational Frameworks for the Fast Fourier Transform, 1992).
 *
 * @arg @c src      input
 * @arg @c dst      output
 * @arg @c srcDst   input and output
 * @arg @c srcRe    real parts of the input
 * @arg @c srcIm    imaginary parts of the input
 * @arg @c dstRe    real parts of the output
 * @arg @c dstIm    imaginary parts of the output
 * @arg @c srcDstRe real parts of input and output
 * @arg @c srcDstIm imaginary parts of input and output
 * @arg @c spec     spec
 * @arg @c buf      work buffer, or null
 *
 * @{
 */

/** X[k] = s * sum x[n] exp(-2 pi i n k / N). */
VlqStatus vlqsFFTFwd_CToC_32fc(const Vlq32fc* src, Vlq32fc* dst, const VlqsFFTSpec_C_32fc* spec,
                               Vlq8u* buf);
/** X[k] = s * sum x[n] exp(-2 pi i n k / N), in place. */
VlqStatus vlqsFFTFwd_CToC_32fc_I(Vlq32fc* srcDst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
/** x[n] = s * sum X[k] exp(2 pi i n k / N). */
VlqStatus vlqsFFTInv_CToC_32fc(const Vlq32fc* src, Vlq32fc* dst, const VlqsFFTSpec_C_32fc* spec,
                               Vlq8u* buf);
/** x[n] = s * sum X[k] exp(2 pi i n k / N), in place. */
VlqStatus vlqsFFTInv_CToC_32fc_I(Vlq32fc* srcDst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
/** X[k] = s * sum x[n] exp(-2 pi i n k / N), split re and im. */
VlqStatus vlqsFFTFwd_CToC_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstRe,
                              Vlq32f* dstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf);
/** X[k] = s * sum x[n] exp(-2 pi i n k / N), split re and im, in place. */
VlqStatus vlqsFFTFwd_CToC_32f_I(Vlq32f* srcDstRe, Vlq32f* srcDstIm, const VlqsFFTSpec_C_32f* spec,
                                Vlq8u* buf);
/** x[n] = s * sum X[k] exp(2 pi i n k / N), split re and im. */
VlqStatus vlqsFFTInv_CToC_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstRe,
                              Vlq32f* dstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf);
/** x[n] = s * sum X[k] exp(2 pi i n k / N), split re and im, in place. */
VlqStatus vlqsFFTInv_CToC_32f_I(Vlq32f* srcDstRe, Vlq32f* srcDstIm, const VlqsFFTSpec_C_32f* spec,
                                Vlq8u* buf);
/** X[k] = s * sum x[n] exp(-2 pi i n k / N). */
VlqStatus vlqsFFTFwd_CToC_64fc(const Vlq64fc* src, Vlq64fc* dst, const VlqsFFTSpec_C_64fc* spec,
                               Vlq8u* buf);
/** X[k] = s * sum x[n] exp(-2 pi i n k / N), in place. */
VlqStatus vlqsFFTFwd_CToC_64fc_I(Vlq64fc* srcDst, const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf);
/** x[n] = s * sum X[k] exp(2 pi i n k / N). */
VlqStatus vlqsFFTInv_CToC_64fc(const Vlq64fc* src, Vlq64fc* dst, const VlqsFFTSpec_C_64fc* spec,
                               Vlq8u* buf);
/** x[n] = s * sum X[k] exp(2 pi i n k / N), in place. */
VlqStatus vlqsFFTInv_CToC_64fc_I(Vlq64fc* srcDst, const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf);
/** X[k] = s * sum x[n] exp(-2 pi i n k / N), split re and im. */
VlqStatus vlqsFFTFwd_CToC_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dstRe,
                              Vlq64f* dstIm, const VlqsFFTSpec_C_64f* spec, Vlq8u* buf);
/** X[k] = s * sum x[n] exp(-2 pi i n k / N), split re and im, in place. */
VlqStatus vlqsFFTFwd_CToC_64f_I(Vlq64f* srcDstRe, Vlq64f* srcDstIm, const VlqsFFTSpec_C_64f* spec,
                                Vlq8u* buf);
/** x[n] = s * sum X[k] exp(2 pi i n k / N), split re and im. */
VlqStatus vlqsFFTInv_CToC_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dstRe,
                              Vlq64f* dstIm, const VlqsFFTSpec_C_64f* spec, Vlq8u* buf);
/** x[n] = s * sum X[k] exp(2 pi i n k / N), split re and im, in place. */
VlqStatus vlqsFFTInv_CToC_64f_I(Vlq64f* srcDstRe, Vlq64f* srcDstIm, const VlqsFFTSpec_C_64f* spec,
                                Vlq8u* buf);
/** @} */

/**
 * @defgroup vlqs_fft_real_init Real FFT: specs
 * @ingroup vlqs_fft
 *
 * The spec of a transform of N = 2^order real samples holds the order, the normalization and all
 * tables. `GetSize` returns the sizes of its parts; `Init` builds it in caller-owned memory and
 * `InitAlloc` in memory of its own; `GetBufSize` returns the size of the work buffer of a
 * transform; `Free` releases the spec.
 *
 * **Flag or hint?** @p flag comes first, @p hint second; both are integers. @p hint is stored and
 * has no effect here. See @ref vlqs_fft_complex_init.
 *
 * **Shapes.** Orders 0 to 29 in single precision, 0 to 28 in double precision. @p specMem and
 * @p initBuf may begin at any address. The spec is placed at the first 64-byte boundary of
 * @p specMem; it refers to itself and must not be copied or moved. @p initBuf is free again when
 * `Init` returns; up to order 10 it may be null.
 *
 * **Errors,** in the order tested. `GetSize`: #vlqStsBadOrder for an order that is negative or
 * above 30, #vlqStsNullPtr for a null size, #vlqStsBadFlag, #vlqStsBadOrder for an order above the
 * largest one. `Init`: #vlqStsNullPtr for @p outSpec, #vlqStsBadOrder, #vlqStsNullPtr for
 * @p specMem, #vlqStsBadFlag, #vlqStsNullPtr for @p initBuf. `InitAlloc`: #vlqStsNullPtr for
 * @p outSpec, those of `GetSize`, #vlqStsNoMemory. `GetBufSize` and `Free`: #vlqStsNullPtr for a
 * null pointer, #vlqStsBadSpec for a spec that was freed or is of another kind.
 *
 * **Memory.** `InitAlloc` allocates the spec and, during the call, the scratch of `Init`; `Free`
 * releases the spec if `InitAlloc` made it. The other calls allocate nothing.
 *
 * @arg @c order     base-2 logarithm of the length
 * @arg @c flag      normalization: #vlqNormFwdByN, #vlqNormInvByN, #vlqNormBySqrtN or #vlqNormNone
 * @arg @c hint      stored in the spec, without effect
 * @arg @c specBytes receives the size of the spec
 * @arg @c initBytes receives the size of the scratch of `Init`, 0 if it needs none
 * @arg @c workBytes receives the size of the work buffer of a transform, 0 if it needs none
 * @arg @c outSpec   receives the address of the spec
 * @arg @c specMem   memory of specBytes bytes for the spec
 * @arg @c initBuf   scratch of initBytes bytes
 * @arg @c spec      spec
 * @arg @c bufBytes  receives the size of the work buffer of a transform, 0 if it needs none
 *
 * @{
 */

/** Sizes in bytes of the spec and its buffers: real float FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_R_32f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: real float FFT of 2^order points. */
VlqStatus vlqsFFTInit_R_32f(VlqsFFTSpec_R_32f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: real float FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_R_32f(VlqsFFTSpec_R_32f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
/** Size in bytes of the work buffer of a real float FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_R_32f(const VlqsFFTSpec_R_32f* spec, Vlq32s* bufBytes);
/** Releases a real float FFT spec. */
VlqStatus vlqsFFTFree_R_32f(VlqsFFTSpec_R_32f* spec);
/** Sizes in bytes of the spec and its buffers: real double FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_R_64f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: real double FFT of 2^order points. */
VlqStatus vlqsFFTInit_R_64f(VlqsFFTSpec_R_64f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: real double FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_R_64f(VlqsFFTSpec_R_64f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
/** Size in bytes of the work buffer of a real double FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_R_64f(const VlqsFFTSpec_R_64f* spec, Vlq32s* bufBytes);
/** Releases a real double FFT spec. */
VlqStatus vlqsFFTFree_R_64f(VlqsFFTSpec_R_64f* spec);
/** @} */

/**
 * @defgroup vlqs_fft_real Real FFT
 * @ingroup vlqs_fft
 *
 * Forward `X[k] = s * sum over n of x[n] * exp(-2 pi i n k / N)` for N = 2^order real samples x,
 * and its inverse with `exp(2 pi i n k / N)`. The factor s follows from the spec's normalization:
 * 1, 1/N or 1/sqrt(N). X[N-k] is the conjugate of X[k], so half of the spectrum suffices. Three
 * layouts store it:
 *
 * - CCS, N + 2 values: `Re X[0], 0, Re X[1], Im X[1], ..., Re X[N/2], 0`
 * - Pack, N values: `Re X[0], Re X[1], Im X[1], ..., Re X[N/2]`
 * - Perm, N values: `Re X[0], Re X[N/2], Re X[1], Im X[1], ...`; the fastest, since the others are
 *   made from it
 *
 * For N = 1, CCS is `x, 0` and the others are `x`.
 *
 * **Imaginary parts of bins 0 and N/2.** The inverse from CCS ignores them, whatever their values:
 * no real signal has any. If processing made them nonzero, their energy is silently lost.
 *
 * **Shapes.** Signals have N elements. Source and destination are the same vector or do not
 * overlap; an in-place vector of a CCS transform has N + 2 elements. The work buffer has the size
 * that `GetBufSize` returns. Any alignment.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null spec, #vlqStsBadSpec for a spec that
 * was freed or is of another kind, #vlqStsNullPtr for a null vector, #vlqStsNoMemory.
 *
 * **Memory.** With a null @p buf a call allocates the work buffer, if the spec needs one, and
 * releases it again. With a buffer it allocates nothing.
 *
 * **Source.** A complex transform of N/2 points and the separation of its two interleaved signals:
 * E. O. Brigham, The Fast Fourier Transform and its Applications, 1988, section 9.3.
 *
 * @arg @c src    signal, or spectrum for the inverse
 * @arg @c dst    spectrum, or signal for the inverse
 * @arg @c srcDst both, in the in-place variants
 * @arg @c spec   spec
 * @arg @c buf    work buffer, or null
 *
 * @{
 */

/** Forward FFT of N real samples to a CCS spectrum of N + 2 values. */
VlqStatus vlqsFFTFwd_RToCCS_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                Vlq8u* buf);
/** Forward FFT of N real samples to a CCS spectrum of N + 2 values, in place. */
VlqStatus vlqsFFTFwd_RToCCS_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
/** Forward FFT of N real samples to a Pack spectrum of N values. */
VlqStatus vlqsFFTFwd_RToPack_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                 Vlq8u* buf);
/** Forward FFT of N real samples to a Pack spectrum of N values, in place. */
VlqStatus vlqsFFTFwd_RToPack_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
/** Forward FFT of N real samples to a Perm spectrum of N values. */
VlqStatus vlqsFFTFwd_RToPerm_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                 Vlq8u* buf);
/** Forward FFT of N real samples to a Perm spectrum of N values, in place. */
VlqStatus vlqsFFTFwd_RToPerm_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
/** Inverse FFT of a CCS spectrum of N + 2 values to N real samples. */
VlqStatus vlqsFFTInv_CCSToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                Vlq8u* buf);
/** Inverse FFT of a CCS spectrum of N + 2 values to N real samples, in place. */
VlqStatus vlqsFFTInv_CCSToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
/** Inverse FFT of a Pack spectrum of N values to N real samples. */
VlqStatus vlqsFFTInv_PackToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                 Vlq8u* buf);
/** Inverse FFT of a Pack spectrum of N values to N real samples, in place. */
VlqStatus vlqsFFTInv_PackToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
/** Inverse FFT of a Perm spectrum of N values to N real samples. */
VlqStatus vlqsFFTInv_PermToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                 Vlq8u* buf);
/** Inverse FFT of a Perm spectrum of N values to N real samples, in place. */
VlqStatus vlqsFFTInv_PermToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
/** Forward FFT of N real samples to a CCS spectrum of N + 2 values. */
VlqStatus vlqsFFTFwd_RToCCS_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                Vlq8u* buf);
/** Forward FFT of N real samples to a CCS spectrum of N + 2 values, in place. */
VlqStatus vlqsFFTFwd_RToCCS_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
/** Forward FFT of N real samples to a Pack spectrum of N values. */
VlqStatus vlqsFFTFwd_RToPack_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                 Vlq8u* buf);
/** Forward FFT of N real samples to a Pack spectrum of N values, in place. */
VlqStatus vlqsFFTFwd_RToPack_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
/** Forward FFT of N real samples to a Perm spectrum of N values. */
VlqStatus vlqsFFTFwd_RToPerm_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                 Vlq8u* buf);
/** Forward FFT of N real samples to a Perm spectrum of N values, in place. */
VlqStatus vlqsFFTFwd_RToPerm_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
/** Inverse FFT of a CCS spectrum of N + 2 values to N real samples. */
VlqStatus vlqsFFTInv_CCSToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                Vlq8u* buf);
/** Inverse FFT of a CCS spectrum of N + 2 values to N real samples, in place. */
VlqStatus vlqsFFTInv_CCSToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
/** Inverse FFT of a Pack spectrum of N values to N real samples. */
VlqStatus vlqsFFTInv_PackToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                 Vlq8u* buf);
/** Inverse FFT of a Pack spectrum of N values to N real samples, in place. */
VlqStatus vlqsFFTInv_PackToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
/** Inverse FFT of a Perm spectrum of N values to N real samples. */
VlqStatus vlqsFFTInv_PermToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                 Vlq8u* buf);
/** Inverse FFT of a Perm spectrum of N values to N real samples, in place. */
VlqStatus vlqsFFTInv_PermToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
/** @} */

/**
 * @defgroup vlqs_fft_fixed_specs Specs of fixed-point transforms, opaque
 * @ingroup vlqs_fft
 *
 * @{
 */
typedef struct VlqsFFTSpec_C_16sc VlqsFFTSpec_C_16sc; /**< interleaved 16 bits */
typedef struct VlqsFFTSpec_C_16s VlqsFFTSpec_C_16s;   /**< split 16 bits: re, im arrays */
typedef struct VlqsFFTSpec_R_16s VlqsFFTSpec_R_16s;   /**< real, 16 bits */
typedef struct VlqsFFTSpec_C_32sc VlqsFFTSpec_C_32sc; /**< interleaved 32 bits */
typedef struct VlqsFFTSpec_C_32s VlqsFFTSpec_C_32s;   /**< split 32 bits: re, im arrays */
typedef struct VlqsFFTSpec_R_32s VlqsFFTSpec_R_32s;   /**< real, 32 bits */
/** real, 16-bit signals with 32-bit spectra */
typedef struct VlqsFFTSpec_R_16s32s VlqsFFTSpec_R_16s32s;
/** @} */

/**
 * @defgroup vlqs_fft_fixed_init Fixed-point FFT: specs
 * @ingroup vlqs_fft
 *
 * The specs of transforms of N = 2^order complex or real integers; the calls are those of the
 * floating-point transforms.
 *
 * **Normalization.** @p flag is #vlqNormFwdByN, #vlqNormInvByN, #vlqNormBySqrtN or #vlqNormNone, as
 * in floating point; the scale factor of a call is applied on top of it.
 *
 * **Accuracy.** @p hint matters for 16-bit transforms of up to 8 points: with #vlqHintNone and
 * #vlqHintFast these run in 32-bit integers with 14-bit twiddle factors, otherwise in single
 * precision like all longer ones. Transforms of 32-bit samples run in double precision.
 *
 * **Flag or hint?** @p flag comes first, @p hint second; both are integers. See
 * @ref vlqs_fft_complex_init.
 *
 * **Shapes.** Orders: 0 to 28 for complex and 0 to 29 for real samples of 16 bits, 0 to 27 and 0 to
 * 28 of 32 bits, 0 to 29 of `R_16s32s`. The memory may begin at any address. The spec is placed at
 * the first 64-byte boundary of @p specMem and must not be copied or moved. @p initBuf may be null
 * up to order 10. The work buffer of the largest order of each kind is too large for a 32-bit size:
 * the size wraps, and transforms of that order return #vlqStsNoMemory.
 *
 * **Errors,** in the order tested. `GetSize`: #vlqStsBadOrder for an order that is negative or
 * above 30, #vlqStsNullPtr for a null size, #vlqStsBadFlag, #vlqStsBadOrder for an order above the
 * largest one. `Init`: #vlqStsNullPtr for @p outSpec, #vlqStsBadOrder, #vlqStsNullPtr for
 * @p specMem, #vlqStsBadFlag, #vlqStsNullPtr for @p initBuf. `InitAlloc`: #vlqStsNullPtr for
 * @p outSpec, those of `GetSize`, #vlqStsNoMemory. `GetBufSize` and `Free`: #vlqStsNullPtr for a
 * null pointer, #vlqStsBadSpec for a spec that was freed or is of another kind.
 *
 * **Memory.** `InitAlloc` allocates the spec and, during the call, the scratch of `Init`; `Free`
 * releases the spec if `InitAlloc` made it. The other calls allocate nothing.
 *
 * @arg @c order     base-2 logarithm of the length
 * @arg @c flag      normalization
 * @arg @c hint      integer or floating-point arithmetic, see above
 * @arg @c specBytes receives the size of the spec
 * @arg @c initBytes receives the size of the scratch of `Init`
 * @arg @c workBytes receives the size of the work buffer of a transform
 * @arg @c outSpec   receives the address of the spec
 * @arg @c specMem   memory of specBytes bytes for the spec
 * @arg @c initBuf   scratch of initBytes bytes
 * @arg @c spec      spec
 * @arg @c bufBytes  receives the size of the work buffer of a transform, 0 if it needs none
 *
 * @{
 */

/** Sizes in bytes of the spec and its buffers: complex 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_C_16sc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: complex 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTInit_C_16sc(VlqsFFTSpec_C_16sc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                             Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: complex 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_C_16sc(VlqsFFTSpec_C_16sc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint);
/** Size in bytes of the work buffer of a complex 16-bit FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_C_16sc(const VlqsFFTSpec_C_16sc* spec, Vlq32s* bufBytes);
/** Releases a complex 16-bit FFT spec. */
VlqStatus vlqsFFTFree_C_16sc(VlqsFFTSpec_C_16sc* spec);
/** Sizes in bytes of the spec and its buffers: split complex 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_C_16s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: split complex 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTInit_C_16s(VlqsFFTSpec_C_16s** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: split complex 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_C_16s(VlqsFFTSpec_C_16s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
/** Size in bytes of the work buffer of a split complex 16-bit FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_C_16s(const VlqsFFTSpec_C_16s* spec, Vlq32s* bufBytes);
/** Releases a split complex 16-bit FFT spec. */
VlqStatus vlqsFFTFree_C_16s(VlqsFFTSpec_C_16s* spec);
/** Sizes in bytes of the spec and its buffers: real 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_R_16s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: real 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTInit_R_16s(VlqsFFTSpec_R_16s** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: real 16-bit FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_R_16s(VlqsFFTSpec_R_16s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
/** Size in bytes of the work buffer of a real 16-bit FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_R_16s(const VlqsFFTSpec_R_16s* spec, Vlq32s* bufBytes);
/** Releases a real 16-bit FFT spec. */
VlqStatus vlqsFFTFree_R_16s(VlqsFFTSpec_R_16s* spec);
/** Sizes in bytes of the spec and its buffers: complex 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_C_32sc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: complex 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTInit_C_32sc(VlqsFFTSpec_C_32sc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                             Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: complex 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_C_32sc(VlqsFFTSpec_C_32sc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint);
/** Size in bytes of the work buffer of a complex 32-bit FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_C_32sc(const VlqsFFTSpec_C_32sc* spec, Vlq32s* bufBytes);
/** Releases a complex 32-bit FFT spec. */
VlqStatus vlqsFFTFree_C_32sc(VlqsFFTSpec_C_32sc* spec);
/** Sizes in bytes of the spec and its buffers: split complex 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_C_32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: split complex 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTInit_C_32s(VlqsFFTSpec_C_32s** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: split complex 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_C_32s(VlqsFFTSpec_C_32s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
/** Size in bytes of the work buffer of a split complex 32-bit FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_C_32s(const VlqsFFTSpec_C_32s* spec, Vlq32s* bufBytes);
/** Releases a split complex 32-bit FFT spec. */
VlqStatus vlqsFFTFree_C_32s(VlqsFFTSpec_C_32s* spec);
/** Sizes in bytes of the spec and its buffers: real 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_R_32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: real 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTInit_R_32s(VlqsFFTSpec_R_32s** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: real 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_R_32s(VlqsFFTSpec_R_32s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
/** Size in bytes of the work buffer of a real 32-bit FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_R_32s(const VlqsFFTSpec_R_32s* spec, Vlq32s* bufBytes);
/** Releases a real 32-bit FFT spec. */
VlqStatus vlqsFFTFree_R_32s(VlqsFFTSpec_R_32s* spec);
/** Sizes in bytes of the spec and its buffers: real 16-bit to 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTGetSize_R_16s32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                  Vlq32s* initBytes, Vlq32s* workBytes);
/** Builds a spec in caller-owned memory: real 16-bit to 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTInit_R_16s32s(VlqsFFTSpec_R_16s32s** outSpec, Vlq32s order, Vlq32s flag,
                               VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf);
/** Allocates and builds a spec: real 16-bit to 32-bit FFT of 2^order points. */
VlqStatus vlqsFFTInitAlloc_R_16s32s(VlqsFFTSpec_R_16s32s** outSpec, Vlq32s order, Vlq32s flag,
                                    VlqHint hint);
/** Size in bytes of the work buffer of a real 16-bit to 32-bit FFT; 0 if it needs none. */
VlqStatus vlqsFFTGetBufSize_R_16s32s(const VlqsFFTSpec_R_16s32s* spec, Vlq32s* bufBytes);
/** Releases a real 16-bit to 32-bit FFT spec. */
VlqStatus vlqsFFTFree_R_16s32s(VlqsFFTSpec_R_16s32s* spec);
/** @} */

/**
 * @defgroup vlqs_fft_fixed Fixed-point FFT
 * @ingroup vlqs_fft
 *
 * The transforms of the floating-point namesakes, forward with `exp(-2 pi i n k / N)`, inverse with
 * `exp(2 pi i n k / N)`, times the normalization of the spec and 2^-scaleFactor, rounded once at
 * the end and saturated. Real spectra have the layouts CCS, Pack and Perm; the inverse from CCS
 * ignores the imaginary parts of bins 0 and N/2.
 *
 * **Scaling.** Without normalization a sum of N full-scale samples needs @p scaleFactor = order to
 * fit the range of the input; with less, results may saturate.
 *
 * **Rounding.** Transforms that run in floating point round to nearest with ties to even; those
 * that run in integers (see the hint) round to nearest with ties up. In integers a left shift, for
 * a @p scaleFactor below what normalization and headroom shift right, drops bits beyond 32, and
 * shifts by 32 or more give 0; a right shift is one of 31 at most, which leaves 1 or -1 of the
 * largest values. In floating point 2^-scaleFactor is that of the conversions: beyond the range of
 * a float (for 32-bit elements, of a double) it is infinite; a value of 0 then becomes NaN and is
 * stored as the largest integer.
 *
 * **Shapes.** Complex vectors have N elements, signals N, spectra N or, in CCS, N + 2 (2 for
 * N = 1); an in-place vector has the larger length. Any alignment. Source and destination are the
 * same vector or do not overlap. The work buffer has the size that `GetBufSize` returns.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null spec, #vlqStsBadSpec for a spec that
 * was freed or is of another kind, #vlqStsNullPtr for a null vector, #vlqStsNoMemory.
 *
 * **Memory.** With a null @p buf a call allocates the work buffer and releases it again, except for
 * N = 1 in 16 bits, which needs none. With a buffer it allocates nothing.
 *
 * @arg @c src         input
 * @arg @c dst         output
 * @arg @c srcDst      input and output
 * @arg @c srcRe       real parts of the input
 * @arg @c srcIm       imaginary parts of the input
 * @arg @c dstRe       real parts of the output
 * @arg @c dstIm       imaginary parts of the output
 * @arg @c srcDstRe    real parts of input and output
 * @arg @c srcDstIm    imaginary parts of input and output
 * @arg @c spec        spec
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 * @arg @c buf         work buffer, or null
 *
 * @{
 */

/** X[k] = s * 2^-scaleFactor * sum x[n] exp(-2 pi i n k / N). */
VlqStatus vlqsFFTFwd_CToC_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, const VlqsFFTSpec_C_16sc* spec,
                                   Vlq32s scaleFactor, Vlq8u* buf);
/** X[k] = s * 2^-scaleFactor * sum x[n] exp(-2 pi i n k / N), in place. */
VlqStatus vlqsFFTFwd_CToC_16sc_ISfs(Vlq16sc* srcDst, const VlqsFFTSpec_C_16sc* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
/** x[n] = s * 2^-scaleFactor * sum X[k] exp(2 pi i n k / N). */
VlqStatus vlqsFFTInv_CToC_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, const VlqsFFTSpec_C_16sc* spec,
                                   Vlq32s scaleFactor, Vlq8u* buf);
/** x[n] = s * 2^-scaleFactor * sum X[k] exp(2 pi i n k / N), in place. */
VlqStatus vlqsFFTInv_CToC_16sc_ISfs(Vlq16sc* srcDst, const VlqsFFTSpec_C_16sc* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
/** X[k] = s * 2^-scaleFactor * sum x[n] exp(-2 pi i n k / N), split re and im. */
VlqStatus vlqsFFTFwd_CToC_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe,
                                  Vlq16s* dstIm, const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor,
                                  Vlq8u* buf);
/** X[k] = s * 2^-scaleFactor * sum x[n] exp(-2 pi i n k / N), split re and im, in place. */
VlqStatus vlqsFFTFwd_CToC_16s_ISfs(Vlq16s* srcDstRe, Vlq16s* srcDstIm,
                                   const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor, Vlq8u* buf);
/** x[n] = s * 2^-scaleFactor * sum X[k] exp(2 pi i n k / N), split re and im. */
VlqStatus vlqsFFTInv_CToC_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe,
                                  Vlq16s* dstIm, const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor,
                                  Vlq8u* buf);
/** x[n] = s * 2^-scaleFactor * sum X[k] exp(2 pi i n k / N), split re and im, in place. */
VlqStatus vlqsFFTInv_CToC_16s_ISfs(Vlq16s* srcDstRe, Vlq16s* srcDstIm,
                                   const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a CCS spectrum of N + 2 values, times 2^-scaleFactor. */
VlqStatus vlqsFFTFwd_RToCCS_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a CCS spectrum, times 2^-scaleFactor, in place (N + 2). */
VlqStatus vlqsFFTFwd_RToCCS_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a Pack spectrum of N values, times 2^-scaleFactor. */
VlqStatus vlqsFFTFwd_RToPack_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a Pack spectrum of N values, times 2^-scaleFactor, in place. */
VlqStatus vlqsFFTFwd_RToPack_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a Perm spectrum of N values, times 2^-scaleFactor. */
VlqStatus vlqsFFTFwd_RToPerm_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a Perm spectrum of N values, times 2^-scaleFactor, in place. */
VlqStatus vlqsFFTFwd_RToPerm_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a CCS spectrum of N + 2 values to N real samples, times 2^-scaleFactor. */
VlqStatus vlqsFFTInv_CCSToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a CCS spectrum to N real samples, times 2^-scaleFactor, in place (N + 2). */
VlqStatus vlqsFFTInv_CCSToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a Pack spectrum of N values to N real samples, times 2^-scaleFactor. */
VlqStatus vlqsFFTInv_PackToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a Pack spectrum of N values to N real samples, times 2^-scaleFactor, in place. */
VlqStatus vlqsFFTInv_PackToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a Perm spectrum of N values to N real samples, times 2^-scaleFactor. */
VlqStatus vlqsFFTInv_PermToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a Perm spectrum of N values to N real samples, times 2^-scaleFactor, in place. */
VlqStatus vlqsFFTInv_PermToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
/** X[k] = s * 2^-scaleFactor * sum x[n] exp(-2 pi i n k / N). */
VlqStatus vlqsFFTFwd_CToC_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, const VlqsFFTSpec_C_32sc* spec,
                                   Vlq32s scaleFactor, Vlq8u* buf);
/** X[k] = s * 2^-scaleFactor * sum x[n] exp(-2 pi i n k / N), in place. */
VlqStatus vlqsFFTFwd_CToC_32sc_ISfs(Vlq32sc* srcDst, const VlqsFFTSpec_C_32sc* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
/** x[n] = s * 2^-scaleFactor * sum X[k] exp(2 pi i n k / N). */
VlqStatus vlqsFFTInv_CToC_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, const VlqsFFTSpec_C_32sc* spec,
                                   Vlq32s scaleFactor, Vlq8u* buf);
/** x[n] = s * 2^-scaleFactor * sum X[k] exp(2 pi i n k / N), in place. */
VlqStatus vlqsFFTInv_CToC_32sc_ISfs(Vlq32sc* srcDst, const VlqsFFTSpec_C_32sc* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
/** X[k] = s * 2^-scaleFactor * sum x[n] exp(-2 pi i n k / N), split re and im. */
VlqStatus vlqsFFTFwd_CToC_32s_Sfs(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe,
                                  Vlq32s* dstIm, const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor,
                                  Vlq8u* buf);
/** X[k] = s * 2^-scaleFactor * sum x[n] exp(-2 pi i n k / N), split re and im, in place. */
VlqStatus vlqsFFTFwd_CToC_32s_ISfs(Vlq32s* srcDstRe, Vlq32s* srcDstIm,
                                   const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor, Vlq8u* buf);
/** x[n] = s * 2^-scaleFactor * sum X[k] exp(2 pi i n k / N), split re and im. */
VlqStatus vlqsFFTInv_CToC_32s_Sfs(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe,
                                  Vlq32s* dstIm, const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor,
                                  Vlq8u* buf);
/** x[n] = s * 2^-scaleFactor * sum X[k] exp(2 pi i n k / N), split re and im, in place. */
VlqStatus vlqsFFTInv_CToC_32s_ISfs(Vlq32s* srcDstRe, Vlq32s* srcDstIm,
                                   const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a CCS spectrum of N + 2 values, times 2^-scaleFactor. */
VlqStatus vlqsFFTFwd_RToCCS_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a CCS spectrum, times 2^-scaleFactor, in place (N + 2). */
VlqStatus vlqsFFTFwd_RToCCS_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a Pack spectrum of N values, times 2^-scaleFactor. */
VlqStatus vlqsFFTFwd_RToPack_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a Pack spectrum of N values, times 2^-scaleFactor, in place. */
VlqStatus vlqsFFTFwd_RToPack_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a Perm spectrum of N values, times 2^-scaleFactor. */
VlqStatus vlqsFFTFwd_RToPerm_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N real samples to a Perm spectrum of N values, times 2^-scaleFactor, in place. */
VlqStatus vlqsFFTFwd_RToPerm_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a CCS spectrum of N + 2 values to N real samples, times 2^-scaleFactor. */
VlqStatus vlqsFFTInv_CCSToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a CCS spectrum to N real samples, times 2^-scaleFactor, in place (N + 2). */
VlqStatus vlqsFFTInv_CCSToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a Pack spectrum of N values to N real samples, times 2^-scaleFactor. */
VlqStatus vlqsFFTInv_PackToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a Pack spectrum of N values to N real samples, times 2^-scaleFactor, in place. */
VlqStatus vlqsFFTInv_PackToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a Perm spectrum of N values to N real samples, times 2^-scaleFactor. */
VlqStatus vlqsFFTInv_PermToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
/** Inverse FFT of a Perm spectrum of N values to N real samples, times 2^-scaleFactor, in place. */
VlqStatus vlqsFFTInv_PermToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
/** Forward FFT of N 16-bit samples to a 32-bit CCS spectrum, times 2^-scaleFactor. */
VlqStatus vlqsFFTFwd_RToCCS_16s32s_Sfs(const Vlq16s* src, Vlq32s* dst,
                                       const VlqsFFTSpec_R_16s32s* spec, Vlq32s scaleFactor,
                                       Vlq8u* buf);
/** Inverse FFT of a 32-bit CCS spectrum to N 16-bit samples, times 2^-scaleFactor. */
VlqStatus vlqsFFTInv_CCSToR_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst,
                                       const VlqsFFTSpec_R_16s32s* spec, Vlq32s scaleFactor,
                                       Vlq8u* buf);
/** @} */

/**
 * @defgroup vlqs_packed_mul Products of packed spectra
 * @ingroup vlqs_fft
 *
 * The spectrum of a cyclic convolution: real bins are multiplied, complex bins give `(ar br - ai
 * bi, ar bi + ai br)`, each product rounded. In Pack the first value is real, and so is the last
 * one if @p len is even; in Perm the first, and the second if @p len is even. The other values are
 * pairs. In place `srcDst = src * srcDst`.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c srcA   first spectrum
 * @arg @c srcB   second spectrum
 * @arg @c src    first spectrum of the in-place variants
 * @arg @c dst    product
 * @arg @c srcDst second spectrum and product of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = srcA * srcB, bin by bin of two Pack spectra. */
VlqStatus vlqsMulPack_32f(const Vlq32f* srcA, const Vlq32f* srcB, Vlq32f* dst, Vlq32s len);
/** srcDst = src * srcDst, bin by bin of two Pack spectra. */
VlqStatus vlqsMulPack_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
/** dst = srcA * srcB, bin by bin of two Perm spectra. */
VlqStatus vlqsMulPerm_32f(const Vlq32f* srcA, const Vlq32f* srcB, Vlq32f* dst, Vlq32s len);
/** srcDst = src * srcDst, bin by bin of two Perm spectra. */
VlqStatus vlqsMulPerm_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
/** dst = srcA * srcB, bin by bin of two Pack spectra. */
VlqStatus vlqsMulPack_64f(const Vlq64f* srcA, const Vlq64f* srcB, Vlq64f* dst, Vlq32s len);
/** srcDst = src * srcDst, bin by bin of two Pack spectra. */
VlqStatus vlqsMulPack_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** dst = srcA * srcB, bin by bin of two Perm spectra. */
VlqStatus vlqsMulPerm_64f(const Vlq64f* srcA, const Vlq64f* srcB, Vlq64f* dst, Vlq32s len);
/** srcDst = src * srcDst, bin by bin of two Perm spectra. */
VlqStatus vlqsMulPerm_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_packed_mul_scaled Scaled products of packed spectra in 16 bits
 * @ingroup vlqs_fft
 *
 * The products of packed spectra for 16-bit values, times 2^-scaleFactor. Real products and the
 * sums of a complex product are exact in 32 bits, except that 2^31 becomes 2^31 - 1. A positive
 * @p scaleFactor shifts right and truncates, without rounding; a negative one saturates to 16 bits,
 * then shifts left. The result is saturated to 16 bits.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c srcA        first spectrum
 * @arg @c srcB        second spectrum
 * @arg @c src         first spectrum of the in-place variants
 * @arg @c dst         product
 * @arg @c srcDst      second spectrum and product of the in-place variants
 * @arg @c len         number of elements
 * @arg @c scaleFactor the products are multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = srcA * srcB, bin by bin of two Pack spectra, times 2^-scaleFactor, truncated. */
VlqStatus vlqsMulPack_16s_Sfs(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
/** srcDst = src * srcDst, bin by bin of two Pack spectra, times 2^-scaleFactor, truncated. */
VlqStatus vlqsMulPack_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = srcA * srcB, bin by bin of two Perm spectra, times 2^-scaleFactor, truncated. */
VlqStatus vlqsMulPerm_16s_Sfs(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
/** srcDst = src * srcDst, bin by bin of two Perm spectra, times 2^-scaleFactor, truncated. */
VlqStatus vlqsMulPerm_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_packed_mul_conj Product of a Pack spectrum with a conjugate
 * @ingroup vlqs_fft
 *
 * The spectrum of a cyclic correlation: real bins are multiplied, complex bins give
 * `srcDst = src * conj(srcDst)`. Note that the destination is the one that is conjugated. The
 * layout is that of the products of Pack spectra.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment; they are equal or do not
 * overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    spectrum
 * @arg @c srcDst spectrum that is conjugated, and product
 * @arg @c len    number of elements
 *
 * @{
 */

/** srcDst = src * conj(srcDst), bin by bin of two Pack spectra: srcDst is conjugated. */
VlqStatus vlqsMulPackConj_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
/** srcDst = src * conj(srcDst), bin by bin of two Pack spectra: srcDst is conjugated. */
VlqStatus vlqsMulPackConj_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_packed_expand Expansion of packed spectra
 * @ingroup vlqs_fft
 *
 * All @p len complex values of the spectrum of a real signal from the half that a packed layout
 * stores: `dst[len - k] = conj(dst[k])`. In 16 bits the conjugate of an imaginary part of -32768
 * has 32767. From CCS the stored half is copied as it is, so nonzero imaginary parts of bins 0 and
 * len/2 are copied too.
 *
 * **Shapes.** A source has @p len elements in Pack and Perm and `2 (len / 2 + 1)` in CCS; the
 * result has @p len complex elements. Any alignment. In place, the packed spectrum is at the front
 * of the vector of the result; otherwise the two must not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    packed spectrum
 * @arg @c dst    complete spectrum
 * @arg @c srcDst both, in the in-place variants
 * @arg @c len    number of complex values
 *
 * @{
 */

/** Expands a CCS spectrum to len complex values. */
VlqStatus vlqsConjCcs_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len);
/** Expands a CCS spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjCcs_16sc_I(Vlq16sc* srcDst, Vlq32s len);
/** Expands a CCS spectrum to len complex values. */
VlqStatus vlqsConjCcs_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len);
/** Expands a CCS spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjCcs_32fc_I(Vlq32fc* srcDst, Vlq32s len);
/** Expands a CCS spectrum to len complex values. */
VlqStatus vlqsConjCcs_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len);
/** Expands a CCS spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjCcs_64fc_I(Vlq64fc* srcDst, Vlq32s len);
/** Expands a Pack spectrum to len complex values. */
VlqStatus vlqsConjPack_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len);
/** Expands a Pack spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjPack_16sc_I(Vlq16sc* srcDst, Vlq32s len);
/** Expands a Pack spectrum to len complex values. */
VlqStatus vlqsConjPack_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len);
/** Expands a Pack spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjPack_32fc_I(Vlq32fc* srcDst, Vlq32s len);
/** Expands a Pack spectrum to len complex values. */
VlqStatus vlqsConjPack_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len);
/** Expands a Pack spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjPack_64fc_I(Vlq64fc* srcDst, Vlq32s len);
/** Expands a Perm spectrum to len complex values. */
VlqStatus vlqsConjPerm_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len);
/** Expands a Perm spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjPerm_16sc_I(Vlq16sc* srcDst, Vlq32s len);
/** Expands a Perm spectrum to len complex values. */
VlqStatus vlqsConjPerm_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len);
/** Expands a Perm spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjPerm_32fc_I(Vlq32fc* srcDst, Vlq32s len);
/** Expands a Perm spectrum to len complex values. */
VlqStatus vlqsConjPerm_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len);
/** Expands a Perm spectrum to len complex values in place, from the front of srcDst. */
VlqStatus vlqsConjPerm_64fc_I(Vlq64fc* srcDst, Vlq32s len);
/** @} */

VLQS_END_DECLS

#endif
