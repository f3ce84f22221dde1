// The framework of states, on a small state of its own.
#include "frame/state/state.h"

#include <gtest/gtest.h>

#include <cstring>

#include "harness/buffer.h"
#include "harness/core_double.h"

namespace {

using namespace vlq;
using vlqtest::Core;

static_assert(tag("FI01") == 0x46493031 && tag("LMSC") == 0x4C4D5343);
static_assert(isOneOf<tag("FI01"), 7>(7) && !isOneOf<tag("FI01"), 7>(8) && !isOneOf<>(0));
static_assert(roundUp(0, 16) == 0 && roundUp(1, 16) == 16 && roundUp(16, 16) == 16);
static_assert(roundDown(15, 16) == 0 && roundDown(16, 16) == 16 && roundDown(31, 16) == 16);
static_assert(fitsState(2147483646) && !fitsState(2147483647));
static_assert(reportedSize(2147483646) == 2147483646 && reportedSize(2147483648) == 2147483647);

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
    std::memset(bytes, 0x5A, sizeof bytes);
    Cursor cursor(bytes, sizeof bytes);
    EXPECT_EQ(static_cast<void*>(bytes), cursor.take<int>(3));
    EXPECT_EQ(static_cast<void*>(bytes + 64), cursor.take<double>(2, 64));
    EXPECT_EQ(static_cast<void*>(bytes + 80), cursor.take<char>(1));
    EXPECT_EQ(static_cast<void*>(bytes + 96), cursor.takeBytes<double>(20, 16));
    struct Header {
        int a, b;
    };
    const Header* header = cursor.takeHeader<Header>(8);
    EXPECT_EQ(static_cast<const void*>(bytes + 120), header);
    EXPECT_EQ(0, header->a);
    EXPECT_EQ(0, header->b);
}

TEST(WorkBuffer, CallersOrOwn) {
    Core::reset();
    alignas(64) Vlq8u bytes[256];
    {
        const WorkBuffer none(bytes, 0);
        EXPECT_EQ(nullptr, none.data());
        EXPECT_FALSE(none.refused());
        const WorkBuffer callers(bytes + 1, 64);
        EXPECT_EQ(bytes + 64, callers.data());
        EXPECT_EQ(static_cast<void*>(bytes + 64), callers.as<double>());
        EXPECT_EQ(0, Core::allocations());
        const WorkBuffer own(nullptr, 64);
        EXPECT_NE(nullptr, own.data());
        EXPECT_EQ(1, Core::allocations());
        Core::refuseAllocation(1);
        const WorkBuffer refused(nullptr, 64);
        EXPECT_TRUE(refused.refused());
        const int before = Core::allocations();
        const WorkBuffer tooLarge(nullptr, Vlq64s{1} << 31);
        EXPECT_TRUE(tooLarge.refused());
        EXPECT_EQ(before, Core::allocations());
    }
    EXPECT_EQ(0, Core::outstanding());
    Core::reset();
}

// A state with one array of `count` integers.
struct Counter {
    static constexpr std::size_t kAlignment = 16;
    Vlq32u tag;
    RelPtr<Vlq32s> values;
    Vlq32s count;
    Vlq32s owned;
};
constexpr Vlq32u kCounter = tag("CNT1"), kOther = tag("CNT2");

constexpr Vlq64s counterBytes(Vlq64s count) { return 16 + Vlq64s{sizeof(Counter)} + 4 * count; }

VlqStatus initCounter(Counter** out, Vlq32s count, Vlq8u* memory, VlqStatus result = vlqStsOk) {
    return initState(out, kCounter, memory, counterBytes(count),
                     [=](Counter& state, Cursor& cursor) {
                         EXPECT_EQ(0u, state.tag);
                         state.count = count;
                         state.values = cursor.take<Vlq32s>(count);
                         for (Vlq32s i = 0; i < count; ++i) state.values.get()[i] = i;
                         return result;
                     });
}
VlqStatus initAllocCounter(Counter** out, Vlq32s count, Vlq64s scratchBytes = 0,
                           VlqStatus result = vlqStsOk) {
    return initAllocState(out, counterBytes(count), scratchBytes,
                          [=](Vlq8u* memory, Vlq8u* scratch) {
                              EXPECT_EQ(scratchBytes > 0, scratch != nullptr);
                              return initCounter(out, count, memory, result);
                          });
}

TEST(Init, StaysInsideTheSizeAtEveryAlignment) {
    for (std::size_t spare = 0; spare < 16; ++spare) {
        vlqtest::Buffer<Vlq8u> memory(static_cast<std::size_t>(counterBytes(5)) + spare,
                                      {0, true});  // flush against a protected page
        Counter* state = nullptr;
        ASSERT_EQ(vlqStsOk, initCounter(&state, 5, memory.data()));
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(state) % 16);
        EXPECT_EQ(kCounter, state->tag);
        EXPECT_EQ(0, state->owned);
        EXPECT_EQ(4, state->values.get()[4]);
    }
}

TEST(Init, FailureLeavesNoState) {
    alignas(16) Vlq8u memory[128] = {};
    Counter* state = nullptr;
    EXPECT_EQ(vlqStsBadFlag, initCounter(&state, 5, memory, vlqStsBadFlag));
    EXPECT_EQ(nullptr, state);
    EXPECT_EQ(0u, reinterpret_cast<Counter*>(memory)->tag);
}

TEST(Init, RefusesStatesOf2GiB) {
    alignas(16) Vlq8u memory[16] = {};
    Counter* state = nullptr;
    EXPECT_EQ(vlqStsNoMemory, initCounter(&state, 1 << 29, memory));
    Core::reset();
    EXPECT_EQ(vlqStsNoMemory, initAllocCounter(&state, 1 << 29));
    EXPECT_EQ(vlqStsNoMemory, initAllocCounter(&state, 1, Vlq64s{1} << 31));
    EXPECT_EQ(0, Core::allocations());
}

TEST(InitAlloc, OwnsOneBlock) {
    Core::reset();
    Counter* state = nullptr;
    ASSERT_EQ(vlqStsOk, initAllocCounter(&state, 3, 100));
    EXPECT_EQ(2, Core::allocations());
    EXPECT_EQ(1, Core::outstanding());  // the scratch is gone
    EXPECT_EQ(1, state->owned);
    EXPECT_EQ(vlqStsOk, freeIfOwned<kCounter>(state));
    EXPECT_EQ(0, Core::outstanding());
}

TEST(InitAlloc, LeaksNothingWhenItFails) {
    for (const int refused : {1, 2}) {
        Core::reset();
        Core::refuseAllocation(refused);
        Counter* state = nullptr;
        EXPECT_EQ(vlqStsNoMemory, initAllocCounter(&state, 3, 100));
        EXPECT_EQ(nullptr, state);
        EXPECT_EQ(0, Core::outstanding());
    }
    Core::reset();
    Counter* state = nullptr;
    EXPECT_EQ(vlqStsBadFlag, initAllocCounter(&state, 3, 100, vlqStsBadFlag));
    EXPECT_EQ(0, Core::outstanding());
}

class Free : public ::testing::Test {
protected:
    void SetUp() override {
        Core::reset();
        ASSERT_EQ(vlqStsOk, initCounter(&inPlace, 3, memory));
        ASSERT_EQ(vlqStsOk, initAllocCounter(&allocated, 3));
    }
    void TearDown() override { EXPECT_EQ(0, Core::outstanding()); }

    auto count() {
        return [this](Counter&) { ++released; };
    }

    alignas(16) Vlq8u memory[128];
    Counter* inPlace = nullptr;
    Counter* allocated = nullptr;
    Counter* none = nullptr;
    int released = 0;
};

TEST_F(Free, AndClear) {
    EXPECT_EQ(vlqStsNullPtr, freeAndClear<kCounter>(none));
    EXPECT_EQ(vlqStsBadSpec, freeAndClear<kOther>(inPlace));
    EXPECT_EQ(kCounter, inPlace->tag);
    EXPECT_EQ(vlqStsOk, (freeAndClear<kOther, kCounter>(inPlace)));
    EXPECT_EQ(0u, inPlace->tag);
    EXPECT_EQ(vlqStsBadSpec, freeAndClear<kCounter>(inPlace));
    EXPECT_EQ(vlqStsOk, freeAndClear<kCounter>(allocated));
}

TEST_F(Free, IfOwned) {
    EXPECT_EQ(vlqStsNullPtr, freeIfOwned<kCounter>(none));
    EXPECT_EQ(vlqStsBadSpec, freeIfOwned<kOther>(allocated, count()));
    EXPECT_EQ(vlqStsOk, freeIfOwned<kCounter>(inPlace, count()));
    EXPECT_EQ(kCounter, inPlace->tag);
    EXPECT_EQ(0, released);
    EXPECT_EQ(vlqStsOk, freeIfOwned<kCounter>(allocated, count()));
    EXPECT_EQ(1, released);
}

TEST_F(Free, Always) {
    EXPECT_EQ(vlqStsNullPtr, freeAlways<kCounter>(none));
    EXPECT_EQ(vlqStsBadSpec, freeAlways<kOther>(allocated, count()));
    allocated->owned = 0;  // not asked for
    EXPECT_EQ(vlqStsOk, freeAlways<kCounter>(allocated, count()));
    EXPECT_EQ(1, released);
}

TEST_F(Free, Unchecked) {
    EXPECT_EQ(vlqStsOk, freeUnchecked(none, count()));
    EXPECT_EQ(0, released);
    allocated->tag = kOther;
    EXPECT_EQ(vlqStsOk, freeUnchecked(allocated, count()));
    EXPECT_EQ(1, released);
}

}  // namespace
