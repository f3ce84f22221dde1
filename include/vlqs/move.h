/**
 * @file move.h
 * @brief Data movement: clear, fill, copy, reverse, byte order, bit streams.
 */
#ifndef VLQS_MOVE_H
#define VLQS_MOVE_H

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
 * **Memory.** None. Long vectors are left to the processor's fill instruction, which goes past the
 * cache where that is faster.
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
 * **Memory.** None. Long vectors travel as those of the clear do; elements of 16 bytes, for which
 * no such instruction exists, are stored past the cache where the vector is half as large again as
 * the last-level cache.
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
 * **Memory.** None. From 8 MiB the processor is asked for its last-level cache on each call; a
 * vector of three quarters of that or more is stored past the cache, so that a long copy leaves the
 * caller's working set in place.
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

/** @name Reverse
 *  @{ */
/**
 * `dst[i] = src[len - 1 - i]`; the `_I` forms work on @p srcDst.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be @p src; other
 * overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src    source
 * @arg @c dst    result
 * @arg @c srcDst source and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsFlip_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsFlip_8u_I(Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsFlip_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsFlip_16u_I(Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsFlip_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
VlqStatus vlqsFlip_32f_I(Vlq32f* srcDst, Vlq32s len);
VlqStatus vlqsFlip_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
VlqStatus vlqsFlip_64f_I(Vlq64f* srcDst, Vlq32s len);
VlqStatus vlqsFlip_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
VlqStatus vlqsFlip_32fc_I(Vlq32fc* srcDst, Vlq32s len);
VlqStatus vlqsFlip_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
VlqStatus vlqsFlip_64fc_I(Vlq64fc* srcDst, Vlq32s len);
/** @} */

/** @name Byte swap
 *  @{ */
/**
 * The bytes of each element change their order: little-endian samples become big-endian ones and
 * back. The `24u` forms take packed samples of three bytes.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may be @p src; other
 * overlaps are not allowed.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len below 1.
 *
 * **Memory.** None.
 *
 * @arg @c src    source
 * @arg @c dst    result
 * @arg @c srcDst source and result of the in-place forms
 * @arg @c len    number of elements
 * @return #vlqStsOk or an error above.
 */
VlqStatus vlqsSwapBytes_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len);
VlqStatus vlqsSwapBytes_16u_I(Vlq16u* srcDst, Vlq32s len);
VlqStatus vlqsSwapBytes_24u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
VlqStatus vlqsSwapBytes_24u_I(Vlq8u* srcDst, Vlq32s len);
VlqStatus vlqsSwapBytes_32u(const Vlq32u* src, Vlq32u* dst, Vlq32s len);
VlqStatus vlqsSwapBytes_32u_I(Vlq32u* srcDst, Vlq32s len);
VlqStatus vlqsSwapBytes_64u(const Vlq64u* src, Vlq64u* dst, Vlq32s len);
VlqStatus vlqsSwapBytes_64u_I(Vlq64u* srcDst, Vlq32s len);
/** @} */

/** @name Bit streams
 *  @{ */
/**
 * Bits are numbered from the most significant bit of each byte.
 *
 * vlqsCopy_1u copies @p len bits from bit @p srcBitOffset of @p src to bit @p dstBitOffset of
 * @p dst. Only an offset's value modulo 8 counts: the pointer names the byte that holds the first
 * bit. Bits of @p dst outside the range keep their values, and no byte that holds no bit of the
 * range is read or written.
 *
 * vlqsPackBits_32u8u writes the low `widths[i]` bits of each `src[i]`, most significant first, one
 * after another from bit @p dstBitOffset of @p dst on (an offset of 8 or more passes whole bytes).
 * The bits before the offset keep their values; the bits after the last one written are cleared to
 * the end of its byte. A width below 0 counts as 0, one above 32 as 32. `*pDstBitOffset` receives
 * @p dstBitOffset plus the number of bits written, modulo 2^32: the offset at which a next call
 * goes on. When all widths are 0, no byte is written.
 *
 * **Shapes.** Any alignment; source and destination do not overlap.
 *
 * **Errors,** in this order: #vlqStsNullPtr for a null pointer, #vlqStsBadSize for @p len below 1
 * or a negative offset.
 *
 * **Memory.** None.
 *
 * @arg @c src           bits or values
 * @arg @c srcBitOffset  first bit of the source
 * @arg @c widths        number of bits of each value
 * @arg @c dst           result
 * @arg @c dstBitOffset  first bit of the result
 * @arg @c len           number of bits, or of values
 * @arg @c pDstBitOffset receives the bit offset of the end of the result
 * @return #vlqStsOk, an error above, or the warning #vlqStsWarnBitWidth where a width was brought
 *         into 0 to 32.
 */
VlqStatus vlqsCopy_1u(const Vlq8u* src, Vlq32s srcBitOffset, Vlq8u* dst, Vlq32s dstBitOffset,
                      Vlq32s len);
VlqStatus vlqsPackBits_32u8u(const Vlq32u* src, const Vlq32s* widths, Vlq32s len, Vlq8u* dst,
                             Vlq32s dstBitOffset, Vlq32s* pDstBitOffset);
/** @} */

VLQS_END_DECLS

#endif
