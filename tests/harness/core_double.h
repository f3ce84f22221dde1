// The test programs bring their own core library: the dynamic linker binds vlqs to it. It counts
// allocations, refuses the one it is told to, and reports any number of threads.
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
