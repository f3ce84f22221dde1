// Conversions between integers and floats, and between floats, in every state of the control
// register.
#include "convert/floating_ref.h"

#include <xmmintrin.h>

#include <bit>
#include <cfenv>
#include <climits>

#include "harness/sweep.h"
#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

constexpr int kModes[] = {0, 1, 2, 3, -1, INT_MAX, INT_MIN};

// For floats of either width: factors that are ordinary, largest, subnormal, zero, infinite.
const std::vector<int> kScaleFactors = {
    0,    1,    -1,   2,     7,     8,     15,    16,    17,    31,      32,      33,         -7,
    -8,   -15,  -16,  -31,   -32,   100,   -100,  124,   125,   126,     127,     128,        148,
    149,  150,  151,  -124,  -125,  -126,  -127,  -128,  -129,  1021,    1022,    1023,       1024,
    1073, 1074, 1075, -1020, -1021, -1022, -1023, -1024, -1025, INT_MAX, INT_MIN, INT_MIN + 1};

// A value of the control register for the length of a scope.
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
        for (T v :
             {power, std::nextafter(power, T(0)), std::nextafter(power, Limits::infinity()),
              power * T(1.5), power + T(0.5), power - T(0.5), power + T(1.5), power - T(1.5)}) {
            values.push_back(v);
            values.push_back(-v);
        }
    }
    for (int i = -70000; i < 70000; ++i) values.push_back(static_cast<T>(i) / 2);
    for (double edge : {127.0, 128.0, 255.0, 32767.0, 32768.0, 65535.0, 2147483647.0, 2147483648.0,
                        9223372036854775807.0}) {
        for (double d : {-1.5, -1.0, -0.5, -0.25, 0.0, 0.25, 0.5, 1.0, 1.5}) {
            const T v = static_cast<T>(edge + d);
            for (T near : {v, std::nextafter(v, T(0)), std::nextafter(v, Limits::infinity())}) {
                values.push_back(near);
                values.push_back(-near);
            }
        }
    }
    for (T v : extremeVector<T>(20000, rng)) values.push_back(v);
    for (T v : {T(0), -T(0), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(),
                -Limits::quiet_NaN(), Limits::signaling_NaN(), Limits::denorm_min(),
                -Limits::denorm_min()})
        values.push_back(v);
    return values;
}

template <class From, class To, class Call>
void checkToInteger(Call call) {
    sweep(sizeof(To), {5003}, [&](Case& c) {
        const auto a = extremeVector<From>(static_cast<std::size_t>(c.len), c.rng);
        const int mode = kModes[c.rng() % std::size(kModes)];
        const int scaleFactor =
            c.rng() % 3 == 0 ? 0 : kScaleFactors[c.rng() % kScaleFactors.size()];
        std::vector<To> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i)
            want[i] = toIntegerRef<To>(a[i], mode, scaleFactor);
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
            std::vector<To> want(values.size());
            for (std::size_t i = 0; i < values.size(); ++i)
                want[i] = toIntegerRef<To>(values[i], mode, scaleFactor);
            for (std::size_t word = 0; word <= std::size(kControlWords); ++word) {
                {
                    const ControlWord set(word == 0 ? _mm_getcsr() : kControlWords[word - 1]);
                    const unsigned before = _mm_getcsr();
                    ASSERT_EQ(vlqStsOk, call(values.data(), got.data(),
                                             static_cast<int>(values.size()), mode, scaleFactor));
                    ASSERT_EQ(before & ~0x3Fu, _mm_getcsr() & ~0x3Fu);
                }
                for (std::size_t i = 0; i < values.size(); ++i) {
                    ASSERT_EQ(want[i], got[i])
                        << values[i] << ", mode " << mode << ", scale factor " << scaleFactor
                        << ", control word " << word;
                }
            }
        }
    }

    From src[4] = {1, 2, 3, 4};
    Buffer<To> dst(4);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, dst.data(), 0, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, call(src, nullptr, 0, 0, 0));
    EXPECT_EQ(vlqStsBadSize, call(src, dst.data(), 0, 0, 0));
    if (sizeof(To) < 8) { EXPECT_EQ(vlqStsBadSize, call(src, dst.data(), -1, 0, 0)); }
    EXPECT_TRUE(dst.untouched());
}

TEST(FloatToInteger, Float8s) { checkToInteger<Vlq32f, Vlq8s>(vlqsConvert_32f8s_Sfs); }
TEST(FloatToInteger, Float8u) { checkToInteger<Vlq32f, Vlq8u>(vlqsConvert_32f8u_Sfs); }
TEST(FloatToInteger, Float16s) { checkToInteger<Vlq32f, Vlq16s>(vlqsConvert_32f16s_Sfs); }
TEST(FloatToInteger, Float16u) { checkToInteger<Vlq32f, Vlq16u>(vlqsConvert_32f16u_Sfs); }
TEST(FloatToInteger, Float32s) { checkToInteger<Vlq32f, Vlq32s>(vlqsConvert_32f32s_Sfs); }
TEST(FloatToInteger, Double16s) { checkToInteger<Vlq64f, Vlq16s>(vlqsConvert_64f16s_Sfs); }
TEST(FloatToInteger, Double32s) { checkToInteger<Vlq64f, Vlq32s>(vlqsConvert_64f32s_Sfs); }
TEST(FloatToInteger, Double64s) { checkToInteger<Vlq64f, Vlq64s>(vlqsConvert_64f64s_Sfs); }

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

TEST(FloatToInteger, NotANumberAs64s) {
    const double value = NAN;
    std::uint32_t words[2] = {7, 7};
    ASSERT_EQ(vlqStsOk, vlqsConvert_64f64s_Sfs(&value, reinterpret_cast<Vlq64s*>(words), 1, 1, 0));
    EXPECT_EQ(0u, words[0]);
    EXPECT_EQ(0x80000000u, words[1]);
}

// call(src, dst, len) against ref(element), under each control word. Where the result depends on
// it, the reference is computed under it too.
template <class From, class To, class Call, class Ref>
void checkElements(Call call, Ref ref, bool followsControlWord) {
    sweep(sizeof(From), {5003}, [&](Case& c) {
        const auto a = extremeVector<From>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<To> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i]);
        const Buffer<From> src(a, c.place[1]);
        Buffer<To> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });

    Rng rng(seed());
    std::vector<From> values;
    if constexpr (sizeof(From) <= 2) {
        for (int i = 0; i < 1 << (8 * sizeof(From)); ++i) values.push_back(static_cast<From>(i));
    } else if constexpr (std::is_floating_point_v<From>) {
        values = awkwardFloats<From>(rng);
    } else {
        values = extremeVector<From>(100000, rng);
        for (int bit = 0; bit < std::numeric_limits<From>::digits; ++bit) {
            for (int d = -3; d <= 3; ++d) {
                const From power = static_cast<From>(From{1} << bit);
                values.push_back(static_cast<From>(power - 3 + d));
                values.push_back(static_cast<From>(-(power - 3) + d));
                values.push_back(
                    static_cast<From>(power + static_cast<From>(rng() % 4096) * (power >> 12)));
            }
        }
    }
    std::vector<To> got(values.size()), want(values.size());
    for (std::size_t word = 0; word <= std::size(kControlWords); ++word) {
        const unsigned standard = _mm_getcsr(),
                       set = word == 0 ? standard : kControlWords[word - 1];
        VlqStatus status;
        {
            const ControlWord hold(set);
            const unsigned before = _mm_getcsr();
            status = call(values.data(), got.data(), static_cast<int>(values.size()));
            ASSERT_EQ(before & ~0x3Fu, _mm_getcsr() & ~0x3Fu);
        }
        ASSERT_EQ(vlqStsOk, status);
        if (word == 0 || followsControlWord) {
            const ControlWord hold(set);
            for (std::size_t i = 0; i < values.size(); ++i) want[i] = ref(values[i]);
        }
        for (std::size_t i = 0; i < values.size(); ++i) {
            ASSERT_EQ(0, std::memcmp(&want[i], &got[i], sizeof(To)))
                << +values[i] << ": " << +got[i] << ", expected " << +want[i] << ", control word "
                << word;
        }
    }

    From src[4] = {1, 2, 3, 4};
    Buffer<To> dst(4);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, dst.data(), 0));
    EXPECT_EQ(vlqStsNullPtr, call(src, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(src, dst.data(), 0));
    EXPECT_TRUE(dst.untouched());
}

template <class From, class To, class Call>
void checkCast(Call call, bool followsControlWord = false) {
    // Through memory: the conversion stays where the control word is set.
    auto cast = [](From v) {
        volatile From held = v;
        return static_cast<To>(held);
    };
    checkElements<From, To>(call, cast, followsControlWord);
}

TEST(ToFloat, From8s) { checkCast<Vlq8s, Vlq32f>(vlqsConvert_8s32f); }
TEST(ToFloat, From8u) { checkCast<Vlq8u, Vlq32f>(vlqsConvert_8u32f); }
TEST(ToFloat, From16s) { checkCast<Vlq16s, Vlq32f>(vlqsConvert_16s32f); }
TEST(ToFloat, From16u) { checkCast<Vlq16u, Vlq32f>(vlqsConvert_16u32f); }
TEST(ToFloat, From32s) { checkCast<Vlq32s, Vlq32f>(vlqsConvert_32s32f, true); }
TEST(ToDouble, From32s) { checkCast<Vlq32s, Vlq64f>(vlqsConvert_32s64f); }
TEST(ToDouble, From64s) { checkCast<Vlq64s, Vlq64f>(vlqsConvert_64s64f, true); }
TEST(ToDouble, FromFloat) { checkCast<Vlq32f, Vlq64f>(vlqsConvert_32f64f); }
TEST(ToFloat, FromDouble) { checkCast<Vlq64f, Vlq32f>(vlqsConvert_64f32f, true); }

template <class From, class To, class Call>
void checkScaled(Call call, int lowest, int highest) {
    for (int scaleFactor : {0, 1, -1, 7, -7, 15, 31, -31, lowest, lowest + 1, lowest - 1, highest,
                            highest - 1, highest + 1, 126, -96, -97, INT_MAX, INT_MIN}) {
        auto scaled = [&](const From* src, To* dst, int len) {
            return call(src, dst, len, scaleFactor);
        };
        auto ref = [&](From v) {
            volatile From held = v;
            volatile To factor = std::ldexp(To(1), -std::clamp(scaleFactor, lowest, highest));
            return static_cast<To>(static_cast<To>(held) * factor);
        };
        checkElements<From, To>(scaled, ref, true);
        if (::testing::Test::HasFailure()) FAIL() << "scale factor " << scaleFactor;
    }
}

TEST(ScaledToFloat, From16s) { checkScaled<Vlq16s, Vlq32f>(vlqsConvert_16s32f_Sfs, -112, 126); }
TEST(ScaledToDouble, From16s) { checkScaled<Vlq16s, Vlq64f>(vlqsConvert_16s64f_Sfs, -1008, 1022); }
TEST(ScaledToFloat, From32s) { checkScaled<Vlq32s, Vlq32f>(vlqsConvert_32s32f_Sfs, -127, 126); }
TEST(ScaledToDouble, From32s) { checkScaled<Vlq32s, Vlq64f>(vlqsConvert_32s64f_Sfs, -1023, 1022); }

}  // namespace
