/**
 * @file arith.h
 * @brief Element-wise arithmetic, logic and shifts.
 */
#ifndef VLQS_ARITH_H
#define VLQS_ARITH_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/** @name Sum and difference of two vectors
 *  @{ */
/**
 * Sum: `dst[i] = src1[i] + src2[i]`, in place `srcDst[i] += src[i]`. Difference: the second vector
 * is the minuend, `dst[i] = src2[i] - src1[i]`, in place `srcDst[i] -= src[i]`.
 *
 * Integer results e are exact at any width and stored by the form:
 * - `_Sfs`, `_ISfs`: `e * 2^-scaleFactor`, rounded to the nearest integer, ties to the even one,
 *   and saturated. Every scale factor is legal. An unsigned difference below 0 is 0.
 * - The other integer forms saturate e to the type of the result. `_8u16u` and `_16s32f` hold any
 *   e. `_16s32s_I` adds 16-bit samples to 32-bit ones.
 * - #vlqsAdd_64s_Sfs stores 0 at a @p scaleFactor of 64 or more, where the largest sums would round
 *   to 1 or -1.
 *
 * Float results are one IEEE operation in the precision of the samples; where both operands are not
 * numbers, either one's payload may be that of the result. Complex samples are pairs of independent
 * reals.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be a source of its own
 * type; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 * Complex forms: #vlqStsBadSize for @p len below 1, #vlqStsNullPtr, #vlqStsBadSize for @p len of
 * 2^30 or more.
 *
 * **Memory.** None. Float sums, not in place, of more than 5461 blocks of 32 bytes go past the
 * cache where @p dst stands on a 16-byte boundary.
 *
 * @arg @c src1        first operand
 * @arg @c src2        second operand, the minuend of a difference
 * @arg @c src         operand of the in-place forms
 * @arg @c dst         result
 * @arg @c srcDst      result and other operand of the in-place forms, the minuend of a difference
 * @arg @c len         number of elements
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsAdd_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                         Vlq32s scaleFactor);
VlqStatus vlqsAdd_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAdd_8u16u(const Vlq8u* src1, const Vlq8u* src2, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsAdd_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsAdd_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsAdd_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAdd_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsAdd_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len);
VlqStatus vlqsAdd_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsAdd_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAdd_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsAdd_16s32s_I(const Vlq16s* src, Vlq32s* srcDst, Vlq32s len);
VlqStatus vlqsAdd_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsAdd_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAdd_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsAdd_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsAdd_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAdd_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsAdd_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAdd_64s_Sfs(const Vlq64s* src1, const Vlq64s* src2, Vlq64s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsAdd_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsAdd_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsAdd_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsAdd_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsAdd_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsAdd_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsAdd_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsAdd_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len);
VlqStatus vlqsSub_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                         Vlq32s scaleFactor);
VlqStatus vlqsSub_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSub_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsSub_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSub_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsSub_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len);
VlqStatus vlqsSub_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsSub_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSub_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsSub_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsSub_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSub_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsSub_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSub_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsSub_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSub_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsSub_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsSub_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsSub_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsSub_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsSub_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsSub_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsSub_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/** @name Sum and difference of a vector and a constant
 *  @{ */
/**
 * `AddC`: `dst[i] = src[i] + val`. `SubC`: `dst[i] = src[i] - val`. `SubCRev`: `dst[i] = val -
 * src[i]`. In place, `srcDst` stands for both vectors. Results are stored as those of the sums and
 * differences of two vectors.
 *
 * #vlqsAddC_64s_Sfs and #vlqsAddC_64u_Sfs keep the exact sum for every @p scaleFactor and round as
 * @p rndMode says: #vlqRndZero towards zero, #vlqRndNear to the nearest with ties to even, any other
 * value to the nearest with ties away from zero.
 *
 * A real constant of 0 (of either sign) with nothing to scale copies the samples bit for bit, so
 * -0.0 stays, and leaves them alone in place. A constant that is not a number makes every result
 * so.
 *
 * **Shapes.** The vectors have @p len elements and any alignment, and are the same or do not
 * overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1 (0
 * for an unsigned @p len). The `16u` forms look for a shortcut first and leave the checks to it:
 * - `AddC` and `SubC` of 0 at scale factor 0: the checks of a copy; none in place.
 * - `AddC` with a scale factor above 17: as above; below -15 with @p val not 0: the checks of a
 *   fill of the result, the source is not looked at.
 * - `SubCRev` from 0, or with a scale factor of 17 or more: the checks of a clear of the result.
 *
 * The copy for #vlqsAddC_64f of 0 counts bytes in 32 bits, which wrap for @p len of 2^28 or more:
 * it then copies the count that is left, or refuses it with #vlqStsBadSize. That for the 64-bit
 * integer forms refuses @p len of 2^31 or more.
 *
 * **Memory.** None. #vlqsAddC_64fc of more than 8192 elements goes past the cache where @p dst
 * stands on a 16-byte boundary.
 *
 * @arg @c src         vector operand
 * @arg @c val         constant operand
 * @arg @c dst         result
 * @arg @c srcDst      vector operand and result of the in-place forms
 * @arg @c len         number of elements
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 * @arg @c rndMode     rounding of the 64-bit forms
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsAddC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAddC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAddC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsAddC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAddC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len);
VlqStatus vlqsAddC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsAddC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAddC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
VlqStatus vlqsAddC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAddC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsAddC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAddC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
VlqStatus vlqsAddC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAddC_64s_Sfs(const Vlq64s* src, Vlq64s val, Vlq64s* dst, Vlq32u len,
                           Vlq32s scaleFactor, VlqRoundMode rndMode);
VlqStatus vlqsAddC_64u_Sfs(const Vlq64u* src, Vlq64u val, Vlq64u* dst, Vlq32u len,
                           Vlq32s scaleFactor, VlqRoundMode rndMode);
VlqStatus vlqsAddC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsAddC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsAddC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsAddC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsAddC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsAddC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsAddC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsAddC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
VlqStatus vlqsSubC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsSubC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len);
VlqStatus vlqsSubC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsSubC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
VlqStatus vlqsSubC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsSubC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
VlqStatus vlqsSubC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsSubC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsSubC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsSubC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsSubC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsSubC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsSubC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsSubC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
VlqStatus vlqsSubCRev_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len,
                             Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                              Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                               Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                               Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsSubCRev_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsSubCRev_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsSubCRev_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsSubCRev_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsSubCRev_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsSubCRev_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsSubCRev_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsSubCRev_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/** @name Scaled products of two vectors
 *  @{ */
/**
 * `dst[i] = clamp(round(src1[i] * src2[i] * 2^-scaleFactor))`; in place with `srcDst[i] * src[i]`.
 * The product is exact at any width, `round` goes to the nearest integer and from a tie to the even
 * one, and `clamp` stops at the ends of the stored type. Every scale factor is legal: far above 0
 * all results are 0, far below 0 everything but 0 saturates. Forms without one saturate the product
 * itself. Of complex values `(a + bi)(c + di) = (ac - bd) + (ad + bc)i`, both parts exact before
 * they are scaled. A real vector times a complex one (`32s32sc`) scales both parts by the real
 * value.
 *
 * Of two different types, `16u16s` and `32s32sc` take the first vector in the first type and all
 * others in the second; `8u16u` and `16s32s` take both sources in the first.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be a source of its own
 * type; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src1        first factor
 * @arg @c src2        second factor
 * @arg @c src         factor of the in-place forms
 * @arg @c dst         result
 * @arg @c srcDst      factor and result of the in-place forms
 * @arg @c len         number of elements
 * @arg @c scaleFactor power of two by which the product is divided
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsMul_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                         Vlq32s scaleFactor);
VlqStatus vlqsMul_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMul_8u16u(const Vlq8u* src1, const Vlq8u* src2, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsMul_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsMul_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len);
VlqStatus vlqsMul_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsMul_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMul_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsMul_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMul_16u16s_Sfs(const Vlq16u* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                             Vlq32s scaleFactor);
VlqStatus vlqsMul_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsMul_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMul_16s32s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq32s* dst, Vlq32s len,
                             Vlq32s scaleFactor);
VlqStatus vlqsMul_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsMul_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMul_Low_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
VlqStatus vlqsMul_32s32sc_Sfs(const Vlq32s* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                              Vlq32s scaleFactor);
VlqStatus vlqsMul_32s32sc_ISfs(const Vlq32s* src, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMul_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsMul_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/** @name Scaled products of a vector and a constant
 *  @{ */
/**
 * `dst[i] = clamp(round(src[i] * val * 2^-scaleFactor))`; in place with `srcDst[i] * val`. Rounded
 * and saturated as the products of vectors.
 *
 * `32f16s` forms the product of the two floats and scales it without loss, and rounds once.
 * `Low_32f16s` has no scale and multiplies in single precision. `64f64s` scales the exact product
 * of the integer and the double. There what is not a number becomes 32767 in 16 bits and -2^63 in
 * 64 bits; an infinite constant saturates by sign, and times 0 it is not a number.
 *
 * **Shapes.** Vectors have @p len elements and any alignment. @p dst may be @p src; other overlaps
 * are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src         factors
 * @arg @c val         constant factor
 * @arg @c dst         result
 * @arg @c srcDst      factors and result of the in-place forms
 * @arg @c len         number of elements
 * @arg @c scaleFactor power of two by which the product is divided
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsMulC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len);
VlqStatus vlqsMulC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsMulC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsMulC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
VlqStatus vlqsMulC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsMulC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
VlqStatus vlqsMulC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_64s_ISfs(Vlq64s val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_64f64s_ISfs(Vlq64f val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsMulC_32f16s_Sfs(const Vlq32f* src, Vlq32f val, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
VlqStatus vlqsMulC_Low_32f16s(const Vlq32f* src, Vlq32f val, Vlq16s* dst, Vlq32s len);
/** @} */

/** @name Scaled sums of a vector and products
 *  @{ */
/**
 * `srcDst[i] = clamp(round((srcDst[i] + src1[i] * src2[i]) * 2^-scaleFactor))`: the sum is exact,
 * and the value that was there is scaled along with the product. Rounded and saturated as the
 * products of vectors.
 *
 * **Shapes.** Vectors have @p len elements and any alignment. @p srcDst may be a source of its own
 * type; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @param src1        first factor
 * @param src2        second factor
 * @param srcDst      sum so far, and the result
 * @param len         number of elements
 * @param scaleFactor power of two by which the sum is divided
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsAddProduct_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor);
VlqStatus vlqsAddProduct_16s32s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq32s* srcDst,
                                    Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsAddProduct_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor);
/** @} */

/** @name Products of floats
 *  @{ */
/**
 * `dst[i] = src1[i] * src2[i]`; in place `srcDst[i] = srcDst[i] * src[i]`. Of complex values
 * `(a + bi)(c + di) = (ac - bd) + (ad + bc)i`. The form of `16s` multiplies exactly and converts
 * the product. `32f32fc` multiplies both parts of the second vector by the real first one.
 *
 * Each product and each sum is rounded by itself in the element's precision, in all builds alike;
 * infinities and what is not a number follow IEEE 754. There is no status for them.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be a source of its own
 * type; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src1   first factor
 * @arg @c src2   second factor
 * @arg @c src    factor of the in-place forms
 * @arg @c dst    result
 * @arg @c srcDst factor and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsMul_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsMul_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsMul_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsMul_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsMul_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsMul_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsMul_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsMul_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len);
VlqStatus vlqsMul_32f32fc(const Vlq32f* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsMul_32f32fc_I(const Vlq32f* src, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsMul_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len);
/** @} */

/** @name Products of floats and a constant
 *  @{ */
/**
 * `dst[i] = src[i] * val`; in place `srcDst[i] = srcDst[i] * val`. Rounded as the products of
 * vectors.
 *
 * **Shapes.** Vectors have @p len elements and any alignment. @p dst may be @p src; other overlaps
 * are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src    factors
 * @arg @c val    constant factor
 * @arg @c dst    result
 * @arg @c srcDst factors and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsMulC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsMulC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsMulC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsMulC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsMulC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsMulC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsMulC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsMulC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/** @name Products added to a vector of floats
 *  @{ */
/**
 * `srcDst[i] = srcDst[i] + src1[i] * src2[i]`, or `srcDst[i] + src[i] * val` with a constant. The
 * product is rounded before it is added, in all builds alike.
 *
 * **Shapes.** Vectors have @p len elements and any alignment. @p srcDst may be a source of its own
 * type; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src1   first factor
 * @arg @c src2   second factor
 * @arg @c src    factors that meet the constant
 * @arg @c val    constant factor
 * @arg @c srcDst sum so far, and the result
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsAddProduct_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsAddProduct_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsAddProduct_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* srcDst,
                              Vlq32s len);
VlqStatus vlqsAddProduct_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* srcDst,
                              Vlq32s len);
VlqStatus vlqsAddProductC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** @} */

/** @name Scaled quotients of two vectors
 *  @{ */
/**
 * `dst[i] = clamp(round(src2[i] / src1[i] * 2^-scaleFactor))`: the second vector is divided by the
 * first. In place `srcDst[i] / src[i]`. `round` goes to the nearest integer and from a tie to the
 * even one. The quotient of 8 and 16-bit integers is formed in single precision, that of 32-bit and
 * of complex ones in double, and is scaled without a further rounding. Over a divisor of 0 a
 * positive numerator gives the largest value of the type, a negative one the smallest, 0 gives 0;
 * part by part of complex values. `32s16s` divides 32-bit numerators (@p src2) by 16-bit divisors
 * (@p src1).
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be a source of its own
 * type; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 * The warning #vlqStsWarnDivByZero tells that a divisor was zero; all results are written.
 *
 * **Memory.** None.
 *
 * @arg @c src1        divisors
 * @arg @c src2        numerators
 * @arg @c src         divisors of the in-place forms
 * @arg @c dst         result
 * @arg @c srcDst      numerators and result of the in-place forms
 * @arg @c len         number of elements
 * @arg @c scaleFactor power of two by which the quotient is divided
 * @return #vlqStsOk, the warning or an error above.
 */
VlqStatus vlqsDiv_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                         Vlq32s scaleFactor);
VlqStatus vlqsDiv_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDiv_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsDiv_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDiv_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsDiv_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDiv_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
VlqStatus vlqsDiv_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDiv_32s16s_Sfs(const Vlq16s* src1, const Vlq32s* src2, Vlq16s* dst, Vlq32s len,
                             Vlq32s scaleFactor);
VlqStatus vlqsDiv_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsDiv_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/** @name Scaled quotients of two vectors, rounded by mode
 *  @{ */
/**
 * `dst[i] = clamp(round(src2[i] / src1[i] * 2^-scaleFactor))` as the scaled quotients, with `round`
 * towards zero (#vlqRndZero), to the nearest with ties to even (#vlqRndNear) or with ties away from
 * zero (#vlqRndFinancial). Over a divisor of 0 the same values are stored, except that all results
 * are 0 from a scale factor of 17 on.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be a source of its own
 * type; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1,
 * #vlqStsBadRoundMode for another mode. The warning #vlqStsWarnDivByZero tells that a divisor was
 * zero; all results are written.
 *
 * **Memory.** None.
 *
 * @arg @c src1        divisors
 * @arg @c src2        numerators
 * @arg @c src         divisors of the in-place forms
 * @arg @c dst         result
 * @arg @c srcDst      numerators and result of the in-place forms
 * @arg @c len         number of elements
 * @arg @c rndMode     rounding of the quotient
 * @arg @c scaleFactor power of two by which the quotient is divided
 * @return #vlqStsOk, the warning or an error above.
 */
VlqStatus vlqsDiv_Round_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                               VlqRoundMode rndMode, Vlq32s scaleFactor);
VlqStatus vlqsDiv_Round_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, VlqRoundMode rndMode,
                                Vlq32s scaleFactor);
VlqStatus vlqsDiv_Round_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                                VlqRoundMode rndMode, Vlq32s scaleFactor);
VlqStatus vlqsDiv_Round_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len,
                                 VlqRoundMode rndMode, Vlq32s scaleFactor);
VlqStatus vlqsDiv_Round_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                                VlqRoundMode rndMode, Vlq32s scaleFactor);
VlqStatus vlqsDiv_Round_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len,
                                 VlqRoundMode rndMode, Vlq32s scaleFactor);
/** @} */

/** @name Scaled quotients of a vector and a constant
 *  @{ */
/**
 * `dst[i] = clamp(round(src[i] * (2^-scaleFactor / val)))`; in place with `srcDst[i]`. The
 * reciprocal is formed once, in single precision of integers of 8 and 16 bits, in double of complex
 * ones, so a result may lie one step from the rounded quotient. `64s` divides exactly.
 *
 * **Shapes.** Vectors have @p len elements and any alignment. @p dst may be @p src; other overlaps
 * are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1,
 * #vlqStsZeroDivisor for a constant of 0.
 *
 * **Memory.** None.
 *
 * @arg @c src         numerators
 * @arg @c val         divisor
 * @arg @c dst         result
 * @arg @c srcDst      numerators and result of the in-place forms
 * @arg @c len         number of elements
 * @arg @c scaleFactor power of two by which the quotient is divided
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsDivC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDivC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDivC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsDivC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDivC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                           Vlq32s scaleFactor);
VlqStatus vlqsDivC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDivC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
VlqStatus vlqsDivC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsDivC_64s_ISfs(Vlq64s val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/** @name Quotients of a constant and a vector
 *  @{ */
/**
 * `dst[i] = val / src[i]`; in place `val / srcDst[i]`. Integers are rounded to the nearest, ties to
 * even. Over a divisor of 0 an integer result is 65535, or 0 for a constant of 0; a float result is
 * infinite or not a number.
 *
 * **Shapes.** Vectors have @p len elements and any alignment. @p dst may be @p src; other overlaps
 * are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 * The warning #vlqStsWarnDivByZero tells that a divisor was zero; all results are written.
 *
 * **Memory.** None.
 *
 * @arg @c src    divisors
 * @arg @c val    numerator
 * @arg @c dst    result
 * @arg @c srcDst divisors and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk, the warning or an error above.
 */
VlqStatus vlqsDivCRev_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsDivCRev_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsDivCRev_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsDivCRev_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** @} */

/** @name Quotients of two vectors of floats
 *  @{ */
/**
 * `dst[i] = src2[i] / src1[i]`: the second vector is divided by the first. In place `srcDst[i] /
 * src[i]`.
 *
 * Real quotients are correctly rounded. Complex ones neither overflow nor underflow where the
 * result does not: parts of `32fc` are rounded once from double, those of `64fc` are within a few
 * units of the larger part's last place. Over a divisor of 0 each part of the numerator is divided
 * by the divisor's real part: infinite, or not a number.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be a source of its own
 * type; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 * The warning #vlqStsWarnDivByZero tells that a divisor was zero; all results are written.
 *
 * **Memory.** None.
 *
 * @arg @c src1   divisors
 * @arg @c src2   numerators
 * @arg @c src    divisors of the in-place forms
 * @arg @c dst    result
 * @arg @c srcDst numerators and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk, the warning or an error above.
 */
VlqStatus vlqsDiv_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsDiv_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsDiv_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsDiv_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsDiv_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsDiv_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsDiv_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsDiv_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/** @name Quotients of a vector of floats and a constant
 *  @{ */
/**
 * `dst[i] = src[i] / val`; in place `srcDst[i] / val`. The reciprocal is formed once and multiplied
 * by, so a result may differ in the last place from the rounded quotient; where the reciprocal
 * would overflow or lose bits each element is divided instead.
 *
 * **Shapes.** Vectors have @p len elements and any alignment. @p dst may be @p src; other overlaps
 * are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1,
 * #vlqStsZeroDivisor for a constant of 0.
 *
 * **Memory.** None.
 *
 * @arg @c src    numerators
 * @arg @c val    divisor
 * @arg @c dst    result
 * @arg @c srcDst numerators and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsDivC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsDivC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsDivC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsDivC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsDivC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsDivC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsDivC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsDivC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
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
VlqStatus vlqsAnd_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsAnd_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsAnd_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsAnd_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len);
VlqStatus vlqsOr_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsOr_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsOr_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsOr_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsOr_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsOr_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len);
VlqStatus vlqsXor_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsXor_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsXor_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsXor_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsXor_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsXor_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len);
/** @} */

/** @name Bitwise logic with a constant
 *  @{ */
/**
 * `dst[i] = src[i] op val` with op AND, OR or XOR; the `_I` forms work on @p srcDst.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be @p src; other
 * overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 * With @p val 0, AND tests only @p src and then clears @p dst as vlqsZero does; OR and XOR copy as
 * vlqsCopy does.
 *
 * **Memory.** None.
 *
 * @arg @c src    first operand
 * @arg @c val    second operand of every element
 * @arg @c dst    result
 * @arg @c srcDst operand and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsAndC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsAndC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsAndC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsAndC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsAndC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsAndC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len);
VlqStatus vlqsOrC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsOrC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsOrC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsOrC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsOrC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsOrC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len);
VlqStatus vlqsXorC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsXorC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsXorC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsXorC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsXorC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsXorC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len);
/** @} */

/** @name Bitwise complement
 *  @{ */
/**
 * `dst[i] = ~src[i]`; the `_I` forms work on @p srcDst.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be @p src; other
 * overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src    operand
 * @arg @c dst    result
 * @arg @c srcDst operand and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsNot_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsNot_8u_I(Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsNot_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsNot_16u_I(Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsNot_32u(const Vlq32u* src, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsNot_32u_I(Vlq32u* srcDst, Vlq32s len);
/** @} */

/** @name Shifts by a constant
 *  @{ */
/**
 * `dst[i] = src[i] << val` (LShiftC) or `src[i] >> val` (RShiftC); the `_I` forms work on
 * @p srcDst. Bits that leave the element are lost, without saturation. A right shift of a signed
 * type is arithmetic. A @p val of the element's width or more leaves 0, or, from the right shift of
 * a signed element, its sign in every bit.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be @p src; other
 * overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1,
 * #vlqStsBadShift for a negative @p val. With @p val 0 the call is a vlqsCopy. Where a large @p val
 * clears, only @p src is tested and the call is a vlqsZero.
 *
 * **Memory.** None.
 *
 * @arg @c src    operand
 * @arg @c val    number of bits
 * @arg @c dst    result
 * @arg @c srcDst operand and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsLShiftC_8u(const Vlq8u* src, Vlq32s val, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsLShiftC_8u_I(Vlq32s val, Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsLShiftC_16s(const Vlq16s* src, Vlq32s val, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsLShiftC_16s_I(Vlq32s val, Vlq16s* srcDst, Vlq32s len);
VlqStatus vlqsLShiftC_16u(const Vlq16u* src, Vlq32s val, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsLShiftC_16u_I(Vlq32s val, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsLShiftC_32s(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len);
VlqStatus vlqsLShiftC_32s_I(Vlq32s val, Vlq32s* srcDst, Vlq32s len);
VlqStatus vlqsRShiftC_8u(const Vlq8u* src, Vlq32s val, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsRShiftC_8u_I(Vlq32s val, Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsRShiftC_16s(const Vlq16s* src, Vlq32s val, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsRShiftC_16s_I(Vlq32s val, Vlq16s* srcDst, Vlq32s len);
VlqStatus vlqsRShiftC_16u(const Vlq16u* src, Vlq32s val, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsRShiftC_16u_I(Vlq32s val, Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsRShiftC_32s(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len);
VlqStatus vlqsRShiftC_32s_I(Vlq32s val, Vlq32s* srcDst, Vlq32s len);
/** @} */

VLQS_END_DECLS

#endif
