// FIR records of integer taps.
#include <climits>
#include <cstring>

#include "filter/fir/kinds.h"
#include "harness/buffer.h"
#include "harness/core_double.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

class FirIntegerTaps : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override { Core::reset(); }
    Rng rng{seed()};
};

std::size_t stateSize(int tapsLen) {
    Vlq32s bytes = -1;
    EXPECT_EQ(vlqStsOk, vlqsFIRGetStateSize_32s(tapsLen, &bytes));
    return count(bytes);
}

void expectExact(VlqsFIRState_32s* state, WideFir& ref, const std::vector<Vlq32s>& src, int scale,
                 bool inPlace) {
    auto dst = src;
    const int len = static_cast<int>(src.size());
    ASSERT_EQ(vlqStsOk, inPlace ? vlqsFIR_32s_ISfs(dst.data(), len, state, scale)
                                : vlqsFIR_32s_Sfs(src.data(), dst.data(), len, state, scale));
    for (std::size_t i = 0; i < src.size(); ++i) {
        const auto want = ref.next(src[i]);
        ASSERT_TRUE(isAllowed(want, 0, scale, dst[i]))
            << len << " samples, output " << i << ": " << dst[i] << " for " << want;
    }
}

TEST_F(FirIntegerTaps, Sizes) {
    auto a = [](long n) { return (n + 15) / 16 * 16; };
    for (const int threads : {1, 2, 5, 64}) {
        Core::setThreads(threads);
        for (const long n : {1, 2, 3, 31, 32, 100, 1000, 100001}) {
            EXPECT_EQ(
                count(static_cast<int>(a(24 * n + 47) + 3 * a(8 * n) + 112 + 32 * threads + 32767)),
                stateSize(static_cast<int>(n)));
        }
    }
}

TEST_F(FirIntegerTaps, ExactInAnyMemory) {
    for (int n = 1; n <= 40; n += n < 20 ? 1 : 7) {
        const auto taps = randomIntegers<Vlq32s>(count(n), 1000, rng),
                   past = randomIntegers<Vlq32s>(count(n), 100000, rng);
        for (int offset = 0; offset <= 64; offset += offset < 34 ? 1 : 6) {
            Buffer<Vlq8u> memory(stateSize(n), {offset % 64, offset == 64});
            VlqsFIRState_32s* state = nullptr;
            ASSERT_EQ(vlqStsOk,
                      vlqsFIRInit_32s(&state, taps.data(), n, past.data(), memory.data()));
            ASSERT_EQ(0u, reinterpret_cast<std::uintptr_t>(state) % 32);
            WideFir ref(taps, past);
            for (const int len : {1, n, n + 5, 600})
                expectExact(state, ref, randomIntegers<Vlq32s>(count(len), 100000, rng), 1,
                            len % 2);
            for (int i = 0; i < n + 2; ++i) {
                const auto x = randomIntegers<Vlq32s>(1, 100000, rng)[0];
                Vlq32s y;
                ASSERT_EQ(vlqStsOk, vlqsFIROne_32s_Sfs(x, &y, state, 1));
                ASSERT_TRUE(isAllowed(ref.next(x), 0, 1, y));
            }
            // A full piece, from a window that lies late in the store.
            expectExact(state, ref, randomIntegers<Vlq32s>(offset % 16 ? 50 : 5000, 100000, rng), 1,
                        offset % 2);
            ASSERT_EQ(vlqStsOk, vlqsFIRFree64f_32s(state));
            ASSERT_TRUE(memory.marginsIntact()) << n << " taps, offset " << offset;
            if (HasFailure()) return;
        }
    }
}

// Long filters stay exact: no transform, whatever the counts.
TEST_F(FirIntegerTaps, NeverTransformed) {
    for (const int n : {31, 32, 200}) {
        for (const int threads : {1, 3}) {
            Core::setThreads(threads);
            const auto taps = randomIntegers<Vlq32s>(count(n), 100000, rng);
            const int before = Core::allocations();
            VlqsFIRState_32s* state = nullptr;
            ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32s(&state, taps.data(), n, nullptr));
            EXPECT_EQ(before + 1, Core::allocations());
            Vlq32s fftLen;
            std::memcpy(&fftLen, reinterpret_cast<char*>(state) + 44, 4);
            EXPECT_EQ(-1, fftLen);
            WideFir ref(taps);
            for (const int len : {511, 512, 5000, 20000}) {
                expectExact(state, ref, randomIntegers<Vlq32s>(count(len), 1 << 20, rng), 8, false);
                expectExact(state, ref, randomIntegers<Vlq32s>(count(len), 1 << 20, rng), 8, true);
            }
            std::vector<Vlq32s> line(count(n));
            ASSERT_EQ(vlqStsOk, vlqsFIRGetDlyLine64f_32s(state, line.data()));
            EXPECT_EQ(ref.line<Vlq32s>(), line);
            ASSERT_EQ(vlqStsOk, vlqsFIRFree64f_32s(state));
        }
        Core::setThreads(1);
    }
}

TEST_F(FirIntegerTaps, TapsRoundTrip) {
    for (const int n : {1, 5, 40}) {
        auto taps = extremeVector<Vlq32s>(count(n), rng);
        VlqsFIRState_32s* state = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32s(&state, taps.data(), n, nullptr));
        Buffer<Vlq32s> got(count(n), {1});
        for (int round = 0; round < 2; ++round) {
            ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps_32s(state, got.data()));
            EXPECT_TRUE(same(got, taps));
            taps = extremeVector<Vlq32s>(count(n), rng);
            ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps_32s(Buffer<Vlq32s>(taps, {3}).data(), state));
        }
        // Double taps in the same record: read back as integers they lose their fraction.
        std::vector<Vlq64f> doubles(count(n), -2.75);
        ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps64f_32s(doubles.data(), state));
        ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps_32s(state, got.data()));
        EXPECT_EQ(-2, got.values()[0]);
        doubles[0] = -1e300;
        ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps64f_32s(doubles.data(), state));
        ASSERT_EQ(vlqStsOk, vlqsFIRGetTaps_32s(state, got.data()));
        EXPECT_EQ(INT_MIN, got.values()[0]);
        EXPECT_TRUE(got.marginsIntact());
        ASSERT_EQ(vlqStsOk, vlqsFIRFree64f_32s(state));
    }
}

// Records of double taps have the same word and serve all calls, their transform too.
TEST_F(FirIntegerTaps, SharesItsWordWithDoubleTaps) {
    const auto taps = randomIntegers<Vlq32s>(100, 1000, rng),
               other = randomIntegers<Vlq32s>(100, 1000, rng);
    const std::vector<Vlq64f> doubles(taps.begin(), taps.end());
    VlqsFIRState64f_32s* state = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc64f_32s(&state, doubles.data(), 100, nullptr));
    WideFir ref(taps);
    const auto src = randomIntegers<Vlq32s>(1000, 1000, rng);
    expectExact(state, ref, src, 0, false);
    ASSERT_EQ(vlqStsOk, vlqsFIRSetTaps_32s(other.data(), state));
    ref.setTaps(other);
    expectExact(state, ref, src, 0, false);
    expectExact(state, ref, src, 0, true);
    ASSERT_EQ(vlqStsOk, vlqsFIRFree64f_32s(state));
}

TEST_F(FirIntegerTaps, Checks) {
    const Vlq32s taps[2] = {1, 2};
    Vlq32s bytes = 7;
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetStateSize_32s(0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRGetStateSize_32s(0, &bytes));
    EXPECT_EQ(7, bytes);
    Buffer<Vlq8u> memory(stateSize(2));
    VlqsFIRState_32s* state = nullptr;
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit_32s(nullptr, taps, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit_32s(&state, nullptr, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInit_32s(&state, taps, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRInit_32s(&state, taps, 0, nullptr, memory.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInitAlloc_32s(nullptr, taps, 0, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRInitAlloc_32s(&state, nullptr, 0, nullptr));
    EXPECT_EQ(vlqStsBadTapCount, vlqsFIRInitAlloc_32s(&state, taps, -1, nullptr));
    Core::refuseAllocation(1);
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRInitAlloc_32s(&state, taps, 2, nullptr));
    Core::refuseAllocation(0);
    // A record of 2 GiB and more is refused before memory is asked for.
    const int before = Core::allocations();
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRInitAlloc_32s(&state, taps, 1 << 28, nullptr));
    EXPECT_EQ(vlqStsNoMemory, vlqsFIRInitAlloc_32s(&state, taps, INT_MAX, nullptr));
    EXPECT_EQ(before, Core::allocations());
    EXPECT_EQ(nullptr, state);
    EXPECT_TRUE(memory.untouched());
    ASSERT_EQ(vlqStsOk, vlqsFIRInit_32s(&state, taps, 2, nullptr, memory.data()));
    Vlq32s back[2];
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRSetTaps_32s(nullptr, state));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRSetTaps_32s(taps, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetTaps_32s(nullptr, back));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIRGetTaps_32s(state, nullptr));
    const Vlq32u alien = 0x46493133;
    std::memcpy(static_cast<void*>(state), &alien, 4);
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRSetTaps_32s(taps, state));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIRGetTaps_32s(state, back));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIR_32s_Sfs(taps, back, 2, state, 0));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIROne_32s_Sfs(1, back, state, 0));
}

}  // namespace
