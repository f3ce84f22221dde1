// Features of the processor that the process may use.
#include "vlqs/core.h"

Vlq64u vlqGetEnabledCpuFeatures() {
    __builtin_cpu_init();
    Vlq64u mask = 0;
    if (__builtin_cpu_supports("sse2")) mask |= vlqCpuSse2;
    if (__builtin_cpu_supports("sse3")) mask |= vlqCpuSse3;
    if (__builtin_cpu_supports("ssse3")) mask |= vlqCpuSsse3;
    if (__builtin_cpu_supports("sse4.1")) mask |= vlqCpuSse41;
    if (__builtin_cpu_supports("sse4.2")) mask |= vlqCpuSse42;
    if (__builtin_cpu_supports("avx")) mask |= vlqCpuAvx;
    if (__builtin_cpu_supports("fma")) mask |= vlqCpuFma;
    if (__builtin_cpu_supports("avx2")) mask |= vlqCpuAvx2;
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
        __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
        __builtin_cpu_supports("avx512vl")) {
        mask |= vlqCpuAvx512;
    }
    return mask;
}
