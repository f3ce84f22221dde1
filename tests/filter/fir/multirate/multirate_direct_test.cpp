// Multi-rate FIR filters without a record.
#include "filter/fir/multirate/multirate_ref.h"

#include <climits>
#include <cstring>

#include "harness/buffer.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

template <class K>
class FirMultiRateDirect : public ::testing::Test {
protected:
    using Taps = std::vector<typename K::Tap>;
    using Samples = std::vector<typename K::Sample>;
    void SetUp() override { Core::reset(); }
    void TearDown() override {
        Core::reset();
        EXPECT_EQ(outstanding_, Core::outstanding());
    }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
    RateArguments rates(int up, int down) { return {up, below(up), down, below(down)}; }
    Taps taps(int n) {
        return drawn<typename K::Tap>(
            count(n), [&] { return uniformVector<Part<typename K::Tap>>(1, -1, 1, rng)[0]; });
    }
    Samples samples(long n) { return randomSamples<typename K::Sample>(count(n), rng); }
    Taps wholeTaps(int n) { return randomIntegers<typename K::Tap>(count(n), 7, rng); }
    Samples wholeSamples(long n) { return randomIntegers<typename K::Sample>(count(n), 20, rng); }

    // Whole periods through the call without a record; the line moves on.
    Samples outputs(const Samples& src, const Taps& h, RateArguments r, Samples& line, bool inPlace,
                    int scale = 0) {
        const int periods = static_cast<int>(src.size()) / r.down, len = static_cast<int>(h.size());
        const std::size_t made = count(periods) * count(r.up);
        const bool guarded = below(4) == 0;
        const Buffer<typename K::Tap> taps(h, {below(64), guarded});
        Buffer<typename K::Sample> past(line, {below(64), guarded});
        Samples got;
        if (inPlace) {
            auto both = src;
            both.resize(std::max(made, src.size()));
            Buffer<typename K::Sample> srcDst(both, {below(64), guarded});
            EXPECT_EQ(vlqStsOk, K::directInPlace(srcDst.data(), periods, taps.data(), len, r,
                                                 past.data(), scale));
            EXPECT_TRUE(srcDst.marginsIntact());
            got = srcDst.values();
            got.resize(made);
        } else {
            const Buffer<typename K::Sample> from(src, {below(64), guarded});
            Buffer<typename K::Sample> to(made, {below(64), guarded});
            EXPECT_EQ(vlqStsOk, K::direct(from.data(), to.data(), periods, taps.data(), len, r,
                                          past.data(), scale));
            EXPECT_TRUE(to.marginsIntact() && sameBits(src, from.values()));
            got = to.values();
        }
        EXPECT_TRUE(past.marginsIntact() && sameBits(h, taps.values()));
        line = past.values();
        return got;
    }
    std::string describe(int taps, RateArguments r) {
        return std::to_string(taps) + " taps, up " + std::to_string(r.up) + " phase " +
               std::to_string(r.upPhase) + ", down " + std::to_string(r.down) + " phase " +
               std::to_string(r.downPhase);
    }

private:
    int outstanding_ = Core::outstanding();
};

using Kinds = ::testing::Types<Mr32f, Mr32f_16s, Mr32fc, Mr32fc_16sc, Mr64f, Mr64f_32f, Mr64f_32s,
                               Mr64f_16s, Mr64fc, Mr64fc_32fc, Mr64fc_32sc, Mr64fc_16sc>;
TYPED_TEST_SUITE(FirMultiRateDirect, Kinds);

TYPED_TEST(FirMultiRateDirect, EveryPhase) {
    using K = TypeParam;
    for (int up = 1; up <= 4; ++up) {
        for (int down = 1; down <= 4; ++down) {
            for (int upPhase = 0; upPhase < up; ++upPhase) {
                for (int downPhase = 0; downPhase < down; ++downPhase) {
                    for (const int len : {1, 2, 5, 11, 40}) {
                        const RateArguments r = {up, upPhase, down, downPhase};
                        const auto taps = this->wholeTaps(len);
                        auto line = this->wholeSamples((len + up - 1) / up);
                        MultiRateRef ref(taps, r, line);
                        // One period is fewer samples than the line has, as a rule.
                        for (const int periods : {1, 2, 30}) {
                            const auto src = this->wholeSamples(periods * down);
                            const auto want = ref.run(src);
                            const auto got = this->outputs(src, taps, r, line, periods == 2);
                            ASSERT_EQ(want.size(), got.size());
                            for (std::size_t i = 0; i < got.size(); ++i)
                                ASSERT_EQ(want[i].sum, wide(got[i]))
                                    << this->describe(len, r) << ", output " << i;
                            ASSERT_TRUE(sameBits(ref.template line<typename K::Sample>(), line))
                                << this->describe(len, r) << ", " << periods << " periods";
                        }
                    }
                }
            }
        }
    }
}

// Sums in double precision, products in the precision of the taps.
TYPED_TEST(FirMultiRateDirect, Accuracy) {
    using K = TypeParam;
    using Tap = typename K::Tap;
    for (int round = 0; round < 100; ++round) {
        const int len = 1 + this->below(round % 5 == 0 ? 700 : 70);
        const bool wide_ = round % 10 == 0;
        const RateArguments r =
            this->rates(1 + this->below(wide_ ? 200 : 8), 1 + this->below(wide_ ? 200 : 8));
        const auto taps = this->taps(len);
        auto line = this->samples((len + r.up - 1) / r.up);
        const int scales[] = {0, 3, -3, 17, 40, -100, 2000, INT_MAX};
        const int scale = K::kScaled ? scales[round % 8] : 0;
        MultiRateRef ref(taps, r, line);
        const auto src =
            this->samples(static_cast<long>(1 + this->below(wide_ ? 5 : 100)) * r.down);
        const auto want = ref.run(src);
        const auto got = this->outputs(src, taps, r, line, round % 2 == 0, scale);
        for (std::size_t i = 0; i < got.size(); ++i) {
            // A product's error is half a unit of itself.
            const Wide bound = (kUnit<Tap> + static_cast<Wide>(2 * want[i].terms + 3) * 0x1p-53L) *
                               want[i].magnitude;
            ASSERT_TRUE(isAllowed(want[i].sum, bound, scale, got[i]))
                << this->describe(len, r) << ", output " << i << ": " << wide(got[i]) << " for "
                << want[i].sum;
        }
        ASSERT_TRUE(sameBits(ref.template line<typename K::Sample>(), line))
            << this->describe(len, r);
    }
}

TYPED_TEST(FirMultiRateDirect, Cuts) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    for (int round = 0; round < 1000; ++round) {
        const int len = 1 + this->below(round % 8 == 0 ? 70 : 20);
        const RateArguments r = this->rates(1 + this->below(5), 1 + this->below(5));
        const auto taps = this->taps(len);
        auto line = this->samples((len + r.up - 1) / r.up), cutLine = line;
        const int periods = 1 + this->below(round % 16 == 0 ? 300 : 30);
        const auto src = this->samples(periods * r.down);
        const auto want = this->outputs(src, taps, r, line, false);
        std::vector<Sample> got;
        for (int done = 0; done < periods;) {
            const int piece = std::min(periods - done, 1 + this->below(this->below(2) ? 4 : 40));
            const auto out =
                this->outputs({src.begin() + done * r.down, src.begin() + (done + piece) * r.down},
                              taps, r, cutLine, this->below(2) == 0);
            got.insert(got.end(), out.begin(), out.end());
            done += piece;
        }
        ASSERT_TRUE(sameBits(want, got)) << this->describe(len, r) << ", " << periods << " periods";
        ASSERT_TRUE(sameBits(line, cutLine)) << this->describe(len, r);
    }
}

TYPED_TEST(FirMultiRateDirect, RefusedMemory) {
    using K = TypeParam;
    const auto taps = this->taps(20);
    auto x = this->samples(40), line = this->samples(10);
    const auto before = x, lineBefore = line;
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory,
              K::directInPlace(x.data(), 10, taps.data(), 20, {2, 0, 3, 0}, line.data(), 0));
    Core::reset();
    EXPECT_EQ(vlqStsNoMemory,
              K::directInPlace(x.data(), INT_MAX, taps.data(), 20, {2, 0, 3, 0}, line.data(), 0));
    EXPECT_EQ(0, Core::allocations());
    EXPECT_TRUE(sameBits(before, x) && sameBits(lineBefore, line));
    auto y = x;
    EXPECT_EQ(vlqStsOk,
              K::direct(x.data(), y.data(), 10, taps.data(), 20, {2, 0, 3, 0}, line.data(), 0));
    EXPECT_EQ(0, Core::allocations());
    EXPECT_EQ(vlqStsOk,
              K::directInPlace(x.data(), 10, taps.data(), 20, {2, 0, 3, 0}, line.data(), 0));
    EXPECT_EQ(1, Core::allocations());
}

TYPED_TEST(FirMultiRateDirect, Errors) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    const auto taps = this->taps(4);
    std::vector<Sample> x(24), line(4);
    const RateArguments good = {2, 1, 3, 2}, badFactor = {0, -1, 3, 3}, badPhase = {2, 2, 3, 0};
    EXPECT_EQ(vlqStsNullPtr, K::direct(nullptr, x.data(), 0, nullptr, 0, badFactor, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::direct(x.data(), nullptr, 0, nullptr, 0, badFactor, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, K::directInPlace(nullptr, 0, nullptr, 0, badFactor, nullptr, 0));
    auto expectBoth = [&](VlqStatus want, int periods, const typename K::Tap* h, int len,
                          RateArguments r, Sample* past) {
        EXPECT_EQ(want, K::direct(x.data(), x.data() + 12, periods, h, len, r, past, 0));
        EXPECT_EQ(want, K::directInPlace(x.data(), periods, h, len, r, past, 0));
    };
    expectBoth(vlqStsBadSize, 0, nullptr, 0, badFactor, nullptr);
    expectBoth(vlqStsBadSize, -1, nullptr, 0, badFactor, nullptr);
    expectBoth(vlqStsNullPtr, 4, nullptr, 0, badFactor, nullptr);
    expectBoth(vlqStsBadTapCount, 4, taps.data(), 0, badFactor, nullptr);
    expectBoth(vlqStsBadRateFactor, 4, taps.data(), 4, badFactor, nullptr);
    expectBoth(vlqStsBadRateFactor, 4, taps.data(), 4, {2, 2, 0, 0}, nullptr);
    expectBoth(vlqStsBadRatePhase, 4, taps.data(), 4, badPhase, nullptr);
    expectBoth(vlqStsBadRatePhase, 4, taps.data(), 4, {2, -1, 3, 0}, line.data());
    expectBoth(vlqStsBadRatePhase, 4, taps.data(), 4, {2, 0, 3, 3}, line.data());
    expectBoth(vlqStsBadRatePhase, 4, taps.data(), 4, {2, 0, 3, -1}, line.data());
    expectBoth(vlqStsNullPtr, 4, taps.data(), 4, good, nullptr);
    for (const Sample& v : x) EXPECT_EQ(WideComplex(0), wide(v));
    EXPECT_EQ(0, Core::allocations());
}

}  // namespace
