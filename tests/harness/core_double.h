// The test programs bring their own core library: the dynamic linker binds vlqs to it. It counts
// allocations, refuses the one it is told to, and reports any number of threads.
//
// Each test starts with counters at zero, nothing refused and one thread, and fails when a block
// that it allocated is left at its end: no test need look for leaks or reset the core itself.
#pragma once

#include "vlqs/core.h"

namespace vlqtest {

struct Core {
    static void reset();                  // nothing refused, counters at zero, one thread
    static void refuseAllocation(int k);  // the k-th from now (1 is the next); 0: none
    static int allocations();             // since reset
    static int outstanding();             // blocks not yet freed
    static void setThreads(int count);
};

}  // namespace vlqtest
