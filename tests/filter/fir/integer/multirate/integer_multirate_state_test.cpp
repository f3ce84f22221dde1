// Multi-rate states of integer FIR filters: sizes, fields, taps, memory and checks.
#include "filter/fir/integer/multirate/integer_multirate_kinds.h"

namespace {

using namespace vlqtest;

TYPED_TEST_SUITE(FirIntMultirate, EveryMultirate);

// ---- the state ----------------------------------------------------------------------------------

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

// The smallest states, whose tables are tightest, in calls of every length.
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

    // A state in the caller's memory stays as it is.
    Multirate<TypeParam> record(h, 0, {3, 1, 2, 1});
    const auto before = record.memory.values();
    EXPECT_EQ(vlqStsOk, TypeParam::release(record.state));
    EXPECT_TRUE(same(record.memory, before));
}

// States of 2 GiB and more.
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

// Tags of other kinds, and of none: every call refuses them.
TYPED_TEST(FirIntMultirate, ForeignStates) {
    using Sample = typename TypeParam::Sample;
    const auto h = wideTaps<typename TypeParam::Tap>(4, this->rng);
    Multirate<TypeParam> record(h, 0, {2, 1, 3, 1});
    const std::vector<Sample> src(12);
    Buffer<Sample> dst(12);
    const auto marked = dst.values();
    // A multi-rate state takes no single samples.
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

}  // namespace
