// Conversions of integers to integers.
#include "convert/integer_ref.h"

#include <climits>

#include "harness/sweep.h"
#include "vlqs/convert.h"

namespace {

using namespace vlqtest;

template <class From, class To, class Call, class Ref>
void checkElements(Call call, Ref ref) {
    sweep(sizeof(To), {5003}, [&](Case& c) {
        const auto a = extremeVector<From>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<To> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i]);
        const Buffer<From> src(a, c.place[1]);
        Buffer<To> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
}

// Every value of up to 16 bits; of wider types values about each power of two and random ones.
template <class T>
std::vector<T> thoroughValues() {
    std::vector<T> values;
    if constexpr (sizeof(T) <= 2) {
        for (int i = 0; i < 1 << (8 * sizeof(T)); ++i) values.push_back(static_cast<T>(i));
    } else {
        Rng rng(seed());
        values = extremeVector<T>(4000, rng);
        // Magnitudes of every size.
        for (int i = 0; i < 4000; ++i)
            values.push_back(static_cast<T>(extremeValue<T>(rng) >> (rng() % (8 * sizeof(T)))));
        for (int bit = 0; bit < std::numeric_limits<T>::digits; ++bit) {
            const T power = static_cast<T>(T{1} << bit);
            for (T v :
                 {power, static_cast<T>(power - 1), static_cast<T>(power | 1),
                  static_cast<T>(power | power >> 1), static_cast<T>((power | power >> 1) - 1),
                  static_cast<T>(power | power >> 1 | 1), static_cast<T>(power | power >> 2),
                  static_cast<T>(power | power >> 1 | power >> 2)}) {
                values.push_back(v);
                values.push_back(static_cast<T>(-v));
                values.push_back(static_cast<T>(~v));
            }
        }
    }
    return values;
}

template <class From, class To, class Call>
void checkChecks(Call call) {
    const From src[4] = {};
    Buffer<To> dst(4);
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, dst.data(), 0));
    EXPECT_EQ(vlqStsNullPtr, call(src, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, call(src, dst.data(), 0));
    EXPECT_TRUE(dst.untouched());
}

template <class From, class To, class Call>
void checkPlain(Call call) {
    auto ref = [](From v) { return convertRef<To>(v); };
    checkElements<From, To>(call, ref);
    const auto values = thoroughValues<From>();
    std::vector<To> got(values.size());
    ASSERT_EQ(vlqStsOk, call(values.data(), got.data(), static_cast<int>(values.size())));
    for (std::size_t i = 0; i < values.size(); ++i) ASSERT_EQ(ref(values[i]), got[i]) << +values[i];
    checkChecks<From, To>(call);
}

// ref(element, mode, scaleFactor)
template <class From, class To, class Call, class Ref>
void checkScaled(Call call, Ref ref, std::initializer_list<int> modes) {
    std::vector<int> scaleFactors = {INT_MIN, INT_MIN + 1, -100, 100, INT_MAX};
    for (int s = -70; s <= 70; ++s) scaleFactors.push_back(s);
    const auto values = thoroughValues<From>();
    std::vector<To> got(values.size());
    for (int mode : modes) {
        for (int s : scaleFactors) {
            ASSERT_EQ(vlqStsOk,
                      call(values.data(), got.data(), static_cast<int>(values.size()), mode, s));
            for (std::size_t i = 0; i < values.size(); ++i) {
                ASSERT_EQ(ref(values[i], mode, s), got[i])
                    << +values[i] << ", mode " << mode << ", scale factor " << s;
            }
        }
        for (int s : {-3, 0, 5, 16}) {
            checkElements<From, To>(
                [&](const From* src, To* dst, int len) { return call(src, dst, len, mode, s); },
                [&](From v) { return ref(v, mode, s); });
        }
    }
    checkChecks<From, To>(
        [&](const From* src, To* dst, int len) { return call(src, dst, len, 0, 1); });
}

TEST(ConvertInteger, Widen8s16s) { checkPlain<Vlq8s, Vlq16s>(vlqsConvert_8s16s); }
TEST(ConvertInteger, Widen16s32s) { checkPlain<Vlq16s, Vlq32s>(vlqsConvert_16s32s); }
TEST(ConvertInteger, Narrow32s16s) { checkPlain<Vlq32s, Vlq16s>(vlqsConvert_32s16s); }

TEST(ConvertInteger, Scaled32s16s) {
    auto call = [](const Vlq32s* src, Vlq16s* dst, int len, int, int s) {
        return vlqsConvert_32s16s_Sfs(src, dst, len, s);
    };
    // Factors above 31 count as 31: the largest values still round to 1 and -1.
    auto ref = [](Vlq32s v, int, int s) { return convertRef<Vlq16s>(v, std::min(s, 31)); };
    checkScaled<Vlq32s, Vlq16s>(call, ref, {1});
}
TEST(ConvertInteger, Scaled16s8s) {
    auto call = [](const Vlq16s* src, Vlq8s* dst, int len, int mode, int s) {
        return vlqsConvert_16s8s_Sfs(src, dst, static_cast<Vlq32u>(len), mode, s);
    };
    auto ref = [](Vlq16s v, int mode, int s) { return convertRef<Vlq8s>(v, s, mode); };
    checkScaled<Vlq16s, Vlq8s>(call, ref, {0, 1, 2, 3, -1});
}
TEST(ConvertInteger, Scaled64s32s) {
    auto call = [](const Vlq64s* src, Vlq32s* dst, int len, int mode, int s) {
        return vlqsConvert_64s32s_Sfs(src, dst, len, mode, s);
    };
    auto ref = [](Vlq64s v, int mode, int s) {
        return convertRef<Vlq32s>(v, std::min(s, 63), mode);
    };
    checkScaled<Vlq64s, Vlq32s>(call, ref, {0, 1, 2, 3, -1});
}

TEST(ConvertInteger, Edges) {
    const Vlq32s wide[] = {INT_MAX, INT_MIN, 1, -1};
    Vlq16s narrow[4];
    ASSERT_EQ(vlqStsOk, vlqsConvert_32s16s_Sfs(wide, narrow, 4, 40));
    EXPECT_EQ(1, narrow[0]);
    EXPECT_EQ(-1, narrow[1]);
    ASSERT_EQ(vlqStsOk, vlqsConvert_32s16s_Sfs(wide, narrow, 4, INT_MIN));
    EXPECT_EQ(32767, narrow[2]);
    EXPECT_EQ(-32768, narrow[3]);
    const Vlq16s zero[] = {0, 0};
    Vlq8s bytes[2];
    for (int s : {INT_MIN, -7, -6, 0, 6, 16, INT_MAX}) {
        ASSERT_EQ(vlqStsOk, vlqsConvert_16s8s_Sfs(zero, bytes, 2, 2, s));
        EXPECT_EQ(0, bytes[0]);
    }
}

// The vector that is read may be the one that is written.
TEST(ConvertInteger, NarrowingInPlace) {
    Rng rng(seed());
    for (int len : {1, 7, 64, 1000}) {
        const auto a = extremeVector<Vlq32s>(static_cast<std::size_t>(len), rng);
        std::vector<Vlq16s> want(a.size()), got(a.size());
        ASSERT_EQ(vlqStsOk, vlqsConvert_32s16s_Sfs(a.data(), want.data(), len, 3));
        auto shared = a;
        ASSERT_EQ(vlqStsOk, vlqsConvert_32s16s_Sfs(
                                shared.data(), reinterpret_cast<Vlq16s*>(shared.data()), len, 3));
        std::memcpy(got.data(), shared.data(), got.size() * sizeof(Vlq16s));
        EXPECT_EQ(want, got);
    }
}

}  // namespace
