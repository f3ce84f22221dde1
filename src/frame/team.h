// The fork-join frame: one parallel region, a master section, one barrier, and then each thread on
// its own share. The caller decides by the length of the work whether a team is worth it, and
// prepares everything that can fail or that needs memory before it comes here.
#pragma once

#include <omp.h>

#include <algorithm>

#include "vlqs/types.h"

namespace vlq {

// Runs plan(size) on thread 0, then work(thread) on every thread of the team, thread < size. The
// runtime may give fewer threads than asked for; where it allows no fork at all (nested regions
// used up), the calling thread is a team of one.
template <class Plan, class Work>
inline void forkTeam(Vlq32s threads, Plan&& plan, Work&& work) {
    if (omp_get_active_level() >= omp_get_max_active_levels()) {
        plan(1);
        work(0);
        return;
    }
#pragma omp parallel num_threads(threads)
    {
#pragma omp master
        plan(static_cast<Vlq32s>(omp_get_num_threads()));
        // The switch is for the test that shows a race detector seeing this frame.
#if !defined(VLQ_TEAM_WITHOUT_BARRIER)
#pragma omp barrier
#endif
        work(static_cast<Vlq32s>(omp_get_thread_num()));
    }
}

// block(index, thread) for the ceil(total / step) blocks, dealt out in turn. Each thread folds its
// statuses into its own slot of `status` (one for each of `threads`) by minimum; a failure stops
// no other block. The lowest status of all is the result. Which thread runs a block changes
// nothing that the block writes.
template <class Block>
inline VlqStatus shareBlocks(Vlq32s threads, Vlq64s total, Vlq64s step, VlqStatus* status,
                             Block&& block) {
    Vlq32s size = 0;
    Vlq64s blocks = 0;
    forkTeam(
        threads,
        [&](Vlq32s actual) {
            size = actual;
            blocks = (total + step - 1) / step;
            std::fill_n(status, threads, vlqStsOk);
        },
        [&](Vlq32s thread) {
            VlqStatus lowest = status[thread];
            for (Vlq64s index = thread; index < blocks; index += size) {
                lowest = std::min(lowest, block(index, thread));
            }
            status[thread] = lowest;
        });
    return *std::min_element(status, status + threads);
}

// part(first, count) for equal parts of `total` items, the last thread's with the remainder.
template <class Part>
inline void shareEvenly(Vlq32s threads, Vlq32s total, Part&& part) {
    Vlq32s size = 0;
    Vlq32s share = 0;
    forkTeam(
        threads,
        [&](Vlq32s actual) {
            size = actual;
            share = total / actual;
        },
        [&](Vlq32s thread) {
            const Vlq32s first = thread * share;
            const Vlq32s count = thread == size - 1 ? total - first : share;
            if (count > 0) part(first, count);
        });
}

}  // namespace vlq
