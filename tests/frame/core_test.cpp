// The companion library itself, loaded apart from the test's own stand-in for it.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
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

TEST(Core, ThreadCount) {
    auto* get = CORE(ownGetNumThreads);
    auto* set = CORE(vlqSetNumThreads);
    const Vlq32s standard = get();
    EXPECT_GE(standard, 1);
    set(5);
    EXPECT_EQ(5, get());
    set(0);
    EXPECT_EQ(standard, get());
    set(-3);
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
