/**
 * @file fourier.h
 * @brief Fourier transforms.
 */
#ifndef VLQS_FOURIER_H
#define VLQS_FOURIER_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/** @name Records of the complex power-of-two transform, opaque
 *  @{ */
typedef struct VlqsFFTSpec_C_32fc VlqsFFTSpec_C_32fc; /**< interleaved single precision */
typedef struct VlqsFFTSpec_C_32f VlqsFFTSpec_C_32f;   /**< single precision, parts in two arrays */
/** @} */

/**
 * @name Complex FFT: planning
 *
 * Builds the record of a transform of N = 2^order complex values. `GetSize` tells how much memory
 * a record takes, `Init` builds it in memory of the caller's, `InitAlloc` in a block of its own,
 * `GetBufSize` tells the work buffer of a transform, `Free` ends the record.
 *
 * **Normalisation.** @p flag says which direction is multiplied, and by what:
 * #vlqNormFwdByN (forward by 1/N), #vlqNormInvByN (inverse by 1/N), #vlqNormBySqrtN (both by
 * 1/sqrt(N), taken from the processor's estimate and refined once: good to about 22 bits), or
 * #vlqNormNone.
 *
 * **Shapes.** @p order is 0 to 28. The memory may begin at any address: the sizes contain the slack
 * to align it. A size of 0 means that the pointer may be null. The scratch of `Init` is free again
 * when the call returns. A record cannot be copied or moved. @p hint is kept and has no effect.
 *
 * **Errors** of `GetSize`, in this order: #vlqStsBadOrder for an order that is negative or above 30,
 * #vlqStsNullPtr for a null size, #vlqStsBadFlag, #vlqStsBadOrder for an order above 28. Of `Init`:
 * #vlqStsNullPtr for @p outSpec, #vlqStsBadOrder, #vlqStsNullPtr for @p specMem, #vlqStsBadFlag,
 * #vlqStsNullPtr for @p initBuf from order 11. Of `InitAlloc`: #vlqStsNullPtr for @p outSpec, those
 * of `GetSize`, #vlqStsNoMemory. Of `GetBufSize` and `Free`: #vlqStsNullPtr for the record,
 * #vlqStsBadSpec for one that is dead or of another kind, #vlqStsNullPtr for the size.
 *
 * **Memory.** `InitAlloc` allocates the record, and for the call the scratch of `Init`. `Free`
 * marks the record dead and releases it if `InitAlloc` made it. The other calls allocate nothing.
 *
 * @param outSpec   receives the record's address
 * @param order     base-2 logarithm of the length
 * @param flag      normalisation, see above
 * @param hint      kept in the record
 * @param specMem   memory for the record, `specBytes` long
 * @param initBuf   scratch of `Init`, `initBytes` long
 * @param specBytes receives the size of a record
 * @param initBytes receives the size of the scratch of `Init`
 * @param workBytes receives the size of a transform's work buffer
 * @param bufBytes  receives the size of a transform's work buffer
 * @param spec      record
 * @return #vlqStsOk or an error above.
 * @{
 */
VlqStatus vlqsFFTGetSize_C_32fc(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes, Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTGetSize_C_32f(Vlq32s order, Vlq32s flag, VlqHint hint, Vlq32s* specBytes, Vlq32s* initBytes, Vlq32s* workBytes);
VlqStatus vlqsFFTInit_C_32fc(VlqsFFTSpec_C_32fc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInit_C_32f(VlqsFFTSpec_C_32f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint, Vlq8u* specMem, Vlq8u* initBuf);
VlqStatus vlqsFFTInitAlloc_C_32fc(VlqsFFTSpec_C_32fc** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint);
VlqStatus vlqsFFTInitAlloc_C_32f(VlqsFFTSpec_C_32f** outSpec, Vlq32s order, Vlq32s flag, VlqHint hint);
VlqStatus vlqsFFTGetBufSize_C_32fc(const VlqsFFTSpec_C_32fc* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTGetBufSize_C_32f(const VlqsFFTSpec_C_32f* spec, Vlq32s* bufBytes);
VlqStatus vlqsFFTFree_C_32fc(VlqsFFTSpec_C_32fc* spec);
VlqStatus vlqsFFTFree_C_32f(VlqsFFTSpec_C_32f* spec);
/** @} */

/**
 * @name Complex FFT
 *
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
 * @param src      input
 * @param dst      output
 * @param srcDst   input and output
 * @param srcRe    real parts of the input
 * @param srcIm    imaginary parts of the input
 * @param dstRe    real parts of the output
 * @param dstIm    imaginary parts of the output
 * @param srcDstRe real parts of input and output
 * @param srcDstIm imaginary parts of input and output
 * @param spec     record
 * @param buf      work buffer, or null
 * @return #vlqStsOk or an error above.
 * @{
 */
VlqStatus vlqsFFTFwd_CToC_32fc(const Vlq32fc* src, Vlq32fc* dst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32fc_I(Vlq32fc* srcDst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32fc(const Vlq32fc* src, Vlq32fc* dst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32fc_I(Vlq32fc* srcDst, const VlqsFFTSpec_C_32fc* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstRe, Vlq32f* dstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTFwd_CToC_32f_I(Vlq32f* srcDstRe, Vlq32f* srcDstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstRe, Vlq32f* dstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf);
VlqStatus vlqsFFTInv_CToC_32f_I(Vlq32f* srcDstRe, Vlq32f* srcDstIm, const VlqsFFTSpec_C_32f* spec, Vlq8u* buf);
/** @} */

VLQS_END_DECLS

#endif
