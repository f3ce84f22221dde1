// Integer FIR filters with a change of rate: every output by the definition, to the bit.
#include "filter/fir/multirate/integer_multirate_ref.h"

#include <climits>

#include "filter/fir/integer/integer_kinds.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

struct Multirate16 : Real16 {
    static constexpr Vlq32u multirateWord = 0x46493330;
    static constexpr auto multirateSize = vlqsFIRMRGetStateSize_16s;
    static constexpr auto multirateInit = vlqsFIRMRInit_16s;
    static constexpr auto multirateInitAlloc = vlqsFIRMRInitAlloc_16s;
    static constexpr auto direct = vlqsFIRMR_Direct_16s_Sfs;
    static constexpr auto directInPlace = vlqsFIRMR_Direct_16s_ISfs;
};
struct Multirate32 : Real32 {
    static constexpr Vlq32u multirateWord = 0x46493131;
    static constexpr auto multirateSize = vlqsFIRMRGetStateSize32s_16s;
    static constexpr auto multirateInit = vlqsFIRMRInit32s_16s;
    static constexpr auto multirateInitAlloc = vlqsFIRMRInitAlloc32s_16s;
    static constexpr auto direct = vlqsFIRMR32s_Direct_16s_Sfs;
    static constexpr auto directInPlace = vlqsFIRMR32s_Direct_16s_ISfs;
};
struct MultirateComplex : Complex32 {
    static constexpr Vlq32u multirateWord = 0x46493132;
    static constexpr auto multirateSize = vlqsFIRMRGetStateSize32sc_16sc;
    static constexpr auto multirateInit = vlqsFIRMRInit32sc_16sc;
    static constexpr auto multirateInitAlloc = vlqsFIRMRInitAlloc32sc_16sc;
    static constexpr auto direct = vlqsFIRMR32sc_Direct_16sc_Sfs;
    static constexpr auto directInPlace = vlqsFIRMR32sc_Direct_16sc_ISfs;
};

template <class K>
std::size_t sizeOf(int taps, const RateChange& r) {
    Vlq32s bytes = -1;
    EXPECT_EQ(vlqStsOk, K::multirateSize(taps, r.up, r.down, &bytes));
    return count(bytes);
}
int delayLen(int taps, const RateChange& r) { return (taps + r.up - 1) / r.up; }

// A record in memory of exactly the told size, at any address or against a guard page.
template <class K>
class Multirate {
public:
    using Sample = typename K::Sample;
    using Tap = typename K::Tap;
    Multirate(const std::vector<Tap>& taps, int tapsFactor, const RateChange& r,
              const std::vector<Sample>& past = {}, Placement place = {})
        : memory(sizeOf<K>(static_cast<int>(taps.size()), r), place),
          len_(delayLen(static_cast<int>(taps.size()), r)) {
        EXPECT_EQ(vlqStsOk, K::multirateInit(&state, taps.data(), static_cast<int>(taps.size()),
                                             tapsFactor, r.up, r.upPhase, r.down, r.downPhase,
                                             past.empty() ? nullptr : past.data(), memory.data()));
    }
    ~Multirate() {
        EXPECT_EQ(vlqStsOk, K::release(state));
        EXPECT_TRUE(memory.marginsIntact());
    }
    Multirate(const Multirate&) = delete;
    std::vector<Sample> line() const {
        Buffer<Sample> samples(count(len_), {1});
        EXPECT_EQ(vlqStsOk, K::getLine(state, samples.data()));
        EXPECT_TRUE(samples.marginsIntact());
        return samples.values();
    }
    Buffer<Vlq8u> memory;
    typename K::State* state = nullptr;

private:
    int len_;
};

template <class K>
FirIntMultirateRef<typename K::Sample, typename K::Tap> referenceOf(
    const std::vector<typename K::Tap>& taps, int tapsFactor, const RateChange& r,
    const std::vector<typename K::Sample>& past = {}) {
    const auto kept = held(taps);
    return {kept.taps, std::int64_t{tapsFactor} + kept.exponent, r, past};
}

template <class K>
class FirIntMultirate : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override {
        Core::reset();
        EXPECT_EQ(outstanding_, Core::outstanding());
    }
    Rng rng{seed()};
    int below(int limit) { return static_cast<int>(rng() % count(limit)); }
    RateChange rates(int most) {
        RateChange r{1 + below(most), 0, 1 + below(most), 0};
        r.upPhase = below(r.up);
        r.downPhase = below(r.down);
        return r;
    }

    // A stream in calls of the given numbers of periods, out of place and in place.
    void checkStream(int taps, const RateChange& r, const std::vector<int>& calls,
                     bool atGuardPages) {
        using Sample = typename K::Sample;
        using Tap = typename K::Tap;
        const auto data = taps % 3 == 0 ? Data::Small : Data::Extreme;
        const auto h =
            taps % 2 == 0 ? values<Tap>(count(taps), rng, data) : wideTaps<Tap>(count(taps), rng);
        const auto past = values<Sample>(count(delayLen(taps, r)), rng);
        const int factor = data == Data::Small ? -10 : -below(20), scale = below(5) - 2;
        Multirate<K> record(h, factor, r, past, {below(64), atGuardPages}),
            second(h, factor, r, past, {below(64)});
        auto ref = referenceOf<K>(h, factor, r, past);
        for (const int periods : calls) {
            const auto src = values<Sample>(count(periods * r.down), rng, data);
            const auto want = ref.block(src, scale);
            const Buffer<Sample> in(src, {below(64), atGuardPages});
            Buffer<Sample> out(count(periods * r.up), {below(64), atGuardPages});
            ASSERT_EQ(vlqStsOk, K::filter(in.data(), out.data(), periods, record.state, scale));
            ASSERT_TRUE(same(out, want)) << describe(taps, r, periods);
            ASSERT_TRUE(same(in, src));
            ASSERT_EQ(ref.line, record.line()) << describe(taps, r, periods);
            // What lies behind the results of a decimator stays.
            auto longer = src;
            longer.resize(count(periods * std::max(r.up, r.down)));
            Buffer<Sample> inOut(longer, {below(64), atGuardPages});
            ASSERT_EQ(vlqStsOk, K::inPlace(inOut.data(), periods, second.state, scale));
            std::copy(want.begin(), want.end(), longer.begin());
            ASSERT_TRUE(same(inOut, longer)) << describe(taps, r, periods) << " in place";
            ASSERT_EQ(ref.line, second.line());
        }
    }
    static std::string describe(int taps, const RateChange& r, int periods) {
        return std::to_string(taps) + " taps, up " + std::to_string(r.up) + " phase " +
               std::to_string(r.upPhase) + ", down " + std::to_string(r.down) + " phase " +
               std::to_string(r.downPhase) + ", " + std::to_string(periods) + " periods";
    }

private:
    int outstanding_ = Core::outstanding();
};
using EveryMultirate = ::testing::Types<Multirate16, Multirate32, MultirateComplex>;
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

// ---- the record ---------------------------------------------------------------------------------

class FirIntMultirateTaps : public FirIntMultirate<Multirate32> {};

long rounded(long n) { return (n + 15) / 16 * 16; }

TEST_F(FirIntMultirateTaps, Sizes) {
    for (const long up : {1L, 2L, 3L, 4L, 5L, 6L, 7L, 8L, 48L, 147L}) {
        for (const long down : {1L, 2L, 3L, 4L, 5L, 6L, 7L, 8L, 44L, 160L}) {
            for (const long taps : {1L, 2L, 3L, 5L, 6L, 7L, 10L, 64L, 96L, 1000L, 100000L}) {
                const long line = (taps + up - 1) / up, line4 = (line + 3) / 4 * 4;
                const long padded = (taps + 3 * down + up - 1) / up * up,
                           rows = std::max(padded, up * line4);
                const long ahead = 4 * down * ((line + 4 * down) / (4 * down) + 1) - 4 * down;
                const long rest = (16 * up + 19) / 16 * 16 + 32 * rows + rounded(8 * rows) +
                                  (2 * (line + ahead) + 19) / 16 * 16 + 96;
                const RateChange r{static_cast<int>(up), 0, static_cast<int>(down), 0};
                const int len = static_cast<int>(taps);
                EXPECT_EQ(rounded(4 * taps) + rest, static_cast<long>(sizeOf<Multirate32>(len, r)))
                    << describe(len, r, 0);
                EXPECT_EQ(rounded(2 * taps) + rest, static_cast<long>(sizeOf<Multirate16>(len, r)));
                Vlq32s real = 0, complex = 0;
                EXPECT_EQ(vlqStsOk, vlqsFIRMRGetStateSize32s_16s32f(len, r.up, r.down, &real));
                EXPECT_EQ(vlqStsOk,
                          vlqsFIRMRGetStateSize32sc_16sc32fc(len, r.up, r.down, &complex));
                EXPECT_EQ(sizeOf<Multirate32>(len, r), count(real));
                EXPECT_EQ(sizeOf<MultirateComplex>(len, r), count(complex));
            }
        }
    }
}

Vlq32s field(const void* state, int offset) {
    Vlq32s value;
    std::memcpy(&value, static_cast<const char*>(state) + offset, sizeof value);
    return value;
}

TYPED_TEST(FirIntMultirate, Fields) {
    for (int run = 0; run < 300; ++run) {
        const RateChange r = this->rates(12);
        const int taps = 1 + this->below(90), line = delayLen(taps, r);
        Multirate<TypeParam> record(wideTaps<typename TypeParam::Tap>(count(taps), this->rng), -7,
                                    r, {}, {run % 64, run % 5 == 0});
        const int padded = (taps + 3 * r.down + r.up - 1) / r.up * r.up;
        int chunk = 4 * r.down * ((line + 4 * r.down) / (4 * r.down) + 1) - 4 * r.down + 1;
        int outputs = r.up * ((r.down + line - 1 + r.down - 1) / r.down);
        for (; outputs % (4 * r.up) != 0; outputs += r.up) chunk += r.down;
        const std::pair<int, int> fields[] = {{0, static_cast<int>(TypeParam::multirateWord)},
                                              {12, taps},
                                              {16, r.up},
                                              {20, chunk},
                                              {24, r.down},
                                              {28, outputs},
                                              {32, -7},
                                              {40, 0},
                                              {52, line},
                                              {60, 0},
                                              {64, r.upPhase},
                                              {68, r.downPhase},
                                              {72, padded / r.up}};
        for (const auto& [offset, value] : fields)
            EXPECT_EQ(value, field(record.state, offset))
                << this->describe(taps, r, 0) << ", offset " << offset;
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(record.state) % 16);
    }
}

// The smallest records, whose tables are tightest, in calls of every length.
TYPED_TEST(FirIntMultirate, StaysInsideItsMemory) {
    for (int up = 1; up <= 40; up += 1 + up / 5) {
        for (int down = 1; down <= 40; down += 1 + down / 5) {
            for (const int taps : {1, 2, 4, 5, up, up + 1}) {
                const RateChange r{up, this->below(up), down, this->below(down)};
                ASSERT_NO_FATAL_FAILURE(this->checkStream(taps, r, {70}, this->below(2) == 0));
            }
        }
    }
}

TYPED_TEST(FirIntMultirate, TapsAndDelayLine) {
    using Tap = typename TypeParam::Tap;
    using Sample = typename TypeParam::Sample;
    for (int run = 0; run < 200; ++run) {
        const RateChange r = this->rates(7);
        const int taps = 1 + run % 50, line = delayLen(taps, r);
        auto past = values<Sample>(count(line), this->rng);
        Multirate<TypeParam> record(wideTaps<Tap>(count(taps), this->rng), -3, r, past);
        EXPECT_EQ(past, record.line());
        for (int round = 0; round < 3; ++round) {
            const auto h =
                values<Tap>(count(taps), this->rng, round == 2 ? Data::Edges : Data::Extreme);
            const Buffer<Tap> odd(h, {1});
            ASSERT_EQ(vlqStsOk, TypeParam::setTaps(odd.data(), record.state, -18));
            const auto kept = held(h);
            Buffer<Tap> got(count(taps), {1});
            Vlq32s factor = 0;
            ASSERT_EQ(vlqStsOk, TypeParam::getTaps(record.state, got.data(), &factor));
            EXPECT_TRUE(same(got, kept.taps));
            EXPECT_EQ(-18 + kept.exponent, factor);
            EXPECT_EQ(past, record.line());
            auto ref = referenceOf<TypeParam>(h, -18, r, past);
            const auto src = values<Sample>(count(6 * r.down), this->rng);
            Buffer<Sample> dst(count(6 * r.up));
            ASSERT_EQ(vlqStsOk, TypeParam::filter(src.data(), dst.data(), 6, record.state, 0));
            ASSERT_TRUE(same(dst, ref.block(src, 0))) << this->describe(taps, r, 6);
            past = values<Sample>(count(line), this->rng);
            const Buffer<Sample> oddPast(past, {1});
            ASSERT_EQ(vlqStsOk, TypeParam::setLine(record.state, oddPast.data()));
        }
        ASSERT_EQ(vlqStsOk, TypeParam::setLine(record.state, nullptr));
        EXPECT_EQ(std::vector<Sample>(count(line)), record.line());
    }
}

TEST_F(FirIntMultirateTaps, FloatTaps) {
    for (int run = 0; run < 200; ++run) {
        const RateChange r = rates(5);
        const std::size_t taps = 1 + count(run % 40);
        const double peak = std::ldexp(1.0, run % 90 - 40);
        const auto h = uniformVector<float>(taps, -peak, peak, rng),
                   other = uniformVector<float>(taps, -peak * 8, peak * 8, rng);
        VlqsFIRState32s_16s32f* state = nullptr;
        Buffer<Vlq8u> memory(sizeOf<Multirate32>(static_cast<int>(taps), r), {run % 64});
        if (run % 2 == 0) {
            ASSERT_EQ(vlqStsOk,
                      vlqsFIRMRInitAlloc32s_16s32f(&state, h.data(), static_cast<int>(taps), r.up,
                                                   r.upPhase, r.down, r.downPhase, nullptr));
        } else {
            ASSERT_EQ(vlqStsOk, vlqsFIRMRInit32s_16s32f(&state, h.data(), static_cast<int>(taps),
                                                        r.up, r.upPhase, r.down, r.downPhase,
                                                        nullptr, memory.data()));
        }
        for (const int limit : {33, 32}) {
            const auto want = held(limit == 33 ? h : other, limit);
            if (limit == 32) { ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps32s_16s32f(other.data(), state)); }
            std::vector<Vlq32s> integers(taps);
            Vlq32s factor = 0;
            ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32s_16s(state, integers.data(), &factor));
            ASSERT_EQ(want.exponent, factor);
            ASSERT_EQ(want.taps, integers);
            auto inRows = want.taps;
            for (Vlq32s& tap : inRows) tap = std::clamp(tap, -32768, 32767);
            FirIntMultirateRef<Vlq16s, Vlq32s> ref(inRows, want.exponent, r);
            const auto src = values<Vlq16s>(count(20 * r.down), rng);
            Buffer<Vlq16s> dst(count(20 * r.up));
            ASSERT_EQ(vlqStsOk, vlqsFIRSetDlyLine32s_16s(state, nullptr));
            ASSERT_EQ(vlqStsOk,
                      vlqsFIR32s_16s_Sfs(src.data(), dst.data(), 20, state, want.exponent + 17));
            ASSERT_TRUE(same(dst, ref.block(src, want.exponent + 17)));
        }
        ASSERT_EQ(vlqStsOk, vlqsFIRFree32s_16s(state));
        ASSERT_TRUE(memory.marginsIntact());
    }
}

TEST_F(FirIntMultirateTaps, ComplexFloatTaps) {
    for (int run = 0; run < 100; ++run) {
        const RateChange r = rates(5);
        const std::size_t taps = 1 + count(run % 20);
        const double peak = std::ldexp(1.0, run % 60 - 25);
        const auto parts = uniformVector<float>(2 * taps, -peak, peak, rng);
        std::vector<Vlq32fc> h;
        for (std::size_t i = 0; i < taps; ++i) h.push_back({parts[2 * i], parts[2 * i + 1]});
        VlqsFIRState32sc_16sc32fc* state = nullptr;
        Buffer<Vlq8u> memory(sizeOf<MultirateComplex>(static_cast<int>(taps), r), {run % 64});
        if (run % 2 == 0) {
            ASSERT_EQ(vlqStsOk, vlqsFIRMRInitAlloc32sc_16sc32fc(
                                    &state, h.data(), static_cast<int>(taps), r.up, r.upPhase,
                                    r.down, r.downPhase, nullptr));
        } else {
            ASSERT_EQ(vlqStsOk, vlqsFIRMRInit32sc_16sc32fc(&state, h.data(), static_cast<int>(taps),
                                                           r.up, r.upPhase, r.down, r.downPhase,
                                                           nullptr, memory.data()));
        }
        const auto kept = held(parts, 33);
        const auto want =
            tapsOf({kept.taps.begin(), kept.taps.end()}, static_cast<const Vlq32sc*>(nullptr));
        std::vector<Vlq32sc> integers(taps);
        Vlq32s factor = 0;
        ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32sc_16sc(state, integers.data(), &factor));
        ASSERT_EQ(kept.exponent, factor);
        ASSERT_EQ(want, integers);
        FirIntMultirateRef<Vlq16sc, Vlq32sc> ref(want, kept.exponent, r);
        const auto src = values<Vlq16sc>(count(20 * r.down), rng);
        Buffer<Vlq16sc> dst(count(20 * r.up));
        ASSERT_EQ(vlqStsOk,
                  vlqsFIR32sc_16sc_Sfs(src.data(), dst.data(), 20, state, kept.exponent + 17));
        ASSERT_TRUE(same(dst, ref.block(src, kept.exponent + 17)));
        ASSERT_EQ(vlqStsOk, vlqsFIRFree32sc_16sc(state));
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

// ---- without a record ---------------------------------------------------------------------------

TYPED_TEST(FirIntMultirate, WithoutARecord) {
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

TYPED_TEST(FirIntMultirate, ChecksWithoutARecord) {
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

// ---- memory and checks --------------------------------------------------------------------------

TYPED_TEST(FirIntMultirate, Memory) {
    using Sample = typename TypeParam::Sample;
    const auto h = wideTaps<typename TypeParam::Tap>(20, this->rng);
    typename TypeParam::State* state = nullptr;
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory,
              TypeParam::multirateInitAlloc(&state, h.data(), 20, 0, 3, 1, 2, 1, nullptr));
    EXPECT_EQ(nullptr, state);
    Core::reset();
    ASSERT_EQ(vlqStsOk,
              TypeParam::multirateInitAlloc(&state, h.data(), 20, 0, 3, 1, 2, 1, nullptr));
    EXPECT_EQ(1, Core::allocations());
    EXPECT_EQ(1, field(state, 60));
    // Blocks in place take one, others none.
    const auto src = values<Sample>(60, this->rng);
    std::vector<Sample> dst(90);
    Core::reset();
    EXPECT_EQ(vlqStsOk, TypeParam::filter(src.data(), dst.data(), 30, state, 0));
    EXPECT_EQ(0, Core::allocations());
    std::copy(src.begin(), src.end(), dst.begin());
    const auto kept = dst;
    std::vector<Sample> line(7), after(7);
    EXPECT_EQ(vlqStsOk, TypeParam::getLine(state, line.data()));
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory, TypeParam::inPlace(dst.data(), 30, state, 0));
    EXPECT_EQ(vlqStsNoMemory, TypeParam::inPlace(dst.data(), INT_MAX, state, 0));
    EXPECT_EQ(kept, dst);
    EXPECT_EQ(vlqStsOk, TypeParam::getLine(state, after.data()));
    EXPECT_EQ(line, after);
    Core::reset();
    EXPECT_EQ(vlqStsOk, TypeParam::inPlace(dst.data(), 30, state, 0));
    EXPECT_EQ(1, Core::allocations());
    EXPECT_EQ(vlqStsOk, TypeParam::release(state));

    // A record in the caller's memory stays as it is.
    Multirate<TypeParam> record(h, 0, {3, 1, 2, 1});
    const auto before = record.memory.values();
    EXPECT_EQ(vlqStsOk, TypeParam::release(record.state));
    EXPECT_TRUE(same(record.memory, before));
}

// Records of 2 GiB and more.
TYPED_TEST(FirIntMultirate, TooLarge) {
    const typename TypeParam::Tap tap{};
    for (const auto& [taps, up, down] : {std::array{INT_MAX, 1, 1},
                                         {1, INT_MAX, 1},
                                         {1, 1, INT_MAX},
                                         {INT_MAX, INT_MAX, INT_MAX}}) {
        Vlq32s bytes = 0;
        EXPECT_EQ(vlqStsOk, TypeParam::multirateSize(taps, up, down, &bytes));
        EXPECT_EQ(INT_MAX, bytes);
        typename TypeParam::State* state = nullptr;
        Vlq8u memory[16];
        EXPECT_EQ(vlqStsNoMemory,
                  TypeParam::multirateInit(&state, &tap, taps, 0, up, 0, down, 0, nullptr, memory));
        EXPECT_EQ(vlqStsNoMemory,
                  TypeParam::multirateInitAlloc(&state, &tap, taps, 0, up, 0, down, 0, nullptr));
        EXPECT_EQ(nullptr, state);
    }
    EXPECT_EQ(0, Core::allocations());
}

TYPED_TEST(FirIntMultirate, Checks) {
    using State = typename TypeParam::State;
    const auto h = wideTaps<typename TypeParam::Tap>(4, this->rng);
    const auto* const t = h.data();
    Vlq32s bytes = -5;
    EXPECT_EQ(vlqStsNullPtr, TypeParam::multirateSize(0, 0, 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, TypeParam::multirateSize(0, 0, 0, &bytes));
    EXPECT_EQ(vlqStsBadRateFactor, TypeParam::multirateSize(1, 0, 1, &bytes));
    EXPECT_EQ(vlqStsBadRateFactor, TypeParam::multirateSize(1, 1, -1, &bytes));
    EXPECT_EQ(-5, bytes);

    Buffer<Vlq8u> memory(sizeOf<TypeParam>(4, {2, 0, 3, 0}));
    State* state = nullptr;
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::multirateInit(nullptr, t, 0, 0, 0, 0, 0, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::multirateInit(&state, nullptr, 0, 0, 0, 0, 0, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::multirateInit(&state, t, 0, 0, 0, 0, 0, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::multirateInitAlloc(nullptr, t, 0, 0, 0, 0, 0, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr,
              TypeParam::multirateInitAlloc(&state, nullptr, 0, 0, 0, 0, 0, 0, nullptr));
    auto both = [&](VlqStatus status, int taps, RateChange r) {
        EXPECT_EQ(status, TypeParam::multirateInit(&state, t, taps, 0, r.up, r.upPhase, r.down,
                                                   r.downPhase, nullptr, memory.data()));
        EXPECT_EQ(status, TypeParam::multirateInitAlloc(&state, t, taps, 0, r.up, r.upPhase, r.down,
                                                        r.downPhase, nullptr));
    };
    both(vlqStsBadTapCount, 0, {0, -1, 0, -1});
    both(vlqStsBadTapCount, INT_MIN, {0, -1, 0, -1});
    both(vlqStsBadRateFactor, 4, {0, -1, 3, -1});
    both(vlqStsBadRateFactor, 4, {2, -1, 0, -1});
    both(vlqStsBadRateFactor, 4, {INT_MIN, -1, 3, -1});
    both(vlqStsBadRatePhase, 4, {2, -1, 3, 0});
    both(vlqStsBadRatePhase, 4, {2, 2, 3, 0});
    both(vlqStsBadRatePhase, 4, {2, 1, 3, -1});
    both(vlqStsBadRatePhase, 4, {2, 1, 3, 3});
    EXPECT_EQ(nullptr, state);
    EXPECT_TRUE(memory.untouched());
    EXPECT_EQ(0, Core::allocations());
}

TEST_F(FirIntMultirateTaps, ChecksOfFloatTaps) {
    const float tap = 1;
    const Vlq32fc complexTap = {1, 1};
    VlqsFIRState32s_16s32f* state = nullptr;
    VlqsFIRState32sc_16sc32fc* complex = nullptr;
    Vlq8u memory[16];
    Vlq32s bytes = -5;
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRMRGetStateSize32s_16s32f(1, 1, 1, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRMRGetStateSize32sc_16sc32fc(0, 1, 1, &bytes));
    EXPECT_EQ(vlqStsNullPtr,
              vlqsFIRMRInit32s_16s32f(&state, &tap, 1, 1, 0, 1, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsNullPtr,
              vlqsFIRMRInit32sc_16sc32fc(&complex, nullptr, 1, 1, 0, 1, 0, nullptr, memory));
    EXPECT_EQ(vlqStsBadTapCount,
              vlqsFIRMRInit32s_16s32f(&state, &tap, 0, 0, 0, 1, 0, nullptr, memory));
    EXPECT_EQ(vlqStsBadRateFactor,
              vlqsFIRMRInit32sc_16sc32fc(&complex, &complexTap, 1, 0, 0, 1, 0, nullptr, memory));
    EXPECT_EQ(vlqStsBadRatePhase,
              vlqsFIRMRInitAlloc32s_16s32f(&state, &tap, 1, 1, 1, 1, 0, nullptr));
    EXPECT_EQ(vlqStsBadRatePhase,
              vlqsFIRMRInitAlloc32sc_16sc32fc(&complex, &complexTap, 1, 1, 0, 1, 1, nullptr));
    EXPECT_EQ(0, Core::allocations());
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRMRInitAlloc32s_16s32f(&state, &tap, 1, 1, 0, 1, 0, nullptr));
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory,
              vlqsFIRMRInitAlloc32sc_16sc32fc(&complex, &complexTap, 1, 1, 0, 1, 0, nullptr));
    EXPECT_EQ(nullptr, state);
    EXPECT_EQ(nullptr, complex);
}

// Words of other kinds, and of none: no call gets past them.
TYPED_TEST(FirIntMultirate, ForeignRecords) {
    using Sample = typename TypeParam::Sample;
    const auto h = wideTaps<typename TypeParam::Tap>(4, this->rng);
    Multirate<TypeParam> record(h, 0, {2, 1, 3, 1});
    const std::vector<Sample> src(12);
    Buffer<Sample> dst(12);
    const auto marked = dst.values();
    // A multi-rate record takes no single samples.
    EXPECT_EQ(vlqStsBadSpec, TypeParam::one(src[0], dst.data(), record.state, 0));
    std::vector<Vlq32u> words = {0, 1, 0x46493039u << 1, ~0u};
    for (int high = '0'; high <= '3'; ++high) {
        for (int low = '0'; low <= '9'; ++low)
            words.push_back(0x46490000u | static_cast<Vlq32u>(high << 8 | low));
    }
    auto taps = h;
    for (const Vlq32u word : words) {
        if (word == TypeParam::word || word == TypeParam::multirateWord) continue;
        std::memcpy(static_cast<void*>(record.state), &word, sizeof word);
        const auto before = record.memory.values();
        Vlq32s factor = 3;
        EXPECT_EQ(vlqStsBadSpec, TypeParam::filter(src.data(), dst.data(), 4, record.state, 0))
            << std::hex << word;
        EXPECT_EQ(vlqStsBadSpec, TypeParam::inPlace(dst.data(), 4, record.state, 0));
        EXPECT_EQ(vlqStsBadSpec, TypeParam::one(src[0], dst.data(), record.state, 0));
        EXPECT_EQ(vlqStsBadSpec, TypeParam::setTaps(h.data(), record.state, 0));
        EXPECT_EQ(vlqStsBadSpec, TypeParam::getTaps(record.state, taps.data(), &factor));
        EXPECT_EQ(vlqStsBadSpec, TypeParam::setLine(record.state, nullptr));
        EXPECT_EQ(vlqStsBadSpec, TypeParam::getLine(record.state, dst.data()));
        EXPECT_TRUE(same(record.memory, before));
    }
    EXPECT_TRUE(same(dst, marked));
    EXPECT_EQ(0, Core::allocations());
    const Vlq32u own = TypeParam::multirateWord;
    std::memcpy(static_cast<void*>(record.state), &own, sizeof own);
    EXPECT_EQ(vlqStsNullPtr, TypeParam::filter(nullptr, dst.data(), 0, record.state, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::filter(src.data(), nullptr, 0, record.state, 0));
    EXPECT_EQ(vlqStsBadSize, TypeParam::filter(src.data(), dst.data(), 0, record.state, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::inPlace(nullptr, 0, record.state, 0));
    EXPECT_EQ(vlqStsBadSize, TypeParam::inPlace(dst.data(), 0, record.state, 0));
    EXPECT_TRUE(same(dst, marked));
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
