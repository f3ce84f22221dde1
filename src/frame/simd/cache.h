// The size of the cache, and from which amount of data on stores should bypass it.
#pragma once

#include <unistd.h>

#include <cstddef>

namespace vlq {

// Bytes that one thread can expect to keep in the last-level cache. The C library asked the
// processor when it was loaded, so this costs a few nanoseconds. Server processors and hypervisors
// report the caches of all cores together, of which a core fills only the slice nearest to it:
// hence the limit, which also serves where nothing is reported.
inline std::size_t cacheBytes() {
    constexpr long limit = 32L << 20;
    long bytes = 0;
#if defined(_SC_LEVEL3_CACHE_SIZE)
    bytes = sysconf(_SC_LEVEL3_CACHE_SIZE);
    if (bytes <= 0) bytes = sysconf(_SC_LEVEL2_CACHE_SIZE);
#endif
    return static_cast<std::size_t>(bytes <= 0 || bytes > limit ? limit : bytes);
}

// Whether a call that touches `bytes` bytes, sources and destination together, leaves nothing of
// its result in the cache. Non-temporal stores win from here on, whoever uses the result next;
// below, the next reader would have to fetch from memory what ordinary stores leave in the cache.
inline bool exceedsCache(std::size_t bytes) { return bytes >= cacheBytes() / 2 * 3; }

}  // namespace vlq
