// Records of FIR filters: sizes, memory, taps and delay line.
#include <cstring>

#include "filter/fir/fir_ref.h"
#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/random.h"
#include "vlqs/fft.h"
#include "vlqs/fir.h"

namespace {

using namespace vlqtest;

class FirRecord : public ::testing::Test {
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

// Words of a record, by byte offset of the field.
Vlq32u field(const void* state, int offset) {
    Vlq32u value;
    std::memcpy(&value, static_cast<const char*>(state) + offset, sizeof value);
    return value;
}
constexpr int kIdent = 0, kTapsLen = 12, kFirstChunk = 20, kFftSpec = 32, kFftLen = 44,
              kDlyIndex = 48;
constexpr int kDlyLen = 68, kOwnsMemory = 92;

std::size_t stateSize(int tapsLen) {
    Vlq32s bytes = -1;
    EXPECT_EQ(vlqStsOk, vlqsFIRGetStateSize_32f(tapsLen, &bytes));
    return static_cast<std::size_t>(bytes);
}

TEST_F(FirRecord, Sizes) {
    auto a = [](long n) { return (n + 15) / 16 * 16; };
    for (const int threads : {1, 2, 4, 5, 64}) {
        Core::setThreads(threads);
        for (const int taps : {1,   2,   3,   4,   5,    7,    8,    63,   64,   65,
                               127, 128, 255, 256, 1000, 1023, 1024, 4095, 4096, 100000}) {
            Vlq32s spec = 0, init = 0, work = 0;
            long blockBytes = 0;
            if (taps >= 64) {
                int order = 2;
                while ((1 << order) <= taps) ++order;
                ++order;
                ASSERT_EQ(vlqStsOk, vlqsFFTGetSize_R_32f(order, vlqNormInvByN, vlqHintNone, &spec,
                                                         &init, &work));
                blockBytes = a(4L << order);
            }
            const long want = a(4L * taps) + a(12L * taps + 31) + 4 * a(4L * taps) +
                              a(4L * threads) + spec + init + blockBytes + 16496 +
                              threads * (work + blockBytes + 16);
            Vlq32s plain = 0, mixed = 0;
            ASSERT_EQ(vlqStsOk, vlqsFIRGetStateSize_32f(taps, &plain));
            ASSERT_EQ(vlqStsOk, vlqsFIRGetStateSize32f_16s(taps, &mixed));
            EXPECT_EQ(want, plain) << taps << " taps, " << threads << " threads";
            EXPECT_EQ(plain, mixed);
        }
    }
}

TEST_F(FirRecord, TransformFromSixtyFourTaps) {
    const std::vector<float> taps(2000, 0.5f);
    const std::pair<int, int> lengths[] = {{1, -1},    {63, -1},   {64, 256},    {127, 256},
                                           {128, 512}, {255, 512}, {1024, 4096}, {2000, 4096}};
    for (const auto& [len, fftLen] : lengths) {
        VlqsFIRState_32f* state = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&state, taps.data(), len, nullptr));
        EXPECT_EQ(fftLen, static_cast<Vlq32s>(field(state, kFftLen))) << len << " taps";
        EXPECT_EQ(0x46493031u, field(state, kIdent));
        EXPECT_EQ(static_cast<Vlq32u>(len), field(state, kTapsLen));
        EXPECT_EQ(static_cast<Vlq32u>(len), field(state, kDlyLen));
        EXPECT_EQ(static_cast<Vlq32u>((len + 3) / 4 * 4 + 1), field(state, kFirstChunk));
        EXPECT_EQ(0u, field(state, kDlyIndex));
        EXPECT_EQ(1u, field(state, kOwnsMemory));
        EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
    }
}

// Calls check with memory of exactly the told size, at odd addresses and against a guard page.
template <class Check>
void inEveryMemory(int tapsLen, Check check) {
    for (int offset = 0; offset < 66; offset += offset < 20 ? 3 : 11) {
        Buffer<Vlq8u> memory(stateSize(tapsLen), {offset % 64, offset > 60});
        check(memory);
        ASSERT_TRUE(memory.marginsIntact()) << tapsLen << " taps, offset " << offset;
    }
}

TEST_F(FirRecord, StaysInsideItsMemory) {
    for (const int threads : {1, 3}) {
        Core::setThreads(threads);
        for (const int len : {1, 2, 3, 4, 5, 13, 63, 64, 65, 128, 300, 700}) {
            const auto taps = uniformVector<float>(static_cast<std::size_t>(len), -1, 1, rng);
            const auto past = uniformVector<float>(static_cast<std::size_t>(len), -1, 1, rng);
            const auto src = uniformVector<float>(5000, -1, 1, rng);
            std::vector<float> first;
            inEveryMemory(len, [&](Buffer<Vlq8u>& memory) {
                VlqsFIRState_32f* state = nullptr;
                ASSERT_EQ(vlqStsOk,
                          vlqsFIRInit_32f(&state, taps.data(), len, past.data(), memory.data()));
                std::vector<float> dst(src.size()), all;
                for (const int block : {1, 100, 511, 2000, 4700}) {
                    ASSERT_EQ(vlqStsOk, vlqsFIR_32f(src.data(), dst.data(), block, state));
                    all.insert(all.end(), dst.begin(), dst.begin() + block);
                    ASSERT_EQ(vlqStsOk, vlqsFIROne_32f(src[0], dst.data(), state));
                    all.push_back(dst[0]);
                }
                dst = src;
                ASSERT_EQ(vlqStsOk, vlqsFIR_32f_I(dst.data(), 5000, state));
                all.insert(all.end(), dst.begin(), dst.end());
                // Nothing depends on where the record lies.
                if (first.empty()) first = all;
                ASSERT_EQ(0, std::memcmp(first.data(), all.data(), all.size() * sizeof(float)));
                ASSERT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
            });
            const auto samples = extremeVector<Vlq16s>(9000, rng);
            inEveryMemory(len, [&](Buffer<Vlq8u>& memory) {
                VlqsFIRState32f_16s* state = nullptr;
                ASSERT_EQ(vlqStsOk,
                          vlqsFIRInit32f_16s(&state, taps.data(), len, nullptr, memory.data()));
                std::vector<Vlq16s> dst(samples.size());
                for (const int block : {3, 511, 5000}) {
                    ASSERT_EQ(vlqStsOk,
                              vlqsFIR32f_16s_Sfs(samples.data(), dst.data(), block, state, 3));
                }
                dst = samples;
                ASSERT_EQ(vlqStsOk, vlqsFIR32f_16s_ISfs(dst.data(), 9000, state, 3));
                ASSERT_EQ(vlqStsOk, vlqsFIROne32f_16s_Sfs(5, dst.data(), state, 3));
            });
            if (HasFailure()) return;
        }
    }
}

TEST_F(FirRecord, TapsRoundTrip) {
    for (const int len : {1, 2, 5, 40, 64, 200}) {
        const auto count = static_cast<std::size_t>(len);
        auto taps = extremeVector<float>(count, rng);
        VlqsFIRState_32f* plain = nullptr;
        VlqsFIRState32f_16s* mixed = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&plain, taps.data(), len, nullptr));
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc32f_16s(&mixed, taps.data(), len, nullptr));
        for (int round = 0; round < 2; ++round) {
            Buffer<float> got(count, {3});
            ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps_32f(plain, got.data()));
            EXPECT_TRUE(same(got, taps));
            Buffer<float> gotMixed(count, {1});
            ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps32f_16s(mixed, gotMixed.data()));
            EXPECT_TRUE(same(gotMixed, taps));
            taps = extremeVector<float>(count, rng);
            const Buffer<float> odd(taps, {1});
            ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps_32f(odd.data(), plain));
            ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps32f_16s(odd.data(), mixed));
        }
        EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(plain));
        EXPECT_EQ(vlqStsOk, vlqsFIRFree32f_16s(mixed));
    }
}

TEST_F(FirRecord, DelayLineRoundTrip) {
    for (const int len : {1, 2, 5, 64, 130}) {
        const auto count = static_cast<std::size_t>(len);
        const std::vector<float> taps(count, 1.0f);
        auto past = extremeVector<float>(count, rng);
        auto past16 = extremeVector<Vlq16s>(count, rng);
        VlqsFIRState_32f* plain = nullptr;
        VlqsFIRState32f_16s* mixed = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&plain, taps.data(), len, past.data()));
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc32f_16s(&mixed, taps.data(), len, past16.data()));
        Buffer<float> got(count, {2});
        Buffer<Vlq16s> got16(count, {1});
        for (int round = 0; round < 3; ++round) {
            ASSERT_EQ(vlqStsOk, vlqsFIRGetDlyLine_32f(plain, got.data()));
            ASSERT_EQ(vlqStsOk, vlqsFIRGetDlyLine32f_16s(mixed, got16.data()));
            EXPECT_TRUE(same(got, past));
            EXPECT_TRUE(same(got16, past16));
            // A single sample moves the window inside the store; a new line begins at its start.
            float y;
            Vlq16s y16;
            ASSERT_EQ(vlqStsOk, vlqsFIROne_32f(1.0f, &y, plain));
            ASSERT_EQ(vlqStsOk, vlqsFIROne32f_16s_Sfs(1, &y16, mixed, 0));
            EXPECT_EQ(len == 1 ? 0u : 1u, field(plain, kDlyIndex));
            past = extremeVector<float>(count, rng);
            past16 = extremeVector<Vlq16s>(count, rng);
            const Buffer<float> odd(past, {1});
            const Buffer<Vlq16s> odd16(past16, {1});
            ASSERT_EQ(vlqStsOk, vlqsFIRSetDlyLine_32f(plain, odd.data()));
            ASSERT_EQ(vlqStsOk, vlqsFIRSetDlyLine32f_16s(mixed, odd16.data()));
            EXPECT_EQ(0u, field(plain, kDlyIndex));
        }
        ASSERT_EQ(vlqStsOk, vlqsFIRSetDlyLine_32f(plain, nullptr));
        ASSERT_EQ(vlqStsOk, vlqsFIRSetDlyLine32f_16s(mixed, nullptr));
        ASSERT_EQ(vlqStsOk, vlqsFIRGetDlyLine_32f(plain, got.data()));
        ASSERT_EQ(vlqStsOk, vlqsFIRGetDlyLine32f_16s(mixed, got16.data()));
        EXPECT_TRUE(same(got, std::vector<float>(count, 0.0f)));
        EXPECT_TRUE(same(got16, std::vector<Vlq16s>(count, 0)));
        EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(plain));
        EXPECT_EQ(vlqStsOk, vlqsFIRFree32f_16s(mixed));
    }
}

TEST_F(FirRecord, SilenceWithoutDelayLine) {
    const std::vector<float> taps(80, 1.0f);
    VlqsFIRState_32f* state = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&state, taps.data(), 80, nullptr));
    Buffer<float> line(80);
    ASSERT_EQ(vlqStsOk, vlqsFIRGetDlyLine_32f(state, line.data()));
    EXPECT_TRUE(same(line, std::vector<float>(80, 0.0f)));
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
}

// New taps reach both paths, and the delay line stays.
TEST_F(FirRecord, SetTapsRefreshesTheTransform) {
    for (const int len : {32, 64, 200}) {
        const auto count = static_cast<std::size_t>(len);
        const auto taps = uniformVector<float>(count, -1, 1, rng),
                   other = uniformVector<float>(count, -1, 1, rng);
        const auto src = uniformVector<float>(1000, -1, 1, rng);
        VlqsFIRState_32f* state = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&state, taps.data(), len, nullptr));
        FirRef ref(taps);
        std::vector<float> dst(src.size());
        for (int round = 0; round < 6; ++round) {
            const int block = round % 3 == 0 ? 1000 : 300;
            ASSERT_EQ(vlqStsOk, vlqsFIR_32f(src.data(), dst.data(), block, state));
            for (std::size_t i = 0; i < static_cast<std::size_t>(block); ++i) {
                const double want = ref.next(src[i]);
                const double bound =
                    sumBound(count) * ref.magnitude() + transformBound(4 * count, taps, 1);
                ASSERT_NEAR(want, dst[i], bound)
                    << len << " taps, round " << round << ", output " << i;
            }
            const auto& next = round % 2 == 0 ? other : taps;
            ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps_32f(next.data(), state));
            ref.setTaps(next);
        }
        EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
    }
}

TEST_F(FirRecord, FreeLeavesMemoryOfTheCaller) {
    const std::vector<float> taps(100, 0.25f);
    Buffer<Vlq8u> memory(stateSize(100), {5});
    VlqsFIRState_32f* state = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRInit_32f(&state, taps.data(), 100, nullptr, memory.data()));
    EXPECT_EQ(0u, field(state, kOwnsMemory));
    EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(state) % 16);
    const auto before = memory.values();
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
    EXPECT_TRUE(same(memory, before));
    // The word stays, so the record still works and may be freed again.
    float y;
    EXPECT_EQ(vlqStsOk, vlqsFIROne_32f(1.0f, &y, state));
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
}

TEST_F(FirRecord, InitAllocatesNothing) {
    Buffer<Vlq8u> memory(stateSize(3000));
    const std::vector<float> taps(3000, 0.25f);
    VlqsFIRState_32f* state = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRInit_32f(&state, taps.data(), 3000, nullptr, memory.data()));
    ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps_32f(taps.data(), state));
    EXPECT_EQ(0, Core::allocations());
}

TEST_F(FirRecord, RefusedMemory) {
    const auto src = uniformVector<float>(2000, -1, 1, rng);
    for (const int len : {10, 100, 3000}) {
        const auto taps = uniformVector<float>(static_cast<std::size_t>(len), -1, 1, rng);
        Core::reset();
        VlqsFIRState_32f* state = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&state, taps.data(), len, nullptr));
        const int allocations = Core::allocations();
        EXPECT_EQ(len < 64, allocations == 1);
        ASSERT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
        const int outstanding = Core::outstanding();
        for (int k = 1; k <= allocations; ++k) {
            Core::refuseAllocation(k);
            state = nullptr;
            const VlqStatus status = vlqsFIRInitAlloc_32f(&state, taps.data(), len, nullptr);
            if (k == 1) {
                EXPECT_EQ(vlqStsNoMemory, status);
                EXPECT_EQ(nullptr, state);
            } else {
                // Without its transform the record is good, and filters directly.
                ASSERT_EQ(vlqStsOk, status);
                EXPECT_EQ(-1, static_cast<Vlq32s>(field(state, kFftLen)));
                FirRef ref(taps);
                std::vector<float> dst(src.size());
                ASSERT_EQ(vlqStsOk, vlqsFIR_32f(src.data(), dst.data(), 2000, state));
                for (std::size_t i = 0; i < src.size(); ++i) {
                    const double want = ref.next(src[i]);
                    ASSERT_NEAR(want, dst[i], sumBound(taps.size()) * ref.magnitude());
                }
                ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps_32f(taps.data(), state));
                EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
            }
            EXPECT_EQ(outstanding, Core::outstanding()) << len << " taps, allocation " << k;
        }
    }
}

// A transform that dies under the record: its error comes out, of new taps and of the filter.
TEST_F(FirRecord, FailingTransform) {
    const std::vector<float> taps(64, 0.25f), src(600, 1.0f);
    Buffer<Vlq8u> memory(stateSize(64));
    VlqsFIRState_32f* state = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRInit_32f(&state, taps.data(), 64, nullptr, memory.data()));
    Vlq32s* spec;
    std::memcpy(&spec, reinterpret_cast<char*>(state) + kFftSpec, sizeof spec);
    ASSERT_NE(nullptr, spec);
    *spec = 0;
    std::vector<float> dst(600);
    EXPECT_EQ(vlqStsBadSpec, vlqsFIR_32f(src.data(), dst.data(), 600, state));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRSetTaps_32f(taps.data(), state));
    std::memcpy(&spec, reinterpret_cast<char*>(state) + kFftSpec, sizeof spec);
    EXPECT_EQ(nullptr, spec);
    EXPECT_NE(vlqStsOk, vlqsFIR_32f(src.data(), dst.data(), 600, state));
    EXPECT_EQ(vlqStsOk, vlqsFIRSetTaps_32f(taps.data(), state));
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
}

TEST_F(FirRecord, Checks) {
    Vlq32s bytes = -5;
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetStateSize_32f(0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRGetStateSize_32f(0, &bytes));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRGetStateSize32f_16s(-1, &bytes));
    EXPECT_EQ(-5, bytes);

    const std::vector<float> taps(4, 1.0f);
    Buffer<Vlq8u> memory(stateSize(4));
    VlqsFIRState_32f* plain = nullptr;
    VlqsFIRState32f_16s* mixed = nullptr;
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit_32f(nullptr, taps.data(), 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit_32f(&plain, nullptr, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit_32f(&plain, taps.data(), 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRInit_32f(&plain, taps.data(), 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsBadTapCount,
              vlqsFIRInit32f_16s(&mixed, taps.data(), -1, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInitAlloc_32f(nullptr, taps.data(), 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInitAlloc_32f(&plain, nullptr, 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRInitAlloc_32f(&plain, taps.data(), 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRInitAlloc32f_16s(&mixed, taps.data(), 0, nullptr));
    EXPECT_EQ(nullptr, plain);
    EXPECT_EQ(nullptr, mixed);
    EXPECT_TRUE(memory.untouched());
    EXPECT_EQ(0, Core::allocations());

    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&plain, taps.data(), 4, nullptr));
    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc32f_16s(&mixed, taps.data(), 4, nullptr));
    float line[4] = {};
    Vlq16s line16[4] = {};
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRSetTaps_32f(nullptr, plain));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRSetTaps_32f(taps.data(), nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetTaps_32f(nullptr, line));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetTaps_32f(plain, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRSetDlyLine_32f(nullptr, line));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetDlyLine_32f(nullptr, line));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetDlyLine_32f(plain, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetDlyLine32f_16s(mixed, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRFree_32f(nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRFree32f_16s(nullptr));

    // Each kind refuses the other's record.
    auto* alienPlain = reinterpret_cast<VlqsFIRState_32f*>(mixed);
    auto* alienMixed = reinterpret_cast<VlqsFIRState32f_16s*>(plain);
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRSetTaps_32f(taps.data(), alienPlain));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRSetTaps32f_16s(taps.data(), alienMixed));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRGetTaps_32f(alienPlain, line));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRGetTaps32f_16s(alienMixed, line));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRSetDlyLine_32f(alienPlain, line));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRSetDlyLine32f_16s(alienMixed, line16));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRGetDlyLine_32f(alienPlain, line));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRGetDlyLine32f_16s(alienMixed, line16));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRFree_32f(alienPlain));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRFree32f_16s(alienMixed));
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(plain));
    EXPECT_EQ(vlqStsOk, vlqsFIRFree32f_16s(mixed));
}

// A record of 2 GiB has no size that a caller could be told, and is refused before its taps are
// read.
TEST_F(FirRecord, TwoGibibytesAreTooMany) {
    constexpr Vlq32s most = 2147483647, taps = 1000000000;
    Vlq32s bytes = 0, multiRate = 0;
    ASSERT_EQ(vlqStsOk, vlqsFIRGetStateSize_32f(taps, &bytes));
    EXPECT_EQ(most, bytes);
    ASSERT_EQ(vlqStsOk, vlqsFIRGetStateSize64f_32s(taps, &bytes));
    EXPECT_EQ(most, bytes);
    ASSERT_EQ(vlqStsOk, vlqsFIRMRGetStateSize64f_32s(taps, 1, 1, &multiRate));
    EXPECT_EQ(most, multiRate);
    ASSERT_EQ(vlqStsOk, vlqsFIRGetStateSize_32s(taps, &bytes));
    EXPECT_EQ(most, bytes);
    ASSERT_EQ(vlqStsOk, vlqsFIRGetStateSize32s_16s(taps, &bytes));
    EXPECT_EQ(most, bytes);

    Vlq8u buffer[16] = {};
    const Vlq32f tap = 0;
    const Vlq32s integerTap = 0;
    VlqsFIRState_32f* single = nullptr;
    VlqsFIRState_32s* widened = nullptr;
    VlqsFIRState32s_16s* integer = nullptr;
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRInit_32f(&single, &tap, taps, nullptr, buffer));
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRMRInit_32f(&single, &tap, taps, 1, 0, 1, 0, nullptr, buffer));
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRInit_32s(&widened, &integerTap, taps, nullptr, buffer));
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRInit32s_16s(&integer, &integerTap, taps, 0, nullptr, buffer));
    EXPECT_EQ(nullptr, single);
    EXPECT_EQ(nullptr, widened);
    EXPECT_EQ(nullptr, integer);
}

}  // namespace
