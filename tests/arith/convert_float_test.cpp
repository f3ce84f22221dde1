#include "arith/convert_float_ref.h"

#include <xmmintrin.h>

#include <bit>
#include <cfenv>
#include <climits>

#include "harness/sweep.h"
#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

constexpr int kModes[] = {0, 1, 2, 3, -1, INT_MAX, INT_MIN};

// The factor's regimes for floats of either width: ordinary, largest, subnormal, zero, infinite.
const std::vector<int> kScaleFactors = {
    0, 1, -1, 2, 7, 8, 15, 16, 17, 31, 32, 33, -7, -8, -15, -16, -31, -32, 100, -100,
    124, 125, 126, 127, 128, 148, 149, 150, 151, -124, -125, -126, -127, -128, -129,
    1021, 1022, 1023, 1024, 1073, 1074, 1075, -1020, -1021, -1022, -1023, -1024, -1025, INT_MAX, INT_MIN, INT_MIN + 1};

// The caller's control word for the length of a scope.
struct ControlWord {
    explicit ControlWord(unsigned word) : saved(_mm_getcsr()) { _mm_setcsr(word); }
    ~ControlWord() { _mm_setcsr(saved); }
    unsigned saved;
};
constexpr unsigned kRoundDown = 0x3F80, kRoundUp = 0x5F80, kRoundZero = 0x7F80, kFlush = 0x9FC0;
constexpr unsigned kControlWords[] = {kRoundDown, kRoundUp, kRoundZero, kFlush, kRoundUp | kFlush};

// Values about every power of two: where fractions end and where integer ranges do.
template <class T>
std::vector<T> awkwardFloats(Rng& rng) {
    std::vector<T> values;
    using Limits = std::numeric_limits<T>;
    for (int e = Limits::min_exponent - Limits::digits; e <= Limits::max_exponent; ++e) {
        const T power = std::ldexp(T(1), e - 1);
        for (T v : {power, std::nextafter(power, T(0)), std::nextafter(power, Limits::infinity()), power * T(1.5),
                    power + T(0.5), power - T(0.5), power + T(1.5), power - T(1.5)}) {
            values.push_back(v);
            values.push_back(-v);
        }
    }
    for (int i = -70000; i < 70000; ++i) values.push_back(static_cast<T>(i) / 2);
    for (double edge : {127.0, 128.0, 255.0, 32767.0, 32768.0, 65535.0, 2147483647.0, 2147483648.0, 9223372036854775807.0}) {
        for (double d : {-1.5, -1.0, -0.5, -0.25, 0.0, 0.25, 0.5, 1.0, 1.5}) {
            const T v = static_cast<T>(edge + d);
            for (T near : {v, std::nextafter(v, T(0)), std::nextafter(v, Limits::infinity())}) {
                values.push_back(near);
                values.push_back(-near);
            }
        }
    }
    for (T v : extremeVector<T>(20000, rng)) values.push_back(v);
    for (T v : {T(0), -T(0), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), -Limits::quiet_NaN(),
                Limits::signaling_NaN(), Limits::denorm_min(), -Limits::denorm_min()}) values.push_back(v);
    return values;
}

template <class From, class To, class Call>
void checkToInteger(Call call) {
    sweep(sizeof(To), {5003}, [&](Case& c) {
        const auto a = extremeVector<From>(static_cast<std::size_t>(c.len), c.rng);
        const int mode = kModes[c.rng() % std::size(kModes)];
        const int scaleFactor = c.rng() % 3 == 0 ? 0 : kScaleFactors[c.rng() % kScaleFactors.size()];
        std::vector<To> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = toIntegerRef<To>(a[i], mode, scaleFactor);
        const Buffer<From> src(a, c.place[1]);
        Buffer<To> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len, mode, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "mode " << mode << ", scale factor " << scaleFactor;
    });

    Rng rng(seed());
    const auto a = awkwardFloats<From>(rng);
    const auto few = extremeVector<From>(2000, rng);
    std::vector<To> got(a.size());
    for (int mode : {0, 1, 2}) {
        for (int scaleFactor : kScaleFactors) {
            const auto& values = std::abs(std::int64_t{scaleFactor}) < 3 ? a : few;
            for (std::size_t word = 0; word <= std::size(kControlWords); ++word) {
                {
                    const ControlWord set(word == 0 ? _mm_getcsr() : kControlWords[word - 1]);
                    const unsigned before = _mm_getcsr();
                    ASSERT_EQ(vlqStsOk, call(values.data(), got.data(), static_cast<int>(values.size()), mode, scaleFactor));
                    ASSERT_EQ(before & ~0x3Fu, _mm_getcsr() & ~0x3Fu);
                }
                for (std::size_t i = 0; i < values.size(); ++i) {
                    ASSERT_EQ(toIntegerRef<To>(values[i], mode, scaleFactor), got[i])
                        << values[i] << ", mode " << mode << ", scale factor " << scaleFactor << ", control word " << word;
                }
            }
        }
    }

    From src[4] = {1, 2, 3, 4};
    Buffer<To> dst(4);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, dst.data(), 0, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, call(src, nullptr, 0, 0, 0));
    EXPECT_EQ(vlqStsBadSize, call(src, dst.data(), 0, 0, 0));
    EXPECT_EQ(vlqStsBadSize, call(src, dst.data(), -1, 0, 0));
    EXPECT_TRUE(dst.untouched());
}

TEST(FloatToInteger, Float8s) { checkToInteger<Vlq32f, Vlq8s>(vlqsConvert_32f8s_Sfs); }
TEST(FloatToInteger, Float8u) { checkToInteger<Vlq32f, Vlq8u>(vlqsConvert_32f8u_Sfs); }
TEST(FloatToInteger, Float16s) { checkToInteger<Vlq32f, Vlq16s>(vlqsConvert_32f16s_Sfs); }
TEST(FloatToInteger, Float16u) { checkToInteger<Vlq32f, Vlq16u>(vlqsConvert_32f16u_Sfs); }
TEST(FloatToInteger, Float32s) { checkToInteger<Vlq32f, Vlq32s>(vlqsConvert_32f32s_Sfs); }
TEST(FloatToInteger, Double16s) { checkToInteger<Vlq64f, Vlq16s>(vlqsConvert_64f16s_Sfs); }
TEST(FloatToInteger, Double32s) { checkToInteger<Vlq64f, Vlq32s>(vlqsConvert_64f32s_Sfs); }

Vlq16s one16s(float value, int mode, int scaleFactor = 0) {
    Vlq16s result = 77;
    EXPECT_EQ(vlqStsOk, vlqsConvert_32f16s_Sfs(&value, &result, 1, mode, scaleFactor));
    return result;
}

TEST(FloatToInteger, Edges) {
    for (int mode : {0, 1, 2}) {
        EXPECT_EQ(32767, one16s(NAN, mode));
        EXPECT_EQ(32767, one16s(-NAN, mode));
        EXPECT_EQ(-32768, one16s(-1e30f, mode));
        EXPECT_EQ(32767, one16s(1e30f, mode));
        EXPECT_EQ(0, one16s(0.49999997f, mode));
        EXPECT_EQ(0, one16s(-0.49999997f, mode));
        EXPECT_EQ(32767, one16s(0.0f, mode, -128)) << "zero times infinity";
        EXPECT_EQ(0, one16s(1e38f, mode, 150));
        EXPECT_EQ(32767, one16s(1e-45f, mode, INT_MIN));
        EXPECT_EQ(0, one16s(1e38f, mode, INT_MAX));
    }
    for (int mode : {2, 3, -1}) {
        EXPECT_EQ(3, one16s(2.5f, mode));
        EXPECT_EQ(-3, one16s(-2.5f, mode));
    }
    EXPECT_EQ(2, one16s(2.5f, 1));
    EXPECT_EQ(2, one16s(2.5f, 0));
    EXPECT_EQ(-2, one16s(-2.9f, 0));
    EXPECT_EQ(1, one16s(0.5f, 2));
    EXPECT_EQ(3, one16s(10.0f, 2, 2));
    EXPECT_EQ(2, one16s(10.0f, 1, 2));
}

template <class From, class To, class Call>
void checkToFloat(Call call) {
    sweep(sizeof(From), {5003}, [&](Case& c) {
        const auto a = extremeVector<From>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<To> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = static_cast<To>(a[i]);
        const Buffer<From> src(a, c.place[1]);
        Buffer<To> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    if constexpr (sizeof(From) <= 2) {
        std::vector<From> all(std::size_t{1} << (8 * sizeof(From)));
        for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<From>(i);
        for (const unsigned word : kControlWords) {
            std::vector<To> got(all.size());
            {
                const ControlWord set(word);
                ASSERT_EQ(vlqStsOk, call(all.data(), got.data(), static_cast<int>(all.size())));
            }
            for (std::size_t i = 0; i < all.size(); ++i) {
                const To want = static_cast<To>(all[i]);
                ASSERT_EQ(0, std::memcmp(&want, &got[i], sizeof want)) << i;
            }
        }
    }
    From src[4] = {1, 2, 3, 4};
    Buffer<To> dst(4);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, dst.data(), 0));
    EXPECT_EQ(vlqStsNullPtr, call(src, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(src, dst.data(), 0));
    EXPECT_TRUE(dst.untouched());
}

TEST(ToFloat, From8s) { checkToFloat<Vlq8s, Vlq32f>(vlqsConvert_8s32f); }
TEST(ToFloat, From8u) { checkToFloat<Vlq8u, Vlq32f>(vlqsConvert_8u32f); }
TEST(ToFloat, From16s) { checkToFloat<Vlq16s, Vlq32f>(vlqsConvert_16s32f); }
TEST(ToFloat, From16u) { checkToFloat<Vlq16u, Vlq32f>(vlqsConvert_16u32f); }
TEST(ToFloat, From32s) { checkToFloat<Vlq32s, Vlq32f>(vlqsConvert_32s32f); }

}  // namespace
