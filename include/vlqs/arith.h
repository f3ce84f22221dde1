/**
 * @file arith.h
 * @brief Element-wise arithmetic, logic and shifts.
 */
#ifndef VLQS_ARITH_H
#define VLQS_ARITH_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/**
 * @defgroup vlqs_arith Arithmetic, logic, shifts
 *
 * All of these work element by element: `dst = src1 + src2` in the line of a function stands for
 * `dst[i] = src1[i] + src2[i]` for every i from 0 to @p len - 1. `sat` clamps to the range of the
 * destination's type and `round` rounds to an integer.
 *
 * Mind the order of the operands: Sub is `src2 - src1` and Div is `src2 / src1`.
 *
 * Very long results that are not in place are written past the cache, so that they do not evict the
 * caller's working set.
 */

/**
 * @defgroup vlqs_add Sum and difference of two vectors
 * @ingroup vlqs_arith
 *
 * Sum: `dst[i] = src1[i] + src2[i]`, in place `srcDst[i] += src[i]`. Difference: the second vector
 * is the minuend, `dst[i] = src2[i] - src1[i]`, in place `srcDst[i] -= src[i]`.
 *
 * Integer results e are computed exactly, then stored as follows:
 * - `_Sfs`, `_ISfs`: `e * 2^-scaleFactor`, rounded to the nearest integer with ties to even, and
 *   saturated. Every scale factor is legal. A negative unsigned difference gives 0.
 * - The other integer variants saturate e to the destination's type. In `_8u16u` and `_16s32f`
 *   every e fits. `_16s32s_I` adds 16-bit samples to 32-bit ones.
 * - vlqsAdd_64s_Sfs() stores 0 for a @p scaleFactor of 64 or more, where the largest sums would
 *   round to 1 or -1.
 *
 * A float result is one IEEE operation in the precision of the samples; if both operands are NaN,
 * the result may carry the payload of either. Complex samples are pairs of independent reals.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source of the
 * same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1. Complex variants: #vlqStsBadSize for @p len below 1, #vlqStsNullPtr, #vlqStsBadSize for
 * @p len of 2^30 or more.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1        first operand
 * @arg @c src2        second operand, the minuend of a difference
 * @arg @c src         operand of the in-place variants
 * @arg @c dst         result
 * @arg @c srcDst      in place: the other operand, minuend of a difference, and the result
 * @arg @c len         number of elements
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round((src1 + src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                         Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src1 + src2, exact in 16 bits. */
VlqStatus vlqsAdd_8u16u(const Vlq8u* src1, const Vlq8u* src2, Vlq16u* dst, Vlq32s len);
/** dst = sat(src1 + src2). */
VlqStatus vlqsAdd_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len);
/** dst = sat(round((src1 + src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(src1 + src2). */
VlqStatus vlqsAdd_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len);
/** srcDst = sat(srcDst + src). */
VlqStatus vlqsAdd_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len);
/** dst = sat(round((src1 + src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src1 + src2, exact in the float. */
VlqStatus vlqsAdd_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len);
/** srcDst = sat(srcDst + src): 16-bit src is added to 32-bit srcDst. */
VlqStatus vlqsAdd_16s32s_I(const Vlq16s* src, Vlq32s* srcDst, Vlq32s len);
/** dst = sat(round((src1 + src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(src1 + src2). */
VlqStatus vlqsAdd_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len);
/** dst = sat(round((src1 + src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src1 + src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAdd_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src1 + src2) * 2^-scaleFactor)), ties to even; 0 from scaleFactor 64 on. */
VlqStatus vlqsAdd_64s_Sfs(const Vlq64s* src1, const Vlq64s* src2, Vlq64s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** dst = src1 + src2. */
VlqStatus vlqsAdd_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst + src. */
VlqStatus vlqsAdd_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
/** dst = src1 + src2. */
VlqStatus vlqsAdd_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst + src. */
VlqStatus vlqsAdd_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len);
/** dst = src1 + src2. */
VlqStatus vlqsAdd_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst + src. */
VlqStatus vlqsAdd_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** dst = src1 + src2. */
VlqStatus vlqsAdd_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst + src. */
VlqStatus vlqsAdd_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len);
/** dst = sat(round((src2 - src1) * 2^-scaleFactor)), ties to even: src1 is subtracted. */
VlqStatus vlqsSub_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                         Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - src) * 2^-scaleFactor)), ties to even: src is subtracted. */
VlqStatus vlqsSub_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src2 - src1) * 2^-scaleFactor)), ties to even: src1 is subtracted. */
VlqStatus vlqsSub_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - src) * 2^-scaleFactor)), ties to even: src is subtracted. */
VlqStatus vlqsSub_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(src2 - src1): src1 is subtracted. */
VlqStatus vlqsSub_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len);
/** srcDst = sat(srcDst - src): src is subtracted. */
VlqStatus vlqsSub_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len);
/** dst = sat(round((src2 - src1) * 2^-scaleFactor)), ties to even: src1 is subtracted. */
VlqStatus vlqsSub_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - src) * 2^-scaleFactor)), ties to even: src is subtracted. */
VlqStatus vlqsSub_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src2 - src1: src1 is subtracted, exact in the float. */
VlqStatus vlqsSub_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len);
/** dst = sat(round((src2 - src1) * 2^-scaleFactor)), ties to even: src1 is subtracted. */
VlqStatus vlqsSub_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - src) * 2^-scaleFactor)), ties to even: src is subtracted. */
VlqStatus vlqsSub_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src2 - src1) * 2^-scaleFactor)), ties to even: src1 is subtracted. */
VlqStatus vlqsSub_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - src) * 2^-scaleFactor)), ties to even: src is subtracted. */
VlqStatus vlqsSub_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src2 - src1) * 2^-scaleFactor)), ties to even: src1 is subtracted. */
VlqStatus vlqsSub_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - src) * 2^-scaleFactor)), ties to even: src is subtracted. */
VlqStatus vlqsSub_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src2 - src1: src1 is subtracted. */
VlqStatus vlqsSub_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst - src: src is subtracted. */
VlqStatus vlqsSub_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
/** dst = src2 - src1: src1 is subtracted. */
VlqStatus vlqsSub_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst - src: src is subtracted. */
VlqStatus vlqsSub_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len);
/** dst = src2 - src1: src1 is subtracted. */
VlqStatus vlqsSub_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst - src: src is subtracted. */
VlqStatus vlqsSub_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** dst = src2 - src1: src1 is subtracted. */
VlqStatus vlqsSub_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst - src: src is subtracted. */
VlqStatus vlqsSub_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_add_constant Sum and difference of a vector and a constant
 * @ingroup vlqs_arith
 *
 * `AddC`: `dst[i] = src[i] + val`. `SubC`: `dst[i] = src[i] - val`. `SubCRev`:
 * `dst[i] = val - src[i]`. In place, `srcDst` takes the place of both vectors. Results are rounded
 * and saturated like those of two vectors.
 *
 * vlqsAddC_64s_Sfs() and vlqsAddC_64u_Sfs() keep the exact sum for every @p scaleFactor and round
 * by @p rndMode: #vlqRndZero towards zero, #vlqRndNear to nearest with ties to even, any other
 * value to nearest with ties away from zero. Mind the order of their last two arguments,
 * scaleFactor before rndMode: conversions and Div_Round have them the other way round, and the
 * compiler accepts both.
 *
 * A real constant of 0 (of either sign) with a scale factor of 0 copies the samples bit for bit, so
 * -0.0 remains, or leaves them alone in place. A NaN constant makes every result NaN.
 *
 * **Shapes.** The vectors have @p len elements and any alignment, and are equal or do not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1 (0 for an unsigned @p len). The `16u` variants test less where they need no source:
 * - `AddC` and `SubC` of 0 with scale factor 0, in place, return #vlqStsOk without any test.
 * - `AddC` with a scale factor below -15 and @p val not 0, and `SubCRev` with @p val 0 or a scale
 *   factor of 17 or more, do not test @p src for null.
 *
 * The copy that vlqsAddC_64f() makes for a constant of 0 counts bytes in 32 bits: for @p len of
 * 2^28 or more the count wraps, and the call copies the wrapped count or returns #vlqStsBadSize.
 * The copy of the 64-bit integer variants returns #vlqStsBadSize for @p len of 2^31 or more.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         vector operand
 * @arg @c val         constant operand
 * @arg @c dst         result
 * @arg @c srcDst      vector operand and result of the in-place variants
 * @arg @c len         number of elements
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 * @arg @c rndMode     rounding of the 64-bit variants
 *
 * @{
 */

/** dst = sat(round((src + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(srcDst + val). */
VlqStatus vlqsAddC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len);
/** dst = sat(round((src + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src + val) * 2^-scaleFactor)), rounded by rndMode. */
VlqStatus vlqsAddC_64s_Sfs(const Vlq64s* src, Vlq64s val, Vlq64s* dst, Vlq32u len,
                           Vlq32s scaleFactor, VlqRoundMode rndMode);
/** dst = sat(round((src + val) * 2^-scaleFactor)), rounded by rndMode. */
VlqStatus vlqsAddC_64u_Sfs(const Vlq64u* src, Vlq64u val, Vlq64u* dst, Vlq32u len,
                           Vlq32s scaleFactor, VlqRoundMode rndMode);
/** dst = src + val. */
VlqStatus vlqsAddC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst + val. */
VlqStatus vlqsAddC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** dst = src + val. */
VlqStatus vlqsAddC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst + val. */
VlqStatus vlqsAddC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
/** dst = src + val. */
VlqStatus vlqsAddC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst + val. */
VlqStatus vlqsAddC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
/** dst = src + val. */
VlqStatus vlqsAddC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst + val. */
VlqStatus vlqsAddC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
/** dst = sat(round((src - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(srcDst - val). */
VlqStatus vlqsSubC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len);
/** dst = sat(round((src - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((src - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst - val) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src - val. */
VlqStatus vlqsSubC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst - val. */
VlqStatus vlqsSubC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** dst = src - val. */
VlqStatus vlqsSubC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst - val. */
VlqStatus vlqsSubC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
/** dst = src - val. */
VlqStatus vlqsSubC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst - val. */
VlqStatus vlqsSubC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
/** dst = src - val. */
VlqStatus vlqsSubC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst - val. */
VlqStatus vlqsSubC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
/** dst = sat(round((val - src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len,
                             Vlq32s scaleFactor);
/** srcDst = sat(round((val - srcDst) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((val - src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                              Vlq32s scaleFactor);
/** srcDst = sat(round((val - srcDst) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((val - src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
/** srcDst = sat(round((val - srcDst) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((val - src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                               Vlq32s scaleFactor);
/** srcDst = sat(round((val - srcDst) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((val - src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
/** srcDst = sat(round((val - srcDst) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round((val - src) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                               Vlq32s scaleFactor);
/** srcDst = sat(round((val - srcDst) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsSubCRev_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = val - src. */
VlqStatus vlqsSubCRev_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
/** srcDst = val - srcDst. */
VlqStatus vlqsSubCRev_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** dst = val - src. */
VlqStatus vlqsSubCRev_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
/** srcDst = val - srcDst. */
VlqStatus vlqsSubCRev_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
/** dst = val - src. */
VlqStatus vlqsSubCRev_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
/** srcDst = val - srcDst. */
VlqStatus vlqsSubCRev_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
/** dst = val - src. */
VlqStatus vlqsSubCRev_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
/** srcDst = val - srcDst. */
VlqStatus vlqsSubCRev_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_mul_scaled Scaled products of two vectors
 * @ingroup vlqs_arith
 *
 * `dst[i] = sat(round(src1[i] * src2[i] * 2^-scaleFactor))`; in place with `srcDst[i] * src[i]`.
 * The product is exact; `round` goes to nearest with ties to even. Every scale factor is legal: far
 * above 0 all results are 0, far below 0 everything but 0 saturates. Variants without a scale
 * factor saturate the product itself. Complex: `(a + bi)(c + di) = (ac - bd) + (ad + bc)i`, both
 * parts exact before they are scaled. A real vector times a complex one (`32s32sc`) scales both
 * parts by the real value.
 *
 * Variants with two types: in `16u16s` and `32s32sc` the first vector has the first type and all
 * others the second; in `8u16u` and `16s32s` both sources have the first type and the result the
 * second.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source of the
 * same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1        first factor
 * @arg @c src2        second factor
 * @arg @c src         factor of the in-place variants
 * @arg @c dst         result
 * @arg @c srcDst      factor and result of the in-place variants
 * @arg @c len         number of elements
 * @arg @c scaleFactor the product is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                         Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * src * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src1 * src2, exact in 16 bits. */
VlqStatus vlqsMul_8u16u(const Vlq8u* src1, const Vlq8u* src2, Vlq16u* dst, Vlq32s len);
/** dst = sat(src1 * src2). */
VlqStatus vlqsMul_16s(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len);
/** srcDst = sat(srcDst * src). */
VlqStatus vlqsMul_16s_I(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * src * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * src * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even, src1 unsigned. */
VlqStatus vlqsMul_16u16s_Sfs(const Vlq16u* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                             Vlq32s scaleFactor);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even, complex product. */
VlqStatus vlqsMul_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * src * 2^-scaleFactor)), ties to even, complex product. */
VlqStatus vlqsMul_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even, in 32 bits. */
VlqStatus vlqsMul_16s32s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq32s* dst, Vlq32s len,
                             Vlq32s scaleFactor);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * src * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMul_Low_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even, src1 real, src2 complex. */
VlqStatus vlqsMul_32s32sc_Sfs(const Vlq32s* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                              Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * src * 2^-scaleFactor)), ties to even, src real, srcDst complex. */
VlqStatus vlqsMul_32s32sc_ISfs(const Vlq32s* src, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src1 * src2 * 2^-scaleFactor)), ties to even, complex product. */
VlqStatus vlqsMul_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * src * 2^-scaleFactor)), ties to even, complex product. */
VlqStatus vlqsMul_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_mul_constant_scaled Scaled products of a vector and a constant
 * @ingroup vlqs_arith
 *
 * `dst[i] = sat(round(src[i] * val * 2^-scaleFactor))`; in place with `srcDst[i] * val`. Rounded
 * and saturated like the products of two vectors.
 *
 * `32f16s` forms the exact product of the two floats, scales it and rounds once. `Low_32f16s` has
 * no scale factor and rounds the product to single precision first. `64f64s` scales the exact
 * product of the integer and the double. A NaN becomes 32767 in 16 bits and -2^63 in 64 bits; an
 * infinite constant saturates by sign, and infinity times 0 is NaN.
 *
 * **Shapes.** The vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         factors
 * @arg @c val         constant factor
 * @arg @c dst         result
 * @arg @c srcDst      factors and result of the in-place variants
 * @arg @c len         number of elements
 * @arg @c scaleFactor the product is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(srcDst * val). */
VlqStatus vlqsMulC_16s_I(Vlq16s val, Vlq16s* srcDst, Vlq32s len);
/** dst = sat(round(src * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * val * 2^-scaleFactor)), ties to even, complex product. */
VlqStatus vlqsMulC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * val * 2^-scaleFactor)), ties to even, complex product. */
VlqStatus vlqsMulC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * val * 2^-scaleFactor)), ties to even, complex product. */
VlqStatus vlqsMulC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * val * 2^-scaleFactor)), ties to even, complex product. */
VlqStatus vlqsMulC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * val * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMulC_64s_ISfs(Vlq64s val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * val * 2^-scaleFactor)), ties to even; val is a double. */
VlqStatus vlqsMulC_64f64s_ISfs(Vlq64f val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * val * 2^-scaleFactor)), ties to even: floats to 16 bits. */
VlqStatus vlqsMulC_32f16s_Sfs(const Vlq32f* src, Vlq32f val, Vlq16s* dst, Vlq32s len,
                              Vlq32s scaleFactor);
/** dst = sat(round(src * val)), ties to even, the product first rounded to a float. */
VlqStatus vlqsMulC_Low_32f16s(const Vlq32f* src, Vlq32f val, Vlq16s* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_add_product_scaled Scaled multiply-accumulate
 * @ingroup vlqs_arith
 *
 * `srcDst[i] = sat(round((srcDst[i] + src1[i] * src2[i]) * 2^-scaleFactor))`: the sum is exact, and
 * the old value of @p srcDst is scaled together with the product. Rounded to nearest with ties to
 * even.
 *
 * **Shapes.** The vectors have @p len elements and any alignment. @p srcDst may equal a source of
 * the same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1        first factor
 * @arg @c src2        second factor
 * @arg @c srcDst      accumulator and result
 * @arg @c len         number of elements
 * @arg @c scaleFactor the sum is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** srcDst = sat(round((srcDst + src1 * src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddProduct_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + src1 * src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddProduct_16s32s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq32s* srcDst,
                                    Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round((srcDst + src1 * src2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsAddProduct_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_mul_float Products of floats
 * @ingroup vlqs_arith
 *
 * `dst[i] = src1[i] * src2[i]`; in place `srcDst[i] = srcDst[i] * src[i]`. Complex:
 * `(a + bi)(c + di) = (ac - bd) + (ad + bc)i`. `16s32f` multiplies 16-bit integers exactly and
 * converts the product. `32f32fc` multiplies both parts of the complex second vector by the real
 * first one.
 *
 * Each product and each sum is rounded on its own in the precision of the elements, in every build;
 * infinities and NaNs follow IEEE 754 and cause no status.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source of the
 * same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1   first factor
 * @arg @c src2   second factor
 * @arg @c src    factor of the in-place variants
 * @arg @c dst    result
 * @arg @c srcDst factor and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = src1 * src2. */
VlqStatus vlqsMul_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst * src. */
VlqStatus vlqsMul_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
/** dst = src1 * src2. */
VlqStatus vlqsMul_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst * src. */
VlqStatus vlqsMul_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** dst = src1 * src2, complex product. */
VlqStatus vlqsMul_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst * src, complex product. */
VlqStatus vlqsMul_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len);
/** dst = src1 * src2, complex product. */
VlqStatus vlqsMul_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst * src, complex product. */
VlqStatus vlqsMul_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len);
/** dst = src1 * src2, src1 real, src2 complex. */
VlqStatus vlqsMul_32f32fc(const Vlq32f* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst * src, src real, srcDst complex. */
VlqStatus vlqsMul_32f32fc_I(const Vlq32f* src, Vlq32fc* srcDst, Vlq32s len);
/** dst = src1 * src2, the exact integer product converted to float. */
VlqStatus vlqsMul_16s32f(const Vlq16s* src1, const Vlq16s* src2, Vlq32f* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_mul_constant_float Products of floats and a constant
 * @ingroup vlqs_arith
 *
 * `dst[i] = src[i] * val`; in place `srcDst[i] = srcDst[i] * val`. Rounded like the products of two
 * vectors.
 *
 * **Shapes.** The vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    factors
 * @arg @c val    constant factor
 * @arg @c dst    result
 * @arg @c srcDst factors and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = src * val. */
VlqStatus vlqsMulC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst * val. */
VlqStatus vlqsMulC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** dst = src * val. */
VlqStatus vlqsMulC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst * val. */
VlqStatus vlqsMulC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
/** dst = src * val, complex product. */
VlqStatus vlqsMulC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst * val, complex product. */
VlqStatus vlqsMulC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
/** dst = src * val, complex product. */
VlqStatus vlqsMulC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst * val, complex product. */
VlqStatus vlqsMulC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_add_product_float Multiply-accumulate of floats
 * @ingroup vlqs_arith
 *
 * `srcDst[i] = srcDst[i] + src1[i] * src2[i]`, or `srcDst[i] + src[i] * val` with a constant. The
 * product is rounded before it is added, in every build: this is no fused multiply-add.
 *
 * **Shapes.** The vectors have @p len elements and any alignment. @p srcDst may equal a source of
 * the same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1   first factor
 * @arg @c src2   second factor
 * @arg @c src    factors of the constant
 * @arg @c val    constant factor
 * @arg @c srcDst accumulator and result
 * @arg @c len    number of elements
 *
 * @{
 */

/** srcDst = srcDst + src1 * src2, the product rounded before the addition. */
VlqStatus vlqsAddProduct_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* srcDst, Vlq32s len);
/** srcDst = srcDst + src1 * src2, the product rounded before the addition. */
VlqStatus vlqsAddProduct_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* srcDst, Vlq32s len);
/** srcDst = srcDst + src1 * src2, complex, the product rounded before the addition. */
VlqStatus vlqsAddProduct_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* srcDst,
                              Vlq32s len);
/** srcDst = srcDst + src1 * src2, complex, the product rounded before the addition. */
VlqStatus vlqsAddProduct_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* srcDst,
                              Vlq32s len);
/** srcDst = srcDst + src * val, the product rounded before the addition. */
VlqStatus vlqsAddProductC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_div_scaled Scaled quotients of two vectors
 * @ingroup vlqs_arith
 *
 * `dst[i] = sat(round(src2[i] / src1[i] * 2^-scaleFactor))`: the second vector is divided by the
 * first. In place `srcDst[i] / src[i]`. `round` goes to nearest with ties to even. The quotient of
 * 8 and 16-bit integers is formed in single precision, that of 32-bit and of complex integers in
 * double precision, and is scaled without a further rounding. `32s16s` divides 32-bit numerators
 * (@p src2) by 16-bit divisors (@p src1).
 *
 * Where a divisor is 0, a positive numerator gives the largest value of the type, a negative one
 * the smallest, and 0 gives 0; complex values part by part.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source of the
 * same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Warning.** #vlqStsWarnDivByZero if a divisor is 0; all results are written.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1        divisors
 * @arg @c src2        numerators
 * @arg @c src         divisors of the in-place variants
 * @arg @c dst         result
 * @arg @c srcDst      numerators and result of the in-place variants
 * @arg @c len         number of elements
 * @arg @c scaleFactor the quotient is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), ties to even: src1 is the divisor. */
VlqStatus vlqsDiv_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                         Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / src * 2^-scaleFactor)), ties to even: src is the divisor. */
VlqStatus vlqsDiv_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), ties to even: src1 is the divisor. */
VlqStatus vlqsDiv_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / src * 2^-scaleFactor)), ties to even: src is the divisor. */
VlqStatus vlqsDiv_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), ties to even: src1 is the divisor. */
VlqStatus vlqsDiv_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / src * 2^-scaleFactor)), ties to even: src is the divisor. */
VlqStatus vlqsDiv_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), ties to even: src1 is the divisor. */
VlqStatus vlqsDiv_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                          Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / src * 2^-scaleFactor)), ties to even: src is the divisor. */
VlqStatus vlqsDiv_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), ties to even: 32-bit src2 by 16-bit src1. */
VlqStatus vlqsDiv_32s16s_Sfs(const Vlq16s* src1, const Vlq32s* src2, Vlq16s* dst, Vlq32s len,
                             Vlq32s scaleFactor);
/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), ties to even: src1 is the divisor. */
VlqStatus vlqsDiv_16sc_Sfs(const Vlq16sc* src1, const Vlq16sc* src2, Vlq16sc* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / src * 2^-scaleFactor)), ties to even: src is the divisor. */
VlqStatus vlqsDiv_16sc_ISfs(const Vlq16sc* src, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_div_round Scaled quotients of two vectors with a rounding mode
 * @ingroup vlqs_arith
 *
 * `dst[i] = sat(round(src2[i] / src1[i] * 2^-scaleFactor))` like the scaled quotients, rounded
 * towards zero (#vlqRndZero), to nearest with ties to even (#vlqRndNear) or to nearest with ties
 * away from zero (#vlqRndFinancial). A divisor of 0 gives the same values, except that all results
 * are 0 for a scale factor of 17 or more.
 *
 * Mind the order of the last two arguments, rndMode before scaleFactor: both are integers, and the
 * compiler accepts either order.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source of the
 * same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsBadRoundMode for any other mode.
 *
 * **Warning.** #vlqStsWarnDivByZero if a divisor is 0; all results are written.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1        divisors
 * @arg @c src2        numerators
 * @arg @c src         divisors of the in-place variants
 * @arg @c dst         result
 * @arg @c srcDst      numerators and result of the in-place variants
 * @arg @c len         number of elements
 * @arg @c rndMode     rounding of the quotient
 * @arg @c scaleFactor the quotient is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), rounded by rndMode: src1 is the divisor. */
VlqStatus vlqsDiv_Round_8u_Sfs(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len,
                               VlqRoundMode rndMode, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / src * 2^-scaleFactor)), rounded by rndMode: src is the divisor. */
VlqStatus vlqsDiv_Round_8u_ISfs(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len, VlqRoundMode rndMode,
                                Vlq32s scaleFactor);
/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), rounded by rndMode: src1 is the divisor. */
VlqStatus vlqsDiv_Round_16s_Sfs(const Vlq16s* src1, const Vlq16s* src2, Vlq16s* dst, Vlq32s len,
                                VlqRoundMode rndMode, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / src * 2^-scaleFactor)), rounded by rndMode: src is the divisor. */
VlqStatus vlqsDiv_Round_16s_ISfs(const Vlq16s* src, Vlq16s* srcDst, Vlq32s len,
                                 VlqRoundMode rndMode, Vlq32s scaleFactor);
/** dst = sat(round(src2 / src1 * 2^-scaleFactor)), rounded by rndMode: src1 is the divisor. */
VlqStatus vlqsDiv_Round_16u_Sfs(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len,
                                VlqRoundMode rndMode, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / src * 2^-scaleFactor)), rounded by rndMode: src is the divisor. */
VlqStatus vlqsDiv_Round_16u_ISfs(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len,
                                 VlqRoundMode rndMode, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_div_constant_scaled Scaled quotients of a vector and a constant
 * @ingroup vlqs_arith
 *
 * `dst[i] = sat(round(src[i] * (2^-scaleFactor / val)))`; in place with `srcDst[i]`. The reciprocal
 * is computed once, in single precision for integers of 8 and 16 bits and in double precision for
 * complex ones, so a result may differ by 1 from the correctly rounded quotient. `64s` divides
 * exactly.
 *
 * **Shapes.** The vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsZeroDivisor for a constant of 0.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         numerators
 * @arg @c val         divisor
 * @arg @c dst         result
 * @arg @c srcDst      numerators and result of the in-place variants
 * @arg @c len         number of elements
 * @arg @c scaleFactor the quotient is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src * (2^-scaleFactor / val))), ties to even; val is not 0. */
VlqStatus vlqsDivC_8u_Sfs(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * (2^-scaleFactor / val))), ties to even; val is not 0. */
VlqStatus vlqsDivC_8u_ISfs(Vlq8u val, Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * (2^-scaleFactor / val))), ties to even; val is not 0. */
VlqStatus vlqsDivC_16s_Sfs(const Vlq16s* src, Vlq16s val, Vlq16s* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * (2^-scaleFactor / val))), ties to even; val is not 0. */
VlqStatus vlqsDivC_16s_ISfs(Vlq16s val, Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * (2^-scaleFactor / val))), ties to even; val is not 0. */
VlqStatus vlqsDivC_16u_Sfs(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len,
                           Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * (2^-scaleFactor / val))), ties to even; val is not 0. */
VlqStatus vlqsDivC_16u_ISfs(Vlq16u val, Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * (2^-scaleFactor / val))), ties to even; val is not 0. */
VlqStatus vlqsDivC_16sc_Sfs(const Vlq16sc* src, Vlq16sc val, Vlq16sc* dst, Vlq32s len,
                            Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * (2^-scaleFactor / val))), ties to even; val is not 0. */
VlqStatus vlqsDivC_16sc_ISfs(Vlq16sc val, Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst / val * 2^-scaleFactor)), ties to even, exact; val is not 0. */
VlqStatus vlqsDivC_64s_ISfs(Vlq64s val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_div_constant_rev Quotients of a constant and a vector
 * @ingroup vlqs_arith
 *
 * `dst[i] = val / src[i]`; in place `val / srcDst[i]`. Integers are rounded to nearest with ties to
 * even. Where a divisor is 0, an integer result is 65535, or 0 if @p val is 0 too; a float result
 * is infinite or NaN.
 *
 * **Shapes.** The vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Warning.** #vlqStsWarnDivByZero if a divisor is 0; all results are written.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    divisors
 * @arg @c val    numerator
 * @arg @c dst    result
 * @arg @c srcDst divisors and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = round(val / src), ties to even; val / 0 gives 65535, 0 / 0 gives 0. */
VlqStatus vlqsDivCRev_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len);
/** srcDst = round(val / srcDst), ties to even; val / 0 gives 65535, 0 / 0 gives 0. */
VlqStatus vlqsDivCRev_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len);
/** dst = val / src. */
VlqStatus vlqsDivCRev_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
/** srcDst = val / srcDst. */
VlqStatus vlqsDivCRev_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_div_float Quotients of two vectors of floats
 * @ingroup vlqs_arith
 *
 * `dst[i] = src2[i] / src1[i]`: the second vector is divided by the first. In place `srcDst[i] /
 * src[i]`.
 *
 * Real quotients are correctly rounded. Complex ones neither overflow nor underflow unless the
 * result does: the parts of `32fc` are rounded once from double precision, those of `64fc` are
 * within a few units in the last place of the larger part. Where a complex divisor is 0, each part
 * of the numerator is divided by the divisor's real part, which gives infinity or NaN.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source of the
 * same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Warning.** #vlqStsWarnDivByZero if a divisor is 0; all results are written.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1   divisors
 * @arg @c src2   numerators
 * @arg @c src    divisors of the in-place variants
 * @arg @c dst    result
 * @arg @c srcDst numerators and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = src2 / src1: src1 is the divisor. */
VlqStatus vlqsDiv_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst / src: src is the divisor. */
VlqStatus vlqsDiv_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len);
/** dst = src2 / src1: src1 is the divisor. */
VlqStatus vlqsDiv_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst / src: src is the divisor. */
VlqStatus vlqsDiv_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len);
/** dst = src2 / src1, complex: src1 is the divisor. */
VlqStatus vlqsDiv_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst / src, complex: src is the divisor. */
VlqStatus vlqsDiv_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len);
/** dst = src2 / src1, complex: src1 is the divisor. */
VlqStatus vlqsDiv_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst / src, complex: src is the divisor. */
VlqStatus vlqsDiv_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_div_constant_float Quotients of a vector of floats and a constant
 * @ingroup vlqs_arith
 *
 * `dst[i] = src[i] / val`; in place `srcDst[i] / val`. The samples are multiplied by the
 * reciprocal, which is computed once, so a result may differ in the last place from the correctly
 * rounded quotient; where the reciprocal would overflow or lose bits, each element is divided
 * instead.
 *
 * **Shapes.** The vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsZeroDivisor for a constant of 0.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    numerators
 * @arg @c val    divisor
 * @arg @c dst    result
 * @arg @c srcDst numerators and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = src / val, by the reciprocal of val, which is not 0. */
VlqStatus vlqsDivC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst / val, by the reciprocal of val, which is not 0. */
VlqStatus vlqsDivC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len);
/** dst = src / val, by the reciprocal of val, which is not 0. */
VlqStatus vlqsDivC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst / val, by the reciprocal of val, which is not 0. */
VlqStatus vlqsDivC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len);
/** dst = src / val, complex, by the reciprocal of val, which is not 0. */
VlqStatus vlqsDivC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst / val, complex, by the reciprocal of val, which is not 0. */
VlqStatus vlqsDivC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len);
/** dst = src / val, complex, by the reciprocal of val, which is not 0. */
VlqStatus vlqsDivC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst / val, complex, by the reciprocal of val, which is not 0. */
VlqStatus vlqsDivC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_logic Bitwise logic of two vectors
 * @ingroup vlqs_arith
 *
 * `dst[i] = src1[i] op src2[i]` with op AND, OR or XOR; in place `srcDst[i] = srcDst[i] op src[i]`.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src1   first operand
 * @arg @c src2   second operand
 * @arg @c src    operand of the in-place variants
 * @arg @c dst    result
 * @arg @c srcDst operand and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = src1 & src2. */
VlqStatus vlqsAnd_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len);
/** srcDst = srcDst & src. */
VlqStatus vlqsAnd_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len);
/** dst = src1 & src2. */
VlqStatus vlqsAnd_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len);
/** srcDst = srcDst & src. */
VlqStatus vlqsAnd_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len);
/** dst = src1 & src2. */
VlqStatus vlqsAnd_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len);
/** srcDst = srcDst & src. */
VlqStatus vlqsAnd_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len);
/** dst = src1 | src2. */
VlqStatus vlqsOr_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len);
/** srcDst = srcDst | src. */
VlqStatus vlqsOr_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len);
/** dst = src1 | src2. */
VlqStatus vlqsOr_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len);
/** srcDst = srcDst | src. */
VlqStatus vlqsOr_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len);
/** dst = src1 | src2. */
VlqStatus vlqsOr_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len);
/** srcDst = srcDst | src. */
VlqStatus vlqsOr_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len);
/** dst = src1 ^ src2. */
VlqStatus vlqsXor_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len);
/** srcDst = srcDst ^ src. */
VlqStatus vlqsXor_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len);
/** dst = src1 ^ src2. */
VlqStatus vlqsXor_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len);
/** srcDst = srcDst ^ src. */
VlqStatus vlqsXor_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len);
/** dst = src1 ^ src2. */
VlqStatus vlqsXor_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len);
/** srcDst = srcDst ^ src. */
VlqStatus vlqsXor_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_logic_constant Bitwise logic with a constant
 * @ingroup vlqs_arith
 *
 * `dst[i] = src[i] op val` with op AND, OR or XOR; in place `srcDst[i] = srcDst[i] op val`.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1. If @p val is 0, AND tests for a null @p src and then tests and does what vlqsZero does
 * with @p dst; OR and XOR test and do what vlqsCopy does.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    first operand
 * @arg @c val    second operand of every element
 * @arg @c dst    result
 * @arg @c srcDst operand and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = src & val. */
VlqStatus vlqsAndC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len);
/** srcDst = srcDst & val. */
VlqStatus vlqsAndC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len);
/** dst = src & val. */
VlqStatus vlqsAndC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len);
/** srcDst = srcDst & val. */
VlqStatus vlqsAndC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len);
/** dst = src & val. */
VlqStatus vlqsAndC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len);
/** srcDst = srcDst & val. */
VlqStatus vlqsAndC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len);
/** dst = src | val. */
VlqStatus vlqsOrC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len);
/** srcDst = srcDst | val. */
VlqStatus vlqsOrC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len);
/** dst = src | val. */
VlqStatus vlqsOrC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len);
/** srcDst = srcDst | val. */
VlqStatus vlqsOrC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len);
/** dst = src | val. */
VlqStatus vlqsOrC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len);
/** srcDst = srcDst | val. */
VlqStatus vlqsOrC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len);
/** dst = src ^ val. */
VlqStatus vlqsXorC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len);
/** srcDst = srcDst ^ val. */
VlqStatus vlqsXorC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len);
/** dst = src ^ val. */
VlqStatus vlqsXorC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len);
/** srcDst = srcDst ^ val. */
VlqStatus vlqsXorC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len);
/** dst = src ^ val. */
VlqStatus vlqsXorC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len);
/** srcDst = srcDst ^ val. */
VlqStatus vlqsXorC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_not Bitwise complement
 * @ingroup vlqs_arith
 *
 * `dst[i] = ~src[i]`; in place `srcDst[i] = ~srcDst[i]`.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    operand
 * @arg @c dst    result
 * @arg @c srcDst operand and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = ~src. */
VlqStatus vlqsNot_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
/** srcDst = ~srcDst. */
VlqStatus vlqsNot_8u_I(Vlq8u* srcDst, Vlq32s len);
/** dst = ~src. */
VlqStatus vlqsNot_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len);
/** srcDst = ~srcDst. */
VlqStatus vlqsNot_16u_I(Vlq16u* srcDst, Vlq32s len);
/** dst = ~src. */
VlqStatus vlqsNot_32u(const Vlq32u* src, Vlq32u* dst, Vlq32s len);
/** srcDst = ~srcDst. */
VlqStatus vlqsNot_32u_I(Vlq32u* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_shift Shifts by a constant
 * @ingroup vlqs_arith
 *
 * `dst[i] = src[i] << val` (LShiftC) or `src[i] >> val` (RShiftC); in place with `srcDst[i]`. Bits
 * shifted out are lost, without saturation. A right shift of a signed type is arithmetic. If @p val
 * is the width of the element or more, the result is 0, or, after a right shift of a signed
 * element, its sign in every bit.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsBadShift for a negative @p val. If @p val is 0, the call tests and does what
 * vlqsCopy does. Where a large @p val clears, the call tests for a null @p src and then tests and
 * does what vlqsZero does with @p dst.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    operand
 * @arg @c val    number of bits
 * @arg @c dst    result
 * @arg @c srcDst operand and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = src << val; high bits are lost, without saturation. */
VlqStatus vlqsLShiftC_8u(const Vlq8u* src, Vlq32s val, Vlq8u* dst, Vlq32s len);
/** srcDst = srcDst << val; high bits are lost, without saturation. */
VlqStatus vlqsLShiftC_8u_I(Vlq32s val, Vlq8u* srcDst, Vlq32s len);
/** dst = src << val; high bits are lost, without saturation. */
VlqStatus vlqsLShiftC_16s(const Vlq16s* src, Vlq32s val, Vlq16s* dst, Vlq32s len);
/** srcDst = srcDst << val; high bits are lost, without saturation. */
VlqStatus vlqsLShiftC_16s_I(Vlq32s val, Vlq16s* srcDst, Vlq32s len);
/** dst = src << val; high bits are lost, without saturation. */
VlqStatus vlqsLShiftC_16u(const Vlq16u* src, Vlq32s val, Vlq16u* dst, Vlq32s len);
/** srcDst = srcDst << val; high bits are lost, without saturation. */
VlqStatus vlqsLShiftC_16u_I(Vlq32s val, Vlq16u* srcDst, Vlq32s len);
/** dst = src << val; high bits are lost, without saturation. */
VlqStatus vlqsLShiftC_32s(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len);
/** srcDst = srcDst << val; high bits are lost, without saturation. */
VlqStatus vlqsLShiftC_32s_I(Vlq32s val, Vlq32s* srcDst, Vlq32s len);
/** dst = src >> val, with zeros shifted in. */
VlqStatus vlqsRShiftC_8u(const Vlq8u* src, Vlq32s val, Vlq8u* dst, Vlq32s len);
/** srcDst = srcDst >> val, with zeros shifted in. */
VlqStatus vlqsRShiftC_8u_I(Vlq32s val, Vlq8u* srcDst, Vlq32s len);
/** dst = src >> val, with copies of the sign bit shifted in. */
VlqStatus vlqsRShiftC_16s(const Vlq16s* src, Vlq32s val, Vlq16s* dst, Vlq32s len);
/** srcDst = srcDst >> val, with copies of the sign bit shifted in. */
VlqStatus vlqsRShiftC_16s_I(Vlq32s val, Vlq16s* srcDst, Vlq32s len);
/** dst = src >> val, with zeros shifted in. */
VlqStatus vlqsRShiftC_16u(const Vlq16u* src, Vlq32s val, Vlq16u* dst, Vlq32s len);
/** srcDst = srcDst >> val, with zeros shifted in. */
VlqStatus vlqsRShiftC_16u_I(Vlq32s val, Vlq16u* srcDst, Vlq32s len);
/** dst = src >> val, with copies of the sign bit shifted in. */
VlqStatus vlqsRShiftC_32s(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len);
/** srcDst = srcDst >> val, with copies of the sign bit shifted in. */
VlqStatus vlqsRShiftC_32s_I(Vlq32s val, Vlq32s* srcDst, Vlq32s len);
/** @} */

VLQS_END_DECLS

#endif
