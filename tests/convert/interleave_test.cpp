// Interleaved samples to one vector per channel, and back.
#include "convert/interleave_ref.h"

#include <xmmintrin.h>

#include <memory>

#include "convert/packed24_ref.h"
#include "harness/buffer.h"
#include "harness/random.h"
#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

constexpr int kChannels[] = {1, 2, 3, 4, 5, 8, 17, 700};
constexpr int kFrames[] = {1, 2, 7, 8, 9, 16, 31, 33, 64, 129, 511};

// Rows at offsets of their own, or against guard pages.
template <class T>
struct Rows {
    Rows(int channels, int frames, Rng& rng) {
        const bool atGuardPage = rng() % 4 == 0;
        for (int c = 0; c < channels; ++c) {
            const Placement place{static_cast<int>(rng() % 64), atGuardPage};  // odd addresses too
            rows.push_back(
                std::make_unique<Buffer<float>>(static_cast<std::size_t>(frames), place));
            pointers.push_back(rows.back()->data());
        }
    }
    std::vector<std::unique_ptr<Buffer<float>>> rows;
    std::vector<T*> pointers;
};

// Makes a call under the given control register, and restores it.
template <class Call>
VlqStatus under(unsigned word, Call call) {
    const unsigned saved = _mm_getcsr();
    _mm_setcsr(word);
    const VlqStatus status = call();
    EXPECT_EQ(word & ~0x3Fu, _mm_getcsr() & ~0x3Fu);
    _mm_setcsr(saved);
    return status;
}
unsigned anyControlWord(Rng& rng) {
    const unsigned words[] = {0x1F80, 0x3F80, 0x5F80, 0x7F80, 0x9FC0};
    return words[rng() % 5];
}

template <class T, class Call>
void checkSplit(Call call, int bits) {
    Rng rng(seed());
    for (const int channels : kChannels) {
        for (const int frames : kFrames) {
            if (channels == 700 && frames > 9) continue;
            const std::size_t count =
                static_cast<std::size_t>(channels) * static_cast<std::size_t>(frames);
            const auto a = extremeVector<T>(bits == 16 ? count : 3 * count, rng);
            const Buffer<T> src(a, {static_cast<int>(rng() % 64), rng() % 4 == 0});
            Rows<float> dst(channels, frames, rng);
            ASSERT_EQ(vlqStsOk, under(anyControlWord(rng), [&] {
                          return call(src.data(), dst.pointers.data(), channels, frames);
                      }));
            for (int c = 0; c < channels; ++c) {
                std::vector<float> want;
                for (int f = 0; f < frames; ++f) {
                    const auto at = static_cast<std::size_t>(f * channels + c);
                    if constexpr (sizeof(T) == 2)
                        want.push_back(toUnitRef(a[at], bits));
                    else
                        want.push_back(toUnitRef(unpackRef(&a[3 * at], true), bits));
                }
                ASSERT_TRUE(same(*dst.rows[static_cast<std::size_t>(c)], want))
                    << "channel " << c << " of " << channels << ", frames " << frames;
            }
        }
    }
}
TEST(Split, Samples16) { checkSplit<Vlq16s>(vlqsSplitScaled_16s32f_D2L, 16); }
TEST(Split, Samples24) { checkSplit<Vlq8u>(vlqsSplitScaled_24s32f_D2L, 24); }

template <class T, class Call>
void checkJoin(Call call, int bits) {
    Rng rng(seed());
    for (const int channels : kChannels) {
        for (const int frames : kFrames) {
            if (channels == 700 && frames > 9) continue;
            const std::size_t count =
                static_cast<std::size_t>(channels) * static_cast<std::size_t>(frames);
            Rows<float> src(channels, frames, rng);
            std::vector<std::vector<float>> values;
            for (auto& row : src.rows) {
                auto v = rng() % 2 ? extremeVector<float>(static_cast<std::size_t>(frames), rng)
                                   : uniformVector<float>(static_cast<std::size_t>(frames), -1.01,
                                                          1.01, rng);
                row->assign(v);
                values.push_back(std::move(v));
            }
            std::vector<T> want;
            for (int f = 0; f < frames; ++f) {
                for (int c = 0; c < channels; ++c) {
                    const std::int32_t sample = fromUnitRef(
                        values[static_cast<std::size_t>(c)][static_cast<std::size_t>(f)], bits);
                    if constexpr (sizeof(T) == 2)
                        want.push_back(static_cast<T>(sample));
                    else
                        packRef(want, sample);
                }
            }
            Buffer<T> dst(bits == 16 ? count : 3 * count,
                          {static_cast<int>(rng() % 64), rng() % 4 == 0});
            ASSERT_EQ(vlqStsOk, under(anyControlWord(rng), [&] {
                          return call(src.pointers.data(), channels, frames, dst.data());
                      }));
            ASSERT_TRUE(same(dst, want)) << "channels " << channels << ", frames " << frames;
        }
    }
}
TEST(Join, Samples16) { checkJoin<Vlq16s>(vlqsJoinScaled_32f16s_D2L, 16); }
TEST(Join, Samples24) { checkJoin<Vlq8u>(vlqsJoinScaled_32f24s_D2L, 24); }

TEST(SplitJoin, MoreChannelsThanATileHolds) {
    constexpr int channels = 2500, frames = 3;
    Rng rng(seed());
    const auto a = extremeVector<Vlq16s>(channels * frames, rng);
    std::vector<float> flat(channels * frames);
    std::vector<float*> rows;
    for (int c = 0; c < channels; ++c) rows.push_back(&flat[static_cast<std::size_t>(c * frames)]);
    ASSERT_EQ(vlqStsOk, vlqsSplitScaled_16s32f_D2L(a.data(), rows.data(), channels, frames));
    std::vector<Vlq16s> back(a.size());
    ASSERT_EQ(vlqStsOk, vlqsJoinScaled_32f16s_D2L(rows.data(), channels, frames, back.data()));
    EXPECT_EQ(a, back);
    for (int c = 0; c < channels; ++c) {
        for (int f = 0; f < frames; ++f) {
            ASSERT_EQ(toUnitRef(a[static_cast<std::size_t>(f * channels + c)], 16),
                      flat[static_cast<std::size_t>(c * frames + f)]);
        }
    }
}

TEST(SplitJoin, Every16BitSampleComesBack) {
    std::vector<Vlq16s> all(65536), back(65536);
    for (int i = 0; i < 65536; ++i)
        all[static_cast<std::size_t>(i)] = static_cast<Vlq16s>(i - 32768);
    std::vector<float> row(65536);
    float* rows[] = {row.data()};
    ASSERT_EQ(vlqStsOk, vlqsSplitScaled_16s32f_D2L(all.data(), rows, 1, 65536));
    EXPECT_EQ(-1.0f, row.front());
    EXPECT_EQ(1.0f, row.back());
    for (const float v : row) ASSERT_NE(0.0f, v);
    ASSERT_EQ(vlqStsOk, vlqsJoinScaled_32f16s_D2L(rows, 1, 65536, back.data()));
    EXPECT_EQ(all, back);
}

TEST(SplitJoin, EndsOf24Bits) {
    const Vlq8u samples[] = {0, 0, 0x80, 0xFF, 0xFF, 0x7F, 0, 0, 0, 0xFF, 0xFF, 0xFF};
    float row[4];
    float* rows[] = {row};
    ASSERT_EQ(vlqStsOk, vlqsSplitScaled_24s32f_D2L(samples, rows, 1, 4));
    EXPECT_EQ(-1.0f, row[0]);
    EXPECT_EQ(1.0f, row[1]);
    EXPECT_NE(0.0f, row[2]);
    EXPECT_NE(0.0f, row[3]);
    float ends[] = {-1.0f, 1.0f, -2.0f, INFINITY, NAN, -INFINITY};
    float* sources[] = {ends};
    Vlq8u got[18];
    ASSERT_EQ(vlqStsOk, vlqsJoinScaled_32f24s_D2L(sources, 1, 6, got));
    const int want[] = {-8388608, 8388607, -8388608, 8388607, 8388607, -8388608};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(want[i], unpackRef(got + 3 * i, true)) << i;
}

TEST(SplitJoin, Checks) {
    const Vlq16s src16[12] = {};
    const Vlq8u src24[36] = {};
    Buffer<float> a(4), b(4), c(4);
    Buffer<Vlq16s> dst16(12);
    Buffer<Vlq8u> dst24(36);
    float* rows[] = {a.data(), b.data(), c.data()};
    float* middleNull[] = {a.data(), nullptr, c.data()};
    EXPECT_EQ(vlqStsNullPtr, vlqsSplitScaled_16s32f_D2L(nullptr, rows, 3, 4));
    EXPECT_EQ(vlqStsNullPtr, vlqsSplitScaled_16s32f_D2L(src16, nullptr, 3, 4));
    EXPECT_EQ(vlqStsNullPtr, vlqsSplitScaled_16s32f_D2L(src16, middleNull, 3, 4));
    EXPECT_EQ(vlqStsNullPtr, vlqsSplitScaled_24s32f_D2L(nullptr, rows, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsSplitScaled_24s32f_D2L(src24, middleNull, 3, 4));
    EXPECT_EQ(vlqStsNullPtr, vlqsJoinScaled_32f16s_D2L(middleNull, 3, 4, dst16.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsJoinScaled_32f16s_D2L(nullptr, 3, 4, dst16.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsJoinScaled_32f16s_D2L(rows, 3, 4, nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsJoinScaled_32f24s_D2L(middleNull, 3, 4, dst24.data()));
    EXPECT_EQ(vlqStsNullPtr, vlqsJoinScaled_32f24s_D2L(rows, 0, 4, nullptr));
    for (const int bad : {0, -1}) {
        EXPECT_EQ(vlqStsBadSize, vlqsSplitScaled_16s32f_D2L(src16, rows, bad, 4));
        EXPECT_EQ(vlqStsBadSize, vlqsSplitScaled_16s32f_D2L(src16, rows, 3, bad));
        EXPECT_EQ(vlqStsBadSize, vlqsSplitScaled_24s32f_D2L(src24, rows, bad, 4));
        EXPECT_EQ(vlqStsBadSize, vlqsSplitScaled_24s32f_D2L(src24, rows, 3, bad));
        EXPECT_EQ(vlqStsBadSize, vlqsJoinScaled_32f16s_D2L(rows, bad, 4, dst16.data()));
        EXPECT_EQ(vlqStsBadSize, vlqsJoinScaled_32f16s_D2L(rows, 3, bad, dst16.data()));
        EXPECT_EQ(vlqStsBadSize, vlqsJoinScaled_32f24s_D2L(rows, bad, 4, dst24.data()));
        EXPECT_EQ(vlqStsBadSize, vlqsJoinScaled_32f24s_D2L(rows, 3, bad, dst24.data()));
    }
    // A null row in any place comes before the counts; without channels no row is looked at.
    for (int null = 0; null < 3; ++null) {
        float* some[] = {a.data(), b.data(), c.data()};
        some[null] = nullptr;
        for (const int frames : {4, 0, -1, INT32_MIN}) {
            EXPECT_EQ(vlqStsNullPtr, vlqsSplitScaled_16s32f_D2L(src16, some, 3, frames))
                << null << ", " << frames;
            EXPECT_EQ(vlqStsNullPtr, vlqsSplitScaled_24s32f_D2L(src24, some, 3, frames))
                << null << ", " << frames;
            EXPECT_EQ(vlqStsNullPtr, vlqsJoinScaled_32f16s_D2L(some, 3, frames, dst16.data()))
                << null << ", " << frames;
            EXPECT_EQ(vlqStsNullPtr, vlqsJoinScaled_32f24s_D2L(some, 3, frames, dst24.data()))
                << null << ", " << frames;
        }
        for (const int channels : {0, -1, INT32_MIN}) {
            EXPECT_EQ(vlqStsBadSize, vlqsSplitScaled_16s32f_D2L(src16, some, channels, 4));
            EXPECT_EQ(vlqStsBadSize, vlqsSplitScaled_24s32f_D2L(src24, some, channels, 4));
            EXPECT_EQ(vlqStsBadSize, vlqsJoinScaled_32f16s_D2L(some, channels, 4, dst16.data()));
            EXPECT_EQ(vlqStsBadSize, vlqsJoinScaled_32f24s_D2L(some, channels, 4, dst24.data()));
        }
    }
    EXPECT_TRUE(a.untouched());
    EXPECT_TRUE(b.untouched());
    EXPECT_TRUE(c.untouched());
    EXPECT_TRUE(dst16.untouched());
    EXPECT_TRUE(dst24.untouched());
}

}  // namespace
