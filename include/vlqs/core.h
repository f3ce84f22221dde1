/**
 * @file core.h
 * @brief The companion library vlqcore: memory, thread count, processor features, status text.
 *
 * vlqs imports the first five of these functions. A program may define any of them itself; the
 * dynamic linker then binds the library to the program's definition.
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
 * Allocates a block of memory aligned to 64 bytes.
 *
 * @param bytes size of the block; below 1 no block is made.
 * @return the block, contents undefined, or null when @p bytes is below 1 or memory is refused.
 *         Release it with vlqFree().
 */
VLQCORE_API void* vlqMalloc(Vlq64s bytes);

/**
 * Releases a block of vlqMalloc().
 *
 * @param block the block; null is harmless.
 */
VLQCORE_API void vlqFree(void* block);

/**
 * Rounds an address up: p + (-p & (alignBytes - 1)).
 *
 * @param ptr        any address.
 * @param alignBytes a power of two.
 * @return the first multiple of @p alignBytes at or after @p ptr.
 */
VLQCORE_API void* vlqAlignPtr(void* ptr, Vlq32s alignBytes);

/** Bits of vlqGetEnabledCpuFeatures(): set where processor and operating system both offer it. */
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

/** @return the mask of processor features that this process may use. */
VLQCORE_API Vlq64u vlqGetEnabledCpuFeatures(void);

/**
 * @return the number of threads, at least 1, that a library call may use: 1 unless vlqSetNumThreads()
 *         or the environment variable OMP_NUM_THREADS, read when the core library is loaded, allows
 *         more. The processors that the process may run on are the limit in either case.
 */
VLQCORE_API Vlq32s ownGetNumThreads(void);

/**
 * Sets the number of threads that a library call may use. A call starts them only for work that is
 * long enough to pay for it, and they end within the call.
 *
 * @param count 1 or more; below 1 returns to the default.
 */
VLQCORE_API void vlqSetNumThreads(Vlq32s count);

/**
 * @param status any status of the library.
 * @return one English sentence that explains it; never null, not to be freed.
 */
VLQCORE_API const char* vlqGetStatusString(VlqStatus status);

#if defined(__cplusplus)
}
#endif

#endif
