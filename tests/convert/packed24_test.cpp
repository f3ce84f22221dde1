// Conversions to and from packed 24-bit integers.
#include "convert/packed24_ref.h"

#include <xmmintrin.h>

#include <climits>

#include "harness/sweep.h"
#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

const std::vector<int> kScaleFactors = {0,   1,   2,   7,   8,   9,       23,  24,   25,
                                        30,  31,  32,  33,  100, INT_MAX, -1,  -7,   -8,
                                        -22, -23, -24, -25, -30, -31,     -32, -100, INT_MIN};
const std::vector<int> kFloatScaleFactors = {0,   1,    8,    24,   100,     126,  127,
                                             148, 149,  150,  151,  INT_MAX, -1,   -23,
                                             -24, -100, -125, -126, -127,    -128, INT_MIN};

template <bool kSigned, class To, class Call>
void checkFromPacked(Call call) {
    sweep(4, {5003}, [&](Case& c) {
        const auto a = extremeVector<Vlq8u>(3 * static_cast<std::size_t>(c.len), c.rng);
        std::vector<To> want(static_cast<std::size_t>(c.len));
        for (std::size_t i = 0; i < want.size(); ++i)
            want[i] = static_cast<To>(unpackRef(&a[3 * i], kSigned));
        const Buffer<Vlq8u> src(a, c.place[1]);
        Buffer<To> dst(want.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    // Every value there is, a part at a time.
    constexpr int part = 1 << 16;
    std::vector<Vlq8u> bytes(3 * part);
    std::vector<To> got(part);
    for (int high = 0; high < 256; ++high) {
        for (std::size_t i = 0; i < part; ++i) {
            bytes[3 * i] = static_cast<Vlq8u>(i);
            bytes[3 * i + 1] = static_cast<Vlq8u>(i >> 8);
            bytes[3 * i + 2] = static_cast<Vlq8u>(high);
        }
        ASSERT_EQ(vlqStsOk, call(bytes.data(), got.data(), part));
        for (std::size_t i = 0; i < part; ++i)
            ASSERT_EQ(static_cast<To>(unpackRef(&bytes[3 * i], kSigned)), got[i]);
    }
    Buffer<To> dst(4);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, dst.data(), 0));
    EXPECT_EQ(vlqStsNullPtr, call(bytes.data(), nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(bytes.data(), dst.data(), 0));
    EXPECT_EQ(vlqStsBadSize, call(bytes.data(), dst.data(), -1));
    EXPECT_TRUE(dst.untouched());
}

TEST(Packed24, To32s) { checkFromPacked<true, Vlq32s>(vlqsConvert_24s32s); }
TEST(Packed24, To32u) { checkFromPacked<false, Vlq32u>(vlqsConvert_24u32u); }
TEST(Packed24, SignedToFloat) { checkFromPacked<true, Vlq32f>(vlqsConvert_24s32f); }
TEST(Packed24, UnsignedToFloat) { checkFromPacked<false, Vlq32f>(vlqsConvert_24u32f); }

template <class From, class Call, class Ref>
void checkToPacked(Call call, Ref ref, const std::vector<int>& scaleFactors,
                   const std::vector<From>& edges) {
    sweep(3, {5003}, [&](Case& c) {
        const auto a = extremeVector<From>(static_cast<std::size_t>(c.len), c.rng);
        const int scaleFactor = scaleFactors[c.rng() % scaleFactors.size()];
        std::vector<Vlq8u> want;
        for (const From v : a) packRef(want, ref(v, scaleFactor));
        const Buffer<From> src(a, c.place[1]);
        Buffer<Vlq8u> dst(want.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor;
    });
    Rng rng(seed());
    std::vector<From> values = extremeVector<From>(20000, rng);
    values.insert(values.end(), edges.begin(), edges.end());
    std::vector<Vlq8u> got(3 * values.size());
    for (const int scaleFactor : scaleFactors) {
        std::vector<Vlq8u> want;
        for (const From v : values) packRef(want, ref(v, scaleFactor));
        for (const unsigned word : {0x1F80u, 0x3F80u, 0x5F80u, 0x7F80u, 0x9FC0u}) {
            const unsigned saved = _mm_getcsr();
            _mm_setcsr(word);
            const VlqStatus status =
                call(values.data(), got.data(), static_cast<int>(values.size()), scaleFactor);
            const unsigned after = _mm_getcsr();
            _mm_setcsr(saved);
            ASSERT_EQ(vlqStsOk, status);
            ASSERT_EQ(word & ~0x3Fu, after & ~0x3Fu);
            for (std::size_t i = 0; i < want.size(); ++i) {
                ASSERT_EQ(want[i], got[i]) << "byte " << i % 3 << " of " << values[i / 3]
                                           << ", scale factor " << scaleFactor;
            }
        }
    }
    Buffer<Vlq8u> dst(12);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, dst.data(), 0, 0));
    EXPECT_EQ(vlqStsNullPtr, call(values.data(), nullptr, 0, 0));
    EXPECT_EQ(vlqStsBadSize, call(values.data(), dst.data(), 0, 0));
    EXPECT_EQ(vlqStsBadSize, call(values.data(), dst.data(), -1, 0));
    EXPECT_TRUE(dst.untouched());
}

template <class T>
std::vector<T> powersAndNeighbours() {
    std::vector<T> values;
    for (int bit = 0; bit < std::numeric_limits<T>::digits; ++bit) {
        const T power = static_cast<T>(T{1} << bit);
        for (T v : {power, static_cast<T>(power | power >> 1),
                    static_cast<T>(power | power >> 1 | power >> 2)}) {
            for (T w : {static_cast<T>(v - 1), v, static_cast<T>(v | 1)}) {
                values.push_back(w);
                values.push_back(static_cast<T>(~w));
                values.push_back(static_cast<T>(~w + 1));
            }
        }
    }
    return values;
}

TEST(Packed24, From32s) {
    checkToPacked<Vlq32s>(
        vlqsConvert_32s24s_Sfs,
        [](Vlq32s v, int s) { return scale24Ref(v, std::min(s, 31), true); }, kScaleFactors,
        powersAndNeighbours<Vlq32s>());
}
TEST(Packed24, From32u) {
    checkToPacked<Vlq32u>(
        vlqsConvert_32u24u_Sfs,
        [](Vlq32u v, int s) { return scale24Ref(v, std::min(s, 31), false); }, kScaleFactors,
        powersAndNeighbours<Vlq32u>());
}

std::vector<float> floatEdges() {
    std::vector<float> values;
    for (float edge : {8388607.0f, 8388608.0f, 16777215.0f, 16777216.0f, 0.5f, 1.5f, 2.5f, 1e30f,
                       INFINITY, NAN, 4194303.5f, 4194304.5f}) {
        for (float v : {edge, std::nextafter(edge, 0.0f), std::nextafter(edge, INFINITY)}) {
            values.push_back(v);
            values.push_back(-v);
        }
    }
    return values;
}

TEST(Packed24, SignedFromFloat) {
    checkToPacked<Vlq32f>(
        vlqsConvert_32f24s_Sfs, [](Vlq32f v, int s) { return floatTo24Ref(v, true, s); },
        kFloatScaleFactors, floatEdges());
}
TEST(Packed24, UnsignedFromFloat) {
    checkToPacked<Vlq32f>(
        vlqsConvert_32f24u_Sfs, [](Vlq32f v, int s) { return floatTo24Ref(v, false, s); },
        kFloatScaleFactors, floatEdges());
}

// Reading or writing one byte beyond the packed samples hits a protected page, at every length.
TEST(Packed24, EndsAtPages) {
    for (int len = 1; len <= 200; ++len) {
        const auto count = static_cast<std::size_t>(len);
        Buffer<Vlq8u> packed(std::vector<Vlq8u>(3 * count, 0x5A), {0, true});
        Buffer<Vlq32s> wide(count, {0, true});
        ASSERT_EQ(vlqStsOk, vlqsConvert_24s32s(packed.data(), wide.data(), len));
        ASSERT_EQ(vlqStsOk, vlqsConvert_32s24s_Sfs(wide.data(), packed.data(), len, 0));
        ASSERT_TRUE(same(packed, std::vector<Vlq8u>(3 * count, 0x5A)));
        // And begins at one.
        GuardedPages pages(3 * count);
        std::memset(pages.begin(), 0x5A, 3 * count);
        ASSERT_EQ(vlqStsOk, vlqsConvert_24s32s(reinterpret_cast<const Vlq8u*>(pages.begin()),
                                               wide.data(), len));
        ASSERT_TRUE(same(wide, std::vector<Vlq32s>(count, 0x5A5A5A)));
    }
}

}  // namespace
