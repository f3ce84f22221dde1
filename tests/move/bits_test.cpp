// Copying and packing of bit streams.
#include "move/bits_ref.h"

#include <limits>

#include "harness/buffer.h"
#include "harness/random.h"
#include "vlqs/arith.h"
#include "vlqs/move.h"

namespace {

using namespace vlqtest;

std::size_t bytesFor(std::int64_t bits) { return static_cast<std::size_t>((bits + 7) / 8); }

// Both vectors hold the bytes of the range and not one more; every pair of offsets.
void checkCopyBits(int len, Rng& rng) {
    for (int srcOffset = 0; srcOffset < 8; ++srcOffset) {
        for (int dstOffset = 0; dstOffset < 8; ++dstOffset) {
            const Placement place{static_cast<int>(rng() % 64), rng() % 2 == 0};
            const auto from = extremeVector<Vlq8u>(bytesFor(srcOffset + len), rng);
            const auto before = extremeVector<Vlq8u>(bytesFor(dstOffset + len), rng);
            auto want = before;
            for (int i = 0; i < len; ++i) putBit(want, dstOffset + i, bitAt(from, srcOffset + i));

            const Buffer<Vlq8u> src(from, place);
            Buffer<Vlq8u> dst(before, place);
            // Whole bytes of an offset do not count.
            const int srcBit = srcOffset + 8 * static_cast<int>(rng() % 3),
                      dstBit = dstOffset + 8 * static_cast<int>(rng() % 3);
            ASSERT_EQ(vlqStsOk, vlqsCopy_1u(src.data(), srcBit, dst.data(), dstBit, len));
            ASSERT_TRUE(same(dst, want))
                << "len " << len << ", offsets " << srcBit << ", " << dstBit << ", seed " << seed();
        }
    }
}

TEST(Copy1u, Values) {
    Rng rng(seed());
    for (int len = 1; len <= 300 && !HasFatalFailure(); ++len) checkCopyBits(len, rng);
    for (const int len : {511, 512, 513, 1024, 2047, 4096, 10001, 65536}) {
        if (!HasFatalFailure()) checkCopyBits(len, rng);
    }
}

TEST(Copy1u, OffsetNineIsOffsetOne) {
    const Vlq8u src[2] = {0x7F, 0x00};
    Vlq8u dst[2] = {0, 0};
    ASSERT_EQ(vlqStsOk, vlqsCopy_1u(src, 9, dst, 0, 7));
    EXPECT_EQ(0xFE, dst[0]);
    EXPECT_EQ(0, dst[1]);
}

TEST(Copy1u, Statuses) {
    Vlq8u v[4] = {1, 2, 3, 4}, out[4] = {5, 6, 7, 8};
    EXPECT_EQ(vlqStsNullPtr, vlqsCopy_1u(nullptr, -1, out, -1, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsCopy_1u(v, -1, nullptr, -1, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsCopy_1u(v, 0, out, 0, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsCopy_1u(v, 0, out, 0, -1));
    EXPECT_EQ(vlqStsBadSize, vlqsCopy_1u(v, -1, out, 0, 8));
    EXPECT_EQ(vlqStsBadSize, vlqsCopy_1u(v, 0, out, -1, 8));
    EXPECT_EQ(5, out[0]);
}

TEST(PackBits, Values) {
    Rng rng(seed());
    for (int run = 0; run < 6000; ++run) {
        const auto len = static_cast<std::size_t>(run < 3000 ? 1 + run % 40 : 1 + rng() % 200);
        const int offset = static_cast<int>(run % 3 == 0 ? rng() % 70 : rng() % 8);
        const bool wild = run % 5 == 0;
        const int widest = 1 + static_cast<int>(rng() % 33);
        const auto values = extremeVector<Vlq32u>(len, rng);
        std::vector<Vlq32s> widths(len);
        VlqStatus status = vlqStsOk;
        std::int64_t bits = 0;
        for (auto& width : widths) {
            width = static_cast<Vlq32s>(rng() % static_cast<unsigned>(widest));
            if (wild && rng() % 8 == 0) width = extremeValue<Vlq32s>(rng);
            if (width < 0 || width > 32) status = vlqStsWarnBitWidth;
            bits += width < 0 ? 0 : width > 32 ? 32 : width;
        }
        const auto before = extremeVector<Vlq8u>(bytesFor(offset + bits), rng);
        auto want = before;
        const std::int64_t end = packBitsRef(values, widths, want, offset);

        const Placement place{static_cast<int>(rng() % 64), run % 2 == 0};
        const Buffer<Vlq32u> src(values, place);
        const Buffer<Vlq32s> widthsIn(widths, place);
        Buffer<Vlq8u> dst(before, place);
        Vlq32s endOffset = -1;
        ASSERT_EQ(status, vlqsPackBits_32u8u(src.data(), widthsIn.data(), static_cast<Vlq32s>(len),
                                             dst.data(), offset, &endOffset));
        ASSERT_TRUE(same(dst, want)) << "run " << run << ", seed " << seed();
        ASSERT_EQ(end, endOffset);
    }
}

// Each call goes on where the one before ended.
TEST(PackBits, Chained) {
    Rng rng(seed());
    const auto values = extremeVector<Vlq32u>(200, rng);
    std::vector<Vlq32s> widths(200);
    for (auto& width : widths) width = static_cast<Vlq32s>(rng() % 33);
    std::vector<Vlq8u> want(1000), got(1000);
    const std::int64_t end = packBitsRef(values, widths, want, 0);
    Vlq32s offset = 0;
    for (int i = 0; i < 200; i += 8)
        ASSERT_EQ(vlqStsOk, vlqsPackBits_32u8u(&values[static_cast<std::size_t>(i)],
                                               &widths[static_cast<std::size_t>(i)], 8, got.data(),
                                               offset, &offset));
    EXPECT_EQ(end, offset);
    EXPECT_EQ(want, got);
}

TEST(PackBits, NoBitsNoByte) {
    const Vlq32u src[3] = {~0u, ~0u, ~0u};
    const Vlq32s widths[3] = {0, 0, -4};
    Vlq8u dst = 0xA5;
    Vlq32s end = -1;
    EXPECT_EQ(vlqStsWarnBitWidth, vlqsPackBits_32u8u(src, widths, 3, &dst, 3, &end));
    EXPECT_EQ(3, end);
    EXPECT_EQ(0xA5, dst);
}

TEST(PackBits, Statuses) {
    const Vlq32u src[1] = {1};
    const Vlq32s widths[1] = {40};
    Vlq8u dst[8] = {9, 9};
    Vlq32s end = -1;
    EXPECT_EQ(vlqStsNullPtr, vlqsPackBits_32u8u(nullptr, widths, 0, dst, -1, &end));
    EXPECT_EQ(vlqStsNullPtr, vlqsPackBits_32u8u(src, nullptr, 0, dst, -1, &end));
    EXPECT_EQ(vlqStsNullPtr, vlqsPackBits_32u8u(src, widths, 0, nullptr, -1, &end));
    EXPECT_EQ(vlqStsNullPtr, vlqsPackBits_32u8u(src, widths, 0, dst, -1, nullptr));
    EXPECT_EQ(vlqStsBadSize, vlqsPackBits_32u8u(src, widths, 0, dst, 0, &end));
    EXPECT_EQ(vlqStsBadSize, vlqsPackBits_32u8u(src, widths, -1, dst, 0, &end));
    EXPECT_EQ(vlqStsBadSize, vlqsPackBits_32u8u(src, widths, 1, dst, -1, &end));
    EXPECT_EQ(9, dst[0]);
    EXPECT_EQ(-1, end);
}

}  // namespace
