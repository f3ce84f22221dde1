/**
 * @file complex.h
 * @brief Real, complex and polar views of a signal.
 */
#ifndef VLQS_COMPLEX_H
#define VLQS_COMPLEX_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/**
 * @defgroup vlqs_complex Complex and polar views
 *
 * All of these work element by element: `dst = re^2 + im^2` in the line of a function stands for
 * that of every i from 0 to @p len - 1. `sat` clamps to the range of the destination's type and
 * `round` rounds to an integer. Complex samples come interleaved in one vector or, for the variants
 * with @p srcRe and @p srcIm, as two vectors of parts.
 */

/**
 * @defgroup vlqs_cartesian Conjugates, parts, absolute values
 * @ingroup vlqs_complex
 *
 * Exact in every type. Where the most negative integer would change its sign, the result is the
 * largest one. Floats change their sign bit alone, that of a NaN too.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source of the
 * same type, except for vlqsConjFlip; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1. vlqsRealToCplx takes a null @p srcRe or @p srcIm for a vector of zeros, but not both.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    complex or real samples
 * @arg @c srcRe  real parts
 * @arg @c srcIm  imaginary parts
 * @arg @c dst    result
 * @arg @c dstRe  real parts of the result
 * @arg @c dstIm  imaginary parts of the result
 * @arg @c srcDst in place: operand and result
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = conj(src), the imaginary part saturated. */
VlqStatus vlqsConj_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len);
/** srcDst = conj(srcDst), the imaginary part saturated. */
VlqStatus vlqsConj_16sc_I(Vlq16sc* srcDst, Vlq32s len);
/** dst = conj(src). */
VlqStatus vlqsConj_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
/** srcDst = conj(srcDst). */
VlqStatus vlqsConj_32fc_I(Vlq32fc* srcDst, Vlq32s len);
/** dst = conj(src). */
VlqStatus vlqsConj_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** srcDst = conj(srcDst). */
VlqStatus vlqsConj_64fc_I(Vlq64fc* srcDst, Vlq32s len);
/** dst[i] = conj(src[len - 1 - i]), the imaginary part saturated. */
VlqStatus vlqsConjFlip_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len);
/** dst[i] = conj(src[len - 1 - i]). */
VlqStatus vlqsConjFlip_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
/** dst[i] = conj(src[len - 1 - i]). */
VlqStatus vlqsConjFlip_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** dst = src.re. */
VlqStatus vlqsReal_16sc(const Vlq16sc* src, Vlq16s* dst, Vlq32s len);
/** dst = src.re. */
VlqStatus vlqsReal_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len);
/** dst = src.re. */
VlqStatus vlqsReal_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len);
/** dst = src.im. */
VlqStatus vlqsImag_16sc(const Vlq16sc* src, Vlq16s* dst, Vlq32s len);
/** dst = src.im. */
VlqStatus vlqsImag_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len);
/** dst = src.im. */
VlqStatus vlqsImag_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len);
/** dst.re = srcRe, dst.im = srcIm. */
VlqStatus vlqsRealToCplx_16s(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16sc* dst, Vlq32s len);
/** dst.re = srcRe, dst.im = srcIm. */
VlqStatus vlqsRealToCplx_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32fc* dst, Vlq32s len);
/** dst.re = srcRe, dst.im = srcIm. */
VlqStatus vlqsRealToCplx_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64fc* dst, Vlq32s len);
/** dstRe = src.re, dstIm = src.im. */
VlqStatus vlqsCplxToReal_16sc(const Vlq16sc* src, Vlq16s* dstRe, Vlq16s* dstIm, Vlq32s len);
/** dstRe = src.re, dstIm = src.im. */
VlqStatus vlqsCplxToReal_32fc(const Vlq32fc* src, Vlq32f* dstRe, Vlq32f* dstIm, Vlq32s len);
/** dstRe = src.re, dstIm = src.im. */
VlqStatus vlqsCplxToReal_64fc(const Vlq64fc* src, Vlq64f* dstRe, Vlq64f* dstIm, Vlq32s len);
/** dst = sat(|src|). */
VlqStatus vlqsAbs_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len);
/** srcDst = sat(|srcDst|). */
VlqStatus vlqsAbs_16s_I(Vlq16s* srcDst, Vlq32s len);
/** dst = sat(|src|). */
VlqStatus vlqsAbs_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len);
/** srcDst = sat(|srcDst|). */
VlqStatus vlqsAbs_32s_I(Vlq32s* srcDst, Vlq32s len);
/** dst = |src|. */
VlqStatus vlqsAbs_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** srcDst = |srcDst|. */
VlqStatus vlqsAbs_32f_I(Vlq32f* srcDst, Vlq32s len);
/** dst = |src|. */
VlqStatus vlqsAbs_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** srcDst = |srcDst|. */
VlqStatus vlqsAbs_64f_I(Vlq64f* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_power_spectrum Squared magnitudes
 * @ingroup vlqs_complex
 *
 * `re^2 + im^2`. vlqsPowerSpectr computes floats in their own precision, with one rounding an
 * operation, so squares may overflow or vanish; 16-bit samples to floats are rounded once, and so
 * are the results of vlqsMagSquared_32fc64f().
 *
 * `_Sfs` multiplies by 2^-scaleFactor, rounds to the nearest integer with ties to even, and
 * saturates; every scale factor is legal. vlqsMagSquared_32sc32s_Sfs() computes in doubles for
 * scale factors from -30 to 63; below, everything but 0 saturates, above, everything is 0.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal a source of the
 * same type; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         complex samples
 * @arg @c srcRe       real parts
 * @arg @c srcIm       imaginary parts
 * @arg @c dst         result
 * @arg @c len         number of elements
 * @arg @c scaleFactor the result is multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = re^2 + im^2, rounded once. */
VlqStatus vlqsMagSquared_32fc64f(const Vlq32fc* src, Vlq64f* dst, Vlq32s len);
/** dst = sat(round((re^2 + im^2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMagSquared_32sc32s_Sfs(const Vlq32sc* src, Vlq32s* dst, Vlq32s len,
                                     Vlq32s scaleFactor);
/** dst = re^2 + im^2. */
VlqStatus vlqsPowerSpectr_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dst, Vlq32s len);
/** dst = re^2 + im^2. */
VlqStatus vlqsPowerSpectr_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dst, Vlq32s len);
/** dst = re^2 + im^2. */
VlqStatus vlqsPowerSpectr_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len);
/** dst = re^2 + im^2. */
VlqStatus vlqsPowerSpectr_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len);
/** dst = re^2 + im^2. */
VlqStatus vlqsPowerSpectr_16s32f(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq32f* dst, Vlq32s len);
/** dst = re^2 + im^2. */
VlqStatus vlqsPowerSpectr_16sc32f(const Vlq16sc* src, Vlq32f* dst, Vlq32s len);
/** dst = sat(round((re^2 + im^2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsPowerSpectr_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dst, Vlq32s len,
                                  Vlq32s scaleFactor);
/** dst = sat(round((re^2 + im^2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsPowerSpectr_16sc_Sfs(const Vlq16sc* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_polar Magnitude and phase
 * @ingroup vlqs_complex
 *
 * The magnitude is `sqrt(re^2 + im^2)`, the phase `atan2(im, re)` in radians from -pi to pi, 0 at
 * the origin; and back, `re = magn cos(phase)` and `im = magn sin(phase)`.
 *
 * Float magnitudes are within 1 ulp, phases within 2 ulp, and the sines and cosines of phases of
 * any size within 2 ulp before they are multiplied. No finite sample overflows on the way to a
 * magnitude that has a representation. Infinities, NaN and signed zeros are treated as by the C
 * functions hypot, atan2, sin and cos: the magnitude of an infinite part is infinite even beside
 * NaN, and the phase of (-0, 0) is pi.
 *
 * `_Sfs` multiplies by 2^-scaleFactor, rounds to the nearest integer with ties to even, and
 * saturates; every scale factor is legal. Magnitudes are rounded exactly; phases, sines and cosines
 * are computed in doubles before. All builds give the same integers. vlqsPhase_16s_Sfs() is a
 * variant of its own:
 * - scale factors of 2 and more give 0, even for phases near pi;
 * - from -28 to 1 but for 0, the phase is rounded to a float before it is scaled and rounded;
 * - below -28, the scaled phase is a float and ties are rounded away from zero.
 *
 * vlqsCartToPolar_16sc_Sfs() is vlqsMagnitude_16sc_Sfs() followed by vlqsPhase_16sc_Sfs(): it tests
 * @p dstPhase last, when the magnitudes have been written.
 *
 * The phases of vlqsPolarToCart_16sc() and vlqsPolarToCart_32sc() are integers in units of
 * 2^-phaseFixedPoint radians, where 2^-phaseFixedPoint is a float: a count below -127 makes it
 * infinite, and phases other than 0 then give 0. vlqsPolarToCart_16sc_Sfs() undoes
 * vlqsCartToPolar_16sc_Sfs() with the same two scale factors. Results are rounded to the nearest
 * integer and saturated.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. A destination may equal a source
 * of the same type, and with two of them each may equal either; the vectors must not overlap in any
 * other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsBadSize for @p phaseFixedPoint of 16 or more (`_16sc`), 32 or more (`_32sc`).
 *
 * **Memory.** Allocates nothing.
 *
 * **Source.** The phase by a minimax polynomial on [0, 1]; sines and cosines by reduction with pi/2
 * in parts (Cody and Waite), of large phases with a long 2/pi (Payne and Hanek).
 *
 * @arg @c src             complex samples
 * @arg @c srcRe           real parts
 * @arg @c srcIm           imaginary parts
 * @arg @c srcMagn         magnitudes
 * @arg @c srcPhase        phases
 * @arg @c phaseFixedPoint fractional bits of integer phases
 * @arg @c dst             result
 * @arg @c dstMagn         magnitudes
 * @arg @c dstPhase        phases
 * @arg @c dstRe           real parts of the result
 * @arg @c dstIm           imaginary parts of the result
 * @arg @c len             number of elements
 * @arg @c scaleFactor     the result is multiplied by 2^-scaleFactor
 * @arg @c magnScale       a stored magnitude m stands for m * 2^magnScale
 * @arg @c phaseScale      a stored phase p stands for p * 2^phaseScale radians
 *
 * @{
 */

/** dst = sqrt(re^2 + im^2). */
VlqStatus vlqsMagnitude_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dst, Vlq32s len);
/** dst = sqrt(re^2 + im^2). */
VlqStatus vlqsMagnitude_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dst, Vlq32s len);
/** dst = sqrt(re^2 + im^2). */
VlqStatus vlqsMagnitude_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len);
/** dst = sqrt(re^2 + im^2). */
VlqStatus vlqsMagnitude_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len);
/** dst = sqrt(re^2 + im^2). */
VlqStatus vlqsMagnitude_16s32f(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq32f* dst, Vlq32s len);
/** dst = sqrt(re^2 + im^2). */
VlqStatus vlqsMagnitude_16sc32f(const Vlq16sc* src, Vlq32f* dst, Vlq32s len);
/** dst = sat(round(sqrt(re^2 + im^2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMagnitude_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dst, Vlq32s len,
                                Vlq32s scaleFactor);
/** dst = sat(round(sqrt(re^2 + im^2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMagnitude_16sc_Sfs(const Vlq16sc* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(sqrt(re^2 + im^2) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsMagnitude_32sc_Sfs(const Vlq32sc* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = atan2(im, re). */
VlqStatus vlqsPhase_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dst, Vlq32s len);
/** dst = atan2(im, re). */
VlqStatus vlqsPhase_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dst, Vlq32s len);
/** dst = atan2(im, re). */
VlqStatus vlqsPhase_32fc(const Vlq32fc* src, Vlq32f* dst, Vlq32s len);
/** dst = atan2(im, re). */
VlqStatus vlqsPhase_64fc(const Vlq64fc* src, Vlq64f* dst, Vlq32s len);
/** dst = atan2(im, re). */
VlqStatus vlqsPhase_16s32f(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq32f* dst, Vlq32s len);
/** dst = atan2(im, re). */
VlqStatus vlqsPhase_16sc32f(const Vlq16sc* src, Vlq32f* dst, Vlq32s len);
/** dst = sat(round(atan2(im, re) * 2^-scaleFactor)), 0 for scaleFactor >= 2. */
VlqStatus vlqsPhase_16s_Sfs(const Vlq16s* srcRe, const Vlq16s* srcIm, Vlq16s* dst, Vlq32s len,
                            Vlq32s scaleFactor);
/** dst = sat(round(atan2(im, re) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsPhase_16sc_Sfs(const Vlq16sc* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(atan2(im, re) * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsPhase_32sc_Sfs(const Vlq32sc* src, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor);
/** dstMagn = sqrt(re^2 + im^2), dstPhase = atan2(im, re). */
VlqStatus vlqsCartToPolar_32f(const Vlq32f* srcRe, const Vlq32f* srcIm, Vlq32f* dstMagn,
                              Vlq32f* dstPhase, Vlq32s len);
/** dstMagn = sqrt(re^2 + im^2), dstPhase = atan2(im, re). */
VlqStatus vlqsCartToPolar_64f(const Vlq64f* srcRe, const Vlq64f* srcIm, Vlq64f* dstMagn,
                              Vlq64f* dstPhase, Vlq32s len);
/** dstMagn = sqrt(re^2 + im^2), dstPhase = atan2(im, re). */
VlqStatus vlqsCartToPolar_32fc(const Vlq32fc* src, Vlq32f* dstMagn, Vlq32f* dstPhase, Vlq32s len);
/** dstMagn = sqrt(re^2 + im^2), dstPhase = atan2(im, re). */
VlqStatus vlqsCartToPolar_64fc(const Vlq64fc* src, Vlq64f* dstMagn, Vlq64f* dstPhase, Vlq32s len);
/** As vlqsMagnitude_16sc_Sfs() with magnScale, then vlqsPhase_16sc_Sfs() with phaseScale. */
VlqStatus vlqsCartToPolar_16sc_Sfs(const Vlq16sc* src, Vlq16s* dstMagn, Vlq16s* dstPhase,
                                   Vlq32s len, Vlq32s magnScale, Vlq32s phaseScale);
/** dstRe = srcMagn cos(srcPhase), dstIm = srcMagn sin(srcPhase). */
VlqStatus vlqsPolarToCart_32f(const Vlq32f* srcMagn, const Vlq32f* srcPhase, Vlq32f* dstRe,
                              Vlq32f* dstIm, Vlq32s len);
/** dstRe = srcMagn cos(srcPhase), dstIm = srcMagn sin(srcPhase). */
VlqStatus vlqsPolarToCart_64f(const Vlq64f* srcMagn, const Vlq64f* srcPhase, Vlq64f* dstRe,
                              Vlq64f* dstIm, Vlq32s len);
/** dst.re = srcMagn cos(srcPhase), dst.im = srcMagn sin(srcPhase). */
VlqStatus vlqsPolarToCart_32fc(const Vlq32f* srcMagn, const Vlq32f* srcPhase, Vlq32fc* dst,
                               Vlq32s len);
/** dst.re = srcMagn cos(srcPhase), dst.im = srcMagn sin(srcPhase). */
VlqStatus vlqsPolarToCart_64fc(const Vlq64f* srcMagn, const Vlq64f* srcPhase, Vlq64fc* dst,
                               Vlq32s len);
/** dst = sat(round(srcMagn exp(i srcPhase 2^-phaseFixedPoint))). */
VlqStatus vlqsPolarToCart_16sc(const Vlq16s* srcMagn, const Vlq16s* srcPhase,
                               Vlq32s phaseFixedPoint, Vlq16sc* dst, Vlq32s len);
/** dst = sat(round(srcMagn exp(i srcPhase 2^-phaseFixedPoint))). */
VlqStatus vlqsPolarToCart_32sc(const Vlq32s* srcMagn, const Vlq32s* srcPhase,
                               Vlq32s phaseFixedPoint, Vlq32sc* dst, Vlq32s len);
/** dst = sat(round(srcMagn 2^magnScale exp(i srcPhase 2^phaseScale))). */
VlqStatus vlqsPolarToCart_16sc_Sfs(const Vlq16s* srcMagn, const Vlq16s* srcPhase, Vlq16sc* dst,
                                   Vlq32s len, Vlq32s magnScale, Vlq32s phaseScale);
/** @} */

VLQS_END_DECLS

#endif
