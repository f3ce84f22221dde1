/**
 * @file frame.h
 * @brief Version and vector memory.
 */
#ifndef VLQS_FRAME_H
#define VLQS_FRAME_H

#include "vlqs/types.h"

/** @defgroup vlqs_frame Version and vector memory */

/**
 * @defgroup vlqs_version Version
 * @ingroup vlqs_frame
 *
 * The macros give the version of the headers, vlqsGetLibVersion() that of the library that is
 * loaded.
 *
 * @{
 */
#define VLQS_VERSION_MAJOR 7 /**< major version of the headers */
#define VLQS_VERSION_MINOR 1 /**< minor version of the headers */
#define VLQS_VERSION_PATCH 0 /**< patch level of the headers */

/** Version of the headers as one number, for comparisons: 70100 is 7.1.0. */
#define VLQS_VERSION_NUMBER \
    (VLQS_VERSION_MAJOR * 10000 + VLQS_VERSION_MINOR * 100 + VLQS_VERSION_PATCH)

/** Version and processor target of the loaded library. */
typedef struct {
    Vlq32s versionMajor; /**< major version */
    Vlq32s versionMinor; /**< minor version */
    Vlq32s versionPatch; /**< patch level */
    Vlq32s buildNumber;  /**< revision of the build */
    /** Tag of the processor target, two letters and two zeros: "s2", "v3" or "v4". */
    char targetTag[4];
    const char* libraryName; /**< name of the library with its target */
    const char* versionText; /**< version and revision as text */
    const char* buildDate;   /**< date of the revision */
} VlqLibraryVersion;

VLQS_BEGIN_DECLS

/** Returns the version of the loaded library: one constant object, not to be freed or written. */
const VlqLibraryVersion* vlqsGetLibVersion(void);
/** @} */

/**
 * @defgroup vlqs_malloc Vector memory
 * @ingroup vlqs_frame
 *
 * vlqsMalloc allocates a vector of @p len elements aligned to 64 bytes, with undefined contents,
 * and returns it; vlqsFree() releases it. A result of null means that @p len is below 1 or that
 * memory is refused.
 *
 * **The size is computed in 32 bits.** `len * sizeof(element)` is not tested for overflow: a
 * product that wraps to a positive number allocates that smaller block, so the vector is shorter
 * than asked for; one that wraps to zero or below gives null. Never ask for 2 GiB or more: from
 * 2^27 elements of 16 bytes, 2^28 of 8, 2^29 of 4, 2^30 of 2 use an allocator of your own.
 *
 * **Memory.** One block of the core library's vlqMalloc(). A length below 1 does not call the core
 * library.
 *
 * @arg @c len number of elements
 *
 * @{
 */

/** Allocates a vector of len unsigned 8-bit integers. */
Vlq8u* vlqsMalloc_8u(Vlq32s len);
/** Allocates a vector of len 8-bit integers. */
Vlq8s* vlqsMalloc_8s(Vlq32s len);
/** Allocates a vector of len complex 8-bit values. */
Vlq8sc* vlqsMalloc_8sc(Vlq32s len);
/** Allocates a vector of len unsigned 16-bit integers. */
Vlq16u* vlqsMalloc_16u(Vlq32s len);
/** Allocates a vector of len 16-bit integers. */
Vlq16s* vlqsMalloc_16s(Vlq32s len);
/** Allocates a vector of len complex 16-bit values. */
Vlq16sc* vlqsMalloc_16sc(Vlq32s len);
/** Allocates a vector of len unsigned 32-bit integers. */
Vlq32u* vlqsMalloc_32u(Vlq32s len);
/** Allocates a vector of len 32-bit integers. */
Vlq32s* vlqsMalloc_32s(Vlq32s len);
/** Allocates a vector of len floats. */
Vlq32f* vlqsMalloc_32f(Vlq32s len);
/** Allocates a vector of len complex 32-bit values. */
Vlq32sc* vlqsMalloc_32sc(Vlq32s len);
/** Allocates a vector of len complex float values. */
Vlq32fc* vlqsMalloc_32fc(Vlq32s len);
/** Allocates a vector of len 64-bit integers. */
Vlq64s* vlqsMalloc_64s(Vlq32s len);
/** Allocates a vector of len doubles. */
Vlq64f* vlqsMalloc_64f(Vlq32s len);
/** Allocates a vector of len complex 64-bit values. */
Vlq64sc* vlqsMalloc_64sc(Vlq32s len);
/** Allocates a vector of len complex double values. */
Vlq64fc* vlqsMalloc_64fc(Vlq32s len);
/** Releases a vector or block of the library; null is harmless. */
void vlqsFree(void* ptr);
/** @} */

VLQS_END_DECLS

#endif
