// Conversions to and from half-precision numbers.
#include "convert/half_ref.h"

#include <xmmintrin.h>

#include <bit>
#include <climits>

#include "convert/floating_ref.h"
#include "harness/sweep.h"
#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

constexpr unsigned kControlWords[] = {0x1F80, 0x3F80, 0x5F80, 0x7F80, 0x9FC0, 0xFFC0};
struct ControlWord {
    explicit ControlWord(unsigned word) : saved(_mm_getcsr()) { _mm_setcsr(word); }
    ~ControlWord() { _mm_setcsr(saved); }
    unsigned saved;
};

template <class T>
std::vector<T> all16() {
    std::vector<T> values(65536);
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = static_cast<T>(i);
    return values;
}

TEST(Half, EveryHalfToFloat) {
    const auto halves = all16<Vlq16f>();
    for (const unsigned word : kControlWords) {
        std::vector<std::uint32_t> got(65536);
        {
            const ControlWord set(word);
            vlqsConvert_16f32f(halves.data(), reinterpret_cast<Vlq32f*>(got.data()), 65536);
        }
        for (std::size_t i = 0; i < got.size(); ++i)
            ASSERT_EQ(halfToFloatBits(halves[i]), got[i]) << std::hex << i;
    }
}

TEST(Half, FloatsToHalves) {
    Rng rng(seed());
    std::vector<float> values;
    // All exponents, with fractions at, beside and between the ties of both kinds of halves.
    for (std::uint32_t exponent = 0; exponent < 256; ++exponent) {
        for (int i = 0; i < 400; ++i) {
            std::uint32_t fraction = static_cast<std::uint32_t>(rng()) & 0x7FFFFF;
            const int cut = static_cast<int>(rng() % 24);
            if (i % 4 != 0)
                fraction = (fraction >> cut << cut) + static_cast<std::uint32_t>(i % 4 - 2);
            if (i % 8 == 7) fraction = (fraction | 0x7FFFFFu >> (rng() % 23)) & 0x7FFFFF;
            for (const std::uint32_t sign : {0u, 0x80000000u}) {
                values.push_back(
                    std::bit_cast<float>(sign | exponent << 23 | (fraction & 0x7FFFFF)));
            }
        }
    }
    // Every half, its upper neighbour, their middle and the floats beside these three.
    for (std::uint32_t half = 0; half < 0x7C00; ++half) {
        const float low = static_cast<float>(halfValue(static_cast<Vlq16f>(half)));
        const float high = half == 0x7BFF
                               ? 65536.0f
                               : static_cast<float>(halfValue(static_cast<Vlq16f>(half + 1)));
        const float middle = low + (high - low) / 2;
        for (float v : {low, middle}) {
            for (float w : {v, std::nextafter(v, -1.0f), std::nextafter(v, INFINITY)}) {
                values.push_back(w);
                values.push_back(-w);
            }
        }
    }
    for (float v : {65504.0f, 65519.996f, 65520.0f, 65535.0f, 65536.0f, 1e38f, INFINITY,
                    2.98023224e-8f, 2.98023259e-8f, 0x1p-149f}) {
        values.push_back(v);
        values.push_back(-v);
    }
    for (const int mode : {0, 1}) {
        std::vector<Vlq16f> want(values.size());
        for (std::size_t i = 0; i < values.size(); ++i) want[i] = floatToHalfRef(values[i], mode);
        for (const unsigned word : kControlWords) {
            std::vector<Vlq16f> got(values.size());
            {
                const ControlWord set(word);
                vlqsConvert_32f16f(values.data(), got.data(), static_cast<int>(values.size()),
                                   mode);
            }
            for (std::size_t i = 0; i < values.size(); ++i) {
                ASSERT_EQ(want[i], got[i]) << std::hexfloat << values[i] << ", mode " << mode
                                           << ", control word " << std::hex << word;
            }
        }
    }
}

TEST(Half, NotANumberKeepsItsPayload) {
    const std::uint32_t bits[] = {0x7FC00000, 0xFFC00000, 0x7F800001,
                                  0x7F802000, 0xFFBFFFFF, 0x7FFFFFFF};
    const Vlq16f want[] = {0x7E00, 0xFE00, 0x7E00, 0x7E01, 0xFFFF, 0x7FFF};
    for (const int mode : {0, 1}) {
        Vlq16f got[6];
        ASSERT_EQ(vlqStsOk,
                  vlqsConvert_32f16f(reinterpret_cast<const Vlq32f*>(bits), got, 6, mode));
        for (int i = 0; i < 6; ++i) EXPECT_EQ(want[i], got[i]) << i;
    }
}

TEST(Half, EveryIntegerToHalf) {
    const auto values = all16<Vlq16s>();
    for (const int mode : {0, 1}) {
        for (const unsigned word : kControlWords) {
            std::vector<Vlq16f> got(65536);
            {
                const ControlWord set(word);
                vlqsConvert_16s16f(values.data(), got.data(), 65536, mode);
            }
            for (std::size_t i = 0; i < got.size(); ++i)
                ASSERT_EQ(floatToHalfRef(values[i], mode), got[i])
                    << values[i] << ", mode " << mode;
        }
    }
}

TEST(Half, EveryHalfToInteger) {
    const auto halves = all16<Vlq16f>();
    for (const int mode : {0, 1}) {
        for (const int scaleFactor :
             {0,   1,   -1,  3,   -3,  11,  -11, -24,  -39,  -40,  30,      -100,
              100, 125, 126, 127, 128, 149, 150, -126, -127, -128, INT_MAX, INT_MIN}) {
            std::vector<Vlq16s> want(65536);
            for (std::size_t i = 0; i < want.size(); ++i) {
                want[i] = toIntegerRef<Vlq16s>(static_cast<float>(halfValue(halves[i])), mode,
                                               scaleFactor);
            }
            for (const unsigned word : kControlWords) {
                std::vector<Vlq16s> got(65536);
                {
                    const ControlWord set(word);
                    vlqsConvert_16f16s_Sfs(halves.data(), got.data(), 65536, mode, scaleFactor);
                }
                for (std::size_t i = 0; i < got.size(); ++i) {
                    ASSERT_EQ(want[i], got[i]) << std::hex << i << std::dec << ", mode " << mode
                                               << ", scale factor " << scaleFactor;
                }
            }
        }
    }
}

template <class From, class To, class Call, class Ref>
void checkShapes(Call call, Ref ref) {
    sweep(2, {5003}, [&](Case& c) {
        const auto a = extremeVector<From>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<To> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i]);
        const Buffer<From> src(a, c.place[1]);
        Buffer<To> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
}

TEST(Half, Shapes) {
    checkShapes<Vlq16f, Vlq32f>(vlqsConvert_16f32f,
                                [](Vlq16f v) { return std::bit_cast<float>(halfToFloatBits(v)); });
    for (const int mode : {0, 1}) {
        checkShapes<Vlq32f, Vlq16f>(
            [=](const Vlq32f* s, Vlq16f* d, int n) { return vlqsConvert_32f16f(s, d, n, mode); },
            [=](Vlq32f v) { return floatToHalfRef(v, mode); });
        checkShapes<Vlq16s, Vlq16f>(
            [=](const Vlq16s* s, Vlq16f* d, int n) { return vlqsConvert_16s16f(s, d, n, mode); },
            [=](Vlq16s v) { return floatToHalfRef(v, mode); });
        for (const int s : {0, 2}) {
            checkShapes<Vlq16f, Vlq16s>(
                [=](const Vlq16f* src, Vlq16s* d, int n) {
                    return vlqsConvert_16f16s_Sfs(src, d, n, mode, s);
                },
                [=](Vlq16f v) {
                    return toIntegerRef<Vlq16s>(static_cast<float>(halfValue(v)), mode, s);
                });
        }
    }
}

TEST(Half, Checks) {
    const Vlq32f floats[4] = {1, 2, 3, 4};
    const Vlq16s integers[4] = {1, 2, 3, 4};
    const Vlq16f halves[4] = {1, 2, 3, 4};
    Buffer<Vlq16f> dst(4);
    Buffer<Vlq16s> dst16s(4);
    Buffer<Vlq32f> dst32f(4);
    EXPECT_EQ(vlqStsNullPtr, vlqsConvert_16f32f(nullptr, dst32f.data(), 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsConvert_16f32f(halves, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsConvert_16f32f(halves, dst32f.data(), 0));
    for (const int mode : {2, 3, -1, INT_MIN}) {
        EXPECT_EQ(vlqStsBadRoundMode, vlqsConvert_32f16f(floats, dst.data(), 4, mode));
        EXPECT_EQ(vlqStsBadRoundMode, vlqsConvert_16s16f(integers, dst.data(), 4, mode));
        EXPECT_EQ(vlqStsBadRoundMode, vlqsConvert_16f16s_Sfs(halves, dst16s.data(), 4, mode, 0));
        EXPECT_EQ(vlqStsNullPtr, vlqsConvert_32f16f(nullptr, dst.data(), 4, mode));
        EXPECT_EQ(vlqStsNullPtr, vlqsConvert_32f16f(floats, nullptr, 4, mode));
        EXPECT_EQ(vlqStsNullPtr, vlqsConvert_16s16f(nullptr, dst.data(), 0, mode));
        EXPECT_EQ(vlqStsNullPtr, vlqsConvert_16f16s_Sfs(halves, nullptr, 0, mode, 0));
        EXPECT_EQ(vlqStsBadSize, vlqsConvert_32f16f(floats, dst.data(), 0, mode));
        EXPECT_EQ(vlqStsBadSize, vlqsConvert_16s16f(integers, dst.data(), -1, mode));
        EXPECT_EQ(vlqStsBadSize, vlqsConvert_16f16s_Sfs(halves, dst16s.data(), 0, mode, 0));
    }
    EXPECT_TRUE(dst.untouched());
    EXPECT_TRUE(dst16s.untouched());
    EXPECT_TRUE(dst32f.untouched());
}

}  // namespace
