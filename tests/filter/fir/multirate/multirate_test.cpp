// Multi-rate FIR filters through a record.
#include "filter/fir/multirate/multirate_ref.h"

#include <climits>
#include <cstring>

#include "harness/buffer.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

int word(const void* state, int offset) {
    int value;
    std::memcpy(&value, static_cast<const char*>(state) + offset, sizeof value);
    return value;
}
constexpr int kTapsLen = 12, kUpFactor = 16, kFirstChunk = 20, kDownFactor = 24, kTapsStride = 28,
              kFftLen = 44, kDlyIndex = 48, kMrSamples = 60, kMrKind = 64, kDlyLen = 68,
              kOwnsMemory = 92, kUpPhase = 96, kDownPhase = 100;

// The derived numbers, written down from their definitions.
struct Derived {
    long line, slots, inputs, outputs;
    Derived(long taps, long up, long down) {
        line = (taps + up - 1) / up;
        slots = taps + 3 * down;
        while (slots % up != 0) ++slots;
        inputs = 4 * down * ((line + 4 * down) / (4 * down) + 1) - 4 * down + 1;
        outputs = up * ((down + line - 1 + down - 1) / down);
        while (outputs % (4 * up) != 0) outputs += up, inputs += down;
    }
};
int kindOf(int taps, int up, int down) {
    const float ratio = static_cast<float>(taps) / static_cast<float>(taps + 3 * down);
    if (up == 1) return ratio > 0.5f ? 1 : 2;
    return static_cast<double>(ratio) > 0.3 ? 1 : 3;
}

template <class K>
class FirMultiRate : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override {
        Core::reset();
        EXPECT_EQ(outstanding_, Core::outstanding());
    }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
    RateArguments rates(int up, int down) { return {up, below(up), down, below(down)}; }

    std::vector<typename K::Tap> taps(int n) {
        return drawn<typename K::Tap>(
            count(n), [&] { return uniformVector<Part<typename K::Tap>>(1, -1, 1, rng)[0]; });
    }
    std::vector<typename K::Sample> samples(long n) {
        return randomSamples<typename K::Sample>(count(n), rng);
    }
    // Taps and samples whose sums every type holds exactly.
    std::vector<typename K::Tap> wholeTaps(int n) {
        return randomIntegers<typename K::Tap>(count(n), 7, rng);
    }
    std::vector<typename K::Sample> wholeSamples(long n) {
        return randomIntegers<typename K::Sample>(count(n), 20, rng);
    }

    void expectExact(const std::vector<MultiRateRef::Output>& want,
                     const std::vector<typename K::Sample>& got, const std::string& what) {
        ASSERT_EQ(want.size(), got.size()) << what;
        for (std::size_t i = 0; i < got.size(); ++i)
            ASSERT_EQ(want[i].sum, wide(got[i])) << what << ", output " << i;
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
TYPED_TEST_SUITE(FirMultiRate, Kinds);

// ---- records ------------------------------------------------------------------------------------

TYPED_TEST(FirMultiRate, Fields) {
    using K = TypeParam;
    for (const int len : {1, 2, 6, 7, 10, 11, 24, 33, 96, 200}) {
        for (const int up : {1, 2, 3, 4, 5, 6, 160}) {
            for (const int down : {1, 2, 3, 6, 7, 147}) {
                const RateArguments r = this->rates(up, down);
                MultiRate<K> filter(this->taps(len), r);
                EXPECT_EQ(1, word(filter.state, kOwnsMemory));
                EXPECT_EQ(len, word(filter.state, kTapsLen));
                if (up == 1 && down == 1 && K::kHasSingleRate) {
                    EXPECT_EQ(K::kWord, static_cast<Vlq32u>(word(filter.state, 0)));
                    EXPECT_EQ(0, word(filter.state, kMrKind));
                    continue;
                }
                const Derived want(len, up, down);
                EXPECT_EQ(K::kMultiRateWord, static_cast<Vlq32u>(word(filter.state, 0)));
                EXPECT_EQ(up, word(filter.state, kUpFactor));
                EXPECT_EQ(down, word(filter.state, kDownFactor));
                EXPECT_EQ(r.upPhase, word(filter.state, kUpPhase));
                EXPECT_EQ(r.downPhase, word(filter.state, kDownPhase));
                EXPECT_EQ(want.line, word(filter.state, kDlyLen));
                EXPECT_EQ(want.slots / up, word(filter.state, kMrSamples));
                EXPECT_EQ(want.inputs, word(filter.state, kFirstChunk)) << this->describe(len, r);
                EXPECT_EQ(want.outputs, word(filter.state, kTapsStride)) << this->describe(len, r);
                EXPECT_EQ(-1, word(filter.state, kFftLen));
                EXPECT_EQ(0, word(filter.state, kDlyIndex));
                const int kind = word(filter.state, kMrKind);
                EXPECT_EQ(isComplex<typename K::Tap> ? 1 : kindOf(len, up, down), kind)
                    << this->describe(len, r);
            }
        }
    }
}

TYPED_TEST(FirMultiRate, KindsOfTables) {
    using K = TypeParam;
    if (isComplex<typename K::Tap>) GTEST_SKIP() << "complex records have one kind";
    auto kind = [&](int len, int up, int down) {
        return word(MultiRate<K>(this->taps(len), {up, 0, down, 0}).state, kMrKind);
    };
    EXPECT_EQ(1, kind(7, 1, 2));
    EXPECT_EQ(2, kind(6, 1, 2));
    EXPECT_EQ(1, kind(2, 3, 1));
    EXPECT_EQ(3, kind(1, 3, 1));
    EXPECT_EQ(3, word(MultiRate<K>(this->taps(10), {4, 0, 1, 0}).state, kDlyLen));
}

TYPED_TEST(FirMultiRate, Sizes) {
    using K = TypeParam;
    auto size = [](int len, int up, int down) {
        Vlq32s bytes = -1;
        EXPECT_EQ(vlqStsOk, K::size(len, up, down, &bytes));
        return bytes;
    };
    for (const int len : {1, 2, 6, 7, 63, 64, 100, 1000, 100001}) {
        Vlq32s single = 0;
        ASSERT_EQ(vlqStsOk, K::singleSize(len, &single));
        EXPECT_EQ(single, size(len, 1, 1));
        if (!std::is_same_v<typename K::Tap, float>) continue;
        for (const int up : {1, 2, 3, 5, 16, 160}) {
            for (const int down : {1, 2, 3, 7, 147, 1000}) {
                if (kindOf(len, up, down) == 1) continue;
                const Derived d(len, up, down);
                auto a = [](long n) { return (n + 15) / 16 * 16; };
                const long want = a(4 * len) + ((16 * up + 19) & ~15) + 16 * d.slots +
                                  4 * std::max(4096L, 8 * d.slots) +
                                  ((4 * (d.line + d.inputs) + 19) & ~15) + 112;
                EXPECT_EQ(want, size(len, up, down))
                    << len << " taps, up " << up << ", down " << down;
            }
        }
    }
    EXPECT_NE(size(7, 1, 2), size(6, 1, 2));
    // What cannot be counted in 32 bits cannot be built.
    const auto taps = this->taps(3);
    typename K::State* state = nullptr;
    Vlq8u memory[64];
    EXPECT_EQ(INT_MAX, size(3, 1, INT_MAX));
    EXPECT_EQ(INT_MAX, size(3, INT_MAX, 3));
    EXPECT_EQ(INT_MAX, size(INT_MAX, INT_MAX, INT_MAX));
    EXPECT_EQ(vlqStsNoMemory, K::init(&state, taps.data(), 3, 1, 0, INT_MAX, 0, nullptr, memory));
    EXPECT_EQ(vlqStsNoMemory,
              K::initAlloc(&state, taps.data(), 3, INT_MAX, INT_MAX - 1, 3, 2, nullptr));
    EXPECT_EQ(nullptr, state);
    EXPECT_EQ(0, Core::allocations());
}

// The told size is enough wherever the memory begins, and results do not depend on where it lies.
TYPED_TEST(FirMultiRate, StaysInsideItsMemory) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    for (int round = 0; round < 60; ++round) {
        const int len = 1 + this->below(round % 4 == 0 ? 200 : 30);
        const RateArguments r = this->rates(1 + this->below(7), 1 + this->below(7));
        const auto taps = this->taps(len);
        const int line = (len + r.up - 1) / r.up;
        const auto past = this->samples(line);
        const int periods = 40 + this->below(200);
        const auto src = this->samples(periods * r.down);
        Vlq32s bytes;
        ASSERT_EQ(vlqStsOk, K::size(len, r.up, r.down, &bytes));
        std::vector<Sample> first;
        for (int offset = 0; offset <= 64; offset += 1 + this->below(12)) {
            Buffer<Vlq8u> memory(count(bytes), {offset % 64, offset == 64});
            typename K::State* state = nullptr;
            ASSERT_EQ(vlqStsOk, K::init(&state, taps.data(), len, r.up, r.upPhase, r.down,
                                        r.downPhase, past.data(), memory.data()));
            ASSERT_EQ(0u, reinterpret_cast<std::uintptr_t>(state) %
                              (sizeof(Part<typename K::Tap>) == 8 ? 32 : 16));
            ASSERT_EQ(0, word(state, kOwnsMemory));
            std::vector<Sample> dst(count(periods * std::max(r.up, r.down))), all;
            for (const int block : {1, 2, 33, periods}) {
                ASSERT_EQ(vlqStsOk, K::block(src.data(), dst.data(), block, state, 3));
                all.insert(all.end(), dst.begin(), dst.begin() + block * r.up);
            }
            std::copy(src.begin(), src.end(), dst.begin());
            ASSERT_EQ(vlqStsOk, K::inPlace(dst.data(), periods, state, 3));
            all.insert(all.end(), dst.begin(), dst.begin() + periods * r.up);
            if (first.empty()) first = all;
            ASSERT_TRUE(sameBits(first, all)) << this->describe(len, r) << ", offset " << offset;
            const auto before = memory.values();
            ASSERT_EQ(vlqStsOk, K::free(state));
            ASSERT_TRUE(sameBits(before, memory.values()));
            ASSERT_TRUE(memory.marginsIntact()) << this->describe(len, r) << ", offset " << offset;
        }
    }
}

TYPED_TEST(FirMultiRate, TapsAndLineRoundTrip) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    using Tap = typename K::Tap;
    auto extremeTaps = [&](int n) {
        return drawn<Tap>(count(n), [&] { return extremeValue<Part<Tap>>(this->rng); });
    };
    auto extremePast = [&](int n) {
        return drawn<Sample>(count(n), [&] {
            auto v = extremeValue<Part<Sample>>(this->rng);
            return v == v ? v : Part<Sample>(1);
        });
    };
    for (const int len : {1, 2, 5, 10, 40, 200}) {
        for (const auto& [up, down] :
             {std::pair{1, 2}, {4, 1}, {3, 2}, {5, 7}, {1, 300}, {300, 1}}) {
            const int length = (len + up - 1) / up;
            auto taps = extremeTaps(len);
            auto past = extremePast(length);
            MultiRate<K> filter(taps, this->rates(up, down), past.data());
            Buffer<Tap> gotTaps(count(len), {3});
            Buffer<Sample> gotLine(count(length), {1});
            for (int round = 0; round < 2; ++round) {
                ASSERT_EQ(vlqStsOk, K::getTaps(filter.state, gotTaps.data()));
                ASSERT_TRUE(sameBits(taps, gotTaps.values()));
                ASSERT_EQ(vlqStsOk, K::getLine(filter.state, gotLine.data()));
                ASSERT_TRUE(sameBits(past, gotLine.values())) << len << " taps, round " << round;
                taps = extremeTaps(len), past = extremePast(length);
                ASSERT_EQ(vlqStsOk, K::setTaps(Buffer<Tap>(taps, {1}).data(), filter.state));
                ASSERT_EQ(vlqStsOk, K::setLine(filter.state, Buffer<Sample>(past, {1}).data()));
            }
            ASSERT_EQ(vlqStsOk, K::setLine(filter.state, nullptr));
            EXPECT_TRUE(sameBits(std::vector<Sample>(count(length)), filter.line(count(length))));
            EXPECT_TRUE(gotTaps.marginsIntact() && gotLine.marginsIntact());
        }
    }
}

TYPED_TEST(FirMultiRate, NewTapsAndLine) {
    using K = TypeParam;
    for (int round = 0; round < 50; ++round) {
        const int len = 1 + this->below(60);
        const RateArguments r = this->rates(1 + this->below(5), 2 + this->below(5));
        MultiRate<K> filter(this->wholeTaps(len), r);
        const auto taps = this->wholeTaps(len);
        ASSERT_EQ(vlqStsOk, K::setTaps(taps.data(), filter.state));
        const auto past = this->wholeSamples((len + r.up - 1) / r.up);
        ASSERT_EQ(vlqStsOk, K::setLine(filter.state, past.data()));
        MultiRateRef ref(taps, r, past);
        const auto src = this->wholeSamples((1 + this->below(40)) * r.down);
        this->expectExact(ref.run(src), filter.outputs(src), this->describe(len, r));
        if (this->HasFailure()) return;
    }
}

TYPED_TEST(FirMultiRate, RefusedMemory) {
    using K = TypeParam;
    const auto taps = this->taps(20);
    const int outstanding = Core::outstanding();
    for (const auto& [up, down] : {std::pair{1, 3}, {4, 1}, {1, 200}, {200, 3}}) {
        Core::reset();
        Core::refuseAllocation(1);
        typename K::State* state = nullptr;
        EXPECT_EQ(vlqStsNoMemory, K::initAlloc(&state, taps.data(), 20, up, 0, down, 0, nullptr));
        EXPECT_EQ(nullptr, state);
        EXPECT_EQ(1, Core::allocations());
        Core::refuseAllocation(0);
        EXPECT_EQ(outstanding, Core::outstanding());
    }
    // In place, a copy of the samples is needed where outputs overtake them.
    for (const auto& [up, down] : {std::pair{1, 3}, {3, 3}, {4, 3}}) {
        MultiRate<K> filter(taps, {up, 0, down, 0});
        auto x = this->samples(40);
        const auto before = x;
        const auto line = filter.line(count((20 + up - 1) / up));
        Core::reset();
        Core::refuseAllocation(1);
        const bool overtakes = up > down;
        EXPECT_EQ(overtakes ? vlqStsNoMemory : vlqStsOk, filter.inPlace(x.data(), 10));
        EXPECT_EQ(overtakes ? 1 : 0, Core::allocations());
        Core::refuseAllocation(0);
        if (overtakes) {
            EXPECT_TRUE(sameBits(before, x));
            EXPECT_TRUE(sameBits(line, filter.line(line.size())));
            EXPECT_EQ(vlqStsNoMemory, filter.inPlace(x.data(), INT_MAX));
            EXPECT_TRUE(sameBits(before, x));
        }
    }
    EXPECT_EQ(outstanding, Core::outstanding());
}

// ---- blocks -------------------------------------------------------------------------------------

// Every pair of small factors with every pair of phases.
TYPED_TEST(FirMultiRate, EveryPhase) {
    using K = TypeParam;
    for (int up = 1; up <= 4; ++up) {
        for (int down = 1; down <= 4; ++down) {
            for (int upPhase = 0; upPhase < up; ++upPhase) {
                for (int downPhase = 0; downPhase < down; ++downPhase) {
                    for (const int len : {1, 2, 3, 5, 11, 24}) {
                        const RateArguments r = {up, upPhase, down, downPhase};
                        const auto taps = this->wholeTaps(len);
                        const auto past = this->wholeSamples((len + up - 1) / up);
                        MultiRate<K> filter(taps, r, past.data());
                        MultiRateRef ref(taps, r, past);
                        for (const int periods : {1, 3, 37}) {
                            const auto src = this->wholeSamples(periods * down);
                            this->expectExact(ref.run(src), filter.outputs(src, periods == 3),
                                              this->describe(len, r));
                            ASSERT_TRUE(sameBits(ref.template line<typename K::Sample>(),
                                                 filter.line(ref.length())));
                            if (this->HasFatalFailure()) return;
                        }
                    }
                }
            }
        }
    }
}

TYPED_TEST(FirMultiRate, FactorsAndTapCounts) {
    using K = TypeParam;
    for (int up = 1; up <= 8; ++up) {
        for (int down = 1; down <= 8; ++down) {
            for (int len = 1 + this->below(3); len <= 70; len += 1 + this->below(12)) {
                const RateArguments r = this->rates(up, down);
                const auto taps = this->wholeTaps(len);
                const auto past = this->wholeSamples((len + up - 1) / up);
                MultiRate<K> filter(taps, r, past.data());
                MultiRateRef ref(taps, r, past);
                for (const int periods : {1 + this->below(8), 10 + this->below(70)}) {
                    const auto src = this->wholeSamples(periods * down);
                    this->expectExact(ref.run(src), filter.outputs(src, periods % 2 == 0),
                                      this->describe(len, r));
                    ASSERT_TRUE(sameBits(ref.template line<typename K::Sample>(),
                                         filter.line(ref.length())));
                    if (this->HasFatalFailure()) return;
                }
            }
        }
    }
}

TYPED_TEST(FirMultiRate, LargeFactorsAndLongFilters) {
    using K = TypeParam;
    struct Case {
        int taps, up, down, periods;
    };
    for (const Case& c : {Case{3000, 160, 147, 1},
                          {3000, 160, 147, 3},
                          {640, 160, 147, 40},
                          {100, 147, 160, 20},
                          {33, 1, 500, 40},
                          {2000, 1, 500, 30},
                          {77, 61, 1, 50},
                          {5, 300, 7, 20},
                          {900, 1, 2, 600},
                          {1500, 3, 2, 300},
                          {1, 1, 130, 70},
                          {1, 90, 1, 33},
                          {6000, 1, 1900, 3},
                          {40, 2000, 3, 4}}) {
        const RateArguments r = this->rates(c.up, c.down);
        const auto taps = this->wholeTaps(c.taps);
        const auto past = this->wholeSamples((c.taps + c.up - 1) / c.up);
        MultiRate<K> filter(taps, r, past.data(),
                            K::kScaled && sizeof(Part<typename K::Sample>) == 2 ? 4 : 0);
        MultiRateRef ref(taps, r, past);
        for (int call = 0; call < 2; ++call) {
            const auto src = this->wholeSamples(static_cast<long>(c.periods) * c.down);
            const auto want = ref.run(src);
            const auto got = filter.outputs(src, call == 1);
            ASSERT_EQ(want.size(), got.size());
            for (std::size_t i = 0; i < got.size(); ++i) {
                ASSERT_TRUE(isAllowed(want[i].sum, 0, filter.scale, got[i]))
                    << this->describe(c.taps, r) << ", output " << i;
            }
            ASSERT_TRUE(
                sameBits(ref.template line<typename K::Sample>(), filter.line(ref.length())));
        }
    }
}

TYPED_TEST(FirMultiRate, Accuracy) {
    using K = TypeParam;
    for (int round = 0; round < 60; ++round) {
        const int len = 1 + this->below(round % 5 == 0 ? 400 : 70);
        const RateArguments r = this->rates(1 + this->below(8), 1 + this->below(8));
        if (r.up == 1 && r.down == 1) continue;
        const auto taps = this->taps(len);
        const auto past = this->samples((len + r.up - 1) / r.up);
        const int scales[] = {0, 3, -3, 17, 40, -100, 2000, INT_MAX};
        MultiRate<K> filter(taps, r, past.data(), K::kScaled ? scales[round % 8] : 0);
        MultiRateRef ref(taps, r, past);
        const auto src = this->samples((1 + this->below(100)) * r.down);
        const auto want = ref.run(src);
        const auto got = filter.outputs(src, round % 2 == 0);
        for (std::size_t i = 0; i < got.size(); ++i) {
            ASSERT_TRUE(
                isAllowed(want[i].sum, errorBound<typename K::Tap>(want[i]), filter.scale, got[i]))
                << this->describe(len, r) << ", output " << i << ": " << wide(got[i]) << " for "
                << want[i].sum;
        }
        ASSERT_TRUE(sameBits(ref.template line<typename K::Sample>(), filter.line(ref.length())));
    }
}

// A stream cut into calls anyhow gives the bits of one call.
TYPED_TEST(FirMultiRate, Cuts) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    // Ten thousand for each type of taps.
    const int rounds = sizeof(Part<typename K::Tap>) == 4 ? 5000 : 2500;
    for (int round = 0; round < rounds; ++round) {
        const int len = 1 + this->below(round % 8 == 0 ? 70 : 20);
        const RateArguments r = this->rates(1 + this->below(round % 3 == 0 ? 8 : 4),
                                            1 + this->below(round % 3 == 1 ? 8 : 4));
        if (r.up == 1 && r.down == 1) continue;
        const auto taps = this->taps(len);
        const auto past = this->samples((len + r.up - 1) / r.up);
        MultiRate<K> whole(taps, r, past.data()), cut(taps, r, past.data());
        const int periods = 1 + this->below(round % 16 == 0 ? 300 : 50);
        const auto src = this->samples(periods * r.down);
        const auto want = whole.outputs(src);
        std::vector<Sample> got;
        for (int done = 0; done < periods;) {
            const int piece = std::min(periods - done, 1 + this->below(this->below(2) ? 4 : 40));
            const auto out =
                cut.outputs({src.begin() + done * r.down, src.begin() + (done + piece) * r.down},
                            this->below(2) == 0);
            got.insert(got.end(), out.begin(), out.end());
            done += piece;
        }
        ASSERT_TRUE(sameBits(want, got)) << this->describe(len, r) << ", " << periods << " periods";
        const std::size_t line = past.size();
        ASSERT_TRUE(sameBits(whole.line(line), cut.line(line))) << this->describe(len, r);
    }
}

TYPED_TEST(FirMultiRate, PlacesOfVectors) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    for (int round = 0; round < 300; ++round) {
        const int len = 1 + this->below(60);
        const RateArguments r = this->rates(1 + this->below(6), 1 + this->below(6));
        if (r.up == 1 && r.down == 1) continue;
        const auto taps = this->taps(len);
        const auto past = this->samples((len + r.up - 1) / r.up);
        MultiRate<K> plain(taps, r, past.data()), placed(taps, r, past.data());
        const int periods = 1 + this->below(90);
        const auto src = this->samples(periods * r.down);
        const auto want = plain.outputs(src);
        const bool guarded = this->below(3) == 0;
        const Buffer<Sample> from(src, {this->below(64), guarded});
        Buffer<Sample> to(want.size(), {this->below(64), guarded});
        ASSERT_EQ(vlqStsOk, placed.run(from.data(), to.data(), periods));
        ASSERT_TRUE(same(to, want)) << this->describe(len, r);
        ASSERT_TRUE(sameBits(src, from.values()) && from.marginsIntact());
        // In place, at any address, the vector no longer than it must be.
        ASSERT_EQ(vlqStsOk, K::setLine(placed.state, past.data()));
        auto both = src;
        both.resize(std::max(src.size(), want.size()));
        Buffer<Sample> srcDst(both, {this->below(64), guarded});
        ASSERT_EQ(vlqStsOk, placed.inPlace(srcDst.data(), periods));
        ASSERT_TRUE(srcDst.marginsIntact());
        auto got = srcDst.values();
        got.resize(want.size());
        ASSERT_TRUE(sameBits(want, got)) << this->describe(len, r);
    }
}

TYPED_TEST(FirMultiRate, ThreadsChangeNothing) {
    using K = TypeParam;
    const int above = isComplex<typename K::Tap> ? 800 : 1600;
    for (const auto& [len, up, down] :
         {std::tuple{33, 1, 3}, {40, 3, 1}, {31, 3, 2}, {5, 1, 9}, {20, 2, 2}}) {
        const RateArguments r = this->rates(up, down);
        const auto taps = this->taps(len);
        for (const int periods : {above, above + 1, 3 * above + 17}) {
            const auto src = this->samples(static_cast<long>(periods) * down);
            std::vector<typename K::Sample> want;
            for (const int threads : {1, 2, 5}) {
                Core::setThreads(threads);
                MultiRate<K> filter(taps, r);
                auto got = filter.outputs(src);
                const auto inPlace = filter.outputs(src, true);
                got.insert(got.end(), inPlace.begin(), inPlace.end());
                if (threads == 1) want = got;
                ASSERT_TRUE(sameBits(want, got)) << this->describe(len, r) << ", " << threads
                                                 << " threads, " << periods << " periods";
            }
        }
    }
}

// A sample that is not finite reaches the outputs whose windows hold it and no others.
TYPED_TEST(FirMultiRate, InfinityStaysInItsWindows) {
    using K = TypeParam;
    using Real = Part<typename K::Sample>;
    if constexpr (std::is_floating_point_v<Real>) {
        for (int round = 0; round < 200; ++round) {
            const int len = 1 + this->below(50);
            const RateArguments r = this->rates(1 + this->below(6), 2 + this->below(6));
            auto taps = this->taps(len);
            const int periods = 1 + this->below(60);
            auto src = this->samples(periods * r.down);
            auto& spoilt = src[count(this->below(periods * r.down))];
            reinterpret_cast<Real&>(spoilt) = std::numeric_limits<Real>::infinity();
            MultiRate<K> filter(taps, r);
            MultiRateRef ref(taps, r);
            const auto want = ref.run(src);
            const auto got = filter.outputs(src);
            for (std::size_t i = 0; i < got.size(); ++i) {
                ASSERT_EQ(std::isfinite(static_cast<double>(want[i].sum.real())),
                          std::isfinite(static_cast<double>(wide(got[i]).real())))
                    << this->describe(len, r) << ", output " << i;
            }
        }
    }
}

TYPED_TEST(FirMultiRate, FilteringAllocatesNothing) {
    using K = TypeParam;
    MultiRate<K> filter(this->taps(100), {2, 1, 3, 0});
    auto src = this->samples(6000), dst = src;
    const int before = Core::allocations();
    for (const int n : {1, 100, 2000}) {
        ASSERT_EQ(vlqStsOk, filter.run(src.data(), dst.data(), n));
        ASSERT_EQ(vlqStsOk, filter.inPlace(dst.data(), n));
    }
    EXPECT_EQ(before, Core::allocations());
}

// Factors of 1: the filter of a single rate, with its transform.
TYPED_TEST(FirMultiRate, FactorsOfOne) {
    using K = TypeParam;
    for (const int len : {1, 5, 64, 100}) {
        const auto taps = this->wholeTaps(len);
        const auto past = this->wholeSamples(len);
        MultiRate<K> filter(taps, {1, 0, 1, 0}, past.data());
        EXPECT_EQ(K::kHasSingleRate ? K::kWord : K::kMultiRateWord,
                  static_cast<Vlq32u>(word(filter.state, 0)));
        EXPECT_EQ(K::kHasSingleRate && len >= 64, word(filter.state, kFftLen) > 0);
        MultiRateRef ref(taps, {1, 0, 1, 0}, past);
        for (const int n : {1, 50, 200}) {
            const auto src = this->wholeSamples(n);
            this->expectExact(ref.run(src), filter.outputs(src, n == 50),
                              std::to_string(len) + " taps");
            ASSERT_TRUE(
                sameBits(ref.template line<typename K::Sample>(), filter.line(ref.length())));
        }
        Vlq32s bytes;
        ASSERT_EQ(vlqStsOk, K::size(len, 1, 1, &bytes));
        Buffer<Vlq8u> memory(count(bytes), {5});
        typename K::State* state = nullptr;
        ASSERT_EQ(vlqStsOk, K::init(&state, taps.data(), len, 1, 0, 1, 0, nullptr, memory.data()));
        typename K::Sample y[4], x[4] = {};
        ASSERT_EQ(vlqStsOk, K::block(x, y, 4, state, 0));
        EXPECT_EQ(vlqStsOk, K::free(state));
        EXPECT_TRUE(memory.marginsIntact());
    }
}

// Factors of one and a long block: the transform of the single-rate record, bit for bit.
TEST(FirMultiRateOfOne, LongBlocks) {
    Rng rng(seed());
    for (const Vlq32s len : {64, 300}) {
        const auto taps = uniformVector<Vlq32f>(count(len), -1, 1, rng),
                   src = uniformVector<Vlq32f>(5000, -1, 1, rng);
        VlqsFIRState_32f *single = nullptr, *multiRate = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&single, taps.data(), len, nullptr));
        ASSERT_EQ(vlqStsOk,
                  vlqsFIRMRInitAlloc_32f(&multiRate, taps.data(), len, 1, 0, 1, 0, nullptr));
        std::vector<Vlq32f> want(src.size()), got(src.size());
        ASSERT_EQ(vlqStsOk, vlqsFIR_32f(src.data(), want.data(), 5000, single));
        ASSERT_EQ(vlqStsOk, vlqsFIR_32f(src.data(), got.data(), 5000, multiRate));
        EXPECT_TRUE(sameBits(want, got)) << len << " taps";
        EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(single));
        EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(multiRate));
    }
}

// ---- errors -------------------------------------------------------------------------------------

TYPED_TEST(FirMultiRate, Errors) {
    using K = TypeParam;
    const auto taps = this->taps(4);
    typename K::State* state = nullptr;
    Vlq32s bytes = -7;
    EXPECT_EQ(vlqStsNullPtr, K::size(0, 0, 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, K::size(0, 0, 0, &bytes));
    EXPECT_EQ(vlqStsBadTapCount, K::size(-1, 1, 1, &bytes));
    EXPECT_EQ(vlqStsBadRateFactor, K::size(1, 0, 1, &bytes));
    EXPECT_EQ(vlqStsBadRateFactor, K::size(1, 1, 0, &bytes));
    EXPECT_EQ(-7, bytes);
    Vlq8u memory[64] = {};
    EXPECT_EQ(vlqStsNullPtr, K::init(nullptr, taps.data(), 0, 0, 0, 0, 0, nullptr, memory));
    EXPECT_EQ(vlqStsNullPtr, K::init(&state, nullptr, 0, 0, 0, 0, 0, nullptr, memory));
    EXPECT_EQ(vlqStsNullPtr, K::init(&state, taps.data(), 0, 0, 0, 0, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsNullPtr, K::initAlloc(nullptr, taps.data(), 0, 0, 0, 0, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, K::initAlloc(&state, nullptr, 0, 0, 0, 0, 0, nullptr));
    auto expectBoth = [&](VlqStatus want, int len, int up, int upPhase, int down, int downPhase) {
        EXPECT_EQ(want,
                  K::init(&state, taps.data(), len, up, upPhase, down, downPhase, nullptr, memory));
        EXPECT_EQ(want,
                  K::initAlloc(&state, taps.data(), len, up, upPhase, down, downPhase, nullptr));
    };
    expectBoth(vlqStsBadTapCount, 0, 0, -1, 0, -1);
    expectBoth(vlqStsBadTapCount, -5, 1, 0, 1, 0);
    expectBoth(vlqStsBadRateFactor, 4, 0, -1, 1, -1);
    expectBoth(vlqStsBadRateFactor, 4, 1, -1, 0, -1);
    expectBoth(vlqStsBadRateFactor, 4, -3, 0, 1, 0);
    expectBoth(vlqStsBadRatePhase, 4, 3, 3, 2, 0);
    expectBoth(vlqStsBadRatePhase, 4, 3, -1, 2, 0);
    expectBoth(vlqStsBadRatePhase, 4, 3, 0, 2, 2);
    expectBoth(vlqStsBadRatePhase, 4, 3, 0, 2, -1);
    expectBoth(vlqStsBadRatePhase, 4, 1, 1, 1, 0);
    EXPECT_EQ(nullptr, state);
    for (const Vlq8u b : memory) EXPECT_EQ(0, b);
    EXPECT_EQ(0, Core::allocations());
    EXPECT_EQ(-29, vlqStsBadRateFactor);
    EXPECT_EQ(-28, vlqStsBadRatePhase);
}

TYPED_TEST(FirMultiRate, WordsOfOtherKinds) {
    using K = TypeParam;
    using Sample = typename K::Sample;
    auto taps = this->taps(4);
    MultiRate<K> filter(taps, {2, 0, 3, 0});
    std::vector<Sample> x(24);
    // A record of two rates takes no single samples.
    EXPECT_EQ(vlqStsBadSpec, K::one(x[0], x.data(), filter.state, 0));
    EXPECT_EQ(vlqStsNullPtr, K::block(nullptr, x.data(), 0, filter.state, 0));
    EXPECT_EQ(vlqStsNullPtr, K::block(x.data(), nullptr, 0, filter.state, 0));
    EXPECT_EQ(vlqStsBadSize, K::block(x.data(), x.data() + 12, 0, filter.state, 0));
    EXPECT_EQ(vlqStsNullPtr, K::inPlace(nullptr, 0, filter.state, 0));
    EXPECT_EQ(vlqStsBadSize, K::inPlace(x.data(), -1, filter.state, 0));
    for (const Vlq32u alien : {0x46493031u, 0x46493032u, 0x46493033u, 0x46493034u, 0x46493133u,
                               0x46493135u, 0x46493039u, 0x46493332u, 0x46493334u, 0u}) {
        if (alien == K::kWord || alien == K::kMultiRateWord) continue;
        std::memcpy(static_cast<void*>(filter.state), &alien, 4);
        EXPECT_EQ(vlqStsBadSpec, K::block(x.data(), x.data() + 12, 4, filter.state, 0));
        EXPECT_EQ(vlqStsBadSpec, K::inPlace(x.data(), 4, filter.state, 0));
        EXPECT_EQ(vlqStsBadSpec, K::setTaps(taps.data(), filter.state));
        EXPECT_EQ(vlqStsBadSpec, K::getTaps(filter.state, taps.data()));
        EXPECT_EQ(vlqStsBadSpec, K::setLine(filter.state, x.data()));
        EXPECT_EQ(vlqStsBadSpec, K::getLine(filter.state, x.data()));
        const bool isStream = std::is_same_v<K, Mr32f> && alien >= 0x46493333u;
        if (!isStream) { EXPECT_EQ(vlqStsBadSpec, K::free(filter.state)); }
    }
    std::memcpy(static_cast<void*>(filter.state), &K::kMultiRateWord, 4);
    for (const Sample& v : x) EXPECT_EQ(WideComplex(0), wide(v));
}

// The calls of integer taps answer to the single-rate word alone; accessors serve both.
TEST(FirMultiRateOfIntegers, SingleRateWordAlone) {
    Core::reset();
    const double taps[] = {1, 2, 3};
    VlqsFIRState64f_32s* state = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRMRInitAlloc64f_32s(&state, taps, 3, 1, 0, 2, 0, nullptr));
    Vlq32s x[4] = {1, 2, 3, 4}, y[2] = {-1, -1};
    EXPECT_EQ(vlqStsBadSpec, vlqsFIR_32s_Sfs(x, y, 2, state, 0));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIR_32s_ISfs(x, 2, state, 0));
    EXPECT_EQ(-1, y[0]);
    const Vlq32s integers[] = {5, -6, 7};
    Vlq32s got[3];
    EXPECT_EQ(vlqStsOk, vlqsFIRSetTaps_32s(integers, state));
    EXPECT_EQ(vlqStsOk, vlqsFIRGetTaps_32s(state, got));
    EXPECT_EQ(0, std::memcmp(integers, got, sizeof got));
    EXPECT_EQ(vlqStsOk, vlqsFIR64f_32s_Sfs(x, y, 2, state, 0));
    EXPECT_EQ(5, y[0]);
    EXPECT_EQ(5 * 3 - 6 * 2 + 7 * 1, y[1]);

    // The forwards of the header.
    const Vlq32s past[] = {9, 8, 7};
    ASSERT_EQ(vlqStsOk, vlqsFIRFree_32s(state));
    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32s(&state, integers, 3, past));
    EXPECT_EQ(vlqStsOk, vlqsFIRGetDlyLine_32s(state, got));
    EXPECT_EQ(0, std::memcmp(past, got, sizeof got));
    EXPECT_EQ(vlqStsOk, vlqsFIRSetDlyLine_32s(state, integers));
    EXPECT_EQ(vlqStsOk, vlqsFIRGetDlyLine_32s(state, got));
    EXPECT_EQ(0, std::memcmp(integers, got, sizeof got));
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32s(state));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRFree_32s(nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRSetDlyLine_32s(nullptr, past));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetDlyLine_32s(nullptr, got));
    EXPECT_EQ(0, Core::outstanding());
}

}  // namespace
