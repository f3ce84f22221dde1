/**
 * @file move.h
 * @brief Data movement: clear, fill, copy, reverse, byte order, bit streams.
 */
#ifndef VLQS_MOVE_H
#define VLQS_MOVE_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

/** @defgroup vlqs_move Data movement */

/**
 * @defgroup vlqs_zero Clear
 * @ingroup vlqs_move
 *
 * `dst[i] = 0`: every bit is cleared.
 *
 * **Shapes.** @p dst has @p len elements and any alignment.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing. Very long vectors are written past the cache.
 *
 * @arg @c dst result
 * @arg @c len number of elements
 *
 * @{
 */

/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_8u(Vlq8u* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_16s(Vlq16s* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_16sc(Vlq16sc* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_32s(Vlq32s* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_32f(Vlq32f* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_32sc(Vlq32sc* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_32fc(Vlq32fc* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_64s(Vlq64s* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_64f(Vlq64f* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_64sc(Vlq64sc* dst, Vlq32s len);
/** dst = 0, every bit cleared. */
VlqStatus vlqsZero_64fc(Vlq64fc* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_set Fill
 * @ingroup vlqs_move
 *
 * `dst[i] = val`, bit for bit: a NaN keeps its payload.
 *
 * **Shapes.** @p dst has @p len elements and any alignment.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing. Very long vectors are written past the cache.
 *
 * @arg @c val value of every element
 * @arg @c dst result
 * @arg @c len number of elements
 *
 * @{
 */

/** dst = val, bit for bit. */
VlqStatus vlqsSet_8u(Vlq8u val, Vlq8u* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_16s(Vlq16s val, Vlq16s* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_16sc(Vlq16sc val, Vlq16sc* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_32s(Vlq32s val, Vlq32s* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_32f(Vlq32f val, Vlq32f* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_32sc(Vlq32sc val, Vlq32sc* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_32fc(Vlq32fc val, Vlq32fc* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_64s(Vlq64s val, Vlq64s* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_64f(Vlq64f val, Vlq64f* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_64sc(Vlq64sc val, Vlq64sc* dst, Vlq32s len);
/** dst = val, bit for bit. */
VlqStatus vlqsSet_64fc(Vlq64fc val, Vlq64fc* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_copy Copy
 * @ingroup vlqs_move
 *
 * `dst[i] = src[i]`.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment. They must not overlap; use Move
 * where they may.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing. Very long vectors are written past the cache, so that a long copy
 * does not evict the caller's working set.
 *
 * @arg @c src source
 * @arg @c dst result
 * @arg @c len number of elements
 *
 * @{
 */

/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_32sc(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_64s(const Vlq64s* src, Vlq64s* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_64sc(const Vlq64sc* src, Vlq64sc* dst, Vlq32s len);
/** dst = src; the vectors must not overlap. */
VlqStatus vlqsCopy_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_move_overlap Move
 * @ingroup vlqs_move
 *
 * `dst[i] = src[i]`, as if the whole source were read before the first element is written.
 *
 * **Shapes.** Both vectors have @p len elements and any alignment; they may overlap in any way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src source
 * @arg @c dst result
 * @arg @c len number of elements
 *
 * @{
 */

/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_16s(const Vlq16s* src, Vlq16s* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_16sc(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_32s(const Vlq32s* src, Vlq32s* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_32sc(const Vlq32sc* src, Vlq32sc* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_64s(const Vlq64s* src, Vlq64s* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_64sc(const Vlq64sc* src, Vlq64sc* dst, Vlq32s len);
/** dst = src; the vectors may overlap. */
VlqStatus vlqsMove_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_flip Reverse
 * @ingroup vlqs_move
 *
 * `dst[i] = src[len - 1 - i]`; the `_I` variants reverse @p srcDst.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    source
 * @arg @c dst    result
 * @arg @c srcDst source and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst[i] = src[len - 1 - i]. */
VlqStatus vlqsFlip_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
/** Reverses srcDst in place. */
VlqStatus vlqsFlip_8u_I(Vlq8u* srcDst, Vlq32s len);
/** dst[i] = src[len - 1 - i]. */
VlqStatus vlqsFlip_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len);
/** Reverses srcDst in place. */
VlqStatus vlqsFlip_16u_I(Vlq16u* srcDst, Vlq32s len);
/** dst[i] = src[len - 1 - i]. */
VlqStatus vlqsFlip_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len);
/** Reverses srcDst in place. */
VlqStatus vlqsFlip_32f_I(Vlq32f* srcDst, Vlq32s len);
/** dst[i] = src[len - 1 - i]. */
VlqStatus vlqsFlip_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len);
/** Reverses srcDst in place. */
VlqStatus vlqsFlip_64f_I(Vlq64f* srcDst, Vlq32s len);
/** dst[i] = src[len - 1 - i]. */
VlqStatus vlqsFlip_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len);
/** Reverses srcDst in place. */
VlqStatus vlqsFlip_32fc_I(Vlq32fc* srcDst, Vlq32s len);
/** dst[i] = src[len - 1 - i]. */
VlqStatus vlqsFlip_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len);
/** Reverses srcDst in place. */
VlqStatus vlqsFlip_64fc_I(Vlq64fc* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_swap_bytes Byte order
 * @ingroup vlqs_move
 *
 * Reverses the byte order of every element: little-endian samples become big-endian and vice versa.
 * The `24u` variants take packed samples of three bytes.
 *
 * **Shapes.** All vectors have @p len elements and any alignment. @p dst may equal @p src; the
 * vectors must not overlap in any other way.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null vector, #vlqStsBadSize for @p len
 * below 1.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src    source
 * @arg @c dst    result
 * @arg @c srcDst source and result of the in-place variants
 * @arg @c len    number of elements
 *
 * @{
 */

/** dst = src with the order of the 2 bytes of every element reversed. */
VlqStatus vlqsSwapBytes_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len);
/** Reverses the order of the 2 bytes of every element of srcDst. */
VlqStatus vlqsSwapBytes_16u_I(Vlq16u* srcDst, Vlq32s len);
/** dst = src with the order of the 3 bytes of every element reversed. */
VlqStatus vlqsSwapBytes_24u(const Vlq8u* src, Vlq8u* dst, Vlq32s len);
/** Reverses the order of the 3 bytes of every element of srcDst. */
VlqStatus vlqsSwapBytes_24u_I(Vlq8u* srcDst, Vlq32s len);
/** dst = src with the order of the 4 bytes of every element reversed. */
VlqStatus vlqsSwapBytes_32u(const Vlq32u* src, Vlq32u* dst, Vlq32s len);
/** Reverses the order of the 4 bytes of every element of srcDst. */
VlqStatus vlqsSwapBytes_32u_I(Vlq32u* srcDst, Vlq32s len);
/** dst = src with the order of the 8 bytes of every element reversed. */
VlqStatus vlqsSwapBytes_64u(const Vlq64u* src, Vlq64u* dst, Vlq32s len);
/** Reverses the order of the 8 bytes of every element of srcDst. */
VlqStatus vlqsSwapBytes_64u_I(Vlq64u* srcDst, Vlq32s len);
/** @} */

/**
 * @defgroup vlqs_bits Bit streams
 * @ingroup vlqs_move
 *
 * Bits are numbered from the most significant bit of each byte.
 *
 * vlqsCopy_1u() copies @p len bits from bit @p srcBitOffset of @p src to bit @p dstBitOffset of
 * @p dst. Each offset is taken modulo 8: the pointer must already point to the byte that contains
 * the first bit. Bits of @p dst outside the range keep their values, and no byte without a bit in
 * the range is read or written.
 *
 * vlqsPackBits_32u8u() writes the low `widths[i]` bits of each `src[i]`, most significant bit
 * first, one after the other, starting at bit @p dstBitOffset of @p dst; here an offset of 8 or
 * more skips whole bytes. Bits before the offset keep their values; the bits between the last one
 * written and the end of its byte are cleared. A negative width counts as 0, one above 32 as 32.
 * `*pDstBitOffset` receives @p dstBitOffset plus the number of bits written, modulo 2^32: the
 * offset at which the next call continues. If all widths are 0, no byte is written.
 *
 * **Shapes.** Any alignment; source and destination must not overlap.
 *
 * **Errors,** in the order tested: #vlqStsNullPtr for a null pointer, #vlqStsBadSize for @p len
 * below 1 or a negative offset.
 *
 * **Warning.** #vlqStsWarnBitWidth if a width was clamped to 0 to 32.
 *
 * **Memory.** Allocates nothing.
 *
 * @arg @c src           bits or values
 * @arg @c srcBitOffset  first bit of the source
 * @arg @c widths        number of bits of each value
 * @arg @c dst           result
 * @arg @c dstBitOffset  first bit of the result
 * @arg @c len           number of bits, or of values
 * @arg @c pDstBitOffset receives the bit offset of the end of the result
 *
 * @{
 */

/** Copies len bits, starting at bit offsets counted from the most significant bit of a byte. */
VlqStatus vlqsCopy_1u(const Vlq8u* src, Vlq32s srcBitOffset, Vlq8u* dst, Vlq32s dstBitOffset,
                      Vlq32s len);
/** Appends the low widths[i] bits of every src[i] to a bit stream, most significant bit first. */
VlqStatus vlqsPackBits_32u8u(const Vlq32u* src, const Vlq32s* widths, Vlq32s len, Vlq8u* dst,
                             Vlq32s dstBitOffset, Vlq32s* pDstBitOffset);
/** @} */

VLQS_END_DECLS

#endif
