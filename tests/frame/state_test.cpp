// The record scheme's helpers.
#include <gtest/gtest.h>

#include <cstring>

#include "frame/state/state.h"
#include "harness/core_double.h"

namespace {

using namespace vlq;

TEST(RelPtr, RefersInsideOneBlock) {
    struct Block {
        RelPtr<int> forward;
        int here;
        RelPtr<int> backward;
    } block;
    static_assert(sizeof(RelPtr<int>) == 4);
    block.forward = &block.here;
    block.backward = &block.here;
    EXPECT_EQ(&block.here, block.forward.get());
    EXPECT_EQ(&block.here, block.backward.get());
    block.backward = nullptr;
    EXPECT_EQ(nullptr, block.backward.get());
    block.backward = block.forward;  // refers to the same place, not by the same offset
    EXPECT_EQ(&block.here, block.backward.get());
}

TEST(AlignUp, FirstBoundaryAtOrAfter) {
    alignas(64) char bytes[256];
    for (std::size_t i = 0; i < 128; ++i)
        EXPECT_EQ(bytes + (i + 63) / 64 * 64, alignUp(bytes + i, 64));
}

TEST(Cursor, CarvesInOrder) {
    alignas(64) char bytes[512];
    Cursor cursor(bytes, sizeof bytes);
    EXPECT_EQ(static_cast<void*>(bytes), cursor.take<int>(3));
    EXPECT_EQ(static_cast<void*>(bytes + 64), cursor.take<double>(2, 64));
    EXPECT_EQ(static_cast<void*>(bytes + 80), cursor.take<char>(1));
}

TEST(WorkBuffer, CallersOrOwn) {
    vlqtest::Core::reset();
    alignas(64) Vlq8u bytes[256];
    {
        const WorkBuffer none(bytes, 0);
        EXPECT_EQ(nullptr, none.data());
        EXPECT_FALSE(none.refused());
        const WorkBuffer callers(bytes + 1, 64);
        EXPECT_EQ(bytes + 64, callers.data());
        EXPECT_EQ(0, vlqtest::Core::allocations());
        const WorkBuffer own(nullptr, 64);
        EXPECT_NE(nullptr, own.data());
        EXPECT_EQ(1, vlqtest::Core::allocations());
        vlqtest::Core::refuseAllocation(1);
        const WorkBuffer refused(nullptr, 64);
        EXPECT_TRUE(refused.refused());
    }
    EXPECT_EQ(0, vlqtest::Core::outstanding());
    vlqtest::Core::reset();
}

}  // namespace
