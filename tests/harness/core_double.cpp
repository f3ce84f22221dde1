// The test programs' own core library.
#include "harness/core_double.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

std::atomic<int> allocationCount{0};
std::atomic<int> outstandingCount{0};
std::atomic<int> refused{0};
std::atomic<int> threadCount{1};

}  // namespace

namespace vlqtest {

void Core::reset() {
    allocationCount = 0;
    refused = 0;
    threadCount = 1;
}
void Core::refuseAllocation(int k) { refused = k == 0 ? 0 : allocationCount + k; }
int Core::allocations() { return allocationCount; }
int Core::outstanding() { return outstandingCount; }
void Core::setThreads(int count) { threadCount = count; }

}  // namespace vlqtest

extern "C" {

void* vlqMalloc(Vlq64s bytes) {
    if (++allocationCount == refused) return nullptr;
    if (bytes < 1 || bytes > INT64_C(1) << 40) return nullptr;
    const std::size_t size = (static_cast<std::size_t>(bytes) + 63) & ~std::size_t{63};
    void* block = std::aligned_alloc(64, size);
    if (!block) return nullptr;
    // Fresh memory is never zero, so that code which counts on it is found out.
    std::memset(block, 0xA5, size);
    ++outstandingCount;
    return block;
}

void vlqFree(void* block) {
    if (block) --outstandingCount;
    std::free(block);
}

void* vlqAlignPtr(void* ptr, Vlq32s alignBytes) {
    const auto address = reinterpret_cast<std::uintptr_t>(ptr);
    return static_cast<char*>(ptr) +
           ((0 - address) & (static_cast<std::uintptr_t>(alignBytes) - 1));
}

Vlq64u vlqGetEnabledCpuFeatures() { return 0; }

Vlq32s ownGetNumThreads() { return threadCount; }

}  // extern "C"
