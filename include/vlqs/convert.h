/**
 * @file convert.h
 * @brief Conversion between sample types.
 */
#ifndef VLQS_CONVERT_H
#define VLQS_CONVERT_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/**
 * @defgroup vlqs_convert Conversion
 *
 * The names read source, destination: `16s32f` takes 16-bit integers to floats. `sat` clamps to the
 * range of the destination's type, `round` rounds to an integer. Integer results saturate silently;
 * no conversion returns a warning.
 *
 * Mind the order of the last two arguments, rndMode before scaleFactor: both are integers, and the
 * compiler accepts either order. Exchanged, `(vlqRndNear, 0)` becomes "towards zero, halved".
 */

/**
 * @defgroup vlqs_convert_widen Integers to wider integers
 * @ingroup vlqs_convert
 *
 * `dst[i] = src[i]`.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment, and must not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src  samples
 * @arg @c dst  result
 * @arg @c len  number of elements
 *
 * @{
 */

/** dst = src, exact: 8-bit integers to 16 bits. */
VlqStatus vlqsConvert_8s16s(const Vlq8s* src, Vlq16s* dst, Vlq32s len);
/** dst = src, exact: 16-bit integers to 32 bits. */
VlqStatus vlqsConvert_16s32s(const Vlq16s* src, Vlq32s* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_convert_narrow 32-bit integers to 16-bit integers
 * @ingroup vlqs_convert
 *
 * `dst[i] = sat(round(src[i] * 2^-scaleFactor))`, to nearest with ties to even;
 * vlqsConvert_32s16s() is the case of a scale factor of 0. The scale factor is clamped to -15 to
 * 31.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin at the address
 * of @p src; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c len         number of elements
 * @arg @c scaleFactor the samples are multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(src): 32-bit integers to 16 bits. */
VlqStatus vlqsConvert_32s16s(const Vlq32s* src, Vlq16s* dst, Vlq32s len);
/** dst = sat(round(src * 2^-scaleFactor)), ties to even: 32-bit integers to 16 bits. */
VlqStatus vlqsConvert_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_convert_halve Integers to integers of half the width, with a rounding mode
 * @ingroup vlqs_convert
 *
 * `dst[i] = sat(round(src[i] * 2^-scaleFactor))`. @p rndMode 0 rounds towards zero, 1 to nearest
 * with ties to even, any other value to nearest with ties away from zero. In
 * vlqsConvert_64s32s_Sfs() a scale factor above 63 counts as 63.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin at the address
 * of @p src; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1. Every rounding mode and every scale factor is legal.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c len         number of elements, unsigned in vlqsConvert_16s8s_Sfs()
 * @arg @c rndMode     rounding, see VlqRoundMode
 * @arg @c scaleFactor the samples are multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: 16-bit integers to 8 bits. */
VlqStatus vlqsConvert_16s8s_Sfs(const Vlq16s* src, Vlq8s* dst, Vlq32u len, VlqRoundMode rndMode,
                                Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: 64-bit integers to 32 bits. */
VlqStatus vlqsConvert_64s32s_Sfs(const Vlq64s* src, Vlq32s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_convert_to_float Integers to floats
 * @ingroup vlqs_convert
 *
 * `dst[i] = src[i]`. Exact, except from 32-bit integers to floats and from 64-bit integers to
 * doubles: these round in the direction set in the calling thread's floating-point control word
 * (MXCSR).
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. If the types are equally wide,
 * @p dst may equal @p src; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src  samples
 * @arg @c dst  result
 * @arg @c len  number of elements, unsigned in vlqsConvert_64s64f()
 *
 * @{
 */

/** dst = src, exact: 8-bit integers to floats. */
VlqStatus vlqsConvert_8s32f(const Vlq8s* src, Vlq32f* dst, Vlq32s len);
/** dst = src, exact: unsigned 8-bit integers to floats. */
VlqStatus vlqsConvert_8u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len);
/** dst = src, exact: 16-bit integers to floats. */
VlqStatus vlqsConvert_16s32f(const Vlq16s* src, Vlq32f* dst, Vlq32s len);
/** dst = src, exact: unsigned 16-bit integers to floats. */
VlqStatus vlqsConvert_16u32f(const Vlq16u* src, Vlq32f* dst, Vlq32s len);
/** dst = src, rounded by the thread's rounding mode: 32-bit integers to floats. */
VlqStatus vlqsConvert_32s32f(const Vlq32s* src, Vlq32f* dst, Vlq32s len);
/** dst = src, exact: 32-bit integers to doubles. */
VlqStatus vlqsConvert_32s64f(const Vlq32s* src, Vlq64f* dst, Vlq32s len);
/** dst = src, rounded by the thread's rounding mode: 64-bit integers to doubles. */
VlqStatus vlqsConvert_64s64f(const Vlq64s* src, Vlq64f* dst, Vlq32u len);
/** @} */

/**
 * @defgroup vlqs_convert_to_float_scaled Integers to floats, scaled
 * @ingroup vlqs_convert
 *
 * `dst[i] = src[i] * 2^-scaleFactor`: a conversion followed by a multiplication in the float type.
 * Only the conversion of a 32-bit integer to a float rounds, in the direction set in the calling
 * thread's floating-point control word (MXCSR). The scale factor is clamped: to -112 to 126 in
 * `16s32f`, -1008 to 1022 in `16s64f`, -127 to 126 in `32s32f`, -1023 to 1022 in `32s64f`. A
 * product beyond the range of the float type is infinite.
 *
 * With a @p scaleFactor of 15, vlqsConvert_16s32f_Sfs() gives the usual x / 32768; see also
 * @ref vlqs_split_scaled, which scales differently.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. If the types are equally wide,
 * @p dst may equal @p src; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c len         number of elements
 * @arg @c scaleFactor the samples are multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = src * 2^-scaleFactor: 16-bit integers to floats. */
VlqStatus vlqsConvert_16s32f_Sfs(const Vlq16s* src, Vlq32f* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src * 2^-scaleFactor: 16-bit integers to doubles. */
VlqStatus vlqsConvert_16s64f_Sfs(const Vlq16s* src, Vlq64f* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src * 2^-scaleFactor: 32-bit integers to floats. */
VlqStatus vlqsConvert_32s32f_Sfs(const Vlq32s* src, Vlq32f* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = src * 2^-scaleFactor: 32-bit integers to doubles. */
VlqStatus vlqsConvert_32s64f_Sfs(const Vlq32s* src, Vlq64f* dst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_convert_float Floats to floats
 * @ingroup vlqs_convert
 *
 * `dst[i] = src[i]`. Widening is exact, subnormal numbers included. Narrowing rounds, and flushes
 * subnormal numbers to zero or keeps them, as set in the calling thread's floating-point control
 * word (MXCSR). A signaling NaN becomes quiet.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. In vlqsConvert_64f32f() @p dst
 * may begin at the address of @p src; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src  samples
 * @arg @c dst  result
 * @arg @c len  number of elements
 *
 * @{
 */

/** dst = src, exact: floats to doubles. */
VlqStatus vlqsConvert_32f64f(const Vlq32f* src, Vlq64f* dst, Vlq32s len);
/** dst = src, rounded by the thread's rounding mode: doubles to floats. */
VlqStatus vlqsConvert_64f32f(const Vlq64f* src, Vlq32f* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_convert_to_integer Floats to integers, scaled and rounded
 * @ingroup vlqs_convert
 *
 * `dst[i] = sat(round(src[i] * 2^-scaleFactor))`. @p rndMode 0 rounds towards zero, 1 to nearest
 * with ties to even, any other value to nearest with ties away from zero. The product is formed in
 * the precision of the source; 2^-scaleFactor is infinite or zero where it is beyond the range of
 * that type. A NaN, also as the product of zero and infinity, gives the largest value of the
 * integer type, in vlqsConvert_64f64s_Sfs() the most negative one.
 *
 * The result does not depend on the rounding or flushing set in the calling thread.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin at the address
 * of @p src; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1. Every rounding mode and every scale factor is legal.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         samples
 * @arg @c dst         result
 * @arg @c len         number of elements, unsigned in vlqsConvert_64f64s_Sfs()
 * @arg @c rndMode     rounding, see VlqRoundMode
 * @arg @c scaleFactor the samples are multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: floats to 8 bits. */
VlqStatus vlqsConvert_32f8s_Sfs(const Vlq32f* src, Vlq8s* dst, Vlq32s len, VlqRoundMode rndMode,
                                Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: floats to unsigned 8 bits. */
VlqStatus vlqsConvert_32f8u_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len, VlqRoundMode rndMode,
                                Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: floats to 16 bits. */
VlqStatus vlqsConvert_32f16s_Sfs(const Vlq32f* src, Vlq16s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: floats to unsigned 16 bits. */
VlqStatus vlqsConvert_32f16u_Sfs(const Vlq32f* src, Vlq16u* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: floats to 32 bits. */
VlqStatus vlqsConvert_32f32s_Sfs(const Vlq32f* src, Vlq32s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: doubles to 16 bits. */
VlqStatus vlqsConvert_64f16s_Sfs(const Vlq64f* src, Vlq16s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: doubles to 32 bits. */
VlqStatus vlqsConvert_64f32s_Sfs(const Vlq64f* src, Vlq32s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: doubles to 64 bits. */
VlqStatus vlqsConvert_64f64s_Sfs(const Vlq64f* src, Vlq64s* dst, Vlq32u len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_convert_from_half Half floats to floats
 * @ingroup vlqs_convert
 *
 * `dst[i] = src[i]`, exact. A signaling NaN becomes quiet.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment, and must not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * **Source.** IEEE 754, binary16.
 *
 * @arg @c src  bits of binary16 numbers
 * @arg @c dst  result
 * @arg @c len  number of elements
 *
 * @{
 */

/** dst = src, exact: half floats to floats. */
VlqStatus vlqsConvert_16f32f(const Vlq16f* src, Vlq32f* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_convert_to_half Floats and integers to half floats
 * @ingroup vlqs_convert
 *
 * `dst[i] = round(src[i])`, to a binary16 number. @p rndMode 0 rounds towards zero, so that a
 * finite number never becomes infinite; 1 rounds to nearest with ties to even, and a magnitude of
 * half a step or more above the largest binary16 number becomes infinite. Subnormal results are
 * kept. A NaN keeps its sign and the top nine bits of its payload and becomes quiet.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin at the address
 * of @p src; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsBadRoundMode for @p rndMode other than 0 and 1.
 *
 * **Memory.** Allocates nothing.
 *
 * **Source.** IEEE 754, binary16.
 *
 * @arg @c src     samples
 * @arg @c dst     bits of binary16 numbers
 * @arg @c len     number of elements
 * @arg @c rndMode #vlqRndZero or #vlqRndNear
 *
 * @{
 */

/** dst = src rounded by rndMode: 16-bit integers to half floats. */
VlqStatus vlqsConvert_16s16f(const Vlq16s* src, Vlq16f* dst, Vlq32s len, VlqRoundMode rndMode);
/** dst = src rounded by rndMode: floats to half floats. */
VlqStatus vlqsConvert_32f16f(const Vlq32f* src, Vlq16f* dst, Vlq32s len, VlqRoundMode rndMode);
/** @} */

/**
 * @defgroup vlqs_convert_half_to_integer Half floats to integers, scaled and rounded
 * @ingroup vlqs_convert
 *
 * `dst[i] = sat(round(src[i] * 2^-scaleFactor))`: the result of vlqsConvert_16f32f() followed by
 * vlqsConvert_32f16s_Sfs(). A NaN gives 32767.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. @p dst may begin at the address
 * of @p src; the vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1, #vlqStsBadRoundMode for @p rndMode other than 0 and 1. Every scale factor is legal.
 *
 * **Memory.** Allocates nothing.
 *
 * **Source.** IEEE 754, binary16.
 *
 * @arg @c src         bits of binary16 numbers
 * @arg @c dst         result
 * @arg @c len         number of elements
 * @arg @c rndMode     #vlqRndZero or #vlqRndNear
 * @arg @c scaleFactor the samples are multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src * 2^-scaleFactor)), rounded by rndMode: half floats to 16 bits. */
VlqStatus vlqsConvert_16f16s_Sfs(const Vlq16f* src, Vlq16s* dst, Vlq32s len, VlqRoundMode rndMode,
                                 Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_convert_from_24 Packed 24-bit integers to wider samples
 * @ingroup vlqs_convert
 *
 * `dst[i] = src[i]`, exact. An element of @p src is three bytes, least significant byte first,
 * without a gap to the next; the `24s` variants extend its sign.
 *
 * **Shapes.** @p src has 3 @p len bytes, @p dst has @p len elements, both with any alignment; they
 * must not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src  packed samples
 * @arg @c dst  result
 * @arg @c len  number of elements
 *
 * @{
 */

/** dst = src, exact: packed 24-bit integers to floats. */
VlqStatus vlqsConvert_24s32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len);
/** dst = src, exact: packed 24-bit integers to 32 bits. */
VlqStatus vlqsConvert_24s32s(const Vlq8u* src, Vlq32s* dst, Vlq32s len);
/** dst = src, exact: unsigned packed 24-bit integers to floats. */
VlqStatus vlqsConvert_24u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len);
/** dst = src, exact: unsigned packed 24-bit integers to unsigned 32 bits. */
VlqStatus vlqsConvert_24u32u(const Vlq8u* src, Vlq32u* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_convert_to_24 Wider samples to packed 24-bit integers, scaled
 * @ingroup vlqs_convert
 *
 * `dst[i] = sat(round(src[i] * 2^-scaleFactor))`, to nearest with ties to even. An element of
 * @p dst is three bytes, least significant byte first, without a gap to the next. In the integer
 * variants a scale factor above 31 counts as 31. In the float variants the product is formed in
 * single precision; 2^-scaleFactor is infinite or zero where it is beyond that range, and a NaN
 * gives the largest value.
 *
 * The result does not depend on the rounding or flushing set in the calling thread.
 *
 * **Shapes.** @p src has @p len elements, @p dst has 3 @p len bytes, both with any alignment; they
 * must not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1. Every scale factor is legal.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src         samples
 * @arg @c dst         packed result
 * @arg @c len         number of elements
 * @arg @c scaleFactor the samples are multiplied by 2^-scaleFactor
 *
 * @{
 */

/** dst = sat(round(src * 2^-scaleFactor)), ties to even: floats to packed 24 bits. */
VlqStatus vlqsConvert_32f24s_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), ties to even: floats to packed unsigned 24 bits. */
VlqStatus vlqsConvert_32f24u_Sfs(const Vlq32f* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), ties to even: 32-bit integers to packed 24 bits. */
VlqStatus vlqsConvert_32s24s_Sfs(const Vlq32s* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** dst = sat(round(src * 2^-scaleFactor)), ties to even: unsigned 32 bits to packed 24 bits. */
VlqStatus vlqsConvert_32u24u_Sfs(const Vlq32u* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor);
/** @} */

/**
 * @defgroup vlqs_split_scaled De-interleave integer audio to rows of floats
 * @ingroup vlqs_convert
 *
 * `dstRows[c][f] = x * step + half`, x = `src[f * channels + c]` being channel c of frame f, in
 * single precision with a rounding after each operation. step and half are 1/32767.5 and 1/65535
 * for 16 bits, 1/8388607.5 and 2^-24 for 24 bits. The lowest sample gives -1 and the highest gives
 * 1. 24-bit samples are packed, three bytes each, least significant byte first.
 *
 * **This is not x / 32768.** The whole integer range is mapped to [-1, 1] symmetrically, so sample
 * 0 gives half a step (1.53e-5 for 16 bits), not 0: digital silence becomes a small constant.
 * Convert back with JoinScaled, which inverts this exactly. For x / 32768 use
 * vlqsConvert_16s32f_Sfs() with a @p scaleFactor of 15 on the interleaved samples.
 *
 * The result does not depend on the rounding or flushing set in the calling thread.
 *
 * **Shapes.** @p src has @p channels times @p frames samples, each row @p frames floats, all with
 * any alignment. No row overlaps another row or @p src.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null @p src or @p dstRows, #vlqStsNullPtr
 * for a null row, #vlqStsBadSize for @p channels or @p frames below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src      interleaved samples
 * @arg @c dstRows  one row of floats for each channel
 * @arg @c channels number of channels
 * @arg @c frames   number of samples in each channel
 *
 * @{
 */

/** dstRows[c][f] = (src[f * channels + c] + 0.5) / 32767.5, a float in [-1, 1]. */
VlqStatus vlqsSplitScaled_16s32f_D2L(const Vlq16s* src, Vlq32f* const* dstRows, Vlq32s channels,
                                     Vlq32s frames);
/** dstRows[c][f] = (src[f * channels + c] + 0.5) / 8388607.5, a float in [-1, 1]. */
VlqStatus vlqsSplitScaled_24s32f_D2L(const Vlq8u* src, Vlq32f* const* dstRows, Vlq32s channels,
                                     Vlq32s frames);
/** @} */

/**
 * @defgroup vlqs_join_scaled Interleave rows of floats to integer audio
 * @ingroup vlqs_convert
 *
 * `dst[f * channels + c] = round(clamp(srcRows[c][f], -1, 1) * scale - 0.5)`, to nearest with ties
 * to even, with a scale of 32767.5 for 16 bits and 8388607.5 for 24 bits: -1 gives the lowest
 * sample, 1 the highest. A NaN counts as 1. 24-bit samples are packed, three bytes each, least
 * significant byte first.
 *
 * **This is the inverse of SplitScaled,** not of a division by 32768: of the 65,536 values x /
 * 32768, 32,767 come back one lower than x. For floats scaled by 1 / 32768 use
 * vlqsConvert_32f16s_Sfs() with a @p scaleFactor of -15.
 *
 * The result does not depend on the rounding or flushing set in the calling thread.
 *
 * **Shapes.** @p dst has @p channels times @p frames samples, each row @p frames floats, all with
 * any alignment. @p dst overlaps no row. The rows are only read; their type is that of
 * SplitScaled's rows, so that C passes an array of `Vlq32f*` to either without a cast.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null @p dst or @p srcRows, #vlqStsNullPtr
 * for a null row, #vlqStsBadSize for @p channels or @p frames below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c srcRows  one row of floats for each channel
 * @arg @c channels number of channels
 * @arg @c frames   number of samples in each channel
 * @arg @c dst      interleaved samples
 *
 * @{
 */

/** dst[f * channels + c] = round(clamp(srcRows[c][f], -1, 1) * 32767.5 - 0.5), ties to even. */
VlqStatus vlqsJoinScaled_32f16s_D2L(Vlq32f* const* srcRows, Vlq32s channels, Vlq32s frames,
                                    Vlq16s* dst);
/** dst[f * channels + c] = round(clamp(srcRows[c][f], -1, 1) * 8388607.5 - 0.5), ties to even. */
VlqStatus vlqsJoinScaled_32f24s_D2L(Vlq32f* const* srcRows, Vlq32s channels, Vlq32s frames,
                                    Vlq8u* dst);
/** @} */

VLQS_END_DECLS

#endif
