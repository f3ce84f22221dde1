// Blocks and single samples through integer FIR filters: exact results, any cut of a stream.
#include <climits>

#include "filter/fir/integer/integer_kinds.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

template <class K>
class FirIntBlock : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
};
TYPED_TEST_SUITE(FirIntBlock, EveryKind);

constexpr int kScales[] = {0,       1,  2,  7,   15,  30,  31,  32,  33,   100,
                           INT_MAX, -1, -3, -15, -30, -31, -32, -33, -100, INT_MIN};

// Every small number of taps and of samples: out of place and in place, any alignment, at a guard
// page.
TYPED_TEST(FirIntBlock, Values) {
    using Sample = typename TypeParam::Sample;
    for (int taps = 1; taps <= 150; taps += taps < 40 ? 1 : 7) {
        for (int len = 1; len <= 700; len += len < 40 ? 1 + taps / 12 : 23 + taps) {
            const auto data = len % 3 == 0 ? Data::Small : Data::Extreme;
            const auto h = len % 2 == 0
                               ? values<typename TypeParam::Tap>(count(taps), this->rng, data)
                               : wideTaps<typename TypeParam::Tap>(count(taps), this->rng);
            const auto past = values<Sample>(count(taps), this->rng);
            const auto src = values<Sample>(count(len), this->rng, data);
            const int factor = data == Data::Small ? -10 : -this->below(24);
            const int scale = this->below(5) - 2;
            Record<TypeParam> record(h, factor, past), second(h, factor, past);
            auto ref = referenceOf<TypeParam>(h, factor, past);
            const auto want = ref.block(src, scale);
            const Buffer<Sample> in(src, {this->below(64), len % 4 == 0});
            Buffer<Sample> out(count(len), {this->below(64), len % 4 == 1});
            ASSERT_EQ(vlqStsOk, TypeParam::filter(in.data(), out.data(), len, record.state, scale));
            ASSERT_TRUE(same(out, want)) << taps << " taps, " << len << " samples";
            ASSERT_TRUE(same(in, src));
            ASSERT_EQ(ref.line, record.line()) << taps << " taps, " << len << " samples";
            Buffer<Sample> inOut(src, {this->below(64), len % 4 == 2});
            ASSERT_EQ(vlqStsOk, TypeParam::inPlace(inOut.data(), len, second.state, scale));
            ASSERT_TRUE(same(inOut, want)) << taps << " taps, " << len << " samples in place";
            ASSERT_EQ(ref.line, second.line());
        }
    }
}

// The longest leave no room for samples in the staging area.
TYPED_TEST(FirIntBlock, LongBlocks) {
    using Sample = typename TypeParam::Sample;
    for (const int taps : {1, 2, 3, 4, 8, 17, 64, 65, 127, 128, 129, 300, 1000, 2048, 2049, 5000}) {
        for (const int len : {1023, 1024, 1025, 4095, 4096, 4097, 10000}) {
            if (taps > 1000 && len < 4097) continue;
            const auto h = wideTaps<typename TypeParam::Tap>(count(taps), this->rng);
            const auto src = values<Sample>(count(len), this->rng);
            Record<TypeParam> record(h, -17), second(h, -17);
            auto ref = referenceOf<TypeParam>(h, -17);
            const auto want = ref.block(src, 0);
            Buffer<Sample> out(count(len), {1});
            ASSERT_EQ(vlqStsOk, TypeParam::filter(src.data(), out.data(), len, record.state, 0));
            ASSERT_TRUE(same(out, want)) << taps << " taps, " << len << " samples";
            Buffer<Sample> inOut(src, {3});
            ASSERT_EQ(vlqStsOk, TypeParam::inPlace(inOut.data(), len, second.state, 0));
            ASSERT_TRUE(same(inOut, want)) << taps << " taps, " << len << " samples in place";
            ASSERT_EQ(ref.line, record.line());
            ASSERT_EQ(ref.line, second.line());
            if (taps > 200 && len >= 4095) break;
        }
    }
}

// Sums that wrap, and every scale factor: nothing saturates before the end.
TYPED_TEST(FirIntBlock, EveryScale) {
    using Sample = typename TypeParam::Sample;
    for (const auto data : {Data::Extreme, Data::Small, Data::Edges}) {
        for (const int factor : {0, -15, 5, INT_MIN, INT_MAX, INT_MAX - 20}) {
            for (const int scale : kScales) {
                const int taps = 1 + this->below(40), len = 1 + this->below(60);
                const auto h = values<typename TypeParam::Tap>(count(taps), this->rng, data);
                const auto src = values<Sample>(count(len), this->rng, data);
                Record<TypeParam> record(h, factor), single(h, factor);
                auto ref = referenceOf<TypeParam>(h, factor);
                ref.factor = std::min<std::int64_t>(ref.factor, INT_MAX);
                const auto want = ref.block(src, scale);
                Buffer<Sample> out(count(len));
                ASSERT_EQ(vlqStsOk,
                          TypeParam::filter(src.data(), out.data(), len, record.state, scale));
                ASSERT_TRUE(same(out, want))
                    << "factor " << factor << ", scale " << scale << ", taps " << taps;
                for (std::size_t i = 0; i < src.size(); ++i) {
                    Buffer<Sample> y(1, {static_cast<int>(i % 5)});
                    ASSERT_EQ(vlqStsOk, TypeParam::one(src[i], y.data(), single.state, scale));
                    ASSERT_TRUE(same(y, {want[i]}))
                        << "factor " << factor << ", scale " << scale << ", sample " << i;
                }
            }
        }
    }
}

// A stream cut into blocks, blocks in place and single samples at random is one stream: ten
// thousand cuts.
TYPED_TEST(FirIntBlock, AnyCut) {
    using Sample = typename TypeParam::Sample;
    for (int run = 0; run < 250; ++run) {
        const int taps = run % 5 == 0 ? 1 + run / 5 : 1 + this->below(140),
                  all = 1 + this->below(run % 4 == 0 ? 1500 : 300);
        const auto h = wideTaps<typename TypeParam::Tap>(count(taps), this->rng);
        const auto past = values<Sample>(count(taps), this->rng),
                   src = values<Sample>(count(all), this->rng);
        const int scale = this->below(8) - 3;
        Record<TypeParam> record(h, -18);
        auto ref = referenceOf<TypeParam>(h, -18, past);
        const auto want = ref.block(src, scale);
        for (int cut = 0; cut < 40; ++cut) {
            ASSERT_EQ(vlqStsOk, TypeParam::setLine(record.state, past.data()));
            std::vector<Sample> got(src.size());
            const int longest = cut % 4 == 0   ? 4
                                : cut % 4 == 1 ? 40
                                : cut % 4 == 2 ? taps + 8
                                               : all;
            for (int done = 0; done < all;) {
                const int len = std::min(all - done, 1 + this->below(longest));
                Sample* out = &got[count(done)];
                switch (this->below(3)) {
                    case 0:
                        ASSERT_EQ(vlqStsOk, TypeParam::filter(&src[count(done)], out, len,
                                                              record.state, scale));
                        break;
                    case 1:
                        std::copy_n(&src[count(done)], len, out);
                        ASSERT_EQ(vlqStsOk, TypeParam::inPlace(out, len, record.state, scale));
                        break;
                    default:
                        for (int i = 0; i < len; ++i)
                            ASSERT_EQ(vlqStsOk, TypeParam::one(src[count(done + i)], out + i,
                                                               record.state, scale));
                }
                done += len;
            }
            ASSERT_EQ(want, got) << "run " << run << ", cut " << cut << ", " << taps << " taps";
            ASSERT_EQ(ref.line, record.line());
        }
    }
}

TYPED_TEST(FirIntBlock, Checks) {
    using Sample = typename TypeParam::Sample;
    using State = typename TypeParam::State;
    Record<TypeParam> record(wideTaps<typename TypeParam::Tap>(4, this->rng), 0);
    // A state of no kind.
    Buffer<Vlq8u> alienMemory(256);
    auto* alien = reinterpret_cast<State*>(alienMemory.data());
    const std::vector<Sample> src(8);
    Buffer<Sample> dst(8);
    const auto marked = dst.values();
    EXPECT_EQ(vlqStsNullPtr, TypeParam::filter(nullptr, dst.data(), 0, alien, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::filter(src.data(), nullptr, 0, alien, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::filter(src.data(), dst.data(), 0, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, TypeParam::filter(src.data(), dst.data(), 0, alien, 0));
    EXPECT_EQ(vlqStsBadSize, TypeParam::filter(src.data(), dst.data(), -1, record.state, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::inPlace(nullptr, 0, alien, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::inPlace(dst.data(), 0, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, TypeParam::inPlace(dst.data(), 0, alien, 0));
    EXPECT_EQ(vlqStsBadSpec, TypeParam::filter(src.data(), dst.data(), 8, alien, 0));
    EXPECT_EQ(vlqStsBadSpec, TypeParam::inPlace(dst.data(), 8, alien, 0));
    EXPECT_TRUE(same(dst, marked));
}

// ---- values by hand -----------------------------------------------------------------------------

Vlq16s filterOne(Vlq32s tap, int tapsFactor, Vlq16s sample, int scale) {
    Record<Real32> record({tap}, tapsFactor);
    Vlq16s y = 0;
    EXPECT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(&sample, &y, 1, record.state, scale));
    return y;
}

TEST(FirIntValues, RoundsHalfToEven) {
    EXPECT_EQ(0, filterOne(1, 0, 1, 1));
    EXPECT_EQ(2, filterOne(3, 0, 1, 1));
    EXPECT_EQ(2, filterOne(5, 0, 1, 1));
    EXPECT_EQ(0, filterOne(-1, 0, 1, 1));
    EXPECT_EQ(-2, filterOne(-3, 0, 1, 1));
    EXPECT_EQ(1, filterOne(3, 0, 1, 2));
    EXPECT_EQ(2, filterOne(6, 0, 1, 2));
}

TEST(FirIntValues, ShiftsLeftInThirtyTwoBits) {
    EXPECT_EQ(32767, filterOne(1, 15, 1, 0));
    EXPECT_EQ(-32768, filterOne(-1, 0, 1, -15));
    EXPECT_EQ(-32768, filterOne(1, 31, 1, 0));  // the lowest bit becomes the sign
    EXPECT_EQ(0, filterOne(2, 31, 1, 0));       // and the next is lost
    EXPECT_EQ(0, filterOne(3, 32, 1, 0));
    EXPECT_EQ(0, filterOne(-3, 0, 1, INT_MIN));
    EXPECT_EQ(16384, filterOne(4, 0, 1, -12));
    EXPECT_EQ(0, filterOne(4, 0, 16384, -16));  // 2^16 shifted out of sight
}

TEST(FirIntValues, ShiftsRightByThirtyOneAtMost) {
    std::vector<Vlq32s> taps(2, 32766);
    Record<Real32> record(taps, 0);
    const Vlq16s src[2] = {32767, 32767};
    Vlq16s dst[2];
    ASSERT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(src, dst, 2, record.state, INT_MAX));
    EXPECT_EQ(0, dst[0]);
    EXPECT_EQ(1, dst[1]);  // just below 2^31, rounded
}

TEST(FirIntValues, SaturatesAtTheEnd) {
    Record<Real32> record(std::vector<Vlq32s>(3, 1), 0);
    const Vlq16s src[6] = {32767, 1, -2, -32768, -32768, 32767};
    Vlq16s dst[6];
    ASSERT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(src, dst, 6, record.state, 0));
    const Vlq16s want[6] = {32767, 32767, 32766, -32768, -32768, -32768};
    EXPECT_EQ(0, std::memcmp(want, dst, sizeof want));
}

TEST(FirIntValues, SumsWrap) {
    // Two taps of -32768 meet two samples of -32768 in one pair: 2^31 is -2^31.
    Vlq16s line[4] = {}, dst[2];
    const Vlq16s low = -32768, taps[2] = {low, low}, src[2] = {low, low};
    Vlq32s index = 0;
    ASSERT_EQ(vlqStsOk, vlqsFIR_Direct_16s_Sfs(src, dst, 2, taps, 2, line, &index, 1));
    EXPECT_EQ(16384, dst[0]);
    EXPECT_EQ(-32768, dst[1]);
}

TEST(FirIntValues, OneSampleThroughALongFilter) {
    Rng rng(seed());
    const auto taps = wideTaps<Vlq32s>(500, rng);
    const auto past = values<Vlq16s>(500, rng);
    Record<Real32> record(taps, -20, past);
    auto ref = referenceOf<Real32>(taps, -20, past);
    for (const Vlq16s x : values<Vlq16s>(700, rng)) {
        Vlq16s y = 0;
        ASSERT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(&x, &y, 1, record.state, 0));
        ASSERT_EQ(ref.next(x, 0), y);
        ASSERT_EQ(ref.line, record.line());
    }
}

}  // namespace
