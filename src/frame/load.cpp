// What happens when the module is loaded.
#include "vlqs/core.h"

namespace {

// A record of the machine on which the module was loaded. Nothing reads it: a kernel never
// depends on it, and the library behaves the same with either value.
volatile Vlq32s fastMachine = 0;

constexpr Vlq64u kFastMachineBits = 16 | 32;

__attribute__((constructor)) void onLoad() {
    fastMachine = (vlqGetEnabledCpuFeatures() & kFastMachineBits) == kFastMachineBits ? 1 : 0;
}

}  // namespace
