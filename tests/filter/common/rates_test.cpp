// The phase arithmetic of a change of rate, against a counter that makes every step.
#include "filter/common/rates.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace vlq;
using namespace vlq::fir;

// The newest sample and the first tap of each output of a few periods, step by step: a sample comes
// in when u is 0, an output goes out when v is 0.
template <class Visit>
void eachOutput(const Rates& r, int periods, Visit visit) {
    int u = (r.up - r.upPhase) % r.up, v = (r.down - r.downPhase) % r.down;
    Vlq64s newest = -1;
    for (int step = 0; step < periods * r.up * r.down; ++step) {
        if (u == 0) ++newest;
        if (v == 0) visit(newest, u);
        u = (u + 1) % r.up;
        v = (v + 1) % r.down;
    }
}

template <class Check>
void eachRates(int most, Check check) {
    for (int up = 1; up <= most; ++up) {
        for (int down = 1; down <= most; ++down) {
            for (int upPhase = 0; upPhase < up; ++upPhase) {
                for (int downPhase = 0; downPhase < down; ++downPhase)
                    check(Rates{up, upPhase, down, downPhase});
            }
        }
    }
}

TEST(Rates, PlacesOfOutputs) {
    eachRates(7, [](const Rates& r) {
        OutputWalk walk(r);
        Vlq64s output = 0;
        eachOutput(r, 3, [&](Vlq64s newest, int firstTap) {
            const OutputPlace place = placeOf(r, output++);
            ASSERT_EQ(newest, place.newest);
            ASSERT_EQ(firstTap, place.firstTap);
            ASSERT_EQ(newest, walk.newest());
            ASSERT_EQ(firstTap, walk.firstTap());
            walk.advance();
        });
        ASSERT_EQ(3 * r.up, output);
    });
}

TEST(Rates, LargestFactors) {
    constexpr Vlq32s most = 2147483647;
    const Rates r{most, most - 1, most - 1, most - 2};
    OutputWalk walk(r);
    for (Vlq64s output = 0; output < 100; ++output, walk.advance()) {
        const OutputPlace place = placeOf(r, output);
        ASSERT_EQ(place.newest, walk.newest());
        ASSERT_EQ(place.firstTap, walk.firstTap());
    }
}

TEST(Rates, TapsOfAPhase) {
    for (int len = 1; len < 40; ++len) {
        for (int up = 1; up < 12; ++up) {
            int longest = 0;
            for (int first = 0; first < up; ++first) {
                int taps = 0;
                for (int k = first; k < len; k += up) ++taps;
                EXPECT_EQ(taps, tapsFrom(first, len, up));
                longest = std::max(longest, taps);
            }
            EXPECT_EQ(longest, delayLength(len, up));
            EXPECT_EQ(longest, (RateSizes{len, up, 1}.delayLen()));
        }
    }
}

TEST(Rates, SizesFollowTheirDefinitions) {
    for (long taps = 1; taps < 60; taps += 3) {
        for (long up = 1; up < 9; ++up) {
            for (long down = 1; down < 9; ++down) {
                const RateSizes sizes{taps, up, down};
                const long line = (taps + up - 1) / up;
                long padded = taps + 3 * down;
                while (padded % up != 0) ++padded;
                long chunk = 4 * down * ((line + 4 * down) / (4 * down) + 1) - 4 * down + 1;
                long outputs = up * ((down + line - 1 + down - 1) / down);
                while (outputs % (4 * up) != 0) outputs += up, chunk += down;
                EXPECT_EQ(padded, sizes.paddedTaps());
                EXPECT_EQ(chunk, sizes.firstChunk());
                EXPECT_EQ(outputs, sizes.chunkOutputs());
                EXPECT_EQ(0, sizes.seam() % (4 * down));
                EXPECT_GT(sizes.seam(), line);
            }
        }
    }
}

TEST(Rates, Checks) {
    EXPECT_EQ(vlqStsBadRateFactor, checkFactors(0, 1));
    EXPECT_EQ(vlqStsBadRateFactor, checkFactors(1, -1));
    EXPECT_EQ(vlqStsBadRateFactor, checkRates({0, 5, 1, 0}));
    EXPECT_EQ(vlqStsBadRatePhase, checkRates({3, 3, 1, 0}));
    EXPECT_EQ(vlqStsBadRatePhase, checkRates({3, -1, 1, 0}));
    EXPECT_EQ(vlqStsBadRatePhase, checkRates({3, 0, 2, 2}));
    EXPECT_EQ(vlqStsBadRatePhase, checkRates({3, 0, 2, -1}));
    EXPECT_EQ(vlqStsOk, checkRates({3, 2, 2, 1}));
}

}  // namespace
