// Exponentials, logarithms and sums of logarithms.
#include "maths/explog_ref.h"

namespace {

using namespace vlqtest;

class ExpLog : public ::testing::Test {
protected:
    Rng rng{seed()};
};

// ---- e^x ----------------------------------------------------------------------------------------
template <class T>
void checkScaledExp(const Variants<T>& f, bool tiesUp) {
    // 0 and saturated beyond what the reference holds, at these scale factors.
    constexpr int range = 80, scales = 50;
    std::vector<Fixed> powers;
    for (int x = -range; x <= range; ++x) powers.push_back(expFixed(x));
    const Reference<T, T> ref{[&](T x, int scaleFactor) {
        if (x < -range) return T{0};
        if (x > range) return std::numeric_limits<T>::max();
        return expRef<T>(powers[static_cast<std::size_t>(x + range)], scaleFactor, tiesUp);
    }};
    std::vector<int> scaleFactor;
    for (int s = -scales; s <= scales; ++s) scaleFactor.push_back(s);
    std::vector<T> near;
    for (int x = -range - 3; x <= range + 3; ++x) near.push_back(static_cast<T>(x));
    for (const T edge : {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()})
        near.push_back(edge);
    checkValues<T, T>(f, ref, scaleFactor, near);
    checkSweep<T, T>(f, ref, scaleFactor, [](Rng& r) {
        return r() % 4 ? static_cast<T>(static_cast<int>(r() % 100) - 50) : extremeValue<T>(r);
    });
}

TEST_F(ExpLog, IntegerExponentials) {
    checkScaledExp<Vlq16s>({"Exp_16s", vlqsExp_16s_Sfs, vlqsExp_16s_ISfs}, true);
    checkScaledExp<Vlq32s>({"Exp_32s", vlqsExp_32s_Sfs, vlqsExp_32s_ISfs}, false);
    checkScaledExp<Vlq64s>({"Exp_64s", vlqsExp_64s_Sfs, vlqsExp_64s_ISfs}, false);
}

// Where the row of results lies far from 0, or outside the range of elements.
TEST_F(ExpLog, ExponentialsAtDistantScales) {
    const auto everything = everyValue<Vlq16s>();
    for (const int s : {-1000, 1000, -5000, 5000, -47000, 47000, -47272, -47280, -47290, -47296,
                        47240, 47250, 47260, 47274, 47280, 60000, -60000,
                        std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        std::vector<Vlq16s> dst(everything.size());
        ASSERT_EQ(vlqStsOk, vlqsExp_16s_Sfs(everything.data(), dst.data(),
                                            static_cast<Vlq32s>(dst.size()), s));
        for (std::size_t i = 0; i < dst.size(); ++i) {
            // In the exponent's units of ln(2), to which the difference is exact enough.
            const long double power = everything[i] - s * std::log(2.0L);
            const long double value = power > 20 ? 1e9L : std::exp(power);
            const long double want = std::min(32767.0L, std::floor(value + 0.5L));
            ASSERT_EQ(static_cast<Vlq16s>(want), dst[i]) << everything[i] << " at " << s;
        }
    }
    const Vlq64s x[] = {1487700000, 1488522000, 1488522236, 1488522240, 1488522270, 1488522290};
    Vlq64s y[6];
    ASSERT_EQ(vlqStsOk, vlqsExp_64s_Sfs(x, y, 6, std::numeric_limits<int>::max()));
    for (int i = 0; i < 6; ++i) {
        const long double want =
            std::exp(static_cast<long double>(x[i]) - 2147483647.0L * std::log(2.0L));
        if (want < 0.25L) {
            EXPECT_EQ(0, y[i]);
        } else if (want > 1e19L) {
            EXPECT_EQ(std::numeric_limits<Vlq64s>::max(), y[i]);
        } else {
            // Half a unit for the rounding, and what ln(2) times the scale factor leaves open.
            EXPECT_NEAR(0.0, static_cast<double>(static_cast<long double>(y[i]) - want),
                        static_cast<double>(0.5L + 1e-8L * want));
        }
    }
}

TEST_F(ExpLog, ExponentialsNamedByTheInterface) {
    const auto at = [](Vlq16s x, int s) {
        Vlq16s y = -1;
        EXPECT_EQ(vlqStsOk, vlqsExp_16s_Sfs(&x, &y, 1, s));
        return y;
    };
    EXPECT_EQ(32767, at(25, 0));
    EXPECT_EQ(0, at(-1, 0));
    EXPECT_EQ(0, at(-13, -1));
    EXPECT_EQ(1, at(0, 1));
    EXPECT_EQ(0, at(0, 2));
}

TEST_F(ExpLog, FloatExponentials) {
    const auto exact = [](long double x) { return std::exp(x); };
    checkFloatFunction<Vlq32f, Vlq32f>(
        {unscaled<Vlq32f, vlqsExp_32f, vlqsExp_32f_I>("Exp_32f"), exact, 1}, rng);
    checkFloatFunction<Vlq64f, Vlq64f>(
        {unscaled<Vlq64f, vlqsExp_64f, vlqsExp_64f_I>("Exp_64f"), exact, 1}, rng);
    checkFloatFunction<Vlq32f, Vlq64f>(
        {unscaled<Vlq32f, Vlq64f, vlqsExp_32f64f>("Exp_32f64f"), exact, 1}, rng);
}

// ---- logarithms ---------------------------------------------------------------------------------
template <class S>
VlqStatus lnStatus(const std::vector<S>& values) {
    for (const S v : values) {
        if (v == 0) return vlqStsWarnLnZero;
        if (v < 0) return vlqStsWarnLnNegative;
    }
    return vlqStsOk;
}

template <class S, class D>
void checkScaledLn(const Variants<S, D>& f, D (*element)(S, int), Rng& rng) {
    const Reference<S, D> ref{element, lnStatus<S>};
    const auto scales = scaleFactors(-36, 12);
    checkSweep<S, D>(f, ref, scales, anyMagnitude<S>);
    checkSweep<S, D>(f, ref, scales, [](Rng& r) {
        const S v = anyMagnitude<S>(r);
        return v > 0 ? v : S{1};
    });
    // Thresholds, powers of ten, and their neighbours.
    std::vector<S> values;
    const auto add = [&](long double around) {
        for (int offset = -2; offset <= 2; ++offset) {
            const long double v = std::floor(around) + offset;
            if (v >= 1 && v <= static_cast<long double>(std::numeric_limits<S>::max()))
                values.push_back(static_cast<S>(v));
        }
    };
    for (int k = 0; k <= 44; ++k) add(std::exp(k / 2.0L));
    for (int k = 0; k <= 200; ++k) add(std::pow(10.0L, k / 20.0L));
    for (int i = 0; i < 20000; ++i) {
        const S v = anyMagnitude<S>(rng);
        if (v > 0) values.push_back(v);
    }
    checkValues<S, D>(f, ref, scales, values);
    // One singular element of either kind somewhere, the other one behind it.
    for (const S first : {S{0}, S{-1}, std::numeric_limits<S>::min()}) {
        auto singular = values;
        const std::size_t at = rng() % (singular.size() - 1);
        singular[at] = first;
        singular[at + 1] = first == 0 ? S{-5} : S{0};
        checkValues<S, D>(f, ref, {0, 1, -1}, singular);
    }
}

TEST_F(ExpLog, IntegerLogarithms) {
    checkScaledLn<Vlq16s, Vlq16s>({"Ln_16s", vlqsLn_16s_Sfs, vlqsLn_16s_ISfs}, lnRef16s, rng);
    checkScaledLn<Vlq32s, Vlq32s>({"Ln_32s", vlqsLn_32s_Sfs, vlqsLn_32s_ISfs}, lnRef32s, rng);
    checkScaledLn<Vlq32s, Vlq16s>({"Ln_32s16s", vlqsLn_32s16s_Sfs, nullptr}, lnRef32s16s, rng);
    checkScaledLn<Vlq32s, Vlq32s>({"10Log10_32s", vlqs10Log10_32s_Sfs, vlqs10Log10_32s_ISfs},
                                  tenLog10Ref, rng);
}

TEST_F(ExpLog, EveryLogarithmOf16Bits) {
    const Variants<Vlq16s> f = {"Ln_16s", vlqsLn_16s_Sfs, vlqsLn_16s_ISfs};
    checkValues<Vlq16s, Vlq16s>(f, {lnRef16s, lnStatus<Vlq16s>}, scaleFactors(-3, 8),
                                everyValue<Vlq16s>());
}

TEST_F(ExpLog, LogarithmsNamedByTheInterface) {
    const auto at = [](Vlq32s x, VlqStatus status) {
        Vlq32s y = -1;
        EXPECT_EQ(status, vlqsLn_32s_Sfs(&x, &y, 1, 0));
        return y;
    };
    EXPECT_EQ(1, at(4, vlqStsOk));
    EXPECT_EQ(2, at(5, vlqStsOk));
    EXPECT_EQ(std::numeric_limits<Vlq32s>::min(), at(0, vlqStsWarnLnZero));
    EXPECT_EQ(std::numeric_limits<Vlq32s>::min(), at(-1, vlqStsWarnLnNegative));
    EXPECT_EQ(15, at(5389697, vlqStsOk));
    EXPECT_EQ(16, at(5389698, vlqStsOk));
    EXPECT_EQ(17, at(39824783, vlqStsOk));
    EXPECT_EQ(18, at(39824784, vlqStsOk));
}

template <class S, class D>
void checkLn(const Variants<S, D>& f, Rng& rng) {
    checkFloatFunction<S, D>({f, [](long double x) { return std::log(x); }, 1}, rng);
    // The first singular element decides, wherever it is; NaN is none.
    for (int len = 1; len < 300; len += 3) {
        std::vector<S> values(static_cast<std::size_t>(len));
        for (S& v : values) v = std::fabs(extremeValue<S>(rng)) + std::numeric_limits<S>::min();
        for (int singular = 0; singular < 3; ++singular) {
            const Buffer<S> src(values, {static_cast<int>(rng() % 64), false});
            Buffer<D> dst(values.size(), {static_cast<int>(rng() % 64), false});
            EXPECT_EQ(lnStatus(values), f.apply(src.data(), dst.data(), len, 0)) << len;
            const S kinds[] = {S(0),
                               S(-0.0),
                               S(-1),
                               -std::numeric_limits<S>::infinity(),
                               std::numeric_limits<S>::quiet_NaN(),
                               -std::numeric_limits<S>::denorm_min(),
                               std::numeric_limits<S>::denorm_min()};
            values[rng() % values.size()] = kinds[rng() % std::size(kinds)];
        }
    }
    S x[2] = {};
    D y[2] = {};
    EXPECT_EQ(vlqStsNullPtr, f.apply(nullptr, y, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, f.apply(x, nullptr, 0, 0));
    EXPECT_EQ(vlqStsBadSize, f.apply(x, y, 0, 0));
    EXPECT_EQ(vlqStsBadSize, f.apply(x, y, -1, 0));
}

TEST_F(ExpLog, FloatLogarithms) {
    checkLn(unscaled<Vlq32f, vlqsLn_32f, vlqsLn_32f_I>("Ln_32f"), rng);
    checkLn(unscaled<Vlq64f, vlqsLn_64f, vlqsLn_64f_I>("Ln_64f"), rng);
    checkLn(unscaled<Vlq64f, Vlq32f, vlqsLn_64f32f>("Ln_64f32f"), rng);
}

// ---- sums of logarithms -------------------------------------------------------------------------
template <class S, class D>
void checkSum(VlqStatus (*sumLn)(const S*, Vlq32s, D*), Rng& rng) {
    std::vector<int> lengths;
    for (int len = 1; len < 140; ++len) lengths.push_back(len);
    for (const int len : {511, 512, 513, 1023, 1024, 1025, 5003}) lengths.push_back(len);
    for (const int len : lengths) {
        std::vector<S> values(static_cast<std::size_t>(len));
        for (S& v : values) {
            if constexpr (std::is_integral_v<S>)
                v = static_cast<S>(1 + rng() % 32767);
            else
                v = rng() % 16
                        ? static_cast<S>(std::exp2(static_cast<double>(rng() % 2000) / 10 - 100))
                        : std::numeric_limits<S>::denorm_min() * static_cast<S>(1 + rng() % 9);
        }
        long double want = 0, size = 0;
        for (const S v : values) {
            want += std::log(static_cast<long double>(v));
            size += std::fabs(std::log(static_cast<long double>(v)));
        }
        const Buffer<S> src(values, {static_cast<int>(rng() % 64), rng() % 2 == 0});
        Buffer<D> sum(1, {static_cast<int>(rng() % 8), false});
        ASSERT_EQ(vlqStsOk, sumLn(src.data(), len, sum.data())) << len;
        ASSERT_TRUE(sum.marginsIntact());
        const D got = sum.values()[0];
        // The rounding of the result, and that of a few hundred products in double precision.
        const long double bound = std::fabs(want) * std::numeric_limits<D>::epsilon() +
                                  size * 4 * std::numeric_limits<double>::epsilon();
        EXPECT_LE(std::fabs(got - want), bound) << len;

        // Alignment changes nothing.
        const Buffer<S> moved(values, {static_cast<int>(rng() % 64), false});
        D again;
        sumLn(moved.data(), len, &again);
        EXPECT_EQ(0, std::memcmp(&got, &again, sizeof got)) << len;

        // The first singular element ends the sum.
        auto singular = values;
        const std::size_t at = rng() % singular.size();
        const auto expect = [&](S element, VlqStatus status, D result) {
            singular[at] = element;
            if (at + 1 < singular.size()) singular[at + 1] = element == 0 ? S(-1) : S(0);
            const Buffer<S> broken(singular);
            D value = 7;
            EXPECT_EQ(status, sumLn(broken.data(), len, &value)) << len;
            EXPECT_EQ(0, std::memcmp(&result, &value, sizeof value)) << len << ": " << value;
        };
        const D infinity = std::numeric_limits<D>::infinity();
        const D nan = -std::numeric_limits<D>::quiet_NaN();  // 0xFFC00000, 0xFFF8000000000000
        ASSERT_TRUE(std::signbit(nan));
        expect(0, vlqStsWarnLnZero, infinity);
        expect(-3, vlqStsWarnLnNegative, nan);
        if constexpr (!std::is_integral_v<S>)
            expect(std::numeric_limits<S>::quiet_NaN(), vlqStsOk, nan);
    }
    S v[2] = {1, 1};
    D sum = 7;
    EXPECT_EQ(vlqStsNullPtr, sumLn(nullptr, 0, &sum));
    EXPECT_EQ(vlqStsNullPtr, sumLn(v, 0, nullptr));
    EXPECT_EQ(vlqStsBadSize, sumLn(v, 0, &sum));
    EXPECT_EQ(vlqStsBadSize, sumLn(v, -1, &sum));
    EXPECT_EQ(7, sum);
}

TEST_F(ExpLog, Sums) {
    checkSum(vlqsSumLn_16s32f, rng);
    checkSum(vlqsSumLn_32f, rng);
    checkSum(vlqsSumLn_32f64f, rng);
    checkSum(vlqsSumLn_64f, rng);
}

TEST_F(ExpLog, SumsWithInfinity) {
    std::vector<Vlq32f> values(700, 2.0f);
    values[600] = std::numeric_limits<Vlq32f>::infinity();
    Vlq32f sum = 0;
    EXPECT_EQ(vlqStsOk, vlqsSumLn_32f(values.data(), 700, &sum));
    EXPECT_EQ(std::numeric_limits<Vlq32f>::infinity(), sum);
}

}  // namespace
