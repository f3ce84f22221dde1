/**
 * @file convert.h
 * @brief Conversion between sample types.
 *
 * Integer results saturate silently. No conversion gives a warning.
 */
#ifndef VLQS_CONVERT_H
#define VLQS_CONVERT_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/** @name Integers to wider integers
 *  @{ */
/**
 * `dst[i] = src[i]`.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment, and do not overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @param src  samples
 * @param dst  result
 * @param len  number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_8s16s(const Vlq8s* src, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsConvert_16s32s(const Vlq16s* src, Vlq32s* dst, Vlq32s len);
/** @} */

/** @name 32-bit integers to 16-bit ones
 *  @{ */
/**
 * `dst[i] = saturate(round(src[i] * 2^-scaleFactor))`, to the nearest integer and the even one of
 * two equally near; vlqsConvert_32s16s is the case of a scale factor of 0. A scale factor above 31
 * counts as 31, one below -15 as -15.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin where @p src
 * does; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c len         number of elements
 * @arg @c scaleFactor negated exponent of the factor
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_32s16s(const Vlq32s* src, Vlq16s* dst, Vlq32s len);
VlqStatus vlqsConvert_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/** @name Integers to integers of half the width, rounded by mode
 *  @{ */
/**
 * `dst[i] = saturate(round(src[i] * 2^-scaleFactor))`. @p rndMode 0 drops the fraction, 1 takes the
 * nearest integer and the even one of two equally near, any other value the nearest and the one
 * farther from zero of two equally near. In vlqsConvert_64s32s_Sfs a scale factor above 63 counts
 * as 63.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin where @p src
 * does; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 * No rounding mode and no scale factor is refused.
 *
 * **Memory.** None.
 *
 * @param src         samples
 * @param dst         result
 * @param len         number of elements, unsigned in vlqsConvert_16s8s_Sfs
 * @param rndMode     rounding, see VlqRoundMode
 * @param scaleFactor negated exponent of the factor
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_16s8s_Sfs(const Vlq16s* src, Vlq8s* dst, Vlq32u len, VlqRoundMode rndMode,
                                Vlq32s scaleFactor);
VlqStatus vlqsConvert_64s32s_Sfs(const Vlq64s* src, Vlq32s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** @} */

/** @name Integers to floats
 *  @{ */
/**
 * `dst[i] = src[i]`. Exact, but for the conversion of 32-bit integers to 32-bit floats and of
 * 64-bit ones to 64-bit floats: these round in the direction that the calling thread's
 * floating-point control word asks for.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. Where the types are equally wide
 * @p dst may be @p src; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @param src  samples
 * @param dst  result
 * @param len  number of elements, unsigned in vlqsConvert_64s64f
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_8s32f(const Vlq8s* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsConvert_8u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsConvert_16s32f(const Vlq16s* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsConvert_16u32f(const Vlq16u* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsConvert_32s32f(const Vlq32s* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsConvert_32s64f(const Vlq32s* src, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsConvert_64s64f(const Vlq64s* src, Vlq64f* dst, Vlq32u len);
/** @} */

/** @name Integers to floats, scaled
 *  @{ */
/**
 * `dst[i] = src[i] * 2^-scaleFactor`, a conversion and a multiplication in the float type; a 32-bit
 * integer in a 32-bit float is rounded by the conversion, in the direction that the calling
 * thread's floating-point control word asks for. A scale factor outside the range of the form is
 * replaced by the nearer end: -112 to 126 for `16s32f`, -1008 to 1022 for `16s64f`, -127 to 126 for
 * `32s32f`, -1023 to 1022 for `32s64f`. A product past the float's range is infinite.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. Where the types are equally wide
 * @p dst may be @p src; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @param src         samples
 * @param dst         result
 * @param len         number of elements
 * @param scaleFactor negated exponent of the factor
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_16s32f_Sfs(const Vlq16s* src, Vlq32f* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsConvert_16s64f_Sfs(const Vlq16s* src, Vlq64f* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsConvert_32s32f_Sfs(const Vlq32s* src, Vlq32f* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsConvert_32s64f_Sfs(const Vlq32s* src, Vlq64f* dst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/** @name Floats to floats
 *  @{ */
/**
 * `dst[i] = src[i]`. Widening is exact, subnormals included; narrowing rounds, and flushes
 * subnormals or keeps them, as the calling thread's floating-point control word asks for. A
 * signalling not-a-number becomes quiet.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. vlqsConvert_64f32f allows
 * @p dst to begin where @p src does; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @param src  samples
 * @param dst  result
 * @param len  number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_32f64f(const Vlq32f* src, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsConvert_64f32f(const Vlq64f* src, Vlq32f* dst, Vlq32s len);
/** @} */

/** @name Floats to integers, scaled and rounded
 *  @{ */
/**
 * `dst[i] = saturate(round(src[i] * 2^-scaleFactor))`. @p rndMode 0 drops the fraction, 1 takes the
 * nearest integer and the even one of two equally near, any other value the nearest and the one
 * farther from zero of two equally near. The product is formed in the source's precision with a
 * factor that is infinite or zero where 2^-scaleFactor leaves the type. A not-a-number, a product
 * of zero and infinity included, gives the top value of the integer type; in vlqsConvert_64f64s_Sfs
 * it gives the most negative one.
 *
 * The result does not depend on the rounding or flushing that the calling thread has set.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin where @p src
 * does; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 * No rounding mode and no scale factor is refused.
 *
 * **Memory.** None.
 *
 * @param src         samples
 * @param dst         result
 * @param len         number of elements, unsigned in vlqsConvert_64f64s_Sfs
 * @param rndMode     rounding, see VlqRoundMode
 * @param scaleFactor negated exponent of the factor
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_32f8s_Sfs(const Vlq32f* src, Vlq8s* dst, Vlq32s len, VlqRoundMode rndMode,
                                Vlq32s scaleFactor);
VlqStatus vlqsConvert_32f8u_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len, VlqRoundMode rndMode,
                                Vlq32s scaleFactor);
VlqStatus vlqsConvert_32f16s_Sfs(const Vlq32f* src, Vlq16s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
VlqStatus vlqsConvert_32f16u_Sfs(const Vlq32f* src, Vlq16u* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
VlqStatus vlqsConvert_32f32s_Sfs(const Vlq32f* src, Vlq32s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
VlqStatus vlqsConvert_64f16s_Sfs(const Vlq64f* src, Vlq16s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
VlqStatus vlqsConvert_64f32s_Sfs(const Vlq64f* src, Vlq32s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
VlqStatus vlqsConvert_64f64s_Sfs(const Vlq64f* src, Vlq64s* dst, Vlq32u len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** @} */

/** @name Half floats to floats
 *  @{ */
/**
 * `dst[i] = src[i]`, exact. A signalling not-a-number becomes quiet.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment, and do not overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * **Source.** IEEE 754, binary16.
 *
 * @param src  bits of binary16 numbers
 * @param dst  result
 * @param len  number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_16f32f(const Vlq16f* src, Vlq32f* dst, Vlq32s len);
/** @} */

/** @name Half floats from floats and integers
 *  @{ */
/**
 * `dst[i] = round(src[i])`, to the binary16 numbers. @p rndMode 0 rounds towards zero, so that a
 * finite number never becomes infinite; 1 rounds to the nearest, ties to even, and what lies half a
 * step or more past the largest binary16 number becomes infinite. Subnormal results are kept. A
 * not-a-number keeps its sign and the top nine bits of its payload and becomes quiet.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin where @p src
 * does; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1,
 * #vlqStsBadRoundMode for @p rndMode other than 0 and 1.
 *
 * **Memory.** None.
 *
 * **Source.** IEEE 754, binary16.
 *
 * @param src     samples
 * @param dst     bits of binary16 numbers
 * @param len     number of elements
 * @param rndMode #vlqRndZero or #vlqRndNear
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_16s16f(const Vlq16s* src, Vlq16f* dst, Vlq32s len, VlqRoundMode rndMode);
VlqStatus vlqsConvert_32f16f(const Vlq32f* src, Vlq16f* dst, Vlq32s len, VlqRoundMode rndMode);
/** @} */

/** @name Half floats to integers, scaled and rounded
 *  @{ */
/**
 * `dst[i] = saturate(round(src[i] * 2^-scaleFactor))`: the value that vlqsConvert_16f32f followed
 * by vlqsConvert_32f16s_Sfs gives, a not-a-number as 32767 included.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin where @p src
 * does; other overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1,
 * #vlqStsBadRoundMode for @p rndMode other than 0 and 1. No scale factor is refused.
 *
 * **Memory.** None.
 *
 * **Source.** IEEE 754, binary16.
 *
 * @param src         bits of binary16 numbers
 * @param dst         result
 * @param len         number of elements
 * @param rndMode     #vlqRndZero or #vlqRndNear
 * @param scaleFactor negated exponent of the factor
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_16f16s_Sfs(const Vlq16f* src, Vlq16s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** @} */

/** @name Packed 24-bit integers to wider samples
 *  @{ */
/**
 * `dst[i] = src[i]`, exact. An element of @p src is three bytes, least significant first, with no
 * gap to the next; the `24s` forms extend its sign.
 *
 * **Shapes.** @p src has 3 @p len bytes, @p dst has @p len elements, at any alignment; they do not
 * overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @param src  packed samples
 * @param dst  result
 * @param len  number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_24s32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsConvert_24s32s(const Vlq8u* src, Vlq32s* dst, Vlq32s len);
VlqStatus vlqsConvert_24u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsConvert_24u32u(const Vlq8u* src, Vlq32u* dst, Vlq32s len);
/** @} */

/** @name Packed 24-bit integers from wider samples, scaled
 *  @{ */
/**
 * `dst[i] = saturate(round(src[i] * 2^-scaleFactor))`, to the nearest integer and the even one of
 * two equally near. An element of @p dst is three bytes, least significant first, with no gap to
 * the next. In the integer forms a scale factor above 31 counts as 31. In the float forms the
 * product is formed in single precision, with a factor that is infinite or zero where
 * 2^-scaleFactor leaves the type; a not-a-number gives the top value.
 *
 * The result does not depend on the rounding or flushing that the calling thread has set.
 *
 * **Shapes.** @p src has @p len elements, @p dst has 3 @p len bytes, at any alignment; they do not
 * overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 * No scale factor is refused.
 *
 * **Memory.** None.
 *
 * @param src         samples
 * @param dst         packed result
 * @param len         number of elements
 * @param scaleFactor negated exponent of the factor
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsConvert_32f24s_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsConvert_32f24u_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsConvert_32s24s_Sfs(const Vlq32s* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
VlqStatus vlqsConvert_32u24u_Sfs(const Vlq32u* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/** @name Interleaved integer audio to one row of floats a channel
 *  @{ */
/**
 * `dstRows[c][f] = x * step + half` with x channel c of frame f, `src[f * channels + c]`, in single
 * precision with a rounding after each operation. The lowest sample gives -1, the highest 1, and no
 * sample gives 0: step and half are 1/32767.5 and 1/65535 for 16 bits, 1/8388607.5 and 2^-24 for 24
 * bits. The 24-bit samples are packed, three bytes each, least significant first.
 *
 * The result does not depend on the rounding or flushing that the calling thread has set.
 *
 * **Shapes.** @p src has @p channels times @p frames samples, each row @p frames floats, at any
 * alignment. No row overlaps another or @p src.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null @p src or @p dstRows, #vlqStsNullPtr for a
 * null row, #vlqStsBadSize for @p channels or @p frames below 1.
 *
 * **Memory.** None.
 *
 * @param src      interleaved samples
 * @param dstRows  one row a channel
 * @param channels number of channels
 * @param frames   number of samples in each channel
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsSplitScaled_16s32f_D2L(const Vlq16s* src, Vlq32f* const* dstRows, Vlq32s channels,
                                     Vlq32s frames);
VlqStatus vlqsSplitScaled_24s32f_D2L(const Vlq8u* src, Vlq32f* const* dstRows, Vlq32s channels,
                                     Vlq32s frames);
/** @} */

/** @name One row of floats a channel to interleaved integer audio
 *  @{ */
/**
 * `dst[f * channels + c] = round(clamp(srcRows[c][f], -1, 1) * scale - 0.5)`, to the nearest
 * integer and the even one of two equally near, with a scale of 32767.5 for 16 and 8388607.5 for 24
 * bits: -1 gives the lowest sample, 1 the highest. A not-a-number counts as 1. The 24-bit samples
 * are packed, three bytes each, least significant first.
 *
 * The result does not depend on the rounding or flushing that the calling thread has set.
 *
 * **Shapes.** @p dst has @p channels times @p frames samples, each row @p frames floats, at any
 * alignment. @p dst overlaps no row.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null @p dst or @p srcRows, #vlqStsNullPtr for a
 * null row, #vlqStsBadSize for @p channels or @p frames below 1.
 *
 * **Memory.** None.
 *
 * @param srcRows  one row a channel
 * @param channels number of channels
 * @param frames   number of samples in each channel
 * @param dst      interleaved samples
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsJoinScaled_32f16s_D2L(const Vlq32f* const* srcRows, Vlq32s channels, Vlq32s frames,
                                    Vlq16s* dst);
VlqStatus vlqsJoinScaled_32f24s_D2L(const Vlq32f* const* srcRows, Vlq32s channels, Vlq32s frames,
                                    Vlq8u* dst);
/** @} */

VLQS_END_DECLS

#endif
