// Integer FIR filters without a record.
#include <climits>

#include "filter/fir/integer/integer_kinds.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

struct Direct16 {
    using Sample = Vlq16s;
    using Tap = Vlq16s;
    static constexpr auto one = vlqsFIROne_Direct_16s_Sfs;
    static constexpr auto oneInPlace = vlqsFIROne_Direct_16s_ISfs;
};
struct Direct32 {
    using Sample = Vlq16s;
    using Tap = Vlq32s;
    static constexpr auto one = vlqsFIROne32s_Direct_16s_Sfs;
    static constexpr auto oneInPlace = vlqsFIROne32s_Direct_16s_ISfs;
    static constexpr auto block = vlqsFIR32s_Direct_16s_Sfs;
    static constexpr auto blockInPlace = vlqsFIR32s_Direct_16s_ISfs;
};
struct DirectComplex {
    using Sample = Vlq16sc;
    using Tap = Vlq32sc;
    static constexpr auto one = vlqsFIROne32sc_Direct_16sc_Sfs;
    static constexpr auto oneInPlace = vlqsFIROne32sc_Direct_16sc_ISfs;
    static constexpr auto block = vlqsFIR32sc_Direct_16sc_Sfs;
    static constexpr auto blockInPlace = vlqsFIR32sc_Direct_16sc_ISfs;
};

template <class K>
class FirIntDirect : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override { EXPECT_EQ(0, Core::allocations()); }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
};
using Directs = ::testing::Types<Direct16, Direct32, DirectComplex>;
TYPED_TEST_SUITE(FirIntDirect, Directs);

constexpr int kScales[] = {0, 1, 3, 15, 31, 32, INT_MAX, -1, -8, -31, -32, INT_MIN};

// Plain taps, no factor: sums wrap to 32 bits, then the scale factor alone.
TYPED_TEST(FirIntDirect, SingleSamples) {
    using Sample = typename TypeParam::Sample;
    using Tap = typename TypeParam::Tap;
    for (int taps = 1; taps < 80; taps += 1 + taps / 9) {
        for (const int scale : kScales) {
            const auto data = taps % 2 ? Data::Small : Data::Extreme;
            const auto h = values<Tap>(count(taps), this->rng, data);
            const Buffer<Tap> oddTaps(h, {1});
            FirIntRef<Sample, Tap> ref(h, 0);
            Buffer<Sample> line(std::vector<Sample>(count(2 * taps), Sample{}), {taps % 5});
            Buffer<Vlq32s> index(std::vector<Vlq32s>{0}, {taps % 3});
            for (int i = 0; i < 2 * taps + 3; ++i) {
                const Sample x = values<Sample>(1, this->rng, data)[0];
                const Sample want = ref.next(x, scale);
                Buffer<Sample> y(std::vector<Sample>{x}, {i % 3});
                if (i % 2 == 0) {
                    ASSERT_EQ(vlqStsOk, TypeParam::one(x, y.data(), oddTaps.data(), taps,
                                                       line.data(), index.data(), scale));
                } else {
                    ASSERT_EQ(vlqStsOk, TypeParam::oneInPlace(y.data(), oddTaps.data(), taps,
                                                              line.data(), index.data(), scale));
                }
                ASSERT_TRUE(same(y, {want}))
                    << taps << " taps, scale " << scale << ", sample " << i;
                ASSERT_EQ((i + 1) % taps, index.values()[0]);
                // The window at the index, oldest first.
                const auto ring = line.values();
                const auto start = ring.begin() + index.values()[0];
                ASSERT_EQ(ref.line, std::vector<Sample>(std::reverse_iterator(start + taps),
                                                        std::reverse_iterator(start)));
                ASSERT_TRUE(line.marginsIntact() && index.marginsIntact());
            }
        }
    }
}

template <class K>
class FirIntDirectBlock : public FirIntDirect<K> {};
using BlockDirects = ::testing::Types<Direct32, DirectComplex>;
TYPED_TEST_SUITE(FirIntDirectBlock, BlockDirects);

// Blocks are so many single samples, in place or not, in any cut.
TYPED_TEST(FirIntDirectBlock, AnyCut) {
    using Sample = typename TypeParam::Sample;
    using Tap = typename TypeParam::Tap;
    for (int run = 0; run < 60; ++run) {
        const int taps = 1 + this->below(50), scale = this->below(24) - 2;
        const auto h = values<Tap>(count(taps), this->rng, run % 2 ? Data::Small : Data::Extreme);
        FirIntRef<Sample, Tap> ref(h, 0);
        std::vector<Sample> line(count(2 * taps));
        Vlq32s index = 0;
        for (int turn = 0; turn < 10; ++turn) {
            const int len = 1 + this->below(80);
            const auto src = values<Sample>(count(len), this->rng);
            Buffer<Sample> dst(src, {this->below(64), turn % 4 == 0});
            const Buffer<Sample> in(src, {this->below(64)});
            if (turn % 2 == 0) {
                ASSERT_EQ(vlqStsOk, TypeParam::block(in.data(), dst.data(), len, h.data(), taps,
                                                     line.data(), &index, scale));
            } else {
                ASSERT_EQ(vlqStsOk, TypeParam::blockInPlace(dst.data(), len, h.data(), taps,
                                                            line.data(), &index, scale));
            }
            ASSERT_TRUE(same(dst, ref.block(src, scale))) << "run " << run << ", turn " << turn;
        }
    }
}

TYPED_TEST(FirIntDirectBlock, Checks) {
    using Sample = typename TypeParam::Sample;
    std::vector<Sample> x(4), line(4);
    const std::vector<typename TypeParam::Tap> h(2);
    Vlq32s index = 1;
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::block(nullptr, x.data(), 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::block(x.data(), nullptr, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize,
              TypeParam::block(x.data(), x.data(), 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::block(x.data(), x.data(), 1, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadTapCount,
              TypeParam::block(x.data(), x.data(), 1, h.data(), 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::block(x.data(), x.data(), 1, h.data(), 2, nullptr, &index, 0));
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::block(x.data(), x.data(), 1, h.data(), 2, line.data(), nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::blockInPlace(nullptr, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, TypeParam::blockInPlace(x.data(), 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::blockInPlace(x.data(), 1, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadTapCount,
              TypeParam::blockInPlace(x.data(), 1, h.data(), 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::blockInPlace(x.data(), 1, h.data(), 2, nullptr, &index, 0));
    EXPECT_EQ(1, index);
}

TYPED_TEST(FirIntDirect, Checks) {
    using Sample = typename TypeParam::Sample;
    Sample x{};
    std::vector<Sample> line(4);
    const std::vector<typename TypeParam::Tap> h(2);
    Vlq32s index = 1;
    EXPECT_EQ(vlqStsNullPtr, TypeParam::one(x, nullptr, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::one(x, &x, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadTapCount, TypeParam::one(x, &x, h.data(), 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::one(x, &x, h.data(), 2, nullptr, &index, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::one(x, &x, h.data(), 2, line.data(), nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::oneInPlace(nullptr, h.data(), 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadTapCount, TypeParam::oneInPlace(&x, h.data(), -1, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::oneInPlace(&x, h.data(), 2, nullptr, &index, 0));
    EXPECT_EQ(1, index);
}

// ---- 16-bit taps --------------------------------------------------------------------------------

class FirIntQ15 : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override {
        Core::reset();
        EXPECT_EQ(outstanding_, Core::outstanding());
    }
    Rng rng{seed()};

private:
    int outstanding_ = Core::outstanding();
};

TEST_F(FirIntQ15, TapsInUnitsOfTwoToTheMinusFifteen) {
    for (int run = 0; run < 300; ++run) {
        const int taps = 1 + static_cast<int>(rng() % 90),
                  start = static_cast<int>(rng() % count(taps));
        const auto h = values<Vlq16s>(count(taps), rng, run % 3 ? Data::Extreme : Data::Edges);
        const auto store = values<Vlq16s>(count(2 * taps), rng);
        const std::vector<Vlq16s> past(store.begin() + start, store.begin() + start + taps);
        FirIntRef<Vlq16s, Vlq16s> ref(h, -15, past);
        Buffer<Vlq16s> line(store, {run % 7});
        Vlq32s index = start;
        const int scale = static_cast<int>(rng() % 8) - 4;
        for (int turn = 0; turn < 3; ++turn) {
            const auto src = values<Vlq16s>(1 + rng() % 200, rng);
            const auto want = ref.block(src, scale);
            const int len = static_cast<int>(src.size());
            Buffer<Vlq16s> dst(src, {turn, run % 4 == 0});
            if ((run + turn) % 2 == 0) {
                const Buffer<Vlq16s> in(src, {1});
                ASSERT_EQ(vlqStsOk, vlqsFIR_Direct_16s_Sfs(in.data(), dst.data(), len, h.data(),
                                                           taps, line.data(), &index, scale));
            } else {
                ASSERT_EQ(vlqStsOk, vlqsFIR_Direct_16s_ISfs(dst.data(), len, h.data(), taps,
                                                            line.data(), &index, scale));
            }
            ASSERT_TRUE(same(dst, want)) << "run " << run << ", turn " << turn;
            ASSERT_EQ(0, index);
            // Newest first at the start; the second half is as it was.
            auto expected = store;
            std::copy(ref.line.begin(), ref.line.end(), expected.begin());
            ASSERT_TRUE(same(line, expected));
        }
    }
}

TEST_F(FirIntQ15, LongInPlace) {
    const auto h = values<Vlq16s>(70, rng);
    const auto src = values<Vlq16s>(9000, rng);
    std::vector<Vlq16s> line(140);
    Vlq32s index = 69;
    FirIntRef<Vlq16s, Vlq16s> ref(h, -15);
    Buffer<Vlq16s> dst(src);
    ASSERT_EQ(vlqStsOk,
              vlqsFIR_Direct_16s_ISfs(dst.data(), 9000, h.data(), 70, line.data(), &index, 2));
    EXPECT_TRUE(same(dst, ref.block(src, 2)));
}

TEST_F(FirIntQ15, ChecksAndMemory) {
    Vlq16s x[2] = {1, 2}, h[3] = {1, 2, 3}, line[6] = {};
    Vlq32s index = 0;
    const Vlq32s low = -1, high = 3;
    auto block = [&](const Vlq32s* at) {
        Vlq32s i = *at;
        return vlqsFIR_Direct_16s_Sfs(x, x, 2, h, 3, line, &i, 0);
    };
    EXPECT_EQ(vlqStsNullPtr,
              vlqsFIR_Direct_16s_Sfs(nullptr, x, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr,
              vlqsFIR_Direct_16s_Sfs(x, nullptr, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsFIR_Direct_16s_Sfs(x, x, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_Direct_16s_Sfs(x, x, 1, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIR_Direct_16s_Sfs(x, x, 1, h, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_Direct_16s_Sfs(x, x, 1, h, 3, nullptr, &index, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_Direct_16s_Sfs(x, x, 1, h, 3, line, nullptr, 0));
    EXPECT_EQ(vlqStsBadDlyIndex, block(&low));
    EXPECT_EQ(vlqStsBadDlyIndex, block(&high));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIR_Direct_16s_ISfs(nullptr, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsFIR_Direct_16s_ISfs(x, 0, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIR_Direct_16s_ISfs(x, 1, h, 0, nullptr, nullptr, 0));
    for (Vlq32s wrong : {-1, 3, INT_MIN, INT_MAX}) {
        EXPECT_EQ(vlqStsBadDlyIndex, vlqsFIR_Direct_16s_ISfs(x, 2, h, 3, line, &wrong, 0));
        EXPECT_EQ(vlqStsBadDlyIndex, vlqsFIROne_Direct_16s_Sfs(1, x, h, 3, line, &wrong, 0));
        EXPECT_EQ(vlqStsBadDlyIndex, vlqsFIROne_Direct_16s_ISfs(x, h, 3, line, &wrong, 0));
    }
    EXPECT_EQ(0, Core::allocations());
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory, vlqsFIR_Direct_16s_Sfs(x, x, 2, h, 3, line, &index, 0));
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory, vlqsFIR_Direct_16s_ISfs(x, 2, h, 3, line, &index, 0));
    EXPECT_EQ(1, x[0]);
    EXPECT_EQ(2, x[1]);
    for (const Vlq16s sample : line) EXPECT_EQ(0, sample);
    EXPECT_EQ(0, index);
}

}  // namespace
