// Records of integer FIR filters: sizes, memory, taps and delay line.
#include <climits>

#include "filter/fir/integer/integer_kinds.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

// Words of a record, by byte offset of the field.
Vlq32u field(const void* state, int offset) {
    Vlq32u value;
    std::memcpy(&value, static_cast<const char*>(state) + offset, sizeof value);
    return value;
}
constexpr int kIdent = 0, kTapsLen = 12, kTapsFactor = 32, kDlyIndex = 40, kRowLen = 48,
              kOwnsMemory = 60;

template <class K>
std::size_t sizeOf(int tapsLen) {
    Vlq32s bytes = -1;
    EXPECT_EQ(vlqStsOk, K::size(tapsLen, &bytes));
    return count(bytes);
}

template <class K>
class FirIntRecord : public ::testing::Test {
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
TYPED_TEST_SUITE(FirIntRecord, EveryKind);

class FirIntTaps : public FirIntRecord<Real32> {};

TEST_F(FirIntTaps, Sizes) {
    auto a = [](long n) { return n / 16 * 16; };
    for (const long taps :
         {1L, 2L, 3L, 4L, 5L, 7L, 8L, 9L, 12L, 13L, 63L, 64L, 100L, 4096L, 1000000L}) {
        const long row = (taps + 11) / 8 * 8;
        const long store = a((row + 2 * taps) * 2 + 23);
        EXPECT_EQ(a(4 * taps + 15) + store + 8 * row + 16480,
                  static_cast<long>(sizeOf<Real32>(static_cast<int>(taps))))
            << taps;
        EXPECT_EQ(a(2 * taps + 15) + store + 8 * row + 16480,
                  static_cast<long>(sizeOf<Real16>(static_cast<int>(taps))))
            << taps;
        EXPECT_EQ(16 * ((12 * taps + 31) / 16 + taps + (8 * taps + 15) / 16) + 16480,
                  static_cast<long>(sizeOf<Complex32>(static_cast<int>(taps))))
            << taps;
        Vlq32s real = 0, complex = 0;
        EXPECT_EQ(vlqStsOk, vlqsFIRGetStateSize32s_16s32f(static_cast<int>(taps), &real));
        EXPECT_EQ(vlqStsOk, vlqsFIRGetStateSize32sc_16sc32fc(static_cast<int>(taps), &complex));
        EXPECT_EQ(sizeOf<Real32>(static_cast<int>(taps)), count(real));
        EXPECT_EQ(sizeOf<Complex32>(static_cast<int>(taps)), count(complex));
    }
}

TYPED_TEST(FirIntRecord, Fields) {
    for (const int taps : {1, 5, 64}) {
        Record<TypeParam> record(wideTaps<typename TypeParam::Tap>(count(taps), this->rng), -7);
        EXPECT_EQ(TypeParam::word, field(record.state, kIdent));
        EXPECT_EQ(static_cast<Vlq32u>(taps), field(record.state, kTapsLen));
        EXPECT_EQ(-7, static_cast<Vlq32s>(field(record.state, kTapsFactor)));
        EXPECT_EQ(0u, field(record.state, kDlyIndex));
        EXPECT_EQ(1u, field(record.state, kOwnsMemory));
        const int rowLen = sizeof(typename TypeParam::Sample) == 2 ? (taps + 11) / 8 * 8 : 2 * taps;
        EXPECT_EQ(static_cast<Vlq32u>(rowLen), field(record.state, kRowLen));
    }
}

// With memory of exactly the told size, at odd addresses and against a guard page.
TYPED_TEST(FirIntRecord, StaysInsideItsMemory) {
    using Sample = typename TypeParam::Sample;
    for (const int taps : {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 32, 63, 64, 65, 300, 700}) {
        const auto h = wideTaps<typename TypeParam::Tap>(count(taps), this->rng);
        const auto past = values<Sample>(count(taps), this->rng),
                   src = values<Sample>(5000, this->rng);
        for (int offset = 0; offset < 66; offset += offset < 20 ? 3 : 11) {
            Buffer<Vlq8u> memory(sizeOf<TypeParam>(taps), {offset % 64, offset > 60});
            typename TypeParam::State* state = nullptr;
            ASSERT_EQ(vlqStsOk,
                      TypeParam::init(&state, h.data(), taps, -18, past.data(), memory.data()));
            auto ref = referenceOf<TypeParam>(h, -18, past);
            EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(state) % 16);
            for (const int block :
                 {1, taps, taps + 3, taps + 4, taps + 11, taps + 12, 2 * taps + 20}) {
                Buffer<Sample> dst(count(block));
                // A single sample first, so that the window stands inside the store.
                ASSERT_EQ(vlqStsOk, TypeParam::one(src[0], dst.data(), state, 0));
                const Sample want = ref.next(src[0], 0);
                ASSERT_EQ(0, std::memcmp(&want, dst.data(), sizeof want));
                const std::vector<Sample> part(src.begin(), src.begin() + block);
                ASSERT_EQ(vlqStsOk, TypeParam::filter(part.data(), dst.data(), block, state, 0));
                ASSERT_TRUE(same(dst, ref.block(part, 0))) << taps << " taps, block of " << block;
            }
            if (offset % 11 == 0) {
                // The window at the far end of the store, then the longest copy into it.
                for (int i = 0; i < taps - 1; ++i) {
                    Sample y;
                    ASSERT_EQ(vlqStsOk, TypeParam::one(src[1], &y, state, 0));
                }
                auto dst = src;
                ASSERT_EQ(vlqStsOk, TypeParam::inPlace(dst.data(), 5000, state, 0));
            }
            ASSERT_TRUE(memory.marginsIntact()) << taps << " taps, offset " << offset;
            ASSERT_EQ(vlqStsOk, TypeParam::release(state));
        }
    }
}

TYPED_TEST(FirIntRecord, TapsAreReduced) {
    using Tap = typename TypeParam::Tap;
    for (int run = 0; run < 200; ++run) {
        const int taps = 1 + run % 70;
        const auto data = run % 3 == 0 ? Data::Small : run % 3 == 1 ? Data::Extreme : Data::Edges;
        auto h = values<Tap>(count(taps), this->rng, data);
        Record<TypeParam> record(h, run - 100);
        for (int round = 0; round < 2; ++round) {
            const auto want = held(h);
            Buffer<Tap> got(count(taps), {round * 3});
            Buffer<Vlq32s> factor(1, {round});
            ASSERT_EQ(vlqStsOk, TypeParam::getTaps(record.state, got.data(), factor.data()));
            ASSERT_TRUE(same(got, want.taps));
            ASSERT_EQ(run - 100 + want.exponent, factor.values()[0]);
            h = values<Tap>(count(taps), this->rng, round == 0 ? Data::Extreme : data);
            const Buffer<Tap> odd(h, {1});
            ASSERT_EQ(vlqStsOk, TypeParam::setTaps(odd.data(), record.state, run - 100));
        }
    }
}

// New taps leave the delay line as it is.
TYPED_TEST(FirIntRecord, SetTaps) {
    using Sample = typename TypeParam::Sample;
    const auto first = wideTaps<typename TypeParam::Tap>(21, this->rng),
               second = wideTaps<typename TypeParam::Tap>(21, this->rng);
    Record<TypeParam> record(first, -16);
    auto ref = referenceOf<TypeParam>(first, -16);
    for (int round = 0; round < 6; ++round) {
        const auto src = values<Sample>(50, this->rng);
        Buffer<Sample> dst(50);
        ASSERT_EQ(vlqStsOk, TypeParam::filter(src.data(), dst.data(), 50, record.state, 0));
        ASSERT_TRUE(same(dst, ref.block(src, 0)));
        const auto& next = round % 2 ? first : second;
        ASSERT_EQ(vlqStsOk, TypeParam::setTaps(next.data(), record.state, -14 - round));
        const auto other = referenceOf<TypeParam>(next, -14 - round);
        ref.taps = other.taps;
        ref.factor = other.factor;
    }
}

TEST_F(FirIntTaps, LargestTap) {
    auto heldBy = [](auto kind, std::vector<typename decltype(kind)::Tap> taps, int tapsFactor) {
        Record<decltype(kind)> record(taps, tapsFactor);
        Vlq32s factor = 0;
        EXPECT_EQ(vlqStsOk, decltype(kind)::getTaps(record.state, taps.data(), &factor));
        return std::pair(taps, factor);
    };
    using Taps32 = std::pair<std::vector<Vlq32s>, Vlq32s>;
    using Taps16 = std::pair<std::vector<Vlq16s>, Vlq32s>;
    EXPECT_EQ(Taps32({32766, -3}, 4), heldBy(Real32{}, {32766, -3}, 4));
    EXPECT_EQ(Taps32({16383, -2}, 5), heldBy(Real32{}, {32767, -3}, 4));
    EXPECT_EQ(Taps32({-16384, 0}, 5), heldBy(Real32{}, {-32767, 1}, 4));
    EXPECT_EQ(Taps32({-16384, -1}, 17), heldBy(Real32{}, {INT_MIN, -1}, 0));
    EXPECT_EQ(Taps32({32767}, INT_MAX).second, heldBy(Real32{}, {INT_MAX}, INT_MAX - 3).second);
    EXPECT_EQ(Taps16({32767, -32767}, -15), heldBy(Real16{}, {32767, -32767}, -15));
    EXPECT_EQ(Taps16({-16384, 16383, -1}, -14), heldBy(Real16{}, {-32768, 32767, -1}, -15));
    const auto complex = heldBy(Complex32{}, {{7, 3}, {-1, -32767}}, 0);
    EXPECT_EQ((std::vector<Vlq32sc>{{3, 1}, {-1, -16384}}), complex.first);
    EXPECT_EQ(1, complex.second);
}

// ---- float taps ---------------------------------------------------------------------------------

TEST_F(FirIntTaps, FloatTaps) {
    for (int run = 0; run < 300; ++run) {
        const std::size_t taps = 1 + count(run % 40);
        const double peak = std::ldexp(1.0, run % 90 - 40);
        const auto h = uniformVector<float>(taps, -peak, peak, rng),
                   other = uniformVector<float>(taps, -peak * 8, peak * 8, rng);
        VlqsFIRState32s_16s32f* state = nullptr;
        ASSERT_EQ(vlqStsOk,
                  vlqsFIRInitAlloc32s_16s32f(&state, h.data(), static_cast<int>(taps), nullptr));
        auto check = [&](const std::vector<float>& given, int limit) {
            const auto want = held(given, limit);
            std::vector<Vlq32s> integers(taps);
            Vlq32s factor = 0;
            ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32s_16s(state, integers.data(), &factor));
            ASSERT_EQ(want.exponent, factor) << "run " << run;
            ASSERT_EQ(want.taps, integers) << "run " << run;
            Buffer<float> floats(taps, {3});
            ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32s_16s32f(state, floats.data()));
            std::vector<float> exact;
            for (const Vlq32s g : want.taps)
                exact.push_back(
                    static_cast<float>(std::ldexp(static_cast<double>(g), want.exponent)));
            ASSERT_TRUE(same(floats, exact));
            // The filter is that of the taps held.
            const auto src = values<Vlq16s>(60, rng);
            Buffer<Vlq16s> dst(60);
            const int scale = want.exponent + 17;
            ASSERT_EQ(vlqStsOk, vlqsFIRSetDlyLine32s_16s(state, nullptr));
            ASSERT_EQ(vlqStsOk, vlqsFIR32s_16s_Sfs(src.data(), dst.data(), 60, state, scale));
            FirIntRef<Vlq16s, Vlq32s> ref(want.taps, want.exponent);
            for (Vlq32s& g : ref.taps) g = std::clamp(g, -32768, 32767);
            ASSERT_TRUE(same(dst, ref.block(src, scale)));
        };
        check(h, 33);
        const Buffer<float> odd(other, {1});
        ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps32s_16s32f(odd.data(), state));
        check(other, 32);
        EXPECT_EQ(vlqStsOk, vlqsFIRFree32s_16s(state));
    }
}

TEST_F(FirIntTaps, ComplexFloatTaps) {
    for (int run = 0; run < 100; ++run) {
        const std::size_t taps = 1 + count(run % 20);
        const double peak = std::ldexp(1.0, run % 60 - 25);
        auto given = uniformVector<float>(2 * taps, -peak, peak, rng);
        Buffer<Vlq8u> memory(sizeOf<Complex32>(static_cast<int>(taps)), {run % 64});
        VlqsFIRState32sc_16sc32fc* state = nullptr;
        auto complex = [&] {
            std::vector<Vlq32fc> values;
            for (std::size_t i = 0; i < taps; ++i)
                values.push_back({given[2 * i], given[2 * i + 1]});
            return values;
        };
        if (run % 2 == 0) {
            ASSERT_EQ(vlqStsOk,
                      vlqsFIRInit32sc_16sc32fc(&state, complex().data(), static_cast<int>(taps),
                                               nullptr, memory.data()));
        } else {
            ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc32sc_16sc32fc(&state, complex().data(),
                                                              static_cast<int>(taps), nullptr));
        }
        for (const int limit : {33, 32}) {
            const auto want = held(given, limit);
            std::vector<Vlq32sc> integers(taps);
            Vlq32s factor = 0;
            ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32sc_16sc(state, integers.data(), &factor));
            ASSERT_EQ(want.exponent, factor);
            ASSERT_EQ(0, std::memcmp(want.taps.data(), integers.data(), taps * sizeof(Vlq32sc)));
            std::vector<Vlq32fc> floats(taps);
            ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32sc_16sc32fc(state, floats.data()));
            for (std::size_t i = 0; i < taps; ++i) {
                ASSERT_EQ(std::ldexp(static_cast<float>(integers[i].re), factor), floats[i].re);
                ASSERT_EQ(std::ldexp(static_cast<float>(integers[i].im), factor), floats[i].im);
            }
            given = uniformVector<float>(2 * taps, -peak / 8, peak / 8, rng);
            ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps32sc_16sc32fc(complex().data(), state));
        }
        ASSERT_EQ(vlqStsOk, vlqsFIRFree32sc_16sc(state));
    }
}

struct FloatCase {
    float tap;
    Vlq32s initTap, initFactor, setTap, setFactor;
};

TEST_F(FirIntTaps, LimitsOfFloatTaps) {
    const FloatCase cases[] = {
        {0, 0, -33, 0, -32},
        {32767.0f, 32767, 0, 32767, 0},
        {32768.0f, 16384, 1, 16384, 1},
        {16383.5f, 16384, 0, 16384, 0},  // its double is not below 32767
        {16383.0f, 32766, -1, 32766, -1},
        {-32767.5f, -16384, 1, -16384, 1},
        {-0.5f, -16384, -15, -16384, -15},
        {0x1p-18f, 16384, -32, 16384, -32},
        {0x1p-19f, 16384, -33, 8192, -32},
        {0x1p-40f, 0, -33, 0, -32},
        {0x1p48f, 32768, 33, 65536, 32},
        {3e38f, INT_MAX, 33, INT_MAX, 32},
        {-3e38f, INT_MIN, 33, INT_MIN, 32},
    };
    for (const FloatCase& c : cases) {
        VlqsFIRState32s_16s32f* state = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc32s_16s32f(&state, &c.tap, 1, nullptr));
        Vlq32s tap = 0, factor = 0;
        ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32s_16s(state, &tap, &factor));
        EXPECT_EQ(c.initFactor, factor) << c.tap;
        EXPECT_EQ(c.initTap, tap) << c.tap;
        ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps32s_16s32f(&c.tap, state));
        ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32s_16s(state, &tap, &factor));
        EXPECT_EQ(c.setFactor, factor) << c.tap;
        EXPECT_EQ(c.setTap, tap) << c.tap;
        EXPECT_EQ(vlqStsOk, vlqsFIRFree32s_16s(state));
    }
}

// ---- delay lines --------------------------------------------------------------------------------

TYPED_TEST(FirIntRecord, DelayLineRoundTrip) {
    using Sample = typename TypeParam::Sample;
    for (const int len : {1, 2, 5, 64, 130}) {
        auto past = values<Sample>(count(len), this->rng);
        Record<TypeParam> record(wideTaps<typename TypeParam::Tap>(count(len), this->rng), 0, past);
        for (int round = 0; round < 3; ++round) {
            Buffer<Sample> got(count(len), {1});
            ASSERT_EQ(vlqStsOk, TypeParam::getLine(record.state, got.data()));
            EXPECT_TRUE(same(got, past));
            Sample y;
            ASSERT_EQ(vlqStsOk, TypeParam::one(past[0], &y, record.state, 0));
            EXPECT_EQ(len == 1 ? 0u : 1u, field(record.state, kDlyIndex));
            past = values<Sample>(count(len), this->rng);
            const Buffer<Sample> odd(past, {1});
            ASSERT_EQ(vlqStsOk, TypeParam::setLine(record.state, odd.data()));
            EXPECT_EQ(0u, field(record.state, kDlyIndex));
        }
        ASSERT_EQ(vlqStsOk, TypeParam::setLine(record.state, nullptr));
        EXPECT_EQ(std::vector<Sample>(count(len), Sample{}), record.line());
        Record<TypeParam> silent(wideTaps<typename TypeParam::Tap>(count(len), this->rng), 0);
        EXPECT_EQ(std::vector<Sample>(count(len), Sample{}), silent.line());
        // Newest first, after a block that is longer than the line.
        const auto src = values<Sample>(count(3 * len + 50), this->rng);
        std::vector<Sample> dst(src.size());
        ASSERT_EQ(vlqStsOk, TypeParam::filter(src.data(), dst.data(), static_cast<int>(src.size()),
                                              silent.state, 0));
        EXPECT_EQ(std::vector<Sample>(src.rbegin(), src.rbegin() + len), silent.line());
    }
}

// ---- memory and checks --------------------------------------------------------------------------

TYPED_TEST(FirIntRecord, FreeLeavesMemoryOfTheCaller) {
    const auto taps = wideTaps<typename TypeParam::Tap>(30, this->rng);
    Buffer<Vlq8u> memory(sizeOf<TypeParam>(30), {5});
    typename TypeParam::State* state = nullptr;
    ASSERT_EQ(vlqStsOk, TypeParam::init(&state, taps.data(), 30, 0, nullptr, memory.data()));
    EXPECT_EQ(0u, field(state, kOwnsMemory));
    const auto before = memory.values();
    EXPECT_EQ(vlqStsOk, TypeParam::release(state));
    EXPECT_TRUE(same(memory, before));
    EXPECT_EQ(vlqStsOk, TypeParam::release(state));
    EXPECT_EQ(0, Core::allocations());
}

TYPED_TEST(FirIntRecord, RefusedMemory) {
    const auto taps = wideTaps<typename TypeParam::Tap>(30, this->rng);
    typename TypeParam::State* state = nullptr;
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory, TypeParam::initAlloc(&state, taps.data(), 30, 0, nullptr));
    EXPECT_EQ(nullptr, state);
    Core::reset();
    ASSERT_EQ(vlqStsOk, TypeParam::initAlloc(&state, taps.data(), 30, 0, nullptr));
    EXPECT_EQ(1, Core::allocations());
    EXPECT_EQ(vlqStsOk, TypeParam::release(state));
    // A record of 2 GiB and more is refused before memory is asked for.
    state = nullptr;
    EXPECT_EQ(vlqStsNoMemory, TypeParam::initAlloc(&state, taps.data(), INT_MAX, 0, nullptr));
    EXPECT_EQ(1, Core::allocations());
    EXPECT_EQ(nullptr, state);
}

TEST_F(FirIntTaps, RefusedMemoryForFloatTaps) {
    const float tap = 1;
    const Vlq32fc complexTap = {1, 1};
    VlqsFIRState32s_16s32f* state = nullptr;
    VlqsFIRState32sc_16sc32fc* complex = nullptr;
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRInitAlloc32s_16s32f(&state, &tap, 1, nullptr));
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRInitAlloc32sc_16sc32fc(&complex, &complexTap, 1, nullptr));
    EXPECT_EQ(nullptr, state);
    EXPECT_EQ(nullptr, complex);
}

TYPED_TEST(FirIntRecord, Checks) {
    using State = typename TypeParam::State;
    using Sample = typename TypeParam::Sample;
    Vlq32s bytes = -5;
    EXPECT_EQ(vlqStsNullPtr, TypeParam::size(0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, TypeParam::size(0, &bytes));
    EXPECT_EQ(vlqStsBadTapCount, TypeParam::size(INT_MIN, &bytes));
    EXPECT_EQ(-5, bytes);

    auto taps = wideTaps<typename TypeParam::Tap>(4, this->rng);
    Buffer<Vlq8u> memory(sizeOf<TypeParam>(4));
    State* state = nullptr;
    EXPECT_EQ(vlqStsNullPtr, TypeParam::init(nullptr, taps.data(), 0, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::init(&state, nullptr, 0, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::init(&state, taps.data(), 0, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadTapCount,
              TypeParam::init(&state, taps.data(), 0, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::initAlloc(nullptr, taps.data(), 0, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::initAlloc(&state, nullptr, 0, 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, TypeParam::initAlloc(&state, taps.data(), -1, 0, nullptr));
    EXPECT_EQ(nullptr, state);
    EXPECT_TRUE(memory.untouched());
    EXPECT_EQ(0, Core::allocations());

    ASSERT_EQ(vlqStsOk, TypeParam::init(&state, taps.data(), 4, 0, nullptr, memory.data()));
    Vlq32s factor = 3;
    Buffer<Sample> line(4);
    EXPECT_EQ(vlqStsNullPtr, TypeParam::setTaps(nullptr, state, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::setTaps(taps.data(), nullptr, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::getTaps(nullptr, taps.data(), &factor));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::getTaps(state, nullptr, &factor));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::getTaps(state, taps.data(), nullptr));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::setLine(nullptr, line.data()));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::getLine(nullptr, line.data()));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::getLine(state, nullptr));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::release(nullptr));

    // A word of another kind.
    const Vlq32u word = 0x46493031;
    std::memcpy(static_cast<void*>(state), &word, sizeof word);
    const auto before = memory.values();
    EXPECT_EQ(vlqStsBadSpec, TypeParam::setTaps(taps.data(), state, 0));
    EXPECT_EQ(vlqStsBadSpec, TypeParam::getTaps(state, taps.data(), &factor));
    EXPECT_EQ(vlqStsBadSpec, TypeParam::setLine(state, nullptr));
    EXPECT_EQ(vlqStsBadSpec, TypeParam::getLine(state, line.data()));
    EXPECT_EQ(vlqStsBadSpec, TypeParam::release(state));
    EXPECT_TRUE(same(memory, before));
    EXPECT_TRUE(line.untouched());
    EXPECT_EQ(3, factor);
}

TEST_F(FirIntTaps, ChecksOfFloatTaps) {
    Vlq32s bytes = -5;
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetStateSize32s_16s32f(1, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRGetStateSize32sc_16sc32fc(0, &bytes));
    float tap = 1;
    Vlq32fc complexTap = {1, 1};
    VlqsFIRState32s_16s32f* state = nullptr;
    VlqsFIRState32sc_16sc32fc* complex = nullptr;
    Buffer<Vlq8u> memory(sizeOf<Real32>(1)), complexMemory(sizeOf<Complex32>(1));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit32s_16s32f(nullptr, &tap, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit32s_16s32f(&state, nullptr, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit32sc_16sc32fc(&complex, &complexTap, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRInit32s_16s32f(&state, &tap, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRInitAlloc32sc_16sc32fc(&complex, &complexTap, 0, nullptr));
    ASSERT_EQ(vlqStsOk, vlqsFIRInit32s_16s32f(&state, &tap, 1, nullptr, memory.data()));
    ASSERT_EQ(vlqStsOk,
              vlqsFIRInit32sc_16sc32fc(&complex, &complexTap, 1, nullptr, complexMemory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRSetTaps32s_16s32f(nullptr, state));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRSetTaps32sc_16sc32fc(&complexTap, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetTaps32s_16s32f(state, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetTaps32sc_16sc32fc(nullptr, &complexTap));
    auto* alien = reinterpret_cast<VlqsFIRState32s_16s32f*>(complex);
    auto* alienComplex = reinterpret_cast<VlqsFIRState32sc_16sc32fc*>(state);
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRSetTaps32s_16s32f(&tap, alien));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRGetTaps32s_16s32f(alien, &tap));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRSetTaps32sc_16sc32fc(&complexTap, alienComplex));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRGetTaps32sc_16sc32fc(alienComplex, &complexTap));
}

}  // namespace
