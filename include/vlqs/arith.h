/**
 * @file arith.h
 * @brief Element-wise arithmetic, data movement, logic and shifts.
 */
#ifndef VLQS_ARITH_H
#define VLQS_ARITH_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/** @name Clear
 *  @{ */
/**
 * `dst[i] = 0`: every bit is cleared.
 *
 * **Shapes.** @p dst has @p len elements and any alignment.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None. From the size where a vector would sweep half the last-level cache, stores go
 * past the cache; the processor is asked for that size on each such call.
 *
 * @param dst result
 * @param len number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsZero_8u(Vlq8u* dst, Vlq32s len);
VlqStatus vlqsZero_16s(Vlq16s* dst, Vlq32s len);
VlqStatus vlqsZero_16sc(Vlq16sc* dst, Vlq32s len);
VlqStatus vlqsZero_32s(Vlq32s* dst, Vlq32s len);
VlqStatus vlqsZero_32f(Vlq32f* dst, Vlq32s len);
VlqStatus vlqsZero_32sc(Vlq32sc* dst, Vlq32s len);
VlqStatus vlqsZero_32fc(Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsZero_64s(Vlq64s* dst, Vlq32s len);
VlqStatus vlqsZero_64f(Vlq64f* dst, Vlq32s len);
VlqStatus vlqsZero_64sc(Vlq64sc* dst, Vlq32s len);
VlqStatus vlqsZero_64fc(Vlq64fc* dst, Vlq32s len);
/** @} */

/** @name Fill
 *  @{ */
/**
 * `dst[i] = val`, bit for bit: a float that is not a number keeps its payload.
 *
 * **Shapes.** @p dst has @p len elements and any alignment.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None. Long vectors go past the cache, as those of the clear do.
 *
 * @param val value of every element
 * @param dst result
 * @param len number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsSet_8u(Vlq8u val, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsSet_16s(Vlq16s val, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsSet_16sc(Vlq16sc val, Vlq16sc* dst, Vlq32s len);
VlqStatus vlqsSet_32s(Vlq32s val, Vlq32s* dst, Vlq32s len);
VlqStatus vlqsSet_32f(Vlq32f val, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsSet_32sc(Vlq32sc val, Vlq32sc* dst, Vlq32s len);
VlqStatus vlqsSet_32fc(Vlq32fc val, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsSet_64s(Vlq64s val, Vlq64s* dst, Vlq32s len);
VlqStatus vlqsSet_64f(Vlq64f val, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsSet_64sc(Vlq64sc val, Vlq64sc* dst, Vlq32s len);
VlqStatus vlqsSet_64fc(Vlq64fc val, Vlq64fc* dst, Vlq32s len);
/** @} */

/** @name Copy
 *  @{ */
/**
 * `dst[i] = src[i]`.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment, and do not overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None. A vector of half the last-level cache or more is touched in stretches and
 * stored past the cache, so that a long copy leaves the caller's working set in place.
 *
 * @param src source
 * @param dst result
 * @param len number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsCopy_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsCopy_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsCopy_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len);
VlqStatus vlqsCopy_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len);
VlqStatus vlqsCopy_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsCopy_32sc(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len);
VlqStatus vlqsCopy_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsCopy_64s(const Vlq64s* src, Vlq64s* dst, Vlq32s len);
VlqStatus vlqsCopy_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsCopy_64sc(const Vlq64sc* src, Vlq64sc* dst, Vlq32s len);
VlqStatus vlqsCopy_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** @} */

/** @name Move
 *  @{ */
/**
 * `dst[i] = src[i]` as if the source were read whole before the first element is written.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment; they may overlap in any way.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None. Long vectors that do not overlap go past the cache, as those of the copy do.
 *
 * @param src source
 * @param dst result
 * @param len number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsMove_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsMove_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsMove_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len);
VlqStatus vlqsMove_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len);
VlqStatus vlqsMove_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsMove_32sc(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len);
VlqStatus vlqsMove_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsMove_64s(const Vlq64s* src, Vlq64s* dst, Vlq32s len);
VlqStatus vlqsMove_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsMove_64sc(const Vlq64sc* src, Vlq64sc* dst, Vlq32s len);
VlqStatus vlqsMove_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** @} */

/** @name Bitwise logic of two vectors
 *  @{ */
/**
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
 * @arg @c src1   first operand
 * @arg @c src2   second operand
 * @arg @c src    operand of the in-place forms
 * @arg @c dst    result
 * @arg @c srcDst operand and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsAnd_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsAnd_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len);
/** @} */

VLQS_END_DECLS

#endif
