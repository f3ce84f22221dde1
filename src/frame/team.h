// The fork-join frame: a team of threads that exists only within one call. The calling thread is
// thread 0. The caller prepares everything that can fail or that needs memory before it comes here.
#pragma once

#include <algorithm>

#include "vlqs/types.h"

namespace vlq {

// Threads beyond this many are not started.
inline constexpr Vlq32s kLargestTeam = 64;

// Work that a thread must have for its start to pay. Starting a thread and waiting for its end
// takes 25 microseconds on an idle machine and 110 to 170 on a busy one, and its share of the
// vectors is in another processor's cache. With this much work a team of two gains on the former
// and does not lose on the latter. Builds with a sanitizer start every thread that is allowed, so
// that short vectors test them.
#if defined(VLQS_EAGER_TEAMS)
inline constexpr double kNanosecondsPerThread = 1;
#else
inline constexpr double kNanosecondsPerThread = 250'000;
#endif

// How many threads, 1 to `allowed`, are worth their start for work that takes one thread so many
// nanoseconds.
inline Vlq32s teamSize(Vlq32s allowed, double nanoseconds) {
    const double most = std::clamp(allowed, 1, kLargestTeam);
    return static_cast<Vlq32s>(std::clamp(nanoseconds / kNanosecondsPerThread, 1.0, most));
}

// work(context, thread) for each thread < threads, at once where the system has the threads to
// give, and else one after the other on the calling thread.
void forkTeam(Vlq32s threads, void (*work)(const void* context, Vlq32s thread),
              const void* context);

template <class Work>
inline void forkTeam(Vlq32s threads, const Work& work) {
    const auto run = [](const void* context, Vlq32s thread) {
        (*static_cast<const Work*>(context))(thread);
    };
    forkTeam(threads, run, &work);
}

// block(index, thread) for the ceil(total / step) blocks, dealt out in turn. Each thread folds its
// statuses into its own slot of `status` (one for each of `threads`) by minimum; a failure stops
// no other block. The lowest status of all is the result. Which thread runs a block changes
// nothing that the block writes.
template <class Block>
inline VlqStatus shareBlocks(Vlq32s threads, Vlq64s total, Vlq64s step, VlqStatus* status,
                             const Block& block) {
    const Vlq64s blocks = (total + step - 1) / step;
    forkTeam(threads, [&](Vlq32s thread) {
        VlqStatus lowest = vlqStsOk;
        for (Vlq64s index = thread; index < blocks; index += threads) {
            lowest = std::min(lowest, block(index, thread));
        }
        status[thread] = lowest;
    });
    return *std::min_element(status, status + threads);
}

// part(first, count) for equal parts of `total` items, the last thread's with the remainder.
template <class Part>
inline void shareEvenly(Vlq32s threads, Vlq32s total, const Part& part) {
    const Vlq32s share = total / threads;
    forkTeam(threads, [&](Vlq32s thread) {
        const Vlq32s first = thread * share;
        const Vlq32s count = thread == threads - 1 ? total - first : share;
        if (count > 0) part(first, count);
    });
}

}  // namespace vlq
