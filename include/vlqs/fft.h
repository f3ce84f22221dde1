/**
 * @file fft.h
 * @brief Fourier transforms.
 */
#ifndef VLQS_FFT_H
#define VLQS_FFT_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/** @name Records of the complex power-of-two transform, opaque
 *  @{ */
typedef struct VlqsFFTSpec_C_32fc VlqsFFTSpec_C_32fc; /**< interleaved single precision */
typedef struct VlqsFFTSpec_C_32f VlqsFFTSpec_C_32f;   /**< single precision, parts in two arrays */
typedef struct VlqsFFTSpec_C_64fc VlqsFFTSpec_C_64fc; /**< interleaved double precision */
typedef struct VlqsFFTSpec_C_64f VlqsFFTSpec_C_64f;   /**< double precision, parts in two arrays */
/** @} */

/** @name Records of the real power-of-two transform, opaque
 *  @{ */
typedef struct VlqsFFTSpec_R_32f VlqsFFTSpec_R_32f; /**< single precision */
typedef struct VlqsFFTSpec_R_64f VlqsFFTSpec_R_64f; /**< double precision */
/** @} */

/** @name Complex FFT: planning
 *  @{ */
/**
 * Builds the record of a transform of N = 2^order complex values. `GetSize` tells how much memory
 * a record takes, `Init` builds it in memory of the caller's, `InitAlloc` in a block of its own,
 * `GetBufSize` tells the work buffer of a transform, `Free` ends the record.
 *
 * **Normalisation.** @p flag says which direction is multiplied, and by what:
 * #vlqNormFwdByN (forward by 1/N), #vlqNormInvByN (inverse by 1/N), #vlqNormBySqrtN (both by
 * 1/sqrt(N); in single precision taken from the processor's estimate and refined once: good to
 * about 22 bits), or #vlqNormNone.
 *
 * **Shapes.** @p order is 0 to 28 in single precision, 0 to 27 in double. The memory may begin at
 * any address: the sizes contain the slack to align it. A size of 0 means that the pointer may be
 * null. The scratch of `Init` is free again when the call returns. A record cannot be copied or
 * moved. @p hint is kept and has no effect.
 *
 * **Errors** of `GetSize`, in this order: #vlqStsBadOrder for an order that is negative or above
 * 30, #vlqStsNullPtr for a null size, #vlqStsBadFlag, #vlqStsBadOrder above the largest order. Of
 * `Init`: #vlqStsNullPtr for @p outSpec, #vlqStsBadOrder, #vlqStsNullPtr for @p specMem,
 * #vlqStsBadFlag, #vlqStsNullPtr for @p initBuf from order 11. Of `InitAlloc`: #vlqStsNullPtr for
 * @p outSpec, those of `GetSize`, #vlqStsNoMemory. Of `GetBufSize` and `Free`: #vlqStsNullPtr for the record or the
 * size, #vlqStsBadSpec for a record that is dead or of another kind.
 *
 * **Memory.** `InitAlloc` allocates the record, and for the call the scratch of `Init`. `Free`
 * marks the record dead and releases it if `InitAlloc` made it. The other calls allocate nothing.
 *
 * @arg @c outSpec   receives the record's address
 * @arg @c order     base-2 logarithm of the length
 * @arg @c flag      normalisation, see above
 * @arg @c hint      kept in the record
 * @arg @c specMem   memory for the record, `specBytes` long
 * @arg @c initBuf   scratch of `Init`, `initBytes` long
 * @arg @c specBytes receives the size of a record
 * @arg @c initBytes receives the size of the scratch of `Init`
 * @arg @c workBytes receives the size of a transform's work buffer
 * @arg @c bufBytes  receives the size of a transform's work buffer
 * @arg @c spec      record
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFFTGetSize_C_32fc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTGetSize_C_32f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_C_32fc(VlqsFFTSpec_C_32fc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                             Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInit_C_32f(VlqsFFTSpec_C_32f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_C_32fc(VlqsFFTSpec_C_32fc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint);
VlqStatus vlqsFFTInitAlloc_C_32f(VlqsFFTSpec_C_32f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
VlqStatus vlqsFFTGetBufSize_C_32fc(const VlqsFFTSpec_C_32fc* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTGetBufSize_C_32f(const VlqsFFTSpec_C_32f* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_C_32fc(VlqsFFTSpec_C_32fc* spec);
VlqStatus vlqsFFTFree_C_32f(VlqsFFTSpec_C_32f* spec);
VlqStatus vlqsFFTGetSize_C_64fc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTGetSize_C_64f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_C_64fc(VlqsFFTSpec_C_64fc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                             Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInit_C_64f(VlqsFFTSpec_C_64f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_C_64fc(VlqsFFTSpec_C_64fc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint);
VlqStatus vlqsFFTInitAlloc_C_64f(VlqsFFTSpec_C_64f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
VlqStatus vlqsFFTGetBufSize_C_64fc(const VlqsFFTSpec_C_64fc* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTGetBufSize_C_64f(const VlqsFFTSpec_C_64f* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_C_64fc(VlqsFFTSpec_C_64fc* spec);
VlqStatus vlqsFFTFree_C_64f(VlqsFFTSpec_C_64f* spec);
/** @} */

/** @name Complex FFT
 *  @{ */
/**
 * Forward: `X[k] = s * sum over n of x[n] * exp(-2 pi i n k / N)`; inverse: the same with a plus
 * sign. The factor s is the record's, 1 where its flag leaves the direction alone. The split forms
 * hold real and imaginary parts in arrays of their own.
 *
 * **Shapes.** All vectors have N = 2^order elements and any alignment. The destination may be the
 * source, which is what the `_I` forms do; other overlaps are not allowed. Results do not depend on
 * alignment or on being computed in place. @p buf has the size that `GetBufSize` tells, begins at
 * any address and holds nothing between calls.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null record, #vlqStsBadSpec for one that is dead
 * or of another kind, #vlqStsNullPtr for a null vector, #vlqStsNoMemory.
 *
 * **Memory.** From order 6 a null @p buf makes the call allocate the work buffer and release it
 * again. With a buffer, and up to order 5, nothing is allocated.
 *
 * **Source.** Cooley and Tukey 1965, decimation in time in the self-sorting form of Stockham (Van
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
 * @arg @c spec     record
 * @arg @c buf      work buffer, or null
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFFTFwd_CToC_32fc(const Vlq32fc* src, Vlq32fc* dst, const VlqsFFTSpec_C_32fc* spec,
                               Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32fc_I(Vlq32fc* srcDst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32fc(const Vlq32fc* src, Vlq32fc* dst, const VlqsFFTSpec_C_32fc* spec,
                               Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32fc_I(Vlq32fc* srcDst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstRe,
                              Vlq32f* dstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32f_I(Vlq32f* srcDstRe, Vlq32f* srcDstIm, const VlqsFFTSpec_C_32f* spec,
                                Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstRe,
                              Vlq32f* dstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32f_I(Vlq32f* srcDstRe, Vlq32f* srcDstIm, const VlqsFFTSpec_C_32f* spec,
                                Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_64fc(const Vlq64fc* src, Vlq64fc* dst, const VlqsFFTSpec_C_64fc* spec,
                               Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_64fc_I(Vlq64fc* srcDst, const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_64fc(const Vlq64fc* src, Vlq64fc* dst, const VlqsFFTSpec_C_64fc* spec,
                               Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_64fc_I(Vlq64fc* srcDst, const VlqsFFTSpec_C_64fc* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dstRe,
                              Vlq64f* dstIm, const VlqsFFTSpec_C_64f* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_64f_I(Vlq64f* srcDstRe, Vlq64f* srcDstIm, const VlqsFFTSpec_C_64f* spec,
                                Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dstRe,
                              Vlq64f* dstIm, const VlqsFFTSpec_C_64f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_64f_I(Vlq64f* srcDstRe, Vlq64f* srcDstIm, const VlqsFFTSpec_C_64f* spec,
                                Vlq8u* buf);
/** @} */

/** @name Real transforms of 2^order points: records
 *  @{ */
/**
 * A record holds the order, the normalisation and all tables of a transform of `N = 2^order` real
 * points. `GetSize` tells how many bytes each part needs; `Init` builds the record in the caller's
 * memory and `InitAlloc` in memory of its own; `GetBufSize` tells the work buffer of one transform;
 * `Free` ends the record's life and releases what `InitAlloc` took.
 *
 * **Shapes.** Orders 0 to 29 in single precision, 0 to 28 in double. @p specMem and @p initBuf may
 * stand at any address. The record stands at the first 64-byte boundary in @p specMem; it refers to
 * itself and must not be moved. @p initBuf is free again when `Init` returns; up to order 10 it may
 * be null. A transform reads the record only: one record serves several threads at a time.
 *
 * **Errors,** in this order. `GetSize`: #vlqStsBadOrder for an order below 0 or above 30,
 * #vlqStsNullPtr for a null result pointer, #vlqStsBadFlag, #vlqStsBadOrder above the largest
 * order. `Init`: #vlqStsNullPtr for @p outSpec, #vlqStsBadOrder, #vlqStsNullPtr for @p specMem,
 * #vlqStsBadFlag, #vlqStsNullPtr for @p initBuf. `InitAlloc`: #vlqStsNullPtr, those of `GetSize`,
 * #vlqStsNoMemory. `GetBufSize` and `Free`: #vlqStsNullPtr for a null pointer, #vlqStsBadSpec for a
 * record that is dead or of another kind.
 *
 * **Memory.** `InitAlloc` allocates the record and, while it works, the scratch of `Init`.
 *
 * @arg @c order     log2 of the number of points
 * @arg @c flag      normalisation: #vlqNormFwdByN, #vlqNormInvByN, #vlqNormBySqrtN or #vlqNormNone
 * @arg @c hint      kept in the record, without effect
 * @arg @c specBytes size of the record and its tables
 * @arg @c initBytes size of the scratch of `Init`, 0 when it needs none
 * @arg @c workBytes size of the work buffer of a transform, 0 when it needs none
 * @arg @c outSpec   receives the address of the record
 * @arg @c specMem   memory of @p specBytes bytes
 * @arg @c initBuf   scratch of @p initBytes bytes
 * @arg @c spec      the record
 * @arg @c bufBytes  size of the work buffer of this record, 0 when it needs none
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFFTGetSize_R_32f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_R_32f(VlqsFFTSpec_R_32f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_R_32f(VlqsFFTSpec_R_32f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
VlqStatus vlqsFFTGetBufSize_R_32f(const VlqsFFTSpec_R_32f* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_R_32f(VlqsFFTSpec_R_32f* spec);
VlqStatus vlqsFFTGetSize_R_64f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_R_64f(VlqsFFTSpec_R_64f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_R_64f(VlqsFFTSpec_R_64f** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
VlqStatus vlqsFFTGetBufSize_R_64f(const VlqsFFTSpec_R_64f* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_R_64f(VlqsFFTSpec_R_64f* spec);
/** @} */

/** @name Real transforms of 2^order points
 *  @{ */
/**
 * `X[k] = f sum x[n] exp(-2 pi i n k / N)` for real x of `N = 2^order` points, and the inverse
 * `x[n] = g sum X[k] exp(2 pi i n k / N)`; f and g are 1, `1/N` or `1/sqrt(N)` as the record's
 * normalisation says. `X[N-k]` is the conjugate of `X[k]`, so half of the spectrum tells all; three
 * layouts hold it:
 *
 * - CCS, N + 2 values: `Re X[0], 0, Re X[1], Im X[1], ..., Re X[N/2], 0`
 * - Pack, N values: `Re X[0], Re X[1], Im X[1], ..., Re X[N/2]`
 * - Perm, N values: `Re X[0], Re X[N/2], Re X[1], Im X[1], ...`; the quickest, as all work in it
 *
 * One point: CCS is `x, 0`, the others `x`.
 *
 * **Shapes.** Signals have N elements, any alignment. Source and destination are one vector or do
 * not overlap; an in-place vector for CCS has N + 2 elements. The work buffer has the size that
 * `GetBufSize` tells, any alignment; its contents are lost.
 *
 * **Errors,** in this order: #vlqStsNullPtr for @p spec, #vlqStsBadSpec for a record that is dead
 * or of another kind, #vlqStsNullPtr for a vector, #vlqStsNoMemory.
 *
 * **Memory.** None with a work buffer. When @p buf is null and the record needs one, it is
 * allocated for the call.
 *
 * **Source.** A complex transform of N/2 points and the separation of its two interleaved signals:
 * Brigham, The Fast Fourier Transform and its Applications, 1988, section 9.3.
 *
 * @arg @c src    signal, or spectrum for the inverse
 * @arg @c dst    spectrum, or signal for the inverse
 * @arg @c srcDst both, of the in-place forms
 * @arg @c spec   record
 * @arg @c buf    work buffer or null
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFFTFwd_RToCCS_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToCCS_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPack_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                 Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPack_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPerm_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                 Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPerm_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_PackToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                 Vlq8u* buf);
VlqStatus vlqsFFTInv_PackToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_PermToR_32f(const Vlq32f* src, Vlq32f* dst, const VlqsFFTSpec_R_32f* spec,
                                 Vlq8u* buf);
VlqStatus vlqsFFTInv_PermToR_32f_I(Vlq32f* srcDst, const VlqsFFTSpec_R_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToCCS_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToCCS_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPack_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                 Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPack_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPerm_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                 Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPerm_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_PackToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                 Vlq8u* buf);
VlqStatus vlqsFFTInv_PackToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_PermToR_64f(const Vlq64f* src, Vlq64f* dst, const VlqsFFTSpec_R_64f* spec,
                                 Vlq8u* buf);
VlqStatus vlqsFFTInv_PermToR_64f_I(Vlq64f* srcDst, const VlqsFFTSpec_R_64f* spec, Vlq8u* buf);
/** @} */

/** @name Records of the fixed-point transforms, opaque
 *  @{ */
typedef struct VlqsFFTSpec_C_16sc VlqsFFTSpec_C_16sc; /**< interleaved 16 bits */
typedef struct VlqsFFTSpec_C_16s VlqsFFTSpec_C_16s;   /**< 16 bits, parts in two arrays */
typedef struct VlqsFFTSpec_R_16s VlqsFFTSpec_R_16s;   /**< real, 16 bits */
typedef struct VlqsFFTSpec_C_32sc VlqsFFTSpec_C_32sc; /**< interleaved 32 bits */
typedef struct VlqsFFTSpec_C_32s VlqsFFTSpec_C_32s;   /**< 32 bits, parts in two arrays */
typedef struct VlqsFFTSpec_R_32s VlqsFFTSpec_R_32s;   /**< real, 32 bits */
typedef struct VlqsFFTSpec_R_16s32s
    VlqsFFTSpec_R_16s32s; /**< real, 16-bit signals with 32-bit spectra */
/** @} */

/** @name Fixed-point FFT: planning
 *  @{ */
/**
 * The records of transforms of N = 2^order complex or real points in integers; the calls are those
 * of the floating transforms.
 *
 * **Normalisation.** @p flag is #vlqNormFwdByN, #vlqNormInvByN, #vlqNormBySqrtN or #vlqNormNone, as
 * for floating transforms; the scale factor of a call comes on top.
 *
 * **Accuracy.** @p hint chooses for up to 8 points of 16 bits: with #vlqHintNone and #vlqHintFast
 * these transforms run in integers of 32 bits, with factors of 14 bits, otherwise in single
 * precision like all longer ones. 32-bit samples run in double precision.
 *
 * **Shapes.** Orders: 0 to 28 for complex and 0 to 29 for real points of 16 bits, 0 to 27 and 0 to
 * 28 of 32 bits, 0 to 29 of `R_16s32s`. The memory may begin at any address. A record stands at the
 * first 64-byte boundary in @p specMem and must not be moved. @p initBuf may be null up to order
 * 10. At the largest order of each kind the work buffer does not fit 32 bits: the size wraps, and
 * transforms answer #vlqStsNoMemory.
 *
 * **Errors,** in this order. `GetSize`: #vlqStsBadOrder for an order below 0 or above 30,
 * #vlqStsNullPtr for a null size, #vlqStsBadFlag, #vlqStsBadOrder above the largest order. `Init`:
 * #vlqStsNullPtr for @p outSpec, #vlqStsBadOrder, #vlqStsNullPtr for @p specMem, #vlqStsBadFlag,
 * #vlqStsNullPtr for @p initBuf. `InitAlloc`: #vlqStsNullPtr, those of `GetSize`, #vlqStsNoMemory.
 * `GetBufSize` and `Free`: #vlqStsNullPtr for a null pointer, #vlqStsBadSpec for a record that is
 * dead or of another kind.
 *
 * **Memory.** `InitAlloc` allocates the record and, while it works, the scratch of `Init`.
 *
 * @arg @c order     base-2 logarithm of the length
 * @arg @c flag      normalisation
 * @arg @c hint      integers or floats, see above
 * @arg @c specBytes receives the size of a record
 * @arg @c initBytes receives the size of the scratch of `Init`
 * @arg @c workBytes receives the size of a transform's work buffer
 * @arg @c outSpec   receives the record's address
 * @arg @c specMem   memory for the record, `specBytes` long
 * @arg @c initBuf   scratch of `Init`, `initBytes` long
 * @arg @c bufBytes  receives the size of a transform's work buffer, 0 when it needs none
 * @arg @c spec      record
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFFTGetSize_C_16sc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_C_16sc(VlqsFFTSpec_C_16sc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                             Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_C_16sc(VlqsFFTSpec_C_16sc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint);
VlqStatus vlqsFFTGetBufSize_C_16sc(const VlqsFFTSpec_C_16sc* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_C_16sc(VlqsFFTSpec_C_16sc* spec);
VlqStatus vlqsFFTGetSize_C_16s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_C_16s(VlqsFFTSpec_C_16s** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_C_16s(VlqsFFTSpec_C_16s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
VlqStatus vlqsFFTGetBufSize_C_16s(const VlqsFFTSpec_C_16s* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_C_16s(VlqsFFTSpec_C_16s* spec);
VlqStatus vlqsFFTGetSize_R_16s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_R_16s(VlqsFFTSpec_R_16s** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_R_16s(VlqsFFTSpec_R_16s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
VlqStatus vlqsFFTGetBufSize_R_16s(const VlqsFFTSpec_R_16s* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_R_16s(VlqsFFTSpec_R_16s* spec);
VlqStatus vlqsFFTGetSize_C_32sc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_C_32sc(VlqsFFTSpec_C_32sc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                             Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_C_32sc(VlqsFFTSpec_C_32sc** outSpec, Vlq32s order, Vlq32s flag,
                                  VlqHint hint);
VlqStatus vlqsFFTGetBufSize_C_32sc(const VlqsFFTSpec_C_32sc* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_C_32sc(VlqsFFTSpec_C_32sc* spec);
VlqStatus vlqsFFTGetSize_C_32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_C_32s(VlqsFFTSpec_C_32s** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_C_32s(VlqsFFTSpec_C_32s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
VlqStatus vlqsFFTGetBufSize_C_32s(const VlqsFFTSpec_C_32s* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_C_32s(VlqsFFTSpec_C_32s* spec);
VlqStatus vlqsFFTGetSize_R_32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                               Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_R_32s(VlqsFFTSpec_R_32s** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint,
                            Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_R_32s(VlqsFFTSpec_R_32s** outSpec, Vlq32s order, Vlq32s flag,
                                 VlqHint hint);
VlqStatus vlqsFFTGetBufSize_R_32s(const VlqsFFTSpec_R_32s* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_R_32s(VlqsFFTSpec_R_32s* spec);
VlqStatus vlqsFFTGetSize_R_16s32s(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes,
                                  Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_R_16s32s(VlqsFFTSpec_R_16s32s** outSpec, Vlq32s order, Vlq32s flag,
                               VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_R_16s32s(VlqsFFTSpec_R_16s32s** outSpec, Vlq32s order, Vlq32s flag,
                                    VlqHint hint);
VlqStatus vlqsFFTGetBufSize_R_16s32s(const VlqsFFTSpec_R_16s32s* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_R_16s32s(VlqsFFTSpec_R_16s32s* spec);
/** @} */

/** @name Fixed-point FFT
 *  @{ */
/**
 * The transforms of their floating namesakes, forward with `exp(-2 pi i n k / N)`, inverse with a
 * plus sign, times the record's normalisation and 2^-scaleFactor, rounded once at the end and
 * brought into the range of the element. Real spectra come in the layouts CCS, Pack and Perm.
 *
 * **Rounding.** In floating point to nearest, halves to even. In integers halves up; there a shift
 * to the left, by a @p scaleFactor below what normalisation and headroom shift right, drops what
 * leaves 32 bits, and shifts of 32 and more give 0; a shift to the right is one of 31 at most,
 * which leaves 1 or -1 of the largest values. In floating point 2^-scaleFactor follows the
 * conversions of the type: past the range of a float (for 32-bit elements, of a double) it is
 * infinite, and a value of 0 then becomes the largest one, as not-a-number does.
 *
 * **Shapes.** Complex vectors have N elements, signals N, spectra N or, in CCS, N + 2 (2 for one
 * point; an in-place vector has that length). Any alignment. Source and destination are one
 * vector or do not overlap. The work buffer has the size that `GetBufSize` tells, any alignment;
 * its contents are lost.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null record, #vlqStsBadSpec for one that is dead
 * or of another kind, #vlqStsNullPtr for a null vector, #vlqStsNoMemory.
 *
 * **Memory.** A null @p buf makes the call allocate the work buffer, except for one point of 16
 * bits, which needs none.
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
 * @arg @c spec        record
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 * @arg @c buf         work buffer, or null
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFFTFwd_CToC_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, const VlqsFFTSpec_C_16sc* spec,
                                   Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_16sc_ISfs(Vlq16sc* srcDst, const VlqsFFTSpec_C_16sc* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, const VlqsFFTSpec_C_16sc* spec,
                                   Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_16sc_ISfs(Vlq16sc* srcDst, const VlqsFFTSpec_C_16sc* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe,
                                  Vlq16s* dstIm, const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor,
                                  Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_16s_ISfs(Vlq16s* srcDstRe, Vlq16s* srcDstIm,
                                   const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dstRe,
                                  Vlq16s* dstIm, const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor,
                                  Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_16s_ISfs(Vlq16s* srcDstRe, Vlq16s* srcDstIm,
                                   const VlqsFFTSpec_C_16s* spec, Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToCCS_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToCCS_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPack_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPack_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPerm_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPerm_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_PackToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_PackToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_PermToR_16s_Sfs(const Vlq16s* src, Vlq16s* dst, const VlqsFFTSpec_R_16s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_PermToR_16s_ISfs(Vlq16s* srcDst, const VlqsFFTSpec_R_16s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, const VlqsFFTSpec_C_32sc* spec,
                                   Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32sc_ISfs(Vlq32sc* srcDst, const VlqsFFTSpec_C_32sc* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32sc_Sfs(const Vlq32sc* src, Vlq32sc* dst, const VlqsFFTSpec_C_32sc* spec,
                                   Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32sc_ISfs(Vlq32sc* srcDst, const VlqsFFTSpec_C_32sc* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32s_Sfs(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe,
                                  Vlq32s* dstIm, const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor,
                                  Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32s_ISfs(Vlq32s* srcDstRe, Vlq32s* srcDstIm,
                                   const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32s_Sfs(const Vlq32s* srcRe, const Vlq32s* srcIm, Vlq32s* dstRe,
                                  Vlq32s* dstIm, const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor,
                                  Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32s_ISfs(Vlq32s* srcDstRe, Vlq32s* srcDstIm,
                                   const VlqsFFTSpec_C_32s* spec, Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToCCS_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToCCS_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPack_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPack_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPerm_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToPerm_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                    Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_PackToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_PackToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_PermToR_32s_Sfs(const Vlq32s* src, Vlq32s* dst, const VlqsFFTSpec_R_32s* spec,
                                     Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTInv_PermToR_32s_ISfs(Vlq32s* srcDst, const VlqsFFTSpec_R_32s* spec,
                                      Vlq32s scaleFactor, Vlq8u* buf);
VlqStatus vlqsFFTFwd_RToCCS_16s32s_Sfs(const Vlq16s* src, Vlq32s* dst,
                                       const VlqsFFTSpec_R_16s32s* spec, Vlq32s scaleFactor,
                                       Vlq8u* buf);
VlqStatus vlqsFFTInv_CCSToR_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst,
                                       const VlqsFFTSpec_R_16s32s* spec, Vlq32s scaleFactor,
                                       Vlq8u* buf);
/** @} */

/** @name Products of packed spectra
 *  @{ */
/**
 * The spectrum of a cyclic convolution: real terms multiply, complex values multiply as such,
 * `(ar br - ai bi, ar bi + ai br)`, each product rounded. In Pack the first value is real, and the
 * last one of an even @p len; in Perm the first, and the second of an even @p len. The others are
 * pairs. The `_I` forms compute `srcDst = src srcDst`.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be one of the sources;
 * other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c srcA   first spectrum
 * @arg @c srcB   second spectrum
 * @arg @c src    first spectrum of the in-place forms
 * @arg @c dst    product
 * @arg @c srcDst second spectrum and product of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsMulPack_32f(const Vlq32f* srcA, const Vlq32f* srcB, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsMulPack_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsMulPerm_32f(const Vlq32f* srcA, const Vlq32f* srcB, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsMulPerm_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsMulPack_64f(const Vlq64f* srcA, const Vlq64f* srcB, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsMulPack_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsMulPerm_64f(const Vlq64f* srcA, const Vlq64f* srcB, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsMulPerm_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** @} */

/** @name Scaled products of packed spectra in 16 bits
 *  @{ */
/**
 * The products above of 16-bit spectra, times 2^-scaleFactor. Real terms and the sums of a complex
 * value are exact in 32 bits, 2^31 taken as 2^31 - 1. A @p scaleFactor above 0 shifts right and
 * drops the bits without rounding; one below 0 brings the value into 16 bits and then shifts left;
 * at last the result is brought into 16 bits.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be one of the sources;
 * other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c srcA        first spectrum
 * @arg @c srcB        second spectrum
 * @arg @c src         first spectrum of the in-place forms
 * @arg @c dst         product
 * @arg @c srcDst      second spectrum and product of the in-place forms
 * @arg @c len         number of elements
 * @arg @c scaleFactor the products are multiplied by 2^-scaleFactor
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsMulPack_16s_Sfs(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
VlqStatus vlqsMulPack_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulPerm_16s_Sfs(const Vlq16s* srcA, const Vlq16s* srcB, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
VlqStatus vlqsMulPerm_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/** @name Product of a Pack spectrum with a conjugate
 *  @{ */
/**
 * The spectrum of a cyclic correlation: real terms multiply, complex values give
 * `srcDst = src conj(srcDst)`; of the two it is the destination's that is conjugated. Layout as
 * above.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment; they are one or do not overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @param src    spectrum
 * @param srcDst spectrum that is conjugated, and product
 * @param len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsMulPackConj_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsMulPackConj_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** @} */

/** @name Expansion of packed spectra
 *  @{ */
/**
 * All @p len complex values of the spectrum of a real signal from the half that a layout holds:
 * `dst[len - k] = conj(dst[k])`. In 16 bits the conjugate of an imaginary part of -32768 has 32767.
 *
 * **Shapes.** A source has @p len elements in Pack and Perm, `2 (len / 2 + 1)` in CCS; the result
 * has @p len complex elements. Any alignment. In place, the source stands at the front of the
 * result's vector; otherwise the two do not overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src    packed spectrum
 * @arg @c dst    complete spectrum
 * @arg @c srcDst both, of the in-place forms
 * @arg @c len    number of complex values
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConjCcs_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len);
VlqStatus vlqsConjCcs_16sc_I(Vlq16sc* srcDst, Vlq32s len);
VlqStatus vlqsConjCcs_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsConjCcs_32fc_I(Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsConjCcs_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsConjCcs_64fc_I(Vlq64fc* srcDst, Vlq32s len);
VlqStatus vlqsConjPack_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len);
VlqStatus vlqsConjPack_16sc_I(Vlq16sc* srcDst, Vlq32s len);
VlqStatus vlqsConjPack_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsConjPack_32fc_I(Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsConjPack_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsConjPack_64fc_I(Vlq64fc* srcDst, Vlq32s len);
VlqStatus vlqsConjPerm_16sc(const Vlq16s* src, Vlq16sc* dst, Vlq32s len);
VlqStatus vlqsConjPerm_16sc_I(Vlq16sc* srcDst, Vlq32s len);
VlqStatus vlqsConjPerm_32fc(const Vlq32f* src, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsConjPerm_32fc_I(Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsConjPerm_64fc(const Vlq64f* src, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsConjPerm_64fc_I(Vlq64fc* srcDst, Vlq32s len);
/** @} */

VLQS_END_DECLS

#endif
