/**
 * @file core.h
 * @brief The companion library vlqcore: memory, thread count, processor features, status text.
 */
#ifndef VLQS_CORE_H
#define VLQS_CORE_H

#include <stddef.h>

#include "vlqs/types.h"

#if defined(__GNUC__)
#define VLQCORE_API __attribute__((visibility("default")))
#else
#define VLQCORE_API
#endif

#if defined(__cplusplus)
extern "C" {
#endif

/**
 * @defgroup vlqs_core Core library
 *
 * libvlqcore.so, which libvlqs.so needs at run time. A program that calls one of these functions
 * itself links it too: `-lvlqs -lvlqcore`.
 *
 * libvlqs imports the first five. A program may define any of them itself, for instance vlqMalloc()
 * and vlqFree() on a pool of its own; the dynamic linker then binds libvlqs to the program's
 * definition.
 *
 * @{
 */

/**
 * Allocates a block aligned to 64 bytes, contents undefined; null for bytes < 1 or out of memory.
 *
 * @param bytes size of the block.
 * @return the block, to be released with vlqFree(), or null.
 */
VLQCORE_API void* vlqMalloc(Vlq64s bytes);

/**
 * Releases a block of vlqMalloc(); null is harmless.
 *
 * @param block the block.
 */
VLQCORE_API void vlqFree(void* block);

/**
 * Rounds an address up to a multiple of alignBytes, a power of two.
 *
 * @param ptr        any address.
 * @param alignBytes a power of two.
 * @return the first multiple of @p alignBytes at or after @p ptr.
 */
VLQCORE_API void* vlqAlignPtr(void* ptr, Vlq32s alignBytes);

/** Bits of vlqGetEnabledCpuFeatures(): set if processor and operating system both support it. */
enum {
    vlqCpuSse2 = 0x4,     /**< SSE2 */
    vlqCpuSse3 = 0x8,     /**< SSE3 */
    vlqCpuSsse3 = 0x10,   /**< SSSE3 */
    vlqCpuSse41 = 0x40,   /**< SSE4.1 */
    vlqCpuSse42 = 0x80,   /**< SSE4.2 */
    vlqCpuAvx = 0x100,    /**< AVX */
    vlqCpuFma = 0x400,    /**< fused multiply-add */
    vlqCpuAvx2 = 0x800,   /**< AVX2 */
    vlqCpuAvx512 = 0x1000 /**< AVX-512 F, BW, CD, DQ and VL */
};

/**
 * Returns the mask of processor features that this process may use, bits vlqCpuSse2 and so on.
 *
 * @return the mask.
 */
VLQCORE_API Vlq64u vlqGetEnabledCpuFeatures(void);

/**
 * Returns the number of threads that a library call may use, at least 1.
 *
 * The count is 1, so threads are off, unless vlqSetNumThreads() or the environment variable
 * OMP_NUM_THREADS, read when the core library is loaded, allows more. The processors in the
 * affinity mask are the limit in either case. Block FIR filters with float or double taps use more
 * than one thread; everything else runs on the calling thread alone.
 *
 * A call starts threads only for work that is long enough to pay for them, and they end within the
 * call. Between calls the library has no threads, so a process may call fork(), and parent and
 * child may both go on using it. As in any threaded program, a child must not use a state or spec
 * that another thread was working on at the moment of the fork.
 *
 * @return the number of threads.
 */
VLQCORE_API Vlq32s ownGetNumThreads(void);

/**
 * Sets the number of threads that a library call may use; below 1 restores the default.
 *
 * A FIR state has room for the count that is valid when its size is queried and when it is built.
 * Set the count before both, and do not raise it while such a state is in use.
 *
 * @param count number of threads; it is capped to the processors in the affinity mask.
 */
VLQCORE_API void vlqSetNumThreads(Vlq32s count);

/**
 * Returns one English sentence that explains a status; never null, not to be freed.
 *
 * @param status any status of the library.
 * @return the sentence.
 */
VLQCORE_API const char* vlqGetStatusString(VlqStatus status);
/** @} */

#if defined(__cplusplus)
}
#endif

#endif
