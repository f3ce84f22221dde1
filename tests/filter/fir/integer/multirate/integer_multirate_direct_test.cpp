// Integer multi-rate filters without a state, by the definition.
#include "filter/fir/integer/multirate/integer_multirate_kinds.h"

namespace {

using namespace vlqtest;

TYPED_TEST_SUITE(FirIntMultirate, EveryMultirate);

// ---- without a state ----------------------------------------------------------------------------

TYPED_TEST(FirIntMultirate, WithoutAState) {
    using Sample = typename TypeParam::Sample;
    for (int run = 0; run < 1500; ++run) {
        const RateChange r = this->rates(run % 5 == 0 ? 9 : 4);
        const int taps = 1 + this->below(40), scale = this->below(24) - 2, line = delayLen(taps, r);
        const auto h = values<typename TypeParam::Tap>(count(taps), this->rng,
                                                       run % 2 ? Data::Small : Data::Extreme);
        const Buffer<typename TypeParam::Tap> oddTaps(h, {1});
        const auto past = values<Sample>(count(line), this->rng);
        FirIntMultirateRef<Sample, typename TypeParam::Tap> ref(h, 0, r, past);
        Buffer<Sample> delay(past, {this->below(64), run % 3 == 0});
        for (int turn = 0; turn < 5; ++turn) {
            const int periods = 1 + this->below(12);
            auto src = values<Sample>(count(periods * r.down), this->rng);
            auto want = ref.block(src, scale);
            if (turn % 2 == 0) {
                const Buffer<Sample> in(src, {this->below(64), turn == 2});
                Buffer<Sample> dst(want.size(), {this->below(64), turn == 4});
                ASSERT_EQ(vlqStsOk, TypeParam::direct(in.data(), dst.data(), periods,
                                                      oddTaps.data(), taps, r.up, r.upPhase, r.down,
                                                      r.downPhase, delay.data(), scale));
                ASSERT_TRUE(same(dst, want))
                    << "run " << run << ": " << this->describe(taps, r, periods);
            } else {
                src.resize(count(periods * std::max(r.up, r.down)));
                Buffer<Sample> inOut(src, {this->below(64), turn == 3});
                ASSERT_EQ(vlqStsOk, TypeParam::directInPlace(inOut.data(), periods, oddTaps.data(),
                                                             taps, r.up, r.upPhase, r.down,
                                                             r.downPhase, delay.data(), scale));
                std::copy(want.begin(), want.end(), src.begin());
                ASSERT_TRUE(same(inOut, src))
                    << "run " << run << ": " << this->describe(taps, r, periods);
            }
            ASSERT_TRUE(same(delay, ref.line)) << "run " << run;
        }
    }
}

TYPED_TEST(FirIntMultirate, ChecksWithoutAState) {
    std::vector<typename TypeParam::Sample> x(8), line(4);
    const std::vector<typename TypeParam::Tap> h(2);
    auto* const v = x.data();
    const auto* const t = h.data();
    auto both = [&](VlqStatus status, int numIters, const auto* taps, int tapsLen, RateChange r,
                    auto* dlyLine) {
        EXPECT_EQ(status, TypeParam::direct(v, v + 4, numIters, taps, tapsLen, r.up, r.upPhase,
                                            r.down, r.downPhase, dlyLine, 0));
        EXPECT_EQ(status, TypeParam::directInPlace(v, numIters, taps, tapsLen, r.up, r.upPhase,
                                                   r.down, r.downPhase, dlyLine, 0));
    };
    auto* const none = static_cast<typename TypeParam::Sample*>(nullptr);
    EXPECT_EQ(vlqStsNullPtr, TypeParam::direct(nullptr, v, 0, nullptr, 0, 0, 0, 0, 0, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::direct(v, nullptr, 0, nullptr, 0, 0, 0, 0, 0, nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::directInPlace(nullptr, 0, nullptr, 0, 0, 0, 0, 0, nullptr, 0));
    both(vlqStsBadSize, 0, decltype(t){nullptr}, 0, {0, -1, 0, -1}, none);
    both(vlqStsNullPtr, 1, decltype(t){nullptr}, 0, {0, -1, 0, -1}, none);
    both(vlqStsBadTapCount, 1, t, 0, {0, -1, 0, -1}, none);
    both(vlqStsBadRateFactor, 1, t, 2, {0, -1, 1, -1}, none);
    both(vlqStsBadRateFactor, 1, t, 2, {1, -1, 0, -1}, none);
    both(vlqStsBadRatePhase, 1, t, 2, {2, -1, 2, 0}, none);
    both(vlqStsBadRatePhase, 1, t, 2, {2, 2, 2, 0}, none);
    both(vlqStsBadRatePhase, 1, t, 2, {2, 0, 2, -1}, none);
    both(vlqStsBadRatePhase, 1, t, 2, {2, 0, 2, 2}, none);
    both(vlqStsNullPtr, 1, t, 2, {2, 0, 2, 0}, none);
    EXPECT_EQ(0, Core::allocations());
    // The copy of the input.
    const auto before = values<typename TypeParam::Sample>(8, this->rng);
    x = before;
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory,
              TypeParam::directInPlace(x.data(), 2, t, 2, 1, 0, 2, 0, line.data(), 0));
    EXPECT_EQ(vlqStsNoMemory,
              TypeParam::directInPlace(x.data(), INT_MAX, t, 2, 1, 0, INT_MAX, 0, line.data(), 0));
    EXPECT_EQ(before, x);
    EXPECT_EQ(std::vector<typename TypeParam::Sample>(4), line);
    EXPECT_EQ(1, Core::allocations());
}

}  // namespace
