/**
 * @file arith.h
 * @brief Element-wise arithmetic, data movement, logic and shifts.
 */
#ifndef VLQS_ARITH_H
#define VLQS_ARITH_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/**
 * @name Bitwise logic of two vectors
 *
 * `dst[i] = src1[i] op src2[i]` with op AND, OR or XOR; the `_I` forms compute
 * `srcDst[i] = srcDst[i] op src[i]`.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be one of the sources;
 * other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @param src1   first operand
 * @param src2   second operand
 * @param src    operand of the in-place forms
 * @param dst    result
 * @param srcDst operand and result of the in-place forms
 * @param len    number of elements
 * @return #vlqStsOk or an error above.
 * @{
 */
VlqStatus vlqsAnd_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsAnd_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len);
/** @} */

VLQS_END_DECLS

#endif
