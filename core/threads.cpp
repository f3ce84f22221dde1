// The number of threads that a call may use.
#include <sched.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>

#include "vlqs/core.h"

namespace {

Vlq32s availableProcessors() {
    cpu_set_t sets[16] = {};  // 16,384 processors
    if (sched_getaffinity(0, sizeof sets, sets) != 0) return 1;
    return std::max(1, CPU_COUNT_S(sizeof sets, sets));
}

Vlq32s permitted(Vlq32s wanted) {
    return wanted <= 1 ? 1 : std::min(wanted, availableProcessors());
}

// OMP_NUM_THREADS is a list with one number for each level of nesting; the first is ours.
Vlq32s countOfEnvironment() {
    const char* text = std::getenv("OMP_NUM_THREADS");
    if (!text) return 1;
    char* end;
    const long count = std::strtol(text, &end, 10);
    if (end == text || (*end != '\0' && *end != ',' && *end != ' ')) return 1;
    return permitted(static_cast<Vlq32s>(std::clamp(count, 1L, 1L << 30)));
}

Vlq32s standardCount = 1;
std::atomic<Vlq32s> count{1};

// At load, when no other thread can be changing the environment.
__attribute__((constructor)) void readEnvironment() {
    standardCount = countOfEnvironment();
    count.store(standardCount, std::memory_order_relaxed);
}

}  // namespace

Vlq32s ownGetNumThreads() { return count.load(std::memory_order_relaxed); }

void vlqSetNumThreads(Vlq32s wanted) {
    count.store(wanted < 1 ? standardCount : permitted(wanted), std::memory_order_relaxed);
}
