/**
 * @file maths.h
 * @brief Powers, roots, exponentials, logarithms and the arctangent, element by element.
 */
#ifndef VLQS_MATHS_H
#define VLQS_MATHS_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/**
 * @defgroup vlqs_maths Powers, roots, exponentials, logarithms
 *
 * Each works element by element: `dst = f(src)` in the line of a function stands for
 * `dst[i] = f(src[i])` for every i from 0 to @p len - 1; in place, `srcDst` is both vectors. `sat`
 * clamps to the range of the destination's type and `round` rounds to the nearest integer, with
 * ties to even where nothing else is said.
 *
 * Integer results are those of the exact mathematical value, rounded once; the scale factor may be
 * any 32-bit integer. Float results follow C's Annex F for zeros, infinities, NaN and subnormal
 * numbers. Within one build of the library they depend on nothing but the element: not on its
 * position, the length, the alignment or the make of the processor, since no approximate
 * instructions are used.
 *
 * **Shapes.** Vectors have @p len elements and any alignment. @p dst may equal @p src where both
 * have the same type; otherwise vectors must not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer, #vlqStsBadSize for @p len
 * below 1. Warnings come with complete results.
 *
 * **Memory.** Allocates nothing.
 *
 * **Sources.** W. J. Cody and W. Waite, Software Manual for the Elementary Functions, 1980.
 */

/**
 * @defgroup vlqs_sqr Squares
 * @ingroup vlqs_maths
 *
 * `dst = src * src`, as vlqsMul of the vector with itself. The square of a complex element a + bi
 * is `(a*a - b*b) + (a*b + b*a)i`; of floats, every product and sum is rounded by itself.
 *
 * @{
 */

/** dst = sat(round(src * src * 2^-scaleFactor)). */
VlqStatus vlqsSqr_8u_Sfs(const Vlq8u* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * srcDst * 2^-scaleFactor)). */
VlqStatus vlqsSqr_8u_ISfs(Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * src * 2^-scaleFactor)). */
VlqStatus vlqsSqr_16u_Sfs(const Vlq16u* src, Vlq16u* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * srcDst * 2^-scaleFactor)). */
VlqStatus vlqsSqr_16u_ISfs(Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * src * 2^-scaleFactor)). */
VlqStatus vlqsSqr_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * srcDst * 2^-scaleFactor)). */
VlqStatus vlqsSqr_16s_ISfs(Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * src * 2^-scaleFactor)), complex. */
VlqStatus vlqsSqr_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(srcDst * srcDst * 2^-scaleFactor)), complex. */
VlqStatus vlqsSqr_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src * src. */
VlqStatus vlqsSqr_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** srcDst = srcDst * srcDst. */
VlqStatus vlqsSqr_32f_I(Vlq32f* srcDst, Vlq32s len);
/** dst = src * src. */
VlqStatus vlqsSqr_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** srcDst = srcDst * srcDst. */
VlqStatus vlqsSqr_64f_I(Vlq64f* srcDst, Vlq32s len);
/** dst = src * src, complex. */
VlqStatus vlqsSqr_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
/** srcDst = srcDst * srcDst, complex. */
VlqStatus vlqsSqr_32fc_I(Vlq32fc* srcDst, Vlq32s len);
/** dst = src * src, complex. */
VlqStatus vlqsSqr_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** srcDst = srcDst * srcDst, complex. */
VlqStatus vlqsSqr_64fc_I(Vlq64fc* srcDst, Vlq32s len);

/** @} */

/**
 * @defgroup vlqs_sqrt Square roots
 * @ingroup vlqs_maths
 *
 * `dst = sqrt(src)`. A negative element gives 0 in the integer types, NaN in the real float types,
 * and the warning #vlqStsWarnSqrtNegArg; minus zero gives itself, without a warning.
 *
 * The root of a 16-bit integer is first rounded to single precision, then scaled and rounded: a
 * root within 2^-25 of the middle between two results counts as a tie. Of all other integers the
 * exact root is rounded.
 *
 * Real floats: the IEEE square root. Complex: the principal root, with a real part that is not
 * negative and an imaginary part of the sign of the element's; single precision within 1 ulp in
 * each part, double within 3. No intermediate result overflows or underflows.
 *
 * @{
 */

/** dst = sat(round(sqrt(src) * 2^-scaleFactor)). */
VlqStatus vlqsSqrt_8u_Sfs(const Vlq8u* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(sqrt(srcDst) * 2^-scaleFactor)). */
VlqStatus vlqsSqrt_8u_ISfs(Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(sqrt(src) * 2^-scaleFactor)), the root as a float. */
VlqStatus vlqsSqrt_16u_Sfs(const Vlq16u* src, Vlq16u* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(sqrt(srcDst) * 2^-scaleFactor)), the root as a float. */
VlqStatus vlqsSqrt_16u_ISfs(Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(sqrt(src) * 2^-scaleFactor)), the root as a float. */
VlqStatus vlqsSqrt_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(sqrt(srcDst) * 2^-scaleFactor)), the root as a float. */
VlqStatus vlqsSqrt_16s_ISfs(Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(sqrt(src) * 2^-scaleFactor)), complex. */
VlqStatus vlqsSqrt_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(sqrt(srcDst) * 2^-scaleFactor)), complex. */
VlqStatus vlqsSqrt_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(sqrt(src) * 2^-scaleFactor)). */
VlqStatus vlqsSqrt_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(sqrt(src) * 2^-scaleFactor)). */
VlqStatus vlqsSqrt_64s_Sfs(const Vlq64s* src, Vlq64s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(sqrt(srcDst) * 2^-scaleFactor)). */
VlqStatus vlqsSqrt_64s_ISfs(Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(sqrt(src) * 2^-scaleFactor)). */
VlqStatus vlqsSqrt_64s16s_Sfs(const Vlq64s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sqrt(src). */
VlqStatus vlqsSqrt_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** srcDst = sqrt(srcDst). */
VlqStatus vlqsSqrt_32f_I(Vlq32f* srcDst, Vlq32s len);
/** dst = sqrt(src). */
VlqStatus vlqsSqrt_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** srcDst = sqrt(srcDst). */
VlqStatus vlqsSqrt_64f_I(Vlq64f* srcDst, Vlq32s len);
/** dst = sqrt(src), complex. */
VlqStatus vlqsSqrt_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
/** srcDst = sqrt(srcDst), complex. */
VlqStatus vlqsSqrt_32fc_I(Vlq32fc* srcDst, Vlq32s len);
/** dst = sqrt(src), complex. */
VlqStatus vlqsSqrt_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** srcDst = sqrt(srcDst), complex. */
VlqStatus vlqsSqrt_64fc_I(Vlq64fc* srcDst, Vlq32s len);

/** @} */

/**
 * @defgroup vlqs_cubrt Cube roots
 * @ingroup vlqs_maths
 *
 * `dst = cbrt(src)`, of negative elements too. Single precision: within 1 ulp.
 *
 * In vlqsCubrt_32s16s_Sfs() only the lower seven bits of the scale factor's magnitude count: the
 * factor is 2^(-scaleFactor mod 128) for a negative scale factor, 2^-(scaleFactor mod 128)
 * otherwise, and 0 where that would be 2^-127.
 *
 * @{
 */

/** dst = cbrt(src). */
VlqStatus vlqsCubrt_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** dst = sat(round(cbrt(src) * 2^-scaleFactor)); the factor wraps as the group states. */
VlqStatus vlqsCubrt_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);

/** @} */

/**
 * @defgroup vlqs_exp Exponentials
 * @ingroup vlqs_maths
 *
 * `dst = e^src`. Integer results are never negative; the one tie there is, 1/2 for an element 0 at
 * scale factor 1, rounds up to 1 in 16 bits and to the even 0 in 32 and 64 bits.
 *
 * Floats: within 1 ulp. Overflow gives infinity, underflow a subnormal number or 0.
 *
 * @{
 */

/** dst = sat(floor(e^src * 2^-scaleFactor + 1/2)). */
VlqStatus vlqsExp_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(floor(e^srcDst * 2^-scaleFactor + 1/2)). */
VlqStatus vlqsExp_16s_ISfs(Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(e^src * 2^-scaleFactor)). */
VlqStatus vlqsExp_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(e^srcDst * 2^-scaleFactor)). */
VlqStatus vlqsExp_32s_ISfs(Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(e^src * 2^-scaleFactor)). */
VlqStatus vlqsExp_64s_Sfs(const Vlq64s* src, Vlq64s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(e^srcDst * 2^-scaleFactor)). */
VlqStatus vlqsExp_64s_ISfs(Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = e^src. */
VlqStatus vlqsExp_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** srcDst = e^srcDst. */
VlqStatus vlqsExp_32f_I(Vlq32f* srcDst, Vlq32s len);
/** dst = e^src, computed in double precision. */
VlqStatus vlqsExp_32f64f(const Vlq32f* src, Vlq64f* dst, Vlq32s len);
/** dst = e^src. */
VlqStatus vlqsExp_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** srcDst = e^srcDst. */
VlqStatus vlqsExp_64f_I(Vlq64f* srcDst, Vlq32s len);

/** @} */

/**
 * @defgroup vlqs_ln Logarithms
 * @ingroup vlqs_maths
 *
 * `dst = ln(src)`, and ten times the decimal logarithm. A zero element gives minus infinity, a
 * negative one NaN; in the integer types both give the smallest value of the result's type. The
 * first such element of the vector decides the warning: #vlqStsWarnLnZero or #vlqStsWarnLnNegative.
 * NaN gives NaN without a warning.
 *
 * At scale factors from 0 up the 32-bit variant, and up to 0 the 16-bit variant, rounds the
 * unscaled logarithm to an integer k; the former then shifts it right, so that it is rounded before
 * it is scaled, and the latter ignores the scale factor. The integers from which k rises are the
 * least above e^(k - 1/2), but for 5389698 and 39824784, which are one lower.
 *
 * Floats: within 1 ulp.
 *
 * @{
 */

/** dst = round(ln(src)), or for scaleFactor above 0 round(ln(src) * 2^-scaleFactor). */
VlqStatus vlqsLn_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = round(ln(srcDst)), or for scaleFactor above 0 round(ln(srcDst) * 2^-scaleFactor). */
VlqStatus vlqsLn_16s_ISfs(Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = round(ln(src)) >> scaleFactor, or below 0 sat(round(ln(src) * 2^-scaleFactor)). */
VlqStatus vlqsLn_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = round(ln(srcDst)) >> scaleFactor, or below 0 sat(... * 2^-scaleFactor). */
VlqStatus vlqsLn_32s_ISfs(Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(ln(src) * 2^-scaleFactor)). */
VlqStatus vlqsLn_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = ln(src). */
VlqStatus vlqsLn_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** srcDst = ln(srcDst). */
VlqStatus vlqsLn_32f_I(Vlq32f* srcDst, Vlq32s len);
/** dst = ln(src). */
VlqStatus vlqsLn_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** srcDst = ln(srcDst). */
VlqStatus vlqsLn_64f_I(Vlq64f* srcDst, Vlq32s len);
/** dst = ln(src), computed in double precision and rounded to single. */
VlqStatus vlqsLn_64f32f(const Vlq64f* src, Vlq32f* dst, Vlq32s len);
/** dst = sat(round(10 log10(src) * 2^-scaleFactor)). */
VlqStatus vlqs10Log10_32s_Sfs(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor);
/** srcDst = sat(round(10 log10(srcDst) * 2^-scaleFactor)). */
VlqStatus vlqs10Log10_32s_ISfs(Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor);

/** @} */

/**
 * @defgroup vlqs_sumln Sums of logarithms
 * @ingroup vlqs_maths
 *
 * `*pSum = ln(src[0]) + ... + ln(src[len - 1])`, the logarithm of the product of all elements,
 * which neither overflows nor underflows. Computed in double precision in blocks of 512 elements.
 *
 * The first element that is zero, negative or NaN ends the sum. Zero gives plus infinity and
 * #vlqStsWarnLnZero; a negative element NaN (with the sign bit set) and #vlqStsWarnLnNegative; NaN
 * the same NaN and #vlqStsOk.
 *
 * @{
 */

/** *pSum = sum of ln(src[i]). */
VlqStatus vlqsSumLn_16s32f(const Vlq16s* src, Vlq32s len, Vlq32f* pSum);
/** *pSum = sum of ln(src[i]). */
VlqStatus vlqsSumLn_32f(const Vlq32f* src, Vlq32s len, Vlq32f* pSum);
/** *pSum = sum of ln(src[i]). */
VlqStatus vlqsSumLn_32f64f(const Vlq32f* src, Vlq32s len, Vlq64f* pSum);
/** *pSum = sum of ln(src[i]). */
VlqStatus vlqsSumLn_64f(const Vlq64f* src, Vlq32s len, Vlq64f* pSum);

/** @} */

/**
 * @defgroup vlqs_arctan Arctangent
 * @ingroup vlqs_maths
 *
 * `dst = atan(src)` in radians, from -pi/2 to pi/2, within 1 ulp.
 *
 * @{
 */

/** dst = atan(src). */
VlqStatus vlqsArctan_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** srcDst = atan(srcDst). */
VlqStatus vlqsArctan_32f_I(Vlq32f* srcDst, Vlq32s len);
/** dst = atan(src). */
VlqStatus vlqsArctan_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** srcDst = atan(srcDst). */
VlqStatus vlqsArctan_64f_I(Vlq64f* srcDst, Vlq32s len);

/** @} */

VLQS_END_DECLS

#endif
