// FIR filters, one sample a call.
#include <climits>
#include <cstring>

#include "filter/fir/fir_ref.h"
#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/random.h"
#include "vlqs/fir.h"

namespace {

using namespace vlqtest;

TEST(FirOne, Values) {
    Rng rng(seed());
    for (int len = 1; len <= 200; len += len < 70 ? 1 : 13) {
        const auto n = static_cast<std::size_t>(len);
        const auto taps = uniformVector<float>(n, -1, 1, rng),
                   past = uniformVector<float>(n, -1, 1, rng);
        VlqsFIRState_32f* state = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&state, taps.data(), len, past.data()));
        FirRef ref(taps, past);
        Buffer<float> dst(1, {len % 5});
        for (int i = 0; i < 3 * len + 5; ++i) {
            const float x = uniformVector<float>(1, -1, 1, rng)[0];
            ASSERT_EQ(vlqStsOk, vlqsFIROne_32f(x, dst.data(), state));
            const double want = ref.next(x);
            ASSERT_NEAR(want, dst.values()[0], sumBound(n) * ref.magnitude())
                << len << " taps, sample " << i;
            ASSERT_TRUE(dst.marginsIntact());
            std::vector<float> line(n);
            ASSERT_EQ(vlqStsOk, vlqsFIRGetDlyLine_32f(state, line.data()));
            ASSERT_EQ(0, std::memcmp(ref.line<float>().data(), line.data(), n * sizeof(float)));
        }
        EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
    }
}

// A window shorter than twelve is one chain, oldest sample first: exact to the bit.
TEST(FirOne, ShortWindowsInOneChain) {
    const std::vector<float> taps = {1, 1, 1, 1};
    VlqsFIRState_32f* state = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&state, taps.data(), 4, nullptr));
    float y = 0;
    for (const float x : {1.0f, 0x1p24f, -0x1p24f, 1.0f})
        ASSERT_EQ(vlqStsOk, vlqsFIROne_32f(x, &y, state));
    EXPECT_EQ(1.0f, y);  // ((1 + 2^24) - 2^24) + 1 loses the first 1
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
}

TEST(FirOne, SixteenBitSamples) {
    Rng rng(seed());
    for (const int len : {1, 2, 5, 11, 12, 13, 40, 63}) {
        const auto n = static_cast<std::size_t>(len);
        std::vector<float> taps(n);
        for (float& h : taps) h = static_cast<float>(static_cast<int>(rng() % 17) - 8);
        for (const int scale : {0, 1, 4, 18, 40, INT_MAX, -1, -8, -40, INT_MIN}) {
            VlqsFIRState32f_16s* state = nullptr;
            ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc32f_16s(&state, taps.data(), len, nullptr));
            FirRef ref(taps);
            for (const Vlq16s x : extremeVector<Vlq16s>(3 * n + 2, rng)) {
                Buffer<Vlq16s> dst(1, {1});
                ASSERT_EQ(vlqStsOk, vlqsFIROne32f_16s_Sfs(x, dst.data(), state, scale));
                double exact = ref.next(x);
                if (scale < -127) exact = exact >= 0 ? 1e9 : -1e9;
                ASSERT_EQ(round16(exact, scale < -127 ? 0 : scale), dst.values()[0])
                    << len << " taps, scale " << scale;
                ASSERT_TRUE(dst.marginsIntact());
            }
            EXPECT_EQ(vlqStsOk, vlqsFIRFree32f_16s(state));
        }
    }
}

// Blocks and single samples may follow each other in any way.
TEST(FirOne, MixedWithBlocks) {
    Rng rng(seed());
    for (int run = 0; run < 300; ++run) {
        const int len = 1 + static_cast<int>(rng() % 80);
        const auto n = static_cast<std::size_t>(len);
        const auto taps = uniformVector<float>(n, -1, 1, rng);
        VlqsFIRState_32f* state = nullptr;
        ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&state, taps.data(), len, nullptr));
        FirRef ref(taps);
        for (int turn = 0; turn < 12; ++turn) {
            const auto src =
                uniformVector<float>(1 + rng() % (turn % 3 == 0 ? 200 : 20), -1, 1, rng);
            std::vector<float> dst(src.size());
            if (turn % 2 == 0) {
                for (std::size_t i = 0; i < src.size(); ++i)
                    ASSERT_EQ(vlqStsOk, vlqsFIROne_32f(src[i], &dst[i], state));
            } else {
                ASSERT_EQ(vlqStsOk,
                          vlqsFIR_32f(src.data(), dst.data(), static_cast<int>(src.size()), state));
            }
            for (std::size_t i = 0; i < src.size(); ++i) {
                const double want = ref.next(src[i]);
                ASSERT_NEAR(want, dst[i], sumBound(n) * ref.magnitude())
                    << len << " taps, run " << run << ", turn " << turn;
            }
        }
        EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
    }
}

TEST(FirOne, Checks) {
    const float tap = 1;
    VlqsFIRState_32f* plain = nullptr;
    VlqsFIRState32f_16s* mixed = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&plain, &tap, 1, nullptr));
    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc32f_16s(&mixed, &tap, 1, nullptr));
    float y = 7;
    Vlq16s y16 = 7;
    auto* alienPlain = reinterpret_cast<VlqsFIRState_32f*>(mixed);
    auto* alienMixed = reinterpret_cast<VlqsFIRState32f_16s*>(plain);
    EXPECT_EQ(vlqStsNullPtr, vlqsFIROne_32f(1, nullptr, alienPlain));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIROne_32f(1, &y, nullptr));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIROne_32f(1, &y, alienPlain));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIROne32f_16s_Sfs(1, nullptr, alienMixed, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsFIROne32f_16s_Sfs(1, &y16, nullptr, 0));
    EXPECT_EQ(vlqStsBadSpec, vlqsFIROne32f_16s_Sfs(1, &y16, alienMixed, 0));
    EXPECT_EQ(7, y);
    EXPECT_EQ(7, y16);
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(plain));
    EXPECT_EQ(vlqStsOk, vlqsFIRFree32f_16s(mixed));
}

}  // namespace
