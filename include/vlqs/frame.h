/**
 * @file frame.h
 * @brief Version record and vector memory.
 */
#ifndef VLQS_FRAME_H
#define VLQS_FRAME_H

#include "vlqs/types.h"

/** What vlqsGetLibVersion() tells about the loaded library. */
typedef struct {
    Vlq32s versionMajor; /**< major version */
    Vlq32s versionMinor; /**< minor version */
    Vlq32s versionPatch; /**< third number of the version */
    Vlq32s buildNumber;  /**< revision of the build */
    char
        targetTag[4]; /**< tag of the processor target, two letters and zeros: "s2", "v3" or "v4" */
    const char* libraryName; /**< name of the library with its target */
    const char* versionText; /**< version and revision as text */
    const char* buildDate;   /**< date of the revision */
} VlqLibraryVersion;

VLQS_BEGIN_DECLS

/**
 * Tells version and processor target of the loaded library.
 *
 * @return the one constant record, the same address on every call; not to be freed or written.
 */
const VlqLibraryVersion* vlqsGetLibVersion(void);

/** @name Vector memory
 *  @{ */
/**
 * Allocates a vector of @p len elements on a 64-byte boundary, contents undefined.
 *
 * **Size.** The byte count `len * sizeof(element)` is formed in 32 bits without an overflow test:
 * a count that wraps to a positive number allocates that smaller block, one that wraps below 1
 * gives null. Do not ask for 2 GiB or more.
 *
 * **Memory.** One block of the core library's vlqMalloc(); release it with vlqsFree(). A length
 * below 1 gives null without a call to the core library.
 *
 * @param len number of elements.
 * @return the vector, or null when @p len is below 1 or memory is refused.
 */
Vlq8u* vlqsMalloc_8u(Vlq32s len);
Vlq8s* vlqsMalloc_8s(Vlq32s len);
Vlq8sc* vlqsMalloc_8sc(Vlq32s len);
Vlq16u* vlqsMalloc_16u(Vlq32s len);
Vlq16s* vlqsMalloc_16s(Vlq32s len);
Vlq16sc* vlqsMalloc_16sc(Vlq32s len);
Vlq32u* vlqsMalloc_32u(Vlq32s len);
Vlq32s* vlqsMalloc_32s(Vlq32s len);
Vlq32f* vlqsMalloc_32f(Vlq32s len);
Vlq32sc* vlqsMalloc_32sc(Vlq32s len);
Vlq32fc* vlqsMalloc_32fc(Vlq32s len);
Vlq64s* vlqsMalloc_64s(Vlq32s len);
Vlq64f* vlqsMalloc_64f(Vlq32s len);
Vlq64sc* vlqsMalloc_64sc(Vlq32s len);
Vlq64fc* vlqsMalloc_64fc(Vlq32s len);
/** @} */

/**
 * Releases a vector or block that the library allocated.
 *
 * @param ptr the block; handed to the core library's vlqFree() as it stands, so null is harmless.
 */
void vlqsFree(void* ptr);

VLQS_END_DECLS

#endif
