// The companion library itself, loaded apart from the test's own stand-in for it.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

#include "vlqs/core.h"

namespace {

template <class F>
F* coreFunction(const char* name) {
    static void* handle = dlopen("libvlqcore.so.7", RTLD_NOW);
    return reinterpret_cast<F*>(handle ? dlsym(handle, name) : nullptr);
}
#define CORE(name) coreFunction<decltype(name)>(#name)

TEST(Core, MallocAlignsTo64Bytes) {
    auto* allocate = CORE(vlqMalloc);
    auto* release = CORE(vlqFree);
    ASSERT_NE(nullptr, allocate);
    ASSERT_NE(nullptr, release);
    for (const Vlq64s bytes : {1, 63, 64, 65, 1000, 1 << 20}) {
        void* block = allocate(bytes);
        ASSERT_NE(nullptr, block);
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(block) % 64);
        release(block);
    }
    release(nullptr);
}

TEST(Core, MallocRefusesWhatItCannotHold) {
    auto* allocate = CORE(vlqMalloc);
    for (const Vlq64s bytes :
         {Vlq64s{0}, Vlq64s{-1}, INT64_MIN, INT64_MAX, INT64_MAX - 62, INT64_C(1) << 62}) {
        EXPECT_EQ(nullptr, allocate(bytes)) << bytes;
    }
}

TEST(Core, AlignPtrRoundsUp) {
    auto* align = CORE(vlqAlignPtr);
    alignas(256) static char block[512];
    for (int boundary = 1; boundary <= 256; boundary *= 2) {
        for (int offset = 0; offset < 256; ++offset) {
            const int want = (offset + boundary - 1) / boundary * boundary;
            EXPECT_EQ(block + want, align(block + offset, boundary));
        }
    }
}

Vlq32s processors() {
    cpu_set_t set;
    return sched_getaffinity(0, sizeof set, &set) == 0 ? CPU_COUNT(&set) : 1;
}

// The count of a core library that is loaded now, and so reads the environment of now: a copy,
// since the library itself is loaded already.
Vlq32s countAtLoad() {
    namespace fs = std::filesystem;
    Dl_info info;
    if (dladdr(reinterpret_cast<const void*>(CORE(ownGetNumThreads)), &info) == 0) return -1;
    const std::string copy = testing::TempDir() + "vlqcore-" + std::to_string(getpid()) + ".so";
    fs::copy_file(info.dli_fname, copy, fs::copy_options::overwrite_existing);
    void* handle = dlopen(copy.c_str(), RTLD_NOW | RTLD_LOCAL);
    fs::remove(copy);
    if (!handle) return -2;
    const auto get =
        reinterpret_cast<decltype(&ownGetNumThreads)>(dlsym(handle, "ownGetNumThreads"));
    const Vlq32s count = get ? get() : -3;
    dlclose(handle);
    return count;
}
Vlq32s countAtLoad(const char* environment) {
    setenv("OMP_NUM_THREADS", environment, 1);
    const Vlq32s count = countAtLoad();
    unsetenv("OMP_NUM_THREADS");
    return count;
}

TEST(Core, OneThreadUnlessMoreAreAllowed) {
    unsetenv("OMP_NUM_THREADS");
    EXPECT_EQ(1, countAtLoad());
    for (const char* one : {"", "x", "0", "-4", "2x", "1"}) EXPECT_EQ(1, countAtLoad(one)) << one;
    const Vlq32s two = std::min(2, processors());
    for (const char* many : {"2", " 2 ", "2,3", "2,x"}) EXPECT_EQ(two, countAtLoad(many)) << many;
    EXPECT_EQ(processors(), countAtLoad("99999999999999999999"));

    cpu_set_t before, one;
    ASSERT_EQ(0, sched_getaffinity(0, sizeof before, &before));
    CPU_ZERO(&one);
    CPU_SET(sched_getcpu(), &one);
    ASSERT_EQ(0, sched_setaffinity(0, sizeof one, &one));
    EXPECT_EQ(1, countAtLoad("2"));
    ASSERT_EQ(0, sched_setaffinity(0, sizeof before, &before));
}

TEST(Core, ThreadCount) {
    auto* get = CORE(ownGetNumThreads);
    auto* set = CORE(vlqSetNumThreads);
    const Vlq32s standard = get();
    EXPECT_GE(standard, 1);
    for (const Vlq32s count : {1, 2, 5, INT32_MAX}) {
        set(count);
        EXPECT_EQ(std::min(count, processors()), get());
    }
    set(0);
    EXPECT_EQ(standard, get());
    set(INT32_MIN);
    EXPECT_EQ(standard, get());
}

TEST(Core, FeaturesIncludeTheBaseline) {
    const Vlq64u mask = CORE(vlqGetEnabledCpuFeatures)();
    EXPECT_NE(0u, mask & vlqCpuSse2);
    EXPECT_EQ(mask, CORE(vlqGetEnabledCpuFeatures)());
}

TEST(Core, OneSentenceForEachStatus) {
    auto* text = CORE(vlqGetStatusString);
    const VlqStatus all[] = {vlqStsWarnBitWidth,
                             vlqStsWarnNaN,
                             vlqStsWarnLnNegative,
                             vlqStsWarnLnZero,
                             vlqStsWarnDivByZero,
                             vlqStsWarnEvenMask,
                             vlqStsWarnInvZero,
                             vlqStsWarnSqrtNegArg,
                             vlqStsOk,
                             vlqStsBadArg,
                             vlqStsBadSize,
                             vlqStsBadSelector,
                             vlqStsNullPtr,
                             vlqStsNoMemory,
                             vlqStsZeroDivisor,
                             vlqStsBadCauchyParam,
                             vlqStsBadScale,
                             vlqStsBadOrder,
                             vlqStsBadFlag,
                             vlqStsBadSpec,
                             vlqStsThresholdRange,
                             vlqStsThresholdNegative,
                             vlqStsBadDlyIndex,
                             vlqStsBadFilterOrder,
                             vlqStsBadTapCount,
                             vlqStsBadRelFreq,
                             vlqStsBadRatePhase,
                             vlqStsBadRateFactor,
                             vlqStsBadSamplePhase,
                             vlqStsBadSampleFactor,
                             vlqStsBadShift,
                             vlqStsBadMask,
                             vlqStsBadWaveletOffset,
                             vlqStsBadJaehneMagn,
                             vlqStsBadAlpha,
                             vlqStsBadTriangleAsym,
                             vlqStsBadTrianglePhase,
                             vlqStsBadTriangleFreq,
                             vlqStsBadTriangleMagn,
                             vlqStsBadTonePhase,
                             vlqStsBadToneFreq,
                             vlqStsBadToneMagn,
                             vlqStsBadChannelCount,
                             vlqStsBadMatrixStride,
                             vlqStsBadSparsePos,
                             vlqStsSingularMatrix,
                             vlqStsBadIIRGenOrder,
                             vlqStsBadIIRGenFreq,
                             vlqStsBadIIRGenRipple,
                             vlqStsBadRoundMode};
    EXPECT_EQ(50u, std::size(all));
    std::set<std::string> sentences;
    for (const VlqStatus status : all) {
        const std::string sentence = text(status);
        EXPECT_EQ('.', sentence.back()) << status;
        EXPECT_TRUE(sentences.insert(sentence).second) << "two statuses share: " << sentence;
    }
    const std::string unknown = text(-4711);
    EXPECT_EQ(0u, sentences.count(unknown));
    for (VlqStatus status = -300; status < 40; ++status) {
        bool known = false;
        for (const VlqStatus s : all) known = known || s == status;
        EXPECT_EQ(!known, unknown == text(status)) << status;
    }
}

}  // namespace
