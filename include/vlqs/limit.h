/**
 * @file limit.h
 * @brief Thresholds, normalization and G.711 companding.
 */
#ifndef VLQS_LIMIT_H
#define VLQS_LIMIT_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/**
 * @defgroup vlqs_limit Thresholds, normalization, companding
 *
 * All of these work element by element. In place, `srcDst` is both vectors.
 */

/**
 * @defgroup vlqs_threshold Limits
 * @ingroup vlqs_limit
 *
 * An element beyond a level becomes the level. Real elements are compared by value, complex ones by
 * magnitude: a complex element that is beyond the level keeps its direction and gets the magnitude
 * @p level; zero below a positive level becomes (level, 0).
 *
 * Real NaN stays as it is, and so do zeros of either sign at a level of 0. A finite complex element
 * gives a finite result, however large or small its squared magnitude is. Complex floats are within
 * 2 ulp; 16-bit parts are rounded to the nearest integer.
 *
 * **Shapes.** All vectors have @p len elements and any alignment; @p dst may be @p src.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsBadArg for a @p relOp other than #vlqCmpLess and #vlqCmpGreater,
 * #vlqStsThresholdNegative for a negative @p level of a complex vector.
 *
 * **Memory.** Allocates nothing.
 *
 * @{
 */

/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level,
                            VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level, VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level,
                            VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level, VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level,
                            VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level, VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level,
                             VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level, VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level,
                             VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level, VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level,
                             VlqCmpOp relOp);
/** As _LT for relOp 0 (less), as _GT for relOp 4 (greater). */
VlqStatus vlqsThreshold_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level, VlqCmpOp relOp);
/** dst = src < level ? level : src. */
VlqStatus vlqsThreshold_LT_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level);
/** srcDst = srcDst < level ? level : srcDst. */
VlqStatus vlqsThreshold_LT_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level);
/** dst = src < level ? level : src. */
VlqStatus vlqsThreshold_LT_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s level);
/** srcDst = srcDst < level ? level : srcDst. */
VlqStatus vlqsThreshold_LT_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s level);
/** dst = src < level ? level : src. */
VlqStatus vlqsThreshold_LT_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level);
/** srcDst = srcDst < level ? level : srcDst. */
VlqStatus vlqsThreshold_LT_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level);
/** dst = src < level ? level : src. */
VlqStatus vlqsThreshold_LT_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level);
/** srcDst = srcDst < level ? level : srcDst. */
VlqStatus vlqsThreshold_LT_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level);
/** dst = |src| < level ? src * (level / |src|) : src. */
VlqStatus vlqsThreshold_LT_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level);
/** srcDst = |srcDst| < level ? srcDst * (level / |srcDst|) : srcDst. */
VlqStatus vlqsThreshold_LT_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level);
/** dst = |src| < level ? src * (level / |src|) : src. */
VlqStatus vlqsThreshold_LT_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level);
/** srcDst = |srcDst| < level ? srcDst * (level / |srcDst|) : srcDst. */
VlqStatus vlqsThreshold_LT_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level);
/** dst = |src| < level ? src * (level / |src|) : src. */
VlqStatus vlqsThreshold_LT_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level);
/** srcDst = |srcDst| < level ? srcDst * (level / |srcDst|) : srcDst. */
VlqStatus vlqsThreshold_LT_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level);
/** dst = src > level ? level : src. */
VlqStatus vlqsThreshold_GT_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level);
/** srcDst = srcDst > level ? level : srcDst. */
VlqStatus vlqsThreshold_GT_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level);
/** dst = src > level ? level : src. */
VlqStatus vlqsThreshold_GT_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s level);
/** srcDst = srcDst > level ? level : srcDst. */
VlqStatus vlqsThreshold_GT_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s level);
/** dst = src > level ? level : src. */
VlqStatus vlqsThreshold_GT_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level);
/** srcDst = srcDst > level ? level : srcDst. */
VlqStatus vlqsThreshold_GT_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level);
/** dst = src > level ? level : src. */
VlqStatus vlqsThreshold_GT_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level);
/** srcDst = srcDst > level ? level : srcDst. */
VlqStatus vlqsThreshold_GT_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level);
/** dst = |src| > level ? src * (level / |src|) : src. */
VlqStatus vlqsThreshold_GT_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level);
/** srcDst = |srcDst| > level ? srcDst * (level / |srcDst|) : srcDst. */
VlqStatus vlqsThreshold_GT_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level);
/** dst = |src| > level ? src * (level / |src|) : src. */
VlqStatus vlqsThreshold_GT_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level);
/** srcDst = |srcDst| > level ? srcDst * (level / |srcDst|) : srcDst. */
VlqStatus vlqsThreshold_GT_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level);
/** dst = |src| > level ? src * (level / |src|) : src. */
VlqStatus vlqsThreshold_GT_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level);
/** srcDst = |srcDst| > level ? srcDst * (level / |srcDst|) : srcDst. */
VlqStatus vlqsThreshold_GT_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level);
/** @} */

/**
 * @defgroup vlqs_threshold_abs Limits of magnitudes
 * @ingroup vlqs_limit
 *
 * The magnitude of an element is limited, its sign stays; zero counts as positive in integers. The
 * least integer is replaced only by `_GTAbs`, whose results are never beyond @p level in magnitude.
 * NaN stays as it is.
 *
 * **Shapes.** All vectors have @p len elements and any alignment; @p dst may be @p src.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsThresholdNegative for a negative @p level.
 *
 * **Memory.** Allocates nothing.
 *
 * @{
 */

/** dst = |src| < level ? sign(src) * level : src. */
VlqStatus vlqsThreshold_LTAbs_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level);
/** srcDst = |srcDst| < level ? sign(srcDst) * level : srcDst. */
VlqStatus vlqsThreshold_LTAbs_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level);
/** dst = |src| < level ? sign(src) * level : src. */
VlqStatus vlqsThreshold_LTAbs_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s level);
/** srcDst = |srcDst| < level ? sign(srcDst) * level : srcDst. */
VlqStatus vlqsThreshold_LTAbs_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s level);
/** dst = |src| < level ? sign(src) * level : src. */
VlqStatus vlqsThreshold_LTAbs_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level);
/** srcDst = |srcDst| < level ? sign(srcDst) * level : srcDst. */
VlqStatus vlqsThreshold_LTAbs_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level);
/** dst = |src| < level ? sign(src) * level : src. */
VlqStatus vlqsThreshold_LTAbs_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level);
/** srcDst = |srcDst| < level ? sign(srcDst) * level : srcDst. */
VlqStatus vlqsThreshold_LTAbs_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level);
/** dst = |src| > level ? sign(src) * level : src. */
VlqStatus vlqsThreshold_GTAbs_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level);
/** srcDst = |srcDst| > level ? sign(srcDst) * level : srcDst. */
VlqStatus vlqsThreshold_GTAbs_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level);
/** dst = |src| > level ? sign(src) * level : src. */
VlqStatus vlqsThreshold_GTAbs_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s level);
/** srcDst = |srcDst| > level ? sign(srcDst) * level : srcDst. */
VlqStatus vlqsThreshold_GTAbs_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s level);
/** dst = |src| > level ? sign(src) * level : src. */
VlqStatus vlqsThreshold_GTAbs_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level);
/** srcDst = |srcDst| > level ? sign(srcDst) * level : srcDst. */
VlqStatus vlqsThreshold_GTAbs_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level);
/** dst = |src| > level ? sign(src) * level : src. */
VlqStatus vlqsThreshold_GTAbs_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level);
/** srcDst = |srcDst| > level ? sign(srcDst) * level : srcDst. */
VlqStatus vlqsThreshold_GTAbs_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level);
/** @} */

/**
 * @defgroup vlqs_threshold_val Replacement beyond a level
 * @ingroup vlqs_limit
 *
 * An element beyond a level becomes @p value. Complex elements are compared by magnitude. NaN is
 * never beyond a level.
 *
 * **Shapes.** All vectors have @p len elements and any alignment; @p dst may be @p src.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsThresholdNegative for a negative @p level of a complex vector,
 * #vlqStsThresholdRange for @p levelLT above @p levelGT.
 *
 * **Memory.** Allocates nothing.
 *
 * @{
 */

/** dst = src < level ? value : src. */
VlqStatus vlqsThreshold_LTVal_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level,
                                  Vlq16s value);
/** srcDst = srcDst < level ? value : srcDst. */
VlqStatus vlqsThreshold_LTVal_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level, Vlq16s value);
/** dst = src < level ? value : src. */
VlqStatus vlqsThreshold_LTVal_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level,
                                  Vlq32f value);
/** srcDst = srcDst < level ? value : srcDst. */
VlqStatus vlqsThreshold_LTVal_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level, Vlq32f value);
/** dst = src < level ? value : src. */
VlqStatus vlqsThreshold_LTVal_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level,
                                  Vlq64f value);
/** srcDst = srcDst < level ? value : srcDst. */
VlqStatus vlqsThreshold_LTVal_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level, Vlq64f value);
/** dst = |src| < level ? value : src. */
VlqStatus vlqsThreshold_LTVal_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level,
                                   Vlq16sc value);
/** srcDst = |srcDst| < level ? value : srcDst. */
VlqStatus vlqsThreshold_LTVal_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level, Vlq16sc value);
/** dst = |src| < level ? value : src. */
VlqStatus vlqsThreshold_LTVal_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level,
                                   Vlq32fc value);
/** srcDst = |srcDst| < level ? value : srcDst. */
VlqStatus vlqsThreshold_LTVal_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level, Vlq32fc value);
/** dst = |src| < level ? value : src. */
VlqStatus vlqsThreshold_LTVal_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level,
                                   Vlq64fc value);
/** srcDst = |srcDst| < level ? value : srcDst. */
VlqStatus vlqsThreshold_LTVal_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level, Vlq64fc value);
/** dst = src > level ? value : src. */
VlqStatus vlqsThreshold_GTVal_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s level,
                                  Vlq16s value);
/** srcDst = srcDst > level ? value : srcDst. */
VlqStatus vlqsThreshold_GTVal_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s level, Vlq16s value);
/** dst = src > level ? value : src. */
VlqStatus vlqsThreshold_GTVal_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level,
                                  Vlq32f value);
/** srcDst = srcDst > level ? value : srcDst. */
VlqStatus vlqsThreshold_GTVal_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level, Vlq32f value);
/** dst = src > level ? value : src. */
VlqStatus vlqsThreshold_GTVal_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level,
                                  Vlq64f value);
/** srcDst = srcDst > level ? value : srcDst. */
VlqStatus vlqsThreshold_GTVal_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level, Vlq64f value);
/** dst = |src| > level ? value : src. */
VlqStatus vlqsThreshold_GTVal_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16s level,
                                   Vlq16sc value);
/** srcDst = |srcDst| > level ? value : srcDst. */
VlqStatus vlqsThreshold_GTVal_16sc_I(Vlq16sc* srcDst, Vlq32s len, Vlq16s level, Vlq16sc value);
/** dst = |src| > level ? value : src. */
VlqStatus vlqsThreshold_GTVal_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level,
                                   Vlq32fc value);
/** srcDst = |srcDst| > level ? value : srcDst. */
VlqStatus vlqsThreshold_GTVal_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level, Vlq32fc value);
/** dst = |src| > level ? value : src. */
VlqStatus vlqsThreshold_GTVal_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level,
                                   Vlq64fc value);
/** srcDst = |srcDst| > level ? value : srcDst. */
VlqStatus vlqsThreshold_GTVal_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level, Vlq64fc value);
/** dst = src < levelLT ? valueLT : src > levelGT ? valueGT : src. */
VlqStatus vlqsThreshold_LTValGTVal_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s levelLT,
                                       Vlq16s valueLT, Vlq16s levelGT, Vlq16s valueGT);
/** srcDst = srcDst < levelLT ? valueLT : srcDst > levelGT ? valueGT : srcDst. */
VlqStatus vlqsThreshold_LTValGTVal_16s_I(Vlq16s* srcDst, Vlq32s len, Vlq16s levelLT, Vlq16s valueLT,
                                         Vlq16s levelGT, Vlq16s valueGT);
/** dst = src < levelLT ? valueLT : src > levelGT ? valueGT : src. */
VlqStatus vlqsThreshold_LTValGTVal_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len, Vlq32s levelLT,
                                       Vlq32s valueLT, Vlq32s levelGT, Vlq32s valueGT);
/** srcDst = srcDst < levelLT ? valueLT : srcDst > levelGT ? valueGT : srcDst. */
VlqStatus vlqsThreshold_LTValGTVal_32s_I(Vlq32s* srcDst, Vlq32s len, Vlq32s levelLT, Vlq32s valueLT,
                                         Vlq32s levelGT, Vlq32s valueGT);
/** dst = src < levelLT ? valueLT : src > levelGT ? valueGT : src. */
VlqStatus vlqsThreshold_LTValGTVal_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f levelLT,
                                       Vlq32f valueLT, Vlq32f levelGT, Vlq32f valueGT);
/** srcDst = srcDst < levelLT ? valueLT : srcDst > levelGT ? valueGT : srcDst. */
VlqStatus vlqsThreshold_LTValGTVal_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f levelLT, Vlq32f valueLT,
                                         Vlq32f levelGT, Vlq32f valueGT);
/** dst = src < levelLT ? valueLT : src > levelGT ? valueGT : src. */
VlqStatus vlqsThreshold_LTValGTVal_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f levelLT,
                                       Vlq64f valueLT, Vlq64f levelGT, Vlq64f valueGT);
/** srcDst = srcDst < levelLT ? valueLT : srcDst > levelGT ? valueGT : srcDst. */
VlqStatus vlqsThreshold_LTValGTVal_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f levelLT, Vlq64f valueLT,
                                         Vlq64f levelGT, Vlq64f valueGT);
/** @} */

/**
 * @defgroup vlqs_threshold_inv Inverses with a least magnitude
 * @ingroup vlqs_limit
 *
 * The inverse of an element whose magnitude is raised to @p level first; zero counts as (level, 0),
 * or as level with the sign of the zero where it is real. Quotients are true divisions, the same on
 * every processor; complex inverses are within 3 ulp of the larger part.
 *
 * At a level of 0 nothing is raised. A zero element then gives infinity with the sign of its (real)
 * part, and the call returns a warning after all elements are written.
 *
 * **Shapes.** All vectors have @p len elements and any alignment; @p dst may be @p src.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsThresholdNegative for a negative @p level. **Warning:** #vlqStsWarnInvZero.
 *
 * **Memory.** Allocates nothing.
 *
 * @{
 */

/** dst = 1 / src, with |src| raised to level first. */
VlqStatus vlqsThreshold_LTInv_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f level);
/** srcDst = 1 / srcDst, with |srcDst| raised to level first. */
VlqStatus vlqsThreshold_LTInv_32f_I(Vlq32f* srcDst, Vlq32s len, Vlq32f level);
/** dst = 1 / src, with |src| raised to level first. */
VlqStatus vlqsThreshold_LTInv_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f level);
/** srcDst = 1 / srcDst, with |srcDst| raised to level first. */
VlqStatus vlqsThreshold_LTInv_64f_I(Vlq64f* srcDst, Vlq32s len, Vlq64f level);
/** dst = 1 / src, with |src| raised to level first. */
VlqStatus vlqsThreshold_LTInv_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32f level);
/** srcDst = 1 / srcDst, with |srcDst| raised to level first. */
VlqStatus vlqsThreshold_LTInv_32fc_I(Vlq32fc* srcDst, Vlq32s len, Vlq32f level);
/** dst = 1 / src, with |src| raised to level first. */
VlqStatus vlqsThreshold_LTInv_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64f level);
/** srcDst = 1 / srcDst, with |srcDst| raised to level first. */
VlqStatus vlqsThreshold_LTInv_64fc_I(Vlq64fc* srcDst, Vlq32s len, Vlq64f level);
/** @} */

/**
 * @defgroup vlqs_normalize Normalization
 * @ingroup vlqs_limit
 *
 * A constant is subtracted and the difference divided by another: offset and scale of a signal. The
 * reciprocal of @p vDiv is formed once in the precision of the samples, and multiplies, so the last
 * bit may differ from that of a division. The divisor of complex vectors is real.
 *
 * Integer results come from a product in single precision, with the reciprocal of @p vDiv as a
 * float. The power 2^-scaleFactor takes |scaleFactor| modulo 128; a @p scaleFactor that is 127
 * modulo 128 gives 0.
 *
 * **Shapes.** All vectors have @p len elements and any alignment; @p dst may be @p src.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsZeroDivisor for a @p vDiv below 2^-126 in magnitude (floats, doubles too) or of 0
 * (integers).
 *
 * **Memory.** Allocates nothing.
 *
 * @{
 */

/** dst = (src - vSub) * (1 / vDiv). */
VlqStatus vlqsNormalize_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len, Vlq32f vSub, Vlq32f vDiv);
/** dst = (src - vSub) * (1 / vDiv). */
VlqStatus vlqsNormalize_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len, Vlq64f vSub, Vlq64f vDiv);
/** dst = (src - vSub) * (1 / vDiv). */
VlqStatus vlqsNormalize_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len, Vlq32fc vSub,
                             Vlq32f vDiv);
/** dst = (src - vSub) * (1 / vDiv). */
VlqStatus vlqsNormalize_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len, Vlq64fc vSub,
                             Vlq64f vDiv);
/** dst = sat(round((src - vSub) / vDiv * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsNormalize_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq16s vSub,
                                Vlq32s vDiv, Vlq32s scaleFactor);
/** dst = sat(round((src - vSub) / vDiv * 2^-scaleFactor)), ties to even. */
VlqStatus vlqsNormalize_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq16sc vSub,
                                 Vlq32s vDiv, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_compand G.711 companding
 * @ingroup vlqs_limit
 *
 * Linear samples and the two 8-bit logarithmic codes of telephony. A code holds a sign, a segment
 * and a mantissa; as transmitted, mu-law codes are inverted, A-law codes in every other bit.
 *
 * Decoded samples use the whole range of 16 bits: the 14-bit values of mu-law times 4, the 13-bit
 * values of A-law times 8. Coding drops the bits below; a negative sample is coded by its one's
 * complement, so -1 gives the negative code of magnitude 0. Float samples are full scale at 1; they
 * are rounded to the nearest 16-bit integer, half away from zero, and saturate. NaN counts as the
 * largest sample.
 *
 * Between the laws, codes are paired by the tables of the standard, which is not the same as
 * decoding and coding again.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. Only the forms between the two
 * laws may work in place.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * **Source.** ITU-T Recommendation G.711, Pulse code modulation (PCM) of voice frequencies.
 *
 * @{
 */

/** dst: the 16-bit sample of A-law code src. */
VlqStatus vlqsALawToLin_8u16s(const Vlq8u* src, Vlq16s* dst, Vlq32s len);
/** dst: the sample of A-law code src, divided by 32768. */
VlqStatus vlqsALawToLin_8u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len);
/** dst: the 16-bit sample of mu-law code src. */
VlqStatus vlqsMuLawToLin_8u16s(const Vlq8u* src, Vlq16s* dst, Vlq32s len);
/** dst: the sample of mu-law code src, divided by 32768. */
VlqStatus vlqsMuLawToLin_8u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len);
/** dst: the A-law code of 16-bit sample src. */
VlqStatus vlqsLinToALaw_16s8u(const Vlq16s* src, Vlq8u* dst, Vlq32s len);
/** dst: the A-law code of sat(round(32768 * src)). */
VlqStatus vlqsLinToALaw_32f8u(const Vlq32f* src, Vlq8u* dst, Vlq32s len);
/** dst: the mu-law code of 16-bit sample src. */
VlqStatus vlqsLinToMuLaw_16s8u(const Vlq16s* src, Vlq8u* dst, Vlq32s len);
/** dst: the mu-law code of sat(round(32768 * src)). */
VlqStatus vlqsLinToMuLaw_32f8u(const Vlq32f* src, Vlq8u* dst, Vlq32s len);
/** dst: the mu-law code paired with A-law code src. */
VlqStatus vlqsALawToMuLaw_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
/** dst: the A-law code paired with mu-law code src. */
VlqStatus vlqsMuLawToALaw_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
/** @} */

VLQS_END_DECLS

#endif
