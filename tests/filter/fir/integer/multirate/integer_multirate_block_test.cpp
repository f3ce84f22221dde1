// Integer FIR filters with a change of rate: every output by the definition, to the bit.
#include "filter/fir/integer/multirate/integer_multirate_kinds.h"

namespace {

using namespace vlqtest;

TYPED_TEST_SUITE(FirIntMultirate, EveryMultirate);

// ---- values -------------------------------------------------------------------------------------

// Every phase of small factors.
TYPED_TEST(FirIntMultirate, EveryPhase) {
    for (int up = 1; up <= 4; ++up) {
        for (int down = 1; down <= 4; ++down) {
            for (int upPhase = 0; upPhase < up; ++upPhase) {
                for (int downPhase = 0; downPhase < down; ++downPhase) {
                    for (const int taps : {1, 2, 3, 5, 8, 13, 24}) {
                        const RateChange r{up, upPhase, down, downPhase};
                        ASSERT_NO_FATAL_FAILURE(
                            this->checkStream(taps, r, {1 + this->below(3), 2 + this->below(60), 1},
                                              this->below(4) == 0));
                    }
                }
            }
        }
    }
}

// Every pair of factors to 8 with every number of taps to 70, more periods than the widest tile at
// times.
TYPED_TEST(FirIntMultirate, EveryNumberOfTaps) {
    for (int up = 1; up <= 8; ++up) {
        for (int down = 1; down <= 8; ++down) {
            for (int taps = 1; taps <= 70; ++taps) {
                const RateChange r{up, this->below(up), down, this->below(down)};
                const int most = this->below(8) == 0 ? 300 : 45;
                ASSERT_NO_FATAL_FAILURE(this->checkStream(
                    taps, r, {1 + this->below(most), 1 + this->below(9)}, this->below(3) == 0));
            }
        }
    }
}

TYPED_TEST(FirIntMultirate, LargeFactorsAndFilters) {
    const RateChange cases[] = {
        {1, 0, 6, 5},    {6, 5, 1, 0},     {1, 0, 100, 99},    {100, 99, 1, 0}, {97, 13, 89, 4},
        {64, 1, 48, 47}, {160, 7, 147, 3}, {147, 146, 160, 0}, {2, 1, 1, 0},    {3, 0, 2, 1},
        {1, 0, 2, 1},    {1, 0, 3, 2},     {12, 4, 12, 4},     {1, 0, 33, 7}};
    for (const RateChange& r : cases) {
        for (const int taps : {1, 7, 96, 97, 500}) {
            ASSERT_NO_FATAL_FAILURE(
                this->checkStream(taps, r, {9 + this->below(40), 1, 3}, taps % 2 == 0));
        }
    }
    for (const int periods : {127, 128, 129, 1601, 3000}) {
        ASSERT_NO_FATAL_FAILURE(this->checkStream(96, {1, 0, 6, 2}, {periods}, true));
        ASSERT_NO_FATAL_FAILURE(this->checkStream(96, {6, 3, 1, 0}, {periods}, true));
        ASSERT_NO_FATAL_FAILURE(this->checkStream(60, {4, 3, 2, 1}, {periods}, true));
        ASSERT_NO_FATAL_FAILURE(this->checkStream(31, {2, 1, 3, 2}, {periods}, true));
    }
}

// As many outputs to a period as fill the lanes of a vector, one less, and so far apart that a load
// just holds them or does not; few periods, and as many as make lanes of periods.
TYPED_TEST(FirIntMultirate, NeighboursInLanes) {
    for (const int up : {7, 8, 9, 15, 16, 17, 31, 32, 33, 47, 64}) {
        for (const int down : {1, up / 2, up - 1, up, up + 1, 2 * up - 3, 2 * up, 2 * up + 1}) {
            for (const int taps : {1, up, 3 * up + 1, 8 * up, 17 * up + 5}) {
                const RateChange r{up, this->below(up), down, this->below(down)};
                ASSERT_NO_FATAL_FAILURE(this->checkStream(
                    taps, r, {1 + this->below(3), 1, 5 + this->below(30)}, taps % 2 == 0));
            }
        }
    }
}

// Ten thousand streams in random cuts, of blocks and blocks in place.
TYPED_TEST(FirIntMultirate, AnyCut) {
    using Sample = typename TypeParam::Sample;
    for (int run = 0; run < 10000; ++run) {
        const RateChange r = this->rates(run % 10 == 0 ? 8 : 3);
        const int taps = 1 + this->below(run % 10 == 0 ? 40 : 9),
                  periods = 2 + this->below(run % 10 == 0 ? 60 : 24);
        const auto h = wideTaps<typename TypeParam::Tap>(count(taps), this->rng);
        const auto src = values<Sample>(count(periods * r.down), this->rng);
        typename TypeParam::State* state = nullptr;
        ASSERT_EQ(vlqStsOk, TypeParam::multirateInitAlloc(&state, h.data(), taps, -17, r.up,
                                                          r.upPhase, r.down, r.downPhase, nullptr));
        auto ref = referenceOf<TypeParam>(h, -17, r);
        const auto want = ref.block(src, 0);
        std::vector<Sample> got;
        for (int done = 0; done < periods;) {
            const int n = std::min(periods - done, 1 + this->below(run % 2 == 0 ? 4 : 20));
            std::vector<Sample> x(src.begin() + done * r.down, src.begin() + (done + n) * r.down);
            std::vector<Sample> y(count(n * r.up));
            if (this->below(2) == 0) {
                ASSERT_EQ(vlqStsOk, TypeParam::filter(x.data(), y.data(), n, state, 0));
            } else {
                x.resize(count(n * std::max(r.up, r.down)));
                ASSERT_EQ(vlqStsOk, TypeParam::inPlace(x.data(), n, state, 0));
                std::copy_n(x.begin(), y.size(), y.begin());
            }
            got.insert(got.end(), y.begin(), y.end());
            done += n;
        }
        ASSERT_EQ(want, got) << "run " << run << ": " << this->describe(taps, r, periods);
        std::vector<Sample> line(ref.line.size());
        ASSERT_EQ(vlqStsOk, TypeParam::getLine(state, line.data()));
        ASSERT_EQ(ref.line, line) << "run " << run;
        ASSERT_EQ(vlqStsOk, TypeParam::release(state));
    }
}

// Sums that wrap, and every scale factor.
TYPED_TEST(FirIntMultirate, EveryScale) {
    using Sample = typename TypeParam::Sample;
    for (const auto data : {Data::Extreme, Data::Small, Data::Edges}) {
        for (const int factor : {0, -15, 5, INT_MIN, INT_MAX}) {
            for (const int scale :
                 {0, 1, 2, 15, 30, 31, 32, 100, INT_MAX, -1, -15, -31, -32, -33, INT_MIN}) {
                const RateChange r = this->rates(4);
                const int taps = 1 + this->below(40), periods = 1 + this->below(30);
                const auto h = values<typename TypeParam::Tap>(count(taps), this->rng, data);
                const auto kept = held(h);
                FirIntMultirateRef<Sample, typename TypeParam::Tap> ref(
                    kept.taps,
                    std::min<std::int64_t>(INT_MAX, std::int64_t{factor} + kept.exponent), r);
                const auto src = values<Sample>(count(periods * r.down), this->rng, data);
                Multirate<TypeParam> record(h, factor, r);
                Buffer<Sample> out(count(periods * r.up));
                ASSERT_EQ(vlqStsOk,
                          TypeParam::filter(src.data(), out.data(), periods, record.state, scale));
                ASSERT_TRUE(same(out, ref.block(src, scale)))
                    << "factor " << factor << ", scale " << scale;
            }
        }
    }
}

TYPED_TEST(FirIntMultirate, ThreadsDoNotMatter) {
    using Sample = typename TypeParam::Sample;
    const RateChange r{3, 1, 2, 1};
    const auto h = wideTaps<typename TypeParam::Tap>(50, this->rng);
    const auto src = values<Sample>(4000, this->rng);
    std::vector<std::vector<Sample>> results;
    for (const int threads : {1, 2, 5}) {
        Core::setThreads(threads);
        Multirate<TypeParam> record(h, -17, r);
        results.emplace_back(6000);
        ASSERT_EQ(vlqStsOk,
                  TypeParam::filter(src.data(), results.back().data(), 2000, record.state, 0));
        EXPECT_EQ(results.front(), results.back());
    }
}

// ---- by hand ------------------------------------------------------------------------------------

TEST_F(FirIntMultirateTaps, OneOfEachRateIsThePlainFilter) {
    const auto h = wideTaps<Vlq32s>(30, rng);
    const auto src = values<Vlq16s>(500, rng);
    Multirate<Multirate32> record(h, -18, {1, 0, 1, 0});
    Record<Real32> plain(h, -18);
    std::vector<Vlq16s> got(500), want(500);
    ASSERT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(src.data(), got.data(), 500, record.state, 0));
    ASSERT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(src.data(), want.data(), 500, plain.state, 0));
    EXPECT_EQ(want, got);
    EXPECT_EQ(plain.line(), record.line());
}

TEST_F(FirIntMultirateTaps, LastPhaseDelaysTheFirstSample) {
    // Samples arrive at the last of three steps: two results without one, then one with it.
    Multirate<Multirate32> record({1, 10, 100}, 0, {3, 2, 1, 0});
    const Vlq16s src[2] = {1, 2};
    Vlq16s dst[6];
    ASSERT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(src, dst, 2, record.state, 0));
    EXPECT_EQ((std::vector<Vlq16s>{0, 0, 1, 10, 100, 2}), std::vector<Vlq16s>(dst, dst + 6));
}

TEST_F(FirIntMultirateTaps, TheLineHoldsThreeForTenTapsUpFour) {
    Multirate<Multirate32> record(std::vector<Vlq32s>(10, 1), 0, {4, 0, 1, 0}, {7, 8, 9});
    EXPECT_EQ((std::vector<Vlq16s>{7, 8, 9}), record.line());
    EXPECT_EQ(3, field(record.state, 52));
    // One sample moves it by one.
    const Vlq16s sample = 5;
    Vlq16s dst[4];
    ASSERT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(&sample, dst, 1, record.state, 0));
    EXPECT_EQ((std::vector<Vlq16s>{5, 7, 8}), record.line());
    EXPECT_EQ((std::vector<Vlq16s>{20, 20, 12, 12}), std::vector<Vlq16s>(dst, dst + 4));
}

TEST_F(FirIntMultirateTaps, ShortestFiltersOfEachTable) {
    for (const auto& [taps, r] : {std::pair{7, RateChange{1, 0, 2, 0}},
                                  {6, {1, 0, 2, 1}},
                                  {2, {3, 0, 1, 0}},
                                  {1, {3, 2, 1, 0}}}) {
        ASSERT_NO_FATAL_FAILURE(checkStream(taps, r, {1, 2, 3, 50, 7}, true));
    }
}

// ---- digests ------------------------------------------------------------------------------------

// The same bits in every build: the data are fixed, unlike those of the other tests.
template <class K>
std::uint64_t digest() {
    using Sample = typename K::Sample;
    std::uint64_t hash = 0xCBF29CE484222325u;
    Rng rng(1);
    for (const RateChange& r : {RateChange{1, 0, 6, 3},
                                {6, 2, 1, 0},
                                {3, 1, 2, 1},
                                {4, 3, 6, 5},
                                {2, 0, 2, 1},
                                {5, 4, 3, 0}}) {
        const auto h = wideTaps<typename K::Tap>(96, rng);
        const auto src = values<Sample>(count(400 * r.down), rng);
        Multirate<K> record(h, -18, r);
        std::vector<Sample> dst(count(400 * r.up));
        EXPECT_EQ(vlqStsOk, K::filter(src.data(), dst.data(), 400, record.state, 0));
        const auto* bytes = reinterpret_cast<const unsigned char*>(dst.data());
        for (std::size_t i = 0; i < dst.size() * sizeof(Sample); ++i)
            hash = (hash ^ bytes[i]) * 0x100000001B3u;
    }
    return hash;
}
TEST(FirIntMultirateDigests, AreEqualInEveryBuild) {
    EXPECT_EQ(15714544489135807716u, digest<Multirate16>());
    EXPECT_EQ(15714544489135807716u, digest<Multirate32>());
    EXPECT_EQ(11409095645728807110u, digest<MultirateComplex>());
}

}  // namespace
