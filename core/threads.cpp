#include <sched.h>

#include <atomic>

#include "vlqs/core.h"

namespace {

std::atomic<Vlq32s> chosenCount{0};  // 0: the default

Vlq32s availableProcessors() {
    cpu_set_t set;
    if (sched_getaffinity(0, sizeof set, &set) != 0) return 1;
    const int count = CPU_COUNT(&set);
    return count < 1 ? 1 : count;
}

}  // namespace

Vlq32s ownGetNumThreads() {
    const Vlq32s count = chosenCount.load(std::memory_order_relaxed);
    if (count > 0) return count;
    // Asked once: the call stands on every path of block filters, and a system call does not belong
    // there.
    static const Vlq32s processors = availableProcessors();
    return processors;
}

void vlqSetNumThreads(Vlq32s count) {
    chosenCount.store(count < 1 ? 0 : count, std::memory_order_relaxed);
}
