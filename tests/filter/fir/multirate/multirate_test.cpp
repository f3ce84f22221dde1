// Multi-rate FIR filters through a state.
#include <climits>
#include <cstring>

#include "filter/fir/fir_rows.h"
#include "filter/fir/multirate/multirate_ref.h"

namespace {

using namespace vlqtest;

constexpr int kTapsLen = 12, kUpFactor = 16, kFirstChunk = 20, kDownFactor = 24, kChunkOutputs = 28,
              kFftLen = 44, kDlyIndex = 48, kPaddedPhase = 60, kMrKind = 64, kDlyLen = 68,
              kOwned = 92, kUpPhase = 96, kDownPhase = 100;

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

class Filter : public RowState {
public:
    Filter(const FirRow& row, const Values& taps, RateArguments r, const Values* past = nullptr,
           int scaleFactor = 0)
        : RowState(row, taps.len(), scaleFactor), rates(r) {
        EXPECT_EQ(vlqStsOk, row.rateInitAlloc(&state, taps.data(), tapsLen, r,
                                              past ? past->data() : nullptr));
    }
    // Whole periods, in place or not.
    Values outputs(const Values& src, bool useInPlace = false) {
        const int periods = src.len() / rates.down;
        const std::size_t made = count(periods) * count(rates.up);
        Values dst = src;
        dst.resize(useInPlace ? std::max(made, src.size()) : made);
        EXPECT_EQ(vlqStsOk,
                  useInPlace ? inPlace(dst.data(), periods) : run(src.data(), dst.data(), periods));
        dst.resize(made);
        return dst;
    }
    RateArguments rates;
};

class FirMultiRate : public RowTest {
protected:
    RateArguments rates(int up, int down) { return {up, below(up), down, below(down)}; }
    // Taps and samples whose sums every type holds exactly.
    Values wholeTaps(int n) { return randomIntegers(kind.tap, count(n), 7, rng); }
    Values wholeSamples(long n) { return randomIntegers(kind.sample, count(n), 20, rng); }

    void expectExact(const std::vector<MultiRateRef::Output>& want, const Values& got,
                     const std::string& what) {
        ASSERT_EQ(want.size(), got.size()) << what;
        for (std::size_t i = 0; i < got.size(); ++i)
            ASSERT_EQ(want[i].sum, got[i]) << what << ", output " << i;
    }
    Values lineOf(const MultiRateRef& ref) const { return {kind.sample, ref.line<WideComplex>()}; }
    std::string describe(int taps, RateArguments r) {
        return std::to_string(taps) + " taps, up " + std::to_string(r.up) + " phase " +
               std::to_string(r.upPhase) + ", down " + std::to_string(r.down) + " phase " +
               std::to_string(r.downPhase);
    }
};
INSTANTIATE_TEST_SUITE_P(Kinds, FirMultiRate, ::testing::ValuesIn(firRows()), nameOf);

// ---- states -------------------------------------------------------------------------------------

TEST_P(FirMultiRate, Fields) {
    for (const int len : {1, 2, 6, 7, 10, 11, 24, 33, 96, 200}) {
        for (const int up : {1, 2, 3, 4, 5, 6, 160}) {
            for (const int down : {1, 2, 3, 6, 7, 147}) {
                const RateArguments r = rates(up, down);
                Filter filter(kind, taps(len), r);
                EXPECT_EQ(1, field(filter.state, kOwned));
                EXPECT_EQ(len, field(filter.state, kTapsLen));
                if (up == 1 && down == 1 && kind.hasSingleRate) {
                    EXPECT_EQ(kind.tag, static_cast<Vlq32u>(field(filter.state, 0)));
                    EXPECT_EQ(0, field(filter.state, kMrKind));
                    continue;
                }
                const Derived want(len, up, down);
                EXPECT_EQ(kind.multiRateTag, static_cast<Vlq32u>(field(filter.state, 0)));
                EXPECT_EQ(up, field(filter.state, kUpFactor));
                EXPECT_EQ(down, field(filter.state, kDownFactor));
                EXPECT_EQ(r.upPhase, field(filter.state, kUpPhase));
                EXPECT_EQ(r.downPhase, field(filter.state, kDownPhase));
                EXPECT_EQ(want.line, field(filter.state, kDlyLen));
                EXPECT_EQ(want.slots / up, field(filter.state, kPaddedPhase));
                EXPECT_EQ(want.inputs, field(filter.state, kFirstChunk)) << describe(len, r);
                EXPECT_EQ(want.outputs, field(filter.state, kChunkOutputs)) << describe(len, r);
                EXPECT_EQ(-1, field(filter.state, kFftLen));
                EXPECT_EQ(0, field(filter.state, kDlyIndex));
                EXPECT_EQ(kind.tap.isComplex ? 1 : kindOf(len, up, down),
                          field(filter.state, kMrKind))
                    << describe(len, r);
            }
        }
    }
}

TEST_P(FirMultiRate, KindsOfTables) {
    if (kind.tap.isComplex) GTEST_SKIP() << "complex states have one kind";
    auto tables = [&](int len, int up, int down) {
        return field(Filter(kind, taps(len), {up, 0, down, 0}).state, kMrKind);
    };
    EXPECT_EQ(1, tables(7, 1, 2));
    EXPECT_EQ(2, tables(6, 1, 2));
    EXPECT_EQ(1, tables(2, 3, 1));
    EXPECT_EQ(3, tables(1, 3, 1));
    EXPECT_EQ(3, field(Filter(kind, taps(10), {4, 0, 1, 0}).state, kDlyLen));
}

TEST_P(FirMultiRate, Sizes) {
    auto size = [&](int len, int up, int down) {
        Vlq32s bytes = -1;
        EXPECT_EQ(vlqStsOk, kind.rateSize(len, up, down, &bytes));
        return bytes;
    };
    for (const int len : {1, 2, 6, 7, 63, 64, 100, 1000, 100001}) {
        Vlq32s single = 0;
        ASSERT_EQ(vlqStsOk, kind.stateSize(len, &single));
        EXPECT_EQ(single, size(len, 1, 1));
        if (!(kind.tap == typeOf<Vlq32f>())) continue;
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
    const Values h = taps(3);
    void* state = nullptr;
    Vlq8u memory[64];
    EXPECT_EQ(INT_MAX, size(3, 1, INT_MAX));
    EXPECT_EQ(INT_MAX, size(3, INT_MAX, 3));
    EXPECT_EQ(INT_MAX, size(INT_MAX, INT_MAX, INT_MAX));
    EXPECT_EQ(vlqStsNoMemory,
              kind.rateInit(&state, h.data(), 3, {1, 0, INT_MAX, 0}, nullptr, memory));
    EXPECT_EQ(vlqStsNoMemory,
              kind.rateInitAlloc(&state, h.data(), 3, {INT_MAX, INT_MAX - 1, 3, 2}, nullptr));
    EXPECT_EQ(nullptr, state);
    EXPECT_EQ(0, Core::allocations());
}

// The reported size is enough wherever the memory begins, and results do not depend on where.
TEST_P(FirMultiRate, StaysInsideItsMemory) {
    for (int round = 0; round < 60; ++round) {
        const int len = 1 + below(round % 4 == 0 ? 200 : 30);
        const RateArguments r = rates(1 + below(7), 1 + below(7));
        const Values h = taps(len);
        const int line = (len + r.up - 1) / r.up;
        const Values past = samples(line);
        const int periods = 40 + below(200);
        const Values src = samples(periods * r.down);
        Vlq32s bytes;
        ASSERT_EQ(vlqStsOk, kind.rateSize(len, r.up, r.down, &bytes));
        Values first(kind.sample, 0);
        for (int offset = 0; offset <= 64; offset += 1 + below(12)) {
            Buffer<Vlq8u> memory(count(bytes), {offset % 64, offset == 64});
            void* state = nullptr;
            ASSERT_EQ(vlqStsOk,
                      kind.rateInit(&state, h.data(), len, r, past.data(), memory.data()));
            ASSERT_EQ(0u, reinterpret_cast<std::uintptr_t>(state) % (kind.isDouble() ? 32 : 16));
            ASSERT_EQ(0, field(state, kOwned));
            Values dst(kind.sample, count(periods * std::max(r.up, r.down))), all(kind.sample, 0);
            for (const int block : {1, 2, 33, periods}) {
                ASSERT_EQ(vlqStsOk, kind.block(src.data(), dst.data(), block, state, 3));
                all.append(dst.slice(0, count(block * r.up)));
            }
            Values inPlace = src;
            inPlace.resize(dst.size());
            ASSERT_EQ(vlqStsOk, kind.inPlace(inPlace.data(), periods, state, 3));
            all.append(inPlace.slice(0, count(periods * r.up)));
            if (first.size() == 0) first = all;
            ASSERT_TRUE(first == all) << describe(len, r) << ", offset " << offset;
            const auto before = memory.values();
            ASSERT_EQ(vlqStsOk, kind.free(state));
            ASSERT_TRUE(before == memory.values());
            ASSERT_TRUE(memory.marginsIntact()) << describe(len, r) << ", offset " << offset;
        }
    }
}

TEST_P(FirMultiRate, TapsAndLineRoundTrip) {
    auto extremeTaps = [&](int n) { return extremeValues(kind.tap, count(n), true, rng); };
    auto extremePast = [&](int n) { return extremeValues(kind.sample, count(n), false, rng); };
    for (const int len : {1, 2, 5, 10, 40, 200}) {
        for (const auto& [up, down] :
             {std::pair{1, 2}, {4, 1}, {3, 2}, {5, 7}, {1, 300}, {300, 1}}) {
            const int length = (len + up - 1) / up;
            Values h = extremeTaps(len);
            Values past = extremePast(length);
            Filter filter(kind, h, rates(up, down), &past);
            Buffer<Vlq8u> gotTaps(h.bytes().size(), {3}), gotLine(past.bytes().size(), {1});
            for (int round = 0; round < 2; ++round) {
                ASSERT_EQ(vlqStsOk, kind.getTaps(filter.state, gotTaps.data()));
                ASSERT_TRUE(h.bytes() == gotTaps.values());
                ASSERT_EQ(vlqStsOk, kind.getLine(filter.state, gotLine.data()));
                ASSERT_TRUE(past.bytes() == gotLine.values()) << len << " taps, round " << round;
                h = extremeTaps(len), past = extremePast(length);
                ASSERT_EQ(vlqStsOk,
                          kind.setTaps(Buffer<Vlq8u>(h.bytes(), {1}).data(), filter.state));
                ASSERT_EQ(vlqStsOk,
                          kind.setLine(filter.state, Buffer<Vlq8u>(past.bytes(), {1}).data()));
            }
            ASSERT_EQ(vlqStsOk, kind.setLine(filter.state, nullptr));
            EXPECT_TRUE(Values(kind.sample, count(length)) == filter.line(count(length)));
            EXPECT_TRUE(gotTaps.marginsIntact() && gotLine.marginsIntact());
        }
    }
}

TEST_P(FirMultiRate, NewTapsAndLine) {
    for (int round = 0; round < 50; ++round) {
        const int len = 1 + below(60);
        const RateArguments r = rates(1 + below(5), 2 + below(5));
        Filter filter(kind, wholeTaps(len), r);
        const Values h = wholeTaps(len);
        ASSERT_EQ(vlqStsOk, kind.setTaps(h.data(), filter.state));
        const Values past = wholeSamples((len + r.up - 1) / r.up);
        ASSERT_EQ(vlqStsOk, kind.setLine(filter.state, past.data()));
        MultiRateRef ref(h.all(), r, past.all());
        const Values src = wholeSamples((1 + below(40)) * r.down);
        expectExact(ref.run(src.all()), filter.outputs(src), describe(len, r));
        if (HasFailure()) return;
    }
}

TEST_P(FirMultiRate, RefusedMemory) {
    const Values h = taps(20);
    const int outstanding = Core::outstanding();
    for (const auto& [up, down] : {std::pair{1, 3}, {4, 1}, {1, 200}, {200, 3}}) {
        Core::reset();
        Core::refuseAllocation(1);
        void* state = nullptr;
        EXPECT_EQ(vlqStsNoMemory,
                  kind.rateInitAlloc(&state, h.data(), 20, {up, 0, down, 0}, nullptr));
        EXPECT_EQ(nullptr, state);
        EXPECT_EQ(1, Core::allocations());
        Core::refuseAllocation(0);
        EXPECT_EQ(outstanding, Core::outstanding());
    }
    // In place, a copy of the samples is needed where outputs overtake them.
    for (const auto& [up, down] : {std::pair{1, 3}, {3, 3}, {4, 3}}) {
        Filter filter(kind, h, {up, 0, down, 0});
        Values x = samples(40);
        const Values before = x, line = filter.line(count((20 + up - 1) / up));
        Core::reset();
        Core::refuseAllocation(1);
        const bool overtakes = up > down;
        EXPECT_EQ(overtakes ? vlqStsNoMemory : vlqStsOk, filter.inPlace(x.data(), 10));
        EXPECT_EQ(overtakes ? 1 : 0, Core::allocations());
        Core::refuseAllocation(0);
        if (overtakes) {
            EXPECT_TRUE(before == x);
            EXPECT_TRUE(line == filter.line(line.size()));
            EXPECT_EQ(vlqStsNoMemory, filter.inPlace(x.data(), INT_MAX));
            EXPECT_TRUE(before == x);
        }
    }
    EXPECT_EQ(outstanding, Core::outstanding());
}

// ---- blocks -------------------------------------------------------------------------------------

// Every pair of small factors with every pair of phases.
TEST_P(FirMultiRate, EveryPhase) {
    for (int up = 1; up <= 4; ++up) {
        for (int down = 1; down <= 4; ++down) {
            for (int upPhase = 0; upPhase < up; ++upPhase) {
                for (int downPhase = 0; downPhase < down; ++downPhase) {
                    for (const int len : {1, 2, 3, 5, 11, 24}) {
                        const RateArguments r = {up, upPhase, down, downPhase};
                        const Values h = wholeTaps(len);
                        const Values past = wholeSamples((len + up - 1) / up);
                        Filter filter(kind, h, r, &past);
                        MultiRateRef ref(h.all(), r, past.all());
                        for (const int periods : {1, 3, 37}) {
                            const Values src = wholeSamples(periods * down);
                            expectExact(ref.run(src.all()), filter.outputs(src, periods == 3),
                                        describe(len, r));
                            ASSERT_TRUE(lineOf(ref) == filter.line(ref.length()));
                            if (HasFatalFailure()) return;
                        }
                    }
                }
            }
        }
    }
}

TEST_P(FirMultiRate, FactorsAndTapCounts) {
    for (int up = 1; up <= 8; ++up) {
        for (int down = 1; down <= 8; ++down) {
            for (int len = 1 + below(3); len <= 70; len += 1 + below(12)) {
                const RateArguments r = rates(up, down);
                const Values h = wholeTaps(len);
                const Values past = wholeSamples((len + up - 1) / up);
                Filter filter(kind, h, r, &past);
                MultiRateRef ref(h.all(), r, past.all());
                for (const int periods : {1 + below(8), 10 + below(70)}) {
                    const Values src = wholeSamples(periods * down);
                    expectExact(ref.run(src.all()), filter.outputs(src, periods % 2 == 0),
                                describe(len, r));
                    ASSERT_TRUE(lineOf(ref) == filter.line(ref.length()));
                    if (HasFatalFailure()) return;
                }
            }
        }
    }
}

TEST_P(FirMultiRate, LargeFactorsAndLongFilters) {
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
        const RateArguments r = rates(c.up, c.down);
        const Values h = wholeTaps(c.taps);
        const Values past = wholeSamples((c.taps + c.up - 1) / c.up);
        Filter filter(kind, h, r, &past, kind.isScaled && kind.sample.base == Type::int16 ? 4 : 0);
        MultiRateRef ref(h.all(), r, past.all());
        for (int call = 0; call < 2; ++call) {
            const Values src = wholeSamples(static_cast<long>(c.periods) * c.down);
            const auto want = ref.run(src.all());
            const auto got = filter.outputs(src, call == 1);
            ASSERT_EQ(want.size(), got.size());
            for (std::size_t i = 0; i < got.size(); ++i) {
                ASSERT_TRUE(isAllowed(kind.sample, want[i].sum, 0, filter.scale, got[i]))
                    << describe(c.taps, r) << ", output " << i;
            }
            ASSERT_TRUE(lineOf(ref) == filter.line(ref.length()));
        }
    }
}

TEST_P(FirMultiRate, Accuracy) {
    for (int round = 0; round < 60; ++round) {
        const int len = 1 + below(round % 5 == 0 ? 400 : 70);
        const RateArguments r = rates(1 + below(8), 1 + below(8));
        if (r.up == 1 && r.down == 1) continue;
        const Values h = taps(len);
        const Values past = samples((len + r.up - 1) / r.up);
        const int scales[] = {0, 3, -3, 17, 40, -100, 2000, INT_MAX};
        Filter filter(kind, h, r, &past, kind.isScaled ? scales[round % 8] : 0);
        MultiRateRef ref(h.all(), r, past.all());
        const Values src = samples((1 + below(100)) * r.down);
        const auto want = ref.run(src.all());
        const auto got = filter.outputs(src, round % 2 == 0);
        for (std::size_t i = 0; i < got.size(); ++i) {
            const Wide bound = errorBound(want[i], kind.tap);
            ASSERT_TRUE(isAllowed(kind.sample, want[i].sum, bound, filter.scale, got[i]))
                << describe(len, r) << ", output " << i << ": " << got[i] << " for " << want[i].sum;
        }
        ASSERT_TRUE(lineOf(ref) == filter.line(ref.length()));
    }
}

// A stream cut into calls anyhow gives the bits of one call.
TEST_P(FirMultiRate, Cuts) {
    // Ten thousand for each type of taps.
    const int rounds = !kind.isDouble() ? 5000 : 2500;
    for (int round = 0; round < rounds; ++round) {
        const int len = 1 + below(round % 8 == 0 ? 70 : 20);
        const RateArguments r =
            rates(1 + below(round % 3 == 0 ? 8 : 4), 1 + below(round % 3 == 1 ? 8 : 4));
        if (r.up == 1 && r.down == 1) continue;
        const Values h = taps(len);
        const Values past = samples((len + r.up - 1) / r.up);
        Filter whole(kind, h, r, &past), cut(kind, h, r, &past);
        const int periods = 1 + below(round % 16 == 0 ? 300 : 50);
        const Values src = samples(periods * r.down);
        const auto want = whole.outputs(src);
        Values got(kind.sample, 0);
        for (int done = 0; done < periods;) {
            const int piece = std::min(periods - done, 1 + below(below(2) ? 4 : 40));
            got.append(
                cut.outputs(src.slice(count(done * r.down), count(piece * r.down)), below(2) == 0));
            done += piece;
        }
        ASSERT_TRUE(want == got) << describe(len, r) << ", " << periods << " periods";
        const std::size_t line = past.size();
        ASSERT_TRUE(whole.line(line) == cut.line(line)) << describe(len, r);
    }
}

TEST_P(FirMultiRate, PlacesOfVectors) {
    for (int round = 0; round < 300; ++round) {
        const int len = 1 + below(60);
        const RateArguments r = rates(1 + below(6), 1 + below(6));
        if (r.up == 1 && r.down == 1) continue;
        const Values h = taps(len);
        const Values past = samples((len + r.up - 1) / r.up);
        Filter plain(kind, h, r, &past), placed(kind, h, r, &past);
        const int periods = 1 + below(90);
        const Values src = samples(periods * r.down);
        const auto want = plain.outputs(src);
        const bool guarded = below(3) == 0;
        const Buffer<Vlq8u> from(src.bytes(), {below(64), guarded});
        Buffer<Vlq8u> to(want.bytes().size(), {below(64), guarded});
        ASSERT_EQ(vlqStsOk, placed.run(from.data(), to.data(), periods));
        ASSERT_TRUE(same(to, want.bytes())) << describe(len, r);
        ASSERT_TRUE(src.bytes() == from.values() && from.marginsIntact());
        // In place, at any address, the vector no longer than it must be.
        ASSERT_EQ(vlqStsOk, kind.setLine(placed.state, past.data()));
        Values both = src;
        both.resize(std::max(src.size(), want.size()));
        Buffer<Vlq8u> srcDst(both.bytes(), {below(64), guarded});
        ASSERT_EQ(vlqStsOk, placed.inPlace(srcDst.data(), periods));
        ASSERT_TRUE(srcDst.marginsIntact());
        Values got(kind.sample, srcDst.values());
        got.resize(want.size());
        ASSERT_TRUE(want == got) << describe(len, r);
    }
}

// The longest block is long enough for a team of several threads.
TEST_P(FirMultiRate, ThreadsChangeNothing) {
    const int above = kind.threadedAbove();
    for (const auto& [len, up, down] :
         {std::tuple{33, 1, 3}, {40, 3, 1}, {31, 3, 2}, {5, 1, 9}, {20, 2, 2}}) {
        const RateArguments r = rates(up, down);
        const Values h = taps(len);
        for (const int periods : {above, above + 1, 3 * above + 17, len == 40 ? 60001 : 1}) {
            const Values src = samples(static_cast<long>(periods) * down);
            Values want(kind.sample, 0);
            for (const int threads : {1, 2, 5}) {
                Core::setThreads(threads);
                Filter filter(kind, h, r);
                Values got = filter.outputs(src);
                got.append(filter.outputs(src, true));
                if (threads == 1) want = got;
                ASSERT_TRUE(want == got)
                    << describe(len, r) << ", " << threads << " threads, " << periods << " periods";
            }
        }
    }
}

// A sample that is not finite reaches the outputs whose windows hold it and no others.
TEST_P(FirMultiRate, InfinityStaysInItsWindows) {
    if (!kind.sample.isFloating()) GTEST_SKIP() << "samples are finite";
    for (int round = 0; round < 200; ++round) {
        const int len = 1 + below(50);
        const RateArguments r = rates(1 + below(6), 2 + below(6));
        const Values h = taps(len);
        const int periods = 1 + below(60);
        Values src = samples(periods * r.down);
        const std::size_t spoilt = count(below(periods * r.down)) * kind.sample.parts();
        src.setPart(spoilt, std::numeric_limits<Wide>::infinity());
        Filter filter(kind, h, r);
        MultiRateRef ref(h.all(), r);
        const auto want = ref.run(src.all());
        const Values got = filter.outputs(src);
        for (std::size_t i = 0; i < got.size(); ++i) {
            ASSERT_EQ(std::isfinite(static_cast<double>(want[i].sum.real())),
                      std::isfinite(static_cast<double>(got[i].real())))
                << describe(len, r) << ", output " << i;
        }
    }
}

TEST_P(FirMultiRate, FilteringAllocatesNothing) {
    Filter filter(kind, taps(100), {2, 1, 3, 0});
    auto src = samples(6000), dst = src;
    const int before = Core::allocations();
    for (const int n : {1, 100, 2000}) {
        ASSERT_EQ(vlqStsOk, filter.run(src.data(), dst.data(), n));
        ASSERT_EQ(vlqStsOk, filter.inPlace(dst.data(), n));
    }
    EXPECT_EQ(before, Core::allocations());
}

// Factors of 1: the filter of a single rate, with its transform.
TEST_P(FirMultiRate, FactorsOfOne) {
    for (const int len : {1, 5, 64, 100}) {
        const Values h = wholeTaps(len);
        const Values past = wholeSamples(len);
        Filter filter(kind, h, {1, 0, 1, 0}, &past);
        EXPECT_EQ(kind.hasSingleRate ? kind.tag : kind.multiRateTag,
                  static_cast<Vlq32u>(field(filter.state, 0)));
        EXPECT_EQ(kind.hasSingleRate && len >= 64, field(filter.state, kFftLen) > 0);
        MultiRateRef ref(h.all(), {1, 0, 1, 0}, past.all());
        for (const int n : {1, 50, 200}) {
            const Values src = wholeSamples(n);
            expectExact(ref.run(src.all()), filter.outputs(src, n == 50),
                        std::to_string(len) + " taps");
            ASSERT_TRUE(lineOf(ref) == filter.line(ref.length()));
        }
        Vlq32s bytes;
        ASSERT_EQ(vlqStsOk, kind.rateSize(len, 1, 1, &bytes));
        Buffer<Vlq8u> memory(count(bytes), {5});
        void* state = nullptr;
        ASSERT_EQ(vlqStsOk,
                  kind.rateInit(&state, h.data(), len, {1, 0, 1, 0}, nullptr, memory.data()));
        const Values x(kind.sample, 4);
        Values y = x;
        ASSERT_EQ(vlqStsOk, kind.block(x.data(), y.data(), 4, state, 0));
        EXPECT_EQ(vlqStsOk, kind.free(state));
        EXPECT_TRUE(memory.marginsIntact());
    }
}

// Factors of one and a long block: the transform of the single-rate state, bit for bit.
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

TEST_P(FirMultiRate, Errors) {
    const Values h = taps(4);
    void* state = nullptr;
    Vlq32s bytes = -7;
    EXPECT_EQ(vlqStsNullPtr, kind.rateSize(0, 0, 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, kind.rateSize(0, 0, 0, &bytes));
    EXPECT_EQ(vlqStsBadTapCount, kind.rateSize(-1, 1, 1, &bytes));
    EXPECT_EQ(vlqStsBadRateFactor, kind.rateSize(1, 0, 1, &bytes));
    EXPECT_EQ(vlqStsBadRateFactor, kind.rateSize(1, 1, 0, &bytes));
    EXPECT_EQ(-7, bytes);
    Vlq8u memory[64] = {};
    EXPECT_EQ(vlqStsNullPtr, kind.rateInit(nullptr, h.data(), 0, {0, 0, 0, 0}, nullptr, memory));
    EXPECT_EQ(vlqStsNullPtr, kind.rateInit(&state, nullptr, 0, {0, 0, 0, 0}, nullptr, memory));
    EXPECT_EQ(vlqStsNullPtr, kind.rateInit(&state, h.data(), 0, {0, 0, 0, 0}, nullptr, nullptr));
    EXPECT_EQ(vlqStsNullPtr, kind.rateInitAlloc(nullptr, h.data(), 0, {0, 0, 0, 0}, nullptr));
    EXPECT_EQ(vlqStsNullPtr, kind.rateInitAlloc(&state, nullptr, 0, {0, 0, 0, 0}, nullptr));
    auto expectBoth = [&](VlqStatus want, int len, int up, int upPhase, int down, int downPhase) {
        EXPECT_EQ(want, kind.rateInit(&state, h.data(), len, {up, upPhase, down, downPhase},
                                      nullptr, memory));
        EXPECT_EQ(want, kind.rateInitAlloc(&state, h.data(), len, {up, upPhase, down, downPhase},
                                           nullptr));
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

TEST_P(FirMultiRate, TagsOfOtherKinds) {
    Values h = taps(4);
    Filter filter(kind, h, {2, 0, 3, 0});
    void* const state = filter.state;
    Values x(kind.sample, 24);
    // A state of two rates takes no single samples.
    EXPECT_EQ(vlqStsBadSpec, kind.one(x.data(), x.data(), state, 0));
    EXPECT_EQ(vlqStsNullPtr, kind.block(nullptr, x.data(), 0, state, 0));
    EXPECT_EQ(vlqStsNullPtr, kind.block(x.data(), nullptr, 0, state, 0));
    EXPECT_EQ(vlqStsBadSize, kind.block(x.data(), x.data(12), 0, state, 0));
    EXPECT_EQ(vlqStsNullPtr, kind.inPlace(nullptr, 0, state, 0));
    EXPECT_EQ(vlqStsBadSize, kind.inPlace(x.data(), -1, state, 0));
    for (const Vlq32u alien : {0x46493031u, 0x46493032u, 0x46493033u, 0x46493034u, 0x46493133u,
                               0x46493135u, 0x46493039u, 0x46493332u, 0x46493334u, 0u}) {
        if (alien == kind.tag || alien == kind.multiRateTag) continue;
        std::memcpy(state, &alien, 4);
        EXPECT_EQ(vlqStsBadSpec, kind.block(x.data(), x.data(12), 4, state, 0));
        EXPECT_EQ(vlqStsBadSpec, kind.inPlace(x.data(), 4, state, 0));
        EXPECT_EQ(vlqStsBadSpec, kind.setTaps(h.data(), state));
        EXPECT_EQ(vlqStsBadSpec, kind.getTaps(state, h.data()));
        EXPECT_EQ(vlqStsBadSpec, kind.setLine(state, x.data()));
        EXPECT_EQ(vlqStsBadSpec, kind.getLine(state, x.data()));
        const bool isStream = kind.tag == firRows()[0].tag && alien >= 0x46493333u;
        if (!isStream) { EXPECT_EQ(vlqStsBadSpec, kind.free(state)); }
    }
    std::memcpy(state, &kind.multiRateTag, 4);
    EXPECT_TRUE(Values(kind.sample, 24) == x);
}

// The calls of integer taps accept the single-rate tag alone; accessors serve both.
TEST(FirMultiRateOfIntegers, SingleRateTagAlone) {
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
