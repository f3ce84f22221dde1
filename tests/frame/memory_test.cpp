// Vector memory: sizes, alignment, and what reaches the core library.
#include <gtest/gtest.h>

#include <cstdint>
#include <set>

#include "harness/core_double.h"
#include "vlqs.h"

namespace {

using vlqtest::Core;

template <class T>
void checkAllocator(T* (*allocate)(Vlq32s)) {
    Core::reset();
    const int before = Core::outstanding();
    EXPECT_EQ(nullptr, allocate(0));
    EXPECT_EQ(nullptr, allocate(-1));
    EXPECT_EQ(nullptr, allocate(INT32_MIN));
    EXPECT_EQ(0, Core::allocations()) << "a length below 1 must not reach the core library";

    std::set<T*> blocks;
    for (const Vlq32s len : {1, 2, 63, 64, 65, 4097}) {
        T* block = allocate(len);
        ASSERT_NE(nullptr, block);
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(block) % 64);
        for (Vlq32s i = 0; i < len; ++i) block[i] = T{};
        blocks.insert(block);
    }
    EXPECT_EQ(6u, blocks.size());
    EXPECT_EQ(6, Core::allocations());
    for (T* block : blocks) vlqsFree(block);
    EXPECT_EQ(before, Core::outstanding());

    Core::refuseAllocation(1);
    EXPECT_EQ(nullptr, allocate(16));
    Core::reset();
}

TEST(Memory, EveryAllocator) {
    checkAllocator(vlqsMalloc_8u);
    checkAllocator(vlqsMalloc_8s);
    checkAllocator(vlqsMalloc_8sc);
    checkAllocator(vlqsMalloc_16u);
    checkAllocator(vlqsMalloc_16s);
    checkAllocator(vlqsMalloc_16sc);
    checkAllocator(vlqsMalloc_32u);
    checkAllocator(vlqsMalloc_32s);
    checkAllocator(vlqsMalloc_32f);
    checkAllocator(vlqsMalloc_32sc);
    checkAllocator(vlqsMalloc_32fc);
    checkAllocator(vlqsMalloc_64s);
    checkAllocator(vlqsMalloc_64f);
    checkAllocator(vlqsMalloc_64sc);
    checkAllocator(vlqsMalloc_64fc);
}

TEST(Memory, ByteCountIsFormedIn32Bits) {
    // 2^28 + 1 elements of 16 bytes count 16 bytes after the wrap; 2^27 count -2^31.
    Core::reset();
    Vlq64fc* wrapped = vlqsMalloc_64fc((1 << 28) + 1);
    EXPECT_NE(nullptr, wrapped);
    vlqsFree(wrapped);
    EXPECT_EQ(nullptr, vlqsMalloc_64fc(1 << 27));
    EXPECT_EQ(nullptr, vlqsMalloc_64fc(1 << 28));
    EXPECT_EQ(nullptr, vlqsMalloc_32f(1 << 29));
    EXPECT_EQ(nullptr, vlqsMalloc_16s(1 << 30));
}

TEST(Memory, FreeOfNullIsHarmless) { vlqsFree(nullptr); }

}  // namespace
